// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// A user of a print server that wants a password is asked for it in one window, and never on a terminal.

#include "FaultyScheduler.h"
#include "Forked.h"
#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/PrintDialog.h>
#include <PropertiesDialog/PropertiesDialog.h>

#include <QMessageBox>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <functional>

#include <fcntl.h>

namespace {

// ----- what users do, in processes of their own -----

// A user who enters these passwords in the windows that ask for one, and cancels the window after the last.
class User
{
public:
    explicit User(const QList<QByteArray> &passwords)
        : toEnter(passwords)
    {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { look(); });
        timer.start(20);
    }

    std::function<void(QWidget *)> meet = [](QWidget *) {}; // any other window
    int asked = 0;
    int askedAgain = 0;

private:
    void look()
    {
        QWidget *window = QApplication::activeModalWidget();
        if (window == nullptr)
            return;
        if (!window->inherits("PasswordDialog")) {
            meet(window);
            return;
        }
        ++asked;
        // After a wrong password the user name need not be typed again.
        const bool isAgain = window->findChild<QLabel *>("refusedLabel")->isVisible();
        auto *userEdit = window->findChild<QLineEdit *>("userEdit");
        askedAgain += isAgain && userEdit->text() == "user" ? 1 : 0;
        auto *dialog = qobject_cast<QDialog *>(window);
        if (toEnter.isEmpty()) {
            dialog->reject();
            return;
        }
        userEdit->setText("user");
        window->findChild<QLineEdit *>("passwordEdit")->setText(toEnter.takeFirst());
        dialog->accept();
    }

    QList<QByteArray> toEnter;
    QTimer timer;
};

// Opens the properties dialog, and says for which queue it was and how often the user was asked: PASSWORDS, separated
// by commas
int openDialog(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    const QByteArray passwords = argv[1];
    User user(passwords.isEmpty() ? QList<QByteArray>() : passwords.split(','));
    QString title;
    user.meet = [&title](QWidget *window) {
        title = window->windowTitle();
        window->findChild<QAbstractButton *>("okButton")->click();
    };
    propertiesDialog();
    std::printf("%s, asked %d, again %d\n", qPrintable(title), user.asked, user.askedAgain);
    return 0;
}
const TestMain::ChildFunction openDialogFunction("open-dialog", openDialog);

// A user who has entered it is not asked again: not by Qt, by another dialog or when printing.
int doAll(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    User user({"secret"});
    user.meet = [](QWidget *window) {
        if (auto *box = qobject_cast<QMessageBox *>(window))
            box->button(QMessageBox::Yes)->click();
        else
            window->findChild<QAbstractButton *>("okButton")->click();
    };
    bool good = propertiesDialog() == 1;
    CupsSupport cups;
    QPrinter printer;
    PrintDialog dialog(nullptr, &printer, &cups);
    dialog.show();
    dialog.findChild<QComboBox *>("cboPrinterName")->setCurrentIndex(1);
    dialog.findChild<QAbstractButton *>("yesButton_2")->click();
    good = good && dialog.result() == QDialog::Accepted && printer.printerName() == "LP2";
    good = good && cups.printFile(argv[1], "", "title", {}) > 0;
    std::printf("%s, asked %d\n", good ? "good" : "bad", user.asked);
    return 0;
}
const TestMain::ChildFunction doAllFunction("do-all", doAll);

const char *hostsAnswer(const char *, http_t *, const char *, const char *, void *data)
{
    cupsSetUser("user");
    return static_cast<const char *>(data);
}

// A host's own callback is not replaced.
int hostWithCallback(int &, char **)
{
    char answer[] = "host";
    cupsSetPasswordCB2(hostsAnswer, answer);
    int argc = 1;
    char name[] = "host";
    char *argv[] = {name, nullptr};
    const QApplication app(argc, argv);
    User user({});
    user.meet = [](QWidget *window) { window->findChild<QAbstractButton *>("cancelButton")->click(); };
    propertiesDialog();
    const QByteArray found = cupsGetPassword("?");
    std::printf("%s, asked %d\n", found.constData(), user.asked);
    return 0;
}
const TestMain::ChildFunction hostWithCallbackFunction("host-with-callback", hostWithCallback);

