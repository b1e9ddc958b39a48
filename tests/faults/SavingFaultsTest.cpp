// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "Forked.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/CupsSupport.h>
#include <PropertiesDialog/Preset.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>

#include <cups/cups.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <memory>
#include <new>
#include <utility>

#include <fcntl.h>
#include <grp.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>

namespace {

// Each entry, and each single value, is shorter than this and the whole file is longer.
const int limit = 1000; // bytes
const QByteArray longValue(600, 'x');

const uid_t nobody = 65534;

const QByteArray earlierOptions =
    "Dest Gone Darkness=3 JobStart=\"a b\"\nDest LP1 Darkness=5\nDefault LP2 Darkness=4\n";
const QByteArray earlierScript = "#!/bin/bash\nlpoptions -pLP1 -oDarkness=5\n";

QString folder()
{
    return QDir::homePath() + "/.cups";
}

QString optionsPath()
{
    return folder() + "/lpoptions";
}

QString scriptPath()
{
    return folder() + "/LP1/P.sh";
}

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &data)
{
    QFile file(path);
    if (!QDir().mkpath(path.section('/', 0, -2)) || !file.open(QIODevice::WriteOnly) || file.write(data) != data.size())
        qFatal("cannot write %s", qPrintable(path));
}

QStringList filesIn(const QString &path)
{
    return QDir(path).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

// ----- faults; each holds for the rest of the process -----

void check(bool good, const char *what)
{
    if (!good) {
        std::perror(what);
        _exit(99);
    }
}

void limitFileSize()
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit size{limit, limit};
    check(setrlimit(RLIMIT_FSIZE, &size) == 0, "setrlimit");
}

// From now on the system calls fail with this error if their argument, a number or flags, is as big or has the flag.
struct Condition
{
    int argument;
    unsigned short comparison;
    unsigned value;
};
const Condition always{0, BPF_JGE, 0};

void catchCalls(const QList<int> &calls, const Condition &condition, unsigned action)
{
    QVector<sock_filter> filter;
    const auto load = [](std::size_t offset) {
        return sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, unsigned(offset));
    };
    for (const int call : calls) {
        filter << load(offsetof(seccomp_data, nr));
        filter << sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, unsigned(call), 0, 3);
        filter << load(offsetof(seccomp_data, args) + std::size_t(condition.argument) * sizeof(__u64));
        filter << sock_filter BPF_JUMP(BPF_JMP | unsigned(condition.comparison) | BPF_K, condition.value, 0, 1);
        filter << sock_filter BPF_STMT(BPF_RET | BPF_K, action);
    }
    filter << sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW);
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    check(prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0, "no new privileges");
    check(prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0, "seccomp");
}

void failCalls(const QList<int> &calls, int error, const Condition &condition)
{
    catchCalls(calls, condition, SECCOMP_RET_ERRNO | unsigned(error));
}

std::atomic<int> counted{0};

void countCalls(const QList<int> &calls)
{
    std::signal(SIGSYS, [](int) { ++counted; });
    catchCalls(calls, always, SECCOMP_RET_TRAP);
}

// What makes open() create a file, with a name or without.
const unsigned creating = unsigned(O_CREAT | (O_TMPFILE & ~O_DIRECTORY));

const QList<int> renameCalls{
    SYS_renameat2,
    SYS_renameat,
#ifdef SYS_rename
    SYS_rename,
#endif
};

const QList<int> fileSystemCalls{
    SYS_fstatfs,
#ifdef SYS_fstatfs64
    SYS_fstatfs64,
#endif
};

// The superuser may write everywhere: he becomes somebody else, to whom the files belong.
void giveFilesAway()
{
    if (geteuid() != 0)
        return;
    for (const QString &path :
         {QDir::homePath(), folder(), optionsPath(), scriptPath().section('/', 0, -2), scriptPath()})
        check(chown(QFile::encodeName(path).constData(), nobody, nobody) == 0, "chown");
    check(setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0, "setuid");
}

