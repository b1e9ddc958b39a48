// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// The members of the dialog that work with presets: the Presets tab, and the list on the Page Setup tab.

#include "presets/DriverCommand.h"
#include "presets/Preset.h"
#include "properties/PrintPropertiesDialogPrivate.h"

#include <QPrinter>
#include <QScopedValueRollback>

#include <algorithm>
#include <initializer_list>

namespace {

constexpr int presetsTabIndex = 1;
constexpr int builtInPresets = 2; // "<Current Settings>" and "<Default Settings>", always first in the lists

// Presets that are kept for users who rely on their names.
const QStringList &protectedNames()
{
    static const QStringList names = {QStringLiteral("Custom 1"), QStringLiteral("Custom 2"),
                                      QStringLiteral("Custom 3")};
    return names;
}

bool shows(const QComboBox *list, const QStringList &names)
{
    if (list->count() != names.size())
        return false;
    for (int i = 0; i < list->count(); ++i)
        if (list->itemText(i) != names.at(i))
            return false;
    return true;
}

// A name that a list does not have counts as its first.
int positionOf(const QString &name, const QComboBox *list)
{
    return std::max(0, list->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

} // namespace

bool PrintPropertiesDialog::updatePresets()
{
    const QStringList names = d->presets.getPresetNames();
    const bool refill = !shows(d->ui.preset0, names) || !shows(d->ui.preset1, names);
    if (refill) {
        const QScopedValueRollback<bool> guard(d->updatingPresets, true);
        for (QComboBox *list : {d->ui.preset0, d->ui.preset1}) {
            list->clear();
            list->addItems(names);
            list->setCurrentIndex(-1);
        }
    }
    updateCurrentPreset(d->presets.currentPreset());
    return refill;
}

bool PrintPropertiesDialog::updateCurrentPreset(Preset *preset)
{
    if (!preset) {
        for (QWidget *widget : std::initializer_list<QWidget *>{d->ui.nameEdit, d->ui.descriptionEdit,
                                                                d->ui.presetUpdateButton, d->ui.presetDeleteButton})
            widget->setEnabled(false);
        return false;
    }
    const QString name = preset->name();
    const int position0 = positionOf(name, d->ui.preset0);
    const int position1 = positionOf(name, d->ui.preset1);
    const bool moves = d->ui.preset0->currentIndex() != position0 || d->ui.preset1->currentIndex() != position1;
    if (moves) {
        const QScopedValueRollback<bool> guard(d->updatingPresets, true);
        d->ui.preset0->setCurrentIndex(position0);
        d->ui.preset1->setCurrentIndex(position1);
        const bool editable = position1 >= builtInPresets;
        d->ui.nameEdit->setEnabled(editable);
        d->ui.descriptionEdit->setEnabled(editable);
        d->ui.presetUpdateButton->setEnabled(editable && preset->index() < 0);
        d->ui.presetDeleteButton->setEnabled(editable && preset->index() < 0 && !protectedNames().contains(name));
    }
    d->ui.nameEdit->setText(name);
    d->ui.descriptionEdit->setPlainText(preset->description());
    return moves;
}

void PrintPropertiesDialog::setCurrentPreset(const QString &text)
{
    if (text.isEmpty())
        return;
    if (Preset *preset = d->presets.findPreset(text))
        setCurrentPreset(preset);
}

void PrintPropertiesDialog::setCurrentPreset(Preset *preset)
{
    if (preset == d->presets.currentPreset())
        return;
    d->presets.setCurrentPreset(preset);
    const QString line = DriverCommand::lineIn(preset->pathName());
    if (!line.isEmpty()) {
        // The command changes the PPD file at the scheduler; the next use opens it anew.
        d->cups->closePpdFile();
        DriverCommand::run(line);
    }
    setCupsOptions(preset);
    updateDialog();
    setChanged(true);
}

void PrintPropertiesDialog::setCupsOptions(Preset *preset)
{
    d->cups->deleteOptions(preset->getOptionNames());
    d->cups->setOptions(preset->options());
}

Preset *PrintPropertiesDialog::Private::selectedPreset() const
{
    return presets.findPreset(ui.preset1->currentText());
}

void PrintPropertiesDialog::on_preset0_currentIndexChanged(int iIndex)
{
    if (!d->updatingPresets)
        setCurrentPreset(d->ui.preset0->itemText(iIndex));
}

void PrintPropertiesDialog::on_preset1_currentIndexChanged(int iIndex)
{
    if (!d->updatingPresets)
        setCurrentPreset(d->ui.preset1->itemText(iIndex));
}

void PrintPropertiesDialog::on_manageButton_clicked()
{
    d->ui.tabs->setCurrentIndex(presetsTabIndex);
}

void PrintPropertiesDialog::on_presetNewButton_clicked()
{
    QString fileName = QStringLiteral("Preset");
    QString name = tr("New Preset");
    for (int n = 2; d->presets.findPreset(fileName) || d->presets.findPreset(name); ++n) {
        fileName = QStringLiteral("Preset%1").arg(n);
        name = tr("New Preset %1").arg(n);
    }
    Preset *preset = d->presets.addPreset(
        new Preset(d->printer->printerName(), fileName, d->cups->cupsOptions(), name, QString(), -1));
    preset->setState(Preset::Modified); // to be written even where the printer has no option yet that presets carry
    updatePresets();
    setCurrentPreset(preset);
}

void PrintPropertiesDialog::on_presetUpdateButton_clicked()
{
    Preset *preset = d->selectedPreset();
    if (!preset)
        return;
    const bool cleared = preset->clearOptions();
    const bool set = preset->setOptions(d->cups->cupsOptions());
    if (cleared || set)
        setChanged(true);
}

void PrintPropertiesDialog::on_presetDeleteButton_clicked()
{
    Preset *preset = d->selectedPreset();
    if (!preset)
        return;
    d->presets.deletePreset(preset);
    updatePresets();
    setChanged(true);
}

void PrintPropertiesDialog::on_nameEdit_editingFinished()
{
    const QString name = d->ui.nameEdit->text();
    Preset *preset = d->selectedPreset();
    if (!preset || name == d->ui.preset1->currentText())
        return;
    preset->setName(name);
    updatePresets();
    setChanged(true);
}

void PrintPropertiesDialog::on_descriptionEdit_textChanged()
{
    const QString text = d->ui.descriptionEdit->toPlainText();
    Preset *preset = d->selectedPreset();
    if (!preset || text == preset->description())
        return;
    preset->setDescription(text);
    setChanged(true);
}
