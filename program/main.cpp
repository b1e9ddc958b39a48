// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// label-printer-properties: the properties dialog for users without a host application.

#include "PrinterList.h"
#include "TestLabel.h"

#include "host/Translation.h"
#include "host/WindowSystem.h"
#include "widgets/MessageBox.h"

#include <PropertiesDialog/CupsSupport.h>
#include <PropertiesDialog/Preset.h>
#include <PropertiesDialog/Presets.h>
#include <PropertiesDialog/PrintPropertiesDialog.h>
#include <PropertiesDialog/PropertiesDialog.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include <cstdio>
#include <optional>

namespace {

enum ExitStatus {
    saved = 0,
    cancelled = 1,
    impossible = 2, // wrong usage, no printer, no display
    unsaved = 3,
    unprinted = 4
};

constexpr char programName[] = "label-printer-properties";

struct Program
{
    Q_DECLARE_TR_FUNCTIONS(Program)
};

// What QCommandLineParser says, for our own catalogues: many of Qt's lack some of it, and Qt's may not be installed.
[[maybe_unused]] constexpr const char *textsOfParser[] = {
    QT_TRANSLATE_NOOP("QCommandLineParser", "Usage: %1"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "[options]"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Options:"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown option '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Missing value after '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unexpected value after '%1'."),
};

void print(FILE *stream, const QString &line)
{
    std::fprintf(stream, "%s\n", qPrintable(line));
}

int complain(const QString &what)
{
    print(stderr, QLatin1String(programName) + QStringLiteral(": ") + what);
    return impossible;
}

QMessageBox::StandardButton showMessage(QMessageBox::Icon icon, const QString &text,
                                        QMessageBox::StandardButtons buttons = QMessageBox::Ok)
{
    return MessageBox::show(icon, Program::tr("Label Printer Properties"), text, buttons);
}

int complainInWindow(const QString &what)
{
    showMessage(QMessageBox::Warning, what);
    return impossible;
}

// ----- the command line -----

struct CommandLine
{
    std::optional<int> status; // set if there is nothing more to do
    bool lists = false;
    bool printsTestLabel = false;
    std::optional<QString> queue;
};

CommandLine readCommandLine()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(Program::tr("Shows and changes the settings of a label printer."));
    const QCommandLineOption printer({QStringLiteral("p"), QStringLiteral("printer")},
                                     Program::tr("The queue, instead of one chosen from a list."), Program::tr("NAME"));
    const QCommandLineOption list({QStringLiteral("l"), QStringLiteral("list")},
                                  Program::tr("Lists the queues, the default one marked with an asterisk."));
    const QCommandLineOption testLabel(
        QStringLiteral("test-label"),
        Program::tr("Prints a label to adjust offsets and darkness by, on the queue or the default one."));
    // Not the parser's own, which have no translation in some of Qt's catalogues.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, Program::tr("Shows this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     Program::tr("Shows the version."));
    parser.addOptions({printer, list, testLabel, help, version});

