// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "Programs.h"
#include "TestMain.h"

#include <PropertiesDialog/PropertiesDialog.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTimer>

#include <thread>

using Programs::Environment;
using Programs::Result;

namespace {

// The command of a host in this language, see plain-host.c.
QStringList host(const QString &language, const QStringList &arguments)
{
    const QStringList command =
        language == "C" ? QStringList{PLAIN_C_HOST} : QString(PYTHON).split('|') + QStringList{PLAIN_PYTHON_HOST};
    return command + arguments;
}

QStringList languagesOfHosts()
{
    return {"C", "Python"};
}

Environment withLibrary(const Environment &changes)
{
    return Programs::changed(changes, {{"LD_LIBRARY_PATH", LIBRARY_DIR}});
}

// A Wayland compositor without a screen that runs while this object exists.
class Compositor
{
public:
    Compositor()
    {
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start("weston",
                      {"--backend=headless-backend.so", "--no-config", "--idle-time=0", "--socket=pd-wayland"});
        const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + "/pd-wayland";
        if (!QTest::qWaitFor([&] { return QFile::exists(socket); }, 60000))
            qFatal("weston does not start");
    }
    ~Compositor()
    {
        process.terminate();
        process.waitForFinished();
    }

private:
    QProcess process;
};

const QString windowTitle = "Second Printing Preferences";

} // namespace

// If this fails, opening the dialog ends programs in C and Python or changes their numbers, or opens the wrong printer.
class HostsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void goesOnWithoutDisplay_data();
    void goesOnWithoutDisplay();
    void goesOnWithoutPlugin_data();
    void goesOnWithoutPlugin();
    void opensOnLiveXServer_data();
    void opensOnLiveXServer();
    void opensOnLiveCompositor_data();
    void opensOnLiveCompositor();
    void keepsItsLocale_data();
    void keepsItsLocale();
    void keepsFileNames_data();
    void keepsFileNames();
    void opensQueue_data();
    void opensQueue();
    void noSuchQueue_data();
    void noSuchQueue();
    void noQueueGiven();
    void otherThread();

private:
    PrivateScheduler scheduler;
};

void HostsTest::initTestCase()
{
    scheduler.addQueue("First", PrivateScheduler::samplePpd("label-203"), "The first printer");
    scheduler.addQueue("Second", PrivateScheduler::samplePpd("label-300"), "The second printer");
    scheduler.setServerDefault("Second");
    scheduler.setUserOptions("First/wide", {"Darkness=3"});
}

// ----- where no window can be shown -----

void HostsTest::goesOnWithoutDisplay_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<Environment>("environment");
    for (const QString &language : languagesOfHosts()) {
        const auto add = [&](const char *name, const Environment &environment) {
            QTest::addRow("%s, %s", qPrintable(language), name) << language << environment;
        };
        add("nothing is set", {});
        add("dead X server", {{"DISPLAY", ":4711"}});
        add("dead X server in the network", {{"DISPLAY", "localhost:4711.0"}});
        add("no name of a display", {{"DISPLAY", "nonsense"}});
        add("dead compositor", {{"WAYLAND_DISPLAY", "wayland-4711"}});
        add("dead compositor, by path", {{"WAYLAND_DISPLAY", "/tmp/pd-nothing/wayland-0"}});
        add("closed connection to a compositor", {{"WAYLAND_DISPLAY", "wayland-0"}, {"WAYLAND_SOCKET", "4711"}});
        add("both dead", {{"DISPLAY", ":4711"}, {"WAYLAND_DISPLAY", "wayland-4711"}});
        add("both dead, Wayland session",
            {{"DISPLAY", ":4711"}, {"WAYLAND_DISPLAY", "wayland-4711"}, {"XDG_SESSION_TYPE", "wayland"}});
        add("unknown platform", {{"QT_QPA_PLATFORM", "nonsense"}});
        add("several unknown platforms", {{"QT_QPA_PLATFORM", "nonsense;;rubbish:argument"}});
        add("platform without its display", {{"QT_QPA_PLATFORM", "xcb"}});
        add("platform variant without its display", {{"QT_QPA_PLATFORM", "wayland-egl"}});
        add("platforms without their displays", {{"QT_QPA_PLATFORM", "wayland;xcb"}, {"DISPLAY", ":4711"}});
    }
}

void HostsTest::goesOnWithoutDisplay()
{
    QFETCH(QString, language);
    QFETCH(Environment, environment);
    const Result result =
        Programs::run(host(language, {"C", "-"}), withLibrary(Programs::changed(Programs::noDisplay(), environment)));
    QVERIFY2(result.exitStatus == 0, qPrintable(result.errors));
    QVERIFY2(result.output.contains("returned 0\n"), qPrintable(result.output));
}

