// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/Scheduler.h"
#include "CupsMembers.h"
#include "FaultyScheduler.h"
#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/PrintDialog.h>
#include <PropertiesDialog/PropertiesDialog.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <memory>

using namespace CupsMembers;

namespace {

// What may wait twice: once for each of two requests that are sent on connections of their own. The rest is for a machine
// that is busy; without a limit a call waits for ever.
const qint64 longest = 2 * SchedulerConnection::patienceMs + 40000;

// ----- dialogs, in processes of their own -----

// Runs the function with each dialog that opens, until the process ends.
void onEachDialog(const std::function<void(QWidget *)> &function)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [function] {
        if (QWidget *dialog = QApplication::activeModalWidget())
            function(dialog);
    });
    timer->start(20);
}

void click(QWidget *dialog, const char *button)
{
    dialog->findChild<QAbstractButton *>(button)->click();
}

// What Qt asks for when a scheduler wants a password.
void refuse(QWidget *dialog)
{
    qobject_cast<QDialog *>(dialog)->reject();
}

int result(bool good, const QElapsedTimer &timer)
{
    std::printf("%lld", static_cast<long long>(timer.elapsed()));
    return good ? 0 : 1;
}

int wholeDialog(int &argc, char **argv)
{
    QElapsedTimer timer;
    timer.start();
    const QApplication app(argc, argv);
    bool isShown = false;
    onEachDialog([&](QWidget *dialog) {
        if (qobject_cast<PrintPropertiesDialog *>(dialog) == nullptr)
            return refuse(dialog);
        isShown = isShown || dialog->isVisible();
        click(dialog, "applyButton");
        click(dialog, "cancelButton");
    });
    const bool good = propertiesDialog() == 0 && isShown;
    return result(good, timer);
}
const TestMain::ChildFunction wholeDialogFunction("whole-dialog", wholeDialog);

int printDialog(int &argc, char **argv)
{
    QElapsedTimer timer;
    timer.start();
    const QApplication app(argc, argv);
    CupsSupport cups;
    // The host's QPrinter is the host's business: this one has not met the scheduler.
    const QByteArray server = cupsServer();
    cupsSetServer("/nonexistent");
    QPrinter printer(QPrinter::ScreenResolution);
    cupsSetServer(server.constData());
    onEachDialog(refuse);
    PrintDialog dialog(nullptr, &printer, &cups);
    dialog.show();
    dialog.findChild<QAbstractButton *>("chkDefaultPrinter")->click();
    dialog.findChild<QAbstractButton *>("chkDefaultPrinter")->click();
    click(&dialog, "yesButton_2");
    return result(dialog.result() == 1, timer);
}
const TestMain::ChildFunction printDialogFunction("print-dialog", printDialog);

int allMembers(int &argc, char **argv)
{
    QElapsedTimer timer;
    timer.start();
    const QCoreApplication app(argc, argv);
    CupsSupport cups;
    const bool good = cups.getDestCount() == 0;
    for (const Member &member : all())
        member.call(cups);
    return result(good, timer);
}
const TestMain::ChildFunction allMembersFunction("all-members", allMembers);

// ----- while a dialog is open -----

struct Action
{
    const char *name;
    std::function<void(OpenDialog &)> act;
};

// LP1 is the default printer; its presets are Plain and Sized, of which the second has a user page size.
const QList<Action> &actions()
{
    static const QList<Action> list{
        {"Apply", [](OpenDialog &open) { open.click("applyButton"); }},
        {"OK", [](OpenDialog &open) { open.click("okButton"); }},
        {"Cancel", [](OpenDialog &open) { open.click("cancelButton"); }},
        {"choose a preset", [](OpenDialog &open) { open.choose("preset0", 3); }},
        {"choose a preset with a page size", [](OpenDialog &open) { open.choose("preset0", 4); }},
        {"choose a preset with a page size, and apply",
         [](OpenDialog &open) {
             open.choose("preset0", 4);
             open.click("applyButton");
         }},
        {"new preset, and apply",
         [](OpenDialog &open) {
             open.click("presetNewButton");
             open.click("applyButton");
         }},
        {"show again",
         [](OpenDialog &open) {
             open.dialog.hide();
             open.cups.closePpdFile();
             open.dialog.show();
         }},
        {"media type", [](OpenDialog &open) { open.choose("mediaType", 2); }},
        {"print", [](OpenDialog &open) { open.cups.printFile(document(), "", "title", {}); }},
    };
    return list;
}

