// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "CupsTest.h"
#include "Forked.h"
#include "OpenDialog.h"
#include "TestMain.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <memory>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <sys/xattr.h>
#include <unistd.h>

// Prints the options of destination NAME[/INSTANCE] as libcups reads them, values in hexadecimal.
static int printOptionsOf(const QByteArray &destination)
{
    const QByteArrayList names = destination.split('/');
    cups_dest_t *dests = nullptr;
    const int count = cupsGetDests(&dests);
    const cups_dest_t *dest =
        cupsGetDest(names.at(0).constData(), names.size() > 1 ? names.at(1).constData() : nullptr, count, dests);
    for (int i = 0; dest != nullptr && i < dest->num_options; ++i) {
        const cups_option_t &option = dest->options[i];
        std::printf("%s %s\n", option.name, QByteArray(option.value).toHex().constData());
    }
    const bool found = dest != nullptr;
    cupsFreeDests(count, dests);
    std::fflush(stdout);
    return found ? 0 : 1;
}

static int printOptions(int &, char **argv)
{
    return printOptionsOf(argv[1]);
}
static const TestMain::ChildFunction printOptionsFunction("printOptions", printOptions);

// Prints the options of the destinations in its standard input, each in a copy of this process that has not used
// libcups yet, and ends each with a line "= STATUS".
static int printOptionsOfEach(int &, char **)
{
    char destination[256];
    while (std::fgets(destination, sizeof destination, stdin) != nullptr) {
        const int status = inCopy([&] { return printOptionsOf(QByteArray(destination).trimmed()); });
        std::printf("= %d\n", status);
        std::fflush(stdout);
    }
    return 0;
}
static const TestMain::ChildFunction printOptionsOfEachFunction("printOptionsOfEach", printOptionsOfEach);

// Saves where no file can grow beyond so many bytes, as on a full disk; prints what setDests() returned.
static int saveWithLimit(int &, char **argv)
{
    CupsSupport cups;
    cups.setDarkness(5);
    const rlim_t bytes = QByteArray(argv[1]).toULong();
    const rlimit limit = {bytes, bytes};
    std::signal(SIGXFSZ, SIG_IGN);
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
        return 1;
    const int result = cups.setDests();
    std::printf("%d\n", result);
    return 0;
}
static const TestMain::ChildFunction saveWithLimitFunction("saveWithLimit", saveWithLimit);

// Reads the options of destinations as a new program does, without starting one each time.
class FreshReader
{
public:
    ~FreshReader()
    {
        child.process.closeWriteChannel();
        child.result();
    }

    Options read(const QString &destination)
    {
        child.process.write(destination.toLatin1() + '\n');
        Options options;
        for (;;) {
            while (!child.process.canReadLine())
                if (!child.process.waitForReadyRead(60000))
                    qFatal("the reader does not answer");
            const QByteArrayList parts = child.process.readLine().trimmed().split(' ');
            if (parts == QByteArrayList{"=", "0"})
                return options;
            if (parts.at(0) == "=")
                qFatal("%s is not listed", qPrintable(destination));
            options.insert(parts.at(0), QByteArray::fromHex(parts.value(1)));
        }
    }

private:
    TestMain::Child child{"printOptionsOfEach"};
};

// Chooses a value, saves, and prints the value as a dialog finds it then: PRINTER KEYWORD VALUE
static int choose(int &, char **argv)
{
    CupsSupport cups;
    cups.setCurrentPrinter(QByteArray(argv[1]).toInt());
    cups.setValue(argv[2], argv[3]);
    if (cups.setDests() != 0)
        return 1;
    CupsSupport again;
    again.setCurrentPrinter(QByteArray(argv[1]).toInt());
    const char *value = again.getValue(argv[2]);
    std::printf("%s\n", value ? value : "");
    return 0;
}
static const TestMain::ChildFunction chooseFunction("choose", choose);

// If this fails, saved settings of this or other printers are lost or read back differently.
class OptionsFileTest : public CupsTest
{
    Q_OBJECT

private slots:
    void valueReadsBack_data();
    void valueReadsBack();
    void everyCharacterReadsBack_data();
    void everyCharacterReadsBack();
    void valuesOfSeveralOptionsReadBack();
    void optionOfAnyNameReadsBack_data();
    void optionOfAnyNameReadsBack();
    void instanceReadsBack();
    void savingAgainChangesNothing();
    void valueThatCannotBeReadBackKeepsTheFile_data();
    void valueThatCannotBeReadBackKeepsTheFile();
    void longestLine();
    void tooLongLineOfOtherDestination();

    void removedOptionIsGone();
    void entriesOfOtherQueuesAreKept();
    void entriesOfOtherQueuesWorkAgain();
    void earlierEntriesAreReplaced_data();
    void earlierEntriesAreReplaced();
    void defaultIsKept();
    void savedWithoutScheduler();

    void onlyChangesAreWritten();
    void untouchedLinesAreKept_data();
    void untouchedLinesAreKept();
    void nothingChangedNothingWritten();
    void laterChangesOfOthersAreKept();
    void bothChangeTheSame();
    void savingTwice();
    void readAgainAfterSaving();
    void newLineOfServerDefault_data();
    void newLineOfServerDefault();
    void lastOptionOfInstanceAndDefault();
    void schedulerDefaultsAreNotWritten();
    void emptyValueThatWasStored();
    void emptiedWithoutScheduler();
    void longLineOfOwnQueue();
    void reasonOfFailure();
    void anotherInstanceHoldsTheLock();

    void newFile();
    void newFolder();
    void permissionsAreKept_data();
    void permissionsAreKept();
    void ownerIsKept();
    void accessControlListIsKept();
    void folderThatCannotBeWritten();
    void newFolderBelongsToItsUser();
    void homeThatIsNoText();
    void defaultHoldsAgainstSystemWideOption_data();
    void defaultHoldsAgainstSystemWideOption();
    void symbolicLinkIsKept_data();
    void symbolicLinkIsKept();
    void linkToNothing();
    void linkToNoFile();
    void noHalfFile_data();
    void noHalfFile();
    void fileThatCannotBeReplaced();
    void folderThatCannotBeMade();

private:
    Options freshlyRead(const QString &destination);

