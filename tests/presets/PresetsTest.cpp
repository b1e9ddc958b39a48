// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "HomeOfBytes.h"
#include "PresetFiles.h"
#include "TestMain.h"

#include <PropertiesDialog/Preset.h>
#include <PropertiesDialog/Presets.h>

#include <QDateTime>
#include <QtTest>

#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

using PresetFiles::folder;
using PresetFiles::readFile;
using PresetFiles::script;
using PresetFiles::writeFile;

namespace {

bool writeScript(const QString &file, const QByteArray &text = "#!/bin/bash\nlpoptions -pLP1\n")
{
    return writeFile(script("LP1", file), text);
}

bool writeScripts(const QStringList &files)
{
    for (const QString &file : files)
        if (!writeScript(file))
            return false;
    return true;
}

// A preset as programs add them.
Preset *newPreset(const QString &file, const QString &name = {}, int index = -1)
{
    return new Preset("LP1", file, {}, name, QString(), index);
}

QString link()
{
    return folder("LP1") + "/currentPreset";
}

// The link's text as it is; empty when there is none.
QByteArray linkText()
{
    char text[4096];
    const ssize_t length = readlink(QFile::encodeName(link()).constData(), text, sizeof text);
    return length < 0 ? QByteArray() : QByteArray(text, static_cast<int>(length));
}

ino_t inode(const QString &path)
{
    struct stat status = {};
    return lstat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : 0;
}

// Saves a preset and finds it again.
int useFolder(int &, char **)
{
    {
        Presets presets("LP1");
        presets.addPreset(new Preset("LP1", "Wide", {"Darkness", "12"}, "Name", QString(), -1));
        if (!presets.save({}))
            return 1;
    }
    Presets presets("LP1");
    Preset *preset = presets.findPreset("Name");
    return preset && preset == presets.currentPreset() && preset->options() == QStringList({"Darkness", "12"}) ? 0 : 2;
}
const TestMain::ChildFunction useFolderFunction("useFolder", useFolder);

QString nameOf(Preset *preset)
{
    return preset ? preset->fileName() : QString("(none)");
}

} // namespace

// If this fails, presets are missing from the list, in the wrong order, or not saved or deleted.
class PresetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void lists();
    void listsFiles_data();
    void listsFiles();
    void listsWithoutReading();
    void listsUnreadable_data();
    void listsUnreadable();
    void listsMissingFolder();
    void listsNothingForHostilePrinter_data();
    void listsNothingForHostilePrinter();

    void linkNamesCurrent_data();
    void linkNamesCurrent();
    void noLink();
    void loadsAnew();
    void clears();

    void addPreset();
    void findPreset_data();
    void findPreset();
    void findPresetByFileName_data();
    void findPresetByFileName();

    void getPresetNames_data();
    void getPresetNames();
    void getPresetNamesOfScripts();
    void getPresetNamesOfMany();

    void deletePreset();
    void deletePresetTwice();
    void deleteCurrent();
    void deleteOnly();
    void deleteBuiltIn();
    void warningIsTranslated();
    void warningInArabic();

    void saveWritesChanged();
    void saveSkipsUnknownState();
    void saveStopsAtFailure();
    void saveOfNeverSavedDeleted();
    void saveOfModifiedBuiltIn();
    void saveDropsDeleted();
    void saveDropsCurrent();
    void saveDropsOnly();
    void saveLinksCurrent_data();
    void saveLinksCurrent();
    void saveKeepsRightLink();
    void saveReplacesLinkAtOnce();
    void saveLinksCurrentWithoutScript();
    void saveWithoutCurrent();
    void saveWithoutFolder();
    void saveForHostilePrinter();

    void linkLeadsNowhere_data();
    void linkLeadsNowhere();
    void linkedFolder();

    void isFileNameTaken_data();
    void isFileNameTaken();
    void newOnesOfTwo();
    void newOneKeepsName();
    void newOneDeleted();
    void dropMissing();
    void listedPresets();

    void homeOfBytes();
    void fixedNames();
};

void PresetsTest::init()
{
    QVERIFY(PresetFiles::reset());
}

// ----- load -----

void PresetsTest::lists()
{
    QVERIFY(writeScripts({"_current", "b", "a"}));
    QVERIFY(writeFile(folder("LP1") + "/notes.txt", "text"));
    // By name, not by age.
    QFile oldest(script("LP1", "a"));
    QVERIFY(oldest.open(QIODevice::ReadWrite));
    QVERIFY(oldest.setFileTime(QDateTime::fromSecsSinceEpoch(1), QFileDevice::FileModificationTime));
    oldest.close();
    const Presets presets("LP1");
    QCOMPARE(presets.getPresetNames(), (QStringList{"a", "b"}));
    QCOMPARE(nameOf(presets.currentPreset()), QString("a"));
    QCOMPARE(presets.currentPreset()->printerName(), QString("LP1"));
}

void PresetsTest::listsFiles_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("script") << "x.sh" << QStringList{"m", "x"};
    QTest::newRow("sorted by code") << "Z.sh" << QStringList{"Z", "m"};
    QTest::newRow("suffix twice") << "x.sh.sh" << QStringList{"m", "x"};
    QTest::newRow("suffix inside") << "x.sh.y.sh" << QStringList{"m", "x.y"};
    QTest::newRow("suffix inside in upper case") << "x.SH.sh" << QStringList{"m", "x.SH"};
    QTest::newRow("blank and mark") << "x _.sh" << QStringList{"m", "x _"};
    QTest::newRow("hidden preset") << "_x.sh" << QStringList{"m"};
    QTest::newRow("hidden file") << ".x.sh" << QStringList{"m"};
    QTest::newRow("suffix alone") << ".sh" << QStringList{"m"};
    QTest::newRow("other suffix") << "x.shx" << QStringList{"m"};
    QTest::newRow("no point") << "xsh" << QStringList{"m"};
    QTest::newRow("upper case") << "x.SH" << QStringList{"m"};
}