std::function<void()> asUserWithMode(const std::function<QString()> &path, mode_t mode)
{
    return [path, mode] {
        giveFilesAway();
        check(chmod(QFile::encodeName(path()).constData(), mode) == 0, "chmod");
    };
}

using Fault = std::function<void()>;

const QList<std::pair<const char *, Fault>> writeFaults{
    {"file size limit", limitFileSize},
    {"disk full",
     [] {
         failCalls({SYS_write, SYS_pwrite64, SYS_writev}, ENOSPC, {2, BPF_JGE, limit});
     }},
    {"quota",
     [] {
         failCalls({SYS_write, SYS_pwrite64, SYS_writev}, EDQUOT, {2, BPF_JGE, limit});
     }},
    {"no room for a new file",
     [] {
         failCalls({SYS_openat}, ENOSPC, {2, BPF_JSET, creating});
     }},
    // A disk may notice late that it has no room. The file system is unknown, so nothing is known about its order of writing.
    {"disk full when synchronizing",
     [] {
         failCalls(QList<int>{SYS_fsync, SYS_fdatasync} + fileSystemCalls, ENOSPC, always);
     }},
    {"cannot be renamed", [] { failCalls(renameCalls, EIO, always); }},
};

// ----- what is saved -----

// Two states of the settings, so that each saving changes the file.
void setState(CupsSupport &cups, int state)
{
    cups.setValue("Darkness", state == 0 ? "7" : "9");
    cups.setValue("JobStart", state == 0 ? "short" : longValue.constData());
    cups.setValue("LabelEnd", longValue.constData());
}

void setState(Preset &preset, int state)
{
    preset.setOptions(
        {"Darkness", state == 0 ? "7" : "9", "JobStart", state == 0 ? "short" : longValue, "LabelEnd", longValue});
    preset.setState(Preset::Modified);
}

// What the copies of this process tell us.
struct Progress
{
    std::atomic<int> saved{0};
    std::atomic<bool> isSaving{false};
};

std::unique_ptr<Progress, void (*)(Progress *)> sharedProgress()
{
    void *memory = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    check(memory != MAP_FAILED, "mmap");
    return {new (memory) Progress, [](Progress *progress) { munmap(progress, sizeof(Progress)); }};
}

// Mounts a disk of 64 KiB at this path, which only the calling child process sees.
bool mountSmallDisk(const QString &path)
{
    if (geteuid() != 0) {
        // Only a user whose group is also known there can write to that disk.
        const QList<QPair<QString, QByteArray>> settings{
            {"/proc/self/uid_map", "0 " + QByteArray::number(geteuid()) + " 1"},
            {"/proc/self/setgroups", "deny"},
            {"/proc/self/gid_map", "0 " + QByteArray::number(getegid()) + " 1"},
        };
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return false;
        for (const auto &[name, text] : settings) {
            QFile file(name);
            if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(text) != text.size())
                return false;
        }
    } else if (unshare(CLONE_NEWNS) != 0) {
        return false;
    }
    return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
           && mount("tmpfs", QFile::encodeName(path).constData(), "tmpfs", 0, "size=64k") == 0;
}

void fillDisk(const QString &path)
{
    const int fd = open(QFile::encodeName(path + "/filler").constData(), O_WRONLY | O_CREAT, 0600);
    const QByteArray block(4096, 'f');
    while (::write(fd, block.constData(), std::size_t(block.size())) > 0) {
    }
    close(fd);
}

const int kills = 100;

} // namespace

Q_DECLARE_METATYPE(Fault)

// If this fails, a full disk, a crash or a second program destroys saved settings.
class SavingFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void optionsFile_data();
    void optionsFile();
    void presetScript_data();
    void presetScript();
    void diskIsWaitedForOnlyIfNeeded();
    void fullDisk();
    void notAFile_data();
    void notAFile();
    void leftoversDoNotMatter();

    void killed_data();
    void killed();
    void twoProcesses_data();
    void twoProcesses();

private:
    using Save = std::function<bool(int state)>;
    Save saveFunction(bool isScript);
    static void addKinds();

    PrivateScheduler scheduler;
    std::unique_ptr<CupsSupport> cups;
    std::unique_ptr<Preset> preset;
};

