// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/PrintJob.h"

#include "cups/Scheduler.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cups/cups.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <memory>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// How often the scheduler is asked whether it has reached a printer.
constexpr auto pauseBetweenQuestions = 200ms;

const char *optionOf(const cups_dest_t &dest, const char *keyword)
{
    return cupsGetOption(keyword, dest.num_options, dest.options);
}

// The queue that the scheduler makes for a printer that was discovered on the network and has none.
class LocalQueue
{
public:
    explicit LocalQueue(const cups_dest_t &dest)
        : name(dest.name)
        , description(optionOf(dest, "printer-info"))
        , device(optionOf(dest, "device-uri"))
    {
    }

    void create(http_t *http)
    {
        ipp_t *request = newRequest(IPP_OP_CUPS_CREATE_LOCAL_PRINTER, "ipp://localhost/");
        ippAddString(request, IPP_TAG_PRINTER, IPP_TAG_URI, "device-uri", nullptr, device.constData());
        ippAddString(request, IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr, name.constData());
        if (!description.isNull())
            ippAddString(request, IPP_TAG_PRINTER, IPP_TAG_TEXT, "printer-info", nullptr, description.constData());
        ask(http, request);
    }

    void look(http_t *http) { ask(http, newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, uri.constData())); }

    // The scheduler of CUPS 2.4.10 connects to the printer before it answers; that of 2.4.2 answers first.
    bool hasFoundPrinterOff() const { return isPrinterOff; }
    bool exists() const { return !uri.isEmpty(); }
    bool hasReachedPrinter() const { return state == IPP_PSTATE_IDLE || state == IPP_PSTATE_PROCESSING; }

    QByteArray uri;

private:
    static ipp_t *newRequest(ipp_op_t operation, const char *printer)
    {
        ipp_t *request = ippNewRequest(operation);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, printer);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
        return request;
    }

    void ask(http_t *http, ipp_t *request)
    {
        ipp_t *answer = cupsDoRequest(http, request, "/");
        if (ipp_attribute_t *found = ippFindAttribute(answer, "printer-uri-supported", IPP_TAG_URI))
            uri = ippGetString(found, 0, nullptr);
        if (ipp_attribute_t *found = ippFindAttribute(answer, "printer-state", IPP_TAG_ENUM))
            state = ippGetInteger(found, 0);
        isPrinterOff = cupsLastError() == IPP_STATUS_ERROR_DEVICE;
        ippDelete(answer);
    }

    const QByteArray name;
    const QByteArray description;
    const QByteArray device;
    int state = IPP_PSTATE_STOPPED;
    bool isPrinterOff = false;
};

QString cannotBeReached(const cups_dest_t &dest)
{
    const char *description = optionOf(dest, "printer-info");
    return QCoreApplication::translate("CupsSupport", "The printer \"%1\" cannot be reached.")
        .arg(QString::fromUtf8(description ? description : dest.name));
}

// Has a queue made for the printer, and returns its URI; null on failure, above all when the scheduler does not reach
// the printer in time. libcups does the same, and waits for more than a minute.
QByteArray makeQueue(const cups_dest_t &dest)
{
    const Clock::time_point end = Clock::now() + Scheduler::currentLimits().toReachPrinter;
    const auto queue = std::make_shared<LocalQueue>(dest);
    const QString failure = cannotBeReached(dest);
    if (!Scheduler::askToReachPrinter([queue](http_t *http) { queue->create(http); }, failure))
        return QByteArray();
    if (queue->hasFoundPrinterOff())
        Scheduler::setLastError(failure);
    bool isAnswered = queue->exists();
    while (isAnswered && !queue->hasReachedPrinter()) {
        if (Clock::now() >= end) {
            Scheduler::setLastError(failure);
            return QByteArray();
        }
        std::this_thread::sleep_for(pauseBetweenQuestions);
        isAnswered = Scheduler::ask([queue](http_t *http) { queue->look(http); });
    }
    return isAnswered ? queue->uri : QByteArray();
}

