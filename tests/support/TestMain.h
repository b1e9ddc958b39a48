// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef TESTMAIN_H
#define TESTMAIN_H

#include <QApplication>
#include <QByteArray>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTest>

/**
 * The main() of a test program. The library reads HOME when it is loaded, and libcups its server and the C library its
 * locale when they are first used; so
 *
 * - the program restarts itself with an empty HOME, which is removed at the end, and with no default printer
 *   in its environment,
 * - a function that needs a separate process is registered with ChildFunction and run by runChild().
 *
 * A Qt warning that no QTest::ignoreMessage() expects fails the program, even if it comes from a child. Such warnings
 * report slots that were not connected, broken layouts, null pointers and the like.
 */
namespace TestMain {

/** Returns the exit code of a process. @p argc and @p argv are as in main(), with the arguments given to runChild(). */
using Function = int (*)(int &argc, char **argv);

/** Registers a function for runChild(); to be constructed at file scope. */
struct ChildFunction
{
    ChildFunction(const char *name, Function function);
};

struct ChildResult
{
    int exitCode = -1; // -1 when it crashed
    QByteArray output;
    QByteArray errors;
};

/** A registered function that runs in a new process of this program. */
class Child
{
public:
    /**
     * Starts it with the same HOME and environment but for @p environment, where a null value removes a variable. No
     * application object exists there. argv[0] is the program and is followed by @p arguments.
     */
    explicit Child(const char *name, const QStringList &arguments = {}, const QMap<QString, QString> &environment = {});

    /** Waits until it has ended. Its standard error is also shown. */
    ChildResult result();

    QProcess process; ///< To talk with it.
};

/** Runs a Child to its end. */
ChildResult runChild(const char *name, const QStringList &arguments = {},
                     const QMap<QString, QString> &environment = {});

/**
 * A folder for files of other programs, such as the scheduler's thousands: in memory if the machine lets programs run
 * there, otherwise on the disk. HOME, where the library saves, is on the disk.
 */
QString scratchFolder();

/**
 * Whether the user is root and libcups keeps root's options in the folder of those for all users, as from 2.4.10 on. That
 * folder is then HOME/.cups, where tests expect the options of whoever runs them.
 */
bool isOptionsFileSystemWide();

/** Gives the process its HOME, or runs a child function; returns the exit code, or -1 to go on with the tests. */
int prepare(int &argc, char **argv);

template<class TestClass>
int run(int argc, char **argv)
{
    const int exitCode = prepare(argc, argv);
    if (exitCode >= 0)
        return exitCode;
    QApplication app(argc, argv);
    TestClass test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace TestMain

/** Use it instead of QTEST_MAIN. */
#define PROPERTIESDIALOG_TEST_MAIN(TestClass)                                                                          \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        return TestMain::run<TestClass>(argc, argv);                                                                   \
    }

#endif
