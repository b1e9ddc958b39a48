// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FAULTYSCHEDULER_H
#define FAULTYSCHEDULER_H

#include <QFile>
#include <QMetaType>
#include <QString>

#include <cstddef>
#include <cstdio>
#include <cstdlib>

#include <csignal>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

/** What clients find on a socket instead of a scheduler, for the time of this object; a process of its own. */
class FaultyScheduler
{
public:
    enum Fault {
        NeverAnswers,
        NeverAccepts, // and has no room for those who wait
        Closes,
        Garbage,
        HttpGarbage,
        Password,
    };

    FaultyScheduler(const QString &path, Fault fault)
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
        waitpid(server, nullptr, 0);
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

    [[noreturn]] static void serve(int listener, Fault fault)
    {
        std::signal(SIGCHLD, SIG_IGN);
        std::signal(SIGPIPE, SIG_IGN);
        while (fault != NeverAccepts) {
            const int client = accept(listener, nullptr, nullptr);
            const pid_t server = getpid();
            if (fork() == 0) {
                prctl(PR_SET_PDEATHSIG, SIGKILL);
                if (getppid() == server)
                    answer(client, fault);
                std::_Exit(EXIT_SUCCESS);
            }
            close(client);
        }
        for (;;)
            pause();
    }

    static void say(int client, const QByteArray &text)
    {
        if (write(client, text.constData(), std::size_t(text.size())) < 0)
            std::_Exit(EXIT_FAILURE);
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
        for (;;)
            pause();
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

    pid_t server;
};

Q_DECLARE_METATYPE(FaultyScheduler::Fault)

#endif
