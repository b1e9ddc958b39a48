// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef EXTDIALOG_H
#define EXTDIALOG_H

#include <PropertiesDialog/propertiesdialog_export.h>

#include <QDialog>

#include <memory>

class CupsSupport;

/**
 * Lets the user shift the print position in steps of a quarter millimetre, from -0.75 mm to +0.75 mm.
 *
 * exec() returns 1 after OK, and the offset is then already saved as an option of the current printer; 0 after Cancel.
 * Save failures are not reported. Needs a QApplication.
 */
class PROPERTIESDIALOG_EXPORT ExtDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * @param parent the parent widget, or null.
     * @param cups the offset of its current printer is shown and changed. Not owned; must outlive the dialog.
     */
    ExtDialog(QWidget *parent, CupsSupport *cups);
    ~ExtDialog() override; ///< Does not delete the objects passed to the constructor.

protected:
    /** Updates the texts after a change of language, and makes room for them. */
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void on_buttonBox_accepted();
    void on_buttonBox_rejected();

private:
    struct Q_DECL_HIDDEN Private;

    const std::unique_ptr<Private> d;
};

#endif
