// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/Scheduler.h"

#include "cups/Passwords.h"

#include <QByteArray>
#include <QCoreApplication>

#include <cups/cups.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <csignal>
#include <memory>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <resolv.h>
#include <sys/socket.h>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Scheduler::Limits;
using Scheduler::Milliseconds;
using Scheduler::Work;

// How often a slow request is checked; an answered one is noticed immediately.
constexpr Milliseconds watchInterval = 100ms;

// libcups connects again and goes on with the next step of a call whose connection was shut down; it is shut down again
// after this time. A thread that has not ended after that many times hangs elsewhere, such as in a name look-up, and is
// left to itself: it owns everything it uses.
constexpr Milliseconds shutDownInterval = 200ms;
constexpr int shutDowns = 6;

// Answers that take no longer than this do not count, however many there are.
constexpr Milliseconds quickAnswer = 250ms;
// Requests separated by a longer pause belong to different actions of the user.
constexpr Milliseconds pauseBetweenActions = 1s;

// How often the user may enter a password for one request.
constexpr int passwordTries = 3;

// Documents are given a second for this many bytes.
constexpr qint64 slowestNetwork = 100'000;

Limits limits;
Clock::time_point leaveAloneUntil;
QByteArray errorText;

// What the slow requests of the present action have taken so far.
struct Action
{
    Milliseconds spent{0};
    Clock::time_point end;

    Milliseconds left()
    {
        if (Clock::now() - end > pauseBetweenActions)
            spent = 0ms;
        return std::max(0ms, limits.altogether - spent);
    }
    void add(Clock::duration duration)
    {
        if (duration <= quickAnswer)
            return;
        spent += std::chrono::duration_cast<Milliseconds>(duration);
        end = Clock::now();
    }
};
Action action;

// The scheduler and user name that the host may have set in libcups for its thread.
class Identity
{
public:
    Identity()
        : server(cupsServer())
        , user(cupsUser())
        , port(ippPort())
        , encryption(cupsEncryption())
    {
    }

    const QByteArray &serverName() const { return server; }
    bool isLocalSocket() const { return server.startsWith('/'); }

    // Tells libcups on this thread. The server only if it has another one: setting it drops the rest of its entry.
    void adopt() const
    {
        if (server != cupsServer())
            cupsSetServer(server.constData());
        if (port != ippPort())
            ippSetPort(port);
        if (encryption != cupsEncryption())
            cupsSetEncryption(encryption);
        cupsSetUser(user.constData()); // unasked, since libcups would read the list of all users to answer
    }

private:
    const QByteArray server;
    const QByteArray user;
    const int port;
    const http_encryption_t encryption;
};

// What the user entered, for libcups' callback.
class KnownPassword
{
public:
    explicit KnownPassword(const QByteArray &server)
    {
        if (const std::optional<Passwords::Credentials> known = Passwords::known(server)) {
            user = known->user.toUtf8();
            password = known->password.toUtf8();
        }
    }

    bool isKnown() const { return !user.isNull(); }

    // Whether an answer was needed that was missing or refused.
    bool isMissed() const { return missed; }

    // Makes libcups ask this object on this thread. Otherwise it would ask on the terminal, which stops a background
    // process.
    void giveToLibcups() { cupsSetPasswordCB2(answer, this); }

private:
    // libcups asks a second time for a connection when the first answer was refused.
    static const char *answer(const char *, http_t *http, const char *, const char *, void *data)
    {
        auto *known = static_cast<KnownPassword *>(data);
        known->missed = !known->isKnown() || http == known->given;
        if (known->missed)
            return nullptr;
        known->given = http;
        cupsSetUser(known->user.constData());
        return known->password.constData();
    }

    QByteArray user;
    QByteArray password;
    http_t *given = nullptr;
    bool missed = false;
};

// A request, shared by the thread that does it and the one that waits.
struct Request
{
    explicit Request(const QByteArray &server)
        : password(server)
    {
    }

    KnownPassword password;
    std::mutex mutex;
    std::condition_variable changed;
    http_t *http = nullptr; // while its connection may be shut down
    bool isConnected = false;
    bool hasEnded = false;
    std::atomic<bool> isGivenUp{false};
    int cancelsConnecting = 0; // the same in the form that libcups wants
    ipp_status_t status = IPP_STATUS_OK;
    QByteArray message;
};

// The request for which this thread works.
thread_local const Request *ownRequest = nullptr;

