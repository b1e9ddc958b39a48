// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef OPTIONSMERGE_H
#define OPTIONSMERGE_H

#include "cups/OptionArray.h"
#include "cups/OptionsSyntax.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <vector>

/** Merges the changes of one object into the present text of the options file. */
namespace OptionsMerge {

/** A destination's options at one moment, to compare with later. */
QByteArray snapshot(const cups_dest_t &dest);

/** What was changed of one destination. */
struct Change
{
    QByteArray name;
    QByteArray instance; ///< empty for the queue itself
    bool isDefault = false; ///< for a new line: whether it is the default printer
    OptionArray set;
    QList<QByteArray> removed;
    OptionArray savedEarlier; ///< see OptionsMemory

    OptionArray systemWide; ///< what applies where the user has no option

    /** The value that the printer has for an option; null if it is not known. */
    std::function<const char *(const char *)> defaultValue;

    /**
     * Whether an option must be overridden by an empty value, which is then stored as one blank, because other programs
     * turn an empty one into "true". An option for which it is false is left out instead.
     */
    bool isNeededEmpty(const char *option) const;

    bool areDefaultsKnown = true; ///< otherwise an empty value is the safe side
    bool isDamaged = false; ///< other programs have damaged it, so it is written even without another change

    bool isEmpty() const { return set.size() == 0 && removed.isEmpty() && !isDamaged; }
};

/** What was changed since the snapshot. Options that describe the printer (its state, its place, ...) are left out. */
Change changeSince(const QByteArray &earlier, const cups_dest_t &dest);

/** How an empty value is stored where it is needed. */
constexpr char storedEmpty[] = " ";

/** A destination whose line is a new one. */
struct Written
{
    const Change *change = nullptr;
    OptionArray options; ///< all in its line
};

struct Result
{
    QByteArray content;
    std::vector<Written> written;
    const Change *impossible = nullptr; ///< whose line no program could read back
    bool isReadable = true; ///< false: the text could not be read; see errno
};

/** The options of the changed destination in this text. */
OptionArray optionsIn(const QByteArray &content, const Change &change, const OptionsSyntax::Reader &reader);

/** Lines of destinations that were not changed stay as they are, byte for byte. */
Result merge(const QByteArray &content, const std::vector<Change> &changes, const OptionsSyntax::Reader &reader);

} // namespace OptionsMerge

#endif