// A host without windows answers in its callback.
int hostWithoutWindows(int &argc, char **argv)
{
    setsid();
    const QCoreApplication app(argc, argv);
    char answer[] = "secret";
    cupsSetPasswordCB2(hostsAnswer, answer);
    const CupsSupport cups;
    std::printf("%d\n", cups.getDestCount());
    return 0;
}
const TestMain::ChildFunction hostWithoutWindowsFunction("host-without-windows", hostWithoutWindows);

// A program with and one without windows, in the background of a terminal.
int inBackground(int &, char **argv)
{
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    grantpt(terminal);
    unlockpt(terminal);
    const pid_t leader = fork();
    if (leader == 0) {
        setsid();
        open(ptsname(terminal), O_RDWR); // which makes it the terminal of this session
        const pid_t background = fork();
        if (background == 0) {
            setpgid(0, 0);
            int argc = 1;
            char *arguments[] = {argv[0], nullptr};
            {
                const QCoreApplication app(argc, arguments);
                const CupsSupport cups;
            }
            const QApplication app(argc, arguments);
            User user({});
            user.meet = [](QWidget *window) { window->findChild<QAbstractButton *>("cancelButton")->click(); };
            propertiesDialog();
            _exit(user.asked);
        }
        int status = 0;
        waitpid(background, &status, WUNTRACED);
        kill(background, SIGKILL);
        _exit(WIFEXITED(status) ? WEXITSTATUS(status) : 100);
    }
    const int status = waitForEnd(leader);
    char said[100];
    const ssize_t length = read(terminal, said, sizeof said);
    std::printf("%s, asked %d\n", length > 0 ? "on the terminal" : "not on the terminal", WEXITSTATUS(status));
    return 0;
}
const TestMain::ChildFunction inBackgroundFunction("in-background", inBackground);

} // namespace

// If this fails, a print server that requires a password stops the program or asks again and again.
class PasswordTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void user_data();
    void user();

private:
    PrivateScheduler scheduler;
    QTemporaryDir folder{"/tmp/pd-XXXXXX"};
};

void PasswordTest::initTestCase()
{
    scheduler.addQueue("LP1", PrivateScheduler::samplePpd("label-203"), "First Printer");
    scheduler.addQueue("LP2", PrivateScheduler::samplePpd("label-300"), "Second Printer");
    scheduler.setServerDefault("LP1");
    writeFile(homePath("document.txt"), "text\n");
}

void PasswordTest::user_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray with = "LP1 Printing Preferences";
    const QByteArray without = " Printing Preferences";
    QTest::newRow("enters it") << "open-dialog"
                               << "secret" << with + ", asked 1, again 0";
    QTest::newRow("enters it at the third try") << "open-dialog"
                                                << "wrong,bad,secret" << with + ", asked 3, again 2";
    QTest::newRow("does not know it") << "open-dialog"
                                      << "wrong,bad,evil,no" << without + ", asked 3, again 2";
    QTest::newRow("cancels") << "open-dialog"
                             << "" << without + ", asked 1, again 0";
    QTest::newRow("cancels at the second try") << "open-dialog"
                                               << "wrong" << without + ", asked 2, again 1";
    QTest::newRow("uses all dialogs and prints") << "do-all" << homePath("document.txt") << QByteArray("good, asked 1");
    QTest::newRow("has a host with a callback") << "host-with-callback"
                                                << "" << QByteArray("host, asked 1");
    QTest::newRow("has a host without windows") << "host-without-windows"
                                                << "" << QByteArray("2");
    QTest::newRow("starts programs in the background") << "in-background"
                                                       << "" << QByteArray("not on the terminal, asked 1");
}

void PasswordTest::user()
{
    QFETCH(QString, function);
    QFETCH(QString, argument);
    QFETCH(QByteArray, expected);
    const QString socket = folder.filePath("sock");
    const FaultyScheduler guarded(socket, FaultyScheduler::WantsPassword, scheduler.socket());
    const TestMain::ChildResult result =
        TestMain::runChild(function.toLatin1().constData(), {argument}, {{"CUPS_SERVER", socket}});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output.trimmed(), expected.trimmed());
}

PROPERTIESDIALOG_TEST_MAIN(PasswordTest)

#include "PasswordTest.moc"
