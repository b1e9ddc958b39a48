// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/Preset.h>

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>

#include <cstdio>
#include <cstring>

namespace {

QString scriptPath(const QString &queue, const QString &file)
{
    return cupsFolder() + '/' + queue + '/' + file + ".sh";
}

// A script as a user has it, with the option items and further lines given.
void writeScript(const QString &file, const QByteArray &items, const QByteArray &header = {},
                 const QByteArray &end = {}, const QString &queue = QStringLiteral("Q"))
{
    writeFile(scriptPath(queue, file),
              "#!/bin/bash\n" + header + "lpoptions -p" + queue.toLatin1() + items + '\n' + end);
}

void makeCurrent(const QString &file)
{
    QVERIFY(QFile::link(scriptPath("Q", file), cupsFolder() + "/Q/currentPreset"));
}

QStringList items(OpenDialog &open, const char *list)
{
    const auto *box = open.widget<QComboBox>(list);
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts << box->itemText(i);
    return texts;
}

QStringList builtIn(const QStringList &users)
{
    return QStringList{"<Current Settings>", "<Default Settings>"} + users;
}

void chooseByName(OpenDialog &open, const char *list, const QString &name)
{
    auto *box = open.widget<QComboBox>(list);
    const int index = box->findText(name);
    QVERIFY(index >= 0);
    box->setCurrentIndex(index);
}

// As a user leaves the field.
void rename(OpenDialog &open, const QString &name)
{
    auto *edit = open.widget<QLineEdit>("nameEdit");
    edit->setText(name);
    Q_EMIT edit->editingFinished();
}

// The options that presets carry, in a process in which no printer of the family with the extended list was seen.
const QStringList usualKeywords{"Darkness",      "Direct",     "Feed",          "GapSize",
                                "JobEnd",        "JobStart",   "LabelCategory", "LabelEnd",
                                "LabelStart",    "MarkOffset", "MarkSize",      "MirrorPrint",
                                "NegativePrint", "OffsetH",    "OffsetV",       "orientation-requested",
                                "PrintSpeed",    "Stop",       "Start"};
const QStringList extendedKeywords{"Darkness",
                                   "Direct",
                                   "Feed",
                                   "GapSize",
                                   "GapOffset",
                                   "JobEnd",
                                   "JobStart",
                                   "LabelCategory",
                                   "LabelEnd",
                                   "LabelStart",
                                   "MarkOffset",
                                   "MarkSize",
                                   "MirrorPrint",
                                   "NegativePrint",
                                   "OffsetH",
                                   "OffsetV",
                                   "orientation-requested",
                                   "PrintSpeed",
                                   "Shift",
                                   "Stop"};

// Keywords of the items in a script's lpoptions line.
QStringList keywordsOf(const QByteArray &script)
{
    QStringList keywords;
    const QList<QByteArray> words =
        script.split('\n').value(script.startsWith("#!/bin/bash\n#name=") ? 2 : 1).split(' ');
    for (const QByteArray &word : words)
        if (word.startsWith("-o") || word.startsWith("-r"))
            keywords << QString::fromLatin1(word.mid(2, word.indexOf('=') < 0 ? -1 : word.indexOf('=') - 2));
    return keywords;
}

// In a separate process, because a printer of this family changes the library until it is unloaded: creates and saves a
// preset there and chooses the default settings; then writes the script and what is left of the options.
int workWithExtendedList(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    OpenDialog open;
    const QByteArray queue = open.printer->printerName().toLatin1();
    open.slide("darknessSlider", 4);
    open.click("applyButton");
    open.click("presetNewButton");
    open.click("applyButton");
    std::printf("%s", fileContent(scriptPath(queue, "Preset")).constData());
    open.choose("preset1", 1);
    open.click("applyButton");
    const Options left = workingCopy(open.cups);
    std::printf("left:");
    for (const char *keyword : {"GapOffset", "Shift", "Start", "Darkness"})
        std::printf(" %s=%s", keyword, left.value(keyword).constData());
    std::printf("\n");
    return 0;
}
const TestMain::ChildFunction workFunction("work-with-extended-list", workWithExtendedList);

// Answers the next message box and keeps its texts.
class BoxAnswer : public QObject
{
public:
    BoxAnswer() { startTimer(10); }

    QString title;
    QString text;

protected:
    void timerEvent(QTimerEvent *) override
    {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            title = box->windowTitle();
            text = box->text();
            box->accept();
        }
    }
};

} // namespace

// If this fails, creating, choosing, renaming or deleting a preset does something else than shown.
class PropertiesDialogPresetsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    // The lists.
    void listsAreFilled();
    void currentPresetOfTheLink();
    void danglingLink();
    void updatePresets();
    void updatePresetsRefills_data();
    void updatePresetsRefills();
    void refillingAppliesNothing();
    void moreThanAHundred();

    // What the tab shows.
    void states_data();
    void states();
    void updateCurrentPreset();
    void updateCurrentPresetOfNone();
    void updateCurrentPresetOfAMissingName();
    void updateCurrentPresetThatIsShown();
    void descriptionsOfTheBuiltIn();

    // Choosing.
    void choose_data();
    void choose();
    void chooseTheCurrentOne();
    void chooseByText();
    void chooseNone();
    void chooseDefaultSettings();
    void chooseCurrentSettings();
    void onlyListedOptionsAreReplaced();
    void setCupsOptions();
    void chosenIsRememberedWhenSaved();
    void missingScript();
    void unreadableScript();

    // The driver's command.
    void pageSizeOfThePreset();
    void commandHasFinished();
    void commandLine_data();
    void commandLine();
    void longLine();
    void commandOfTheCurrentFolder();
    void commandIsMissing();

    // The buttons and fields.
    void manage();
    void newPreset();
    void newPresetOfAFreshQueue();
    void newPresetNames_data();
    void newPresetNames();
    void newPresetDropsUnsavedEdits();
    void newPresetKeepsAnEmptiedCommand();
    void updateButton();
    void updateButtonWithOneDifference_data();
    void updateButtonWithOneDifference();
    void updateButtonWithoutADifference();
    void deleteButton();
    void deleteCurrent();
    void deleteLast();
    void deleteBuiltIn();
    void renamePreset();
    void renameToTheSame();
    void renameToNothing();
    void renameToAnother();
    void renameWithTheKeyboard();
    void describe();
    void describeTheSame();
    void nothingSelected();

    // Two dialogs, and presets that look alike.
    void twoOfOneName();
    void renameOneOfTwo();
    void deleteOneOfTwo();
    void descriptionBeyondTheList();
    void newDeleteNew();
    void scriptRemovedByAnother();
    void newInTwoDialogs();
    void scriptInThePlaceOfANewOne();

    // What a script cannot hold.
    void valueNotHeld_data();
    void valueNotHeld();
    void valueNotHeldAfterSaving();

    // Which options presets carry.
    void usualList();
    void extendedList();

private:
    PrivateScheduler scheduler;
};

void PropertiesDialogPresetsTest::initTestCase()
{
    scheduler.addQueue("Q");
    scheduler.addQueue("ORCA-7");
}

void PropertiesDialogPresetsTest::init()
{
    QVERIFY(QDir(cupsFolder()).removeRecursively());
    scheduler.setServerDefault("Q");
}

