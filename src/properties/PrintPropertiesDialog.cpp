// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/PrintPropertiesDialog.h"

#include "BuildConstants.h"
#include "cups/Rounding.h"
#include "presets/Preset.h"
#include "presets/Presets.h"
#include "presets/PresetScript.h"
#include "properties/DoubleValidator.h"
#include "properties/FormRoom.h"
#include "properties/Preview.h"
#include "ui_PrintPropertiesDialog.h"

#include <QBitmap>
#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLocale>
#include <QPixmapCache>
#include <QPrintEngine>
#include <QPrinter>
#include <QProcess>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

constexpr double millimetresPerInch = 25.4;
constexpr double pointsPerInch = 72.0;
constexpr double pageSizeBottom = 0.2; // inches
constexpr double pageSizeTop = 1200.0; // inches
constexpr int decimals = 2;
constexpr int presetsTabIndex = 1;
constexpr int builtInPresets = 2; // "<Current Settings>" and "<Default Settings>", always first in the lists
constexpr int presetListWidth = 180; // pixels; for the names of the built-in presets in a usual font
constexpr double previewSide = 1200.0; // the preview is square whatever the page size

// Every number that a line edit shows goes through this.
const QString numberFormat = QStringLiteral("%1");

struct Family
{
    QLatin1String marker;
    int number;
    bool showGapOffset;
};

// Setting a description, even to what it is, makes Qt look for plug-ins on the disk.
void describe(QWidget *widget, const QString &text)
{
    if (widget->accessibleDescription() != text)
        widget->setAccessibleDescription(text);
}

// The first marker that the printer's name contains decides.
constexpr Family families[] = {
    {QLatin1String("ORCA"), 3, true}, {QLatin1String("KERN"), 1, false}, {QLatin1String("LUMA"), 2, false},
    {QLatin1String("TIK"), 4, true},  {QLatin1String("ZED"), 5, true},
};

struct SpeedRange
{
    int minimum;
    int maximum;
};

// By family number, in inches per second.
constexpr SpeedRange speedRanges[] = {{1, 3}, {1, 3}, {2, 2}, {2, 3}, {2, 3}, {2, 5}};

// In these families the stop field is a vertical offset, the validators are tighter and the print offsets are bound by the
// resolution.
bool isOffsetGroup(int family)
{
    return family >= 3;
}

// Qt 4's names of the CUPS properties of a print engine; hosts and print engines built for them still look for these.
constexpr int cupsOptionsProperty = 0xFE00;
constexpr int cupsPageRectProperty = 0xFE01;
constexpr int cupsPaperRectProperty = 0xFE02;
constexpr int cupsPageSizeProperty = 0xFE03;

void setEngineProperty(QPrinter *printer, int key, const QVariant &value)
{
    printer->printEngine()->setProperty(static_cast<QPrintEngine::PrintEnginePropertyKey>(key), value);
}

// Whether the host application is set up so that the user page size always applies.
bool probeHostSettings()
{
    const QString path = qEnvironmentVariable("HOME") + QStringLiteral("/.gconf/apps/Dashvane/%gconf.xml");
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)
           && file.readAll().contains("<stringvalue>adobe</stringvalue>");
}

// What is no number is not shown: an empty field is skipped when saving, so that what is stored stays.
QString inchesText(double inches)
{
    return std::isfinite(inches) ? numberFormat.arg(inches, 0, 'f', decimals) : QString();
}

// Cutting the picture out of its background takes longer than loading the settings, and has the same outcome each time.
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

QLocale cLocale()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    return locale;
}

// Millimetres, to the thousandth.
double toMillimetres(double inches)
{
    return roundHalfUp(inches * millimetresPerInch * 1000) / 1000.0;
}

// What the dialog shows of the printer, with the values that stand in for a missing printer access object. The gap and mark
// fields are not among it: the media type fills them.
struct Settings
{
    int orientation = CupsSupport::Landscape;
    bool mirror = false;
    bool inverse = false;
    int speed = 2;
    int darkness = 7;
    int category = 0;
    int cut = 4;
    double feed = 0.0; // inches
    int back = 2; // dots
    int overlap = 12; // dots
    double stop = 30.0 / millimetresPerInch; // inches
    int offsetH = 0; // dots
    int offsetV = 0; // dots
};

// The driver's command that carries a user page size to the queue's PPD file.
const QString ppdhackCommand = QStringLiteral("ppdhack");
constexpr int longestLine = 1024; // bytes; what is longer is read as several lines

