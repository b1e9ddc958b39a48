// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "PresetFiles.h"
#include "presets/PresetScript.h"
#include "TestMain.h"

#include <QtTest>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <clocale>
#include <csignal>
#include <cstdio>

namespace {

// Prints the path of the script "file" of the printer that is the argument.
int printPath(int &, char **argv)
{
    std::fputs(PresetScript::pathName(QString::fromUtf8(argv[1]), "file").toUtf8().constData(), stdout);
    return 0;
}
const TestMain::ChildFunction printPathFunction("printPath", printPath);

QString home()
{
    return qEnvironmentVariable("HOME");
}

PresetScript::Content content(const QStringList &options = {})
{
    return {"LP1", "Wide", "Wide", QString(), -1, options, QSizeF(-1, -1)};
}

constexpr char head[] = "#!/bin/bash\n";

// While this object exists, files that this process writes cannot become longer than this.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &earlier);
        const rlimit limit{bytes, earlier.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &earlier); }

private:
    rlimit earlier{};
};

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    return lstat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode : 0;
}

} // namespace

// If this fails, preset scripts are written or read incorrectly, including users' existing ones.
class PresetScriptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void numbersOfTheLocale();

    void folder_data();
    void folder();
    void pathName_data();
    void pathName();
    void rootIsThatOfTheStart();
    void rootOfHome_data();
    void rootOfHome();

    void optionNames();
    void valueIndex_data();
    void valueIndex();

    void ppdhack_data();
    void ppdhack();
    void header_data();
    void header();
    void optionItem_data();
    void optionItem();
    void optionOrder();
    void pageSizeLine_data();
    void pageSizeLine();
    void wholeScript();
    void beyondAscii_data();
    void beyondAscii();
    void needsNoWholeLine();
    void parseText_data();
    void parseText();
    void queueForShells_data();
    void queueForShells();

    void writeMakesFoldersAndIsExecutable();
    void writeKeepsPermissions();
    void writeReplacesLink_data();
    void writeReplacesLink();
    void writeRefused_data();
    void writeRefused();
    void linkedFolder_data();
    void linkedFolder();
    void linkedRoot();
    void createTakesNoName_data();
    void createTakesNoName();
    void create();
    void writeBesideLeftovers();
    void ownersOfUsers();
    void writeIntoReadOnlyFolder();
    void writeOverReadOnlyFile();
    void writeOnFullDisk();
    void remove();

    void readWithinLimit_data();
    void readWithinLimit();
    void readRefused_data();
    void readRefused();
    void readUnreadable();

    void parseAttribute_data();
    void parseAttribute();
    void parseOption_data();
    void parseOption();
    void parsePpdhack_data();
    void parsePpdhack();
};

void PresetScriptTest::init()
{
    QVERIFY(PresetFiles::reset());
}

// The run in another locale would prove nothing if the locale were not active.
void PresetScriptTest::numbersOfTheLocale()
{
    const bool german = qgetenv("LC_ALL").startsWith("de_DE");
    QCOMPARE(QByteArray(std::localeconv()->decimal_point), QByteArray(german ? "," : "."));
}

// ----- places -----

void PresetScriptTest::folder_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<bool>("hasFolder");
    QTest::newRow("ordinary") << "LP1" << true;
    QTest::newRow("instance") << "LP1/draft" << true;
    QTest::newRow("empty") << "" << true;
    QTest::newRow("points") << "LP..1" << true;
    QTest::newRow("begins with points") << "..LP1" << true;
    QTest::newRow("blank") << "L P" << true;
    QTest::newRow("beyond ASCII") << QString::fromUtf8("Drücker") << true;
    QTest::newRow("parent") << ".." << false;
    QTest::newRow("climbs first") << "../LP1" << false;
    QTest::newRow("climbs inside") << "LP1/../../LP1" << false;
    QTest::newRow("climbs last") << "LP1/.." << false;
    QTest::newRow("absolute") << "/etc" << false;
    QTest::newRow("line feed") << "LP1\nreboot" << false;
    QTest::newRow("unit separator") << "LP1\x1f" << false;
    QTest::newRow("delete") << "LP1\x7f" << false;
    QTest::newRow("NUL") << QString("LP1") + QChar(0) << false;
}

void PresetScriptTest::folder()
{
    QFETCH(QString, printer);
    QFETCH(bool, hasFolder);
    QCOMPARE(PresetScript::folder(printer), hasFolder ? home() + "/.cups/" + printer : QString());
    QCOMPARE(PresetScript::pathName(printer, "Wide"),
             hasFolder ? home() + "/.cups/" + printer + "/Wide.sh" : QString());
}

void PresetScriptTest::pathName_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("hasPath");
    QTest::newRow("ordinary") << "Wide" << true;
    QTest::newRow("empty") << "" << true;
    QTest::newRow("hidden") << "_current" << true;
    QTest::newRow("points") << ".." << true; // "...sh"
    QTest::newRow("tabulator") << "a\tb" << true;
    QTest::newRow("climbs") << "../../Wide" << false;
    QTest::newRow("NUL") << QString("Wide") + QChar(0) << false;
}

void PresetScriptTest::pathName()
{
    QFETCH(QString, file);
    QFETCH(bool, hasPath);
    QCOMPARE(PresetScript::pathName("LP1", file), hasPath ? home() + "/.cups/LP1/" + file + ".sh" : QString());
}

void PresetScriptTest::rootIsThatOfTheStart()
{
    const QByteArray earlier = qgetenv("HOME");
    qputenv("HOME", "/elsewhere");
    const QString path = PresetScript::pathName("LP1", "Wide");
    qputenv("HOME", earlier);
    QCOMPARE(path, home() + "/.cups/LP1/Wide.sh");
}

void PresetScriptTest::rootOfHome_data()
{
    QTest::addColumn<QString>("home");
    QTest::addColumn<QString>("path");
    QTest::newRow("unset") << QString() << "/.cups/LP1/file.sh";
    QTest::newRow("separator kept") << "/tmp/h/"
                                    << "/tmp/h//.cups/LP1/file.sh";
    QTest::newRow("UTF-8") << QString::fromUtf8("/tmp/hé") << QString::fromUtf8("/tmp/hé/.cups/LP1/file.sh");
}

