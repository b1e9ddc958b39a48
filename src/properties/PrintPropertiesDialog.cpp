// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/PrintPropertiesDialog.h"

#include "BuildConstants.h"
#include "host/PrinterProperties.h"
#include "presets/Preset.h"
#include "presets/PresetScript.h"
#include "properties/NumberField.h"
#include "properties/Preview.h"
#include "properties/PrintPropertiesDialogPrivate.h"
#include "widgets/FormRoom.h"
#include "widgets/Icons.h"
#include "widgets/WheelGuard.h"

#include <QAction>
#include <QKeyEvent>
#include <QPrinter>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QValidator>

#include <initializer_list>
#include <optional>

namespace {

constexpr ModelFamily::Inches pageSizeRange{0.2, 1200.0};
constexpr double previewSide = 1200.0; // the preview is square whatever the page size

void showStep(QSlider *slider, QLabel *label, std::optional<int> value)
{
    if (!value)
        return;
    slider->setValue(*value);
    label->setText(QString::number(*value)); // of a stored value beyond the slider's range, too
}

void setRange(QSlider *slider, const ModelFamily::Steps &range)
{
    slider->setRange(range.minimum, range.maximum);
}

// Gives the queue's presets the keywords of its driver, which must happen before any is read. Returns the queue's name.
QString withOptionNames(const QString &printerName, const DriverSettings &driver)
{
    PresetScript::setOptionNames(printerName, driver.presetKeywords());
    return printerName;
}

// A printer of another make has no family, whatever its queue name is.
const ModelFamily &familyOf(const QString &queueName, const DriverSettings &driver)
{
    return ModelFamily::of(driver.isForeign() ? QString() : queueName);
}

} // namespace

// ----- construction -----

PrintPropertiesDialog::Private::Private(PrintPropertiesDialog *dialog, QPrinter *printer_, CupsSupport *cups_)
    : q(dialog)
    , printer(printer_)
    , cups(cups_)
    , driver(*cups)
    , queueName(printer->printerName())
    , family(familyOf(queueName, driver))
    , form(*dialog, ui, driver)
    , pageSize(ui, driver)
    , media(ui, family)
    , commands(ui)
    , presets(withOptionNames(queueName, driver))
{
    createPresets();
}

PrintPropertiesDialog::PrintPropertiesDialog(QWidget *parent, QPrinter *printer, CupsSupport *cups)
    : QDialog(parent)
    , d(new Private(this, printer, cups))
{
    d->ui.setupUi(this);
    d->preview = new Preview(d->ui.frame);
    d->preview->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    d->preview->setGeometry(0, 0, d->ui.frame->width(), d->ui.frame->height());
    d->presetNote =
        d->ui.nameEdit->addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), QLineEdit::TrailingPosition);
    d->presetNote->setVisible(false);
    setResult(0);
    setWindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint
                   | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint);
    d->showOwnTexts();
    setWindowIcon(Icons::masked(QStringLiteral(":/b/printer.png")));
    d->ui.helpButton->hide();
    d->ui.tabs->setCurrentIndex(0);
    d->hideUnusedRows();
    d->fitToPrinter();
    d->makeRoom();
    new WheelGuard(this);
    d->ui.jobStartRadioButton->setChecked(true);
    setChanged(false);
}

PrintPropertiesDialog::~PrintPropertiesDialog() = default;

// The host may have selected another queue in the QPrinter and the CupsSupport since the dialog was created.
void PrintPropertiesDialog::Private::turnToPrinter()
{
    queueName = printer->printerName();
    form.release();
    driver.update();
    family = familyOf(queueName, driver);
    presets.setPrinter(withOptionNames(queueName, driver));
    arePresetsSaved = true;
    createPresets();
    // Loading may leave these fields unchanged.
    pageSize.clearFields();
    ui.gapSize->clear();
    ui.gapOffset->clear();
    showOwnTexts();
    fitToPrinter();
    makeRoom();
}

void PrintPropertiesDialog::Private::fitToPrinter()
{
    createValidators();
    fillLists();
    form.restrictFields();
    form.describeFields();
    showMediaType(cups->getCategory());
}

