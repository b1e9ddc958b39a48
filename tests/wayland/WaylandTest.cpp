// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "PrinterList.h"
#include "PrivateScheduler.h"
#include "TestMain.h"
#include "widgets/MessageBox.h"
#include "widgets/PasswordDialog.h"

#include <PropertiesDialog/ExtDialog.h>
#include <PropertiesDialog/PrintDialog.h>

#include <QDialogButtonBox>
#include <QListView>
#include <QProcess>
#include <QSpinBox>
#include <QThread>
#include <QTimer>
#include <QTreeWidget>

namespace {

constexpr int screenWidth = 1024;
constexpr int screenHeight = 768;

void runTool(const QStringList &arguments)
{
    if (QProcess::execute("xdotool", arguments) != 0)
        qFatal("xdotool %s failed", qPrintable(arguments.join(' ')));
}

// A Wayland compositor whose screen is a window of the X server. Its clients get the input of that window.
class Compositor
{
public:
    Compositor()
    {
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        // Ends with us, however that happens.
        process.start("setpriv",
                      {"--pdeathsig", "TERM", "weston", "--backend=x11-backend.so", "--shell=kiosk-shell.so",
                       "--no-config", "--idle-time=0", "--use-pixman", QString("--width=%1").arg(screenWidth),
                       QString("--height=%1").arg(screenHeight), "--socket=pd-wayland", "--log=/dev/null"});
        if (!process.waitForStarted())
            qFatal("weston is not installed");
        const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + "/pd-wayland";
        for (int tries = 0; !QFile::exists(socket); ++tries) {
            if (tries == 600)
                qFatal("weston does not start");
            QThread::msleep(100);
        }
        // Without a window manager, nothing else gives it the keyboard focus.
        runTool({"search", "--sync", "--onlyvisible", "--class", "weston", "windowfocus"});
    }
    ~Compositor()
    {
        process.terminate();
        process.waitForFinished();
    }

    Compositor(const Compositor &) = delete;
    Compositor &operator=(const Compositor &) = delete;

private:
    QProcess process;
};

void press(const QString &key)
{
    runTool({"key", key});
}

const char leftButton[] = "1";
const char wheelDown[] = "5";

// Moves the pointer to a place in a widget and clicks. The shell puts every window into the middle of the screen.
void click(const QWidget *widget, const QPoint &place, const char *button = leftButton)
{
    const QWidget *window = widget->window();
    const QPoint corner((screenWidth - window->width()) / 2, (screenHeight - window->height()) / 2);
    const QPoint screen = corner + widget->mapTo(window, place);
    // The compositor ignores a click before a movement inside the window.
    const auto isThere = [&] { return widget->mapFromGlobal(QCursor::pos()) == place; };
    for (int tries = 0; tries < 100; ++tries) {
        for (const int x : {screen.x() - 1, screen.x()})
            runTool({"mousemove", QString::number(x), QString::number(screen.y())});
        if (QTest::qWaitFor(isThere, 50))
            break;
    }
    runTool({"click", button});
}

void click(const QWidget *widget)
{
    click(widget, widget->rect().center());
}

// Radio buttons and check boxes are clicked at their marks; the rest of their width need not belong to them.
void clickMark(const QAbstractButton *button)
{
    click(button, QPoint(8, button->height() / 2));
}

// As often as there can be fields before it.
void tabTo(const QWidget *widget)
{
    for (int steps = 0; !widget->hasFocus() && steps < 40; ++steps) {
        const QWidget *focused = QApplication::focusWidget();
        press("Tab");
        if (!QTest::qWaitFor([focused] { return QApplication::focusWidget() != focused; }))
            return;
    }
}

// Return presses the default button.
void confirm(const QDialog &dialog, bool byPointer)
{
    if (byPointer)
        click(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok));
    else
        press("Return");
}

} // namespace

// If this fails, users of a Wayland desktop cannot work with some dialog by pointer or by keyboard.
class WaylandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void propertiesByPointer();
    void propertiesByKeyboard();
    void printDialogByPointer();
    void printDialogByKeyboard();
    void shortPrintDialog_data();
    void shortPrintDialog();
    void offsetDialog_data();
    void offsetDialog();
    void passwordDialog_data();
    void passwordDialog();
    void printerList_data();
    void printerList();
    void messageBox_data();
    void messageBox();

private:
    PrivateScheduler scheduler;
};

void WaylandTest::initTestCase()
{
    QVERIFY(QGuiApplication::platformName().startsWith("wayland"));
    scheduler.addQueue("LP", PrivateScheduler::samplePpd("label-203"), "Label printer");
    scheduler.addQueue("LP2", PrivateScheduler::samplePpd("label-300"), "Other printer");
    scheduler.setServerDefault("LP");
}

void WaylandTest::cleanup()
{
    clearHome();
}

void WaylandTest::propertiesByPointer()
{
    OpenDialog t;
    QTRY_VERIFY(t.dialog.isActiveWindow());

    auto *mirror = t.widget<QCheckBox>("mirroredCheckBox");
    clickMark(mirror);
    QTRY_VERIFY(mirror->isChecked());

    // A list opens in a window of its own, and closes with a click beside it. Not with a key: Qt 6.4 hands Return and
    // Escape on to the dialog.
    auto *presets = t.widget<QComboBox>("preset0");
    click(presets);
    QTRY_VERIFY(presets->view()->isVisible());
    click(t.widget("previewGroupBox"));
    QTRY_VERIFY(!presets->view()->isVisible());
    QVERIFY(t.dialog.isVisible());

    click(t.widget("okButton"));
    QTRY_VERIFY(!t.dialog.isVisible());
    QCOMPARE(t.dialog.result(), 1);
    QCOMPARE(storedOptions("LP").value("MirrorPrint"), QByteArray("True"));
}

