// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "Forked.h"
#include "HomeOfBytes.h"
#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/CupsSupport.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace {

const char *const commandNames[] = {"JobStart", "LabelStart", "LabelEnd", "JobEnd"};
const QStringList queues{"LP1", "LP2", "LP3"};

int wantedCount = 60;
quint32 seed = 0;

// ----- what other programs do -----

void lpoptions(const QStringList &arguments)
{
    PrivateScheduler::run("lpoptions", arguments);
}

// Each of these makes libcups rewrite the whole file.
void rewriteFile(QRandomGenerator &random)
{
    switch (random.bounded(3)) {
    case 0:
        lpoptions({"-p", "LP3", "-o", "copies=" + QString::number(random.bounded(2, 100))});
        break;
    case 1:
        lpoptions({"-d", queues.at(random.bounded(3))});
        break;
    default:
        lpoptions({"-p", "LP3", "-r", "copies"});
    }
}

// Saves a command that libcups cannot keep, and reads it after libcups has rewritten the file.
int keepCommand(int &, char **)
{
    {
        CupsSupport cups;
        selectQueue(cups, "LP1");
        cups.setJobEnd("^FD#1");
        if (cups.setDests() != 0)
            return 1;
    }
    if (QProcess::execute("lpoptions", {"-p", "LP3", "-o", "copies=2"}) != 0)
        return 2;
    CupsSupport cups;
    selectQueue(cups, "LP1");
    return cups.getJobEnd() == "^FD#1\n" ? 0 : 3;
}
const TestMain::ChildFunction keepCommandFunction("keep-command", keepCommand);

// ----- texts -----

// A text that a preset's script passes to lpoptions unchanged. Scripts only quote blanks, and lpoptions ends a value at
// a blank even then.
QString plainText(QRandomGenerator &random)
{
    static const QString characters("ABCXYZabcrntxyz0123456789^,.:+-_/@=%\n");
    QString text;
    const int size = random.bounded(40);
    for (int i = 0; i < size; ++i)
        text += characters.at(random.bounded(int(characters.size())));
    return text;
}

QString anyText(QRandomGenerator &random)
{
    static const QString special("\n\n\t #'\"\\\\{}[]()<>,;:=!$&*?%|~^`-rnt");
    QString text;
    const bool onlySpecial = random.bounded(2) == 0;
    const int size = random.bounded(random.bounded(4) == 0 ? 300 : 30);
    for (int i = 0; i < size; ++i)
        text += onlySpecial ? special.at(random.bounded(int(special.size()))) : QChar(random.bounded(1, 0x100));
    return text;
}

// What is read from a text that was stored.
QString expectedOf(const QString &text)
{
    if (text.isEmpty())
        return text;
    QByteArray bytes = text.toLatin1();
    if (!bytes.endsWith('\n') && !bytes.endsWith('\r'))
        bytes += '\r';
    for (const char *lineBreak : {"\r\n", "\r", "\n"})
        bytes.replace(lineBreak, "\\\\r");
    return QString::fromLatin1(bytes.replace("\\\\r", "\n").replace("\\r", "\n"));
}

QString command(const CupsSupport &cups, const char *name)
{
    QString text;
    cups.getString(name, &text);
    return text;
}

// ----- one who edits settings, as a dialog does -----

using Settings = QMap<QString, QByteArray>; // by QUEUE OPTION

// Knows what it has changed and not yet saved.
class Editor
{
public:
    void read()
    {
        cups = std::make_unique<CupsSupport>();
        changes.clear();
        known.clear();
        for (const QString &queue : queues) {
            selectQueue(*cups, queue);
            const Options options = workingCopy(*cups);
            for (auto it = options.cbegin(); it != options.cend(); ++it)
                known.insert(queue + ' ' + QString::fromLatin1(it.key()));
        }
    }