// The first line of a preset's script that begins with the driver's command; null when there is none.
QString ppdhackLine(const QString &scriptPath)
{
    QByteArray script = PresetScript::read(scriptPath).value_or(QByteArray());
    QBuffer lines(&script);
    lines.open(QIODevice::ReadOnly);
    while (!lines.atEnd()) {
        const QString line = QString::fromLatin1(lines.readLine(longestLine));
        if (line.startsWith(ppdhackCommand))
            return line;
    }
    return QString();
}

// A preset may come from anywhere. Its command is the driver's and no other: found on the PATH, run directly and never
// through a shell.
void runPpdhack(const QString &line)
{
    QStringList words = QProcess::splitCommand(line);
    if (!words.isEmpty() && words.takeFirst() == ppdhackCommand)
        QProcess::execute(ppdhackCommand, words);
}

} // namespace

// ----- construction -----

PrintPropertiesDialog::PrintPropertiesDialog(QWidget *parent, QPrinter *printer_, CupsSupport *cups_)
    : QDialog(parent)
    , ui(new Ui_PrintPropertiesDialog)
    , printer(printer_)
    , cups(cups_)
{
    const QString printerName = printer->printerName();
    for (const Family &family : families) {
        if (printerName.contains(family.marker)) {
            modelFamily = family.number;
            showGapOffset = family.showGapOffset;
            break;
        }
    }

    ui->setupUi(this);
    preview = new Preview(ui->frame);
    preview->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    preview->setGeometry(0, 0, ui->frame->width(), ui->frame->height());
    setResult(0);
    setWindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint
                   | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint);
    showOwnTexts();
    setWindowIcon(maskedIcon());
    ui->helpButton->hide();
    ui->tabs->setCurrentIndex(0);
    forceCustomStock = probeHostSettings();
    createPresets(printerName);
    createValidators();
    fillLists();
    hideUnusedRows();
    on_mediaType_currentIndexChanged(cups->getCategory());
    ui->jobStartRadioButton->setChecked(true);
    setChanged(false);
}

PrintPropertiesDialog::~PrintPropertiesDialog()
{
    delete preview;
    delete presets;
    delete pageSizeValidator;
    delete stopValidator;
    delete feedValidator;
    delete gapSizeValidator;
    // gapOffsetValidator goes with its parent, this dialog.
    delete ui;
}

void PrintPropertiesDialog::createPresets(const QString &printerName)
{
    presets = new Presets(printerName);
    presets->addPreset(new Preset(printerName, QString(), cups->cupsOptions(), QStringLiteral("<Current Settings>"),
                                  QObject::tr("This preset contains this driver's current settings."), 0));
    presets->addPreset(new Preset(printerName, QString(), QStringList(), QStringLiteral("<Default Settings>"),
                                  QObject::tr("This preset contains this driver's original default settings."), 1));
}

void PrintPropertiesDialog::createValidators()
{
    pageSizeValidator = new DoubleValidator(pageSizeBottom, pageSizeTop, decimals, this);
    for (QLineEdit *edit : {ui->widthEdit, ui->heightEdit}) {
        edit->setValidator(pageSizeValidator);
        edit->installEventFilter(this);
    }

    // In inches.
    if (isOffsetGroup(modelFamily)) {
        gapSizeValidator = new DoubleValidator(0, 1, decimals, this);
        gapOffsetValidator = new DoubleValidator(0, 40, decimals, this);
        feedValidator = new DoubleValidator(-1, 1, decimals, this);
        stopValidator = new DoubleValidator(-1, 1, decimals, this);
    } else {
        gapSizeValidator = new DoubleValidator(0, 1000, decimals, this);
        gapOffsetValidator = new DoubleValidator(-1000, 1000, decimals, this);
        feedValidator = new DoubleValidator(0, 1000, decimals, this);
        stopValidator = new DoubleValidator(0, 1.57, decimals, this);
    }
    ui->gapSize->setValidator(gapSizeValidator);
    ui->gapOffset->setValidator(gapOffsetValidator);
    ui->feed->setValidator(feedValidator);
    ui->stop->setValidator(stopValidator);

    // In dots.
    const int limit = isOffsetGroup(modelFamily) ? roundHalfUp(std::trunc(cups->getResolution().height())) : 100;
    for (QLineEdit *edit : {ui->horizontalEdit, ui->verticalEdit}) {
        auto *validator = new QIntValidator(-limit, limit, this);
        validator->setLocale(cLocale());
        edit->setValidator(validator);
    }
}

