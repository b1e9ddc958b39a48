// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "CupsTest.h"
#include "TestMain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

// If this fails, a job prints with other settings than the dialog shows, or does not print.
class CupsSupportJobsTest : public CupsTest
{
    Q_OBJECT

private slots:
    void setOptions_data();
    void setOptions();
    void setOptionsKeepsPpdDefaults();
    void setOptionsStoresLatin1();
    void setOptionsChangesNoFile();
    void deleteOptions();
    void cupsOptions();
    void ppdDefaults();
    void ppdDefaultsOfRawQueue();
    void options();
    void optionsFollowFreshMarks();
    void optionsOfRawQueue();
    void collectMarkedOptionsHelper();
    void collectMarkedOptionsOfGroup();
    void collectMarkedOptionsOfPpdFile();

    void printFile();
    void printFileChoosesThePrinter_data();
    void printFileChoosesThePrinter();
    void printFileOnOtherPrinterWithoutCurrentOne();
    void printFileTitle_data();
    void printFileTitle();
    void printFileTitleOfNameBeyondLatin1();
    void printFileSendsSavedAndGivenOptions();
    void printFileOfOtherPrinterSendsItsOptions();
    void printFileOnInstance();
    void printFileOnRawQueue();
    void printFileSendsAnyBytes();
    void printFileWithNameBeyondAscii();
    void printFileFailures();
    void printFiles();
    void printFilesTitle_data();
    void printFilesTitle();
    void printFilesSendsSavedAndGivenOptions();
    void printFilesOnCurrentPrinter();
    void printFilesWithNamesBeyondAscii();
    void printFilesFailures();
    void noSchedulerAnyMore();

private:
    QString file(const QString &name, const QByteArray &content);

    QTemporaryDir folder;
};

