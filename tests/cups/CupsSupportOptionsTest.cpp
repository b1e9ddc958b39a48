// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "CupsTest.h"
#include "TestMain.h"

#include <QFile>
#include <QTest>
#include <QVariant>

#include <cmath>
#include <functional>
#include <limits>
#include <utility>

namespace {

enum Kind {
    Real,
    Integer,
    Flag,
    Text
};

// One of the named settings.
struct Accessor
{
    const char *keyword;
    Kind kind;
    QVariant fallback;
    std::function<QVariant(const CupsSupport &)> get;
    std::function<int(CupsSupport &, const QVariant &)> set;
};

Accessor real(const char *keyword, double (CupsSupport::*get)() const, int (CupsSupport::*set)(double))
{
    return {keyword, Real, 0.0, [get](const CupsSupport &cups) { return (cups.*get)(); },
            [set](CupsSupport &cups, const QVariant &value) { return (cups.*set)(value.toDouble()); }};
}

Accessor integer(const char *keyword, int fallback, int (CupsSupport::*get)() const, int (CupsSupport::*set)(int))
{
    return {keyword, Integer, fallback, [get](const CupsSupport &cups) { return (cups.*get)(); },
            [set](CupsSupport &cups, const QVariant &value) { return (cups.*set)(value.toInt()); }};
}

template<typename Enum>
Accessor enumeration(const char *keyword, int fallback, Enum (CupsSupport::*get)() const, int (CupsSupport::*set)(Enum))
{
    return {keyword, Integer, fallback, [get](const CupsSupport &cups) { return int((cups.*get)()); },
            [set](CupsSupport &cups, const QVariant &value) { return (cups.*set)(Enum(value.toInt())); }};
}

Accessor flag(const char *keyword, bool (CupsSupport::*get)() const, int (CupsSupport::*set)(bool))
{
    return {keyword, Flag, false, [get](const CupsSupport &cups) { return (cups.*get)(); },
            [set](CupsSupport &cups, const QVariant &value) { return (cups.*set)(value.toBool()); }};
}

Accessor text(const char *keyword, QString (CupsSupport::*get)() const, int (CupsSupport::*set)(const QString &))
{
    return {keyword, Text, QString(), [get](const CupsSupport &cups) { return (cups.*get)(); },
            [set](CupsSupport &cups, const QVariant &value) { return (cups.*set)(value.toString()); }};
}

const QList<Accessor> &accessors()
{
    using C = CupsSupport;
    static const QList<Accessor> list{
        real("Shift", &C::getShift, &C::setShift),
        real("Start", &C::getStart, &C::setStart),
        real("Stop", &C::getStop, &C::setStop),
        real("MarkOffset", &C::getMarkOffset, &C::setMarkOffset),
        real("MarkSize", &C::getMarkSize, &C::setMarkSize),
        real("GapOffset", &C::getGapOffset, &C::setGapOffset),
        real("GapSize", &C::getGapSize, &C::setGapSize),
        integer("OffsetV", 0, &C::getOffsetV, &C::setOffsetV),
        integer("OffsetH", 0, &C::getOffsetH, &C::setOffsetH),
        integer("CutMedia", 4, &C::getCut, &C::setCut),
        integer("Overlap", 0, &C::getOverlap, &C::setOverlap),
        integer("Back", 0, &C::getBack, &C::setBack),
        integer("Feed", 0, &C::getFeed, &C::setFeed),
        enumeration("LabelCategory", 0, &C::getCategory, &C::setCategory),
        integer("Darkness", 7, &C::getDarkness, &C::setDarkness),
        integer("PrintSpeed", 2, &C::getSpeed, &C::setSpeed),
        enumeration("orientation-requested", 4, &C::getOrientation, &C::setOrientation),
        flag("Direct", &C::getDirect, &C::setDirect),
        flag("NegativePrint", &C::getInverse, &C::setInverse),
        flag("MirrorPrint", &C::getMirror, &C::setMirror),
        text("LabelEnd", &C::getLabelEnd, &C::setLabelEnd),
        text("LabelStart", &C::getLabelStart, &C::setLabelStart),
        text("JobEnd", &C::getJobEnd, &C::setJobEnd),
        text("JobStart", &C::getJobStart, &C::setJobStart),
    };
    return list;
}

// A value of each kind, different from every fallback and default, valid for each option, and the text stored for it.
struct Sample
{
    QVariant value;
    QByteArray stored;
};

Sample sample(const Accessor &accessor)
{
    switch (accessor.kind) {
    case Real:
        return {6.125, "6.125"};
    case Integer:
        return accessor.keyword == QByteArray("orientation-requested") ? Sample{6, "6"} : Sample{2, "2"};
    case Flag:
        return {true, "True"};
    case Text:
        return {"A\nB\n", "A\\\\rB\\\\r"};
    }
    return {};
}

} // namespace