    std::unique_ptr<FreshReader> reader;
};

Options OptionsFileTest::freshlyRead(const QString &destination)
{
    if (!reader)
        reader = std::make_unique<FreshReader>(); // the scheduler runs only now
    return reader->read(destination);
}

void OptionsFileTest::valueReadsBack_data()
{
    QTest::addColumn<QByteArray>("value");
    const auto row = [](const QByteArray &value) {
        QTest::newRow(value.isEmpty() ? "empty" : value.constData()) << value;
    };
    for (const char *value : {
             "",
             "a",
             "true",
             "True",
             "a b",
             " ",
             "  ",
             " a",
             "a ",
             " a b ", // words
             "#",
             "a#b",
             "#a",
             "a#",
             "##",
             "a#b#c#d",
             "# a #",
             "a # b",
             "a\\#b",
             "\\#",
             "#\\",
             "\\#\\#", // comments
             "\t",
             "a\tb",
             "\ta",
             "a\t",
             " \t ",
             "a\t#b", // white space
             "\"",
             "'",
             "a\"b",
             "a'b",
             "\"a\"",
             "'a'",
             "\"a",
             "'a",
             "a\"",
             "a'",
             "\"\"",
             "''",
             "'\"'\"",
             "it's # \"so\"", // quotes
             "\\",
             "\\\\",
             "a\\b",
             "a\\",
             "\\\"",
             "\\'",
             "C:\\dir\\x",
             "A\\\\rB\\\\r",
             "\\n",
             "\\040", // backslashes
             "{",
             "}",
             "{a",
             "a}",
             "{a}",
             "{a b}",
             "{a=b c=d}",
             "a{b}c",
             "}{",
             "{{}}",
             "{ #", // collections
             ",",
             "a,b",
             ",a",
             "a,",
             "a, b", // lists
             "=",
             "a=b",
             "a = b",
             "Darkness=9",
             "-",
             "--",
             "$HOME",
             "`x`",
             "a;b|c&d",
             "<a>",
             "*?[",
             "100%s%n", // others
             "\x01\x02\x1b\x7f",
             "a\vb",
             "a\fb",
             "\v",
             "\f",
             "Gr\366\337e", // in octal, which ends after three digits
             "\xa0",
             "\xff\x80",
             "5 \xe2\x82\xac",
         })
        row(value);
}

void OptionsFileTest::valueReadsBack()
{
    QFETCH(QByteArray, value);
    CupsSupport cups;
    // One option before it and one behind it in the line.
    QVERIFY(cups.setValue("Feed", "24") > 0);
    QVERIFY(cups.setValue("JobStart", value.constData()) > 0);
    QVERIFY(cups.setValue("PrintSpeed", "5") > 0);
    const qsizetype count = cups.cupsOptions().size() / 2;
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(saved(cups, "JobStart"), value);

    const Options options = freshlyRead("LP1");
    // The PPD file declares a default, which an empty value overrides. It is stored as a blank: other programs would
    // turn it into "true".
    QVERIFY(options.contains("JobStart"));
    QCOMPARE(options.value("JobStart"), value.isEmpty() ? QByteArray(" ") : value);
    QCOMPARE(options.value("Feed"), QByteArray("24"));
    QCOMPARE(options.value("PrintSpeed"), QByteArray("5"));
    QCOMPARE(options.size(), count);
}

void OptionsFileTest::everyCharacterReadsBack_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("alone") << QByteArray("") << QByteArray("");
    QTest::newRow("inside") << QByteArray("a") << QByteArray("b");
    QTest::newRow("beside blanks") << QByteArray("a ") << QByteArray(" b");
    QTest::newRow("beside quotes") << QByteArray("\"") << QByteArray("'");
    QTest::newRow("beside backslashes") << QByteArray("\\") << QByteArray("\\");
}

void OptionsFileTest::everyCharacterReadsBack()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const auto isLineBreak = [](int code) { return code == '\n' || code == '\r'; };
    CupsSupport cups;
    for (int code = 1; code < 256; ++code) {
        if (!isLineBreak(code)) {
            const QByteArray value = before + char(code) + after;
            QVERIFY(cups.setValue("Option" + QByteArray::number(code), value.constData()) > 0);
        }
    }
    QCOMPARE(cups.setDests(), 0);
    const Options options = freshlyRead("LP1");
    for (int code = 1; code < 256; ++code)
        if (!isLineBreak(code))
            QCOMPARE(options.value("Option" + QByteArray::number(code)), before + char(code) + after);
}

void OptionsFileTest::valuesOfSeveralOptionsReadBack()
{
    const Options values{
        {"JobEnd", "#1"},  {"JobStart", ""}, {"LabelEnd", "a\t#"}, {"LabelStart", ""},
        {"LabelX", "'#'"}, {"LabelY", "\""}, {"LabelZ", "{#"},
    };
    const auto cups = supportFor(LP2);
    for (auto it = values.begin(); it != values.end(); ++it)
        QVERIFY(cups->setValue(it.key(), it.value().constData()) > 0);
    QCOMPARE(cups->setDests(), 0);
    const Options options = freshlyRead("LP2");
    for (auto it = values.begin(); it != values.end(); ++it) {
        QCOMPARE(options.contains(it.key()), !it.value().isEmpty()); // there is no default to override
        QCOMPARE(options.value(it.key()), it.value());
    }
}

void OptionsFileTest::optionOfAnyNameReadsBack_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("value");
    // Some of these libcups knows, with types of their own.
    QTest::newRow("copies") << QByteArray("copies") << QByteArray("2");
    QTest::newRow("media") << QByteArray("media") << QByteArray("w288h432");
    QTest::newRow("job-sheets") << QByteArray("job-sheets") << QByteArray("standard,none");
    QTest::newRow("number-up") << QByteArray("number-up") << QByteArray("4");
    QTest::newRow("sides") << QByteArray("sides") << QByteArray("one-sided");
    QTest::newRow("finishings") << QByteArray("finishings") << QByteArray("4");
    QTest::newRow("page-ranges") << QByteArray("page-ranges") << QByteArray("1-3,5");
    QTest::newRow("orientation-requested") << QByteArray("orientation-requested") << QByteArray("6");
    QTest::newRow("printer-resolution") << QByteArray("printer-resolution") << QByteArray("300dpi");
    QTest::newRow("raw") << QByteArray("raw") << QByteArray("true");
    QTest::newRow("document-format") << QByteArray("document-format") << QByteArray("text/plain");
    QTest::newRow("page-left") << QByteArray("page-left") << QByteArray("18");
    QTest::newRow("begins with no") << QByteArray("noFeed") << QByteArray("1");
    QTest::newRow("dots") << QByteArray("com.example.x") << QByteArray("1.5");
}

