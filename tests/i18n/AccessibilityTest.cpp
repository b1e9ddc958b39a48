// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "AllDialogs.h"
#include "Languages.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>

#include <cmath>
#include <memory>

namespace {

QString nameOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object)->text(QAccessible::Name);
}

// The widget that names another one, for programs that go by this; null when there is none.
QObject *labelOf(QObject *object)
{
    for (const auto &relation : QAccessible::queryAccessibleInterface(object)->relations(QAccessible::Label))
        return relation.first->object();
    return nullptr;
}

QString descriptionOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object)->text(QAccessible::Description);
}

// The role that a control must have; none for other widgets.
QAccessible::Role expectedRole(const QWidget *widget)
{
    if (qobject_cast<const QCheckBox *>(widget))
        return QAccessible::CheckBox;
    if (qobject_cast<const QRadioButton *>(widget))
        return QAccessible::RadioButton;
    if (qobject_cast<const QPushButton *>(widget))
        return QAccessible::Button;
    if (qobject_cast<const QComboBox *>(widget))
        return QAccessible::ComboBox;
    if (qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget))
        return QAccessible::EditableText;
    if (qobject_cast<const QSlider *>(widget))
        return QAccessible::Slider;
    if (qobject_cast<const QSpinBox *>(widget))
        return QAccessible::SpinBox;
    const auto *group = qobject_cast<const QGroupBox *>(widget);
    if (group && group->isCheckable())
        return QAccessible::CheckBox;
    return QAccessible::NoRole;
}

bool isPart(const QWidget *widget)
{
    return qobject_cast<QAbstractSpinBox *>(widget->parentWidget())
           || qobject_cast<QComboBox *>(widget->parentWidget());
}

double luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// Between the commonest colour of the picture and the one that stands out most from it.
double textContrast(const QImage &picture)
{
    QHash<QRgb, int> colours;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++colours[picture.pixel(x, y)];
    QRgb background = 0;
    for (auto it = colours.cbegin(); it != colours.cend(); ++it)
        if (it.value() > colours.value(background))
            background = it.key();
    double best = 1.0;
    for (auto it = colours.cbegin(); it != colours.cend(); ++it)
        best = std::max(best, contrast(background, it.key()));
    return best;
}

QPalette darkPalette()
{
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::Window, QColor(45, 45, 45));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Active, role, QColor(230, 230, 230));
    return palette;
}

} // namespace

// If this fails, users of screen readers or the keyboard cannot operate a control, or users cannot read a text.
class AccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void controlsHaveNameAndRole_data();
    void controlsHaveNameAndRole();
    void controlIsRead_data();
    void controlIsRead();
    void labelsBelongToTheirFields_data();
    void labelsBelongToTheirFields();
    void previewIsAPicture();
    void previewIsSaidInWords_data();
    void previewIsSaidInWords();
    void commandIsNamedByItsPlace_data();
    void commandIsNamedByItsPlace();
    void wordsChangeWithTheLanguage();
    void tabKeyGoesRound_data();
    void tabKeyGoesRound();
    void keysDoWhatTheMouseDoes();
    void textsStandOut_data();
    void textsStandOut();
    void contrastIsMeasured();

private:
    QDialog *dialog(const QString &name) const { return dialogs->byName().value(name); }
    template<class Widget = QWidget>
    Widget *child(const QString &name)
    {
        for (const QDialog *window : dialogs->byName())
            if (auto *widget = window->findChild<Widget *>(name))
                return widget;
        qFatal("there is no %s", qPrintable(name));
        return nullptr;
    }

    PrivateScheduler scheduler;
    std::unique_ptr<AllDialogs> dialogs;
};

void AccessibilityTest::initTestCase()
{
    scheduler.addQueue("Labels");
    scheduler.setServerDefault("Labels");
    QAccessible::setActive(true);
    QApplication::setStyle("Fusion");
}

void AccessibilityTest::init()
{
    dialogs = std::make_unique<AllDialogs>("Labels");
}

void AccessibilityTest::cleanup()
{
    dialogs.reset();
}

void AccessibilityTest::controlsHaveNameAndRole_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<int>("count");
    QTest::newRow("properties") << "properties" << 40;
    QTest::newRow("print") << "print" << 11; // also those of the other form
    QTest::newRow("question") << "question" << 11;
    QTest::newRow("offset") << "offset" << 3;
    QTest::newRow("password") << "password" << 4;
}