void PrintPropertiesDialog::Private::createValidators()
{
    qDeleteAll(q->findChildren<QValidator *>(QString(), Qt::FindDirectChildrenOnly));
    NumberField::acceptInches({ui.widthEdit, ui.heightEdit}, pageSizeRange, q);
    NumberField::acceptInches({ui.gapSize}, family.gapSize, q);
    NumberField::acceptInches({ui.gapOffset}, family.gapOffset, q);
    NumberField::acceptInches({ui.feed}, family.feed, q);
    NumberField::acceptInches({ui.stop}, family.stop, q);
    const QSizeF resolution = cups->getResolution();
    NumberField::acceptDots({ui.horizontalEdit, ui.verticalEdit}, family.offsetLimit(resolution.height()), q);
    NumberField::setResolution(ui.horizontalEdit, resolution.width());
    NumberField::setResolution(ui.verticalEdit, resolution.height());
    for (QLineEdit *edit : {ui.widthEdit, ui.heightEdit})
        edit->installEventFilter(q);
}

void PrintPropertiesDialog::Private::fillLists()
{
    const QSignalBlocker blocker(ui.mediaType); // its handler is called once everything is there
    ui.mediaType->clear();
    ui.cut->clear();
    ui.mediaType->addItems({PrintPropertiesDialog::tr("Continuous"), PrintPropertiesDialog::tr("Labels With Gaps"),
                            PrintPropertiesDialog::tr("Labels With Marks")});
    ui.cut->addItems({PrintPropertiesDialog::tr("No Cut"), PrintPropertiesDialog::tr("Cut After Job"),
                      PrintPropertiesDialog::tr("Cut After Page")});
    for (int i = 0; i < ui.mediaType->count(); ++i)
        ui.mediaType->setItemData(i, i);
    for (int i = 0; i < ui.cut->count(); ++i)
        ui.cut->setItemData(i, 2 * i);
}

// The print method and the start position are never used; backfeed and overlap are carried from load to save.
void PrintPropertiesDialog::Private::hideUnusedRows()
{
    for (QWidget *widget : std::initializer_list<QWidget *>{ui.printMethodLabel, ui.printMethod, ui.backLabel, ui.back,
                                                            ui.backUnits, ui.overlapLabel, ui.overlap, ui.overlapUnits,
                                                            ui.start, ui.startLabel, ui.startUnits})
        widget->hide();
}

// The texts that replace the form's.
void PrintPropertiesDialog::Private::showOwnTexts()
{
    q->setWindowTitle(QObject::tr("%1 Printing Preferences").arg(printer ? printer->printerName() : QString()));
    showStopLabel();
    media.showLabels();
    preview->setAccessibleName(ui.previewGroupBox->title());
    ui.aboutVersionLabel->setText(PrintPropertiesDialog::tr("Version %1").arg(BuildConstants::version));
    ui.aboutDateLabel->setText(PrintPropertiesDialog::tr("%1").arg(BuildConstants::releaseDate));
}

void PrintPropertiesDialog::Private::showStopLabel()
{
    ui.stopLabel->setText(family.isOffsetGroup ? PrintPropertiesDialog::tr("Vertical Offset")
                                               : PrintPropertiesDialog::tr("Stop Position"));
}

// What the preview shows, and which command the field holds, which is seen only from the chosen radio button.
void PrintPropertiesDialog::Private::describeForScreenReaders()
{
    static constexpr const char *texts[] = {
        QT_TRANSLATE_NOOP("PrintPropertiesDialog", "Orientation: %1"),
        QT_TRANSLATE_NOOP("PrintPropertiesDialog", "Orientation: %1, mirrored"),
        QT_TRANSLATE_NOOP("PrintPropertiesDialog", "Orientation: %1, negative"),
        QT_TRANSLATE_NOOP("PrintPropertiesDialog", "Orientation: %1, mirrored and negative"),
    };
    const int effects = (preview->mirror ? 1 : 0) + (preview->negative ? 2 : 0);
    setDescription(preview,
                   PrintPropertiesDialog::tr(texts[effects]).arg(orientationButton(preview->orientation)->text()));
    setDescription(ui.commandEdit, commands.selectedName());
}

// Setting a description, even to the same text, makes Qt search the disk for plug-ins.
void PrintPropertiesDialog::Private::setDescription(QWidget *widget, const QString &text)
{
    if (widget->accessibleDescription() != text)
        widget->setAccessibleDescription(text);
}

// ----- loading -----

