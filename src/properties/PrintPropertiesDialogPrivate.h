// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRINTPROPERTIESDIALOGPRIVATE_H
#define PRINTPROPERTIESDIALOGPRIVATE_H

#include "cups/DriverSettings.h"
#include "presets/Presets.h"
#include "properties/DriverForm.h"
#include "properties/LabelSettings.h"
#include "properties/ModelFamily.h"
#include "properties/PrintPropertiesDialog.h"
#include "ui_PrintPropertiesDialog.h"

#include <QHash>
#include <QList>
#include <QPair>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

class Preset;
class Preview;
class QAction;
class QComboBox;
class QWidget;
struct ModelFamily;

/** The private members of the dialog, hidden so that hosts' binaries keep working when members are added. */
struct PrintPropertiesDialog::Private
{
    Private(PrintPropertiesDialog *dialog, QPrinter *printer_, CupsSupport *cups_);

    void turnToPrinter();
    void fitToPrinter();
    void createPresets();
    void createValidators();
    void fillLists();
    void hideUnusedRows();

    void makeRoom();
    QSize tightenedSize();
    QSize neededSize();
    void setTight(bool isTight);
    bool scrollPages();
    void widenFields();
    void describeFields();
    static void describe(QWidget *widget, const QString &text);
    void retranslate();
    void showOwnTexts();
    void showStopLabel();
    void showGapLabels(int mediaType);
    void showWidestGapLabels();

    void showPageSize();
    void showFamily();
    void show(const LabelSettings &settings);
    LabelSettings shown() const;
    void showStored();
    QSizeF userPageSizeOption() const;
    QList<QPair<QLineEdit *, QString>> pageSizeTexts() const;
    QList<QPair<QLineEdit *, QString>> numberTexts(const LabelSettings &settings) const;
    void fillEmptyFields();
    void showOrientation(int code);
    void showGapFields(int mediaType);
    void showMediaRows(int mediaType);
    void previewChanged(bool isChange);

    QString commandText() const;
    void showCommand();
    void selectCommand(bool isSelected, std::size_t slot);

    bool saveOptions();
    void storeFields();
    QStringList optionsOfFields();
    void markConflicts();
    QSizeF userPageSize() const;
    void savePageSize();
    void takePageSize(Preset &preset);
    void applyPageSize(const QSizeF &size);
    bool savePresets(const QSizeF &size, const QStringList &defaults);
    bool saveCurrentSettings(const QSizeF &size, const QStringList &defaults);

    int positionOf(Preset *preset, const QComboBox *list) const;
    Preset *selectedPreset() const;
    void choosePreset(int index);
    void showPresetNote(Preset *preset);
    QString settingName(const QString &keyword) const;

    PrintPropertiesDialog *const q;
    QPrinter *printer;
    CupsSupport *cups;
    DriverSettings driver;
    QString queueName; // of the printer that the form was fitted to
    ModelFamily family;
    const bool forceCustomStock; // the host is set up so that the user page size always applies
    Ui_PrintPropertiesDialog ui;
    DriverForm form;
    Presets presets;
    Preview *preview = nullptr; // goes with the frame that it is in
    QAction *presetNote = nullptr; // goes with the name field that it is in
    bool updatingPresets = false;
    bool fillingFields = true; // until they are filled for the first time
    bool changed = true;
    bool isSaved = true; // whether the last saving succeeded
    bool arePresetsSaved = true; // whether the last saving of the presets did; otherwise the next one tries again
    LabelSettings loaded; // what the fields held when they were last loaded or saved
    QSizeF loadedPageSize; // and so the user page size, in inches
    bool hasFallbacks = false; // whether the PPD file was out of reach when the fields were loaded
    std::array<QString, LabelSettings::commands.size()> commands;
    std::size_t commandSlot = commands.size() - 1; // of the command that the edit shows
    QHash<const QLineEdit *, int> statedWidths; // the largest that the form allows, which grow only where they have to
    int shownMediaType = CupsSupport::Continuous; // may be one that the list does not have
};

#endif
