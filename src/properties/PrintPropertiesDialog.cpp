// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/PrintPropertiesDialog.h"

#include "BuildConstants.h"
#include "presets/DriverCommand.h"
#include "presets/Preset.h"
#include "presets/PresetScript.h"
#include "widgets/FormRoom.h"
#include "properties/ModelFamily.h"
#include "properties/NumberField.h"
#include "properties/Preview.h"
#include "host/PrinterProperties.h"
#include "properties/PrintPropertiesDialogPrivate.h"
#include "widgets/WheelGuard.h"

#include <QAction>
#include <QBitmap>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPixmapCache>
#include <QPrinter>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QTextDocument>
#include <QValidator>

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <utility>

namespace {

constexpr double pointsPerInch = 72.0;
constexpr ModelFamily::Inches pageSizeRange{0.2, 1200.0};
constexpr double previewSide = 1200.0; // the preview is square whatever the page size

// The fields of labels with gaps double as those of labels with marks.
struct GapFields
{
    LabelSettings::Length size;
    LabelSettings::Length offset;
};

std::optional<GapFields> gapFieldsOf(int mediaType)
{
    switch (mediaType) {
    case CupsSupport::LabelsWithGaps:
        return GapFields{&LabelSettings::gapSize, &LabelSettings::gapOffset};
    case CupsSupport::LabelsWithMarks:
        return GapFields{&LabelSettings::markSize, &LabelSettings::markOffset};
    default:
        return std::nullopt;
    }
}

// Whether the host application is set up so that the user page size always applies.
bool probeHostSettings()
{
    const QString path = qEnvironmentVariable("HOME") + QStringLiteral("/.gconf/apps/Dashvane/%gconf.xml");
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)
           && file.readAll().contains("<stringvalue>adobe</stringvalue>");
}

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

