// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/PpdFile.h"

#include "cups/Scheduler.h"

#include <QByteArray>

#include <cups/cups.h>
#include <cups/ppd.h>

#include <memory>

#include <sys/mman.h>
#include <unistd.h>

// The whole PPD interface is deprecated, but label printers have no other yet.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

// The answer to one request, shared with the request's thread.
struct Transfer
{
    explicit Transfer(const char *queue)
        : resource(QByteArray("/printers/") + queue + ".ppd")
        , fd(memfd_create("ppd", MFD_CLOEXEC))
    {
    }
    ~Transfer() { close(fd); }

    Transfer(const Transfer &) = delete;
    Transfer &operator=(const Transfer &) = delete;

    const QByteArray resource; // also works for classes
    const int fd;
    http_status_t status = HTTP_STATUS_ERROR;
    bool isComplete = false;
};

void transfer(http_t *http, Transfer &answer)
{
    answer.status = cupsGetFd(http, answer.resource.constData(), answer.fd);
    // If the connection ends too early, cupsGetFd() accepts the part that came, but still waits for the rest.
    answer.isComplete = httpGetState(http) == HTTP_STATE_WAITING;
}

} // namespace

ppd_file_t *PpdFile::fetch(const char *queue, bool *isAbsent)
{
    *isAbsent = false;
    const auto answer = std::make_shared<Transfer>(queue);
    if (!Scheduler::ask([answer](http_t *http) { transfer(http, *answer); }))
        return nullptr;
    if (answer->status == HTTP_STATUS_ERROR || (answer->status == HTTP_STATUS_OK && !answer->isComplete)) {
        Scheduler::leaveAlone();
        return nullptr;
    }
    *isAbsent = answer->status != HTTP_STATUS_OK;
    lseek(answer->fd, 0, SEEK_SET);
    return *isAbsent ? nullptr : ppdOpenFd(dup(answer->fd));
}
