// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// The peak memory of an opening beyond that of the form and the destinations, and how much remains allocated.

#include "Benchmark.h"

#include <PropertiesDialog/PropertiesDialog.h>

#include <QFile>
#include <QPrinter>

#include <cups/cups.h>
#include <malloc.h>

using namespace Benchmark;

namespace {

constexpr double goal = 2048; // KiB

// The most memory that this process has had so far, in KiB.
double peak()
{
    QFile status("/proc/self/status");
    if (status.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = status.readAll().split('\n');
        for (const QByteArray &line : lines)
            if (line.startsWith("VmHWM:"))
                return line.simplified().split(' ').at(1).toDouble();
    }
    qFatal("the kernel does not tell the peak of memory");
}

double peakOfOpening()
{
    timeToFirstPaint([] { propertiesDialog(); });
    return peak();
}

// The minimum for any dialog: a QPrinter and the destinations in memory while the empty form is shown.
double peakOfBareForm()
{
    const QPrinter printer(QPrinter::ScreenResolution);
    cups_dest_t *dests = nullptr;
    const int count = cupsGetDests(&dests);
    timeToBareForm();
    const double kibibytes = peak();
    cupsFreeDests(count, dests);
    return kibibytes;
}

double peakOfQt()
{
    timeToQtDialogs();
    return peak();
}

// The bytes that each opening leaves behind in this process.
double keptByOpening(int openings)
{
    peakOfOpening();
    peakOfOpening();
    const auto before = mallinfo2().uordblks;
    for (int i = 0; i < openings; ++i)
        peakOfOpening();
    return (double(mallinfo2().uordblks) - double(before)) / openings;
}

void program(const Extent &extent)
{
    PrivateScheduler scheduler;
    Table table("Peak of memory of a process that opens the dialog once, in KiB, medians of as many processes",
                {"queues", "ours", "bare form and destinations", "ours beyond that", "goal", "Qt's beyond that",
                 "bytes kept by an opening"});
    for (const int queues : extent.sizes({3, 100, 1000}, {2})) {
        setQueues(scheduler, queues);
        saveUserOptions(scheduler);
        const double ours = measuredInProcesses("opening", extent);
        const double bare = measuredInProcesses("bare", extent);
        const double qt = measuredInProcesses("qt", extent);
        table.addRow({QString::number(queues), text(ours, 0), text(bare, 0), text(ours - bare, 0),
                      ours - bare < goal ? "below 2048" : "ABOVE 2048", text(qt - bare, 0),
                      text(keptByOpening(extent.isShort ? 2 : 20), 0)});
    }
}

const TestMain::ChildFunction opening(
    "opening", [](int &argc, char **argv) { return printMeasured(argc, argv, peakOfOpening); });
const TestMain::ChildFunction bare(
    "bare", [](int &argc, char **argv) { return printMeasured(argc, argv, peakOfBareForm); });
const TestMain::ChildFunction qt("qt", [](int &argc, char **argv) { return printMeasured(argc, argv, peakOfQt); });

} // namespace

int main(int argc, char **argv)
{
    return run(argc, argv, program);
}
