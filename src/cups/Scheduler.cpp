// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/Scheduler.h"

#include <cups/cups.h>

#include <chrono>

namespace {

using Clock = std::chrono::steady_clock;

// Until when the scheduler is not asked again. Loading the dialog makes many calls that need the PPD file; without this
// each of them would wait anew for a scheduler that has fallen silent.
Clock::time_point leaveAloneUntil;

void leaveAlone()
{
    leaveAloneUntil = Clock::now() + std::chrono::milliseconds(SchedulerConnection::patienceMs);
}

// Whether somebody answers here. This question is no work for a scheduler, and it keeps no log of it.
bool answers(http_t *http)
{
    httpClearFields(http);
    return httpOptions(http, "*") == 0 && httpWait(http, SchedulerConnection::patienceMs);
}

} // namespace

SchedulerConnection::SchedulerConnection()
{
    if (isSilent())
        return;
    const Clock::time_point start = Clock::now();
    http = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, patienceMs, nullptr);
    // Not httpSetTimeout(): libcups then looks twice whether there is something to read before each of its tiny reads, and
    // the destinations take more than twice as long.
    if (http && !answers(http))
        leaveAlone();
    else if (http)
        httpReconnect2(http, patienceMs, nullptr);
    else if (Clock::now() - start >= std::chrono::milliseconds(patienceMs))
        leaveAlone();
    usable = !isSilent();
}

SchedulerConnection::~SchedulerConnection()
{
    httpClose(http);
}

bool SchedulerConnection::isSilent()
{
    return Clock::now() < leaveAloneUntil;
}

SchedulerOutOfReach::SchedulerOutOfReach()
    : server(cupsServer())
{
    cupsSetServer("/nonexistent");
}

SchedulerOutOfReach::~SchedulerOutOfReach()
{
    cupsSetServer(server.constData());
}
