// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "PresetFiles.h"
#include "TestMain.h"

#include <PropertiesDialog/Preset.h>

#include <QtTest>

#include <clocale>
#include <functional>

using PresetFiles::readFile;
using PresetFiles::script;
using PresetFiles::writeFile;

namespace {

constexpr char scriptText[] = "#!/bin/bash\n"
                              "#name=Wide labels\n"
                              "#description=Four inches\n"
                              "lpoptions -pLP1 -oDarkness=12 -oDirect=True -rFeed\n"
                              "ppdhack 4.00 6.00 LP1\n";

bool writeScript(const QByteArray &text = scriptText)
{
    return writeFile(script("LP1", "Wide"), text);
}

// A preset of the user, read on first use.
class UserPreset : public Preset
{
public:
    explicit UserPreset(const QString &file = "Wide", const QStringList &options = {})
        : Preset("LP1", file, options, QString(), QString(), -1)
    {
    }
};

} // namespace

Q_DECLARE_METATYPE(Preset::_State)
Q_DECLARE_METATYPE(std::function<void(Preset &)>)

// If this fails, a preset loses settings, its name or its description when it is saved or loaded.
class PresetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void numbersOfTheLocale();

    void constructed_data();
    void constructed();
    void constructedWithOptions_data();
    void constructedWithOptions();
    void stateNumbers();
    void optionNames();
    void path();

    void plainAccessorsDoNotRead_data();
    void plainAccessorsDoNotRead();
    void lazyAccessorsRead_data();
    void lazyAccessorsRead();
    void failedReadIsTriedAgain();
    void nameFallsBackToFileName();

    void setters_data();
    void setters();
    void setUserPageSizeKeepsState();

    void setOptions_data();
    void setOptions();
    void setOptionsOfDeleted();
    void clearOptions_data();
    void clearOptions();
    void clearOptionsDoesNotRead();
    void clearOptionsOfRead();

    void loadReplacesWhatTheScriptHolds();
    void loadKeepsWhatTheScriptLacks();
    void loadIndex_data();
    void loadIndex();
    void loadFails_data();
    void loadFails();

    void saveDoesNothing_data();
    void saveDoesNothing();
    void saveUnknownState();
    void saveWritesScript();
    void saveKeepsWhatWasRead();
    void saveWritesReadableScript_data();
    void saveWritesReadableScript();
    void saveFails();
    void saveDeleted();
    void saveBuiltIn_data();
    void saveBuiltIn();
    void saveUnreadableBuiltIn();
    void warningIsTranslated();
    void hostilePrinter();

    void texts_data();
    void texts();
    void valuesNotHeld_data();
    void valuesNotHeld();
    void valuesNotHeldOfOther();
};

void PresetTest::init()
{
    QVERIFY(PresetFiles::reset());
}

// The run in another locale would prove nothing if the locale were not active.
void PresetTest::numbersOfTheLocale()
{
    const bool german = qgetenv("LC_ALL").startsWith("de_DE");
    QCOMPARE(QByteArray(std::localeconv()->decimal_point), QByteArray(german ? "," : "."));
}

// ----- construction -----

void PresetTest::constructed_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<Preset::_State>("state");
    QTest::newRow("file") << "Wide" << Preset::NotLoaded;
    QTest::newRow("no file") << "" << Preset::Clean;
}

void PresetTest::constructed()
{
    QFETCH(QString, file);
    Preset preset("LP1", file, {}, "Name", "Description", 3);
    QTEST(preset.state(), "state");
    QCOMPARE(preset.printerName(), QString("LP1"));
    QCOMPARE(preset.fileName(), file);
    QCOMPARE(preset.name(), QString("Name"));
    QCOMPARE(preset.description(), QString("Description"));
    QCOMPARE(preset.index(), 3);
    QCOMPARE(preset.options(), QStringList());
    QCOMPARE(preset.getUserPageSize(), QSizeF(-1, -1));
    QTEST(preset.state(), "state");
}