void PresetScriptTest::rootOfHome()
{
    QFETCH(QString, home);
    QFETCH(QString, path);
    const TestMain::ChildResult result = TestMain::runChild("printPath", {"LP1"}, {{"HOME", home}});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(QString::fromUtf8(result.output), path);
}

// ----- options -----

void PresetScriptTest::optionNames()
{
    QCOMPARE(PresetScript::optionNames(),
             (QStringList{"Darkness", "Direct", "Feed", "GapSize", "JobEnd", "JobStart", "LabelCategory", "LabelEnd",
                          "LabelStart", "MarkOffset", "MarkSize", "MirrorPrint", "NegativePrint", "OffsetH", "OffsetV",
                          "orientation-requested", "PrintSpeed", "Stop", "Start"}));
}

void PresetScriptTest::valueIndex_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("index");
    QTest::newRow("empty") << QStringList() << -1;
    QTest::newRow("first") << QStringList{"Stop", "1", "Feed", "2"} << 1;
    QTest::newRow("second") << QStringList{"Feed", "2", "Stop", "1"} << 3;
    QTest::newRow("twice") << QStringList{"Stop", "1", "Stop", "2"} << 1;
    QTest::newRow("no value") << QStringList{"Feed", "2", "Stop"} << -1;
    QTest::newRow("a value is no keyword") << QStringList{"JobStart", "Stop", "Stop", "1"} << 3;
    QTest::newRow("case") << QStringList{"stop", "1"} << -1;
}

void PresetScriptTest::valueIndex()
{
    QFETCH(QStringList, options);
    QTEST(static_cast<int>(PresetScript::valueIndex(options, "Stop")), "index");
}

// ----- the text -----

void PresetScriptTest::ppdhack_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QString>("line");
    QTest::newRow("fractions") << QSizeF(101.6, 152.4) << "LP1"
                               << "ppdhack 101.60 152.40 LP1\n";
    QTest::newRow("rounded") << QSizeF(1.006, 1.004) << "LP1"
                             << "ppdhack 1.01 1.00 LP1\n";
    QTest::newRow("large") << QSizeF(1234567.5, 1e7) << "LP1"
                           << "ppdhack 1234567.50 10000000.00 LP1\n";
    QTest::newRow("none") << QSizeF(-1, -1) << "LP1"
                          << "ppdhack -1.00 -1.00 LP1\n";
    QTest::newRow("percent") << QSizeF(1, 2) << "LP%1%2"
                             << "ppdhack 1.00 2.00 LP%1%2\n";
}

void PresetScriptTest::ppdhack()
{
    QFETCH(QSizeF, size);
    QFETCH(QString, printer);
    QTEST(PresetScript::ppdhack(size, printer), "line");
}

void PresetScriptTest::header_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("lines");
    QTest::newRow("nothing") << "Wide"
                             << "" << -1 << QByteArray();
    QTest::newRow("name") << "Wide labels"
                          << "" << -1 << QByteArray("#name=Wide labels\n");
    QTest::newRow("name in other case") << "wide"
                                        << "" << -1 << QByteArray("#name=wide\n");
    QTest::newRow("description") << "Wide"
                                 << "For %1" << -1 << QByteArray("#description=For %1\n");
    QTest::newRow("lines of description") << "Wide"
                                          << "one\ntwo" << -1 << QByteArray("#description=one\ntwo\n");
    QTest::newRow("index 0") << "Wide"
                             << "" << 0 << QByteArray("#index=0\n");
    QTest::newRow("index 1234") << "Wide"
                                << "" << 1234 << QByteArray("#index=1234\n");
    QTest::newRow("order") << "n"
                           << "d" << 7 << QByteArray("#name=n\n#description=d\n#index=7\n");
}

void PresetScriptTest::header()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    QFETCH(int, index);
    QFETCH(QByteArray, lines);
    PresetScript::Content preset = content();
    preset.name = name;
    preset.description = description;
    preset.index = index;
    QCOMPARE(PresetScript::text(preset, {}), head + lines + "lpoptions -pLP1\n");
}

void PresetScriptTest::optionItem_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("defaults");
    QTest::addColumn<QByteArray>("item");
    const auto row = [](const char *name, const QStringList &options, const QStringList &defaults, const char *item) {
        QTest::newRow(name) << options << defaults << QByteArray(item);
    };
    row("neither value nor default", {}, {}, "");
    row("value", {"Darkness", "12"}, {}, " -oDarkness=12");
    row("value and other default", {"Darkness", "12"}, {"Darkness", "10"}, " -oDarkness=12");
    row("value is the default", {"Darkness", "10"}, {"Darkness", "10"}, " -rDarkness");
    row("default alone", {}, {"Darkness", "10"}, " -rDarkness");
    row("keyword without a value", {"Darkness"}, {"Darkness", "10"}, " -rDarkness");
    row("default without a value", {"Darkness", "10"}, {"Darkness"}, " -oDarkness=10");
    row("first of two values", {"Darkness", "1", "Darkness", "2"}, {}, " -oDarkness=1");
    row("not carried", {"Resolution", "203dpi"}, {"Resolution", "300dpi"}, "");
    row("default in other case", {"Direct", "true"}, {"Direct", "True"}, " -oDirect=True");
    row("TRUE", {"Direct", "TRUE"}, {}, " -oDirect=True");
    row("True", {"Darkness", "True"}, {}, " -oDarkness=True");
    row("False", {"Direct", "False"}, {}, " -oDirect=False");
    row("fALSE", {"Direct", "fALSE"}, {}, " -oDirect=False");
    row("flag is the default", {"Direct", "False"}, {"Direct", "False"}, " -rDirect");
    row("not quite true", {"Direct", "trues"}, {}, " -oDirect=trues");
    // lpoptions would turn an empty value into "true".
    row("empty", {"JobStart", ""}, {}, " -rJobStart");
    row("null", {"JobStart", QString()}, {}, " -rJobStart");
    row("blanks", {"JobStart", " \t "}, {}, " -rJobStart");
    row("empty with a default", {"JobStart", ""}, {"JobStart", "None"}, " -rJobStart");
    row("null is the empty default", {"JobStart", QString()}, {"JobStart", ""}, " -rJobStart");
    row("backslash", {"JobStart", "C:\\dir"}, {}, " -oJobStart=C:\\\\dir");
    row("stored line break", {"JobStart", "^XA\\\\r"}, {}, " -oJobStart=^XA\\\\\\\\r");
    row("blank", {"JobStart", "a b"}, {}, " -oJobStart='a b'");
    row("blank and backslash", {"JobStart", "a \\"}, {}, " -oJobStart='a \\\\'");
    row("blank and quote", {"JobStart", "it's a b"}, {}, " -oJobStart='it's a b'");
    row("quote alone", {"JobStart", "it's"}, {}, " -oJobStart=it's");
    row("no other blank", {"JobStart", "a\tb"}, {}, " -oJobStart=a\tb");
    row("left to the shell", {"JobStart", "$a;`b`\"#&%1"}, {}, " -oJobStart=$a;`b`\"#&%1");
}