void PresetsTest::listsFiles()
{
    QFETCH(QString, entry);
    QVERIFY(writeScript("m"));
    QVERIFY(writeFile(folder("LP1") + '/' + entry, ""));
    QTEST(Presets("LP1").getPresetNames(), "names");
}

void PresetsTest::listsWithoutReading()
{
    QVERIFY(writeScript("a", "#name=First\n"));
    const Presets presets("LP1");
    QCOMPARE(presets.currentPreset()->state(), Preset::NotLoaded);
    QVERIFY(presets.findPresetByFileName("a"));
    QCOMPARE(presets.currentPreset()->state(), Preset::NotLoaded);
    QCOMPARE(presets.getPresetNames(), QStringList{"First"});
    QCOMPARE(presets.currentPreset()->state(), Preset::Clean);
}

void PresetsTest::listsUnreadable_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isListed");
    QTest::newRow("empty") << "empty" << true;
    QTest::newRow("binary") << "binary" << true;
    QTest::newRow("large") << "large" << true;
    QTest::newRow("folder") << "folder" << false;
    QTest::newRow("link to folder") << "folderlink" << false;
    QTest::newRow("dangling link") << "dangling" << false;
    QTest::newRow("pipe") << "pipe" << false;
    QTest::newRow("link to pipe") << "pipelink" << true;
    QTest::newRow("link to device") << "device" << true;
}

// Unreadable files are listed under their file names or not at all, and do not block or fail anything.
void PresetsTest::listsUnreadable()
{
    QFETCH(QString, file);
    QFETCH(bool, isListed);
    QByteArray binary;
    for (int i = 0; i < 4096; ++i)
        binary += static_cast<char>((i * 7919) % 256);
    QVERIFY(writeScripts({"empty"}) && writeScript("binary", binary));
    QVERIFY(writeScript("large", "#name=x\n" + QByteArray(10 * 1024 * 1024, 'x')));
    QVERIFY(QDir().mkdir(script("LP1", "folder")));
    QVERIFY(QFile::link(script("LP1", "folder"), script("LP1", "folderlink")));
    QVERIFY(QFile::link("nowhere", script("LP1", "dangling")));
    QCOMPARE(mkfifo(QFile::encodeName(script("LP1", "pipe")).constData(), 0600), 0);
    QVERIFY(QFile::link(script("LP1", "pipe"), script("LP1", "pipelink")));
    QVERIFY(QFile::link("/dev/zero", script("LP1", "device")));
    const Presets presets("LP1");
    QCOMPARE(presets.getPresetNames().contains(file), isListed);
    QCOMPARE(presets.findPreset(file) != nullptr, isListed);
}

void PresetsTest::listsMissingFolder()
{
    Presets presets("LP1");
    QVERIFY(presets.load());
    QCOMPARE(presets.getPresetNames(), QStringList());
    QCOMPARE(presets.currentPreset(), nullptr);
    QVERIFY(!QFile::exists(folder("LP1")));
}

void PresetsTest::listsNothingForHostilePrinter_data()
{
    QTest::addColumn<QString>("printer");
    QTest::newRow("parent") << "..";
    QTest::newRow("climbs") << "LP1/../..";
    QTest::newRow("absolute") << qEnvironmentVariable("HOME");
    QTest::newRow("line feed") << "LP1\n";
}

// The working directory is not listed instead of a folder that does not exist.
void PresetsTest::listsNothingForHostilePrinter()
{
    QFETCH(QString, printer);
    const QString home = qEnvironmentVariable("HOME");
    QVERIFY(writeScript("a"));
    QVERIFY(writeFile(home + "/outside.sh", ""));
    QVERIFY(QDir::setCurrent(home));
    Presets presets(printer);
    QVERIFY(presets.load());
    QCOMPARE(presets.getPresetNames(), QStringList());
    QCOMPARE(presets.linkPathName(), QString());
    QVERIFY(QDir::setCurrent("/") && QFile::remove(home + "/outside.sh"));
}

// ----- the current preset -----

void PresetsTest::linkNamesCurrent_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("current");
    QTest::newRow("path") << script("LP1", "b") << "b";
    QTest::newRow("relative") << "b.sh"
                              << "b";
    QTest::newRow("relative path") << "../LP1/b.sh"
                                   << "b";
    QTest::newRow("other folder") << "/nowhere/b.sh"
                                  << "b";
    QTest::newRow("suffix twice") << "/nowhere/b.sh.sh"
                                  << "b";
    QTest::newRow("no suffix") << "/nowhere/b"
                               << "b";
    QTest::newRow("missing script") << script("LP1", "c") << "(none)";
    QTest::newRow("hidden preset") << script("LP1", "_current") << "(none)";
    QTest::newRow("no file name") << script("LP1", "") << "(none)";
}

void PresetsTest::linkNamesCurrent()
{
    QFETCH(QString, target);
    QVERIFY(writeScripts({"b", "_current"}));
    QVERIFY(writeScript("a", "#name=b\n")); // the link holds a file name, not a name
    QCOMPARE(symlink(QFile::encodeName(target).constData(), QFile::encodeName(link()).constData()), 0);
    QTEST(nameOf(Presets("LP1").currentPreset()), "current");
}

