// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "PrinterList.h"

#include "ui_PrinterList.h"
#include "widgets/FormButtons.h"

#include <PropertiesDialog/CupsSupport.h>

#include <QHeaderView>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace {

constexpr int queueColumn = 0;

QString optionOf(const CupsSupport &cups, const char *keyword, int index)
{
    return QString::fromUtf8(cups.getValue(keyword, index));
}

QString stateOf(const CupsSupport &cups, int index)
{
    if (optionOf(cups, "printer-is-accepting-jobs", index) == QLatin1String("false"))
        return PrinterList::tr("Not accepting jobs");
    // IPP's "printer-state"
    switch (optionOf(cups, "printer-state", index).toInt()) {
    case 3:
        return PrinterList::tr("Idle");
    case 4:
        return PrinterList::tr("Printing");
    case 5:
        return PrinterList::tr("Stopped");
    default:
        return QString();
    }
}

} // namespace

PrinterList::PrinterList(const CupsSupport &cups, const QString &selected, const QString &note)
    : ui(std::make_unique<Ui::PrinterList>())
{
    ui->setupUi(this);
    showNote(note);
    for (int i = 0; i < cups.getDestCount(); ++i)
        addQueue(cups, i);
    ui->printers->setCurrentItem(ui->printers->topLevelItem(cups.getQueueIndex(selected)));
    connect(ui->printers, &QTreeWidget::currentItemChanged, this, &PrinterList::enableButtons);
    connect(ui->printers, &QTreeWidget::itemDoubleClicked, this, &QDialog::accept);
    testLabelButton = ui->buttonBox->addButton(tr("Print &Test Label"), QDialogButtonBox::ActionRole);
    connect(testLabelButton, &QPushButton::clicked, this, &PrinterList::testLabelWanted);
    FormButtons::keepIconsBesideTexts(*this);
    enableButtons();
    makeRoom();
}

PrinterList::~PrinterList() = default;

void PrinterList::addQueue(const CupsSupport &cups, int index)
{
    const QStringList texts{cups.getQueueName(index), optionOf(cups, "printer-info", index),
                            optionOf(cups, "printer-location", index), stateOf(cups, index)};
    auto *item = new QTreeWidgetItem(ui->printers, texts);
    for (int column = 0; column < texts.size(); ++column)
        item->setToolTip(column, texts.at(column));
}

// Room for all texts, within the screen. Longer ones end with an ellipsis and have a tool tip.
void PrinterList::makeRoom()
{
    const QSize screen = QGuiApplication::primaryScreen()->availableSize() * 3 / 4;
    QHeaderView *header = ui->printers->header();
    header->setStretchLastSection(false); // a stretched column does not tell what it needs
    header->resizeSections(QHeaderView::ResizeToContents);
    const int row = ui->printers->sizeHintForRow(0);
    if (header->length() + 3 * row > screen.width())
        for (int column = 0; column < header->count(); ++column)
            header->resizeSection(column, std::min(header->sectionSize(column), screen.width() / header->count()));
    const QSize list(header->length() + 3 * row,
                     header->sizeHint().height() + (ui->printers->topLevelItemCount() + 1) * row);
    ui->printers->setMinimumSize(list.boundedTo(QSize(320, 5 * row)));
    resize(sizeHint().expandedTo(list + QSize(0, 6 * row)).boundedTo(screen));
    header->setStretchLastSection(true);
}

void PrinterList::enableButtons()
{
    for (QPushButton *button : {ui->buttonBox->button(QDialogButtonBox::Ok), testLabelButton})
        button->setEnabled(!queue().isEmpty());
}

void PrinterList::showNote(const QString &note)
{
    ui->note->setText(note);
    ui->note->setVisible(!note.isEmpty());
}

QString PrinterList::queue() const
{
    const QTreeWidgetItem *item = ui->printers->currentItem();
    return item ? item->text(queueColumn) : QString();
}
