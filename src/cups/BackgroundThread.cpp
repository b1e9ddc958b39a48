// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/BackgroundThread.h"

#include <csignal>
#include <system_error>

std::optional<std::thread> startBackgroundThread(const std::function<void()> &function)
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
