// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/PageSizeBox.h"

#include "cups/CupsSupport.h"
#include "cups/DriverSettings.h"
#include "cups/Units.h"
#include "host/HostSettings.h"
#include "properties/NumberField.h"
#include "ui_PrintPropertiesDialog.h"

#include <initializer_list>
#include <optional>

PageSizeBox::PageSizeBox(const Ui_PrintPropertiesDialog &ui_, DriverSettings &driver_)
    : ui(ui_)
    , driver(driver_)
    , isAlwaysUsed(HostSettings::alwaysUseUserPageSize())
{
}

void PageSizeBox::show(const CupsSupport *cups, const QSizeF &ofPreset)
{
    for (const auto &[edit, text] : texts(cups))
        edit->setText(text);
    ui.stockGroupBox->setChecked(isAlwaysUsed || !option().isEmpty() || !ofPreset.isEmpty());
    setUnchanged();
}

QList<QPair<QLineEdit *, QString>> PageSizeBox::texts(const CupsSupport *cups) const
{
    const QSizeF ofUser = option();
    const QSizeF points = !ofUser.isEmpty() ? ofUser : cups ? QSizeF(cups->getDefaultPageSize()) : QSizeF();
    if (points.width() < 1 || points.height() < 1)
        return {};
    return {{ui.widthEdit, NumberField::inchesText(points.width() / pointsPerInch)},
            {ui.heightEdit, NumberField::inchesText(points.height() / pointsPerInch)}};
}

QSizeF PageSizeBox::size() const
{
    const std::optional<double> width = NumberField::number(ui.widthEdit);
    const std::optional<double> height = NumberField::number(ui.heightEdit);
    return ui.stockGroupBox->isChecked() && width && height ? QSizeF(*width, *height) : QSizeF(0.0, 0.0);
}

void PageSizeBox::store()
{
    const QSizeF now = size();
    if (driver.kind() != DriverSettings::Kind::Own && now != unchanged)
        driver.setUserPageSize(now * pointsPerInch);
}

void PageSizeBox::setUnchanged()
{
    unchanged = size();
}

void PageSizeBox::setFieldsEnabled(bool isEnabled)
{
    for (QWidget *widget : std::initializer_list<QWidget *>{ui.widthLabel, ui.widthEdit, ui.widthUnits, ui.heightLabel,
                                                            ui.heightEdit, ui.heightUnits})
        widget->setEnabled(isEnabled);
}

void PageSizeBox::clearFields()
{
    ui.widthEdit->clear();
    ui.heightEdit->clear();
}

// In points.
QSizeF PageSizeBox::option() const
{
    return driver.kind() == DriverSettings::Kind::Own ? QSizeF() : driver.userPageSize();
}
