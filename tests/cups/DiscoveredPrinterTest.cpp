// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// A user prints on a printer that was discovered on the network and has no queue yet. The scheduler is real and makes
// the queue; only the record of the discovery is made here.

#include "cups/PrintJob.h"
#include "cups/Scheduler.h"
#include "Forked.h"
#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <QElapsedTimer>

#include <csignal>
#include <cstdlib>
#include <functional>

#include <netinet/in.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

// A port of this machine. It never answers, like a printer that hangs; once it is closed, connections are refused.
class Port
{
public:
    Port()
        : fd(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        void *pointer = &address;
        auto *generic = static_cast<sockaddr *>(pointer);
        if (bind(fd, generic, size) != 0 || listen(fd, 5) != 0 || getsockname(fd, generic, &size) != 0)
            qFatal("no port");
        number = ntohs(address.sin_port);
    }
    ~Port() { closeNow(); }

    Port(const Port &) = delete;
    Port &operator=(const Port &) = delete;

    // Answers connections to that socket, in this process.
    [[noreturn]] void leadTo(const QString &socketPath) const
    {
        for (;;) {
            const int client = accept(fd, nullptr, nullptr);
            if (fork() == 0) {
                prctl(PR_SET_PDEATHSIG, SIGKILL);
                copyBetween(client, connectTo(socketPath));
                std::_Exit(EXIT_SUCCESS);
            }
            close(client);
        }
    }

    void closeNow()
    {
        if (fd >= 0)
            close(fd);
        fd = -1;
    }

    int number = 0;

private:
    static int connectTo(const QString &path)
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof address.sun_path);
        const void *pointer = &address;
        const int end = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (connect(end, static_cast<const sockaddr *>(pointer), sizeof address) != 0)
            std::_Exit(EXIT_FAILURE);
        return end;
    }

    static void copyBetween(int one, int other)
    {
        pollfd ends[] = {{one, POLLIN, 0}, {other, POLLIN, 0}};
        for (;;) {
            poll(ends, 2, -1);
            const bool fromOne = ends[0].revents != 0;
            char buffer[4096];
            const ssize_t count = read(fromOne ? one : other, buffer, sizeof buffer);
            if (count <= 0 || write(fromOne ? other : one, buffer, size_t(count)) != count)
                return;
        }
    }

    int fd;
};

// Runs the function in a separate process while this object exists.
class Process
{
public:
    explicit Process(const std::function<void()> &function)
        : id(fork())
    {
        if (id == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            function();
            std::_Exit(EXIT_SUCCESS);
        }
    }
    ~Process()
    {
        kill(id, SIGKILL);
        waitForEnd(id);
    }

    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;

private:
    const pid_t id;
};

// A destination as libcups has it for such a printer.
class Discovered
{
public:
    Discovered(const char *name, const char *description, int port, const QByteArray &path = "/ipp/print")
    {
        cupsAddDest(name, nullptr, 0, &dest);
        add("printer-info", description);
        add("device-uri", "ipp://localhost:" + QByteArray::number(port) + path);
    }
    ~Discovered() { cupsFreeDests(1, dest); }

    Discovered(const Discovered &) = delete;
    Discovered &operator=(const Discovered &) = delete;

    int print() const
    {
        const QString file = homePath("document.txt");
        writeFile(file, "text\n");
        return PrintJob::submit(*dest, {file}, "title", {"raw", "true"});
    }

    // Whether libcups itself can use it. Version 2.4.20 of the scheduler refuses all such printers.
    bool isUsableForLibcups() const
    {
        cups_dinfo_t *info = cupsCopyDestInfo(CUPS_HTTP_DEFAULT, dest);
        cupsFreeDestInfo(info);
        return info != nullptr;
    }

private:
    void add(const char *keyword, const QByteArray &value)
    {
        dest->num_options = cupsAddOption(keyword, value.constData(), dest->num_options, &dest->options);
    }

    cups_dest_t *dest = nullptr;
};

} // namespace

// If this fails, printing to a discovered printer that is off freezes the dialog or reports success.
class DiscoveredPrinterTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void unreachable_data();
    void unreachable();
    void reachable();

private:
    PrivateScheduler scheduler;
};

void DiscoveredPrinterTest::initTestCase()
{
    scheduler.addQueue("LP1"); // also plays the printer on the network
}

void DiscoveredPrinterTest::unreachable_data()
{
    QTest::addColumn<bool>("isListening");
    QTest::newRow("silent") << true;
    QTest::newRow("closed port") << false;
}

void DiscoveredPrinterTest::unreachable()
{
    QFETCH(bool, isListening);
    Port port;
    const Discovered dest(isListening ? "Silent" : "Closed", "Printer in the cellar", port.number);
    if (!isListening)
        port.closeNow();
    Scheduler::setLimits({5s, 15s, 500ms});
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(dest.print(), 0);
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(QByteArray(Scheduler::lastError()),
             QByteArray("The printer \"Printer in the cellar\" cannot be reached."));
    // The scheduler itself answers, so that other printers can be used.
    QVERIFY(!Scheduler::isLeftAlone());
}

void DiscoveredPrinterTest::reachable()
{
    Port port;
    const Process printer([&] { port.leadTo(scheduler.socket()); });
    Scheduler::setLimits({5s, 15s, 20s});
    const Discovered dest("Network_Printer", "Network Printer", port.number, "/printers/LP1");
    const bool isUsable =
        Discovered("Other_Printer", "Other Printer", port.number, "/printers/LP1").isUsableForLibcups();
    const int job = dest.print();
    QVERIFY2((job > 0) == isUsable, Scheduler::lastError());
    // The second time it has its queue.
    const int next = dest.print();
    QVERIFY2((next > job) == isUsable, Scheduler::lastError());
}

PROPERTIESDIALOG_TEST_MAIN(DiscoveredPrinterTest)

#include "DiscoveredPrinterTest.moc"
