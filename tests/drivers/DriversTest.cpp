// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "DriverPpds.h"
#include "OpenDialog.h"
#include "TestMain.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <functional>

/**
 * Label printers of other makes, with the real drivers of CUPS and Debian. If one of these fails, a user sets something
 * in the dialog and the printer does something else.
 */
class DriversTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void printed_data();
    void printed();
    void mirrored();
    void nothingTouched_data();
    void nothingTouched();
    void untouchedBesideAChange();
    void fields_data();
    void fields();
    void ranges();
    void fewerMediaTypes();
    void leftToPrinter();
    void leavingAgain();
    void whatOthersSet();
    void userPageSizeBeyondLimits();
    void userPageSizeInNewProcess();
    void noUserPageSize();
    void presetByShell();
    void presetInDialog();
    void defaultSettings();
    void driverCommandIsNotRun();
    void familyMarkersAreIgnored();
    void noLabelSettings();
    void queueGetsAnotherDriver();

    void conflictsOfAnotherMake();
    void conflictsInAnotherLanguage();
    void conflictsOfOurOwn();
    void conflictResolution();

private:
    using Action = std::function<void(OpenDialog &)>;

    QByteArray bytesOf(int job);
    QByteArray printedByLibrary(const QByteArray &queue);
    QByteArray printedByLp(const QByteArray &queue);
    static QString preset(const QByteArray &queue, const QString &name);

    std::unique_ptr<PrivateScheduler> scheduler;
    DriverPpds ppds;
    QTemporaryDir folder;
    QString label;
};

Q_DECLARE_METATYPE(std::function<void(OpenDialog &)>)

namespace {

// Black in the left half of a page of 2 by 1 inches.
const char labelPdf[] = "%PDF-1.4\n"
                        "1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
                        "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
                        "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 144 72]/Contents 4 0 R>>endobj\n"
                        "4 0 obj<</Length 16>>stream\n0 0 72 72 re f  \nendstream endobj\n"
                        "trailer<</Size 5/Root 1 0 R>>\n%%EOF\n";

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

} // namespace

void DriversTest::initTestCase()
{
    label = folder.filePath("label.pdf");
    writeFile(label, labelPdf);
    scheduler = std::make_unique<PrivateScheduler>();
    scheduler->useDrivers();
    for (const char *name : {"zebra", "zebracpl", "zebraep2", "intelbar", "dymo", "epson9"})
        scheduler->addQueue(name, ppds.ppd(name));
    scheduler->addQueue("ql820", ppds.ppd("ptouch:QL-820NWB"));
    scheduler->addQueue("ZED-KERN", ppds.ppd("zebra"));
    scheduler->addQueue(
        "own", scheduler->editedPpd(PrivateScheduler::samplePpd("label-203"),
                                    {{"*DefaultFont: Courier", "*UIConstraints: *Darkness 19 *PrintSpeed 5\n"
                                                               "*UIConstraints: *PrintSpeed 5 *Darkness 19\n"
                                                               "*UIConstraints: *Darkness 17 *OffsetH 0\n"
                                                               "*UIConstraints: *OffsetH 0 *Darkness 17\n"
                                                               "*UIConstraints: *PageSize w288h432 *Resolution 203dpi\n"
                                                               "*DefaultFont: Courier"}}));
}

void DriversTest::init()
{
    clearHome();
}

void DriversTest::cleanupTestCase()
{
    scheduler.reset();
}

QByteArray DriversTest::bytesOf(int job)
{
    return scheduler->job(job).data;
}

QByteArray DriversTest::printedByLibrary(const QByteArray &queue)
{
    CupsSupport cups;
    selectQueue(cups, queue);
    const int job = cups.printFile(label, QString(), "label", {});
    if (job == 0)
        qFatal("not printed: %s", CupsSupport::getCupsError());
    return bytesOf(job);
}

QByteArray DriversTest::printedByLp(const QByteArray &queue)
{
    const QString answer = PrivateScheduler::run("lp", {"-d", queue, label}); // request id is zebra-3 (1 file(s))
    static const QRegularExpression number("-(\\d+) ");
    return bytesOf(number.match(answer).captured(1).toInt());
}

// ----- each setting -----