// Lets the system notice a broken network; libcups never checks.
void keepAlive(http_t *http)
{
    const int fd = httpGetFd(http);
    const auto set = [fd](int level, int option, int value) { setsockopt(fd, level, option, &value, sizeof value); };
    set(SOL_SOCKET, SO_KEEPALIVE, 1);
    set(IPPROTO_TCP, TCP_KEEPIDLE, 3);
    set(IPPROTO_TCP, TCP_KEEPINTVL, 1);
    set(IPPROTO_TCP, TCP_KEEPCNT, 3);
}

http_t *connect(int *cancel)
{
    const int patience = static_cast<int>(limits.withoutProgress.count());
    http_t *http = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, patience, cancel);
    if (http && httpAddrFamily(httpGetAddress(http)) != AF_LOCAL)
        keepAlive(http);
    return http;
}

// What the thread of a request does.
void run(const std::shared_ptr<Request> &request, const Work &work, const Identity &identity, http_t *connected)
{
    ownRequest = request.get();
    identity.adopt();
    request->password.giveToLibcups();
    http_t *http = connected ? connected : connect(&request->cancelsConnecting);
    if (http) {
        {
            const std::lock_guard lock(request->mutex);
            request->http = http;
            request->isConnected = true;
        }
        work(http);
        const std::lock_guard lock(request->mutex);
        request->http = nullptr;
    }
    const ipp_status_t status = cupsLastError();
    const QByteArray message = cupsLastErrorString();
    httpClose(http); // which may wait too, if the connection is encrypted
    const std::lock_guard lock(request->mutex);
    request->status = status;
    request->message = message;
    request->hasEnded = true;
    request->changed.notify_one();
}

// A thread that does not receive the host's signals. Nothing if the system has no more threads.
std::optional<std::thread> startThread(const std::function<void()> &function)
{
    sigset_t blocked;
    sigset_t before;
    sigfillset(&blocked);
    // Those that report a fault of the thread itself go to the host's handlers. Blocked, they would end the process.
    for (const int fault : {SIGBUS, SIGFPE, SIGILL, SIGSEGV, SIGSYS, SIGTRAP})
        sigdelset(&blocked, fault);
    pthread_sigmask(SIG_SETMASK, &blocked, &before);
    std::optional<std::thread> thread;
    try {
        thread.emplace(function);
    } catch (const std::system_error &) {
        thread.reset();
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return thread;
}

// Calls the function on a thread on which libcups is prepared, and waits. If the system has no more threads, calls it
// on this thread.
void callOnThread(const std::function<void()> &prepare, const std::function<void()> &function)
{
    std::optional<std::thread> thread = startThread([&] {
        prepare();
        function();
    });
    thread ? thread->join() : function();
}

// Makes look-ups of names on this thread, which is about to end, fail immediately. cupsGetPPD() looks up the name of
// this machine for each PPD file, which takes long if no name server answers and is useless with a scheduler on a local
// socket.
void forgetNameServers()
{
    if (res_init() == 0)
        _res.nscount = 0;
}

// How long to wait for a request.
struct Patience
{
    Milliseconds altogether;
    Milliseconds withoutProgress = limits.withoutProgress;
    QString printerFailure = {}; // what to say if it is over because the scheduler waits for a printer
};

// Waits until the request has ended or a time limit is reached.
bool endsInTime(Request &request, std::unique_lock<std::mutex> &lock, const Patience &patience)
{
    const Clock::time_point start = Clock::now();
    Clock::time_point lastProgress = start;
    time_t lastActivity = 0;
    while (!request.changed.wait_for(lock, watchInterval, [&request] { return request.hasEnded; })) {
        const Clock::time_point now = Clock::now();
        const time_t activity = request.http ? httpGetActivity(request.http) : 0;
        if (activity != lastActivity)
            lastProgress = now;
        lastActivity = activity;
        if (now - lastProgress >= patience.withoutProgress || now - start >= patience.altogether)
            return false;
    }
    return true;
}

// Ends a request whose time is up. Returns whether its thread has ended.
bool giveUp(Request &request, std::unique_lock<std::mutex> &lock)
{
    request.isGivenUp = true;
    request.cancelsConnecting = 1;
    for (int i = 0; i < shutDowns; ++i) {
        if (request.http)
            shutdown(httpGetFd(request.http), SHUT_RDWR);
        if (request.changed.wait_for(lock, shutDownInterval, [&request] { return request.hasEnded; }))
            return true;
    }
    return false;
}

void rememberTimeOut()
{
    Scheduler::setLastError(QCoreApplication::translate("CupsSupport", "The print server did not answer in time."));
    leaveAloneUntil = Clock::now() + limits.withoutProgress;
}

enum class Outcome {
    NotAnswered,
    Answered,
    PasswordMissing,
    PasswordRefused
};

// Does the work once.
Outcome converse(const Work &work, const Patience &patience)
{
    const Identity identity;
    const auto request = std::make_shared<Request>(identity.serverName());
    http_t *http = nullptr;
    if (identity.isLocalSocket()) {
        // Without a name to look up, this takes no time; if nobody listens, no thread is needed.
        http = connect(nullptr);
        if (!http) {
            errorText = cupsLastErrorString();
            return Outcome::NotAnswered;
        }
    }
    std::optional<std::thread> thread = startThread([=] { run(request, work, identity, http); });
    if (!thread) {
        httpClose(http);
        return Outcome::NotAnswered;
    }
    std::unique_lock lock(request->mutex);
    const bool isInTime = endsInTime(*request, lock, patience);
    const bool hasEnded = isInTime || giveUp(*request, lock);
    lock.unlock();
    hasEnded ? thread->join() : thread->detach();
    if (!isInTime) {
        if (patience.printerFailure.isEmpty())
            rememberTimeOut();
        else
            Scheduler::setLastError(patience.printerFailure);
        return Outcome::NotAnswered;
    }
    // After a success, libcups' text is about an unrelated earlier error.
    const bool isSuccess = request->status < IPP_STATUS_REDIRECTION_OTHER_SITE;
    errorText = isSuccess ? QByteArray(ippErrorString(IPP_STATUS_OK)) : request->message;
    if (request->password.isMissed())
        return request->password.isKnown() ? Outcome::PasswordRefused : Outcome::PasswordMissing;
    return request->isConnected ? Outcome::Answered : Outcome::NotAnswered;
}

// Does the work, again each time the user has entered a password. It counts as answered if the user declines.
bool converseWithUser(const std::function<Outcome()> &converseOnce)
{
    for (int tries = 0;; ++tries) {
        const Outcome outcome = converseOnce();
        if (outcome != Outcome::PasswordMissing && outcome != Outcome::PasswordRefused)
            return outcome == Outcome::Answered;
        if (tries == passwordTries)
            Passwords::decline();
        if (!Passwords::ask(cupsServer(), outcome == Outcome::PasswordRefused))
            return true;
    }
}

} // namespace

