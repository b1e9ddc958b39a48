// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// If this fails, a number is stored that differs from what users typed or see, or they are not told what a field takes.

#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"
#include "Wheel.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMenu>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QTabWidget>
#include <QToolTip>

#include <memory>

namespace {

enum class Way {
    Keys,
    Shortcut,
    Menu,
    InputMethod
};

// Enters a text as a user does, replacing the selection.
void enter(QLineEdit *edit, const QString &text, Way way)
{
    QGuiApplication::clipboard()->setText(text);
    switch (way) {
    case Way::Keys:
        QTest::keyClicks(edit, text);
        break;
    case Way::Shortcut:
        QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
        break;
    case Way::Menu: {
        const std::unique_ptr<QMenu> menu(edit->createStandardContextMenu());
        for (QAction *action : menu->actions())
            if (action->text().startsWith("&Paste"))
                action->trigger();
        QCoreApplication::processEvents();
        break;
    }
    case Way::InputMethod:
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(edit, &event);
        break;
    }
}

// Debian 12 has Breeze for Qt 5.
bool hasExpectedStyles()
{
    const bool isExpected = QByteArray(qVersion()).startsWith("5.") && QSysInfo::productType() == "debian"
                            && QSysInfo::productVersion() == "12";
    return !isExpected || QStyleFactory::keys().contains("Breeze");
}

// Whether the field has room for the text, within the style's margins.
int roomIn(const QLineEdit *edit)
{
    QStyleOptionFrame option;
    option.initFrom(edit);
    option.rect = edit->rect();
    option.lineWidth = edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit);
    const int margin = 2; // on both sides of the text
    return edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit).width() - 2 * margin;
}

} // namespace

Q_DECLARE_METATYPE(Way)

class NumberFieldTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void entered_data();
    void entered();
    void commaInTheMiddle();
    void droppedComma();
    void halfOverANumber();
    void deletedToZero_data();
    void deletedToZero();
    void typedIsSaved();

    void toolTip_data();
    void toolTip();
    void refusalIsExplained_data();
    void refusalIsExplained();
    void emptiedFieldAfterApply();

    void wheel_data();
    void wheel();

    void everyValueFits_data();
    void everyValueFits();
    void usualSizesStay();
    void sizeStaysWithTheMediaType();
    void highFormScrolls();

private:
    PrivateScheduler scheduler;
    QFont usualFont;
};

void NumberFieldTest::initTestCase()
{
    scheduler.addQueue("LP");
    scheduler.addQueue("LP-ZED");
    scheduler.setServerDefault("LP");
    clearHome();
    usualFont = QApplication::font();
}

void NumberFieldTest::cleanup()
{
    clearHome();
    QApplication::setStyle("Fusion");
    QApplication::setFont(usualFont);
    QToolTip::hideText();
}

// ----- what is typed -----

void NumberFieldTest::entered_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<Way>("way");
    QTest::addColumn<double>("number");
    const auto row = [](const char *field, const char *text, double number) {
        QTest::addRow("%s %s, typed", field, text) << QString(field) << QString(text) << Way::Keys << number;
        QTest::addRow("%s %s, pasted", field, text) << QString(field) << QString(text) << Way::Shortcut << number;
        QTest::addRow("%s %s, menu", field, text) << QString(field) << QString(text) << Way::Menu << number;
        QTest::addRow("%s %s, input method", field, text)
            << QString(field) << QString(text) << Way::InputMethod << number;
    };
    row("widthEdit", "2,5", 2.5);
    row("widthEdit", "2.5", 2.5);
    row("widthEdit", "0,5", 0.5);
    row("widthEdit", "0.5", 0.5);
    row("widthEdit", ",5", 0.5);
    row("feed", "0,12", 0.12);
    row("feed", "0.5", 0.5);
    row("stop", "1,57", 1.57);
}

void NumberFieldTest::entered()
{
    QFETCH(QString, field);
    QFETCH(QString, text);
    QFETCH(Way, way);
    OpenDialog open;
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    QLineEdit *edit = open.edit(field);
    for (const bool isEmpty : {true, false}) {
        edit->setText(isEmpty ? "" : "1.00");
        edit->selectAll();
        enter(edit, text, way);
        QTEST(edit->text().toDouble(), "number");
    }
}

