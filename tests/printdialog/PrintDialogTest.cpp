// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include <PropertiesDialog/CupsSupport.h>
#include <PropertiesDialog/PrintDialog.h>

#include "PrivateScheduler.h"
#include "TestMain.h"
#include "Wheel.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QMetaProperty>
#include <QPainter>
#include <QPrinter>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStyle>
#include <QTemporaryFile>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

#include <cups/cups.h>

#include <functional>
#include <memory>

namespace {

template<class Widget>
Widget *child(const QObject &parent, const char *name)
{
    auto *found = parent.findChild<Widget *>(name);
    if (found == nullptr)
        qFatal("there is no %s", name);
    return found;
}

void click(const QObject &dialog, const char *button)
{
    child<QAbstractButton>(dialog, button)->click();
}

QString text(const QObject &dialog, const char *label)
{
    return child<QLabel>(dialog, label)->text();
}

QImage image(const QIcon &icon)
{
    return icon.pixmap(16, 16).toImage();
}

// The destinations of the user as libcups lists them.
QStringList destinations()
{
    cups_dest_t *dests = nullptr;
    const int count = cupsGetDests(&dests);
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names << (dests[i].instance ? QStringLiteral("%1/%2").arg(dests[i].name, dests[i].instance)
                                    : QString(dests[i].name));
    }
    cupsFreeDests(count, dests);
    return names;
}

int indexOf(const QString &destination)
{
    return int(destinations().indexOf(destination));
}

// What the scheduler itself says of a queue, in the words of the dialog.
QString schedulerStatus(const QString &queue)
{
    ipp_t *request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    const QByteArray uri = "ipp://localhost/printers/" + queue.toUtf8();
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.constData());
    ipp_t *response = cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/");
    ipp_attribute_t *state = ippFindAttribute(response, "printer-state", IPP_TAG_ENUM);
    ipp_attribute_t *reasons = ippFindAttribute(response, "printer-state-reasons", IPP_TAG_KEYWORD);
    if (state == nullptr || reasons == nullptr) {
        ippDelete(response);
        return cupsLastErrorString();
    }
    static const QMap<int, QString> words{
        {IPP_PSTATE_IDLE, "Idle"}, {IPP_PSTATE_PROCESSING, "Printing"}, {IPP_PSTATE_STOPPED, "Stopped"}};
    QStringList list;
    for (int i = 0; i < ippGetCount(reasons); ++i)
        list << ippGetString(reasons, i, nullptr);
    QString status = words.value(ippGetInteger(state, 0));
    if (list != QStringList("none"))
        status += ": " + list.join(',');
    ippDelete(response);
    return status;
}

struct Question
{
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    bool hasDefault = false;
};

// Does something and answers the questions it asks.
QList<Question> answering(QMessageBox::StandardButton answer, const std::function<void()> &action)
{
    QList<Question> questions;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box != nullptr) {
            questions.append({box->windowTitle(), box->text(), box->standardButtons(), box->icon(),
                              box->defaultButton() != nullptr});
            box->button(answer)->click();
        }
    });
    timer.start(0);
    action();
    return questions;
}

QList<Question> clickOk(PrintDialog &dialog, QMessageBox::StandardButton answer = QMessageBox::No)
{
    return answering(
        answer, [&] { click(dialog, "yesButton_2"); });
}

// Clicks the next one of some buttons whenever the dialog is shown.
class Clicker : public QObject
{
public:
    Clicker(QDialog &watched, const QStringList &names)
        : buttons(names)
    {
        watched.installEventFilter(this);
    }

    bool eventFilter(QObject *dialog, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            QTimer::singleShot(0, this, [this, dialog] { click(*dialog, qPrintable(buttons.takeFirst())); });
        return false;
    }

    QStringList buttons;
};

// Stands in for the properties dialog: counts its runs.
class OtherDialog : public QDialog
{
public:
    int runs = 0;

protected:
    void showEvent(QShowEvent *event) override
    {
        QDialog::showEvent(event);
        ++runs;
        QTimer::singleShot(0, this, &QDialog::accept);
    }
};

// Shows context and source of every text.
class EchoTranslator : public QTranslator
{
public:
    EchoTranslator() { install(); }
    ~EchoTranslator() override
    {
        QCoreApplication::removeTranslator(this);
        QCoreApplication::processEvents();
    }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QStringLiteral("%1/%2").arg(QString::fromUtf8(context), QString::fromUtf8(source));
    }

private:
    void install()
    {
        QCoreApplication::installTranslator(this);
        QCoreApplication::processEvents(); // the change of language is posted
    }
};

// The full form without printers.
int dialogWithoutPrinters(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    QTextStream out(stdout);
    QPrinter printer;
    const QString printerName = printer.printerName();
    CupsSupport cups;
    PrintDialog dialog(nullptr, &printer, &cups);
    out << "entries " << child<QComboBox>(dialog, "cboPrinterName")->count() << '\n';
    out << "texts " << text(dialog, "lblStatusInfo") << ' ' << text(dialog, "lblTypeInfo") << ' '
        << text(dialog, "lblLocation") << '\n';
    Clicker clicker(dialog, {"yesButton_2", "noButton_2", "yesButton_2"});
    int questions = 0;
    for (const char *button : {"ok", "cancel"})
        questions += int(answering(QMessageBox::No, [&] { out << button << ' ' << dialog.exec() << '\n'; }).size());
    click(dialog, "chkDefaultPrinter");
    questions += int(answering(QMessageBox::No, [&] { out << "default " << dialog.exec() << '\n'; }).size());
    out << "questions " << questions << '\n';
    out << "printer " << (printer.printerName() == printerName ? "kept" : "changed") << '\n';
    return 0;
}

// The same with a scheduler without queues.
int dialogWithoutQueues(int &argc, char **argv)
{
    const PrivateScheduler scheduler;
    return dialogWithoutPrinters(argc, argv);
}