void PrintPropertiesDialog::fillLists()
{
    const QSignalBlocker blocker(ui->mediaType); // its handler is called once everything is there
    ui->mediaType->addItems({tr("Continuous"), tr("Labels With Gaps"), tr("Labels With Marks")});
    ui->cut->addItems({tr("No Cut"), tr("Cut After Job"), tr("Cut After Page")});
}

void PrintPropertiesDialog::hideUnusedRows()
{
    // The print method and the start position are never used; backfeed and overlap are carried from load to save.
    for (QWidget *widget : std::initializer_list<QWidget *>{
             ui->printMethodLabel, ui->printMethod, ui->backLabel, ui->back, ui->backUnits, ui->overlapLabel,
             ui->overlap, ui->overlapUnits, ui->start, ui->startLabel, ui->startUnits})
        widget->hide();
}

// The form's sizes are made for usual fonts and short words. They stay where these fit; nothing is to be cut off.
void PrintPropertiesDialog::makeRoom()
{
    widenFields();
    FormRoom::freshenSizeHints(*this);
    for (QGroupBox *box : {ui->previewGroupBox, ui->orientationGroupBox, ui->effectsGroupBox})
        box->setMinimumSize(box->minimumSize().expandedTo(box->minimumSizeHint()));
    ui->tabs->updateGeometry(); // its pages do not tell it
    const QMargins margins = layout()->contentsMargins();
    const int tabsWidth = ui->tabs->tabBar()->sizeHint().width() + margins.left() + margins.right();
    setFixedSize(size().expandedTo(minimumSizeHint()).expandedTo(QSize(tabsWidth, 0)));
}

void PrintPropertiesDialog::widenFields()
{
    const bool hasLargeFont = FormRoom::hasLargeFont(*this);
    if (hasLargeFont)
        for (QComboBox *list : {ui->preset0, ui->preset1})
            list->setMinimumWidth(presetListWidth * fontMetrics().height() / FormRoom::usualFontHeight);
    for (QLineEdit *edit : findChildren<QLineEdit *>()) {
        const int frame = edit->minimumSizeHint().width() - edit->fontMetrics().maxWidth();
        const int needed = edit->fontMetrics().horizontalAdvance(QStringLiteral("0.00")) + frame;
        if (hasLargeFont)
            edit->setMaximumWidth(std::max(needed, edit->maximumWidth()));
        edit->setMinimumWidth(std::min(needed, edit->maximumWidth()));
    }
}

// The texts that stand in place of the form's.
void PrintPropertiesDialog::showOwnTexts()
{
    setWindowTitle(QObject::tr("%1 Printing Preferences").arg(printer ? printer->printerName() : QString()));
    ui->stopLabel->setText(isOffsetGroup(modelFamily) ? tr("Vertical Offset") : tr("Stop Position"));
    showGapLabels(ui->mediaType->currentIndex());
    preview->setAccessibleName(ui->previewGroupBox->title());
    ui->aboutVersionLabel->setText(tr("Version %1").arg(BuildConstants::version));
    ui->aboutDateLabel->setText(tr("%1").arg(BuildConstants::releaseDate));
}

// What a screen reader says of the picture, and of the one field that means something else with each choice beside it.
void PrintPropertiesDialog::describeFields()
{
    static constexpr const char *texts[] = {
        QT_TR_NOOP("Orientation: %1"),
        QT_TR_NOOP("Orientation: %1, mirrored"),
        QT_TR_NOOP("Orientation: %1, negative"),
        QT_TR_NOOP("Orientation: %1, mirrored and negative"),
    };
    const QRadioButton *const orientations[] = {ui->portraitRadioButton, ui->landscapeRadioButton,
                                                ui->landscape180RadioButton, ui->portrait180RadioButton};
    const int effects = (preview->mirror ? 1 : 0) + (preview->negative ? 2 : 0);
    describe(preview, tr(texts[effects]).arg(orientations[preview->orientation - CupsSupport::Portrait]->text()));

    const QRadioButton *const commands[] = {ui->jobStartRadioButton, ui->labelStartRadioButton, ui->labelEndRadioButton,
                                            ui->jobEndRadioButton};
    describe(ui->commandEdit, commands[commandSlot]->text());
}

