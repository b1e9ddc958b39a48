// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FORKED_H
#define FORKED_H

#include <functional>

#include <sys/wait.h>
#include <unistd.h>

/** Returns the result of a function that runs in a copy of this process, so that changed limits and the like end with it. */
inline int inCopy(const std::function<int()> &function)
{
    const pid_t copy = fork();
    if (copy == 0)
        _exit(function());
    int status = 0;
    waitpid(copy, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

#endif