    CommandLine found;
    if (!parser.parse(QCoreApplication::arguments()))
        found.status = complain(parser.errorText());
    else if (!parser.positionalArguments().isEmpty())
        found.status =
            complain(Program::tr("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst()));
    else if (parser.isSet(help))
        parser.showHelp(saved);
    else if (parser.isSet(version))
        parser.showVersion();
    found.lists = parser.isSet(list);
    found.printsTestLabel = parser.isSet(testLabel);
    if (parser.isSet(printer))
        found.queue = parser.value(printer);
    return found;
}

// ----- printers -----

// Why no printer can be chosen; empty if one can.
QString lackOfPrinters(const CupsSupport &cups)
{
    if (!cups.isSchedulerReachable())
        return Program::tr("The print service cannot be reached: %1")
            .arg(QString::fromUtf8(CupsSupport::getCupsError()));
    return cups.getDestCount() == 0 ? Program::tr("No printers have been set up.") : QString();
}

// Why the queue cannot be shown; empty if it can.
QString lackOfQueue(const CupsSupport &cups, const QString &queue)
{
    if (cups.getQueueIndex(queue) >= 0)
        return QString();
    return Program::tr("there is no printer \"%1\"; --list names those there are").arg(queue);
}

int listQueues()
{
    const CupsSupport cups;
    const QString lack = lackOfPrinters(cups);
    if (!lack.isEmpty())
        return complain(lack);
    const QString defaultQueue = cups.getDefaultQueueName();
    for (int i = 0; i < cups.getDestCount(); ++i) {
        const QString queue = cups.getQueueName(i);
        print(stdout, (queue == defaultQueue ? QLatin1String("* ") : QLatin1String("  ")) + queue);
    }
    return saved;
}

// ----- the test label -----

// Prints it on a queue that exists. Returns why it could not be printed; empty if it was.
QString printTestLabel(CupsSupport &cups, const QString &queue)
{
    cups.setCurrentPrinter(cups.getQueueIndex(queue));
    QString error;
    if (TestLabel(cups).print(cups, &error) != 0)
        return QString();
    return Program::tr("The test label could not be printed: %1").arg(error);
}

// Needs no display.
int printTestLabelAndTell(const std::optional<QString> &named, char *program)
{
    char option[] = "-platform";
    char platform[] = "offscreen"; // where fonts come from
    char *arguments[] = {program, option, platform, nullptr};
    int count = 3;
    const QGuiApplication application(count, arguments);
    const Translation translation(Translation::AllTexts);

    CupsSupport cups;
    const QString printers = lackOfPrinters(cups);
    if (!printers.isEmpty())
        return complain(printers);
    const QString queue = named.value_or(cups.getDefaultQueueName());
    if (!named && queue.isEmpty())
        return complain(Program::tr("there is no default printer; name one with -p"));
    const QString lack = lackOfQueue(cups, queue);
    if (!lack.isEmpty())
        return complain(lack);
    const QString failure = printTestLabel(cups, queue);
    if (!failure.isEmpty()) {
        complain(failure);
        return unprinted;
    }
    print(stdout, Program::tr("The test label was sent to %1.").arg(queue));
    return saved;
}

// ----- without windows -----

QString lackOfDisplay()
{
    QStringList settings;
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(variable))
            settings << QLatin1String(variable) + QLatin1Char('=') + qEnvironmentVariable(variable);
    return settings.isEmpty() ? Program::tr("no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set")
                              : Program::tr("no window can be shown with %1").arg(settings.join(QLatin1Char(' ')));
}

int complainWithoutWindow(const std::optional<QString> &queue)
{
    const CupsSupport cups;
    const QString printers = lackOfPrinters(cups);
    if (!printers.isEmpty())
        return complain(printers);
    const QString named = queue ? lackOfQueue(cups, *queue) : QString();
    return complain(named.isEmpty() ? lackOfDisplay() : named);
}

// ----- with windows -----

// Lets the user choose the queue. Returns the exit status if none was chosen.
std::optional<int> chooseQueue(QString *queue)
{
    CupsSupport cups;
    const QString lack = lackOfPrinters(cups);
    if (!lack.isEmpty())
        return complainInWindow(lack);
    const QString defaultQueue = cups.getDefaultQueueName();
    const bool isDefaultUnknown = !defaultQueue.isEmpty() && cups.getQueueIndex(defaultQueue) < 0;
    if (cups.getDestCount() == 1 && !isDefaultUnknown) {
        *queue = cups.getQueueName(0);
        return std::nullopt;
    }
    const QString note =
        isDefaultUnknown ? Program::tr("The default printer \"%1\" does not exist.").arg(defaultQueue) : QString();
    cups.setCurrentPrinter(-1); // no PPD file is wanted
    PrinterList list(cups, defaultQueue, note);
    QObject::connect(&list, &PrinterList::testLabelWanted, &list, [&] {
        const QString failure = printTestLabel(cups, list.queue());
        list.showNote(failure.isEmpty() ? Program::tr("The test label was sent to %1.").arg(list.queue()) : failure);
    });
    if (list.exec() != QDialog::Accepted)
        return isDefaultUnknown ? impossible : cancelled;
    *queue = list.queue();
    return std::nullopt;
}

// Complains if there is no such queue.
std::optional<int> checkQueue(const QString &queue)
{
    const CupsSupport cups;
    const QString lack = lackOfPrinters(cups);
    if (!lack.isEmpty())
        return complainInWindow(lack);
    const QString lackOfNamed = lackOfQueue(cups, queue);
    return lackOfNamed.isEmpty() ? std::nullopt : std::optional<int>(complain(lackOfNamed));
}

// With what CUPS says; nothing if only presets are affected.
QString textOfUnsaved(const QString &error)
{
    return error.isEmpty() ? Program::tr("The presets could not be saved.")
                           : Program::tr("The settings could not be saved: %1").arg(error);
}

// Remembers what happened in the dialog, because it exists only during the library's call.
class DialogWatcher : public QObject
{
public:
    DialogWatcher() { QCoreApplication::instance()->installEventFilter(this); }