void PresetTest::constructedWithOptions_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("existing");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<Preset::_State>("state");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("merged");
    const QStringList options{"Darkness", "9", "printer-info", "x"};
    QTest::newRow("no file") << "" << QByteArray() << options << Preset::Modified << "" << QStringList{"Darkness", "9"};
    QTest::newRow("new") << "Wide" << QByteArray() << options << Preset::Modified << "Wide"
                         << QStringList{"Darkness", "9"};
    QTest::newRow("existing") << "Wide" << QByteArray(scriptText) << options << Preset::Modified << "Wide labels"
                              << QStringList{"Darkness", "9", "Direct", "True"};
    QTest::newRow("existing, same") << "Wide" << QByteArray(scriptText) << QStringList{"Darkness", "12"}
                                    << Preset::Clean << "Wide labels"
                                    << QStringList{"Darkness", "12", "Direct", "True"};
    QTest::newRow("new, nothing carried")
        << "Wide" << QByteArray() << QStringList{"PageSize", "x"} << Preset::NotLoaded << "Wide" << QStringList();
}

void PresetTest::constructedWithOptions()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, existing);
    QFETCH(QStringList, options);
    QVERIFY(existing.isNull() || writeScript(existing));
    UserPreset preset(file, options);
    QTEST(preset.state(), "state");
    QTEST(preset.name(), "name");
    QTEST(preset.options(), "merged");
}

void PresetTest::stateNumbers()
{
    QCOMPARE(int(Preset::NotLoaded), 0);
    QCOMPARE(int(Preset::Clean), 1);
    QCOMPARE(int(Preset::Modified), 2);
    QCOMPARE(int(Preset::Deleted), 3);
}

void PresetTest::optionNames()
{
    QCOMPARE(UserPreset().getOptionNames().join(' '),
             QString("Darkness Direct Feed GapSize JobEnd JobStart LabelCategory LabelEnd LabelStart MarkOffset "
                     "MarkSize MirrorPrint NegativePrint OffsetH OffsetV orientation-requested PrintSpeed Stop Start"));
}

void PresetTest::path()
{
    QCOMPARE(UserPreset().pathName(), script("LP1", "Wide"));
    QCOMPARE(Preset::pathName("LP2/draft", "Wide"), script("LP2/draft", "Wide"));
    QCOMPARE(UserPreset("").pathName(), script("LP1", ""));
}

// ----- reading at the first request -----

void PresetTest::plainAccessorsDoNotRead_data()
{
    QTest::addColumn<std::function<void(Preset &)>>("access");
    const auto row = [](const char *name, const std::function<void(Preset &)> &access) {
        QTest::newRow(name) << access;
    };
    row(
        "printerName", [](Preset &p) { p.printerName(); });
    row(
        "fileName", [](Preset &p) { p.fileName(); });
    row(
        "state", [](Preset &p) { p.state(); });
    row(
        "setUserPageSize", [](Preset &p) { p.setUserPageSize(QSizeF(1, 2)); });
    row(
        "pathName", [](Preset &p) { p.pathName(); });
    row(
        "ppdhack", [](Preset &p) { QCOMPARE(p.ppdhack(), QString("ppdhack -1.00 -1.00 LP1\n")); });
    row("getOptionNames", [](Preset &p) { p.getOptionNames(); });
}

void PresetTest::plainAccessorsDoNotRead()
{
    QFETCH(std::function<void(Preset &)>, access);
    QVERIFY(writeScript());
    UserPreset preset;
    access(preset);
    QCOMPARE(preset.state(), Preset::NotLoaded);
}

void PresetTest::lazyAccessorsRead_data()
{
    QTest::addColumn<std::function<void(Preset &)>>("access");
    const auto row = [](const char *name, const std::function<void(Preset &)> &access) {
        QTest::newRow(name) << access;
    };
    row(
        "name", [](Preset &p) { QCOMPARE(p.name(), QString("Wide labels")); });
    row(
        "description", [](Preset &p) { QCOMPARE(p.description(), QString("Four inches")); });
    row(
        "index", [](Preset &p) { QCOMPARE(p.index(), -1); });
    row(
        "options",
        [](Preset &p) {
            QCOMPARE(p.options(), (QStringList{"Darkness", "12", "Direct", "True"}));
        });
    row("getUserPageSize", [](Preset &p) { QCOMPARE(p.getUserPageSize(), QSizeF(4, 6)); });
    // What is set is what the script holds: nothing changes.
    row(
        "setName", [](Preset &p) { p.setName("Wide labels"); });
    row(
        "setDescription", [](Preset &p) { p.setDescription("Four inches"); });
    row(
        "setIndex", [](Preset &p) { p.setIndex(-1); });
    row("setOptions", [](Preset &p) { QVERIFY(!p.setOptions({"Darkness", "12"})); });
}

