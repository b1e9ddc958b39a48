// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "widgets/PasswordDialog.h"

#include "cups/Passwords.h"
#include "ui_PasswordDialog.h"
#include "widgets/FormButtons.h"

#include <QApplication>
#include <QEvent>

namespace {

bool askForPassword(Passwords::Credentials *credentials, bool isRetry)
{
    PasswordDialog dialog(QApplication::activeWindow(), credentials->user, isRetry);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    credentials->user = dialog.user();
    credentials->password = dialog.password();
    return true;
}

// The scheduler may be asked before any other dialog of ours exists.
void registerPrompt()
{
    Passwords::setPrompt(askForPassword);
}
Q_CONSTRUCTOR_FUNCTION(registerPrompt)

} // namespace

PasswordDialog::PasswordDialog(QWidget *parent, const QString &user, bool isRetry)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
    , ui(std::make_unique<Ui_PasswordDialog>())
{
    ui->setupUi(this);
    FormButtons::keepIconsBesideTexts(*this);
    ui->refusedLabel->setVisible(isRetry);
    ui->userEdit->setText(user);
    ui->passwordEdit->setFocus();
}

PasswordDialog::~PasswordDialog() = default;

QString PasswordDialog::user() const
{
    return ui->userEdit->text();
}

QString PasswordDialog::password() const
{
    return ui->passwordEdit->text();
}

void PasswordDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
}
