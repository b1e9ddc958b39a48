// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <QDataStream>
#include <QRandomGenerator>
#include <QTextDocument>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

const char *const radios[] = {"jobStartRadioButton", "labelStartRadioButton", "labelEndRadioButton",
                              "jobEndRadioButton"};
const int commandCount = 4;
const int queues = 10; // with more, fetching them takes longer than the dialogs
const int textsPerRound = queues * commandCount;

// libcups reads lines of the options file up to 8191 bytes. The commands leave room for the other settings.
const int longestCommands = 7000; // bytes of a line for all four
const int tooLong = 9000;

int wantedCount = 240;
quint32 seed = 0;

QString queueName(int number)
{
    return QString("Q%1").arg(number);
}

QByteArray optionsFile()
{
    QFile file(homePath(".cups/lpoptions"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// ----- the texts -----

QChar randomCharacter(QRandomGenerator &random, int alphabet)
{
    static const QString beyond(
        QString::fromUtf8("\u0100\u0152\u0178\u03a9\u0416\u20ac\u2013\u201c\u2028\u2029\u202e\u4e00"
                          "\ufdd0\ufdd1\ufeff\ufffc\U0001f600")
        + QChar(0xd800));
    static const QString special("\n\n\t #'\"\\\\{}[]()<>,;:=!$&*?%|~^`-rnt");
    switch (alphabet) {
    case 0: // what means something to somebody who reads the file
        return special.at(random.bounded(int(special.size())));
    case 1: // what labels are made of
        return QChar(random.bounded(0x20, 0x7f));
    case 2: // Latin-1 with its control characters and the no-break space
        return QChar(random.bounded(0x100));
    default: // beyond Latin-1, with Qt's own separators and halves of pairs
        return beyond.at(random.bounded(int(beyond.size())));
    }
}

// How long the text may get in the options file: a line break is a carriage return's escape sequence with two
// backslashes, and some characters have a backslash before them. From libcups 2.4.17 on, all backslashes are doubled.
int lengthInFile(const QString &text)
{
    int length = 5;
    for (const QChar c : text) {
        const bool isLineBreak = c == '\n' || c == '\r' || c == QChar::ParagraphSeparator || c == QChar::LineSeparator;
        length += isLineBreak ? 9 : c == '\\' || c == '#' ? 4 : 3;
    }
    return length;
}

QString randomText(QRandomGenerator &random, int room)
{
    const int sizes[] = {0, 10, 80, 400, 3500};
    const int size = random.bounded(sizes[random.bounded(5)] + 1);
    const int alphabet = random.bounded(5);
    QString text;
    while (text.size() < size) {
        // The last one mixes them all.
        text += randomCharacter(random, alphabet < 4 ? alphabet : random.bounded(4));
    }
    while (!text.isEmpty() && lengthInFile(text) > room)
        text.chop(std::max(1, int(text.size()) / 10));
    return text;
}

// The text of the edit. QPlainTextEdit::toPlainText() would replace no-break spaces by blanks.
QString heldBy(const QPlainTextEdit *edit)
{
    QString text = edit->document()->toRawText();
    return text.replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n');
}

// What must come back: Latin-1 without NUL, with a line break at the end; what looks like a stored line break becomes
// one.
QString expectedOf(const QString &text)
{
    if (text.isEmpty())
        return text;
    QByteArray bytes = text.toLatin1();
    bytes.replace('\0', '?');
    if (!bytes.endsWith('\n'))
        bytes += '\n';
    bytes.replace("\n", "\\\\r").replace("\\\\r", "\n").replace("\\r", "\n");
    return QString::fromLatin1(bytes);
}

// ----- in processes of their own -----

bool exchange(const char *name, QIODevice::OpenMode mode, QStringList &texts)
{
    QFile file(homePath(name));
    if (!file.open(mode))
        return false;
    QDataStream stream(&file);
    mode == QIODevice::WriteOnly ? stream << texts : stream >> texts;
    return stream.status() == QDataStream::Ok;
}

QtMessageHandler handlerBefore = nullptr;

// No machine has fonts for all of these characters.
void ignoreMissingFonts()
{
    handlerBefore =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context, const QString &message) {
            if (!message.contains("OpenType support missing"))
                handlerBefore(type, context, message);
        });
}

// A text that is too long for a line of the file: the file does not change.
bool applyTooLong(const QString &queue, QRandomGenerator &random)
{
    const QByteArray before = optionsFile();
    OpenDialog open(queue);
    open.dialog.show();
    QString text;
    while (text.size() < tooLong)
        text += QChar(random.bounded(0x20, 0x7f));
    open.button(radios[random.bounded(commandCount)])->click();
    open.widget<QPlainTextEdit>("commandEdit")->setPlainText(text);
    open.button("applyButton")->click();
    return optionsFile() == before;
}

// Types the texts into the dialog of each queue and applies them: SEED
int apply(int &argc, char **argv)
{
    ignoreMissingFonts();
    const QApplication app(argc, argv);
    QRandomGenerator random(QByteArray(argv[1]).toUInt());
    QStringList texts;
    for (int i = 0; i < queues; ++i) {
        OpenDialog open(queueName(i));
        open.dialog.show();
        auto *edit = open.widget<QPlainTextEdit>("commandEdit");
        int room = longestCommands;
        for (const char *radio : radios) {
            open.button(radio)->click();
            const QString text = randomText(random, room);
            if (random.bounded(2) == 0) {
                edit->setPlainText(text);
            } else {
                edit->clear();
                edit->insertPlainText(text);
            }
            texts << heldBy(edit);
            room -= lengthInFile(text);
        }
        open.button("applyButton")->click();
    }
    if (!applyTooLong(queueName(random.bounded(queues)), random)) {
        std::fputs("a command that no line of the file can hold changed the file\n", stderr);
        return EXIT_FAILURE;
    }
    return exchange("applied", QIODevice::WriteOnly, texts) ? EXIT_SUCCESS : EXIT_FAILURE;
}
const TestMain::ChildFunction applyFunction("apply", apply);

int read(int &argc, char **argv)
{
    ignoreMissingFonts();
    const QApplication app(argc, argv);
    QStringList texts;
    for (int i = 0; i < queues; ++i) {
        OpenDialog open(queueName(i));
        open.dialog.show();
        for (const char *radio : radios) {
            open.button(radio)->click();
            texts << heldBy(open.widget<QPlainTextEdit>("commandEdit"));
        }
    }
    return exchange("read", QIODevice::WriteOnly, texts) ? EXIT_SUCCESS : EXIT_FAILURE;
}
const TestMain::ChildFunction readFunction("read", read);

} // namespace