void AccessibilityTest::controlsHaveNameAndRole()
{
    QFETCH(QString, window);
    QFETCH(int, count);
    dialog(window)->show();
    int found = 0;
    for (QWidget *widget : dialog(window)->findChildren<QWidget *>()) {
        if (expectedRole(widget) == QAccessible::NoRole || isPart(widget) || widget->objectName().startsWith("qt_"))
            continue;
        ++found;
        const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(interface && interface->isValid(), qPrintable(widget->objectName()));
        QCOMPARE(interface->role(), expectedRole(widget));
        QVERIFY2(!interface->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
    }
    QCOMPARE(found, count);
}

void AccessibilityTest::controlIsRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("description");
    const auto row = [](const char *name, const char *text, const char *description = "") {
        QTest::newRow(name) << name << text << description;
    };
    row("widthEdit", "Width:", "inches");
    row("heightEdit", "Height:", "inches");
    row("preset0", "Name:");
    row("speedSlider", "Speed Settings");
    row("darknessSlider", "Darkness");
    row("preset1", "Preset List:");
    row("nameEdit", "Name:");
    row("descriptionEdit", "Description:");
    row("mediaType", "MediaType:");
    row("cut", "Cut:");
    row("feed", "Feed:", "inches");
    row("back", "Backfeed:", "dots");
    row("overlap", "Overlap:", "dots");
    row("gapSize", "Gap Size", "inches");
    row("gapOffset", "Gap Offset", "inches");
    row("stop", "Stop Position", "inches");
    row("start", "Start Position:", "inches");
    row("commandEdit", "User Commands", "Start of Job");
    row("horizontalEdit", "Horizontal Offset:", "dots");
    row("verticalEdit", "Vertical Offset:", "dots");
    row("cboPrinterName", "Name:");
    row("numCopies_2", "Number of Copies:");
    row("numCopies", "Number of Copies:");
    row("offset", "Offset:");
    row("userEdit", "User name:");
    row("passwordEdit", "Password:");
}

void AccessibilityTest::controlIsRead()
{
    QFETCH(QString, name);
    dialogs->properties->show();
    child<QComboBox>("mediaType")->setCurrentIndex(CupsSupport::LabelsWithGaps);
    // Qt names a list after the chosen entry; its label says what it is for.
    QTEST(qobject_cast<QComboBox *>(child(name)) ? nameOf(labelOf(child(name))) : nameOf(child(name)), "text");
    QTEST(descriptionOf(child(name)), "description");
}

void AccessibilityTest::labelsBelongToTheirFields_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("field");
    QTest::newRow("status") << "lblStatus"
                            << "lblStatusInfo";
    QTest::newRow("type") << "lblType"
                          << "lblTypeInfo";
    QTest::newRow("where") << "lblWhere"
                           << "lblLocation";
    QTest::newRow("printer") << "lblPrinterName"
                             << "cboPrinterName";
    QTest::newRow("offset") << "offsetLabel"
                            << "offset";
    QTest::newRow("width") << "widthLabel"
                           << "widthEdit";
}

void AccessibilityTest::labelsBelongToTheirFields()
{
    QFETCH(QString, label);
    QFETCH(QString, field);
    QCOMPARE(labelOf(child(field)), child(label));
}

void AccessibilityTest::previewIsAPicture()
{
    dialogs->properties->show();
    const auto *frame = child<QFrame>("frame");
    QObject *preview = frame->findChildren<QWidget *>().constFirst();
    QCOMPARE(QAccessible::queryAccessibleInterface(preview)->role(), QAccessible::Graphic);
    QCOMPARE(nameOf(preview), QString("Preview"));
}

void AccessibilityTest::previewIsSaidInWords_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("mirror");
    QTest::addColumn<bool>("negative");
    QTest::addColumn<QString>("words");
    QTest::newRow("portrait") << "portraitRadioButton" << false << false << "Orientation: Portrait";
    QTest::newRow("landscape") << "landscapeRadioButton" << false << false << "Orientation: Landscape";
    QTest::newRow("portrait 180") << "portrait180RadioButton" << false << false << "Orientation: Portrait 180°";
    QTest::newRow("landscape 180") << "landscape180RadioButton" << false << false << "Orientation: Landscape 180°";
    QTest::newRow("mirrored") << "portraitRadioButton" << true << false << "Orientation: Portrait, mirrored";
    QTest::newRow("negative") << "portraitRadioButton" << false << true << "Orientation: Portrait, negative";
    QTest::newRow("both") << "portraitRadioButton" << true << true << "Orientation: Portrait, mirrored and negative";
}

