// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/DriverSettings.h"
#include "DriverPpds.h"
#include "OpenDialog.h"
#include "TestMain.h"

#include <QTest>

#include <cmath>

/**
 * The label settings of printers of other makes. If one of these fails, the dialog shows or stores other settings than
 * such a printer's driver uses.
 */
class DialectTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void kinds_data();
    void kinds();
    void stored_data();
    void stored();
    void shown_data();
    void shown();
    void leftToPrinter_data();
    void leftToPrinter();
    void nothingWithoutCounterpart();
    void sameMeaningStays();
    void choices_data();
    void choices();
    void leavingAgain();
    void presetKeywords();
    void customPageSize_data();
    void customPageSize();
    void userPageSize();
    void declaredResolution();

private:
    using Values = QList<QPair<QByteArray, double>>;

    static void set(CupsSupport &cups, const QByteArray &setting, double value);
    static double get(const CupsSupport &cups, const QByteArray &setting);
    static std::unique_ptr<CupsSupport> open(const QString &queue);

    std::unique_ptr<PrivateScheduler> scheduler;
    DriverPpds ppds;
};

void DialectTest::initTestCase()
{
    scheduler = std::make_unique<PrivateScheduler>();
    for (const char *name : {"zebra", "zebracpl", "zebraep1", "zebraep2", "intelbar", "dymo", "laserjet"})
        scheduler->addQueue(name, ppds.ppd(name));
    scheduler->addQueue("ql820", ppds.ppd("ptouch:QL-820NWB"));
    scheduler->addQueue("ql500", ppds.ppd("ptouch:QL-500"));
    scheduler->addQueue("pt1500", ppds.ppd("ptouch:PT-1500PC"));
    scheduler->addQueue("lw450", ppds.ppd("dymo:lw450"));
    scheduler->addQueue("lm450", ppds.ppd("dymo:lm450"));
    scheduler->addQueue("own");
    scheduler->addQueue("few", PrivateScheduler::samplePpd("few-options"));
    scheduler->addQueue("raw", QString());
    scheduler->addQueue("both", scheduler->editedPpd(PrivateScheduler::samplePpd("label-203"),
                                                     {{"*OpenUI *Back/", "*OpenUI *zePrintRate/"},
                                                      {"*DefaultBack", "*DefaultzePrintRate"},
                                                      {"*Back ", "*zePrintRate "},
                                                      {"AnySetup *Back", "AnySetup *zePrintRate"},
                                                      {"CloseUI: *Back", "CloseUI: *zePrintRate"}}));
    scheduler->addQueue(
        "driverless", scheduler->editedPpd(PrivateScheduler::samplePpd("few-options"),
                                           {{"*OpenUI *Darkness/Darkness", "*DefaultResolution: 203dpi\n*OpenUI *X/X"},
                                            {"*Darkness ", "*X "},
                                            {"*DefaultDarkness", "*DefaultX"},
                                            {"AnySetup *Darkness", "AnySetup *X"},
                                            {"CloseUI: *Darkness", "CloseUI: *X"}}));
}

void DialectTest::init()
{
    clearHome();
}

void DialectTest::cleanupTestCase()
{
    scheduler.reset();
}

std::unique_ptr<CupsSupport> DialectTest::open(const QString &queue)
{
    auto cups = std::make_unique<CupsSupport>();
    int index = 0;
    while (index < cups->getDestCount() && cups->getQueueName(index) != queue)
        ++index;
    cups->setCurrentPrinter(index);
    return cups;
}

void DialectTest::set(CupsSupport &cups, const QByteArray &setting, double value)
{
    const int whole = int(value);
    if (setting == "Darkness")
        cups.setDarkness(whole);
    else if (setting == "PrintSpeed")
        cups.setSpeed(whole);
    else if (setting == "LabelCategory")
        cups.setCategory(CupsSupport::_Category(whole));
    else if (setting == "CutMedia")
        cups.setCut(whole);
    else if (setting == "Direct")
        cups.setDirect(whole != 0);
    else if (setting == "MirrorPrint")
        cups.setMirror(whole != 0);
    else if (setting == "OffsetV")
        cups.setOffsetV(whole);
    else if (setting == "Stop")
        cups.setStop(value);
    else
        qFatal("no setting %s", setting.constData());
}

