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

#include <csignal>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <vector>

using namespace CupsMembers;
using namespace std::chrono_literals;

namespace {

// Short, because this test would otherwise take minutes. Progress is checked once a second.
const Scheduler::Limits shortLimits{1500ms, 3000ms};

// For a scheduler that is known not to answer.
const Scheduler::Limits shortestLimits{300ms, 900ms};

// The longest time for one user action, with a margin for a busy machine; without limits it would take minutes or for
// ever.
const qint64 longest = 3000 + 20000;

// ----- actions, in processes of their own; each prints how many milliseconds it took -----

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

// To enter a password.
void refuse(QWidget *dialog)
{
    qobject_cast<QDialog *>(dialog)->reject();
}

int result(bool good, qint64 elapsed)
{
    std::printf("%lld\n", static_cast<long long>(elapsed));
    return good ? 0 : 1;
}

int result(bool good, const QElapsedTimer &timer)
{
    return result(good, timer.elapsed());
}

// Until it is shown and until it has applied; both have a time limit of their own, since the user acts in between.
int wholeDialog(int &argc, char **argv)
{
    Scheduler::setLimits(shortLimits);
    QElapsedTimer timer;
    timer.start();
    const QApplication app(argc, argv);
    qint64 shown = -1;
    qint64 applied = -1;
    onEachDialog([&](QWidget *dialog) {
        if (qobject_cast<PrintPropertiesDialog *>(dialog) == nullptr)
            return refuse(dialog);
        shown = timer.restart();
        dialog->findChild<QSlider *>("darknessSlider")->setValue(12);
        click(dialog, "applyButton");
        applied = timer.elapsed();
        click(dialog, "cancelButton");
    });
    const bool good = propertiesDialog() == 0 && shown >= 0;
    return result(good, shown) + result(good, applied);
}
const TestMain::ChildFunction wholeDialogFunction("whole-dialog", wholeDialog);

int printDialog(int &argc, char **argv)
{
    Scheduler::setLimits(shortLimits);
    const QApplication app(argc, argv);
    // The host's QPrinter is not limited, so this one does not use the scheduler.
    std::unique_ptr<QPrinter> printer;
    Scheduler::callWithoutScheduler([&printer] { printer = std::make_unique<QPrinter>(); });
    QElapsedTimer timer;
    timer.start();
    onEachDialog(refuse);
    CupsSupport cups;
    PrintDialog dialog(nullptr, printer.get(), &cups);
    dialog.show();
    dialog.findChild<QAbstractButton *>("chkDefaultPrinter")->click();
    dialog.findChild<QAbstractButton *>("chkDefaultPrinter")->click();
    click(&dialog, "yesButton_2");
    return result(dialog.result() == 1, timer);
}
const TestMain::ChildFunction printDialogFunction("print-dialog", printDialog);

// On a queue that was fetched before the fault: SOCKET, which then becomes faulty
int printJob(int &argc, char **argv)
{
    setsid(); // nobody is to be asked for a password on the terminal of the tests
    Scheduler::setLimits(shortLimits);
    const QCoreApplication app(argc, argv);
    CupsSupport cups;
    cupsSetServer(argv[1]);
    QElapsedTimer timer;
    timer.start();
    const int job = cups.printFile(document(), "", "title", {});
    const QByteArray error = CupsSupport::getCupsError();
    std::fprintf(stderr, "%d: %s\n", job, error.constData());
    // If only the answer to the last request is lost, there is a job.
    return result(job > 0 || (!error.isEmpty() && error != "successful-ok"), timer);
}
const TestMain::ChildFunction printJobFunction("print-job", printJob);

int allMembers(int &argc, char **argv)
{
    setsid(); // nobody is to be asked for a password on the terminal of the tests
    Scheduler::setLimits(shortLimits);
    const QCoreApplication app(argc, argv);
    QElapsedTimer timer;
    timer.start();
    CupsSupport cups;
    for (const Member &member : all())
        member.call(cups);
    return result(true, timer);
}
const TestMain::ChildFunction allMembersFunction("all-members", allMembers);

int openPatiently(int &argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QElapsedTimer timer;
    timer.start();
    const CupsSupport cups;
    const bool namesTheTimeOut = QByteArray(CupsSupport::getCupsError()).contains("did not answer in time");
    return result(cups.getDestCount() == 0 && namesTheTimeOut, timer);
}
const TestMain::ChildFunction openPatientlyFunction("open-patiently", openPatiently);

int openBrokenPpdFile(int &argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const CupsSupport cups;
    const bool isNone = cups.getDestCount() == 3 && cups.getPpdFile() == nullptr;
    return isNone && QByteArray(CupsSupport::getCupsError()).contains("broke off") ? 0 : 1;
}
const TestMain::ChildFunction openBrokenPpdFileFunction("open-broken-ppd-file", openBrokenPpdFile);

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
    Scheduler::setLimits(shortestLimits);
    kill(scheduler, SIGSTOP);
    actions().at(QByteArray(argv[2]).toInt()).act(open);
    QCoreApplication::processEvents();
    open.click("cancelButton");
    const int exitCode = result(!open.dialog.isVisible(), timer);
    kill(scheduler, SIGCONT);
    return exitCode;
}
const TestMain::ChildFunction fallSilentFunction("fall-silent", fallSilent);