void showAll(std::initializer_list<QWidget *> widgets, bool isVisible)
{
    for (QWidget *widget : widgets)
        widget->setVisible(isVisible);
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

// Cutting the picture out of its background takes longer than loading the settings, so the result is kept.
QIcon maskedIcon()
{
    const QString file = QStringLiteral(":/b/printer.png");
    const QString key = QStringLiteral("PropertiesDialog masked ") + file;
    QPixmap icon;
    if (!QPixmapCache::find(key, &icon)) {
        icon.load(file);
        icon.setMask(icon.createHeuristicMask(true));
        QPixmapCache::insert(key, icon);
    }
    return QIcon(icon);
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
    , forceCustomStock(probeHostSettings())
    , form(*dialog, ui, driver)
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
    setWindowIcon(maskedIcon());
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
    for (QLineEdit *edit : {ui.widthEdit, ui.heightEdit, ui.gapSize, ui.gapOffset})
        edit->clear();
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
    q->on_mediaType_currentIndexChanged(cups->getCategory());
}

void PrintPropertiesDialog::Private::createPresets()
{
    presets.addPreset(new Preset(queueName, QString(), cups->cupsOptions(), QStringLiteral("<Current Settings>"),
                                 QObject::tr("This preset contains this driver's current settings."), 0));
    presets.addPreset(new Preset(queueName, QString(), QStringList(), QStringLiteral("<Default Settings>"),
                                 QObject::tr("This preset contains this driver's original default settings."), 1));
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
    showAll({ui.printMethodLabel, ui.printMethod, ui.backLabel, ui.back, ui.backUnits, ui.overlapLabel, ui.overlap,
             ui.overlapUnits, ui.start, ui.startLabel, ui.startUnits},
            false);
}

// The texts that replace the form's.
void PrintPropertiesDialog::Private::showOwnTexts()
{
    q->setWindowTitle(QObject::tr("%1 Printing Preferences").arg(printer ? printer->printerName() : QString()));
    showStopLabel();
    showGapLabels(ui.mediaType->currentIndex());
    preview->setAccessibleName(ui.previewGroupBox->title());
    ui.aboutVersionLabel->setText(PrintPropertiesDialog::tr("Version %1").arg(BuildConstants::version));
    ui.aboutDateLabel->setText(PrintPropertiesDialog::tr("%1").arg(BuildConstants::releaseDate));
}

void PrintPropertiesDialog::Private::showStopLabel()
{
    ui.stopLabel->setText(family.isOffsetGroup ? PrintPropertiesDialog::tr("Vertical Offset")
                                               : PrintPropertiesDialog::tr("Stop Position"));
}

void PrintPropertiesDialog::Private::showGapLabels(int mediaType)
{
    if (mediaType == CupsSupport::LabelsWithGaps) {
        ui.gapSizeLabel->setText(PrintPropertiesDialog::tr("Gap Size"));
        ui.gapOffsetLabel->setText(PrintPropertiesDialog::tr("Gap Offset"));
    } else if (mediaType == CupsSupport::LabelsWithMarks) {
        ui.gapSizeLabel->setText(PrintPropertiesDialog::tr("Black Mark Size"));
        ui.gapOffsetLabel->setText(PrintPropertiesDialog::tr("Black Mark Offset"));
    }
}

void PrintPropertiesDialog::Private::showWidestGapLabels()
{
    showGapLabels(CupsSupport::LabelsWithGaps);
    const QString size = ui.gapSizeLabel->text();
    const QString offset = ui.gapOffsetLabel->text();
    showGapLabels(CupsSupport::LabelsWithMarks);
    for (const auto &[label, other] : {std::pair(ui.gapSizeLabel, size), std::pair(ui.gapOffsetLabel, offset)})
        if (label->fontMetrics().horizontalAdvance(other) > label->fontMetrics().horizontalAdvance(label->text()))
            label->setText(other);
}

// The texts of screen readers for the preview and for the field whose meaning depends on the chosen radio button.
void PrintPropertiesDialog::Private::describeFields()
{
    static constexpr const char *texts[] = {
        QT_TRANSLATE_NOOP("PrintPropertiesDialog", "Orientation: %1"),
        QT_TRANSLATE_NOOP("PrintPropertiesDialog", "Orientation: %1, mirrored"),
        QT_TRANSLATE_NOOP("PrintPropertiesDialog", "Orientation: %1, negative"),
        QT_TRANSLATE_NOOP("PrintPropertiesDialog", "Orientation: %1, mirrored and negative"),
    };
    const QRadioButton *const orientations[] = {ui.portraitRadioButton, ui.landscapeRadioButton,
                                                ui.landscape180RadioButton, ui.portrait180RadioButton};
    const int effects = (preview->mirror ? 1 : 0) + (preview->negative ? 2 : 0);
    describe(preview, PrintPropertiesDialog::tr(texts[effects])
                          .arg(orientations[preview->orientation - CupsSupport::Portrait]->text()));

    const QRadioButton *const radios[] = {ui.jobStartRadioButton, ui.labelStartRadioButton, ui.labelEndRadioButton,
                                          ui.jobEndRadioButton};
    describe(ui.commandEdit, radios[commandSlot]->text());
}

// Setting a description, even to the same text, makes Qt search the disk for plug-ins.
void PrintPropertiesDialog::Private::describe(QWidget *widget, const QString &text)
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
    for (const auto &[edit, text] : pageSizeTexts())
        edit->setText(text);
    Preset *preset = presets.currentPreset();
    const QSizeF size = preset && !driver.isForeign() ? preset->getUserPageSize() : QSizeF();
    ui.stockGroupBox->setChecked(forceCustomStock || !userPageSizeOption().isEmpty()
                                 || (size.width() > 0 && size.height() > 0));
    loadedPageSize = userPageSize();
}

// In points. Our own drivers are given the size by their command.
QSizeF PrintPropertiesDialog::Private::userPageSizeOption() const
{
    return driver.kind() == DriverSettings::Kind::Own ? QSizeF() : driver.userPageSize();
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
    showOrientation(settings.orientation.value_or(CupsSupport::Landscape));
    ui.mirroredCheckBox->setChecked(settings.mirror.value_or(false));
    ui.inverseCheckBox->setChecked(settings.inverse.value_or(false));
    showStep(ui.speedSlider, ui.speedValue, settings.speed);
    showStep(ui.darknessSlider, ui.darknessValue, settings.darkness);
    const int category = settings.category ? *settings.category : -1;
    ui.mediaType->setCurrentIndex(category);
    q->on_mediaType_currentIndexChanged(category); // the index may be the one that was shown already
    ui.cut->setCurrentIndex(settings.cut                         ? ui.cut->findData(*settings.cut)
                            : driver.isLeftToPrinter("CutMedia") ? 0
                                                                 : -1);
    for (const auto &[edit, text] : numberTexts(settings))
        edit->setText(text);
    for (std::size_t slot = 0; slot < commands.size(); ++slot)
        commands[slot] = (settings.*LabelSettings::commands[slot]).value_or(QString());
    showCommand();
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
    if (const auto fields = gapFieldsOf(shownMediaType))
        texts << qMakePair(ui.gapSize, NumberField::inchesText(settings.*fields->size))
              << qMakePair(ui.gapOffset, NumberField::inchesText(settings.*fields->offset));
    return texts;
}

