// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FAKESCHEDULER_H
#define FAKESCHEDULER_H

#include <QByteArray>
#include <QList>
#include <QPair>

/**
 * Replaces libcups' requests to the scheduler in this process: a real scheduler takes a thousand times as long as
 * the code under test. Everything else, including the reader of PPD files, is libcups'.
 */
namespace FakeScheduler {

/** Options of each destination, by keyword and value. */
using Options = QList<QPair<QByteArray, QByteArray>>;

/** Sets the queues, of which the first is the default printer. Call it before the library asks. */
void setQueues(const QList<QByteArray> &names, const Options &options = {});

/** Sets the PPD file of all queues; null for none. */
void setPpd(const QByteArray &ppd);

} // namespace FakeScheduler

#endif
