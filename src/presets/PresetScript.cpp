// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "presets/PresetScript.h"

#include "presets/DriverCommand.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <map>
#include <string_view>

namespace {

// ----- the layout -----

const QLatin1String interpreterLine("#!/bin/bash\n");
const QLatin1String inertLines("#This does nothing: the name of the queue has characters that a shell would act upon.\n"
                               "exit 1\n");
const QLatin1String attributeLine("#%1=%2\n");
const QLatin1String nameKey("name");
const QLatin1String descriptionKey("description");
const QLatin1String indexKey("index");
const QLatin1String optionsCommand("lpoptions -p");
const QLatin1String setItem(" -o");
const QLatin1String removeItem(" -r");
constexpr int ppdhackDecimals = 2;
constexpr signed char lastControlCharacter = 31;
constexpr ushort lastAsciiCharacter = 0x7f;
constexpr ushort lastLatin1Character = 0xff;
// A shell leaves these, letters and digits unchanged.
const QLatin1String harmlessMarks("!%+,-./:=@^_");
const QByteArray unicodeMark("-utf8"); // behind the key of a line that holds a whole text

const QStringList extendedOptionNames{
    QStringLiteral("Darkness"),
    QStringLiteral("Direct"),
    QStringLiteral("Feed"),
    QStringLiteral("GapSize"),
    QStringLiteral("GapOffset"),
    QStringLiteral("JobEnd"),
    QStringLiteral("JobStart"),
    QStringLiteral("LabelCategory"),
    QStringLiteral("LabelEnd"),
    QStringLiteral("LabelStart"),
    QStringLiteral("MarkOffset"),
    QStringLiteral("MarkSize"),
    QStringLiteral("MirrorPrint"),
    QStringLiteral("NegativePrint"),
    QStringLiteral("OffsetH"),
    QStringLiteral("OffsetV"),
    QStringLiteral("orientation-requested"),
    QStringLiteral("PrintSpeed"),
    QStringLiteral("Shift"),
    QStringLiteral("Stop"),
};

// By queue; see setOptionNames().
std::map<QString, QStringList> ownOptionNames;

QStringList sharedOptionNames{
    QStringLiteral("Darkness"),      QStringLiteral("Direct"),
    QStringLiteral("Feed"),          QStringLiteral("GapSize"),
    QStringLiteral("JobEnd"),        QStringLiteral("JobStart"),
    QStringLiteral("LabelCategory"), QStringLiteral("LabelEnd"),
    QStringLiteral("LabelStart"),    QStringLiteral("MarkOffset"),
    QStringLiteral("MarkSize"),      QStringLiteral("MirrorPrint"),
    QStringLiteral("NegativePrint"), QStringLiteral("OffsetH"),
    QStringLiteral("OffsetV"),       QStringLiteral("orientation-requested"),
    QStringLiteral("PrintSpeed"),    QStringLiteral("Stop"),
    QStringLiteral("Start"),
};

// ----- places -----

bool climbs(const QString &path)
{
    // The first check is for speed: hardly any name has two dots in a row.
    return path.contains(QLatin1String("..")) && path.split(QLatin1Char('/')).contains(QLatin1String(".."));
}

bool isControlCharacter(QChar c)
{
    return c.unicode() <= lastControlCharacter;
}

bool hasControlCharacter(const QString &text)
{
    return std::any_of(
        text.cbegin(), text.cend(), [](QChar c) { return isControlCharacter(c) || c == QLatin1Char(0x7f); });
}

QString folderOf(const QString &path)
{
    return path.left(path.lastIndexOf(QLatin1Char('/')) + 1);
}

QString nameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

// ----- writing -----

QString attribute(const QString &key, const QString &value)
{
    return QString(attributeLine).arg(key, value);
}

// The line for the whole text if its attribute's line, which is read up to the first character beyond ASCII, cannot
// hold it; otherwise empty. Readers search for keys anywhere, so the characters that keys begin with are encoded.
QByteArray unicodeLine(const QString &key, const QString &text)
{
    const auto end = std::find_if(text.cbegin(), text.cend(), isControlCharacter);
    const QString firstLine = text.left(static_cast<QString::size_type>(end - text.cbegin()));
    if (std::all_of(firstLine.cbegin(), firstLine.cend(), [](QChar c) { return c.unicode() <= lastAsciiCharacter; }))
        return {};
    QByteArray value = firstLine.toUtf8();
    value.replace('%', "%25").replace('#', "%23").replace('-', "%2D");
    return '#' + key.toLatin1() + unicodeMark + '=' + value + '\n';
}

// Whether a shell takes the name of a queue literally. Characters outside Latin-1 become "?".
bool isPlain(const QString &queue)
{
    const QString marks = harmlessMarks;
    return std::all_of(queue.cbegin(), queue.cend(), [&marks](QChar c) {
        return marks.contains(c) || (c.isLetterOrNumber() && c.unicode() <= lastLatin1Character);
    });
}

// A value for the shell. Only blanks cause quotes; other characters with a meaning to the shell are written as they are,
// including quotes inside the value.
QString shellWord(QString value)
{
    for (const QLatin1String flag : {QLatin1String("True"), QLatin1String("False")})
        if (value.compare(flag, Qt::CaseInsensitive) == 0)
            return flag;
    value.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    return value.contains(QLatin1Char(' ')) ? QLatin1Char('\'') + value + QLatin1Char('\'') : value;
}

// One option of the lpoptions line; empty for a keyword that has neither a value nor a default.
QString optionItem(const QString &keyword, const QStringList &options, const QStringList &defaults)
{
    const auto own = PresetScript::valueIndex(options, keyword);
    const auto standard = PresetScript::valueIndex(defaults, keyword);
    // A preset without a value has the default.
    if (standard >= 0 && (own < 0 || options.at(own) == defaults.at(standard)))
        return removeItem + keyword;
    if (own < 0)
        return {};
    // lpoptions stores an empty value in a form that reads back as "true".
    if (options.at(own).trimmed().isEmpty())
        return removeItem + keyword;
    return setItem + keyword + QLatin1Char('=') + shellWord(options.at(own));
}

// ----- reading -----

// Like QByteArray::indexOf(), which prepares each search for long texts. That takes several times longer than searching
// through a short one.
QByteArray::size_type positionOf(const QByteArray &text, const QByteArray &data)
{
    const std::string_view bytes(data.constData(), static_cast<std::size_t>(data.size()));
    const std::size_t found = bytes.find(std::string_view(text.constData(), static_cast<std::size_t>(text.size())));
    return found == std::string_view::npos ? -1 : static_cast<QByteArray::size_type>(found);
}

// The bytes from a position up to the first one that is not above `last` as a signed number: so every byte beyond
// ASCII ends a value, too.
QString valueAt(const QByteArray &data, QByteArray::size_type position, signed char last)
{
    const auto begin = data.cbegin() + position;
    const auto end = std::find_if(begin, data.cend(), [last](char c) { return static_cast<signed char>(c) <= last; });
    return QString::fromLatin1(begin, static_cast<QString::size_type>(end - begin));
}

// The text after an attribute's key, as far as it can be read.
QByteArray attributeBytes(const QByteArray &data, const QString &key)
{
    const QByteArray start = '#' + key.toLatin1() + '=';
    const auto begin = data.cbegin() + positionOf(start, data) + start.size();
    const auto end =
        std::find_if(begin, data.cend(), [](char c) { return static_cast<unsigned char>(c) <= lastControlCharacter; });
    return QByteArray(begin, static_cast<QByteArray::size_type>(end - begin));
}

// The two Qt versions differ in whether they convert what follows a NUL.
QString fromLatin1UpToNul(const QByteArray &data)
{
    const auto nul = data.indexOf('\0');
    return QString::fromLatin1(nul < 0 ? data : data.left(nul));
}

} // namespace

