// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/CupsSupport.h>
#include <PropertiesDialog/Preset.h>
#include <PropertiesDialog/Presets.h>

#include <QGroupBox>
#include <QProcess>
#include <QTabWidget>

#include <functional>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

QString scriptPath(const QString &file = "Foreign")
{
    return cupsFolder() + "/LP1/" + file + ".sh";
}

// While this object exists, PATH contains only programs that record how they were called.
class LoggedPrograms
{
public:
    LoggedPrograms()
    {
        for (const char *name :
             {"bash", "sh", "env", "id", "lp", "lpoptions", "lpadmin", "touch", "ppdhack", "ppdhackX", "x", "y"}) {
            writeFile(folder.filePath(name), "#!/bin/sh\necho \"${0##*/} $*\" >> \"${0%/*}/log\"\n");
            QFile::setPermissions(folder.filePath(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        qputenv("PATH", QFile::encodeName(folder.path()));
    }
    ~LoggedPrograms() { qputenv("PATH", pathBefore); }

    LoggedPrograms(const LoggedPrograms &) = delete;
    LoggedPrograms &operator=(const LoggedPrograms &) = delete;

    // The calls since the last time, one per line.
    QByteArray calls() const
    {
        const QString log = folder.filePath("log");
        const QByteArray content = fileContent(log);
        QFile::remove(log);
        return content;
    }

private:
    QTemporaryDir folder{"/tmp/pd-XXXXXX"};
    QByteArray pathBefore = qgetenv("PATH");
};

// Traces of a script that was run.
QString marker()
{
    return QDir::homePath() + "/marker";
}

// A script that leaves traces if it is run, with this line in it.
QByteArray scriptWith(const QByteArray &line)
{
    return "#!/bin/bash\n/usr/bin/touch " + QFile::encodeName(marker())
           + "\n#name=Foreign\n#description=$(/usr/bin/touch " + QFile::encodeName(marker())
           + ")\nlpoptions -pLP1 -oDarkness=3\n" + line + "\n";
}

// ----- things that are no scripts -----

using MakeFile = std::function<void(const QByteArray &path)>;

void check(bool good, const char *what)
{
    if (!good)
        qFatal("cannot make a %s", what);
}

void makePipe(const QByteArray &path)
{
    check(mkfifo(path.constData(), 0600) == 0, "pipe");
}

void makeSocket(const QByteArray &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    const void *pointer = &address;
    const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
    check(bind(fd, static_cast<const sockaddr *>(pointer), sizeof address) == 0, "socket");
    close(fd);
}

void makeHugeFile(const QByteArray &path)
{
    writeFile(QFile::decodeName(path), scriptWith("ppdhack 1.00 1.00 LP1") + QByteArray(10 * 1024 * 1024, '\n'));
}

void makeLink(const QByteArray &target, const QByteArray &path)
{
    check(symlink(target.constData(), path.constData()) == 0, "link");
}

MakeFile linkTo(const MakeFile &makeTarget)
{
    return [makeTarget](const QByteArray &path) {
        const QByteArray target = QFile::encodeName(cupsFolder()) + "/target";
        makeTarget(target);
        makeLink(target, path);
    };
}

const QList<std::pair<const char *, MakeFile>> &kinds()
{
    static const QList<std::pair<const char *, MakeFile>> list{
        {"pipe", makePipe},
        {"socket", makeSocket},
        {"folder", [](const QByteArray &path) { check(mkdir(path.constData(), 0700) == 0, "folder"); }},
        {"10 MiB", makeHugeFile},
        {"link to a pipe", linkTo(makePipe)},
        {"link to 10 MiB", linkTo(makeHugeFile)},
        {"link to an endless device", [](const QByteArray &path) { makeLink("/dev/zero", path); }},
        {"link to a terminal", [](const QByteArray &path) { makeLink("/dev/tty", path); }},
        {"link to nothing", [](const QByteArray &path) { makeLink("missing/script", path); }},
        {"link to itself", [](const QByteArray &path) { makeLink(path, path); }},
    };
    return list;
}

// ----- what is not ours -----

// Everything in HOME but the settings: names, kinds, permissions, link counts and contents.
QStringList belongings(const QString &path = QDir::homePath())
{
    QStringList list;
    const QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const QFileInfoList entries = QDir(path).entryInfoList(everything, QDir::Name);
    for (const QFileInfo &entry : entries) {
        if (entry.filePath() == cupsFolder())
            continue;
        struct stat status = {};
        check(lstat(QFile::encodeName(entry.filePath()).constData(), &status) == 0, "list");
        list << QString("%1 %2 %3").arg(entry.filePath()).arg(status.st_mode, 0, 8).arg(status.st_ino)
                    + (S_ISREG(status.st_mode) ? fileContent(entry.filePath()) : QByteArray());
        if (S_ISDIR(status.st_mode))
            list << belongings(entry.filePath());
    }
    return list;
}

// The places in a queue's folder to which the dialog writes: the settings last applied, a new preset, a changed preset
// and the link.
const QList<QByteArray> &writtenPlaces()
{
    static const QList<QByteArray> list{"_current.sh", "Preset.sh", "A.sh", "currentPreset"};
    return list;
}

using MakeFolder = std::function<void(const QByteArray &folder)>;

// The same link in each of the places.
MakeFolder linksTo(const QByteArray &target)
{
    return [target](const QByteArray &folder) {
        for (const QByteArray &place : writtenPlaces())
            makeLink(target, folder + '/' + place);
    };
}

void makeChains(const QByteArray &folder)
{
    makeLink("../../.bashrc", folder + "/last");
    makeLink("last", folder + "/middle");
    linksTo("middle")(folder);
}

void makeHardLinks(const QByteArray &folder)
{
    for (const QByteArray &place : writtenPlaces())
        check(link(QFile::encodeName(homePath(".bashrc")).constData(), (folder + '/' + place).constData()) == 0,
              "hard link");
}

void makeFolders(const QByteArray &folder)
{
    for (const QByteArray &place : writtenPlaces())
        check(mkdir((folder + '/' + place).constData(), 0700) == 0, "folder");
}

void makePipes(const QByteArray &folder)
{
    for (const QByteArray &place : writtenPlaces())
        makePipe(folder + '/' + place);
}

MakeFolder linkInPlace(const QByteArray &target)
{
    return [target](const QByteArray &folder) {
        check(rmdir(folder.constData()) == 0, "place for a link");
        makeLink(target, folder);
    };
}

} // namespace

Q_DECLARE_METATYPE(MakeFile)

// If this fails, opening or choosing a preset from somebody else can run programs or block the dialog.
class ForeignTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void lookingRunsNothing();
    void choosing_data();
    void choosing();
    void savingRunsTheDriverAlone();
    void kindOfFile_data();
    void kindOfFile();
    void planted_data();
    void planted();
    void printerName_data();
    void printerName();

private:
    PrivateScheduler scheduler;
};

void ForeignTest::initTestCase()
{
    for (const char *queue : {"LP1", "..", "$(id)", "q&x;y$z"})
        scheduler.addQueue(queue);
}

void ForeignTest::init()
{
    QVERIFY(QDir(cupsFolder()).removeRecursively());
    QFile::remove(marker());
    scheduler.setServerDefault("LP1");
}

void ForeignTest::lookingRunsNothing()
{
    writeFile(scriptPath("A"), scriptWith("ppdhack 4.00 3.00 LP1"));
    writeFile(scriptPath("B"), scriptWith("ppdhack 4.00 3.00 LP1").replace("=Foreign", "=Other"));
    const LoggedPrograms programs;
    OpenDialog open;
    auto *tabs = open.widget<QTabWidget>("tabs");
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        QCoreApplication::processEvents();
    }
    QCOMPARE(open.widget<QComboBox>("preset0")->count(), 4);
    Presets presets("LP1");
    for (const char *file : {"A", "B"}) {
        Preset *preset = presets.findPresetByFileName(file);
        QVERIFY(preset);
        QCOMPARE(preset->options(), QStringList({"Darkness", "3"}));
        QCOMPARE(preset->getUserPageSize(), QSizeF(4, 3));
    }
    open.click("cancelButton");
    QCOMPARE(programs.calls(), QByteArray());
    QVERIFY(!QFile::exists(marker()));
}

