// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "PrivateScheduler.h"
#include "TestMain.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRect>

#include <functional>

namespace {

const int patienceMs = 60000; // far longer than anything here takes, even on a busy machine

// A virtual X server that runs while this object exists.
class XServer
{
public:
    XServer()
    {
        server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        // It ends with this process, even if the test crashes.
        server.start("setpriv", {"--pdeathsig", "TERM", "Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24",
                                 "-nolisten", "tcp", "-noreset"});
        while (!server.canReadLine() && server.waitForReadyRead(patienceMs)) {
        }
        number = server.readLine().trimmed();
        if (number.isEmpty())
            qFatal("the X server does not start: %s", qPrintable(server.errorString()));
    }
    ~XServer()
    {
        server.terminate();
        server.waitForFinished(patienceMs);
    }

    XServer(const XServer &) = delete;
    XServer &operator=(const XServer &) = delete;

    QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DISPLAY", ':' + QString::fromLatin1(number));
        environment.insert("QT_QPA_PLATFORM", "xcb");
        return environment;
    }

private:
    QProcess server;
    QByteArray number;
};

// The dialog, opened by another process.
class Session
{
public:
    explicit Session(const XServer &xServer)
        : environment(xServer.environment())
    {
        host.setProcessEnvironment(environment);
        host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        host.start(E2E_HOST, QStringList());
        // Without a window manager, nothing gives a new window the keyboard focus, and the server refuses it until the
        // window is visible.
        waitFor("the dialog", [this] {
            if (state.isEmpty()) {
                return false;
            }
            xdotool({"windowfocus", QString::number(qint64(state.value("window").toDouble()))}, true);
            return state.value("active").toBool();
        });
    }

    // ----- looking -----

    void look()
    {
        host.write("\n");
        while (!host.canReadLine() && host.waitForReadyRead(patienceMs)) {
        }
        const QByteArray line = host.readLine();
        state = QJsonDocument::fromJson(line).object();
        if (line.isEmpty())
            qFatal("the dialog's host has ended");
    }

    void waitFor(const char *what, const std::function<bool()> &condition)
    {
        QElapsedTimer timer;
        timer.start();
        for (look(); !condition(); look()) {
            if (timer.elapsed() > patienceMs)
                qFatal("waited in vain for %s; the dialog: %s", what, QJsonDocument(state).toJson().constData());
            QTest::qWait(5);
        }
    }

    QJsonObject widget(const char *name) const { return state.value("widgets").toObject().value(name).toObject(); }
    QJsonValue shown(const char *name) const { return widget(name).value("shows"); }
    bool isEnabled(const char *name) const { return widget(name).value("enabled").toBool(); }

    void waitUntilShown(const char *name, const QJsonValue &value)
    {
        waitFor(
            name, [&] { return shown(name) == value; });
    }

    // What all widgets show.
    QJsonObject everything()
    {
        look();
        QJsonObject values;
        const QJsonObject widgets = state.value("widgets").toObject();
        for (auto it = widgets.begin(); it != widgets.end(); ++it) {
            const QJsonObject object = it.value().toObject();
            if (object.contains("shows"))
                values.insert(it.key(), object.value("shows"));
        }
        return values;
    }

    // ----- using -----

    void showTab(int tab)
    {
        look();
        clickAt(rect(state.value("tabs").toArray().at(tab)).center());
        waitFor("the tab", [&] { return state.value("tab").toInt() == tab; });
    }

    // Clicks the middle of a visible widget.
    void click(const char *name)
    {
        waitUntilUsable(name);
        clickAt(rect(widget(name).value("rect")).center());
    }

    // Clicks the mark of a radio button; the rest of its width may not react.
    void mark(const char *name)
    {
        waitUntilUsable(name);
        const QRect place = rect(widget(name).value("rect"));
        clickAt({place.left() + 8, place.center().y()});
        waitUntilShown(name, true);
    }

    void focusOn(const char *name)
    {
        click(name);
        waitFor(name, [&] { return widget(name).value("focus").toBool(); });
    }

    void key(const QString &name) { keys({name}); }
    void keys(const QStringList &names) { xdotool(QStringList("key") + names); }
    void type(const QString &text) { xdotool({"type", "--delay", "5", text}); }

