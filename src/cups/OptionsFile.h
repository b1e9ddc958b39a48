// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef OPTIONSFILE_H
#define OPTIONSFILE_H

#include "cups/OptionsMerge.h"

#include <QByteArray>
#include <QString>

#include <vector>

/** The file in which libcups keeps the options and the default printer of a user, or of all users if the user is root. */
namespace OptionsFile {

/** What is known of a destination's options in the file. */
struct Stored
{
    QByteArray snapshot; ///< to compare with when saving
    bool isDamaged = false; ///< the file holds what other programs have made of these options
};

/**
 * Call this for destinations that libcups has just read. Restores what other programs have damaged, see OptionsMemory,
 * and replaces the stored form of an empty value by an empty value.
 */
std::vector<Stored> prepare(cups_dest_t *dests, int count);

/**
 * Merges the changes into the file. Other instances of this library are locked out meanwhile, and if another program
 * writes meanwhile, its file is read again. If the file already has these changes, nothing is written.
 *
 * cupsSetDests() is not used because it writes all options of all destinations as this process once read them,
 * truncates the file and writes it in place, drops the lines of queues that the scheduler does not list at the moment,
 * and writes some values in a form that libcups reads back as something else. Here the file is replaced atomically, and
 * each line is read back first.
 *
 * @return a null string when saved; otherwise the reason, for the user, and the file is unchanged. libcups cannot read
 *         a line break in a value, or a line of more than 8191 bytes.
 */
QString save(std::vector<OptionsMerge::Change> changes);

} // namespace OptionsFile

#endif
