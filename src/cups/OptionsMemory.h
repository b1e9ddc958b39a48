// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef OPTIONSMEMORY_H
#define OPTIONSMEMORY_H

#include "cups/OptionArray.h"
#include "cups/OptionsSyntax.h"

#include <QByteArray>

/**
 * Remembers what was saved for a destination if other programs' rewriting of the file would change it.
 *
 * Each program that saves an option of any queue lets libcups read and write all lines of the options file, and libcups
 * does not always write what it reads back. From 2.4.17 on each time takes half of the backslashes: two backslashes and
 * "r", the line break of a user command, become one backslash and "r", then "r". In all versions a "#" ends the line,
 * and the options behind it are lost.
 *
 * So where a destination's options would not outlive that, they are kept in a hidden file in the queue's preset folder
 * as well, and a stored value that is what such rewriting makes of the saved one stands for the saved one. Any other
 * value was set by the user and holds.
 */
namespace OptionsMemory {

/** Keeps the options of the destination's line, or forgets earlier ones if libcups does not harm these. */
void remember(const QByteArray &home, const QByteArray &name, const QByteArray &instance, const OptionArray &options,
              const OptionsSyntax::Reader &reader);

/** What remember() keeps for a destination; empty when it keeps nothing. */
OptionArray recall(const QByteArray &home, const QByteArray &name, const QByteArray &instance);

/** Puts the saved values back into options that were just read. @return whether any of them was damaged. */
bool restore(const QByteArray &home, cups_dest_t &dest, const OptionsSyntax::Reader &reader);

/** What of the saved options is to be put back into those that are stored. */
OptionArray lost(const OptionArray &saved, const OptionArray &stored, const OptionsSyntax::Reader &reader);

} // namespace OptionsMemory

#endif