void NumberFieldTest::commaInTheMiddle()
{
    OpenDialog open;
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    QLineEdit *edit = open.edit("widthEdit");
    edit->setText("12");
    edit->setCursorPosition(1);
    QTest::keyClicks(edit, ",");
    QCOMPARE(edit->text(), QString("1.2"));
    QTest::keyClicks(edit, ","); // there is one already
    QCOMPARE(edit->text(), QString("1.2"));
}

// Text that does not come from the keyboard: the primary selection, something dropped.
void NumberFieldTest::droppedComma()
{
    OpenDialog open;
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    QLineEdit *edit = open.edit("widthEdit");
    edit->selectAll();
    edit->insert("3,75");
    QCoreApplication::processEvents();
    QCOMPARE(edit->text(), QString("3.75"));
}

void NumberFieldTest::halfOverANumber()
{
    OpenDialog open;
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    QLineEdit *edit = open.edit("widthEdit");
    edit->setText("4.00");
    edit->setSelection(0, 1);
    QTest::keyClicks(edit, "0");
    QCOMPARE(edit->text(), QString("4.00")); // 0.00 is out of range, and nothing of it is lost
    edit->setText("1.50");
    edit->setSelection(0, 1);
    QTest::keyClicks(edit, "0");
    QCOMPARE(edit->text(), QString("0.50"));
}

void NumberFieldTest::deletedToZero_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("from the end") << Qt::Key_Backspace;
    QTest::newRow("from the beginning") << Qt::Key_Delete;
}

// Deleting everything and typing another number is never refused.
void NumberFieldTest::deletedToZero()
{
    QFETCH(Qt::Key, key);
    OpenDialog open;
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    QLineEdit *edit = open.edit("widthEdit");
    edit->setText("0.75");
    edit->setCursorPosition(key == Qt::Key_Delete ? 0 : 4);
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(edit, key);
    QTest::keyClicks(edit, "0.5");
    QCOMPARE(edit->text().toDouble(), 0.5);
}

void NumberFieldTest::typedIsSaved()
{
    const DriverCommand command("exit 0\n");
    OpenDialog open;
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    for (const char *field : {"widthEdit", "heightEdit", "feed"}) {
        open.edit(field)->selectAll();
        QTest::keyClicks(open.edit(field), "0,5");
    }
    open.click("applyButton");
    QCOMPARE(command.runs(), QByteArray("0.50 0.50 LP\n"));
    QCOMPARE(workingCopy(open.cups).value("Feed"), QByteArray("102")); // dots at 203 dpi
}

// ----- what is said -----

void NumberFieldTest::toolTip_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *queue, const char *field, const char *text, const char *expected) {
        QTest::addRow("%s %s %s", queue, field, text)
            << QString(queue) << QString(field) << QString(text) << QString(expected);
    };
    row("LP", "widthEdit", "4.00", "0.20 to 1200.00 inches\n4.00 inches = 101.60 mm");
    row("LP", "widthEdit", "", "0.20 to 1200.00 inches");
    row("LP", "widthEdit", ".", "0.20 to 1200.00 inches");
    row("LP", "stop", "1", "0.00 to 1.57 inches\n1 inches = 25.40 mm");
    row("LP-ZED", "stop", "-.5", "-1.00 to 1.00 inches\n-.5 inches = -12.70 mm");
    row("LP", "horizontalEdit", "100", "-100 to 100 dots\n100 dots = 12.51 mm");
    row("LP-ZED", "verticalEdit", "-203", "-203 to 203 dots\n-203 dots = -25.40 mm");
}

void NumberFieldTest::toolTip()
{
    QFETCH(QString, queue);
    QFETCH(QString, field);
    QFETCH(QString, text);
    OpenDialog open(queue);
    open.dialog.show();
    open.edit(field)->setText(text);
    QTEST(open.edit(field)->toolTip(), "expected");
}