// The scheduler falls silent while the dialog is open: PROCESS ACTION
int fallSilent(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    const pid_t scheduler = QByteArray(argv[1]).toInt();
    OpenDialog open;
    open.slide("darknessSlider", 12);
    QElapsedTimer timer;
    timer.start();
    kill(scheduler, SIGSTOP);
    actions().at(QByteArray(argv[2]).toInt()).act(open);
    QCoreApplication::processEvents();
    open.click("cancelButton");
    const int exitCode = result(!open.dialog.isVisible(), timer);
    kill(scheduler, SIGCONT);
    return exitCode;
}
const TestMain::ChildFunction fallSilentFunction("fall-silent", fallSilent);

// Another printer is chosen in the print dialog after the scheduler has fallen silent: PROCESS
int changePrinter(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    const pid_t scheduler = QByteArray(argv[1]).toInt();
    QPrinter printer(QPrinter::ScreenResolution);
    CupsSupport cups;
    PrintDialog dialog(nullptr, &printer, &cups);
    dialog.show();
    onEachDialog([](QWidget *box) { qobject_cast<QMessageBox *>(box)->button(QMessageBox::Yes)->click(); });
    dialog.findChild<QComboBox *>("cboPrinterName")->setCurrentIndex(1);
    QElapsedTimer timer;
    timer.start();
    kill(scheduler, SIGSTOP);
    click(&dialog, "yesButton_2");
    // Not accepted: the QPrinter could not be told.
    const bool unchanged = cups.getCurrentIndex() == 0 && printer.printerName() == "LP1";
    const int exitCode = result(dialog.result() == 0 && unchanged, timer);
    kill(scheduler, SIGCONT);
    return exitCode;
}
const TestMain::ChildFunction changePrinterFunction("change-printer", changePrinter);

const QByteArray storedBefore =
    "Dest Gone Darkness=3\nDest LP1 Darkness=5 Back=30 CutMedia=2 JobEnd=end Overlap=9 Stop=7.000\n"
    "Dest LP2 Darkness=4\n";

} // namespace

// A scheduler that does not answer costs a few seconds and no settings.
class SilentSchedulerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void member_data();
    void member();
    void fromTheStart_data();
    void fromTheStart();
    void whileOpen_data();
    void whileOpen();
    void printerIsChanged();
    void answersAgain();

private:
    void runsInTime(const char *function, const QStringList &arguments, const QMap<QString, QString> &environment = {});

    PrivateScheduler scheduler;
    QTemporaryDir folder{"/tmp/pd-XXXXXX"};
    Outcomes running;
    Outcomes silent;
    Outcomes noPrinter;
    Outcomes noPpdFile;
};

void SilentSchedulerTest::initTestCase()
{
    scheduler.addQueue("LP1", PrivateScheduler::samplePpd("every-option"), "First Printer");
    scheduler.addQueue("LP2", PrivateScheduler::samplePpd("label-300"), "Second Printer");
    scheduler.addQueue("LP3", QString(), "Raw Printer");
    scheduler.setServerDefault("LP1");
    for (const char *queue : {"LP1", "LP3"})
        scheduler.setUserOptions(queue, {"Darkness=5", "GapSize=4.5", "JobStart=begin", "Back=30"});
    writeFile(document(), "text\n");

    CupsSupport cups;
    running = callEach(cups);
    noPpdFile = callEach(cups, [](CupsSupport &c) { c.setCurrentPrinter(2); });
    kill(processOf(scheduler), SIGSTOP);
    silent = callEach(cups);
    noPrinter = callEach(cups, withoutPrinter);
    kill(processOf(scheduler), SIGCONT);
}

void SilentSchedulerTest::cleanup()
{
    kill(processOf(scheduler), SIGCONT);
}

void SilentSchedulerTest::runsInTime(const char *function, const QStringList &arguments,
                                     const QMap<QString, QString> &environment)
{
    const TestMain::ChildResult result = TestMain::runChild(function, arguments, environment);
    kill(processOf(scheduler), SIGCONT);
    QCOMPARE(result.exitCode, 0);
    QVERIFY(!result.output.isEmpty());
    QVERIFY2(result.output.toLongLong() < longest, result.output.constData());
}

void SilentSchedulerTest::member_data()
{
    QTest::addColumn<QString>("name");
    for (const Member &member : all())
        QTest::newRow(member.name) << QString(member.name);
}