void PresetTest::lazyAccessorsRead()
{
    QFETCH(std::function<void(Preset &)>, access);
    QVERIFY(writeScript());
    UserPreset preset;
    access(preset);
    QCOMPARE(preset.state(), Preset::Clean);
    // Once: what happens to the script afterwards is not noticed.
    QVERIFY(writeScript("#name=Other\n"));
    access(preset);
    QCOMPARE(preset.name(), QString("Wide labels"));
}

void PresetTest::failedReadIsTriedAgain()
{
    UserPreset preset;
    QCOMPARE(preset.name(), QString("Wide"));
    QCOMPARE(preset.state(), Preset::NotLoaded);
    QVERIFY(writeScript());
    QCOMPARE(preset.name(), QString("Wide labels"));
    QCOMPARE(preset.state(), Preset::Clean);
}

void PresetTest::nameFallsBackToFileName()
{
    QVERIFY(writeScript("#!/bin/bash\nlpoptions -pLP1\n"));
    QCOMPARE(UserPreset().name(), QString("Wide"));
}

// ----- changing -----

void PresetTest::setters_data()
{
    QTest::addColumn<std::function<void(Preset &)>>("set");
    QTest::addColumn<Preset::_State>("state");
    const auto row = [](const char *name, const std::function<void(Preset &)> &set, Preset::_State state) {
        QTest::newRow(name) << set << state;
    };
    row(
        "same name", [](Preset &p) { p.setName("Wide labels"); }, Preset::Clean);
    row(
        "same description", [](Preset &p) { p.setDescription("Four inches"); }, Preset::Clean);
    row(
        "same index", [](Preset &p) { p.setIndex(-1); }, Preset::Clean);
    const auto name = [](Preset &p) {
        p.setName("Other");
        QCOMPARE(p.name(), QString("Other"));
    };
    row("name", name, Preset::Modified);
    const auto noName = [](Preset &p) {
        p.setName("");
        QCOMPARE(p.name(), QString("Wide"));
    };
    row("no name", noName, Preset::Modified);
    const auto description = [](Preset &p) {
        p.setDescription("x\ny");
        QCOMPARE(p.description(), QString("x\ny"));
    };
    row("description", description, Preset::Modified);
    row(
        "no description", [](Preset &p) { p.setDescription(""); }, Preset::Modified);
    row(
        "index",
        [](Preset &p) {
            p.setIndex(0);
            QCOMPARE(p.index(), 0);
        },
        Preset::Modified);
    // The name that is shown is the present one, also where it is the file's.
    const auto fileName = [](Preset &p) {
        p.setName("");
        p.setState(Preset::Clean);
        p.setName("Wide");
    };
    row("file name", fileName, Preset::Clean);
    const auto stillNoName = [](Preset &p) {
        p.setName("");
        p.setState(Preset::Clean);
        p.setName("");
    };
    row("still no name", stillNoName, Preset::Clean);
    // Whatever the state was; a preset marked as deleted is no longer marked.
    const auto deletedName = [](Preset &p) {
        p.setState(Preset::Deleted);
        p.setName("Other");
    };
    row("name of deleted", deletedName, Preset::Modified);
    const auto deletedDescription = [](Preset &p) {
        p.setState(Preset::Deleted);
        p.setDescription("x");
    };
    row("description of deleted", deletedDescription, Preset::Modified);
    const auto deletedIndex = [](Preset &p) {
        p.setState(Preset::Deleted);
        p.setIndex(0);
    };
    row("index of deleted", deletedIndex, Preset::Modified);
}

void PresetTest::setters()
{
    QFETCH(std::function<void(Preset &)>, set);
    QVERIFY(writeScript());
    UserPreset preset;
    set(preset);
    QTEST(preset.state(), "state");
}

void PresetTest::setUserPageSizeKeepsState()
{
    QVERIFY(writeScript());
    UserPreset preset;
    for (const Preset::_State state : {Preset::Clean, Preset::Modified, Preset::Deleted}) {
        preset.setState(state);
        preset.setUserPageSize(QSizeF(1.5, 2));
        QCOMPARE(preset.state(), state);
        QCOMPARE(preset.getUserPageSize(), QSizeF(1.5, 2));
        QCOMPARE(preset.ppdhack(), QString("ppdhack 1.50 2.00 LP1\n"));
    }
}

