// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef BENCHMARK_H
#define BENCHMARK_H

#include "PrivateScheduler.h"
#include "TestMain.h"

#include <QByteArray>
#include <QDialog>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QWidget;

/** Shared by the benchmarks: measuring, printing results, and sample data. */
namespace Benchmark {

/** Runs @p work and returns its duration in milliseconds. */
double milliseconds(const std::function<void()> &work);

/** Durations of one operation, in milliseconds, in the order in which they were measured. */
class Samples
{
public:
    void reserve(int count) { times.reserve(std::size_t(count)); } ///< Adding then does not allocate.
    void add(double time) { times.push_back(time); }
    double median() const { return medianOf(times); }

    /** The median of the last quarter divided by that of the first: above 1 if the operation becomes slower with use. */
    double growth() const;

private:
    static double medianOf(std::vector<double> values);

    std::vector<double> times;
};

/** How much is measured. With --short, only enough to show that the program works. */
struct Extent
{
    bool isShort;
    int warmUps;
    int runs;

    Extent(int argc, char **argv);

    /** Repeats @p round and tells it whether its times count. */
    void repeat(const std::function<void(bool counts)> &round) const;

    /** The sizes to measure, or the few small ones of the short form. */
    QList<int> sizes(const QList<int> &full, const QList<int> &few) const { return isShort ? few : full; }
};

/** Rows of text under headings, printed with aligned columns. */
class Table
{
public:
    Table(const QString &title, const QStringList &headings);
    ~Table(); ///< Prints it.

    Table(const Table &) = delete;
    Table &operator=(const Table &) = delete;

    void addRow(const QStringList &cells) { rows.push_back(cells); }

private:
    int widthOf(int column) const;
    bool isNumeric(int column) const;

    QString title;
    std::vector<QStringList> rows; // the first one holds the headings
};

QString text(double value, int decimals = 2);

/** A ratio with its goal, marked if it is above. */
QString withGoal(double ratio, double goal);

/**
 * Calls @p open, which runs a modal dialog, and @p painted with each dialog that has been shown and painted completely
 * for the first time. @p painted must close it.
 */
void runDialogs(const std::function<void()> &open, const std::function<void(QDialog *dialog)> &painted);

/** Counts the paint events of a window and of everything in it. */
class PaintCounter : public QObject
{
public:
    PaintCounter(QWidget *window, int *count);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QWidget *window;
    int *count;
};

/** The milliseconds from the call of @p open, which runs one modal dialog, to the dialog's first paint. */
double timeToFirstPaint(const std::function<void()> &open);

/** The same for a new QPrinter, Qt's print dialog and, when that is painted, its printer properties dialog. */
double timeToQtDialogs();

/** The same for the empty form of the properties dialog, without anything of the library. */
double timeToBareForm();

/**
 * The median of a number that separate processes print. The first opening in a process is slower than later ones
 * because it also loads fonts, style and libraries.
 *
 * @param function the name of a registered child function that returns printMeasured().
 */
double measuredInProcesses(const char *function, const Extent &extent);

/** Makes the application object and prints what @p measure returns. */
int printMeasured(int argc, char **argv, double (*measure)());

/** The name of queue number @p index, from 0. */
QString queueName(int index);

/** Replaces the scheduler's queues by @p count queues with the sample PPD file. The first is the default. */
void setQueues(PrivateScheduler &scheduler, int count);

/** The path of a sample PPD file with @p options more options of 10 choices each. */
QString ppdWithOptions(PrivateScheduler &scheduler, int options);

/** Saves typical label settings of the first queue in the user's options file. */
void saveUserOptions(PrivateScheduler &scheduler);

/** To be called by main(): gives the process its HOME, creates the application object and calls @p program. */
int run(int argc, char **argv, void (*program)(const Extent &extent));

} // namespace Benchmark

#endif
