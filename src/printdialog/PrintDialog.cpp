// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "printdialog/PrintDialog.h"

#include "cups/CupsSupport.h"
#include "host/PrinterProperties.h"
#include "ui_PrintDialog.h"
#include "widgets/FormButtons.h"
#include "widgets/FormRoom.h"
#include "widgets/Icons.h"
#include "widgets/MessageBox.h"
#include "widgets/WheelGuard.h"

#include <QEvent>
#include <QHash>
#include <QList>
#include <QLocale>
#include <QPageLayout>
#include <QPrinter>
#include <QShowEvent>
#include <QStyle>

#include <algorithm>
#include <initializer_list>
#include <optional>

namespace {

constexpr int maximumCopies = 100;

// The sizes of the forms and the place of the full form's contents, for usual fonts and short words.
constexpr QSize shortFormSize(380, 110);
constexpr QSize fullFormSize(462, 291);
constexpr QRect fullFormPlace(10, 10, 326, 290);

// The minimum widths of the printer list and of the texts beside the labels, in characters.
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

// The text for a printer's state: the state and the reasons for it, if the scheduler names any.
QString statusText(const CupsSupport &cups, int index)
{
    const QString state = stateText(QString::fromLatin1(cups.getValue("printer-state", index)).toInt());
    const QString reasons = QString::fromLatin1(cups.getValue("printer-state-reasons", index));
    if (reasons.isEmpty() || reasons == QLatin1String("none"))
        return state;
    return state + QLatin1String(": ") + reasons;
}

// Shows a text of the scheduler, never as rich text. The tool tip has all of a text that is too long.
void showText(QLabel *label, const QString &text)
{
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setToolTip(text.isEmpty() ? QString() : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped()));
}

// The properties of a QPrinter that depend on its queue.
class PrinterState
{
public:
    explicit PrinterState(const QPrinter &printer)
        : name(printer.printerName())
        , format(printer.outputFormat())
        , layout(printer.pageLayout())
        , options(PrinterProperties::options(printer))
    {
    }

    // Whether that was possible: Qt selects no printer that the scheduler does not confirm.
    bool restore(QPrinter *printer) const
    {
        if (format == QPrinter::PdfFormat)
            printer->setOutputFormat(format);
        else
            printer->setPrinterName(name);
        if (printer->printerName() != name)
            return false;
        printer->setPageLayout(layout);
        PrinterProperties::setOptions(*printer, options);
        return true;
    }

private:
    QString name;
    QPrinter::OutputFormat format;
    QPageLayout layout;
    QVariant options;
};

struct PrinterItem
{
    QString queue; // identifies the printer: two may have the same description
    QString name;
    QString type;
    QString status;
    QString location;
};

// What the scheduler said of each destination when they were fetched.
QList<PrinterItem> readPrinters(const CupsSupport &cups)
{
    QList<PrinterItem> items;
    for (int index = 0; index < cups.getDestCount(); ++index) {
        PrinterItem item;
        item.queue = cups.getQueueName(index);
        item.name = QString::fromUtf8(cups.getValue("printer-info", index));
        item.type = QString::fromLatin1(cups.getValue("printer-make-and-model", index)); // hosts compare plain bytes
        item.status = statusText(cups, index);
        item.location = QString::fromUtf8(cups.getValue("printer-location", index));
        items.append(item);
    }
    return items;
}

} // namespace

struct PrintDialog::Private
{
    Private(PrintDialog *dialog, QPrinter *hostPrinter, CupsSupport *cupsSupport)
        : q(dialog)
        , printer(hostPrinter)
        , cups(cupsSupport)
    {
    }

    bool isShortForm() const { return ui.stackedWidget->currentWidget() == ui.page_Simple; }
    PrinterItem shownPrinter() const { return printers.value(ui.cboPrinterName->currentIndex()); }

    void setUp(QWidget *page, QPushButton *yesButton, QPushButton *noButton);
    void makeRoom();
    void makeRoomInShortForm();
    void makeRoomInFullForm();
    int widestText() const;

    void fill();
    void showPrinterTexts(const PrinterItem &item);
    void updateStatus();
    bool listIsCurrent() const;
    void useDefault();

    bool turnToShownPrinter();
    bool turnBack();
    void stayHere();

