// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "TestMain.h"
#include "cups/OptionsMemory.h"
#include "cups/OptionsMerge.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <cstring>

using OptionsSyntax::ConfLine;
using OptionsSyntax::Reader;

namespace {

// As cupsFileGetConf() from libcups 2.4.17 on, with which these tests need not run.
std::optional<QList<ConfLine>> readLikeNewer(const QByteArray &content)
{
    QList<ConfLine> lines;
    int number = 0;
    const QList<OptionsSyntax::Piece> pieces = OptionsSyntax::pieces(content);
    for (const OptionsSyntax::Piece &piece : pieces) {
        ++number;
        QByteArray line;
        const QByteArray text = piece.text.trimmed();
        for (int i = 0; i < text.size() && text.at(i) != '#'; ++i) {
            const char next = i + 1 < text.size() ? text.at(i + 1) : '\0';
            if (text.at(i) != '\\' || !next || !std::strchr("\\#nr", next)) {
                line += text.at(i);
                continue;
            }
            line += next == 'n' ? '\n' : next == 'r' ? '\r' : next;
            ++i;
        }
        line = line.trimmed();
        if (line.isEmpty())
            continue;
        const auto blank = line.indexOf(' ');
        lines.append({number, line.left(blank), blank < 0 ? QByteArray() : line.mid(blank).trimmed()});
    }
    return lines;
}

OptionArray array(const QList<QByteArray> &texts)
{
    OptionArray options;
    for (int i = 0; i + 1 < texts.size(); i += 2)
        options.set(texts.at(i).constData(), texts.at(i + 1).constData());
    return options;
}

QByteArray text(const OptionArray &options)
{
    QByteArray all;
    for (const cups_option_t &option : options)
        all.append(option.name).append('=').append(option.value).append('\n');
    return all;
}

OptionArray afterRewritings(OptionArray options, int count, const Reader &reader)
{
    for (int i = 0; i < count; ++i)
        options = OptionsSyntax::rewritten(options, reader).value();
    return options;
}

QString folder()
{
    return QDir::homePath() + "/.cups/LP1";
}

QByteArray home()
{
    return QFile::encodeName(QDir::homePath());
}

QStringList files()
{
    return QDir(folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
}

// A destination with options as if libcups had just read it.
struct Dest
{
    explicit Dest(const OptionArray &options)
    {
        record.name = name;
        for (const cups_option_t &option : options)
            record.num_options = cupsAddOption(option.name, option.value, record.num_options, &record.options);
    }
    ~Dest() { cupsFreeOptions(record.num_options, record.options); }
    Dest(const Dest &) = delete;
    Dest &operator=(const Dest &) = delete;

    char name[4] = "LP1";
    cups_dest_t record = {};
};

} // namespace

Q_DECLARE_METATYPE(Reader)
Q_DECLARE_METATYPE(OptionArray)

// If this fails, user commands change when other programs rewrite the options file.
// If this fails, user commands come back damaged after another program has saved something.
class OptionsMemoryTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void lineReadsBack_data();
    void lineReadsBack();
    void optionsCutByOthersStandLast();
    void merging();

    void restored_data();
    void restored();
    void valueOfTheUserHolds();
    void kept();
    void linkIsNotFollowed();
    void forgotten();
    void namesThatLeadElsewhere();

private:
    static void addReaders();
};

void OptionsMemoryTest::init()
{
    QDir(QDir::homePath() + "/.cups").removeRecursively();
}

void OptionsMemoryTest::addReaders()
{
    QTest::addColumn<Reader>("reader");
    QTest::newRow("libcups that runs") << Reader(&OptionsSyntax::readWithLibcups);
    QTest::newRow("libcups 2.4.17 and later") << Reader(&readLikeNewer);
}

void OptionsMemoryTest::lineReadsBack_data()
{
    addReaders();
}

void OptionsMemoryTest::lineReadsBack()
{
    QFETCH(Reader, reader);
    OptionsSyntax::Entry entry;
    entry.name = "LP1";
    entry.instance = "wide";
    for (const char *value : {"a",  "",      " ",   "a b", "\\",     "\\\\",       "A\\\\rB\\\\r", "A\\rB\\n",
                              "#",  "a#b",   "\\#", "#\\", "'",      "\"",         "\\\"",         "\\'",
                              "\t", "{a b}", "{",   "a\\", "\\\\\\", "Gr\xf6\xdf", "^XA^FD#1\\\\r"}) {
        const OptionArray options = array({"JobEnd", value, "JobStart", value, "Zed", "1"});
        const QByteArray line = OptionsSyntax::compose(entry, options, reader);
        QVERIFY2(!line.isEmpty(), value);
        const auto read = OptionsSyntax::readEntries(line + "\nDest LP2 X=1\n", reader).value();
        QCOMPARE(int(read.size()), 2);
        QCOMPARE(read.first().instance, QByteArray("wide"));
        OptionArray found;
        found.parse(read.first().options.constData());
        QCOMPARE(text(found), text(options));
    }
    for (const QByteArray &value : {QByteArray("a\nb"), QByteArray("a\rb"), QByteArray(9000, 'x')})
        QVERIFY(OptionsSyntax::compose(entry, array({"X", value}), reader).isEmpty());
}

