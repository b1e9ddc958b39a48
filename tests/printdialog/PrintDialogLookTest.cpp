// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "Pictures.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/ExtDialog.h>
#include <PropertiesDialog/PrintDialog.h>

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QHelpEvent>
#include <QLocale>
#include <QScreen>
#include <QSpinBox>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <memory>

// If this fails, users cannot tell printers apart, texts are cut off without a sign, or Arabic looks wrong.
class PrintDialogLookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void shortTextsLeaveTheFormAsItIs();
    void longTextsGetTheRoomThatThereIs();
    void similarPrintersCanBeToldApart_data();
    void similarPrintersCanBeToldApart();
    void cutTextsEndWithAnEllipsis();
    void wholeTextsAreInTheToolTips();
    void openListShowsWholeNames();
    void typedNamesAreShown();

    void buttonsKeepIconAndText_data();
    void buttonsKeepIconAndText();
    void copiesHaveTheDigitsOfTheOtherNumbers();

private:
    void open(const QString &queue);

    PrivateScheduler scheduler;
    std::unique_ptr<QPrinter> printer;
    std::unique_ptr<CupsSupport> cups;
    std::unique_ptr<PrintDialog> dialog;
};

void PrintDialogLookTest::initTestCase()
{
    QApplication::setStyle(new StyleWithIcons);
    QApplication::setFont(QFont("DejaVu Sans", 9));
    scheduler.addQueue("A", PrivateScheduler::samplePpd("label-203"), "Desk", "Hall 1");
    scheduler.setServerDefault("A");
    printer = std::make_unique<QPrinter>();
    cups = std::make_unique<CupsSupport>();
}

void PrintDialogLookTest::init()
{
    open("A");
}

void PrintDialogLookTest::cleanup()
{
    dialog.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void PrintDialogLookTest::open(const QString &queue)
{
    cups = std::make_unique<CupsSupport>();
    selectQueue(*cups, queue);
    dialog = std::make_unique<PrintDialog>(nullptr, printer.get(), cups.get());
    dialog->show();
}

void PrintDialogLookTest::shortTextsLeaveTheFormAsItIs()
{
    cups->setOptions({"printer-make-and-model", "Label"});
    dialog->updateForm();
    QCOMPARE(childOf<QWidget>(*dialog, "layoutWidget")->geometry(), QRect(10, 10, 326, 290));
}

void PrintDialogLookTest::longTextsGetTheRoomThatThereIs()
{
    cups->setOptions({"printer-location", QString("Hall 3 ").repeated(20)});
    dialog->updateForm();
    const QWidget *frame = childOf<QWidget>(*dialog, "frame_0");
    QCoreApplication::processEvents();
    QCOMPARE(frame->mapTo(dialog.get(), QPoint(frame->width(), 0)).x(), dialog->width() - 10);
    QCOMPARE(dialog->width(), 462);
}

void PrintDialogLookTest::similarPrintersCanBeToldApart_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<int>("points");

    QTest::newRow("usual") << "Warehouse label printer, line %1" << 9;
    QTest::newRow("longer than the form") << "Warehouse label printer behind the second gate on the left, line %1" << 9;
    QTest::newRow("large letters") << "Warehouse label printer, line %1" << 14;
}

void PrintDialogLookTest::similarPrintersCanBeToldApart()
{
    QFETCH(QString, description);
    QFETCH(int, points);

    dialog->setFont(QFont("DejaVu Sans", points));
    auto *list = childOf<QComboBox>(*dialog, "cboPrinterName");
    QList<QImage> pictures;
    for (int line = 1; line <= 3; ++line) {
        cups->setOptions({"printer-info", description.arg(line)});
        dialog->updateForm();
        pictures << picture(list);
    }
    QVERIFY(pictures[0] != pictures[1]);
    QVERIFY(pictures[0] != pictures[2]);
    QVERIFY(pictures[1] != pictures[2]);
}