void AccessibilityTest::previewIsSaidInWords()
{
    QFETCH(QString, button);
    QFETCH(bool, mirror);
    QFETCH(bool, negative);
    dialogs->properties->show();
    child<QRadioButton>(button)->setChecked(true);
    child<QCheckBox>("mirroredCheckBox")->setChecked(mirror);
    child<QCheckBox>("inverseCheckBox")->setChecked(negative);
    QTEST(descriptionOf(child("frame")->findChildren<QWidget *>().constFirst()), "words");
}

void AccessibilityTest::commandIsNamedByItsPlace_data()
{
    QTest::addColumn<QString>("button");
    for (const char *button :
         {"jobStartRadioButton", "labelStartRadioButton", "labelEndRadioButton", "jobEndRadioButton"})
        QTest::newRow(button) << button;
}

void AccessibilityTest::commandIsNamedByItsPlace()
{
    QFETCH(QString, button);
    child<QRadioButton>(button)->setChecked(true);
    QCOMPARE(descriptionOf(child("commandEdit")), child<QRadioButton>(button)->text());
}

void AccessibilityTest::wordsChangeWithTheLanguage()
{
    dialogs->properties->show();
    child<QRadioButton>("landscapeRadioButton")->setChecked(true);
    const InLanguage texts("de");
    QCoreApplication::processEvents();
    QObject *preview = child("frame")->findChildren<QWidget *>().constFirst();
    QCOMPARE(nameOf(preview), QString("Vorschau"));
    QCOMPARE(descriptionOf(preview), QString("Ausrichtung: Querformat"));
    QCOMPARE(nameOf(child("darknessSlider")), QString("Druckdichte"));
    QCOMPARE(descriptionOf(child("widthEdit")), QString("Zoll"));
    QCOMPARE(nameOf(child("commandEdit")), QString("Benutzerbefehle"));
    QCOMPARE(descriptionOf(child("commandEdit")), QString("Auftragsanfang"));
}

void AccessibilityTest::tabKeyGoesRound_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<int>("tab");
    QTest::addColumn<QStringList>("order");
    // Of the radio buttons of a group the first takes part; the arrow keys lead to the others.
    const QStringList buttons{"okButton", "cancelButton", "applyButton", "qt_tabwidget_tabbar"};
    QTest::newRow("page setup") << "properties" << 0 << buttons + QStringList{"stockGroupBox",    "widthEdit",
                                                                              "heightEdit",       "portraitRadioButton",
                                                                              "mirroredCheckBox", "inverseCheckBox",
                                                                              "preset0",          "manageButton",
                                                                              "speedSlider",      "darknessSlider"};
    QTest::newRow("presets") << "properties" << 1
                             << buttons + QStringList{"presetNewButton", "presetUpdateButton", "presetDeleteButton",
                                                      "preset1",         "nameEdit",           "descriptionEdit"};
    QTest::newRow("stock") << "properties" << 2
                           << buttons + QStringList{"mediaType", "gapSize", "gapOffset", "cut", "stop"};
    QTest::newRow("advanced") << "properties" << 3
                              << buttons
                                     + QStringList{"jobStartRadioButton", "commandEdit", "horizontalEdit",
                                                   "verticalEdit"};
    QTest::newRow("about") << "properties" << 4 << buttons;
    QTest::newRow("print") << "print" << -1 << QStringList{"cboPrinterName", "propertiesButton_2", "chkDefaultPrinter",
                                                           "numCopies_2",    "yesButton_2",        "noButton_2"};
    QTest::newRow("question") << "question" << -1
                              << QStringList{"numCopies", "yesButton", "noButton", "propertiesButton"};
}

void AccessibilityTest::tabKeyGoesRound()
{
    QFETCH(QString, window);
    QFETCH(int, tab);
    QFETCH(QStringList, order);
    QWidget *form = dialog(window);
    form->show();
    if (tab >= 0) {
        child<QAbstractButton>("presetNewButton")->click(); // a preset that may be changed, and so Apply is enabled
        child<QComboBox>("mediaType")->setCurrentIndex(CupsSupport::LabelsWithMarks);
        child<QGroupBox>("stockGroupBox")->setChecked(true);
        child<QRadioButton>("landscapeRadioButton")->setChecked(true);
        child<QTabWidget>("tabs")->setCurrentIndex(tab);
    }
    form->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(form));
    child(order.constFirst())->setFocus();

    QStringList forwards;
    for (QStringList::size_type i = 0; i < order.size(); ++i) {
        forwards += QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QVERIFY2(forwards == order, qPrintable(forwards.join(' ')));
    QCOMPARE(QApplication::focusWidget()->objectName(), order.constFirst());
    for (QStringList::size_type i = order.size(); i > 0; --i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), order.at(i - 1));
    }
}

