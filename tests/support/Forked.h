// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FORKED_H
#define FORKED_H

#include <cerrno>
#include <functional>

#include <sys/wait.h>
#include <unistd.h>

/**
 * Waits until a child process has ended, and returns its status, or -1 if there is no such child. After a QProcess, Qt catches
 * SIGCHLD, so that the end of another child can interrupt waitpid().
 */
inline int waitForEnd(pid_t child)
{
    int status = 0;
    pid_t ended = -1;
    do
        ended = waitpid(child, &status, 0);
    while (ended < 0 && errno == EINTR);
    return ended == child ? status : -1;
}

/** Returns the result of a function that runs in a copy of this process, so that changed limits and the like end with it. */
inline int inCopy(const std::function<int()> &function)
{
    const pid_t copy = fork();
    if (copy == 0)
        _exit(function());
    const int status = waitForEnd(copy);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

#endif