// Prints on the printer that the list shows at the given index, named by what it shows.
int printByDescription(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    QPrinter printer;
    CupsSupport cups;
    const PrintDialog dialog(nullptr, &printer, &cups);
    QTemporaryFile file;
    if (!file.open() || file.write("label\n") < 0 || !file.flush())
        return 1;
    const QString description = child<QComboBox>(dialog, "cboPrinterName")->itemText(QByteArray(argv[1]).toInt());
    return cups.printFile(file.fileName(), description, "label", {}) > 0 ? 0 : 1;
}

const TestMain::ChildFunction byDescription("printByDescription", printByDescription);
const TestMain::ChildFunction withoutPrinters("dialogWithoutPrinters", dialogWithoutPrinters);
const TestMain::ChildFunction withoutQueues("dialogWithoutQueues", dialogWithoutQueues);

} // namespace

// If this fails, the print dialog shows wrong printers or states, or changes the wrong settings.
class PrintDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void slotsAreInOrder();
    void shortFormIsSetUp();
    void fullFormIsSetUp();
    void fullFormIsVisibleAsAWhole();
    void shortFormEnds_data();
    void shortFormEnds();
    void shortFormAsksTheHostsQuestion();
    void enterAccepts();

    void printersAreListed();
    void currentPrinterIsChosenAtFirst();
    void printerIsDescribed_data();
    void printerIsDescribed();
    void statusIsThatOfTheScheduler_data();
    void statusIsThatOfTheScheduler();
    void stateIsPutIntoWords_data();
    void stateIsPutIntoWords();
    void textsOfTheSchedulerAreNeverRichText();
    void labelsStayWhenThereIsNoSuchPrinter_data();
    void labelsStayWhenThereIsNoSuchPrinter();
    void printingToAFileDependsOnTheModel_data();
    void printingToAFileDependsOnTheModel();
    void labelsComeWithTheName();
    void updateFormStartsAnew();

    void printToFileIsEnabledByNegation();
    void printToFileFixesTheCopies();
    void copiesAreThoseOfTheShortForm();
    void copiesOfTheShownForm();
    void wheelNeedsTheFocus_data();
    void wheelNeedsTheFocus();

    void useDefaultChoosesTheDefaultPrinter();
    void useDefaultReturnsToTheEarlierChoice();
    void useDefaultShowsTheDefaultPrinterAgain();
    void cancelUndoesUseDefault();
    void okAfterUseDefaultWasUntickedKeepsThePrinter();
    void useDefaultCopesWithNewQueues();
    void useDefaultCopesWithoutAnyQueues();

    void okWithoutAChangeAsksNothing();
    void changeIsAsked();
    void changeIsRefused_data();
    void changeIsRefused();
    void changeIsAskedOnce();
    void chosenQueueGetsWhatIsPrinted_data();
    void chosenQueueGetsWhatIsPrinted();
    void pdfPrinterIsTurnedToTheQueue();
    void listedDescriptionFindsItsQueue_data();
    void listedDescriptionFindsItsQueue();

    void propertiesButtonsEndWithMinusOne_data();
    void propertiesButtonsEndWithMinusOne();
    void exec2RunsThePropertiesDialog_data();
    void exec2RunsThePropertiesDialog();
    void iconsAreThoseOfTheStyleNow();
    void exec2RunsItForEveryNegativeResult();

    void languageChangeKeepsThePrinterTexts();
    void languageChangeKeepsWhatIsEnabled();
    void languageChangeTranslatesTheForm();
    void languageChangeKeepsTheHostsQuestion();

    void opensWithoutPrinters_data();
    void opensWithoutPrinters();

private:
    void addSlowQueue(const QString &name, const QString &reason);
    void makeDialog(const QString &current);
    QComboBox *printerList() const { return child<QComboBox>(*dialog, "cboPrinterName"); }
    void choose(const QString &destination) { printerList()->setCurrentIndex(indexOf(destination)); }

    PrivateScheduler scheduler;
    std::unique_ptr<QPrinter> printer;
    std::unique_ptr<CupsSupport> cups;
    std::unique_ptr<PrintDialog> dialog;
};

void PrintDialogTest::addSlowQueue(const QString &name, const QString &reason)
{
    scheduler.addQueue(name);
    PrivateScheduler::run("lpadmin", {"-p", name, "-v", "slow:/" + reason});
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("never printed\n");
    file.close();
    PrivateScheduler::run("lp", {"-d", name, file.fileName()});
}

void PrintDialogTest::initTestCase()
{
    const QString vantry =
        scheduler.editedPpd(PrivateScheduler::samplePpd("label-203"),
                            {{"*NickName: \"Sample Label label 203dpi\"", "*NickName: \"Quillon Vantry\""}});
    scheduler.addQueue("aisle", PrivateScheduler::samplePpd("label-203"), "Aisle Printer", "Hall 1");
    scheduler.addQueue("bare");
    scheduler.addQueue("kitchen", PrivateScheduler::samplePpd("label-300"), "Kitchen Labels", "Küche, Süd");
    scheduler.addQueue("markup", PrivateScheduler::samplePpd("label-203"), "Markup", "<b>Hall</b> 3 & 4");
    scheduler.addQueue("mimic", PrivateScheduler::samplePpd("label-203"), "aisle", "Hall 2");
    scheduler.addQueue("nameless");
    PrivateScheduler::run("lpadmin", {"-p", "nameless", "-D", ""});
    scheduler.addQueue("office", PrivateScheduler::samplePpd("label-203"), "Büro");
    scheduler.addQueue("stopped", PrivateScheduler::samplePpd("label-203"), "Stopped one");
    PrivateScheduler::run("cupsdisable", {"stopped"});
    scheduler.addQueue("twin1", PrivateScheduler::samplePpd("label-203"), "Twin");
    scheduler.addQueue("twin2", PrivateScheduler::samplePpd("label-203"), "Twin");
    scheduler.addQueue("vantry", vantry, "Vantry One");
    scheduler.addQueue("yard", PrivateScheduler::samplePpd("label-203"), "AISLE");
    scheduler.setServerDefault("aisle");
    scheduler.setUserOptions("twin1/small", {"PageSize=w144h72"});

    // Queues that print a job until told otherwise or until the scheduler stops.
    QFile backend(scheduler.dir() + "/bin/backend/slow");
    QVERIFY(backend.open(QIODevice::WriteOnly));
    backend.write("#!/bin/bash\n"
                  "(($# > 0)) || exit 0\n"
                  "reason=${DEVICE_URI#slow:/}\n"
                  "[[ -z $reason ]] || echo \"STATE: +$reason\" >&2\n"
                  "while [[ ! -e ${CUPS_SERVERBIN%/*}/captured/end ]]; do sleep 0.1; done\n");
    backend.close();
    QVERIFY(backend.setPermissions(QFile::Permissions(0x7055)));
    addSlowQueue("busy", "");
    addSlowQueue("hungry", "media-empty-warning");
    QTRY_COMPARE_WITH_TIMEOUT(schedulerStatus("busy"), QString("Printing"), 30000);
    QTRY_COMPARE_WITH_TIMEOUT(schedulerStatus("hungry"), QString("Printing: media-empty-warning"), 30000);
}

