// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "Benchmark.h"

#include "ui_PrintPropertiesDialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QSet>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>

namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Reports each dialog once, when its first paint event and those of everything in it are over.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(const std::function<void(QDialog *)> &painted)
        : report(painted)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        auto *dialog = qobject_cast<QDialog *>(object);
        if (dialog && !seen.contains(dialog)) {
            seen.insert(dialog);
            // All of the window is painted and flushed before the event loop goes on.
            QMetaObject::invokeMethod(
                this, [this, dialog] { report(dialog); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    std::function<void(QDialog *)> report;
    QSet<QObject *> seen;
};

// Qt's offscreen platform warns for each window about what it cannot do.
void ignoreMessages(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg || !message.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray printerEntry(int index)
{
    const QByteArray name = Benchmark::queueName(index).toLatin1();
    const QByteArray kind = index == 0 ? "DefaultPrinter" : "Printer";
    return '<' + kind + ' ' + name + ">\n" + "Info Label printer " + QByteArray::number(index) + '\n' + "Location Hall "
           + QByteArray::number(index % 7) + '\n'
           + "MakeModel Sample Label label 203dpi\n"
             "DeviceURI capture:/\n"
             "State Idle\n"
             "Type 4\n"
             "Accepting Yes\n"
             "Shared No\n"
           + "</" + kind + ">\n";
}

QByteArray generatedOption(int number)
{
    const QByteArray keyword = "Extra" + QByteArray::number(number);
    QByteArray text = "*OpenUI *" + keyword + "/Extra Option " + QByteArray::number(number) + ": PickOne\n"
                      + "*OrderDependency: 20 AnySetup *" + keyword + "\n*Default" + keyword + ": Choice0\n";
    for (int choice = 0; choice < 10; ++choice) {
        const QByteArray digit = QByteArray::number(choice);
        text += '*' + keyword + " Choice" + digit + "/Choice " + digit + ": \"\"\n";
    }
    return text + "*CloseUI: *" + keyword + '\n';
}

} // namespace

double Benchmark::milliseconds(const std::function<void()> &work)
{
    const Clock::time_point start = Clock::now();
    work();
    return millisecondsSince(start);
}

double Benchmark::Samples::growth() const
{
    const auto quarter = std::ptrdiff_t(std::max<std::size_t>(1, times.size() / 4));
    return medianOf({times.end() - quarter, times.end()}) / medianOf({times.begin(), times.begin() + quarter});
}

double Benchmark::Samples::medianOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t count = values.size();
    return count == 0 ? 0.0 : (values[(count - 1) / 2] + values[count / 2]) / 2;
}

Benchmark::Extent::Extent(int argc, char **argv)
    : isShort(argc > 1 && std::strcmp(argv[1], "--short") == 0)
    , warmUps(isShort ? 1 : 5)
    , runs(isShort ? 2 : 25)
{
}

void Benchmark::Extent::repeat(const std::function<void(bool)> &round) const
{
    for (int i = 0; i < warmUps + runs; ++i)
        round(i >= warmUps);
}

Benchmark::Table::Table(const QString &title_, const QStringList &headings)
    : title(title_)
    , rows{headings}
{
}

Benchmark::Table::~Table()
{
    std::printf("\n%s\n", qPrintable(title));
    for (const QStringList &row : rows) {
        for (int column = 0; column < int(row.size()); ++column) {
            const bool isLast = column + 1 == int(row.size());
            const QString &cell = row.at(column);
            const int width = isNumeric(column) ? widthOf(column) : isLast ? 0 : -widthOf(column);
            std::printf("  %*s", width, qPrintable(cell));
        }
        std::printf("\n");
    }
    std::fflush(stdout);
}

int Benchmark::Table::widthOf(int column) const
{
    int width = 0;
    for (const QStringList &row : rows)
        width = std::max(width, int(row.at(column).size()));
    return width;
}

// Numbers are right-aligned, words left-aligned.
bool Benchmark::Table::isNumeric(int column) const
{
    const QString cell = rows.size() > 1 ? rows[1].at(column) : QString();
    return !cell.isEmpty() && (cell.at(0).isDigit() || cell.at(0) == '-');
}

QString Benchmark::text(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

QString Benchmark::withGoal(double ratio, double goal)
{
    return text(ratio) + (ratio <= goal ? " <= " : " ABOVE ") + text(goal);
}

void Benchmark::runDialogs(const std::function<void()> &open, const std::function<void(QDialog *)> &painted)
{
    const PaintWatch watch(painted);
    open();
}

Benchmark::PaintCounter::PaintCounter(QWidget *window_, int *count_)
    : window(window_)
    , count(count_)
{
    qApp->installEventFilter(this);
}

bool Benchmark::PaintCounter::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Paint && object->isWidgetType() && static_cast<QWidget *>(object)->window() == window)
        ++*count;
    return false;
}

