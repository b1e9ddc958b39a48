// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// If this fails, users lose what they typed, or settings are stored that nobody chose.

#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <QHideEvent>
#include <QShowEvent>
#include <QTabWidget>

namespace {

void sendSpontaneously(QWidget &widget, QEvent &&event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&widget, &event); // sendEvent() would have it come from this program again
}

} // namespace

class PropertiesDialogInputTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void minimisedAndRestored();
    void shownAgainLoads();
    void returnOnAButton_data();
    void returnOnAButton();
    void returnInAFieldIsOk();

    void ppdFileGoneForAMoment();
    void ppdFileGoneWhileSaving();
    void ppdFileIsBack();
    void mediaTypeWithoutPpdFile();
    void presetSavedWithoutPpdFile();

    void savingSucceeds();

private:
    QByteArray presetWithPageSize();

    PrivateScheduler scheduler;
};

void PropertiesDialogInputTest::initTestCase()
{
    scheduler.addQueue("Q");
}

void PropertiesDialogInputTest::init()
{
    clearHome();
    scheduler.setServerDefault("Q");
}

// ----- what was typed -----

// What the window manager sends when the user minimises the window and gets it back.
void PropertiesDialogInputTest::minimisedAndRestored()
{
    OpenDialog open;
    open.setText("feed", "0.50");
    open.setPlainText("commandEdit", "typed");
    open.slide("darknessSlider", 4);
    sendSpontaneously(open.dialog, QHideEvent());
    sendSpontaneously(open.dialog, QShowEvent());
    QCOMPARE(open.text("feed"), QString("0.50"));
    QCOMPARE(open.plainText("commandEdit"), QString("typed"));
    QCOMPARE(open.shown("darknessSlider"), QString("4"));
    QVERIFY(open.isChanged());
}

void PropertiesDialogInputTest::shownAgainLoads()
{
    OpenDialog open;
    open.slide("darknessSlider", 4);
    open.dialog.hide();
    open.dialog.show();
    QCOMPARE(open.shown("darknessSlider"), QString("10"));
    QVERIFY(!open.isChanged());
}

void PropertiesDialogInputTest::returnOnAButton_data()
{
    QTest::addColumn<QString>("button");
    for (const char *button : {"manageButton", "presetNewButton", "presetUpdateButton", "presetDeleteButton"})
        QTest::newRow(button) << button;
}

void PropertiesDialogInputTest::returnOnAButton()
{
    QFETCH(QString, button);
    writeFile(cupsFolder() + "/Q/a.sh", "#!/bin/bash\nlpoptions -pQ -oDarkness=9\n");
    OpenDialog open;
    int presses = 0;
    QObject::connect(open.button(button), &QAbstractButton::clicked, open.button(button), [&presses] { ++presses; });
    if (button != "manageButton")
        open.widget<QTabWidget>("tabs")->setCurrentIndex(1);
    QVERIFY(QTest::qWaitForWindowActive(&open.dialog));
    open.button(button)->setFocus();
    QTest::keyClick(open.button(button), Qt::Key_Return);
    QCOMPARE(presses, 1);
    QVERIFY(open.dialog.isVisible());
}

void PropertiesDialogInputTest::returnInAFieldIsOk()
{
    OpenDialog open;
    open.widget<QTabWidget>("tabs")->setCurrentIndex(2);
    QVERIFY(QTest::qWaitForWindowActive(&open.dialog));
    open.edit("stop")->setFocus();
    QTest::keyClick(open.edit("stop"), Qt::Key_Return);
    QVERIFY(!open.dialog.isVisible());
    QCOMPARE(open.dialog.result(), 1);
}

// ----- no PPD file -----

// When it is chosen, the driver changes the PPD file, which is then opened again.
QByteArray PropertiesDialogInputTest::presetWithPageSize()
{
    return "#!/bin/bash\nlpoptions -pQ -oDarkness=9\nppdhack 4.00 2.00 Q\n";
}