void NumberFieldTest::refusalIsExplained_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("accepted");
    QTest::addColumn<QString>("refused"); // at its end
    QTest::addColumn<QString>("explanation");
    const auto row = [](const char *queue, const char *field, const char *accepted, const char *refused,
                        const char *explanation) {
        QTest::addRow("%s %s %s%s", queue, field, accepted, refused)
            << QString(queue) << QString(field) << QString(accepted) << QString(refused) << QString(explanation);
    };
    row("LP", "stop", "1.57", "0", "Only numbers from 0.00 to 1.57, with two decimals at most.");
    row("LP-ZED", "stop", "-0.5", "-", "Only numbers from -1.00 to 1.00, with two decimals at most.");
    row("LP", "horizontalEdit", "100", "0", "Only whole numbers from -100 to 100.");
    row("LP", "verticalEdit", "-5", ".", "Only whole numbers from -100 to 100.");
    row("LP-ZED", "verticalEdit", "20", "x", "Only whole numbers from -203 to 203.");
}

void NumberFieldTest::refusalIsExplained()
{
    QFETCH(QString, queue);
    QFETCH(QString, field);
    QFETCH(QString, accepted);
    QFETCH(QString, refused);
    OpenDialog open(queue);
    open.dialog.show();
    QLineEdit *edit = open.edit(field);
    auto *tabs = open.widget<QTabWidget>("tabs");
    while (!edit->isVisible())
        tabs->setCurrentIndex(tabs->currentIndex() + 1);
    QVERIFY(QTest::qWaitForWindowActive(&open.dialog));
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, accepted);
    QCOMPARE(edit->text(), accepted);
    QVERIFY(!QToolTip::isVisible());
    QTest::keyClicks(edit, refused);
    QCOMPARE(edit->text(), accepted);
    QVERIFY(QToolTip::isVisible());
    QTEST(QToolTip::text(), "explanation");
}

void NumberFieldTest::emptiedFieldAfterApply()
{
    scheduler.setUserOptions(
        "LP", {"OffsetH=7", "OffsetV=-3", "Stop=25.4", "GapSize=2.54", "GapOffset=5.08", "LabelCategory=1"});
    OpenDialog open;
    const QStringList fields = {"widthEdit", "heightEdit", "gapSize",        "gapOffset",
                                "feed",      "stop",       "horizontalEdit", "verticalEdit"};
    QStringList before;
    for (const QString &field : fields) {
        before << open.text(field);
        open.setText(field, "");
    }
    open.slide("darknessSlider", 4);
    open.click("applyButton");
    for (int i = 0; i < fields.size(); ++i)
        QCOMPARE(open.text(fields.at(i)), before.at(i));
    QCOMPARE(open.text("gapOffset"), QString("0.20"));
    QCOMPARE(open.text("horizontalEdit"), QString("7"));
    QCOMPARE(open.text("verticalEdit"), QString("-3"));
    QVERIFY(!open.isChanged());
}

// ----- the wheel -----

void NumberFieldTest::wheel_data()
{
    QTest::addColumn<QString>("widget");
    for (const char *widget : {"speedSlider", "darknessSlider", "preset0", "preset1", "mediaType", "cut"})
        QTest::newRow(widget) << widget;
}

void NumberFieldTest::wheel()
{
    QFETCH(QString, widget);
    OpenDialog open;
    if (widget.startsWith("preset"))
        open.click("presetNewButton");
    for (const char *list : {"preset0", "preset1", "mediaType", "cut"})
        open.choose(list, 0);
    open.slide("speedSlider", 2);
    const QString before = open.shown(widget);
    auto *tabs = open.widget<QTabWidget>("tabs");
    while (!open.widget(widget)->isVisible())
        tabs->setCurrentIndex(tabs->currentIndex() + 1);
    QVERIFY(QTest::qWaitForWindowActive(&open.dialog));
    open.widget("okButton")->setFocus();
    turnWheel(open.widget(widget));
    QCOMPARE(open.shown(widget), before);
    QVERIFY(!open.widget(widget)->hasFocus());
    open.widget(widget)->setFocus();
    turnWheel(open.widget(widget));
    QVERIFY(open.shown(widget) != before);
}

// ----- sizes -----

