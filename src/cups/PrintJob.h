// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRINTJOB_H
#define PRINTJOB_H

#include <QByteArray>
#include <QStringList>

typedef struct cups_dest_s cups_dest_t;

/** Print jobs, each submitted with the options of its destination. */
namespace PrintJob {

/**
 * Submits files as one job.
 *
 * cupsPrintFiles() is not used because it continues after it was given up: a job would be printed after the user was
 * told that it failed.
 *
 * @param title in UTF-8.
 * @param options an option list, which overrides the options of the destination.
 * @return the number of the job, 0 on failure; then Scheduler::lastError() says why.
 */
int submit(const cups_dest_t &dest, const QStringList &fileNames, const QByteArray &title, const QStringList &options);

} // namespace PrintJob

#endif
