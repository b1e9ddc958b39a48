// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRESETS_H
#define PRESETS_H

#include <PropertiesDialog/propertiesdialog_export.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class Preset;

/**
 * All presets of one printer, and which of them is the current one.
 *
 * They are the scripts in $HOME/.cups/PRINTER whose names do not begin with "_". A symbolic link beside them,
 * "currentPreset", names the current preset's script between runs. Presets with an index of 0 or more are built in:
 * they cannot be changed or deleted.
 */
class PROPERTIESDIALOG_EXPORT Presets
{
public:
    /** Lists the presets of @p printer, a queue name. */
    explicit Presets(const QString &printer);

    /** Deletes all presets; what was not saved is dropped. */
    ~Presets();

    Presets(const Presets &) = delete; ///< Not to be copied.
    Presets &operator=(const Presets &) = delete; ///< Not to be copied.

    /** Lists the presets of @p printer, another queue, instead; what was not saved is dropped. */
    void setPrinter(const QString &printer);

    /** Lists the folder again and drops what is in memory. Pointers to presets become invalid. @return always true. */
    bool load();

    /**
     * Writes every changed and removes every deleted preset, in order, up to the first failure; then sets the link.
     *
     * @param defaults the printer's default values as an option list.
     * @return false at the first failure: the presets after it are not written and the link is not touched.
     */
    bool save(const QStringList &defaults);

    /** Appends a preset and owns it; it becomes current when there is none. Null is ignored. @return @p preset */
    Preset *addPreset(Preset *preset);

    /**
     * Marks a preset for removal at the next save(); built-in presets are refused with a warning box. If it was
     * current, the first preset that is not deleted becomes current. @return @p preset
     */
    Preset *deletePreset(Preset *preset);

    /**
     * The first preset whose name or file name is @p text, deleted ones included; null when there is none. Owned here.
     */
    Preset *findPreset(const QString &text) const;

    /** The first preset whose file name is @p file; null when there is none. Owned here. */
    Preset *findPresetByFileName(const QString &file) const;

    /** Whether a preset in memory has the file name @p file, or anything exists at the path of its script. */
    bool isFileNameTaken(const QString &file) const;

    /**
     * Drops the presets that are marked for removal and have no script: one that was never written, or that another
     * program has removed. save() would fail at them. Pointers to them become invalid.
     */
    void dropMissing();

    /** The presets that getPresetNames() names, in its order. Owned here. */
    QList<Preset *> listedPresets() const;

    /** The names to show: built-in presets at the positions of their indexes, then the user's, by file name. */
    QStringList getPresetNames() const;

    /** The current preset, owned by this collection, or null. */
    Preset *currentPreset() const;
    /** Makes @p preset, which belongs to this collection or is null, current. */
    void setCurrentPreset(Preset *preset);

    /** The file name of the hidden preset that holds the settings last applied. */
    QString currentFileName() const;

    /** The path of the link to the current preset's script. */
    QString linkPathName() const;

    /** Deletes all presets in memory; no file is touched. Pointers to them become invalid. */
    void clearPresets();

private:
    struct Q_DECL_HIDDEN Private;

    const std::unique_ptr<Private> d;
};

#endif
