// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRESETSCRIPT_H
#define PRESETSCRIPT_H

#include "presets/PresetFolder.h"

#include <QByteArray>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <optional>

/**
 * The script that a preset is kept in: where it lies, which options it carries, its text, and how it is read.
 *
 * The script serves two readers. A shell applies the preset to the queue by running it; the library never runs it, but
 * finds the preset's parts in it again:
 *
 *     #!/bin/bash
 *     #name=NAME                                  unless the name is the file name
 *     #description=DESCRIPTION                    unless it is empty
 *     #index=INDEX                                0 or more, in built-in presets only
 *     lpoptions -pPRINTER -oKEYWORD=VALUE -rKEYWORD ...
 *     ppdhack WIDTH HEIGHT PRINTER                when there is a user page size
 *     #name-utf8=NAME                             when the name is not plain ASCII
 *     #description-utf8=DESCRIPTION               when the description is not: its first line
 *
 * All but the last two is Latin-1 and is read up to the first character beyond ASCII, as other readers do. The last two
 * hold the whole text in UTF-8, with "%", "#" and "-" as "%25", "%23" and "%2D". Each counts only while the line above
 * that it belongs to is the one that was written with it.
 *
 * Where a shell would act upon characters in the name of the queue, "exit 1" stands before everything else: running the
 * script does nothing, reading it works as usual.
 */
namespace PresetScript {

/** What a script is made of. */
struct Content
{
    QString printerName;
    QString fileName;
    QString name; ///< The name to show.
    QString description;
    int index;
    QStringList options; ///< keyword, value, ...
    QSizeF userPageSize;
};

/** A larger file is no preset script and is not read. */
constexpr qint64 sizeLimit = qint64{1024} * 1024; // bytes

/** @name Places */
/** @{ */

/** What the name of a script's file has behind the preset's file name. */
const QLatin1String suffix(".sh");

/**
 * The folder of @p printer's scripts: $HOME/.cups/PRINTER, with $HOME as it was when the library was loaded.
 *
 * Presets must not be led out of $HOME/.cups by the name of a queue, nor a further line into their scripts. A name
 * that begins with "/", has ".." for one of its parts or holds a control character therefore has no folder, which is
 * the empty path: nothing is listed for it, read or written. A "/" inside a name is usual; it sets off an instance.
 */
QString folder(const QString &printer);

/** The script @p file of @p printer; empty when the printer has no folder or @p file would lead out of it. */
QString pathName(const QString &printer, const QString &file);

/** @} */
/** @name Options */
/** @{ */

/**
 * The keywords that presets of @p printer carry, in the order of the script's items: one list, shared by all printers,
 * but for those that have their own. The reference holds until the printer is given another one.
 */
const QStringList &optionNames(const QString &printer = QString());

/** Gives @p printer a list of its own, for the rest of the process; an empty one takes it back. */
void setOptionNames(const QString &printer, const QStringList &names);

/** Replaces the shared list by the one with GapOffset and Shift and without Start, for the rest of the process. */
void useExtendedOptionNames();

/** The position of @p keyword's value in an option list; -1 when the keyword is not in it or no value follows. */
QStringList::size_type valueIndex(const QStringList &options, const QString &keyword);

/** @} */
/** @name Writing */
/** @{ */

/** The line that hands the user page size to the driver, with its line end. */
QString ppdhack(const QSizeF &size, const QString &printer);

/** The script's text; values that equal those of @p defaults, an option list, become removals, as do empty ones. */
QByteArray text(const Content &content, const QStringList &defaults);

/** Puts @p script into the place of the file or link @p path; see PresetFolder::replace(). */
bool write(const QString &path, const QByteArray &script);

/** The same where nothing is at @p path; see PresetFolder::create(). */
PresetFolder::Result create(const QString &path, const QByteArray &script);

/** Removes the file or link @p path. @return false when it did not exist, too. */
bool remove(const QString &path);

/** Whether there is anything at @p path, if only a link to nothing. */
bool exists(const QString &path);

/** @} */
/** @name Reading; the parsers return whether they found it and leave the output alone if not */
/** @{ */

/** The bytes of the script; nothing unless it is a readable regular file within the size limit. Never blocks. */
std::optional<QByteArray> read(const QString &path);

bool parseAttribute(const QByteArray &data, const QString &key, QString &value);
/** An attribute that may be in any language: its own line, or the whole text that stands behind it. */
bool parseText(const QByteArray &data, const QString &key, QString &value);
bool parseOption(const QByteArray &data, const QString &keyword, QString &value);
bool parsePpdhack(const QByteArray &data, QSizeF &size);

/** @} */

} // namespace PresetScript

#endif
