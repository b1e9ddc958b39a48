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
 * To be called for destinations that libcups has just read: puts back what other programs have damaged, see
 * OptionsMemory, and makes the stored form of an empty value an empty one again.
 */
std::vector<Stored> prepare(cups_dest_t *dests, int count);

/**
 * Saves what was changed. Everything else in the file stays as it is by then: other instances of this library are
 * locked out meanwhile, and what another program writes meanwhile is read again. If these changes are in the file
 * already, nothing is written.
 *
 * cupsSetDests() would not do: it writes all options of all destinations as this process once read them, truncates the
 * file and writes it in place, drops the lines of queues that the scheduler does not list at the moment, and writes
 * some values in a form that libcups reads back as something else. Here the file is replaced as a whole or not at all,
 * and each line is read back before that.
 *
 * @return a null string when saved. Else why not, for the user; the file is as it was. libcups cannot read a line break in a
 *         value, or a line of more than 8191 bytes.
 */
QString save(std::vector<OptionsMerge::Change> changes);

} // namespace OptionsFile

#endif