// ----- options -----

void PresetTest::setOptions_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<bool>("changed");
    QTest::addColumn<QStringList>("options");
    const QStringList before{"Darkness", "12", "Direct", "True"};
    QTest::newRow("empty") << QStringList() << false << before;
    QTest::newRow("not carried") << QStringList{"PageSize", "x", "Shift", "1.000"} << false << before;
    QTest::newRow("same") << QStringList{"Direct", "True"} << false << before;
    QTest::newRow("no value") << QStringList{"Direct"} << false << before;
    QTest::newRow("replaced") << QStringList{"Darkness", "3"} << true << QStringList{"Darkness", "3", "Direct", "True"};
    QTest::newRow("other case") << QStringList{"Direct", "true"} << true
                                << QStringList{"Darkness", "12", "Direct", "true"};
    QTest::newRow("emptied") << QStringList{"Darkness", ""} << true << QStringList{"Darkness", "", "Direct", "True"};
    // Appended in the order of the keyword list, not of what is given.
    QTest::newRow("added") << QStringList{"Stop", "1", "Feed", "2"} << true
                           << QStringList{"Darkness", "12", "Direct", "True", "Feed", "2", "Stop", "1"};
    QTest::newRow("first of two") << QStringList{"Feed", "2", "Feed", "3"} << true
                                  << QStringList{"Darkness", "12", "Direct", "True", "Feed", "2"};
    QTest::newRow("a value like a keyword") << QStringList{"JobStart", "Stop", "Stop", "1"} << true
                                            << before + QStringList{"JobStart", "Stop", "Stop", "1"};
}

void PresetTest::setOptions()
{
    QFETCH(QStringList, list);
    QFETCH(bool, changed);
    QVERIFY(writeScript());
    UserPreset preset;
    QCOMPARE(preset.setOptions(list), changed);
    QCOMPARE(preset.state(), changed ? Preset::Modified : Preset::Clean);
    QTEST(preset.options(), "options");
}

void PresetTest::setOptionsOfDeleted()
{
    UserPreset preset;
    preset.setState(Preset::Deleted);
    QVERIFY(!preset.setOptions({"PageSize", "x"}));
    QCOMPARE(preset.state(), Preset::Deleted);
    QVERIFY(preset.setOptions({"Darkness", "1"}));
    QCOMPARE(preset.state(), Preset::Modified);
}

void PresetTest::clearOptions_data()
{
    QTest::addColumn<Preset::_State>("state");
    QTest::addColumn<bool>("hasOptions");
    QTest::addColumn<bool>("cleared");
    QTest::newRow("clean") << Preset::Clean << true << true;
    QTest::newRow("clean, none") << Preset::Clean << false << false;
    QTest::newRow("modified") << Preset::Modified << true << true;
    QTest::newRow("modified, none") << Preset::Modified << false << false;
    QTest::newRow("deleted") << Preset::Deleted << true << false;
    QTest::newRow("deleted, none") << Preset::Deleted << false << false;
    QTest::newRow("not loaded") << Preset::NotLoaded << true << true;
    QTest::newRow("not loaded, none") << Preset::NotLoaded << false << true;
}

void PresetTest::clearOptions()
{
    QFETCH(Preset::_State, state);
    QFETCH(bool, hasOptions);
    QFETCH(bool, cleared);
    const QStringList options = hasOptions ? QStringList{"Darkness", "12"} : QStringList();
    UserPreset preset("Wide", options);
    preset.setState(state);
    QCOMPARE(preset.clearOptions(), cleared);
    QCOMPARE(preset.state(), cleared ? Preset::Modified : state);
    QCOMPARE(preset.options(), cleared ? QStringList() : options);
}

void PresetTest::clearOptionsDoesNotRead()
{
    QVERIFY(writeScript());
    UserPreset preset;
    QVERIFY(preset.clearOptions());
    QVERIFY(preset.save({}));
    QCOMPARE(readFile(preset.pathName()), QByteArray("#!/bin/bash\nlpoptions -pLP1\n"));
}

