// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "PresetFiles.h"
#include "TestMain.h"

#include <PropertiesDialog/Preset.h>

#include <QtTest>

#include <cstdio>

namespace {

// Prints the keywords of presets after one for the printer that is the argument was made.
int printOptionNames(int &, char **argv)
{
    const Preset earlier("LP1", QString(), {}, QString(), QString(), -1);
    {
        const Preset preset(QString::fromUtf8(argv[1]), QString(), {}, QString(), QString(), -1);
    }
    const Preset later("LP2", QString(), {}, QString(), QString(), -1);
    if (earlier.getOptionNames() != later.getOptionNames())
        return 1;
    std::fputs(later.getOptionNames().join(' ').toUtf8().constData(), stdout);
    return 0;
}
const TestMain::ChildFunction printOptionNamesFunction("printOptionNames", printOptionNames);

constexpr char usualNames[] =
    "Darkness Direct Feed GapSize JobEnd JobStart LabelCategory LabelEnd LabelStart MarkOffset MarkSize MirrorPrint "
    "NegativePrint OffsetH OffsetV orientation-requested PrintSpeed Stop Start";
constexpr char extendedNames[] =
    "Darkness Direct Feed GapSize GapOffset JobEnd JobStart LabelCategory LabelEnd LabelStart MarkOffset MarkSize "
    "MirrorPrint NegativePrint OffsetH OffsetV orientation-requested PrintSpeed Shift Stop";

} // namespace

// If this fails, presets of printers with ORCA in their names omit or misplace settings.
class PresetOrcaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void switchesList_data();
    void switchesList();
    void laterWrites();
    void laterReads();
};

void PresetOrcaTest::switchesList_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QByteArray>("names");
    QTest::newRow("the name itself") << "ORCA" << QByteArray(extendedNames);
    QTest::newRow("last") << "LP-ORCA" << QByteArray(extendedNames);
    QTest::newRow("inside") << "LPORCA2" << QByteArray(extendedNames);
    QTest::newRow("in the instance") << "LP1/ORCA" << QByteArray(extendedNames);
    QTest::newRow("lower case") << "LP-orca" << QByteArray(usualNames);
    QTest::newRow("mixed case") << "LP-Orca" << QByteArray(usualNames);
    QTest::newRow("other") << "LP1" << QByteArray(usualNames);
}

// For each printer in a separate process, because the switch lasts until the process ends.
void PresetOrcaTest::switchesList()
{
    QFETCH(QString, printer);
    QFETCH(QByteArray, names);
    const TestMain::ChildResult result = TestMain::runChild("printOptionNames", {printer});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, names);
}

void PresetOrcaTest::laterWrites()
{
    QVERIFY(PresetFiles::reset());
    // What has been read by then was read with the usual list.
    QVERIFY(PresetFiles::writeFile(PresetFiles::script("LP1", "Read"), "lpoptions -pLP1 -oShift=1 -oStart=2\n"));
    Preset read("LP1", "Read", {}, QString(), QString(), -1);
    QCOMPARE(read.name(), QString("Read"));
    const QStringList options{"Start", "1.000", "Stop", "2.000", "GapOffset", "3.000", "Shift", "4.000"};
    Preset earlier("LP1", "Earlier", {}, QString(), QString(), -1);
    Preset orca("LP-ORCA", "Orca", options, QString(), QString(), -1);
    QCOMPARE(read.options().join(' '), QString("Start 2"));
    QVERIFY(earlier.setOptions(options));
    QCOMPARE(earlier.options().join(' '), QString("GapOffset 3.000 Shift 4.000 Stop 2.000"));

    const QStringList defaults{"Start", "1.000", "Stop", "5.000", "Shift", "4.000"};
    QVERIFY(earlier.save(defaults));
    QVERIFY(orca.save(defaults));
    QCOMPARE(PresetFiles::readFile(earlier.pathName()),
             QByteArray("#!/bin/bash\nlpoptions -pLP1 -oGapOffset=3.000 -rShift -oStop=2.000\n"));
    QCOMPARE(PresetFiles::readFile(orca.pathName()),
             QByteArray("#!/bin/bash\nlpoptions -pLP-ORCA -oGapOffset=3.000 -rShift -oStop=2.000\n"));
}

void PresetOrcaTest::laterReads()
{
    QVERIFY(PresetFiles::reset());
    const Preset orca("LP-ORCA", QString(), {}, QString(), QString(), -1);
    QVERIFY(PresetFiles::writeFile(PresetFiles::script("LP1", "Wide"),
                                   "lpoptions -pLP1 -oStart=1 -oShift=2 -oGapOffset=3 -oGapSize=4\n"));
    Preset preset("LP1", "Wide", {}, QString(), QString(), -1);
    QCOMPARE(preset.options().join(' '), QString("GapSize 4 GapOffset 3 Shift 2"));
}

PROPERTIESDIALOG_TEST_MAIN(PresetOrcaTest)
#include "PresetOrcaTest.moc"