QString PresetScript::folder(const QString &printer)
{
    if (printer.startsWith(QLatin1Char('/')) || climbs(printer) || hasControlCharacter(printer))
        return {};
    return PresetFolder::root() + printer;
}

QString PresetScript::pathName(const QString &printer, const QString &file)
{
    const QString parent = folder(printer);
    const QString script = file + suffix;
    if (parent.isEmpty() || climbs(script) || script.contains(QChar(QChar::Null)))
        return {};
    return parent + QLatin1Char('/') + script;
}

const QStringList &PresetScript::optionNames(const QString &printer)
{
    const auto own = ownOptionNames.find(printer);
    return own == ownOptionNames.end() ? sharedOptionNames : own->second;
}

void PresetScript::setOptionNames(const QString &printer, const QStringList &names)
{
    if (names.isEmpty())
        ownOptionNames.erase(printer);
    else
        ownOptionNames[printer] = names;
}

void PresetScript::useExtendedOptionNames()
{
    sharedOptionNames = extendedOptionNames;
}

QStringList::size_type PresetScript::valueIndex(const QStringList &options, const QString &keyword)
{
    for (QStringList::size_type i = 1; i < options.size(); i += 2)
        if (options.at(i - 1) == keyword)
            return i;
    return -1;
}

QString PresetScript::ppdhack(const QSizeF &size, const QString &printer)
{
    return QStringLiteral("%1 %2 %3 %4\n")
        .arg(DriverCommand::name, QString::number(size.width(), 'f', ppdhackDecimals),
             QString::number(size.height(), 'f', ppdhackDecimals), printer);
}

