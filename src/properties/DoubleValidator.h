// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef DOUBLEVALIDATOR_H
#define DOUBLEVALIDATOR_H

#include <QDoubleValidator>

/**
 * Lets only numbers within the range be typed, with a decimal point in every locale.
 *
 * Its base accepts any text that could still become a valid number, so that an out-of-range one may be typed and is
 * refused only at the end. Here the keystroke itself is refused; what may be continued is the empty text, a lone
 * decimal point and, where the range reaches below zero, a lone minus sign.
 */
class DoubleValidator : public QDoubleValidator
{
    Q_OBJECT

public:
    DoubleValidator(double bottom, double top, int decimals, QObject *parent);

    /** Neither @p input nor @p pos is changed. */
    QValidator::State validate(QString &input, int &pos) const override;
};

#endif