void ForeignTest::choosing_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("calls");
    for (const char *line : {"ppdhack 4.00 3.00 LP1", "ppdhack $(touch x) `touch x` ; touch x & touch x | bash > x"})
        QTest::newRow(line) << QByteArray(line) << QByteArray(line) + '\n';
    for (const char *line :
         {"ppdhackX 4.00 3.00 LP1", "ppdhack;touch x", "ppdhack/../bash -c x", "./ppdhack 4.00 3.00 LP1",
          "/bin/touch x", "bash -c ppdhack", " ppdhack 4.00 3.00 LP1", "lpoptions -d LP1", "PPDHACK 4.00 3.00 LP1"})
        QTest::newRow(line) << QByteArray(line) << QByteArray();
}

void ForeignTest::choosing()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, calls);
    writeFile(scriptPath(), scriptWith(line));
    // The first script would be current from the start.
    writeFile(scriptPath("A"), "#!/bin/bash\nlpoptions -pLP1\n");
    const LoggedPrograms programs;
    OpenDialog open;
    QCOMPARE(open.widget<QComboBox>("preset0")->itemText(3), QString("Foreign"));
    open.choose("preset0", 3);
    QCOMPARE(programs.calls(), calls);
    QVERIFY(!QFile::exists(marker()));
    QCOMPARE(workingCopy(open.cups).value("Darkness"), QByteArray("3"));
}