// If this fails, user commands change between typing, saving and printing.
class CommandTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void roundTrip();

private:
    PrivateScheduler scheduler;
};

void CommandTextsTest::initTestCase()
{
    for (int i = 0; i < queues; ++i)
        scheduler.addQueue(queueName(i), PrivateScheduler::samplePpd("few-options"));
}

void CommandTextsTest::roundTrip()
{
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    int count = 0;
    int severalLines = 0;
    int longest = 0;
    for (; count < wantedCount; count += textsPerRound) {
        const QString roundSeed = QString::number(random.generate());
        QCOMPARE(TestMain::runChild("apply", {roundSeed}).exitCode, 0);
        QCOMPARE(TestMain::runChild("read").exitCode, 0);
        QStringList applied;
        QStringList found;
        QVERIFY(exchange("applied", QIODevice::ReadOnly, applied));
        QVERIFY(exchange("read", QIODevice::ReadOnly, found));
        QCOMPARE(applied.size(), textsPerRound);
        QCOMPARE(found.size(), textsPerRound);
        for (int i = 0; i < textsPerRound; ++i) {
            const QString context = QString("seed %1, round %2, text %3").arg(seed).arg(roundSeed).arg(i);
            QVERIFY2(found.at(i) == expectedOf(applied.at(i)), qPrintable(context));
            severalLines += applied.at(i).contains('\n');
            longest = std::max(longest, int(applied.at(i).size()));
        }
    }
    qInfo("%d texts came back; %d had several lines, the longest %d characters", count, severalLines, longest);
    QVERIFY(severalLines > count / 4);
    QVERIFY(longest > 1000);
}

// CommandTextsTest [--count TEXTS] [--seed NUMBER] [OPTIONS OF QTEST]
int main(int argc, char **argv)
{
    const int exitCode = TestMain::prepare(argc, argv);
    if (exitCode >= 0)
        return exitCode;
    seed = QRandomGenerator::global()->generate();
    while (argc > 2 && (!std::strcmp(argv[1], "--count") || !std::strcmp(argv[1], "--seed"))) {
        if (!std::strcmp(argv[1], "--count"))
            wantedCount = std::atoi(argv[2]);
        else
            seed = QByteArray(argv[2]).toUInt();
        std::rotate(argv + 1, argv + 3, argv + argc);
        argc -= 2;
    }
    const QApplication app(argc, argv);
    CommandTextsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CommandTextsTest.moc"
