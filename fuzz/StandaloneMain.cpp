// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "Fuzz.h"

#include <QDirIterator>
#include <QTemporaryDir>

#include <sys/wait.h>
#include <unistd.h>

// Tries each file in the folders and files given as arguments once, without a fuzzer, so that earlier findings do not
// return, with any compiler.
int main(int argc, char **argv)
{
    // The library reads HOME when it is loaded.
    const char homeIsFresh[] = "FUZZ_HOME_IS_FRESH";
    if (!qEnvironmentVariableIsSet(homeIsFresh)) {
        QTemporaryDir home;
        qputenv("HOME", QFile::encodeName(home.path()));
        qputenv("TMPDIR", QFile::encodeName(home.path()));
        qputenv("CUPS_SERVERROOT", QFile::encodeName(home.path()) + "/system-wide"); // root's options may be there
        qputenv(homeIsFresh, "1");
        const pid_t child = fork();
        if (child == 0) {
            execv("/proc/self/exe", argv);
            std::_Exit(EXIT_FAILURE);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : EXIT_FAILURE;
    }

    LLVMFuzzerInitialize(&argc, &argv);
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        QStringList files;
        const QString argument = QFile::decodeName(argv[i]);
        if (QFileInfo(argument).isFile())
            files << argument;
        for (QDirIterator it(argument, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
            files << it.next();
        for (const QString &path : std::as_const(files)) {
            const QByteArray data = fileContent(path);
            std::fprintf(stderr, "%s\n", qPrintable(path));
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(data.constData()),
                                   static_cast<std::size_t>(data.size()));
            ++count;
        }
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