void DriversTest::printed_data()
{
    QTest::addColumn<QByteArray>("queue");
    QTest::addColumn<std::function<void(OpenDialog &)>>("action");
    QTest::addColumn<QByteArray>("option");
    QTest::addColumn<QByteArray>("bytes"); // in what the driver writes; "" where it cannot be seen there
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("shown"); // after the dialog has been opened again
    const auto row = [](const char *queue, const Action &action, const char *option, const QByteArray &bytes,
                        const char *field, const char *shown) {
        QTest::addRow("%s %s", queue, option)
            << QByteArray(queue) << action << QByteArray(option) << bytes << QString(field) << QString(shown);
    };
    const auto slide = [](const char *name, int value) { return [=](OpenDialog &open) { open.slide(name, value); }; };
    const auto choose = [](const char *name, const char *text) {
        return [=](OpenDialog &open) { open.list(name)->setCurrentText(text); };
    };
    const auto type = [](const char *name, const char *text) {
        return [=](OpenDialog &open) { open.setText(name, text); };
    };
    const auto pageSize = [](const char *width, const char *height) {
        return [=](OpenDialog &open) {
            open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
            open.setText("widthEdit", width);
            open.setText("heightEdit", height);
        };
    };
    row("zebra", slide("speedSlider", 6), "zePrintRate=6", "^PR6,6,6", "speedValue", "6");
    row("zebra", slide("darknessSlider", 20), "Darkness=20", "~SD20", "darknessValue", "20");
    row("zebra", choose("mediaType", "Labels With Marks"), "zeMediaTracking=Mark", "^MNM", "mediaType", "2");
    row("zebra", choose("mediaType", "Continuous"), "zeMediaTracking=Continuous", "^MNN", "mediaType", "0");
    row("zebra", choose("cut", "Cut After Page"), "zePrintMode=Cutter", "^MMC,Y", "cut", "2");
    row("zebra", choose("cut", "No Cut"), "zePrintMode=Tear", "^MMT,Y", "cut", "1");
    row("zebra", type("verticalEdit", "27"), "zeLabelTop=25", "^LT25", "verticalEdit", "25");
    row("zebra", type("verticalEdit", "0"), "zeLabelTop=0", "^LT0", "verticalEdit", "0");
    row("zebra", type("stop", "-0.07"), "zeTearOffPosition=-15", "~TA-015", "stop", "-0.07");
    row(
        "zebra",
        [](OpenDialog &open) {
            open.cups.setDirect(true); // the dialog has no field for it, and keeps what a host sets
            open.slide("speedSlider", 3);
        },
        "MediaType=Direct", "^MTD", "speedValue", "3");
    row("zebra", pageSize("3.00", "2.00"), "PageSize=Custom.216.00x144.00", "^PW609", "widthEdit", "3.00");
    row("zebraep2", slide("speedSlider", 4), "zePrintRate=4", "S4\n", "speedValue", "4");
    row("zebraep2", slide("darknessSlider", 20), "Darkness=20", "D10\n", "darknessValue", "20");
    row("zebraep2", pageSize("3.00", "2.00"), "PageSize=Custom.216.00x144.00", "q616\n", "heightEdit", "2.00");
    row("zebracpl", slide("speedSlider", 3), "zePrintRate=3", "SPEED 3\r\n", "speedValue", "3");
    row("zebracpl", slide("darknessSlider", 20), "Darkness=20", "TONE 134\r\n", "darknessValue", "20");
    row("zebracpl", type("stop", "0.12"), "zeTearOffPosition=25", "PRESENT-AT 25 1\r\n", "stop", "0.12");
    row("intelbar", slide("darknessSlider", 5), "inPrintDensity=5", "\033&d5A", "darknessValue", "5");
    row("intelbar", slide("darknessSlider", -15), "inPrintDensity=-15", "\033&d-15A", "darknessValue", "-15");
    row("intelbar", choose("cut", "Cut After Page"), "inPrintMode=Cut", "\033!p2M", "cut", "1");
    row("intelbar", slide("speedSlider", 5), "inPrintRate=120", "", "speedValue", "4.7");
    row("intelbar", pageSize("4.00", "6.00"), "PageSize=Custom.288.00x432.00", "\033!f1800Z", "heightEdit", "6.00");
    row("dymo", slide("darknessSlider", 1), "cupsDarkness=Light", "\033c\033", "darknessValue", "1");
    row("dymo", slide("darknessSlider", 4), "cupsDarkness=Dark", "\033f\033", "darknessValue", "4");
    row("ql820", slide("darknessSlider", 4), "PrintDensity=4Dark", hex("1b694404"), "darknessValue", "4");
    row("ql820", choose("mediaType", "Labels With Gaps"), "MediaType=Labels", "", "mediaType", "1");
    row("ql820", choose("cut", "No Cut"), "AutoCut=False", hex("1b694d00"), "cut", "0");
    row(
        "ql820", [](OpenDialog &open) { open.click("mirroredCheckBox"); }, "MirrorPrint=True", "", "mirroredCheckBox",
        "True");
}