// If this fails, a setting is stored or read with another value than the user entered.
class CupsSupportOptionsTest : public CupsTest
{
    Q_OBJECT

private slots:
    void fallback_data() { addAccessors(); }
    void fallback();
    void fallbackWhenUnreadable_data() { addAccessors(); }
    void fallbackWhenUnreadable();
    void ppdDefault_data() { addAccessors(); }
    void ppdDefault();
    void savedOption_data() { addAccessors(); }
    void savedOption();
    void setter_data() { addAccessors(); }
    void setter();
    void setterRemovesThePpdDefault_data() { addAccessors(); }
    void setterRemovesThePpdDefault();
    void setterWithoutPpdFile_data() { addAccessors(); }
    void setterWithoutPpdFile();
    void noPrinter_data() { addAccessors(); }
    void noPrinter();

    void cutReadsAs_data();
    void cutReadsAs();
    void setCutStoresAnything();
    void orientationReadsAs_data();
    void orientationReadsAs();
    void setOrientation_data();
    void setOrientation();
    void categoryPassesThrough();
    void settersDoNotCheckTheirInput();

    void getDefaultValue();
    void firstOptionOfAKeywordCounts();
    void subgroupsAreNotSearched();
    void ppdOption();
    void getValue();
    void getValueOfOtherDestinations();
    void setValue();
    void setValueLeavesOtherDestinationsAlone();
    void settersLeaveThePpdMarksAlone();
    void setDouble_data();
    void setDouble();
    void setDoubleTooLongForItsBuffer();
    void setInt_data();
    void setInt();
    void setBool();
    void getDouble_data();
    void getDouble();
    void getInt_data();
    void getInt();
    void getBool_data();
    void getBool();
    void failuresLeaveTheOutputAlone();
    void setString_data();
    void setString();
    void getString_data();
    void getString();
    void getStringOfMissingOption();
    void emptyStringIsStored();
    void emptyStringRemovesEmptyPpdDefault();
    void savedAndReadAgain();

private:
    static void addAccessors();
    static Accessor fetchAccessor();
};

void CupsSupportOptionsTest::addAccessors()
{
    QTest::addColumn<int>("accessor");
    for (int i = 0; i < accessors().size(); ++i)
        QTest::newRow(accessors().at(i).keyword) << i;
}

Accessor CupsSupportOptionsTest::fetchAccessor()
{
    QFETCH(int, accessor);
    return accessors().at(accessor);
}

void CupsSupportOptionsTest::fallback()
{
    const Accessor accessor = fetchAccessor();
    const auto cups = supportFor(LP3);
    QCOMPARE(accessor.get(*cups), accessor.fallback);
    QCOMPARE(accessor.get(*cups).toString().isNull(), accessor.kind == Text);
}

void CupsSupportOptionsTest::fallbackWhenUnreadable()
{
    const Accessor accessor = fetchAccessor();
    const auto cups = supportFor(LP3);
    cups->setOptions({accessor.keyword, "abc"});
    QCOMPARE(accessor.get(*cups), accessor.kind == Text ? QVariant("abc") : accessor.fallback);

    // What is saved comes first, readable or not.
    const auto cupsWithPpdFile = supportFor(LP1);
    setPpdDefault(*cupsWithPpdFile, accessor.keyword, sample(accessor).stored);
    cupsWithPpdFile->setOptions({accessor.keyword, "abc"});
    QCOMPARE(accessor.get(*cupsWithPpdFile), accessor.kind == Text ? QVariant("abc") : accessor.fallback);
}

void CupsSupportOptionsTest::ppdDefault()
{
    const Accessor accessor = fetchAccessor();
    const auto cups = supportFor(LP1);
    setPpdDefault(*cups, accessor.keyword, sample(accessor).stored);
    QCOMPARE(accessor.get(*cups), sample(accessor).value);
}

void CupsSupportOptionsTest::savedOption()
{
    const Accessor accessor = fetchAccessor();
    const auto cups = supportFor(LP1);
    cups->setOptions({accessor.keyword, QString::fromLatin1(sample(accessor).stored)});
    QCOMPARE(accessor.get(*cups), sample(accessor).value);
}