double DialectTest::get(const CupsSupport &cups, const QByteArray &setting)
{
    if (setting == "Darkness")
        return cups.getDarkness();
    if (setting == "PrintSpeed")
        return cups.getSpeed();
    if (setting == "LabelCategory")
        return cups.getCategory();
    if (setting == "CutMedia")
        return cups.getCut();
    if (setting == "Direct")
        return cups.getDirect();
    if (setting == "MirrorPrint")
        return cups.getMirror();
    if (setting == "OffsetV")
        return cups.getOffsetV();
    if (setting == "Stop")
        return cups.getStop();
    qFatal("no setting %s", setting.constData());
}

// ----- choosing a dialect -----

void DialectTest::kinds_data()
{
    QTest::addColumn<int>("kind");
    const int own = int(DriverSettings::Kind::Own);
    const int foreign = int(DriverSettings::Kind::Foreign);
    const int none = int(DriverSettings::Kind::None);
    QTest::newRow("own") << own;
    QTest::newRow("few") << own;
    QTest::newRow("both") << own; // a keyword of another make's among ours
    QTest::newRow("raw") << own;
    for (const char *queue : {"zebra", "zebracpl", "zebraep1", "zebraep2", "intelbar", "dymo", "ql820", "ql500",
                              "pt1500", "lw450", "lm450"})
        QTest::newRow(queue) << foreign;
    QTest::newRow("laserjet") << none;
    QTest::newRow("driverless") << none;
}

void DialectTest::kinds()
{
    const auto cups = open(QTest::currentDataTag());
    QTEST(int(DriverSettings(*cups).kind()), "kind");
}

// ----- writing and reading -----

void DialectTest::stored_data()
{
    QTest::addColumn<QByteArray>("queue");
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<double>("value");
    QTest::addColumn<QByteArray>("options"); // sorted
    const auto row = [](const char *queue, const char *setting, double value, const char *options) {
        QTest::addRow("%s %s %g", queue, setting, value)
            << QByteArray(queue) << QByteArray(setting) << value << QByteArray(options);
    };
    row("zebra", "Darkness", 20, "Darkness=20");
    row("zebra", "Darkness", 0, "Darkness=1");
    row("zebra", "Darkness", 99, "Darkness=30");
    row("zebra", "PrintSpeed", 6, "zePrintRate=6");
    row("zebra", "PrintSpeed", 99, "zePrintRate=12");
    row("zebra", "LabelCategory", 0, "zeMediaTracking=Continuous");
    row("zebra", "LabelCategory", 1, "");
    row("zebra", "LabelCategory", 2, "zeMediaTracking=Mark");
    row("zebra", "LabelCategory", 3, "");
    row("zebra", "CutMedia", 0, "zePrintMode=Tear");
    row("zebra", "CutMedia", 2, "");
    row("zebra", "CutMedia", 4, "zePrintMode=Cutter");
    row("zebra", "Direct", 1, "MediaType=Direct");
    row("zebra", "Direct", 0, "MediaType=Thermal");
    row("zebra", "OffsetV", 27, "zeLabelTop=25");
    row("zebra", "OffsetV", -28, "zeLabelTop=-30");
    row("zebra", "OffsetV", 0, "zeLabelTop=0");
    row("zebra", "OffsetV", 200, "zeLabelTop=120");
    row("zebra", "Stop", 1.877, "zeTearOffPosition=15");
    row("zebra", "Stop", -1.9, "zeTearOffPosition=-15");
    row("zebra", "Stop", 0, "zeTearOffPosition=0");
    row("zebra", "Stop", 1000, "zeTearOffPosition=120");
    row("zebracpl", "PrintSpeed", 9, "zePrintRate=4");
    row("zebracpl", "LabelCategory", 2, "zeMediaTracking=Mark");
    row("zebraep1", "PrintSpeed", 9, "zePrintRate=2.5");
    row("zebraep2", "PrintSpeed", 5, "zePrintRate=5");
    row("zebraep2", "Direct", 1, "MediaType=Direct");
    row("intelbar", "Darkness", -15, "inPrintDensity=-15");
    row("intelbar", "Darkness", 0, "inPrintDensity=0");
    row("intelbar", "PrintSpeed", 5, "inPrintRate=120");
    row("intelbar", "PrintSpeed", 12, "inPrintRate=300");
    row("intelbar", "CutMedia", 4, "inPrintMode=Cut");
    row("dymo", "Darkness", 1, "cupsDarkness=Light");
    row("dymo", "Darkness", 3, "");
    row("dymo", "Darkness", 15, "cupsDarkness=Dark");
    row("lw450", "Darkness", 2, "DymoPrintDensity=Medium");
    row("lm450", "CutMedia", 0, "DymoCutOptions=ChainMarks DymoPrintChainMarksAtDocEnd=1");
    row("lm450", "CutMedia", 2, "DymoCutOptions=ChainMarks");
    row("lm450", "CutMedia", 4, "");
    row("lm450", "LabelCategory", 0, "DymoContinuousPaper=1");
    row("ql820", "Darkness", 4, "PrintDensity=4Dark");
    row("ql820", "Darkness", 9, "PrintDensity=5VeryDark");
    row("ql820", "LabelCategory", 1, "MediaType=Labels");
    row("ql820", "LabelCategory", 2, "");
    row("ql820", "CutMedia", 0, "AutoCut=False AutoEject=False");
    row("ql820", "CutMedia", 2, "AutoCut=False");
    row("ql820", "CutMedia", 4, "");
    row("ql820", "MirrorPrint", 1, "MirrorPrint=True");
    row("ql500", "CutMedia", 0, "AutoEject=False");
    row("ql500", "CutMedia", 4, "");
}