void PresetsTest::noLink()
{
    QVERIFY(writeScripts({"b", "a"}));
    QVERIFY(writeFile(link(), script("LP1", "b").toUtf8()));
    QCOMPARE(nameOf(Presets("LP1").currentPreset()), QString("a"));
}

void PresetsTest::loadsAnew()
{
    QVERIFY(writeScripts({"a", "b"}));
    Presets presets("LP1");
    presets.setCurrentPreset(presets.findPreset("b"));
    presets.addPreset(newPreset("c"));
    QVERIFY(writeScripts({"d"}));
    QVERIFY(presets.load());
    QCOMPARE(presets.getPresetNames(), (QStringList{"a", "b", "d"}));
    // The current preset is none of those that are gone.
    QCOMPARE(nameOf(presets.currentPreset()), QString("a"));

    QVERIFY(QDir(folder("LP1")).removeRecursively());
    QVERIFY(presets.load());
    QCOMPARE(presets.getPresetNames(), QStringList());
    QCOMPARE(presets.currentPreset(), nullptr);
}

void PresetsTest::clears()
{
    QVERIFY(writeScripts({"a", "b"}));
    Presets presets("LP1");
    presets.clearPresets();
    QCOMPARE(presets.getPresetNames(), QStringList());
    QCOMPARE(presets.currentPreset(), nullptr);
    QVERIFY(QFile::exists(script("LP1", "a")));
    presets.clearPresets();
    QVERIFY(presets.save({}));
}

// ----- adding and finding -----

void PresetsTest::addPreset()
{
    Presets presets("LP1");
    QCOMPARE(presets.addPreset(nullptr), nullptr);
    QCOMPARE(presets.currentPreset(), nullptr);
    Preset *first = newPreset("x");
    QCOMPARE(presets.addPreset(first), first);
    QCOMPARE(presets.currentPreset(), first);
    Preset *second = newPreset("a");
    QCOMPARE(presets.addPreset(second), second);
    QCOMPARE(presets.currentPreset(), first);
    QCOMPARE(presets.getPresetNames(), (QStringList{"x", "a"}));
    presets.setCurrentPreset(second);
    QCOMPARE(presets.currentPreset(), second);
    presets.setCurrentPreset(nullptr);
    QCOMPARE(presets.currentPreset(), nullptr);
}

void PresetsTest::findPreset_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("file");
    QTest::newRow("empty") << ""
                           << "(none)";
    QTest::newRow("name") << "Second"
                          << "two";
    QTest::newRow("file name") << "two"
                               << "two";
    QTest::newRow("name as the file") << "plain"
                                      << "plain";
    QTest::newRow("deleted") << "Gone"
                             << "gone";
    // The first that fits in either way, not the first whose name fits.
    QTest::newRow("file of one, name of a later") << "one"
                                                  << "one";
    QTest::newRow("name of one, file of a later") << "two again"
                                                  << "one more";
    QTest::newRow("case") << "second"
                          << "(none)";
    QTest::newRow("part") << "Seco"
                          << "(none)";
}

void PresetsTest::findPreset()
{
    QFETCH(QString, text);
    Presets presets("LP1");
    presets.addPreset(newPreset("", "", 0)); // neither name nor file
    presets.addPreset(newPreset("one", "First"));
    presets.addPreset(newPreset("two", "Second"));
    presets.addPreset(newPreset("other", "one"));
    presets.addPreset(newPreset("one more", "two again"));
    presets.addPreset(newPreset("two again", "Third"));
    presets.addPreset(newPreset("plain"));
    presets.addPreset(newPreset("gone", "Gone"))->setState(Preset::Deleted);
    QTEST(nameOf(presets.findPreset(text)), "file");
}

void PresetsTest::findPresetByFileName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << ""
                           << "(none)";
    QTest::newRow("file name") << "two"
                               << "Second";
    QTest::newRow("first of two") << "one"
                                  << "First";
    QTest::newRow("deleted") << "gone"
                             << "Gone";
    QTest::newRow("name") << "Second"
                          << "(none)";
    QTest::newRow("case") << "Two"
                          << "(none)";
}

void PresetsTest::findPresetByFileName()
{
    QFETCH(QString, text);
    Presets presets("LP1");
    presets.addPreset(newPreset("", "No file", 0));
    presets.addPreset(newPreset("one", "First"));
    presets.addPreset(newPreset("two", "Second"));
    presets.addPreset(newPreset("one", "Third"));
    presets.addPreset(newPreset("gone", "Gone"))->setState(Preset::Deleted);
    Preset *found = presets.findPresetByFileName(text);
    QTEST(found ? found->name() : QString("(none)"), "name");
}

// ----- names -----

