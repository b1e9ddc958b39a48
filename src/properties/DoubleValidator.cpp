// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/DoubleValidator.h"

#include "properties/FieldLocale.h"

DoubleValidator::DoubleValidator(double bottom, double top, int decimals, QObject *parent)
    : QDoubleValidator(bottom, top, decimals, parent)
{
    setLocale(fieldLocale());
}

QValidator::State DoubleValidator::validate(QString &input, int &pos) const
{
    if (input == QLatin1String("."))
        return Intermediate;
    const State state = QDoubleValidator::validate(input, pos);
    if (input == QLatin1String("-") && bottom() < 0.0)
        return Intermediate;
    if (input.isEmpty())
        return state;
    return state == Acceptable ? Acceptable : Invalid;
}