// Other programs read what is set in the dialog, the dialog shows it again, and the printer gets it, whoever prints.
void DriversTest::printed()
{
    QFETCH(QByteArray, queue);
    QFETCH(std::function<void(OpenDialog &)>, action);
    QFETCH(QByteArray, option);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, field);
    {
        OpenDialog open{QString(queue)};
        open.dialog.show();
        QVERIFY(!open.isChanged());
        action(open);
        QVERIFY(open.isChanged());
        open.click("applyButton");
        QTEST(open.shown(field), "shown");
        QVERIFY(!open.isChanged());
    }
    const QByteArray listed = ' ' + PrivateScheduler::run("lpoptions", {"-p", queue}).trimmed() + ' ';
    QVERIFY2(listed.contains(' ' + option + ' '), listed);
    OpenDialog again{QString(queue)};
    again.dialog.show();
    QTEST(again.shown(field), "shown");
    if (bytes.isEmpty())
        return;
    QVERIFY(printedByLibrary(queue).contains(bytes));
    QVERIFY(printedByLp(queue).contains(bytes));
}

// The picture itself changes.
void DriversTest::mirrored()
{
    OpenDialog open{QString("ql820")};
    open.dialog.show();
    open.click("mirroredCheckBox");
    open.click("applyButton");
    const QByteArray mirrored = printedByLp("ql820");
    QCOMPARE(mirrored, printedByLibrary("ql820"));
    open.click("mirroredCheckBox");
    open.click("applyButton");
    QVERIFY(printedByLp("ql820") != mirrored);
}

void DriversTest::nothingTouched_data()
{
    QTest::addColumn<QByteArray>("commands"); // none of these may be sent
    QTest::newRow("zebra") << QByteArray("^PR ~SD ^LT ~TA ^MM ^MT");
    QTest::newRow("zebraep2") << QByteArray("\012S \012D");
    QTest::newRow("zebracpl") << QByteArray("SPEED PRESENT-AT");
    QTest::newRow("intelbar") << QByteArray("\033&d");
    QTest::newRow("dymo") << QByteArray("\033c\033 \033d\033 \033f\033");
    QTest::newRow("ql820") << QByteArray("\033iD");
}

// Opening the dialog and pressing OK stores no number for a setting that had none.
void DriversTest::nothingTouched()
{
    QFETCH(QByteArray, commands);
    const QByteArray queue = QTest::currentDataTag();
    const Options before = storedOptions(queue);
    {
        OpenDialog open{QString(queue)};
        open.dialog.show();
        open.click("okButton");
    }
    Options after = storedOptions(queue);
    after.remove("orientation-requested");
    QCOMPARE(after, before);
    const QByteArray data = printedByLp(queue);
    for (const QByteArray &command : commands.isEmpty() ? QByteArrayList() : commands.split(' '))
        QVERIFY2(!data.contains(command), command);
}

void DriversTest::untouchedBesideAChange()
{
    scheduler->setUserOptions("zebra", {"zePrintMode=Peel", "zeErrorReprint=Always"});
    {
        OpenDialog open{QString("zebra")};
        open.dialog.show();
        open.slide("darknessSlider", 12);
        open.click("applyButton");
        open.slide("speedSlider", 3);
        open.click("applyButton");
    }
    Options stored = storedOptions("zebra");
    QCOMPARE(stored.take("Darkness"), QByteArray("12"));
    QCOMPARE(stored.take("zePrintRate"), QByteArray("3"));
    QCOMPARE(stored.take("zePrintMode"), QByteArray("Peel"));
    QCOMPARE(stored.take("zeErrorReprint"), QByteArray("Always"));
    for (const char *keyword : {"zeLabelTop", "zeTearOffPosition", "zeMediaTracking", "MediaType", "PageSize",
                                "GapSize", "LabelCategory", "CutMedia", "JobStart", "Feed", "OffsetH", "NegativePrint"})
        QVERIFY2(!stored.contains(keyword), keyword);
}