void PrintDialogLookTest::cutTextsEndWithAnEllipsis()
{
    auto *label = childOf<QLabel>(*dialog, "lblLocation");
    const QString text = QString("Warehouse hall 3 ").repeated(9);
    cups->setOptions({"printer-location", text});
    dialog->updateForm();
    QCOMPARE(label->text(), text);
    const QImage shown = picture(label);
    label->setText(label->fontMetrics().elidedText(text, Qt::ElideRight, label->width()));
    QVERIFY(label->text() != text);
    QCOMPARE(shown, picture(label));
}

void PrintDialogLookTest::wholeTextsAreInTheToolTips()
{
    auto *list = childOf<QComboBox>(*dialog, "cboPrinterName");
    const auto tip = [this, list](const QString &description) {
        cups->setOptions({"printer-info", description});
        dialog->updateForm();
        QCoreApplication::processEvents();
        QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), list->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(list, &event);
        return QToolTip::text();
    };
    QCOMPARE(tip("Desk"), QString()); // nothing is missing
    const QString longName = QString("<b>Warehouse</b> label printer ").repeated(5);
    QCOMPARE(tip(longName), "<span>" + longName.toHtmlEscaped() + "</span>");
}

void PrintDialogLookTest::openListShowsWholeNames()
{
    const QString name = "Warehouse label printer behind the second gate, line 1";
    cups->setOptions({"printer-info", name});
    dialog->updateForm();
    auto *list = childOf<QComboBox>(*dialog, "cboPrinterName");
    list->showPopup();
    const int width = list->view()->viewport()->width();
    list->hidePopup();
    QVERIFY(width > list->fontMetrics().horizontalAdvance(name));
    QVERIFY(width < dialog->screen()->availableGeometry().width());
}

// In a host that makes the list editable.
void PrintDialogLookTest::typedNamesAreShown()
{
    auto *list = childOf<QComboBox>(*dialog, "cboPrinterName");
    list->setEditable(true);
    list->setEditText("one");
    const QImage one = picture(list);
    list->setEditText("other");
    QVERIFY(picture(list) != one);
}

void PrintDialogLookTest::buttonsKeepIconAndText_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("from the left") << Qt::LeftToRight;
    QTest::newRow("from the right") << Qt::RightToLeft;
}

void PrintDialogLookTest::buttonsKeepIconAndText()
{
    QFETCH(Qt::LayoutDirection, direction);

    QGuiApplication::setLayoutDirection(direction);
    for (const char *name : {"yesButton_2", "noButton_2"}) {
        auto *button = childOf<QAbstractButton>(*dialog, name);
        QVERIFY2(isTogether(button), name);
    }
    PrintDialog question(nullptr);
    question.resize(600, 110);
    question.show();
    for (const char *name : {"yesButton", "noButton"}) {
        auto *button = childOf<QAbstractButton>(question, name);
        button->setFixedWidth(200);
        QVERIFY2(isTogether(button), name);
    }
    ExtDialog offset(nullptr, cups.get());
    offset.show();
    for (QAbstractButton *button : offset.findChild<QDialogButtonBox *>()->buttons()) {
        button->setFixedWidth(200);
        QVERIFY2(isTogether(button), qPrintable(button->text()));
    }
}

void PrintDialogLookTest::copiesHaveTheDigitsOfTheOtherNumbers()
{
    const QLocale before;
    QLocale::setDefault(QLocale("ar_EG"));
    const PrintDialog full(nullptr, printer.get(), cups.get());
    const PrintDialog question(nullptr);
    const QString shown[] = {childOf<QSpinBox>(full, "numCopies_2")->text(),
                             childOf<QSpinBox>(question, "numCopies")->text()};
    QLocale::setDefault(before);
    QCOMPARE(shown[0], QString("1"));
    QCOMPARE(shown[1], QString("1"));
}

PROPERTIESDIALOG_TEST_MAIN(PrintDialogLookTest)
#include "PrintDialogLookTest.moc"