void PresetScriptTest::optionItem()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, defaults);
    QFETCH(QByteArray, item);
    QCOMPARE(PresetScript::text(content(options), defaults), head + ("lpoptions -pLP1" + item + '\n'));
}

// The items are in the order of the keyword list, whatever that of the options is.
void PresetScriptTest::optionOrder()
{
    QStringList options;
    QStringList defaults;
    QByteArray items;
    bool removed = false;
    const QStringList keywords = PresetScript::optionNames();
    for (const QString &keyword : keywords) {
        options = QStringList{keyword, "7"} + options;
        defaults = QStringList{keyword, removed ? "7" : "8"} + defaults;
        items += (removed ? " -r" + keyword : " -o" + keyword + "=7").toLatin1();
        removed = !removed;
    }
    QCOMPARE(PresetScript::text(content(options), defaults), head + ("lpoptions -pLP1" + items + '\n'));
}

void PresetScriptTest::pageSizeLine_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("none") << QSizeF(-1, -1) << QByteArray();
    QTest::newRow("zero") << QSizeF(0, 0) << QByteArray();
    QTest::newRow("no width") << QSizeF(0, 50) << QByteArray();
    QTest::newRow("no height") << QSizeF(50, 0) << QByteArray();
    QTest::newRow("small") << QSizeF(0.5, 0.25) << QByteArray("ppdhack 0.50 0.25 LP1\n");
    QTest::newRow("both") << QSizeF(1.5, 50) << QByteArray("ppdhack 1.50 50.00 LP1\n");
}

void PresetScriptTest::pageSizeLine()
{
    QFETCH(QSizeF, size);
    QFETCH(QByteArray, line);
    PresetScript::Content preset = content();
    preset.userPageSize = size;
    QCOMPARE(PresetScript::text(preset, {}), QByteArray(head) + "lpoptions -pLP1\n" + line);
}

void PresetScriptTest::wholeScript()
{
    const PresetScript::Content preset{
        "LP1/draft",    "Preset2", "New Preset 2",
        "Two inches",   -1,        {"Darkness", "12", "Direct", "True", "Feed", "0", "Start", "1.000"},
        QSizeF(4, 2.25)};
    QCOMPARE(PresetScript::text(preset, {"PageSize", "w288h144", "Feed", "0", "GapSize", "3.000"}),
             QByteArray("#!/bin/bash\n"
                        "#name=New Preset 2\n"
                        "#description=Two inches\n"
                        "lpoptions -pLP1/draft -oDarkness=12 -oDirect=True -rFeed -rGapSize -oStart=1.000\n"
                        "ppdhack 4.00 2.25 LP1/draft\n"));
}

void PresetScriptTest::beyondAscii_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("fixed");
    QTest::addColumn<QByteArray>("whole");
    const auto row = [](const char *name, const char *text, const QByteArray &fixed, const char *whole) {
        QTest::newRow(name) << QString::fromUtf8(text) << fixed << QByteArray(whole);
    };
    row("Latin-1", "Größe",
        "Gr\xf6\xdf"
        "e",
        "Größe");
    row("first", "Étiquettes",
        "\xc9"
        "tiquettes",
        "Étiquettes");
    row("last of Latin-1", "ÿ", "\xff", "ÿ");
    row("euro", "5 €", "5 ?", "5 €");
    row("Japanese", "連続紙", "???", "連続紙");
    row("beyond the basic plane", "🏷", "??", "🏷");
    // It must not contain another line's key.
    row("keys", "é#index=1 -oStop=2 #name=x", "\xe9#index=1 -oStop=2 #name=x", "é%23index=1 %2DoStop=2 %23name=x");
    row("percent sign", "é%25%", "\xe9%25%", "é%2525%25");
    // This line ends where reading of the fixed line ends.
    row("lines", "é1\né2",
        "\xe9"
        "1\n\xe9"
        "2",
        "é1");
    row("tabulator", "é1\té2",
        "\xe9"
        "1\t\xe9"
        "2",
        "é1");
}

void PresetScriptTest::beyondAscii()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, fixed);
    QFETCH(QByteArray, whole);
    PresetScript::Content preset = content();
    preset.name = text;
    QCOMPARE(PresetScript::text(preset, {}),
             head + ("#name=" + fixed + "\nlpoptions -pLP1\n#name-utf8=" + whole + '\n'));
    preset.name = preset.fileName;
    preset.description = text;
    preset.userPageSize = QSizeF(1, 2);
    const QByteArray script = PresetScript::text(preset, {});
    QCOMPARE(script, head
                         + ("#description=" + fixed
                            + "\nlpoptions -pLP1\nppdhack 1.00 2.00 LP1\n#description-utf8=" + whole + '\n'));

    QString read;
    QVERIFY(PresetScript::parseText(script, "description", read));
    QCOMPARE(read, text.section(QRegularExpression("[\n\t]"), 0, 0));
    // Readers that only know the fixed line read it as before.
    QVERIFY(PresetScript::parseAttribute(script, "description", read));
    QCOMPARE(read, QString::fromLatin1(fixed).section(QRegularExpression("[^ -~]"), 0, 0));
}

