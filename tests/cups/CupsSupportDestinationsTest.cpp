// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "CupsTest.h"
#include "TestMain.h"

#include "cups/Scheduler.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>

#include <dlfcn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace std::chrono_literals;

// The destinations that are flagged as default beside the real one, see lastOfSeveralDefaultsWins().
static QByteArrayList extraDefaults;

// Whether the user has only one destination, the first.
static bool isOneDestination = false;

// With only a scheduler, libcups flags one destination; destinations found in the network can be flagged too. So the
// flags are added on the way.
int cupsGetDests2(http_t *http, cups_dest_t **dests)
{
    static const auto real = reinterpret_cast<decltype(&cupsGetDests2)>(dlsym(RTLD_NEXT, "cupsGetDests2"));
    int count = real(http, dests);
    while (isOneDestination && count > 1)
        count = cupsRemoveDest((*dests)[1].name, (*dests)[1].instance, count, dests);
    for (int i = 0; i < count; ++i) {
        const cups_dest_t &dest = (*dests)[i];
        QByteArray name = dest.name;
        if (dest.instance != nullptr)
            name.append('/').append(dest.instance);
        if (extraDefaults.contains(name))
            (*dests)[i].is_default = 1;
    }
    return count;
}

static void print(const char *what, const QByteArray &value)
{
    std::printf("%s: %s\n", what, value.constData());
}

static QByteArray rect(const QRect &r)
{
    return QByteArray::number(r.x()) + ' ' + QByteArray::number(r.y()) + ' ' + QByteArray::number(r.width()) + ' '
           + QByteArray::number(r.height());
}

// What every member returns without a printer; the tests compare it with noPrinterReport.
static void reportWithoutPrinter(CupsSupport &cups)
{
    const auto number = [](auto value) { return QByteArray::number(value); };
    print("queue", cups.getCurrentQueueName().isEmpty() ? "empty" : "not empty");
    print("description", cups.getCurrentPrinterName().isEmpty() ? "empty" : "not empty");
    print("PPD", cups.getPpdFile() == nullptr ? "null" : "not null");
    print("setDests", number(cups.setDests()));
    print("option", cups.printerOption("Darkness") == nullptr ? "null" : "not null");
    print("default", cups.getDefaultValue("Darkness") == nullptr ? "null" : "not null");
    print("value", cups.getValue("Darkness") == nullptr ? "null" : "not null");
    print("PPD option", cups.ppdOption("Darkness") == nullptr ? "null" : "not null");
    print("setValue", number(cups.setValue("Darkness", "3")));
    print("setDarkness", number(cups.setDarkness(3)));
    print("setJobStart", number(cups.setJobStart("A")));
    print("darkness", number(cups.getDarkness()));
    print("page size", number(cups.getDefaultPageSize().width()) + 'x' + number(cups.getDefaultPageSize().height()));
    print("page", rect(cups.pageRect("w288h144")));
    print("paper", rect(cups.paperRect("w288h144")));
    print("resolution", number(cups.getResolution().width()) + ' ' + number(cups.getResolution().height()));
    print("offset", number(cups.getExtendedOffset()));
    print("setExtendedOffset", number(cups.setExtendedOffset(1)));
    print("setOptions", number(cups.setOptions({"Darkness", "3"})));
    cups.deleteOptions({"Darkness"});
    print("lists", number(cups.options().size() + cups.cupsOptions().size() + cups.ppdDefaults().size()));
    print("printFile", number(cups.printFile("/etc/hostname", QString(), "title", {})));
    print("printFiles", number(cups.printFiles({"/etc/hostname"}, "title", {})));
}

static const char noPrinterReport[] = "queue: empty\n"
                                      "description: empty\n"
                                      "PPD: null\n"
                                      "setDests: -1\n"
                                      "option: null\n"
                                      "default: null\n"
                                      "value: null\n"
                                      "PPD option: null\n"
                                      "setValue: -1\n"
                                      "setDarkness: -1\n"
                                      "setJobStart: -1\n"
                                      "darkness: 7\n"
                                      "page size: -1x-1\n"
                                      "page: 0 0 0 0\n"
                                      "paper: 0 0 0 0\n"
                                      "resolution: 300 304.8\n"
                                      "offset: -2\n"
                                      "setExtendedOffset: -1\n"
                                      "setOptions: 0\n"
                                      "lists: 0\n"
                                      "printFile: 0\n"
                                      "printFiles: 0\n";

