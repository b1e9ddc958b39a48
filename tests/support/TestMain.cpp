// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "TestMain.h"

#include "Forked.h"

#include <QFile>
#include <QTemporaryDir>

#include <cups/cups.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <tuple>

#include <linux/magic.h>
#include <resolv.h>
#include <sys/prctl.h>
#include <sys/statvfs.h>
#include <sys/vfs.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Set in the process that has its own HOME. Set it by hand, together with a HOME, to run a test in a debugger.
const char homeIsFresh[] = "TEST_HOME_IS_FRESH";

const char childArgument[] = "--run-child";

// What Qt says about itself.
const std::array allowedWarnings{
    "This plugin does not support propagateSizeHints()",
    "Wayland does not support QWindow::requestActivate()",
    "Detected locale \"C\" with character encoding", // Qt 6.8, to a host that runs in it
    "This plugin does not support raise()",
    "This plugin does not support grabbing the keyboard",
};

QMap<QByteArray, TestMain::Function> &childFunctions()
{
    static QMap<QByteArray, TestMain::Function> functions;
    return functions;
}

bool isAllowed(const QByteArray &message)
{
    return std::any_of(
        allowedWarnings.begin(), allowedWarnings.end(), [&](const char *allowed) { return message.contains(allowed); });
}

// Whether a line of a test log is a warning that no test expected.
bool isUnexpectedWarning(const QByteArray &line)
{
    static const std::array<const char *, 3> types{"QWARN", "QSYSTEM", "QCRITICAL"};
    return std::any_of(types.begin(), types.end(), [&](const char *type) { return line.startsWith(type); })
           && !isAllowed(line);
}

void failOnWarning(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type != QtDebugMsg && type != QtInfoMsg && !isAllowed(message.toUtf8())) {
        std::fprintf(stderr, "unexpected Qt warning in a child process\n");
        std::_Exit(EXIT_FAILURE);
    }
}

// Makes look-ups of names on this thread fail immediately. QPrinter looks up the name of this machine for each PPD
// file, which takes long if that name does not resolve; all schedulers here are on local sockets.
void forgetNameServers()
{
    if (res_init() == 0)
        _res.nscount = 0;
}

[[noreturn]] void startTests(char **argv, const QByteArray &home, const int (&pipeEnds)[2])
{
    // It ends with this process.
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    dup2(pipeEnds[1], STDOUT_FILENO);
    close(pipeEnds[0]);
    close(pipeEnds[1]);
    setenv("HOME", home.constData(), 1);
    setenv("XDG_RUNTIME_DIR", home.constData(), 1);
    setenv(homeIsFresh, "1", 1);
    // The folder of the options for all users. Tests must not find those of this machine.
    const char *folder = TestMain::isOptionsFileSystemWide() ? "/.cups" : "/system-wide";
    setenv("CUPS_SERVERROOT", (home + folder).constData(), 1);
    setenv("TMPDIR", TestMain::scratchFolder().toLatin1().constData(), 1); // of each PPD file that libcups fetches
    setenv("RES_OPTIONS", "timeout:1 attempts:1", 1); // lpadmin also looks up the name of this machine
    for (const char *variable : {"LPDEST", "PRINTER", "CUPS_SERVER", "XDG_CONFIG_HOME", "LANGUAGE"})
        unsetenv(variable);
    execv("/proc/self/exe", argv);
    std::perror("exec");
    std::_Exit(EXIT_FAILURE);
}

// Copies the output to the end and returns the number of unexpected warnings.
int copyOutput(int descriptor)
{
    int warnings = 0;
    FILE *stream = fdopen(descriptor, "r");
    char *line = nullptr;
    size_t capacity = 0;
    while (getline(&line, &capacity, stream) > 0) {
        std::fputs(line, stdout);
        std::fflush(stdout);
        if (isUnexpectedWarning(line))
            ++warnings;
    }
    std::free(line);
    std::fclose(stream);
    return warnings;
}

int runTestsInFreshHome(char **argv)
{
    const QTemporaryDir home(QStringLiteral("/tmp/pd-home-XXXXXX"));
    int pipeEnds[2];
    if (!home.isValid() || pipe(pipeEnds) != 0) {
        std::perror("pipe");
        return EXIT_FAILURE;
    }
    const QByteArray homePath = QFile::encodeName(home.path());
    const pid_t child = fork();
    if (child == 0)
        startTests(argv, homePath, pipeEnds);
    close(pipeEnds[1]);
    const int warnings = copyOutput(pipeEnds[0]);
    const int status = waitForEnd(child);
    if (warnings > 0) {
        std::printf("FAIL!  : %d unexpected Qt warnings, see QWARN above\n", warnings);
        return EXIT_FAILURE;
    }
    if (WIFSIGNALED(status)) {
        std::printf("FAIL!  : killed by signal %d\n", WTERMSIG(status));
        return EXIT_FAILURE;
    }
    return WEXITSTATUS(status);
}

} // namespace

QString TestMain::scratchFolder()
{
    const char *memory = "/dev/shm";
    const quint64 enough = 1 << 30;
    struct statfs state = {};
    const bool isUsable = access(memory, W_OK) == 0 && statfs(memory, &state) == 0 && state.f_type == TMPFS_MAGIC
                          && (state.f_flags & ST_NOEXEC) == 0
                          && quint64(state.f_bavail) * quint64(state.f_bsize) >= enough;
    return QString::fromLatin1(isUsable ? memory : "/tmp");
}

bool TestMain::isOptionsFileSystemWide()
{
    cupsEncryption(); // so that libcups reads client.conf, without which newer ones give no name
    int version[] = {0, 0, 0};
    std::sscanf(cupsUserAgent(), "CUPS/%d.%d.%d", &version[0], &version[1], &version[2]);
    return getuid() == 0 && std::make_tuple(version[0], version[1], version[2]) >= std::make_tuple(2, 4, 10);
}

TestMain::ChildFunction::ChildFunction(const char *name, Function function)
{
    childFunctions().insert(name, function);
}

TestMain::Child::Child(const char *name, const QStringList &arguments, const QMap<QString, QString> &environment)
{
    QProcessEnvironment childEnvironment = QProcessEnvironment::systemEnvironment();
    for (auto it = environment.begin(); it != environment.end(); ++it)
        if (it.value().isNull())
            childEnvironment.remove(it.key());
        else
            childEnvironment.insert(it.key(), it.value());
    process.setProcessEnvironment(childEnvironment);
    process.start(QStringLiteral("/proc/self/exe"), QStringList{childArgument, name} + arguments);
}

TestMain::ChildResult TestMain::Child::result()
{
    if (process.state() != QProcess::NotRunning && !process.waitForFinished(120000)) {
        process.kill(); // which counts as a crash
        process.waitForFinished();
    }
    ChildResult result;
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    std::fputs(result.errors.constData(), stderr);
    return result;
}

TestMain::ChildResult TestMain::runChild(const char *name, const QStringList &arguments,
                                         const QMap<QString, QString> &environment)
{
    return Child(name, arguments, environment).result();
}

int TestMain::prepare(int &argc, char **argv)
{
    if (!qEnvironmentVariableIsSet(homeIsFresh))
        return runTestsInFreshHome(argv);
    forgetNameServers();
    if (argc < 3 || std::strcmp(argv[1], childArgument) != 0)
        return -1;
    const Function function = childFunctions().value(argv[2]);
    if (function == nullptr)
        qFatal("no child function %s", argv[2]);
    qInstallMessageHandler(failOnWarning);
    std::rotate(argv + 1, argv + 3, argv + argc + 1); // the terminating null too
    argc -= 2;
    return function(argc, argv);
}