// Everything needed to submit a job, so that the destination may change meanwhile.
class Job
{
public:
    Job(const cups_dest_t &printer, const QStringList &fileNames, const QByteArray &jobTitle, const QStringList &list)
        : title(jobTitle)
    {
        cupsCopyDest(const_cast<cups_dest_t *>(&printer), 0, &dest);
        for (int i = 0; i < printer.num_options; ++i)
            add(printer.options[i].name, printer.options[i].value);
        for (int i = 0; i + 1 < list.size(); i += 2)
            add(list.at(i).toLatin1().constData(), list.at(i + 1).toLatin1().constData());
        for (const QString &fileName : fileNames) {
            files.push_back(fileName.toLocal8Bit());
            bytes += QFileInfo(fileName).size();
        }
    }
    ~Job()
    {
        cupsFreeOptions(optionCount, options);
        cupsFreeDests(1, dest);
    }

    Job(const Job &) = delete;
    Job &operator=(const Job &) = delete;

    qint64 size() const { return bytes; }

    // Where libcups finds the queue of a printer that had none.
    void setQueue(const QByteArray &uri)
    {
        dest->num_options = cupsAddOption("printer-uri-supported", uri.constData(), dest->num_options, &dest->options);
    }

    // The number of the job, 0 when it was not submitted.
    int jobNumber() const { return isSubmitted ? number : 0; }

    // Why it was not submitted; null when libcups' own text says so.
    QByteArray failure() const { return error; }

    void submit(http_t *http)
    {
        error = QByteArray();
        create(http);
        for (std::size_t i = 0; i < files.size(); ++i) {
            if (number == 0 || !Scheduler::isWaitedFor())
                return;
            if (!send(http, files[i], i + 1 == files.size())) {
                error = error.isNull() ? QByteArray(cupsLastErrorString()) : error;
                cupsCancelJob2(http, dest->name, number, 0);
                return;
            }
        }
        isSubmitted = true;
    }

private:
    void add(const char *name, const char *value) { optionCount = cupsAddOption(name, value, optionCount, &options); }

    void create(http_t *http)
    {
        cups_dinfo_t *info = cupsCopyDestInfo(http, dest);
        if (info && Scheduler::isWaitedFor())
            cupsCreateDestJob(http, dest, info, &number, title.constData(), optionCount, options);
        cupsFreeDestInfo(info);
    }

    bool send(http_t *http, const QByteArray &path, bool isLast)
    {
        cups_file_t *file = cupsFileOpen(path.constData(), "r");
        if (!file) {
            error = std::strerror(errno);
            return false;
        }
        const QByteArray name = path.mid(path.lastIndexOf('/') + 1);
        http_status_t status = cupsStartDocument(http, dest->name, number, name.constData(), format(), isLast ? 1 : 0);
        char buffer[8192];
        ssize_t count = 0;
        while (status == HTTP_STATUS_CONTINUE && (count = cupsFileRead(file, buffer, sizeof buffer)) > 0)
            status = cupsWriteRequestData(http, buffer, static_cast<std::size_t>(count));
        cupsFileClose(file);
        return status == HTTP_STATUS_CONTINUE && cupsFinishDocument(http, dest->name) == IPP_STATUS_OK;
    }

    const char *format() const
    {
        if (cupsGetOption("raw", optionCount, options))
            return CUPS_FORMAT_RAW;
        const char *wanted = cupsGetOption("document-format", optionCount, options);
        return wanted ? wanted : CUPS_FORMAT_AUTO;
    }

    const QByteArray title;
    cups_dest_t *dest = nullptr;
    int optionCount = 0;
    cups_option_t *options = nullptr;
    std::vector<QByteArray> files;
    qint64 bytes = 0;
    int number = 0;
    bool isSubmitted = false;
    QByteArray error;
};

} // namespace

int PrintJob::submit(const cups_dest_t &dest, const QStringList &fileNames, const QByteArray &title,
                     const QStringList &options)
{
    const auto job = std::make_shared<Job>(dest, fileNames, title, options);
    if (!optionOf(dest, "printer-uri-supported") && optionOf(dest, "device-uri")) {
        const QByteArray queue = makeQueue(dest);
        if (queue.isNull())
            return 0;
        job->setQueue(queue);
    }
    if (!Scheduler::askToPrint([job](http_t *http) { job->submit(http); }, job->size()))
        return 0;
    if (!job->failure().isNull())
        Scheduler::setLastError(QString::fromUtf8(job->failure()));
    return job->jobNumber();
}
