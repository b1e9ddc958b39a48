// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "Pictures.h"
#include "PrinterList.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/CupsSupport.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>

// If this fails, users cannot read the list of printers.
class PrinterListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void textsAreWholeWhereTheScreenHasRoom();
    void buttonsKeepIconAndTextInArabic();

private:
    PrivateScheduler scheduler;
};

void PrinterListTest::initTestCase()
{
    QApplication::setFont(QFont("DejaVu Sans", 8));
    scheduler.addQueue("LP", PrivateScheduler::samplePpd("label-203"), "Labels", "Hall 3, beside the door to the yard");
}

void PrinterListTest::cleanup()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void PrinterListTest::textsAreWholeWhereTheScreenHasRoom()
{
    const CupsSupport cups;
    PrinterList list(cups, "LP", QString());
    list.show();
    QCoreApplication::processEvents();
    auto *printers = list.findChild<QTreeWidget *>();
    QVERIFY(!printers->horizontalScrollBar()->isVisible());
    for (int column = 0; column < printers->columnCount(); ++column) {
        const QString text = printers->topLevelItem(0)->text(column);
        QVERIFY2(printers->columnWidth(column) > printers->fontMetrics().horizontalAdvance(text), qPrintable(text));
    }
}

void PrinterListTest::buttonsKeepIconAndTextInArabic()
{
    QApplication::setStyle(new StyleWithIcons);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const CupsSupport cups;
    PrinterList list(cups, "LP", QString());
    list.show();
    for (const auto which : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel}) {
        QPushButton *button = list.findChild<QDialogButtonBox *>()->button(which);
        button->setFixedWidth(200);
        QVERIFY2(isTogether(button), qPrintable(button->text()));
    }
}

PROPERTIESDIALOG_TEST_MAIN(PrinterListTest)
#include "PrinterListTest.moc"