void PresetsTest::getPresetNames_data()
{
    // Presets in list order, each "INDEX NAME", and "INDEX NAME deleted".
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QString>("names");
    QTest::newRow("none") << QStringList() << "";
    QTest::newRow("user's") << QStringList{"-1 y", "-1 x"} << "y x";
    QTest::newRow("other negative index") << QStringList{"-1 x", "-5 y"} << "x y";
    QTest::newRow("smallest index") << QStringList{"-2147483648 x", "0 p"} << "p x";
    QTest::newRow("built-in first") << QStringList{"-1 x", "-1 y", "1 q", "0 p"} << "p q x y";
    QTest::newRow("built-in alone") << QStringList{"1 q", "0 p"} << "p q";
    QTest::newRow("between the user's") << QStringList{"-1 x", "-1 y", "-1 z", "2 p"} << "x y p z";
    QTest::newRow("past the end") << QStringList{"5 p", "-1 x"} << "x p";
    QTest::newRow("two past the end") << QStringList{"5 q", "3 p", "-1 x"} << "x p q";
    QTest::newRow("gap that later ones find filled") << QStringList{"3 q", "1 p"} << "p q";
    QTest::newRow("largest index") << QStringList{"2147483647 p", "-1 x"} << "x p";
    QTest::newRow("largest index twice") << QStringList{"2147483647 p", "2000000000 o", "2147483647 q", "-1 x"}
                                         << "x o p q";
    QTest::newRow("same index") << QStringList{"0 p", "-1 x", "0 q"} << "p q x";
    QTest::newRow("same index between") << QStringList{"1 p", "-1 x", "1 q", "-1 y"} << "x p q y";
    QTest::newRow("same index, then into them") << QStringList{"0 p", "0 q", "-1 x", "1 r"} << "p r q x";
    QTest::newRow("deleted") << QStringList{"-1 x deleted", "-1 y", "0 p deleted", "1 q"} << "y q";
    QTest::newRow("all deleted") << QStringList{"-1 x deleted", "0 p deleted"} << "";
}

void PresetsTest::getPresetNames()
{
    QFETCH(QStringList, list);
    QFETCH(QString, names);
    Presets presets("LP1");
    for (const QString &entry : list) {
        const QStringList words = entry.split(' ');
        Preset *preset = presets.addPreset(newPreset("", words.at(1), words.at(0).toInt()));
        if (words.size() > 2)
            preset->setState(Preset::Deleted);
    }
    QCOMPARE(presets.getPresetNames().join(' '), names);
    QCOMPARE(presets.getPresetNames().join(' '), names);
}

void PresetsTest::getPresetNamesOfScripts()
{
    QVERIFY(writeScript("a", "#name=Alpha\n"));
    QVERIFY(writeScript("b", "#name=Beta\n#index=2147483647\n"));
    QVERIFY(writeScript("c", "#index=0\n"));
    QVERIFY(writeScript("d", "#name=\n#index=no number\n"));
    QCOMPARE(Presets("LP1").getPresetNames(), (QStringList{"c", "Alpha", "d", "Beta"}));
}

void PresetsTest::getPresetNamesOfMany()
{
    constexpr int count = 10000;
    QStringList user;
    QStringList builtIn;
    Presets presets("LP1");
    for (int i = 0; i < count; ++i) {
        user << QString::number(i);
        builtIn << "b" + QString::number(i);
        // No script: each request for one tries to read it.
        presets.addPreset(newPreset(user.last()));
        presets.addPreset(newPreset("", "b" + QString::number(count - 1 - i), count - 1 - i));
    }
    QCOMPARE(presets.getPresetNames(), builtIn + user);
}

// ----- deleting -----

void PresetsTest::deletePreset()
{
    QVERIFY(writeScripts({"a", "b"}));
    Presets presets("LP1");
    QCOMPARE(presets.deletePreset(nullptr), nullptr);
    Preset *a = presets.currentPreset();
    Preset *b = presets.findPreset("b");
    QCOMPARE(presets.deletePreset(b), b);
    QCOMPARE(b->state(), Preset::Deleted);
    QCOMPARE(presets.currentPreset(), a);
    QCOMPARE(a->state(), Preset::Clean);
    QCOMPARE(presets.getPresetNames(), QStringList{"a"});
    // Until it is saved.
    QVERIFY(QFile::exists(script("LP1", "b")));
    QCOMPARE(presets.findPreset("b"), b);
}

void PresetsTest::deletePresetTwice()
{
    QVERIFY(writeScripts({"a", "b"}));
    Presets presets("LP1");
    Preset *a = presets.currentPreset();
    presets.deletePreset(a);
    presets.setCurrentPreset(a);
    QCOMPARE(presets.deletePreset(a), a);
    QCOMPARE(presets.currentPreset(), a);
}

void PresetsTest::deleteCurrent()
{
    QVERIFY(writeScripts({"a", "b", "c"}));
    Presets presets("LP1");
    presets.deletePreset(presets.findPreset("a"));
    QCOMPARE(nameOf(presets.currentPreset()), QString("b"));
    presets.setCurrentPreset(presets.findPreset("c"));
    presets.deletePreset(presets.findPreset("c"));
    QCOMPARE(nameOf(presets.currentPreset()), QString("b"));
}

void PresetsTest::deleteOnly()
{
    QVERIFY(writeScripts({"a"}));
    Presets presets("LP1");
    Preset *a = presets.currentPreset();
    presets.deletePreset(a);
    QCOMPARE(presets.currentPreset(), a);
    QCOMPARE(a->state(), Preset::Deleted);
}

void PresetsTest::deleteBuiltIn()
{
    QVERIFY(writeScripts({"a"}));
    QVERIFY(writeScript("b", "#name=Beta\n#index=0\n"));
    Presets presets("LP1");
    Preset *builtIn = presets.findPreset("b");
    presets.setCurrentPreset(builtIn);
    const PresetFiles::BoxCloser boxes;
    QCOMPARE(presets.deletePreset(builtIn), builtIn);
    QCOMPARE(boxes.titles(), QStringList{"Warning"});
    QCOMPARE(boxes.texts(), QStringList{"Beta cannot be deleted."});
    QVERIFY(boxes.areWarnings());
    QCOMPARE(builtIn->state(), Preset::Clean);
    QCOMPARE(presets.currentPreset(), builtIn);
    presets.deletePreset(presets.findPreset("a"));
    QCOMPARE(boxes.texts().size(), 1);
}

