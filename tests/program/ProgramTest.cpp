// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "DriverPpds.h"
#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "Programs.h"
#include "TestMain.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <cups/cups.h>

using Programs::Environment;
using Programs::Result;

namespace {

using TitlesAndKeys = QList<QPair<QString, QString>>;

const QString listTitle = "Label Printer Properties";

// Keys for the properties dialog, which opens with the focus on its tabs. Apply gives it back to them.
const QString useUserPageSize = "Tab space";
const QString changeMirrored = "Tab Tab Tab space";
const QString applyIt = "shift+Tab shift+Tab shift+Tab shift+Tab space";
const QString chooseNextPreset = "Tab Tab Tab Tab Tab Down";

QString dialogTitle(const QString &queue)
{
    return queue + " Printing Preferences";
}

// Another scheduler than the test's for the time of this object, if it is wanted.
class OtherScheduler
{
public:
    explicit OtherScheduler(bool isWanted = true)
        : server(qgetenv("CUPS_SERVER"))
    {
        if (isWanted)
            scheduler = std::make_unique<PrivateScheduler>();
    }
    ~OtherScheduler()
    {
        scheduler.reset();
        qputenv("CUPS_SERVER", server);
        cupsSetServer(server.constData());
    }

    OtherScheduler(const OtherScheduler &) = delete;
    OtherScheduler &operator=(const OtherScheduler &) = delete;

    PrivateScheduler *operator->() { return scheduler.get(); }

private:
    const QByteArray server;
    std::unique_ptr<PrivateScheduler> scheduler;
};

} // namespace

// If this fails, label-printer-properties opens the wrong printer, is silent about a lack of printers or displays, or
// returns a wrong exit status.
class ProgramTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void withoutWindow_data();
    void withoutWindow();
    void listsTheQueues();
    void listsNothing_data();
    void listsNothing();
    void opensTheDialog_data();
    void opensTheDialog();
    void opensTheOnlyQueue();
    void printsTestLabelFromTheList();
    void chosenPrinterIsGone();
    void defaultIsUnknown();
    void saysThatThereIsNoPrinter_data();
    void saysThatThereIsNoPrinter();
    void saysThatThereIsNoDisplay_data();
    void saysThatThereIsNoDisplay();
    void opensAsTheOnlyClient();
    void savesForTheNamedQueue();
    void saysWhyItCannotSave_data();
    void saysWhyItCannotSave();
    void asksAboutConflicts_data();
    void asksAboutConflicts();
    void menuEntryIsTranslated_data();
    void menuEntryIsTranslated();

private:
    static Result run(const QStringList &arguments, const Environment &environment = {});
    static Result press(const QStringList &arguments, const TitlesAndKeys &keys, const Environment &environment = {});

    PrivateScheduler scheduler;
};

void ProgramTest::initTestCase()
{
    scheduler.addQueue("First", PrivateScheduler::samplePpd("label-203"), "The first printer");
    scheduler.addQueue("Second", PrivateScheduler::samplePpd("label-300"), "The second printer");
    scheduler.setServerDefault("Second");
    scheduler.setUserOptions("First/wide", {"Darkness=3"});
}

Result ProgramTest::run(const QStringList &arguments, const Environment &environment)
{
    return Programs::run(QStringList{PROGRAM} + arguments, environment);
}

Result ProgramTest::press(const QStringList &arguments, const TitlesAndKeys &keys, const Environment &environment)
{
    return Programs::press(QStringList{PROGRAM} + arguments, keys, environment);
}