void PrintDialogTest::cleanupTestCase()
{
    QFile end(scheduler.dir() + "/captured/end");
    QVERIFY(end.open(QIODevice::WriteOnly));
}

void PrintDialogTest::init()
{
    printer = std::make_unique<QPrinter>();
    cups = std::make_unique<CupsSupport>();
    QCOMPARE(cups->getCurrentQueueName(), QString("aisle"));
    dialog = std::make_unique<PrintDialog>(nullptr, printer.get(), cups.get());
}

void PrintDialogTest::cleanup()
{
    dialog.reset();
    cups.reset();
    printer.reset();
}

// A dialog that opens with another current printer than the default one.
void PrintDialogTest::makeDialog(const QString &current)
{
    cups->setCurrentPrinter(indexOf(current));
    dialog = std::make_unique<PrintDialog>(nullptr, printer.get(), cups.get());
}

void PrintDialogTest::slotsAreInOrder()
{
    const QMetaObject &meta = PrintDialog::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        names << meta.method(i).methodSignature();
    }
    QCOMPARE(names, QStringList({"on_propertiesButton_clicked()", "on_propertiesButton_2_clicked()",
                                 "on_yesButton_2_clicked()", "chk_printToFile_changed_state(bool)",
                                 "chk_chkDefaultPrinter_changed_state(bool)", "cbo_Printers_change(int)"}));
}

void PrintDialogTest::shortFormIsSetUp()
{
    QWidget parent;
    const PrintDialog form(&parent);
    QCOMPARE(form.parentWidget(), &parent);
    QCOMPARE(form.windowFlags(), Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    QCOMPARE(child<QStackedWidget>(form, "stackedWidget")->currentWidget()->objectName(), QString("page_Simple"));
    QCOMPARE(form.minimumSize(), QSize(380, 110));
    QCOMPARE(form.maximumSize(), QSize(380, 110));
    QCOMPARE(image(child<QAbstractButton>(form, "yesButton")->icon()),
             image(form.style()->standardIcon(QStyle::SP_DialogYesButton)));
    QCOMPARE(image(child<QAbstractButton>(form, "noButton")->icon()),
             image(form.style()->standardIcon(QStyle::SP_DialogNoButton)));
    QCOMPARE(child<QSpinBox>(form, "numCopies")->minimum(), 1);
    QCOMPARE(child<QSpinBox>(form, "numCopies")->maximum(), 100);
    QCOMPARE(form.numCopies(), 1);
    QVERIFY(!form.printToFile());
    QCOMPARE(text(form, "textLabel"), QString("Request Print Job Now"));
}

void PrintDialogTest::fullFormIsSetUp()
{
    QWidget parent;
    const PrintDialog form(&parent, printer.get(), cups.get());
    QCOMPARE(form.parentWidget(), &parent);
    // Qt adds a system menu to a close button.
    QCOMPARE(form.windowFlags(), Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint
                                     | Qt::WindowSystemMenuHint);
    QCOMPARE(child<QStackedWidget>(form, "stackedWidget")->currentWidget()->objectName(),
             QString("page_SelectPrinter"));
    QCOMPARE(form.minimumSize(), QSize(462, 291));
    QCOMPARE(form.maximumSize(), QSize(462, 291));
    QCOMPARE(image(child<QAbstractButton>(form, "yesButton_2")->icon()),
             image(form.style()->standardIcon(QStyle::SP_DialogYesButton)));
    QCOMPARE(image(child<QAbstractButton>(form, "noButton_2")->icon()),
             image(form.style()->standardIcon(QStyle::SP_DialogNoButton)));
    QCOMPARE(child<QSpinBox>(form, "numCopies_2")->minimum(), 1);
    QCOMPARE(child<QSpinBox>(form, "numCopies_2")->maximum(), 100);
    QCOMPARE(child<QSpinBox>(form, "numCopies_2")->value(), 1);
    QCOMPARE(form.numCopies(), 1);
    QVERIFY(!child<QComboBox>(form, "cboPrinterName")->isEditable());
    QVERIFY(!form.printToFile());
}

// The layout of the form is taller than the window: everything to be seen must be in its upper part.
void PrintDialogTest::fullFormIsVisibleAsAWhole()
{
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
    for (const char *name : {"frame_0", "frame_2", "yesButton_2", "noButton_2"}) {
        const auto *widget = child<QWidget>(*dialog, name);
        const QRect place(widget->mapTo(dialog.get(), QPoint()), widget->size());
        QVERIFY2(dialog->rect().contains(place), name);
    }
    dialog->hide();
}

void PrintDialogTest::shortFormEnds_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");

    QTest::newRow("yes") << "yesButton" << 1;
    QTest::newRow("no") << "noButton" << 0;
    QTest::newRow("properties") << "propertiesButton" << -1;
}

void PrintDialogTest::shortFormEnds()
{
    QFETCH(QString, button);
    QFETCH(int, result);

    PrintDialog form(nullptr);
    Clicker clicker(form, {button});
    QCOMPARE(form.exec(), result);
    QVERIFY(!form.isVisible());
}

