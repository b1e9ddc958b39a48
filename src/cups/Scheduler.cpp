// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "Scheduler.h"

#include <cups/cups.h>

#include <chrono>

namespace {

using Clock = std::chrono::steady_clock;

// Until when the scheduler is not asked again. Loading the dialog makes many calls that need the PPD file; without this
// each of them would wait anew for a scheduler that has fallen silent.
Clock::time_point leaveAloneUntil;

int giveUp(http_t *, void *)
{
    leaveAloneUntil = Clock::now() + std::chrono::milliseconds(SchedulerConnection::patienceMs);
    return 0;
}

} // namespace

SchedulerConnection::SchedulerConnection()
{
    if (Clock::now() < leaveAloneUntil)
        return;
    const Clock::time_point start = Clock::now();
    http = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, patienceMs, nullptr);
    if (http)
        httpSetTimeout(http, patienceMs / 1000.0, giveUp, nullptr);
    else if (Clock::now() - start >= std::chrono::milliseconds(patienceMs))
        giveUp(nullptr, nullptr);
}

SchedulerConnection::~SchedulerConnection()
{
    httpClose(http);
}
