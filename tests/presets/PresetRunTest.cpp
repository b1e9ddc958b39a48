// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "PresetFiles.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/Preset.h>

#include <QProcess>
#include <QtTest>

#include <cups/cups.h>

#include <cstdio>

namespace {

// Prints the options of a destination, QUEUE or QUEUE and INSTANCE, that presets carry, as a new process sees them.
int printOptions(int &argc, char **argv)
{
    cups_dest_t *dests = nullptr;
    const int count = cupsGetDests(&dests);
    const cups_dest_t *dest = cupsGetDest(argv[1], argc > 2 ? argv[2] : nullptr, count, dests);
    const Preset preset(QString(), QString(), {}, QString(), QString(), -1);
    for (const QString &keyword : preset.getOptionNames()) {
        const QByteArray name = keyword.toLatin1();
        const char *value = dest ? cupsGetOption(name.constData(), dest->num_options, dest->options) : nullptr;
        if (value)
            std::printf("%s=%s\n", name.constData(), value);
    }
    cupsFreeDests(count, dests);
    return dest ? 0 : 1;
}
const TestMain::ChildFunction printOptionsFunction("printOptions", printOptions);

QByteArrayList optionsOf(const QStringList &destination)
{
    const TestMain::ChildResult result = TestMain::runChild("printOptions", destination);
    return result.exitCode == 0 ? result.output.trimmed().split('\n') : QByteArrayList{"no such destination"};
}

} // namespace

// If this fails, running a preset in a shell applies other settings than choosing it in the dialog.
class PresetRunTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void queue();
    void instance();
    void values_data();
    void values();
    void emptyValues();

private:
    QByteArray ppdhackLog() const { return PresetFiles::readFile(logPath); }
    int run(const Preset &preset) const;

    PrivateScheduler scheduler;
    QString logPath = qEnvironmentVariable("HOME") + "/ppdhack.log";
};

void PresetRunTest::initTestCase()
{
    scheduler.addQueue("LP1", PrivateScheduler::samplePpd("every-option"));
    scheduler.addQueue("LP2");
}

void PresetRunTest::init()
{
    QVERIFY(PresetFiles::reset());
    QVERIFY(PresetFiles::writeFile(logPath, ""));
}

int PresetRunTest::run(const Preset &preset) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", PrivateScheduler::commandDir() + ':' + environment.value("PATH"));
    environment.insert("PPDHACK_LOG", logPath);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(preset.pathName(), QStringList());
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void PresetRunTest::queue()
{
    scheduler.setUserOptions("LP1", {"GapSize=2.000", "Feed=24", "Darkness=4"});
    Preset preset("LP1", "Wide",
                  {"Darkness", "12", "Direct", "true", "GapSize", "3.000", "MirrorPrint", "False", "OffsetH", "-8",
                   "orientation-requested", "4", "Stop", "-12.700"},
                  "Wide labels", "Four inches", -1);
    preset.setUserPageSize(QSizeF(4.5, 6));
    QVERIFY(preset.save({"GapSize", "3.000", "MirrorPrint", "False", "PrintSpeed", "3"}));
    QCOMPARE(run(preset), 0);
    // GapSize has its default again; Feed, which the preset does not set, is unchanged.
    QCOMPARE(optionsOf({"LP1"}), (QByteArrayList{"Darkness=12", "Direct=True", "Feed=24", "OffsetH=-8",
                                                 "orientation-requested=4", "Stop=-12.700"}));
    QCOMPARE(ppdhackLog(), QByteArray("4.50 6.00 LP1\n"));
}

void PresetRunTest::instance()
{
    scheduler.setUserOptions("LP1", {"Darkness=4"});
    Preset preset("LP1/draft", "Wide", {"Darkness", "7"}, QString(), QString(), -1);
    QVERIFY(preset.save({}));
    QCOMPARE(run(preset), 0);
    QCOMPARE(optionsOf({"LP1"}), QByteArrayList{"Darkness=4"});
    QCOMPARE(optionsOf({"LP1", "draft"}), QByteArrayList{"Darkness=7"});
    QCOMPARE(ppdhackLog(), QByteArray());
}

void PresetRunTest::values_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("arrives");
    QTest::newRow("command") << "^XA" << QByteArray("^XA");
    // The shell removes half of the backslashes.
    QTest::newRow("stored line break") << "^XA\\\\r" << QByteArray("^XA\\r");
    QTest::newRow("backslashes") << "a\\\\\\\\b" << QByteArray("a\\\\b");
}

// From libcups 2.4.17 on, the file of lpoptions itself keeps fewer backslashes.
void PresetRunTest::values()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, arrives);
    QByteArray escaped = arrives;
    escaped.replace('\\', "\\\\");
    PrivateScheduler::run("lpoptions", {"-p", "LP1", "-o", QString("JobStart=" + escaped)});
    const QByteArrayList expected = optionsOf({"LP1"});
    QVERIFY(PresetFiles::reset());

    Preset preset("LP1", "Wide", {"JobStart", value}, QString(), QString(), -1);
    QVERIFY(preset.save({}));
    QCOMPARE(run(preset), 0);
    QCOMPARE(optionsOf({"LP1"}), expected);
}

// In lpoptions, libcups would write them as "true".
void PresetRunTest::emptyValues()
{
    scheduler.setUserOptions("LP1", {"Darkness=4", "JobStart=^XA"});
    Preset preset("LP1", "_current",
                  {"Darkness", "9", "JobEnd", "", "JobStart", "", "LabelEnd", QString(), "LabelStart", " "}, QString(),
                  QString(), -1);
    QVERIFY(preset.save({"JobEnd", "^XZ", "LabelEnd", ""}));
    QCOMPARE(run(preset), 0);
    QCOMPARE(QProcess::execute("lpoptions", {"-p", "LP2", "-o", "copies=2"}), 0);
    QCOMPARE(optionsOf({"LP1"}), QByteArrayList{"Darkness=9"});
    QCOMPARE(run(preset), 0);
    QCOMPARE(PresetFiles::readFile(PresetFiles::root() + "/lpoptions").simplified().split(' ').mid(0, 3),
             (QByteArrayList{"Dest", "LP1", "Darkness=9"}));
}

PROPERTIESDIALOG_TEST_MAIN(PresetRunTest)
#include "PresetRunTest.moc"