// The script has been read, although its options have not been requested.
void PresetTest::clearOptionsOfRead()
{
    QVERIFY(writeScript());
    UserPreset preset;
    preset.name();
    QCOMPARE(preset.state(), Preset::Clean);
    QVERIFY(preset.clearOptions());
    QCOMPARE(preset.state(), Preset::Modified);
    QCOMPARE(preset.options(), QStringList());

    QVERIFY(writeScript("#!/bin/bash\n"));
    UserPreset without;
    without.name();
    QVERIFY(!without.clearOptions());
    QCOMPARE(without.state(), Preset::Clean);
}

// ----- load -----

void PresetTest::loadReplacesWhatTheScriptHolds()
{
    QVERIFY(writeScript());
    Preset preset("LP1", "Wide", {"Stop", "1.000"}, "Other", "Else", 5);
    preset.setUserPageSize(QSizeF(1, 1));
    preset.setName("changed");
    for (const Preset::_State state : {Preset::NotLoaded, Preset::Clean, Preset::Modified, Preset::Deleted}) {
        preset.setState(state);
        QVERIFY(preset.load());
        QCOMPARE(preset.state(), Preset::Clean);
        QCOMPARE(preset.name(), QString("Wide labels"));
        QCOMPARE(preset.description(), QString("Four inches"));
        QCOMPARE(preset.index(), -1);
        QCOMPARE(preset.options(), (QStringList{"Darkness", "12", "Direct", "True"}));
        QCOMPARE(preset.getUserPageSize(), QSizeF(4, 6));
    }
}

void PresetTest::loadKeepsWhatTheScriptLacks()
{
    QVERIFY(writeScript(""));
    Preset preset("LP1", "Wide", {}, "Name", "Description", 5);
    preset.setUserPageSize(QSizeF(1, 1));
    QVERIFY(preset.load());
    QCOMPARE(preset.state(), Preset::Clean);
    QCOMPARE(preset.name(), QString("Name"));
    QCOMPARE(preset.description(), QString("Description"));
    QCOMPARE(preset.getUserPageSize(), QSizeF(1, 1));
    // These two do not depend on the script.
    QCOMPARE(preset.index(), -1);
    QCOMPARE(preset.options(), QStringList());
}

void PresetTest::loadIndex_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("index");
    QTest::newRow("zero") << QByteArray("0") << 0;
    QTest::newRow("positive") << QByteArray("12") << 12;
    QTest::newRow("negative") << QByteArray("-5") << -5;
    QTest::newRow("largest") << QByteArray("2147483647") << 2147483647;
    QTest::newRow("too large") << QByteArray("2147483648") << -1;
    QTest::newRow("empty") << QByteArray("") << -1;
    QTest::newRow("word") << QByteArray("one") << -1;
    QTest::newRow("fraction") << QByteArray("1.5") << -1;
    QTest::newRow("hexadecimal") << QByteArray("0x10") << -1;
    QTest::newRow("leading zero") << QByteArray("010") << 10;
}

void PresetTest::loadIndex()
{
    QFETCH(QByteArray, text);
    QVERIFY(writeScript("#!/bin/bash\n#index=" + text + "\nlpoptions -pLP1\n"));
    Preset preset("LP1", "Wide", {}, QString(), QString(), 7);
    QTEST(preset.index(), "index");
}

void PresetTest::loadFails_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("missing") << false;
    QTest::newRow("folder") << true;
}

void PresetTest::loadFails()
{
    QFETCH(bool, isFolder);
    QVERIFY(!isFolder || QDir().mkpath(script("LP1", "Wide")));
    Preset preset("LP1", "Wide", {"Stop", "1.000"}, "Name", "Description", 5);
    preset.setUserPageSize(QSizeF(1, 1));
    QVERIFY(!preset.load());
    QCOMPARE(preset.state(), Preset::Modified);
    QCOMPARE(preset.name(), QString("Name"));
    QCOMPARE(preset.description(), QString("Description"));
    QCOMPARE(preset.index(), 5);
    QCOMPARE(preset.options(), (QStringList{"Stop", "1.000"}));
    QCOMPARE(preset.getUserPageSize(), QSizeF(1, 1));
}

// ----- save -----

