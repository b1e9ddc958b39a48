// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRESETFOLDER_H
#define PRESETFOLDER_H

#include <QByteArray>
#include <QString>
#include <QStringList>

class NewFile;
struct stat;

/**
 * A folder below $HOME/.cups, held open, and the files in it.
 *
 * Nothing outside the folder is ever created, changed or removed: no link below $HOME/.cups is followed on the way to
 * the folder, and files and links in it are replaced, never written to.
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

    /** @name Changes; these fail if the folder could not be opened */
    /** @{ */

    /**
     * Replaces the file or link @p name atomically by an executable file. The permissions and the owner of an earlier
     * file are kept. Fails if anything else is there, such as a folder or a pipe.
     */
    bool replace(const QString &name, const QByteArray &content);

    /** The same for a file that does not exist yet. */
    Result create(const QString &name, const QByteArray &content);

    /** Removes the file or link @p name. @return false also when it does not exist. */
    bool remove(const QString &name);

    /** Replaces the link or file @p name atomically by a symbolic link. */
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
    bool write(NewFile &file, const QByteArray &content, const struct stat *earlier);

    int fd = -1; // -1 when the folder could not be opened
};

#endif
