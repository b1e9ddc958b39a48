// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "printdialog/PrintDialog.h"

#include "cups/CupsSupport.h"
#include "cups/Scheduler.h"
#include "properties/FormRoom.h"
#include "ui_PrintDialog.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QMessageBox>
#include <QPixmapCache>
#include <QPrinter>
#include <QStyle>

#include <algorithm>
#include <initializer_list>

namespace {

constexpr int maximumCopies = 100;

// The forms' sizes, and the place of all that the full one shows: for usual fonts and short words.
constexpr QSize shortFormSize(380, 110);
constexpr QSize fullFormSize(462, 291);
constexpr QRect fullFormPlace(10, 10, 326, 290);

// What there is at least to be room for in the printer list and beside the labels, in characters.
constexpr int shownCharacters = 14;

// The result that tells exec2() to run the properties dialog.
constexpr int propertiesWanted = -1;

// The only make and model for which printing to a file is offered.
QString printToFileModel()
{
    return QStringLiteral("Quillon Vantry");
}

// The IPP "printer-state" in words, deliberately not translated; beyond the three states of IPP it is "Invalid".
QString stateText(int state)
{
    switch (state) {
    case 3:
        return QStringLiteral("Idle");
    case 4:
        return QStringLiteral("Printing");
    case 5:
        return QStringLiteral("Stopped");
    default:
        return QStringLiteral("Invalid");
    }
}

// What the user reads of a printer's state: the state and, where the scheduler names any, the reasons for it.
QString statusText(const CupsSupport &cups, int index)
{
    const QString state = stateText(QString::fromLatin1(cups.getValue("printer-state", index)).toInt());
    const QString reasons = QString::fromLatin1(cups.getValue("printer-state-reasons", index));
    if (reasons.isEmpty() || reasons == QLatin1String("none"))
        return state;
    return state + QLatin1String(": ") + reasons;
}

// Shows a text of the scheduler, which is never rich text. What the fixed width cuts off is in the tool tip.
void showText(QLabel *label, const QString &text)
{
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setToolTip(text.isEmpty() ? QString() : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped()));
}

// Gives the button the style's icon. In the one size that it shows, and kept for as long as nothing about it changes:
// without an icon theme, styles decode theirs from files in all sizes, which would be a quarter of what an opening takes.
void showStyleIcon(QAbstractButton *button, QStyle::StandardPixmap icon)
{
    const QStyle *style = button->style();
    const QString key = QStringLiteral("PropertiesDialog %1 %2 %3 %4 %5 %6")
                            .arg(QLatin1String(style->metaObject()->className()), QIcon::themeName())
                            .arg(icon)
                            .arg(button->iconSize().width())
                            .arg(qApp->devicePixelRatio())
                            .arg(QGuiApplication::palette().cacheKey());
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = style->standardIcon(icon).pixmap(button->iconSize());
        QPixmapCache::insert(key, pixmap);
    }
    button->setIcon(QIcon(pixmap));
}

} // namespace

PrintDialog::PrintDialog(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint)
    , ui(new Ui_PrintDialog)
{
    ui->setupUi(this);
    ui->stackedWidget->setCurrentWidget(ui->page_Simple);
    showStyleIcon(ui->yesButton, QStyle::SP_DialogYesButton);
    showStyleIcon(ui->noButton, QStyle::SP_DialogNoButton);
    ui->yesButton->setDefault(true); // else Qt would give Enter to Properties
    ui->numCopies->setRange(1, maximumCopies);
    setNumCopies(1);
    makeRoom();
}

PrintDialog::PrintDialog(QWidget *parent, QPrinter *hostPrinter, CupsSupport *cupsSupport)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint)
    , ui(new Ui_PrintDialog)
    , printer(hostPrinter)
    , cups(cupsSupport)
{
    ui->setupUi(this);
    ui->stackedWidget->setCurrentWidget(ui->page_SelectPrinter);
    showStyleIcon(ui->yesButton_2, QStyle::SP_DialogYesButton);
    showStyleIcon(ui->noButton_2, QStyle::SP_DialogNoButton);
    ui->yesButton_2->setDefault(true);
    // The box that this form shows is numCopies_2, and its minimum lifts it to 1. numCopies() and setNumCopies() are
    // about the other form's box here as well: hosts count on setNumCopies() not touching what the user sees.
    ui->numCopies_2->setRange(1, maximumCopies);
    setNumCopies(1);
    ui->cboPrinterName->setEditable(false);
    updateForm();
    makeRoom();
    connect(ui->chkPrintToFile, &QCheckBox::clicked, this, &PrintDialog::chk_printToFile_changed_state);
    connect(ui->chkDefaultPrinter, &QCheckBox::clicked, this, &PrintDialog::chk_chkDefaultPrinter_changed_state);
    connect(ui->cboPrinterName, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &PrintDialog::cbo_Printers_change);
}