// The accessors store only the driver's keywords, as libcups reads them.
void DialectTest::stored()
{
    QFETCH(QByteArray, queue);
    QFETCH(QByteArray, setting);
    QFETCH(double, value);
    {
        const auto cups = open(queue);
        const Options before = workingCopy(*cups);
        set(*cups, setting, value);
        Options now = workingCopy(*cups);
        for (const QByteArray &keyword : before.keys())
            now.remove(keyword);
        QByteArrayList list;
        for (auto option = now.begin(); option != now.end(); ++option)
            list << option.key() + '=' + option.value();
        QTEST(list.join(' '), "options");
        QCOMPARE(cups->setDests(), 0);
    }
    QFETCH(QByteArray, options);
    const Options stored = storedOptions(queue);
    for (const QByteArray &option : options.isEmpty() ? QByteArrayList() : options.split(' ')) {
        const auto separator = option.indexOf('=');
        QCOMPARE(stored.value(option.left(separator)), option.mid(separator + 1));
    }
}

void DialectTest::shown_data()
{
    QTest::addColumn<QByteArray>("queue");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<double>("value");
    const auto row = [](const char *queue, const char *options, const char *setting, double value) {
        QTest::addRow("%s %s", queue, options)
            << QByteArray(queue) << QString(options).split(' ', Qt::SkipEmptyParts) << QByteArray(setting) << value;
    };
    row("zebra", "zePrintRate=6", "PrintSpeed", 6);
    row("zebra", "Darkness=20", "Darkness", 20);
    row("zebra", "zeMediaTracking=Mark", "LabelCategory", 2);
    row("zebra", "zeMediaTracking=Continuous", "LabelCategory", 0);
    row("zebra", "", "LabelCategory", 1);
    row("zebra", "zePrintMode=Cutter", "CutMedia", 4);
    row("zebra", "zePrintMode=Peel", "CutMedia", 0);
    row("zebra", "zeLabelTop=-25", "OffsetV", -25);
    row("zebra", "zeTearOffPosition=-120", "Stop", -120 * 25.4 / 203);
    row("zebra", "MediaType=Direct", "Direct", 1);
    row("zebra", "MediaType=Thermal", "Direct", 0);
    row("zebraep2", "zePrintRate=1.5", "PrintSpeed", 2);
    row("zebraep2", "zePrintRate=2.5", "PrintSpeed", 3);
    row("intelbar", "inPrintRate=120", "PrintSpeed", 5);
    row("intelbar", "inPrintDensity=-15", "Darkness", -15);
    row("intelbar", "inPrintMode=Cut", "CutMedia", 4);
    row("intelbar", "", "CutMedia", 0);
    row("dymo", "", "Darkness", 3);
    row("dymo", "cupsDarkness=Light", "Darkness", 1);
    row("lw450", "DymoPrintDensity=Dark", "Darkness", 4);
    row("lm450", "", "CutMedia", 4);
    row("lm450", "DymoCutOptions=ChainMarks", "CutMedia", 2);
    row("lm450", "DymoPrintChainMarksAtDocEnd=1", "CutMedia", 4);
    row("lm450", "DymoCutOptions=ChainMarks DymoPrintChainMarksAtDocEnd=1", "CutMedia", 0);
    row("ql820", "PrintDensity=2Light", "Darkness", 2);
    row("ql820", "", "LabelCategory", 0);
    row("ql820", "MediaType=Labels", "LabelCategory", 1);
    row("ql820", "AutoCut=False", "CutMedia", 2);
    row("ql820", "AutoCut=False AutoEject=False", "CutMedia", 0);
    row("ql820", "AutoEject=False", "CutMedia", 4);
    row("ql500", "", "CutMedia", 2);
    row("ql820", "MirrorPrint=True", "MirrorPrint", 1);
    // The filters ignore a choice that the PPD file does not list: the default is in force.
    row("dymo", "cupsDarkness=Darker", "Darkness", 3);
    row("zebra", "zeMediaTracking=None", "LabelCategory", 1);
}