void PresetScriptTest::needsNoWholeLine()
{
    PresetScript::Content preset = content();
    preset.name = "plain\x7f~";
    preset.description = QString::fromUtf8("plain\nbehind é");
    QCOMPARE(PresetScript::text(preset, {}),
             QByteArray("#!/bin/bash\n#name=plain\x7f~\n#description=plain\nbehind \xe9\n"
                        "lpoptions -pLP1\n"));
    // The name is the file's, which needs no line.
    preset = content();
    preset.name = preset.fileName = QString::fromUtf8("Größe");
    QCOMPARE(PresetScript::text(preset, {}), QByteArray("#!/bin/bash\nlpoptions -pLP1\n"));
}

void PresetScriptTest::parseText_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("found");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *name, const QByteArray &data, const char *value) {
        QTest::newRow(name) << data << (value != nullptr) << QString::fromUtf8(value ? value : "untouched");
    };
    row("no whole line",
        "#name=Gr\xf6\xdf"
        "e\n",
        "Gr");
    row("whole line", "#name=Gr\xf6n\nlpoptions -pLP1\n#name-utf8=Grün\n", "Gr"); // ö is not ü
    row("written with it", "#name=Gr\xfcn\nlpoptions -pLP1\n#name-utf8=Grün\n", "Grün");
    row("end of data", "#name=Gr\xfcn\n#name-utf8=Grün", "Grün");
    row("encoded", "#name=\xfc-%#\n#name-utf8=ü%2D%25%23\n", "ü-%#");
    // Somebody who edits the script by hand changes the line that he knows.
    row("edited by hand", "#name=Blau\n#name-utf8=Grün\n", "Blau");
    row("edited by hand in part", "#name=Gr\xfcn 2\n#name-utf8=Grün\n", "Gr");
    row("emptied by hand", "#name=\n#name-utf8=Grün\n", "");
    row("removed by hand", "#!/bin/bash\n#name-utf8=Grün\n", nullptr);
    row("last of two", "#name=Gr\xfcn\n#name-utf8=Blau\n#name-utf8=Grün\n", "Grün");
    row("not at a line's start", "#name=Gr\xfcn\n #name-utf8=Grün\n", "Gr");
    row("of another key", "#name=Gr\xfcn\n#description-utf8=Grün\n", "Gr");
    row("not UTF-8", "#name=?\n#name-utf8=\xfc\n", "\uFFFD");
    row("a hidden line break", "#name=a?\n#name-utf8=a€%0Aid\n", "a?");
    row("no data", "", nullptr);
}

void PresetScriptTest::parseText()
{
    QFETCH(QByteArray, data);
    QString value = "untouched";
    QTEST(PresetScript::parseText(data, "name", value), "found");
    QTEST(value, "value");
}

void PresetScriptTest::queueForShells_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<bool>("isPlain");
    for (const char *name : {"LP1", "LP1/draft", "Label_2-b.x@host:9100", "100%", "a,b+c=d!^", "Drücker"})
        QTest::newRow(name) << QString::fromUtf8(name) << true;
    for (const char *name : {"q&x;y$z", "$(id)", "`id`", "a|b",   "a<b",   "a>b", "a(b)", "a'b",  "a\"b", "a\\b",
                             "a*",      "a?",    "[a]",  "{a,b}", "~root", "#a",  "a b",  "a\tb", "a\nb", "ラベル"})
        QTest::newRow(name) << QString::fromUtf8(name) << false;
}

// A shell takes the name of the queue literally, or the script does nothing. It can be read in both cases.
void PresetScriptTest::queueForShells()
{
    QFETCH(QString, printer);
    QFETCH(bool, isPlain);
    PresetScript::Content preset = content({"Darkness", "7"});
    preset.printerName = printer;
    preset.name = "Name";
    preset.userPageSize = QSizeF(1, 2);
    const QByteArray script = PresetScript::text(preset, {});
    QCOMPARE(script.startsWith("#!/bin/bash\n#name=Name\n"), isPlain);
    QCOMPARE(script.contains("\nexit 1\n#name=Name\n"), !isPlain);
    QString value;
    QVERIFY(PresetScript::parseAttribute(script, "name", value));
    QCOMPARE(value, QString("Name"));
    QVERIFY(PresetScript::parseOption(script, "Darkness", value));
    QCOMPARE(value, QString("7"));
    QSizeF size;
    QVERIFY(PresetScript::parsePpdhack(script, size));
    QCOMPARE(size, QSizeF(1, 2));
    QVERIFY(!PresetScript::parseAttribute(script, "description", value));
    QVERIFY(!PresetScript::parseAttribute(script, "index", value));
}

// ----- writing -----

void PresetScriptTest::writeMakesFoldersAndIsExecutable()
{
    const QString path = PresetFiles::script("LP1/draft", "Wide");
    const mode_t earlier = umask(027);
    const bool written = PresetScript::write(path, "text");
    umask(earlier);
    QVERIFY(written);
    QCOMPARE(PresetFiles::readFile(path), QByteArray("text"));
    QCOMPARE(PresetFiles::entries(PresetFiles::folder("LP1/draft")), QStringList{"Wide.sh"});
    // What the user does not grant to others is not granted, except that it may be run.
    QCOMPARE(modeOf(path) & 07777, mode_t(0751));
}

void PresetScriptTest::writeKeepsPermissions()
{
    const QString path = PresetFiles::script("LP1", "Wide");
    QVERIFY(PresetFiles::writeFile(path, "a longer text"));
    QCOMPARE(chmod(QFile::encodeName(path).constData(), 0640), 0);
    QVERIFY(PresetScript::write(path, "text"));
    QCOMPARE(PresetFiles::readFile(path), QByteArray("text"));
    QCOMPARE(modeOf(path) & 07777, mode_t(0751));
}

void PresetScriptTest::writeReplacesLink_data()
{
    QTest::addColumn<QString>("target");
    for (const char *target : {"../../outside", "../inside.sh", "chain", "itself.sh", "missing", "folder", "pipe"})
        QTest::newRow(target) << target;
}