// With the index as argument: makes that destination current first.
static int withoutPrinter(int &argc, char **argv)
{
    CupsSupport cups;
    print("count", QByteArray::number(cups.getDestCount()));
    if (argc > 1)
        cups.setCurrentPrinter(atoi(argv[1]));
    print("index", QByteArray::number(cups.getCurrentIndex()));
    reportWithoutPrinter(cups);
    return 0;
}
static const TestMain::ChildFunction withoutPrinterFunction("withoutPrinter", withoutPrinter);

// Once the scheduler has stopped, there is a text for the failure, whatever it answered before.
static int errorWithoutScheduler(int &, char **)
{
    CupsSupport cups;
    cups.printFile("/etc/hostname", QString(), QString(), {});
    print("error", CupsSupport::getCupsError());
    return 0;
}
static const TestMain::ChildFunction errorWithoutSchedulerFunction("errorWithoutScheduler", errorWithoutScheduler);

// A scheduler that accepts connections but does not answer.
class SilentScheduler
{
public:
    explicit SilentScheduler(const QString &path)
    {
        const QByteArray encodedPath = QFile::encodeName(path);
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, encodedPath.constData(), sizeof address.sun_path);
        if (bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0
            || listen(listener, 10) != 0)
            qFatal("cannot listen on %s", encodedPath.constData());
        qputenv("CUPS_SERVER", encodedPath);
    }

    // The connections since the last call; they stay open.
    int newConnections()
    {
        int count = 0;
        while (accept(listener, nullptr, nullptr) >= 0)
            ++count;
        return count;
    }

private:
    const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
};

static int askSilentScheduler(int &, char **)
{
    Scheduler::setLimits({5s, 500ms}); // the usual ones would only take longer
    const QTemporaryDir folder;
    SilentScheduler silent(folder.filePath("s"));
    CupsSupport cups;
    print("count", QByteArray::number(cups.getDestCount()));
    print("asked", silent.newConnections() > 0 ? "yes" : "no");
    cups.getDefaultPrinter();
    CupsSupport other;
    print("count", QByteArray::number(other.getDestCount()));
    print("asked again", silent.newConnections() > 0 ? "yes" : "no");
    return 0;
}
static const TestMain::ChildFunction askSilentSchedulerFunction("askSilentScheduler", askSilentScheduler);

// If this fails, a dialog edits or prints to another printer than the one it shows.
class CupsSupportDestinationsTest : public CupsTest
{
    Q_OBJECT

private slots:
    void firstIsCurrentWithoutDefault();
    void oneDestination();
    void serverDefaultIsCurrent();
    void userDefaultIsCurrent_data();
    void userDefaultIsCurrent();
    void defaultOfEnvironment_data();
    void defaultOfEnvironment();
    void lastOfSeveralDefaultsWins();
    void constructionOpensNoPpdFile();
    void ppdFileIsOpenedOnce();
    void ppdFileIsMarkedWithDefaultsAndSavedOptions();
    void closedPpdFileIsOpenedAgainWithFreshMarks();
    void noPpdFileOfRawQueue();
    void missingPpdFileIsAskedForOnce();
    void ppdFileComesBackWithTheScheduler();
    void unreadablePpdFile();
    void temporaryPpdFilesAreRemoved();
    void setCurrentPrinterChangesThePpdFile();
    void noPrinter_data();
    void noPrinter();
    void printerAgainAfterNone();
    void noScheduler();
    void errorTextWithoutScheduler();
    void silentSchedulerIsLeftAlone();
    void schedulerStopsAndComesBack();
    void getDefaultPrinterReturnsToTheDefault();
    void getDefaultPrinterKeepsIndexWithoutDefault();
    void getDefaultPrinterDropsUnsavedOptions();
    void getDefaultPrinterKeepsThePpdFile();
    void getDefaultPrinterSeesNewQueues();
    void indexPastTheEndAfterQueuesWentAway();
    void queueNames();
    void descriptionIsPrinterInfo();
    void descriptionWithoutPrinterInfo();
    void descriptionBeyondAscii();
    void printerOption();
    void printerForSelectOption();
    void setDestsRemovesDefaultsInOnePass_data();
    void setDestsRemovesDefaultsInOnePass();
    void setDestsSweepsTheCurrentPrinterAlone();
    void setDestsSavesEveryDestination();
    void nothingIsSavedBeforeSetDests();
    void setDestsOfPrinterWithoutPpdFile();
    void errorText();

private:
    bool spoilPpdFile() const;
};

void CupsSupportDestinationsTest::firstIsCurrentWithoutDefault()
{
    CupsSupport cups;
    QCOMPARE(cups.getDestCount(), 3);
    QCOMPARE(cups.getCurrentIndex(), 0);
    QCOMPARE(cups.getCurrentQueueName(), QString("LP1"));
}

