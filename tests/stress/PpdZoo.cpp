// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <QDirIterator>
#include <QProcess>
#include <QPushButton>

#include <cups/ppd.h>

#include <sys/stat.h>

#include <cstdio>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

#if defined(__SANITIZE_ADDRESS__)
// libcups 2.4 leaks parts of its cache of a PPD file when the file is closed: the texts about printing on both
// sides, and the options for finishings and print quality. It does so for Qt's reader and for ours. Option
// arrays that the library leaks are found by the other tests.
extern "C" __attribute__((visibility("default"))) const char *__lsan_default_suppressions()
{
    return "leak:_ppdCacheCreateWithPPD\nleak:cupsAddOption";
}
#endif

// If this fails, the dialog crashes or stores wrong values with the PPD file of some driver.
//
// By default these are the samples of the tests and the sample drivers of CUPS. PPD_ZOO_FOLDER names a folder with
// others, and PPD_ZOO_SHARD, "INDEX/COUNT", a part of them; the script ppd-zoo runs this program so.
//
// All files take turns in one queue. The scheduler reads the queue's file for each request, so it is
// enough to replace it; lpadmin would take many times longer than the test.
class PpdZoo : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void dialog_data();
    void dialog();

private:
    void collectSamples();
    void show(const QByteArray &ppd);

    PrivateScheduler scheduler;
    QStringList files;
    QTemporaryDir samples;
    QString queuePpd;
};

namespace {

const char queue[] = "zoo";

struct Shard
{
    int index = 0;
    int count = 1;
};

Shard shardFromEnvironment()
{
    Shard shard;
    const QByteArray text = qgetenv("PPD_ZOO_SHARD");
    if (!text.isEmpty() && std::sscanf(text.constData(), "%d/%d", &shard.index, &shard.count) != 2)
        qFatal("PPD_ZOO_SHARD is no INDEX/COUNT: %s", text.constData());
    return shard;
}

} // namespace

void PpdZoo::initTestCase()
{
    scheduler.addQueue(queue);
    scheduler.setServerDefault(queue);
    queuePpd = scheduler.dir() + "/etc/ppd/" + queue + ".ppd";
    QVERIFY(QFile::exists(queuePpd));

    const QString folder = qEnvironmentVariable("PPD_ZOO_FOLDER");
    if (folder.isEmpty()) {
        collectSamples();
        return;
    }
    QStringList all;
    for (QDirIterator it(folder, {"*.ppd"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
        all << it.next();
    all.sort();
    const Shard shard = shardFromEnvironment();
    for (int i = shard.index; i < all.size(); i += shard.count)
        files << all.at(i);
    QVERIFY(!files.isEmpty());
}

void PpdZoo::collectSamples()
{
    for (const char *sample : {"label-203", "label-300", "every-option", "few-options"})
        files << PrivateScheduler::samplePpd(sample);
    // The sample drivers that come with CUPS.
    const QStringList arguments{"-d", samples.path(), "/usr/share/cups/drv/sample.drv"};
    QCOMPARE(QProcess::execute("ppdc", arguments), 0);
    const QStringList names = QDir(samples.path()).entryList({"*.ppd"});
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        files << samples.filePath(name);
}

void PpdZoo::cleanup()
{
    QDir(cupsFolder()).removeRecursively();
}

// Atomically replaces the queue's file.
void PpdZoo::show(const QByteArray &ppd)
{
    const QString next = queuePpd + ".N";
    writeFile(next, ppd);
    // The scheduler only sends files that everybody may read.
    QCOMPARE(chmod(QFile::encodeName(next).constData(), 0644), 0);
    QCOMPARE(std::rename(QFile::encodeName(next).constData(), QFile::encodeName(queuePpd).constData()), 0);
}

void PpdZoo::dialog_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &path : files)
        QTest::newRow(qPrintable(path)) << path;
}

void PpdZoo::dialog()
{
    QFETCH(QString, path);
    const QByteArray content = fileContent(path);
    show(content);
    ppd_file_t *expected = ppdOpenFile(QFile::encodeName(path).constData());
    const QByteArray nickname = expected ? expected->nickname : nullptr;
    const bool isReadable = expected != nullptr;
    ppdClose(expected);

    OpenDialog open;
    QTest::qWait(0);
    QCOMPARE(open.cups.getCurrentQueueName(), QString(queue));
    const ppd_file_t *loaded = open.cups.getPpdFile();
    QCOMPARE(loaded != nullptr, isReadable);
    if (loaded)
        QCOMPARE(QByteArray(loaded->nickname), nickname);
    QVERIFY(!open.isEnabled("applyButton"));

    open.click("mirroredCheckBox");
    open.setText("feed", "0.25");
    open.choose("mediaType", 1);
    open.setPlainText("commandEdit", "^XA#1\n");
    QVERIFY(open.isEnabled("applyButton"));
    open.click("applyButton");
    QVERIFY(!open.isEnabled("applyButton"));
    // A driver of another make has some of the settings only.
    QCOMPARE(open.cups.getMirror(), open.isEnabled("mirroredCheckBox"));
    Options stored = storedOptions(queue);
    Options memory = workingCopy(open.cups);
    QCOMPARE(stored.value("JobStart"), open.isEnabled("commandEdit") ? QByteArray("^XA#1\\\\r") : QByteArray());
    for (Options *options : {&stored, &memory})
        for (const QByteArray &keyword : options->keys(QByteArray("")))
            options->remove(keyword); // those of the user are not stored: other programs would make "true" of them
    QCOMPARE(stored, memory);

    open.click("cancelButton");
    QVERIFY(!open.dialog.isVisible());
    QCOMPARE(open.dialog.result(), 0);
}

PROPERTIESDIALOG_TEST_MAIN(PpdZoo)
#include "PpdZoo.moc"