void ProgramTest::withoutWindow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitStatus");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("errors");
    const QString usage = "Usage: ";
    QTest::newRow("--help") << QStringList{"--help"} << 0 << usage << QString();
    QTest::newRow("-h") << QStringList{"-h"} << 0 << usage << QString();
    const QString version = "label-printer-properties " PROGRAM_VERSION "\n";
    QTest::newRow("--version") << QStringList{"--version"} << 0 << version << QString();
    QTest::newRow("-v") << QStringList{"-v"} << 0 << version << QString();
    const QString noPrinter = "label-printer-properties: there is no printer \"%1\"; --list names those there are\n";
    QTest::newRow("wrong name") << QStringList{"-p", "Third"} << 2 << QString() << noPrinter.arg("Third");
    QTest::newRow("empty name") << QStringList{"-p", ""} << 2 << QString() << noPrinter.arg("");
    QTest::newRow("a description is no name")
        << QStringList{"--printer", "The first printer"} << 2 << QString() << noPrinter.arg("The first printer");
    QTest::newRow("name missing") << QStringList{"-p"} << 2 << QString() << "label-printer-properties: ";
    QTest::newRow("unknown option") << QStringList{"--wrong"} << 2 << QString() << "label-printer-properties: ";
    QTest::newRow("unexpected argument") << QStringList{"First"} << 2 << QString()
                                         << "label-printer-properties: unexpected argument \"First\"\n";
}

void ProgramTest::withoutWindow()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitStatus);
    QFETCH(QString, output);
    QFETCH(QString, errors);
    const Result result = run(arguments);
    QCOMPARE(result.exitStatus, exitStatus);
    QVERIFY2(output.isEmpty() ? result.output.isEmpty() : result.output.startsWith(output), qPrintable(result.output));
    QVERIFY2(errors.isEmpty() ? result.errors.isEmpty() : result.errors.startsWith(errors), qPrintable(result.errors));
}

void ProgramTest::listsTheQueues()
{
    for (const char *option : {"--list", "-l"}) {
        const Result result = run({option});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.output, QString("  First\n  First/wide\n* Second\n"));
    }
}

void ProgramTest::listsNothing_data()
{
    QTest::addColumn<Environment>("environment");
    QTest::addColumn<QString>("errors");
    QTest::newRow("no scheduler") << Environment{{"CUPS_SERVER", "/tmp/no-such-folder/cups.sock"}}
                                  << "label-printer-properties: The print service cannot be reached: ";
    QTest::newRow("no queue") << Environment{{"EMPTY", "1"}}
                              << "label-printer-properties: No printers have been set up.\n";
}

void ProgramTest::listsNothing()
{
    QFETCH(Environment, environment);
    QFETCH(QString, errors);
    const OtherScheduler empty(environment.contains("EMPTY"));
    const Result result = run({"--list"}, environment);
    QCOMPARE(result.exitStatus, 2);
    QVERIFY2(result.output.isEmpty(), qPrintable(result.output));
    QVERIFY2(result.errors.startsWith(errors), qPrintable(result.errors));
}

void ProgramTest::opensTheDialog_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<TitlesAndKeys>("keys");
    QTest::addColumn<int>("exitStatus");
    const QStringList none;
    QTest::newRow("default of the list, OK")
        << none << TitlesAndKeys{{listTitle, "Return"}, {dialogTitle("Second"), "Return"}} << 0;
    QTest::newRow("default of the list, cancelled")
        << none << TitlesAndKeys{{listTitle, "Return"}, {dialogTitle("Second"), "Escape"}} << 1;
    QTest::newRow("another of the list") << none
                                         << TitlesAndKeys{{listTitle, "Up Return"},
                                                          {dialogTitle("First/wide"), "Escape"}}
                                         << 1;
    QTest::newRow("list cancelled") << none << TitlesAndKeys{{listTitle, "Escape"}} << 1;
    QTest::newRow("named, OK") << QStringList{"-p", "First"} << TitlesAndKeys{{dialogTitle("First"), "Return"}} << 0;
    QTest::newRow("named, cancelled") << QStringList{"--printer=First"}
                                      << TitlesAndKeys{{dialogTitle("First"), "Escape"}} << 1;
    QTest::newRow("instance, cancelled") << QStringList{"-p", "First/wide"}
                                         << TitlesAndKeys{{dialogTitle("First/wide"), "Escape"}} << 1;
}