// The target of a link is not changed or made executable.
void PresetScriptTest::writeReplacesLink()
{
    QFETCH(QString, target);
    const QString folder = PresetFiles::folder("LP1");
    const QString path = folder + "/itself.sh";
    QVERIFY(PresetFiles::writeFile(home() + "/outside", "earlier"));
    QVERIFY(PresetFiles::writeFile(PresetFiles::root() + "/inside.sh", "earlier"));
    QVERIFY(QDir().mkpath(folder + "/folder"));
    QCOMPARE(mkfifo(QFile::encodeName(folder + "/pipe").constData(), 0600), 0);
    QCOMPARE(symlink("link", QFile::encodeName(folder + "/chain").constData()), 0);
    QCOMPARE(symlink("../../outside", QFile::encodeName(folder + "/link").constData()), 0);
    QCOMPARE(symlink(QFile::encodeName(target).constData(), QFile::encodeName(path).constData()), 0);
    const auto others = [&] {
        QList<mode_t> modes;
        for (const QString &name : {home() + "/outside", PresetFiles::root() + "/inside.sh", folder + "/folder",
                                    folder + "/pipe", folder + "/chain", folder + "/link", folder + "/missing"})
            modes << modeOf(name);
        return modes;
    };
    const QList<mode_t> modes = others();
    const QStringList entries = PresetFiles::entries(folder);

    QVERIFY(PresetScript::write(path, "text"));
    QVERIFY(S_ISREG(modeOf(path)));
    QCOMPARE(PresetFiles::readFile(path), QByteArray("text"));
    QCOMPARE(others(), modes);
    QCOMPARE(PresetFiles::entries(folder), entries);
    QCOMPARE(PresetFiles::readFile(home() + "/outside"), QByteArray("earlier"));
    QCOMPARE(PresetFiles::readFile(PresetFiles::root() + "/inside.sh"), QByteArray("earlier"));
    QVERIFY(QFile::remove(home() + "/outside"));
}

void PresetScriptTest::writeRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("folder") << "folder";
    QTest::newRow("pipe") << "pipe";
    QTest::newRow("folder cannot be made") << "notes/Wide";
}

// Nothing of the system's serves as an example here: a fault, as the superuser, would replace it.
void PresetScriptTest::writeRefused()
{
    QFETCH(QString, file);
    const QString path = PresetFiles::script("LP1", file);
    QVERIFY(PresetFiles::writeFile(PresetFiles::folder("LP1/notes"), "a file"));
    QVERIFY(QDir().mkdir(PresetFiles::script("LP1", "folder")));
    QCOMPARE(mkfifo(QFile::encodeName(PresetFiles::script("LP1", "pipe")).constData(), 0600), 0);
    const mode_t earlier = modeOf(path);
    const QStringList entries = PresetFiles::entries(PresetFiles::folder("LP1"));

    QVERIFY(!PresetScript::write(path, "text"));
    QVERIFY(PresetScript::create(path, "text") != PresetFolder::Done);
    QCOMPARE(modeOf(path), earlier);
    QCOMPARE(PresetFiles::entries(PresetFiles::folder("LP1")), entries);
    QVERIFY(!PresetScript::write(QString(), "text"));
}

void PresetScriptTest::linkedFolder_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("printer");
    QTest::newRow("of the queue") << "LP1"
                                  << "../elsewhere"
                                  << "LP1";
    QTest::newRow("of another queue") << "LP1"
                                      << "LP2"
                                      << "LP1";
    QTest::newRow("of an instance") << "LP2/draft"
                                    << "../../elsewhere"
                                    << "LP2/draft";
    QTest::newRow("of an instance's queue") << "LP1"
                                            << "../elsewhere"
                                            << "LP1/draft";
    QTest::newRow("chain") << "LP1"
                           << "chain"
                           << "LP1";
    QTest::newRow("to nothing") << "LP1"
                                << "../missing"
                                << "LP1";
    QTest::newRow("to a file") << "LP1"
                               << "../elsewhere/Wide.sh"
                               << "LP1";
}

// Nothing is written, removed or created in the target of a folder's link. Reading is allowed.
void PresetScriptTest::linkedFolder()
{
    QFETCH(QString, link);
    QFETCH(QString, target);
    QFETCH(QString, printer);
    const QString elsewhere = home() + "/elsewhere";
    QVERIFY(PresetFiles::writeFile(elsewhere + "/Wide.sh", "earlier"));
    QVERIFY(QDir().mkpath(elsewhere + "/draft") && QDir().mkpath(PresetFiles::folder("LP2")));
    QCOMPARE(symlink("../elsewhere", QFile::encodeName(PresetFiles::folder("chain")).constData()), 0);
    QCOMPARE(symlink(QFile::encodeName(target).constData(), QFile::encodeName(PresetFiles::folder(link)).constData()),
             0);

    for (const char *file : {"Wide", "New", "sub/New"}) {
        const QString path = PresetFiles::script(printer, file);
        QVERIFY(!PresetScript::write(path, "text"));
        QCOMPARE(PresetScript::create(path, "text"), PresetFolder::Failed);
        QVERIFY(!PresetScript::remove(path));
    }
    QCOMPARE(PresetFiles::readFile(elsewhere + "/Wide.sh"), QByteArray("earlier"));
    QCOMPARE(PresetFiles::entries(elsewhere), (QStringList{"Wide.sh", "draft"}));
    QCOMPARE(PresetFiles::entries(elsewhere + "/draft"), QStringList());
    QVERIFY(!QFile::exists(home() + "/missing"));
    QVERIFY(S_ISLNK(modeOf(PresetFiles::folder(link))));
    QVERIFY(QDir(elsewhere).removeRecursively());
}

// The user may put $HOME/.cups elsewhere.
void PresetScriptTest::linkedRoot()
{
    QVERIFY(QDir(PresetFiles::root()).removeRecursively() && QDir().mkpath(home() + "/dotfiles/cups"));
    QVERIFY(QFile::link(home() + "/dotfiles/cups", PresetFiles::root()));
    const bool written = PresetScript::write(PresetFiles::script("LP1", "Wide"), "text");
    const QByteArray text = PresetFiles::readFile(home() + "/dotfiles/cups/LP1/Wide.sh");
    QVERIFY(QFile::remove(PresetFiles::root()) && QDir(home() + "/dotfiles").removeRecursively());
    QVERIFY(written);
    QCOMPARE(text, QByteArray("text"));
}