    void retype(const char *name, const QString &text)
    {
        focusOn(name);
        key("ctrl+a");
        type(text);
        waitUntilShown(name, text);
    }

    void slideTo(const char *name, int value)
    {
        focusOn(name);
        key("Home");
        waitUntilShown(name, 0);
        keys(QVector<QString>(value, "Right").toList());
        waitUntilShown(name, value);
    }

    // Opens a list by mouse and chooses by keyboard.
    void chooseItem(const char *name, int index)
    {
        click(name);
        waitFor(name, [&] { return state.value("popup").toBool(); });
        keys(QStringList("Home") + QVector<QString>(index, "Down").toList() + QStringList("Return"));
    }

    void apply()
    {
        waitUntilUsable("applyButton");
        click("applyButton");
        waitFor("Apply", [&] { return !isEnabled("applyButton"); });
    }

    // The result of the dialog, once it is closed.
    int result()
    {
        if (!host.waitForFinished(patienceMs) || host.exitStatus() != QProcess::NormalExit)
            qFatal("the dialog does not close");
        return host.exitCode();
    }

private:
    static QRect rect(const QJsonValue &value)
    {
        const QJsonArray numbers = value.toArray();
        return {numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt(), numbers.at(3).toInt()};
    }

    void waitUntilUsable(const char *name)
    {
        waitFor(
            name, [&] { return widget(name).value("visible").toBool() && isEnabled(name); });
    }

    void clickAt(const QPoint &place)
    {
        // Otherwise it waits for 100 ms after the click.
        xdotool({"mousemove", QString::number(place.x()), QString::number(place.y()), "click", "--delay", "0", "1"});
    }

    void xdotool(const QStringList &arguments, bool mayFail = false)
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start("xdotool", arguments);
        const bool good = process.waitForFinished(patienceMs) && process.exitStatus() == QProcess::NormalExit
                          && process.exitCode() == 0;
        if (!good && !mayFail) {
            qFatal("xdotool %s failed: %s", qPrintable(arguments.join(' ')),
                   process.readAllStandardError().constData());
        }
    }

    QProcessEnvironment environment;
    QProcess host;
    QJsonObject state;
};

const char *const commandRadios[] = {"jobStartRadioButton", "labelStartRadioButton", "labelEndRadioButton",
                                     "jobEndRadioButton"};

enum Tab {
    PageSetup,
    PresetsTab,
    Stock,
    Advanced
};

} // namespace

// If this fails, a user at a real display cannot operate the dialog, or does not get what they saved.
class EndToEndTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void changedAppliedAndReopened();
    void cancelledAndReopened();
    void presetChosen();
    void result_data();
    void result();

private:
    PrivateScheduler scheduler;
    XServer xServer;
};

void EndToEndTest::initTestCase()
{
    scheduler.addQueue("Label");
    scheduler.setServerDefault("Label");
}

void EndToEndTest::init()
{
    QVERIFY(QDir(QDir::homePath() + "/.cups").removeRecursively());
}