void CupsSupportDestinationsTest::oneDestination()
{
    isOneDestination = true;
    CupsSupport cups;
    isOneDestination = false;
    QCOMPARE(cups.getDestCount(), 1);
    QCOMPARE(cups.getCurrentQueueName(), QString("LP1"));
    QCOMPARE(cups.getCurrentPrinterName(), QString("First Printer"));
    QVERIFY(cups.getPpdFile() != nullptr);
    QCOMPARE(cups.printerForSelectOption("printer-info", "First Printer"), int(LP1));
    QVERIFY(cups.setDarkness(4) > 0);
    QCOMPARE(cups.getDarkness(), 4);
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(saved(*supportFor(LP1), "Darkness"), QByteArray("4"));
}

void CupsSupportDestinationsTest::serverDefaultIsCurrent()
{
    scheduler->addQueue("LP2b");
    scheduler->setServerDefault("LP2b");
    {
        CupsSupport cups;
        QCOMPARE(cups.getDestCount(), 4);
        QCOMPARE(cups.getCurrentIndex(), 2);
        QCOMPARE(cups.getCurrentQueueName(), QString("LP2b"));
    }
    scheduler->removeQueue("LP2b");
    QCOMPARE(CupsSupport().getCurrentIndex(), 0);
}

void CupsSupportDestinationsTest::userDefaultIsCurrent_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::newRow("queue") << QByteArray("Default LP2\n") << 3 << 1 << "LP2";
    QTest::newRow("last") << QByteArray("Default LP3\n") << 3 << 2 << "LP3";
    QTest::newRow("instance") << QByteArray("Default LP2/wide Darkness=4\n") << 4 << 2 << "LP2/wide";
    QTest::newRow("queue beside instance") << QByteArray("Dest LP1/wide Darkness=4\nDefault LP2\n") << 4 << 2 << "LP2";
    QTest::newRow("queue that is gone") << QByteArray("Default GONE\n") << 3 << 0 << "LP1";
}

void CupsSupportDestinationsTest::userDefaultIsCurrent()
{
    QFETCH(QByteArray, file);
    writeOptionsFile(file);
    CupsSupport cups;
    QTEST(cups.getDestCount(), "count");
    QTEST(cups.getCurrentIndex(), "index");
    QTEST(cups.getCurrentQueueName(), "name");
    QCOMPARE(cups.getDefaultQueueName(), file.contains("GONE") ? QString() : cups.getCurrentQueueName());
    QCOMPARE(cups.getDefaultPrinter(), cups.getCurrentIndex());
}

// The environment overrides the file, even if it names a queue that does not exist.
void CupsSupportDestinationsTest::defaultOfEnvironment_data()
{
    QTest::addColumn<QByteArray>("named");
    QTest::addColumn<QString>("current");
    QTest::newRow("queue") << QByteArray("LP3") << "LP3";
    QTest::newRow("instance, which libcups does not flag") << QByteArray("LP1/wide") << "LP1";
    QTest::newRow("queue that is gone") << QByteArray("GONE") << "LP1";
}

void CupsSupportDestinationsTest::defaultOfEnvironment()
{
    QFETCH(QByteArray, named);
    QFETCH(QString, current);
    writeOptionsFile("Dest LP1/wide Darkness=4\nDefault LP2\n");
    for (const char *variable : {"LPDEST", "PRINTER"}) {
        qputenv(variable, named);
        const CupsSupport cups;
        const QString defaultQueue = cups.getDefaultQueueName();
        qunsetenv(variable);
        QCOMPARE(cups.getCurrentQueueName(), current);
        QCOMPARE(defaultQueue, QString(named));
    }
}

void CupsSupportDestinationsTest::lastOfSeveralDefaultsWins()
{
    writeOptionsFile("Dest LP1/wide Darkness=4\nDefault LP1\n");
    extraDefaults = {"LP1/wide", "LP2"};
    CupsSupport cups;
    extraDefaults = {"LP1/wide"};
    CupsSupport withInstance;
    extraDefaults.clear();
    QCOMPARE(cups.getCurrentQueueName(), QString("LP2"));
    QCOMPARE(withInstance.getCurrentQueueName(), QString("LP1/wide"));
}

void CupsSupportDestinationsTest::constructionOpensNoPpdFile()
{
    scheduler->startRequests();
    CupsSupport cups;
    QVERIFY(scheduler->requests().contains("CUPS-Get-Printers"));
    QVERIFY(scheduler->requests().filter(".ppd").isEmpty());
}

