// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FAKESCHEDULER_H
#define FAKESCHEDULER_H

#include <QByteArray>
#include <QList>
#include <QPair>

/**
 * Stands in for libcups' way to the scheduler, in this process only: a real scheduler takes a thousand times as long as
 * what is to be tried. Everything else, the reader of PPD files among it, is libcups' own.
 */
namespace FakeScheduler {

/** Options of each destination, by keyword and value. */
using Options = QList<QPair<QByteArray, QByteArray>>;

/** The queues that there are, the first being the default printer; to be called before the library asks. */
void setQueues(const QList<QByteArray> &names, const Options &options = {});

/** The PPD file of all queues; a null one: they have none. */
void setPpd(const QByteArray &ppd);

} // namespace FakeScheduler

#endif