void PresetsTest::warningIsTranslated()
{
    Presets presets("LP1");
    const PresetFiles::ContextTranslator translator;
    const PresetFiles::BoxCloser boxes;
    presets.deletePreset(presets.addPreset(newPreset("", "<Current Settings>", 0)));
    QCOMPARE(boxes.titles(), QStringList{"Presets::Warning"});
    QCOMPARE(boxes.texts(), QStringList{"Presets::<Current Settings> cannot be deleted."});
}

void PresetsTest::warningInArabic()
{
    QApplication::setStyle(new StyleWithIcons);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    Presets presets("LP1");
    Preset *builtIn = presets.addPreset(newPreset("Wide", "<Current Settings>", 0));
    builtIn->setOptions({"Darkness", "1"});
    const PresetFiles::BoxCloser boxes;
    presets.deletePreset(builtIn);
    builtIn->save({});
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(boxes.texts().size(), 2);
    QVERIFY(boxes.areButtonsWhole());
}

// ----- save -----

void PresetsTest::saveWritesChanged()
{
    QVERIFY(writeScripts({"a", "b", "c"}));
    Presets presets("LP1");
    presets.findPreset("a")->setDescription("x");
    presets.findPreset("c")->setOptions({"Darkness", "12", "Feed", "3"});
    const QByteArray untouched = readFile(script("LP1", "b"));
    const ino_t earlier = inode(script("LP1", "b"));
    QVERIFY(presets.save({"Feed", "3"}));
    QCOMPARE(readFile(script("LP1", "a")), QByteArray("#!/bin/bash\n#description=x\nlpoptions -pLP1 -rFeed\n"));
    QCOMPARE(readFile(script("LP1", "b")), untouched);
    QCOMPARE(inode(script("LP1", "b")), earlier);
    QCOMPARE(readFile(script("LP1", "c")), QByteArray("#!/bin/bash\nlpoptions -pLP1 -oDarkness=12 -rFeed\n"));
    QCOMPARE(PresetFiles::entries(folder("LP1")), (QStringList{"a.sh", "b.sh", "c.sh", "currentPreset"}));
}

void PresetsTest::saveSkipsUnknownState()
{
    QVERIFY(writeScripts({"a"}));
    Presets presets("LP1");
    presets.findPreset("a")->setState(static_cast<Preset::_State>(4));
    QVERIFY(presets.save({}));
    QCOMPARE(linkText(), QFile::encodeName(script("LP1", "a")));
}

void PresetsTest::saveStopsAtFailure()
{
    QVERIFY(writeScripts({"a", "b", "c"}));
    Presets presets("LP1");
    for (const char *name : {"a", "b", "c"})
        presets.findPreset(name)->setDescription("x");
    QVERIFY(QFile::remove(script("LP1", "b")) && QDir().mkdir(script("LP1", "b")));
    QVERIFY(!presets.save({}));
    QCOMPARE(presets.findPreset("a")->state(), Preset::Clean);
    QCOMPARE(presets.findPreset("b")->state(), Preset::Modified);
    QCOMPARE(presets.findPreset("c")->state(), Preset::Modified);
    QVERIFY(!readFile(script("LP1", "c")).contains("#description"));
    QCOMPARE(linkText(), QByteArray());

    QVERIFY(QDir().rmdir(script("LP1", "b")));
    QVERIFY(presets.save({}));
    QVERIFY(readFile(script("LP1", "c")).contains("#description"));
    QCOMPARE(linkText(), QFile::encodeName(script("LP1", "a")));
}

void PresetsTest::saveOfNeverSavedDeleted()
{
    QVERIFY(writeScripts({"a"}));
    Presets presets("LP1");
    Preset *never = presets.addPreset(new Preset("LP1", "never", {"Darkness", "1"}, QString(), QString(), -1));
    Preset *later = presets.addPreset(new Preset("LP1", "later", {"Darkness", "1"}, QString(), QString(), -1));
    presets.deletePreset(never);
    QVERIFY(!presets.save({}));
    QCOMPARE(presets.findPreset("never"), never);
    QCOMPARE(later->state(), Preset::Modified);
    QVERIFY(!QFile::exists(script("LP1", "later")));
    QCOMPARE(linkText(), QByteArray());
}

void PresetsTest::saveOfModifiedBuiltIn()
{
    QVERIFY(writeScript("a", "#index=0\n"));
    QVERIFY(writeScripts({"b"}));
    Presets presets("LP1");
    presets.findPreset("a")->setDescription("x");
    presets.findPreset("b")->setDescription("x");
    {
        const PresetFiles::BoxCloser boxes;
        QVERIFY(!presets.save({}));
        QCOMPARE(boxes.texts(), QStringList{"a cannot be modified."});
    }
    QCOMPARE(presets.findPreset("b")->state(), Preset::Modified);
    // It has been read again and does not block the next saving.
    QVERIFY(presets.save({}));
    QCOMPARE(presets.findPreset("b")->state(), Preset::Clean);
}

