// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/Passwords.h"

#include <QCoreApplication>

#include <cups/cups.h>

#include <chrono>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Passwords::Credentials;

// The requests of one action follow each other faster than this. In a later action the user may have changed their
// mind.
constexpr auto pauseBetweenActions = 1s;

Passwords::Prompt windowPrompt = nullptr;
std::optional<Credentials> entered;
QByteArray enteredFor;
Clock::time_point declined;
bool isAsking = false; // the prompt lets events happen

bool hasWindows()
{
    return QCoreApplication::instance() && QCoreApplication::instance()->inherits("QApplication");
}

// Whether reading from its terminal would stop this process.
bool isInBackground()
{
    const int terminal = open("/dev/tty", O_RDONLY | O_NOCTTY | O_CLOEXEC);
    const bool result = terminal >= 0 && tcgetpgrp(terminal) != getpgrp();
    if (terminal >= 0)
        close(terminal);
    return result;
}

bool askAsLibcups(Credentials *credentials, const QByteArray &server)
{
    const QString where = server.startsWith('/') ? QStringLiteral("localhost") : QString::fromUtf8(server);
    const QString prompt = QCoreApplication::translate("CupsSupport", "Password for %1 on %2? ");
    const char *password = cupsGetPassword(prompt.arg(credentials->user, where).toLocal8Bit().constData());
    credentials->user = QString::fromUtf8(cupsUser()); // which a host's callback may have changed
    credentials->password = QString::fromUtf8(password);
    return password != nullptr;
}

} // namespace

std::optional<Credentials> Passwords::known(const QByteArray &server)
{
    return enteredFor == server ? entered : std::nullopt;
}

bool Passwords::ask(const QByteArray &server, bool isRefused)
{
    if (enteredFor != server)
        entered.reset();
    enteredFor = server;
    Credentials answer{entered ? entered->user : QString::fromUtf8(cupsUser()), QString()};
    if (isRefused)
        entered.reset();
    if (isAsking || Clock::now() - declined < pauseBetweenActions) {
        decline();
        return false;
    }
    const bool asksInWindow = windowPrompt && hasWindows();
    if (!asksInWindow && isInBackground())
        return false;
    isAsking = true;
    const bool isAnswered = asksInWindow ? windowPrompt(&answer, isRefused) : askAsLibcups(&answer, server);
    isAsking = false;
    if (isAnswered)
        entered = std::move(answer);
    else
        decline();
    return isAnswered;
}

void Passwords::decline()
{
    declined = Clock::now();
}

void Passwords::setPrompt(Prompt prompt)
{
    windowPrompt = prompt;
}
