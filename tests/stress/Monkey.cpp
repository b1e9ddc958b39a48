// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <QApplication>
#include <QGroupBox>
#include <QMessageBox>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTabWidget>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cstdio>
#include <memory>

// If this fails, some sequence of clicks and keys crashes the dialog or saves unreadable settings.
//
// MONKEY_SEED is the first seed, MONKEY_ACTIONS the number of actions with each, MONKEY_RUNS the number of seeds. The
// arguments "--seed N", "--actions N" and "--runs N" have the same effect. Each run prints its seed.
class Monkey : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void runs_data();
    void runs();

private:
    PrivateScheduler scheduler;
};

namespace {

const quint32 fixedSeed = 20261121;
const int usualActions = 500;

int number(const char *variable, int usual)
{
    return qEnvironmentVariableIsSet(variable) ? qEnvironmentVariableIntValue(variable) : usual;
}

// A user who does anything at random.
class Player
{
public:
    explicit Player(quint32 seed)
        : random(seed)
    {
        // Message boxes block until they are answered.
        QObject::connect(&answerer, &QTimer::timeout, [this] { answer(); });
        answerer.start(0);
    }

    void act();

private:
    int below(int limit) { return int(random.bounded(quint32(limit))); }
    bool oneIn(int count) { return below(count) == 0; }

    template<class List>
    auto &anyOf(List &list)
    {
        return list[below(int(std::size(list)))];
    }

    void answer();
    QWidget *anyWidget();
    QPoint anyPoint(const QWidget *widget);
    void click();
    void drag();
    void wheel();
    void key();
    void type();
    void changePreset();
    void reopen();

    QRandomGenerator random;
    QTimer answerer;
    std::unique_ptr<OpenDialog> open = std::make_unique<OpenDialog>();
};

void Player::answer()
{
    auto *message = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (message)
        oneIn(2) ? message->accept() : message->reject();
}

// One that is visible and enabled; in popups such as lists and context menus first.
QWidget *Player::anyWidget()
{
    QWidget *root = QApplication::activePopupWidget();
    if (!root)
        root = &open->dialog;
    QList<QWidget *> widgets{root};
    for (QWidget *widget : root->findChildren<QWidget *>())
        if (widget->isVisible() && widget->isEnabled())
            widgets << widget;
    return anyOf(widgets);
}

QPoint Player::anyPoint(const QWidget *widget)
{
    return QPoint(below(std::max(1, widget->width())), below(std::max(1, widget->height())));
}

void Player::click()
{
    static constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                                                  Qt::MiddleButton};
    QWidget *widget = anyWidget();
    const QPoint point = anyPoint(widget);
    const Qt::MouseButton button = anyOf(buttons);
    if (oneIn(8))
        QTest::mouseDClick(widget, button, Qt::NoModifier, point);
    else
        QTest::mouseClick(widget, button, Qt::NoModifier, point);
}

void Player::drag()
{
    QWidget *widget = anyWidget();
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, anyPoint(widget));
    // The press may have closed a popup and deleted its widget.
    QWidget *next = anyWidget();
    QTest::mouseMove(next, anyPoint(next));
    QTest::mouseRelease(next, Qt::LeftButton, Qt::NoModifier, anyPoint(next));
}