bool Scheduler::ask(const Work &work)
{
    return !isLeftAlone() && converseWithUser([&work] {
        const Clock::time_point start = Clock::now();
        const Outcome outcome = converse(work, {action.left()});
        action.add(Clock::now() - start);
        return outcome;
    });
}

bool Scheduler::askToPrint(const Work &work, qint64 size)
{
    const Patience patience{limits.altogether + std::chrono::seconds(size / slowestNetwork)};
    return !isLeftAlone() && converseWithUser([&] { return converse(work, patience); });
}

bool Scheduler::askToReachPrinter(const Work &work, const QString &failure)
{
    const Patience patience{limits.toReachPrinter, limits.toReachPrinter, failure};
    return !isLeftAlone() && converseWithUser([&] { return converse(work, patience); });
}

bool Scheduler::isWaitedFor()
{
    return !ownRequest->isGivenUp;
}

bool Scheduler::isLeftAlone()
{
    return Clock::now() < leaveAloneUntil;
}

void Scheduler::leaveAlone()
{
    setLastError(QCoreApplication::translate("CupsSupport", "The print server broke off in the middle of an answer."));
    leaveAloneUntil = Clock::now() + limits.withoutProgress;
}

const char *Scheduler::lastError()
{
    return errorText.isNull() ? cupsLastErrorString() : errorText.constData();
}

void Scheduler::setLastError(const QString &text)
{
    errorText = text.toUtf8();
}

void Scheduler::callWithoutScheduler(const std::function<void()> &function)
{
    callOnThread([] { cupsSetServer("/nonexistent"); }, function);
}

void Scheduler::callWithScheduler(const std::function<void()> &function)
{
    const Identity identity;
    KnownPassword password(identity.serverName());
    const auto prepare = [&identity, &password] {
        identity.adopt();
        if (identity.isLocalSocket())
            forgetNameServers();
        password.giveToLibcups();
    };
    callOnThread(prepare, function);
}

Limits Scheduler::currentLimits()
{
    return limits;
}

void Scheduler::setLimits(const Limits &newLimits)
{
    limits = newLimits;
    leaveAloneUntil = {};
    action = {};
}
