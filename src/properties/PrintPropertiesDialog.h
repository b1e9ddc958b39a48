// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRINTPROPERTIESDIALOG_H
#define PRINTPROPERTIESDIALOG_H

#include <PropertiesDialog/propertiesdialog_export.h>

#include <PropertiesDialog/CupsSupport.h>

#include <QDialog>
#include <QPageLayout>
#include <QString>

#include <memory>

class Preset;
class QLineEdit;
class QPrinter;

/**
 * The settings of the current label printer.
 *
 * The fields are loaded each time the dialog is shown. Apply and OK save them as the destination's options, into the
 * QPrinter and into the presets. exec() returns 1 after OK, 0 after Cancel or closing the window.
 *
 * Lengths are shown in inches; backfeed, overlap and the offsets of the Advanced tab in printer dots.
 */
class PROPERTIESDIALOG_EXPORT PrintPropertiesDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * @param parent the parent widget, or null.
     * @param printer receives the saved settings. The dialog shows the presets of the queue that is its printer name
     *        when the dialog is shown. Not owned.
     * @param cups the current printer of this object is what the dialog edits. Not owned.
     *
     * Both @p printer and @p cups must outlive the dialog.
     */
    PrintPropertiesDialog(QWidget *parent, QPrinter *printer, CupsSupport *cups);
    ~PrintPropertiesDialog() override; ///< Does not delete the objects passed to the constructor.

    /** Keeps the Enter key in the page size fields from closing the dialog. @return true for that key. */
    bool eventFilter(QObject *object, QEvent *event) override;

    /** Loads the settings of the current printer into all fields. */
    void updateDialog();

    /**
     * Saves what the fields show: into the QPrinter, the user's options file and, when there are changes, the presets.
     * A field that holds no number is skipped: its option keeps its value. While the printer's PPD file is out of
     * reach, only fields that the user changed are saved: the others may show fallback values. See lastSaveSucceeded().
     */
    void saveValues();

    /**
     * Whether the last saving, by Apply, OK or saveValues(), wrote the user's options file and the presets completely.
     * True when nothing has been saved yet. When it is false, an exec() that returned 1 did not save everything.
     */
    bool lastSaveSucceeded() const;

    /**
     * Why the last saving could not write the user's options file, as a text for the user. Later requests and savings
     * elsewhere do not change it. Empty when the file was written: if lastSaveSucceeded() is still false, a preset
     * could not be written.
     */
    QString lastSaveError() const;

    /** Sets whether there are unsaved changes, and with it whether Apply is enabled. */
    void setChanged(bool value);

    /** The orientation that the radio buttons show. */
    CupsSupport::_CupsOrientation cups_orientation() const;

    /** The same for QPrinter, which does not know the 180 degree variants. */
    QPageLayout::Orientation orientation() const;

    /** Checks the landscape or the portrait radio button, never one of the 180 degree variants. */
    void setOrientation(QPageLayout::Orientation orientation);

    /** Shows orientation and effects in the preview. */
    void updatePreview();

    /** Reads a number with a decimal point into @p out. @return false, and 0 in @p out, when @p edit holds none. */
    bool getDouble(const QLineEdit *edit, double *out) const;

    /** Reads a whole number into @p out. @return false, and 0 in @p out, when @p edit holds none. */
    bool getInt(const QLineEdit *edit, int *out) const;

    /** @name Presets */
    /** @{ */

    /** Brings both preset lists up to date. @return whether they were refilled. */
    bool updatePresets();

    /**
     * Shows @p preset in both lists, with its name and description. If it is null, nothing can be edited.
     *
     * @return whether the lists moved.
     */
    bool updateCurrentPreset(Preset *preset);

    /**
     * Makes @p preset, one of those in the lists, current, applies it to the printer's settings in memory and reloads
     * all fields. Runs the printer driver's ppdhack, and waits for it, when the preset has a page size. With null, no
     * preset is current, and the printer's settings stay.
     */
    void setCurrentPreset(Preset *preset);

    /** The same for the preset with this name or file name; an unknown or empty text does nothing. */
    void setCurrentPreset(const QString &text);

    /** Replaces the printer's options that presets carry by those of @p preset, in memory. Null does nothing. */
    void setCupsOptions(Preset *preset);

    /** @} */

protected:
    /** Loads the settings of the current printer into all fields, and counts them as unchanged. */
    void showEvent(QShowEvent *event) override;
    /** Updates the texts after a change of language, and makes room for them. */
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void on_okButton_clicked();
    void on_cancelButton_clicked();
    void on_applyButton_clicked();
    void on_stockGroupBox_toggled(bool bChecked);
    void on_widthEdit_textChanged(const QString &text);
    void on_heightEdit_textChanged(const QString &text);
    void on_portraitRadioButton_toggled(bool bChecked);
    void on_landscapeRadioButton_toggled(bool bChecked);
    void on_portrait180RadioButton_toggled(bool bChecked);
    void on_landscape180RadioButton_toggled(bool bChecked);
    void on_mirroredCheckBox_toggled(bool bChecked);
    void on_inverseCheckBox_toggled(bool bChecked);
    void on_preset0_currentIndexChanged(int iIndex);
    void on_manageButton_clicked();
    void on_speedSlider_valueChanged(int iValue);
    void on_darknessSlider_valueChanged(int iValue);
    void on_preset1_currentIndexChanged(int iIndex);
    void on_nameEdit_editingFinished();
    void on_descriptionEdit_textChanged();
    void on_presetNewButton_clicked();
    void on_presetUpdateButton_clicked();
    void on_presetDeleteButton_clicked();
    void on_printMethod_currentIndexChanged(int iIndex);
    void on_mediaType_currentIndexChanged(int iIndex);
    void on_gapSize_textChanged(const QString &text);
    void on_gapOffset_textChanged(const QString &text);
    void on_cut_currentIndexChanged(int iIndex);
    void on_feed_textChanged(const QString &text);
    void on_back_textChanged(const QString &text);
    void on_overlap_textChanged(const QString &text);
    void on_stop_textChanged(const QString &text);
    void on_jobStartRadioButton_toggled(bool bChecked);
    void on_labelStartRadioButton_toggled(bool bChecked);
    void on_labelEndRadioButton_toggled(bool bChecked);
    void on_jobEndRadioButton_toggled(bool bChecked);
    void on_commandEdit_textChanged();
    void on_horizontalEdit_textChanged(const QString &text);
    void on_verticalEdit_textChanged(const QString &text);

private:
    struct Q_DECL_HIDDEN Private;

    const std::unique_ptr<Private> d;
};

#endif