void PrintDialogTest::shortFormAsksTheHostsQuestion()
{
    PrintDialog form(nullptr);
    form.setText("Print 3 labels?");
    QCOMPARE(text(form, "textLabel"), QString("Print 3 labels?"));
    form.setNumCopies(7);
    QCOMPARE(form.numCopies(), 7);
    form.setNumCopies(101);
    QCOMPARE(form.numCopies(), 100);
    form.setNumCopies(0);
    QCOMPARE(form.numCopies(), 1);
}

void PrintDialogTest::enterAccepts()
{
    PrintDialog shortForm(nullptr);
    for (PrintDialog *form : {&shortForm, dialog.get()}) {
        form->show();
        QTest::keyClick(form, Qt::Key_Return);
        QCOMPARE(form->result(), int(QDialog::Accepted));
        QVERIFY(!form->isVisible());
    }
}

void PrintDialogTest::printersAreListed()
{
    // By description, in the order of the destinations.
    const QMap<QString, QString> descriptions{{"aisle", "Aisle Printer"}, {"kitchen", "Kitchen Labels"},
                                              {"markup", "Markup"},       {"mimic", "aisle"},
                                              {"nameless", ""},           {"office", "Büro"},
                                              {"stopped", "Stopped one"}, {"twin1", "Twin"},
                                              {"twin1/small", "Twin"},    {"twin2", "Twin"},
                                              {"vantry", "Vantry One"},   {"yard", "AISLE"}};
    QStringList expected;
    for (const QString &name : destinations())
        expected << descriptions.value(name, name);
    QStringList found;
    for (int i = 0; i < printerList()->count(); ++i) {
        found << printerList()->itemText(i);
        QVERIFY(printerList()->itemIcon(i).isNull());
        QVERIFY(!printerList()->itemData(i).isValid());
    }
    QCOMPARE(found, expected);
    QCOMPARE(found.size(), 15);
}

void PrintDialogTest::currentPrinterIsChosenAtFirst()
{
    QCOMPARE(printerList()->currentIndex(), indexOf("aisle"));
    QCOMPARE(text(*dialog, "lblLocation"), QString("Hall 1"));

    makeDialog("kitchen");
    QCOMPARE(printerList()->currentIndex(), indexOf("kitchen"));
    QCOMPARE(text(*dialog, "lblTypeInfo"), QString("Sample Label label 300x305dpi"));

    makeDialog("no such queue");
    QCOMPARE(printerList()->currentIndex(), -1);
    QCOMPARE(text(*dialog, "lblStatusInfo"), QString("Ready"));
}

void PrintDialogTest::printerIsDescribed_data()
{
    QTest::addColumn<QString>("destination");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("location");

    const QString label = "Sample Label label 203dpi";
    QTest::newRow("idle") << "mimic" << label << "Idle"
                          << "Hall 2";
    QTest::newRow("without location") << "bare" << label << "Idle"
                                      << "";
    QTest::newRow("location outside ASCII") << "kitchen"
                                            << "Sample Label label 300x305dpi"
                                            << "Idle"
                                            << "Küche, Süd";
    QTest::newRow("printing") << "busy" << label << "Printing"
                              << "";
    QTest::newRow("printing with a reason") << "hungry" << label << "Printing: media-empty-warning"
                                            << "";
    QTest::newRow("stopped") << "stopped" << label << "Stopped: paused"
                             << "";
    QTest::newRow("model") << "vantry"
                           << "Quillon Vantry"
                           << "Idle"
                           << "";
}

void PrintDialogTest::printerIsDescribed()
{
    QFETCH(QString, destination);
    QFETCH(QString, type);
    QFETCH(QString, status);
    QFETCH(QString, location);

    choose(destination);
    QCOMPARE(text(*dialog, "lblTypeInfo"), type);
    QCOMPARE(text(*dialog, "lblStatusInfo"), status);
    QCOMPARE(text(*dialog, "lblLocation"), location);
}

void PrintDialogTest::statusIsThatOfTheScheduler_data()
{
    QTest::addColumn<QString>("queue");

    for (const char *queue : {"aisle", "bare", "busy", "hungry", "kitchen", "stopped"})
        QTest::newRow(queue) << queue;
}

void PrintDialogTest::statusIsThatOfTheScheduler()
{
    QFETCH(QString, queue);

    choose(queue);
    QCOMPARE(text(*dialog, "lblStatusInfo"), schedulerStatus(queue));
}

void PrintDialogTest::stateIsPutIntoWords_data()
{
    QTest::addColumn<QString>("state"); // empty: not known
    QTest::addColumn<QString>("reasons");
    QTest::addColumn<QString>("status");

    QTest::newRow("idle") << "3"
                          << "none"
                          << "Idle";
    QTest::newRow("printing") << "4"
                              << "none"
                              << "Printing";
    QTest::newRow("stopped") << "5"
                             << "none"
                             << "Stopped";
    QTest::newRow("no reasons") << "3"
                                << ""
                                << "Idle";
    QTest::newRow("reason") << "5"
                            << "media-empty-error"
                            << "Stopped: media-empty-error";
    QTest::newRow("reasons") << "5"
                             << "media-empty-error,paused"
                             << "Stopped: media-empty-error,paused";
    QTest::newRow("reason of an idle one") << "3"
                                           << "offline-report"
                                           << "Idle: offline-report";
    QTest::newRow("reason of none") << "3"
                                    << "nonesuch"
                                    << "Idle: nonesuch";
    QTest::newRow("below") << "2"
                           << "none"
                           << "Invalid";
    QTest::newRow("beyond") << "6"
                            << "none"
                            << "Invalid";
    QTest::newRow("beyond with a reason") << "6"
                                          << "paused"
                                          << "Invalid: paused";
    QTest::newRow("missing") << ""
                             << "none"
                             << "Invalid";
    QTest::newRow("no number") << "idle"
                               << "none"
                               << "Invalid";
    QTest::newRow("no decimal number") << "0x3"
                                       << "none"
                                       << "Invalid";
}

