// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef SCHEDULER_H
#define SCHEDULER_H

#include <QString>

#include <chrono>
#include <functional>

// libcups' connection. Only src/cups looks inside; the rest of the library includes no header of libcups.
typedef struct _http_s http_t;

/**
 * Requests to the user's scheduler, with time limits.
 *
 * libcups waits for minutes, in some calls forever, if a scheduler accepts a request but does not answer, stops in the
 * middle of an answer or sends it byte by byte. Each request therefore runs on a thread of its own, whose connection is
 * shut down when its time is up.
 *
 * The thread also keeps the host's libcups as it is: libcups has a server, a default connection and a password callback
 * for each thread, and no call that returns the callback, so what is replaced on the host's thread could not be put
 * back.
 *
 * To be used from the GUI thread only.
 */
namespace Scheduler {

using Milliseconds = std::chrono::milliseconds;

/** Time limits. */
struct Limits
{
    Milliseconds withoutProgress{5000}; ///< not a byte; also, for how long it is then left alone
    Milliseconds altogether{15000}; ///< all requests of one action of the user
    Milliseconds toReachPrinter{9000}; ///< until it knows a printer that was discovered on the network
};

/**
 * What to do with the connection, from its beginning: it is done again when the user has entered a password. It runs on
 * another thread, which may go on for a while after the request was given up: it has to own all that it touches, and
 * may use libcups alone.
 */
using Work = std::function<void(http_t *)>;

/**
 * Has @p work done, asking the user for a password when the scheduler wants one. Returns whether it ended in time;
 * false also without a scheduler, and a moment after a time-out.
 */
bool ask(const Work &work);

/** The same for a job whose documents have @p size bytes; sending them may take longer than other requests. */
bool askToPrint(const Work &work, qint64 size);

/** For @p work of several steps: whether somebody still waits for it, so that the next step makes sense. */
bool isWaitedFor();

/** Whether a request was not answered in time a moment ago, so that the scheduler is not asked now. */
bool isLeftAlone();

/** Does not ask the scheduler for a moment, because it broke off in the middle of an answer. */
void leaveAlone();

/** Why the last request failed, as a text for the user; valid until the next request. */
const char *lastError();

/** Replaces what libcups said of the last request. */
void setLastError(const QString &text);

/**
 * Calls @p function, which makes Qt use libcups, with no scheduler in reach. It runs on a thread of its own, so that
 * neither the server nor the password callback of the host's thread is touched; Qt replaces the latter.
 */
void callWithoutScheduler(const std::function<void()> &function);

/**
 * Calls @p function, which makes Qt use libcups, on a thread of its own, where a scheduler that wants a password gets
 * what the user entered for us. Qt itself would ask for each of its requests. Qt's requests have no time limit: to be
 * called only when the scheduler has just answered.
 */
void callWithScheduler(const std::function<void()> &function);

/** The limits that apply. */
Limits currentLimits();

/** For tests, which should not wait that long. */
void setLimits(const Limits &limits);

} // namespace Scheduler

#endif