// ----- what the form offers -----

void DriversTest::fields_data()
{
    QTest::addColumn<QStringList>("enabled");
    const auto row = [](const char *queue, const char *enabled) {
        QTest::newRow(queue) << QString(enabled).split(' ');
    };
    row("zebra", "speedSlider darknessSlider mediaType cut stop verticalEdit stockGroupBox");
    row("zebraep2", "speedSlider darknessSlider stockGroupBox");
    row("zebracpl", "speedSlider darknessSlider mediaType stop stockGroupBox");
    row("intelbar", "speedSlider darknessSlider cut stockGroupBox");
    row("dymo", "darknessSlider");
    row("ql820", "darknessSlider mediaType cut mirroredCheckBox stockGroupBox");
}

// A field that the driver has no setting for is disabled and says why.
void DriversTest::fields()
{
    QFETCH(QStringList, enabled);
    OpenDialog open{QString(QTest::currentDataTag())};
    open.dialog.show();
    for (const char *name : {"speedSlider", "darknessSlider", "mediaType", "cut", "stop", "verticalEdit",
                             "mirroredCheckBox", "inverseCheckBox", "gapSize", "gapOffset", "feed", "horizontalEdit",
                             "commandEdit", "jobStartRadioButton", "stockGroupBox"}) {
        QVERIFY2(open.isEnabled(name) == enabled.contains(name), name);
        if (!enabled.contains(name))
            QVERIFY2(open.widget(name)->toolTip().startsWith("The driver of this printer "), name);
    }
}

void DriversTest::ranges()
{
    const auto range = [](const OpenDialog &open, const char *name) {
        const auto *slider = open.widget<QSlider>(name);
        return QPair<int, int>(slider->minimum(), slider->maximum());
    };
    const auto items = [](const OpenDialog &open, const char *name) {
        QStringList list;
        for (int i = 0; i < open.list(name)->count(); ++i)
            list << open.list(name)->itemText(i);
        return list.join(", ");
    };
    OpenDialog zebra{QString("zebra")};
    zebra.dialog.show();
    QCOMPARE(range(zebra, "speedSlider"), qMakePair(1, 12));
    QCOMPARE(range(zebra, "darknessSlider"), qMakePair(1, 30));
    QCOMPARE(items(zebra, "mediaType"), QString("Continuous, Labels With Gaps, Labels With Marks"));
    QCOMPARE(items(zebra, "cut"), QString("Printer Default, No Cut, Cut After Page"));
    OpenDialog intelbar{QString("intelbar")};
    intelbar.dialog.show();
    QCOMPARE(range(intelbar, "speedSlider"), qMakePair(1, 12));
    QCOMPARE(range(intelbar, "darknessSlider"), qMakePair(-15, 15));
    QCOMPARE(items(intelbar, "cut"), QString("No Cut, Cut After Page"));
    OpenDialog ql820{QString("ql820")};
    ql820.dialog.show();
    QCOMPARE(range(ql820, "darknessSlider"), qMakePair(1, 5));
    QCOMPARE(items(ql820, "mediaType"), QString("Continuous, Labels With Gaps"));
    QCOMPARE(items(ql820, "cut"), QString("No Cut, Cut After Job, Cut After Page"));
}

// A printer without some of the media types: the positions in the list are not the numbers of the types.
void DriversTest::fewerMediaTypes()
{
    scheduler->addQueue(
        "sensing", scheduler->editedPpd(ppds.ppd("zebra"), {{"*zeMediaTracking Continuous/Continuous: \"\"\n", ""}}));
    {
        OpenDialog open{QString("sensing")};
        open.dialog.show();
        QCOMPARE(open.list("mediaType")->currentText(), QString("Labels With Gaps"));
        open.list("mediaType")->setCurrentText("Labels With Marks");
        open.click("applyButton");
        QCOMPARE(open.list("mediaType")->currentText(), QString("Labels With Marks"));
    }
    QCOMPARE(storedOptions("sensing").value("zeMediaTracking"), QByteArray("Mark"));
    const QByteArray printed = printedByLibrary("sensing");
    QVERIFY2(printed.contains("^MNM"), printed.constData());
    OpenDialog open{QString("sensing")};
    open.dialog.show();
    QCOMPARE(open.list("mediaType")->currentText(), QString("Labels With Marks"));
    open.list("mediaType")->setCurrentText("Labels With Gaps");
    open.click("applyButton");
    QVERIFY(!storedOptions("sensing").contains("zeMediaTracking")); // the PPD file's default
}