void PrintDialogTest::stateIsPutIntoWords()
{
    QFETCH(QString, state);
    QFETCH(QString, reasons);
    QFETCH(QString, status);

    QVERIFY(cups->setOptions({"printer-state", "99"}));
    QVERIFY(cups->setOptions({"printer-state", state, "printer-state-reasons", reasons}) || reasons == "none");
    dialog->updateForm();
    QCOMPARE(text(*dialog, "lblStatusInfo"), status);
}

void PrintDialogTest::textsOfTheSchedulerAreNeverRichText()
{
    choose("markup");
    const auto *label = child<QLabel>(*dialog, "lblLocation");
    QCOMPARE(label->text(), QString("<b>Hall</b> 3 & 4"));
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(label->toolTip(), QString("<span>&lt;b&gt;Hall&lt;/b&gt; 3 &amp; 4</span>"));
    choose("bare");
    QCOMPARE(label->toolTip(), QString());
    QCOMPARE(child<QLabel>(*dialog, "lblStatusInfo")->textFormat(), Qt::PlainText);
    QCOMPARE(child<QLabel>(*dialog, "lblTypeInfo")->textFormat(), Qt::PlainText);
}

void PrintDialogTest::labelsStayWhenThereIsNoSuchPrinter_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("before the first") << -1;
    QTest::newRow("after the last") << 15;
    QTest::newRow("far away") << 1000;
}

void PrintDialogTest::labelsStayWhenThereIsNoSuchPrinter()
{
    QFETCH(int, index);

    choose("vantry");
    dialog->updateLabels(index);
    QCOMPARE(text(*dialog, "lblTypeInfo"), QString("Quillon Vantry"));
    QVERIFY(child<QWidget>(*dialog, "chkPrintToFile")->isEnabled());
    QMetaObject::invokeMethod(dialog.get(), "cbo_Printers_change", Q_ARG(int, index));
    QCOMPARE(text(*dialog, "lblTypeInfo"), QString("Quillon Vantry"));
}

void PrintDialogTest::printingToAFileDependsOnTheModel_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("the model") << "Quillon Vantry" << true;
    QTest::newRow("other case") << "quillon vantry" << false;
    QTest::newRow("longer") << "Quillon Vantry 2" << false;
    QTest::newRow("shorter") << "Vantry" << false;
    QTest::newRow("none") << "" << false;
    QTest::newRow("read byte by byte") << QString::fromLatin1("Quillon Vantr\xc3\xbf") << false;
}

void PrintDialogTest::printingToAFileDependsOnTheModel()
{
    QFETCH(QString, model);
    QFETCH(bool, enabled);

    QVERIFY(cups->setOptions({"printer-make-and-model", model}));
    dialog->updateForm();
    QCOMPARE(text(*dialog, "lblTypeInfo"), model);
    QCOMPARE(child<QWidget>(*dialog, "chkPrintToFile")->isEnabled(), enabled);

    choose("vantry");
    QVERIFY(child<QWidget>(*dialog, "chkPrintToFile")->isEnabled());
    choose("aisle");
    QCOMPARE(child<QWidget>(*dialog, "chkPrintToFile")->isEnabled(), enabled);
}

// In a host that makes the list editable.
void PrintDialogTest::labelsComeWithTheName()
{
    printerList()->setEditable(true);
    dialog->updateLabels(indexOf("kitchen"));
    QCOMPARE(printerList()->currentText(), QString("Kitchen Labels"));
}

void PrintDialogTest::updateFormStartsAnew()
{
    makeDialog("vantry");
    click(*dialog, "chkPrintToFile");
    click(*dialog, "chkDefaultPrinter");
    QVERIFY(dialog->printToFile());

    cups->setCurrentPrinter(indexOf("vantry"));
    dialog->updateForm();
    QVERIFY(!dialog->printToFile());
    QVERIFY(!child<QCheckBox>(*dialog, "chkDefaultPrinter")->isChecked());
    QVERIFY(child<QWidget>(*dialog, "chkPrintToFile")->isEnabled());
    QVERIFY(child<QWidget>(*dialog, "numCopies_2")->isEnabled());
    QVERIFY(printerList()->isEnabled());
    QCOMPARE(printerList()->count(), 15);
    QCOMPARE(printerList()->currentIndex(), indexOf("vantry"));
    // This is now the printer to which OK changes nothing.
    QVERIFY(clickOk(*dialog).isEmpty());
    QCOMPARE(dialog->result(), 1);
}

void PrintDialogTest::printToFileIsEnabledByNegation()
{
    const auto *box = child<QWidget>(*dialog, "chkPrintToFile");
    dialog->setPrintToFileEnabled(false);
    QVERIFY(box->isEnabled());
    dialog->setPrintToFileEnabled(true);
    QVERIFY(!box->isEnabled());
}

void PrintDialogTest::printToFileFixesTheCopies()
{
    choose("vantry");
    auto *copies = child<QSpinBox>(*dialog, "numCopies_2");
    copies->setValue(5);
    click(*dialog, "chkPrintToFile");
    QVERIFY(dialog->printToFile());
    QVERIFY(!copies->isEnabled());
    QCOMPARE(copies->value(), 1);
    click(*dialog, "chkPrintToFile");
    QVERIFY(!dialog->printToFile());
    QVERIFY(copies->isEnabled());
    QCOMPARE(copies->value(), 5);
}

void PrintDialogTest::copiesAreThoseOfTheShortForm()
{
    auto *shown = child<QSpinBox>(*dialog, "numCopies_2");
    shown->setValue(5);
    QCOMPARE(dialog->numCopies(), 1);
    dialog->setNumCopies(9);
    QCOMPARE(dialog->numCopies(), 9);
    QCOMPARE(shown->value(), 5);
}

// The number for hosts, which need not look into the form.
void PrintDialogTest::copiesOfTheShownForm()
{
    PrintDialog shortForm(nullptr);
    child<QSpinBox>(shortForm, "numCopies")->setValue(7);
    QCOMPARE(shortForm.copies(), 7);

    choose("vantry");
    QCOMPARE(dialog->copies(), 1);
    child<QSpinBox>(*dialog, "numCopies_2")->setValue(5);
    dialog->setNumCopies(9);
    QCOMPARE(dialog->copies(), 5);
    click(*dialog, "chkPrintToFile");
    QCOMPARE(dialog->copies(), 1);
}