QByteArray PresetScript::text(const Content &content, const QStringList &defaults)
{
    QString script = interpreterLine;
    if (!isPlain(content.printerName))
        script += inertLines;
    if (content.name != content.fileName)
        script += attribute(nameKey, content.name);
    if (!content.description.isEmpty())
        script += attribute(descriptionKey, content.description);
    if (content.index >= 0)
        script += attribute(indexKey, QString::number(content.index));

    script += optionsCommand + content.printerName;
    for (const QString &keyword : optionNames(content.printerName))
        script += optionItem(keyword, content.options, defaults);
    script += QLatin1Char('\n');

    if (content.userPageSize.width() > 0 && content.userPageSize.height() > 0)
        script += ppdhack(content.userPageSize, content.printerName);
    QByteArray bytes = script.toLatin1();
    if (content.name != content.fileName)
        bytes += unicodeLine(nameKey, content.name);
    return bytes + unicodeLine(descriptionKey, content.description);
}

bool PresetScript::write(const QString &path, const QByteArray &script)
{
    return PresetFolder(folderOf(path), PresetFolder::MakeIt).replace(nameOf(path), script);
}

PresetFolder::Result PresetScript::create(const QString &path, const QByteArray &script)
{
    return PresetFolder(folderOf(path), PresetFolder::MakeIt).create(nameOf(path), script);
}

bool PresetScript::remove(const QString &path)
{
    return PresetFolder(folderOf(path), PresetFolder::LeaveIt).remove(nameOf(path));
}

bool PresetScript::exists(const QString &path)
{
    struct stat status = {};
    return lstat(PresetFolder::localPath(path).constData(), &status) == 0;
}

std::optional<QByteArray> PresetScript::read(const QString &path)
{
    // Opened first and then examined, so that it cannot be replaced in between. O_NONBLOCK is for pipes.
    const int fd = ::open(PresetFolder::localPath(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0)
        return std::nullopt;
    QFile file;
    struct stat status = {};
    if (fstat(fd, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > sizeLimit
        || !file.open(fd, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return std::nullopt;
    }
    QByteArray data = file.read(status.st_size);
    return file.error() == QFileDevice::NoError ? std::optional<QByteArray>(data) : std::nullopt;
}

bool PresetScript::parseAttribute(const QByteArray &data, const QString &key, QString &value)
{
    QByteArray start(1, '#');
    start.append(key.toLatin1()).append('=');
    const auto found = positionOf(start, data); // anywhere, not only where a line begins
    if (found < 0)
        return false;
    value = valueAt(data, found + start.size(), lastControlCharacter);
    return true;
}

bool PresetScript::parseText(const QByteArray &data, const QString &key, QString &value)
{
    if (!parseAttribute(data, key, value))
        return false;
    const QByteArray start = '\n' + ('#' + key.toLatin1() + unicodeMark + '=');
    const auto found = data.lastIndexOf(start); // a name or description that looks like it comes earlier
    if (found < 0)
        return true;
    // With the sign before it: at the start of a text fromUtf8() drops a byte order mark.
    const auto sign = found + start.size() - 1;
    const auto end = data.indexOf('\n', sign);
    const QString whole =
        QString::fromUtf8(QByteArray::fromPercentEncoding(data.mid(sign, end < 0 ? -1 : end - sign))).mid(1);
    // The fixed line was edited by somebody who does not know this one, and is newer.
    if (attributeBytes(data, key) == whole.toLatin1())
        value = whole;
    return true;
}

bool PresetScript::parseOption(const QByteArray &data, const QString &keyword, QString &value)
{
    const QByteArray start = (setItem + keyword).toLatin1();
    const auto found = positionOf(start, data);
    // Only the first occurrence counts, even where it belongs to a longer keyword: no script has two such keywords.
    if (found < 0 || found + start.size() >= data.size() || data.at(found + start.size()) != '=')
        return false;
    // A line break is stored in a value as two backslashes and "r", which the writer doubles. The readers of the value
    // also accept one backslash. Nothing else is undone: other backslashes stay doubled, and a quoted value is its
    // opening quote and its first word.
    value = valueAt(data, found + start.size() + 1, ' ').replace(QLatin1String("\\\\\\\\"), QLatin1String("\\"));
    return true;
}

bool PresetScript::parsePpdhack(const QByteArray &data, QSizeF &size)
{
    if (positionOf(DriverCommand::name.data(), data) < 0)
        return false; // as in most scripts
    const QStringList lines = fromLatin1UpToNul(data).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (!line.startsWith(DriverCommand::name))
            continue;
        const QStringList words = line.split(QLatin1Char(' '));
        bool isWidth = false;
        bool isHeight = false;
        const double width = words.value(1).toDouble(&isWidth);
        const double height = words.value(2).toDouble(&isHeight);
        if (isWidth && isHeight && width > 0 && height > 0) {
            size = QSizeF(width, height);
            return true;
        }
    }
    return false;
}