void CupsSupportOptionsTest::setter()
{
    const Accessor accessor = fetchAccessor();
    const auto cups = supportFor(LP1);
    const qsizetype before = cups->cupsOptions().size() / 2;
    QCOMPARE(accessor.set(*cups, sample(accessor).value), before + 1);
    QCOMPARE(saved(*cups, accessor.keyword), sample(accessor).stored);
    QCOMPARE(accessor.get(*cups), sample(accessor).value);
    QCOMPARE(cups->cupsOptions().size() / 2, before + 1);
    QVERIFY(!QFile::exists(optionsPath()));
}

void CupsSupportOptionsTest::setterRemovesThePpdDefault()
{
    const Accessor accessor = fetchAccessor();
    const auto cups = supportFor(LP1);
    const qsizetype before = cups->cupsOptions().size() / 2;
    setPpdDefault(*cups, accessor.keyword, sample(accessor).stored);
    // The same value in another spelling is no default, so it is there to be removed.
    cups->setOptions({accessor.keyword, ' ' + QString::fromLatin1(sample(accessor).stored)});
    QCOMPARE(accessor.set(*cups, sample(accessor).value), before);
    QVERIFY(cups->printerOption(accessor.keyword) == nullptr);
    QCOMPARE(accessor.get(*cups), sample(accessor).value);
}

void CupsSupportOptionsTest::setterWithoutPpdFile()
{
    const Accessor accessor = fetchAccessor();
    const auto cups = supportFor(LP3);
    QVERIFY(accessor.set(*cups, sample(accessor).value) > 0);
    QCOMPARE(saved(*cups, accessor.keyword), sample(accessor).stored);
    QCOMPARE(accessor.get(*cups), sample(accessor).value);
}

void CupsSupportOptionsTest::noPrinter()
{
    const Accessor accessor = fetchAccessor();
    const auto cups = supportFor(-1);
    QCOMPARE(accessor.set(*cups, sample(accessor).value), -1);
    QCOMPARE(accessor.get(*cups), accessor.fallback);
    cups->setCurrentPrinter(LP3);
    QCOMPARE(accessor.get(*cups), accessor.fallback);
}

void CupsSupportOptionsTest::cutReadsAs_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("cut");
    QTest::newRow("0") << "0" << 0;
    QTest::newRow("1") << "1" << 4;
    QTest::newRow("2") << "2" << 2;
    QTest::newRow("3") << "3" << 4;
    QTest::newRow("4") << "4" << 4;
    QTest::newRow("5") << "5" << 4;
    QTest::newRow("6") << "6" << 4;
    QTest::newRow("-2") << "-2" << 4;
}

void CupsSupportOptionsTest::cutReadsAs()
{
    QFETCH(QString, stored);
    const auto cups = supportFor(LP1);
    cups->setOptions({"CutMedia", stored});
    QTEST(cups->getCut(), "cut");
}

void CupsSupportOptionsTest::setCutStoresAnything()
{
    const auto cups = supportFor(LP1);
    QVERIFY(cups->setCut(3) > 0);
    QCOMPARE(saved(*cups, "CutMedia"), QByteArray("3"));
    QVERIFY(cups->setCut(-2) > 0);
    QCOMPARE(saved(*cups, "CutMedia"), QByteArray("-2"));
}

void CupsSupportOptionsTest::orientationReadsAs_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("orientation");
    QTest::newRow("2") << "2" << 4;
    QTest::newRow("3") << "3" << 3;
    QTest::newRow("4") << "4" << 4;
    QTest::newRow("5") << "5" << 5;
    QTest::newRow("6") << "6" << 6;
    QTest::newRow("7") << "7" << 4;
    QTest::newRow("-1") << "-1" << 4;
}

void CupsSupportOptionsTest::orientationReadsAs()
{
    QFETCH(QString, stored);
    const auto cups = supportFor(LP3);
    cups->setOptions({"orientation-requested", stored});
    QTEST(int(cups->getOrientation()), "orientation");
}

void CupsSupportOptionsTest::setOrientation_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QByteArray>("stored");
    QTest::newRow("-1") << -1 << QByteArray("4");
    QTest::newRow("2") << 2 << QByteArray("4");
    QTest::newRow("3") << 3 << QByteArray("3");
    QTest::newRow("4") << 4 << QByteArray("4");
    QTest::newRow("5") << 5 << QByteArray("5");
    QTest::newRow("6") << 6 << QByteArray("6");
    QTest::newRow("7") << 7 << QByteArray("4");
}

