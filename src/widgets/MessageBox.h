// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef MESSAGEBOX_H
#define MESSAGEBOX_H

#include <QMessageBox>

namespace MessageBox {

/** Shows a message box and waits for the answer. Its buttons are those of FormButtons. */
QMessageBox::StandardButton show(QMessageBox::Icon icon, const QString &title, const QString &text,
                                 QMessageBox::StandardButtons buttons = QMessageBox::Ok, QWidget *parent = nullptr);

} // namespace MessageBox

#endif
