// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// The options file. Input: the earlier file, then keyword, value, keyword, value ... with NULs in between.

#include "Fuzz.h"

#include "cups/OptionsMerge.h"
#include "cups/OptionsSyntax.h"

#include <cups/cups.h>

#include <cstring>
#include <vector>

namespace {

const QByteArray queue = "P";

OptionsMerge::Result merge(const QByteArray &content, const std::vector<OptionsMerge::Change> &changes)
{
    return OptionsMerge::merge(content, changes, &OptionsSyntax::readWithLibcups);
}

// What libcups reads for the queue; it has no public function for this.
OptionArray readOptions(const QByteArray &content)
{
    OptionArray options;
    const auto entries = OptionsSyntax::readEntries(content, &OptionsSyntax::readWithLibcups);
    FUZZ_CHECK(entries);
    for (const OptionsSyntax::Entry &entry : *entries)
        if (entry.instance.isEmpty() && entry.name.toLower() == queue.toLower())
            options.parse(entry.options.constData());
    return options;
}

// All lines that are not the queue's, unchanged.
QByteArray foreignText(const QByteArray &content)
{
    QByteArray text;
    QList<OptionsSyntax::Piece> pieces = OptionsSyntax::pieces(content);
    const auto entries = OptionsSyntax::readEntries(content, &OptionsSyntax::readWithLibcups);
    FUZZ_CHECK(entries);
    for (const OptionsSyntax::Entry &entry : *entries) {
        int i = entry.number - 1;
        if (!entry.instance.isEmpty() || entry.name.toLower() != queue.toLower() || pieces.at(i).continues)
            continue;
        pieces[i].text.clear();
        while (++i < pieces.size() && pieces.at(i).continues)
            pieces[i].text.clear();
    }
    for (const OptionsSyntax::Piece &piece : pieces)
        text += piece.text;
    return text;
}

// No attribute of printers begins so.
QByteArray keywordFrom(const QByteArray &text)
{
    QByteArray keyword("x");
    for (const char c : text.left(20))
        keyword += static_cast<char>('a' + (c & 15));
    return keyword;
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QList<QByteArray> parts = texts(bytes(data, size));
    const QByteArray &earlier = parts.first();
    std::vector<OptionsMerge::Change> changes(1);
    OptionsMerge::Change &change = changes.front();
    change.name = queue;
    change.defaultValue = [](const char *keyword) { return std::strlen(keyword) % 2 == 0 ? "default" : nullptr; };
    for (int i = 1; i + 1 < parts.size(); i += 2)
        change.set.set(keywordFrom(parts.at(i)).constData(), parts.at(i + 1).constData());

    const OptionsMerge::Result merged = merge(earlier, changes);
    // A value that the file's syntax cannot express, or a line that is too long with the options that it had.
    if (!merged.isReadable || merged.impossible)
        return 0;
    const QByteArray &saved = merged.content;
    const OptionArray read = readOptions(saved);
    for (const cups_option_t &option : change.set)
        if (*option.value)
            FUZZ_CHECK(read.has(option.name, option.value));
        else
            FUZZ_CHECK(change.isNeededEmpty(option.name) ? read.has(option.name, OptionsMerge::storedEmpty)
                                                         : !read.value(option.name));
    const QByteArray foreign = foreignText(earlier);
    FUZZ_CHECK(foreignText(saved) == foreign || foreignText(saved) == foreign + '\n');
    // Saving a second time reads what the first wrote.
    FUZZ_CHECK(merge(saved, changes).content == saved);
    return 0;
}
