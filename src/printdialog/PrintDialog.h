// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRINTDIALOG_H
#define PRINTDIALOG_H

#include <PropertiesDialog/propertiesdialog_export.h>

#include <QDialog>
#include <QList>
#include <QString>

class CupsSupport;
class QPrinter;
class Ui_PrintDialog;

/**
 * Asks before a job is printed.
 *
 * The full form lets the user choose the printer, see its status, type and location, switch to the default printer, set
 * the copies and ask for printing to a file. The short form asks one question and the copies. The dialog prints
 * nothing: after a change of printer was accepted, the CupsSupport and the QPrinter agree on the chosen queue, and the
 * host prints. A rejected dialog leaves both as they were.
 *
 * exec() returns 1 when accepted, 0 when rejected and -1 when the user asked for the printer's properties; exec2()
 * takes care of the latter.
 */
class PROPERTIESDIALOG_EXPORT PrintDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * The short form.
     *
     * @param parent the parent widget, or null.
     */
    explicit PrintDialog(QWidget *parent);

    /**
     * The full form.
     *
     * @param parent the parent widget, or null.
     * @param printer receives the queue name of the chosen printer. Not owned; must outlive the dialog.
     * @param cups lists the printers and receives the chosen one. Not owned; must outlive the dialog.
     */
    PrintDialog(QWidget *parent, QPrinter *printer, CupsSupport *cups);
    ~PrintDialog() override; ///< Leaves the objects that it was given alone.

    /** Sets the question of the short form. */
    void setText(const QString &text);

    /** Beware: true DISABLES the "Print to file" box, false enables it. */
    void setPrintToFileEnabled(bool enabled);

    /** Whether "Print to file" is ticked. The file is the host's to ask for and to write. */
    bool printToFile() const;

    /**
     * The copies of the short form's box, 1 to 100, whichever form is shown. The full form has a copies box of its own.
     */
    int numCopies() const;

    /**
     * Sets the copies of the short form's box, whichever form is shown. Less than 1 gives 1, more than 100 gives 100.
     */
    void setNumCopies(int copies);

    /**
     * Runs this dialog, and as long as it ends with the wish for the properties, @p propertiesDialog and then this one
     * again.
     *
     * @param propertiesDialog the dialog behind the Properties button. Not owned.
     * @return 1 when accepted, 0 when rejected.
     */
    int exec2(QDialog &propertiesDialog);

    /** Full form only: fills the printer list anew and selects the current printer. */
    void updateForm();

    /** Full form only: shows what is known of the printer at @p index of the list; does nothing when there is none. */
    void updateLabels(int index);

    /** Closes with result 0 and undoes a switch to the default printer. */
    void reject() override;

protected:
    /** Shows the texts anew after a change of language, and makes room for them. */
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void on_propertiesButton_clicked();
    void on_propertiesButton_2_clicked();
    void on_yesButton_2_clicked();
    void chk_printToFile_changed_state(bool checked);
    void chk_chkDefaultPrinter_changed_state(bool checked);
    void cbo_Printers_change(int index);

private:
    struct PrinterItem
    {
        QString name;
        QString type;
        QString status;
        QString location;
    };

    void makeRoom();
    QList<PrinterItem> readPrinters() const;
    bool listIsCurrent() const;
    void startOver();
    void showPrinterTexts(const PrinterItem &item);
    void changePrinter(int index);
    void restoreCurrentPrinter();

    Ui_PrintDialog *ui;
    QPrinter *printer = nullptr;
    CupsSupport *cups = nullptr;
    int savedCopies = 1; // of the full form, while "Print to file" is ticked
    QList<PrinterItem> printers; // by destination index
    int initialIndex = -1; // the destination that was current when the form was filled
    int indexBeforeDefault = -1; // of the printer list, while "Use Default" is ticked
    bool currentMoved = false; // "Use Default" has moved the current printer away from initialIndex
    bool questionIsHosts = false; // not the form's, and so not to be retranslated
};

#endif
