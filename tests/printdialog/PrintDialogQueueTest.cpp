// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/Scheduler.h"
#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/PrintDialog.h>

#include <QElapsedTimer>
#include <QPainter>
#include <QPrintEngine>
#include <QTimer>

#include <csignal>
#include <functional>
#include <memory>

using namespace std::chrono_literals;

namespace {

// Plays the user: each action is called once with the next modal dialog that is shown, and closes it.
class User : public QObject
{
public:
    explicit User(QList<std::function<void(QDialog &)>> actions)
        : left(std::move(actions))
    {
        connect(&timer, &QTimer::timeout, this, [this] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!left.isEmpty() && dialog && dialog->isVisible())
                left.takeFirst()(*dialog);
        });
        timer.start(10);
    }

    QList<std::function<void(QDialog &)>> left;

private:
    QTimer timer;
};

void click(QDialog &dialog, const char *button)
{
    childOf<QAbstractButton>(dialog, button)->click();
}

QString statusIn(const QDialog &dialog)
{
    return childOf<QLabel>(dialog, "lblStatusInfo")->text();
}

// The print dialog after its scheduler has fallen silent: PROCESS
int showWithoutAnswer(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    const pid_t process = QByteArray(argv[1]).toInt();
    QPrinter printer;
    CupsSupport cups;
    PrintDialog dialog(nullptr, &printer, &cups);
    Scheduler::setLimits({5s, 500ms}); // the usual ones would only take longer
    kill(process, SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    dialog.show();
    const bool good = dialog.isVisible() && statusIn(dialog) == "Idle" && timer.elapsed() < 60000;
    kill(process, SIGCONT);
    return good ? 0 : 1;
}
const TestMain::ChildFunction showWithoutAnswerChild("showWithoutAnswer", showWithoutAnswer);

} // namespace

// If this fails, settings or jobs go to another printer than the one shown, or Cancel changes the printer.
class PrintDialogQueueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void propertiesAreThoseOfTheShownPrinter_data();
    void propertiesAreThoseOfTheShownPrinter();
    void propertiesOfTheFirstPrinterAgain();
    void okAfterPropertiesChangesThePrinter();
    void useDefaultClosesTheOtherPpdFile();
    void cancelGoesBackByName_data();
    void cancelGoesBackByName();
    void cancelAfterThePrinterIsGone();
    void useDefaultReturnsByName();
    void cancelBringsThePageBack();
    void cancelLeavesAPdfWriter();
    void jobsCarryTheirOwnPrintersOptions();

    void statusIsFreshEachTime();
    void statusCostsOneRequestAndNoSettings();
    void statusOfInstances();
    void statusWithoutAScheduler();
    void statusWithoutAnAnswer();

private:
    void choose(QDialog &shown, const QString &queue);
    QString printedBy();

    PrivateScheduler scheduler;
    std::unique_ptr<QPrinter> printer;
    std::unique_ptr<CupsSupport> cups;
    std::unique_ptr<PrintDialog> dialog;
};

void PrintDialogQueueTest::initTestCase()
{
    scheduler.addQueue("LP1", PrivateScheduler::samplePpd("label-203"), "First");
    scheduler.addQueue("LP-ORCA", PrivateScheduler::samplePpd("label-300"), "Second");
    scheduler.setServerDefault("LP1");
}

// A host on LP-ORCA; the default printer is LP1.
void PrintDialogQueueTest::init()
{
    // A job that is seen in its folder may still be ending, and its queue be printing.
    QTRY_COMPARE(PrivateScheduler::run("lpstat", {"-o"}), QByteArray());
    clearHome();
    printer = std::make_unique<QPrinter>(QPrinter::ScreenResolution);
    cups = std::make_unique<CupsSupport>();
    selectQueue(*cups, "LP-ORCA");
    printer->setPrinterName("LP-ORCA");
    QCOMPARE(printer->printerName(), QString("LP-ORCA"));
    dialog = std::make_unique<PrintDialog>(nullptr, printer.get(), cups.get());
}