void CupsSupportDestinationsTest::ppdFileIsOpenedOnce()
{
    scheduler->startRequests();
    CupsSupport cups;
    const ppd_file_t *ppd = cups.getPpdFile();
    QVERIFY(ppd != nullptr);
    QCOMPARE(QString(ppd->modelname), QString("Sample Label every 203dpi"));
    QCOMPARE(cups.getPpdFile(), ppd);
    QCOMPARE(cups.getDarkness(), 10);
    QCOMPARE(scheduler->requests().filter("LP1.ppd").size(), 1);
}

void CupsSupportDestinationsTest::ppdFileIsMarkedWithDefaultsAndSavedOptions()
{
    writeOptionsFile("Dest LP1 Darkness=4 CutMedia=2\n");
    CupsSupport cups;
    ppd_file_t *ppd = cups.getPpdFile();
    QVERIFY(ppdIsMarked(ppd, "Darkness", "4"));
    QVERIFY(ppdIsMarked(ppd, "CutMedia", "2"));
    QVERIFY(ppdIsMarked(ppd, "PrintSpeed", "3"));
    QVERIFY(!ppdIsMarked(ppd, "Darkness", "10"));
    QVERIFY(!ppdIsMarked(ppd, "CutMedia", "0"));
}

void CupsSupportDestinationsTest::closedPpdFileIsOpenedAgainWithFreshMarks()
{
    const auto cups = supportFor(LP2);
    scheduler->startRequests();
    cups->setDarkness(5);
    QVERIFY(ppdIsMarked(cups->getPpdFile(), "Darkness", "10"));
    QCOMPARE(scheduler->requests(), QStringList());

    cups->closePpdFile();
    cups->closePpdFile(); // nothing left to close
    QCOMPARE(scheduler->requests(), QStringList());
    QVERIFY(ppdIsMarked(cups->getPpdFile(), "Darkness", "5"));
    QCOMPARE(QString(cups->getPpdFile()->modelname), QString("Sample Label label 300x305dpi"));
    QCOMPARE(scheduler->requests().filter("LP2.ppd").size(), 1);
    QCOMPARE(cups->getCurrentIndex(), int(LP2));
}

void CupsSupportDestinationsTest::noPpdFileOfRawQueue()
{
    const auto cups = supportFor(LP3);
    QVERIFY(cups->getPpdFile() == nullptr);
    QCOMPARE(cups->getCurrentQueueName(), QString("LP3"));
    QVERIFY(cups->getDefaultValue("Darkness") == nullptr);
    QVERIFY(cups->ppdOption("Darkness") == nullptr);
    QCOMPARE(cups->getDarkness(), 7);
}

void CupsSupportDestinationsTest::missingPpdFileIsAskedForOnce()
{
    // Makes it ask again.
    for (void (*const again)(CupsSupport &) : {
             +[](CupsSupport &cups) { cups.closePpdFile(); },
             +[](CupsSupport &cups) { cups.setCurrentPrinter(3); },
             +[](CupsSupport &cups) { cups.getDefaultPrinter(); },
         }) {
        scheduler->addQueue("LP4", QString());
        scheduler->startRequests();
        const auto cups = supportFor(3);
        QCOMPARE(cups->getDarkness(), 7);
        QVERIFY(cups->getPpdFile() == nullptr);
        QCOMPARE(scheduler->requests().filter("LP4.ppd").size(), 1);
        scheduler->setPpd("LP4", PrivateScheduler::samplePpd("few-options"));
        QVERIFY(cups->getPpdFile() == nullptr);
        again(*cups);
        QCOMPARE(cups->getDarkness(), 10);
        scheduler->removeQueue("LP4");
    }
}

void CupsSupportDestinationsTest::ppdFileComesBackWithTheScheduler()
{
    const auto cups = supportFor(LP3);
    QVERIFY(cups->getPpdFile() == nullptr); // there is none
    scheduler->stop();
    cups->setCurrentPrinter(LP2);
    QVERIFY(cups->getPpdFile() == nullptr); // nobody knows
    scheduler->start();
    QCOMPARE(cups->getDarkness(), 10);
}

// Makes the PPD file of LP2 one that cannot be read; lpadmin would refuse it.
bool CupsSupportDestinationsTest::spoilPpdFile() const
{
    QFile file(scheduler->dir() + "/etc/ppd/LP2.ppd");
    return file.open(QIODevice::WriteOnly) && file.write("no PPD file\n") > 0;
}

