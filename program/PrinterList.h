// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRINTERLIST_H
#define PRINTERLIST_H

#include <QDialog>
#include <QString>

#include <memory>

class CupsSupport;
class QPushButton;
namespace Ui {
class PrinterList;
}

/** Lets the user choose one of the queues. exec() returns QDialog::Accepted if one was chosen. */
class PrinterList : public QDialog
{
    Q_OBJECT

public:
    /**
     * @param cups its queues are listed. Not kept.
     * @param selected the queue that is selected at first; none if it does not exist.
     * @param note shown above the list, if it is not empty.
     */
    PrinterList(const CupsSupport &cups, const QString &selected, const QString &note);
    ~PrinterList() override;

    /** The selected queue; empty if none is. */
    QString queue() const;

    /** Shows @p note above the list, if it is not empty. */
    void showNote(const QString &note);

Q_SIGNALS:
    /** The user wants a test label from the selected queue. */
    void testLabelWanted();

private:
    void addQueue(const CupsSupport &cups, int index);
    void makeRoom();
    void enableButtons();

    std::unique_ptr<Ui::PrinterList> ui;
    QPushButton *testLabelButton = nullptr; // goes with the button box
};

#endif
