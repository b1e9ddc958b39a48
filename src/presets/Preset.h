// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRESET_H
#define PRESET_H

#include <PropertiesDialog/propertiesdialog_export.h>

#include <QByteArray>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <memory>

/**
 * A named set of option values for one printer, kept as an executable shell script.
 *
 * The script is read at the first request for anything that it holds, and written, or removed, by save().
 *
 * Constructing a preset for a printer whose name contains "ORCA" switches the list of option keywords that presets
 * carry, for every preset, until the process ends.
 */
class PROPERTIESDIALOG_EXPORT Preset
{
public:
    /** How memory and the script compare. */
    enum _State : int {
        NotLoaded = 0, ///< the script has not been read yet
        Clean = 1, ///< memory agrees with the script, or there is no script
        Modified = 2, ///< changed in memory; the next save() writes the script
        Deleted = 3 ///< marked for removal; the next save() removes the script
    };

    /**
     * @param printer the queue name.
     * @param file the script's base name without ".sh"; empty for a preset that has no script.
     * @param options an option list (keyword, value, ...); when it is not empty it is merged by setOptions().
     * @param name the name to show; when empty the file name is shown.
     * @param description free text, may span lines.
     * @param index -1 for the user's presets, 0 or more for built-in ones (their position in lists).
     */
    Preset(const QString &printer, const QString &file, const QStringList &options, const QString &name,
           const QString &description, int index);
    ~Preset(); ///< Drops what was not saved.

    Preset(const Preset &) = delete; ///< Not to be copied.
    Preset &operator=(const Preset &) = delete; ///< Not to be copied.

    /** @name Plain accessors, which never read the script */
    /** @{ */
    QString printerName() const; ///< The queue name.
    QString fileName() const; ///< The script's base name without ".sh"; empty for a preset without a script.
    _State state() const; ///< How memory and the script compare; see _State.
    void setState(_State state); ///< Modified or Deleted asks for something at the next save().
    /**
     * Sets the user page size, in inches. The script contains it if width and height are above 0. Keeps the state.
     */
    void setUserPageSize(const QSizeF &size);
    /**
     * Marks the preset as new; the state becomes Modified. The next save() does not replace a script that another
     * program has created meanwhile, but uses the next free file name: "Preset", "Preset2", "Preset3", ...
     */
    void setNew();
    bool isNew() const; ///< Whether setNew() was called and no script has been written since.
    /** The keywords that presets carry, in the order of the script's items. */
    QStringList getOptionNames() const;
    /** The path of this preset's script; empty when printer or file name would lead out of $HOME/.cups. */
    QString pathName() const;
    /**
     * The path of the script @p file of @p printer, $HOME/.cups/PRINTER/FILE.sh; empty when it would lead out of there.
     */
    static QString pathName(const QString &printer, const QString &file);
    /** The script's line that sets the user page size, in inches with two decimals, with its line end. */
    QString ppdhack() const;
    /** @} */

    /** @name Accessors that read the script first if it has not been read */
    /** @{ */
    QString name(); ///< The name, or the file name where the name is empty.
    QString description(); ///< Free text; empty when there is none.
    int index(); ///< -1 for the user's presets, 0 or more for built-in ones.
    QStringList options(); ///< An option list: keyword, value, ...
    QSizeF getUserPageSize(); ///< In inches; -1 by -1 when there is none.
    void setName(const QString &name); ///< A name that differs makes the preset Modified.
    void setDescription(const QString &description); ///< A text that differs makes the preset Modified.
    void setIndex(int index); ///< An index that differs makes the preset Modified.
    /** @} */

    /**
     * Merges the values of @p list whose keywords presets carry; others are ignored.
     *
     * @return true when anything changed; the state is then Modified.
     */
    bool setOptions(const QStringList &list);

    /**
     * Drops all option values, without reading the script.
     *
     * @return false, without change, for a deleted preset and for one that is known to have none.
     */
    bool clearOptions();

    /**
     * The keywords of this preset whose values in @p options a script cannot hold: they read back as something else,
     * such as a value with a blank or beyond ASCII.
     *
     * @param options the printer's values as an option list.
     * @param defaults the printer's default values as an option list, as for save().
     */
    QStringList valuesNotHeld(const QStringList &options, const QStringList &defaults);

    /** Reads the script. @return false, without change, when it cannot be read. */
    bool load();

    /**
     * Writes a modified preset, removes the script of a deleted one.
     *
     * A built-in preset is not written: the user is told so and the script is read again. A link in the script's place
     * is replaced, not followed. A link in the place of the printer's folder is a failure.
     *
     * @param defaults the printer's default values as an option list; values that equal them become removals.
     * @return true when there was nothing to do or it was done; false when the preset is built in or its file could not
     *         be written or removed. A file that could not be written stays as it was, and the preset Modified.
     */
    bool save(const QStringList &defaults);

    /** @name Readers of the script's parts; they return whether they found it and leave the output alone if not */
    /** @{ */
    static bool parseAttribute(const QByteArray &data, const QString &key, QString &value); ///< Of a "#key=value" line.
    static bool parseOption(const QByteArray &data, const QString &keyword, QString &value); ///< Of an "-o" item.
    static bool parsePpdhack(const QByteArray &data, QSizeF &size); ///< The user page size, in inches.
    /** @} */

private:
    struct Q_DECL_HIDDEN Private;

    const std::unique_ptr<Private> d;
};

#endif
