// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// The members of the dialog that work with presets: the Presets tab, the list on the Page Setup tab, and what saving
// writes into presets.

#include "cups/Units.h"
#include "presets/DriverCommand.h"
#include "presets/Preset.h"
#include "presets/PresetScript.h"
#include "properties/PrintPropertiesDialogPrivate.h"

#include <QAction>
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

} // namespace

void PrintPropertiesDialog::Private::createPresets()
{
    presets.addPreset(new Preset(queueName, QString(), cups->cupsOptions(), QStringLiteral("<Current Settings>"),
                                 QObject::tr("This preset contains this driver's current settings."), 0));
    presets.addPreset(new Preset(queueName, QString(), QStringList(), QStringLiteral("<Default Settings>"),
                                 QObject::tr("This preset contains this driver's original default settings."), 1));
}

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

// By identity, because two presets may have the same name. A preset of another collection is found by its name. The
// first entry stands for a preset that is not in the list.
int PrintPropertiesDialog::Private::positionOf(Preset *preset, const QComboBox *list) const
{
    const auto own = static_cast<int>(presets.listedPresets().indexOf(preset));
    if (own >= 0)
        return own < list->count() ? own : 0;
    return std::max(0, list->findText(preset->name(), Qt::MatchExactly | Qt::MatchCaseSensitive));
}