void PropertiesDialogInputTest::ppdFileGoneForAMoment()
{
    writeFile(cupsFolder() + "/Q/a.sh", "#!/bin/bash\nlpoptions -pQ\n");
    writeFile(cupsFolder() + "/Q/b.sh", presetWithPageSize());
    scheduler.setUserOptions("Q", {"Darkness=4", "GapSize=5.000"});
    OpenDialog open;
    scheduler.stop();
    open.choose("preset1", 3);
    QCOMPARE(open.shown("darknessSlider"), QString("9"));
    open.click("applyButton");
    scheduler.start();
    QCOMPARE(storedOptions("Q").value("Darkness"), QByteArray("9"));
    for (const char *keyword : {"PrintSpeed", "LabelCategory", "CutMedia", "Stop", "Back", "orientation-requested"})
        QVERIFY2(!fileContent(cupsFolder() + "/lpoptions").contains(keyword), keyword);

    // The fields still show the fallbacks.
    open.slide("speedSlider", 1);
    open.click("applyButton");
    const QByteArray file = fileContent(cupsFolder() + "/lpoptions");
    QVERIFY2(file.contains("PrintSpeed=1"), file.constData());
    QVERIFY2(!file.contains("LabelCategory") && !file.contains("CutMedia"), file.constData());
}

void PropertiesDialogInputTest::ppdFileGoneWhileSaving()
{
    OpenDialog open;
    open.slide("speedSlider", 1);
    open.cups.closePpdFile();
    scheduler.stop();
    open.click("applyButton");
    scheduler.start();
    const QByteArray file = fileContent(cupsFolder() + "/lpoptions");
    QVERIFY2(file.contains("PrintSpeed=1"), file.constData());
    for (const char *keyword : {"Darkness", "LabelCategory", "CutMedia", "Stop", "Back", "orientation-requested"})
        QVERIFY2(!file.contains(keyword), file.constData());
}

// The values that equal its defaults are not stored, and the next opening shows them.
void PropertiesDialogInputTest::ppdFileIsBack()
{
    OpenDialog open("Q");
    open.cups.closePpdFile();
    scheduler.stop();
    open.dialog.show();
    QCOMPARE(open.shown("speedSlider"), QString("2")); // stands in for the default, 3
    scheduler.start();
    open.slide("speedSlider", 3);
    open.slide("darknessSlider", 4);
    open.click("applyButton");
    const QByteArray file = fileContent(cupsFolder() + "/lpoptions");
    QVERIFY2(file.contains("Darkness=4") && !file.contains("PrintSpeed"), file.constData());
    open.dialog.hide();
    open.dialog.show();
    QCOMPARE(open.shown("speedSlider"), QString("3"));
}

// A script that is saved meanwhile also restores what had its default.
void PropertiesDialogInputTest::presetSavedWithoutPpdFile()
{
    scheduler.setUserOptions("Q", {"Darkness=4"});
    OpenDialog open;
    open.cups.closePpdFile();
    scheduler.stop();
    open.click("presetNewButton");
    open.click("applyButton");
    scheduler.start();
    for (const char *name : {"Preset", "_current"}) {
        scheduler.setUserOptions("Q", {"Darkness=9", "PrintSpeed=1", "LabelCategory=2"});
        PrivateScheduler::run("/bin/bash", {cupsFolder() + "/Q/" + name + ".sh"});
        const Options stored = storedOptions("Q");
        QCOMPARE(stored.value("Darkness"), QByteArray("4"));
        QVERIFY2(!stored.contains("PrintSpeed") && !stored.contains("LabelCategory"), name);
    }
}

// Its fields are filled from stored options that nobody has stored.
void PropertiesDialogInputTest::mediaTypeWithoutPpdFile()
{
    OpenDialog open;
    open.cups.closePpdFile();
    scheduler.stop();
    open.choose("mediaType", 2);
    open.click("applyButton");
    scheduler.start();
    QByteArray file = fileContent(cupsFolder() + "/lpoptions");
    QVERIFY2(file.contains("LabelCategory=2") && !file.contains("Mark"), file.constData());
    open.setText("gapSize", "0.10");
    open.click("applyButton");
    file = fileContent(cupsFolder() + "/lpoptions");
    QVERIFY2(file.contains("MarkSize=2.540"), file.constData());
}

// ----- failures -----

void PropertiesDialogInputTest::savingSucceeds()
{
    OpenDialog open;
    QVERIFY(open.dialog.lastSaveSucceeded());
    open.slide("darknessSlider", 4);
    open.click("applyButton");
    QVERIFY(open.dialog.lastSaveSucceeded());
}

PROPERTIESDIALOG_TEST_MAIN(PropertiesDialogInputTest)
#include "PropertiesDialogInputTest.moc"