// A file to print.
QString CupsSupportJobsTest::file(const QString &name, const QByteArray &content)
{
    const QString path = folder.filePath(name);
    QFile output(path);
    if (!output.open(QIODevice::WriteOnly) || output.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

void CupsSupportJobsTest::setOptions_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<bool>("changed");
    QTest::addColumn<QStringList>("added"); // to the options without Darkness and Feed
    const QStringList unchanged{"Darkness", "4", "Feed", "24"};
    QTest::newRow("empty list") << QStringList() << false << unchanged;
    QTest::newRow("one item") << QStringList({"Darkness"}) << false << unchanged;
    QTest::newRow("same value") << QStringList({"Darkness", "4"}) << false << unchanged;
    QTest::newRow("other value") << QStringList({"Darkness", "5"}) << true
                                 << QStringList({"Darkness", "5", "Feed", "24"});
    QTest::newRow("empty value removes") << QStringList({"Darkness", ""}) << true << QStringList({"Feed", "24"});
    QTest::newRow("null value removes") << QStringList({"Darkness", QString()}) << true << QStringList({"Feed", "24"});
    QTest::newRow("nothing to remove") << QStringList({"GapSize", ""}) << false << unchanged;
    QTest::newRow("new") << QStringList({"GapSize", "2.000"}) << true
                         << QStringList({"Darkness", "4", "Feed", "24", "GapSize", "2.000"});
    QTest::newRow("unpaired item") << QStringList({"Darkness", "4", "Feed"}) << false << unchanged;
    QTest::newRow("unpaired item after a change")
        << QStringList({"Darkness", "5", "Feed"}) << true << QStringList({"Darkness", "5", "Feed", "24"});
    QTest::newRow("some change") << QStringList({"Darkness", "4", "Feed", "", "GapSize", ""}) << true
                                 << QStringList({"Darkness", "4"});
    QTest::newRow("the last one counts") << QStringList({"Darkness", "5", "Darkness", "6"}) << true
                                         << QStringList({"Darkness", "6", "Feed", "24"});
    QTest::newRow("keyword in other case")
        << QStringList({"darkness", "5"}) << true << QStringList({"darkness", "5", "Feed", "24"});
    QTest::newRow("value in other case") << QStringList({"Direct", "True", "Direct", "true"}) << true
                                         << QStringList({"Darkness", "4", "Feed", "24", "Direct", "true"});
    QTest::newRow("there and back") << QStringList({"Darkness", "5", "Darkness", "4"}) << true << unchanged;
}

void CupsSupportJobsTest::setOptions()
{
    QFETCH(QStringList, list);
    QFETCH(QStringList, added);
    const auto cups = supportFor(LP1);
    const QStringList before = cups->cupsOptions();
    QVERIFY(cups->setOptions({"Darkness", "4", "Feed", "24"}));

    QTEST(cups->setOptions(list), "changed");
    const QStringList after = cups->cupsOptions();
    QCOMPARE(after.size(), before.size() + added.size());
    for (const QString &option : before + added)
        QVERIFY2(after.contains(option), qPrintable(option));
    for (int i = 0; i < added.size(); i += 2)
        QCOMPARE(QString::fromLatin1(saved(*cups, added.at(i).toLatin1())), added.at(i + 1));
}

void CupsSupportJobsTest::setOptionsKeepsPpdDefaults()
{
    const auto cups = supportFor(LP1);
    QVERIFY(cups->setOptions({"Darkness", "10"}));
    QCOMPARE(saved(*cups, "Darkness"), QByteArray("10"));
    QVERIFY(!cups->setOptions({"Darkness", "10"}));
}

void CupsSupportJobsTest::setOptionsStoresLatin1()
{
    const auto cups = supportFor(LP1);
    QVERIFY(cups->setOptions({"JobStart", QString::fromUtf8("Größe 5 €")}));
    QCOMPARE(saved(*cups, "JobStart"), QByteArray("Gr\xf6\xdf"
                                                  "e 5 ?"));
    const int at = int(cups->cupsOptions().indexOf("JobStart"));
    QVERIFY(at >= 0);
    QCOMPARE(cups->cupsOptions().at(at + 1), QString::fromUtf8("Größe 5 ?"));
}

void CupsSupportJobsTest::setOptionsChangesNoFile()
{
    const auto cups = supportFor(LP1);
    QVERIFY(cups->setOptions({"Darkness", "4"}));
    QVERIFY(!QFile::exists(optionsPath()));
    cups->setCurrentPrinter(-1);
    QVERIFY(!cups->setOptions({"Darkness", "4"}));
}

void CupsSupportJobsTest::deleteOptions()
{
    const auto cups = supportFor(LP1);
    const QStringList before = cups->cupsOptions();
    cups->setOptions({"Darkness", "4", "Feed", "24", "GapSize", "2.000"});
    cups->deleteOptions({"GapSize", "MarkSize", "Darkness"});
    QCOMPARE(cups->cupsOptions().size(), before.size() + 2);
    QCOMPARE(saved(*cups, "Feed"), QByteArray("24"));
    cups->deleteOptions({});
    QCOMPARE(cups->cupsOptions().size(), before.size() + 2);
    cups->deleteOptions({"feed", "Feed"}); // one option to libcups
    QCOMPARE(cups->cupsOptions(), before);
}

void CupsSupportJobsTest::cupsOptions()
{
    writeOptionsFile("Dest LP1 Darkness=4 JobStart=\n");
    const auto cups = supportFor(LP1);
    const QStringList list = cups->cupsOptions();
    QVERIFY(list.size() % 2 == 0);
    const auto value = [&list](const char *keyword) { return list.at(list.indexOf(keyword) + 1); };
    QCOMPARE(value("Darkness"), QString("4"));
    QCOMPARE(value("JobStart"), QString(""));
    QCOMPARE(value("printer-info"), QString("First Printer"));
    QVERIFY(!list.contains("PrintSpeed"));
    // As they are stored: libcups sorts them by name.
    QVERIFY(list.indexOf("Darkness") < list.indexOf("JobStart"));
    QVERIFY(list.indexOf("JobStart") < list.indexOf("printer-info"));

    QVERIFY(!supportFor(LP2)->cupsOptions().contains("Darkness"));
    QCOMPARE(supportFor(-1)->cupsOptions(), QStringList());
}

void CupsSupportJobsTest::ppdDefaults()
{
    writeOptionsFile("Dest LP1 Darkness=4\n");
    const QString expected("PageSize w288h144 PageRegion w288h144 Resolution 203dpi "
                           "LabelCategory 1 GapSize 3.000 GapOffset 0.000 MarkSize 5.000 MarkOffset 0.000 CutMedia 0 "
                           "Feed 0 Back 12 Overlap 12 Stop 30.000 Start 0.000 Shift 0.000 OffsetH 0 OffsetV 0 "
                           "Darkness 10 PrintSpeed 3 Direct False NegativePrint False MirrorPrint False "
                           "orientation-requested 5 JobStart None JobEnd None LabelStart None LabelEnd None");
    const auto cups = supportFor(LP1);
    QCOMPARE(cups->ppdDefaults(), expected.split(' '));
    // Unlike what is saved, a PPD file is in the user's encoding.
    setPpdDefault(*cups, "LabelEnd", "Größe");
    QCOMPARE(cups->ppdDefaults().last(), QString::fromUtf8("Größe"));
}

void CupsSupportJobsTest::ppdDefaultsOfRawQueue()
{
    QCOMPARE(supportFor(LP3)->ppdDefaults(), QStringList());
}

void CupsSupportJobsTest::options()
{
    QCOMPARE(supportFor(LP1)->options(), QStringList());

    // In the order of the PPD file, without values that equal the default and options that it does not list.
    writeOptionsFile("Dest LP1 PrintSpeed=5 Darkness=4 PageSize=w144h72 CutMedia=0 MyOption=1\n");
    QCOMPARE(supportFor(LP1)->options(), QStringList({"PageSize", "w144h72", "Darkness", "4", "PrintSpeed", "5"}));
    // Values that the PPD file does not list cannot be marked.
    writeOptionsFile("Dest LP1 GapSize=1.234 GapOffset=1.000\n");
    QCOMPARE(supportFor(LP1)->options(), QStringList({"GapOffset", "1.000"}));
}

void CupsSupportJobsTest::optionsFollowFreshMarks()
{
    const auto cups = supportFor(LP1);
    cups->setDarkness(4);
    QCOMPARE(cups->options(), QStringList());
    cups->closePpdFile();
    QCOMPARE(cups->options(), QStringList({"Darkness", "4"}));
}

void CupsSupportJobsTest::optionsOfRawQueue()
{
    const auto cups = supportFor(LP3);
    cups->setDarkness(4);
    QCOMPARE(cups->options(), QStringList());
}

namespace {

// Records as libcups' parser makes them, but with subgroups, which it never makes.
struct HandMadeOption
{
    HandMadeOption(const char *keyword, const char *defaultChoice, std::initializer_list<const char *> choiceNames)
    {
        for (const char *name : choiceNames) {
            ppd_choice_t choice = {};
            qstrncpy(choice.choice, name, sizeof choice.choice);
            choices.push_back(choice);
        }
        qstrncpy(option.keyword, keyword, sizeof option.keyword);
        qstrncpy(option.defchoice, defaultChoice, sizeof option.defchoice);
    }

    // Marks the choice at this place; libcups marks with 1.
    HandMadeOption &mark(std::size_t place, char value = 1)
    {
        choices[place].marked = value;
        return *this;
    }

    ppd_option_t record()
    {
        option.choices = choices.data();
        option.num_choices = int(choices.size());
        return option;
    }

    ppd_option_t option = {};
    std::vector<ppd_choice_t> choices;
};

ppd_group_t groupOf(std::vector<ppd_option_t> &options, std::vector<ppd_group_t> &subgroups)
{
    ppd_group_t group = {};
    group.options = options.data();
    group.num_options = int(options.size());
    group.subgroups = subgroups.data();
    group.num_subgroups = int(subgroups.size());
    return group;
}

} // namespace

void CupsSupportJobsTest::collectMarkedOptionsHelper()
{
    HandMadeOption changed("Changed", "a", {"a", "b", "c"});
    HandMadeOption unchanged("Unchanged", "a", {"a", "b"});
    HandMadeOption unmarked("Unmarked", "a", {"a", "b"});
    HandMadeOption several("Several", "b", {"a", "b", "c"});
    HandMadeOption otherwise("Otherwise", "a", {"a", "b"});
    HandMadeOption otherCase("OtherCase", "a", {"a", "A"});
    HandMadeOption beyondAscii("Größe", "a", {"a", "ä"});
    std::vector<ppd_option_t> options{
        changed.mark(2).record(),
        unchanged.mark(0).record(),
        unmarked.record(),
        several.mark(0).mark(1).mark(2).record(),
        otherwise.mark(1, 2).record(),
        otherCase.mark(1).record(),
        beyondAscii.mark(1).record(),
    };
    HandMadeOption hidden("Hidden", "a", {"a", "b"});
    std::vector<ppd_option_t> subgroupOptions{hidden.mark(1).record()};
    std::vector<ppd_group_t> none;
    std::vector<ppd_group_t> subgroups{groupOf(subgroupOptions, none)};
    const ppd_group_t group = groupOf(options, subgroups);

    const CupsSupport cups;
    QStringList list{"before", "it"};
    cups.collectMarkedOptionsHelper(list, &group);
    QCOMPARE(list, QStringList({"before", "it", "Changed", "c", "Several", "a", "Several", "c", "OtherCase", "A",
                                QString::fromUtf8("Größe"), QString::fromUtf8("ä")}));
}

void CupsSupportJobsTest::collectMarkedOptionsOfGroup()
{
    HandMadeOption own("Own", "a", {"a", "b"});
    HandMadeOption first("First", "a", {"a", "b"});
    HandMadeOption second("Second", "a", {"a", "b"});
    HandMadeOption deep("Deep", "a", {"a", "b"});
    std::vector<ppd_group_t> none;
    std::vector<ppd_option_t> deepOptions{deep.mark(1).record()};
    std::vector<ppd_group_t> deepGroups{groupOf(deepOptions, none)};
    std::vector<ppd_option_t> firstOptions{first.mark(1).record()};
    std::vector<ppd_option_t> secondOptions{second.mark(1).record()};
    std::vector<ppd_group_t> subgroups{groupOf(firstOptions, deepGroups), groupOf(secondOptions, none)};
    std::vector<ppd_option_t> ownOptions{own.mark(1).record()};
    const ppd_group_t group = groupOf(ownOptions, subgroups);

    // Only the direct subgroups: not the group's own options or deeper ones.
    const CupsSupport cups;
    QStringList list{"before", "it"};
    cups.collectMarkedOptions(list, &group);
    QCOMPARE(list, QStringList({"before", "it", "First", "b", "Second", "b"}));
}

void CupsSupportJobsTest::collectMarkedOptionsOfPpdFile()
{
    writeOptionsFile("Dest LP1 PrintSpeed=5 Feed=24 Resolution=300x305dpi GapOffset=1.000\n");
    const auto cups = supportFor(LP1);
    ppd_file_t *ppd = cups->getPpdFile();
    ppd_group_t *positions = nullptr;
    ppd_group_t *resolutions = nullptr;
    for (int i = 0; i < ppd->num_groups; ++i)
        if (qstrcmp(ppd->groups[i].name, "Positions") == 0)
            positions = ppd->groups + i;
        else if (qstrcmp(ppd->groups[i].name, "Resolutions") == 0)
            resolutions = ppd->groups + i;
    QVERIFY(positions != nullptr && resolutions != nullptr);

    HandMadeOption inSubgroup("InSubgroup", "a", {"a", "b"});
    std::vector<ppd_option_t> subgroupOptions{inSubgroup.mark(1).record()};
    std::vector<ppd_group_t> none;
    std::vector<ppd_group_t> subgroups{groupOf(subgroupOptions, none)};
    positions->subgroups = subgroups.data();
    positions->num_subgroups = 1;
    QStringList list;
    cups->collectMarkedOptions(list, nullptr);
    const QStringList options = cups->options();
    positions->subgroups = nullptr;
    positions->num_subgroups = 0;

    // A group's subgroups come before its own options.
    QCOMPARE(list, QStringList({"Resolution", "300x305dpi", "GapOffset", "1.000", "InSubgroup", "b", "Feed", "24",
                                "PrintSpeed", "5"}));
    QCOMPARE(options, list);
}

void CupsSupportJobsTest::printFile()
{
    const std::unique_ptr<const CupsSupport> cups = supportFor(LP1);
    const int number = cups->printFile(file("a.txt", "Text\n"), QString(), "A title", {});
    QVERIFY(number > 0);
    const CapturedJob printed = scheduler->job(number);
    QCOMPARE(printed.job, number);
    QCOMPARE(printed.queue, QString("LP1"));
    QCOMPARE(printed.data, QByteArray("Text\n"));
    QCOMPARE(printed.title, QByteArray("A title"));
    QCOMPARE(printed.user, QByteArray(cupsUser()));
}

void CupsSupportJobsTest::printFileChoosesThePrinter_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("queue");
    QTest::newRow("empty") << ""
                           << "LP2";
    QTest::newRow("current one") << "Second Printer"
                                 << "LP2";
    QTest::newRow("other one") << "First Printer"
                               << "LP1";
    QTest::newRow("unknown") << "No Such Printer"
                             << "LP2";
    QTest::newRow("queue name") << "LP1"
                                << "LP2";
    QTest::newRow("other case") << "first printer"
                                << "LP2";
    QTest::newRow("beyond ASCII") << QString::fromUtf8("Größe") << "LP4";
}

