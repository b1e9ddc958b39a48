// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef OPTIONSFILE_H
#define OPTIONSFILE_H

#include <QString>

#include <cups/cups.h>

/**
 * The file in which libcups keeps each user's options and default printer, one line a destination:
 *
 *     Dest|Default NAME[/INSTANCE] OPTION=VALUE OPTION=VALUE ...
 */
namespace OptionsFile {

/** The path of the user's options file, as libcups finds it. */
QString path();

/**
 * Saves the options of all destinations as cupsSetDests() does, with the same file, syntax and choice of options, but so
 * that nothing is lost:
 *
 * - cupsSetDests() truncates the file and writes it in place, so that a full disk or the end of the process leaves a part
 *   of it. Here the file is replaced as a whole or not at all.
 * - cupsSetDests() writes some values in a form that libcups reads back as something else: an empty one, one with a "#",
 *   one with a tab. Here every value reads back as it was; this is checked before the file is replaced.
 * - cupsSetDests() drops the lines of queues that the scheduler does not list at the moment. Here they are kept.
 *
 * The file's permissions and owner, and a symbolic link in its place, are kept.
 *
 * @return false when the file could not be written or could not be read back by libcups (it cannot read a line break in a
 *         value, or a line of more than 8191 bytes); the earlier file then stands.
 */
bool save(const cups_dest_t *dests, int count);

} // namespace OptionsFile

#endif