void SavingFaultsTest::initTestCase()
{
    scheduler.addQueue("LP1", PrivateScheduler::samplePpd("every-option"));
    scheduler.addQueue("LP2", PrivateScheduler::samplePpd("label-300"));
}

void SavingFaultsTest::init()
{
    QVERIFY(QDir(folder()).removeRecursively());
    write(optionsPath(), earlierOptions);
    write(scriptPath(), earlierScript);
    cups = std::make_unique<CupsSupport>();
    QCOMPARE(cups->getDestCount(), 2);
    cups->setCurrentPrinter(0);
    QVERIFY(cups->getPpdFile());
    preset = std::make_unique<Preset>("LP1", "P", QStringList(), QString(), QString(), -1);
    QCOMPARE(preset->name(), QString("P")); // read
}

// Of the folders that were given away.
void SavingFaultsTest::cleanup()
{
    for (const QString &path : {QDir::homePath(), folder()}) {
        QVERIFY(chown(QFile::encodeName(path).constData(), geteuid(), getegid()) == 0);
        QVERIFY(chmod(QFile::encodeName(path).constData(), 0700) == 0);
    }
}

// ----- a fault while saving -----

void SavingFaultsTest::optionsFile_data()
{
    QTest::addColumn<Fault>("fault");
    for (const auto &[name, fault] : writeFaults)
        QTest::newRow(name) << fault;
    QTest::newRow("read-only file") << Fault(asUserWithMode(optionsPath, 0444));
    // The entries of other queues in it could not be kept.
    QTest::newRow("unreadable file") << Fault(asUserWithMode(optionsPath, 0200));
}

void SavingFaultsTest::optionsFile()
{
    QFETCH(Fault, fault);
    setState(*cups, 1);
    const int result = inCopy([&] {
        fault();
        return cups->setDests() == -1 ? 0 : 1;
    });
    QCOMPARE(result, 0);
    chmod(QFile::encodeName(optionsPath()).constData(), 0600);
    QCOMPARE(content(optionsPath()), earlierOptions);
    QCOMPARE(filesIn(folder()), QStringList("lpoptions"));

    // Without the fault it can be saved, with the entry of the queue that is gone.
    QCOMPARE(inCopy([&] { return cups->setDests(); }), 0);
    QVERIFY(content(optionsPath()).contains(longValue));
    QVERIFY(content(optionsPath()).size() > limit);
    QVERIFY(content(optionsPath()).contains("Dest Gone Darkness=3 JobStart=\"a b\"\n"));
}

void SavingFaultsTest::presetScript_data()
{
    QTest::addColumn<Fault>("fault");
    for (const auto &[name, fault] : writeFaults)
        QTest::newRow(name) << fault;
    QTest::newRow("read-only folder") << Fault(asUserWithMode([] { return folder() + "/LP1"; }, 0555));
    QTest::newRow("read-only file") << Fault(asUserWithMode(scriptPath, 0444));
}

void SavingFaultsTest::presetScript()
{
    QFETCH(Fault, fault);
    setState(*preset, 1);
    const int result = inCopy([&] {
        fault();
        return !preset->save({}) && preset->state() == Preset::Modified ? 0 : 1;
    });
    QCOMPARE(result, 0);
    QCOMPARE(content(scriptPath()), earlierScript);
    QCOMPARE(filesIn(folder() + "/LP1"), QStringList("P.sh"));

    chmod(QFile::encodeName(folder() + "/LP1").constData(), 0700);
    chmod(QFile::encodeName(scriptPath()).constData(), 0700);
    QCOMPARE(inCopy([&] { return preset->save({}) && preset->state() == Preset::Clean ? 0 : 1; }), 0);
    QVERIFY(content(scriptPath()).contains(longValue));
    QVERIFY(content(scriptPath()).size() > limit);
}