void CupsSupportJobsTest::printFileChoosesThePrinter()
{
    QFETCH(QString, description);
    scheduler->addQueue("LP4", PrivateScheduler::samplePpd("few-options"), QString::fromUtf8("Größe"));
    auto cups = supportFor(LP2);
    const int number = cups->printFile(file("a.txt", "Text\n"), description, "title", {});
    QVERIFY(number > 0);
    QTEST(scheduler->job(number).queue, "queue");
    QCOMPARE(cups->getCurrentIndex(), int(LP2));
    scheduler->removeQueue("LP4");
}

void CupsSupportJobsTest::printFileOnOtherPrinterWithoutCurrentOne()
{
    auto cups = supportFor(-1);
    const QString path = file("a.txt", "Text\n");
    QCOMPARE(cups->printFile(path, QString(), "title", {}), 0);
    QCOMPARE(cups->printFile(path, "No Such Printer", "title", {}), 0);
    const int number = cups->printFile(path, "Second Printer", "title", {});
    QVERIFY(number > 0);
    QCOMPARE(scheduler->job(number).queue, QString("LP2"));
}

void CupsSupportJobsTest::printFileTitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QByteArray>("printed");
    QTest::newRow("title") << "A title" << QByteArray("A title");
    QTest::newRow("blank") << " " << QByteArray(" ");
    QTest::newRow("quotes") << "It's \"quoted\" \\" << QByteArray("It's \"quoted\" \\");
    QTest::newRow("Latin-1") << QString::fromUtf8("Größe") << QByteArray("Größe");
    QTest::newRow("beyond Latin-1") << QString::fromUtf8("5 €") << QByteArray("5 ?");
    QTest::newRow("empty") << "" << QFile::encodeName(folder.filePath("a.txt"));
    QTest::newRow("null") << QString() << QFile::encodeName(folder.filePath("a.txt"));
}

