// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "widgets/MessageBox.h"

#include "widgets/FormButtons.h"

QMessageBox::StandardButton MessageBox::show(QMessageBox::Icon icon, const QString &title, const QString &text,
                                             QMessageBox::StandardButtons buttons, QWidget *parent)
{
    QMessageBox box(icon, title, text, buttons, parent);
    FormButtons::keepIconsBesideTexts(box);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}