void WaylandTest::propertiesByKeyboard()
{
    OpenDialog t;
    QTRY_VERIFY(t.dialog.isActiveWindow());

    auto *darkness = t.widget<QSlider>("darknessSlider");
    const int before = darkness->value();
    tabTo(darkness);
    QVERIFY(darkness->hasFocus());
    press("Right");
    QTRY_COMPARE(darkness->value(), before + 1);

    press("Return"); // OK is the default button
    QTRY_VERIFY(!t.dialog.isVisible());
    QCOMPARE(t.dialog.result(), 1);
    QCOMPARE(storedOptions("LP").value("Darkness"), QByteArray::number(before + 1));
}

void WaylandTest::printDialogByPointer()
{
    QPrinter printer;
    CupsSupport cups;
    PrintDialog dialog(nullptr, &printer, &cups);
    dialog.open();
    QTRY_VERIFY(dialog.isActiveWindow());

    auto *toDefault = dialog.findChild<QCheckBox *>("chkDefaultPrinter");
    clickMark(toDefault);
    QTRY_VERIFY(toDefault->isChecked());
    click(dialog.findChild<QWidget *>("yesButton_2"));
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void WaylandTest::printDialogByKeyboard()
{
    QPrinter printer;
    CupsSupport cups;
    PrintDialog dialog(nullptr, &printer, &cups);
    dialog.open();
    QTRY_VERIFY(dialog.isActiveWindow());

    auto *copies = dialog.findChild<QSpinBox *>("numCopies_2");
    copies->setFocus();
    press("Up");
    QTRY_COMPARE(copies->value(), 2);
    press("Escape");
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

// The smaller dialogs, each in both ways.
void WaylandTest::shortPrintDialog_data()
{
    QTest::addColumn<bool>("byPointer");
    QTest::newRow("pointer") << true;
    QTest::newRow("keyboard") << false;
}

void WaylandTest::offsetDialog_data()
{
    shortPrintDialog_data();
}

void WaylandTest::passwordDialog_data()
{
    shortPrintDialog_data();
}

void WaylandTest::printerList_data()
{
    shortPrintDialog_data();
}

void WaylandTest::messageBox_data()
{
    shortPrintDialog_data();
}

void WaylandTest::shortPrintDialog()
{
    QFETCH(bool, byPointer);
    PrintDialog dialog(nullptr);
    dialog.open();
    QTRY_VERIFY(dialog.isActiveWindow());
    if (byPointer)
        click(dialog.findChild<QWidget *>("yesButton"));
    else
        press("Return");
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void WaylandTest::offsetDialog()
{
    QFETCH(bool, byPointer);
    CupsSupport cups;
    ExtDialog dialog(nullptr, &cups);
    dialog.open();
    QTRY_VERIFY(dialog.isActiveWindow());

    auto *list = dialog.findChild<QComboBox *>("offset");
    list->setCurrentIndex(0);
    if (byPointer) {
        click(list);
        QTRY_VERIFY(list->view()->isVisible());
        click(&dialog, QPoint(5, 5)); // beside the list, which is in a window of its own
        QTRY_VERIFY(!list->view()->isVisible());
        click(list, list->rect().center(), wheelDown);
    } else {
        tabTo(list);
        press("Down");
    }
    QTRY_COMPARE(list->currentIndex(), 1);
    confirm(dialog, byPointer);
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void WaylandTest::passwordDialog()
{
    QFETCH(bool, byPointer);
    PasswordDialog dialog(nullptr, "user", false);
    dialog.open();
    QTRY_VERIFY(dialog.isActiveWindow());

    auto *password = dialog.findChild<QLineEdit *>("passwordEdit");
    if (byPointer) {
        dialog.findChild<QLineEdit *>("userEdit")->setFocus();
        click(password);
    } else {
        tabTo(password);
    }
    QTRY_VERIFY(password->hasFocus());
    for (const char *key : {"a", "b", "c"})
        press(key);
    QTRY_COMPARE(dialog.password(), QString("abc"));
    confirm(dialog, byPointer);
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void WaylandTest::printerList()
{
    QFETCH(bool, byPointer);
    const CupsSupport cups;
    PrinterList dialog(cups, "LP", QString());
    dialog.open();
    QTRY_VERIFY(dialog.isActiveWindow());

    auto *printers = dialog.findChild<QTreeWidget *>();
    if (byPointer) {
        click(printers->viewport(), printers->visualItemRect(printers->topLevelItem(1)).center());
    } else {
        tabTo(printers);
        press("Down");
    }
    QTRY_COMPARE(dialog.queue(), QString("LP2"));
    confirm(dialog, byPointer);
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void WaylandTest::messageBox()
{
    QFETCH(bool, byPointer);
    QTimer::singleShot(0, [byPointer] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        // So that a missed click fails the test and does not hold it up.
        QTimer::singleShot(10000, box, &QDialog::reject);
        if (!QTest::qWaitFor([box] { return box->isActiveWindow(); }))
            return;
        if (byPointer)
            click(box->button(QMessageBox::Yes));
        else
            press("Return");
    });
    QCOMPARE(MessageBox::show(QMessageBox::Question, "Title", "Question", QMessageBox::Yes | QMessageBox::No),
             QMessageBox::Yes);
}

int main(int argc, char **argv)
{
    const int exitCode = TestMain::prepare(argc, argv);
    if (exitCode >= 0)
        return exitCode;
    const Compositor compositor;
    qputenv("WAYLAND_DISPLAY", "pd-wayland");
    qputenv("QT_QPA_PLATFORM", "wayland");
    QApplication app(argc, argv);
    WaylandTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "WaylandTest.moc"
