// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FAULTYSCHEDULER_H
#define FAULTYSCHEDULER_H

#include "Forked.h"

#include <QFile>
#include <QMetaType>
#include <QString>

#include <cstddef>
#include <cstdio>
#include <cstdlib>

#include <csignal>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/**
 * What clients find on a socket instead of a scheduler, while this object exists. It runs as a separate process. Some
 * faults are those of something between the client and a real scheduler.
 */
class FaultyScheduler
{
public:
    enum Fault {
        NeverAnswers,
        NeverAccepts, // and has a full queue of waiting clients
        Closes,
        Garbage,
        HttpGarbage,
        Password,
        // between the client and a scheduler:
        OnlyOptions, // what is asked by other methods is not passed on
        HalfAnswer, // and then nothing
        ByteByByte, // after the first few hundred
        WrongLength, // announces more than comes
        PpdFileStops, // everything else is passed on
        PpdFileBreaksOff,
        WantsPassword, // "secret", of "user"
    };

    /** @param upstream the socket of the scheduler, for the faults that need one. */
    FaultyScheduler(const QString &path, Fault fault, const QString &upstream = {})
        : schedulerPath(upstream)
    {
        QFile::remove(path);
        const int listener = open(path, true, fault == NeverAccepts ? 0 : 100);
        server = fork();
        if (server == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            if (fault == NeverAccepts)
                open(path, false); // takes the only place
            serve(listener, fault);
        }
        close(listener);
    }

    ~FaultyScheduler()
    {
        kill(server, SIGKILL);
        waitForEnd(server);
    }

    FaultyScheduler(const FaultyScheduler &) = delete;
    FaultyScheduler &operator=(const FaultyScheduler &) = delete;

private:
    static int open(const QString &path, bool isListener, int backlog = 0)
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof address.sun_path);
        const void *pointer = &address;
        const auto *generic = static_cast<const sockaddr *>(pointer);
        const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const int result = isListener ? bind(fd, generic, sizeof address) : connect(fd, generic, sizeof address);
        if (result != 0 || (isListener && listen(fd, backlog) != 0)) {
            std::perror("socket");
            std::_Exit(EXIT_FAILURE);
        }
        return fd;
    }

    [[noreturn]] void serve(int listener, Fault fault)
    {
        std::signal(SIGCHLD, SIG_IGN);
        std::signal(SIGPIPE, SIG_IGN);
        while (fault != NeverAccepts) {
            const int client = accept(listener, nullptr, nullptr);
            const pid_t self = getpid();
            if (fork() == 0) {
                prctl(PR_SET_PDEATHSIG, SIGKILL);
                if (getppid() == self)
                    schedulerPath.isEmpty() ? answer(client, fault) : relay(client, open(schedulerPath, false), fault);
                std::_Exit(EXIT_SUCCESS);
            }
            close(client);
        }
        stall();
    }

    static void say(int client, const QByteArray &text)
    {
        if (write(client, text.constData(), std::size_t(text.size())) < 0)
            std::_Exit(EXIT_FAILURE);
    }

    [[noreturn]] static void stall()
    {
        for (;;)
            pause();
    }

    // Passes everything on, until the fault occurs.
    static void relay(int client, int scheduler, Fault fault)
    {
        QByteArray request;
        qsizetype passedOn = 0; // of the answer to it
        for (;;) {
            pollfd ends[] = {{client, POLLIN, 0}, {scheduler, POLLIN, 0}};
            poll(ends, 2, -1);
            char buffer[4096];
            if (ends[0].revents != 0) {
                const ssize_t count = read(client, buffer, sizeof buffer);
                if (count <= 0)
                    return;
                if (passedOn > 0)
                    request.clear();
                passedOn = 0;
                request.append(buffer, int(count));
                if (fault == OnlyOptions && !request.startsWith("OPTIONS"))
                    stall();
                if (fault == WantsPassword
                    && !request.contains("Authorization: Basic " + QByteArray("user:secret").toBase64()))
                    return say(client, text(Password));
                say(scheduler, QByteArray(buffer, int(count)));
                continue;
            }
            const ssize_t count = read(scheduler, buffer, sizeof buffer);
            if (count <= 0)
                return;
            QByteArray part(buffer, int(count));
            if (part.startsWith("HTTP/1.1 100")) {
                // "100 Continue" is not the answer yet.
                const auto end = part.indexOf("\r\n\r\n") + 4;
                say(client, part.left(end));
                part.remove(0, end);
            }
            spoil(client, fault, request, passedOn, part);
            say(client, part);
            passedOn += part.size();
        }
    }

    // Applies the fault to an answer of which @p part comes next.
    static void spoil(int client, Fault fault, const QByteArray &request, qsizetype passedOn, QByteArray &part)
    {
        const qsizetype good = 400; // in the middle of all answers, and behind their heads
        const bool isPpdFile = request.startsWith("GET ");
        switch (fault) {
        case WrongLength:
            if (const auto at = part.indexOf("Content-Length: "); at >= 0)
                part.insert(at + int(qstrlen("Content-Length: ")), '9');
            return;
        case WantsPassword:
            return;
        case PpdFileStops:
        case PpdFileBreaksOff:
            if (!isPpdFile)
                return;
            break;
        default:
            break;
        }
        if (passedOn + part.size() <= good)
            return;
        say(client, part.left(int(good - passedOn)));
        if (fault == PpdFileBreaksOff)
            std::_Exit(EXIT_SUCCESS);
        if (fault != ByteByByte)
            stall();
        for (qsizetype i = good - passedOn; i < part.size(); ++i) {
            usleep(200000);
            say(client, QByteArray(1, part.at(int(i))));
        }
        stall();
    }

    static void answer(int client, Fault fault)
    {
        char request[65536];
        switch (fault) {
        case Closes:
            return;
        case Garbage:
        case HttpGarbage:
        case Password:
            while (read(client, request, sizeof request) > 0)
                say(client, text(fault));
            return;
        default:
            break;
        }
        stall();
    }

    static QByteArray text(Fault fault)
    {
        QByteArray body;
        for (int i = 0; i < 3000; ++i)
            body += char(i * 37 % 256);
        switch (fault) {
        case HttpGarbage:
            return "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: 3000\r\n\r\n" + body;
        case Password:
            return "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"CUPS\"\r\nContent-Length: 0\r\n\r\n";
        default:
            return body;
        }
    }

    const QString schedulerPath;
    pid_t server;
};

Q_DECLARE_METATYPE(FaultyScheduler::Fault)

#endif