void OptionsFileTest::optionOfAnyNameReadsBack()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, value);
    CupsSupport cups;
    QVERIFY(cups.setValue(name, value.constData()) > 0);
    QCOMPARE(cups.setDests(), 0);
    const Options options = freshlyRead("LP1");
    QVERIFY(options.contains(name));
    QCOMPARE(options.value(name), value);
}

void OptionsFileTest::instanceReadsBack()
{
    writeOptionsFile("Dest LP1/wide Darkness=4\n");
    CupsSupport cups;
    cups.setCurrentPrinter(1);
    QCOMPARE(cups.getCurrentQueueName(), QString("LP1/wide"));
    cups.setValue("JobStart", "# of\tit");
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(freshlyRead("LP1/wide").value("JobStart"), QByteArray("# of\tit"));
    QCOMPARE(freshlyRead("LP1/wide").value("Darkness"), QByteArray("4"));
    QVERIFY(!freshlyRead("LP1").contains("JobStart"));
}

void OptionsFileTest::savingAgainChangesNothing()
{
    writeOptionsFile("Dest GONE Darkness=4 X=\"a \\# b\"\nDefault LP1/wide\n");
    CupsSupport cups;
    cups.setValue("JobStart", "");
    cups.setValue("JobEnd", "a # b \\ \" \t");
    QCOMPARE(cups.setDests(), 0);
    const QByteArray first = readOptionsFile();
    QVERIFY(!first.isEmpty());
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(readOptionsFile(), first);
    CupsSupport fresh;
    QCOMPARE(fresh.setDests(), 0);
    QCOMPARE(readOptionsFile(), first);
}

void OptionsFileTest::valueThatCannotBeReadBackKeepsTheFile_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("line feed") << QByteArray("a\nb");
    QTest::newRow("line feed at the end") << QByteArray("a\n");
    QTest::newRow("line feed alone") << QByteArray("\n");
    QTest::newRow("carriage return") << QByteArray("a\rb");
    QTest::newRow("both") << QByteArray("a\r\nb");
    QTest::newRow("another entry") << QByteArray("a\nDefault LP3");
    QTest::newRow("too long") << QByteArray(9000, 'x');
    QTest::newRow("too long with its backslashes") << QByteArray(5000, '"');
    QTest::newRow("very long") << QByteArray(1000000, 'x');
}

void OptionsFileTest::valueThatCannotBeReadBackKeepsTheFile()
{
    QFETCH(QByteArray, value);
    const QByteArray before("Dest LP1 Darkness=4 # mine\nDest GONE Feed=24\n");
    writeOptionsFile(before);
    CupsSupport cups;
    cups.setDarkness(5);
    cups.setValue("JobStart", value.constData());
    QCOMPARE(cups.setDests(), -1);
    QCOMPARE(readOptionsFile(), before);
    QCOMPARE(QFileInfo(optionsPath()).dir().entryList(QDir::Files | QDir::Hidden), QStringList({"lpoptions"}));

    // Nothing is lost in memory, and without that value it can be saved.
    QCOMPARE(saved(cups, "JobStart"), value);
    cups.deleteOptions({"JobStart"});
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(freshlyRead("LP1").value("Darkness"), QByteArray("5"));
}

void OptionsFileTest::longestLine()
{
    // libcups reads lines of up to 8191 bytes.
    const int length = int(8191 - qstrlen("Dest LP1 JobStart="));
    CupsSupport cups;
    cups.setValue("JobStart", QByteArray(length, 'x').constData());
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(readOptionsFile().indexOf('\n'), 8191);
    QCOMPARE(freshlyRead("LP1").value("JobStart"), QByteArray(length, 'x'));

    cups.setValue("JobStart", QByteArray(length + 1, 'y').constData());
    QCOMPARE(cups.setDests(), -1);
    QCOMPARE(freshlyRead("LP1").value("JobStart"), QByteArray(length, 'x'));
}

void OptionsFileTest::tooLongLineOfOtherDestination()
{
    CupsSupport cups;
    cups.setValue("JobStart", QByteArray(9000, 'x').constData());
    cups.setCurrentPrinter(LP2);
    cups.setDarkness(5);
    QCOMPARE(cups.setDests(), -1);
    QVERIFY(!QFile::exists(optionsPath()));
}

void OptionsFileTest::removedOptionIsGone()
{
    writeOptionsFile("Dest LP1 Darkness=4 Feed=24\nDest LP2 Darkness=6\n");
    CupsSupport cups;
    cups.deleteOptions({"Darkness"});
    QCOMPARE(cups.setDests(), 0);
    QVERIFY(!freshlyRead("LP1").contains("Darkness"));
    QCOMPARE(freshlyRead("LP1").value("Feed"), QByteArray("24"));
    QCOMPARE(freshlyRead("LP2").value("Darkness"), QByteArray("6"));

    // Without options of the user a destination has no entry.
    cups.deleteOptions({"Feed"});
    QCOMPARE(cups.setDests(), 0);
    QVERIFY(!readOptionsFile().contains("LP1"));
}

void OptionsFileTest::entriesOfOtherQueuesAreKept()
{
    const QByteArrayList others{"Dest GONE Darkness=3 JobStart=\"a \\\"b\\\" \\# c\"", "Dest GONE/wide Feed=24",
                                "Default ELSEWHERE"};
    const QByteArray end = "\n" + others.at(1) + "\n\n" + others.at(2); // no line break at the end
    writeOptionsFile(others.at(0) + "\nDest LP1 Feed=24" + end);
    CupsSupport cups;
    cups.setDarkness(5);
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(readOptionsFile(), others.at(0) + "\nDest LP1 Darkness=5 Feed=24" + end);
}