// ----- loading -----

void PrintPropertiesDialog::updateDialog()
{
    if (cups)
        showDefaultPageSize();
    Preset *preset = presets->currentPreset();
    const QSizeF userPageSize = preset ? preset->getUserPageSize() : QSizeF();
    ui->stockGroupBox->setChecked(forceCustomStock || (userPageSize.width() > 0 && userPageSize.height() > 0));
    showFamily();

    jobStartCommand.clear();
    labelStartCommand.clear();
    labelEndCommand.clear();
    jobEndCommand.clear();

    Settings s;
    if (isOffsetGroup(modelFamily))
        s.darkness = 8;
    if (printer && printer->pageLayout().orientation() == QPageLayout::Portrait)
        s.orientation = CupsSupport::Portrait;
    if (cups) {
        const double verticalResolution = cups->getResolution().height();
        s.orientation = cups->getOrientation();
        s.mirror = cups->getMirror();
        s.inverse = cups->getInverse();
        s.speed = cups->getSpeed();
        s.darkness = cups->getDarkness();
        s.category = cups->getCategory();
        s.cut = cups->getCut();
        s.feed = cups->getFeed() / verticalResolution;
        s.back = cups->getBack();
        s.overlap = cups->getOverlap();
        s.stop = (isOffsetGroup(modelFamily) ? cups->getShift() : cups->getStop()) / millimetresPerInch;
        jobStartCommand = cups->getJobStart();
        labelStartCommand = cups->getLabelStart();
        labelEndCommand = cups->getLabelEnd();
        jobEndCommand = cups->getJobEnd();
        s.offsetH = cups->getOffsetH();
        s.offsetV = cups->getOffsetV();
    }

    updatePresets();
    checkOrientation(s.orientation);
    ui->mirroredCheckBox->setChecked(s.mirror);
    ui->inverseCheckBox->setChecked(s.inverse);
    ui->speedSlider->setValue(s.speed);
    ui->speedValue->setText(QString::number(s.speed));
    ui->darknessSlider->setValue(s.darkness);
    ui->darknessValue->setText(QString::number(s.darkness));
    ui->mediaType->setCurrentIndex(s.category);
    on_mediaType_currentIndexChanged(s.category); // the index may be the one that was shown already
    ui->cut->setCurrentIndex(s.cut / 2);
    ui->feed->setText(inchesText(s.feed));
    ui->back->setText(numberFormat.arg(s.back));
    ui->overlap->setText(numberFormat.arg(s.overlap));
    ui->stop->setText(inchesText(s.stop));
    showCommand();
    ui->horizontalEdit->setText(numberFormat.arg(s.offsetH));
    ui->verticalEdit->setText(numberFormat.arg(s.offsetV));
    updatePreview();
}

void PrintPropertiesDialog::showDefaultPageSize()
{
    const QSize points = cups->getDefaultPageSize();
    if (points.width() < 1 || points.height() < 1)
        return;
    ui->widthEdit->setText(inchesText(points.width() / pointsPerInch));
    ui->heightEdit->setText(inchesText(points.height() / pointsPerInch));
}

void PrintPropertiesDialog::showFamily()
{
    const SpeedRange &speed = speedRanges[modelFamily];
    ui->speedSlider->setRange(speed.minimum, speed.maximum);
    ui->stopLabel->setText(isOffsetGroup(modelFamily) ? tr("Vertical Offset") : tr("Stop Position"));
    ui->darknessSlider->setRange(0, isOffsetGroup(modelFamily) ? 15 : 19);
}

void PrintPropertiesDialog::checkOrientation(int code)
{
    switch (code) {
    case CupsSupport::Portrait:
        ui->portraitRadioButton->setChecked(true);
        break;
    case CupsSupport::ReverseLandscape:
        ui->landscape180RadioButton->setChecked(true);
        break;
    case CupsSupport::ReversePortrait:
        ui->portrait180RadioButton->setChecked(true);
        break;
    default:
        ui->landscapeRadioButton->setChecked(true);
    }
}

// ----- saving -----

void PrintPropertiesDialog::saveValues()
{
    if (printer)
        savePrinter();
    QStringList defaults;
    if (cups) {
        saveOptions();
        cups->setDests();
        defaults = cups->ppdDefaults();
    }
    if (changed || cups)
        savePresets(defaults);
}