void CupsSupportJobsTest::printFileTitle()
{
    QFETCH(QString, title);
    auto cups = supportFor(LP1);
    const int number = cups->printFile(file("a.txt", "Text\n"), QString(), title, {});
    QVERIFY(number > 0);
    QTEST(scheduler->job(number).title, "printed");
}

// The file's name in the title's place is reduced like any title.
void CupsSupportJobsTest::printFileTitleOfNameBeyondLatin1()
{
    const int number =
        supportFor(LP1)->printFile(file(QString::fromUtf8("Größe €.txt"), "Text\n"), QString(), QString(), {});
    QVERIFY(number > 0);
    QCOMPARE(scheduler->job(number).title, QByteArray(QFile::encodeName(folder.filePath("Größe ?.txt"))));
}

void CupsSupportJobsTest::printFileSendsSavedAndGivenOptions()
{
    auto cups = supportFor(LP1);
    cups->setOptions({"Aaa", "1", "Darkness", "4", "Feed", "24", "JobStart", "a b"}); // no option sorts before Aaa
    const QStringList before = cups->cupsOptions();
    const int number = cups->printFile(
        file("a.txt", "Text\n"), QString(), "title",
        {"Feed", "100", "PrintSpeed", "4", "PrintSpeed", "5", "JobEnd", QString::fromUtf8("Größe €"), "CutMedia"});
    QVERIFY(number > 0);
    const CapturedJob printed = scheduler->job(number);
    QCOMPARE(printed.option("Aaa"), QByteArray("1"));
    QCOMPARE(printed.option("Darkness"), QByteArray("4"));
    QCOMPARE(printed.option("JobStart"), QByteArray("a b"));
    QCOMPARE(printed.option("Feed"), QByteArray("100")); // overridden
    QCOMPARE(printed.option("PrintSpeed"), QByteArray("5")); // the later one
    QCOMPARE(printed.option("JobEnd"), QByteArray("Gr\366\337e ?")); // Latin-1, as what is saved
    QVERIFY(printed.option("CutMedia").isNull()); // has no value
    QVERIFY(printed.option("100").isNull()); // is a value
    // For this job only.
    QCOMPARE(cups->cupsOptions(), before);
    QVERIFY(!QFile::exists(optionsPath()));
}

