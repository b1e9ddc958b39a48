// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRINTDIALOG_H
#define PRINTDIALOG_H

#include <PropertiesDialog/propertiesdialog_export.h>

#include <QDialog>
#include <QString>

#include <memory>

class CupsSupport;
class QPrinter;

/**
 * Asks before a job is printed.
 *
 * The full form lets the user choose the printer, see its status, type and location, switch to the default printer, set
 * the copies and ask for printing to a file. The short form asks one question and the copies. The dialog prints
 * nothing: when it is accepted, the CupsSupport and the QPrinter have the chosen queue, and the host prints. When it is
 * rejected, both are as before. Qt selects a printer only if the scheduler confirms it: if the QPrinter cannot be turned
 * back to the earlier printer, it is left writing PDF, and if it cannot be told the chosen one, the dialog is rejected.
 *
 * exec() returns 1 when accepted, 0 when rejected and -1 when the user asked for the properties of the printer that the
 * list shows; the CupsSupport and the QPrinter temporarily have that queue then. exec2() handles this.
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
    ~PrintDialog() override; ///< Does not delete the objects passed to the constructor.

    /** Sets the question of the short form. */
    void setText(const QString &text);

    /** Beware: true DISABLES the "Print to file" box, false enables it. */
    void setPrintToFileEnabled(bool enabled);

    /** Whether "Print to file" is ticked. The host asks for the file name and writes the file. */
    bool printToFile() const;

    /**
     * The copies that the user asked for, 1 to 100: the number in the box of the form that is shown. 1 while "Print to
     * file" is ticked.
     */
    int copies() const;

    /**
     * The copies of the short form's box, 1 to 100, whichever form is shown. The full form has a copies box of its own:
     * copies() is right with both.
     */
    int numCopies() const;

    /**
     * Sets the copies of the short form's box, whichever form is shown. Less than 1 gives 1, more than 100 gives 100.
     */
    void setNumCopies(int copies);

    /**
     * Runs this dialog. Whenever the user asks for the properties, runs @p propertiesDialog and then this one
     * again.
     *
     * @param propertiesDialog the dialog behind the Properties button. Not owned. A PrintPropertiesDialog with the same
     *        CupsSupport and QPrinter edits the queue that the list shows.
     * @return 1 when accepted, 0 when rejected.
     */
    int exec2(QDialog &propertiesDialog);

    /** Full form only: refills the printer list and selects the current printer, to which Cancel then returns. */
    void updateForm();

    /** Full form only: shows the details of the printer at @p index of the list; does nothing if it does not exist. */
    void updateLabels(int index);

    /** Closes with result 0. The CupsSupport and the QPrinter have the queues again that they had before. */
    void reject() override;

protected:
    /** Full form only: asks the scheduler for the states of the printers. */
    void showEvent(QShowEvent *event) override;
    /** Updates the texts after a change of language, and makes room for them. */
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void on_propertiesButton_clicked();
    void on_propertiesButton_2_clicked();
    void on_yesButton_2_clicked();
    void chk_printToFile_changed_state(bool checked);
    void chk_chkDefaultPrinter_changed_state(bool checked);
    void cbo_Printers_change(int index);

private:
    struct Q_DECL_HIDDEN Private;

    const std::unique_ptr<Private> d;
};

#endif
