// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef HOMEOFBYTES_H
#define HOMEOFBYTES_H

#include "TestMain.h"

#include <QByteArray>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <system_error>
#include <vector>

/** A folder for HOME, inside that of the test, whose name is not UTF-8, so that no QString holds it. */
class HomeOfBytes
{
public:
    HomeOfBytes() { mkdir(path().constData(), 0700); }
    ~HomeOfBytes()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path().constData(), ignored);
    }

    HomeOfBytes(const HomeOfBytes &) = delete;
    HomeOfBytes &operator=(const HomeOfBytes &) = delete;

    static QByteArray path() { return qgetenv("HOME") + "/h\xff\xe4"; }

    /** Runs a registered function in a process with this HOME. */
    static TestMain::ChildResult runChild(const QString &name)
    {
        return TestMain::runChild("run-in-home-of-bytes", {name});
    }

    // QProcess sets only variables that are texts.
    static int exec(int &argc, char **argv)
    {
        qputenv("HOME", path());
        char option[] = "--run-child";
        std::vector<char *> arguments{argv[0], option};
        arguments.insert(arguments.end(), argv + 1, argv + argc);
        arguments.push_back(nullptr);
        execv("/proc/self/exe", arguments.data());
        std::perror("exec");
        return 127;
    }
};

inline const TestMain::ChildFunction homeOfBytesFunction("run-in-home-of-bytes", &HomeOfBytes::exec);

#endif