// The accessors read what another program has set with the driver's keyword.
void DialectTest::shown()
{
    QFETCH(QByteArray, queue);
    QFETCH(QStringList, options);
    QFETCH(QByteArray, setting);
    QFETCH(double, value);
    if (!options.isEmpty())
        scheduler->setUserOptions(queue, options);
    QVERIFY(std::abs(get(*open(queue), setting) - value) < 0.0001);
}

void DialectTest::leftToPrinter_data()
{
    QTest::addColumn<QByteArray>("queue");
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<QString>("option"); // to begin with, if any
    const auto row = [](const char *queue, const char *setting, const char *option = "") {
        QTest::addRow("%s %s %s", queue, setting, option)
            << QByteArray(queue) << QByteArray(setting) << QString(option);
    };
    for (const char *setting : {"Darkness", "PrintSpeed", "CutMedia", "Direct", "OffsetV", "Stop"})
        row("zebra", setting);
    row("intelbar", "Darkness");
    row("intelbar", "PrintSpeed");
    row("ql820", "Darkness");
    // Choices that the PPD file does not list do nothing.
    row("zebra", "Darkness", "Darkness=33");
    row("zebra", "OffsetV", "zeLabelTop=7");
    row("zebra", "PrintSpeed", "zePrintRate=99");
}

// A setting that is left to the printer is not read as a number, and stays so when others are stored.
void DialectTest::leftToPrinter()
{
    QFETCH(QByteArray, queue);
    QFETCH(QByteArray, setting);
    QFETCH(QString, option);
    if (!option.isEmpty())
        scheduler->setUserOptions(queue, {option});
    const auto cups = open(queue);
    const DriverSettings driver(*cups);
    QVERIFY(driver.has(setting));
    QVERIFY(driver.isLeftToPrinter(setting));
    QVERIFY(!driver.value(setting).has_value());
    QVERIFY(!driver.leaveText(setting).isEmpty());
    const QStringList before = cups->cupsOptions();
    cups->setOrientation(CupsSupport::ReversePortrait);
    cups->setOrientation(CupsSupport::Landscape);
    cups->deleteOptions({"orientation-requested"});
    QCOMPARE(cups->cupsOptions(), before);
}

