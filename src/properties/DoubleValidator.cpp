// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/DoubleValidator.h"

#include <QLocale>

DoubleValidator::DoubleValidator(double bottom, double top, int decimals, QObject *parent)
    : QDoubleValidator(bottom, top, decimals, parent)
{
    // The fields have a decimal point in every locale; the base class uses the default locale, which may not accept it.
    // "1,000" could be read as 1 or 1000 and is refused.
    QLocale locale = QLocale::c();
    locale.setNumberOptions(locale.numberOptions() | QLocale::RejectGroupSeparator);
    setLocale(locale);
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