void OptionsFileTest::entriesOfOtherQueuesWorkAgain()
{
    scheduler->addQueue("LP4");
    {
        const auto cups = supportFor(3);
        cups->setDarkness(5);
        cups->setValue("JobStart", "# one");
        QCOMPARE(cups->setDests(), 0);
    }
    scheduler->removeQueue("LP4");
    {
        CupsSupport cups;
        cups.setFeed(24);
        QCOMPARE(cups.setDests(), 0);
    }
    scheduler->addQueue("LP4");
    const Options options = freshlyRead("LP4");
    scheduler->removeQueue("LP4");
    QCOMPARE(options.value("Darkness"), QByteArray("5"));
    QCOMPARE(options.value("JobStart"), QByteArray("# one"));
}

void OptionsFileTest::earlierEntriesAreReplaced_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("entry") << QByteArray("Dest LP1 Darkness=4\n");
    QTest::newRow("other case") << QByteArray("DEST lp1 Darkness=4\n");
    QTest::newRow("blanks") << QByteArray("  Dest \t LP1 \t Darkness=4  \n");
    QTest::newRow("two entries") << QByteArray("Dest LP1 Darkness=3\nDest LP1 Darkness=4\n");
    QTest::newRow("comment behind") << QByteArray("Dest LP1 Darkness=4 # mine\n");
    QTest::newRow("no line break at the end") << QByteArray("Dest LP1 Darkness=4");
    QTest::newRow("no options") << QByteArray("Dest LP1\nDest LP1 Darkness=4\n");
}

void OptionsFileTest::earlierEntriesAreReplaced()
{
    QFETCH(QByteArray, file);
    writeOptionsFile(file);
    CupsSupport cups;
    QCOMPARE(cups.getDarkness(), 4);
    cups.deleteOptions({"Darkness"});
    cups.setFeed(24);
    QCOMPARE(cups.setDests(), 0);
    QVERIFY(!freshlyRead("LP1").contains("Darkness"));
    QCOMPARE(freshlyRead("LP1").value("Feed"), QByteArray("24"));
}

void OptionsFileTest::defaultIsKept()
{
    writeOptionsFile("Default LP2\n");
    CupsSupport cups;
    cups.setCurrentPrinter(LP1);
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(CupsSupport().getCurrentQueueName(), QString("LP2"));
}

void OptionsFileTest::savedWithoutScheduler()
{
    CupsSupport cups;
    cups.setDarkness(5);
    scheduler->stop();
    const int result = cups.setDests();
    scheduler->start();
    QCOMPARE(result, 0);
    QCOMPARE(freshlyRead("LP1").value("Darkness"), QByteArray("5"));
    QCOMPARE(freshlyRead("LP1").value("printer-info"), QByteArray("First Printer"));
}

void OptionsFileTest::onlyChangesAreWritten()
{
    writeOptionsFile("Dest LP1 Feed=24\n");
    CupsSupport cups;
    cups.setCurrentPrinter(LP1);
    cups.setDarkness(4);
    cups.setCurrentPrinter(LP2);
    cups.setDarkness(6);
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(readOptionsFile(), QByteArray("Dest LP1 Darkness=4 Feed=24\nDest LP2 Darkness=6\n"));
}

void OptionsFileTest::untouchedLinesAreKept_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::newRow("comments") << QByteArray("# mine\n\n  # and this\n");
    QTest::newRow("other words") << QByteArray("<Section>\nFoo bar\nDest\nDefault\n</Section>\n");
    QTest::newRow("other queue") << QByteArray("dest  LP2\tDarkness=6   X=\n");
    QTest::newRow("quotes") << QByteArray("Dest LP2 X='a\\b' Y=\"z Z=1\n");
    QTest::newRow("comment behind") << QByteArray("Dest LP2 Darkness=6 # mine\n");
    QTest::newRow("printer attribute") << QByteArray("Dest LP2 printer-info=x Darkness=6\n");
    QTest::newRow("overlong") << "Dest LP2 X=" + QByteArray(20000, 'x') + '\n';
    QTest::newRow("as long as can be") << "Dest LP2 X=" + QByteArray(8191 - 11, 'x') + '\n';
    QTest::newRow("overlong with another line in it")
        << "Dest LP2 X=" + QByteArray(8191 - 11, 'x') + "Dest LP1 Darkness=1\n";
    QTest::newRow("line ends of other systems") << QByteArray("Dest LP2 Feed=1\r\nDest LP3 Feed=2\r# x\n");
    QTest::newRow("binary") << QByteArray("\x01\xff\0\x80 \xc3\n\0\n", 9);
    QTest::newRow("instance") << QByteArray("Dest LP1/wide Darkness=6\nDest LP2/wide\n");
    QTest::newRow("no line break at the end") << QByteArray("Dest LP2 Darkness=6");
}

void OptionsFileTest::untouchedLinesAreKept()
{
    QFETCH(QByteArray, lines);
    writeOptionsFile("Dest LP1 Feed=24\n" + lines);
    CupsSupport cups;
    cups.setCurrentPrinter(LP1);
    cups.setDarkness(5);
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(readOptionsFile(), "Dest LP1 Darkness=5 Feed=24\n" + lines);

    // A new line is added behind them.
    if (!lines.endsWith('\n'))
        lines += '\n';
    writeOptionsFile(lines);
    cups.setDarkness(6);
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(readOptionsFile(), lines + "Dest LP1 Darkness=6\n");
}

void OptionsFileTest::nothingChangedNothingWritten()
{
    CupsSupport cups;
    QCOMPARE(cups.setDests(), 0);
    QVERIFY(!QFileInfo::exists(QFileInfo(optionsPath()).path())); // not even the folder

    const auto status = [] {
        struct stat found = {};
        stat(QFile::encodeName(optionsPath()), &found);
        return found;
    };
    writeOptionsFile("Dest LP1   Darkness=4 Feed=24\n");
    cups.getDefaultPrinter();
    const struct stat before = status();
    QCOMPARE(cups.setDests(), 0);
    cups.setDarkness(5);
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), 0);
    cups.deleteOptions({"Darkness"});
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(status().st_ino, before.st_ino);
    QCOMPARE(status().st_mtim.tv_nsec, before.st_mtim.tv_nsec);

    // Somebody else has made the same change.
    cups.setDarkness(6);
    writeOptionsFile("Dest LP1   Darkness=6 Feed=24\n");
    const struct stat theirs = status();
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(status().st_ino, theirs.st_ino);
    QCOMPARE(readOptionsFile(), QByteArray("Dest LP1   Darkness=6 Feed=24\n"));
}

