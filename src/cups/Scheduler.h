// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef SCHEDULER_H
#define SCHEDULER_H

#include <QString>

#include <chrono>
#include <functional>

// libcups' connection. Only src/cups includes headers of libcups.
typedef struct _http_s http_t;

/**
 * Requests to the user's scheduler, with time limits.
 *
 * libcups waits for minutes, in some calls forever, if a scheduler accepts a request but does not answer, stops in the
 * middle of an answer or sends it byte by byte. Each request therefore runs on a thread of its own, whose connection is
 * shut down when its time is up.
 *
 * The thread also protects the host's settings: libcups has a server, a default connection and a password callback for
 * each thread. As no call returns the callback, one replaced on the host's thread could not be restored.
 *
 * To be used from the GUI thread only.
 */
namespace Scheduler {

using Milliseconds = std::chrono::milliseconds;

/** Time limits. */
struct Limits
{
    Milliseconds withoutProgress{5000}; ///< without a byte; also how long no request is sent afterwards
    Milliseconds altogether{15000}; ///< for all requests of one user action
    Milliseconds toReachPrinter{9000}; ///< until the scheduler has reached a printer that was discovered on the network
};

/**
 * What to do with the connection. It is repeated from the beginning after the user has entered a password. It runs on
 * another thread, which may continue after the request was given up: it must own everything it uses, and may only call
 * libcups.
 */
using Work = std::function<void(http_t *)>;

/**
 * Does @p work and asks the user for a password if the scheduler wants one. Returns whether it ended in time; false
 * also if the scheduler cannot be reached or isLeftAlone().
 */
bool ask(const Work &work);

/** The same for a job whose documents have @p size bytes; sending them may take longer than other requests. */
bool askToPrint(const Work &work, qint64 size);

/**
 * The same for a request that the scheduler answers when it has reached a printer. If that takes too long, lastError() is
 * @p failure, and other requests are still sent.
 */
bool askToReachPrinter(const Work &work, const QString &failure);

/** For @p work of several steps: whether it has not been given up. */
bool isWaitedFor();

/** Whether no requests are sent because one was not answered in time a moment ago. */
bool isLeftAlone();

/** Sends no requests for a moment, because the scheduler broke off an answer. */
void leaveAlone();

/** Why the last request failed, as a text for the user; valid until the next request. */
const char *lastError();

/** Replaces lastError(). */
void setLastError(const QString &text);

/**
 * Calls @p function, which makes Qt use libcups, with no scheduler in reach. It runs on a thread of its own, so that
 * neither the server nor the password callback of the host's thread is touched; Qt replaces the latter.
 */
void callWithoutScheduler(const std::function<void()> &function);

/**
 * Calls @p function, which makes Qt use libcups, on a thread of its own, on which a scheduler that wants a password
 * gets what the user entered before. Qt itself would ask for each of its requests. Qt's requests have no time limit:
 * only call this when the scheduler has just answered.
 */
void callWithScheduler(const std::function<void()> &function);

/** The limits that apply. */
Limits currentLimits();

/** For tests, which should not wait that long. */
void setLimits(const Limits &limits);

} // namespace Scheduler

#endif