void DialectTest::nothingWithoutCounterpart()
{
    for (const char *queue : {"zebra", "zebracpl", "zebraep2", "intelbar", "dymo", "ql820", "lm450"}) {
        const auto cups = open(queue);
        const QStringList before = cups->cupsOptions();
        const int count = int(before.size()) / 2;
        QCOMPARE(cups->setShift(1), count);
        QCOMPARE(cups->setStart(1), count);
        QCOMPARE(cups->setGapSize(3), count);
        QCOMPARE(cups->setGapOffset(1), count);
        QCOMPARE(cups->setMarkSize(3), count);
        QCOMPARE(cups->setMarkOffset(1), count);
        QCOMPARE(cups->setOffsetH(5), count);
        QCOMPARE(cups->setFeed(24), count);
        QCOMPARE(cups->setBack(24), count);
        QCOMPARE(cups->setOverlap(24), count);
        QCOMPARE(cups->setInverse(true), count);
        QCOMPARE(cups->setJobStart("A"), count);
        QCOMPARE(cups->setJobEnd("A"), count);
        QCOMPARE(cups->setLabelStart("A"), count);
        QCOMPARE(cups->setLabelEnd("A"), count);
        QCOMPARE(cups->cupsOptions(), before);
        QCOMPARE(cups->getFeed(), 0);
        QVERIFY(cups->getJobStart().isNull());
    }
    CupsSupport none;
    none.setCurrentPrinter(-1);
    QCOMPARE(none.setDarkness(3), -1);
}

// A printer that peels labels off does not begin to tear them because a host stores "no cut" again.
void DialectTest::sameMeaningStays()
{
    scheduler->setUserOptions("zebra", {"zePrintMode=Peel"});
    const auto cups = open("zebra");
    cups->setCut(cups->getCut());
    QCOMPARE(workingCopy(*cups).value("zePrintMode"), QByteArray("Peel"));
    cups->setCut(4);
    QCOMPARE(workingCopy(*cups).value("zePrintMode"), QByteArray("Cutter"));
    cups->setCut(0);
    QCOMPARE(workingCopy(*cups).value("zePrintMode"), QByteArray("Tear"));
}

void DialectTest::choices_data()
{
    QTest::addColumn<QByteArray>("queue");
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<QString>("values");
    const auto row = [](const char *queue, const char *setting, const char *values) {
        QTest::addRow("%s %s", queue, setting) << QByteArray(queue) << QByteArray(setting) << QString(values);
    };
    row("zebra", "PrintSpeed", "1 2 3 4 5 6 7 8 9 10 11 12");
    row("zebra", "LabelCategory", "0 1 2");
    row("zebra", "CutMedia", "0 4");
    row("zebraep2", "PrintSpeed", "1 1.5 2 2.5 3 4 5 6");
    row("zebraep2", "LabelCategory", "");
    row("zebracpl", "CutMedia", "");
    row("intelbar", "CutMedia", "0 4");
    row("dymo", "Darkness", "1 2 3 4");
    row("lm450", "CutMedia", "0 2 4");
    row("ql820", "Darkness", "1 2 3 4 5");
    row("ql820", "CutMedia", "0 2 4");
    row("ql820", "LabelCategory", "0 1");
    row("ql500", "CutMedia", "0 2");
    row("pt1500", "Darkness", "");
    row("own", "Darkness", "");
}

void DialectTest::choices()
{
    QFETCH(QByteArray, queue);
    QFETCH(QByteArray, setting);
    const auto cups = open(queue);
    const DriverSettings driver(*cups);
    QStringList values;
    for (const Dialect::Choice &choice : driver.choices(setting)) {
        values << QString::number(choice.value);
        QVERIFY(!choice.text.isEmpty());
    }
    QTEST(values.join(' '), "values");
    QCOMPARE(driver.has(setting), !driver.isForeign() || !values.isEmpty());
}

void DialectTest::leavingAgain()
{
    scheduler->setUserOptions("zebra", {"zePrintRate=6"});
    const auto cups = open("zebra");
    DriverSettings driver(*cups);
    QVERIFY(!driver.isLeftToPrinter("PrintSpeed"));
    driver.leaveToPrinter("PrintSpeed");
    QVERIFY(driver.isLeftToPrinter("PrintSpeed"));
    QVERIFY(!workingCopy(*cups).contains("zePrintRate"));
}