void CupsSupportDestinationsTest::unreadablePpdFile()
{
    const auto cups = supportFor(LP2);
    QVERIFY(spoilPpdFile());
    cups->setCurrentPrinter(LP2);
    QVERIFY(cups->getPpdFile() == nullptr);
    QCOMPARE(cups->getDarkness(), 7);
    QCOMPARE(cups->getDefaultPageSize(), QSize(-1, -1));
    QCOMPARE(cups->getCurrentPrinterName(), QString("Second Printer"));

    scheduler->setPpd("LP2", PrivateScheduler::samplePpd("label-300"));
    QCOMPARE(cups->getDarkness(), 10);
}

void CupsSupportDestinationsTest::temporaryPpdFilesAreRemoved()
{
    const QTemporaryDir folder;
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    {
        const auto cups = supportFor(LP1);
        QVERIFY(cups->getPpdFile() != nullptr);
        QCOMPARE(QDir(folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList());
        cups->setCurrentPrinter(LP2);
        cups->setCurrentPrinter(LP3);
        QVERIFY(spoilPpdFile());
        cups->setCurrentPrinter(LP2);
        QVERIFY(cups->getPpdFile() == nullptr);
        scheduler->setPpd("LP2", PrivateScheduler::samplePpd("label-300"));
    }
    QCOMPARE(QDir(folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList());
    if (before.isNull())
        qunsetenv("TMPDIR");
    else
        qputenv("TMPDIR", before);
}

void CupsSupportDestinationsTest::setCurrentPrinterChangesThePpdFile()
{
    CupsSupport cups;
    scheduler->startRequests();
    cups.setCurrentPrinter(LP2);
    QCOMPARE(cups.getCurrentIndex(), int(LP2));
    QCOMPARE(scheduler->requests().filter("LP2.ppd").size(), 1); // at once, not at the first use
    QCOMPARE(QString(cups.getPpdFile()->modelname), QString("Sample Label label 300x305dpi"));
    cups.setCurrentPrinter(LP1);
    QCOMPARE(QString(cups.getPpdFile()->modelname), QString("Sample Label every 203dpi"));
    cups.setCurrentPrinter(LP3);
    QVERIFY(cups.getPpdFile() == nullptr);
}

void CupsSupportDestinationsTest::noPrinter_data()
{
    QTest::addColumn<QString>("index");
    QTest::newRow("-1") << "-1";
    QTest::newRow("far below") << "-2000000000";
    QTest::newRow("past the end") << "3";
}

void CupsSupportDestinationsTest::noPrinter()
{
    QFETCH(QString, index);
    const TestMain::ChildResult result = TestMain::runChild("withoutPrinter", {index});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, "count: 3\nindex: " + index.toLatin1() + '\n' + noPrinterReport);
    QVERIFY(!QFile::exists(optionsPath()));
}

void CupsSupportDestinationsTest::printerAgainAfterNone()
{
    CupsSupport cups;
    cups.setCurrentPrinter(-1);
    QVERIFY(cups.getPpdFile() == nullptr);
    QVERIFY(cups.printerForSelectOption("printer-info", "Second Printer") == LP2); // needs no current printer
    cups.setCurrentPrinter(LP2);
    QCOMPARE(cups.getCurrentPrinterName(), QString("Second Printer"));
    QVERIFY(cups.getPpdFile() != nullptr);
}

void CupsSupportDestinationsTest::noScheduler()
{
    const TestMain::ChildResult result =
        TestMain::runChild("withoutPrinter", {}, {{"CUPS_SERVER", "/tmp/no-such-folder/cups.sock"}});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QByteArray("count: 0\nindex: 0\n") + noPrinterReport);

    const TestMain::ChildResult withIndex =
        TestMain::runChild("withoutPrinter", {"1"}, {{"CUPS_SERVER", "/tmp/no-such-folder/cups.sock"}});
    QCOMPARE(withIndex.exitCode, 0);
    QCOMPARE(withIndex.output, QByteArray("count: 0\nindex: 1\n") + noPrinterReport);
}

void CupsSupportDestinationsTest::errorTextWithoutScheduler()
{
    const TestMain::ChildResult result =
        TestMain::runChild("errorWithoutScheduler", {}, {{"CUPS_SERVER", "/tmp/no-such-folder/cups.sock"}});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.startsWith("error: "));
    QVERIFY2(result.output.trimmed() != "error:", "the user is told nothing");
}

void CupsSupportDestinationsTest::silentSchedulerIsLeftAlone()
{
    // Each wait for it freezes the dialogs.
    const TestMain::ChildResult result = TestMain::runChild("askSilentScheduler");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QByteArray("count: 0\nasked: yes\ncount: 0\nasked again: no\n"));
}

