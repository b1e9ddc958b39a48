// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef DOUBLEVALIDATOR_H
#define DOUBLEVALIDATOR_H

#include <QDoubleValidator>

/**
 * Accepts only numbers within the range, with a decimal point in every locale.
 *
 * The base class accepts any text that could become a valid number, so an out-of-range one may be typed and is rejected
 * only at the end. Here the keystroke itself is rejected; the only texts to be continued are the empty text, a lone
 * decimal point and, where the range reaches below zero, a lone minus sign.
 */
class DoubleValidator : public QDoubleValidator
{
    Q_OBJECT

public:
    DoubleValidator(double bottom, double top, int decimals, QObject *parent);

    /** Does not change @p input and @p pos. */
    QValidator::State validate(QString &input, int &pos) const override;
};

#endif