void SilentSchedulerTest::member()
{
    QFETCH(QString, name);
    const QString found = silent.value(name).result;
    QVERIFY(found != "crashed");
    QVERIFY2(found == running.value(name).result || found == noPrinter.value(name).result
                 || found == noPpdFile.value(name).result,
             qPrintable(found));
    QVERIFY2(silent.value(name).elapsed < longest, qPrintable(QString::number(silent.value(name).elapsed)));
}

void SilentSchedulerTest::fromTheStart_data()
{
    QTest::addColumn<FaultyScheduler::Fault>("fault");
    QTest::newRow("never answers") << FaultyScheduler::NeverAnswers;
    QTest::newRow("never accepts") << FaultyScheduler::NeverAccepts;
    QTest::newRow("closes at once") << FaultyScheduler::Closes;
    QTest::newRow("answers garbage") << FaultyScheduler::Garbage;
    QTest::newRow("answers garbage in HTTP") << FaultyScheduler::HttpGarbage;
    QTest::newRow("wants a password") << FaultyScheduler::Password;
}

void SilentSchedulerTest::fromTheStart()
{
    QFETCH(FaultyScheduler::Fault, fault);
    const FaultyScheduler faulty(folder.filePath("sock"), fault);
    const QMap<QString, QString> environment{{"CUPS_SERVER", folder.filePath("sock")}};
    for (const char *function : {"all-members", "whole-dialog", "print-dialog"})
        runsInTime(function, {}, environment);
}

void SilentSchedulerTest::whileOpen_data()
{
    QTest::addColumn<int>("action");
    for (int i = 0; i < actions().size(); ++i)
        QTest::newRow(actions().at(i).name) << i;
}

void SilentSchedulerTest::whileOpen()
{
    QFETCH(int, action);
    const QString options = cupsFolder() + "/lpoptions";
    writeFile(options, storedBefore);
    writeFile(cupsFolder() + "/LP1/Plain.sh", "#!/bin/bash\nlpoptions -pLP1 -oDarkness=3\n");
    writeFile(cupsFolder() + "/LP1/Sized.sh", "#!/bin/bash\nlpoptions -pLP1 -oDarkness=3\nppdhack 4.00 3.00 LP1\n");
    const DriverCommand ppdhack("exit 0\n");
    runsInTime("fall-silent", {QString::number(processOf(scheduler)), QString::number(action)});

    // Whether something was saved or not, what was stored still is.
    const QByteArray stored = fileContent(options);
    QVERIFY2(stored.contains("Dest Gone Darkness=3\n"), stored.constData());
    QCOMPARE(storedOptions("LP2").value("Darkness"), QByteArray("4"));
    const Options found = storedOptions("LP1");
    const QString name = actions().at(action).name;
    const bool isPreset = name.contains("preset");
    const bool isSaved = name.contains("apply", Qt::CaseInsensitive) || name == "OK";
    // Of the options that a preset carries, those of the chosen one take their place.
    for (const auto &[keyword, value] :
         QList<std::pair<const char *, const char *>>{{"Back", "30"}, {"CutMedia", "2"}, {"Overlap", "9"}})
        QCOMPARE(found.value(keyword), QByteArray(value));
    if (!isPreset) {
        QCOMPARE(found.value("Darkness"), QByteArray(isSaved ? "12" : "5"));
        QCOMPARE(found.value("JobEnd"), QByteArray(isSaved ? "end\\\\r" : "end"));
        QCOMPARE(found.value("Stop").toDouble(), isSaved ? 7.112 : 7.0); // inches with two decimals
    }
    if (!isSaved)
        QCOMPARE(stored, storedBefore);
}

void SilentSchedulerTest::printerIsChanged()
{
    runsInTime("change-printer", {QString::number(processOf(scheduler))});
}

// It is asked again once it had time to recover.
void SilentSchedulerTest::answersAgain()
{
    CupsSupport cups;
    kill(processOf(scheduler), SIGSTOP);
    QVERIFY(!cups.getPpdFile());
    kill(processOf(scheduler), SIGCONT);
    QTRY_VERIFY_WITH_TIMEOUT(cups.getPpdFile(), int(longest));
}

PROPERTIESDIALOG_TEST_MAIN(SilentSchedulerTest)

#include "SilentSchedulerTest.moc"