void PrintDialogTest::wheelNeedsTheFocus_data()
{
    QTest::addColumn<bool>("isShortForm");
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("printers") << false << QByteArray("cboPrinterName") << QByteArray("yesButton_2");
    QTest::newRow("copies") << false << QByteArray("numCopies_2") << QByteArray("yesButton_2");
    QTest::newRow("copies in the short form") << true << QByteArray("numCopies") << QByteArray("yesButton");
}

// Who scrolls something else must not print on another printer or more labels.
void PrintDialogTest::wheelNeedsTheFocus()
{
    QFETCH(bool, isShortForm);
    QFETCH(QByteArray, field);
    QFETCH(QByteArray, button);
    PrintDialog shortForm(nullptr);
    PrintDialog &form = isShortForm ? shortForm : *dialog;
    for (QSpinBox *copies : form.findChildren<QSpinBox *>())
        copies->setValue(5);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    auto *widget = child<QWidget>(form, field.constData());
    const QMetaProperty shown = widget->metaObject()->userProperty();
    const QVariant before = shown.read(widget);
    child<QWidget>(form, button.constData())->setFocus();
    turnWheel(widget);
    QCOMPARE(shown.read(widget), before);
    QVERIFY(!widget->hasFocus());
    widget->setFocus();
    turnWheel(widget);
    QVERIFY(shown.read(widget) != before);
}

void PrintDialogTest::useDefaultChoosesTheDefaultPrinter()
{
    makeDialog("kitchen");
    click(*dialog, "chkDefaultPrinter");
    QVERIFY(!printerList()->isEnabled());
    QCOMPARE(printerList()->currentIndex(), indexOf("aisle"));
    QCOMPARE(text(*dialog, "lblLocation"), QString("Hall 1"));

    const QList<Question> questions = clickOk(*dialog, QMessageBox::Yes);
    QCOMPARE(questions.size(), 1);
    QCOMPARE(questions.first().text, QString("Do you want to change the current printer to \nAisle Printer ?"));
    QCOMPARE(dialog->result(), 1);
    QCOMPARE(cups->getCurrentQueueName(), QString("aisle"));
    QCOMPARE(printer->printerName(), QString("aisle"));
}

void PrintDialogTest::useDefaultReturnsToTheEarlierChoice()
{
    choose("kitchen");
    click(*dialog, "chkDefaultPrinter");
    QCOMPARE(printerList()->currentIndex(), indexOf("aisle"));
    click(*dialog, "chkDefaultPrinter");
    QVERIFY(printerList()->isEnabled());
    QCOMPARE(printerList()->currentIndex(), indexOf("kitchen"));
    QCOMPARE(text(*dialog, "lblLocation"), QString("Küche, Süd"));
}

// The labels and what depends on them are updated even if the list's index does not change.
void PrintDialogTest::useDefaultShowsTheDefaultPrinterAgain()
{
    dialog->setPrintToFileEnabled(false);
    click(*dialog, "chkDefaultPrinter");
    QCOMPARE(printerList()->currentIndex(), indexOf("aisle"));
    QVERIFY(!child<QWidget>(*dialog, "chkPrintToFile")->isEnabled());
}

void PrintDialogTest::cancelUndoesUseDefault()
{
    const QString name = printer->printerName();
    makeDialog("kitchen");
    click(*dialog, "chkDefaultPrinter");
    click(*dialog, "noButton_2");
    QCOMPARE(dialog->result(), 0);
    QCOMPARE(cups->getCurrentQueueName(), QString("kitchen"));
    QCOMPARE(printer->printerName(), name);
}

void PrintDialogTest::okAfterUseDefaultWasUntickedKeepsThePrinter()
{
    makeDialog("kitchen");
    click(*dialog, "chkDefaultPrinter");
    click(*dialog, "chkDefaultPrinter");
    QVERIFY(clickOk(*dialog).isEmpty());
    QCOMPARE(dialog->result(), 1);
    QCOMPARE(cups->getCurrentQueueName(), QString("kitchen"));
}

// The destinations are fetched again, and with other queues among them the indexes change.
void PrintDialogTest::useDefaultCopesWithNewQueues()
{
    makeDialog("kitchen");
    scheduler.addQueue("aaa", PrivateScheduler::samplePpd("label-203"), "Before all others");
    click(*dialog, "chkDefaultPrinter");
    const QString chosen = printerList()->currentText();
    const int count = printerList()->count();
    const QList<Question> questions = clickOk(*dialog, QMessageBox::Yes);
    scheduler.removeQueue("aaa");

    QCOMPARE(count, 16);
    QCOMPARE(chosen, QString("Aisle Printer"));
    QCOMPARE(questions.size(), 1);
    QCOMPARE(cups->getCurrentQueueName(), QString("aisle"));
    QCOMPARE(printer->printerName(), QString("aisle"));
}

void PrintDialogTest::useDefaultCopesWithoutAnyQueues()
{
    makeDialog("kitchen");
    scheduler.stop();
    const auto *printToFile = child<QWidget>(*dialog, "chkPrintToFile");
    const bool wasEnabled = printToFile->isEnabled();
    click(*dialog, "chkDefaultPrinter");
    const int count = printerList()->count();
    const QList<Question> questions = clickOk(*dialog);
    scheduler.start();

    QVERIFY(!wasEnabled);
    QVERIFY(printToFile->isEnabled()); // as in any form that is filled again; having no printer does not disable it
    QCOMPARE(count, 0);
    QVERIFY(questions.isEmpty());
    QCOMPARE(dialog->result(), 1);
}

void PrintDialogTest::okWithoutAChangeAsksNothing()
{
    makeDialog("kitchen");
    const QString name = printer->printerName();
    choose("aisle");
    choose("kitchen");
    QVERIFY(clickOk(*dialog).isEmpty());
    QCOMPARE(dialog->result(), 1);
    QCOMPARE(cups->getCurrentQueueName(), QString("kitchen"));
    QCOMPARE(printer->printerName(), name);
}