// ----- the lists -----

void PropertiesDialogPresetsTest::listsAreFilled()
{
    writeScript("b", " -oDarkness=4", "#name=Zulu\n");
    writeScript("a", " -oDarkness=4");
    writeScript("_hidden", " -oDarkness=4");
    OpenDialog open;
    QCOMPARE(items(open, "preset0"), builtIn({"a", "Zulu"}));
    QCOMPARE(items(open, "preset1"), builtIn({"a", "Zulu"}));
    // Without a link the first one is current.
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("a"));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("a"));
    QVERIFY(!open.isEnabled("applyButton"));
    // It is shown, not applied.
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 10);
}

void PropertiesDialogPresetsTest::currentPresetOfTheLink()
{
    writeScript("a", "");
    writeScript("b", "", "#name=Zulu\n#description=Stripes\n");
    makeCurrent("b");
    OpenDialog open;
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("Zulu"));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("Zulu"));
    QCOMPARE(open.text("nameEdit"), QString("Zulu"));
    QCOMPARE(open.plainText("descriptionEdit"), QString("Stripes"));
}

void PropertiesDialogPresetsTest::danglingLink()
{
    writeScript("a", "");
    makeCurrent("gone");
    OpenDialog open;
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("<Current Settings>"));
}

void PropertiesDialogPresetsTest::updatePresets()
{
    writeScript("a", "");
    OpenDialog open;
    QVERIFY(!open.dialog.updatePresets());
    open.widget<QComboBox>("preset0")->setItemText(2, "other");
    QVERIFY(open.dialog.updatePresets());
    QCOMPARE(items(open, "preset0"), builtIn({"a"}));
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("a"));
    QVERIFY(!open.dialog.updatePresets());
}

void PropertiesDialogPresetsTest::updatePresetsRefills_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("change"); // -1: an item less, 0: another text, 1: an item more
    for (const char *list : {"preset0", "preset1"}) {
        QTest::addRow("%s, an item less", list) << QByteArray(list) << -1;
        QTest::addRow("%s, another text", list) << QByteArray(list) << 0;
        QTest::addRow("%s, an item more", list) << QByteArray(list) << 1;
    }
}

void PropertiesDialogPresetsTest::updatePresetsRefills()
{
    QFETCH(QByteArray, list);
    QFETCH(int, change);
    writeScript("a", "");
    writeScript("b", "");
    OpenDialog open;
    auto *box = open.widget<QComboBox>(list);
    if (change < 0)
        box->removeItem(3);
    else if (change == 0)
        box->setItemText(3, "B"); // another case is another text
    else
        box->addItem("c");
    QVERIFY(open.dialog.updatePresets());
    QCOMPARE(items(open, "preset0"), builtIn({"a", "b"}));
    QCOMPARE(items(open, "preset1"), builtIn({"a", "b"}));
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("a"));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("a"));
}

// While the lists are emptied and filled their current items change several times.
void PropertiesDialogPresetsTest::refillingAppliesNothing()
{
    writeScript("a", " -oDarkness=4");
    writeScript("b", " -oDarkness=5");
    scheduler.setUserOptions("Q", {"Darkness=7"});
    OpenDialog open;
    for (const char *list : {"preset0", "preset1"}) {
        open.widget<QComboBox>(list)->setItemText(2, "other");
        const QSignalSpy spy(open.widget<QComboBox>(list), SIGNAL(currentIndexChanged(int)));
        QVERIFY(open.dialog.updatePresets());
        QVERIFY(spy.count() > 0); // or there was nothing to be ignored
    }
    QCOMPARE(workingCopy(open.cups).value("Darkness"), QByteArray("7"));
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 7);
    QVERIFY(!open.isEnabled("applyButton"));
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("a"));
    // Afterwards a choice counts again.
    chooseByName(open, "preset0", "b");
    QCOMPARE(workingCopy(open.cups).value("Darkness"), QByteArray("5"));
}

// The tab's list takes a hundred items; the other one takes all.
void PropertiesDialogPresetsTest::moreThanAHundred()
{
    const int count = 110;
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names << QStringLiteral("p%1").arg(i, 3, 10, QLatin1Char('0'));
        writeScript(names.last(), " -oDarkness=" + QByteArray::number(i % 20));
    }
    OpenDialog open;
    QCOMPARE(items(open, "preset0"), builtIn(names));
    QCOMPARE(items(open, "preset1"), builtIn(names.mid(0, 98)));
    // The lists never match the names, so they are filled again each time.
    QVERIFY(open.dialog.updatePresets());
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("p000"));

    // A preset that the tab's list does not have: it stands on its first item, and nothing can be edited.
    chooseByName(open, "preset0", "p105");
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("p105"));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentIndex(), 0);
    QCOMPARE(open.text("nameEdit"), QString("p105"));
    for (const char *name : {"nameEdit", "descriptionEdit", "presetUpdateButton", "presetDeleteButton"})
        QVERIFY2(!open.isEnabled(name), name);
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 5);
    QCOMPARE(workingCopy(open.cups).value("Darkness"), QByteArray("5"));

    // One that it has.
    chooseByName(open, "preset1", "p097");
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("p097"));
    QVERIFY(open.isEnabled("presetDeleteButton"));
    open.click("applyButton");
    QVERIFY(!open.isEnabled("applyButton"));
    QCOMPARE(QFile::symLinkTarget(cupsFolder() + "/Q/currentPreset"), scriptPath("Q", "p097"));
}

// ----- what the tab shows -----

void PropertiesDialogPresetsTest::states_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("edit");
    QTest::addColumn<bool>("update");
    QTest::addColumn<bool>("remove");
    QTest::newRow("current settings") << "<Current Settings>" << false << false << false;
    QTest::newRow("default settings") << "<Default Settings>" << false << false << false;
    QTest::newRow("user's") << "Mine" << true << true << true;
    QTest::newRow("Custom 1") << "Custom 1" << true << true << false;
    QTest::newRow("Custom 2") << "Custom 2" << true << true << false;
    QTest::newRow("Custom 3") << "Custom 3" << true << true << false;
    QTest::newRow("Custom 4") << "Custom 4" << true << true << true;
    QTest::newRow("custom 1") << "custom 1" << true << true << true;
    QTest::newRow("built in by its script") << "Fixed" << true << false << false;
}

void PropertiesDialogPresetsTest::states()
{
    QFETCH(QString, name);
    QFETCH(bool, edit);
    QFETCH(bool, update);
    QFETCH(bool, remove);
    writeScript("Another", "");
    writeScript("Mine", "");
    writeScript("c1", "", "#name=Custom 1\n");
    writeScript("c2", "", "#name=Custom 2\n");
    writeScript("c3", "", "#name=Custom 3\n");
    writeScript("c4", "", "#name=Custom 4\n");
    writeScript("lower", "", "#name=custom 1\n");
    writeScript("Fixed", "", "#index=2\n");
    for (const char *list : {"preset0", "preset1"}) {
        OpenDialog open;
        chooseByName(open, list, name);
        QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), name);
        QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), name);
        QCOMPARE(open.text("nameEdit"), name);
        QCOMPARE(open.isEnabled("nameEdit"), edit);
        QCOMPARE(open.isEnabled("descriptionEdit"), edit);
        QCOMPARE(open.isEnabled("presetUpdateButton"), update);
        QCOMPARE(open.isEnabled("presetDeleteButton"), remove);
        QVERIFY(open.isEnabled("presetNewButton"));
    }
}

