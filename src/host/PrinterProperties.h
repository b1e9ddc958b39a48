// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRINTERPROPERTIES_H
#define PRINTERPROPERTIES_H

#include <QPageLayout>
#include <QPrinter>
#include <QVariant>

#include <optional>

class CupsSupport;

/** The settings that a QPrinter receives. */
namespace PrinterProperties {

/** Qt would request all destinations and the PPD file, and wait without a limit. */
void createWithoutRequests(std::optional<QPrinter> &printer);

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