void OptionsFileTest::laterChangesOfOthersAreKept()
{
    writeOptionsFile("Dest LP1 Darkness=4 Feed=24 PrintSpeed=3\nDest LP2 Darkness=6\n");
    CupsSupport cups;
    cups.setCurrentPrinter(LP1);
    cups.setDarkness(5);
    scheduler->setUserOptions("LP1", {"Feed=25", "Shift=1.000"});
    PrivateScheduler::run("lpoptions", {"-p", "LP1", "-r", "PrintSpeed"});
    scheduler->setUserOptions("LP2", {"Darkness=7", "Feed=26"});
    scheduler->setUserOptions("LP3", {"copies=2"});
    scheduler->setUserDefault("LP2");
    QCOMPARE(cups.setDests(), 0);

    const Options first = freshlyRead("LP1");
    QCOMPARE(first.value("Darkness"), QByteArray("5"));
    QCOMPARE(first.value("Feed"), QByteArray("25"));
    QCOMPARE(first.value("Shift"), QByteArray("1.000"));
    QVERIFY(!first.contains("PrintSpeed"));
    QCOMPARE(freshlyRead("LP2").value("Darkness"), QByteArray("7"));
    QCOMPARE(freshlyRead("LP2").value("Feed"), QByteArray("26"));
    QCOMPARE(freshlyRead("LP3").value("copies"), QByteArray("2"));
    QCOMPARE(CupsSupport().getCurrentQueueName(), QString("LP2"));
}

void OptionsFileTest::bothChangeTheSame()
{
    writeOptionsFile("Dest LP1 Darkness=4 Feed=24 PrintSpeed=5 Shift=1.000\n");
    CupsSupport cups;
    cups.setCurrentPrinter(LP1);
    cups.setDarkness(5);
    cups.deleteOptions({"Feed", "Shift"});
    scheduler->setUserOptions("LP1", {"Darkness=6", "Feed=25"});
    PrivateScheduler::run("lpoptions", {"-p", "LP1", "-r", "Shift"});
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(readOptionsFile().simplified(), QByteArray("Dest LP1 Darkness=5 PrintSpeed=5"));
}

void OptionsFileTest::savingTwice()
{
    CupsSupport cups;
    cups.setCurrentPrinter(LP1);
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), 0);
    scheduler->setUserOptions("LP1", {"Darkness=6"});
    cups.setFeed(24);
    QCOMPARE(cups.setDests(), 0);
    // What was saved before is no change any more.
    QCOMPARE(freshlyRead("LP1").value("Darkness"), QByteArray("6"));
    QCOMPARE(freshlyRead("LP1").value("Feed"), QByteArray("24"));
    cups.deleteOptions({"Darkness", "Feed"});
    QCOMPARE(cups.setDests(), 0);
    QVERIFY(!readOptionsFile().contains("LP1"));
}

void OptionsFileTest::readAgainAfterSaving()
{
    CupsSupport cups;
    cups.setCurrentPrinter(LP1);
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), 0);
    cups.setFeed(24); // given up
    cups.getDefaultPrinter();
    cups.setCurrentPrinter(LP1);
    cups.setSpeed(5);
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(readOptionsFile(), QByteArray("Dest LP1 Darkness=4 PrintSpeed=5\n"));
}

void OptionsFileTest::newLineOfServerDefault_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("later"); // contents of the file when we save
    QTest::addColumn<QByteArray>("after");
    const QByteArray none;
    QTest::newRow("no file") << none << none << QByteArray("Default LP1 Darkness=5\n");
    QTest::newRow("line of another") << QByteArray("Dest LP2 Feed=24\n") << QByteArray("Dest LP2 Feed=24\n")
                                     << QByteArray("Dest LP2 Feed=24\nDefault LP1 Darkness=5\n");
    QTest::newRow("default of the user") << QByteArray("Default LP2\n") << QByteArray("Default LP2\n")
                                         << QByteArray("Default LP2\nDest LP1 Darkness=5\n");
    QTest::newRow("later default of the user")
        << none << QByteArray("Default LP2\n") << QByteArray("Default LP2\nDest LP1 Darkness=5\n");
    QTest::newRow("own line") << QByteArray("Dest LP1 Feed=24\n") << QByteArray("Dest LP1 Feed=24\n")
                              << QByteArray("Dest LP1 Darkness=5 Feed=24\n");
}

// With "Dest" for the server's default printer, programs would have no default; and no other queue may get a line
// because of it.
void OptionsFileTest::newLineOfServerDefault()
{
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, later);
    QFETCH(QByteArray, after);
    scheduler->addQueue("LP0");
    scheduler->setServerDefault("LP1");
    writeOptionsFile(file);
    CupsSupport cups;
    selectQueue(cups, "LP1");
    cups.setDarkness(5);
    writeOptionsFile(later);
    const int result = cups.setDests();
    const QByteArray found = readOptionsFile();
    selectQueue(cups, "LP2");
    cups.setDarkness(5);
    const int secondResult = cups.setDests();
    // The scheduler cannot be told to have no default again, but the default can go.
    scheduler->setServerDefault("LP0");
    scheduler->removeQueue("LP0");
    QCOMPARE(result, 0);
    QCOMPARE(found, after);
    QCOMPARE(secondResult, 0);
    QCOMPARE(readOptionsFile().count("Default"), after.count("Default"));
}

void OptionsFileTest::lastOptionOfInstanceAndDefault()
{
    writeOptionsFile("Dest LP1/wide Darkness=4\nDefault LP2 Darkness=4\n");
    CupsSupport cups;
    selectQueue(cups, "LP1/wide");
    cups.deleteOptions({"Darkness"});
    selectQueue(cups, "LP2");
    cups.deleteOptions({"Darkness"});
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(readOptionsFile(), QByteArray("Dest LP1/wide\nDefault LP2\n"));
}