void PresetTest::saveDoesNothing_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("index");
    QTest::addColumn<Preset::_State>("state");
    QTest::newRow("not loaded") << "Wide" << -1 << Preset::NotLoaded;
    QTest::newRow("clean") << "Wide" << -1 << Preset::Clean;
    QTest::newRow("clean built-in") << "Wide" << 0 << Preset::Clean;
    QTest::newRow("no file, modified") << "" << -1 << Preset::Modified;
    QTest::newRow("no file, deleted") << "" << -1 << Preset::Deleted;
    QTest::newRow("no file, built-in") << "" << 0 << Preset::Modified;
}

void PresetTest::saveDoesNothing()
{
    QFETCH(QString, file);
    QFETCH(int, index);
    QFETCH(Preset::_State, state);
    Preset preset("LP1", file, {"Darkness", "1"}, QString(), QString(), index);
    preset.setState(state);
    const PresetFiles::BoxCloser boxes;
    QVERIFY(preset.save({}));
    QCOMPARE(preset.state(), state);
    QVERIFY(!QFile::exists(PresetFiles::folder("LP1")));
    QCOMPARE(boxes.texts(), QStringList());
}

void PresetTest::saveUnknownState()
{
    UserPreset preset("Wide", {"Darkness", "1"});
    preset.setState(static_cast<Preset::_State>(4));
    QVERIFY(!preset.save({}));
    QVERIFY(!QFile::exists(preset.pathName()));
}

void PresetTest::saveWritesScript()
{
    Preset preset("LP1", "Wide", {"Darkness", "12", "Feed", "3", "Start", "0.000"}, "Wide labels", "Four inches", -1);
    preset.setUserPageSize(QSizeF(4, 6.125));
    QVERIFY(preset.save({"Feed", "3", "Darkness", "10", "Stop", "30.000"}));
    QCOMPARE(preset.state(), Preset::Clean);
    QCOMPARE(readFile(script("LP1", "Wide")), QByteArray("#!/bin/bash\n"
                                                         "#name=Wide labels\n"
                                                         "#description=Four inches\n"
                                                         "lpoptions -pLP1 -oDarkness=12 -rFeed -rStop -oStart=0.000\n"
                                                         "ppdhack 4.00 6.13 LP1\n"));
    QVERIFY(QFileInfo(script("LP1", "Wide")).isExecutable());
    QCOMPARE(PresetFiles::entries(PresetFiles::folder("LP1")), QStringList{"Wide.sh"});
}

// Including values that have not been requested.
void PresetTest::saveKeepsWhatWasRead()
{
    QVERIFY(writeScript());
    UserPreset preset;
    preset.setDescription("Other");
    QVERIFY(preset.save({}));
    QCOMPARE(readFile(preset.pathName()), QByteArray("#!/bin/bash\n"
                                                     "#name=Wide labels\n"
                                                     "#description=Other\n"
                                                     "lpoptions -pLP1 -oDarkness=12 -oDirect=True\n"
                                                     "ppdhack 4.00 6.00 LP1\n"));
}

void PresetTest::saveWritesReadableScript_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("nameRead");
    QTest::addColumn<QString>("descriptionRead");
    QTest::addColumn<QStringList>("optionsRead");
    const auto row = [](const char *name, const QString &value, const QStringList &options) {
        QTest::newRow(name) << "Name"
                            << "Text" << value << "Name"
                            << "Text" << options;
    };
    row("usual", "^XA", {"JobStart", "^XA"});
    row("true", "TRUE", {"JobStart", "True"});
    row("false", "false", {"JobStart", "False"});
    row("empty", "", {});
    row("default", "None", {});
    row("stored line break", "^XA\\\\r^XZ\\\\r", {"JobStart", "^XA\\r^XZ\\r"});
    row("backslash", "C:\\dir", {"JobStart", "C:\\\\dir"});
    row("blank", "a b", {"JobStart", "'a"});
    row("beyond ASCII", QString::fromUtf8("aä"), {"JobStart", "a"});
    QTest::newRow("file name") << "Wide"
                               << ""
                               << "1"
                               << "Wide"
                               << "" << QStringList{"JobStart", "1"};
    QTest::newRow("lines") << "Name"
                           << "one\ntwo"
                           << "1"
                           << "Name"
                           << "one" << QStringList{"JobStart", "1"};
    QTest::newRow("percent") << "100 %1"
                             << "%2%L1"
                             << "%1"
                             << "100 %1"
                             << "%2%L1" << QStringList{"JobStart", "%1"};
}