double Benchmark::timeToFirstPaint(const std::function<void()> &open)
{
    const Clock::time_point start = Clock::now();
    double time = 0.0;
    runDialogs(open, [&](QDialog *dialog) {
        time = millisecondsSince(start);
        dialog->reject();
    });
    return time;
}

double Benchmark::timeToQtDialogs()
{
    const Clock::time_point start = Clock::now();
    double time = 0.0;
    const auto open = [] {
        QPrinter printer(QPrinter::ScreenResolution);
        QPrintDialog dialog(&printer);
        dialog.exec();
    };
    runDialogs(open, [&](QDialog *dialog) {
        time = millisecondsSince(start);
        auto *properties = dialog->findChild<QAbstractButton *>("properties");
        if (properties) {
            if (!properties->isEnabled()) {
                qFatal("Qt offers no properties of this printer");
            }
            properties->click(); // until that dialog has been reported
        }
        dialog->reject();
    });
    return time;
}

double Benchmark::timeToBareForm()
{
    return timeToFirstPaint([] {
        QDialog dialog;
        Ui_PrintPropertiesDialog form;
        form.setupUi(&dialog);
        dialog.exec();
    });
}

double Benchmark::measuredInProcesses(const char *function, const Extent &extent)
{
    Samples samples;
    for (int i = 0; i < extent.runs; ++i) {
        const TestMain::ChildResult result = TestMain::runChild(function);
        if (result.exitCode != 0)
            qFatal("%s failed", function);
        samples.add(result.output.toDouble());
    }
    return samples.median();
}

int Benchmark::printMeasured(int argc, char **argv, double (*measure)())
{
    qInstallMessageHandler(ignoreMessages);
    const QApplication application(argc, argv);
    std::printf("%f\n", measure());
    return 0;
}

QString Benchmark::queueName(int index)
{
    return QStringLiteral("Label-%1").arg(index, 4, 10, QLatin1Char('0'));
}

void Benchmark::setQueues(PrivateScheduler &scheduler, int count)
{
    // A thousand requests would take longer than the measurement.
    scheduler.stop();
    const QDir etc(scheduler.dir() + "/etc");
    QDir(etc.filePath("ppd")).removeRecursively();
    etc.mkdir("ppd");
    QByteArray configuration;
    for (int i = 0; i < count; ++i) {
        configuration += printerEntry(i);
        QFile::copy(PrivateScheduler::samplePpd("label-203"), etc.filePath("ppd/" + queueName(i) + ".ppd"));
    }
    writeFile(etc.filePath("printers.conf"), configuration);
    scheduler.start();
}

QString Benchmark::ppdWithOptions(PrivateScheduler &scheduler, int options)
{
    constexpr int groupSize = 20;
    QByteArray generated;
    for (int first = 0; first < options; first += groupSize) {
        const QByteArray group = "Extra" + QByteArray::number(first / groupSize);
        generated += "*OpenGroup: " + group + "/Extra Group\n";
        for (int i = first; i < std::min(first + groupSize, options); ++i)
            generated += generatedOption(i);
        generated += "*CloseGroup: " + group + '\n';
    }
    const QByteArray behindOptions = "*DefaultFont:";
    return scheduler.editedPpd(PrivateScheduler::samplePpd("label-203"), {{behindOptions, generated + behindOptions}});
}

void Benchmark::saveUserOptions(PrivateScheduler &scheduler)
{
    scheduler.setUserOptions(queueName(0), {"Darkness=12", "PrintSpeed=2", "LabelCategory=2", "MarkSize=3.000",
                                            "orientation-requested=3", "MirrorPrint=True", "Feed=24", "JobStart=N"});
}

int Benchmark::run(int argc, char **argv, void (*program)(const Extent &extent))
{
    // The same on every machine, and without an X server.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const int exitCode = TestMain::prepare(argc, argv);
    if (exitCode >= 0)
        return exitCode;
    qInstallMessageHandler(ignoreMessages);
    const QApplication application(argc, argv);
    const Extent extent(argc, argv);
    std::printf("Qt %s, medians of %d after %d to warm up, times in milliseconds\n", qVersion(), extent.runs,
                extent.warmUps);
    program(extent);
    return 0;
}
