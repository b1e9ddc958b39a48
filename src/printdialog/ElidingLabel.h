// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef ELIDINGLABEL_H
#define ELIDINGLABEL_H

#include <QLabel>

/** A label of one line of plain text that ends with an ellipsis where there is no room for all of it. */
class ElidingLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