void CupsSupportDestinationsTest::schedulerStopsAndComesBack()
{
    CupsSupport cups;
    cups.setCurrentPrinter(LP2);
    scheduler->stop();
    QVERIFY(cups.getPpdFile() != nullptr); // it is open
    cups.closePpdFile();
    QVERIFY(cups.getPpdFile() == nullptr);
    QCOMPARE(cups.getDarkness(), 7);
    QCOMPARE(cups.getCurrentPrinterName(), QString("Second Printer"));
    QCOMPARE(cups.getDefaultPrinter(), int(LP2));
    QCOMPARE(cups.getDestCount(), 0);
    QCOMPARE(cups.getCurrentPrinterName(), QString());

    scheduler->start();
    QCOMPARE(cups.getDefaultPrinter(), int(LP2));
    QCOMPARE(cups.getDestCount(), 3);
    QCOMPARE(cups.getDarkness(), 10);
}

void CupsSupportDestinationsTest::getDefaultPrinterReturnsToTheDefault()
{
    scheduler->setUserDefault("LP2");
    CupsSupport cups;
    cups.setCurrentPrinter(LP1);
    QCOMPARE(cups.getDefaultPrinter(), int(LP2));
    QCOMPARE(cups.getCurrentIndex(), int(LP2));
    scheduler->setUserDefault("LP1"); // the first of all
    QCOMPARE(cups.getDefaultPrinter(), int(LP1));
    QCOMPARE(cups.getCurrentIndex(), int(LP1));
}

void CupsSupportDestinationsTest::getDefaultPrinterKeepsIndexWithoutDefault()
{
    CupsSupport cups;
    cups.setCurrentPrinter(LP3);
    QCOMPARE(cups.getDefaultPrinter(), int(LP3));
    cups.setCurrentPrinter(-1);
    QCOMPARE(cups.getDefaultPrinter(), -1);
    QCOMPARE(cups.getCurrentIndex(), -1);
}

void CupsSupportDestinationsTest::getDefaultPrinterDropsUnsavedOptions()
{
    CupsSupport cups;
    cups.setDarkness(3);
    cups.setCurrentPrinter(LP2);
    cups.setDarkness(4);
    cups.getDefaultPrinter();
    QCOMPARE(saved(cups, "Darkness"), QByteArray());
    cups.setCurrentPrinter(LP1);
    QCOMPARE(saved(cups, "Darkness"), QByteArray());
}

void CupsSupportDestinationsTest::getDefaultPrinterKeepsThePpdFile()
{
    scheduler->setUserDefault("LP2");
    CupsSupport cups;
    cups.setCurrentPrinter(LP1);
    const ppd_file_t *ppd = cups.getPpdFile();
    QCOMPARE(cups.getDefaultPrinter(), int(LP2));
    QCOMPARE(cups.getPpdFile(), ppd);
    QCOMPARE(QString(cups.getPpdFile()->modelname), QString("Sample Label every 203dpi"));
    QCOMPARE(cups.getCurrentPrinterName(), QString("Second Printer"));

    cups.closePpdFile();
    QCOMPARE(QString(cups.getPpdFile()->modelname), QString("Sample Label label 300x305dpi"));
}

void CupsSupportDestinationsTest::getDefaultPrinterSeesNewQueues()
{
    CupsSupport cups;
    scheduler->addQueue("LP4");
    cups.getDefaultPrinter();
    QCOMPARE(cups.getDestCount(), 4);
    cups.setCurrentPrinter(3);
    QCOMPARE(cups.getCurrentQueueName(), QString("LP4"));
    scheduler->removeQueue("LP4");
}

void CupsSupportDestinationsTest::indexPastTheEndAfterQueuesWentAway()
{
    scheduler->addQueue("LP4");
    CupsSupport cups;
    cups.setCurrentPrinter(3);
    scheduler->removeQueue("LP4");
    QCOMPARE(cups.getDefaultPrinter(), int(LP1));
    QCOMPARE(cups.getDestCount(), 3);
    QCOMPARE(cups.getCurrentQueueName(), QString("LP1"));
}

void CupsSupportDestinationsTest::queueNames()
{
    writeOptionsFile("Dest LP1/wide Darkness=4\n");
    CupsSupport cups;
    QStringList names;
    for (int i = 0; i < cups.getDestCount(); ++i) {
        cups.setCurrentPrinter(i);
        names << cups.getCurrentQueueName();
    }
    QCOMPARE(names, QStringList({"LP1", "LP1/wide", "LP2", "LP3"}));
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(cups.getQueueIndex(names.at(i)), i);
    for (const char *unknown : {"", "LP", "lp1", "LP1/", "LP1/narrow", "First Printer"})
        QCOMPARE(cups.getQueueIndex(unknown), -1);
    // An instance is the same printer with its own options.
    cups.setCurrentPrinter(1);
    QCOMPARE(cups.getDarkness(), 4);
    QVERIFY(ppdIsMarked(cups.getPpdFile(), "Darkness", "4"));
    cups.setCurrentPrinter(0);
    QCOMPARE(cups.getDarkness(), 10);
}