void HostsTest::goesOnWithoutPlugin_data()
{
    QTest::addColumn<Environment>("environment");
    QTest::newRow("xcb") << Environment{{"QT_QPA_PLATFORM", {}}};
    QTest::newRow("offscreen") << Environment{{"QT_QPA_PLATFORM", "offscreen"}};
}

// A file beside the host tells Qt where plug-ins are: here, nowhere.
void HostsTest::goesOnWithoutPlugin()
{
    QFETCH(Environment, environment);
    const QTemporaryDir folder("/tmp/pd-XXXXXX");
    QVERIFY(QFile::copy(PLAIN_C_HOST, folder.filePath("host")));
    writeFile(folder.filePath("qt.conf"), "[Paths]\nPlugins=/nonexistent\n");
    const Result result = Programs::run({folder.filePath("host"), "C", "-"}, withLibrary(environment));
    QVERIFY2(result.exitStatus == 0, qPrintable(result.errors));
    QVERIFY2(result.output.contains("returned 0\n"), qPrintable(result.output));
}

void HostsTest::opensOnLiveXServer_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<Environment>("environment");
    QTest::newRow("Python") << "Python" << Environment();
    const auto add = [](const char *name, const Environment &environment) {
        QTest::newRow(name) << "C" << environment;
    };
    add("alone", {});
    add("a Wayland session's", {{"XDG_SESSION_TYPE", "wayland"}});
    add("named", {{"QT_QPA_PLATFORM", "xcb"}});
    add("named beside others", {{"QT_QPA_PLATFORM", "nonsense;wayland;xcb"}});
}

void HostsTest::opensOnLiveXServer()
{
    QFETCH(QString, language);
    QFETCH(Environment, environment);
    const Result result =
        Programs::press(host(language, {"C", "-"}), {{windowTitle, "Escape"}}, withLibrary(environment));
    QVERIFY2(result.exitStatus == 0, qPrintable(result.errors));
    QVERIFY2(result.output.contains("returned 0\n"), qPrintable(result.output));
}

void HostsTest::opensOnLiveCompositor_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<Environment>("environment");
    QTest::newRow("Python") << "Python" << Environment();
    const auto add = [](const char *name, const Environment &environment) {
        QTest::newRow(name) << "C" << environment;
    };
    add("alone", {});
    add("beside a dead X server", {{"DISPLAY", ":4711"}});
    add("an X11 session's", {{"XDG_SESSION_TYPE", "x11"}});
    add("named", {{"QT_QPA_PLATFORM", "wayland"}});
    add("named beside others", {{"QT_QPA_PLATFORM", "nonsense;xcb;wayland"}});
}

// The compositor has no keyboard or mouse. The host's requests to it are in the host's log.
void HostsTest::opensOnLiveCompositor()
{
    QFETCH(QString, language);
    QFETCH(Environment, environment);
    const Compositor compositor;
    QProcess process;
    environment = Programs::changed({{"WAYLAND_DISPLAY", "pd-wayland"}, {"WAYLAND_DEBUG", "client"}}, environment);
    process.setProcessEnvironment(
        Programs::processEnvironment(withLibrary(Programs::changed(Programs::noDisplay(), environment))));
    const QStringList command = host(language, {"C", "-"});
    process.start(command.first(), command.mid(1));
    QByteArray log;
    const bool isShown = QTest::qWaitFor(
        [&] {
            log += process.readAllStandardError();
            return log.contains(".set_title(\"" + windowTitle.toUtf8() + "\")")
                   || process.state() == QProcess::NotRunning;
        },
        60000);
    const bool isRunning = process.state() == QProcess::Running;
    process.kill();
    process.waitForFinished();
    QVERIFY2(isShown && isRunning, log.right(2000).constData());
}

// ----- what is the host's -----

void HostsTest::keepsItsLocale_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("expected");
    const QString mixed =
        "LC_CTYPE=de_DE.UTF-8;LC_NUMERIC=C;LC_TIME=C;LC_COLLATE=C;LC_MONETARY=C;LC_MESSAGES=C;LC_PAPER=C;"
        "LC_NAME=C;LC_ADDRESS=C;LC_TELEPHONE=C;LC_MEASUREMENT=C;LC_IDENTIFICATION=C";
    QTest::newRow("C, none set") << "C"
                                 << "C"
                                 << "C 1.5 2.5";
    QTest::newRow("C, the encoding set") << "C"
                                         << "encoding" << mixed + " 1.5 2.5";
    QTest::newRow("C, the user's set") << "C"
                                       << "user"
                                       << "de_DE.UTF-8 1,5 2,0";
    QTest::newRow("Python, none set") << "Python"
                                      << "C" << mixed + " 1.5 2.5";
    QTest::newRow("Python, the user's set") << "Python"
                                            << "user"
                                            << "de_DE.UTF-8 1,5 2.0";
}

