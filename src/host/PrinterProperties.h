// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRINTERPROPERTIES_H
#define PRINTERPROPERTIES_H

#include <QPageLayout>
#include <QVariant>

#include <memory>

class CupsSupport;
class QPrinter;

/** The settings that a QPrinter receives. */
namespace PrinterProperties {

/** A printer object for which Qt does not request destinations and PPD file, which it does without a time limit. */
std::unique_ptr<QPrinter> createWithoutRequests();

/**
 * Sets orientation and margins and, unless @p cups is null, the CUPS properties of the print engine: the marked options
 * of the current printer, and the custom page size with its rectangles.
 */
void set(QPrinter &printer, QPageLayout::Orientation orientation, const CupsSupport *cups);

/** @name The option list that the print engine sends with each job, whichever queue the job goes to */
/** @{ */
QVariant options(const QPrinter &printer);
void setOptions(QPrinter &printer, const QVariant &options);
/** @} */

} // namespace PrinterProperties

#endif