void PrintPropertiesDialog::updateDialog()
{
    d->fillingFields = true;
    d->showPageSize();
    d->showFamily();
    LabelSettings settings = LabelSettings::withoutPrinter(d->family);
    if (d->printer && d->printer->pageLayout().orientation() == QPageLayout::Portrait)
        settings.orientation = CupsSupport::Portrait;
    if (d->cups)
        settings = LabelSettings::read(*d->cups, d->driver);
    updatePresets();
    d->show(settings);
    d->loaded = d->shown();
    d->hasFallbacks = d->cups && d->cups->isPpdFileOutOfReach();
    updatePreview();
    d->fillingFields = false;
    d->markConflicts();
}

void PrintPropertiesDialog::Private::showPageSize()
{
    Preset *preset = presets.currentPreset();
    // With other makes' drivers, the size is an option in presets too.
    pageSize.show(cups, preset && !driver.isForeign() ? preset->getUserPageSize() : QSizeF());
}

void PrintPropertiesDialog::Private::showFamily()
{
    setRange(ui.speedSlider, family.speed);
    setRange(ui.darknessSlider, family.darkness);
    form.restrictSliders();
    showStopLabel();
}

void PrintPropertiesDialog::Private::show(const LabelSettings &settings)
{
    orientationButton(settings.orientation.value_or(CupsSupport::Landscape))->setChecked(true);
    ui.mirroredCheckBox->setChecked(settings.mirror.value_or(false));
    ui.inverseCheckBox->setChecked(settings.inverse.value_or(false));
    showStep(ui.speedSlider, ui.speedValue, settings.speed);
    showStep(ui.darknessSlider, ui.darknessValue, settings.darkness);
    const int mediaType = settings.category ? *settings.category : MediaRows::noType;
    media.showInList(mediaType);
    showMediaType(mediaType); // the list may have shown it already, and there are types that it does not have
    ui.cut->setCurrentIndex(settings.cut                         ? ui.cut->findData(*settings.cut)
                            : driver.isLeftToPrinter("CutMedia") ? 0
                                                                 : -1);
    for (const auto &[edit, text] : numberTexts(settings))
        edit->setText(text);
    commands.show(settings);
    form.showSteps();
}

// The number fields that are filled from settings, and what they show of them.
QList<QPair<QLineEdit *, QString>> PrintPropertiesDialog::Private::numberTexts(const LabelSettings &settings) const
{
    QList<QPair<QLineEdit *, QString>> texts = {
        {ui.feed, NumberField::inchesText(settings.feed)},
        {ui.back, NumberField::wholeText(settings.back)},
        {ui.overlap, NumberField::wholeText(settings.overlap)},
        {ui.stop, NumberField::inchesText(settings.*family.stopField())},
        {ui.horizontalEdit, NumberField::wholeText(settings.offsetH)},
        {ui.verticalEdit, NumberField::wholeText(settings.offsetV)},
    };
    if (const auto gap = MediaRows::gapOf(media.shownType()))
        texts << qMakePair(ui.gapSize, NumberField::inchesText(settings.*gap->size))
              << qMakePair(ui.gapOffset, NumberField::inchesText(settings.*gap->offset));
    return texts;
}

// A field without a number leaves its option unchanged, so it shows the option again. With other makes' drivers an
// empty field leaves the setting to the printer.
void PrintPropertiesDialog::Private::fillEmptyFields()
{
    if (!cups || driver.isForeign())
        return;
    const bool wasChanged = changed;
    for (const auto &[edit, text] : numberTexts(LabelSettings::read(*cups, driver)) + pageSize.texts(cups))
        if (!NumberField::number(edit))
            edit->setText(text);
    loaded = shown();
    q->setChanged(wasChanged);
}

LabelSettings PrintPropertiesDialog::Private::shown() const
{
    LabelSettings settings;
    settings.orientation = q->cups_orientation();
    settings.mirror = ui.mirroredCheckBox->isChecked();
    settings.inverse = ui.inverseCheckBox->isChecked();
    settings.speed = driver.isForeign() ? DriverForm::step(ui.speedValue) : ui.speedSlider->value();
    settings.darkness = driver.isForeign() ? DriverForm::step(ui.darknessValue) : ui.darknessSlider->value();
    // A stored media type or cut that its list does not have is kept.
    const int mediaType = media.listedType();
    if (mediaType != MediaRows::noType)
        settings.category = static_cast<CupsSupport::_Category>(mediaType);
    if (const auto gap = MediaRows::gapOf(mediaType)) {
        settings.*gap->size = NumberField::number(ui.gapSize);
        settings.*gap->offset = NumberField::number(ui.gapOffset);
    }
    if (ui.cut->currentData().isValid())
        settings.cut = ui.cut->currentData().toInt();
    settings.feed = NumberField::number(ui.feed);
    settings.back = NumberField::whole(ui.back);
    settings.overlap = NumberField::whole(ui.overlap);
    settings.*family.stopField() = NumberField::number(ui.stop);
    commands.copyTo(settings);
    settings.offsetH = NumberField::rounded(ui.horizontalEdit);
    settings.offsetV = NumberField::rounded(ui.verticalEdit);
    return settings;
}