void ForeignTest::savingRunsTheDriverAlone()
{
    writeFile(scriptPath(), scriptWith("touch x"));
    const LoggedPrograms programs;
    OpenDialog open;
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    open.setText("widthEdit", "4");
    open.setText("heightEdit", "3");
    open.click("applyButton");
    QCOMPARE(programs.calls(), QByteArray("ppdhack 4.00 3.00 LP1\n"));
    QVERIFY(!QFile::exists(marker()));
}

void ForeignTest::kindOfFile_data()
{
    QTest::addColumn<MakeFile>("make");
    for (const auto &[name, make] : kinds())
        QTest::newRow(name) << make;
}

void ForeignTest::kindOfFile()
{
    QFETCH(MakeFile, make);
    writeFile(scriptPath("A"), "#!/bin/bash\nlpoptions -pLP1\n");
    // Put there before the dialog opens,
    make(QFile::encodeName(scriptPath("Z")));
    const LoggedPrograms programs;
    {
        OpenDialog open;
        QVERIFY(open.dialog.isVisible());
        for (int i = open.widget<QComboBox>("preset0")->count() - 1; i >= 0; --i)
            open.choose("preset0", i);
        QCOMPARE(programs.calls(), QByteArray());
        open.click("applyButton");
    }
    // and in the place of a script that it has listed.
    QVERIFY(QDir(cupsFolder()).removeRecursively());
    writeFile(scriptPath("A"), "#!/bin/bash\nlpoptions -pLP1\n");
    writeFile(scriptPath(), scriptWith("ppdhack 4.00 3.00 LP1"));
    OpenDialog open;
    QVERIFY(QFile::remove(scriptPath()));
    make(QFile::encodeName(scriptPath()));
    open.choose("preset0", 3);
    open.choose("preset1", 0);
    open.choose("preset1", 3);
    QCOMPARE(programs.calls(), QByteArray());
    open.click("presetUpdateButton");
    open.click("okButton");
    QVERIFY(!open.dialog.isVisible());
    QVERIFY(!QFile::exists(marker()));
}

void ForeignTest::planted_data()
{
    QTest::addColumn<MakeFolder>("make");
    QTest::addColumn<bool>("isSaved");
    const auto row = [](const char *name, const MakeFolder &make, bool isSaved) {
        QTest::newRow(name) << make << isSaved;
    };
    row("links", linksTo("../../.bashrc"), true);
    row("links by path", linksTo(QFile::encodeName(homePath(".bashrc"))), true);
    row("links to nothing", linksTo("../../.profile"), true);
    row("links to a folder", linksTo("../../.ssh"), true);
    row("links to a folder's file to be", linksTo("../../.ssh/authorized_keys"), true);
    row("links to a pipe", linksTo("../../pipe"), true);
    row("links to themselves", linksTo("_current.sh"), true);
    row("chains of links", makeChains, true);
    row("hard links", makeHardLinks, true);
    row("folders", makeFolders, false);
    row("pipes", makePipes, false);
    row("link for the folder", linkInPlace("../.ssh"), false);
    row("link to nothing for the folder", linkInPlace("../new"), false);
    row("link to a file for the folder", linkInPlace("../.bashrc"), false);
}