void CupsSupportOptionsTest::setOrientation()
{
    QFETCH(int, orientation);
    const auto cups = supportFor(LP3);
    QVERIFY(cups->setOrientation(CupsSupport::_CupsOrientation(orientation)) > 0);
    QTEST(saved(*cups, "orientation-requested"), "stored");
}

void CupsSupportOptionsTest::categoryPassesThrough()
{
    QCOMPARE(int(CupsSupport::Continuous), 0);
    QCOMPARE(int(CupsSupport::LabelsWithGaps), 1);
    QCOMPARE(int(CupsSupport::LabelsWithMarks), 2);
    const auto cups = supportFor(LP3);
    cups->setCategory(CupsSupport::_Category(9));
    QCOMPARE(saved(*cups, "LabelCategory"), QByteArray("9"));
    QCOMPARE(int(cups->getCategory()), 9);
}

void CupsSupportOptionsTest::settersDoNotCheckTheirInput()
{
    const auto cups = supportFor(LP1);
    cups->setDarkness(-5);
    QCOMPARE(cups->getDarkness(), -5);
    cups->setSpeed(1000);
    QCOMPARE(cups->getSpeed(), 1000);
}

void CupsSupportOptionsTest::getDefaultValue()
{
    const auto cups = supportFor(LP1);
    QCOMPARE(QByteArray(cups->getDefaultValue("Darkness")), QByteArray("10"));
    QCOMPARE(QByteArray(cups->getDefaultValue("PageSize")), QByteArray("w288h144"));
    QVERIFY(cups->getDefaultValue("darkness") == nullptr);
    QVERIFY(cups->getDefaultValue("NoSuchOption") == nullptr);
    QVERIFY(cups->getDefaultValue("") == nullptr);
    // Saved and marked values do not matter.
    cups->setOptions({"Darkness", "4"});
    cups->closePpdFile();
    QVERIFY(ppdIsMarked(cups->getPpdFile(), "Darkness", "4"));
    QCOMPARE(QByteArray(cups->getDefaultValue("Darkness")), QByteArray("10"));
}

void CupsSupportOptionsTest::firstOptionOfAKeywordCounts()
{
    const auto cups = supportFor(LP1);
    // The groups come in this order: Media, Positions, Printing.
    ppd_option_t *later = cups->ppdOption("Darkness");
    ppd_option_t *earlier = cups->ppdOption("GapSize");
    qstrncpy(later->keyword, "GapSize", sizeof later->keyword);
    QCOMPARE(QByteArray(cups->getDefaultValue("GapSize")), QByteArray("3.000"));
    QCOMPARE(cups->ppdOption("GapSize"), earlier);
    qstrncpy(earlier->keyword, "Other", sizeof earlier->keyword);
    QCOMPARE(QByteArray(cups->getDefaultValue("GapSize")), QByteArray("10"));
    QCOMPARE(cups->ppdOption("GapSize"), later);
}

void CupsSupportOptionsTest::subgroupsAreNotSearched()
{
    const auto cups = supportFor(LP1);
    ppd_file_t *ppd = cups->getPpdFile();
    ppd_group_t *group = nullptr;
    for (int i = 0; i < ppd->num_groups; ++i)
        if (qstrcmp(ppd->groups[i].name, "Printing") == 0)
            group = ppd->groups + i;
    QVERIFY(group != nullptr);

    // libcups' parser makes no subgroups; libcups itself knows them.
    ppd_group_t subgroup = *group;
    group->num_options = 0;
    group->num_subgroups = 1;
    group->subgroups = &subgroup;
    const bool hasDefault = cups->getDefaultValue("Darkness") != nullptr;
    const bool hasOption = cups->ppdOption("Darkness") != nullptr;
    const int darkness = cups->getDarkness();
    const bool hasOther = cups->ppdOption("GapSize") != nullptr;
    const bool listsOption = cups->ppdDefaults().contains("Darkness");
    *group = subgroup;

    QVERIFY(!hasDefault);
    QVERIFY(!hasOption);
    QCOMPARE(darkness, 7);
    QVERIFY(hasOther);
    QVERIFY(!listsOption);
    QVERIFY(cups->ppdOption("Darkness") != nullptr);
}

void CupsSupportOptionsTest::ppdOption()
{
    const auto cups = supportFor(LP1);
    ppd_option_t *option = cups->ppdOption("PrintSpeed");
    QVERIFY(option != nullptr);
    QCOMPARE(QByteArray(option->keyword), QByteArray("PrintSpeed"));
    QCOMPARE(option->num_choices, 5);
    QVERIFY(cups->ppdOption("printspeed") == nullptr);
    QVERIFY(cups->ppdOption(nullptr) == nullptr);
}

