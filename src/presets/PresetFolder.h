// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRESETFOLDER_H
#define PRESETFOLDER_H

#include <QByteArray>
#include <QString>
#include <QStringList>

struct stat;

/**
 * A folder below $HOME/.cups, held open, and the files in it.
 *
 * Whatever lies there, nothing outside the folder is created, changed or removed: no link below $HOME/.cups is followed
 * on the way to the folder, and files and links in it are replaced, never written to.
 */
class PresetFolder
{
public:
    /** What to do about a folder that does not exist. */
    enum IfMissing {
        LeaveIt,
        MakeIt
    };
    enum Result {
        Done,
        Taken, ///< The name is in use.
        Failed
    };

    /** @param path a path below root(), without "..". New folders belong to the owner of the folder that they are made in. */
    PresetFolder(const QString &path, IfMissing ifMissing);
    ~PresetFolder();

    PresetFolder(const PresetFolder &) = delete;
    PresetFolder &operator=(const PresetFolder &) = delete;

    /** @name Changing; where the folder could not be opened these fail */
    /** @{ */

    /**
     * Puts an executable file in the place of the file or link @p name, as a whole or not at all. The permissions and
     * the owner of an earlier file are kept. Anything else there, such as a folder or a pipe, is left alone.
     */
    bool replace(const QString &name, const QByteArray &content);

    /** The same for a file that does not exist yet; it is never there in part. */
    Result create(const QString &name, const QByteArray &content);

    /** Removes the file or link @p name. @return false also when it does not exist. */
    bool remove(const QString &name);

    /** Puts a symbolic link in the place of the link or file @p name. There is always one or the other. */
    bool link(const QString &name, const QByteArray &target);

    /** @} */

    /** $HOME/.cups/, with $HOME as it was when the library was loaded. */
    static QString root();

    /** The bytes of a path; below root() with those of $HOME, which need not be text. */
    static QByteArray localPath(const QString &path);

    /** The sorted names in @p path that end in @p suffix, of regular files and of links to anything but a folder. */
    static QStringList files(const QString &path, const QString &suffix);

    /** The text of the symbolic link @p path as it is; empty when there is no link. */
    static QByteArray linkTarget(const QString &path);

private:
    QByteArray write(const QByteArray &content, const struct stat *earlier);

    int fd = -1; // -1 when the folder could not be opened
};

#endif