void ProgramTest::opensTheDialog()
{
    QFETCH(QStringList, arguments);
    QFETCH(TitlesAndKeys, keys);
    QFETCH(int, exitStatus);
    const Result result = press(arguments, keys);
    QVERIFY2(result.exitStatus == exitStatus, qPrintable(QString::number(result.exitStatus) + result.errors));
}

// With one printer there is nothing to choose, also when none is the default.
void ProgramTest::opensTheOnlyQueue()
{
    OtherScheduler other;
    other->addQueue("Only");
    QCOMPARE(press({}, {{dialogTitle("Only"), "Escape"}}).exitStatus, 1);
}

void ProgramTest::printsTestLabelFromTheList()
{
    // A button that is pressed by its letter acts after a moment.
    QCOMPARE(press({}, {{listTitle, "Up alt+t sleep 0.5"}, {listTitle, "Escape"}}).exitStatus, 1);
    const CapturedJob job = scheduler.jobs(1).constFirst();
    QCOMPARE(job.queue, QString("First"));
    QVERIFY(job.data.startsWith("%PDF"));
}

// Not as if the user had cancelled.
void ProgramTest::chosenPrinterIsGone()
{
    scheduler.addQueue("Gone");
    const QString remove = " exec --sync --args 3 lpadmin -x Gone";
    const Result result = press({}, {{listTitle, "Up" + remove + " key Return"}});
    QCOMPARE(result.exitStatus, 2);
    QCOMPARE(result.errors, "label-printer-properties: there is no printer \"Gone\"; --list names those there are\n");
}

// The user's default may have been removed. The user is told, and not shown another printer unasked.
void ProgramTest::defaultIsUnknown()
{
    const Environment environment{{"LPDEST", "Gone"}};
    QCOMPARE(press({}, {{listTitle, "Escape"}}, environment).exitStatus, 2);
    // None is selected yet, so that Return alone does nothing.
    const TitlesAndKeys chosen{{listTitle, "Return Home Return"}, {dialogTitle("First"), "Escape"}};
    QCOMPARE(press({}, chosen, environment).exitStatus, 1);
}

void ProgramTest::saysThatThereIsNoPrinter_data()
{
    listsNothing_data();
}

void ProgramTest::saysThatThereIsNoPrinter()
{
    QFETCH(Environment, environment);
    QFETCH(QString, errors);
    const OtherScheduler empty(environment.contains("EMPTY"));
    for (const QStringList &arguments : {QStringList(), QStringList{"-p", "First"}}) {
        QCOMPARE(press(arguments, {{listTitle, "Escape"}}, environment).exitStatus, 2);
        const Result result = run(arguments, Programs::changed(Programs::noDisplay(), environment));
        QCOMPARE(result.exitStatus, 2);
        QVERIFY2(result.errors.startsWith(errors), qPrintable(result.errors));
    }
}

void ProgramTest::saysThatThereIsNoDisplay_data()
{
    QTest::addColumn<Environment>("environment");
    QTest::addColumn<QString>("reason");
    QTest::newRow("nothing is set") << Environment() << ": neither DISPLAY nor WAYLAND_DISPLAY is set";
    QTest::newRow("dead X server") << Environment{{"DISPLAY", ":4711"}} << " with DISPLAY=:4711";
    QTest::newRow("dead compositor") << Environment{{"WAYLAND_DISPLAY", "wayland-4711"}}
                                     << " with WAYLAND_DISPLAY=wayland-4711";
    QTest::newRow("unknown platform") << Environment{{"QT_QPA_PLATFORM", "nonsense"}, {"DISPLAY", ":4711"}}
                                      << " with DISPLAY=:4711 QT_QPA_PLATFORM=nonsense";
}

void ProgramTest::saysThatThereIsNoDisplay()
{
    QFETCH(Environment, environment);
    QFETCH(QString, reason);
    for (const QStringList &arguments : {QStringList(), QStringList{"-p", "First"}}) {
        const Result result = run(arguments, Programs::changed(Programs::noDisplay(), environment));
        QCOMPARE(result.exitStatus, 2);
        QCOMPARE(result.errors, "label-printer-properties: no window can be shown" + reason + '\n');
    }
}