void PrintDialogTest::changeIsAsked()
{
    choose("kitchen");
    const QList<Question> questions = clickOk(*dialog);
    QCOMPARE(questions.size(), 1);
    QCOMPARE(questions.first().title, QString("Printer Change"));
    QCOMPARE(questions.first().text, QString("Do you want to change the current printer to \nKitchen Labels ?"));
    QCOMPARE(questions.first().buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(questions.first().icon, QMessageBox::Warning);
    QVERIFY(!questions.first().hasDefault);
}

void PrintDialogTest::changeIsRefused_data()
{
    QTest::addColumn<bool>("byEscape");

    QTest::newRow("no") << false;
    QTest::newRow("escape") << true;
}

void PrintDialogTest::changeIsRefused()
{
    QFETCH(bool, byEscape);

    const QString name = printer->printerName();
    dialog->setResult(1);
    choose("kitchen");
    if (byEscape) {
        QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        click(*dialog, "yesButton_2");
    } else {
        clickOk(*dialog, QMessageBox::No);
    }
    QCOMPARE(dialog->result(), 0);
    QCOMPARE(cups->getCurrentQueueName(), QString("aisle"));
    QCOMPARE(printer->printerName(), name);
}

// A dialog may be run again; the printer chosen before is then the current one.
void PrintDialogTest::changeIsAskedOnce()
{
    choose("kitchen");
    QCOMPARE(clickOk(*dialog, QMessageBox::Yes).size(), 1);
    QVERIFY(clickOk(*dialog).isEmpty());
    QCOMPARE(dialog->result(), 1);
    click(*dialog, "noButton_2");
    QCOMPARE(cups->getCurrentQueueName(), QString("kitchen"));
}

void PrintDialogTest::chosenQueueGetsWhatIsPrinted_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("queue");

    QTest::newRow("unknown to Qt by its description") << "aisle"
                                                      << "kitchen"
                                                      << "kitchen";
    QTest::newRow("described by its own name") << "aisle"
                                               << "bare"
                                               << "bare";
    QTest::newRow("described by the name of the one before") << "aisle"
                                                             << "mimic"
                                                             << "mimic";
    QTest::newRow("described by the name of a third one") << "kitchen"
                                                          << "mimic"
                                                          << "mimic";
    // The scheduler does not distinguish upper and lower case in names.
    QTest::newRow("described by the name of a third one in capitals") << "kitchen"
                                                                      << "yard"
                                                                      << "yard";
    QTest::newRow("not described") << "aisle"
                                   << "nameless"
                                   << "nameless";
    QTest::newRow("described in umlauts") << "aisle"
                                          << "office"
                                          << "office";
    QTest::newRow("first of the same description") << "aisle"
                                                   << "twin1"
                                                   << "twin1";
    QTest::newRow("second of the same description") << "aisle"
                                                    << "twin2"
                                                    << "twin2";
    QTest::newRow("instance") << "aisle"
                              << "twin1/small"
                              << "twin1";
}

void PrintDialogTest::chosenQueueGetsWhatIsPrinted()
{
    QFETCH(QString, before);
    QFETCH(QString, chosen);
    QFETCH(QString, queue);

    printer->setPrinterName(before);
    makeDialog(before);
    choose(chosen);
    clickOk(*dialog, QMessageBox::Yes);
    QCOMPARE(dialog->result(), 1);
    QCOMPARE(cups->getCurrentQueueName(), chosen);
    QCOMPARE(printer->printerName(), chosen);

    const int jobsBefore = int(scheduler.jobs(0).size());
    QPainter painter;
    QVERIFY(painter.begin(printer.get()));
    painter.drawText(50, 50, "label");
    QVERIFY(painter.end());
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("printed as a file\n");
    file.close();
    QVERIFY(cups->printFile(file.fileName(), {}, "file", {}) > 0);

    const QList<CapturedJob> jobs = scheduler.jobs(jobsBefore + 2).mid(jobsBefore);
    QCOMPARE(jobs.size(), 2);
    QCOMPARE(jobs[0].queue, queue);
    QVERIFY(jobs[0].data.startsWith("%PDF"));
    QCOMPARE(jobs[1].queue, queue);
    QCOMPARE(jobs[1].data, QByteArray("printed as a file\n"));
}

void PrintDialogTest::pdfPrinterIsTurnedToTheQueue()
{
    printer->setOutputFormat(QPrinter::PdfFormat);
    choose("kitchen");
    clickOk(*dialog, QMessageBox::Yes);
    QCOMPARE(printer->outputFormat(), QPrinter::NativeFormat);
    QCOMPARE(printer->printerName(), QString("kitchen"));
}

void PrintDialogTest::listedDescriptionFindsItsQueue_data()
{
    QTest::addColumn<QString>("locale");

    QTest::newRow("UTF-8") << "C.UTF-8";
    QTest::newRow("ASCII") << "C";
}

// A host that prints by the text that the user chose by.
void PrintDialogTest::listedDescriptionFindsItsQueue()
{
    QFETCH(QString, locale);

    const int jobsBefore = int(scheduler.jobs(0).size());
    const TestMain::ChildResult result =
        TestMain::runChild("printByDescription", {QString::number(indexOf("office"))}, {{"LC_ALL", locale}});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(scheduler.jobs(jobsBefore + 1).last().queue, QString("office"));
}

void PrintDialogTest::propertiesButtonsEndWithMinusOne_data()
{
    QTest::addColumn<QString>("button");

    QTest::newRow("short form") << "propertiesButton";
    QTest::newRow("full form") << "propertiesButton_2";
}

void PrintDialogTest::propertiesButtonsEndWithMinusOne()
{
    QFETCH(QString, button);

    QSignalSpy finished(dialog.get(), &QDialog::finished);
    child<QAbstractButton>(*dialog, qPrintable(button))->click();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(dialog->result(), -1);
}

