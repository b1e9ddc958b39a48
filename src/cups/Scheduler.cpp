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

void leaveAlone()
{
    leaveAloneUntil = Clock::now() + std::chrono::milliseconds(SchedulerConnection::patienceMs);
}

// libcups asks this after each wait. One call of libcups may hold several requests; those after the first do not wait again.
int giveUp(http_t *http, void *)
{
    leaveAlone();
    constexpr double hardlyAtAll = 0.01; // seconds
    httpSetTimeout(http, hardlyAtAll, giveUp, nullptr);
    return 0;
}

} // namespace

SchedulerConnection::SchedulerConnection()
{
    if (isSilent())
        return;
    const Clock::time_point start = Clock::now();
    http = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, patienceMs, nullptr);
    if (http)
        httpSetTimeout(http, patienceMs / 1000.0, giveUp, nullptr);
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