void DriversTest::leftToPrinter()
{
    OpenDialog open{QString("zebra")};
    open.dialog.show();
    QCOMPARE(open.shown("speedValue"), QString("\u2013"));
    QCOMPARE(open.shown("darknessValue"), QString("\u2013"));
    QVERIFY(open.widget("speedSlider")->toolTip().contains("Printer Default"));
    QCOMPARE(open.list("cut")->currentText(), QString("Printer Default"));
    QCOMPARE(open.text("verticalEdit"), QString());
    QCOMPARE(open.text("stop"), QString());
    open.slide("speedSlider", 5);
    QCOMPARE(open.shown("speedValue"), QString("5"));
    QVERIFY(open.widget("speedSlider")->toolTip().isEmpty());
}

// What was set can be left to the printer again.
void DriversTest::leavingAgain()
{
    scheduler->setUserOptions("zebra", {"zePrintMode=Cutter", "zeLabelTop=25", "zeTearOffPosition=15"});
    OpenDialog open{QString("zebra")};
    open.dialog.show();
    open.choose("cut", 0);
    open.setText("verticalEdit", QString());
    open.setText("stop", QString());
    open.click("applyButton");
    const Options stored = storedOptions("zebra");
    for (const char *keyword : {"zePrintMode", "zeLabelTop", "zeTearOffPosition"})
        QVERIFY2(!stored.contains(keyword), keyword);
}

void DriversTest::whatOthersSet()
{
    scheduler->setUserOptions("zebra", {"zePrintRate=6", "zeMediaTracking=Mark", "PageSize=Custom.4x6in"});
    scheduler->setUserOptions("zebraep2", {"zePrintRate=1.5"});
    OpenDialog zebra{QString("zebra")};
    zebra.dialog.show();
    QCOMPARE(zebra.shown("speedSlider"), QString("6"));
    QCOMPARE(zebra.shown("speedValue"), QString("6"));
    QCOMPARE(zebra.shown("mediaType"), QString("2"));
    QCOMPARE(zebra.shown("stockGroupBox"), QString("True"));
    QCOMPARE(zebra.text("widthEdit"), QString("4.00"));
    QCOMPARE(zebra.text("heightEdit"), QString("6.00"));
    zebra.slide("darknessSlider", 9);
    zebra.click("applyButton");
    QCOMPARE(storedOptions("zebra").value("PageSize"), QByteArray("Custom.4x6in"));

    OpenDialog epl{QString("zebraep2")};
    epl.dialog.show();
    QCOMPARE(epl.shown("speedValue"), QString("1.5"));
    epl.slide("darknessSlider", 9);
    epl.click("applyButton");
    QCOMPARE(storedOptions("zebraep2").value("zePrintRate"), QByteArray("1.5"));
}

// ----- page sizes -----

void DriversTest::userPageSizeBeyondLimits()
{
    OpenDialog open{QString("zebra")};
    open.dialog.show();
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    open.setText("widthEdit", "10.00"); // by a program; typing it is refused
    open.setText("heightEdit", "0.20");
    open.click("applyButton");
    QCOMPARE(storedOptions("zebra").value("PageSize"), QByteArray("Custom.576.00x36.00"));
    QCOMPARE(open.text("widthEdit"), QString("8.00"));
    QCOMPARE(open.text("heightEdit"), QString("0.50"));
    QVERIFY(open.widget("stockGroupBox")->toolTip().contains("8.00 x 50.00"));
}

namespace {

int showPageSize(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    QPrinter printer(QPrinter::ScreenResolution);
    CupsSupport cups;
    selectQueue(cups, "zebra");
    printer.setPrinterName("zebra");
    PrintPropertiesDialog dialog(nullptr, &printer, &cups);
    dialog.show();
    const bool shows = childOf<QGroupBox>(dialog, "stockGroupBox")->isChecked()
                       && childOf<QLineEdit>(dialog, "widthEdit")->text() == "2.50"
                       && childOf<QLineEdit>(dialog, "heightEdit")->text() == "1.25";
    return shows ? 0 : 1;
}

const TestMain::ChildFunction showPageSizeFunction("showPageSize", showPageSize);

} // namespace

