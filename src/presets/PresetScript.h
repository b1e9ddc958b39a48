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
 * The script of a preset: its path, its options, its text, and how it is read.
 *
 * The script serves two readers. A shell applies the preset to the queue by running it. The library never runs it, but
 * parses it:
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
 * All but the last two lines are Latin-1 and read up to the first character beyond ASCII, as other readers do. The last
 * two hold the whole text in UTF-8, with "%", "#" and "-" as "%25", "%23" and "%2D". Each is ignored if the line above
 * that it belongs to has been edited since.
 *
 * If the name of the queue has characters that a shell would interpret, the script begins with "exit 1": running it
 * does nothing, reading it works as usual.
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

/** The suffix of a script's file name. */
const QLatin1String suffix(".sh");

/**
 * The folder of @p printer's scripts: $HOME/.cups/PRINTER, with $HOME as it was when the library was loaded.
 *
 * The name of a queue must not lead out of $HOME/.cups or add a line to a script. The path is therefore empty, and
 * nothing is listed, read or written, if the name begins with "/", has ".." as one of its parts or contains a control
 * character. A "/" inside a name is usual; it separates the instance.
 */
QString folder(const QString &printer);

/** The script @p file of @p printer; empty when the printer has no folder or @p file would lead out of it. */
QString pathName(const QString &printer, const QString &file);

/** @} */
/** @name Options */
/** @{ */

/**
 * The keywords that presets of @p printer carry, in the order of the script's items: one list, shared by all printers
 * that do not have their own. The reference is valid until the printer gets another one.
 */
const QStringList &optionNames(const QString &printer = QString());

/** Gives @p printer its own list for the rest of the process; an empty list removes it. */
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

/** Replaces the file or link @p path by @p script; see PresetFolder::replace(). */
bool write(const QString &path, const QByteArray &script);

/** The same if @p path does not exist; see PresetFolder::create(). */
PresetFolder::Result create(const QString &path, const QByteArray &script);

/** Removes the file or link @p path. @return false also when it did not exist. */
bool remove(const QString &path);

/** Whether anything exists at @p path, including a link to nothing. */
bool exists(const QString &path);

/** @} */
/** @name Reading; the parsers return whether they found it and leave the output alone if not */
/** @{ */

/** The bytes of the script; nothing unless it is a readable regular file within the size limit. Never blocks. */
std::optional<QByteArray> read(const QString &path);

bool parseAttribute(const QByteArray &data, const QString &key, QString &value);
/** An attribute in any language: its line, or the whole text at the end. */
bool parseText(const QByteArray &data, const QString &key, QString &value);
bool parseOption(const QByteArray &data, const QString &keyword, QString &value);
bool parsePpdhack(const QByteArray &data, QSizeF &size);

/** @} */

} // namespace PresetScript

#endif