void PrintPropertiesDialog::savePrinter()
{
    printer->setPageOrientation(orientation());
    // Outside the full page mode Qt refuses margins below those that the PPD file declares.
    const bool fullPage = printer->fullPage();
    printer->setFullPage(true);
    printer->setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Point);
    printer->setFullPage(fullPage);
    if (!cups)
        return;
    const QString custom = QStringLiteral("Custom");
    setEngineProperty(printer, cupsPageSizeProperty, custom);
    // The size of the sheet as it is, whatever the orientation.
    const QSizeF points = printer->pageLayout().pageSize().size(QPageSize::Point);
    const QString pageSize =
        custom + QStringLiteral(".%1x%2").arg(points.width(), 0, 'f', decimals).arg(points.height(), 0, 'f', decimals);
    QStringList options = cups->options();
    std::replace(options.begin(), options.end(), custom, pageSize);
    setEngineProperty(printer, cupsOptionsProperty, options);
    setEngineProperty(printer, cupsPageRectProperty, cups->pageRect(pageSize.toLatin1().constData()));
    setEngineProperty(printer, cupsPaperRectProperty, cups->paperRect(pageSize.toLatin1().constData()));
}

void PrintPropertiesDialog::saveOptions()
{
    double number = 0.0;
    int integer = 0;
    cups->setOrientation(cups_orientation());
    cups->setMirror(ui->mirroredCheckBox->isChecked());
    cups->setInverse(ui->inverseCheckBox->isChecked());
    cups->setSpeed(ui->speedSlider->value());
    cups->setDarkness(ui->darknessSlider->value());
    saveMedia();
    if (ui->cut->currentIndex() >= 0)
        cups->setCut(2 * ui->cut->currentIndex());
    if (getDouble(ui->feed, &number))
        cups->setFeed(roundHalfUp(number * cups->getResolution().height()));
    if (getInt(ui->back, &integer))
        cups->setBack(integer);
    if (getInt(ui->overlap, &integer))
        cups->setOverlap(integer);
    if (getDouble(ui->stop, &number))
        isOffsetGroup(modelFamily) ? cups->setShift(toMillimetres(number)) : cups->setStop(toMillimetres(number));
    cups->setJobStart(jobStartCommand);
    cups->setLabelStart(labelStartCommand);
    cups->setLabelEnd(labelEndCommand);
    cups->setJobEnd(jobEndCommand);
    if (getDouble(ui->horizontalEdit, &number))
        cups->setOffsetH(roundHalfUp(number));
    if (getDouble(ui->verticalEdit, &number))
        cups->setOffsetV(roundHalfUp(number));
}

void PrintPropertiesDialog::saveMedia()
{
    const int category = ui->mediaType->currentIndex();
    if (category < 0)
        return; // a stored media type that the list does not have stays what it is
    cups->setCategory(static_cast<CupsSupport::_Category>(category));
    double size = 0.0;
    double offset = 0.0;
    const bool hasSize = getDouble(ui->gapSize, &size);
    const bool hasOffset = getDouble(ui->gapOffset, &offset);
    if (category == CupsSupport::LabelsWithGaps) {
        if (hasSize)
            cups->setGapSize(toMillimetres(size));
        if (hasOffset)
            cups->setGapOffset(toMillimetres(offset));
    } else if (category == CupsSupport::LabelsWithMarks) {
        if (hasSize)
            cups->setMarkSize(toMillimetres(size));
        if (hasOffset)
            cups->setMarkOffset(toMillimetres(offset));
    }
}

void PrintPropertiesDialog::savePresets(const QStringList &defaults)
{
    QSizeF userPageSize(0.0, 0.0);
    double width = 0.0;
    double height = 0.0;
    if (ui->stockGroupBox->isChecked() && getDouble(ui->widthEdit, &width) && getDouble(ui->heightEdit, &height))
        userPageSize = QSizeF(width, height);

    if (Preset *preset = presets->currentPreset()) {
        preset->setUserPageSize(userPageSize);
        if (userPageSize.width() > 0 && userPageSize.height() > 0)
            runPpdhack(preset->ppdhack());
    }

    if (!changed)
        return;
    presets->save(defaults);
    if (printer && cups) {
        // The settings last applied, to be applied again by running the script.
        Preset current(printer->printerName(), presets->currentFileName(), QStringList(), QString(), QString(), -1);
        current.clearOptions();
        current.setOptions(cups->cupsOptions());
        current.setUserPageSize(userPageSize);
        current.setState(Preset::Modified);
        current.save(defaults);
    }
    setChanged(false);
}

