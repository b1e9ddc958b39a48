// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef ELIDINGLABEL_H
#define ELIDINGLABEL_H

#include <QLabel>

/** A label with one line of plain text, which ends with an ellipsis if it is too long. */
class ElidingLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