// A new process shows the user's page size again, and it is removed everywhere when the box is unchecked.
void DriversTest::userPageSizeInNewProcess()
{
    {
        OpenDialog open{QString("zebra")};
        open.dialog.show();
        open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
        open.setText("widthEdit", "2.50");
        open.setText("heightEdit", "1.25");
        open.click("okButton");
    }
    QCOMPARE(TestMain::runChild("showPageSize").exitCode, 0);
    OpenDialog open{QString("zebra")};
    open.dialog.show();
    open.widget<QGroupBox>("stockGroupBox")->setChecked(false);
    open.click("applyButton");
    QVERIFY(!storedOptions("zebra").contains("PageSize"));
}

void DriversTest::noUserPageSize()
{
    OpenDialog open{QString("dymo")};
    open.dialog.show();
    QVERIFY(!open.isEnabled("stockGroupBox"));
    QVERIFY(open.widget("stockGroupBox")->toolTip().contains("page sizes"));
}

// ----- presets -----

QString DriversTest::preset(const QByteArray &queue, const QString &name)
{
    return cupsFolder() + '/' + queue + '/' + name + ".sh";
}

// A preset's script, run by a shell, sets with plain lpoptions what was set when it was made.
void DriversTest::presetByShell()
{
    {
        OpenDialog open{QString("zebra")};
        open.dialog.show();
        open.slide("speedSlider", 8);
        open.choose("mediaType", 2);
        open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
        open.setText("widthEdit", "3.00");
        open.setText("heightEdit", "2.00");
        open.click("applyButton");
    }
    const QByteArray script = fileContent(preset("zebra", "_current"));
    QVERIFY2(script.contains(" -ozePrintRate=8"), script);
    QVERIFY2(script.contains(" -oPageSize=Custom.216.00x144.00"), script);
    QVERIFY2(script.contains(" -rDarkness"), script);
    QVERIFY2(!script.contains("ppdhack"), script);
    QVERIFY2(!script.contains("GapSize") && !script.contains("PrintSpeed") && !script.contains("JobStart"), script);
    scheduler->setUserOptions("zebra",
                              {"zePrintRate=1", "Darkness=5", "zeMediaTracking=Continuous", "PageSize=w288h432"});
    QCOMPARE(QProcess::execute("/bin/bash", {preset("zebra", "_current")}), 0);
    const Options stored = storedOptions("zebra");
    QCOMPARE(stored.value("zePrintRate"), QByteArray("8"));
    QCOMPARE(stored.value("zeMediaTracking"), QByteArray("Mark"));
    QCOMPARE(stored.value("PageSize"), QByteArray("Custom.216.00x144.00"));
    QVERIFY(!stored.contains("Darkness"));
}

void DriversTest::presetInDialog()
{
    {
        OpenDialog open{QString("zebra")};
        open.dialog.show();
        open.slide("speedSlider", 8);
        open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
        open.setText("widthEdit", "3.00");
        open.setText("heightEdit", "2.00");
        open.click("applyButton");
        open.click("presetNewButton");
        open.click("applyButton");
    }
    scheduler->setUserOptions("zebra", {"zePrintRate=1", "Darkness=5", "PageSize=w288h432"});
    OpenDialog open{QString("zebra")};
    open.dialog.show();
    open.list("preset0")->setCurrentText("<Default Settings>");
    QCOMPARE(open.shown("speedValue"), QString("\u2013"));
    QCOMPARE(open.shown("stockGroupBox"), QString("False"));
    open.list("preset0")->setCurrentText("New Preset");
    QCOMPARE(open.shown("speedValue"), QString("8"));
    QCOMPARE(open.shown("darknessValue"), QString("\u2013"));
    QCOMPARE(open.shown("stockGroupBox"), QString("True"));
    QCOMPARE(open.text("widthEdit"), QString("3.00"));
    open.click("applyButton");
    const Options stored = storedOptions("zebra");
    QCOMPARE(stored.value("zePrintRate"), QByteArray("8"));
    QCOMPARE(stored.value("PageSize"), QByteArray("Custom.216.00x144.00"));
    QVERIFY(!stored.contains("Darkness"));
}

void DriversTest::defaultSettings()
{
    scheduler->setUserOptions("ql820", {"PrintDensity=4Dark", "AutoCut=False", "AutoEject=False", "MediaType=Labels",
                                        "MirrorPrint=True", "HalfCut=False", "PageSize=Custom.175x142"});
    OpenDialog open{QString("ql820")};
    open.dialog.show();
    open.list("preset0")->setCurrentText("<Default Settings>");
    open.click("applyButton");
    const Options stored = storedOptions("ql820");
    for (const char *keyword : {"PrintDensity", "AutoCut", "AutoEject", "MediaType", "MirrorPrint", "PageSize"})
        QVERIFY2(!stored.contains(keyword), keyword);
    QVERIFY(stored.contains("HalfCut")); // none of the dialog's
}