// A host's printer, LP1, which the user can change in the print dialog.
struct HostPrinter
{
    QPrinter printer{QPrinter::ScreenResolution};
    CupsSupport cups;
    PrintDialog dialog{nullptr, &printer, &cups};

    HostPrinter() { dialog.show(); }
    void chooseOther() { dialog.findChild<QComboBox *>("cboPrinterName")->setCurrentIndex(1); }
    void press(const char *button) { click(&dialog, button); }
    bool isOn(const QString &queue) const { return cups.getCurrentIndex() == 0 && printer.printerName() == queue; }
};

// Another printer is chosen after the scheduler has fallen silent or gone: PROCESS SIGNAL
int changePrinter(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    const pid_t scheduler = QByteArray(argv[1]).toInt();
    HostPrinter host;
    onEachDialog([](QWidget *box) { qobject_cast<QMessageBox *>(box)->button(QMessageBox::Yes)->click(); });
    host.chooseOther();
    QElapsedTimer timer;
    timer.start();
    Scheduler::setLimits(shortestLimits);
    kill(scheduler, QByteArray(argv[2]).toInt());
    host.press("yesButton_2");
    // Not accepted: the QPrinter could not be told.
    const int exitCode = result(host.dialog.result() == 0 && host.isOn("LP1"), timer);
    kill(scheduler, SIGCONT);
    return exitCode;
}
const TestMain::ChildFunction changePrinterFunction("change-printer", changePrinter);

// The user saw the properties of the other printer, then the scheduler falls silent or goes, and the user presses
// Cancel, or OK with the first printer: PROCESS SIGNAL BUTTON
int leaveOtherPrinter(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    const pid_t scheduler = QByteArray(argv[1]).toInt();
    const int signal = QByteArray(argv[2]).toInt();
    HostPrinter host;
    host.chooseOther();
    host.press("propertiesButton_2");
    if (host.printer.printerName() != "LP2")
        return 2;
    host.dialog.findChild<QComboBox *>("cboPrinterName")->setCurrentIndex(0);
    QElapsedTimer timer;
    timer.start();
    Scheduler::setLimits(shortestLimits);
    kill(scheduler, signal);
    host.press(argv[3]);
    // What the host prints now must not come out of LP2.
    bool isGood = host.dialog.result() == 0 && host.isOn("");
    const qint64 elapsed = timer.elapsed();
    kill(scheduler, SIGCONT);
    if (signal == SIGSTOP) {
        isGood = isGood && QTest::qWaitFor([] { return !Scheduler::isLeftAlone(); }, int(longest));
        Scheduler::setLimits({});
        host.press(argv[3]);
        isGood = isGood && host.isOn("LP1");
    }
    return result(isGood, elapsed);
}
const TestMain::ChildFunction leaveOtherPrinterFunction("leave-other-printer", leaveOtherPrinter);

const QByteArray storedBefore =
    "Dest Gone Darkness=3\nDest LP1 Darkness=5 Back=30 CutMedia=2 JobEnd=end Overlap=9 Stop=7.000\n"
    "Dest LP2 Darkness=4\n";

const QList<std::pair<FaultyScheduler::Fault, const char *>> &faults()
{
    static const QList<std::pair<FaultyScheduler::Fault, const char *>> list{
        {FaultyScheduler::NeverAnswers, "never answers"},
        {FaultyScheduler::NeverAccepts, "never accepts"},
        {FaultyScheduler::Closes, "closes at once"},
        {FaultyScheduler::Garbage, "answers garbage"},
        {FaultyScheduler::HttpGarbage, "answers garbage in HTTP"},
        {FaultyScheduler::Password, "wants a password"},
        {FaultyScheduler::OnlyOptions, "answers OPTIONS alone"},
        {FaultyScheduler::HalfAnswer, "half an answer"},
        {FaultyScheduler::ByteByByte, "byte by byte"},
        {FaultyScheduler::WrongLength, "wrong length"},
        {FaultyScheduler::PpdFileStops, "PPD file stops midway"},
        {FaultyScheduler::PpdFileBreaksOff, "PPD file breaks off"},
    };
    return list;
}

} // namespace