void PrintPropertiesDialog::setChanged(bool value)
{
    if (value == changed)
        return;
    changed = value;
    ui->applyButton->setEnabled(value);
}

void PrintPropertiesDialog::on_applyButton_clicked()
{
    saveValues();
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
    bool ok = false;
    *out = edit->text().toDouble(&ok);
    return ok;
}

bool PrintPropertiesDialog::getInt(const QLineEdit *edit, int *out) const
{
    bool ok = false;
    *out = edit->text().toInt(&ok);
    return ok;
}

CupsSupport::_CupsOrientation PrintPropertiesDialog::cups_orientation() const
{
    if (ui->landscapeRadioButton->isChecked())
        return CupsSupport::Landscape;
    if (ui->portrait180RadioButton->isChecked())
        return CupsSupport::ReversePortrait;
    if (ui->landscape180RadioButton->isChecked())
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
    (orientation == QPageLayout::Landscape ? ui->landscapeRadioButton : ui->portraitRadioButton)->setChecked(true);
    updatePreview();
}

void PrintPropertiesDialog::updatePreview()
{
    preview->labelWidth = previewSide;
    preview->labelHeight = previewSide;
    preview->orientation = cups_orientation();
    preview->mirror = ui->mirroredCheckBox->isChecked();
    preview->negative = ui->inverseCheckBox->isChecked();
    preview->update();
    describeFields();
}

void PrintPropertiesDialog::previewChanged(bool isChange)
{
    if (!isChange)
        return;
    updatePreview();
    setChanged(true);
}

// A table of one-line functions.
// clang-format off
void PrintPropertiesDialog::on_portraitRadioButton_toggled(bool bChecked) { previewChanged(bChecked); }
void PrintPropertiesDialog::on_landscapeRadioButton_toggled(bool bChecked) { previewChanged(bChecked); }
void PrintPropertiesDialog::on_portrait180RadioButton_toggled(bool bChecked) { previewChanged(bChecked); }
void PrintPropertiesDialog::on_landscape180RadioButton_toggled(bool bChecked) { previewChanged(bChecked); }
void PrintPropertiesDialog::on_mirroredCheckBox_toggled(bool) { previewChanged(true); }
void PrintPropertiesDialog::on_inverseCheckBox_toggled(bool) { previewChanged(true); }
// clang-format on

void PrintPropertiesDialog::on_stockGroupBox_toggled(bool bChecked)
{
    for (QWidget *widget : std::initializer_list<QWidget *>{ui->widthLabel, ui->widthEdit, ui->widthUnits,
                                                            ui->heightLabel, ui->heightEdit, ui->heightUnits})
        widget->setEnabled(bChecked);
    setChanged(true);
}

void PrintPropertiesDialog::on_speedSlider_valueChanged(int iValue)
{
    ui->speedValue->setText(QString::number(iValue));
    setChanged(true);
}