QList<QPair<QLineEdit *, QString>> PrintPropertiesDialog::Private::pageSizeTexts() const
{
    const QSizeF ofUser = userPageSizeOption();
    const QSizeF points = !ofUser.isEmpty() ? ofUser : cups ? QSizeF(cups->getDefaultPageSize()) : QSizeF();
    if (points.width() < 1 || points.height() < 1)
        return {};
    return {{ui.widthEdit, NumberField::inchesText(points.width() / pointsPerInch)},
            {ui.heightEdit, NumberField::inchesText(points.height() / pointsPerInch)}};
}

// A field without a number leaves its option unchanged, so it shows the option again. With other makes' drivers an
// empty field leaves the setting to the printer.
void PrintPropertiesDialog::Private::fillEmptyFields()
{
    if (!cups || driver.isForeign())
        return;
    const bool wasChanged = changed;
    for (const auto &[edit, text] : numberTexts(LabelSettings::read(*cups, driver)) + pageSizeTexts())
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
    if (ui.mediaType->currentIndex() >= 0)
        settings.category = static_cast<CupsSupport::_Category>(ui.mediaType->currentIndex());
    if (const auto fields = gapFieldsOf(ui.mediaType->currentIndex())) {
        settings.*fields->size = NumberField::number(ui.gapSize);
        settings.*fields->offset = NumberField::number(ui.gapOffset);
    }
    if (ui.cut->currentData().isValid())
        settings.cut = ui.cut->currentData().toInt();
    settings.feed = NumberField::number(ui.feed);
    settings.back = NumberField::whole(ui.back);
    settings.overlap = NumberField::whole(ui.overlap);
    settings.*family.stopField() = NumberField::number(ui.stop);
    for (std::size_t slot = 0; slot < commands.size(); ++slot)
        settings.*LabelSettings::commands[slot] = commands[slot];
    settings.offsetH = NumberField::rounded(ui.horizontalEdit);
    settings.offsetV = NumberField::rounded(ui.verticalEdit);
    return settings;
}

void PrintPropertiesDialog::Private::showOrientation(int code)
{
    switch (code) {
    case CupsSupport::Portrait:
        ui.portraitRadioButton->setChecked(true);
        break;
    case CupsSupport::ReverseLandscape:
        ui.landscape180RadioButton->setChecked(true);
        break;
    case CupsSupport::ReversePortrait:
        ui.portrait180RadioButton->setChecked(true);
        break;
    default:
        ui.landscapeRadioButton->setChecked(true);
    }
}

// ----- saving -----

void PrintPropertiesDialog::saveValues()
{
    if (d->printer)
        PrinterProperties::set(*d->printer, orientation(), d->cups);
    QStringList defaults;
    d->isSaved = true;
    if (d->cups) {
        d->isSaved = d->saveOptions();
        defaults = d->cups->ppdDefaults();
    }
    // With other makes' drivers the page size is an option, and the presets carry it as such.
    const QSizeF size = d->driver.isForeign() ? QSizeF(0.0, 0.0) : d->userPageSize();
    d->applyPageSize(size);
    if (d->changed || !d->arePresetsSaved)
        d->isSaved = d->savePresets(size, defaults) && d->isSaved;
}

bool PrintPropertiesDialog::lastSaveSucceeded() const
{
    return d->isSaved;
}