void PresetTest::saveWritesReadableScript()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    QFETCH(QString, value);
    Preset preset("LP1", "Wide", {"JobStart", value}, name, description, -1);
    preset.setUserPageSize(QSizeF(4.25, 1234.5));
    QVERIFY(preset.save({"JobStart", "None"}));

    UserPreset read;
    QTEST(read.name(), "nameRead");
    QTEST(read.description(), "descriptionRead");
    QTEST(read.options(), "optionsRead");
    QCOMPARE(read.index(), -1);
    QCOMPARE(read.getUserPageSize(), QSizeF(4.25, 1234.5));
    QCOMPARE(read.state(), Preset::Clean);
}

void PresetTest::saveFails()
{
    UserPreset preset("Wide", {"Darkness", "1"});
    QVERIFY(QDir().mkpath(preset.pathName()));
    QVERIFY(!preset.save({}));
    QCOMPARE(preset.state(), Preset::Modified);
    QVERIFY(QDir().rmdir(preset.pathName()));
    QVERIFY(preset.save({}));
    QCOMPARE(preset.state(), Preset::Clean);
}

void PresetTest::saveDeleted()
{
    QVERIFY(writeScript());
    UserPreset preset;
    preset.setState(Preset::Deleted);
    QVERIFY(preset.save({}));
    QCOMPARE(preset.state(), Preset::Deleted);
    QVERIFY(!QFile::exists(preset.pathName()));
    QVERIFY(!preset.save({}));
    QCOMPARE(preset.state(), Preset::Deleted);
}

void PresetTest::saveBuiltIn_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<Preset::_State>("state");
    QTest::newRow("first") << 0 << Preset::Modified;
    QTest::newRow("modified") << 4 << Preset::Modified;
    QTest::newRow("deleted") << 4 << Preset::Deleted;
}

void PresetTest::saveBuiltIn()
{
    QFETCH(int, index);
    QFETCH(Preset::_State, state);
    const QByteArray text = scriptText + ("#index=" + QByteArray::number(index) + '\n');
    QVERIFY(writeScript(text));
    UserPreset preset;
    preset.setName("Changed");
    preset.setOptions({"Darkness", "1"});
    preset.setState(state);

    const PresetFiles::BoxCloser boxes;
    QVERIFY(!preset.save({}));
    QCOMPARE(boxes.titles(), QStringList{"Warning"});
    QCOMPARE(boxes.texts(), QStringList{"Changed cannot be modified."});
    QVERIFY(boxes.areWarnings());
    QCOMPARE(readFile(preset.pathName()), text);
    QCOMPARE(preset.state(), Preset::Clean);
    QCOMPARE(preset.name(), QString("Wide labels"));
    QCOMPARE(preset.options(), (QStringList{"Darkness", "12", "Direct", "True"}));
}

void PresetTest::saveUnreadableBuiltIn()
{
    Preset preset("LP1", "Wide", {"Darkness", "1"}, QString(), QString(), 0);
    const PresetFiles::BoxCloser boxes;
    QVERIFY(!preset.save({}));
    QCOMPARE(boxes.texts(), QStringList{"Wide cannot be modified."});
    QCOMPARE(preset.state(), Preset::Modified);
    QCOMPARE(preset.options(), (QStringList{"Darkness", "1"}));
}

void PresetTest::warningIsTranslated()
{
    Preset preset("LP1", "Wide", {"Darkness", "1"}, QString(), QString(), 0);
    const PresetFiles::ContextTranslator translator;
    const PresetFiles::BoxCloser boxes;
    QVERIFY(!preset.save({}));
    QCOMPARE(boxes.titles(), QStringList{"Preset::Warning"});
    QCOMPARE(boxes.texts(), QStringList{"Preset::Wide cannot be modified."});
}