    bool wasShown = false;
    QString failure; // of the last saving; empty if it succeeded

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *dialog = qobject_cast<PrintPropertiesDialog *>(object);
        if (dialog && event->type() == QEvent::Hide) {
            wasShown = true;
            failure = dialog->lastSaveSucceeded() ? QString() : textOfUnsaved(dialog->lastSaveError());
        }
        return false;
    }
};

// In the script of the settings last applied, if there is one. From the script itself comes only the page size: values with
// a blank cannot be read back.
bool saveAsLastApplied(const CupsSupport &cups)
{
    const QString queue = cups.getCurrentQueueName();
    Preset current(queue, Presets(queue).currentFileName(), QStringList(), QString(), QString(), -1);
    if (!current.load())
        return true;
    current.clearOptions();
    current.setOptions(cups.cupsOptions());
    return current.save(cups.ppdDefaults());
}

// Asks once whether to apply what CUPS proposes to resolve conflicting settings. Returns why that could not be saved.
QString settleConflicts(const QString &queue)
{
    CupsSupport cups;
    cups.setCurrentPrinter(cups.getQueueIndex(queue));
    const QStringList proposal = cups.conflictResolution();
    if (proposal.isEmpty())
        return QString();
    const QStringList texts = cups.conflicts();
    QStringList conflicts;
    for (int i = 0; i + 1 < texts.size(); i += 2)
        conflicts << Program::tr("%1 and %2").arg(texts.at(i), texts.at(i + 1));
    QStringList changes;
    for (int i = 0; i + 1 < proposal.size(); i += 2)
        changes << cups.optionText(proposal.at(i), proposal.at(i + 1));
    const QString question = Program::tr("These settings cannot be used together:") + QLatin1String("\n")
                             + conflicts.join(QLatin1Char('\n')) + QLatin1String("\n\n")
                             + Program::tr("Do you want to change them to the following?") + QLatin1String("\n")
                             + changes.join(QLatin1Char('\n'));
    if (showMessage(QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
        return QString();
    cups.setOptions(proposal);
    if (cups.setDests() != 0)
        return textOfUnsaved(QString::fromUtf8(CupsSupport::getCupsError()));
    return saveAsLastApplied(cups) ? QString() : textOfUnsaved(QString());
}

int editProperties(const std::optional<QString> &named)
{
    QString queue = named.value_or(QString());
    if (const std::optional<int> status = named ? checkQueue(queue) : chooseQueue(&queue))
        return *status;
    const DialogWatcher watcher;
    const int result = propertiesDialogFor(queue.toUtf8().constData());
    if (!watcher.wasShown) // because the queue or the scheduler has gone
        return checkQueue(queue).value_or(impossible);
    QString failure = watcher.failure;
    if (failure.isEmpty() && result == QDialog::Accepted)
        failure = settleConflicts(queue);
    if (!failure.isEmpty()) {
        complain(failure);
        return unsaved;
    }
    return result == QDialog::Accepted ? saved : cancelled;
}

} // namespace

int main(int argc, char **argv)
{
    CommandLine commandLine;
    std::optional<WindowSystem::Platforms> platforms;
    {
        const QCoreApplication application(argc, argv);
        const Translation translation(Translation::AllTexts);
        QCoreApplication::setApplicationName(QLatin1String(programName));
        QCoreApplication::setApplicationVersion(QStringLiteral(PROGRAM_VERSION));
        commandLine = readCommandLine();
        if (commandLine.status)
            return *commandLine.status;
        if (commandLine.lists)
            return listQueues();
    }
    if (commandLine.printsTestLabel)
        return printTestLabelAndTell(commandLine.queue, argv[0]);
    {
        const QCoreApplication application(argc, argv);
        const Translation translation(Translation::AllTexts);
        platforms = WindowSystem::platforms();
        if (!platforms)
            return complainWithoutWindow(commandLine.queue);
    }

    WindowSystem::Arguments arguments(argv[0], platforms->names); // those of the command line are not Qt's
    const QApplication application(arguments.count(), arguments.values());
    platforms.reset();
    const Translation translation(Translation::AllTexts);
    QApplication::setDesktopFileName(QLatin1String(programName));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/b/printer.png")));
    return editProperties(commandLine.queue);
}