void PropertiesDialogPresetsTest::updateCurrentPreset()
{
    writeScript("a", "");
    writeScript("b", "", "#name=Zulu\n#description=Stripes\n");
    OpenDialog open;
    Preset zebra("Q", "b", {}, QString(), QString(), -1);
    QVERIFY(open.dialog.updateCurrentPreset(&zebra));
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("Zulu"));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("Zulu"));
    QCOMPARE(open.text("nameEdit"), QString("Zulu"));
    QCOMPARE(open.plainText("descriptionEdit"), QString("Stripes"));
    // It is shown, not applied.
    QVERIFY(!open.isEnabled("applyButton"));
    QVERIFY(!open.dialog.updateCurrentPreset(&zebra));
    // One different list is enough.
    open.widget<QComboBox>("preset0")->blockSignals(true);
    open.choose("preset0", 0);
    open.widget<QComboBox>("preset0")->blockSignals(false);
    QVERIFY(open.dialog.updateCurrentPreset(&zebra));
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("Zulu"));
    open.widget<QComboBox>("preset1")->blockSignals(true);
    open.choose("preset1", 0);
    open.widget<QComboBox>("preset1")->blockSignals(false);
    QVERIFY(open.dialog.updateCurrentPreset(&zebra));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("Zulu"));
}

void PropertiesDialogPresetsTest::updateCurrentPresetOfNone()
{
    writeScript("a", "", "#description=text\n");
    OpenDialog open;
    QVERIFY(open.isEnabled("presetDeleteButton"));
    QVERIFY(!open.dialog.updateCurrentPreset(nullptr));
    for (const char *name : {"nameEdit", "descriptionEdit", "presetUpdateButton", "presetDeleteButton"})
        QVERIFY2(!open.isEnabled(name), name);
    // Everything else stays.
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("a"));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("a"));
    QCOMPARE(open.text("nameEdit"), QString("a"));
    QCOMPARE(open.plainText("descriptionEdit"), QString("text"));
}

void PropertiesDialogPresetsTest::updateCurrentPresetOfAMissingName()
{
    writeScript("a", "");
    OpenDialog open;
    Preset stranger("Q", "A", {}, QString(), QString(), -1); // another case is another name
    QVERIFY(open.dialog.updateCurrentPreset(&stranger));
    QCOMPARE(open.widget<QComboBox>("preset0")->currentIndex(), 0);
    QCOMPARE(open.widget<QComboBox>("preset1")->currentIndex(), 0);
    QCOMPARE(open.text("nameEdit"), QString("A"));
    QVERIFY(!open.isEnabled("nameEdit"));
}

// When the lists stand right, the fields get their texts and keep their states.
void PropertiesDialogPresetsTest::updateCurrentPresetThatIsShown()
{
    writeScript("a", "");
    OpenDialog open;
    open.widget("presetDeleteButton")->setEnabled(false);
    open.setText("nameEdit", "unfinished");
    Preset same("Q", "a", {}, QString(), QString(), -1);
    same.setDescription("other");
    QVERIFY(!open.dialog.updateCurrentPreset(&same));
    QCOMPARE(open.text("nameEdit"), QString("a"));
    QCOMPARE(open.plainText("descriptionEdit"), QString("other"));
    QVERIFY(!open.isEnabled("presetDeleteButton"));
}

void PropertiesDialogPresetsTest::descriptionsOfTheBuiltIn()
{
    writeScript("a", "");
    OpenDialog open;
    open.choose("preset1", 0);
    QCOMPARE(open.plainText("descriptionEdit"), QString("This preset contains this driver's current settings."));
    open.choose("preset1", 1);
    QCOMPARE(open.plainText("descriptionEdit"),
             QString("This preset contains this driver's original default settings."));
}

// ----- choosing -----

void PropertiesDialogPresetsTest::choose_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::newRow("page setup") << QByteArray("preset0");
    QTest::newRow("presets tab") << QByteArray("preset1");
}

void PropertiesDialogPresetsTest::choose()
{
    QFETCH(QByteArray, list);
    writeScript("a", "");
    writeScript(
        "b",
        " -oDarkness=4 -oorientation-requested=6 -oGapSize=2.540 -oJobStart=A\\\\\\\\rB\\\\\\\\r -oMirrorPrint=True");
    scheduler.setUserOptions("Q", {"PrintSpeed=1"});
    OpenDialog open;
    open.setText("feed", "0.50"); // unsaved edits go
    open.dialog.setChanged(false);
    chooseByName(open, list, "b");
    QVERIFY(open.isEnabled("applyButton"));
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("b"));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("b"));

    // The working copy has the preset's values and no other of those that presets carry.
    const Options options = workingCopy(open.cups);
    QCOMPARE(options.value("Darkness"), QByteArray("4"));
    QCOMPARE(options.value("orientation-requested"), QByteArray("6"));
    QVERIFY(!options.contains("PrintSpeed"));
    // The fields show them.
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 4);
    QVERIFY(open.widget<QAbstractButton>("portrait180RadioButton")->isChecked());
    QVERIFY(open.widget<QAbstractButton>("mirroredCheckBox")->isChecked());
    QCOMPARE(open.text("gapSize"), QString("0.10"));
    QCOMPARE(open.plainText("commandEdit"), QString("A\nB\n"));
    QCOMPARE(open.widget<QSlider>("speedSlider")->value(), 3);
    QCOMPARE(open.text("feed"), QString("0.00"));
    // Other clients of the scheduler do not see it yet.
    QVERIFY(!storedOptions("Q").contains("Darkness"));
    open.click("applyButton");
    QCOMPARE(storedOptions("Q").value("Darkness"), QByteArray("4"));
}

void PropertiesDialogPresetsTest::chooseTheCurrentOne()
{
    writeScript("a", " -oDarkness=4");
    OpenDialog open;
    open.dialog.setCurrentPreset("a");
    QVERIFY(!workingCopy(open.cups).contains("Darkness"));
    QVERIFY(!open.isEnabled("applyButton"));
}

void PropertiesDialogPresetsTest::chooseByText()
{
    writeScript("a", "");
    writeScript("b", " -oDarkness=4", "#name=Zulu\n");
    OpenDialog open;
    open.dialog.setCurrentPreset(QString());
    open.dialog.setCurrentPreset("nobody");
    QVERIFY(!open.isEnabled("applyButton"));
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("a"));
    open.dialog.setCurrentPreset("b"); // by its file name
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("Zulu"));
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 4);
    open.dialog.setCurrentPreset("a");
    open.dialog.setCurrentPreset("Zulu"); // by its name
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 4);
}

