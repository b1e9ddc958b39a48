// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// How long the print dialog takes to be painted, compared with Qt's.

#include "Benchmark.h"

#include <PropertiesDialog/CupsSupport.h>
#include <PropertiesDialog/PrintDialog.h>

#include <QPrintDialog>
#include <QPrinter>

using namespace Benchmark;

namespace {

// The host has already created its QPrinter, whichever dialog it opens.

double timeToOpen()
{
    QPrinter printer(QPrinter::ScreenResolution);
    return timeToFirstPaint([&printer] {
        CupsSupport cups;
        PrintDialog dialog(nullptr, &printer, &cups);
        dialog.exec();
    });
}

double timeToQt()
{
    QPrinter printer(QPrinter::ScreenResolution);
    return timeToFirstPaint([&printer] {
        QPrintDialog dialog(&printer);
        dialog.exec();
    });
}

void program(const Extent &extent)
{
    PrivateScheduler scheduler;
    Table table("PrintDialog to first paint, beside QPrintDialog",
                {"queues", "ours", "Qt's", "ratio", "growth", "Qt's growth", "with use", "QPrinter", "ratio with it",
                 "requests: ours", "Qt's", "cold: ours", "cold: Qt's", "cold: ratio"});
    const QMap<int, double> goals{{3, 0.6}, {100, 0.5}, {1000, 0.5}};
    double firstOurs = 0.0;
    double firstQt = 0.0;
    for (const int queues : extent.sizes(goals.keys(), {2})) {
        setQueues(scheduler, queues);
        saveUserOptions(scheduler);
        Samples ours;
        Samples qt;
        Samples printer;
        extent.repeat([&](bool counts) {
            const double ourTime = timeToOpen();
            const double qtTime = timeToQt();
            const double printerTime = milliseconds([] { const QPrinter made(QPrinter::ScreenResolution); });
            if (counts) {
                ours.add(ourTime);
                qt.add(qtTime);
                printer.add(printerTime);
            }
        });
        if (firstOurs <= 0.0) {
            firstOurs = ours.median();
            firstQt = qt.median();
        }
        const auto requestsOf = [&scheduler](const std::function<void()> &work) {
            scheduler.startRequests();
            work();
            return scheduler.requests().size();
        };
        const auto printerRequests = requestsOf([] { const QPrinter made(QPrinter::ScreenResolution); });
        const auto ourRequests = requestsOf(timeToOpen) - printerRequests;
        const auto qtRequests = requestsOf(timeToQt) - printerRequests;
        const double coldOurs = measuredInProcesses("open", extent);
        const double coldQt = measuredInProcesses("qt", extent);
        table.addRow({QString::number(queues), text(ours.median()), text(qt.median()),
                      withGoal(ours.median() / qt.median(), goals.value(queues, 1.0)), text(ours.median() / firstOurs),
                      text(qt.median() / firstQt), text(ours.growth()), text(printer.median()),
                      text((ours.median() + printer.median()) / (qt.median() + printer.median())),
                      QString::number(ourRequests), QString::number(qtRequests), text(coldOurs), text(coldQt),
                      text(coldOurs / coldQt)});
    }
}

const TestMain::ChildFunction coldOpening(
    "open", [](int &argc, char **argv) { return printMeasured(argc, argv, timeToOpen); });
const TestMain::ChildFunction coldQt("qt", [](int &argc, char **argv) { return printMeasured(argc, argv, timeToQt); });

} // namespace

int main(int argc, char **argv)
{
    return run(argc, argv, program);
}