// If this fails, a scheduler that does not answer freezes the dialog or loses settings.
class SilentSchedulerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    // The processes with the faults wait in the meantime.
    void member_data();
    void member();
    void whileOpen_data();
    void whileOpen();
    void printerIsChanged_data();
    void printerIsChanged();
    void otherPrinterIsLeft_data();
    void otherPrinterIsLeft();
    void answersAgain();
    void signalsOfTheHost();

    void fault_data();
    void fault();
    void usualLimits();
    void brokenPpdFile();

private:
    void runsInTime(const char *function, const QStringList &arguments);
    void startAgainAfter(int signal);

    static void addQueues(PrivateScheduler &to);
    void startFaults();
    QString socketOf(FaultyScheduler::Fault fault) const;

    PrivateScheduler upstream; // of the faulty ones; the other is stopped at times
    PrivateScheduler scheduler;
    QTemporaryDir folder{"/tmp/pd-XXXXXX"};
    std::vector<std::unique_ptr<FaultyScheduler>> faulty;
    std::vector<std::pair<FaultyScheduler::Fault, std::unique_ptr<TestMain::Child>>> children;
    std::unique_ptr<TestMain::Child> patient;
    Outcomes running;
    Outcomes silent;
    Outcomes noPrinter;
    Outcomes noPpdFile;
};

void SilentSchedulerTest::initTestCase()
{
    addQueues(upstream);
    startFaults();
    addQueues(scheduler);
    for (const char *queue : {"LP1", "LP3"})
        scheduler.setUserOptions(queue, {"Darkness=5", "GapSize=4.5", "JobStart=begin", "Back=30"});
    writeFile(document(), "text\n");

    CupsSupport cups;
    running = callEach(cups);
    noPpdFile = callEach(cups, [](CupsSupport &c) { c.setCurrentPrinter(2); });
    Scheduler::setLimits(shortestLimits);
    kill(scheduler.process(), SIGSTOP);
    silent = callEach(cups);
    noPrinter = callEach(cups, withoutPrinter);
    kill(scheduler.process(), SIGCONT);
}

void SilentSchedulerTest::cleanup()
{
    kill(scheduler.process(), SIGCONT);
}

void SilentSchedulerTest::addQueues(PrivateScheduler &to)
{
    to.addQueue("LP1", PrivateScheduler::samplePpd("every-option"), "First Printer");
    to.addQueue("LP2", PrivateScheduler::samplePpd("label-300"), "Second Printer");
    to.addQueue("LP3", QString(), "Raw Printer");
    to.setServerDefault("LP1");
}

// Each action with each fault, in a process and a HOME of its own, all at the same time.
void SilentSchedulerTest::startFaults()
{
    for (const auto &[fault, name] : faults()) {
        const bool isBetween = fault >= FaultyScheduler::OnlyOptions;
        faulty.push_back(
            std::make_unique<FaultyScheduler>(socketOf(fault), fault, isBetween ? upstream.socket() : QString()));
    }
    for (const auto &[fault, name] : faults())
        for (const char *function : {"all-members", "whole-dialog", "print-dialog", "print-job"}) {
            const QString home = folder.filePath(QString("%1-%2").arg(int(fault)).arg(function));
            writeFile(home + "/document.txt", "text\n");
            const QString socket = socketOf(fault);
            const bool isLater = qstrcmp(function, "print-job") == 0;
            // If root runs the tests, libcups may use the last of these folders.
            const QMap<QString, QString> environment{{"CUPS_SERVER", isLater ? upstream.socket() : socket},
                                                     {"HOME", home},
                                                     {"CUPS_SERVERROOT", home + "/.cups"}};
            children.emplace_back(fault, std::make_unique<TestMain::Child>(function, QStringList{socket}, environment));
        }
    const QMap<QString, QString> environment{{"CUPS_SERVER", socketOf(FaultyScheduler::NeverAnswers)}};
    patient = std::make_unique<TestMain::Child>("open-patiently", QStringList(), environment);
}

QString SilentSchedulerTest::socketOf(FaultyScheduler::Fault fault) const
{
    return folder.filePath(QString("sock%1").arg(int(fault)));
}