// As a host does it, and another preset afterwards.
void PropertiesDialogPresetsTest::chooseNone()
{
    writeScript("a", " -oDarkness=4");
    scheduler.setUserOptions("Q", {"Darkness=9"});
    OpenDialog open;
    const Options before = workingCopy(open.cups);
    open.dialog.setCurrentPreset(nullptr);
    open.dialog.setCupsOptions(nullptr);
    QCOMPARE(workingCopy(open.cups), before);
    for (const char *name : {"nameEdit", "descriptionEdit", "presetUpdateButton", "presetDeleteButton"})
        QVERIFY2(!open.isEnabled(name), name);
    QVERIFY(open.isChanged());
    open.click("applyButton");
    QVERIFY(open.dialog.lastSaveSucceeded());
    open.dialog.setCurrentPreset("a");
    QCOMPARE(open.shown("darknessSlider"), QString("4"));
}

void PropertiesDialogPresetsTest::chooseDefaultSettings()
{
    scheduler.setUserOptions("Q",
                             {"Darkness=4",         "Direct=True",      "Feed=24",         "GapSize=2.000",
                              "JobEnd=a",           "JobStart=a",       "LabelCategory=2", "LabelEnd=a",
                              "LabelStart=a",       "MarkOffset=1.000", "MarkSize=3.000",  "MirrorPrint=True",
                              "NegativePrint=True", "OffsetH=8",        "OffsetV=8",       "orientation-requested=6",
                              "PrintSpeed=1",       "Stop=0.000",       "Start=1.000",     "GapOffset=1.000",
                              "Shift=1.000",        "Back=2",           "CutMedia=2"});
    OpenDialog open;
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 4);
    chooseByName(open, "preset0", "<Default Settings>");
    const Options left = workingCopy(open.cups);
    for (const QString &keyword : usualKeywords)
        QVERIFY2(!left.contains(keyword.toLatin1()), qPrintable(keyword));
    // What presets do not carry stays.
    for (const char *keyword : {"GapOffset", "Shift", "Back", "CutMedia"})
        QVERIFY2(left.contains(keyword), keyword);
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 10);
    QVERIFY(open.widget<QAbstractButton>("landscapeRadioButton")->isChecked());
    QCOMPARE(open.plainText("commandEdit"), QString());
    QVERIFY(open.isEnabled("applyButton"));
    open.click("applyButton");
    QVERIFY(!storedOptions("Q").contains("Darkness"));
    QVERIFY(!open.isEnabled("applyButton"));
}

// They are those of the time when the dialog was created, whatever was applied since.
void PropertiesDialogPresetsTest::chooseCurrentSettings()
{
    scheduler.setUserOptions("Q", {"Darkness=4"});
    OpenDialog open;
    open.slide("darknessSlider", 6);
    open.click("applyButton");
    chooseByName(open, "preset0", "<Default Settings>");
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 10);
    chooseByName(open, "preset0", "<Current Settings>");
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 4);
    QCOMPARE(workingCopy(open.cups).value("Darkness"), QByteArray("4"));
}

void PropertiesDialogPresetsTest::onlyListedOptionsAreReplaced()
{
    writeScript("a", "");
    writeScript("b", " -oBack=2 -oStart=1.000");
    scheduler.setUserOptions("Q", {"Back=5"});
    OpenDialog open;
    chooseByName(open, "preset1", "b");
    const Options options = workingCopy(open.cups);
    QCOMPARE(options.value("Back"), QByteArray("5"));
    QCOMPARE(options.value("Start"), QByteArray("1.000"));
}

void PropertiesDialogPresetsTest::setCupsOptions()
{
    scheduler.setUserOptions("Q", {"Darkness=4", "PrintSpeed=1", "Back=5"});
    OpenDialog open;
    Preset preset("Q", QString(), {"Darkness", "10", "Feed", "24", "Back", "7"}, "x", QString(), -1);
    open.dialog.setCupsOptions(&preset);
    const Options options = workingCopy(open.cups);
    QCOMPARE(options.value("Darkness"), QByteArray("10")); // kept although it is the default
    QCOMPARE(options.value("Feed"), QByteArray("24"));
    QVERIFY(!options.contains("PrintSpeed"));
    QCOMPARE(options.value("Back"), QByteArray("5"));
    // Nothing is shown or marked.
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 4);
    QVERIFY(!open.isEnabled("applyButton"));
}

void PropertiesDialogPresetsTest::chosenIsRememberedWhenSaved()
{
    writeScript("a", "");
    writeScript("b", " -oDarkness=4");
    const QString link = cupsFolder() + "/Q/currentPreset";
    {
        OpenDialog open;
        chooseByName(open, "preset0", "b");
        QVERIFY(!QFileInfo(link).isSymLink());
        open.click("applyButton");
        QCOMPARE(QFile::symLinkTarget(link), scriptPath("Q", "b"));
    }
    OpenDialog open;
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("b"));
}

// The options in memory are applied nevertheless.
void PropertiesDialogPresetsTest::missingScript()
{
    writeScript("a", "");
    writeScript("b", " -oDarkness=4", {}, "ppdhack 2.00 1.00 Q\n");
    const DriverCommand driver("");
    OpenDialog open; // which has read it, for its name
    QVERIFY(QFile::remove(scriptPath("Q", "b")));
    chooseByName(open, "preset0", "b");
    QCOMPARE(driver.runs(), QByteArray());
    QCOMPARE(workingCopy(open.cups).value("Darkness"), QByteArray("4"));
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 4);
    QVERIFY(open.isEnabled("applyButton"));
}

// A folder cannot be read as a file, not even by the superuser.
void PropertiesDialogPresetsTest::unreadableScript()
{
    writeScript("a", "");
    writeScript("b", " -oDarkness=4", {}, "ppdhack 2.00 1.00 Q\n");
    const DriverCommand driver("");
    OpenDialog open;
    QVERIFY(QFile::remove(scriptPath("Q", "b")));
    QVERIFY(QDir().mkpath(scriptPath("Q", "b")));
    chooseByName(open, "preset0", "b");
    QCOMPARE(driver.runs(), QByteArray());
    QCOMPARE(workingCopy(open.cups).value("Darkness"), QByteArray("4"));
}

// ----- the driver's command -----

// The command changes the queue's PPD file, which has been open since the dialog was shown.
void PropertiesDialogPresetsTest::pageSizeOfThePreset()
{
    const DriverCommand driver;
    scheduler.addQueue("Sized");
    scheduler.setServerDefault("Sized");
    writeScript("a", "", {}, {}, "Sized");
    writeScript("b", " -oDarkness=4", {}, "ppdhack 2.50 1.25 Sized\n", "Sized");
    OpenDialog open;
    QCOMPARE(open.text("widthEdit"), QString("4.00"));
    QCOMPARE(open.text("heightEdit"), QString("2.00"));
    QVERIFY(!open.widget<QGroupBox>("stockGroupBox")->isChecked());
    chooseByName(open, "preset0", "b");
    QCOMPARE(driver.runs(), QByteArray("2.50 1.25 Sized\n"));
    QCOMPARE(open.text("widthEdit"), QString("2.50"));
    QCOMPARE(open.text("heightEdit"), QString("1.25"));
    QVERIFY(open.widget<QGroupBox>("stockGroupBox")->isChecked());
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 4);
}

void PropertiesDialogPresetsTest::commandHasFinished()
{
    const DriverCommand driver("sleep 0.5\nexec \"$STAND_IN\" \"$@\"\n");
    scheduler.addQueue("Sized");
    scheduler.setServerDefault("Sized");
    writeScript("a", "", {}, {}, "Sized");
    writeScript("b", "", {}, "ppdhack 2.25 1.50 Sized\n", "Sized");
    OpenDialog open;
    chooseByName(open, "preset1", "b");
    QCOMPARE(open.text("widthEdit"), QString("2.25"));
    QCOMPARE(open.text("heightEdit"), QString("1.50"));
}

