// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/DriverForm.h"

#include "cups/Rounding.h"
#include "cups/Units.h"
#include "properties/LabelSettings.h"
#include "properties/ModelFamily.h"
#include "properties/NumberField.h"
#include "properties/PrintPropertiesDialog.h"
#include "ui_PrintPropertiesDialog.h"

#include <QDialog>
#include <QLayout>
#include <QPalette>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace {

constexpr QRgb conflictColour = 0xffc01c28; // dark red; readable on light and on dark
const QString leftText = QStringLiteral("\u2013"); // instead of a number that the printer decides

struct Row
{
    const char *setting;
    std::vector<QWidget *> widgets;
};

std::vector<Row> rowsOf(const Ui_PrintPropertiesDialog &ui)
{
    return {
        {"PrintSpeed", {ui.speedSlider, ui.speedValue}},
        {"Darkness", {ui.darknessSlider, ui.darknessValue}},
        {"MirrorPrint", {ui.mirroredCheckBox}},
        {"NegativePrint", {ui.inverseCheckBox}},
        {"LabelCategory", {ui.mediaTypeLabel, ui.mediaType}},
        {"GapSize", {ui.gapSizeLabel, ui.gapSize, ui.gapSizeUnits}},
        {"MarkSize", {ui.gapSizeLabel, ui.gapSize, ui.gapSizeUnits}},
        {"MarkOffset", {ui.gapOffsetLabel, ui.gapOffset, ui.gapOffsetUnits}},
        {"GapOffset", {ui.gapOffsetLabel, ui.gapOffset, ui.gapOffsetUnits}},
        {"CutMedia", {ui.cutLabel, ui.cut}},
        {"Feed", {ui.feedLabel, ui.feed, ui.feedUnits}},
        {"Stop", {ui.stopLabel, ui.stop, ui.stopUnits}},
        {"JobStart",
         {ui.jobStartRadioButton, ui.labelStartRadioButton, ui.labelEndRadioButton, ui.jobEndRadioButton,
          ui.commandEdit}},
        {"OffsetH", {ui.horizontalLabel, ui.horizontalEdit, ui.horizontalUnits}},
        {"OffsetV", {ui.verticalLabel, ui.verticalEdit, ui.verticalUnits}},
    };
}

// Speeds may have fractions.
QString stepText(double value)
{
    const int whole = roundHalfUp(value);
    return std::abs(value - whole) < 0.05 ? QString::number(whole) : QString::number(value, 'f', 1);
}

// Number fields have their own tool tip.
void explain(QWidget *widget, const QString &text)
{
    if (auto *edit = qobject_cast<QLineEdit *>(widget))
        NumberField::setNote(edit, text);
    else
        widget->setToolTip(text);
}

QString inches(double points)
{
    return NumberField::inchesText(points / pointsPerInch);
}

} // namespace

DriverForm::DriverForm(QDialog &dialog_, Ui_PrintPropertiesDialog &ui_, const DriverSettings &driver_)
    : dialog(dialog_)
    , ui(ui_)
    , driver(driver_)
{
}

// ----- what the driver can do -----

void DriverForm::restrictFields()
{
    if (!driver.isForeign())
        return;
    for (const Row &row : rowsOf(ui))
        for (QWidget *widget : row.widgets)
            widget->setEnabled(driver.has(row.setting));
    ui.stockGroupBox->setEnabled(driver.customPageSize().has_value());
    restrictList(ui.mediaType, "LabelCategory");
    restrictList(ui.cut, "CutMedia");
    restrictEdits();
}

void DriverForm::release()
{
    clearMarks();
    for (const Row &row : rowsOf(ui)) {
        for (QWidget *widget : row.widgets) {
            widget->setEnabled(true);
            explain(widget, QString());
        }
    }
    for (QLineEdit *edit : {ui.stop, ui.verticalEdit})
        edit->setPlaceholderText(QString());
    ui.stockGroupBox->setEnabled(true);
    ui.stockGroupBox->setToolTip(QString());
    delete note;
    note = nullptr;
}