    PrintDialog *const q;
    Ui_PrintDialog ui;
    QPrinter *const printer;
    CupsSupport *const cups;
    int savedCopies = 1; // of the full form, while "Print to file" is ticked
    QList<PrinterItem> printers; // by destination index
    QString initialQueue; // the current one when the form was filled; empty without any
    QString queueBeforeDefault; // in the printer list, while "Use Default" is ticked
    bool currentMoved = false; // the current printer of the CupsSupport may be another one than initialQueue
    std::optional<PrinterState> printerBefore; // the QPrinter has been turned to another queue
    bool questionIsHosts = false; // not the form's, so it is not retranslated
};

PrintDialog::PrintDialog(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint)
    , d(std::make_unique<Private>(this, nullptr, nullptr))
{
    d->ui.setupUi(this);
    d->setUp(d->ui.page_Simple, d->ui.yesButton, d->ui.noButton);
    d->ui.numCopies->setRange(1, maximumCopies);
    setNumCopies(1);
    d->makeRoom();
}

PrintDialog::PrintDialog(QWidget *parent, QPrinter *printer, CupsSupport *cups)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint)
    , d(std::make_unique<Private>(this, printer, cups))
{
    d->ui.setupUi(this);
    d->setUp(d->ui.page_SelectPrinter, d->ui.yesButton_2, d->ui.noButton_2);
    // The box that this form shows is numCopies_2, and its minimum lifts it to 1. Here, too, numCopies() and
    // setNumCopies() use the other form's box: hosts rely on setNumCopies() not changing what the user sees.
    d->ui.numCopies_2->setRange(1, maximumCopies);
    setNumCopies(1);
    d->ui.cboPrinterName->setEditable(false);
    updateForm();
    connect(d->ui.chkPrintToFile, &QCheckBox::clicked, this, &PrintDialog::chk_printToFile_changed_state);
    connect(d->ui.chkDefaultPrinter, &QCheckBox::clicked, this, &PrintDialog::chk_chkDefaultPrinter_changed_state);
    connect(d->ui.cboPrinterName, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &PrintDialog::cbo_Printers_change);
}

PrintDialog::~PrintDialog() = default;

void PrintDialog::setText(const QString &text)
{
    d->questionIsHosts = true;
    d->ui.textLabel->setText(text);
}

void PrintDialog::setPrintToFileEnabled(bool enabled)
{
    // The negation is what hosts rely on.
    d->ui.chkPrintToFile->setEnabled(!enabled);
}

bool PrintDialog::printToFile() const
{
    return d->ui.chkPrintToFile->isChecked();
}

int PrintDialog::copies() const
{
    return d->isShortForm() ? d->ui.numCopies->value() : d->ui.numCopies_2->value();
}

int PrintDialog::numCopies() const
{
    return d->ui.numCopies->value();
}

void PrintDialog::setNumCopies(int copies)
{
    d->ui.numCopies->setValue(copies);
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
    d->fill();
    d->stayHere();
}

void PrintDialog::updateLabels(int index)
{
    if (index < 0 || index >= d->printers.size())
        return;
    const PrinterItem &item = d->printers.at(index);
    d->showPrinterTexts(item);
    d->ui.cboPrinterName->setEditText(item.name);
    d->ui.chkPrintToFile->setEnabled(item.type == printToFileModel());
}

void PrintDialog::reject()
{
    d->turnBack();
    QDialog::reject();
}

void PrintDialog::showEvent(QShowEvent *event)
{
    if (!d->isShortForm() && !event->spontaneous())
        d->updateStatus();
    QDialog::showEvent(event);
}

void PrintDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (FormRoom::isChangedBy(*event))
        d->makeRoom();
    if (event->type() != QEvent::LanguageChange)
        return;
    const QString question = d->ui.textLabel->text();
    d->ui.retranslateUi(this);
    if (d->questionIsHosts)
        d->ui.textLabel->setText(question);
    // The texts alone: whether "Print to file" is enabled may be the host's choice and does not depend on the language.
    if (d->ui.cboPrinterName->currentIndex() >= 0)
        d->showPrinterTexts(d->shownPrinter());
    d->makeRoom();
}

void PrintDialog::on_propertiesButton_clicked()
{
    done(propertiesWanted);
}

// Also before OK, the properties are those of the printer that the list shows.
void PrintDialog::on_propertiesButton_2_clicked()
{
    if (d->turnToShownPrinter())
        done(propertiesWanted);
}

void PrintDialog::on_yesButton_2_clicked()
{
    // Without printers, there is nothing to change to.
    if (d->ui.cboPrinterName->currentIndex() < 0 || d->shownPrinter().queue == d->initialQueue) {
        if (d->turnBack())
            accept();
        else
            QDialog::reject();
        return;
    }
    const QString question =
        tr("Do you want to change the current printer to \n") + d->ui.cboPrinterName->currentText() + tr(" ?");
    const auto answer = MessageBox::show(QMessageBox::Warning, tr("Printer Change"), question,
                                         QMessageBox::Yes | QMessageBox::No, this);
    if (answer != QMessageBox::Yes || !d->turnToShownPrinter()) {
        reject();
        return;
    }
    d->stayHere();
    accept();
}

