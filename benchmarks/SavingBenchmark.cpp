// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// How long Apply takes to save everything, compared with libcups' saving of the same options.

#include "Benchmark.h"

#include <PropertiesDialog/PropertiesDialog.h>

#include <QAbstractButton>
#include <QDir>
#include <QSaveFile>
#include <QSlider>

#include <cups/cups.h>

using namespace Benchmark;

namespace {

template<class Widget>
Widget *find(QDialog *dialog, const char *name)
{
    auto *widget = dialog->findChild<Widget *>(name);
    if (widget == nullptr)
        qFatal("the dialog has no %s", name);
    return widget;
}

// Replaces a file in the same folder and waits for the disk: what Apply would cost in addition for each file if it did so.
void replaceFile()
{
    QSaveFile file(QDir::homePath() + "/.cups/benchmark");
    if (!file.open(QIODevice::WriteOnly) || file.write("x") != 1 || !file.flush() || !file.commit())
        qFatal("cannot write %s", qPrintable(file.fileName()));
}

struct Measurement
{
    Samples apply;
    Samples cups;
    Samples file;
    QStringList requests;
};

Measurement measure(PrivateScheduler &scheduler, const Extent &extent)
{
    Measurement m;
    cups_dest_t *dests = nullptr;
    const int count = cupsGetDests(&dests);
    cups_dest_t *dest = cupsGetDest(nullptr, nullptr, count, dests);
    int darkness = 1;
    const auto saveWithCups = [&] {
        const QByteArray value = QByteArray::number(darkness);
        dest->num_options = cupsAddOption("Darkness", value.constData(), dest->num_options, &dest->options);
        return milliseconds([&] {
            if (cupsSetDests2(CUPS_HTTP_DEFAULT, count, dests) != 0)
                qFatal("cupsSetDests failed");
        });
    };
    const auto measureIn = [&](QDialog *dialog) {
        auto *button = find<QAbstractButton>(dialog, "applyButton");
        const auto apply = [&] {
            find<QSlider>(dialog, "darknessSlider")->setValue(darkness);
            const double time = milliseconds([&] { button->click(); });
            if (button->isEnabled()) {
                qFatal("Apply has not saved");
            }
            return time;
        };
        extent.repeat([&](bool counts) {
            darkness = darkness % 9 + 1;
            const double applyTime = apply();
            const double cupsTime = saveWithCups();
            const double fileTime = milliseconds(replaceFile);
            if (counts) {
                m.apply.add(applyTime);
                m.cups.add(cupsTime);
                m.file.add(fileTime);
            }
        });
        darkness = darkness % 9 + 1;
        scheduler.startRequests();
        apply();
        m.requests = scheduler.requests();
    };
    runDialogs([] { propertiesDialog(); },
               [&](QDialog *dialog) {
                   measureIn(dialog);
                   dialog->reject();
               });
    cupsFreeDests(count, dests);
    return m;
}

void program(const Extent &extent)
{
    PrivateScheduler scheduler;
    Table table("Apply until everything is saved, beside one cupsSetDests",
                {"queues", "Apply", "cupsSetDests", "ratio", "growth", "libcups' growth", "with use",
                 "replacing a file", "requests of Apply"});
    double firstApply = 0.0;
    double firstCups = 0.0;
    for (const int queues : extent.sizes({3, 100, 1000}, {2})) {
        setQueues(scheduler, queues);
        saveUserOptions(scheduler);
        const Measurement m = measure(scheduler, extent);
        if (firstApply <= 0.0) {
            firstApply = m.apply.median();
            firstCups = m.cups.median();
        }
        table.addRow({QString::number(queues), text(m.apply.median()), text(m.cups.median()),
                      withGoal(m.apply.median() / m.cups.median(), 1.0), text(m.apply.median() / firstApply),
                      text(m.cups.median() / firstCups), text(m.apply.growth()), text(m.file.median()),
                      m.requests.join(", ")});
    }
}

} // namespace

int main(int argc, char **argv)
{
    return run(argc, argv, program);
}