// They are the administrator's, whose later changes must take effect.
void OptionsFileTest::schedulerDefaultsAreNotWritten()
{
    PrivateScheduler::run("lpadmin", {"-p", "LP2", "-o", "job-hold-until-default=indefinite", "-o", "Feed=30"});
    CupsSupport cups;
    selectQueue(cups, "LP2");
    QVERIFY(cups.printerOption("job-hold-until"));
    cups.setDarkness(5);
    scheduler->stop();
    const int result = cups.setDests();
    scheduler->start();
    PrivateScheduler::run("lpadmin", {"-p", "LP2", "-o", "job-hold-until-default=no-hold"});
    QCOMPARE(result, 0);
    QCOMPARE(readOptionsFile(), QByteArray("Dest LP2 Darkness=5\n"));
    QCOMPARE(freshlyRead("LP2").value("job-hold-until"), QByteArray("no-hold"));
}

void OptionsFileTest::emptyValueThatWasStored()
{
    writeOptionsFile("Dest LP2 Feed=24 JobEnd= JobStart=x\n");
    const auto cups = supportFor(LP2);
    QVERIFY(cups->setOptions({"JobEnd", ""}));
    QVERIFY(!cups->printerOption("JobEnd"));
    QVERIFY(!cups->setOptions({"JobEnd", ""}));
    QCOMPARE(cups->setDests(), 0);
    QCOMPARE(readOptionsFile(), QByteArray("Dest LP2 Feed=24 JobStart=x\n"));

    // Other empty values of the line are not kept either, because they would become "true".
    writeOptionsFile("Dest LP2 Feed=24 JobEnd= JobStart=x\n");
    const auto other = supportFor(LP2);
    other->setDarkness(5);
    QCOMPARE(other->setDests(), 0);
    QCOMPARE(readOptionsFile(), QByteArray("Dest LP2 Darkness=5 Feed=24 JobStart=x\n"));
}

// It is then unknown that the PPD file declares a default, which only an empty value overrides.
void OptionsFileTest::emptiedWithoutScheduler()
{
    writeOptionsFile("Dest LP1 JobStart=x\n");
    CupsSupport cups;
    scheduler->stop();
    cups.setJobStart(QString());
    const int result = cups.setDests();
    scheduler->start();
    QCOMPARE(result, 0);
    QCOMPARE(supportFor(LP1)->getJobStart(), QString());
}

// Parts that libcups cannot read are useless to everybody, so they do not prevent saving.
void OptionsFileTest::longLineOfOwnQueue()
{
    const QByteArray rest("Dest LP2 Darkness=6\n");
    writeOptionsFile("Dest LP1 Darkness=4 Zed=" + QByteArray(9000, 'x') + "\n" + rest);
    CupsSupport cups;
    cups.setCurrentPrinter(LP1);
    cups.deleteOptions({"Zed"});
    cups.setDarkness(5);
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(readOptionsFile(), "Dest LP1 Darkness=5\n" + rest);
}

void OptionsFileTest::reasonOfFailure()
{
    QVERIFY(QDir::home().mkpath(".cups/lpoptions"));
    CupsSupport cups;
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), -1);
    QVERIFY2(QByteArray(CupsSupport::getCupsError()).contains("lpoptions: "), CupsSupport::getCupsError());
    QVERIFY(QDir::home().rmdir(".cups/lpoptions"));

    cups.setValue("JobStart", QByteArray(9000, 'x').constData());
    QCOMPARE(cups.setDests(), -1);
    QVERIFY2(QByteArray(CupsSupport::getCupsError()).contains("LP1"), CupsSupport::getCupsError());

    cups.deleteOptions({"JobStart"});
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(CupsSupport::getCupsError(), cupsLastErrorString());
}

// Anybody who may read the folder can lock it, but not block others for good.
void OptionsFileTest::anotherInstanceHoldsTheLock()
{
    writeOptionsFile("");
    const int fd = open(QFile::encodeName(QFileInfo(optionsPath()).path()), O_RDONLY | O_DIRECTORY);
    QCOMPARE(flock(fd, LOCK_EX), 0);
    CupsSupport cups;
    cups.setDarkness(4);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(cups.setDests(), 0);
    QVERIFY(timer.elapsed() < 30000);
    close(fd);
    QCOMPARE(freshlyRead("LP1").value("Darkness"), QByteArray("4"));
}

void OptionsFileTest::newFile()
{
    QVERIFY(QDir::home().mkdir(".cups"));
    const mode_t mask = umask(027);
    CupsSupport cups;
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), 0);
    umask(mask);
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(optionsPath()), &status), 0);
    // The one of the system is for everybody.
    QCOMPARE(int(status.st_mode & 07777), TestMain::isOptionsFileSystemWide() ? 0644 : 0640);
}

void OptionsFileTest::newFolder()
{
    CupsSupport cups;
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), 0);
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(QFileInfo(optionsPath()).path()), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), TestMain::isOptionsFileSystemWide() ? 0755 : 0700);
}

void OptionsFileTest::permissionsAreKept_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("0600") << 0600;
    QTest::newRow("0644") << 0644;
    QTest::newRow("0666") << 0666;
    QTest::newRow("0640") << 0640;
    QTest::newRow("0755") << 0755;
}

void OptionsFileTest::permissionsAreKept()
{
    QFETCH(int, mode);
    writeOptionsFile("Dest LP1 Darkness=3\n");
    const QByteArray path = QFile::encodeName(optionsPath());
    QCOMPARE(chmod(path, mode_t(mode)), 0);
    CupsSupport cups;
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), 0);
    struct stat status = {};
    QCOMPARE(stat(path, &status), 0);
    QCOMPARE(int(status.st_mode & 07777), mode);
    QCOMPARE(freshlyRead("LP1").value("Darkness"), QByteArray("4"));
}