// The name of a queue leads nothing out of the folder of all presets.
void PresetTest::hostilePrinter()
{
    QVERIFY(QDir().mkpath(PresetFiles::root()));
    const QString outside = qEnvironmentVariable("HOME") + "/Wide.sh";
    QVERIFY(writeFile(outside, scriptText));
    Preset preset("..", "Wide", {"Darkness", "1"}, QString(), QString(), -1);
    QCOMPARE(preset.pathName(), QString());
    QVERIFY(!preset.load());
    QVERIFY(!preset.save({}));
    QCOMPARE(preset.state(), Preset::Modified);
    preset.setState(Preset::Deleted);
    QVERIFY(!preset.save({}));
    QCOMPARE(readFile(outside), QByteArray(scriptText));
    QVERIFY(QFile::remove(outside));
}

// ----- what scripts hold -----

void PresetTest::texts_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"Größe", "Étiquettes", "ラベル 連続紙", "Этикетки 58-мм", "🏷 #1",
                             "100 % é #index=0 -oStop=1", "é~", "\xef\xbb\xbfx"})
        QTest::newRow(text) << QString::fromUtf8(text);
}

// Names and descriptions come back in any language, also when something else was changed in between.
void PresetTest::texts()
{
    QFETCH(QString, text);
    const QString plainText = QString(text).remove("#index=0");
    Preset preset("LP1", "Wide", {"Darkness", "1"}, plainText, plainText + "\nand more", -1);
    QVERIFY(preset.save({}));
    {
        UserPreset again;
        QCOMPARE(again.name(), plainText);
        QCOMPARE(again.description(), plainText);
        QCOMPARE(again.index(), -1);
        QVERIFY(again.setOptions({"Feed", "3"}));
        QVERIFY(again.save({}));
    }
    UserPreset last;
    QCOMPARE(last.name(), plainText);
    QCOMPARE(last.description(), plainText);
    last.setName("Plain");
    QVERIFY(last.save({}));
    QCOMPARE(UserPreset().name(), QString("Plain"));
    QVERIFY(!readFile(script("LP1", "Wide")).contains("#name-utf8"));
}

void PresetTest::valuesNotHeld_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("standard");
    QTest::addColumn<bool>("isHeld");
    const auto row = [](const char *name, const char *value, bool isHeld, const char *standard = "None") {
        QTest::newRow(name) << QString::fromUtf8(value) << QString(standard) << isHeld;
    };
    row("command", "^XA^FD1^FS", true);
    row("stored line break", "^XA\\\\r^XZ\\\\r", true);
    row("flag in other case", "TRUE", true);
    row("default", "None", true);
    row("empty without a default", "", true, "");
    row("empty with a default", "", false);
    row("blank", "a b", false);
    row("backslash", "C:\\dir", false);
    row("tabulator", "a\tb", false);
    row("beyond ASCII", "aä", false);
    row("default with a blank", "a b", true, "a b");
}

void PresetTest::valuesNotHeld()
{
    QFETCH(QString, value);
    QFETCH(QString, standard);
    QFETCH(bool, isHeld);
    const QStringList options{"Darkness", "3", "JobStart", value};
    const QStringList defaults{"Darkness", "1", "JobStart", standard, "Feed", "0"};
    const QStringList expected = isHeld ? QStringList() : QStringList("JobStart");
    // As it was created, as it was saved, and as another run reads it.
    Preset preset("LP1", "Wide", options, QString(), QString(), -1);
    QCOMPARE(preset.valuesNotHeld(options, defaults), expected);
    QVERIFY(preset.save(defaults));
    QCOMPARE(preset.valuesNotHeld(options, defaults), expected);
    QCOMPARE(UserPreset().valuesNotHeld(options, defaults), expected);
    // Printers that have what the script holds.
    UserPreset chosen;
    QCOMPARE(chosen.valuesNotHeld(chosen.options() + QStringList{"JobEnd", "^XZ"}, defaults), QStringList());
}

// A preset with other values than the printer's does not lack these.
void PresetTest::valuesNotHeldOfOther()
{
    QVERIFY(writeScript());
    QCOMPARE(UserPreset().valuesNotHeld({"Darkness", "a b", "Stop", "a b"}, {}), QStringList());
    QCOMPARE(UserPreset().valuesNotHeld({}, {}), QStringList());
    Preset noScript("LP1", "", {"JobStart", "a b"}, QString(), QString(), 0);
    QCOMPARE(noScript.valuesNotHeld({"JobStart", "a b"}, {}), QStringList());
}

PROPERTIESDIALOG_TEST_MAIN(PresetTest)
#include "PresetTest.moc"