void CupsSupportJobsTest::printFileOfOtherPrinterSendsItsOptions()
{
    writeOptionsFile("Dest LP2 Darkness=15\n");
    auto cups = supportFor(LP1);
    cups->setOptions({"Darkness", "4", "Feed", "24"});
    const int number = cups->printFile(file("a.txt", "Text\n"), "Second Printer", "title", {"PrintSpeed", "4"});
    QVERIFY(number > 0);
    const CapturedJob printed = scheduler->job(number);
    QCOMPARE(printed.queue, QString("LP2"));
    QCOMPARE(printed.option("Darkness"), QByteArray("15"));
    QVERIFY(printed.option("Feed").isNull());
    QCOMPARE(printed.option("PrintSpeed"), QByteArray("4"));
}

void CupsSupportJobsTest::printFileOnInstance()
{
    writeOptionsFile("Dest LP1/wide Darkness=15\n");
    auto cups = supportFor(1);
    QCOMPARE(cups->getCurrentQueueName(), QString("LP1/wide"));
    const int number = cups->printFile(file("a.txt", "Text\n"), QString(), "title", {});
    QVERIFY(number > 0);
    QCOMPARE(scheduler->job(number).queue, QString("LP1"));
    QCOMPARE(scheduler->job(number).option("Darkness"), QByteArray("15"));
}