void PresetScriptTest::createTakesNoName_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file : {"file", "folder", "pipe", "link", "dangling"})
        QTest::newRow(file) << file;
}

void PresetScriptTest::createTakesNoName()
{
    QFETCH(QString, file);
    const QString path = PresetFiles::script("LP1", file);
    QVERIFY(PresetFiles::writeFile(PresetFiles::script("LP1", "file"), "earlier"));
    QVERIFY(QDir().mkdir(PresetFiles::script("LP1", "folder")));
    QCOMPARE(mkfifo(QFile::encodeName(PresetFiles::script("LP1", "pipe")).constData(), 0600), 0);
    QCOMPARE(symlink("file.sh", QFile::encodeName(PresetFiles::script("LP1", "link")).constData()), 0);
    QCOMPARE(symlink("new.sh", QFile::encodeName(PresetFiles::script("LP1", "dangling")).constData()), 0);
    const mode_t earlier = modeOf(path);
    const QStringList entries = PresetFiles::entries(PresetFiles::folder("LP1"));
    QVERIFY(PresetScript::exists(path));
    QCOMPARE(PresetScript::create(path, "text"), PresetFolder::Taken);
    QCOMPARE(modeOf(path), earlier);
    QCOMPARE(PresetFiles::readFile(PresetFiles::script("LP1", "file")), QByteArray("earlier"));
    QCOMPARE(PresetFiles::entries(PresetFiles::folder("LP1")), entries);
}

void PresetScriptTest::create()
{
    const QString path = PresetFiles::script("LP1/draft", "Wide");
    QVERIFY(!PresetScript::exists(path));
    const mode_t earlier = umask(027);
    const PresetFolder::Result result = PresetScript::create(path, "text");
    umask(earlier);
    QCOMPARE(result, PresetFolder::Done);
    QCOMPARE(PresetFiles::readFile(path), QByteArray("text"));
    QCOMPARE(modeOf(path) & 07777, mode_t(0751));
    QCOMPARE(PresetFiles::entries(PresetFiles::folder("LP1/draft")), QStringList{"Wide.sh"});
    QVERIFY(PresetScript::exists(path));
}

// When root saves in a user's home, the user can use all files.
void PresetScriptTest::ownersOfUsers()
{
    constexpr uid_t user = 65534;
    const auto ownerOf = [](const QString &path) {
        struct stat status = {};
        return lstat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_uid : 0;
    };
    const uid_t self = geteuid();
    const uid_t owner = self == 0 ? user : self; // only root can change the owner of files
    const QString existing = PresetFiles::script("LP1", "Existing");
    QVERIFY(PresetFiles::writeFile(existing, "earlier") && QDir(PresetFiles::root()).exists());
    for (const QString &path : {home(), existing})
        QCOMPARE(chown(QFile::encodeName(path).constData(), owner, static_cast<gid_t>(-1)), 0);

    QVERIFY(PresetScript::write(existing, "text"));
    QCOMPARE(ownerOf(existing), owner);
    // The folder of this queue belongs to root, and so do new files in it.
    QVERIFY(PresetScript::write(PresetFiles::script("LP1", "New"), "text"));
    QCOMPARE(ownerOf(PresetFiles::script("LP1", "New")), self);

    QVERIFY(QDir(PresetFiles::root()).removeRecursively());
    QVERIFY(PresetScript::write(PresetFiles::script("LP1/draft", "New"), "text"));
    QCOMPARE(PresetScript::create(PresetFiles::script("LP1/draft", "Other"), "text"), PresetFolder::Done);
    for (const QString &path : {PresetFiles::root(), PresetFiles::folder("LP1"), PresetFiles::folder("LP1/draft"),
                                PresetFiles::script("LP1/draft", "New"), PresetFiles::script("LP1/draft", "Other")})
        QCOMPARE(ownerOf(path), owner);
    QCOMPARE(chown(QFile::encodeName(home()).constData(), self, static_cast<gid_t>(-1)), 0);
}

// A file left by a process with the same id that was killed while writing.
void PresetScriptTest::writeBesideLeftovers()
{
    const QString leftover =
        PresetFiles::folder("LP1") + "/.new-" + QString::number(QCoreApplication::applicationPid()) + "-0";
    QVERIFY(PresetFiles::writeFile(leftover, "half"));
    QVERIFY(PresetScript::write(PresetFiles::script("LP1", "Wide"), "text"));
    QCOMPARE(PresetFiles::readFile(PresetFiles::script("LP1", "Wide")), QByteArray("text"));
    QCOMPARE(PresetFiles::readFile(leftover), QByteArray("half"));
}

void PresetScriptTest::writeIntoReadOnlyFolder()
{
    const QByteArray folder = QFile::encodeName(PresetFiles::folder("LP1"));
    const QString path = PresetFiles::script("LP1", "Wide");
    QVERIFY(PresetFiles::writeFile(path, "earlier"));
    QCOMPARE(chmod(folder.constData(), 0555), 0);
    bool bound = false;
    bool written = true;
    {
        const PresetFiles::Unprivileged user;
        bound = user.isBound();
        written = PresetScript::write(path, "text");
    }
    QCOMPARE(chmod(folder.constData(), 0755), 0);
    QVERIFY(bound);
    QVERIFY(!written);
    QCOMPARE(PresetFiles::readFile(path), QByteArray("earlier"));
    QVERIFY(PresetScript::write(path, "text"));
}

void PresetScriptTest::writeOverReadOnlyFile()
{
    const QString path = PresetFiles::script("LP1", "Wide");
    QVERIFY(PresetFiles::writeFile(path, "earlier"));
    QCOMPARE(chmod(QFile::encodeName(path).constData(), 0444), 0);
    QCOMPARE(chmod(QFile::encodeName(PresetFiles::folder("LP1")).constData(), 0777), 0);
    const PresetFiles::Unprivileged user;
    QVERIFY(user.isBound());
    QVERIFY(PresetScript::write(PresetFiles::script("LP1", "Narrow"), "text"));
    QVERIFY(!PresetScript::write(path, "text"));
    QCOMPARE(PresetFiles::readFile(path), QByteArray("earlier"));
}

