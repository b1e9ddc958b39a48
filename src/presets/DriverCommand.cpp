// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "presets/DriverCommand.h"

#include "presets/PresetScript.h"

#include <QBuffer>
#include <QProcess>

namespace {

constexpr int longestLine = 1024; // bytes; longer lines are read as several

} // namespace

QString DriverCommand::lineIn(const QString &scriptPath)
{
    QByteArray script = PresetScript::read(scriptPath).value_or(QByteArray());
    QBuffer lines(&script);
    lines.open(QIODevice::ReadOnly);
    while (!lines.atEnd()) {
        const QString line = QString::fromLatin1(lines.readLine(longestLine));
        if (line.startsWith(name))
            return line;
    }
    return QString();
}

void DriverCommand::run(const QString &line)
{
    QStringList words = QProcess::splitCommand(line);
    if (!words.isEmpty() && words.takeFirst() == name)
        QProcess::execute(name, words);
}