void Player::wheel()
{
    QWidget *widget = anyWidget();
    const QPoint point = anyPoint(widget);
    QWheelEvent event(point, widget->mapToGlobal(point), QPoint(), QPoint(0, oneIn(2) ? 120 : -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void Player::key()
{
    static constexpr Qt::Key keys[] = {
        Qt::Key_Tab,    Qt::Key_Tab,    Qt::Key_Backtab,  Qt::Key_Space,  Qt::Key_Return,    Qt::Key_Enter,
        Qt::Key_Escape, Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Home,
        Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_F1,
        Qt::Key_F4,     Qt::Key_Menu,   Qt::Key_Insert,   Qt::Key_A,      Qt::Key_C,         Qt::Key_V,
        Qt::Key_X,      Qt::Key_Y,      Qt::Key_Z,        Qt::Key_O,      Qt::Key_P};
    static constexpr Qt::KeyboardModifier modifiers[] = {Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,
                                                         Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};
    QWidget *focus = QApplication::focusWidget();
    QTest::keyClick(focus && !oneIn(8) ? focus : anyWidget(), anyOf(keys), anyOf(modifiers));
}

void Player::type()
{
    static const QString texts[] = {"0",
                                    "1",
                                    "25",
                                    ".",
                                    "-",
                                    ",",
                                    "e",
                                    "1e308",
                                    "-99999999999",
                                    "nan",
                                    "inf",
                                    "0.2",
                                    "1200",
                                    "#",
                                    "\"",
                                    "'",
                                    "\\",
                                    "\\r",
                                    "\\\\r",
                                    "ab c",
                                    "$(id)",
                                    ";",
                                    "../..",
                                    "%1",
                                    "\u00e4",
                                    "\u20ac",
                                    "\u00a0",
                                    "\t",
                                    "{}",
                                    "True",
                                    "ppdhack 1 1 x",
                                    "#name=x",
                                    QString(200, 'x')};
    QWidget *focus = QApplication::focusWidget();
    QWidget *target = focus && !oneIn(8) ? focus : anyWidget();
    // Key by key, as from a keyboard; QTest has no keys outside ASCII.
    for (const QChar c : anyOf(texts)) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(target, &press);
        if (QApplication::focusWidget() != focus)
            return;
    }
}

// Clicks at random points rarely find these.
void Player::changePreset()
{
    static const char *const buttons[] = {"presetNewButton", "presetUpdateButton", "presetDeleteButton",
                                          "applyButton",     "manageButton",       "stockGroupBox"};
    if (oneIn(2)) {
        auto *list = open->widget<QComboBox>(oneIn(2) ? "preset0" : "preset1");
        list->setCurrentIndex(below(list->count() + 1) - 1);
        return;
    }
    const char *name = anyOf(buttons);
    if (auto *box = open->dialog.findChild<QGroupBox *>(name))
        box->setChecked(!box->isChecked());
    else
        open->click(name);
}

void Player::reopen()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    if (oneIn(2)) {
        open.reset();
        open = std::make_unique<OpenDialog>();
    } else {
        open->dialog.show();
    }
}

void Player::act()
{
    if (!open->dialog.isVisible() || oneIn(200))
        reopen();
    const int kind = below(100);
    if (kind < 40) {
        click();
    } else if (kind < 65) {
        key();
    } else if (kind < 80) {
        type();
    } else if (kind < 85) {
        drag();
    } else if (kind < 90) {
        wheel();
    } else if (kind < 94) {
        open->widget<QTabWidget>("tabs")->setCurrentIndex(below(5));
    } else if (kind < 99) {
        changePreset();
    } else {
        QEvent languageChange(QEvent::LanguageChange);
        QApplication::sendEvent(&open->dialog, &languageChange);
    }
    QCoreApplication::processEvents();
}

} // namespace

void Monkey::initTestCase()
{
    scheduler.addQueue("ZED-monkey");
    scheduler.setServerDefault("ZED-monkey");
}

void Monkey::cleanup()
{
    QDir(cupsFolder()).removeRecursively();
}

void Monkey::runs_data()
{
    QTest::addColumn<quint32>("seed");
    if (!qEnvironmentVariableIsSet("MONKEY_SEED"))
        QTest::newRow("fixed") << fixedSeed;
    quint32 seed = qEnvironmentVariableIsSet("MONKEY_SEED") ? qEnvironmentVariable("MONKEY_SEED").toUInt()
                                                            : QRandomGenerator::global()->generate();
    for (int i = 0; i < number("MONKEY_RUNS", 1); ++i, ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void Monkey::runs()
{
    QFETCH(quint32, seed);
    const int actions = number("MONKEY_ACTIONS", usualActions);
    qInfo("seed %u, %d actions", seed, actions);
    const DriverCommand driver("exit 0\n");
    Player player(seed);
    for (int i = 0; i < actions; ++i)
        player.act();
    // A new program can read what was saved: the queue exists, and libcups reads every value.
    QVERIFY(!storedOptions("ZED-monkey").isEmpty());
}

// Passed as environment variables, because the test program restarts itself and QTest parses the arguments.
int main(int argc, char **argv)
{
    for (int i = 1; i + 1 < argc;) {
        const QByteArray option = argv[i];
        const QByteArray variable = option == "--seed"      ? "MONKEY_SEED"
                                    : option == "--actions" ? "MONKEY_ACTIONS"
                                    : option == "--runs"    ? "MONKEY_RUNS"
                                                            : "";
        if (variable.isEmpty()) {
            ++i;
            continue;
        }
        qputenv(variable.constData(), argv[i + 1]);
        std::rotate(argv + i, argv + i + 2, argv + argc + 1); // the terminating null too
        argc -= 2;
    }
    return TestMain::run<Monkey>(argc, argv);
}

#include "Monkey.moc"