void CupsSupportOptionsTest::getValue()
{
    const auto cups = supportFor(LP1);
    QCOMPARE(QByteArray(cups->getValue("Darkness")), QByteArray("10"));
    cups->setOptions({"Darkness", "4"});
    QCOMPARE(QByteArray(cups->getValue("Darkness")), QByteArray("4"));
    QCOMPARE(QByteArray(cups->getValue("Darkness", -1)), QByteArray("4"));
    QCOMPARE(QByteArray(cups->getValue("Darkness", LP1)), QByteArray("4"));
    QVERIFY(cups->getValue("darkness") == nullptr); // upper and lower case differ
    QCOMPARE(QByteArray(cups->getValue("printer-info")), QByteArray("First Printer"));
    QVERIFY(cups->getValue("NoSuchOption") == nullptr);
    // An option without a value counts as not saved.
    char *&value = cups->printerOption("Darkness")->value;
    char *const original = std::exchange(value, nullptr);
    const QByteArray withoutValue = cups->getValue("Darkness");
    value = original;
    QCOMPARE(withoutValue, QByteArray("10"));
    // The mark is not asked.
    ppdMarkOption(cups->getPpdFile(), "PrintSpeed", "5");
    QCOMPARE(QByteArray(cups->getValue("PrintSpeed")), QByteArray("3"));
}

void CupsSupportOptionsTest::getValueOfOtherDestinations()
{
    writeOptionsFile("Dest LP2 Darkness=4\nDest LP3 Back=99\n");
    const auto cups = supportFor(LP1);
    QCOMPARE(QByteArray(cups->getValue("Darkness", LP2)), QByteArray("4"));
    QCOMPARE(QByteArray(cups->getValue("Back", LP3)), QByteArray("99"));
    QCOMPARE(QByteArray(cups->getValue("printer-info", LP2)), QByteArray("Second Printer"));
    // The default is the current printer's, not that of LP2, which is 2, or of LP3, which has none.
    QCOMPARE(QByteArray(cups->getValue("Back", LP2)), QByteArray("12"));
    QCOMPARE(QByteArray(cups->getValue("Darkness", LP3)), QByteArray("10"));
    // Not a destination.
    QCOMPARE(QByteArray(cups->getValue("Darkness", -2)), QByteArray("10"));
    QCOMPARE(QByteArray(cups->getValue("Darkness", 3)), QByteArray("10"));
    QCOMPARE(cups->getCurrentIndex(), int(LP1));
}

void CupsSupportOptionsTest::setValue()
{
    const auto cups = supportFor(LP1);
    const int before = int(cups->cupsOptions().size()) / 2;
    QCOMPARE(cups->setValue("Darkness", "10"), before); // the default, nothing to remove
    QCOMPARE(cups->setValue("Darkness", "4"), before + 1);
    QCOMPARE(cups->setValue("Darkness", "5"), before + 1);
    QCOMPARE(saved(*cups, "Darkness"), QByteArray("5"));
    QCOMPARE(cups->setValue("GapSize", "3.0"), before + 2); // the same number, but another text
    QCOMPARE(cups->setValue("GapSize", "3.000"), before + 1);
    QCOMPARE(cups->setValue("Darkness", "10"), before);
    QVERIFY(cups->printerOption("Darkness") == nullptr);
    QCOMPARE(cups->setValue("Direct", "false"), before + 1); // the default is "False"
    QCOMPARE(cups->setValue("Direct", "False"), before);
    QCOMPARE(cups->setValue("NoSuchOption", "x"), before + 1);
    QCOMPARE(cups->setValue("NoSuchOption", ""), before + 1);
    QCOMPARE(saved(*cups, "NoSuchOption"), QByteArray(""));
    QVERIFY(!saved(*cups, "NoSuchOption").isNull());
}

void CupsSupportOptionsTest::setValueLeavesOtherDestinationsAlone()
{
    const auto cups = supportFor(LP2);
    cups->setDarkness(4);
    cups->setCurrentPrinter(LP1);
    QCOMPARE(cups->getDarkness(), 10);
    QCOMPARE(QByteArray(cups->getValue("Darkness", LP2)), QByteArray("4"));
}