    void change(QRandomGenerator &random, int value)
    {
        const QString &queue = queues.at(random.bounded(2));
        const QByteArray option = random.bounded(2) == 0 ? "Darkness" : commandNames[random.bounded(4)];
        selectQueue(*cups, queue);
        const QString key = queue + ' ' + QString::fromLatin1(option);
        if (random.bounded(4) > 0) {
            const QByteArray text =
                option == "Darkness" ? QByteArray::number(value) : "^XA " + QByteArray::number(value) + "\\\\r^XZ\\\\r";
            cups->setValue(option, text.constData());
            changes.insert(key, text);
        } else if (cups->printerOption(QString::fromLatin1(option))) {
            cups->deleteOptions({QString::fromLatin1(option)});
            if (known.contains(key))
                changes.insert(key, QByteArray());
            else
                changes.remove(key); // set and taken back is no change
        }
    }

    bool save(Settings &expected)
    {
        if (cups->setDests() != 0)
            return false;
        for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
            expected.insert(it.key(), it.value());
            if (it.value().isNull())
                known.remove(it.key());
            else
                known.insert(it.key());
        }
        changes.clear();
        return true;
    }

private:
    std::unique_ptr<CupsSupport> cups;
    Settings changes; // a null text for what was removed
    QSet<QString> known; // what there was when it was read or saved
};

void changeFromOutside(QRandomGenerator &random, int value, Settings &expected)
{
    const QString &queue = queues.at(random.bounded(2));
    if (random.bounded(3) == 0) {
        rewriteFile(random);
    } else if (random.bounded(3) == 0) {
        lpoptions({"-p", queue, "-r", "Darkness"});
        expected.insert(queue + " Darkness", QByteArray());
    } else {
        lpoptions({"-p", queue, "-o", "Darkness=" + QString::number(value)});
        expected.insert(queue + " Darkness", QByteArray::number(value));
    }
}

// A second instance of the library in a separate process.
void changeFromAnotherProcess(quint32 start, int value, Settings &expected)
{
    const auto work = [start, value](Settings &settings) {
        QRandomGenerator random(start);
        Editor editor;
        editor.read();
        editor.change(random, value);
        return editor.save(settings);
    };
    int pipeEnds[2];
    if (pipe(pipeEnds) != 0)
        qFatal("no pipe");
    const int result = inCopy([&] {
        Settings changes;
        const bool good = work(changes);
        QByteArray message;
        for (auto it = changes.cbegin(); it != changes.cend(); ++it)
            message += it.key().toLatin1() + '\n' + it.value() + '\n';
        return good && write(pipeEnds[1], message.constData(), std::size_t(message.size())) == message.size() ? 0 : 1;
    });
    if (result != 0)
        qFatal("the other process has not saved");
    close(pipeEnds[1]);
    QFile file;
    if (!file.open(pipeEnds[0], QIODevice::ReadOnly, QFile::AutoCloseHandle))
        qFatal("nothing to read from the other process");
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (int i = 0; i + 1 < lines.size(); i += 2)
        expected.insert(QString::fromLatin1(lines.at(i)), lines.at(i + 1).isEmpty() ? QByteArray() : lines.at(i + 1));
}

} // namespace

// If this fails, lpoptions or a second dialog loses settings that the user has saved.
class OtherProgramsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void emptyCommands_data();
    void emptyCommands();
    void emptyCommandBehindOneThatIsCut();
    void commandInAHomeOfBytes();
    void commandTexts();
    void appliedTextsAndScript();
    void interleavings();
    void processesAtOnce();

private:
    PrivateScheduler scheduler;
};

void OtherProgramsTest::initTestCase()
{
    scheduler.addQueue("LP1", PrivateScheduler::samplePpd("every-option"));
    scheduler.addQueue("LP2", PrivateScheduler::samplePpd("label-300"));
    scheduler.addQueue("LP3", QString());
    qInfo("seed %u", seed);
}

void OtherProgramsTest::init()
{
    QDir folder(QDir::homePath() + "/.cups");
    folder.removeRecursively();
    QVERIFY(folder.mkpath(".")); // root's options are stored there or lost: libcups does not create the folder for root
}