// This X server ends when its last client leaves it; others are out of reach for a moment then.
void ProgramTest::opensAsTheOnlyClient()
{
    const QString script = "coproc server { exec Xvfb -terminate -displayfd 1 -nolisten tcp 2>/dev/null; }\n"
                           "files() { ls /proc/$server_PID/fd | wc -l; }\n"
                           "read -r display <&${server[0]} && export DISPLAY=:$display\n"
                           "before=$(files)\n"
                           "\"$@\" & program=$!\n"
                           // Without a client of its own, the server would not survive the search.
                           "until (($(files) > before)) || ! kill -0 $program; do sleep 0.01; done\n"
                           "until xdotool search --onlyvisible --name \"$TITLE\" windowfocus --sync key Escape; do\n"
                           "  kill -0 $program 2>/dev/null && sleep 0.05 || break\n"
                           "done\n"
                           "wait $program";
    const Environment environment{{"QT_QPA_PLATFORM", "xcb"}, {"TITLE", dialogTitle("First")}};
    const Result result = Programs::run({"bash", "-c", script, "-", PROGRAM, "-p", "First"}, environment);
    QVERIFY2(result.exitStatus == 1, qPrintable(QString::number(result.exitStatus) + result.errors));
}

void ProgramTest::savesForTheNamedQueue()
{
    scheduler.addQueue("Untouched");
    scheduler.setUserOptions("First", {"Darkness=4"});
    scheduler.setUserOptions("Untouched", {"Darkness=5"});
    QCOMPARE(press({"-p", "First"}, {{dialogTitle("First"), "Return"}}).exitStatus, 0);
    const Options first = storedOptions("First");
    QCOMPARE(first.value("Darkness"), QByteArray("4"));
    QCOMPARE(first.value("orientation-requested"), QByteArray("4")); // what the dialog always saves
    const Options untouched = storedOptions("Untouched");
    QCOMPARE(untouched.value("Darkness"), QByteArray("5"));
    QVERIFY(!untouched.contains("orientation-requested"));
}

void ProgramTest::saysWhyItCannotSave_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("errors");
    const QString options = "The settings could not be saved: " + homePath(".cups/lpoptions: ");
    const QString presets = "The presets could not be saved.\n";
    // A preset with a page size has the PPD file requested again.
    const QString later = changeMirrored + " " + applyIt + " " + chooseNextPreset + " Escape";
    QTest::newRow("options, OK") << ".cups/lpoptions/folder"
                                 << "Return" << options;
    QTest::newRow("options, Apply, another request, Cancel") << ".cups/lpoptions/folder" << later << options;
    QTest::newRow("presets, OK") << ".cups/First/_current.sh/folder" << changeMirrored + " Return" << presets;
    QTest::newRow("presets, Apply, another request, Cancel") << ".cups/First/_current.sh/folder" << later << presets;
}

// A folder that is not empty has the path of the file.
void ProgramTest::saysWhyItCannotSave()
{
    QFETCH(QString, obstacle);
    QFETCH(QString, keys);
    QFETCH(QString, errors);
    clearHome();
    QVERIFY(QDir().mkpath(homePath(obstacle)));
    writeFile(homePath(".cups/First/1.sh"), "#!/bin/bash\nlpoptions -pFirst\n"); // the current one
    writeFile(homePath(".cups/First/2.sh"), "#!/bin/bash\nlpoptions -pFirst\nppdhack 4.00 2.00 First\n");
    const DriverCommand command("exit 0\n");
    const Result result = press({"-p", "First"}, {{dialogTitle("First"), keys}});
    clearHome();
    QVERIFY2(result.exitStatus == 3, qPrintable(QString::number(result.exitStatus) + result.errors));
    QVERIFY2(result.errors.startsWith("label-printer-properties: " + errors), qPrintable(result.errors));
}