bool PrintPropertiesDialog::Private::saveOptions()
{
    storeFields();
    loaded = shown();
    loadedPageSize = userPageSize();
    const bool isStored = cups->setDests() == 0;
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
    savePageSize();
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

// Our own drivers are given the page size by their command.
void PrintPropertiesDialog::Private::savePageSize()
{
    const QSizeF size = userPageSize();
    if (driver.kind() != DriverSettings::Kind::Own && size != loadedPageSize)
        driver.setUserPageSize(size * pointsPerInch);
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

// In inches; 0 by 0 when there is none.
QSizeF PrintPropertiesDialog::Private::userPageSize() const
{
    const std::optional<double> width = NumberField::number(ui.widthEdit);
    const std::optional<double> height = NumberField::number(ui.heightEdit);
    return ui.stockGroupBox->isChecked() && width && height ? QSizeF(*width, *height) : QSizeF(0.0, 0.0);
}

void PrintPropertiesDialog::Private::applyPageSize(const QSizeF &size)
{
    Preset *preset = presets.currentPreset();
    if (!preset)
        return;
    preset->setUserPageSize(size);
    if (size.width() > 0 && size.height() > 0)
        DriverCommand::run(preset->ppdhack());
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
    if (d->ui.landscapeRadioButton->isChecked())
        return CupsSupport::Landscape;
    if (d->ui.portrait180RadioButton->isChecked())
        return CupsSupport::ReversePortrait;
    if (d->ui.landscape180RadioButton->isChecked())
        return CupsSupport::ReverseLandscape;
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
    d->describeFields();
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
    for (QWidget *widget : std::initializer_list<QWidget *>{d->ui.widthLabel, d->ui.widthEdit, d->ui.widthUnits,
                                                            d->ui.heightLabel, d->ui.heightEdit, d->ui.heightUnits})
        widget->setEnabled(bChecked);
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

// The gap fields are also the black mark fields. A change of the media type fills them from the stored options and thus
// discards what was typed into them.
void PrintPropertiesDialog::on_mediaType_currentIndexChanged(int iIndex)
{
    d->showGapFields(iIndex);
    d->showGapLabels(iIndex);
    d->showMediaRows(iIndex);
    d->shownMediaType = iIndex;
    setChanged(true);
}

void PrintPropertiesDialog::Private::showGapFields(int mediaType)
{
    const auto fields = gapFieldsOf(mediaType);
    if (!cups || !fields)
        return;
    const LabelSettings stored = LabelSettings::read(*cups, driver);
    ui.gapSize->setText(NumberField::inchesText(stored.*fields->size));
    ui.gapOffset->setText(NumberField::inchesText(stored.*fields->offset));
    loaded.*fields->size = NumberField::number(ui.gapSize);
    loaded.*fields->offset = NumberField::number(ui.gapOffset);
}

void PrintPropertiesDialog::Private::showMediaRows(int mediaType)
{
    const bool marks = mediaType == CupsSupport::LabelsWithMarks;
    const bool gaps = mediaType == CupsSupport::LabelsWithGaps;
    showAll({ui.gapSize, ui.gapSizeLabel, ui.gapSizeUnits}, gaps || marks);
    showAll({ui.gapOffset, ui.gapOffsetLabel, ui.gapOffsetUnits}, marks || (gaps && family.isOffsetGroup));
    showAll({ui.feed, ui.feedLabel, ui.feedUnits}, family.isOffsetGroup || !(gaps || marks));
}

// ----- user commands -----

// The text of the command edit. Unlike toPlainText(), this keeps no-break spaces, which would otherwise be lost from a
// stored command just by displaying it.
QString PrintPropertiesDialog::Private::commandText() const
{
    QString text = ui.commandEdit->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    return text.replace(QChar::LineSeparator, QLatin1Char('\n'));
}

void PrintPropertiesDialog::Private::showCommand()
{
    if (commandText() != commands[commandSlot])
        ui.commandEdit->setPlainText(commands[commandSlot]);
}

// The slot changes before the text: the text-changed handler then compares with the new slot's string, finds no
// difference and marks nothing changed.
void PrintPropertiesDialog::Private::selectCommand(bool isSelected, std::size_t slot)
{
    if (!isSelected)
        return;
    commandSlot = slot;
    showCommand();
    describeFields();
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
    const QString text = d->commandText();
    if (text == d->commands[d->commandSlot])
        return;
    d->commands[d->commandSlot] = text;
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
    // Numbers are not translated, and a stored one beyond the slider's range is shown unchanged.
    const QString speed = ui.speedValue->text();
    const QString darkness = ui.darknessValue->text();
    ui.retranslateUi(q);
    ui.speedValue->setText(speed);
    ui.darknessValue->setText(darkness);
    showOwnTexts();
    form.describeFields();
    describeFields();
}