void PresetsTest::saveDropsDeleted()
{
    QVERIFY(writeScripts({"a", "b", "c"}));
    Presets presets("LP1");
    presets.deletePreset(presets.findPreset("b"));
    presets.findPreset("c")->setDescription("x");
    QVERIFY(presets.save({}));
    QVERIFY(!QFile::exists(script("LP1", "b")));
    QCOMPARE(presets.findPreset("b"), nullptr);
    QVERIFY(readFile(script("LP1", "c")).contains("#description"));
    QCOMPARE(nameOf(presets.currentPreset()), QString("a"));
    QVERIFY(presets.save({}));
}

void PresetsTest::saveDropsCurrent()
{
    QVERIFY(writeScripts({"a", "b", "c"}));
    Presets presets("LP1");
    presets.deletePreset(presets.findPreset("a"));
    presets.deletePreset(presets.findPreset("b"));
    presets.setCurrentPreset(presets.findPreset("a"));
    QVERIFY(presets.save({}));
    QCOMPARE(nameOf(presets.currentPreset()), QString("c"));
    QCOMPARE(linkText(), QFile::encodeName(script("LP1", "c")));
}

void PresetsTest::saveDropsOnly()
{
    QVERIFY(writeScripts({"a"}));
    Presets presets("LP1");
    QVERIFY(presets.save({}));
    presets.deletePreset(presets.currentPreset());
    QVERIFY(presets.save({}));
    QCOMPARE(presets.currentPreset(), nullptr);
    QCOMPARE(presets.getPresetNames(), QStringList());
    QVERIFY(presets.load());
    QCOMPARE(presets.currentPreset(), nullptr);
    // What is added now is current.
    Preset *next = newPreset("b");
    presets.addPreset(next);
    QCOMPARE(presets.currentPreset(), next);
}

void PresetsTest::saveLinksCurrent_data()
{
    QTest::addColumn<QString>("before");
    QTest::newRow("nothing") << "";
    QTest::newRow("link to another") << "a.sh";
    QTest::newRow("dangling link") << "/nowhere/x.sh";
    QTest::newRow("link to a folder") << "/tmp";
    QTest::newRow("link to itself") << "currentPreset";
    QTest::newRow("file") << "file";
}

void PresetsTest::saveLinksCurrent()
{
    QFETCH(QString, before);
    QVERIFY(writeScripts({"a", "b"}));
    if (before == "file")
        QVERIFY(writeFile(link(), "text"));
    else if (!before.isEmpty())
        QCOMPARE(symlink(QFile::encodeName(before).constData(), QFile::encodeName(link()).constData()), 0);
    // A file left by a killed process that had the same id.
    QVERIFY(QFile::link("/nowhere", link() + '.' + QString::number(QCoreApplication::applicationPid())));
    Presets presets("LP1");
    presets.setCurrentPreset(presets.findPreset("b"));
    QVERIFY(presets.save({}));
    QCOMPARE(linkText(), QFile::encodeName(script("LP1", "b")));
    QCOMPARE(PresetFiles::entries(folder("LP1")), (QStringList{"a.sh", "b.sh", "currentPreset"}));
    QCOMPARE(nameOf(Presets("LP1").currentPreset()), QString("b"));
}

void PresetsTest::saveKeepsRightLink()
{
    QVERIFY(writeScripts({"a"}));
    Presets presets("LP1");
    QVERIFY(presets.save({}));
    const ino_t earlier = inode(link());
    QVERIFY(presets.save({}));
    QCOMPARE(inode(link()), earlier);
}

// Whenever the process ends, there is a link. The kernel tells whether there was not.
void PresetsTest::saveReplacesLinkAtOnce()
{
    QVERIFY(writeScripts({"a", "b"}));
    Presets presets("LP1");
    QVERIFY(presets.save({}));
    presets.setCurrentPreset(presets.findPreset("b"));

    const int fd = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    const QByteArray path = QFile::encodeName(folder("LP1"));
    QVERIFY(inotify_add_watch(fd, path.constData(), IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE) > 0);
    QVERIFY(presets.save({}));
    QStringList events;
    alignas(inotify_event) char buffer[4096];
    const ssize_t length = read(fd, buffer, sizeof buffer);
    close(fd);
    for (ssize_t i = 0; i < length;) {
        const auto *event = reinterpret_cast<const inotify_event *>(buffer + i);
        if (QString(event->name) == "currentPreset")
            events << (event->mask & IN_MOVED_TO ? "put there" : "gone");
        i += static_cast<ssize_t>(sizeof *event + event->len);
    }
    QCOMPARE(events, QStringList{"put there"});
}

// Built-in presets of the dialog have no script. The link then names none, and none is current the next time.
void PresetsTest::saveLinksCurrentWithoutScript()
{
    QVERIFY(writeScripts({"a"}));
    Presets presets("LP1");
    presets.setCurrentPreset(presets.addPreset(newPreset("", "<Current Settings>", 0)));
    QVERIFY(presets.save({}));
    QCOMPARE(linkText(), QFile::encodeName(script("LP1", "")));
    QVERIFY(presets.load());
    QCOMPARE(presets.currentPreset(), nullptr);
}

void PresetsTest::saveWithoutCurrent()
{
    QVERIFY(writeScripts({"a", "b"}));
    Presets presets("LP1");
    QVERIFY(presets.save({}));
    presets.setCurrentPreset(nullptr);
    presets.findPreset("b")->setDescription("x");
    QVERIFY(presets.save({}));
    QVERIFY(readFile(script("LP1", "b")).contains("#description"));
    QCOMPARE(linkText(), QFile::encodeName(script("LP1", "a")));
}