void ProgramTest::asksAboutConflicts_data()
{
    QTest::addColumn<bool>("isOwn"); // otherwise another make's driver
    QTest::addColumn<QString>("dialogKey");
    QTest::addColumn<QString>("answerKey"); // none if no question is expected
    QTest::addColumn<bool>("isSettled");
    QTest::addColumn<int>("exitStatus");
    const QString change = useUserPageSize + " Return";
    QTest::newRow("taken") << true << change << "Return" << true << 0;
    QTest::newRow("not taken") << true << change << "Escape" << false << 0;
    QTest::newRow("not asked after Cancel") << true << "Escape" << QString() << false << 1;
    QTest::newRow("other make, taken") << false << "Return"
                                       << "Return" << true << 0;
    QTest::newRow("other make, not taken") << false << "Return"
                                           << "Escape" << false << 0;
}

// Our printer cannot print that darkly at its usual speed. The other one needs another mode than its usual one to cut at
// an interval.
void ProgramTest::asksAboutConflicts()
{
    QFETCH(bool, isOwn);
    QFETCH(QString, dialogKey);
    QFETCH(QString, answerKey);
    const DriverCommand command("exit 0\n");
    DriverPpds ppds;
    const QString ownPpd = scheduler.editedPpd(PrivateScheduler::samplePpd("label-203"),
                                               {{"*DefaultFont: Courier", "*UIConstraints: *Darkness 19 *PrintSpeed 3\n"
                                                                          "*UIConstraints: *PrintSpeed 3 *Darkness 19\n"
                                                                          "*DefaultFont: Courier"}});
    scheduler.addQueue("Limited", isOwn ? ownPpd : ppds.ppd("intelbar"));
    scheduler.setUserOptions("Limited", {isOwn ? "Darkness=19 JobStart='a b'" : "inCutInterval=2"});
    TitlesAndKeys keys{{dialogTitle("Limited"), dialogKey}};
    if (!answerKey.isNull())
        keys.append({listTitle, answerKey});
    const Result result = press({"-p", "Limited"}, keys);
    const Options stored = storedOptions("Limited");
    const QByteArray script = fileContent(homePath(".cups/Limited/_current.sh"));
    scheduler.removeQueue("Limited");
    clearHome();
    QTEST(result.exitStatus, "exitStatus");
    const bool isAsBefore = isOwn ? stored.value("Darkness") == "19" && !stored.contains("PrintSpeed")
                                  : stored.value("inCutInterval") == "2" && !stored.contains("inPrintMode");
    QTEST(!isAsBefore, "isSettled");
    // Running the script sets the same. It is only written if something was changed in the dialog.
    QCOMPARE(script.isEmpty(), !dialogKey.startsWith(useUserPageSize));
    for (const QByteArray keyword : {"Darkness", "PrintSpeed"})
        QCOMPARE(script.contains("-o" + keyword + '=' + stored.value(keyword)),
                 !script.isEmpty() && stored.contains(keyword));
    for (const char *kept : {"a b", "ppdhack 4.00 2.00 Limited\n"})
        QCOMPARE(script.contains(kept), !script.isEmpty());
}

void ProgramTest::menuEntryIsTranslated_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &catalogue : QDir(TRANSLATIONS_SOURCE_DIR).entryList({"propertiesdialog_*.ts"}))
        QTest::newRow(qPrintable(catalogue)) << catalogue.section('_', 1).section('.', 0, 0);
}

void ProgramTest::menuEntryIsTranslated()
{
    QFETCH(QString, language);
    const QByteArray entry = '\n' + fileContent(MENU_ENTRY);
    for (const char *key : {"Name", "Comment", "Keywords"})
        QCOMPARE(entry.count(QString("\n%1[%2]=").arg(key, language).toUtf8()), 1);
}

PROPERTIESDIALOG_TEST_MAIN(ProgramTest)
#include "ProgramTest.moc"
