// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FIELDLOCALE_H
#define FIELDLOCALE_H

#include <QLocale>

/**
 * The locale of the validators of number fields, which would otherwise take the default locale: numbers have a decimal
 * point, and "1,000", which could be 1 or 1000, is refused.
 */
inline QLocale fieldLocale()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(locale.numberOptions() | QLocale::RejectGroupSeparator);
    return locale;
}

#endif