void CupsSupportOptionsTest::settersLeaveThePpdMarksAlone()
{
    const auto cups = supportFor(LP1);
    QVERIFY(ppdIsMarked(cups->getPpdFile(), "Darkness", "10"));
    cups->setDarkness(4);
    QVERIFY(ppdIsMarked(cups->getPpdFile(), "Darkness", "10"));
    cups->closePpdFile();
    QVERIFY(ppdIsMarked(cups->getPpdFile(), "Darkness", "4"));
}

void CupsSupportOptionsTest::setDouble_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QByteArray>("stored");
    QTest::newRow("one") << 1.0 << QByteArray("1.000");
    QTest::newRow("negative") << -0.25 << QByteArray("-0.250");
    QTest::newRow("zero") << 0.0 << QByteArray("0.000");
    QTest::newRow("negative zero") << -0.0 << QByteArray("-0.000");
    QTest::newRow("three decimals") << 3.048 << QByteArray("3.048");
    QTest::newRow("rounded down") << 3.0484 << QByteArray("3.048");
    QTest::newRow("rounded up") << 3.0486 << QByteArray("3.049");
    QTest::newRow("half to even") << 0.0625 << QByteArray("0.062");
    QTest::newRow("no grouping") << 1234567.5 << QByteArray("1234567.500");
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << QByteArray("inf");
    QTest::newRow("no number") << std::nan("") << QByteArray("nan");
}

void CupsSupportOptionsTest::setDouble()
{
    QFETCH(double, value);
    const auto cups = supportFor(LP3);
    const int before = int(cups->cupsOptions().size()) / 2;
    QCOMPARE(cups->setDouble("Shift", value), before + 1);
    QTEST(saved(*cups, "Shift"), "stored");
}

void CupsSupportOptionsTest::setDoubleTooLongForItsBuffer()
{
    const auto cups = supportFor(LP3);
    QVERIFY(cups->setDouble("Shift", -std::numeric_limits<double>::max()) > 0);
    QCOMPARE(saved(*cups, "Shift"), QByteArray("-17976931348623157081452742373170435679807056752584499659891747"));
}

void CupsSupportOptionsTest::setInt_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("stored");
    QTest::newRow("zero") << 0 << QByteArray("0");
    QTest::newRow("negative") << -12 << QByteArray("-12");
    QTest::newRow("greatest") << 2147483647 << QByteArray("2147483647");
    QTest::newRow("least") << std::numeric_limits<int>::min() << QByteArray("-2147483648");
}

void CupsSupportOptionsTest::setInt()
{
    QFETCH(int, value);
    const auto cups = supportFor(LP3);
    QVERIFY(cups->setInt("Feed", value) > 0);
    QTEST(saved(*cups, "Feed"), "stored");
    QCOMPARE(cups->getFeed(), value);
}

void CupsSupportOptionsTest::setBool()
{
    const auto cups = supportFor(LP3);
    QVERIFY(cups->setBool("Direct", true) > 0);
    QCOMPARE(saved(*cups, "Direct"), QByteArray("True"));
    QVERIFY(cups->setBool("Direct", false) > 0);
    QCOMPARE(saved(*cups, "Direct"), QByteArray("False"));
}

void CupsSupportOptionsTest::getDouble_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("failed");
    QTest::addColumn<double>("value");
    QTest::newRow("decimals") << "3.048" << false << 3.048;
    QTest::newRow("whole") << "12" << false << 12.0;
    QTest::newRow("negative") << "-0.250" << false << -0.25;
    QTest::newRow("plus") << "+2.25" << false << 2.25;
    QTest::newRow("no digit before the point") << ".5" << false << 0.5;
    QTest::newRow("no digit after the point") << "5." << false << 5.0;
    QTest::newRow("exponent") << "1e2" << false << 100.0;
    QTest::newRow("hexadecimal") << "0x10" << false << 16.0;
    QTest::newRow("infinite") << "inf" << false << std::numeric_limits<double>::infinity();
    QTest::newRow("blanks before") << " \t3.5" << false << 3.5;
    QTest::newRow("text after") << "3.5mm" << false << 3.5;
    QTest::newRow("decimal comma") << "3,5" << false << 3.0;
    QTest::newRow("two points") << "1.5.7" << false << 1.5;
    QTest::newRow("letters") << "abc" << true << 0.0;
    QTest::newRow("blank") << " " << true << 0.0;
    QTest::newRow("sign alone") << "-" << true << 0.0;
    QTest::newRow("point alone") << "." << true << 0.0;
    QTest::newRow("comma first") << ",5" << true << 0.0;
}