void CupsSupportDestinationsTest::descriptionIsPrinterInfo()
{
    CupsSupport cups;
    QCOMPARE(cups.getCurrentPrinterName(), QString("First Printer"));
    cups.setCurrentPrinter(LP3);
    QCOMPARE(cups.getCurrentPrinterName(), QString("Raw Printer"));
}

void CupsSupportDestinationsTest::descriptionWithoutPrinterInfo()
{
    CupsSupport cups;
    cups.deleteOptions({"printer-info"});
    QVERIFY(cups.printerOption("printer-is-accepting-jobs") != nullptr);
    QCOMPARE(cups.getCurrentPrinterName(), QString(""));

    QStringList keywords;
    const QStringList options = cups.cupsOptions();
    for (int i = 0; i < options.size(); i += 2)
        keywords << options.at(i);
    cups.deleteOptions(keywords);
    QCOMPARE(cups.cupsOptions(), QStringList());
    QCOMPARE(cups.getCurrentPrinterName(), QString(""));
}

void CupsSupportDestinationsTest::descriptionBeyondAscii()
{
    const QString description = QString::fromUtf8("Größe — 印刷");
    scheduler->addQueue("LP4", QString(), description);
    CupsSupport cups;
    cups.setCurrentPrinter(3);
    QCOMPARE(cups.getCurrentPrinterName(), description);
    scheduler->removeQueue("LP4");
}

void CupsSupportDestinationsTest::printerOption()
{
    writeOptionsFile("Dest LP1 Darkness=4 JobStart=\n");
    CupsSupport cups;
    QVERIFY(cups.printerOption("Darkness") != nullptr);
    QCOMPARE(QByteArray(cups.printerOption("Darkness")->name), QByteArray("Darkness"));
    QCOMPARE(QByteArray(cups.printerOption("Darkness")->value), QByteArray("4"));
    QCOMPARE(QByteArray(cups.printerOption("JobStart")->value), QByteArray(""));
    QVERIFY(cups.printerOption("darkness") == nullptr);
    QVERIFY(cups.printerOption("PrintSpeed") == nullptr); // in the PPD file alone
    QVERIFY(cups.printerOption(QString()) == nullptr);
    cups.setCurrentPrinter(LP2);
    QVERIFY(cups.printerOption("Darkness") == nullptr);
}

void CupsSupportDestinationsTest::printerForSelectOption()
{
    writeOptionsFile("Dest LP2 Darkness=4\nDest LP3 Darkness=4\n");
    CupsSupport cups;
    QCOMPARE(cups.printerForSelectOption("printer-info", "First Printer"), int(LP1));
    QCOMPARE(cups.printerForSelectOption("printer-info", "Raw Printer"), int(LP3));
    QCOMPARE(cups.printerForSelectOption("printer-info", "raw printer"), -1);
    QCOMPARE(cups.printerForSelectOption("printer-info", ""), -1);
    QCOMPARE(cups.printerForSelectOption("Darkness", "4"), int(LP2)); // the first one; LP1 has no such option
    QCOMPARE(cups.printerForSelectOption("darkness", "4"), int(LP2)); // libcups does not tell the case of keywords
    QCOMPARE(cups.printerForSelectOption("Darkness", "10"), -1); // the PPD file's default is not a saved option
    QCOMPARE(cups.printerForSelectOption("NoSuchOption", "4"), -1);
}

void CupsSupportDestinationsTest::setDestsRemovesDefaultsInOnePass_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("kept");
    // No other option of a destination sorts between these.
    QTest::newRow("none is a default") << QStringList({"GapOffset", "1.000", "GapSize", "2.000"})
                                       << QStringList({"GapOffset", "1.000", "GapSize", "2.000"});
    QTest::newRow("one default") << QStringList({"GapOffset", "1.000", "GapSize", "3.000"})
                                 << QStringList({"GapOffset", "1.000"});
    QTest::newRow("two in a row") << QStringList({"GapOffset", "0.000", "GapSize", "3.000"})
                                  << QStringList({"GapSize", "3.000"});
    QTest::newRow("two apart") << QStringList({"GapOffset", "0.000", "MarkOffset", "0.000"}) << QStringList();
    QTest::newRow("two pairs") << QStringList(
        {"GapOffset", "0.000", "GapSize", "3.000", "MarkOffset", "0.000", "MarkSize", "5.000"})
                               << QStringList({"GapSize", "3.000", "MarkSize", "5.000"});
    QTest::newRow("same number, other text") << QStringList({"GapOffset", "0.0"}) << QStringList({"GapOffset", "0.0"});
    QTest::newRow("same flag, other text") << QStringList({"Direct", "false"}) << QStringList({"Direct", "false"});
    QTest::newRow("not in the PPD file") << QStringList({"MyOption", "1"}) << QStringList({"MyOption", "1"});
}

