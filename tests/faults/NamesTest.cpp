// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// On a machine whose own name does not resolve, such as a new container or a label station off line, users do not wait
// for a name server: with a scheduler on a local socket, no name is looked up.

#include "CupsMembers.h"
#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/PrintDialog.h>
#include <PropertiesDialog/PropertiesDialog.h>

#include <QMessageBox>
#include <QTimer>

#include <cstdio>
#include <functional>

#include <netdb.h>
#include <resolv.h>

namespace {

bool isCounting = false;

// A look-up fails immediately if the thread has no name server.
void count(const char *name)
{
    if (isCounting && !((_res.options & RES_INIT) != 0 && _res.nscount == 0))
        std::printf("looked up %s\n", name);
}

} // namespace

// libcups and Qt call these instead of the functions of the C library, because the program defines them.
extern "C" {

Q_DECL_EXPORT hostent *gethostbyname(const char *name)
{
    count(name);
    h_errno = TRY_AGAIN;
    return nullptr;
}

Q_DECL_EXPORT int getaddrinfo(const char *name, const char *, const addrinfo *, addrinfo **)
{
    count(name);
    return EAI_AGAIN;
}

Q_DECL_EXPORT int getnameinfo(const sockaddr *, socklen_t, char *, socklen_t, char *, socklen_t, int)
{
    count("an address");
    return EAI_AGAIN;
}
}

namespace {

using namespace CupsMembers;

// Counts as in a program that has name servers.
void startCounting()
{
    res_init();
    isCounting = true;
}

// Runs the function with each window that opens, until the process ends.
void onEachWindow(const std::function<void(QWidget *)> &function)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [function] {
        if (QWidget *window = QApplication::activeModalWidget())
            function(window);
    });
    timer->start(20);
}

int callMembers(int &argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    startCounting();
    CupsSupport cups;
    for (const Member &member : all())
        member.call(cups);
    return cups.getPpdFile() != nullptr ? 0 : 1;
}
const TestMain::ChildFunction callMembersFunction("call-members", callMembers);

int useProperties(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    startCounting();
    onEachWindow([](QWidget *window) {
        window->findChild<QComboBox *>("preset0")->setCurrentIndex(1);
        window->findChild<QSlider *>("darknessSlider")->setValue(12);
        window->findChild<QAbstractButton *>("applyButton")->click();
        window->findChild<QAbstractButton *>("okButton")->click();
    });
    return propertiesDialog() == 1 ? 0 : 1;
}
const TestMain::ChildFunction usePropertiesFunction("use-properties", useProperties);

int changePrinter(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    QPrinter printer(QPrinter::ScreenResolution); // by which Qt looks names up, for the host
    startCounting();
    CupsSupport cups;
    PrintDialog dialog(nullptr, &printer, &cups);
    dialog.show();
    onEachWindow([](QWidget *box) { qobject_cast<QMessageBox *>(box)->button(QMessageBox::Yes)->click(); });
    dialog.findChild<QComboBox *>("cboPrinterName")->setCurrentIndex(1);
    dialog.findChild<QAbstractButton *>("yesButton_2")->click();
    return printer.printerName() == "LP2" ? 0 : 1;
}
const TestMain::ChildFunction changePrinterFunction("change-printer", changePrinter);

// Shows that counting works: libcups' own request for a PPD file looks up names.
int askLibcups(int &argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    startCounting();
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    const char *path = cupsGetPPD("LP1");
    QT_WARNING_POP
    return path != nullptr && unlink(path) == 0 ? 0 : 1;
}
const TestMain::ChildFunction askLibcupsFunction("ask-libcups", askLibcups);

} // namespace

// If this fails, the dialogs hang on a machine whose own name does not resolve.
class NamesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void lookUps_data();
    void lookUps();

private:
    PrivateScheduler scheduler;
};

void NamesTest::initTestCase()
{
    scheduler.addQueue("LP1", PrivateScheduler::samplePpd("every-option"), "First Printer");
    scheduler.addQueue("LP2", PrivateScheduler::samplePpd("label-300"), "Second Printer");
    scheduler.setServerDefault("LP1");
    writeFile(document(), "text\n");
}

void NamesTest::lookUps_data()
{
    QTest::addColumn<bool>("isExpected");
    QTest::newRow("call-members") << false;
    QTest::newRow("use-properties") << false;
    QTest::newRow("change-printer") << false;
    QTest::newRow("ask-libcups") << true;
}

void NamesTest::lookUps()
{
    QFETCH(bool, isExpected);
    char nameOfMachine[256];
    QCOMPARE(gethostname(nameOfMachine, sizeof nameOfMachine), 0);
    // libcups does not look up a name with a dot in it.
    const bool isLookedUp = isExpected && strchr(nameOfMachine, '.') == nullptr;
    const TestMain::ChildResult result = TestMain::runChild(QTest::currentDataTag());
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.contains("looked up") == isLookedUp, result.output.constData());
}

PROPERTIESDIALOG_TEST_MAIN(NamesTest)

#include "NamesTest.moc"
