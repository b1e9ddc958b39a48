// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef LABELWINDOW_H
#define LABELWINDOW_H

#include <PropertiesDialog/CupsSupport.h>

#include <QPrinter>
#include <QWidget>

class QLabel;
class QPlainTextEdit;

/** A text that is printed on a label. */
class LabelWindow : public QWidget
{
    Q_OBJECT

public:
    explicit LabelWindow(QWidget *parent = nullptr);

public Q_SLOTS:
    /** Asks for printer and copies, and prints the label. */
    void print();

    /** Lets the user shift the print on the label. */
    void chooseOffset();

private:
    bool writePdf(const QString &fileName) const;
    void saveAsFile();
    void sendToPrinter(int copies);

    // All dialogs share these two, which hold the user's choice of printer.
    QPrinter printer;
    CupsSupport cups;

    QPlainTextEdit *text;
    QLabel *status;
};

#endif
