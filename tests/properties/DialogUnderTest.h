// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef DIALOGUNDERTEST_H
#define DIALOGUNDERTEST_H

#include "CupsSupport.h"
#include "PrintPropertiesDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTranslator>

#include <memory>

/** What a widget shows, whatever it is: a text, a number, the index of a list, or "True" and "False". */
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

inline QString homePath(const QString &name)
{
    return qEnvironmentVariable("HOME") + "/" + name;
}

/** Makes an empty HOME of the process's. */
inline void clearHome()
{
    QDir(homePath(".cups")).removeRecursively();
    QDir(homePath(".gconf")).removeRecursively();
}

inline void writeFile(const QString &path, const QByteArray &data)
{
    QDir().mkpath(path.section('/', 0, -2));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(data) != data.size())
        qFatal("cannot write %s", qPrintable(path));
}

inline void selectQueue(CupsSupport &cups, const QString &queue)
{
    for (int i = 0; i < cups.getDestCount(); ++i) {
        cups.setCurrentPrinter(i);
        if (cups.getCurrentQueueName() == queue)
            return;
    }
    qFatal("no queue %s: %s", qPrintable(queue), CupsSupport::getCupsError());
}

/** The properties dialog of a queue with all that it needs, not yet shown. */
struct DialogUnderTest
{
    /** @param options an option list for the working copy of the queue's settings, before the dialog is made. */
    explicit DialogUnderTest(const QString &queue, const QStringList &options = {})
    {
        printer.setPrinterName(queue);
        if (printer.printerName() != queue)
            qFatal("no printer %s: %s", qPrintable(queue), CupsSupport::getCupsError());
        selectQueue(cups, queue);
        cups.setOptions(options);
        dialog.reset(new PrintPropertiesDialog(nullptr, &printer, &cups));
    }

    template<class Widget = QWidget>
    Widget *widget(const QString &name) const
    {
        auto *found = dialog->findChild<Widget *>(name);
        if (!found)
            qFatal("no widget %s", qPrintable(name));
        return found;
    }

    QString shown(const QString &name) const { return shownBy(widget(name)); }
    QLineEdit *edit(const QString &name) const { return widget<QLineEdit>(name); }
    QComboBox *list(const QString &name) const { return widget<QComboBox>(name); }
    QAbstractButton *button(const QString &name) const { return widget<QAbstractButton>(name); }

    /** Whether there are unsaved changes. */
    bool isChanged() const { return button("applyButton")->isEnabled(); }

    QPrinter printer{QPrinter::ScreenResolution};
    CupsSupport cups;
    std::unique_ptr<PrintPropertiesDialog> dialog;
};

/** While it lives, every text is "CONTEXT: text". */
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
