// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/PrintJob.h"

#include "cups/Scheduler.h"

#include <QFileInfo>

#include <cups/cups.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <vector>

namespace {

// All that submitting a job needs, so that it does not matter what becomes of the destination meanwhile.
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
    if (!Scheduler::askToPrint([job](http_t *http) { job->submit(http); }, job->size()))
        return 0;
    if (!job->failure().isNull())
        Scheduler::setLastError(QString::fromUtf8(job->failure()));
    return job->jobNumber();
}