PrintDialog::~PrintDialog()
{
    delete ui;
}

void PrintDialog::setText(const QString &text)
{
    questionIsHosts = true;
    ui->textLabel->setText(text);
}

void PrintDialog::setPrintToFileEnabled(bool enabled)
{
    // The negation is what hosts rely on.
    ui->chkPrintToFile->setEnabled(!enabled);
}

bool PrintDialog::printToFile() const
{
    return ui->chkPrintToFile->isChecked();
}

int PrintDialog::numCopies() const
{
    return ui->numCopies->value();
}

void PrintDialog::setNumCopies(int copies)
{
    ui->numCopies->setValue(copies);
}

int PrintDialog::exec2(QDialog &propertiesDialog)
{
    int result = exec();
    while (result < 0) {
        propertiesDialog.exec();
        result = exec();
    }
    return result;
}

void PrintDialog::updateForm()
{
    ui->chkDefaultPrinter->setChecked(false);
    ui->chkPrintToFile->setChecked(false);
    ui->chkPrintToFile->setEnabled(true);
    ui->cboPrinterName->setEnabled(true);
    ui->numCopies_2->setEnabled(true);

    printers.clear();
    ui->cboPrinterName->clear();
    for (const PrinterItem &item : readPrinters()) {
        printers.append(item);
        ui->cboPrinterName->addItem(item.name);
    }

    initialIndex = cups->getCurrentIndex();
    currentMoved = false;
    ui->cboPrinterName->setCurrentIndex(initialIndex);
    updateLabels(initialIndex);
}

void PrintDialog::updateLabels(int index)
{
    if (index < 0 || index >= printers.size())
        return;
    showPrinterTexts(printers.at(index));
    ui->cboPrinterName->setEditText(printers.at(index).name);
    ui->chkPrintToFile->setEnabled(printers.at(index).type == printToFileModel());
}

void PrintDialog::reject()
{
    restoreCurrentPrinter();
    QDialog::reject();
}

void PrintDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (FormRoom::isChangedBy(*event))
        makeRoom();
    if (event->type() != QEvent::LanguageChange)
        return;
    const QString question = ui->textLabel->text();
    ui->retranslateUi(this);
    if (questionIsHosts)
        ui->textLabel->setText(question);
    // The texts alone: whether "Print to file" is enabled may be the host's choice and does not depend on the language.
    const int index = ui->cboPrinterName->currentIndex();
    if (index >= 0)
        showPrinterTexts(printers.at(index));
    makeRoom();
}

void PrintDialog::on_propertiesButton_clicked()
{
    done(propertiesWanted);
}

void PrintDialog::on_propertiesButton_2_clicked()
{
    done(propertiesWanted);
}

void PrintDialog::on_yesButton_2_clicked()
{
    const int index = ui->cboPrinterName->currentIndex();
    // Without any printer there is none to change to either.
    if (index == initialIndex || index < 0) {
        restoreCurrentPrinter();
        accept();
        return;
    }
    const QString question =
        tr("Do you want to change the current printer to \n") + ui->cboPrinterName->currentText() + tr(" ?");
    if (QMessageBox::warning(this, tr("Printer Change"), question, QMessageBox::Yes | QMessageBox::No)
        != QMessageBox::Yes) {
        reject();
        return;
    }
    changePrinter(index);
}

void PrintDialog::chk_printToFile_changed_state(bool checked)
{
    // A file holds the job once: the copies wait until the box is unticked.
    ui->numCopies_2->setEnabled(!checked);
    if (checked)
        savedCopies = ui->numCopies_2->value();
    ui->numCopies_2->setValue(checked ? 1 : savedCopies);
}

void PrintDialog::chk_chkDefaultPrinter_changed_state(bool checked)
{
    ui->cboPrinterName->setEnabled(!checked);
    int index = indexBeforeDefault;
    if (checked) {
        indexBeforeDefault = ui->cboPrinterName->currentIndex();
        index = cups->getDefaultPrinter();
        currentMoved = true;
        if (!listIsCurrent()) {
            startOver();
            return;
        }
    }
    ui->cboPrinterName->setCurrentIndex(index);
    updateLabels(ui->cboPrinterName->currentIndex());
}

