// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef SCHEDULER_H
#define SCHEDULER_H

#include <QByteArray>

#include <cups/http.h>

/**
 * A connection to the scheduler of this user, made only if the scheduler answers.
 *
 * libcups' own default connection waits for minutes when the scheduler accepts requests and never answers, and the
 * dialogs would freeze with it.
 *
 * A scheduler that stops in the middle of an answer is still waited for. The price of a limit there is paid by everybody:
 * libcups then takes more than twice as long to read the destinations.
 */
class SchedulerConnection
{
public:
    /** How long the scheduler may take to answer, and for how long a silent scheduler is then left alone. */
    static constexpr int patienceMs = 4000;

    SchedulerConnection();
    ~SchedulerConnection();

    SchedulerConnection(const SchedulerConnection &) = delete;
    SchedulerConnection &operator=(const SchedulerConnection &) = delete;

    /** False when the scheduler did not answer, now or a moment ago. */
    bool isUsable() const { return usable; }

    /** Whether the scheduler accepted a request a moment ago and did not answer it in time. */
    static bool isSilent();

    /**
     * The connection to hand to libcups, owned by this object; only for use when isUsable().
     *
     * Null when the scheduler refused the connection at once. For libcups that means its own default connection, which is
     * refused as well, and then cupsLastErrorString() tells the user so.
     */
    http_t *get() const { return http; }

private:
    http_t *http = nullptr;
    bool usable = false;
};

/**
 * Takes the scheduler out of reach of libcups' own default connection while it lives.
 *
 * Qt's printer objects use that connection, and wait without a limit.
 */
class SchedulerOutOfReach
{
public:
    SchedulerOutOfReach();
    ~SchedulerOutOfReach();

    SchedulerOutOfReach(const SchedulerOutOfReach &) = delete;
    SchedulerOutOfReach &operator=(const SchedulerOutOfReach &) = delete;

private:
    const QByteArray server;
};

#endif