// The data of an item is our value; the item that leaves the setting to the printer has none.
void DriverForm::restrictList(QComboBox *list, const char *setting)
{
    const QSignalBlocker blocker(list);
    const std::vector<Dialect::Choice> choices = driver.choices(setting);
    for (int i = list->count() - 1; i >= 0; --i) {
        const int value = list->itemData(i).toInt();
        const auto isValue = [value](const Dialect::Choice &choice) { return choice.value == value; };
        if (std::none_of(choices.begin(), choices.end(), isValue))
            list->removeItem(i);
    }
    const QString leave = driver.leaveText(setting);
    if (!leave.isNull())
        list->insertItem(0, leave);
}

void DriverForm::restrictEdits()
{
    const std::vector<Dialect::Choice> stops = driver.choices("Stop");
    if (!stops.empty())
        NumberField::acceptInches(
            {ui.stop}, {stops.front().value / millimetresPerInch, stops.back().value / millimetresPerInch}, &dialog);
    const std::vector<Dialect::Choice> offsets = driver.choices("OffsetV");
    if (!offsets.empty())
        NumberField::acceptDots({ui.verticalEdit}, roundHalfUp(std::max(-offsets.front().value, offsets.back().value)),
                                &dialog);
    if (const auto limits = driver.customPageSize()) {
        NumberField::acceptInches({ui.widthEdit},
                                  {limits->minimum.width() / pointsPerInch, limits->maximum.width() / pointsPerInch},
                                  &dialog);
        NumberField::acceptInches({ui.heightEdit},
                                  {limits->minimum.height() / pointsPerInch, limits->maximum.height() / pointsPerInch},
                                  &dialog);
    }
}

void DriverForm::restrictSliders()
{
    restrictSlider(ui.speedSlider, "PrintSpeed");
    restrictSlider(ui.darknessSlider, "Darkness");
}

void DriverForm::restrictSlider(QSlider *slider, const char *setting)
{
    const std::vector<Dialect::Choice> choices = driver.choices(setting);
    if (!choices.empty())
        slider->setRange(roundHalfUp(choices.front().value), roundHalfUp(choices.back().value));
}

// ----- texts -----

void DriverForm::describeFields()
{
    if (driver.kind() == DriverSettings::Kind::None)
        showNote();
    if (!driver.isForeign())
        return;
    for (const Row &row : rowsOf(ui))
        if (!driver.has(row.setting))
            for (QWidget *widget : row.widgets)
                explain(widget, PrintPropertiesDialog::tr("The driver of this printer does not have this setting."));
    describeSteps();
    describeEdit(ui.stop, "Stop");
    describeEdit(ui.verticalEdit, "OffsetV");
    const auto limits = driver.customPageSize();
    ui.stockGroupBox->setToolTip(
        limits ? PrintPropertiesDialog::tr("From %1 x %2 to %3 x %4 inches.")
                     .arg(inches(limits->minimum.width()), inches(limits->minimum.height()),
                          inches(limits->maximum.width()), inches(limits->maximum.height()))
               : PrintPropertiesDialog::tr("The driver of this printer accepts only the page sizes that it lists."));
}

void DriverForm::describeSteps()
{
    describeSlider(ui.speedSlider, ui.speedValue, "PrintSpeed");
    describeSlider(ui.darknessSlider, ui.darknessValue, "Darkness");
}

void DriverForm::describeSlider(QSlider *slider, QLabel *label, const char *setting)
{
    if (!driver.isForeign() || !driver.has(setting))
        return;
    const QString text = label->text() == leftText
                             ? PrintPropertiesDialog::tr("Left to the printer (%1).").arg(driver.leaveText(setting))
                             : QString();
    slider->setToolTip(text);
    label->setToolTip(text);
}

void DriverForm::describeEdit(QLineEdit *edit, const char *setting)
{
    const QString leave = driver.leaveText(setting);
    if (leave.isNull())
        return;
    edit->setPlaceholderText(leftText);
    NumberField::setNote(edit, PrintPropertiesDialog::tr("Empty: left to the printer (%1).").arg(leave));
}