void PrintDialogQueueTest::cleanup()
{
    dialog.reset();
    cups.reset();
    printer.reset();
}

void PrintDialogQueueTest::choose(QDialog &shown, const QString &queue)
{
    for (int index = 0; index < cups->getDestCount(); ++index)
        if (cups->getQueueName(index) == queue)
            childOf<QComboBox>(shown, "cboPrinterName")->setCurrentIndex(index);
}

void PrintDialogQueueTest::propertiesAreThoseOfTheShownPrinter_data()
{
    QTest::addColumn<bool>("useDefault");

    QTest::newRow("by Use Default") << true;
    QTest::newRow("by the list") << false;
}

void PrintDialogQueueTest::propertiesAreThoseOfTheShownPrinter()
{
    QFETCH(bool, useDefault);

    PrintPropertiesDialog properties(nullptr, printer.get(), cups.get());
    QString name;
    QString title;
    QString resolution;
    const User user({[&](QDialog &print) {
                         if (useDefault)
                             click(print, "chkDefaultPrinter");
                         else
                             choose(print, "LP1");
                         click(print, "propertiesButton_2");
                     },
                     [&](QDialog &shown) {
                         name = printer->printerName();
                         title = shown.windowTitle();
                         resolution = cups->getDefaultValue("Resolution");
                         childOf<QSlider>(shown, "darknessSlider")->setValue(3);
                         click(shown, "okButton");
                     },
                     [](QDialog &print) { click(print, "noButton_2"); }});
    QCOMPARE(dialog->exec2(properties), 0);
    QVERIFY(user.left.isEmpty());

    QCOMPARE(name, QString("LP1"));
    QCOMPARE(title, QString("LP1 Printing Preferences"));
    QVERIFY(QFile::exists(homePath(".cups/LP1/_current.sh")));
    QVERIFY(!QFile::exists(homePath(".cups/LP-ORCA/_current.sh")));
    QCOMPARE(resolution, QString("203dpi"));
    QCOMPARE(storedOptions("LP1").value("Darkness"), QByteArray("3"));
    QVERIFY(!storedOptions("LP-ORCA").contains("Darkness"));
    QCOMPARE(cups->getCurrentQueueName(), QString("LP-ORCA"));
    QCOMPARE(printer->printerName(), QString("LP-ORCA"));
    QCOMPARE(cups->getDefaultValue("Resolution"), "300x305dpi");
}

// Back at the initial printer, Properties shows that one's settings again.
void PrintDialogQueueTest::propertiesOfTheFirstPrinterAgain()
{
    QDialog properties;
    QStringList names;
    const auto note = [&](QDialog &shown) {
        names << cups->getCurrentQueueName() << printer->printerName();
        shown.accept();
    };
    const auto ask = [&](const QString &queue) {
        return [this, queue](QDialog &print) {
            choose(print, queue);
            click(print, "propertiesButton_2");
        };
    };
    const User user({ask("LP1"), note, ask("LP-ORCA"), note, [](QDialog &print) { click(print, "yesButton_2"); }});
    QCOMPARE(dialog->exec2(properties), 1);
    QCOMPARE(names, QStringList({"LP1", "LP1", "LP-ORCA", "LP-ORCA"}));
}

void PrintDialogQueueTest::okAfterPropertiesChangesThePrinter()
{
    QDialog properties;
    const User user({[this](QDialog &print) {
                         choose(print, "LP1");
                         click(print, "propertiesButton_2");
                     },
                     [](QDialog &shown) { shown.accept(); },
                     [](QDialog &print) {
                         QMetaObject::invokeMethod(childOf<QAbstractButton>(print, "yesButton_2"), "click",
                                                   Qt::QueuedConnection);
                     },
                     [](QDialog &question) { question.findChildren<QAbstractButton *>().constFirst()->click(); }});
    QCOMPARE(dialog->exec2(properties), 1);
    QVERIFY(user.left.isEmpty());
    QCOMPARE(cups->getCurrentQueueName(), QString("LP1"));
    QCOMPARE(printer->printerName(), QString("LP1"));
}