// The host prints and reads numbers after the dialog as before, in each of two calls.
void HostsTest::keepsItsLocale()
{
    QFETCH(QString, language);
    QFETCH(QString, locale);
    QFETCH(QString, expected);
    const Result result = Programs::press(host(language, {locale, "-", "First"}),
                                          {{windowTitle, "a Escape"}, {"First Printing Preferences", "Return"}},
                                          withLibrary({{"LC_ALL", "de_DE.UTF-8"}, {"LANGUAGE", "en"}}));
    QVERIFY2(result.exitStatus == 0, qPrintable(result.errors));
    QCOMPARE(result.output, QString("%1\nreturned 0\n%1\nreturned 1\n%1\n").arg(expected));
}

void HostsTest::keepsFileNames_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languagesOfHosts())
        QTest::newRow(qPrintable(language)) << language;
}

// A folder name outside ASCII is read in the user's encoding, whatever the host's is, in each of two calls.
void HostsTest::keepsFileNames()
{
    QFETCH(QString, language);
    const QTemporaryDir folder("/tmp/pd-Büro-XXXXXX");
    // If root runs the tests, libcups may use the second of these folders.
    const QMap<QString, QString> environment{{"LC_ALL", "de_DE.UTF-8"},
                                             {"LANGUAGE", "en"},
                                             {"HOME", folder.path()},
                                             {"CUPS_SERVERROOT", folder.filePath(".cups")}};
    const Result result =
        Programs::press(host(language, {"C", "-", "First"}),
                        {{windowTitle, "Escape"}, {"First Printing Preferences", "Return"}}, withLibrary(environment));
    QVERIFY2(result.exitStatus == 0, qPrintable(result.errors));
    QVERIFY(QFile::exists(folder.filePath(".cups/lpoptions")));
}

// ----- which queue -----

void HostsTest::opensQueue_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("queue");
    for (const QString &language : languagesOfHosts())
        for (const char *queue : {"First", "First/wide", "Second"})
            QTest::addRow("%s, %s", qPrintable(language), queue) << language << QString(queue);
}

void HostsTest::opensQueue()
{
    QFETCH(QString, language);
    QFETCH(QString, queue);
    clearHome();
    scheduler.setUserOptions("First/wide", {"Darkness=3"});
    const Result result =
        Programs::press(host(language, {"C", queue}), {{queue + " Printing Preferences", "Return"}}, withLibrary({}));
    QVERIFY2(result.exitStatus == 0, qPrintable(result.errors));
    QVERIFY2(result.output.contains("returned 1\n"), qPrintable(result.output));
    QCOMPARE(fileContent(homePath(".cups/lpoptions")).count("orientation-requested"), 1);
    QVERIFY(fileContent(homePath(".cups/lpoptions")).contains(' ' + queue.toUtf8() + ' '));
}

void HostsTest::noSuchQueue_data()
{
    QTest::addColumn<QString>("queue");
    QTest::newRow("unknown") << "Third";
    QTest::newRow("description") << "The first printer";
    QTest::newRow("other case") << "first";
    QTest::newRow("unknown instance") << "First/narrow";
    QTest::newRow("empty") << "";
}

void HostsTest::noSuchQueue()
{
    QFETCH(QString, queue);
    clearHome();
    for (const QString &language : languagesOfHosts()) {
        const Result result =
            Programs::run(host(language, {"C", queue}), withLibrary({{"QT_QPA_PLATFORM", "offscreen"}}));
        QVERIFY2(result.exitStatus == 0, qPrintable(result.errors));
        QVERIFY2(result.output.contains("returned 0\n"), qPrintable(result.output));
    }
    QVERIFY(!QFile::exists(homePath(".cups")));
}

void HostsTest::noQueueGiven()
{
    QCOMPARE(propertiesDialogFor(nullptr), 0);
    QCOMPARE(propertiesDialogFor(""), 0);
}

// ----- a host with Qt -----

// Widgets belong to the thread of the QApplication.
void HostsTest::otherThread()
{
    int result = -1;
    int resultForQueue = -1;
    std::thread thread([&] {
        result = propertiesDialog();
        resultForQueue = propertiesDialogFor("First");
    });
    thread.join();
    QCOMPARE(result, 0);
    QCOMPARE(resultForQueue, 0);
}

PROPERTIESDIALOG_TEST_MAIN(HostsTest)
#include "HostsTest.moc"