void DialectTest::presetKeywords()
{
    const auto zebra = open("zebra");
    QCOMPARE(DriverSettings(*zebra).presetKeywords().join(' '),
             QString("Darkness zePrintRate zeMediaTracking MediaType zePrintMode zeLabelTop zeTearOffPosition "
                     "orientation-requested PageSize"));
    const auto tape = open("lm450");
    QCOMPARE(DriverSettings(*tape).presetKeywords().join(' '),
             QString("DymoContinuousPaper DymoCutOptions DymoPrintChainMarksAtDocEnd orientation-requested PageSize"));
    const auto own = open("own");
    QVERIFY(DriverSettings(*own).presetKeywords().isEmpty());
}

// ----- page sizes -----

void DialectTest::customPageSize_data()
{
    QTest::addColumn<QSizeF>("minimum");
    QTest::addColumn<QSizeF>("maximum");
    QTest::newRow("zebra") << QSizeF(36, 36) << QSizeF(576, 3600);
    QTest::newRow("zebraep2") << QSizeF(36, 36) << QSizeF(288, 3600);
    QTest::newRow("intelbar") << QSizeF(36, 36) << QSizeF(630, 7128);
    QTest::newRow("ql820") << QSizeF(36, 36) << QSizeF(100000, 100000);
    QTest::newRow("own") << QSizeF(15, 15) << QSizeF(432, 1728);
    QTest::newRow("dymo") << QSizeF() << QSizeF();
    QTest::newRow("raw") << QSizeF() << QSizeF();
}

void DialectTest::customPageSize()
{
    QFETCH(QSizeF, minimum);
    const auto cups = open(QTest::currentDataTag());
    const auto limits = DriverSettings(*cups).customPageSize();
    QCOMPARE(limits.has_value(), !minimum.isEmpty());
    if (limits) {
        QCOMPARE(limits->minimum, minimum);
        QTEST(limits->maximum, "maximum");
    }
}

// A user-defined page size is stored within the limits of the driver, read by a new process, and removed when it is
// cleared.
void DialectTest::userPageSize()
{
    {
        const auto cups = open("zebra");
        DriverSettings driver(*cups);
        QVERIFY(driver.userPageSize().isEmpty());
        driver.setUserPageSize(QSizeF(720, 4));
        QCOMPARE(workingCopy(*cups).value("PageSize"), QByteArray("Custom.576.00x36.00"));
        driver.setUserPageSize(QSizeF(4.25 * 72, 6.1 * 72));
        QCOMPARE(cups->setDests(), 0);
    }
    QCOMPARE(storedOptions("zebra").value("PageSize"), QByteArray("Custom.306.00x439.20"));
    const auto cups = open("zebra");
    DriverSettings driver(*cups);
    QVERIFY(qFuzzyCompare(float(driver.userPageSize().width()), 306.0F));
    QVERIFY(qFuzzyCompare(float(driver.userPageSize().height()), 439.2F));
    driver.setUserPageSize(QSizeF());
    QVERIFY(!workingCopy(*cups).contains("PageSize"));
    cups->setValue("PageSize", "Custom.4x6in");
    QCOMPARE(driver.userPageSize(), QSizeF(288, 432));
    cups->setValue("PageSize", "w288h432");
    QVERIFY(driver.userPageSize().isEmpty());
    driver.setUserPageSize(QSizeF());
    QCOMPARE(workingCopy(*cups).value("PageSize"), QByteArray("w288h432"));

    const auto dymo = open("dymo");
    DriverSettings(*dymo).setUserPageSize(QSizeF(100, 100));
    QVERIFY(!workingCopy(*dymo).contains("PageSize"));
}

// ----- resolution -----

// Lengths in dots are also right on a queue that CUPS created for a driverless printer.
void DialectTest::declaredResolution()
{
    QCOMPARE(open("driverless")->getResolution(), QSizeF(203, 203));
    QCOMPARE(open("few")->getResolution(), QSizeF(300, 304.8));
    QCOMPARE(open("own")->getResolution(), QSizeF(203, 203));
}

PROPERTIESDIALOG_TEST_MAIN(DialectTest)
#include "DialectTest.moc"