// The radio button of this orientation; that of landscape for any other code.
QRadioButton *PrintPropertiesDialog::Private::orientationButton(int code) const
{
    switch (code) {
    case CupsSupport::Portrait:
        return ui.portraitRadioButton;
    case CupsSupport::ReverseLandscape:
        return ui.landscape180RadioButton;
    case CupsSupport::ReversePortrait:
        return ui.portrait180RadioButton;
    default:
        return ui.landscapeRadioButton;
    }
}

// ----- saving -----

void PrintPropertiesDialog::saveValues()
{
    if (d->printer)
        PrinterProperties::set(*d->printer, orientation(), d->cups);
    QStringList defaults;
    d->isSaved = true;
    d->saveError.clear();
    if (d->cups) {
        d->isSaved = d->saveOptions();
        defaults = d->defaultsForPresets();
    }
    // With other makes' drivers the page size is an option, and the presets carry it as such.
    const QSizeF size = d->driver.isForeign() ? QSizeF(0.0, 0.0) : d->pageSize.size();
    d->applyPageSize(size);
    if (d->changed || !d->arePresetsSaved)
        d->isSaved = d->savePresets(size, defaults) && d->isSaved;
}

bool PrintPropertiesDialog::lastSaveSucceeded() const
{
    return d->isSaved;
}

QString PrintPropertiesDialog::lastSaveError() const
{
    return d->saveError;
}

bool PrintPropertiesDialog::Private::saveOptions()
{
    storeFields();
    loaded = shown();
    pageSize.setUnchanged();
    const bool isStored = cups->setDests() == 0;
    if (!isStored)
        saveError = QString::fromUtf8(CupsSupport::getCupsError()); // before the next request replaces it
    showStored();
    return isStored;
}

// Into the working copy.
void PrintPropertiesDialog::Private::storeFields()
{
    LabelSettings settings = shown();
    const LabelSettings all = settings;
    const bool isOutOfReach = hasFallbacks || cups->isPpdFileOutOfReach();
    // Without access to the PPD file, the printer's defaults cannot be distinguished from fallbacks. With another
    // make's driver, a setting that is left to the printer must not become a number, and choices are not as fine as the
    // fields.
    if (isOutOfReach || driver.isForeign())
        settings.forgetSame(loaded);
    if (!isOutOfReach)
        settings.orientation = all.orientation; // an option of the job, which no driver has a default for
    settings.write(*cups);
    form.leaveToPrinter(driver, loaded, all);
    pageSize.store();
}

// What saving would store, without storing it.
QStringList PrintPropertiesDialog::Private::optionsOfFields()
{
    const QStringList before = cups->cupsOptions();
    storeFields();
    const QStringList options = cups->cupsOptions();
    QStringList keywords;
    for (QStringList::size_type i = 0; i < options.size(); i += 2)
        keywords << options.at(i);
    cups->deleteOptions(keywords);
    cups->setOptions(before);
    for (QStringList::size_type i = 0; i + 1 < before.size(); i += 2)
        if (before.at(i + 1).isEmpty()) // which setOptions() takes for a removal
            cups->setValue(before.at(i).toLatin1().constData(), "");
    return options;
}

void PrintPropertiesDialog::Private::markConflicts()
{
    if (cups && !fillingFields && Conflicts::arePossible(*cups))
        form.markConflicts(Conflicts::among(*cups, optionsOfFields()));
}

// Another make's driver has the choice nearest to the typed size.
void PrintPropertiesDialog::Private::showStored()
{
    if (!driver.isForeign())
        return;
    const bool wasChanged = changed;
    fillingFields = true;
    showPageSize();
    show(LabelSettings::read(*cups, driver));
    loaded = shown();
    fillingFields = false;
    q->setChanged(wasChanged);
}