// A file system that writes the content of a file before its name keeps the earlier or the new settings by itself. There,
// a busy disk does not hold up a dialog.
void SavingFaultsTest::diskIsWaitedForOnlyIfNeeded()
{
    const QByteArray type = PrivateScheduler::run("stat", {"--file-system", "--format=%T", folder()}).trimmed();
    const bool isOrdered = QList<QByteArray>{"ext2/ext3", "btrfs"}.contains(type); // all of ext2 to ext4
    setState(*cups, 1);
    setState(*preset, 1);
    const int result = inCopy([&] {
        countCalls({SYS_fsync, SYS_fdatasync});
        const bool areSaved = cups->setDests() == 0 && preset->save({});
        // The counted calls fail.
        return areSaved == isOrdered && counted == (isOrdered ? 0 : 1) ? 0 : 1;
    });
    QCOMPARE(result, 0);
}

// The faults above are made by refusing system calls, which everybody may do to himself. This one is the real thing.
void SavingFaultsTest::fullDisk()
{
    const int notAllowed = 77;
    setState(*cups, 1);
    setState(*preset, 1);
    const int result = inCopy([&] {
        if (!mountSmallDisk(folder()))
            return notAllowed;
        write(optionsPath(), earlierOptions);
        write(scriptPath(), earlierScript);
        fillDisk(folder());
        if (cups->setDests() != -1 || content(optionsPath()) != earlierOptions)
            return 1;
        if (preset->save({}) || preset->state() != Preset::Modified || content(scriptPath()) != earlierScript)
            return 2;
        QFile::remove(folder() + "/filler");
        if (filesIn(folder()) != QStringList("lpoptions") || filesIn(folder() + "/LP1") != QStringList("P.sh"))
            return 3;
        if (cups->setDests() != 0 || !content(optionsPath()).contains(longValue))
            return 4;
        return preset->save({}) && content(scriptPath()).contains(longValue) ? 0 : 5;
    });
    if (result == notAllowed)
        QSKIP("no disk can be mounted here");
    QCOMPARE(result, 0);
}

void SavingFaultsTest::notAFile_data()
{
    QTest::addColumn<bool>("isLink");
    QTest::newRow("socket") << false;
    QTest::newRow("link to a socket") << true;
}

// Users who want no options kept link the file to a device, which must not be replaced by a file. Here a socket takes
// its place, because anybody can create one.
void SavingFaultsTest::notAFile()
{
    QFETCH(bool, isLink);
    QVERIFY(QFile::remove(optionsPath()));
    const QByteArray path = QFile::encodeName(isLink ? folder() + "/target" : optionsPath());
    const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    QVERIFY(std::size_t(path.size()) < sizeof address.sun_path);
    qstrcpy(address.sun_path, path.constData());
    const void *pointer = &address;
    QCOMPARE(bind(fd, static_cast<const sockaddr *>(pointer), sizeof address), 0);
    if (isLink)
        QVERIFY(QFile::link(path, optionsPath()));
    setState(*cups, 1);
    QCOMPARE(cups->setDests(), -1);
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(optionsPath()).constData(), &status), 0);
    QVERIFY(S_ISSOCK(status.st_mode));
    QCOMPARE(filesIn(folder()).size(), isLink ? 2 : 1);
    close(fd);
}

// A process that is killed while it saves leaves a file beside the one that it was to replace. A later process may have its
// id.
void SavingFaultsTest::leftoversDoNotMatter()
{
    const QString leftover = QString("/.new-%1-0").arg(QCoreApplication::applicationPid());
    write(folder() + leftover, "Dest LP1 Dark");
    write(folder() + "/LP1" + leftover, "#!/bin");
    setState(*cups, 1);
    QCOMPARE(cups->setDests(), 0);
    setState(*preset, 1);
    QVERIFY(preset->save({}));
    CupsSupport other;
    other.setCurrentPrinter(0);
    QCOMPARE(QByteArray(other.getValue("JobStart")), longValue);
    QCOMPARE(Preset("LP1", "P", {}, QString(), QString(), -1).options().value(1), QString("9"));
    QCOMPARE(content(folder() + leftover), QByteArray("Dest LP1 Dark"));
    QCOMPARE(content(folder() + "/LP1" + leftover), QByteArray("#!/bin"));
}

