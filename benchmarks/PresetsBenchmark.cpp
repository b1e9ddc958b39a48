// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// The cost of many presets when the dialog opens, and how long it takes to show a preset after choosing it.

#include "Benchmark.h"

#include <PropertiesDialog/Preset.h>
#include <PropertiesDialog/PropertiesDialog.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

using namespace Benchmark;

namespace {

QString folder()
{
    return QDir::homePath() + "/.cups/" + queueName(0);
}

QByteArray scriptOf(bool landscape)
{
    Preset preset(queueName(0), "model",
                  {"Darkness", landscape ? "3" : "12", "orientation-requested", landscape ? "4" : "3", "PrintSpeed",
                   "2", "LabelCategory", "1", "GapSize", "3.048", "MirrorPrint", "True"},
                  "Model", "What this preset is good for.", -1);
    if (!preset.save({}))
        qFatal("cannot write %s", qPrintable(preset.pathName()));
    QFile file(preset.pathName());
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(preset.pathName()));
    const QByteArray script = file.readAll();
    file.remove();
    return script;
}

// Fills the folder with @p count presets, as the library writes them.
void writePresets(int count)
{
    QDir(folder()).removeRecursively();
    const QByteArray scripts[] = {scriptOf(false), scriptOf(true)};
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i + 1);
        QByteArray script = scripts[i % 2];
        script.replace("#name=Model", "#name=Labels of customer " + number);
        QFile file(folder() + "/preset" + number.rightJustified(5, '0') + ".sh");
        if (!file.open(QIODevice::WriteOnly) || file.write(script) != script.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }
}

// Reads the same files in the usual way of a Qt program.
void readInPlainLoop()
{
    const QDir dir(folder());
    const QStringList names = dir.entryList({"*.sh"}, QDir::Files);
    for (const QString &name : names) {
        QFile file(dir.filePath(name));
        if (!file.open(QIODevice::ReadOnly) || file.readAll().isEmpty())
            qFatal("cannot read %s", qPrintable(name));
    }
}

// Reads them with the minimum of system calls.
void readWithSystemCalls()
{
    DIR *const dir = opendir(QFile::encodeName(folder()).constData());
    if (dir == nullptr)
        qFatal("cannot list %s", qPrintable(folder()));
    char buffer[4096];
    while (const dirent *entry = readdir(dir)) {
        if (entry->d_name[0] == '.')
            continue;
        const int file = openat(dirfd(dir), entry->d_name, O_RDONLY | O_CLOEXEC);
        while (read(file, buffer, sizeof buffer) > 0) {
        }
        close(file);
    }
    closedir(dir);
}

double timeToOpen()
{
    return timeToFirstPaint([] { propertiesDialog(); });
}

// Opens the dialog, chooses two user presets in turn, and returns the median time until the fields were repainted.
double timeToChoose(const Extent &extent)
{
    Samples samples;
    runDialogs([] { propertiesDialog(); },
               [&](QDialog *dialog) {
                   auto *list = dialog->findChild<QComboBox *>("preset0");
                   int index = list->count() - 1;
                   extent.repeat([&](bool counts) {
                       index = index == list->count() - 1 ? list->count() - 2 : list->count() - 1;
                       int painted = 0;
                       const double time = milliseconds([&] {
                           const PaintCounter counter(dialog, &painted);
                           list->setCurrentIndex(index);
                           QCoreApplication::processEvents();
                       });
                       if (painted == 0 || list->currentIndex() != index)
                           qFatal("the choice of a preset is not shown");
                       if (counts)
                           samples.add(time);
                   });
                   dialog->reject();
               });
    return samples.median();
}

void program(const Extent &extent)
{
    PrivateScheduler scheduler;
    setQueues(scheduler, 3);
    saveUserOptions(scheduler);

    Table choosing("From the choice of a preset until it is shown, beside an opening",
                   {"presets", "choosing", "opening", "ratio"});
    Table opening("Opening with presets, beyond an empty folder, beside reading the same files in a plain loop",
                  {"presets", "opening", "empty folder", "beyond", "plain loop", "ratio", "us a preset",
                   "growth of that", "with use", "system calls alone", "ratio to that"});
    double firstCost = 0.0;
    for (const int presets : extent.sizes({100, 1000, 10000}, {20})) {
        Samples empty;
        writePresets(0);
        extent.repeat([&](bool counts) {
            const double time = timeToOpen();
            if (counts)
                empty.add(time);
        });
        Samples full;
        Samples plain;
        Samples calls;
        writePresets(presets);
        extent.repeat([&](bool counts) {
            const double time = timeToOpen();
            const double plainTime = milliseconds(readInPlainLoop);
            const double callsTime = milliseconds(readWithSystemCalls);
            if (counts) {
                full.add(time);
                plain.add(plainTime);
                calls.add(callsTime);
            }
        });
        const double beyond = full.median() - empty.median();
        const double cost = 1000.0 * beyond / presets;
        if (firstCost <= 0.0)
            firstCost = cost;
        opening.addRow({QString::number(presets), text(full.median()), text(empty.median()), text(beyond),
                        text(plain.median()), withGoal(beyond / plain.median(), 2.0), text(cost),
                        text(cost / firstCost), text(full.growth()), text(calls.median()),
                        text(beyond / calls.median())});
        const double choose = timeToChoose(extent);
        choosing.addRow(
            {QString::number(presets), text(choose), text(full.median()), withGoal(choose / full.median(), 0.5)});
    }
}

} // namespace

int main(int argc, char **argv)
{
    return run(argc, argv, program);
}
