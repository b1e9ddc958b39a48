// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PROGRAMS_H
#define PROGRAMS_H

#include <QMap>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

/** Programs in separate processes, as users run them. */
namespace Programs {

/** What to change in the environment of this process; a null value removes a variable. */
using Environment = QMap<QString, QString>;

/** Without any display. */
inline Environment noDisplay()
{
    return {{"DISPLAY", {}}, {"WAYLAND_DISPLAY", {}}, {"WAYLAND_SOCKET", {}}, {"QT_QPA_PLATFORM", {}}};
}

/** @p environment with the variables of @p changes. */
inline Environment changed(Environment environment, const Environment &changes)
{
    for (auto it = changes.begin(); it != changes.end(); ++it)
        environment.insert(it.key(), it.value());
    return environment;
}

inline QProcessEnvironment processEnvironment(const Environment &changes)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto it = changes.begin(); it != changes.end(); ++it)
        if (it.value().isNull())
            environment.remove(it.key());
        else
            environment.insert(it.key(), it.value());
    return environment;
}

struct Result
{
    int exitStatus = -1; // -1 when it crashed
    QString output;
    QString errors;
};

/** Runs the first of @p command with the others as its arguments. */
inline Result run(const QStringList &command, const Environment &changes = {})
{
    QProcess process;
    process.setProcessEnvironment(processEnvironment(changes));
    process.start(command.first(), command.mid(1));
    Result result;
    if (process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit)
        result.exitStatus = process.exitCode();
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    return result;
}

/**
 * Runs @p command in the X server of this test, waits for the window with this title, and presses @p keys in it, as
 * xdotool names them. With several pairs of title and keys, one after the other.
 */
inline Result press(const QStringList &command, const QList<QPair<QString, QString>> &titlesAndKeys,
                    const Environment &changes = {})
{
    const QString script =
        QStringLiteral("mapfile -t lines <<<\"$TITLES_AND_KEYS\"\n"
                       "\"$@\" & program=$!\n"
                       "for ((i = 0; i < ${#lines[@]}; i += 2)); do\n"
                       "  SECONDS=0\n"
                       // With --sync, it would look for the window only twice a second.
                       "  until window=$(xdotool search --onlyvisible --name \"^${lines[i]}\\$\" 2>/dev/null); do\n"
                       "    ((SECONDS < 60)) && sleep 0.05 || { kill $program; exit 99; }\n"
                       "  done\n"
                       "  until xdotool windowfocus --sync $window key ${lines[i + 1]}; do sleep 0.1; done\n"
                       "done\n"
                       "wait $program");
    QStringList lines;
    for (const auto &pair : titlesAndKeys)
        lines << pair.first << pair.second;
    Environment environment = changed({{"QT_QPA_PLATFORM", {}}}, changes);
    environment.insert("TITLES_AND_KEYS", lines.join('\n'));
    return run(QStringList{"bash", "-c", script, "-"} + command, environment);
}

} // namespace Programs

#endif
