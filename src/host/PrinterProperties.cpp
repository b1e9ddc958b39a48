// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "host/PrinterProperties.h"

#include "cups/CupsSupport.h"
#include "cups/Scheduler.h"

#include <QPrintEngine>
#include <QPrinter>

#include <algorithm>

namespace {

constexpr int decimals = 2;

// Qt 4's names of the CUPS properties of a print engine; hosts and print engines built for them still look for these.
constexpr int cupsOptionsProperty = 0xFE00;
constexpr int cupsPageRectProperty = 0xFE01;
constexpr int cupsPaperRectProperty = 0xFE02;
constexpr int cupsPageSizeProperty = 0xFE03;

void setEngineProperty(QPrinter &printer, int key, const QVariant &value)
{
    printer.printEngine()->setProperty(static_cast<QPrintEngine::PrintEnginePropertyKey>(key), value);
}

void setMarginsToZero(QPrinter &printer)
{
    // Outside the full page mode Qt refuses margins below those that the PPD file declares.
    const bool fullPage = printer.fullPage();
    printer.setFullPage(true);
    printer.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Point);
    printer.setFullPage(fullPage);
}

} // namespace

std::unique_ptr<QPrinter> PrinterProperties::createWithoutRequests()
{
    std::unique_ptr<QPrinter> printer;
    Scheduler::callWithoutScheduler([&printer] { printer = std::make_unique<QPrinter>(QPrinter::ScreenResolution); });
    return printer;
}

void PrinterProperties::set(QPrinter &printer, QPageLayout::Orientation orientation, const CupsSupport *cups)
{
    printer.setPageOrientation(orientation);
    setMarginsToZero(printer);
    if (!cups)
        return;
    const QString custom = QStringLiteral("Custom");
    setEngineProperty(printer, cupsPageSizeProperty, custom);
    // The size of the sheet, regardless of the orientation.
    const QSizeF points = printer.pageLayout().pageSize().size(QPageSize::Point);
    const QString pageSize =
        custom + QStringLiteral(".%1x%2").arg(points.width(), 0, 'f', decimals).arg(points.height(), 0, 'f', decimals);
    QStringList marked = cups->options();
    std::replace(marked.begin(), marked.end(), custom, pageSize);
    setOptions(printer, marked);
    setEngineProperty(printer, cupsPageRectProperty, cups->pageRect(pageSize.toLatin1().constData()));
    setEngineProperty(printer, cupsPaperRectProperty, cups->paperRect(pageSize.toLatin1().constData()));
}

QVariant PrinterProperties::options(const QPrinter &printer)
{
    return printer.printEngine()->property(static_cast<QPrintEngine::PrintEnginePropertyKey>(cupsOptionsProperty));
}

void PrinterProperties::setOptions(QPrinter &printer, const QVariant &options)
{
    setEngineProperty(printer, cupsOptionsProperty, options);
}