void OptionsMemoryTest::optionsCutByOthersStandLast()
{
    OptionsSyntax::Entry entry;
    entry.name = "LP1";
    const OptionArray options = array({"JobEnd", "a#", "JobStart", "b", "LabelEnd", "#c", "Zed", "1"});
    QCOMPARE(OptionsSyntax::compose(entry, options, &OptionsSyntax::readWithLibcups),
             QByteArray("Dest LP1 JobStart=b Zed=1 JobEnd=\"a\\#\" LabelEnd=\"\\#c\""));
}

void OptionsMemoryTest::merging()
{
    const QByteArray command = "A\\\\rB\\\\r";
    std::vector<OptionsMerge::Change> changes(1);
    changes[0].name = "LP1";
    changes[0].set.set("JobStart", command.constData());
    changes[0].defaultValue = [](const char *) -> const char * { return nullptr; };
    const OptionsMerge::Result result =
        OptionsMerge::merge("Dest LP2 X=\"\\\\\\\\r\"\nDest LP1 X=\"\\\\\\\\r\"\n", changes, &readLikeNewer);
    QCOMPARE(result.content,
             QByteArray("Dest LP2 X=\"\\\\\\\\r\"\n"
                        "Dest LP1 JobStart=\"A\\\\\\\\\\\\\\\\rB\\\\\\\\\\\\\\\\r\" X=\"\\\\\\\\r\"\n"));
    QCOMPARE(result.written.size(), std::size_t(1));
    QCOMPARE(text(result.written.at(0).options), "JobStart=" + command + "\nX=\\r\n");

    // X was saved with two backslashes, and another program has rewritten the file.
    changes[0].savedEarlier.set("X", "\\\\r");
    const OptionsMerge::Result restored = OptionsMerge::merge("Dest LP1 X=\"\\\\\\\\r\"\n", changes, &readLikeNewer);
    QCOMPARE(text(restored.written.at(0).options), "JobStart=" + command + "\nX=\\\\r\n");

    // Without a change it is restored too, unless somebody else has changed it since.
    std::vector<OptionsMerge::Change> damaged(1);
    damaged[0].name = "LP1";
    damaged[0].defaultValue = changes[0].defaultValue;
    damaged[0].savedEarlier.set("X", "\\\\r");
    QVERIFY(damaged[0].isEmpty());
    damaged[0].isDamaged = true;
    QVERIFY(!damaged[0].isEmpty());
    QCOMPARE(OptionsMerge::merge("Dest LP1 X=\"\\\\\\\\r\"\n", damaged, &readLikeNewer).written.size(), std::size_t(1));
    const QByteArray changedSince = "Dest LP1 X=other\n";
    QCOMPARE(OptionsMerge::merge(changedSince, damaged, &readLikeNewer).content, changedSince);
}

void OptionsMemoryTest::restored_data()
{
    QTest::addColumn<Reader>("reader");
    QTest::addColumn<OptionArray>("options");
    QTest::addColumn<bool>("isHarmed");
    const auto row = [](const char *name, const QList<QByteArray> &options, bool now, bool later) {
        QTest::addRow("%s, 2.4.2", name) << Reader(&OptionsSyntax::readWithLibcups) << array(options) << now;
        QTest::addRow("%s, libcups 2.4.17 and later", name) << Reader(&readLikeNewer) << array(options) << later;
    };
    // The libcups that runs may be a newer one itself.
    const bool isNew = text(afterRewritings(array({"X", "\\\\"}), 1, &OptionsSyntax::readWithLibcups)) != "X=\\\\\n";
    row("plain", {"Darkness", "5", "JobStart", "a b"}, false, false);
    row("line breaks", {"Darkness", "5", "JobStart", "A\\\\rB\\\\r", "JobEnd", "\\\\r"}, isNew, true);
    row("number sign", {"Darkness", "5", "JobStart", "^FD#1\\\\r", "PrintSpeed", "3"}, true, true);
    row("only a number sign", {"JobStart", "#"}, true, true);
    row("two number signs", {"JobEnd", "1#", "JobStart", "2#", "LabelEnd", "3#"}, true, true);
    row("tab", {"JobStart", "a\tb", "LabelEnd", "x"}, true, true);
}

void OptionsMemoryTest::restored()
{
    QFETCH(Reader, reader);
    QFETCH(OptionArray, options);
    QFETCH(bool, isHarmed);
    QVERIFY((text(afterRewritings(options, 1, reader)) != text(options)) == isHarmed);
    OptionsMemory::remember(home(), "LP1", {}, options, reader);
    QCOMPARE(files(), isHarmed ? QStringList("_saved-options") : QStringList());
    for (int count = 0; count < 5; ++count) {
        Dest dest(afterRewritings(options, count, reader));
        OptionsMemory::restore(home(), dest.record, reader);
        for (const cups_option_t &option : options)
            QCOMPARE(QByteArray(cupsGetOption(option.name, dest.record.num_options, dest.record.options)),
                     QByteArray(option.value));
    }
}

