// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "LabelWindow.h"

#include <PropertiesDialog/ExtDialog.h>
#include <PropertiesDialog/PrintDialog.h>
#include <PropertiesDialog/PrintPropertiesDialog.h>

#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryFile>

LabelWindow::LabelWindow(QWidget *parent)
    : QWidget(parent)
    , text(new QPlainTextEdit(tr("Fragile"), this))
    , status(new QLabel(this))
{
    auto *printButton = new QPushButton(tr("Print..."), this);
    printButton->setObjectName(QStringLiteral("printButton"));
    auto *offsetButton = new QPushButton(tr("Offset..."), this);
    offsetButton->setObjectName(QStringLiteral("offsetButton"));
    status->setObjectName(QStringLiteral("status"));

    auto *layout = new QGridLayout(this);
    layout->addWidget(text, 0, 0, 1, 2);
    layout->addWidget(printButton, 1, 0);
    layout->addWidget(offsetButton, 1, 1);
    layout->addWidget(status, 2, 0, 1, 2);

    connect(printButton, &QPushButton::clicked, this, &LabelWindow::print);
    connect(offsetButton, &QPushButton::clicked, this, &LabelWindow::chooseOffset);
}

void LabelWindow::print()
{
    PrintDialog dialog(this, &printer, &cups);
    PrintPropertiesDialog properties(this, &printer, &cups);
    if (dialog.exec2(properties) != QDialog::Accepted)
        return;

    if (dialog.printToFile())
        saveAsFile();
    else
        sendToPrinter(dialog.copies());
}

void LabelWindow::chooseOffset()
{
    ExtDialog(this, &cups).exec();
}

bool LabelWindow::writePdf(const QString &fileName) const
{
    QPdfWriter pdf(fileName);
    pdf.setTitle(tr("Label"));
    pdf.setPageMargins(QMarginsF(), QPageLayout::Point);
    const QSize label = cups.getDefaultPageSize();
    if (label.isValid())
        pdf.setPageSize(QPageSize(label));

    QPainter painter;
    if (!painter.begin(&pdf))
        return false;
    painter.drawText(QRect(0, 0, pdf.width(), pdf.height()), Qt::AlignCenter, text->toPlainText());
    return painter.end();
}

void LabelWindow::saveAsFile()
{
    const QString fileName = QFileDialog::getSaveFileName(this, tr("Print to file"), QString(), tr("PDF (*.pdf)"));
    if (!fileName.isEmpty() && !writePdf(fileName))
        QMessageBox::warning(this, tr("Warning"), tr("%1 cannot be written.").arg(fileName));
}

void LabelWindow::sendToPrinter(int copies)
{
    // When printFile() returns, CUPS has its own copy.
    QTemporaryFile file;
    if (!file.open() || !writePdf(file.fileName())) {
        QMessageBox::warning(this, tr("Warning"), tr("The label cannot be drawn."));
        return;
    }

    // The printer's saved settings are sent with the job automatically.
    const QStringList options{QStringLiteral("copies"), QString::number(copies)};
    const int job = cups.printFile(file.fileName(), QString(), tr("Label"), options);
    if (job == 0) {
        QMessageBox::warning(this, tr("Warning"), QString::fromUtf8(CupsSupport::getCupsError()));
        return;
    }
    status->setText(tr("Job %1 was sent to %2.").arg(job).arg(cups.getCurrentPrinterName()));
}