// Saving changes nothing outside the folder, whatever it contains.
void ForeignTest::planted()
{
    QFETCH(MakeFolder, make);
    QFETCH(bool, isSaved);
    writeFile(homePath(".bashrc"), "# the user's\n");
    QVERIFY(QFile::setPermissions(homePath(".bashrc"), QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(QDir().mkpath(homePath(".ssh")) && QDir().mkpath(cupsFolder() + "/LP1"));
    writeFile(homePath(".ssh/A.sh"), "#name=Alpha\n");
    QFile::remove(homePath("pipe"));
    makePipe(QFile::encodeName(homePath("pipe")));
    make(QFile::encodeName(cupsFolder() + "/LP1"));
    const QStringList before = belongings();

    {
        const LoggedPrograms programs;
        OpenDialog open;
        const auto *list = open.list("preset0");
        // The one preset that is listed, if any, a new one, and one that is removed again.
        if (list->count() > 2) {
            open.choose("preset0", 2);
            open.click("presetUpdateButton");
            open.setPlainText("descriptionEdit", "changed");
        }
        open.click("presetNewButton");
        open.slide("darknessSlider", 12);
        open.click("applyButton");
        open.click("presetDeleteButton");
        open.click("okButton");
        QCOMPARE(storedOptions("LP1").value("Darkness"), QByteArray("12"));
    }
    QCOMPARE(belongings(), before);
    const QFileInfo current(cupsFolder() + "/LP1/_current.sh");
    QCOMPARE(current.isFile() && !current.isSymLink() && current.isExecutable(), isSaved);
    if (isSaved)
        QVERIFY(fileContent(current.filePath()).startsWith("#!/bin/bash\nlpoptions -pLP1 -oDarkness=12 "));
    QVERIFY(QFile::remove(homePath(".bashrc")) && QFile::remove(homePath("pipe")));
    QVERIFY(QDir(homePath(".ssh")).removeRecursively());
}

void ForeignTest::printerName_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<bool>("hasPresets");
    QTest::newRow("outside") << ".." << false;
    QTest::newRow("of a shell") << "$(id)" << true;
    QTest::newRow("of two commands") << "q&x;y$z" << true;
}

void ForeignTest::printerName()
{
    QFETCH(QString, queue);
    QFETCH(bool, hasPresets);
    scheduler.setServerDefault(queue);
    const QDir home(QDir::homePath());
    const QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QStringList expected = home.entryList(everything);
    expected << ".cups";
    expected.removeDuplicates();
    expected.sort();

    const LoggedPrograms programs;
    OpenDialog open;
    QCOMPARE(open.cups.getCurrentQueueName(), queue);
    open.click("presetNewButton");
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    open.setText("widthEdit", "4");
    open.setText("heightEdit", "3");
    open.slide("darknessSlider", 12);
    open.click("applyButton");

    QStringList found = home.entryList(everything);
    found.sort();
    QCOMPARE(found, expected);
    QStringList inFolder{"lpoptions"};
    if (hasPresets)
        inFolder << queue;
    inFolder.sort();
    QCOMPARE(QDir(cupsFolder()).entryList(everything), inFolder);
    QCOMPARE(storedOptions(queue.toLatin1()).value("Darkness"), QByteArray("12"));
    // The driver gets the name as it is.
    const QByteArray call = "ppdhack 4.00 3.00 " + queue.toLatin1() + '\n';
    QCOMPARE(programs.calls(), call);
    if (!hasPresets)
        return;

    open.click("presetUpdateButton");
    open.click("applyButton");
    QCOMPARE(programs.calls(), call);

    // Nothing is passed to a shell.
    for (const char *file : {"_current", "Preset"}) {
        QProcess shell;
        shell.start("/bin/bash", {cupsFolder() + '/' + queue + '/' + file + ".sh"});
        QVERIFY(shell.waitForFinished());
        QCOMPARE(shell.exitCode(), 1);
        QCOMPARE(shell.readAllStandardError(), QByteArray());
    }
    QCOMPARE(programs.calls(), QByteArray());
    // The next dialog finds all of it.
    OpenDialog next;
    next.choose("preset0", 1);
    QCOMPARE(workingCopy(next.cups).value("Darkness", "none"), QByteArray("none"));
    next.choose("preset0", 2);
    QCOMPARE(next.text("nameEdit"), QString("New Preset"));
    QCOMPARE(workingCopy(next.cups).value("Darkness"), QByteArray("12"));
    QCOMPARE(programs.calls(), call);
}

PROPERTIESDIALOG_TEST_MAIN(ForeignTest)

#include "ForeignTest.moc"