void PrintDialog::chk_printToFile_changed_state(bool checked)
{
    // A file holds the job once: the copies wait until the box is unticked.
    d->ui.numCopies_2->setEnabled(!checked);
    if (checked)
        d->savedCopies = d->ui.numCopies_2->value();
    d->ui.numCopies_2->setValue(checked ? 1 : d->savedCopies);
}

void PrintDialog::chk_chkDefaultPrinter_changed_state(bool checked)
{
    d->ui.cboPrinterName->setEnabled(!checked);
    if (checked) {
        d->queueBeforeDefault = d->shownPrinter().queue;
        d->useDefault();
    } else {
        d->ui.cboPrinterName->setCurrentIndex(d->cups->getQueueIndex(d->queueBeforeDefault));
    }
    updateLabels(d->ui.cboPrinterName->currentIndex());
}

void PrintDialog::cbo_Printers_change(int index)
{
    if (d->ui.cboPrinterName->count() > 0)
        updateLabels(index);
}

// ----- the forms -----

void PrintDialog::Private::setUp(QWidget *page, QPushButton *yesButton, QPushButton *noButton)
{
    ui.stackedWidget->setCurrentWidget(page);
    Icons::showStyleIcon(yesButton, QStyle::SP_DialogYesButton);
    Icons::showStyleIcon(noButton, QStyle::SP_DialogNoButton);
    FormButtons::keepIconsBesideTexts(*q);
    new WheelGuard(q);
    yesButton->setDefault(true); // otherwise Qt would give Enter to Properties
    // In Arabic and others, the box would have other digits than all other numbers.
    for (QSpinBox *box : {ui.numCopies, ui.numCopies_2})
        box->setLocale(QLocale::c());
}

// Makes room for large fonts and long words, and places the contents for the reading direction.
void PrintDialog::Private::makeRoom()
{
    if (isShortForm())
        makeRoomInShortForm();
    else
        makeRoomInFullForm();
}

void PrintDialog::Private::makeRoomInShortForm()
{
    if (FormRoom::hasLargeFont(*q))
        for (QWidget *widget :
             std::initializer_list<QWidget *>{ui.numCopies, ui.yesButton, ui.noButton, ui.propertiesButton})
            widget->setMinimumHeight(std::max(widget->minimumHeight(), widget->sizeHint().height()));
    FormRoom::freshenSizeHints(*q);
    q->setFixedSize(shortFormSize.expandedTo(ui.page_Simple->minimumSizeHint()));
}

// What the scheduler says of its printers may be longer than the form is wide. It gets the room up to the dialog's
// edge.
void PrintDialog::Private::makeRoomInFullForm()
{
    const int least = shownCharacters * q->fontMetrics().averageCharWidth();
    ui.gridLayout_4->setColumnMinimumWidth(1, least);
    FormRoom::freshenSizeHints(*q);
    const QSize needed = ui.gridLayout_8->totalMinimumSize();
    const int margin = fullFormPlace.left();
    q->setFixedSize(fullFormSize.expandedTo(needed + QSize(2 * margin, 2 * margin)));
    const int wanted = std::min(needed.width() + std::max(0, widestText() - least), q->width() - 2 * margin);
    const QRect place(fullFormPlace.topLeft(), fullFormPlace.size().expandedTo(QSize(wanted, needed.height())));
    ui.layoutWidget->setGeometry(QStyle::visualRect(q->layoutDirection(), q->rect(), place));
}

// In pixels; of all printers, because nothing should move when another one is chosen.
int PrintDialog::Private::widestText() const
{
    int width = ui.cboPrinterName->wholeWidth();
    const QFontMetrics metrics = ui.lblTypeInfo->fontMetrics();
    for (const PrinterItem &item : printers)
        for (const QString &text : {item.type, item.status, item.location})
            width = std::max(width, metrics.horizontalAdvance(text));
    return width;
}

void PrintDialog::Private::fill()
{
    ui.chkDefaultPrinter->setChecked(false);
    ui.chkPrintToFile->setChecked(false);
    ui.chkPrintToFile->setEnabled(true);
    ui.cboPrinterName->setEnabled(true);
    ui.numCopies_2->setEnabled(true);

    printers.clear();
    ui.cboPrinterName->clear();
    for (const PrinterItem &item : readPrinters(*cups)) {
        printers.append(item);
        ui.cboPrinterName->addItem(item.name);
    }
    ui.cboPrinterName->setCurrentIndex(cups->getCurrentIndex());
    q->updateLabels(cups->getCurrentIndex());
    makeRoom();
}