void PropertiesDialogPresetsTest::commandLine_data()
{
    QTest::addColumn<QByteArray>("end"); // of the script
    QTest::addColumn<QByteArray>("run"); // the command's arguments; null when it is not run
    const QByteArray none;
    const auto row = [](const char *name, const QByteArray &end, const QByteArray &run) {
        QTest::newRow(name) << end << run;
    };
    row("usual", "ppdhack 2.00 1.00 Q\n", "2.00 1.00 Q\n");
    row("without a line end", "ppdhack 2.00 1.00 Q", "2.00 1.00 Q\n");
    row("no arguments", "ppdhack\n", "\n");
    row("other arguments", "ppdhack a  b\tc\n", "a b c\n");
    row("sizes that are none", "ppdhack 0 -5 Q\n", "0 -5 Q\n");
    row("first of two", "ppdhack 1 2 Q\nppdhack 3 4 Q\n", "1 2 Q\n");
    row("further down", "# comment\n\nppdhack 1 2 Q\n", "1 2 Q\n");
    row("none", "", none);
    row("not at the line's start", " ppdhack 1 2 Q\n", none);
    row("in a comment", "#ppdhack 1 2 Q\n", none);
    row("upper case", "PPDHACK 1 2 Q\n", none);
    // Nothing but the command is run, and no shell.
    row("longer word", "ppdhackX 1 2 Q\n", none);
    row("longer word before", "ppdhackX 1 2 Q\nppdhack 1 2 Q\n", none); // the first line decides
    row("path", "/tmp/ppdhack 1 2 Q\n", none);
    row("path behind", "ppdhack/../evil 1 2 Q\n", none);
    row("second command", "ppdhack;touch EVIL\n", none);
    row("in the background", "ppdhack& touch EVIL\n", none);
    row("argument that is a command", "ppdhack 1 2 Q; touch EVIL\n", "1 2 Q; touch EVIL\n");
    row("substitution", "ppdhack $(touch EVIL) `touch EVIL` $HOME\n", "$(touch EVIL) `touch EVIL` $HOME\n");
    row("redirection", "ppdhack 1 2 Q > EVIL\n", "1 2 Q > EVIL\n");
    row("pipe", "ppdhack 1 2 Q | touch EVIL\n", "1 2 Q | touch EVIL\n");
    row("quotes", "ppdhack \"1 2\" Q\n", "1 2 Q\n");
}

void PropertiesDialogPresetsTest::commandLine()
{
    QFETCH(QByteArray, end);
    QFETCH(QByteArray, run);
    const QTemporaryDir evil;
    const QByteArray target = QFile::encodeName(evil.filePath("evil"));
    end.replace("EVIL", target);
    run.replace("EVIL", target);
    const DriverCommand driver("");
    writeScript("a", "");
    writeScript("b", " -oDarkness=4", {}, end);
    OpenDialog open;
    QCOMPARE(driver.runs(), QByteArray()); // reading and listing run nothing
    chooseByName(open, "preset0", "b");
    QCOMPARE(driver.runs(), run);
    QVERIFY(!QFile::exists(evil.filePath("evil")));
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 4);
}

// A line is read in parts of no more than 1024 bytes.
void PropertiesDialogPresetsTest::longLine()
{
    const DriverCommand driver("");
    writeScript("a", "");
    writeScript("b", "", {}, "ppdhack " + QByteArray(5000, '1') + '\n');
    OpenDialog open;
    chooseByName(open, "preset0", "b");
    const QByteArray argument = driver.runs().trimmed();
    QCOMPARE(argument, QByteArray(argument.size(), '1'));
    QVERIFY(argument.size() > 1000);
    QVERIFY(argument.size() <= 1024 - int(std::strlen("ppdhack ")));
}

void PropertiesDialogPresetsTest::commandOfTheCurrentFolder()
{
    const QTemporaryDir folder;
    const QString command = folder.filePath("ppdhack");
    writeFile(command, "#!/bin/bash\ntouch \"${0%/*}/evil\"\n");
    QVERIFY(QFile::setPermissions(command, QFile::ReadOwner | QFile::ExeOwner));
    writeScript("a", "");
    writeScript("b", " -oDarkness=4", {}, "ppdhack 1 2 Q\n");
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    OpenDialog open;
    chooseByName(open, "preset0", "b");
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(!QFile::exists(folder.filePath("evil")));
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 4);
}

void PropertiesDialogPresetsTest::commandIsMissing()
{
    writeScript("a", "");
    writeScript("b", " -oDarkness=4", {}, "ppdhack 1.00 2.00 Q\n");
    OpenDialog open;
    chooseByName(open, "preset0", "b");
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 4);
    QVERIFY(open.widget<QGroupBox>("stockGroupBox")->isChecked());
    QCOMPARE(open.text("widthEdit"), QString("4.00"));
    QVERIFY(open.isEnabled("applyButton"));
}

// ----- the buttons and fields -----

void PropertiesDialogPresetsTest::manage()
{
    OpenDialog open;
    auto *tabs = open.widget<QTabWidget>("tabs");
    QCOMPARE(tabs->currentIndex(), 0);
    open.click("manageButton");
    QCOMPARE(tabs->currentIndex(), 1);
    QCOMPARE(tabs->tabText(1), QString("Presets"));
    QVERIFY(!open.isEnabled("applyButton"));
}

void PropertiesDialogPresetsTest::newPreset()
{
    scheduler.setUserOptions("Q", {"Darkness=4"});
    OpenDialog open;
    open.click("presetNewButton");
    QCOMPARE(items(open, "preset0"), builtIn({"New Preset"}));
    QCOMPARE(items(open, "preset1"), builtIn({"New Preset"}));
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("New Preset"));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("New Preset"));
    QCOMPARE(open.text("nameEdit"), QString("New Preset"));
    QCOMPARE(open.plainText("descriptionEdit"), QString());
    for (const char *name : {"nameEdit", "descriptionEdit", "presetUpdateButton", "presetDeleteButton", "applyButton"})
        QVERIFY2(open.isEnabled(name), name);
    QCOMPARE(workingCopy(open.cups).value("Darkness"), QByteArray("4"));
    // It is written when the dialog saves.
    QVERIFY(!QFile::exists(scriptPath("Q", "Preset")));
    open.click("applyButton");
    const QByteArray script = fileContent(scriptPath("Q", "Preset"));
    QVERIFY2(script.startsWith("#!/bin/bash\n#name=New Preset\nlpoptions -pQ -oDarkness=4 "), script.constData());
    open.click("presetNewButton");
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("New Preset 2"));
}

// The settings of an unchanged queue are settings too.
void PropertiesDialogPresetsTest::newPresetOfAFreshQueue()
{
    {
        OpenDialog open;
        QVERIFY(!workingCopy(open.cups).contains("Darkness"));
        open.click("presetNewButton");
        open.click("applyButton");
        QVERIFY(QFile::exists(scriptPath("Q", "Preset")));
    }
    OpenDialog open;
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("New Preset"));
}

