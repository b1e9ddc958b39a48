// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/UserFile.h"

#include "cups/NewFile.h"

#include <QFile>
#include <QString>

#include <fcntl.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>

namespace {

QByteArray folderOf(const QByteArray &path)
{
    const auto slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray(".") : path.left(slash + 1);
}

// The target of a chain of links, whether it exists or not.
QByteArray targetOf(QByteArray path)
{
    std::array<char, PATH_MAX> target;
    for (int links = 0; links < 40; ++links) {
        const ssize_t length = readlink(path.constData(), target.data(), target.size());
        if (length < 0)
            break;
        const QByteArray text(target.data(), static_cast<int>(length));
        path = text.startsWith('/') ? text : folderOf(path) + text;
    }
    return path;
}

bool readAll(int fd, QByteArray &content)
{
    QFile file;
    if (!file.open(fd, QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    content = file.readAll();
    return file.error() == QFileDevice::NoError;
}

bool writeAll(int fd, const QByteArray &content)
{
    for (off_t done = 0; done < content.size();) {
        const ssize_t written =
            pwrite(fd, content.constData() + done, static_cast<std::size_t>(content.size() - done), done);
        if (written < 0 && errno != EINTR)
            return false;
        done += written < 0 ? 0 : written;
    }
    return ftruncate(fd, content.size()) == 0 && fsync(fd) == 0;
}

void copyAccessControlList(const QByteArray &from, int to)
{
    const char *const list = "system.posix_acl_access";
    std::array<char, 4096> value;
    const ssize_t size = getxattr(from.constData(), list, value.data(), value.size());
    if (size > 0)
        fsetxattr(to, list, value.data(), static_cast<std::size_t>(size), 0);
}

} // namespace

UserFile::UserFile(const QByteArray &path, Links links)
{
    const QByteArray target = links == Links::Follow ? targetOf(path) : path;
    folder = folderOf(target);
    name = target.mid(target.lastIndexOf('/') + 1);
    folderFd = open(folder.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    struct stat status = {};
    if (links == Links::Replace && fstatat(folderFd, name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0
        && !S_ISREG(status.st_mode))
        unlinkat(folderFd, name.constData(), 0);
}

UserFile::~UserFile()
{
    if (folderFd >= 0)
        close(folderFd);
}

// For getxattr(), which does not take the descriptor of a folder.
QByteArray UserFile::pathWithoutLinks() const
{
    return "/proc/self/fd/" + QByteArray::number(folderFd) + '/' + name;
}

bool UserFile::read(QByteArray &content)
{
    content.clear();
    exists = false;
    // Opening a pipe would wait for a writer.
    const int fd = openat(folderFd, name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW);
    if (fd < 0) {
        struct stat status = {};
        if (errno == ENOENT && folderFd >= 0 && fstatat(folderFd, name.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0)
            return errno == ENOENT;
        return false;
    }
    exists = true;
    bool good = fstat(fd, &earlier) == 0;
    if (good && !S_ISREG(earlier.st_mode)) {
        errno = EINVAL;
        good = false;
    }
    good = good && readAll(fd, content);
    close(fd);
    earlierContent = content;
    return good;
}

bool UserFile::isStillTheSame() const
{
    const int fd = openat(folderFd, name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW);
    if (fd < 0)
        return !exists && errno == ENOENT;
    struct stat now = {};
    QByteArray content;
    const bool same = exists && fstat(fd, &now) == 0 && now.st_ino == earlier.st_ino && now.st_dev == earlier.st_dev
                      && readAll(fd, content) && content == earlierContent;
    close(fd);
    return same;
}

bool UserFile::canReplace() const
{
    return faccessat(AT_FDCWD, folder.constData(), W_OK, AT_EACCESS) == 0;
}

bool UserFile::writeInPlace(const QByteArray &content) const
{
    const int fd = openat(folderFd, name.constData(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW);
    if (fd < 0)
        return false;
    // Reserve the space first: writing then rarely fails, and if it does, the earlier text still fits.
    const bool hasRoom =
        content.size() <= earlier.st_size || fallocate(fd, 0, 0, content.size()) == 0 || errno == EOPNOTSUPP;
    const bool good = hasRoom && writeAll(fd, content);
    const int error = errno;
    if (!good)
        writeAll(fd, earlierContent);
    close(fd);
    errno = error;
    return good;
}

UserFile::Result UserFile::replace(const QByteArray &content, mode_t newMode)
{
    if (exists && !canReplace()) {
        if (!isStillTheSame())
            return Result::Changed;
        return writeInPlace(content) ? Result::Replaced : Result::Failed;
    }

    if (exists && faccessat(folderFd, name.constData(), W_OK, AT_EACCESS) != 0)
        return Result::Failed;
    NewFile file(folderFd, name);
    if (!file.isOpen() || !setAttributes(file.descriptor(), newMode) || !file.write(content))
        return Result::Failed;
    if (!isStillTheSame())
        return Result::Changed;
    return file.replace() ? Result::Replaced : Result::Failed;
}

bool UserFile::setAttributes(int file, mode_t newMode) const
{
    if (exists) {
        // A file that belongs to another user stays theirs. Only root can and needs to restore the owner.
        const bool isOurs = earlier.st_uid == geteuid() && earlier.st_gid == getegid();
        [[maybe_unused]] const bool isRestored = isOurs || fchown(file, earlier.st_uid, earlier.st_gid) == 0;
        fchmod(file, earlier.st_mode & 07777);
        copyAccessControlList(pathWithoutLinks(), file);
        return true;
    }
    struct stat parent = {};
    if (geteuid() == 0 && fstat(folderFd, &parent) == 0 && parent.st_uid != 0
        && fchown(file, parent.st_uid, parent.st_gid) != 0)
        return false;
    return newMode == 0 || fchmod(file, newMode) == 0;
}

bool UserFile::remove()
{
    return unlinkat(folderFd, name.constData(), 0) == 0 || errno == ENOENT;
}

bool UserFile::makeFolder(const QByteArray &path, mode_t mode)
{
    struct stat status = {};
    if (stat(path.constData(), &status) == 0) {
        errno = ENOTDIR;
        return S_ISDIR(status.st_mode);
    }
    QByteArray parent = folderOf(path);
    while (parent.size() > 1 && parent.endsWith('/'))
        parent.chop(1);
    if (parent == path || !makeFolder(parent, mode) || stat(parent.constData(), &status) != 0)
        return false;
    if (mkdir(path.constData(), mode) != 0)
        return errno == EEXIST;
    if (geteuid() == 0 && status.st_uid != 0 && lchown(path.constData(), status.st_uid, status.st_gid) != 0)
        return false;
    return true;
}