void PrintDialogQueueTest::useDefaultClosesTheOtherPpdFile()
{
    QCOMPARE(cups->getDefaultValue("Resolution"), "300x305dpi");
    click(*dialog, "chkDefaultPrinter");
    QCOMPARE(cups->getDefaultValue("Resolution"), "203dpi");
}

void PrintDialogQueueTest::cancelGoesBackByName_data()
{
    QTest::addColumn<bool>("properties");

    QTest::newRow("after Use Default") << false;
    QTest::newRow("after Properties") << true;
}

// A new queue takes the place of the user's printer in the list.
void PrintDialogQueueTest::cancelGoesBackByName()
{
    QFETCH(bool, properties);

    scheduler.addQueue("AAA");
    click(*dialog, "chkDefaultPrinter");
    if (properties)
        click(*dialog, "propertiesButton_2");
    const QString during = cups->getCurrentQueueName();
    click(*dialog, "noButton_2");
    scheduler.removeQueue("AAA");

    QCOMPARE(during, QString("LP1"));
    QCOMPARE(cups->getCurrentQueueName(), QString("LP-ORCA"));
    QCOMPARE(printer->printerName(), QString("LP-ORCA"));
}

// Later jobs do not go to a printer that the user did not choose.
void PrintDialogQueueTest::cancelAfterThePrinterIsGone()
{
    scheduler.addQueue("Gone", PrivateScheduler::samplePpd("label-203"), "Third");
    CupsSupport settings;
    selectQueue(settings, "Gone");
    PrintDialog print(nullptr, printer.get(), &settings);
    scheduler.removeQueue("Gone");
    click(print, "chkDefaultPrinter");
    click(print, "noButton_2");
    QCOMPARE(settings.getCurrentQueueName(), QString());
    QVERIFY(settings.getCurrentIndex() < 0);
}

void PrintDialogQueueTest::useDefaultReturnsByName()
{
    scheduler.addQueue("AAA");
    click(*dialog, "chkDefaultPrinter");
    const bool ticked = childOf<QCheckBox>(*dialog, "chkDefaultPrinter")->isChecked();
    const auto *list = childOf<QComboBox>(*dialog, "cboPrinterName");
    const bool changeable = list->isEnabled();
    const QString chosen = list->currentText();
    click(*dialog, "chkDefaultPrinter");
    scheduler.removeQueue("AAA");

    QVERIFY(ticked);
    QVERIFY(!changeable);
    QCOMPARE(chosen, QString("First"));
    QCOMPARE(list->currentText(), QString("Second"));
    QVERIFY(list->isEnabled());
}

void PrintDialogQueueTest::cancelBringsThePageBack()
{
    printer->setPageOrientation(QPageLayout::Landscape);
    const QPageLayout before = printer->pageLayout();
    choose(*dialog, "LP1");
    click(*dialog, "propertiesButton_2");
    printer->setPageOrientation(QPageLayout::Portrait);
    printer->setPageSize(QPageSize(QPageSize::A6));
    dialog->reject();
    QCOMPARE(printer->pageLayout(), before);
}

void PrintDialogQueueTest::cancelLeavesAPdfWriter()
{
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName("label.pdf");
    choose(*dialog, "LP1");
    click(*dialog, "propertiesButton_2");
    QCOMPARE(printer->printerName(), QString("LP1"));
    dialog->reject();
    QCOMPARE(printer->outputFormat(), QPrinter::PdfFormat);
    QCOMPARE(printer->outputFileName(), QString("label.pdf"));
}

