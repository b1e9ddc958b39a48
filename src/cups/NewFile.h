// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef NEWFILE_H
#define NEWFILE_H

#include <QByteArray>

/**
 * A new file that gets its name when it is complete. A program that opens this name finds either the earlier file or the
 * new one, also after a crash or a power failure.
 *
 * If a call fails, the reason is in errno.
 */
class NewFile
{
public:
    /** @param openFolder a descriptor, which must stay open as long as this object */
    NewFile(int openFolder, const QByteArray &finalName);
    ~NewFile(); ///< removes the file if it does not have its name

    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;

    bool isOpen() const { return fd >= 0; }
    int descriptor() const { return fd; }

    /** Writes the whole content, and waits for the disk if the file could not safely get its name otherwise. */
    bool write(const QByteArray &content);

    bool replace(); ///< takes the name, also from an earlier file or link
    bool create(); ///< takes the name; fails with EEXIST if it is in use

private:
    bool isNeededOnDisk() const;

    const int folder;
    const QByteArray name;
    QByteArray temporaryName;
    int fd = -1;
    bool isNamed = false;
};

#endif