void OtherProgramsTest::emptyCommands_data()
{
    QTest::addColumn<QString>("queue");
    QTest::newRow("PPD file with defaults of the commands") << "LP1";
    QTest::newRow("PPD file without") << "LP2";
}

// An empty value would come back as "true", and the printer would get that.
void OtherProgramsTest::emptyCommands()
{
    QFETCH(QString, queue);
    {
        OpenDialog open(queue, {"Darkness", "4"});
        open.dialog.show();
        for (const char *radio :
             {"jobStartRadioButton", "labelStartRadioButton", "labelEndRadioButton", "jobEndRadioButton"}) {
            open.click(radio);
            open.setPlainText("commandEdit", "x");
            open.setPlainText("commandEdit", QString());
        }
        open.click("applyButton");
    }
    QRandomGenerator random(seed);
    for (int i = 0; i < 3; ++i) {
        rewriteFile(random);
        CupsSupport cups;
        selectQueue(cups, queue);
        for (const char *name : commandNames)
            QCOMPARE(command(cups, name), QString());
        const Options options = storedOptions(queue.toLatin1());
        for (const char *name : commandNames)
            QVERIFY(options.value(name) != "true");
    }
    // Also after the script has applied the settings, which can only reset a command to its default.
    PrivateScheduler::run("/bin/bash", {QDir::homePath() + "/.cups/" + queue + "/_current.sh"});
    rewriteFile(random);
    CupsSupport cups;
    selectQueue(cups, queue);
    for (const char *name : commandNames)
        QCOMPARE(command(cups, name), QString::fromLatin1(cups.getDefaultValue(name)));
}

// The empty command is lost with the rest of the line behind the "#", and restored.
void OtherProgramsTest::emptyCommandBehindOneThatIsCut()
{
    {
        CupsSupport cups;
        selectQueue(cups, "LP1");
        cups.setJobEnd("^FD#1");
        cups.setJobStart(QString());
        QCOMPARE(cups.setDests(), 0);
    }
    lpoptions({"-p", "LP3", "-o", "copies=2"});
    CupsSupport cups;
    selectQueue(cups, "LP1");
    QCOMPARE(cups.getJobEnd(), QString("^FD#1\n"));
    QCOMPARE(cups.getJobStart(), QString(""));
}

// Whose path no QString holds.
void OtherProgramsTest::commandInAHomeOfBytes()
{
    const HomeOfBytes home;
    QCOMPARE(HomeOfBytes::runChild("keep-command").exitCode, 0);
    QCOMPARE(access((HomeOfBytes::path() + "/.cups/LP1/_saved-options").constData(), F_OK), 0);
}

void OtherProgramsTest::commandTexts()
{
    QRandomGenerator random(seed);
    for (int count = 0; count < wantedCount; count += 4) {
        const QString &queue = queues.at(random.bounded(2));
        QStringList texts;
        {
            CupsSupport cups;
            selectQueue(cups, queue);
            for (const char *name : commandNames) {
                texts << anyText(random);
                cups.setString(name, texts.last());
            }
            QVERIFY2(cups.setDests() == 0, CupsSupport::getCupsError());
        }
        for (int i = 0; i < 3; ++i)
            rewriteFile(random);
        CupsSupport cups;
        selectQueue(cups, queue);
        for (int i = 0; i < 4; ++i) {
            const QString found = command(cups, commandNames[i]);
            const QString expected = expectedOf(texts.at(i));
            QVERIFY2(found == expected,
                     qPrintable(QString("text %1: %2 instead of %3").arg(count + i).arg(found, expected)));
        }
    }
}

