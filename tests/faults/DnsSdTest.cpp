// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// On a network with printers that announce themselves with DNS-SD, users find them beside the queues, print on them,
// and do not wait long for one that is off.

#include "cups/Scheduler.h"
#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/PrintDialog.h>

#include <QElapsedTimer>
#include <QMessageBox>
#include <QProcess>
#include <QTimer>

#include <memory>
#include <vector>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

// This is the only machine in its network, so all ports are free.
const int closedPort = 4001;
const int silentPort = 4002;
const int servedPort = 4003;

const char closedPrinter[] = "Printer in the cellar";
const char silentPrinter[] = "Printer in the yard";
const char servedPrinter[] = "Printer in the hall";

// Short, because printing to an unreachable printer would otherwise take 9 seconds.
const Scheduler::Limits shortLimits{5s, 15s, 3s};

// The longest time for one user action, with a margin for a busy machine; without limits, libcups waits for more than a
// minute.
const qint64 longest = 3000 + 20000;

// A port that never answers, like a printer that hangs.
class SilentPort
{
public:
    explicit SilentPort(int number)
        : fd(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = htons(quint16(number));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        const void *pointer = &address;
        if (bind(fd, static_cast<const sockaddr *>(pointer), sizeof address) != 0 || listen(fd, 5) != 0)
            qFatal("cannot listen on port %d", number);
    }
    ~SilentPort() { close(fd); }

    SilentPort(const SilentPort &) = delete;
    SilentPort &operator=(const SilentPort &) = delete;

private:
    const int fd;
};

// A program that runs while this object exists.
class Service
{
public:
    explicit Service(const QStringList &command)
    {
        process.setStandardOutputFile("/dev/null");
        process.setStandardErrorFile("/dev/null");
        process.start("setpriv", QStringList{"--pdeathsig", "KILL"} + command);
        if (!process.waitForStarted())
            qFatal("cannot start %s", qPrintable(command.first()));
    }
    ~Service()
    {
        process.terminate();
        process.waitForFinished();
    }

    Service(const Service &) = delete;
    Service &operator=(const Service &) = delete;

private:
    QProcess process;
};

// Says how long it took, and whether that is acceptable.
bool isInTime(const char *action, const QElapsedTimer &timer)
{
    const qint64 elapsed = timer.elapsed();
    qInfo("%s: %lld ms", action, static_cast<long long>(elapsed));
    return elapsed < longest;
}

bool lists(const CupsSupport &cups, const QString &description)
{
    return cups.printerForSelectOption("printer-info", description.toUtf8().constData()) >= 0;
}

bool areAllListed()
{
    const CupsSupport cups;
    return lists(cups, closedPrinter) && lists(cups, silentPrinter) && lists(cups, servedPrinter);
}

// libcups listens for printers for a quarter of a second, in which a busy machine may miss one.
std::unique_ptr<CupsSupport> supportThatLists(const QString &description)
{
    for (int tries = 0; tries < 100; ++tries) {
        auto cups = std::make_unique<CupsSupport>();
        if (lists(*cups, description))
            return cups;
    }
    qFatal("%s is not listed", qPrintable(description));
}

} // namespace

// If this fails, dialogs freeze or printers are missing where printers announce themselves.
class DnsSdTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void opening();
    void printDialog();
    void unreachable_data();
    void unreachable();
    void reachable();

private:
    void announce(const char *description, int port);

    PrivateScheduler scheduler;
    const SilentPort silent{silentPort};
    const QTemporaryDir spool{"/tmp/pd-XXXXXX"}; // of the printer that is served
    std::vector<std::unique_ptr<Service>> services;
};

// Announces a printer without serving it.
void DnsSdTest::announce(const char *description, int port)
{
    services.push_back(std::make_unique<Service>(
        QStringList{"avahi-publish", "--service", description, "_ipp._tcp", QString::number(port), "txtvers=1",
                    "rp=ipp/print", "ty=Label Printer", "pdl=application/pdf,image/urf,image/pwg-raster"}));
}