void CupsSupportOptionsTest::getDouble()
{
    QFETCH(QString, stored);
    const auto cups = supportFor(LP1);
    cups->setOptions({"Shift", stored});
    double value = 0.0;
    QTEST(cups->getDouble("Shift", &value), "failed");
    QTEST(value, "value");
    QTEST(cups->getShift(), "value");
}

void CupsSupportOptionsTest::getInt_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("failed");
    QTest::addColumn<int>("value");
    QTest::newRow("number") << "24" << false << 24;
    QTest::newRow("negative") << "-12" << false << -12;
    QTest::newRow("plus") << "+5" << false << 5;
    QTest::newRow("leading zeros") << "007" << false << 7;
    QTest::newRow("not hexadecimal") << "0x10" << false << 0;
    QTest::newRow("blanks before") << " \t7" << false << 7;
    QTest::newRow("text after") << "12abc" << false << 12;
    QTest::newRow("decimals") << "3.9" << false << 3;
    QTest::newRow("letters") << "abc" << true << 0;
    QTest::newRow("blank") << " " << true << 0;
    QTest::newRow("sign alone") << "-" << true << 0;
}

void CupsSupportOptionsTest::getInt()
{
    QFETCH(QString, stored);
    const auto cups = supportFor(LP1);
    cups->setOptions({"Feed", stored});
    int value = 0;
    QTEST(cups->getInt("Feed", &value), "failed");
    QTEST(value, "value");
    QTEST(cups->getFeed(), "value");
}

void CupsSupportOptionsTest::getBool_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<bool>("value");
    QTest::newRow("True") << QByteArray("True") << true;
    QTest::newRow("true") << QByteArray("true") << true;
    QTest::newRow("T") << QByteArray("T") << true;
    QTest::newRow("t") << QByteArray("t") << true;
    QTest::newRow("Tea") << QByteArray("Tea") << true;
    QTest::newRow("False") << QByteArray("False") << false;
    QTest::newRow("1") << QByteArray("1") << false;
    QTest::newRow("yes") << QByteArray("yes") << false;
    QTest::newRow("blank first") << QByteArray(" True") << false;
    QTest::newRow("empty") << QByteArray("") << false;
}

void CupsSupportOptionsTest::getBool()
{
    QFETCH(QByteArray, stored);
    QFETCH(bool, value);
    const auto cups = supportFor(LP1);
    cups->setValue("Direct", stored.constData());
    bool read = !value;
    QVERIFY(!cups->getBool("Direct", &read)); // no failure
    QCOMPARE(read, value);
    QCOMPARE(cups->getDirect(), value);
}

void CupsSupportOptionsTest::failuresLeaveTheOutputAlone()
{
    const auto cups = supportFor(LP3);
    cups->setOptions({"Unreadable", "abc"});
    cups->setValue("Empty", "");
    for (const char *keyword : {"Missing", "Unreadable", "Empty"}) {
        double real = 6.125;
        QVERIFY(cups->getDouble(keyword, &real));
        QCOMPARE(real, 6.125);
        int integer = 42;
        QVERIFY(cups->getInt(keyword, &integer));
        QCOMPARE(integer, 42);
    }
    bool flag = true;
    QVERIFY(cups->getBool("Missing", &flag));
    QCOMPARE(flag, true);
}

void CupsSupportOptionsTest::setString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("stored");
    // In what is stored, "|" stands for a line break: two backslashes and an r.
    const auto row = [](const char *name, const QString &text, QByteArray stored) {
        QTest::newRow(name) << text << stored.replace('|', "\\\\r");
    };
    row("one line", "A", "A|");
    row("one ended line", "A\n", "A|");
    row("two lines", "A\nB", "A|B|");
    row("two ended lines", "A\nB\n", "A|B|");
    row("carriage returns", "A\rB\r", "A|B|");
    row("both", "A\r\nB\r\n", "A|B|");
    row("mixed", "A\r\nB\nC\rD", "A|B|C|D|");
    row("the other way round", "A\n\rB", "A||B|");
    row("two carriage returns and a line feed", "A\r\r\nB", "A||B|");
    row("empty lines", "\n\nA\n\n", "||A||");
    row("line break alone", "\n", "|");
    row("carriage return alone", "\r", "|");
    row("backslashes", "C:\\dir\\\\x", "C:\\dir\\\\x|");
    row("backslash and r", "A\\rB", "A\\rB|");
    row("other control characters", "A\tB\vC\x1b", "A\tB\vC\x1b|");
    row("blank", " ", " |");
    row("quotes", "'\"#{}", "'\"#{}|");
    row("Latin-1", QString::fromUtf8("Größe"),
        "Gr\xf6\xdf"
        "e|");
    row("NUL", QString("A") + QChar(0) + "B", "A?B|");
    row("beyond Latin-1", QString::fromUtf8("5 € 印"), "5 ? ?|");
}

