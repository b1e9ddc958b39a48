// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "PrivateScheduler.h"
#include "TestMain.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>

#include <cups/cups.h>

namespace {

struct Result
{
    int exitStatus = -1;
    QString output;
    QString errors;
};

} // namespace

// If this fails, label-printer-properties opens the wrong printer or returns a wrong exit status.
class ProgramTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void withoutWindow_data();
    void withoutWindow();
    void listsTheQueues();
    void opensTheDialog_data();
    void opensTheDialog();
    void savesForTheNamedQueue();

private:
    Result run(const QStringList &arguments);
    Result press(const QStringList &arguments, const QString &key, const QString &title);

    PrivateScheduler scheduler;
};

void ProgramTest::initTestCase()
{
    scheduler.addQueue("First", PrivateScheduler::samplePpd("label-203"), "The first printer");
    scheduler.addQueue("Second", PrivateScheduler::samplePpd("label-300"), "The second printer");
    scheduler.setServerDefault("Second");
    scheduler.setUserOptions("First/wide", {"Darkness=3"});
}

Result ProgramTest::run(const QStringList &arguments)
{
    QProcess process;
    process.start(PROGRAM, arguments);
    Result result;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        result.exitStatus = process.exitCode();
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    return result;
}

// Runs the program in its own X server, waits for the window with this title and presses a key in it.
Result ProgramTest::press(const QStringList &arguments, const QString &key, const QString &title)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_QPA_PLATFORM");
    process.setProcessEnvironment(environment);
    const QString script =
        QStringLiteral("\"$@\" & program=$!\n"
                       "window=$(xdotool search --sync --onlyvisible --name \"^$TITLE\\$\") || exit 99\n"
                       "until xdotool windowfocus --sync $window key $KEY; do sleep 0.1; done\n"
                       "wait $program");
    environment.insert("TITLE", title);
    environment.insert("KEY", key);
    process.setProcessEnvironment(environment);
    process.start(WITH_XVFB, QStringList{"bash", "-c", script, "-", PROGRAM} + arguments);
    Result result;
    if (process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit)
        result.exitStatus = process.exitCode();
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    return result;
}

void ProgramTest::withoutWindow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitStatus");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("errors");
    const QString usage = "Usage: ";
    QTest::newRow("--help") << QStringList{"--help"} << 0 << usage << QString();
    QTest::newRow("-h") << QStringList{"-h"} << 0 << usage << QString();
    const QString version = "label-printer-properties " PROGRAM_VERSION "\n";
    QTest::newRow("--version") << QStringList{"--version"} << 0 << version << QString();
    QTest::newRow("-v") << QStringList{"-v"} << 0 << version << QString();
    const QString noPrinter = "label-printer-properties: there is no printer \"%1\"; --list names those there are\n";
    QTest::newRow("wrong name") << QStringList{"-p", "Third"} << 2 << QString() << noPrinter.arg("Third");
    QTest::newRow("empty name") << QStringList{"-p", ""} << 2 << QString() << noPrinter.arg("");
    QTest::newRow("a description is no name")
        << QStringList{"--printer", "The first printer"} << 2 << QString() << noPrinter.arg("The first printer");
    QTest::newRow("name missing") << QStringList{"-p"} << 2 << QString() << "label-printer-properties: ";
    QTest::newRow("unknown option") << QStringList{"--wrong"} << 2 << QString() << "label-printer-properties: ";
    QTest::newRow("unexpected argument") << QStringList{"First"} << 2 << QString()
                                         << "label-printer-properties: unexpected argument \"First\"\n";
}

void ProgramTest::withoutWindow()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitStatus);
    QFETCH(QString, output);
    QFETCH(QString, errors);
    const Result result = run(arguments);
    QCOMPARE(result.exitStatus, exitStatus);
    QVERIFY2(output.isEmpty() ? result.output.isEmpty() : result.output.startsWith(output), qPrintable(result.output));
    QVERIFY2(errors.isEmpty() ? result.errors.isEmpty() : result.errors.startsWith(errors), qPrintable(result.errors));
}

void ProgramTest::listsTheQueues()
{
    for (const char *option : {"--list", "-l"}) {
        const Result result = run({option});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.output, QString("  First\n  First/wide\n* Second\n"));
    }
}

void ProgramTest::opensTheDialog_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("queue");
    QTest::addColumn<int>("exitStatus");
    QTest::newRow("default, OK") << QStringList() << "Return"
                                 << "Second" << 0;
    QTest::newRow("default, cancelled") << QStringList() << "Escape"
                                        << "Second" << 1;
    QTest::newRow("named, OK") << QStringList{"-p", "First"} << "Return"
                               << "First" << 0;
    QTest::newRow("named, cancelled") << QStringList{"--printer=First"} << "Escape"
                                      << "First" << 1;
    QTest::newRow("instance, cancelled") << QStringList{"-p", "First/wide"} << "Escape"
                                         << "First/wide" << 1;
}

void ProgramTest::opensTheDialog()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, key);
    QFETCH(QString, queue);
    QFETCH(int, exitStatus);
    const Result result = press(arguments, key, queue + " Printing Preferences");
    QVERIFY2(result.exitStatus == exitStatus, qPrintable(QString::number(result.exitStatus) + result.errors));
}

void ProgramTest::savesForTheNamedQueue()
{
    scheduler.addQueue("Untouched");
    scheduler.setUserOptions("First", {"Darkness=4"});
    scheduler.setUserOptions("Untouched", {"Darkness=5"});
    QCOMPARE(press({"-p", "First"}, "Return", "First Printing Preferences").exitStatus, 0);
    cups_dest_t *dests = nullptr;
    const int count = cupsGetDests(&dests);
    const auto saved = [&](const char *queue, const char *option) {
        const cups_dest_t *dest = cupsGetDest(queue, nullptr, count, dests);
        return QByteArray(cupsGetOption(option, dest->num_options, dest->options));
    };
    QCOMPARE(saved("First", "Darkness"), QByteArray("4"));
    QCOMPARE(saved("First", "orientation-requested"), QByteArray("4")); // what the dialog always saves
    QCOMPARE(saved("Untouched", "Darkness"), QByteArray("5"));
    QVERIFY(saved("Untouched", "orientation-requested").isNull());
    cupsFreeDests(count, dests);
}

PROPERTIESDIALOG_TEST_MAIN(ProgramTest)
#include "ProgramTest.moc"
