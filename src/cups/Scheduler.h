// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef SCHEDULER_H
#define SCHEDULER_H

#include <cups/http.h>

/**
 * A connection to the scheduler of this user on which nothing waits for long.
 *
 * libcups' own default connection waits for minutes when the scheduler accepts requests and never answers, and the
 * dialogs would freeze with it.
 */
class SchedulerConnection
{
public:
    /** How long one wait for the scheduler may last, and for how long a silent scheduler is then left alone. */
    static constexpr int patienceMs = 3000;

    SchedulerConnection();
    ~SchedulerConnection();

    SchedulerConnection(const SchedulerConnection &) = delete;
    SchedulerConnection &operator=(const SchedulerConnection &) = delete;

    /** False when the scheduler cannot be reached, or did not answer a moment ago. */
    bool isOpen() const { return http != nullptr; }

    /** The connection to hand to libcups, owned by this object. Not for use when isOpen() is false: null would mean
        libcups' own default connection, which knows no limit. */
    http_t *get() const { return http; }

private:
    http_t *http = nullptr;
};

#endif