// Through the dialog, and then by the script that it leaves for other programs to run.
void OtherProgramsTest::appliedTextsAndScript()
{
    QRandomGenerator random(seed);
    const std::array radios{"jobStartRadioButton", "labelStartRadioButton", "labelEndRadioButton", "jobEndRadioButton"};
    for (int count = 0; count < wantedCount; count += 4) {
        QStringList texts;
        {
            OpenDialog open("LP2");
            open.dialog.show();
            open.slide("darknessSlider", random.bounded(1, 10));
            for (const char *radio : radios) {
                texts << plainText(random);
                open.click(radio);
                open.setPlainText("commandEdit", texts.last());
            }
            open.click("applyButton");
        }
        rewriteFile(random);
        // Somebody changes all of it, then the user takes back what was applied.
        lpoptions({"-p", "LP2", "-o", "JobStart=other", "-o", "LabelEnd=other", "-r", "JobEnd"});
        PrivateScheduler::run("/bin/bash", {QDir::homePath() + "/.cups/LP2/_current.sh"});
        rewriteFile(random);
        CupsSupport cups;
        selectQueue(cups, "LP2");
        for (int i = 0; i < 4; ++i) {
            const QString found = command(cups, commandNames[i]);
            const QString expected = expectedOf(texts.at(i));
            QVERIFY2(found == expected,
                     qPrintable(QString("text %1: %2 instead of %3").arg(count + i).arg(found, expected)));
        }
    }
}

void OtherProgramsTest::interleavings()
{
    QRandomGenerator random(seed);
    std::array<Editor, 2> editors;
    for (Editor &editor : editors)
        editor.read();
    Settings expected;
    int lost = 0;
    for (int i = 0; i < wantedCount; ++i) {
        Editor &editor = editors.at(std::size_t(random.bounded(2)));
        for (int steps = random.bounded(1, 4); steps > 0; --steps) {
            switch (random.bounded(6)) {
            case 0:
                editor.read();
                break;
            case 1:
            case 2:
                editor.change(random, 1000 + 10 * i + steps);
                break;
            case 3:
                changeFromOutside(random, 1000 + 10 * i + steps, expected);
                break;
            case 4:
                changeFromAnotherProcess(random.generate(), 1000 + 10 * i + steps, expected);
                break;
            default:
                QVERIFY2(editor.save(expected), CupsSupport::getCupsError());
            }
        }
        editor.change(random, 1000 + 10 * i);
        QVERIFY2(editor.save(expected), CupsSupport::getCupsError());
        CupsSupport cups;
        bool isComplete = true;
        for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
            selectQueue(cups, it.key().section(' ', 0, 0));
            const cups_option_t *option = cups.printerOption(it.key().section(' ', 1));
            const bool isThere = it.value().isNull() ? !option : option && it.value() == option->value;
            if (!isThere)
                qInfo("%s is %s instead of %s", qPrintable(it.key()), option ? option->value : "not there",
                      it.value().constData());
            isComplete = isComplete && isThere;
        }
        lost += !isComplete;
    }
    qInfo("%d interleavings, %d of them lost something", wantedCount, lost);
    QCOMPARE(lost, 0);
}

// Two processes that save other options of the same queue as fast as they can.
void OtherProgramsTest::processesAtOnce()
{
    const int savings = 50;
    std::array<pid_t, 2> copies;
    for (std::size_t process = 0; process < copies.size(); ++process) {
        copies[process] = fork();
        if (copies[process] != 0)
            continue;
        CupsSupport cups;
        selectQueue(cups, "LP1");
        for (int i = 0; i < savings; ++i) {
            const QByteArray option = (process == 0 ? "A" : "B") + QByteArray::number(i);
            cups.setValue(option.constData(), "1");
            if (cups.setDests() != 0)
                _exit(1);
        }
        _exit(0);
    }
    for (const pid_t copy : copies) {
        const int status = waitForEnd(copy);
        QCOMPARE(WIFEXITED(status) ? WEXITSTATUS(status) : -1, 0);
    }
    const Options options = storedOptions("LP1");
    for (int i = 0; i < savings; ++i) {
        QVERIFY(options.contains("A" + QByteArray::number(i)));
        QVERIFY(options.contains("B" + QByteArray::number(i)));
    }
}

// OtherProgramsTest [--count TEXTS AND INTERLEAVINGS] [--seed NUMBER] [OPTIONS OF QTEST]
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
    OtherProgramsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "OtherProgramsTest.moc"