void PrintPropertiesDialog::on_darknessSlider_valueChanged(int iValue)
{
    ui->darknessValue->setText(QString::number(iValue));
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

// The gap fields double as the black mark fields. A change of the media type fills them from the stored options and so
// drops what was typed into them.
void PrintPropertiesDialog::on_mediaType_currentIndexChanged(int iIndex)
{
    const bool gaps = iIndex == CupsSupport::LabelsWithGaps;
    const bool marks = iIndex == CupsSupport::LabelsWithMarks;
    if (cups && (gaps || marks)) {
        const double size = gaps ? cups->getGapSize() : cups->getMarkSize();
        const double offset = gaps ? cups->getGapOffset() : cups->getMarkOffset();
        ui->gapSize->setText(inchesText(size / millimetresPerInch));
        ui->gapOffset->setText(inchesText(offset / millimetresPerInch));
    }
    showGapLabels(iIndex);

    const bool showSize = gaps || marks;
    const bool showOffset = marks || (gaps && showGapOffset);
    const bool showFeed = !showSize || isOffsetGroup(modelFamily);
    ui->gapSize->setVisible(showSize);
    ui->gapSizeLabel->setVisible(showSize);
    ui->gapSizeUnits->setVisible(showSize);
    ui->gapOffset->setVisible(showOffset);
    ui->gapOffsetLabel->setVisible(showOffset);
    ui->gapOffsetUnits->setVisible(showOffset);
    ui->feed->setVisible(showFeed);
    ui->feedLabel->setVisible(showFeed);
    ui->feedUnits->setVisible(showFeed);
    if (iIndex != fittedMediaType)
        makeRoom();
    fittedMediaType = iIndex;
    setChanged(true);
}

void PrintPropertiesDialog::showGapLabels(int mediaType)
{
    if (mediaType == CupsSupport::LabelsWithGaps) {
        ui->gapSizeLabel->setText(tr("Gap Size"));
        ui->gapOffsetLabel->setText(tr("Gap Offset"));
    } else if (mediaType == CupsSupport::LabelsWithMarks) {
        ui->gapSizeLabel->setText(tr("Black Mark Size"));
        ui->gapOffsetLabel->setText(tr("Black Mark Offset"));
    }
}

// ----- user commands -----

QString &PrintPropertiesDialog::command()
{
    QString *const commands[] = {&jobStartCommand, &labelStartCommand, &labelEndCommand, &jobEndCommand};
    return *commands[commandSlot];
}

// The text of the command edit. Unlike toPlainText() this keeps a no-break space, which would else be lost from a stored
// command by merely looking at it.
QString PrintPropertiesDialog::commandText() const
{
    QString text = ui->commandEdit->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    return text.replace(QChar::LineSeparator, QLatin1Char('\n'));
}

void PrintPropertiesDialog::showCommand()
{
    if (commandText() != command())
        ui->commandEdit->setPlainText(command());
}

// The slot changes before the text: the text-changed handler then compares with the new slot's string, finds no difference
// and marks nothing changed.
void PrintPropertiesDialog::selectCommand(bool isSelected, int slot)
{
    if (!isSelected)
        return;
    commandSlot = slot;
    showCommand();
    describeFields();
}

// A table of one-line functions.
// clang-format off
void PrintPropertiesDialog::on_jobStartRadioButton_toggled(bool bChecked) { selectCommand(bChecked, 0); }
void PrintPropertiesDialog::on_labelStartRadioButton_toggled(bool bChecked) { selectCommand(bChecked, 1); }
void PrintPropertiesDialog::on_labelEndRadioButton_toggled(bool bChecked) { selectCommand(bChecked, 2); }
void PrintPropertiesDialog::on_jobEndRadioButton_toggled(bool bChecked) { selectCommand(bChecked, 3); }
// clang-format on

void PrintPropertiesDialog::on_commandEdit_textChanged()
{
    const QString text = commandText();
    if (text == command())
        return;
    command() = text;
    setChanged(true);
}

// ----- events -----

// Enter in the page size fields neither presses OK nor closes the dialog.
bool PrintPropertiesDialog::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            return true;
    }
    return QDialog::eventFilter(object, event);
}

void PrintPropertiesDialog::showEvent(QShowEvent *)
{
    updateDialog();
    setChanged(false);
}

void PrintPropertiesDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    const bool isOtherLanguage = event->type() == QEvent::LanguageChange;
    if (isOtherLanguage)
        retranslate();
    if (isOtherLanguage || FormRoom::isChangedBy(*event))
        makeRoom();
}

// All texts but the items of the media type and cut lists, which deliberately stay those that the dialog was opened with.
void PrintPropertiesDialog::retranslate()
{
    // Numbers have no language, and a stored one beyond the slider's range is shown as it is.
    const QString speed = ui->speedValue->text();
    const QString darkness = ui->darknessValue->text();
    ui->retranslateUi(this);
    ui->speedValue->setText(speed);
    ui->darknessValue->setText(darkness);
    showOwnTexts();
    describeFields();
}

// ----- presets -----

namespace {

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
    const QStringList names = presets->getPresetNames();
    const bool refill = !shows(ui->preset0, names) || !shows(ui->preset1, names);
    if (refill) {
        const QScopedValueRollback<bool> guard(updatingPresets, true);
        for (QComboBox *list : {ui->preset0, ui->preset1}) {
            list->clear();
            list->addItems(names);
            list->setCurrentIndex(-1);
        }
    }
    updateCurrentPreset(presets->currentPreset());
    return refill;
}