void AccessibilityTest::keysDoWhatTheMouseDoes()
{
    dialogs->properties->show();
    QVERIFY(QTest::qWaitForWindowActive(dialogs->properties.get()));
    child<QRadioButton>("landscapeRadioButton")->setChecked(true);
    child("landscapeRadioButton")->setFocus();
    QTest::keyClick(child("landscapeRadioButton"), Qt::Key_Down);
    QVERIFY(child<QRadioButton>("portrait180RadioButton")->isChecked());
    child("mirroredCheckBox")->setFocus();
    const bool wasMirrored = child<QCheckBox>("mirroredCheckBox")->isChecked();
    QTest::keyClick(child("mirroredCheckBox"), Qt::Key_Space);
    QCOMPARE(child<QCheckBox>("mirroredCheckBox")->isChecked(), !wasMirrored);
    child("stockGroupBox")->setFocus();
    const bool hadSize = child<QGroupBox>("stockGroupBox")->isChecked();
    QTest::keyClick(child("stockGroupBox"), Qt::Key_Space);
    QCOMPARE(child<QGroupBox>("stockGroupBox")->isChecked(), !hadSize);
    auto *darkness = child<QSlider>("darknessSlider");
    const int value = darkness->value();
    QTest::keyClick(darkness, Qt::Key_Left);
    QCOMPARE(darkness->value(), value - 1);
    QTest::keyClick(child("manageButton"), Qt::Key_Space);
    QCOMPARE(child<QTabWidget>("tabs")->currentIndex(), 1);
    QTest::keyClick(child<QTabBar>("qt_tabwidget_tabbar"), Qt::Key_Right);
    QCOMPARE(child<QTabWidget>("tabs")->currentIndex(), 2);
    QTest::keyClick(child("mediaType"), Qt::Key_Home);
    QCOMPARE(child<QComboBox>("mediaType")->currentIndex(), 0);
    QTest::keyClick(dialogs->properties.get(), Qt::Key_Escape);
    QVERIFY(!dialogs->properties->isVisible());
}

void AccessibilityTest::textsStandOut_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QPalette>("palette");
    for (const char *window : {"properties", "print", "question", "offset", "password"}) {
        QTest::addRow("%s dark", window) << window << darkPalette();
        QTest::addRow("%s light", window) << window << QApplication::style()->standardPalette();
    }
}

void AccessibilityTest::textsStandOut()
{
    QFETCH(QString, window);
    QFETCH(QPalette, palette);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(palette);
    cleanup();
    init();
    QWidget *form = dialog(window);
    form->show();
    auto *tabs = form->findChild<QTabWidget *>();
    int examined = 0;
    for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
        if (tabs)
            tabs->setCurrentIndex(tab);
        for (QWidget *widget : form->findChildren<QWidget *>()) {
            const bool hasText = qobject_cast<QLabel *>(widget) || qobject_cast<QAbstractButton *>(widget)
                                 || qobject_cast<QComboBox *>(widget) || qobject_cast<QLineEdit *>(widget);
            const auto *label = qobject_cast<QLabel *>(widget);
            if (!hasText || (label && label->text().isEmpty()) || !widget->isVisible() || !widget->isEnabled()
                || isPart(widget))
                continue;
            // The icon of a button is not text.
            if (auto *button = qobject_cast<QAbstractButton *>(widget))
                button->setIcon(QIcon());
            // As it looks in the window, whose background many have.
            const QImage picture = form->grab(QRect(widget->mapTo(form, QPoint()), widget->size())).toImage();
            const double ratio = textContrast(picture);
            QVERIFY2(ratio >= 4.5, qPrintable(widget->objectName() + ' ' + QString::number(ratio)));
            ++examined;
        }
    }
    QVERIFY(examined >= 4);
    QApplication::setPalette(before);
}

void AccessibilityTest::contrastIsMeasured()
{
    QCOMPARE(contrast(qRgb(0, 0, 0), qRgb(255, 255, 255)), 21.0);
    QVERIFY(contrast(qRgb(119, 119, 119), qRgb(255, 255, 255)) < 4.5);
    QVERIFY(contrast(qRgb(118, 118, 118), qRgb(255, 255, 255)) > 4.5);
    QLabel label("Some text");
    QPalette palette(Qt::gray);
    palette.setColor(QPalette::Window, QColor(60, 60, 60));
    palette.setColor(QPalette::WindowText, QColor(90, 90, 90));
    label.setPalette(palette);
    label.show();
    QVERIFY(textContrast(label.grab().toImage()) < 4.5);
}

PROPERTIESDIALOG_TEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