void NumberFieldTest::everyValueFits_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<int>("points");
    QTest::addColumn<QString>("queue");
    QVERIFY(hasExpectedStyles());
    for (const QString &style : QStyleFactory::keys())
        for (int points : {8, 10, 14, 18})
            for (const char *queue : {"LP", "LP-ZED"})
                QTest::addRow("%s %d %s", qPrintable(style), points, queue) << style << points << QString(queue);
}

void NumberFieldTest::everyValueFits()
{
    QFETCH(QString, style);
    QFETCH(int, points);
    QFETCH(QString, queue);
    QApplication::setStyle(style);
    QFont font = QApplication::font();
    font.setPointSize(points);
    OpenDialog open(queue);
    open.dialog.setFont(font);
    open.dialog.show();
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    auto *tabs = open.widget<QTabWidget>("tabs");
    QStyleOptionComboBox option;
    const auto *presets = open.list("preset0");
    option.initFrom(presets);
    const QRect room =
        presets->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, presets);
    QVERIFY(presets->fontMetrics().horizontalAdvance(presets->currentText()) <= room.width());
    const QStringList fields = {"widthEdit", "heightEdit", "gapSize",        "gapOffset",
                                "feed",      "stop",       "horizontalEdit", "verticalEdit"};
    for (const int mediaType : {0, 2}) {
        open.choose("mediaType", mediaType);
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            QCoreApplication::processEvents();
            for (const QString &field : fields) {
                const QLineEdit *edit = open.edit(field);
                if (!edit->isVisible())
                    continue;
                for (const QString &end : edit->toolTip().section('\n', 0, 0).section(' ', 0, 2).split(" to "))
                    QVERIFY2(edit->fontMetrics().horizontalAdvance(end) < roomIn(edit), qPrintable(field + ' ' + end));
            }
        }
    }
}

// The size at which all values have room.
void NumberFieldTest::usualSizesStay()
{
    QFont font = QApplication::font();
    font.setPixelSize(12);
    QApplication::setFont(font);
    OpenDialog open("LP");
    open.dialog.show();
    QCOMPARE(open.edit("widthEdit")->maximumWidth(), 80);
    QCOMPARE(open.edit("stop")->maximumWidth(), 40);
    QCOMPARE(open.dialog.size(), QSize(450, 489));
}

void NumberFieldTest::sizeStaysWithTheMediaType()
{
    for (const int points : {10, 18}) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        OpenDialog open("LP-ZED");
        open.dialog.setFont(font);
        open.dialog.show();
        const QSize size = open.dialog.size();
        for (const int mediaType : {0, 1, 2, 0}) {
            open.choose("mediaType", mediaType);
            QCoreApplication::processEvents();
            QCOMPARE(open.dialog.size(), size);
        }
    }
}

void NumberFieldTest::highFormScrolls()
{
    OpenDialog open("LP");
    open.dialog.show();
    QVERIFY(!open.dialog.findChild<QScrollArea *>());
    QFont font = QApplication::font();
    font.setPointSize(32);
    open.dialog.setFont(font);
    QCoreApplication::processEvents();
    QVERIFY(open.dialog.height() < open.dialog.screen()->availableGeometry().height());
    for (const char *button : {"okButton", "cancelButton", "applyButton"})
        QVERIFY2(open.dialog.rect().contains(open.widget(button)->geometry()), button);
    auto *area = open.widget<QTabWidget>("tabs")->currentWidget()->findChild<QScrollArea *>();
    QVERIFY(area);
    QVERIFY(area->viewport()->width() >= area->widget()->minimumSizeHint().width());

    // The keyboard scrolls to fields that are out of sight.
    QVERIFY(QTest::qWaitForWindowActive(&open.dialog));
    auto *slider = open.widget("darknessSlider");
    open.widget("speedSlider")->setFocus();
    QTest::keyClick(open.widget("speedSlider"), Qt::Key_Tab);
    QVERIFY(slider->hasFocus());
    QVERIFY(area->viewport()->rect().contains(QRect(slider->mapTo(area->viewport(), QPoint()), slider->size())));
}

PROPERTIESDIALOG_TEST_MAIN(NumberFieldTest)
#include "NumberFieldTest.moc"
