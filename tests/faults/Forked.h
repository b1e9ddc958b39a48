// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FORKED_H
#define FORKED_H

#include <functional>

#include <sys/wait.h>
#include <unistd.h>

/** What a function returned in a copy of this process. What it does to the process, its limits say, ends with the copy. */
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
