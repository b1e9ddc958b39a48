// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// How long the properties dialog takes to be painted, what the time is spent on, and which requests it sends.

#include "Benchmark.h"

#include <PropertiesDialog/CupsSupport.h>
#include <PropertiesDialog/PrintPropertiesDialog.h>
#include <PropertiesDialog/PropertiesDialog.h>

#include <QElapsedTimer>
#include <QPrintEngine>
#include <QPrinter>

#include <cups/cups.h>
#include <cups/ppd.h>
#include <unistd.h>

#include <array>
#include <numeric>

// As in the library, there is no other interface for PPD files.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

using namespace Benchmark;

namespace {

double timeToOpen()
{
    return timeToFirstPaint([] { propertiesDialog(); });
}

double timeToQt()
{
    return timeToQtDialogs();
}

// ----- the parts of an opening -----

enum Part {
    FetchDests,
    MakePrinter,
    OpenPpd,
    BuildForm,
    LoadFields,
    Show,
    PartCount
};

// The dialog, which measures the loading of its fields.
class TimedDialog : public PrintPropertiesDialog
{
public:
    using PrintPropertiesDialog::PrintPropertiesDialog;

    double loading = 0.0;

protected:
    void showEvent(QShowEvent *event) override
    {
        loading = milliseconds([&] { PrintPropertiesDialog::showEvent(event); });
    }
};

// Opens the dialog step by step, as propertiesDialog() does.
void timeParts(std::array<Samples, PartCount> &parts, bool counts)
{
    double times[PartCount] = {};
    QElapsedTimer timer;
    timer.start();
    const auto lap = [&timer] { return double(timer.nsecsElapsed()) / 1e6; };
    {
        CupsSupport cups;
        times[FetchDests] = lap();
        const QByteArray server = cupsServer();
        cupsSetServer("/nonexistent"); // Qt does not ask the scheduler
        QPrinter printer(QPrinter::ScreenResolution);
        cupsSetServer(server.constData());
        printer.printEngine()->setProperty(QPrintEngine::PPK_PrinterName, cups.getCurrentQueueName());
        times[MakePrinter] = lap();
        cups.getPpdFile();
        times[OpenPpd] = lap();
        TimedDialog dialog(nullptr, &printer, &cups);
        times[BuildForm] = lap();
        times[Show] = timeToFirstPaint([&dialog] { dialog.exec(); }) - dialog.loading;
        times[LoadFields] = dialog.loading;
    }
    for (const Part part : {BuildForm, OpenPpd, MakePrinter})
        times[part] -= times[part - 1];
    for (std::size_t part = 0; counts && part < PartCount; ++part)
        parts[part].add(times[part]);
}

// ----- what libcups takes for the same -----

enum CupsCall {
    GetDests,
    GetPpd,
    OpenFile,
    Mark,
    CallCount
};

void timeCups(std::array<Samples, CallCount> &calls, bool counts)
{
    double times[CallCount] = {};
    cups_dest_t *dests = nullptr;
    int count = 0;
    times[GetDests] = milliseconds([&] { count = cupsGetDests(&dests); });
    const cups_dest_t *dest = cupsGetDest(nullptr, nullptr, count, dests);
    if (dest == nullptr)
        qFatal("there is no default printer");
    const char *path = nullptr;
    times[GetPpd] = milliseconds([&] { path = cupsGetPPD(dest->name); });
    if (path == nullptr)
        qFatal("no PPD file of %s: %s", dest->name, cupsLastErrorString());
    ppd_file_t *ppd = nullptr;
    times[OpenFile] = milliseconds([&] { ppd = ppdOpenFile(path); });
    times[Mark] = milliseconds([&] {
        ppdMarkDefaults(ppd);
        cupsMarkOptions(ppd, dest->num_options, dest->options);
    });
    unlink(path);
    ppdClose(ppd);
    cupsFreeDests(count, dests);
    for (std::size_t call = 0; counts && call < CallCount; ++call)
        calls[call].add(times[call]);
}

// ----- the measurement -----

struct Measurement
{
    Samples ours;
    Samples qt;
    Samples bareForm;
    std::array<Samples, PartCount> parts;
    std::array<Samples, CallCount> calls;
    double coldOurs = 0.0;
    double coldQt = 0.0;

    double cups() const
    {
        return std::accumulate(
            calls.begin(), calls.end(), 0.0, [](double sum, const Samples &call) { return sum + call.median(); });
    }
    // The rest, after QPrinter, libcups and the form.
    double own() const { return ours.median() - parts[MakePrinter].median() - cups() - bareForm.median(); }
};

Measurement measure(const Extent &extent)
{
    Measurement m;
    // All of them in each round, so that a slow moment of the machine affects all.
    extent.repeat([&m](bool counts) {
        const double ours = timeToOpen();
        const double qt = timeToQt();
        const double bareForm = timeToBareForm();
        timeParts(m.parts, counts);
        timeCups(m.calls, counts);
        if (counts) {
            m.ours.add(ours);
            m.qt.add(qt);
            m.bareForm.add(bareForm);
        }
    });
    m.coldOurs = measuredInProcesses("open", extent);
    m.coldQt = measuredInProcesses("qt", extent);
    return m;
}

// One size in each of the tables that it belongs to.
class Report
{
public:
    explicit Report(const QString &what)
        : floor("The least that it can take, each measured on its own, and what is our own part of the whole",
                {what, "QPrinter", "cupsGetDests", "cupsGetPPD", "ppdOpenFile", "mark", "bare form", "ours", "own part",
                 "of the whole"})
        , parts("The parts of an opening", {what, "destinations", "QPrinter", "PPD", "form", "loading", "shown"})
        , ratios("propertiesDialog() to first paint, beside QPrintDialog and its properties dialog",
                 {what, "ours", "Qt's", "ratio", "growth", "libcups' growth", "with use", "cold: ours", "cold: Qt's",
                  "cold: ratio"})
    {
    }