void CupsSupportOptionsTest::setString()
{
    QFETCH(QString, text);
    const auto cups = supportFor(LP1);
    const int before = int(cups->cupsOptions().size()) / 2;
    QCOMPARE(cups->setString("JobStart", text), before + 1);
    QTEST(saved(*cups, "JobStart"), "stored");
}

void CupsSupportOptionsTest::getString_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("text");
    QTest::newRow("no line break") << QByteArray("A") << "A";
    QTest::newRow("doubled") << QByteArray("A\\\\rB\\\\r") << "A\nB\n";
    QTest::newRow("reduced") << QByteArray("A\\rB\\r") << "A\nB\n";
    QTest::newRow("both") << QByteArray("A\\\\rB\\rC") << "A\nB\nC";
    QTest::newRow("three backslashes") << QByteArray("A\\\\\\rB") << "A\\\nB";
    QTest::newRow("four backslashes") << QByteArray("A\\\\\\\\rB") << "A\\\\\nB";
    QTest::newRow("upper case") << QByteArray("A\\\\RB\\R") << "A\\\\RB\\R";
    QTest::newRow("backslash, break, r") << QByteArray("A\\\\\\rrB") << "A\\\nrB";
    QTest::newRow("other escapes") << QByteArray("A\\nB\\\\n\\t") << "A\\nB\\\\n\\t";
    QTest::newRow("real line breaks") << QByteArray("A\nB\rC") << "A\nB\rC";
    QTest::newRow("Latin-1") << QByteArray("Gr\xf6\xdf"
                                           "e")
                             << QString::fromUtf8("Größe");
    QTest::newRow("blank") << QByteArray(" ") << " ";
    QTest::newRow("empty") << QByteArray("") << "";
}

void CupsSupportOptionsTest::getString()
{
    QFETCH(QByteArray, stored);
    const auto cups = supportFor(LP1);
    QVERIFY(cups->setValue("JobStart", stored.constData()) > 0);
    QString text = "before";
    QVERIFY(cups->getString("JobStart", &text)); // here true is success
    QTEST(text, "text");
    QVERIFY(!text.isNull());
    QTEST(cups->getJobStart(), "text");
}

void CupsSupportOptionsTest::getStringOfMissingOption()
{
    const auto cups = supportFor(LP3);
    QString text = "before";
    QVERIFY(!cups->getString("JobStart", &text));
    QVERIFY(text.isNull());
}

void CupsSupportOptionsTest::emptyStringIsStored()
{
    const auto cups = supportFor(LP1);
    const int before = int(cups->cupsOptions().size()) / 2;
    QCOMPARE(cups->setJobStart(""), before + 1);
    QVERIFY(cups->printerOption("JobStart") != nullptr);
    QCOMPARE(saved(*cups, "JobStart"), QByteArray(""));
    QCOMPARE(cups->getJobStart(), QString(""));
    QCOMPARE(cups->setJobStart(QString()), before + 1);
    QCOMPARE(saved(*cups, "JobStart"), QByteArray(""));
}

void CupsSupportOptionsTest::emptyStringRemovesEmptyPpdDefault()
{
    const auto cups = supportFor(LP1);
    const int before = int(cups->cupsOptions().size()) / 2;
    setPpdDefault(*cups, "JobStart", "");
    cups->setJobStart("A");
    QCOMPARE(cups->setJobStart(""), before);
    QVERIFY(cups->printerOption("JobStart") == nullptr);
}

void CupsSupportOptionsTest::savedAndReadAgain()
{
    const auto cups = supportFor(LP1);
    for (const Accessor &accessor : accessors())
        QVERIFY(accessor.set(*cups, sample(accessor).value) > 0);
    QCOMPARE(cups->setDests(), 0);
    const auto fresh = supportFor(LP1);
    for (const Accessor &accessor : accessors()) {
        QCOMPARE(accessor.get(*fresh), sample(accessor).value);
        QCOMPARE(saved(*fresh, accessor.keyword), sample(accessor).stored);
    }
}

PROPERTIESDIALOG_TEST_MAIN(CupsSupportOptionsTest)
#include "CupsSupportOptionsTest.moc"