// ----- processes that end or meet while saving -----

void SavingFaultsTest::addKinds()
{
    QTest::addColumn<bool>("isScript");
    QTest::addColumn<QString>("path");
    QTest::newRow("options file") << false << optionsPath();
    QTest::newRow("preset script") << true << scriptPath();
}

SavingFaultsTest::Save SavingFaultsTest::saveFunction(bool isScript)
{
    if (isScript) {
        return [this](int state) {
            setState(*preset, state);
            return preset->save({});
        };
    }
    return [this](int state) {
        setState(*cups, state);
        return cups->setDests() == 0;
    };
}

void SavingFaultsTest::killed_data()
{
    addKinds();
}

void SavingFaultsTest::killed()
{
    QFETCH(bool, isScript);
    QFETCH(QString, path);
    // Without the scheduler's answers the process spends its time with the file.
    cupsSetServer("/nonexistent");
    const Save save = saveFunction(isScript);
    std::array<QByteArray, 2> complete;
    for (int state = 0; state < 2; ++state) {
        QVERIFY(save(state));
        complete[std::size_t(state)] = content(path);
    }
    QVERIFY(complete[0] != complete[1]);

    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const auto progress = sharedProgress();
    int whileSaving = 0;
    for (int i = 0; i < kills; ++i) {
        const int savedBefore = progress->saved;
        progress->isSaving = false;
        const pid_t copy = fork();
        if (copy == 0) {
            for (int n = 0;; ++n) {
                progress->isSaving = true;
                if (!save(n % 2))
                    _exit(1);
                progress->isSaving = false;
                ++progress->saved;
            }
        }
        while (progress->saved == savedBefore && waitpid(copy, nullptr, WNOHANG) == 0)
            usleep(100);
        usleep(random.bounded(3000));
        kill(copy, SIGKILL);
        QVERIFY2(WIFSIGNALED(waitForEnd(copy)), "saving failed");
        whileSaving += progress->isSaving;
        const QByteArray found = content(path);
        QVERIFY2(found == complete[0] || found == complete[1], found.constData());
    }
    qInfo("%d killed, %d of them while saving, after %d times saved; %d files left beside it", kills, whileSaving,
          int(progress->saved), int(filesIn(path.section('/', 0, -2)).size()) - 1);
    QVERIFY(whileSaving > 0);
    cupsSetServer(QFile::encodeName(scheduler.socket()).constData());
}

void SavingFaultsTest::twoProcesses_data()
{
    addKinds();
}

// Each reader sees what one of the two saved as a whole.
void SavingFaultsTest::twoProcesses()
{
    QFETCH(bool, isScript);
    QFETCH(QString, path);
    cupsSetServer("/nonexistent");
    const Save save = saveFunction(isScript);
    std::array<QByteArray, 2> complete;
    for (int state = 0; state < 2; ++state) {
        QVERIFY(save(state));
        complete[std::size_t(state)] = content(path);
    }
    std::array<pid_t, 2> copies;
    for (pid_t &copy : copies) {
        copy = fork();
        if (copy == 0) {
            for (int n = 0; n < 100; ++n)
                if (!save(n % 2))
                    _exit(1);
            _exit(0);
        }
    }
    int running = 2;
    while (running > 0) {
        const QByteArray found = content(path);
        QVERIFY2(found == complete[0] || found == complete[1], found.constData());
        int status = 0;
        if (waitpid(copies[std::size_t(running - 1)], &status, WNOHANG) > 0) {
            QVERIFY(WIFEXITED(status));
            QCOMPARE(WEXITSTATUS(status), 0);
            --running;
        }
    }
    QCOMPARE(filesIn(path.section('/', 0, -2)), QStringList(path.section('/', -1)));
    cupsSetServer(QFile::encodeName(scheduler.socket()).constData());
}

PROPERTIESDIALOG_TEST_MAIN(SavingFaultsTest)

#include "SavingFaultsTest.moc"
