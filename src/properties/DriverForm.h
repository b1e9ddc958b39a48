// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef DRIVERFORM_H
#define DRIVERFORM_H

#include "cups/Conflicts.h"
#include "cups/DriverSettings.h"

#include <QString>

#include <optional>
#include <utility>
#include <vector>

class QComboBox;
class QDialog;
class QLabel;
class QLineEdit;
class QSlider;
class QWidget;
class Ui_PrintPropertiesDialog;
struct LabelSettings;

/**
 * Fits the properties dialog's form to a driver of another make: fields without a setting are disabled and say why,
 * ranges and lists are the driver's, and settings that are left to the printer are shown as such. For our own drivers
 * it changes nothing.
 */
class DriverForm
{
public:
    /** All of them must outlive this object. */
    DriverForm(QDialog &dialog, Ui_PrintPropertiesDialog &ui, const DriverSettings &driver);

    /** Disables the fields without counterpart, and limits lists and edits to what the driver can do. Call it once. */
    void restrictFields();

    /** Undoes all of this, before another driver is described. */
    void release();

    /** Sets the sliders' ranges. */
    void restrictSliders();

    /** Sets the tool tips and notes, in the present language. */
    void describeFields();

    /** Sets the sliders' tool tips, which say whether they are left to the printer. */
    void describeSteps();

    /** Shows the sliders' values as the driver has them: fractions, or that they are left to the printer. */
    void showSteps();

    /** Marks the fields of conflicting options, and no others. */
    void markConflicts(const std::vector<Conflicts::Pair> &pairs);

    /** The whole number that a slider's label shows; nothing for another one, or when it is left to the printer. */
    static std::optional<int> step(const QLabel *label);

    /** Leaves those settings to the printer that the user has emptied or left to it since @p before was shown. */
    void leaveToPrinter(DriverSettings &changed, const LabelSettings &before, const LabelSettings &now) const;

private:
    struct Marked
    {
        QWidget *widget;
        QString toolTip; // and the description, as they were before
        QString description;
    };

    void restrictList(QComboBox *list, const char *setting);
    void restrictEdits();
    void restrictSlider(QSlider *slider, const char *setting);
    void showStep(QSlider *slider, QLabel *label, const char *setting, int fallback);
    void describeSlider(QSlider *slider, QLabel *label, const char *setting);
    void describeEdit(QLineEdit *edit, const char *setting);
    void showNote();
    void mark(QWidget *widget, const QString &text);
    void clearMarks();

    QDialog &dialog;
    Ui_PrintPropertiesDialog &ui;
    const DriverSettings &driver;
    QLabel *note = nullptr; // owned by the dialog
    std::vector<Marked> marked;
};

#endif
