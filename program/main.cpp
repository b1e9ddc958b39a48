// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// label-printer-properties: the properties dialog for users without a host application.

#include <PropertiesDialog/CupsSupport.h>
#include <PropertiesDialog/PrintPropertiesDialog.h>
#include <PropertiesDialog/PropertiesDialog.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QPrinter>
#include <QTranslator>

#include <cstdio>
#include <optional>

namespace {

enum ExitStatus {
    saved = 0,
    cancelled = 1,
    wrongUsage = 2
};

struct Program
{
    Q_DECLARE_TR_FUNCTIONS(Program)
};

void print(FILE *stream, const QString &line)
{
    std::fprintf(stream, "%s\n", qPrintable(line));
}

int complain(const QString &what)
{
    print(stderr, QStringLiteral("label-printer-properties: ") + what);
    return wrongUsage;
}

// The texts in the user's language, to be kept as long as they are needed.
class Catalogue
{
public:
    Catalogue()
    {
        if (translator.load(QLocale(), QStringLiteral("propertiesdialog"), QStringLiteral("_"),
                            QStringLiteral(TRANSLATIONS_DIR)))
            QCoreApplication::installTranslator(&translator);
    }

    Qt::LayoutDirection direction() const
    {
        return translator.isEmpty() ? Qt::LeftToRight : QLocale(translator.language()).textDirection();
    }

private:
    QTranslator translator;
};

int indexOf(const CupsSupport &cups, const QString &queue)
{
    for (int i = 0; i < cups.getDestCount(); ++i)
        if (cups.getQueueName(i) == queue)
            return i;
    return -1;
}

// Handles what needs no window and returns the exit status; or nothing, and the queue to edit, empty for the
// default one.
std::optional<int> answerWithoutWindow(int &argc, char **argv, QString *queue)
{
    const QCoreApplication application(argc, argv);
    const Catalogue catalogue;
    QCoreApplication::setApplicationName(QStringLiteral("label-printer-properties"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PROGRAM_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(Program::tr("Shows and changes the settings of a label printer."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption printer({QStringLiteral("p"), QStringLiteral("printer")},
                                     Program::tr("The queue, instead of the default one."), Program::tr("NAME"));
    const QCommandLineOption list({QStringLiteral("l"), QStringLiteral("list")},
                                  Program::tr("Lists the queues, the default one marked with an asterisk."));
    parser.addOption(printer);
    parser.addOption(list);

    if (!parser.parse(QCoreApplication::arguments()))
        return complain(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return complain(Program::tr("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst()));
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp(saved);
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();

    if (!parser.isSet(list) && !parser.isSet(printer))
        return std::nullopt;
    const CupsSupport cups;
    if (parser.isSet(list)) {
        for (int i = 0; i < cups.getDestCount(); ++i)
            print(stdout,
                  (i == cups.getCurrentIndex() ? QLatin1String("* ") : QLatin1String("  ")) + cups.getQueueName(i));
        return saved;
    }
    *queue = parser.value(printer);
    if (indexOf(cups, *queue) < 0)
        return complain(Program::tr("there is no printer \"%1\"; --list names those there are").arg(*queue));
    return std::nullopt;
}

int editProperties(const QString &queue)
{
    if (queue.isEmpty())
        return propertiesDialog();
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setPrinterName(queue);
    CupsSupport cups;
    cups.setCurrentPrinter(indexOf(cups, queue));
    PrintPropertiesDialog dialog(nullptr, &printer, &cups);
    return dialog.exec();
}

} // namespace

int main(int argc, char **argv)
{
    QString queue;
    if (const std::optional<int> status = answerWithoutWindow(argc, argv, &queue))
        return *status;

    int windowArgc = 1; // the arguments are not Qt's
    const QApplication application(windowArgc, argv);
    const Catalogue catalogue;
    QApplication::setLayoutDirection(catalogue.direction());
    QApplication::setDesktopFileName(QStringLiteral("label-printer-properties"));
    return editProperties(queue) == QDialog::Accepted ? saved : cancelled;
}
