// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "FakeScheduler.h"

#include "Fuzz.h"

#include <cups/cups.h>
#include <cups/ppd.h>

#include <sys/socket.h>
#include <unistd.h>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

QList<QByteArray> queues;
FakeScheduler::Options queueOptions;
QByteArray queuePpd;

} // namespace

void FakeScheduler::setQueues(const QList<QByteArray> &names, const Options &options)
{
    queues = names;
    queueOptions = options;
}

void FakeScheduler::setPpd(const QByteArray &ppd)
{
    queuePpd = ppd;
}

// These replace libcups' functions. The connection is not a real one: only functions that are replaced here get it.
extern "C" {

__attribute__((visibility("default"))) const char *__lsan_default_suppressions();

http_t *httpConnect2(const char *, int, http_addrlist_t *, int, http_encryption_t, int, int, int *)
{
    static char connection;
    return reinterpret_cast<http_t *>(&connection);
}

void httpClose(http_t *) {}

int httpGetFd(http_t *)
{
    return -1;
}

time_t httpGetActivity(http_t *)
{
    return 0;
}

http_addr_t *httpGetAddress(http_t *)
{
    return nullptr;
}

int httpAddrFamily(http_addr_t *)
{
    return AF_LOCAL;
}

http_state_t httpGetState(http_t *)
{
    return HTTP_STATE_WAITING;
}

const char *cupsGetDefault2(http_t *)
{
    return nullptr;
}

int cupsGetDests2(http_t *, cups_dest_t **dests)
{
    int count = 0;
    *dests = nullptr;
    for (const QByteArray &queue : queues) {
        count = cupsAddDest(queue.constData(), nullptr, count, dests);
        cups_dest_t *dest = cupsGetDest(queue.constData(), nullptr, count, *dests);
        dest->is_default = queue == queues.first();
        for (const auto &[keyword, value] : queueOptions)
            dest->num_options =
                cupsAddOption(keyword.constData(), value.constData(), dest->num_options, &dest->options);
    }
    return count;
}

// Qt asks for single ones.
cups_dest_t *cupsGetNamedDest(http_t *, const char *name, const char *)
{
    cups_dest_t *dest = nullptr;
    if (queues.contains(name))
        cupsAddDest(name, nullptr, 0, &dest);
    return dest;
}

http_status_t cupsGetFd(http_t *, const char *, int fd)
{
    if (queuePpd.isNull())
        return HTTP_STATUS_NOT_FOUND;
    FUZZ_CHECK(write(fd, queuePpd.constData(), static_cast<std::size_t>(queuePpd.size())) == queuePpd.size());
    return HTTP_STATUS_OK;
}

// Qt requests the file itself.
const char *cupsGetPPD(const char *)
{
    return nullptr;
}

const char *cupsGetPPD2(http_t *, const char *)
{
    return nullptr;
}

http_status_t cupsGetPPD3(http_t *, const char *, time_t *, char *, std::size_t)
{
    return HTTP_STATUS_NOT_FOUND;
}

ipp_t *cupsDoRequest(http_t *, ipp_t *request, const char *)
{
    ippDelete(request);
    return nullptr;
}

// libcups does not free an array of options after its last option was removed.
const char *__lsan_default_suppressions()
{
    return "leak:cupsAddOption";
}

} // extern "C"
