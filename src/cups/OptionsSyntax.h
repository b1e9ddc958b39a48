// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef OPTIONSSYNTAX_H
#define OPTIONSSYNTAX_H

#include "cups/OptionArray.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <optional>

/**
 * The lines of the options file, one or more for a destination:
 *
 *     Dest|Default NAME[/INSTANCE] OPTION=VALUE OPTION=VALUE ...
 *
 * How libcups reads a line depends on its version: from 2.4.17 on, it resolves backslashes before "\", "#", "n" and "r"
 * before it looks for options, and then again in the values. Each line that is written is therefore first read with the
 * libcups that runs.
 */
namespace OptionsSyntax {

/** The length of libcups' buffer for one line, its terminator included. */
constexpr int lineBufferSize = 8192;

/** A line as cupsFileGetConf() reads it. */
struct ConfLine
{
    int number = 0; ///< of the line or part of a line, from 1
    QByteArray keyword;
    QByteArray arguments;
};

/** Reads the whole text of a file; nothing when it cannot. */
using Reader = std::function<std::optional<QList<ConfLine>>(const QByteArray &)>;

/** The libcups that runs. */
std::optional<QList<ConfLine>> readWithLibcups(const QByteArray &content);

/** A destination's line. */
struct Entry
{
    int number = 0; ///< as in ConfLine
    bool isDefault = false;
    QByteArray name;
    QByteArray instance; ///< empty for the queue itself
    QByteArray options; ///< as they stand there
};

/** The lines that libcups takes for destinations, in order. */
std::optional<QList<Entry>> readEntries(const QByteArray &content, const Reader &reader);

/** Text that cupsFileGetConf() counts as one line. The texts of all of them together are the file. */
struct Piece
{
    QByteArray text; ///< with its line break
    bool continues = false; ///< belongs to the line before it, which is longer than libcups can read
};

QList<Piece> pieces(const QByteArray &content);

/**
 * The line, without a line break, from which libcups reads these options for the destination; null when there is none,
 * because it would be too long or a value holds a line break. entry.options and entry.number do not matter.
 *
 * Options with a "#" are last.
 */
QByteArray compose(const Entry &entry, const OptionArray &options, const Reader &reader);

/** What remains of options after another program has let libcups read, write and read them again. */
std::optional<OptionArray> rewritten(const OptionArray &options, const Reader &reader);

} // namespace OptionsSyntax

#endif