void CupsSupportJobsTest::printFileOnRawQueue()
{
    auto cups = supportFor(LP3);
    const int number = cups->printFile(file("a.txt", "Text\n"), QString(), "title", {});
    QVERIFY(number > 0);
    QCOMPARE(scheduler->job(number).queue, QString("LP3"));
    QCOMPARE(scheduler->job(number).data, QByteArray("Text\n"));
}

void CupsSupportJobsTest::printFileSendsAnyBytes()
{
    QByteArray bytes("\x1b@");
    for (int i = 0; i < 200000; ++i)
        bytes += char(i * 7);
    auto cups = supportFor(LP1);
    const int number = cups->printFile(file("a.prn", bytes), QString(), "title", {"raw", "true"});
    QVERIFY(number > 0);
    QCOMPARE(scheduler->job(number).data, bytes);
}

void CupsSupportJobsTest::printFileWithNameBeyondAscii()
{
    auto cups = supportFor(LP1);
    const QString name = QString::fromUtf8("Größe 印.txt");
    const int number = cups->printFile(file(name, "Text\n"), QString(), "title", {});
    QVERIFY(number > 0);
    QCOMPARE(scheduler->job(number).data, QByteArray("Text\n"));
}

void CupsSupportJobsTest::printFileFailures()
{
    auto cups = supportFor(LP1);
    QCOMPARE(cups->printFile(folder.filePath("missing"), QString(), "title", {}), 0);
    QCOMPARE(cups->printFile(QString(), QString(), "title", {}), 0);
    QCOMPARE(supportFor(3)->printFile(file("a.txt", "Text\n"), QString(), "title", {}), 0);
}

