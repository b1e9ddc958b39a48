// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/OptionsSyntax.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstring>

namespace {

// A value in the form that cupsParseOptions() takes apart: quoted unless it is plain. The backslash before "#" keeps
// the value from being read as a comment by libcups before 2.4.17.
QByteArray valueSyntax(const QByteArray &value)
{
    QByteArray escaped;
    bool plain = true;
    for (const char c : value) {
        if (std::strchr("\"'\\#", c))
            escaped += '\\';
        plain = plain && !std::strchr("\"'\\#{} \t\n\v\f\r", c);
        escaped += c;
    }
    return plain ? value : '"' + escaped + '"';
}

// A line in the form that cupsFileGetConf() takes apart from libcups 2.4.17 on.
QByteArray withBackslashesKept(const QByteArray &line)
{
    QByteArray escaped;
    for (const char c : line) {
        if (c == '\\' || c == '#')
            escaped += '\\';
        escaped += c;
    }
    return escaped;
}

QByteArray lineStart(const OptionsSyntax::Entry &entry)
{
    QByteArray text = entry.isDefault ? "Default " : "Dest ";
    text += entry.name;
    return entry.instance.isEmpty() ? text : text + '/' + entry.instance;
}

bool isSpace(char c)
{
    return std::strchr(" \t\n\v\f\r", c) != nullptr; // also for the terminator
}

bool readsBack(const QByteArray &line, const OptionsSyntax::Entry &entry, const OptionArray &options,
               const OptionsSyntax::Reader &reader)
{
    const auto found = OptionsSyntax::readEntries(line, reader);
    if (!found || found->size() != 1 || OptionsSyntax::pieces(line).size() != 1)
        return false;
    const OptionsSyntax::Entry &only = found->first();
    OptionArray read;
    read.parse(only.options.constData());
    return only.isDefault == entry.isDefault && only.name == entry.name && only.instance == entry.instance
           && read == options;
}

// As cupsSetDests() writes them.
QByteArray writtenByLibcups(const OptionArray &options)
{
    QByteArray line;
    for (const cups_option_t &option : options) {
        line.append(' ').append(option.name);
        if (!*option.value)
            continue;
        if (!std::strpbrk(option.value, " \\\"'")) {
            line.append('=').append(option.value);
            continue;
        }
        line += "=\"";
        for (const char *c = option.value; *c; ++c) {
            if (std::strchr("\"'\\", *c))
                line += '\\';
            line += *c;
        }
        line += '"';
    }
    return line;
}

} // namespace

std::optional<QList<OptionsSyntax::ConfLine>> OptionsSyntax::readWithLibcups(const QByteArray &content)
{
    const int fd = memfd_create("lpoptions", MFD_CLOEXEC);
    if (fd < 0)
        return std::nullopt;
    if (write(fd, content.constData(), static_cast<std::size_t>(content.size())) != content.size()
        || lseek(fd, 0, SEEK_SET) != 0) {
        close(fd);
        return std::nullopt;
    }
    cups_file_t *file = cupsFileOpenFd(fd, "r");
    if (!file) {
        close(fd);
        return std::nullopt;
    }
    QList<ConfLine> lines;
    char buffer[lineBufferSize];
    char *arguments = nullptr;
    int number = 0;
    while (cupsFileGetConf(file, buffer, sizeof buffer, &arguments, &number))
        lines.append({number, buffer, arguments});
    cupsFileClose(file);
    return lines;
}

std::optional<QList<OptionsSyntax::Entry>> OptionsSyntax::readEntries(const QByteArray &content, const Reader &reader)
{
    const auto lines = reader(content);
    if (!lines)
        return std::nullopt;
    QList<Entry> entries;
    for (const ConfLine &line : *lines) {
        const bool isDefault = qstricmp(line.keyword.constData(), "default") == 0;
        if (line.arguments.isEmpty() || (!isDefault && qstricmp(line.keyword.constData(), "dest") != 0))
            continue;
        const char *text = line.arguments.constData();
        const char *end = text;
        while (!isSpace(*end) && *end != '/')
            ++end;
        Entry entry;
        entry.number = line.number;
        entry.isDefault = isDefault;
        entry.name = QByteArray(text, static_cast<int>(end - text));
        if (*end == '/') {
            text = ++end;
            while (!isSpace(*end))
                ++end;
            entry.instance = QByteArray(text, static_cast<int>(end - text));
        }
        entry.options = *end ? end + 1 : end;
        entries.append(entry);
    }
    return entries;
}

QList<OptionsSyntax::Piece> OptionsSyntax::pieces(const QByteArray &content)
{
    QList<Piece> list;
    bool continues = false;
    for (const char *text = content.constData(), *const end = text + content.size(); text < end;) {
        const char *last = text;
        while (last < end && last - text < lineBufferSize - 1 && *last != '\n' && *last != '\r')
            ++last;
        bool isWhole = last == end;
        if (last < end && last - text < lineBufferSize - 1) {
            isWhole = true;
            last += *last == '\r' && last + 1 < end && last[1] == '\n' ? 2 : 1;
        }
        list.append({QByteArray(text, static_cast<int>(last - text)), continues});
        continues = !isWhole;
        text = last;
    }
    return list;
}

QByteArray OptionsSyntax::compose(const Entry &entry, const OptionArray &options, const Reader &reader)
{
    QByteArray line = lineStart(entry);
    QByteArray cutByOthers;
    for (const cups_option_t &option : options) {
        QByteArray &part = std::strchr(option.value, '#') ? cutByOthers : line;
        part.append(' ').append(option.name).append('=').append(valueSyntax(option.value));
    }
    line += cutByOthers;
    for (const QByteArray &form : {line, withBackslashesKept(line)})
        if (readsBack(form, entry, options, reader))
            return form;
    return {};
}

std::optional<OptionArray> OptionsSyntax::rewritten(const OptionArray &options, const Reader &reader)
{
    const auto entries = readEntries("Dest x" + writtenByLibcups(options), reader);
    if (!entries)
        return std::nullopt;
    OptionArray read;
    for (const Entry &entry : *entries)
        if (entry.name == "x" && entry.instance.isEmpty())
            read.parse(entry.options.constData());
    return read;
}