void OptionsFileTest::ownerIsKept()
{
    writeOptionsFile("Dest LP1 Darkness=3\n");
    const QByteArray path = QFile::encodeName(optionsPath());
    if (geteuid() == 0) { // only root can change the owner of files
        QCOMPARE(chown(path, 12345, 54321), 0);
        QCOMPARE(chmod(path, 0640), 0);
    }
    struct stat before = {};
    QCOMPARE(stat(path, &before), 0);
    CupsSupport cups;
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), 0);
    struct stat after = {};
    QCOMPARE(stat(path, &after), 0);
    QCOMPARE(after.st_uid, before.st_uid);
    QCOMPARE(after.st_gid, before.st_gid);
    QCOMPARE(after.st_mode, before.st_mode);
    QCOMPARE(freshlyRead("LP1").value("Darkness"), QByteArray("4"));
}

void OptionsFileTest::accessControlListIsKept()
{
    // Version 2; the owner, user 12345, the group, the mask and others, each with rights and an identifier.
    const char list[] = "\2\0\0\0"
                        "\1\0\6\0\xff\xff\xff\xff"
                        "\2\0\4\0\x39\x30\0\0"
                        "\4\0\4\0\xff\xff\xff\xff"
                        "\x10\0\4\0\xff\xff\xff\xff"
                        "\x20\0\0\0\xff\xff\xff\xff";
    const char *const name = "system.posix_acl_access";
    writeOptionsFile("Dest LP1 Darkness=3\n");
    const QByteArray path = QFile::encodeName(optionsPath());
    const bool hasLists = setxattr(path, name, list, sizeof list - 1, 0) == 0;
    CupsSupport cups;
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), 0);
    char found[100] = {};
    const ssize_t size = getxattr(path, name, found, sizeof found);
    QCOMPARE(QByteArray(found, int(size < 0 ? 0 : size)), hasLists ? QByteArray(list, sizeof list - 1) : QByteArray());
}

// The file is then written in place. Root can write everywhere.
void OptionsFileTest::folderThatCannotBeWritten()
{
    writeOptionsFile("Dest LP1 Darkness=3\nDest LP2 Feed=24\n");
    const QByteArray file = QFile::encodeName(optionsPath());
    const QByteArray folder = QFile::encodeName(QFileInfo(optionsPath()).path());
    const QByteArray home = QFile::encodeName(QDir::homePath());
    CupsSupport cups;
    cups.setCurrentPrinter(LP1);
    cups.setDarkness(4);
    const uid_t user = geteuid() == 0 ? 65534 : geteuid();
    for (const QByteArray &path : {home, folder, file})
        QCOMPARE(chown(path, user, gid_t(-1)), 0);
    QCOMPARE(chmod(folder, 0555), 0);
    const int result = inCopy([&] { return setuid(user) == 0 ? cups.setDests() : 99; });
    QCOMPARE(chmod(folder, 0700), 0);
    for (const QByteArray &path : {home, folder, file})
        QCOMPARE(chown(path, geteuid(), gid_t(-1)), 0);
    QCOMPARE(result, 0);
    QCOMPARE(readOptionsFile(), QByteArray("Dest LP1 Darkness=4\nDest LP2 Feed=24\n"));
}

// With another user's HOME, as with sudo, root leaves no files that this user cannot use.
void OptionsFileTest::newFolderBelongsToItsUser()
{
    const bool isRoot = geteuid() == 0;
    const QByteArray home = QFile::encodeName(QDir::homePath());
    if (isRoot)
        QCOMPARE(chown(home, 12345, 54321), 0);
    CupsSupport cups;
    cups.setDarkness(4);
    const int result = cups.setDests();
    struct stat folder = {};
    struct stat file = {};
    stat(QFile::encodeName(QFileInfo(optionsPath()).path()), &folder);
    stat(QFile::encodeName(optionsPath()), &file);
    QCOMPARE(chown(home, geteuid(), getegid()), 0);
    QCOMPARE(result, 0);
    QCOMPARE(folder.st_uid, isRoot ? uid_t(12345) : geteuid());
    QCOMPARE(folder.st_gid, isRoot ? gid_t(54321) : getegid());
    QCOMPARE(file.st_uid, folder.st_uid);
    QCOMPARE(file.st_gid, folder.st_gid);
}

void OptionsFileTest::defaultHoldsAgainstSystemWideOption_data()
{
    QTest::addColumn<int>("printer");
    QTest::addColumn<QByteArray>("keyword");
    QTest::addColumn<QByteArray>("chosen");
    QTest::newRow("number") << int(LP1) << QByteArray("Darkness") << QByteArray("10");
    QTest::newRow("command") << int(LP2) << QByteArray("JobStart") << QByteArray();
}

// An administrator has saved options for all users, and this user goes back to those of the printer.
void OptionsFileTest::defaultHoldsAgainstSystemWideOption()
{
    QFETCH(int, printer);
    QFETCH(QByteArray, keyword);
    QFETCH(QByteArray, chosen);
    const QString folder = QDir::homePath() + "/system";
    QVERIFY(QDir().mkpath(folder));
    writeFile(folder + "/lpoptions", "Dest LP1 Darkness=15 Feed=24\nDest LP2 JobStart=^XA Feed=24\n");
    const QMap<QString, QString> environment{{"CUPS_SERVERROOT", folder}};
    const auto read = [&] {
        const QByteArray output =
            TestMain::runChild("printOptions", {QString("LP%1").arg(printer + 1)}, environment).output;
        const auto start = ('\n' + output).indexOf('\n' + keyword + ' ');
        return start < 0 ? QByteArray()
                         : QByteArray::fromHex(output.mid(start + keyword.size() + 1).split('\n').first());
    };
    QVERIFY(!read().isEmpty());
    const auto choose = [&] {
        return TestMain::runChild("choose", {QString::number(printer), QString(keyword), QString(chosen)}, environment)
            .output;
    };
    QCOMPARE(choose(), chosen + "\n");
    QVERIFY2(QByteArrayList({chosen, QByteArray(), QByteArray(" ")}).contains(read()), read().constData());
    // It stays so when it is saved again, and options that the user did not touch are not copied.
    QCOMPARE(choose(), chosen + "\n");
    if (!TestMain::isOptionsFileSystemWide())
        QVERIFY(!readOptionsFile().contains("Feed"));
    QVERIFY(QDir(folder).removeRecursively());
}

