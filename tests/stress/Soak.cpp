// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <QPushButton>

#include <malloc.h>
#include <unistd.h>

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // Debian's g++ comes without the header
#endif

// If this fails, hosts that open the dialog often leak memory, descriptors or temporary files.
//
// SOAK_COUNT is how often the dialog is opened, applied and closed.
class Soak : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void nothingIsLeft();

private:
    PrivateScheduler scheduler;
};

namespace {

const char queue[] = "soak";
const int warmUp = 50; // openings after which every cache is filled
const int usualCount = 150; // openings
const qint64 slack = 4096; // bytes; about four for each opening of a full run

// The allocated memory, in bytes.
qint64 memoryInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return qint64(__sanitizer_get_current_allocated_bytes()); // mallinfo2() is the other allocator's
#else
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
#endif
}

// The resident memory of the process, in bytes.
qint64 residentMemory()
{
    const QByteArray pages = fileContent("/proc/self/statm").split(' ').value(1);
    return pages.toLongLong() * sysconf(_SC_PAGESIZE);
}

QStringList openDescriptors()
{
    QStringList list;
    const QDir folder("/proc/self/fd");
    for (const QString &entry : folder.entryList(QDir::Files | QDir::System))
        list << QFileInfo(folder.filePath(entry)).symLinkTarget();
    list.removeAll(QFileInfo("/proc/self/fd").canonicalFilePath()); // of this listing
    list.sort();
    return list;
}

QStringList filesBelow(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

void openApplyAndClose(int round)
{
    OpenDialog open(std::make_unique<QPrinter>(QPrinter::ScreenResolution));
    // A change in every round, always with texts of the same length.
    open.click("mirroredCheckBox");
    open.click("inverseCheckBox");
    open.setText("feed", QString("0.%1").arg(round % 10 + 10));
    open.choose("mediaType", round % 3);
    open.choose("cut", round % 2);
    open.setPlainText("commandEdit", QString("command %1\n").arg(round % 10));
    open.click("applyButton");
    QTest::qWait(0);
    QVERIFY(!open.isEnabled("applyButton"));
    open.click(round % 2 ? "okButton" : "cancelButton");
    QVERIFY(!open.dialog.isVisible());
}

} // namespace

void Soak::initTestCase()
{
    scheduler.addQueue(queue);
    scheduler.setServerDefault(queue);
}

void Soak::nothingIsLeft()
{
    const int count = qEnvironmentVariableIsSet("SOAK_COUNT") ? qEnvironmentVariableIntValue("SOAK_COUNT") : usualCount;
    QVERIFY(count > warmUp);
    // libcups' temporary files, the copies of PPD files among them, and Qt's go here.
    const QString temporary = QDir::homePath() + "/tmp";
    QVERIFY(QDir().mkpath(temporary));
    qputenv("TMPDIR", QFile::encodeName(temporary));

    qint64 before = 0;
    qint64 residentBefore = 0;
    QStringList descriptors;
    QStringList folder;
    for (int round = 0; round < count; ++round) {
        openApplyAndClose(round);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (round + 1 == warmUp) {
            descriptors = openDescriptors();
            folder = filesBelow(cupsFolder());
            residentBefore = residentMemory();
            before = memoryInUse(); // last, so that it includes the lists
        }
        if ((round + 1) % 50 == 0) {
            qInfo("%d openings: %lld bytes allocated, %lld kB resident, %d descriptors", round + 1,
                  static_cast<long long>(memoryInUse()), static_cast<long long>(residentMemory() / 1024),
                  int(openDescriptors().size()));
        }
    }

    const qint64 growth = memoryInUse() - before;
    qInfo("growth: %lld bytes, %lld kB resident", static_cast<long long>(growth),
          static_cast<long long>((residentMemory() - residentBefore) / 1024));
    QCOMPARE(openDescriptors(), descriptors);
    QCOMPARE(filesBelow(temporary), QStringList());
    QCOMPARE(filesBelow(cupsFolder()), folder);
    // Every round must leave the same memory allocated; the slack is for the texts of this function.
    QVERIFY2(growth < slack, qPrintable(QString("%1 bytes").arg(growth)));
}

PROPERTIESDIALOG_TEST_MAIN(Soak)
#include "Soak.moc"