void SilentSchedulerTest::runsInTime(const char *function, const QStringList &arguments)
{
    const TestMain::ChildResult result = TestMain::runChild(function, arguments);
    kill(scheduler.process(), SIGCONT);
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

void SilentSchedulerTest::fault_data()
{
    QTest::addColumn<FaultyScheduler::Fault>("fault");
    for (const auto &[fault, name] : faults())
        QTest::newRow(name) << fault;
}

void SilentSchedulerTest::fault()
{
    QFETCH(FaultyScheduler::Fault, fault);
    for (const auto &[faultOfChild, child] : children) {
        if (faultOfChild != fault)
            continue;
        const TestMain::ChildResult result = child->result();
        QCOMPARE(result.exitCode, 0);
        qInfo("%s", result.output.simplified().constData());
        const QList<QByteArray> times = result.output.simplified().split(' ');
        for (const QByteArray &elapsed : times)
            QVERIFY2(elapsed.toLongLong() < longest, result.output.constData());
    }
}

// The limits that users have.
void SilentSchedulerTest::usualLimits()
{
    const TestMain::ChildResult result = patient->result();
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.toLongLong() < 5000 + 20000, result.output.constData());
}

// An incomplete PPD file is not used: options in the rest would seem to be missing.
void SilentSchedulerTest::brokenPpdFile()
{
    const QString socket = socketOf(FaultyScheduler::PpdFileBreaksOff);
    const TestMain::ChildResult result = TestMain::runChild("open-broken-ppd-file", {}, {{"CUPS_SERVER", socket}});
    QCOMPARE(result.exitCode, 0);
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
    runsInTime("fall-silent", {QString::number(scheduler.process()), QString::number(action)});

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

void SilentSchedulerTest::printerIsChanged_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("silent") << SIGSTOP;
    QTest::newRow("gone") << SIGKILL;
}

void SilentSchedulerTest::printerIsChanged()
{
    QFETCH(int, signal);
    runsInTime("change-printer", {QString::number(scheduler.process()), QString::number(signal)});
    startAgainAfter(signal);
}

void SilentSchedulerTest::otherPrinterIsLeft_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<QString>("button");
    QTest::newRow("silent, Cancel") << SIGSTOP << "noButton_2";
    QTest::newRow("silent, OK") << SIGSTOP << "yesButton_2";
    QTest::newRow("gone, Cancel") << SIGKILL << "noButton_2";
    QTest::newRow("gone, OK") << SIGKILL << "yesButton_2";
}

void SilentSchedulerTest::otherPrinterIsLeft()
{
    QFETCH(int, signal);
    QFETCH(QString, button);
    runsInTime("leave-other-printer", {QString::number(scheduler.process()), QString::number(signal), button});
    startAgainAfter(signal);
}

void SilentSchedulerTest::startAgainAfter(int signal)
{
    if (signal != SIGKILL)
        return;
    killScheduler(scheduler); // which may still be ending
    scheduler.start();
}

// It is asked again once it had time to recover.
void SilentSchedulerTest::answersAgain()
{
    CupsSupport cups;
    kill(scheduler.process(), SIGSTOP);
    QVERIFY(!cups.getPpdFile());
    kill(scheduler.process(), SIGCONT);
    QTRY_VERIFY_WITH_TIMEOUT(cups.getPpdFile(), int(longest));
}

// The host's signals are handled on the host's threads. A crash is reported by the host's crash handler, which does not
// run if the signal is blocked.
void SilentSchedulerTest::signalsOfTheHost()
{
    const auto during = std::make_shared<sigset_t>();
    sigset_t after;
    Scheduler::setLimits({});
    QTRY_VERIFY_WITH_TIMEOUT(!Scheduler::isLeftAlone(), int(longest));
    QVERIFY(Scheduler::ask([during](http_t *) { pthread_sigmask(SIG_SETMASK, nullptr, during.get()); }));
    pthread_sigmask(SIG_SETMASK, nullptr, &after);
    for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGCHLD, SIGALRM, SIGUSR1, SIGUSR2, SIGPIPE})
        QVERIFY2(sigismember(during.get(), signal) && !sigismember(&after, signal), strsignal(signal));
    for (const int signal : {SIGBUS, SIGFPE, SIGILL, SIGSEGV, SIGSYS, SIGTRAP})
        QVERIFY2(!sigismember(during.get(), signal), strsignal(signal));
}

PROPERTIESDIALOG_TEST_MAIN(SilentSchedulerTest)

#include "SilentSchedulerTest.moc"