void PrintDialog::cbo_Printers_change(int index)
{
    if (ui->cboPrinterName->count() > 0)
        updateLabels(index);
}

// Lets nothing be cut off, also with large fonts and long words; and places it where one begins to read.
void PrintDialog::makeRoom()
{
    if (ui->stackedWidget->currentWidget() == ui->page_Simple) {
        if (FormRoom::hasLargeFont(*this))
            for (QWidget *widget :
                 std::initializer_list<QWidget *>{ui->numCopies, ui->yesButton, ui->noButton, ui->propertiesButton})
                widget->setMinimumHeight(std::max(widget->minimumHeight(), widget->sizeHint().height()));
        FormRoom::freshenSizeHints(*this);
        setFixedSize(shortFormSize.expandedTo(ui->page_Simple->minimumSizeHint()));
        return;
    }
    ui->gridLayout_4->setColumnMinimumWidth(1, shownCharacters * fontMetrics().averageCharWidth());
    FormRoom::freshenSizeHints(*this);
    const QSize needed = ui->gridLayout_8->totalMinimumSize();
    const int margin = fullFormPlace.left();
    setFixedSize(fullFormSize.expandedTo(needed + QSize(2 * margin, 2 * margin)));
    const QRect place(fullFormPlace.topLeft(), fullFormPlace.size().expandedTo(needed));
    ui->layoutWidget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

// What the scheduler said of each destination when they were fetched.
QList<PrintDialog::PrinterItem> PrintDialog::readPrinters() const
{
    QList<PrinterItem> items;
    for (int index = 0; index < cups->getDestCount(); ++index) {
        PrinterItem item;
        // Latin-1 for the one, UTF-8 for the other: as everywhere else, a description is a text of plain bytes, by
        // which hosts find its destination again.
        item.name = QString::fromLatin1(cups->getValue("printer-info", index));
        item.type = QString::fromLatin1(cups->getValue("printer-make-and-model", index));
        item.status = statusText(*cups, index);
        item.location = QString::fromUtf8(cups->getValue("printer-location", index));
        items.append(item);
    }
    return items;
}

// Whether the list still shows the destinations that the CupsSupport holds, so that both count them alike.
bool PrintDialog::listIsCurrent() const
{
    const QList<PrinterItem> items = readPrinters();
    return std::equal(items.begin(), items.end(), printers.begin(), printers.end(),
                      [](const PrinterItem &one, const PrinterItem &other) { return one.name == other.name; });
}

// Fills the form anew because queues came or went. The default printer is then chosen as the user wished, but no index
// says any more which printer was current before: OK has to ask.
void PrintDialog::startOver()
{
    updateForm();
    initialIndex = -1;
}

void PrintDialog::showPrinterTexts(const PrinterItem &item)
{
    showText(ui->lblTypeInfo, item.type);
    showText(ui->lblStatusInfo, item.status);
    showText(ui->lblLocation, item.location);
}

// Makes the chosen printer the one where both the CupsSupport and the host's QPrinter print, and accepts.
void PrintDialog::changePrinter(int index)
{
    cups->setCurrentPrinter(index);
    // Qt would wait for a scheduler that does not answer, without a limit. Kept from it, it would stay with the old printer
    // and later print there what the user sent elsewhere.
    if (Scheduler::isLeftAlone()) {
        cups->setCurrentPrinter(initialIndex);
        reject();
        return;
    }
    // Qt knows printers by the names of their queues and silently stays with the old printer when it is given any other
    // text. The description that the user chose by would therefore do only where it is the queue name as well; where it
    // happens to be the name of another queue, the host's pages would even go there, and an empty one would turn the
    // QPrinter into a PDF writer. The queue name is right in all of these cases.
    Scheduler::callWithScheduler([this] { printer->setPrinterName(cups->getCurrentQueueName()); });
    initialIndex = index;
    currentMoved = false;
    accept();
}

// Undoes what "Use Default" did to the CupsSupport as soon as it was ticked.
void PrintDialog::restoreCurrentPrinter()
{
    if (currentMoved && initialIndex >= 0) {
        cups->setCurrentPrinter(initialIndex);
        currentMoved = false;
    }
}