// The link helps the next run; it is not part of what is saved.
void PresetsTest::saveWithoutFolder()
{
    Presets presets("LP1");
    presets.addPreset(newPreset("", "<Current Settings>", 0));
    QVERIFY(presets.save({}));
    QVERIFY(!QFile::exists(folder("LP1")));

    QVERIFY(QDir().mkpath(link()));
    QVERIFY(presets.save({}));
    QCOMPARE(PresetFiles::entries(folder("LP1")), QStringList{"currentPreset"});
    QVERIFY(QFileInfo(link()).isDir());
}

void PresetsTest::saveForHostilePrinter()
{
    const QString home = qEnvironmentVariable("HOME");
    const QStringList before = PresetFiles::entries(home);
    Presets presets("..");
    presets.addPreset(new Preset("..", "x", {"Darkness", "1"}, QString(), QString(), -1));
    QVERIFY(!presets.save({}));
    presets.clearPresets();
    presets.addPreset(new Preset("..", "", {}, "<Current Settings>", QString(), 0));
    QVERIFY(presets.save({}));
    QCOMPARE(PresetFiles::entries(home), before);
    QCOMPARE(PresetFiles::entries(PresetFiles::root()), QStringList());
}

void PresetsTest::linkLeadsNowhere_data()
{
    QTest::addColumn<QString>("target");
    for (const char *target :
         {"../../outside", "/dev/zero", "/etc/passwd", "..", "a.sh/..", "../../missing", "currentPreset"})
        QTest::newRow(target) << target;
}

// Nothing is opened, changed or created at the target of the current preset's link.
void PresetsTest::linkLeadsNowhere()
{
    QFETCH(QString, target);
    const QString home = qEnvironmentVariable("HOME");
    QVERIFY(writeFile(home + "/outside", "earlier") && writeScripts({"a"}));
    QCOMPARE(chmod(QFile::encodeName(home + "/outside").constData(), 0600), 0);
    QCOMPARE(symlink(QFile::encodeName(target).constData(), QFile::encodeName(link()).constData()), 0);
    const QStringList before = PresetFiles::entries(home);
    Presets presets("LP1");
    QCOMPARE(presets.currentPreset(), nullptr);
    presets.setCurrentPreset(presets.findPreset("a"));
    presets.currentPreset()->setDescription("x");
    QVERIFY(presets.save({}));
    QCOMPARE(linkText(), QFile::encodeName(script("LP1", "a")));
    QCOMPARE(PresetFiles::entries(home), before);
    QCOMPARE(PresetFiles::entries(folder("LP1")), (QStringList{"a.sh", "currentPreset"}));
    QCOMPARE(readFile(home + "/outside"), QByteArray("earlier"));
    QVERIFY(!QFileInfo(home + "/outside").isExecutable());
    QVERIFY(QFile::remove(home + "/outside"));
}

// The presets there are listed, and stay as they are.
void PresetsTest::linkedFolder()
{
    const QString elsewhere = qEnvironmentVariable("HOME") + "/elsewhere";
    QVERIFY(writeFile(elsewhere + "/a.sh", "#name=Alpha\n") && writeFile(elsewhere + "/b.sh", "#name=Beta\n"));
    QVERIFY(QFile::link(elsewhere, folder("LP1")));
    for (const bool isDeleted : {false, true}) {
        Presets presets("LP1");
        QCOMPARE(presets.getPresetNames(), (QStringList{"Alpha", "Beta"}));
        Preset *a = presets.findPreset("a");
        if (isDeleted)
            presets.deletePreset(a);
        else
            a->setDescription("x");
        QVERIFY(!presets.save({}));
    }
    Presets presets("LP1");
    presets.setCurrentPreset(presets.findPreset("b"));
    presets.save({});
    QCOMPARE(readFile(elsewhere + "/a.sh"), QByteArray("#name=Alpha\n"));
    QCOMPARE(PresetFiles::entries(elsewhere), (QStringList{"a.sh", "b.sh"}));
    QVERIFY(QDir(elsewhere).removeRecursively());
}

// ----- new presets -----

void PresetsTest::isFileNameTaken_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("listed") << "a" << true;
    QTest::newRow("made by another program since") << "later" << true;
    QTest::newRow("not written yet") << "never" << true;
    QTest::newRow("folder") << "folder" << true;
    QTest::newRow("link to nothing") << "dangling" << true;
    QTest::newRow("hidden preset") << "_current" << true;
    QTest::newRow("free") << "b" << false;
    QTest::newRow("name") << "Alpha" << false;
}

void PresetsTest::isFileNameTaken()
{
    QFETCH(QString, file);
    QVERIFY(writeScript("a", "#name=Alpha\n") && writeScripts({"_current"}));
    Presets presets("LP1");
    presets.addPreset(newPreset("never"));
    QVERIFY(writeScripts({"later"}) && QDir().mkdir(script("LP1", "folder")));
    QVERIFY(QFile::link("nowhere", script("LP1", "dangling")));
    QTEST(presets.isFileNameTaken(file), "isTaken");
}