void PresetScriptTest::writeOnFullDisk()
{
    const QString path = PresetFiles::script("LP1", "Wide");
    QVERIFY(PresetFiles::writeFile(path, "earlier"));
    bool written = true;
    {
        const FileSizeLimit limit(100);
        written = PresetScript::write(path, QByteArray(101, 'x'));
    }
    QVERIFY(!written);
    QCOMPARE(PresetFiles::readFile(path), QByteArray("earlier"));
    QCOMPARE(PresetFiles::entries(PresetFiles::folder("LP1")), QStringList{"Wide.sh"});
    {
        const FileSizeLimit limit(100);
        written = PresetScript::write(path, QByteArray(100, 'x'));
    }
    QVERIFY(written);
}

void PresetScriptTest::remove()
{
    const QString path = PresetFiles::script("LP1", "Wide");
    QVERIFY(!PresetScript::remove(path));
    QVERIFY(PresetFiles::writeFile(path, "text"));
    QVERIFY(PresetScript::remove(path));
    QVERIFY(!QFile::exists(path));
    QVERIFY(QDir().mkdir(path));
    QVERIFY(!PresetScript::remove(path));
    QVERIFY(!PresetScript::remove(QString()));
}

// ----- reading -----

void PresetScriptTest::readWithinLimit_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray every;
    for (int byte = 0; byte < 256; ++byte)
        every += static_cast<char>(byte);
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text") << QByteArray("#!/bin/bash\r\n");
    QTest::newRow("binary") << every;
    QTest::newRow("largest") << QByteArray(1024 * 1024, 'x');
}

void PresetScriptTest::readWithinLimit()
{
    QFETCH(QByteArray, bytes);
    const QString path = PresetFiles::script("LP1", "Wide");
    QVERIFY(PresetFiles::writeFile(path, bytes));
    const std::optional<QByteArray> data = PresetScript::read(path);
    QVERIFY(data.has_value());
    QCOMPARE(*data, bytes);
    // Also through a link.
    QVERIFY(QFile::link(path, path + ".link"));
    QCOMPARE(PresetScript::read(path + ".link").value_or("nothing"), bytes);
}

void PresetScriptTest::readRefused_data()
{
    QTest::addColumn<QString>("file");
    for (const char *name :
         {"missing", "large", "larger", "dangling", "folder", "folderlink", "pipe", "pipelink", "socket", "device"})
        QTest::newRow(name) << name;
}

// Reading a pipe would block, reading this device would never end.
void PresetScriptTest::readRefused()
{
    QFETCH(QString, file);
    const QString folder = PresetFiles::folder("LP1");
    QVERIFY(PresetFiles::writeFile(folder + "/large", QByteArray(1024 * 1024 + 1, 'x')));
    QVERIFY(PresetFiles::writeFile(folder + "/larger", QByteArray(10 * 1024 * 1024, 'x')));
    QVERIFY(QFile::link(folder + "/nowhere", folder + "/dangling"));
    QVERIFY(QDir().mkdir(folder + "/folder"));
    QVERIFY(QFile::link(folder + "/folder", folder + "/folderlink"));
    QCOMPARE(mkfifo(QFile::encodeName(folder + "/pipe").constData(), 0600), 0);
    QVERIFY(QFile::link(folder + "/pipe", folder + "/pipelink"));
    QVERIFY(QFile::link("/dev/zero", folder + "/device"));
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(folder + "/socket").constData(), sizeof address.sun_path);
    const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
    const int bound = bind(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address);
    close(fd);
    QCOMPARE(bound, 0);

    QVERIFY(!PresetScript::read(folder + '/' + file).has_value());
    QVERIFY(!PresetScript::read(QString()).has_value());
}

void PresetScriptTest::readUnreadable()
{
    const QString path = PresetFiles::script("LP1", "Wide");
    QVERIFY(PresetFiles::writeFile(path, "text"));
    {
        const PresetFiles::Unprivileged user;
        QCOMPARE(PresetScript::read(path).value_or("nothing"), QByteArray("text"));
    }
    QCOMPARE(chmod(QFile::encodeName(path).constData(), 0), 0);
    const PresetFiles::Unprivileged user;
    QVERIFY(user.isBound());
    QVERIFY(!PresetScript::read(path).has_value());
}

void PresetScriptTest::parseAttribute_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("found");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *name, const QByteArray &data, const char *value, const char *key = "name") {
        QTest::newRow(name) << data << QString(key) << (value != nullptr) << (value ? value : "untouched");
    };
    row("line", "#!/bin/bash\n#name=Wide\n#description=x\n", "Wide");
    row("description", "#name=Wide\n#description=For wide labels\n", "For wide labels", "description");
    row("index", "#index=12\n", "12", "index");
    row("end of data", "#name=Wide", "Wide");
    row("not at a line's start", "echo #name=Wide\n", "Wide");
    row("first", "#name=one\n#name=two\n", "one");
    row("empty", "#name=\n#name=two\n", "");
    row("empty at the end of data", "#name=", "");
    row("blanks", "#name= a b \n", " a b ");
    row("equals sign and mark", "#name=a=#b\n", "a=#b");
    row("tabulator", "#name=a\tb\n", "a");
    row("carriage return", "#name=a\r\n", "a");
    row("last control character",
        "#name=a\x1f"
        "b\n",
        "a");
    row("delete",
        "#name=a\x7f"
        "b\n",
        "a\x7f"
        "b");
    row("0x80",
        "#name=a\x80"
        "b\n",
        "a");
    row("0xff",
        "#name=a\xff"
        "b\n",
        "a");
    row("NUL", QByteArray("#name=a\0b\n", 10), "a");
    row("behind a NUL", QByteArray("\0#name=a\n", 9), "a");
    row("longer key first", "#names=one\n#name=two\n", "two");
    row("no data", "", nullptr);
    row("no mark", "name=a\n", nullptr);
    row("no equals sign", "#name\n", nullptr);
    row("blank before the sign", "#name =a\n", nullptr);
    row("case", "#Name=a\n", nullptr);
    row("other key", "#name=a\n", nullptr, "description");
}

