// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "Driver.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLineEdit>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QTabWidget>
#include <QTest>
#include <QWindow>

#include <cstdio>
#include <cstdlib>

namespace {

// What is entered and must be shown by the next opening.
constexpr int mediaType = 1; // labels with gaps
constexpr int darkness = 12;
const QString gapSize = QStringLiteral("0.25");
const QString command = QStringLiteral("BEEP 2\n# end of batch 7\n");
const QString presetName = QStringLiteral("Shipping");
const QString presetDescription = QStringLiteral("Labels of 4 by 6 inches");
const QString pageWidth = QStringLiteral("4.00");
const QString pageHeight = QStringLiteral("6.00");

[[noreturn]] void fail(const QString &what)
{
    std::fprintf(stderr, "demo: %s\n", qPrintable(what));
    std::fflush(nullptr);
    std::_Exit(3);
}

void expect(bool condition, const QString &what)
{
    if (!condition)
        fail(what);
}

// The point to click to tick a group box.
QPoint checkBoxOf(const QGroupBox *box)
{
    QStyleOptionGroupBox option;
    option.initFrom(box);
    option.text = box->title();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxCheckBox | QStyle::SC_GroupBoxLabel;
    return box->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxCheckBox, box).center();
}

// One line of the comparison.
bool compare(const char *what, const QString &expected, const QString &shown)
{
    const bool equal = expected == shown;
    const QString line = QString(shown).replace(QLatin1Char('\n'), QStringLiteral("\\n"));
    std::printf("  %-24s %-34s %s\n", what, qPrintable(line), equal ? "as entered" : "WRONG");
    return equal;
}

} // namespace

Driver::Driver()
{
    const bool shown = QTest::qWaitFor([this] {
        dialog = QApplication::activeModalWidget();
        return dialog && dialog->isVisible();
    });
    expect(shown, QStringLiteral("the dialog does not appear"));
    // Without a window manager, nothing gives a new window the keyboard focus.
    dialog->activateWindow();
    expect(QTest::qWaitForWindowActive(dialog), QStringLiteral("the dialog does not get the keyboard"));
}

void Driver::edit()
{
    showTab(0);
    click(find<QWidget>("portrait180RadioButton"), QPoint(8, find<QWidget>("portrait180RadioButton")->height() / 2));
    auto *slider = find<QSlider>("darknessSlider");
    click(slider);
    QTest::keyClick(window(), Qt::Key_Home);
    for (int step = 0; step < darkness; ++step)
        QTest::keyClick(window(), Qt::Key_Right);
    expect(slider->value() == darkness, QStringLiteral("the darkness cannot be set"));

    showTab(2);
    // The media type comes first because choosing it reloads the gap size.
    choose(find<QComboBox>("mediaType"), mediaType);
    retype("gapSize", gapSize);

    showTab(3);
    click(find<QWidget>("labelStartRadioButton"), QPoint(8, find<QWidget>("labelStartRadioButton")->height() / 2));
    click(find<QPlainTextEdit>("commandEdit"));
    type(command);

    // A new preset takes the printer's settings, so they must be applied first.
    clickButton("applyButton");
    expect(!find<QPushButton>("applyButton")->isEnabled(), QStringLiteral("Apply does not save"));

    showTab(1);
    clickButton("presetNewButton");
    retype("nameEdit", presetName);
    QTest::keyClick(window(), Qt::Key_Tab);
    click(find<QPlainTextEdit>("descriptionEdit"));
    type(presetDescription);

    // The page size belongs to the current preset.
    showTab(0);
    auto *group = find<QGroupBox>("stockGroupBox");
    if (!group->isChecked())
        click(group, checkBoxOf(group));
    retype("widthEdit", pageWidth);
    retype("heightEdit", pageHeight);

    clickButton("okButton");
    expect(!dialog->isVisible(), QStringLiteral("OK does not close the dialog"));
}