void PrintDialog::Private::showPrinterTexts(const PrinterItem &item)
{
    showText(ui.lblTypeInfo, item.type);
    showText(ui.lblStatusInfo, item.status);
    showText(ui.lblLocation, item.location);
}

// The list may be hours old: the states are fetched again, and nothing else.
void PrintDialog::Private::updateStatus()
{
    if (!cups->updatePrinterStates())
        return;
    QHash<QString, int> indexes;
    for (int index = 0; index < cups->getDestCount(); ++index)
        indexes.insert(cups->getQueueName(index), index);
    bool isChanged = false;
    for (PrinterItem &item : printers) {
        const auto index = indexes.constFind(item.queue);
        const QString now = index != indexes.constEnd() ? statusText(*cups, *index) : item.status;
        isChanged = isChanged || now != item.status;
        item.status = now;
    }
    if (!isChanged)
        return;
    if (ui.cboPrinterName->currentIndex() >= 0)
        showPrinterTexts(shownPrinter());
    makeRoom();
}

// Whether the list still shows the destinations that the CupsSupport holds, so that an index means the same in both.
bool PrintDialog::Private::listIsCurrent() const
{
    const QList<PrinterItem> items = readPrinters(*cups);
    return std::equal(items.begin(), items.end(), printers.begin(), printers.end(),
                      [](const PrinterItem &one, const PrinterItem &other) {
                          return one.queue == other.queue && one.name == other.name;
                      });
}

// ----- the queue of the CupsSupport and the QPrinter -----

// Lets the CupsSupport fetch all destinations and select the default one, and shows it.
void PrintDialog::Private::useDefault()
{
    currentMoved = true;
    cups->getDefaultPrinter();
    cups->closePpdFile(); // of the queue before
    if (listIsCurrent()) {
        ui.cboPrinterName->setCurrentIndex(cups->getCurrentIndex());
        return;
    }
    // Queues came or went.
    fill();
    ui.chkDefaultPrinter->setChecked(true);
    ui.cboPrinterName->setEnabled(false);
}

// Selects the printer that the list shows in the CupsSupport and the host's QPrinter, until turnBack().
bool PrintDialog::Private::turnToShownPrinter()
{
    const QString queue = shownPrinter().queue;
    if (queue.isEmpty() || queue == initialQueue)
        return turnBack();
    currentMoved = true;
    cups->setCurrentPrinter(cups->getQueueIndex(queue));
    if (printer->printerName() == queue)
        return true;
    const PrinterState before(*printer);
    // Qt needs the queue name. If it is given the description that the user chose, it silently keeps the old printer,
    // or even selects another one whose queue has that name; an empty text makes the QPrinter write PDF.
    if (!CupsSupport::callWithScheduler([this, &queue] { printer->setPrinterName(queue); })) {
        turnBack();
        return false;
    }
    if (!printerBefore)
        printerBefore = before;
    // The same happens if the scheduler has gone, or the queue. Without its plug-in for CUPS, Qt has no printers at all.
    if (const QString selected = printer->printerName(); selected != queue && !selected.isEmpty()) {
        turnBack();
        return false;
    }
    PrinterProperties::setOptions(*printer, QStringList()); // those of the queue before
    return true;
}

// Undoes the changes of "Use Default" to the CupsSupport, and of Properties to both. Returns false if the QPrinter could
// not be turned back; the next call tries it again.
bool PrintDialog::Private::turnBack()
{
    // If the queue no longer exists, there is no printer: another one must not print what was meant for this one.
    if (currentMoved && cups->getDestCount() > 0)
        cups->setCurrentPrinter(cups->getQueueIndex(initialQueue));
    currentMoved = false;
    if (!printerBefore)
        return true;
    bool isRestored = false;
    CupsSupport::callWithScheduler([this, &isRestored] { isRestored = printerBefore->restore(printer); });
    if (isRestored)
        printerBefore.reset();
    else
        printer->setOutputFormat(QPrinter::PdfFormat); // rather than print on the printer that the user left
    return isRestored;
}

// Makes the current printer the one that turnBack() goes to.
void PrintDialog::Private::stayHere()
{
    initialQueue = cups->getCurrentQueueName();
    currentMoved = false;
    printerBefore.reset();
}