bool PrintPropertiesDialog::updateCurrentPreset(Preset *preset)
{
    d->showPresetNote(preset);
    if (!preset) {
        for (QWidget *widget : std::initializer_list<QWidget *>{d->ui.nameEdit, d->ui.descriptionEdit,
                                                                d->ui.presetUpdateButton, d->ui.presetDeleteButton})
            widget->setEnabled(false);
        return false;
    }
    const QString name = preset->name();
    const int position0 = d->positionOf(preset, d->ui.preset0);
    const int position1 = d->positionOf(preset, d->ui.preset1);
    const bool moves = d->ui.preset0->currentIndex() != position0 || d->ui.preset1->currentIndex() != position1;
    const QScopedValueRollback<bool> guard(d->updatingPresets, true);
    if (moves) {
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
    if (preset)
        d->apply(*preset);
    updateDialog();
    setChanged(true);
}

void PrintPropertiesDialog::Private::apply(Preset &preset)
{
    // The supported drivers of other makes have no such command; their presets contain the page size as an option. And a
    // script in place of a preset that has not been written belongs to another program.
    const bool hasCommand = !driver.isForeign() && !preset.isNew();
    const QString line = hasCommand ? DriverCommand::lineIn(preset.pathName()) : QString();
    if (!line.isEmpty()) {
        // The command changes the PPD file at the scheduler; the next use opens it again.
        cups->closePpdFile();
        DriverCommand::run(line);
    }
    q->setCupsOptions(&preset);
    takePageSize(preset);
}

void PrintPropertiesDialog::setCupsOptions(Preset *preset)
{
    if (!preset)
        return;
    const QStringList options = preset->options();
    d->cups->deleteOptions(preset->getOptionNames());
    d->cups->setOptions(options);
    d->emptyCommands(options);
}

// setOptions() takes an empty value for a removal, but an empty command can stand for a default that the PPD file
// declares.
void PrintPropertiesDialog::Private::emptyCommands(const QStringList &options)
{
    for (const char *keyword : UserCommands::keywords) {
        const auto index = PresetScript::valueIndex(options, QLatin1String(keyword));
        if (index < 0 || !options.at(index).isEmpty())
            continue;
        const char *byDefault = cups->getDefaultValue(keyword);
        if (byDefault ? *byDefault != '\0' : cups->isPpdFileOutOfReach())
            cups->setValue(keyword, "");
    }
}

// A driver without label settings has no command either, and no list of its own in the presets.
void PrintPropertiesDialog::Private::takePageSize(Preset &preset)
{
    const QSizeF size = preset.getUserPageSize();
    const bool isCurrent = preset.index() == 0;
    if (driver.kind() == DriverSettings::Kind::None && !(isCurrent && size.isEmpty()))
        driver.setUserPageSize(size.isEmpty() ? QSizeF() : size * pointsPerInch);
}

// The preset that the tab's list shows.
Preset *PrintPropertiesDialog::Private::selectedPreset() const
{
    Preset *preset = presets.listedPresets().value(ui.preset1->currentIndex());
    return preset && preset->name() == ui.preset1->currentText() ? preset : nullptr;
}

void PrintPropertiesDialog::Private::choosePreset(int index)
{
    Preset *preset = presets.listedPresets().value(index);
    if (preset && !updatingPresets)
        q->setCurrentPreset(preset);
}

void PrintPropertiesDialog::on_preset0_currentIndexChanged(int iIndex)
{
    d->choosePreset(iIndex);
}

void PrintPropertiesDialog::on_preset1_currentIndexChanged(int iIndex)
{
    d->choosePreset(iIndex);
}

// Warns of values of the printer that the preset would not restore because its script cannot hold them.
void PrintPropertiesDialog::Private::showPresetNote(Preset *preset)
{
    QStringList names;
    if (preset && cups) {
        const QStringList keywords = preset->valuesNotHeld(cups->cupsOptions(), cups->ppdDefaults());
        for (const QString &keyword : keywords) {
            const QString command = commands.name(keyword); // only user commands can contain any text
            names << (command.isNull() ? keyword : command);
        }
    }
    const QString note = names.isEmpty() ? QString()
                                         : PrintPropertiesDialog::tr(
                                               "This preset cannot hold the printer's present settings: %1. Choosing "
                                               "it would change them.")
                                               .arg(names.join(QLatin1String(", ")));
    presetNote->setVisible(!note.isEmpty());
    presetNote->setToolTip(note);
    ui.preset1->setToolTip(note);
    setDescription(ui.preset1, note);
}

void PrintPropertiesDialog::on_manageButton_clicked()
{
    d->ui.tabs->setCurrentIndex(presetsTabIndex);
}

void PrintPropertiesDialog::on_presetNewButton_clicked()
{
    QString fileName = QStringLiteral("Preset");
    QString name = tr("New Preset");
    for (int n = 2;
         d->presets.isFileNameTaken(fileName) || d->presets.findPreset(fileName) || d->presets.findPreset(name); ++n) {
        fileName = QStringLiteral("Preset%1").arg(n);
        name = tr("New Preset %1").arg(n);
    }
    Preset *preset = d->presets.addPreset(
        new Preset(d->printer->printerName(), fileName, d->cups->cupsOptions(), name, QString(), -1));
    preset->setNew(); // written even if the printer has no options for presets yet
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
    d->showPresetNote(preset);
}

void PrintPropertiesDialog::on_presetDeleteButton_clicked()
{
    Preset *preset = d->selectedPreset();
    if (!preset)
        return;
    d->presets.deletePreset(preset);
    d->presets.dropMissing();
    updatePresets();
    setChanged(true);
}

void PrintPropertiesDialog::on_nameEdit_editingFinished()
{
    const QString name = d->ui.nameEdit->text();
    Preset *preset = d->selectedPreset();
    if (!preset || name == preset->name())
        return;
    preset->setName(name);
    updatePresets();
    setChanged(true);
}

void PrintPropertiesDialog::on_descriptionEdit_textChanged()
{
    const QString text = d->ui.descriptionEdit->toPlainText();
    Preset *preset = d->selectedPreset();
    if (!preset || d->updatingPresets || text == preset->description())
        return;
    preset->setDescription(text);
    setChanged(true);
}

// ----- saving -----

void PrintPropertiesDialog::Private::applyPageSize(const QSizeF &size)
{
    Preset *preset = presets.currentPreset();
    if (!preset)
        return;
    preset->setUserPageSize(size);
    if (size.width() > 0 && size.height() > 0)
        DriverCommand::run(preset->ppdhack());
}

// While the PPD file is out of reach, the defaults are not known. An option without a value still has its default, and
// the scripts must restore it.
QStringList PrintPropertiesDialog::Private::defaultsForPresets() const
{
    QStringList defaults = cups->ppdDefaults();
    if (cups->isPpdFileOutOfReach())
        for (const QString &keyword : PresetScript::optionNames(queueName))
            defaults << keyword << QString();
    return defaults;
}

bool PrintPropertiesDialog::Private::savePresets(const QSizeF &size, const QStringList &defaults)
{
    presets.dropMissing();
    const bool areSaved = presets.save(defaults);
    const bool isCurrentSaved = !printer || !cups || saveCurrentSettings(size, defaults);
    q->setChanged(false);
    arePresetsSaved = areSaved && isCurrentSaved;
    return arePresetsSaved;
}

// The settings last applied, to be applied again by running the script.
bool PrintPropertiesDialog::Private::saveCurrentSettings(const QSizeF &size, const QStringList &defaults)
{
    Preset current(printer->printerName(), presets.currentFileName(), QStringList(), QString(), QString(), -1);
    current.clearOptions();
    current.setOptions(cups->cupsOptions());
    current.setUserPageSize(size);
    current.setState(Preset::Modified);
    return current.save(defaults);
}