void PrintDialogTest::exec2RunsThePropertiesDialog_data()
{
    QTest::addColumn<bool>("full");
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("runs");

    QTest::newRow("ok") << true << QStringList{"yesButton_2"} << 1 << 0;
    QTest::newRow("cancel") << true << QStringList{"noButton_2"} << 0 << 0;
    QTest::newRow("properties, ok") << true << QStringList{"propertiesButton_2", "yesButton_2"} << 1 << 1;
    QTest::newRow("properties twice, cancel")
        << true << QStringList{"propertiesButton_2", "propertiesButton_2", "noButton_2"} << 0 << 2;
    QTest::newRow("yes") << false << QStringList{"yesButton"} << 1 << 0;
    QTest::newRow("properties, no") << false << QStringList{"propertiesButton", "noButton"} << 0 << 1;
}

void PrintDialogTest::exec2RunsThePropertiesDialog()
{
    QFETCH(bool, full);
    QFETCH(QStringList, buttons);
    QFETCH(int, result);
    QFETCH(int, runs);

    PrintDialog shortForm(nullptr);
    PrintDialog &form = full ? *dialog : shortForm;
    OtherDialog properties;
    const Clicker clicker(form, buttons);
    QCOMPARE(form.exec2(properties), result);
    QCOMPARE(properties.runs, runs);
    QVERIFY(clicker.buttons.isEmpty());
    QVERIFY(!form.isVisible());
}

// Icons are kept between openings; those of an earlier style are of no use.
void PrintDialogTest::iconsAreThoseOfTheStyleNow()
{
    class BlueStyle : public QProxyStyle
    {
    public:
        QIcon standardIcon(StandardPixmap, const QStyleOption *, const QWidget *) const override
        {
            QPixmap pixmap(16, 16);
            pixmap.fill(Qt::blue);
            return QIcon(pixmap);
        }
    };
    const auto middle = [] {
        const PrintDialog form(nullptr);
        return image(child<QAbstractButton>(form, "yesButton")->icon()).pixelColor(8, 8);
    };
    const QString usual = QApplication::style()->objectName();
    const QColor before = middle();
    QApplication::setStyle(new BlueStyle);
    const QColor inBlue = middle();
    QApplication::setStyle(usual);
    QCOMPARE(inBlue, QColor(Qt::blue));
    QCOMPARE(middle(), before);
    QVERIFY(before != inBlue);
}

void PrintDialogTest::exec2RunsItForEveryNegativeResult()
{
    OtherDialog properties;
    QTimer::singleShot(0, dialog.get(), [this] { dialog->done(-2); });
    QTimer timer;
    connect(&timer, &QTimer::timeout, dialog.get(), [&] {
        if (properties.runs > 0 && dialog->isVisible())
            dialog->accept();
    });
    timer.start(0);
    QCOMPARE(dialog->exec2(properties), 1);
    QCOMPARE(properties.runs, 1);
}

void PrintDialogTest::languageChangeKeepsThePrinterTexts()
{
    choose("kitchen");
    const EchoTranslator translator;
    QCOMPARE(dialog->windowTitle(), QString("PrintDialog/Print"));
    QCOMPARE(text(*dialog, "lblStatus"), QString("PrintDialog/Status:"));
    QCOMPARE(text(*dialog, "lblStatusInfo"), QString("Idle"));
    QCOMPARE(text(*dialog, "lblTypeInfo"), QString("Sample Label label 300x305dpi"));
    QCOMPARE(text(*dialog, "lblLocation"), QString("Küche, Süd"));
    QCOMPARE(printerList()->currentText(), QString("Kitchen Labels"));

    choose("vantry");
    QCOMPARE(text(*dialog, "lblStatusInfo"), QString("Idle")); // in no language anything else
    const QList<Question> questions = clickOk(*dialog);
    QCOMPARE(questions.first().title, QString("PrintDialog/Printer Change"));
    QCOMPARE(questions.first().text,
             QString("PrintDialog/Do you want to change the current printer to \nVantry OnePrintDialog/ ?"));
}

void PrintDialogTest::languageChangeKeepsWhatIsEnabled()
{
    choose("vantry");
    dialog->setPrintToFileEnabled(true);
    const EchoTranslator translator;
    QVERIFY(!child<QWidget>(*dialog, "chkPrintToFile")->isEnabled());
}

void PrintDialogTest::languageChangeTranslatesTheForm()
{
    const PrintDialog form(nullptr);
    {
        const EchoTranslator translator;
        QCOMPARE(text(form, "textLabel"), QString("PrintDialog/Request Print Job Now"));
        QCOMPARE(text(form, "lblStatusInfo"), QString("PrintDialog/Ready"));
        QCOMPARE(text(form, "lblTypeInfo"), QString("PrintDialog/Vantry"));
        QCOMPARE(text(form, "lblLocation"), QString("PrintDialog/Here"));
        QCOMPARE(child<QAbstractButton>(form, "yesButton")->text(), QString("PrintDialog/Yes"));
    }
    QCOMPARE(text(form, "textLabel"), QString("Request Print Job Now"));
}

void PrintDialogTest::languageChangeKeepsTheHostsQuestion()
{
    PrintDialog form(nullptr);
    form.setText("Print 3 labels?");
    const EchoTranslator translator;
    QCOMPARE(text(form, "textLabel"), QString("Print 3 labels?"));
    QCOMPARE(text(form, "numCopiesLabel"), QString("PrintDialog/Number of Copies:"));
}

void PrintDialogTest::opensWithoutPrinters_data()
{
    QTest::addColumn<QString>("function");

    QTest::newRow("no scheduler") << "dialogWithoutPrinters";
    QTest::newRow("no queues") << "dialogWithoutQueues";
}

void PrintDialogTest::opensWithoutPrinters()
{
    QFETCH(QString, function);

    const TestMain::ChildResult result =
        TestMain::runChild(qPrintable(function), {}, {{"CUPS_SERVER", scheduler.dir() + "/nowhere"}});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QByteArray("entries 0\n"
                                       "texts Ready Vantry Here\n"
                                       "ok 1\n"
                                       "cancel 0\n"
                                       "default 1\n"
                                       "questions 0\n"
                                       "printer kept\n"));
}

PROPERTIESDIALOG_TEST_MAIN(PrintDialogTest)
#include "PrintDialogTest.moc"