void CupsSupportJobsTest::printFiles()
{
    const std::unique_ptr<const CupsSupport> cups = supportFor(LP1);
    const QStringList names{file("b.txt", "second\n"), file("a.txt", "first\n"), file("c.txt", "third\n")};
    const int number = cups->printFiles({names.at(1), names.at(0), names.at(2)}, "Three files", {});
    QVERIFY(number > 0);
    const CapturedJob printed = scheduler->job(number); // one job
    QCOMPARE(printed.queue, QString("LP1"));
    QCOMPARE(printed.title, QByteArray("Three files"));
    QCOMPARE(printed.data, QByteArray("first\nsecond\nthird\n"));
}

void CupsSupportJobsTest::printFilesTitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QByteArray>("printed");
    QTest::newRow("null") << QString() << QByteArray("");
    QTest::newRow("Latin-1 and beyond") << QString::fromUtf8("Größe 5 €") << QByteArray("Größe 5 ?");
}

void CupsSupportJobsTest::printFilesTitle()
{
    QFETCH(QString, title);
    auto cups = supportFor(LP1);
    const int number = cups->printFiles({file("a.txt", "Text\n")}, title, {});
    QVERIFY(number > 0);
    QTEST(scheduler->job(number).title, "printed");
}

void CupsSupportJobsTest::printFilesSendsSavedAndGivenOptions()
{
    auto cups = supportFor(LP1);
    cups->setOptions({"Darkness", "4", "Feed", "24"});
    const QStringList before = cups->cupsOptions();
    const int number = cups->printFiles({file("a.txt", "Text\n")}, "title", {"Feed", "100", "CutMedia"});
    QVERIFY(number > 0);
    QCOMPARE(scheduler->job(number).option("Darkness"), QByteArray("4"));
    QCOMPARE(scheduler->job(number).option("Feed"), QByteArray("100"));
    QVERIFY(scheduler->job(number).option("CutMedia").isNull());
    QCOMPARE(cups->cupsOptions(), before);
}

void CupsSupportJobsTest::printFilesOnCurrentPrinter()
{
    auto cups = supportFor(LP2);
    const int number = cups->printFiles({file("a.txt", "Text\n")}, "title", {"printer-info", "First Printer"});
    QVERIFY(number > 0);
    QCOMPARE(scheduler->job(number).queue, QString("LP2"));
}

void CupsSupportJobsTest::printFilesWithNamesBeyondAscii()
{
    auto cups = supportFor(LP1);
    const int number = cups->printFiles(
        {file(QString::fromUtf8("Größe.txt"), "first\n"), file(QString::fromUtf8("印.txt"), "second\n")}, "title", {});
    QVERIFY(number > 0);
    QCOMPARE(scheduler->job(number).data, QByteArray("first\nsecond\n"));
}

void CupsSupportJobsTest::printFilesFailures()
{
    auto cups = supportFor(LP1);
    scheduler->startRequests();
    QCOMPARE(cups->printFiles({}, "title", {}), 0);
    QCOMPARE(scheduler->requests(), QStringList());
    QCOMPARE(supportFor(-1)->printFiles({file("a.txt", "Text\n")}, "title", {}), 0);
    QCOMPARE(supportFor(3)->printFiles({file("a.txt", "Text\n")}, "title", {}), 0);
}

void CupsSupportJobsTest::noSchedulerAnyMore()
{
    auto cups = supportFor(LP1);
    scheduler->stop();
    const int file1 = cups->printFile(file("a.txt", "Text\n"), QString(), "title", {});
    const int files = cups->printFiles({file("a.txt", "Text\n")}, "title", {});
    scheduler->start();
    QCOMPARE(file1, 0);
    QCOMPARE(files, 0);
    QVERIFY(cups->printFile(file("a.txt", "Text\n"), QString(), "title", {}) > 0);
}

PROPERTIESDIALOG_TEST_MAIN(CupsSupportJobsTest)
#include "CupsSupportJobsTest.moc"