void PrintPropertiesDialog::setChanged(bool value)
{
    if (value)
        d->markConflicts();
    if (value == d->changed)
        return;
    d->changed = value;
    d->ui.applyButton->setEnabled(value);
}

void PrintPropertiesDialog::on_applyButton_clicked()
{
    saveValues();
    d->fillEmptyFields();
}

// The result is set after hiding: the modal loop returns it once control is back there.

void PrintPropertiesDialog::on_okButton_clicked()
{
    saveValues();
    hide();
    setResult(1);
}

void PrintPropertiesDialog::on_cancelButton_clicked()
{
    hide();
    setResult(0);
}

// ----- fields -----

bool PrintPropertiesDialog::getDouble(const QLineEdit *edit, double *out) const
{
    const std::optional<double> number = NumberField::number(edit);
    *out = number.value_or(0.0);
    return number.has_value();
}

bool PrintPropertiesDialog::getInt(const QLineEdit *edit, int *out) const
{
    const std::optional<int> number = NumberField::whole(edit);
    *out = number.value_or(0);
    return number.has_value();
}

CupsSupport::_CupsOrientation PrintPropertiesDialog::cups_orientation() const
{
    for (const auto code : {CupsSupport::Landscape, CupsSupport::ReversePortrait, CupsSupport::ReverseLandscape})
        if (d->orientationButton(code)->isChecked())
            return code;
    return CupsSupport::Portrait;
}

QPageLayout::Orientation PrintPropertiesDialog::orientation() const
{
    const CupsSupport::_CupsOrientation code = cups_orientation();
    return code == CupsSupport::Landscape || code == CupsSupport::ReverseLandscape ? QPageLayout::Landscape
                                                                                   : QPageLayout::Portrait;
}

void PrintPropertiesDialog::setOrientation(QPageLayout::Orientation orientation)
{
    const bool isLandscape = orientation == QPageLayout::Landscape;
    (isLandscape ? d->ui.landscapeRadioButton : d->ui.portraitRadioButton)->setChecked(true);
    updatePreview();
}

void PrintPropertiesDialog::updatePreview()
{
    d->preview->labelWidth = previewSide;
    d->preview->labelHeight = previewSide;
    d->preview->orientation = cups_orientation();
    d->preview->mirror = d->ui.mirroredCheckBox->isChecked();
    d->preview->negative = d->ui.inverseCheckBox->isChecked();
    d->preview->update();
    d->describeForScreenReaders();
}

void PrintPropertiesDialog::Private::previewChanged(bool isChange)
{
    if (!isChange)
        return;
    q->updatePreview();
    q->setChanged(true);
}

// A table of one-line functions.
// clang-format off
void PrintPropertiesDialog::on_portraitRadioButton_toggled(bool bChecked) { d->previewChanged(bChecked); }
void PrintPropertiesDialog::on_landscapeRadioButton_toggled(bool bChecked) { d->previewChanged(bChecked); }
void PrintPropertiesDialog::on_portrait180RadioButton_toggled(bool bChecked) { d->previewChanged(bChecked); }
void PrintPropertiesDialog::on_landscape180RadioButton_toggled(bool bChecked) { d->previewChanged(bChecked); }
void PrintPropertiesDialog::on_mirroredCheckBox_toggled(bool) { d->previewChanged(true); }
void PrintPropertiesDialog::on_inverseCheckBox_toggled(bool) { d->previewChanged(true); }
// clang-format on

void PrintPropertiesDialog::on_stockGroupBox_toggled(bool bChecked)
{
    d->pageSize.setFieldsEnabled(bChecked);
    setChanged(true);
}

void PrintPropertiesDialog::on_speedSlider_valueChanged(int iValue)
{
    d->ui.speedValue->setText(QString::number(iValue));
    d->form.describeSteps();
    setChanged(true);
}

void PrintPropertiesDialog::on_darknessSlider_valueChanged(int iValue)
{
    d->ui.darknessValue->setText(QString::number(iValue));
    d->form.describeSteps();
    setChanged(true);
}