void CupsSupportDestinationsTest::setDestsRemovesDefaultsInOnePass()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, kept);
    CupsSupport cups;
    QVERIFY(cups.setOptions(options));
    const qsizetype before = cups.cupsOptions().size();
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(cups.cupsOptions().size(), before - options.size() + kept.size());
    const CupsSupport fresh;
    for (int i = 0; i < options.size(); i += 2) {
        const int at = int(kept.indexOf(options.at(i)));
        const QByteArray expected = at < 0 ? QByteArray() : kept.at(at + 1).toLatin1();
        QCOMPARE(saved(cups, options.at(i).toLatin1()), expected);
        QCOMPARE(saved(fresh, options.at(i).toLatin1()), expected);
    }
}

void CupsSupportDestinationsTest::setDestsSweepsTheCurrentPrinterAlone()
{
    CupsSupport cups;
    cups.setOptions({"Darkness", "10"});
    cups.setCurrentPrinter(LP2);
    cups.setOptions({"Darkness", "10"});
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(saved(cups, "Darkness"), QByteArray());
    cups.setCurrentPrinter(LP1);
    QCOMPARE(saved(cups, "Darkness"), QByteArray("10"));
    QCOMPARE(saved(*supportFor(LP1), "Darkness"), QByteArray("10"));
    QCOMPARE(saved(*supportFor(LP2), "Darkness"), QByteArray());
}

void CupsSupportDestinationsTest::setDestsSavesEveryDestination()
{
    writeOptionsFile("Dest LP2/wide Darkness=1\nDefault LP1\n");
    CupsSupport cups;
    QCOMPARE(cups.getDestCount(), 4);
    for (int i = 0; i < 4; ++i) {
        cups.setCurrentPrinter(i);
        cups.setFeed(100 + i);
    }
    cups.setCurrentPrinter(1);
    QCOMPARE(cups.setDests(), 0);

    CupsSupport fresh;
    QCOMPARE(fresh.getDestCount(), 4);
    QCOMPARE(fresh.getCurrentQueueName(), QString("LP1")); // still the default
    for (int i = 0; i < 4; ++i) {
        fresh.setCurrentPrinter(i);
        QCOMPARE(fresh.getFeed(), 100 + i);
    }
    fresh.setCurrentPrinter(2);
    QCOMPARE(fresh.getCurrentQueueName(), QString("LP2/wide"));
    QCOMPARE(fresh.getDarkness(), 1);
    // What the scheduler knows of its printers is not the user's option.
    QVERIFY(!readOptionsFile().contains("printer-info"));
    QVERIFY(!readOptionsFile().contains("device-uri"));
    QVERIFY(!readOptionsFile().contains("copies"));
}

void CupsSupportDestinationsTest::nothingIsSavedBeforeSetDests()
{
    {
        CupsSupport cups;
        cups.setDarkness(4);
        cups.setOptions({"Feed", "24"});
        cups.deleteOptions({"Feed"});
        cups.closePpdFile();
    }
    QVERIFY(!QFile::exists(optionsPath()));
}

void CupsSupportDestinationsTest::setDestsOfPrinterWithoutPpdFile()
{
    const auto cups = supportFor(LP3);
    cups->setDarkness(7);
    QCOMPARE(cups->setDests(), 0);
    QCOMPARE(saved(*supportFor(LP3), "Darkness"), QByteArray("7"));
}

void CupsSupportDestinationsTest::errorText()
{
    CupsSupport cups;
    QCOMPARE(cups.printFile("/no/such/file", QString(), QString(), {}), 0);
    QVERIFY(QByteArray(CupsSupport::getCupsError()).contains(std::strerror(ENOENT)));
    // It is about the last request, not about earlier errors of the system.
    cups.getDefaultPrinter();
    QCOMPARE(QByteArray(CupsSupport::getCupsError()), QByteArray(ippErrorString(IPP_STATUS_OK)));
}

PROPERTIESDIALOG_TEST_MAIN(CupsSupportDestinationsTest)
#include "CupsSupportDestinationsTest.moc"