void DnsSdTest::initTestCase()
{
    scheduler.addQueue("LP1", PrivateScheduler::samplePpd("label-203"), "First Printer");
    scheduler.setServerDefault("LP1");
    writeFile(homePath("document.txt"), "text\n");
    announce(closedPrinter, closedPort);
    announce(silentPrinter, silentPort);
    services.push_back(std::make_unique<Service>(QStringList{"ippeveprinter", "-d", spool.path(), "-n", "labels.local",
                                                             "-p", QString::number(servedPort), servedPrinter}));
    for (int tries = 0; !areAllListed(); ++tries)
        QVERIFY(tries < 100);
    Scheduler::setLimits(shortLimits);
}

void DnsSdTest::opening()
{
    QElapsedTimer timer;
    timer.start();
    OpenDialog open;
    QVERIFY(isInTime("opening", timer));
    QCOMPARE(QString(open.cups.getCurrentQueueName()), QString("LP1"));
    open.slide("darknessSlider", 12);
    timer.start();
    open.click("applyButton");
    QVERIFY(isInTime("Apply", timer));
    QVERIFY(open.dialog.lastSaveSucceeded());
    QCOMPARE(storedOptions("LP1").value("Darkness"), QByteArray("12"));
    // The others have nothing to store.
    QVERIFY(!fileContent(cupsFolder() + "/lpoptions").contains("Printer_in_the"));
}

void DnsSdTest::printDialog()
{
    QPrinter printer(QPrinter::ScreenResolution);
    QElapsedTimer timer;
    timer.start();
    CupsSupport cups;
    PrintDialog dialog(nullptr, &printer, &cups);
    dialog.show();
    QVERIFY(isInTime("print dialog", timer));
    auto *list = childOf<QComboBox>(dialog, "cboPrinterName");
    QCOMPARE(list->currentText(), QString("First Printer"));
    for (const char *description : {closedPrinter, silentPrinter, servedPrinter})
        QVERIFY2(list->findText(description) >= 0, description);
    QTimer user;
    connect(&user, &QTimer::timeout, &dialog, [] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Yes)->click();
    });
    user.start(20);
    timer.start();
    list->setCurrentIndex(list->findText(closedPrinter));
    childOf<QAbstractButton>(dialog, "yesButton_2")->click();
    QVERIFY(isInTime("choosing a printer that cannot be reached", timer));
    QCOMPARE(printer.printerName(), QString("Printer_in_the_cellar"));
}

void DnsSdTest::unreachable_data()
{
    QTest::addColumn<QString>("description");
    QTest::newRow("closed port") << closedPrinter;
    QTest::newRow("silent") << silentPrinter;
}

void DnsSdTest::unreachable()
{
    QFETCH(QString, description);
    Scheduler::setLimits({5s, 15s, 500ms});
    const auto cups = supportThatLists(description);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(cups->printFile(homePath("document.txt"), description, "title", {}), 0);
    QVERIFY(isInTime("printing", timer));
    QCOMPARE(QString::fromUtf8(CupsSupport::getCupsError()),
             QString("The printer \"%1\" cannot be reached.").arg(description));
    // The scheduler's own queues can be used at once.
    QVERIFY2(cups->printFile(homePath("document.txt"), "First Printer", "title", {}) > 0, CupsSupport::getCupsError());
}

void DnsSdTest::reachable()
{
    Scheduler::setLimits({5s, 15s, 20s});
    const auto cups = supportThatLists(servedPrinter);
    QElapsedTimer timer;
    timer.start();
    const int job = cups->printFile(homePath("document.txt"), servedPrinter, "title", {"raw", "true"});
    QVERIFY2(job > 0, CupsSupport::getCupsError());
    QVERIFY(isInTime("printing", timer));
}

PROPERTIESDIALOG_TEST_MAIN(DnsSdTest)

#include "DnsSdTest.moc"
