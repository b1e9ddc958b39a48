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
 * Each program that saves an option of any queue lets libcups read and rewrite all lines of the options file, which
 * damages some values. From 2.4.17 on, each time halves the number of backslashes: two backslashes and "r", the line
 * break of a user command, become one backslash and "r", then "r". In all versions, a "#" ends the line, and the
 * options behind it are lost.
 *
 * Options that rewriting would damage are therefore also kept in a hidden file in the queue's preset folder. A stored
 * value that is exactly what rewriting makes of the saved one is replaced by the saved one. Any other value was set by
 * the user and is used.
 */
namespace OptionsMemory {

/** Keeps the options of the destination's line; removes earlier ones if rewriting does not damage these. */
void remember(const QByteArray &home, const QByteArray &name, const QByteArray &instance, const OptionArray &options,
              const OptionsSyntax::Reader &reader);

/** What remember() keeps for a destination; empty when it keeps nothing. */
OptionArray recall(const QByteArray &home, const QByteArray &name, const QByteArray &instance);

/** Puts the saved values back into options that were just read. @return whether any of them was damaged. */
bool restore(const QByteArray &home, cups_dest_t &dest, const OptionsSyntax::Reader &reader);

/** The saved options that must be restored in the stored ones. */
OptionArray lost(const OptionArray &saved, const OptionArray &stored, const OptionsSyntax::Reader &reader);

} // namespace OptionsMemory

#endif