void EndToEndTest::changedAppliedAndReopened()
{
    QJsonObject before;
    {
        Session session(xServer);
        session.showTab(Stock);
        session.waitUntilShown("gapSizeLabel", "Gap Size");
        session.retype("gapSize", "0.25");

        session.showTab(PageSetup);
        session.slideTo("darknessSlider", 4);
        session.waitUntilShown("darknessValue", "4");
        session.mark("landscape180RadioButton");

        session.showTab(Advanced);
        session.mark("labelEndRadioButton");
        session.focusOn("commandEdit");
        session.type("FEED 2");
        session.key("Return");
        session.type("BEEP #1 'x'");
        session.key("Return");
        session.waitUntilShown("commandEdit", "FEED 2\nBEEP #1 'x'\n");
        session.apply();

        // A preset of what was applied.
        session.showTab(PresetsTab);
        session.click("presetNewButton");
        session.waitUntilShown("preset1", "New Preset");
        session.retype("nameEdit", "Shipping");
        session.key("Tab");
        session.waitUntilShown("preset1", "Shipping");
        session.focusOn("descriptionEdit");
        session.type("Pallets");
        session.waitUntilShown("descriptionEdit", "Pallets");
        session.apply();

        session.showTab(Advanced);
        session.mark("jobStartRadioButton"); // where a new dialog begins
        session.waitUntilShown("commandEdit", "");
        before = session.everything();
        session.click("cancelButton");
        QCOMPARE(session.result(), 0);
    }

    Session session(xServer);
    const QJsonObject after = session.everything();
    QCOMPARE(after.keys(), before.keys());
    for (auto it = after.begin(); it != after.end(); ++it)
        QVERIFY2(it.value() == before.value(it.key()), qPrintable(it.key()));
    // Both are what was entered.
    QCOMPARE(after.value("gapSize").toString(), QString("0.25"));
    QCOMPARE(after.value("darknessSlider").toInt(), 4);
    QVERIFY(after.value("landscape180RadioButton").toBool());
    QCOMPARE(after.value("preset0").toString(), QString("Shipping"));
    QCOMPARE(after.value("nameEdit").toString(), QString("Shipping"));
    QCOMPARE(after.value("descriptionEdit").toString(), QString("Pallets"));
    session.showTab(Advanced);
    for (const char *radio : commandRadios) {
        session.mark(radio);
        session.waitUntilShown("commandEdit",
                               QByteArray(radio) == "labelEndRadioButton" ? "FEED 2\nBEEP #1 'x'\n" : "");
    }
    QVERIFY(!session.isEnabled("applyButton"));
    session.click("okButton");
    QCOMPARE(session.result(), 1);

    // Other programs see it too.
    const QByteArray options = ' ' + PrivateScheduler::run("lpoptions", {"-p", "Label"}).trimmed() + ' ';
    for (const char *option : {" GapSize=6.350 ", " Darkness=4 ", " orientation-requested=5 "})
        QVERIFY2(options.contains(option), options.constData());
    QFile script(QDir::homePath() + "/.cups/Label/Preset.sh");
    QVERIFY(script.open(QIODevice::ReadOnly));
    QVERIFY(script.readAll().startsWith(
        "#!/bin/bash\n#name=Shipping\n#description=Pallets\nlpoptions -pLabel -oDarkness=4 "));
}

void EndToEndTest::cancelledAndReopened()
{
    QJsonObject before;
    {
        Session session(xServer);
        before = session.everything();
        session.slideTo("darknessSlider", 3);
        session.mark("portraitRadioButton");
        session.showTab(Stock);
        session.retype("stop", "0.75");
        session.showTab(PageSetup);
        session.click("cancelButton");
        QCOMPARE(session.result(), 0);
    }
    QVERIFY(!QFile::exists(QDir::homePath() + "/.cups/lpoptions"));
    Session session(xServer);
    QCOMPARE(session.everything(), before);
    session.click("cancelButton");
    QCOMPARE(session.result(), 0);
}

// By the list on the first page.
void EndToEndTest::presetChosen()
{
    scheduler.setUserOptions("Label", {"Darkness=4", "PrintSpeed=1"});
    {
        Session session(xServer);
        session.waitUntilShown("darknessSlider", 4);
        session.chooseItem("preset0", 1);
        session.waitUntilShown("preset0", "<Default Settings>");
        session.waitUntilShown("darknessSlider", 10);
        session.waitUntilShown("speedValue", "3");
        session.click("okButton");
        QCOMPARE(session.result(), 1);
    }
    Session session(xServer);
    QCOMPARE(session.shown("darknessSlider").toInt(), 10);
    session.click("cancelButton");
    QCOMPARE(session.result(), 0);
}

void EndToEndTest::result_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << QByteArray("okButton") << QString() << 1;
    QTest::newRow("Cancel") << QByteArray("cancelButton") << QString() << 0;
    QTest::newRow("Escape") << QByteArray() << "Escape" << 0;
    QTest::newRow("Return") << QByteArray() << "Return" << 1; // OK is the first of the buttons
}

void EndToEndTest::result()
{
    QFETCH(QByteArray, button);
    QFETCH(QString, key);
    QFETCH(int, result);
    Session session(xServer);
    if (button.isEmpty())
        session.key(key);
    else
        session.click(button);
    QCOMPARE(session.result(), result);
}

PROPERTIESDIALOG_TEST_MAIN(EndToEndTest)

#include "EndToEndTest.moc"
