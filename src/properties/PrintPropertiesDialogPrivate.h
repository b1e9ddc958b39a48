// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRINTPROPERTIESDIALOGPRIVATE_H
#define PRINTPROPERTIESDIALOGPRIVATE_H

#include "cups/DriverSettings.h"
#include "presets/Presets.h"
#include "properties/DriverForm.h"
#include "properties/LabelSettings.h"
#include "properties/MediaRows.h"
#include "properties/ModelFamily.h"
#include "properties/PageSizeBox.h"
#include "properties/PrintPropertiesDialog.h"
#include "properties/UserCommands.h"
#include "ui_PrintPropertiesDialog.h"

#include <QHash>
#include <QList>
#include <QPair>
#include <QSizeF>
#include <QString>
#include <QStringList>

class Preset;
class Preview;
class QAction;
class QComboBox;
class QWidget;

/** The private members of the dialog, hidden so that hosts' binaries keep working when members are added. */
struct PrintPropertiesDialog::Private
{
    Private(PrintPropertiesDialog *dialog, QPrinter *printer_, CupsSupport *cups_);

    // Construction
    void turnToPrinter();
    void fitToPrinter();
    void createValidators();
    void fillLists();
    void hideUnusedRows();

    // The size of the form: FormSize.cpp
    struct Room;
    void makeRoom();
    QSize tightenedSize();
    QSize neededSize();
    void setRoom(const Room &room);
    bool scrollPages();
    void widenFields();

    // Texts
    void describeForScreenReaders();
    static void setDescription(QWidget *widget, const QString &text);
    void retranslate();
    void showOwnTexts();
    void showStopLabel();

    // Fields
    void showPageSize();
    void showFamily();
    void show(const LabelSettings &settings);
    LabelSettings shown() const;
    void showStored();
    QList<QPair<QLineEdit *, QString>> numberTexts(const LabelSettings &settings) const;
    void fillEmptyFields();
    QRadioButton *orientationButton(int code) const;
    void showMediaType(int type);
    void fillGapFields(int mediaType);
    void previewChanged(bool isChange);
    void selectCommand(bool isSelected, std::size_t position);

    // Saving
    bool saveOptions();
    void storeFields();
    QStringList optionsOfFields();
    void markConflicts();

    // Presets: PresetsTab.cpp
    void createPresets();
    int positionOf(Preset *preset, const QComboBox *list) const;
    Preset *selectedPreset() const;
    void choosePreset(int index);
    void showPresetNote(Preset *preset);
    void apply(Preset &preset);
    void emptyCommands(const QStringList &options);
    void takePageSize(Preset &preset);
    void applyPageSize(const QSizeF &size);
    QStringList defaultsForPresets() const;
    bool savePresets(const QSizeF &size, const QStringList &defaults);
    bool saveCurrentSettings(const QSizeF &size, const QStringList &defaults);

    PrintPropertiesDialog *const q;
    QPrinter *printer;
    CupsSupport *cups;
    DriverSettings driver;
    QString queueName; // of the printer that the form was fitted to
    ModelFamily family;
    Ui_PrintPropertiesDialog ui;
    DriverForm form;
    PageSizeBox pageSize;
    MediaRows media;
    UserCommands commands;
    Presets presets;
    Preview *preview = nullptr; // owned by the frame that it is in
    QAction *presetNote = nullptr; // owned by the name field
    bool updatingPresets = false;
    bool fillingFields = true; // until they are filled for the first time
    bool changed = true;
    bool isSaved = true; // whether the last saving succeeded
    QString saveError; // of the options file, in the last saving
    bool arePresetsSaved = true; // whether the last saving of the presets did; otherwise the next one tries again
    LabelSettings loaded; // what the fields held when they were last loaded or saved
    bool hasFallbacks = false; // whether the PPD file was out of reach when the fields were loaded
    QHash<const QGroupBox *, QSize> statedSizes; // the smallest that the form allows
    QHash<const QLineEdit *, int> statedWidths; // the largest that the form allows, which grow only where they have to
};

#endif
