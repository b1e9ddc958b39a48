// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef OPENDIALOG_H
#define OPENDIALOG_H

#include "PrivateScheduler.h"

#include <PropertiesDialog/CupsSupport.h>
#include <PropertiesDialog/PrintPropertiesDialog.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QPrintEngine>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <cups/cups.h>

#include <memory>
#include <thread>

template<class Widget>
Widget *childOf(const QDialog &dialog, const QString &name)
{
    auto *child = dialog.findChild<Widget *>(name);
    if (!child)
        qFatal("the dialog has no %s", qPrintable(name));
    return child;
}

/** What a widget of any kind shows: a text, a number, the index of a list, or "True" or "False". */
inline QString shownBy(const QWidget *widget)
{
    if (auto *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->text();
    if (auto *edit = qobject_cast<const QPlainTextEdit *>(widget))
        return edit->toPlainText();
    if (auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (auto *slider = qobject_cast<const QSlider *>(widget))
        return QString::number(slider->value());
    if (auto *list = qobject_cast<const QComboBox *>(widget))
        return QString::number(list->currentIndex());
    if (auto *box = qobject_cast<const QGroupBox *>(widget))
        return box->isChecked() ? "True" : "False";
    if (auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->isChecked() ? "True" : "False";
    qFatal("nothing to read from %s", qPrintable(widget->objectName()));
}

inline void selectQueue(CupsSupport &cups, const QString &queue)
{
    // Selecting a printer fetches its PPD file, so only the right one is selected.
    for (int i = 0; i < cups.getDestCount(); ++i) {
        if (cups.getQueueName(i) == queue) {
            cups.setCurrentPrinter(i);
            return;
        }
    }
    qFatal("no queue %s: %s", qPrintable(queue), CupsSupport::getCupsError());
}

/**
 * The printer object of a host, which names @p queue. Qt would send ten requests to make one that knows the queue's sizes
 * and margins. Only tests of what a host receives need that.
 */
inline std::unique_ptr<QPrinter> printerNamed(const QString &queue)
{
    std::unique_ptr<QPrinter> printer;
    std::thread([&printer] {
        cupsSetServer("/nonexistent"); // of this thread
        printer = std::make_unique<QPrinter>(QPrinter::ScreenResolution);
    }).join();
    printer->printEngine()->setProperty(QPrintEngine::PPK_PrinterName, queue);
    return printer;
}

/** The properties dialog with its printer and its settings. */
struct OpenDialog
{
    CupsSupport cups;
    const std::unique_ptr<QPrinter> printer; // the host's
    PrintPropertiesDialog dialog;

    /** The dialog of the default printer, shown, as by propertiesDialog(). */
    OpenDialog()
        : OpenDialog(std::unique_ptr<QPrinter>())
    {
    }

    /** The same for a host with its own printer object. */
    explicit OpenDialog(std::unique_ptr<QPrinter> hostPrinter)
        : printer(hostPrinter ? std::move(hostPrinter) : printerNamed(cups.getCurrentQueueName()))
        , dialog(nullptr, printer.get(), &cups)
    {
        dialog.show();
    }

    /**
     * The dialog of any queue, not shown yet.
     *
     * @param options an option list for the working copy of the queue's settings, set before the dialog is made.
     */
    explicit OpenDialog(const QString &queue, const QStringList &options = {})
        : printer(printerNamed(queue))
        , dialog(nullptr, printer.get(), settingsOf(queue, options))
    {
    }

    template<class Widget = QWidget>
    Widget *widget(const QString &name) const
    {
        return childOf<Widget>(dialog, name);
    }
    QLineEdit *edit(const QString &name) const { return widget<QLineEdit>(name); }
    QComboBox *list(const QString &name) const { return widget<QComboBox>(name); }
    QAbstractButton *button(const QString &name) const { return widget<QAbstractButton>(name); }

    QString shown(const QString &name) const { return shownBy(widget(name)); }
    QString text(const QString &name) const { return edit(name)->text(); }
    QString plainText(const QString &name) const { return widget<QPlainTextEdit>(name)->toPlainText(); }
    bool isEnabled(const QString &name) const { return widget(name)->isEnabled(); }
    bool isChanged() const { return isEnabled("applyButton"); }

    void click(const QString &name) { button(name)->click(); }
    void setText(const QString &name, const QString &text) { edit(name)->setText(text); }
    void setPlainText(const QString &name, const QString &text) { widget<QPlainTextEdit>(name)->setPlainText(text); }
    void choose(const QString &name, int index) { list(name)->setCurrentIndex(index); }
    void slide(const QString &name, int value) { widget<QSlider>(name)->setValue(value); }

private:
    CupsSupport *settingsOf(const QString &queue, const QStringList &options)
    {
        selectQueue(cups, queue);
        cups.setOptions(options);
        return &cups;
    }
};

using Options = QMap<QByteArray, QByteArray>;

/** The options of a destination as libcups reads them in a new program. */
inline Options storedOptions(const QByteArray &queue)
{
    Options options;
    cups_dest_t *dests = nullptr;
    const int count = cupsGetDests(&dests);
    if (const cups_dest_t *dest = cupsGetDest(queue.constData(), nullptr, count, dests))
        for (int i = 0; i < dest->num_options; ++i)
            options.insert(dest->options[i].name, dest->options[i].value);
    cupsFreeDests(count, dests);
    return options;
}

/** The options of the current printer in the working copy. */
inline Options workingCopy(const CupsSupport &cups)
{
    Options options;
    const QStringList list = cups.cupsOptions();
    for (QStringList::size_type i = 0; i + 1 < list.size(); i += 2)
        options.insert(list.at(i).toLatin1(), list.at(i + 1).toLatin1());
    return options;
}

inline QString homePath(const QString &name)
{
    return qEnvironmentVariable("HOME") + "/" + name;
}

/** Empties the HOME of this process. */
inline void clearHome()
{
    QDir(homePath(".cups")).removeRecursively();
    QDir(homePath(".gconf")).removeRecursively();
}

inline QString cupsFolder()
{
    return homePath(".cups");
}

inline QByteArray fileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

/**
 * The driver's command while this object exists: programs that this process starts find @p script as "ppdhack", which
 * runs with STAND_IN set to the command that changes the queue's page size.
 */
class DriverCommand
{
public:
    explicit DriverCommand(const QByteArray &script = "exec \"$STAND_IN\" \"$@\"\n")
        : pathBefore(qgetenv("PATH"))
    {
        const QString command = folder.filePath("ppdhack");
        writeFile(command, "#!/bin/bash\necho \"$*\" >> \"${0%/*}/log\"\n" + script);
        QFile::setPermissions(command, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(folder.path()) + ':' + pathBefore);
        qputenv("STAND_IN", QFile::encodeName(PrivateScheduler::commandDir() + "/ppdhack"));
    }
    ~DriverCommand() { qputenv("PATH", pathBefore); }

    DriverCommand(const DriverCommand &) = delete;
    DriverCommand &operator=(const DriverCommand &) = delete;

    /** The arguments of each run, one line per run. */
    QByteArray runs() const { return fileContent(folder.filePath("log")); }

private:
    QTemporaryDir folder{QStringLiteral("/tmp/pd-XXXXXX")};
    QByteArray pathBefore;
};

/** While this object exists, every text is translated to "CONTEXT: text". */
class MarkingTranslator : public QTranslator
{
public:
    MarkingTranslator() { QCoreApplication::installTranslator(this); }
    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return QString("%1: %2").arg(QString(context), QString::fromUtf8(sourceText));
    }
};

#endif