bool PrintPropertiesDialog::updateCurrentPreset(Preset *preset)
{
    if (!preset) {
        for (QWidget *widget : std::initializer_list<QWidget *>{ui->nameEdit, ui->descriptionEdit,
                                                                ui->presetUpdateButton, ui->presetDeleteButton})
            widget->setEnabled(false);
        return false;
    }
    const QString name = preset->name();
    const int position0 = positionOf(name, ui->preset0);
    const int position1 = positionOf(name, ui->preset1);
    const bool moves = ui->preset0->currentIndex() != position0 || ui->preset1->currentIndex() != position1;
    if (moves) {
        const QScopedValueRollback<bool> guard(updatingPresets, true);
        ui->preset0->setCurrentIndex(position0);
        ui->preset1->setCurrentIndex(position1);
        const bool editable = position1 >= builtInPresets;
        ui->nameEdit->setEnabled(editable);
        ui->descriptionEdit->setEnabled(editable);
        ui->presetUpdateButton->setEnabled(editable && preset->index() < 0);
        ui->presetDeleteButton->setEnabled(editable && preset->index() < 0 && !protectedNames().contains(name));
    }
    ui->nameEdit->setText(name);
    ui->descriptionEdit->setPlainText(preset->description());
    return moves;
}

void PrintPropertiesDialog::setCurrentPreset(const QString &text)
{
    if (text.isEmpty())
        return;
    if (Preset *preset = presets->findPreset(text))
        setCurrentPreset(preset);
}

void PrintPropertiesDialog::setCurrentPreset(Preset *preset)
{
    if (preset == presets->currentPreset())
        return;
    presets->setCurrentPreset(preset);
    const QString line = ppdhackLine(preset->pathName());
    if (!line.isEmpty()) {
        // The command changes the PPD file at the scheduler; the next use opens it anew.
        cups->closePpdFile();
        runPpdhack(line);
    }
    setCupsOptions(preset);
    updateDialog();
    setChanged(true);
}

void PrintPropertiesDialog::setCupsOptions(Preset *preset)
{
    cups->deleteOptions(preset->getOptionNames());
    cups->setOptions(preset->options());
}

Preset *PrintPropertiesDialog::selectedPreset() const
{
    return presets->findPreset(ui->preset1->currentText());
}

void PrintPropertiesDialog::on_preset0_currentIndexChanged(int iIndex)
{
    if (!updatingPresets)
        setCurrentPreset(ui->preset0->itemText(iIndex));
}

void PrintPropertiesDialog::on_preset1_currentIndexChanged(int iIndex)
{
    if (!updatingPresets)
        setCurrentPreset(ui->preset1->itemText(iIndex));
}

void PrintPropertiesDialog::on_manageButton_clicked()
{
    ui->tabs->setCurrentIndex(presetsTabIndex);
}

void PrintPropertiesDialog::on_presetNewButton_clicked()
{
    QString fileName = QStringLiteral("Preset");
    QString name = tr("New Preset");
    for (int n = 2; presets->findPreset(fileName) || presets->findPreset(name); ++n) {
        fileName = QStringLiteral("Preset%1").arg(n);
        name = tr("New Preset %1").arg(n);
    }
    Preset *preset =
        presets->addPreset(new Preset(printer->printerName(), fileName, cups->cupsOptions(), name, QString(), -1));
    preset->setState(Preset::Modified); // to be written even where the printer has no option yet that presets carry
    updatePresets();
    setCurrentPreset(preset);
}

void PrintPropertiesDialog::on_presetUpdateButton_clicked()
{
    Preset *preset = selectedPreset();
    if (!preset)
        return;
    const bool cleared = preset->clearOptions();
    const bool set = preset->setOptions(cups->cupsOptions());
    if (cleared || set)
        setChanged(true);
}

void PrintPropertiesDialog::on_presetDeleteButton_clicked()
{
    Preset *preset = selectedPreset();
    if (!preset)
        return;
    presets->deletePreset(preset);
    updatePresets();
    setChanged(true);
}

void PrintPropertiesDialog::on_nameEdit_editingFinished()
{
    const QString name = ui->nameEdit->text();
    Preset *preset = selectedPreset();
    if (!preset || name == ui->preset1->currentText())
        return;
    preset->setName(name);
    updatePresets();
    setChanged(true);
}

void PrintPropertiesDialog::on_descriptionEdit_textChanged()
{
    const QString text = ui->descriptionEdit->toPlainText();
    Preset *preset = selectedPreset();
    if (!preset || text == preset->description())
        return;
    preset->setDescription(text);
    setChanged(true);
}