void PropertiesDialogPresetsTest::newPresetNames_data()
{
    QTest::addColumn<QList<QStringList>>("present"); // file name, name
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name");
    using Present = QList<QStringList>;
    QTest::newRow("none") << Present{} << "Preset"
                          << "New Preset";
    QTest::newRow("first") << Present{{"Preset", "New Preset"}} << "Preset2"
                           << "New Preset 2";
    QTest::newRow("two") << Present{{"Preset", "New Preset"}, {"Preset2", "New Preset 2"}} << "Preset3"
                         << "New Preset 3";
    QTest::newRow("gap") << Present{{"Preset", "New Preset"}, {"Preset3", "New Preset 3"}} << "Preset2"
                         << "New Preset 2";
    QTest::newRow("file name taken") << Present{{"Preset", "Mine"}} << "Preset2"
                                     << "New Preset 2";
    QTest::newRow("name taken") << Present{{"mine", "New Preset"}} << "Preset2"
                                << "New Preset 2";
    QTest::newRow("file name of another is a name") << Present{{"mine", "Preset"}} << "Preset2"
                                                    << "New Preset 2";
    QTest::newRow("either taken") << Present{{"Preset", "x"}, {"y", "New Preset 2"}} << "Preset3"
                                  << "New Preset 3";
}

void PropertiesDialogPresetsTest::newPresetNames()
{
    QFETCH(QList<QStringList>, present);
    QFETCH(QString, file);
    QFETCH(QString, name);
    scheduler.setUserOptions("Q", {"Darkness=4"});
    for (const QStringList &preset : std::as_const(present))
        writeScript(preset.at(0), "", "#name=" + preset.at(1).toLatin1() + '\n');
    OpenDialog open;
    open.click("presetNewButton");
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), name);
    open.click("applyButton");
    QVERIFY(fileContent(scriptPath("Q", file)).contains("#name=" + name.toLatin1() + '\n'));
}

// A new preset has the settings that are stored, and choosing it shows them.
void PropertiesDialogPresetsTest::newPresetDropsUnsavedEdits()
{
    scheduler.setUserOptions("Q", {"Darkness=4"});
    OpenDialog open;
    open.slide("darknessSlider", 9);
    open.setText("feed", "0.50");
    open.click("presetNewButton");
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 4);
    QCOMPARE(open.text("feed"), QString("0.00"));
}

// The PPD file declares a command, which is not what the user wants.
void PropertiesDialogPresetsTest::newPresetKeepsAnEmptiedCommand()
{
    scheduler.addQueue("Declared", PrivateScheduler::samplePpd("every-option"));
    scheduler.setServerDefault("Declared");
    OpenDialog open;
    QCOMPARE(open.plainText("commandEdit"), QString("None"));
    open.setPlainText("commandEdit", QString());
    open.click("applyButton");
    open.click("presetNewButton");
    QCOMPARE(open.plainText("commandEdit"), QString());
    open.choose("preset1", 1);
    QCOMPARE(open.plainText("commandEdit"), QString("None"));
    open.choose("preset1", 2);
    QCOMPARE(open.plainText("commandEdit"), QString());
    open.click("applyButton");
    const OpenDialog again;
    QCOMPARE(again.plainText("commandEdit"), QString());
}

void PropertiesDialogPresetsTest::updateButton()
{
    writeScript("a", " -oDarkness=9 -oFeed=24", "#name=Mine\n#description=text\n");
    scheduler.setUserOptions("Q", {"Darkness=4", "PrintSpeed=1"});
    OpenDialog open;
    open.click("presetUpdateButton");
    QVERIFY(open.isEnabled("applyButton"));
    QVERIFY(fileContent(scriptPath("Q", "a")).contains("-oDarkness=9"));
    open.click("applyButton");
    const QByteArray script = fileContent(scriptPath("Q", "a"));
    QVERIFY2(script.startsWith("#!/bin/bash\n#name=Mine\n#description=text\nlpoptions -pQ -oDarkness=4 "),
             script.constData());
    QVERIFY2(script.contains(" -rFeed "), script.constData()); // what it had and the settings have not
    QVERIFY2(script.contains(" -oPrintSpeed=1 "), script.constData());
}

void PropertiesDialogPresetsTest::updateButtonWithOneDifference_data()
{
    QTest::addColumn<QByteArray>("presetOptions");
    QTest::addColumn<QStringList>("settings");
    QTest::newRow("cleared only") << QByteArray(" -oDarkness=4") << QStringList{};
    QTest::newRow("set only") << QByteArray("") << QStringList{"Darkness=4"};
}

void PropertiesDialogPresetsTest::updateButtonWithOneDifference()
{
    QFETCH(QByteArray, presetOptions);
    QFETCH(QStringList, settings);
    writeScript("a", presetOptions);
    if (!settings.isEmpty())
        scheduler.setUserOptions("Q", settings);
    OpenDialog open;
    QVERIFY(!open.isEnabled("applyButton"));
    open.click("presetUpdateButton");
    QVERIFY(open.isEnabled("applyButton"));
}

void PropertiesDialogPresetsTest::updateButtonWithoutADifference()
{
    writeScript("a", "");
    OpenDialog open;
    QVERIFY(!workingCopy(open.cups).contains("Darkness"));
    open.click("presetUpdateButton"); // there is nothing to clear and nothing to set
    QVERIFY(!open.isEnabled("applyButton"));
    // Equal values count as a change, because the earlier ones are cleared first.
    writeScript("a", " -oDarkness=4");
    scheduler.setUserOptions("Q", {"Darkness=4"});
    OpenDialog other;
    other.click("presetUpdateButton");
    QVERIFY(other.isEnabled("applyButton"));
}

void PropertiesDialogPresetsTest::deleteButton()
{
    writeScript("a", " -oDarkness=4");
    writeScript("b", " -oDarkness=5");
    OpenDialog open;
    // Not the current one, but the one that the tab's list shows.
    open.widget<QComboBox>("preset1")->blockSignals(true);
    chooseByName(open, "preset1", "b");
    open.widget<QComboBox>("preset1")->blockSignals(false);
    open.click("presetDeleteButton");
    QCOMPARE(items(open, "preset0"), builtIn({"a"}));
    QCOMPARE(items(open, "preset1"), builtIn({"a"}));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("a"));
    QVERIFY(open.isEnabled("applyButton"));
    QVERIFY(QFile::exists(scriptPath("Q", "b")));
    open.click("applyButton");
    QVERIFY(!QFile::exists(scriptPath("Q", "b")));
    QVERIFY(QFile::exists(scriptPath("Q", "a")));
}

void PropertiesDialogPresetsTest::deleteCurrent()
{
    writeScript("a", " -oDarkness=4");
    writeScript("b", " -oDarkness=5");
    scheduler.setUserOptions("Q", {"Darkness=7"});
    OpenDialog open;
    open.click("presetDeleteButton");
    // The next one is current, but not applied.
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("b"));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("b"));
    QCOMPARE(open.text("nameEdit"), QString("b"));
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 7);
    open.click("applyButton");
    QVERIFY(!QFile::exists(scriptPath("Q", "a")));
    QCOMPARE(QFile::symLinkTarget(cupsFolder() + "/Q/currentPreset"), scriptPath("Q", "b"));
}

