// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/NumberField.h"

#include "cups/Rounding.h"
#include "properties/DoubleValidator.h"

#include <QIntValidator>
#include <QLineEdit>
#include <QLocale>

namespace {

constexpr int decimals = 2;

// Every number that a line edit shows goes through this.
const QString numberFormat = QStringLiteral("%1");

QLocale cLocale()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    return locale;
}

} // namespace

void NumberField::acceptInches(std::initializer_list<QLineEdit *> edits, const ModelFamily::Inches &range,
                               QObject *parent)
{
    auto *validator = new DoubleValidator(range.bottom, range.top, decimals, parent);
    for (QLineEdit *edit : edits)
        edit->setValidator(validator);
}

void NumberField::acceptDots(std::initializer_list<QLineEdit *> edits, int limit, QObject *parent)
{
    auto *validator = new QIntValidator(-limit, limit, parent);
    validator->setLocale(cLocale());
    for (QLineEdit *edit : edits)
        edit->setValidator(validator);
}

QString NumberField::inchesText(std::optional<double> inches)
{
    return inches ? numberFormat.arg(*inches, 0, 'f', decimals) : QString();
}

QString NumberField::wholeText(std::optional<int> number)
{
    return number ? numberFormat.arg(*number) : QString();
}

std::optional<double> NumberField::number(const QLineEdit *edit)
{
    bool ok = false;
    const double value = edit->text().toDouble(&ok);
    return ok ? std::optional<double>(value) : std::nullopt;
}

std::optional<int> NumberField::whole(const QLineEdit *edit)
{
    bool ok = false;
    const int value = edit->text().toInt(&ok);
    return ok ? std::optional<int>(value) : std::nullopt;
}

std::optional<int> NumberField::rounded(const QLineEdit *edit)
{
    const std::optional<double> value = number(edit);
    return value ? std::optional<int>(roundHalfUp(*value)) : std::nullopt;
}