void OptionsFileTest::homeThatIsNoText()
{
    const QByteArray earlier = qgetenv("HOME");
    const QByteArray home = earlier
                            + "/b\xfc"
                              "ro\xff";
    QCOMPARE(mkdir(home, 0700), 0);
    qputenv("HOME", home);
    if (TestMain::isOptionsFileSystemWide())
        qputenv("CUPS_SERVERROOT", home + "/.cups");
    const TestMain::ChildResult saved = TestMain::runChild("saveWithLimit", {"100000"});
    const TestMain::ChildResult read = TestMain::runChild("printOptions", {"LP1"});
    qputenv("HOME", earlier);
    if (TestMain::isOptionsFileSystemWide())
        qputenv("CUPS_SERVERROOT", earlier + "/.cups");
    QCOMPARE(saved.output, QByteArray("0\n"));
    QVERIFY2(read.output.contains("Darkness 35"), read.output.constData());
    QCOMPARE(access(home + "/.cups/lpoptions", F_OK), 0);
    std::filesystem::remove_all(home.constData()); // QTemporaryDir could not
}

void OptionsFileTest::symbolicLinkIsKept_data()
{
    QTest::addColumn<QStringList>("targets"); // of lpoptions, and of the links it leads to
    QTest::newRow("beside") << QStringList({"real"});
    QTest::newRow("elsewhere") << QStringList({"../real"});
    QTest::newRow("absolute") << QStringList({QDir::homePath() + "/real"});
    QTest::newRow("two links") << QStringList({"second", "../real"});
}

void OptionsFileTest::symbolicLinkIsKept()
{
    QFETCH(QStringList, targets);
    QVERIFY(QDir::home().mkdir(".cups"));
    const QString folder = QDir::homePath() + "/.cups/";
    QString link = optionsPath();
    for (const QString &target : targets) {
        QCOMPARE(symlink(QFile::encodeName(target), QFile::encodeName(link)), 0);
        link = QDir::cleanPath(QDir(folder).filePath(target));
    }
    writeOptionsFile("Dest LP1 Darkness=3\n"); // through the links
    CupsSupport cups;
    QCOMPARE(cups.getDarkness(), 3);
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), 0);

    char target[1000] = {};
    QVERIFY(readlink(QFile::encodeName(optionsPath()), target, sizeof target - 1) > 0);
    QCOMPARE(QString::fromLocal8Bit(target), targets.at(0));
    QVERIFY(!QFileInfo(link).isSymLink());
    QFile real(link);
    QVERIFY(real.open(QIODevice::ReadOnly));
    QCOMPARE(real.readAll(), QByteArray("Dest LP1 Darkness=4\n"));
    QVERIFY(real.remove());
}

void OptionsFileTest::linkToNothing()
{
    QVERIFY(QDir::home().mkdir(".cups"));
    QCOMPARE(symlink("../real", QFile::encodeName(optionsPath())), 0);
    CupsSupport cups;
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), 0);
    QVERIFY(QFileInfo(optionsPath()).isSymLink());
    QFile real(QDir::homePath() + "/real");
    QVERIFY(real.open(QIODevice::ReadOnly));
    QCOMPARE(real.readAll(), QByteArray("Dest LP1 Darkness=4\n"));
    QVERIFY(real.remove());
}

void OptionsFileTest::linkToNoFile()
{
    // A link to /dev/null is the usual case. The superuser could replace that, which no test should risk; but he can
    // make one of his own. For others a socket will do.
    QVERIFY(QDir::home().mkdir(".cups"));
    const QByteArray path = QFile::encodeName(QDir::homePath() + "/.cups/special");
    int descriptor = -1;
    if (mknod(path, S_IFCHR | 0600, makedev(1, 3)) != 0) {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
        descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        QCOMPARE(bind(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    }
    QCOMPARE(symlink("special", QFile::encodeName(optionsPath())), 0);

    CupsSupport cups;
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), -1);
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(optionsPath()), &status), 0);
    QVERIFY(!S_ISREG(status.st_mode));
    QVERIFY(QFileInfo(optionsPath()).isSymLink());
    close(descriptor);
}

void OptionsFileTest::noHalfFile_data()
{
    QTest::addColumn<QString>("bytes");
    QTest::addColumn<bool>("fits");
    QTest::newRow("none") << "0" << false;
    QTest::newRow("some") << "10" << false;
    QTest::newRow("the first entry") << "20" << false;
    QTest::newRow("almost all") << "50" << false;
    QTest::newRow("all") << "51" << true;
}

void OptionsFileTest::noHalfFile()
{
    QFETCH(QString, bytes);
    QFETCH(bool, fits);
    const QByteArray before("Dest LP1 Darkness=4\nDest LP2 Darkness=6 JobStart=x\n");
    const QByteArray after("Dest LP1 Darkness=5\nDest LP2 Darkness=6 JobStart=x\n");
    QCOMPARE(after.size(), 51);
    writeOptionsFile(before);
    const TestMain::ChildResult result = TestMain::runChild("saveWithLimit", {bytes});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QByteArray(fits ? "0\n" : "-1\n"));
    QCOMPARE(readOptionsFile(), fits ? after : before);
    QCOMPARE(QFileInfo(optionsPath()).dir().entryList(QDir::Files | QDir::Hidden), QStringList({"lpoptions"}));
}

void OptionsFileTest::fileThatCannotBeReplaced()
{
    QVERIFY(QDir::home().mkpath(".cups/lpoptions/folder"));
    CupsSupport cups;
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), -1);
    QVERIFY(QFileInfo(optionsPath() + "/folder").isDir());
    QCOMPARE(cups.getDarkness(), 4);
}

void OptionsFileTest::folderThatCannotBeMade()
{
    QFile file(QDir::homePath() + "/.cups");
    QVERIFY(file.open(QIODevice::WriteOnly));
    CupsSupport cups;
    cups.setDarkness(4);
    QCOMPARE(cups.setDests(), -1);
    QVERIFY(QFileInfo(file.fileName()).isFile());
    QVERIFY(file.remove());
}

PROPERTIESDIALOG_TEST_MAIN(OptionsFileTest)
#include "OptionsFileTest.moc"