// The values of these are read when saving.
// A table of one-line functions.
// clang-format off
void PrintPropertiesDialog::on_widthEdit_textChanged(const QString &) { setChanged(true); }
void PrintPropertiesDialog::on_heightEdit_textChanged(const QString &) { setChanged(true); }
void PrintPropertiesDialog::on_printMethod_currentIndexChanged(int) { setChanged(true); }
void PrintPropertiesDialog::on_gapSize_textChanged(const QString &) { setChanged(true); }
void PrintPropertiesDialog::on_gapOffset_textChanged(const QString &) { setChanged(true); }
void PrintPropertiesDialog::on_cut_currentIndexChanged(int) { setChanged(true); }
void PrintPropertiesDialog::on_feed_textChanged(const QString &) { setChanged(true); }
void PrintPropertiesDialog::on_back_textChanged(const QString &) { setChanged(true); }
void PrintPropertiesDialog::on_overlap_textChanged(const QString &) { setChanged(true); }
void PrintPropertiesDialog::on_stop_textChanged(const QString &) { setChanged(true); }
void PrintPropertiesDialog::on_horizontalEdit_textChanged(const QString &) { setChanged(true); }
void PrintPropertiesDialog::on_verticalEdit_textChanged(const QString &) { setChanged(true); }
// clang-format on

void PrintPropertiesDialog::on_mediaType_currentIndexChanged(int iIndex)
{
    d->showMediaType(d->media.typeAt(iIndex));
}

// Fills the gap fields from the stored options and thus discards what was typed into them for another type.
void PrintPropertiesDialog::Private::showMediaType(int type)
{
    fillGapFields(type);
    media.showRows(type);
    q->setChanged(true);
}

void PrintPropertiesDialog::Private::fillGapFields(int mediaType)
{
    const auto gap = MediaRows::gapOf(mediaType);
    if (!cups || !gap)
        return;
    const LabelSettings stored = LabelSettings::read(*cups, driver);
    ui.gapSize->setText(NumberField::inchesText(stored.*gap->size));
    ui.gapOffset->setText(NumberField::inchesText(stored.*gap->offset));
    loaded.*gap->size = NumberField::number(ui.gapSize);
    loaded.*gap->offset = NumberField::number(ui.gapOffset);
}

void PrintPropertiesDialog::Private::selectCommand(bool isSelected, std::size_t position)
{
    if (!isSelected)
        return;
    commands.select(position);
    describeForScreenReaders();
}

// A table of one-line functions.
// clang-format off
void PrintPropertiesDialog::on_jobStartRadioButton_toggled(bool bChecked) { d->selectCommand(bChecked, 0); }
void PrintPropertiesDialog::on_labelStartRadioButton_toggled(bool bChecked) { d->selectCommand(bChecked, 1); }
void PrintPropertiesDialog::on_labelEndRadioButton_toggled(bool bChecked) { d->selectCommand(bChecked, 2); }
void PrintPropertiesDialog::on_jobEndRadioButton_toggled(bool bChecked) { d->selectCommand(bChecked, 3); }
// clang-format on

void PrintPropertiesDialog::on_commandEdit_textChanged()
{
    if (d->commands.takeText())
        setChanged(true);
}

// ----- events -----

// Enter in the page size fields does not press OK or close the dialog.
bool PrintPropertiesDialog::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            return true;
    }
    return QDialog::eventFilter(object, event);
}

void PrintPropertiesDialog::showEvent(QShowEvent *event)
{
    if (event->spontaneous())
        return; // a minimised window that comes back keeps what was typed
    // The queue may have got another driver, or its PPD file may have been out of reach.
    if (d->driver.update() || d->printer->printerName() != d->queueName)
        d->turnToPrinter();
    updateDialog();
    setChanged(false);
}

void PrintPropertiesDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    const bool isOtherLanguage = event->type() == QEvent::LanguageChange;
    if (isOtherLanguage)
        d->retranslate();
    if (isOtherLanguage || FormRoom::isChangedBy(*event))
        d->makeRoom();
}

// All texts except the items of the media type and cut lists, which deliberately keep the language of the opening.
void PrintPropertiesDialog::Private::retranslate()
{
    form.markConflicts({}); // so that the texts behind the marks are translated, too
    // Numbers are not translated, and a stored one beyond the slider's range is shown unchanged.
    const QString speed = ui.speedValue->text();
    const QString darkness = ui.darknessValue->text();
    ui.retranslateUi(q);
    ui.speedValue->setText(speed);
    ui.darknessValue->setText(darkness);
    showOwnTexts();
    form.describeFields();
    describeForScreenReaders();
    markConflicts();
}