void OptionsMemoryTest::valueOfTheUserHolds()
{
    const OptionArray options = array({"JobEnd", "A\\\\rB\\\\r", "JobStart", "C\\\\r", "Darkness", "5"});
    OptionsMemory::remember(home(), "LP1", {}, options, &readLikeNewer);
    // Another command, the other one after two rewritings, a changed number, and one more option.
    Dest dest(array({"JobEnd", "Other\\r", "JobStart", "Cr", "Darkness", "6", "Feed", "24"}));
    OptionsMemory::restore(home(), dest.record, &readLikeNewer);
    QCOMPARE(text(OptionArray(dest.record)),
             text(array({"Darkness", "6", "Feed", "24", "JobEnd", "Other\\r", "JobStart", "C\\\\r"})));
    // And one that was removed.
    Dest without(array({"JobStart", "C\\r"}));
    OptionsMemory::restore(home(), without.record, &readLikeNewer);
    QCOMPARE(text(OptionArray(without.record)), QByteArray("JobStart=C\\\\r\n"));
}

void OptionsMemoryTest::kept()
{
    const OptionArray options = array({"JobEnd", "Gr\xf6\xdf"
                                                 "e =%\n\x01\\\\r"});
    OptionsMemory::remember(home(), "LP1", "wide", options, &readLikeNewer);
    QFile file(folder() + "/wide/_saved-options");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("JobEnd=Gr%F6%DFe%20%3D%25%0A%01%5C%5Cr\n"));
    QCOMPARE(int(QFileInfo(folder()).permissions() & 0x77), 0); // nobody else's
}

void OptionsMemoryTest::linkIsNotFollowed()
{
    const OptionArray options = array({"JobEnd", "A\\\\r"});
    const QString target = QDir::homePath() + "/precious";
    QFile precious(target);
    QVERIFY(precious.open(QIODevice::WriteOnly) && precious.write("JobEnd=evil\n") > 0);
    precious.close();
    QVERIFY(QDir().mkpath(folder()));
    QVERIFY(QFile::link(target, folder() + "/_saved-options"));
    Dest dest(afterRewritings(options, 1, &readLikeNewer));
    OptionsMemory::restore(home(), dest.record, &readLikeNewer);
    QCOMPARE(text(OptionArray(dest.record)), QByteArray("JobEnd=A\\r\n"));
    OptionsMemory::remember(home(), "LP1", {}, options, &readLikeNewer);
    QVERIFY(!QFileInfo(folder() + "/_saved-options").isSymLink());
    QVERIFY(precious.open(QIODevice::ReadOnly));
    QCOMPARE(precious.readAll(), QByteArray("JobEnd=evil\n"));
    OptionsMemory::restore(home(), dest.record, &readLikeNewer);
    QCOMPARE(text(OptionArray(dest.record)), text(options));
    QVERIFY(precious.remove());

    // A link instead of the folder is not followed either.
    QVERIFY(QDir(folder()).removeRecursively());
    const QString elsewhere = QDir::homePath() + "/elsewhere";
    QVERIFY(QDir().mkpath(elsewhere) && QFile::link(elsewhere, folder()));
    OptionsMemory::remember(home(), "LP1", {}, options, &readLikeNewer);
    OptionsMemory::remember(home(), "LP1", "wide", options, &readLikeNewer);
    QVERIFY(QDir(elsewhere).isEmpty());
    QVERIFY(QFile::remove(folder()) && QDir().rmdir(elsewhere));
}

void OptionsMemoryTest::forgotten()
{
    OptionsMemory::remember(home(), "LP1", {}, array({"JobEnd", "A\\\\r"}), &readLikeNewer);
    QCOMPARE(files(), QStringList("_saved-options"));
    OptionsMemory::remember(home(), "LP1", {}, array({"JobEnd", "A"}), &readLikeNewer);
    QCOMPARE(files(), QStringList());
}

void OptionsMemoryTest::namesThatLeadElsewhere()
{
    const OptionArray options = array({"JobEnd", "A\\\\r"});
    for (const char *name : {"..", ".", "../x", "a/b"}) {
        OptionsMemory::remember(home(), name, {}, options, &readLikeNewer);
        OptionsMemory::remember(home(), "LP1", name, options, &readLikeNewer);
    }
    QVERIFY(!QFileInfo::exists(QDir::homePath() + "/.cups"));
    QVERIFY(!QFileInfo::exists(QDir::homePath() + "/_saved-options"));
}

PROPERTIESDIALOG_TEST_MAIN(OptionsMemoryTest)
#include "OptionsMemoryTest.moc"