void DriversTest::driverCommandIsNotRun()
{
    const DriverCommand command;
    writeFile(preset("zebra", "Old"), "#!/bin/bash\nlpoptions -pzebra -oDarkness=3\nppdhack 4.00 6.00 zebra\n");
    OpenDialog open{QString("zebra")};
    open.dialog.show();
    open.list("preset0")->setCurrentText("<Default Settings>");
    open.list("preset0")->setCurrentText("Old");
    QCOMPARE(open.shown("darknessValue"), QString("3"));
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    open.setText("widthEdit", "3.00");
    open.setText("heightEdit", "2.00");
    open.click("applyButton");
    QCOMPARE(command.runs(), QByteArray());
}

// ----- other printers -----

// Markers of our own models in a queue's name mean nothing for other makes.
void DriversTest::familyMarkersAreIgnored()
{
    OpenDialog open{QString("ZED-KERN")};
    open.dialog.show();
    QVERIFY(open.isEnabled("stop"));
    QCOMPARE(open.shown("stopLabel"), QString("Stop Position"));
    QCOMPARE(open.widget<QSlider>("speedSlider")->maximum(), 12);
}

// For a driver without label settings there is a note, the fields work as usual, and the page size takes effect.
void DriversTest::noLabelSettings()
{
    OpenDialog open{QString("epson9")};
    open.dialog.show();
    const auto *note = open.widget<QLabel>("noLabelSettingsNote");
    QVERIFY(note->isVisible());
    QVERIFY(note->text().contains("no label settings"));
    QVERIFY(note->geometry().bottom() <= open.widget("tabs")->geometry().top());
    QVERIFY(open.isEnabled("darknessSlider"));
    QCOMPARE(open.shown("stockGroupBox"), QString("False"));
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    open.setText("widthEdit", "4.00");
    open.setText("heightEdit", "6.00");
    open.slide("darknessSlider", 4);
    open.click("applyButton");
    const Options stored = storedOptions("epson9");
    QCOMPARE(stored.value("PageSize"), QByteArray("Custom.288.00x432.00"));
    QCOMPARE(stored.value("Darkness"), QByteArray("4"));
    OpenDialog again{QString("epson9")};
    again.dialog.show();
    QCOMPARE(again.shown("stockGroupBox"), QString("True"));
    QCOMPARE(again.text("heightEdit"), QString("6.00"));

    OpenDialog zebra{QString("zebra")};
    QVERIFY(!zebra.dialog.findChild<QLabel *>("noLabelSettingsNote"));
}

// A host may keep the dialog while the administrator gives the queue another driver.
void DriversTest::queueGetsAnotherDriver()
{
    scheduler->addQueue("changed", PrivateScheduler::samplePpd("label-203"));
    OpenDialog open{QString("changed")};
    open.dialog.show();
    QVERIFY(open.isEnabled("feed"));
    open.dialog.hide();
    scheduler->setPpd("changed", ppds.ppd("zebra"));
    open.cups.closePpdFile();
    open.dialog.show();
    QVERIFY(!open.isEnabled("feed"));
    QCOMPARE(open.widget<QSlider>("speedSlider")->maximum(), 12);
    open.slide("speedSlider", 7);
    open.click("applyButton");
    QCOMPARE(storedOptions("changed").value("zePrintRate"), QByteArray("7"));
    QVERIFY(fileContent(preset("changed", "_current")).contains(" -ozePrintRate=7"));
    scheduler->removeQueue("changed");
}

// ----- conflicts -----