// Two dialogs are open at once, and each makes presets.
void PresetsTest::newOnesOfTwo()
{
    for (int round = 0; round < 10; ++round) {
        QVERIFY(PresetFiles::reset());
        Presets one("LP1");
        Presets other("LP1");
        const auto add = [](Presets &presets, const QString &file, const QString &darkness) {
            auto *preset = new Preset("LP1", file, {"Darkness", darkness}, "Name of " + darkness, QString(), -1);
            preset->setNew();
            return presets.addPreset(preset);
        };
        add(one, "Preset", "1");
        add(one, "Preset2", "2");
        Preset *third = add(other, "Preset", "3");
        add(other, "Preset2", "4");
        other.setCurrentPreset(third);
        QVERIFY(one.save({}));
        QVERIFY(other.save({}));
        QCOMPARE(third->fileName(), QString("Preset3"));
        QVERIFY(!third->isNew());
        QCOMPARE(linkText(), QFile::encodeName(script("LP1", "Preset3")));
        // From now on they are presets like all others.
        third->setDescription("x");
        QVERIFY(other.save({}));

        Presets both("LP1");
        QCOMPARE(both.getPresetNames(), (QStringList{"Name of 1", "Name of 2", "Name of 3", "Name of 4"}));
        for (const char *darkness : {"1", "2", "3", "4"})
            QCOMPARE(both.findPreset(QString("Name of ") + darkness)->options(), QStringList({"Darkness", darkness}));
        QCOMPARE(PresetFiles::entries(folder("LP1")),
                 (QStringList{"Preset.sh", "Preset2.sh", "Preset3.sh", "Preset4.sh", "currentPreset"}));
    }
}

void PresetsTest::newOneKeepsName()
{
    Presets presets("LP1");
    Preset *preset = presets.addPreset(newPreset("Preset9"));
    preset->setNew();
    QCOMPARE(preset->state(), Preset::Modified);
    QVERIFY(presets.save({}));
    QCOMPARE(preset->fileName(), QString("Preset9"));
    // Where it cannot be written, nothing changes.
    QVERIFY(QDir(folder("LP1")).removeRecursively() && writeFile(folder("LP1"), "a file"));
    preset->setNew();
    QVERIFY(!presets.save({}));
    QCOMPARE(preset->fileName(), QString("Preset9"));
    QCOMPARE(preset->state(), Preset::Modified);
    QVERIFY(preset->isNew());
}

// A script that another program has created under its name meanwhile belongs to that program.
void PresetsTest::newOneDeleted()
{
    Presets presets("LP1");
    Preset *preset = presets.addPreset(newPreset("Preset"));
    preset->setNew();
    QVERIFY(writeScripts({"Preset"}));
    presets.deletePreset(preset);
    QVERIFY(!presets.save({}));
    presets.dropMissing();
    QVERIFY(presets.save({}));
    QVERIFY(QFile::exists(script("LP1", "Preset")));
    QCOMPARE(presets.getPresetNames(), QStringList());
    QCOMPARE(presets.currentPreset(), nullptr);
}

void PresetsTest::dropMissing()
{
    QVERIFY(writeScripts({"a", "b", "c", "d"}));
    Presets presets("LP1");
    for (const char *file : {"a", "b"})
        presets.deletePreset(presets.findPreset(file));
    presets.addPreset(newPreset("never"))->setState(Preset::Deleted);
    presets.findPreset("c")->setDescription("x");
    // What another program removes:
    for (const char *file : {"a", "c", "d"})
        QVERIFY(QFile::remove(script("LP1", file)));
    presets.dropMissing();
    QCOMPARE(presets.findPreset("a"), nullptr);
    QCOMPARE(presets.findPreset("never"), nullptr);
    QVERIFY(presets.findPreset("b") && presets.findPreset("c") && presets.findPreset("d"));
    QVERIFY(presets.save({}));
    QVERIFY(!QFile::exists(script("LP1", "b")));
    // The user has just worked on this one.
    QVERIFY(readFile(script("LP1", "c")).contains("#description=x"));
}

void PresetsTest::listedPresets()
{
    Presets presets("LP1");
    Preset *first = presets.addPreset(newPreset("x", "Same"));
    Preset *deleted = presets.addPreset(newPreset("y", "Same"));
    Preset *second = presets.addPreset(newPreset("z", "Same"));
    Preset *builtIn = presets.addPreset(newPreset("", "<Current Settings>", 0));
    deleted->setState(Preset::Deleted);
    QCOMPARE(presets.listedPresets(), (QList<Preset *>{builtIn, first, second}));
    QCOMPARE(presets.getPresetNames(), (QStringList{"<Current Settings>", "Same", "Same"}));
}

void PresetsTest::homeOfBytes()
{
    const QByteArray home = qgetenv("HOME");
    const QStringList before = PresetFiles::entries(QFile::decodeName(home));
    const HomeOfBytes homeOfBytes;
    QCOMPARE(HomeOfBytes::runChild("useFolder").exitCode, 0);
    const QByteArray inside = HomeOfBytes::path();
    struct stat status = {};
    QCOMPARE(lstat((inside + "/.cups/LP1/Wide.sh").constData(), &status), 0);
    char text[4096] = {};
    QVERIFY(readlink((inside + "/.cups/LP1/currentPreset").constData(), text, sizeof text - 1) > 0);
    QCOMPARE(QByteArray(text), inside + "/.cups/LP1/Wide.sh");
    for (const char *path : {"/.cups/LP1/Wide.sh", "/.cups/LP1/currentPreset", "/.cups/LP1", "/.cups", ""})
        QCOMPARE(std::remove((inside + path).constData()), 0);
    // Nothing else has been created.
    QCOMPARE(PresetFiles::entries(QFile::decodeName(home)), before);
}

void PresetsTest::fixedNames()
{
    const Presets presets("LP1/draft");
    QCOMPARE(presets.currentFileName(), QString("_current"));
    QCOMPARE(presets.linkPathName(), qEnvironmentVariable("HOME") + "/.cups/LP1/draft/currentPreset");
}

PROPERTIESDIALOG_TEST_MAIN(PresetsTest)
#include "PresetsTest.moc"