// What then is current is built in.
void PropertiesDialogPresetsTest::deleteLast()
{
    writeScript("a", "");
    OpenDialog open;
    open.click("presetDeleteButton");
    QCOMPARE(items(open, "preset1"), builtIn({}));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("<Current Settings>"));
    for (const char *name : {"nameEdit", "descriptionEdit", "presetUpdateButton", "presetDeleteButton"})
        QVERIFY2(!open.isEnabled(name), name);
    open.click("applyButton");
    QVERIFY(!QFile::exists(scriptPath("Q", "a")));
    OpenDialog again;
    QCOMPARE(items(again, "preset1"), builtIn({}));
}

// The button is disabled then; a host may still press it.
void PropertiesDialogPresetsTest::deleteBuiltIn()
{
    OpenDialog open;
    BoxAnswer answer;
    QVERIFY(!open.isEnabled("presetDeleteButton"));
    open.widget("presetDeleteButton")->setEnabled(true);
    open.click("presetDeleteButton");
    QCOMPARE(answer.title, QString("Warning"));
    QCOMPARE(answer.text, QString("<Current Settings> cannot be deleted."));
    QCOMPARE(items(open, "preset1"), builtIn({}));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentIndex(), 0);
    QVERIFY(open.isEnabled("applyButton"));
}

void PropertiesDialogPresetsTest::renamePreset()
{
    writeScript("a", " -oDarkness=4");
    writeScript("b", "");
    OpenDialog open;
    rename(open, "Zulu");
    QCOMPARE(items(open, "preset0"), builtIn({"Zulu", "b"}));
    QCOMPARE(items(open, "preset1"), builtIn({"Zulu", "b"}));
    QCOMPARE(open.widget<QComboBox>("preset0")->currentText(), QString("Zulu"));
    QCOMPARE(open.widget<QComboBox>("preset1")->currentText(), QString("Zulu"));
    QVERIFY(open.isEnabled("applyButton"));
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 10); // still not applied
    open.click("applyButton");
    // The file stays the same.
    QVERIFY(fileContent(scriptPath("Q", "a")).startsWith("#!/bin/bash\n#name=Zulu\nlpoptions -pQ -oDarkness=4 "));
}

void PropertiesDialogPresetsTest::renameToTheSame()
{
    writeScript("a", "");
    OpenDialog open;
    rename(open, "a");
    QVERIFY(!open.isEnabled("applyButton"));
}

void PropertiesDialogPresetsTest::renameToNothing()
{
    writeScript("a", "", "#name=Zulu\n");
    OpenDialog open;
    rename(open, QString());
    QCOMPARE(items(open, "preset1"), builtIn({"a"}));
    QCOMPARE(open.text("nameEdit"), QString("a"));
    QVERIFY(open.isEnabled("applyButton"));
}

void PropertiesDialogPresetsTest::renameToAnother()
{
    writeScript("a", "");
    writeScript("b", "");
    OpenDialog open;
    chooseByName(open, "preset1", "b");
    rename(open, "a");
    QCOMPARE(items(open, "preset1"), builtIn({"a", "a"}));
    open.click("applyButton");
    QVERIFY(fileContent(scriptPath("Q", "b")).contains("#name=a\n"));
}

void PropertiesDialogPresetsTest::renameWithTheKeyboard()
{
    writeScript("a", "");
    OpenDialog open;
    open.click("manageButton");
    QVERIFY(QTest::qWaitForWindowActive(&open.dialog));
    auto *edit = open.widget<QLineEdit>("nameEdit");
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, "Zulu");
    QCOMPARE(items(open, "preset1"), builtIn({"a"})); // not while typing
    QTest::keyClick(edit, Qt::Key_Tab);
    QCOMPARE(items(open, "preset1"), builtIn({"Zulu"}));
    QVERIFY(open.isEnabled("applyButton"));
}

void PropertiesDialogPresetsTest::describe()
{
    writeScript("a", "", "#description=before\n");
    writeScript("b", "");
    OpenDialog open;
    open.setPlainText("descriptionEdit", "one\ntwo");
    QVERIFY(open.isEnabled("applyButton"));
    chooseByName(open, "preset0", "b");
    QCOMPARE(open.plainText("descriptionEdit"), QString());
    chooseByName(open, "preset0", "a");
    QCOMPARE(open.plainText("descriptionEdit"), QString("one\ntwo"));
    open.click("applyButton");
    QVERIFY(fileContent(scriptPath("Q", "a")).startsWith("#!/bin/bash\n#description=one\ntwo\nlpoptions "));
    QVERIFY(!fileContent(scriptPath("Q", "b")).contains("#description"));
}

void PropertiesDialogPresetsTest::describeTheSame()
{
    writeScript("a", "", "#description=before\n");
    OpenDialog open;
    open.widget<QPlainTextEdit>("descriptionEdit")->setPlainText("before");
    QVERIFY(!open.isEnabled("applyButton"));
}

// Without a selected preset the handlers do nothing.
void PropertiesDialogPresetsTest::nothingSelected()
{
    writeScript("a", " -oDarkness=4", "#description=before\n");
    for (const bool isEmpty : {true, false}) {
        OpenDialog open;
        auto *list = open.widget<QComboBox>("preset1");
        list->blockSignals(true);
        if (isEmpty)
            list->setCurrentIndex(-1);
        else
            list->setItemText(2, "nobody");
        list->blockSignals(false);
        open.setPlainText("descriptionEdit", "after");
        rename(open, "Zulu");
        open.click("presetUpdateButton");
        open.click("presetDeleteButton");
        QVERIFY(!open.isEnabled("applyButton"));
        QVERIFY(open.dialog.updatePresets() != isEmpty); // the lists are as they were
        QCOMPARE(items(open, "preset1"), builtIn({"a"}));
        QCOMPARE(open.plainText("descriptionEdit"), QString("before"));
    }
}

// ----- two dialogs, and presets that look alike -----

void PropertiesDialogPresetsTest::twoOfOneName()
{
    writeScript("a", " -oDarkness=4", "#name=Same\n#description=first\n");
    writeScript("b", " -oDarkness=5", "#name=Same\n#description=second\n");
    for (const char *list : {"preset0", "preset1"}) {
        OpenDialog open;
        QCOMPARE(open.plainText("descriptionEdit"), QString("first"));
        open.choose(list, 3);
        QCOMPARE(open.shown("darknessSlider"), QString("5"));
        QCOMPARE(open.shown("preset0"), QString("3"));
        QCOMPARE(open.shown("preset1"), QString("3"));
        QCOMPARE(open.plainText("descriptionEdit"), QString("second"));
        open.choose(list, 2);
        QCOMPARE(open.shown("darknessSlider"), QString("4"));
        QCOMPARE(open.plainText("descriptionEdit"), QString("first"));
    }
}

void PropertiesDialogPresetsTest::renameOneOfTwo()
{
    writeScript("a", "", "#name=Same\n");
    writeScript("b", "", "#name=Same\n");
    OpenDialog open;
    open.choose("preset1", 3);
    rename(open, "Other");
    open.setPlainText("descriptionEdit", "text");
    QCOMPARE(items(open, "preset1"), builtIn({"Same", "Other"}));
    open.click("applyButton");
    QCOMPARE(fileContent(scriptPath("Q", "a")), QByteArray("#!/bin/bash\n#name=Same\nlpoptions -pQ\n"));
    QVERIFY(fileContent(scriptPath("Q", "b")).startsWith("#!/bin/bash\n#name=Other\n#description=text\n"));
}