// Settings that the PPD file does not allow together are marked as long as both are set.
void DriversTest::conflictsOfAnotherMake()
{
    scheduler->setUserOptions("intelbar", {"inCutInterval=2"});
    OpenDialog open{QString("intelbar")};
    const QStringList before = open.cups.cupsOptions();
    open.dialog.show();
    const QString text = "Print and Cut: Every 2 Labels and Print Mode: Standard cannot be used together.";
    QCOMPARE(open.widget("cut")->toolTip(), text);
    QCOMPARE(open.widget("cut")->accessibleDescription(), text);
    QVERIFY(open.widget("cutLabel")->palette() != open.widget("mediaTypeLabel")->palette());
    open.list("cut")->setCurrentText("Cut After Page");
    QCOMPARE(open.widget("cut")->toolTip(), QString());
    QCOMPARE(open.widget("cutLabel")->palette().color(QPalette::WindowText),
             open.widget("verticalLabel")->palette().color(QPalette::Active, QPalette::WindowText));
    open.list("cut")->setCurrentText("No Cut");
    QCOMPARE(open.widget("cut")->toolTip(), text);
    QCOMPARE(open.cups.cupsOptions(), before); // nothing is stored by looking
}

void DriversTest::conflictsInAnotherLanguage()
{
    scheduler->setUserOptions("intelbar", {"inCutInterval=2"});
    OpenDialog open{QString("intelbar")};
    open.dialog.show();
    const QString text = open.widget("cut")->toolTip();
    {
        const MarkingTranslator translator; // Qt itself posts the event
        QCoreApplication::processEvents();
        QCOMPARE(open.widget("cut")->toolTip(), "PrintPropertiesDialog: " + text);
    }
    QCoreApplication::processEvents();
    QCOMPARE(open.widget("cut")->toolTip(), text);
    open.list("cut")->setCurrentText("Cut After Page");
    QCOMPARE(open.widget("cut")->toolTip(), QString());
}

void DriversTest::conflictsOfOurOwn()
{
    OpenDialog open{QString("own"), {"PrintSpeed", "5", "JobStart", "^FD#1"}};
    open.cups.setValue("LabelEnd", "");
    const QStringList before = open.cups.cupsOptions();
    open.dialog.show();
    QCOMPARE(open.widget("darknessSlider")->toolTip(), QString());
    open.widget<QSlider>("speedSlider")->setRange(1, 5);
    open.slide("speedSlider", 5);
    open.slide("darknessSlider", 19);
    const QString text = "Darkness: 19 and Print Speed: 5 cannot be used together.";
    QVERIFY(QStringList({text, "Print Speed: 5 and Darkness: 19 cannot be used together."})
                .contains(open.widget("darknessSlider")->toolTip()));
    QCOMPARE(open.widget("speedSlider")->toolTip(), open.widget("darknessSlider")->toolTip());
    QCOMPARE(open.widget("cut")->toolTip(), QString());
    const QString unit = open.widget("horizontalEdit")->accessibleDescription();
    open.slide("darknessSlider", 17);
    QVERIFY(open.widget("horizontalEdit")->accessibleDescription().contains("Darkness: 17"));
    open.slide("darknessSlider", 18);
    QCOMPARE(open.widget("darknessSlider")->toolTip(), QString());
    QCOMPARE(open.widget("horizontalEdit")->accessibleDescription(), unit);
    QVERIFY(!unit.isEmpty());
    QCOMPARE(open.cups.cupsOptions(), before);
    open.slide("darknessSlider", 19);
    open.click("applyButton"); // the dialog saves what it is told
    QCOMPARE(storedOptions("own").value("Darkness"), QByteArray("19"));
    QCOMPARE(storedOptions("own").value("PrintSpeed"), QByteArray("5"));
}

// What CUPS proposes resolves the conflict, and nothing is changed before the host stores it.
void DriversTest::conflictResolution()
{
    scheduler->setUserOptions("intelbar", {"inCutInterval=2"});
    CupsSupport cups;
    selectQueue(cups, "intelbar");
    const QStringList before = cups.cupsOptions();
    QCOMPARE(cups.conflicts(), QStringList({"Print and Cut: Every 2 Labels", "Print Mode: Standard"}));
    const QStringList proposal = cups.conflictResolution();
    QVERIFY(!proposal.isEmpty());
    QCOMPARE(cups.cupsOptions(), before);
    QCOMPARE(cups.optionText("inPrintMode", "Cut"), QString("Print Mode: Cut"));
    QCOMPARE(cups.optionText("no-such", "x"), QString("no-such: x"));
    cups.setOptions(proposal);
    QCOMPARE(cups.conflicts(), QStringList());
    QCOMPARE(cups.conflictResolution(), QStringList());

    selectQueue(cups, "zebra");
    QCOMPARE(cups.conflicts(), QStringList());
}

PROPERTIESDIALOG_TEST_MAIN(DriversTest)
#include "DriversTest.moc"