// Prints a page by way of the QPrinter and returns the darkness that the job asks for, after the name of its queue.
QString PrintDialogQueueTest::printedBy()
{
    const int before = int(scheduler.jobs(0).size());
    QPainter painter(printer.get());
    painter.drawText(50, 50, "label");
    painter.end();
    const CapturedJob job = scheduler.jobs(before + 1).last();
    return job.queue + ' ' + job.option("Darkness");
}

void PrintDialogQueueTest::jobsCarryTheirOwnPrintersOptions()
{
    // As the properties dialog leaves it.
    const auto setDarkness = [this](const QString &darkness) {
        printer->printEngine()->setProperty(QPrintEngine::PrintEnginePropertyKey(0xFE00),
                                            QStringList{"Darkness", darkness});
    };
    setDarkness("4");
    QCOMPARE(printedBy(), QString("LP-ORCA 4"));
    choose(*dialog, "LP1");
    click(*dialog, "propertiesButton_2");
    QCOMPARE(printedBy(), QString("LP1 "));
    setDarkness("3");
    QCOMPARE(printedBy(), QString("LP1 3"));
    click(*dialog, "noButton_2");
    QCOMPARE(printedBy(), QString("LP-ORCA 4"));
}

void PrintDialogQueueTest::statusIsFreshEachTime()
{
    QCOMPARE(statusIn(*dialog), QString("Idle"));
    PrivateScheduler::run("cupsdisable", {"LP-ORCA"});
    dialog->show();
    const QString stopped = statusIn(*dialog);
    const QString other = [this] {
        choose(*dialog, "LP1");
        return statusIn(*dialog);
    }();
    choose(*dialog, "LP-ORCA");
    dialog->hide();
    PrivateScheduler::run("cupsenable", {"LP-ORCA"});
    dialog->show();
    QCOMPARE(stopped, QString("Stopped: paused"));
    QCOMPARE(other, QString("Idle"));
    QCOMPARE(statusIn(*dialog), QString("Idle"));
}

void PrintDialogQueueTest::statusCostsOneRequestAndNoSettings()
{
    cups->setDarkness(3);
    scheduler.startRequests();
    dialog->show();
    QCOMPARE(scheduler.requests(), QStringList("CUPS-Get-Printers"));
    QCOMPARE(cups->getDarkness(), 3);
    QCOMPARE(cups->getCurrentQueueName(), QString("LP-ORCA"));
}

// What the scheduler reports for a printer is not a user's setting.
void PrintDialogQueueTest::statusOfInstances()
{
    scheduler.setUserOptions("LP1/small", {"Darkness=2"});
    PrivateScheduler::run("cupsdisable", {"LP1"});
    CupsSupport settings;
    PrintDialog print(nullptr, printer.get(), &settings);
    PrivateScheduler::run("cupsenable", {"LP1"});
    print.show();
    QStringList found;
    for (int index = 0; index < settings.getDestCount(); ++index) {
        childOf<QComboBox>(print, "cboPrinterName")->setCurrentIndex(index);
        found << settings.getQueueName(index) + ": " + statusIn(print);
    }
    settings.setDarkness(6);
    QCOMPARE(settings.setDests(), 0);
    QCOMPARE(found, QStringList({"LP-ORCA: Idle", "LP1: Idle", "LP1/small: Idle"}));
    const QByteArray file = fileContent(homePath(".cups/lpoptions"));
    QVERIFY2(file.contains("Darkness=6") && !file.contains("printer-state"), file);
}

void PrintDialogQueueTest::statusWithoutAScheduler()
{
    scheduler.stop();
    dialog->show();
    const QString status = statusIn(*dialog);
    scheduler.start();
    QCOMPARE(status, QString("Idle"));
}

void PrintDialogQueueTest::statusWithoutAnAnswer()
{
    QCOMPARE(TestMain::runChild("showWithoutAnswer", {QByteArray::number(scheduler.process())}).exitCode, 0);
}

PROPERTIESDIALOG_TEST_MAIN(PrintDialogQueueTest)
#include "PrintDialogQueueTest.moc"
