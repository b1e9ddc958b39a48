// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRINTERPROPERTIES_H
#define PRINTERPROPERTIES_H

#include <QPageLayout>

class CupsSupport;
class QPrinter;

/** What a QPrinter is told when the settings are saved. */
namespace PrinterProperties {

/**
 * Sets orientation and margins and, unless @p cups is null, the CUPS properties of the print engine: the marked options
 * of the current printer, and the custom page size with its rectangles.
 */
void set(QPrinter &printer, QPageLayout::Orientation orientation, const CupsSupport *cups);

} // namespace PrinterProperties

#endif
