// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/NewFile.h"

#include <QCoreApplication>

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace {

constexpr mode_t mode = 0666; // reduced by the umask

// These file systems write the content of a file before a name that it takes from another file (ext4 with its journal,
// without which nothing is certain after a power failure). On others, a power failure soon after the renaming could
// leave an empty file.
bool writesContentBeforeName(int fd)
{
    struct statfs status = {};
    if (fstatfs(fd, &status) != 0)
        return false;
    const auto type = static_cast<unsigned>(status.f_type);
    return type == EXT4_SUPER_MAGIC || type == BTRFS_SUPER_MAGIC;
}

} // namespace

NewFile::NewFile(int openFolder, const QByteArray &finalName)
    : folder(openFolder)
    , name(finalName)
{
    const QByteArray start = ".new-" + QByteArray::number(QCoreApplication::applicationPid()) + '-';
    // A killed process with the same id may have left files.
    for (int i = 0; fd < 0; ++i) {
        temporaryName = start + QByteArray::number(i);
        fd = openat(folder, temporaryName.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
        if (fd < 0 && errno != EEXIST)
            return;
    }
}

NewFile::~NewFile()
{
    const int error = errno;
    if (fd >= 0 && !isNamed)
        unlinkat(folder, temporaryName.constData(), 0);
    if (fd >= 0)
        close(fd);
    errno = error;
}

bool NewFile::write(const QByteArray &content)
{
    const char *data = content.constData();
    for (auto left = static_cast<std::size_t>(content.size()); left > 0;) {
        const ssize_t written = ::write(fd, data, left);
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0) {
            data += written;
            left -= static_cast<std::size_t>(written);
        }
    }
    // A dialog need not wait for the disk otherwise, which can take seconds while other programs write much.
    return !isNeededOnDisk() || fsync(fd) == 0;
}

bool NewFile::isNeededOnDisk() const
{
    struct stat earlier = {};
    const bool isReplaced =
        fstatat(folder, name.constData(), &earlier, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(earlier.st_mode);
    return !isReplaced || !writesContentBeforeName(fd);
}

bool NewFile::replace()
{
    isNamed = renameat(folder, temporaryName.constData(), folder, name.constData()) == 0;
    return isNamed;
}

bool NewFile::create()
{
    // Neither call replaces an existing file. File systems support one or the other.
    isNamed = linkat(folder, temporaryName.constData(), folder, name.constData(), 0) == 0;
    if (isNamed)
        unlinkat(folder, temporaryName.constData(), 0);
    else if (errno != EEXIST)
        isNamed = renameat2(folder, temporaryName.constData(), folder, name.constData(), RENAME_NOREPLACE) == 0;
    return isNamed;
}