bool Driver::check()
{
    const auto text = [this](const char *name) { return find<QLineEdit>(name)->text(); };
    const auto checked = [](bool on) { return QString::fromLatin1(on ? "on" : "off"); };
    const QString on = checked(true);

    bool good = true;
    showTab(0);
    good &= compare("Portrait 180", on, checked(find<QRadioButton>("portrait180RadioButton")->isChecked()));
    good &= compare("Darkness", QString::number(darkness), QString::number(find<QSlider>("darknessSlider")->value()));
    good &= compare("User-defined page size", on, checked(find<QGroupBox>("stockGroupBox")->isChecked()));
    good &= compare("Width", pageWidth, text("widthEdit"));
    good &= compare("Height", pageHeight, text("heightEdit"));
    good &= compare("Preset", presetName, find<QComboBox>("preset0")->currentText());

    showTab(1);
    good &= compare("Preset's name", presetName, text("nameEdit"));
    good &= compare("Preset's description", presetDescription, find<QPlainTextEdit>("descriptionEdit")->toPlainText());

    showTab(2);
    good &= compare("Media type", QString::number(mediaType),
                    QString::number(find<QComboBox>("mediaType")->currentIndex()));
    good &= compare("Gap size", gapSize, text("gapSize"));

    // One field for all four commands; the others were left empty.
    showTab(3);
    const struct
    {
        const char *what;
        const char *button;
        QString text;
    } commands[] = {
        {"At the start of jobs", "jobStartRadioButton", QString()},
        {"At the start of labels", "labelStartRadioButton", command},
        {"At the end of labels", "labelEndRadioButton", QString()},
        {"At the end of jobs", "jobEndRadioButton", QString()},
    };
    for (const auto &row : commands) {
        auto *button = find<QRadioButton>(row.button);
        click(button, QPoint(8, button->height() / 2));
        good &= compare(row.what, row.text, find<QPlainTextEdit>("commandEdit")->toPlainText());
    }
    auto *button = find<QRadioButton>("labelStartRadioButton");
    click(button, QPoint(8, button->height() / 2));

    good &= compare("Unsaved changes", checked(false), checked(find<QPushButton>("applyButton")->isEnabled()));
    return good;
}

void Driver::takeScreenshots(const QString &folder)
{
    static const char *const names[] = {"page-setup", "presets", "stock", "advanced", "about"};

    expect(QDir().mkpath(folder), QStringLiteral("%1 cannot be created").arg(folder));
    int number = 0;
    for (const char *name : names) {
        showTab(number);
        // Do not leave a highlighted tab behind, and let the window be drawn first.
        QTest::mouseMove(window(), QPoint(dialog->width() - 2, dialog->height() - 2));
        QTest::qWait(200);
        const QRect area = dialog->frameGeometry();
        const QPixmap picture = dialog->screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height());
        const QString file = QStringLiteral("%1/%2-%3.png").arg(folder).arg(++number).arg(QLatin1String(name));
        expect(!picture.isNull() && picture.save(file), QStringLiteral("%1 cannot be written").arg(file));
        std::printf("  %s\n", qPrintable(file));
    }
}

void Driver::cancel()
{
    clickButton("cancelButton");
}

template<class Widget>
Widget *Driver::find(const char *name) const
{
    auto *widget = dialog->findChild<Widget *>(QLatin1String(name));
    expect(widget, QStringLiteral("the dialog has no %1").arg(QLatin1String(name)));
    return widget;
}

QWindow *Driver::window() const
{
    return dialog->windowHandle();
}

void Driver::click(QWidget *widget, QPoint position)
{
    expect(widget->isVisible() && widget->isEnabled(),
           QStringLiteral("%1 cannot be clicked").arg(widget->objectName()));
    QWidget *top = widget->window();
    QTest::mouseClick(top->windowHandle(), Qt::LeftButton, Qt::NoModifier, widget->mapTo(top, position));
    QCoreApplication::processEvents();
}

void Driver::click(QWidget *widget)
{
    click(widget, widget->rect().center());
}

void Driver::clickButton(const char *name)
{
    click(find<QPushButton>(name));
}

void Driver::showTab(int index)
{
    auto *tabs = find<QTabWidget>("tabs");
    click(tabs->tabBar(), tabs->tabBar()->tabRect(index).center());
    expect(tabs->currentIndex() == index, QStringLiteral("tab %1 does not open").arg(index));
}

void Driver::choose(QComboBox *box, int index)
{
    click(box);
    QAbstractItemView *list = box->view();
    expect(QTest::qWaitForWindowExposed(list->window()), QStringLiteral("a list does not open"));
    // A popup treats a click at the moment of its opening as the end of the click that opened it.
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    click(list->viewport(), list->visualRect(list->model()->index(index, 0)).center());
    expect(box->currentIndex() == index, QStringLiteral("%1 cannot be chosen").arg(box->itemText(index)));
}

void Driver::type(const QString &text)
{
    for (const QChar character : text)
        if (character == QLatin1Char('\n'))
            QTest::keyClick(window(), Qt::Key_Return);
        else
            QTest::keyClick(window(), character.toLatin1());
}

void Driver::retype(const char *name, const QString &text)
{
    auto *edit = find<QLineEdit>(name);
    click(edit);
    QTest::keyClick(window(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(window(), Qt::Key_Delete);
    type(text);
    expect(edit->text() == text, QStringLiteral("%1 does not take %2").arg(edit->objectName(), text));
}