    void add(int size, double goal, const Measurement &m)
    {
        if (firstOurs <= 0.0) {
            firstOurs = m.ours.median();
            firstCups = m.cups();
        }
        const QString name = QString::number(size);
        ratios.addRow({name, text(m.ours.median()), text(m.qt.median()),
                       withGoal(m.ours.median() / m.qt.median(), goal), text(m.ours.median() / firstOurs),
                       text(m.cups() / firstCups), text(m.ours.growth()), text(m.coldOurs), text(m.coldQt),
                       text(m.coldOurs / m.coldQt)});
        QStringList cells{name};
        for (const Samples &part : m.parts)
            cells << text(part.median());
        parts.addRow(cells);
        cells = QStringList{name, text(m.parts[MakePrinter].median())};
        for (const Samples &call : m.calls)
            cells << text(call.median());
        cells << text(m.bareForm.median()) << text(m.ours.median()) << text(m.own())
              << withGoal(m.own() / m.ours.median(), 0.15);
        floor.addRow(cells);
    }

private:
    // Printed in the opposite order.
    Table floor;
    Table parts;
    Table ratios;
    double firstOurs = 0.0;
    double firstCups = 0.0;
};

// ----- requests -----

QStringList requestsOf(PrivateScheduler &scheduler, const std::function<void()> &work)
{
    scheduler.startRequests();
    work();
    return scheduler.requests();
}

QString reasonFor(const QString &request)
{
    if (request.startsWith("GET "))
        return "the PPD file itself";
    static const QMap<QString, QString> reasons{
        {"CUPS-Get-Printers", "all destinations with their state and defaults"},
        {"CUPS-Get-Default", "which destination is the default"},
        {"Get-Printer-Attributes", "of one queue: where its PPD file lies, or what it is"},
    };
    return reasons.value(request, "?");
}

void reportRequests(PrivateScheduler &scheduler)
{
    QMap<QString, QStringList> requests;
    requests["opening"] = requestsOf(
        scheduler, [] { timeToOpen(); });
    requests["qt"] = requestsOf(scheduler, [] { timeToQt(); });
    requests["dests"] = requestsOf(
        scheduler,
        [] {
            cups_dest_t *dests = nullptr;
            const int count = cupsGetDests(&dests);
            cupsFreeDests(count, dests);
        });
    requests["ppd"] = requestsOf(scheduler, [] { unlink(cupsGetPPD(queueName(0).toLatin1().constData())); });
    scheduler.addQueue("Plain", {});
    scheduler.setUserDefault("Plain");
    requests["plain"] = requestsOf(scheduler, [] { timeToOpen(); });
    scheduler.setUserDefault(queueName(0));

    QStringList names;
    for (const QStringList &list : std::as_const(requests))
        names << list;
    names.removeDuplicates();
    names.sort();

    Table table("Requests to the scheduler of one opening", {"request", "opening", "cupsGetDests", "cupsGetPPD",
                                                             "Qt's dialogs", "opening without PPD file", "what for"});
    int neededAll = 0;
    for (const QString &name : std::as_const(names)) {
        const auto count = [&](const char *what) { return int(requests[what].count(name)); };
        neededAll += count("dests") + count("ppd");
        QStringList cells{name};
        for (const int number : {count("opening"), count("dests"), count("ppd"), count("qt"), count("plain")})
            cells << QString::number(number);
        table.addRow(cells << reasonFor(name));
    }
    const QString ppd = "GET /printers/" + queueName(0) + ".ppd";
    const int openingAll = int(requests["opening"].size());
    const bool isMinimal = openingAll <= neededAll && requests["opening"].count(ppd) == 1;
    QStringList cells{"all"};
    for (const char *what : {"opening", "dests", "ppd", "qt", "plain"})
        cells << QString::number(requests[what].size());
    table.addRow(cells << (isMinimal ? "no more than needed, the PPD file once" : "TOO MANY"));
}

void program(const Extent &extent)
{
    PrivateScheduler scheduler;
    {
        Report report("queues");
        const QMap<int, double> goals{{3, 0.6}, {100, 0.45}, {1000, 0.45}};
        for (const int queues : extent.sizes(goals.keys(), {2})) {
            setQueues(scheduler, queues);
            saveUserOptions(scheduler);
            report.add(queues, goals.value(queues, 1.0), measure(extent));
        }
    }
    setQueues(scheduler, 3);
    reportRequests(scheduler);
    {
        Report report("options");
        const QMap<int, double> goals{{20, 0.6}, {200, 0.4}, {2000, 0.25}};
        for (const int options : extent.sizes(goals.keys(), {5})) {
            scheduler.setPpd(queueName(0), ppdWithOptions(scheduler, options));
            report.add(options, goals.value(options, 1.0), measure(extent));
        }
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