void PropertiesDialogPresetsTest::deleteOneOfTwo()
{
    writeScript("a", "", "#name=Same\n");
    writeScript("b", "", "#name=Same\n");
    OpenDialog open;
    open.choose("preset1", 3);
    open.click("presetDeleteButton");
    open.click("applyButton");
    QVERIFY(QFile::exists(scriptPath("Q", "a")));
    QVERIFY(!QFile::exists(scriptPath("Q", "b")));
}

// The tab's list has no room for the last presets and shows the first one instead, which must not take their
// descriptions: it could not be saved, nor could the presets after it.
void PropertiesDialogPresetsTest::descriptionBeyondTheList()
{
    for (int i = 0; i < 110; ++i)
        writeScript(QStringLiteral("p%1").arg(i, 3, 10, QLatin1Char('0')), "", "#description=mine\n");
    OpenDialog open;
    const QString description = "This preset contains this driver's current settings.";
    chooseByName(open, "preset0", "p105");
    QCOMPARE(open.plainText("descriptionEdit"), QString("mine"));
    chooseByName(open, "preset0", "<Current Settings>");
    QCOMPARE(open.plainText("descriptionEdit"), description);
    open.click("applyButton");
    QVERIFY(open.dialog.lastSaveSucceeded());
}

void PropertiesDialogPresetsTest::newDeleteNew()
{
    OpenDialog open;
    open.click("presetNewButton");
    open.click("presetDeleteButton");
    QCOMPARE(items(open, "preset1"), builtIn({}));
    open.click("presetNewButton");
    rename(open, "Kept");
    open.click("applyButton");
    QVERIFY(open.dialog.lastSaveSucceeded());
    OpenDialog again;
    QCOMPARE(items(again, "preset1"), builtIn({"Kept"}));
}

void PropertiesDialogPresetsTest::scriptRemovedByAnother()
{
    writeScript("a", "");
    writeScript("b", "");
    OpenDialog open;
    open.click("presetDeleteButton");
    QVERIFY(QFile::remove(scriptPath("Q", "a")));
    chooseByName(open, "preset1", "b");
    rename(open, "Kept");
    open.click("applyButton");
    QVERIFY(open.dialog.lastSaveSucceeded());
    QVERIFY(fileContent(scriptPath("Q", "b")).contains("#name=Kept\n"));
}

void PropertiesDialogPresetsTest::newInTwoDialogs()
{
    OpenDialog first;
    OpenDialog second;
    for (OpenDialog *open : {&first, &second})
        open->click("presetNewButton");
    rename(first, "Mine");
    rename(second, "Yours");
    for (OpenDialog *open : {&first, &second})
        open->click("applyButton");
    OpenDialog again;
    QCOMPARE(items(again, "preset1"), builtIn({"Mine", "Yours"}));
    again.click("presetNewButton");
    again.click("applyButton");
    QVERIFY(QFile::exists(scriptPath("Q", "Preset3")));

    // One dialog has seen it on the disk before the other has written it.
    OpenDialog third;
    again.click("presetNewButton");
    again.click("applyButton");
    third.click("presetNewButton");
    third.click("applyButton");
    QVERIFY(QFile::exists(scriptPath("Q", "Preset5")));
}

// Its command has nothing to do with the new preset.
void PropertiesDialogPresetsTest::scriptInThePlaceOfANewOne()
{
    const DriverCommand command("exit 0\n");
    OpenDialog open;
    open.click("presetNewButton");
    writeScript("Preset", "", {}, "ppdhack 1.00 2.00 Q\n");
    open.choose("preset1", 0);
    open.choose("preset1", 2);
    QCOMPARE(command.runs(), QByteArray());
}

// ----- what a script cannot hold -----

void PropertiesDialogPresetsTest::valueNotHeld_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("isHeld");
    QTest::newRow("one word") << "^FX" << true;
    QTest::newRow("two words") << "^FX label" << false;
    QTest::newRow("two lines") << "^FX\n^FS" << true;
    QTest::newRow("beyond ASCII") << QString::fromUtf8("Gr\u00f6\u00dfe") << false;
    QTest::newRow("none") << "" << true;
}

void PropertiesDialogPresetsTest::valueNotHeld()
{
    QFETCH(QString, command);
    QFETCH(bool, isHeld);
    {
        OpenDialog open;
        open.setPlainText("commandEdit", command);
        open.click("applyButton");
    }
    OpenDialog open;
    const auto *name = open.edit("nameEdit");
    QVERIFY(name->actions().value(0));
    QVERIFY(!name->actions().value(0)->isVisible()); // of a built-in preset
    open.click("presetNewButton");
    QCOMPARE(name->actions().value(0)->isVisible(), !isHeld);
    QCOMPARE(name->actions().value(0)->toolTip().contains("Start of Job"), !isHeld);
    QCOMPARE(open.widget("preset1")->toolTip().contains("Start of Job"), !isHeld);
    open.choose("preset1", 0);
    QVERIFY(!name->actions().value(0)->isVisible());
    QCOMPARE(open.widget("preset1")->toolTip(), QString());
}

// After it was written and read by a later opening, the printer's value still differs.
void PropertiesDialogPresetsTest::valueNotHeldAfterSaving()
{
    {
        OpenDialog open;
        open.setPlainText("commandEdit", "^FX label");
        open.click("applyButton");
        open.click("presetNewButton");
        open.click("applyButton");
    }
    OpenDialog open;
    QVERIFY(open.edit("nameEdit")->actions().value(0)->isVisible());
}

// ----- which options presets carry -----

void PropertiesDialogPresetsTest::usualList()
{
    scheduler.setUserOptions("Q", {"Darkness=4"});
    OpenDialog open;
    open.dialog.saveValues(); // from then on there is a value for every keyword, saved or in the PPD file
    open.click("presetNewButton");
    open.click("applyButton");
    QCOMPARE(keywordsOf(fileContent(scriptPath("Q", "Preset"))), usualKeywords);
}

void PropertiesDialogPresetsTest::extendedList()
{
    scheduler.setServerDefault("ORCA-7");
    scheduler.setUserOptions("ORCA-7", {"GapOffset=1.000", "Shift=1.000", "Start=1.000"});
    const TestMain::ChildResult child = TestMain::runChild("work-with-extended-list");
    QCOMPARE(child.exitCode, 0);
    QCOMPARE(keywordsOf(child.output), extendedKeywords);
    // Their presets do not contain "Start", so it stays. The stop field of these printers is the shift.
    QVERIFY2(child.output.endsWith("left: GapOffset= Shift= Start=1.000 Darkness=\n"), child.output.constData());
    // In this process the list is still the usual one.
    QCOMPARE(Preset("Q", QString(), {}, QString(), QString(), -1).getOptionNames(), usualKeywords);
}

PROPERTIESDIALOG_TEST_MAIN(PropertiesDialogPresetsTest)

#include "PropertiesDialogPresetsTest.moc"