// Above everything else: the form has no row for it because most printers do not need one.
void DriverForm::showNote()
{
    if (!note) {
        note = new QLabel(&dialog);
        note->setObjectName(QStringLiteral("noLabelSettingsNote"));
        note->setWordWrap(true);
        const QMargins margins = dialog.layout()->contentsMargins();
        note->setContentsMargins(margins.left(), margins.top(), margins.right(), 0);
        dialog.layout()->setMenuBar(note);
        note->show(); // a dialog that is just being shown shows only what it had before
    }
    note->setText(PrintPropertiesDialog::tr("The driver of this printer has no label settings. Only the page size and "
                                            "the orientation take effect."));
}

// ----- values -----

void DriverForm::showSteps()
{
    if (!driver.isForeign())
        return;
    const LabelSettings usual = LabelSettings::withoutPrinter(ModelFamily::of(QString()));
    showStep(ui.speedSlider, ui.speedValue, "PrintSpeed", *usual.speed);
    showStep(ui.darknessSlider, ui.darknessValue, "Darkness", *usual.darkness);
}

void DriverForm::showStep(QSlider *slider, QLabel *label, const char *setting, int fallback)
{
    const std::optional<double> value = driver.value(setting);
    slider->setValue(value ? roundHalfUp(*value) : fallback);
    label->setText(value ? stepText(*value) : leftText);
    describeSlider(slider, label, setting);
}

// ----- conflicts -----

void DriverForm::markConflicts(const std::vector<Conflicts::Pair> &pairs)
{
    clearMarks();
    describeSteps(); // a slider may have been left to the printer when it was marked
    if (pairs.empty())
        return;
    std::vector<Row> rows = rowsOf(ui);
    rows.push_back({"PageSize", {ui.stockGroupBox}});
    for (const Conflicts::Pair &pair : pairs) {
        const QString text =
            PrintPropertiesDialog::tr("%1 and %2 cannot be used together.").arg(pair.texts[0], pair.texts[1]);
        for (const Row &row : rows) {
            const bool isPageSize = std::strcmp(row.setting, "PageSize") == 0;
            const QStringList keywords =
                isPageSize ? QStringList(QStringLiteral("PageSize")) : driver.keywords(row.setting);
            if (keywords.contains(pair.keywords[0]) || keywords.contains(pair.keywords[1]))
                for (QWidget *widget : row.widgets)
                    mark(widget, text);
        }
    }
}

// In the colour of warnings, with the tool tip and what a screen reader says.
void DriverForm::mark(QWidget *widget, const QString &text)
{
    const bool isMarked =
        std::any_of(marked.begin(), marked.end(), [widget](const Marked &known) { return known.widget == widget; });
    if (!isMarked)
        marked.push_back({widget, widget->toolTip(), widget->accessibleDescription()});
    QPalette palette = widget->palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
        for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(group, role, QColor(conflictColour));
    widget->setPalette(palette);
    const QString warning = isMarked ? widget->accessibleDescription() + QLatin1Char('\n') + text : text;
    if (auto *edit = qobject_cast<QLineEdit *>(widget))
        NumberField::setWarning(edit, warning);
    else
        widget->setToolTip(warning);
    widget->setAccessibleDescription(warning);
}

void DriverForm::clearMarks()
{
    for (const auto &[widget, toolTip, description] : std::exchange(marked, {})) {
        widget->setPalette(QPalette());
        if (auto *edit = qobject_cast<QLineEdit *>(widget))
            NumberField::setWarning(edit, QString());
        else
            widget->setToolTip(toolTip);
        widget->setAccessibleDescription(description);
    }
}

std::optional<int> DriverForm::step(const QLabel *label)
{
    bool ok = false;
    const int value = label->text().toInt(&ok);
    return ok ? std::optional<int>(value) : std::nullopt;
}

void DriverForm::leaveToPrinter(DriverSettings &changed, const LabelSettings &before, const LabelSettings &now) const
{
    if (before.stop && !now.stop)
        changed.leaveToPrinter("Stop");
    if (before.offsetV && !now.offsetV)
        changed.leaveToPrinter("OffsetV");
    if (before.cut && !now.cut)
        changed.leaveToPrinter("CutMedia");
}
