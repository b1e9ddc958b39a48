// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef USERFILE_H
#define USERFILE_H

#include <QByteArray>

#include <sys/stat.h>

/** A file that is read completely and replaced atomically. Its path may hold any bytes, not only text. */
class UserFile
{
public:
    enum class Links {
        Follow, ///< a link in the file's place stays, and what it leads to is replaced
        Keep, ///< a link in the file's place is no file
        Replace ///< a link or anything else that is not a file is replaced
    };

    UserFile(const QByteArray &path, Links links);
    ~UserFile();

    UserFile(const UserFile &) = delete;
    UserFile &operator=(const UserFile &) = delete;

    /**
     * Reads the file; a missing one is empty. @return false when it cannot be read or is not a regular file; see errno.
     */
    bool read(QByteArray &content);

    bool isThere() const { return exists; } ///< whether read() found one

    enum class Result {
        Replaced,
        Changed, ///< another program has written in between; nothing was done
        Failed ///< the file is as it was; the reason is in errno
    };

    /**
     * Replaces the file in one step, provided that it still holds what read() found. Keeps its mode, owner and access
     * control list; a new file gets @p newMode, or the usual mode for 0; if root creates it, it belongs to the owner of
     * the folder. If the folder cannot be written but the file can, it is written in place.
     */
    Result replace(const QByteArray &content, mode_t newMode = 0);

    bool remove();

    /** Creates a folder and those above it, each with this mode and the owner of the folder that it is in. */
    static bool makeFolder(const QByteArray &path, mode_t mode = 0700);

private:
    QByteArray pathWithoutLinks() const;
    bool isStillTheSame() const;
    bool canReplace() const;
    bool setAttributes(int file, mode_t newMode) const;
    bool writeInPlace(const QByteArray &content) const;

    QByteArray folder;
    QByteArray name;
    int folderFd = -1;
    bool exists = false;
    struct stat earlier = {};
    QByteArray earlierContent;
};

#endif