void PresetScriptTest::parseAttribute()
{
    QFETCH(QByteArray, data);
    QFETCH(QString, key);
    QString value = "untouched";
    QTEST(PresetScript::parseAttribute(data, key, value), "found");
    QTEST(value, "value");
}

void PresetScriptTest::parseOption_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("found");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *name, const QByteArray &data, const char *value) {
        QTest::newRow(name) << data << (value != nullptr) << (value ? value : "untouched");
    };
    row("first item", "lpoptions -pLP1 -oStop=12 -oFeed=3\n", "12");
    row("last item", "lpoptions -pLP1 -oFeed=3 -oStop=12\n", "12");
    row("end of data", " -oStop=12", "12");
    row("first occurrence", " -oStop=1 -oStop=2\n", "1");
    row("occurrence in the description", "#description=x -oStop=1\nlpoptions -pLP1 -oStop=2\n", "1");
    row("empty", " -oStop= -oFeed=3\n", "");
    row("empty at the end of data", " -oStop=", "");
    row("equals sign", " -oStop=a=b\n", "a=b");
    row("tabulator", " -oStop=a\tb\n", "a");
    row("first that is no blank", " -oStop=a!b\n", "a!b");
    row("delete",
        " -oStop=a\x7f"
        "b\n",
        "a\x7f"
        "b");
    row("0x80",
        " -oStop=a\x80"
        "b\n",
        "a");
    row("0xff",
        " -oStop=a\xff"
        "b\n",
        "a");
    row("NUL", QByteArray(" -oStop=a\0b\n", 12), "a");
    row("one backslash", " -oStop=a\\r\n", "a\\r");
    row("two backslashes", " -oStop=C:\\\\dir\n", "C:\\\\dir");
    row("three backslashes", " -oStop=\\\\\\\n", "\\\\\\");
    row("four backslashes", " -oStop=a\\\\\\\\rb\\\\\\\\r\n", "a\\rb\\r");
    row("five backslashes", " -oStop=\\\\\\\\\\\n", "\\\\");
    row("eight backslashes", " -oStop=\\\\\\\\\\\\\\\\\n", "\\\\");
    row("quotes", " -oStop='a b' -oFeed=3\n", "'a");
    row("flag", " -oStop=True\n", "True");
    row("no data", "", nullptr);
    row("removal", " -rStop -oFeed=3\n", nullptr);
    row("no value", " -oStop -oStop=1\n", nullptr);
    row("nothing behind it", " -oStop", nullptr);
    row("longer keyword first", " -oStopper=1 -oStop=2\n", nullptr);
    row("longer keyword", " -oLabelStop=1\n", nullptr);
    row("no blank before it", "-oStop=1\n", nullptr);
    row("tabulator before it", "\t-oStop=1\n", nullptr);
    row("case", " -ostop=1\n", nullptr);
}

void PresetScriptTest::parseOption()
{
    QFETCH(QByteArray, data);
    QString value = "untouched";
    QTEST(PresetScript::parseOption(data, "Stop", value), "found");
    QTEST(value, "value");
}

void PresetScriptTest::parsePpdhack_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("found");
    QTest::addColumn<QSizeF>("size");
    const QSizeF untouched(7, 7);
    const auto row = [](const char *name, const QByteArray &data, bool found, const QSizeF &size) {
        QTest::newRow(name) << data << found << size;
    };
    row("line", "#!/bin/bash\nppdhack 101.60 152.40 LP1\n", true, QSizeF(101.6, 152.4));
    row("end of data", "ppdhack 1 2 LP1", true, QSizeF(1, 2));
    row("no printer", "ppdhack 1 2\n", true, QSizeF(1, 2));
    row("more", "ppdhack 1 2 LP1 x y\n", true, QSizeF(1, 2));
    row("exponent", "ppdhack 1e2 2E-1 LP1\n", true, QSizeF(100, 0.2));
    row("longer command", "ppdhackers 1 2 LP1\n", true, QSizeF(1, 2));
    row("first valid line", "ppdhack 0 5 LP1\nppdhack\nppdhack 10.00 20.00 LP1\nppdhack 3 4 LP1\n", true,
        QSizeF(10, 20));
    row("no data", "", false, untouched);
    row("no width", "ppdhack 0 5 LP1\n", false, untouched);
    row("no height", "ppdhack 5 0 LP1\n", false, untouched);
    row("negative", "ppdhack -1 5 LP1\n", false, untouched);
    row("comma", "ppdhack 1,5 2,5 LP1\n", false, untouched);
    row("groups", "ppdhack 1,000 2,000 LP1\n", false, untouched);
    row("no numbers", "ppdhack a b LP1\n", false, untouched);
    row("a unit", "ppdhack 1in 2in LP1\n", false, untouched);
    row("two parts", "ppdhack 1\n", false, untouched);
    row("two blanks", "ppdhack  1 2 LP1\n", false, untouched);
    row("tabulators", "ppdhack\t1\t2\tLP1\n", false, untouched);
    row("not at a line's start", " ppdhack 1 2 LP1\n", false, untouched);
    row("carriage returns", "x\rppdhack 1 2 LP1\r", false, untouched);
    row("case", "PPDHACK 1 2 LP1\n", false, untouched);
    row("behind a NUL", QByteArray("x\0\nppdhack 1 2 LP1\n", 19), false, untouched);
    row("behind a NUL at the start", QByteArray("\0\nppdhack 1 2 LP1\n", 18), false, untouched);
    row("before a NUL", QByteArray("ppdhack 1 2\0 LP1\n", 17), true, QSizeF(1, 2));
}

void PresetScriptTest::parsePpdhack()
{
    QFETCH(QByteArray, data);
    QSizeF size(7, 7);
    QTEST(PresetScript::parsePpdhack(data, size), "found");
    QTEST(size, "size");
}

PROPERTIESDIALOG_TEST_MAIN(PresetScriptTest)
#include "PresetScriptTest.moc"
