// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/OptionsMemory.h"

#include "cups/OptionsPlace.h"
#include "cups/UserFile.h"

#include <QList>

#include <sys/stat.h>

namespace {

// Not a preset, because those end in ".sh".
const char fileName[] = "/_saved-options";

// Each rewriting halves the backslashes of a line, so that this many are enough for the longest.
constexpr int mostRewritings = 16;

bool isLink(const QByteArray &path)
{
    struct stat status = {};
    return lstat(path.constData(), &status) == 0 && S_ISLNK(status.st_mode);
}

// Empty where a name or a link would lead out of the folder.
QByteArray folderFor(const QByteArray &home, const QByteArray &name, const QByteArray &instance)
{
    QByteArray folder = home + "/.cups";
    for (const QByteArray &part : {name, instance}) {
        if (part == "." || part == ".." || part.contains('/'))
            return {};
        if (!part.isEmpty())
            folder += '/' + part;
        if (!part.isEmpty() && isLink(folder))
            return {};
    }
    return folder;
}

// One option per line, without special characters.
QByteArray fileText(const OptionArray &options)
{
    QByteArray text;
    for (const cups_option_t &option : options)
        text += QByteArray(option.name).toPercentEncoding() + '=' + QByteArray(option.value).toPercentEncoding() + '\n';
    return text;
}

OptionArray fromFileText(const QByteArray &text)
{
    OptionArray options;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        const auto equals = line.indexOf('=');
        if (equals > 0)
            options.set(QByteArray::fromPercentEncoding(line.left(equals)).constData(),
                        QByteArray::fromPercentEncoding(line.mid(equals + 1)).constData());
    }
    return options;
}

} // namespace

OptionArray OptionsMemory::lost(const OptionArray &saved, const OptionArray &stored,
                                const OptionsSyntax::Reader &reader)
{
    OptionArray found;
    if (saved.size() == 0)
        return found;
    OptionArray now = saved;
    for (int i = 0; i < mostRewritings; ++i) {
        const std::optional<OptionArray> next = OptionsSyntax::rewritten(now, reader);
        if (!next || *next == now)
            break;
        now = *next;
        for (const cups_option_t &option : saved)
            if (const char *changed = now.value(option.name);
                changed && qstrcmp(changed, option.value) != 0 && stored.has(option.name, changed))
                found.set(option.name, option.value);
        // After a truncated value, the rest of the line is lost.
        if (found.size() == 0)
            continue;
        for (const cups_option_t &option : saved)
            if (!now.value(option.name) && !stored.value(option.name))
                found.set(option.name, option.value);
    }
    return found;
}

void OptionsMemory::remember(const QByteArray &home, const QByteArray &name, const QByteArray &instance,
                             const OptionArray &options, const OptionsSyntax::Reader &reader)
{
    const QByteArray folder = folderFor(home, name, instance);
    if (folder.isEmpty())
        return;
    const std::optional<OptionArray> next = OptionsSyntax::rewritten(options, reader);
    const bool isHarmed = next && !(*next == options);
    if (isHarmed)
        OptionsPlace::keepInUse();
    if (isHarmed && !UserFile::makeFolder(folder))
        return;
    UserFile file(folder + fileName, UserFile::Links::Replace);
    if (!isHarmed) {
        file.remove();
        return;
    }
    const QByteArray text = fileText(options);
    QByteArray earlier;
    if (file.read(earlier) && earlier != text)
        file.replace(text);
}

OptionArray OptionsMemory::recall(const QByteArray &home, const QByteArray &name, const QByteArray &instance)
{
    const QByteArray folder = folderFor(home, name, instance);
    QByteArray text;
    if (folder.isEmpty() || !UserFile(folder + fileName, UserFile::Links::Keep).read(text))
        return {};
    return fromFileText(text);
}

bool OptionsMemory::restore(const QByteArray &home, cups_dest_t &dest, const OptionsSyntax::Reader &reader)
{
    const OptionArray saved = recall(home, dest.name, dest.instance);
    if (saved.size() == 0)
        return false;
    const OptionArray found = lost(saved, OptionArray(dest), reader);
    for (const cups_option_t &option : found)
        dest.num_options = cupsAddOption(option.name, option.value, dest.num_options, &dest.options);
    return found.size() > 0;
}
