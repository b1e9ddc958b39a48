// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PASSWORDDIALOG_H
#define PASSWORDDIALOG_H

#include <QDialog>

#include <memory>

class Ui_PasswordDialog;

/** Asks for the user name and the password that the print server wants. */
class PasswordDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * @param user the name to begin with.
     * @param isRetry whether the server did not accept what was entered before.
     */
    PasswordDialog(QWidget *parent, const QString &user, bool isRetry);
    ~PasswordDialog() override;

    QString user() const;
    QString password() const;

protected:
    /** Updates the texts after a change of language. */
    void changeEvent(QEvent *event) override;

private:
    const std::unique_ptr<Ui_PasswordDialog> ui;
};

#endif
