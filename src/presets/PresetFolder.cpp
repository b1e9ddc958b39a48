// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "presets/PresetFolder.h"

#include "cups/NewFile.h"
#include "cups/OptionsPlace.h"

#include <QCoreApplication>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace {

// Set when the library is loaded, so that later changes of the host's environment do not move the presets.
const QByteArray home = qgetenv("HOME") + '/';
const QByteArray cupsFolder(".cups");
const QByteArray rootBytes = home + cupsFolder + '/';
const QString rootText = QString::fromUtf8(rootBytes);

constexpr mode_t permissionBits = 0777;
constexpr mode_t executable = 0111;
constexpr mode_t cupsFolderMode = 0700; // as libcups makes it
constexpr mode_t folderMode = 0777; // reduced by the umask

// What root creates in a user's home belongs to the user. Only root can and needs to change the owner. By descriptor: a
// file of that name may have been replaced meanwhile.
bool giveTo(const struct stat &owner, int file)
{
    return geteuid() == 0 && fchownat(file, "", owner.st_uid, owner.st_gid, AT_EMPTY_PATH) == 0;
}

bool giveToOwnerOf(int folder, int file)
{
    struct stat status = {};
    return fstat(folder, &status) == 0 && giveTo(status, file);
}

// Opens a folder inside another one, whose descriptor is closed; -1 on failure.
int descend(int parent, const QByteArray &name, PresetFolder::IfMissing ifMissing, mode_t mode, int flags)
{
    const bool made = ifMissing == PresetFolder::MakeIt && mkdirat(parent, name.constData(), mode) == 0;
    const int child = openat(parent, name.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC | flags);
    if (made && child >= 0)
        giveToOwnerOf(parent, child);
    close(parent);
    return child;
}

// Files, and links to anything but a folder.
bool isListed(const std::filesystem::directory_entry &entry)
{
    std::error_code ignored;
    return entry.is_symlink(ignored) ? entry.exists(ignored) && !entry.is_directory(ignored)
                                     : entry.is_regular_file(ignored);
}

} // namespace

PresetFolder::PresetFolder(const QString &path, IfMissing ifMissing)
{
    if (!path.startsWith(rootText))
        return;
    if (ifMissing == MakeIt)
        OptionsPlace::keepInUse();
    // Up to here, the user decides where links lead.
    fd = open(home.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0)
        fd = descend(fd, cupsFolder, ifMissing, cupsFolderMode, 0);
    const QStringList parts = path.mid(rootText.size()).split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QString &part : parts)
        if (fd >= 0)
            fd = descend(fd, QFile::encodeName(part), ifMissing, folderMode, O_NOFOLLOW);
}

PresetFolder::~PresetFolder()
{
    if (fd >= 0)
        close(fd);
}

bool PresetFolder::write(NewFile &file, const QByteArray &content, const struct stat *earlier)
{
    struct stat status = {};
    if (!file.isOpen() || fstat(file.descriptor(), &status) != 0)
        return false;
    if (earlier)
        giveTo(*earlier, file.descriptor());
    else
        giveToOwnerOf(fd, file.descriptor());
    const mode_t mode = (earlier ? earlier->st_mode : status.st_mode) & permissionBits;
    return fchmod(file.descriptor(), mode | executable) == 0 && file.write(content);
}

bool PresetFolder::replace(const QString &name, const QByteArray &content)
{
    const QByteArray place = QFile::encodeName(name);
    struct stat earlier = {};
    const bool exists = fstatat(fd, place.constData(), &earlier, AT_SYMLINK_NOFOLLOW) == 0;
    const bool isFile = exists && S_ISREG(earlier.st_mode);
    // Do not replace devices, pipes, folders, or files that their user has made read-only.
    if (exists && !isFile && !S_ISLNK(earlier.st_mode))
        return false;
    if (isFile && faccessat(fd, place.constData(), W_OK, AT_EACCESS) != 0)
        return false;
    NewFile file(fd, place);
    return write(file, content, isFile ? &earlier : nullptr) && file.replace();
}

PresetFolder::Result PresetFolder::create(const QString &name, const QByteArray &content)
{
    NewFile file(fd, QFile::encodeName(name));
    if (!write(file, content, nullptr))
        return Failed;
    if (file.create())
        return Done;
    return errno == EEXIST ? Taken : Failed;
}

bool PresetFolder::remove(const QString &name)
{
    return unlinkat(fd, QFile::encodeName(name).constData(), 0) == 0;
}

bool PresetFolder::link(const QString &name, const QByteArray &target)
{
    const QByteArray place = QFile::encodeName(name);
    const QByteArray temporary = place + '.' + QByteArray::number(QCoreApplication::applicationPid());
    unlinkat(fd, temporary.constData(), 0);
    if (symlinkat(target.constData(), fd, temporary.constData()) != 0)
        return false;
    const int made = openat(fd, temporary.constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC);
    struct stat status = {};
    if (made >= 0 && fstat(made, &status) == 0 && S_ISLNK(status.st_mode))
        giveToOwnerOf(fd, made);
    close(made);
    if (renameat(fd, temporary.constData(), fd, place.constData()) == 0)
        return true;
    unlinkat(fd, temporary.constData(), 0);
    return false;
}

QString PresetFolder::root()
{
    return rootText;
}

QByteArray PresetFolder::localPath(const QString &path)
{
    return path.startsWith(rootText) ? rootBytes + QFile::encodeName(path.mid(rootText.size()))
                                     : QFile::encodeName(path);
}

QStringList PresetFolder::files(const QString &path, const QString &suffix)
{
    QStringList names;
    std::error_code error;
    const std::filesystem::directory_iterator end;
    for (std::filesystem::directory_iterator entry(localPath(path).constData(), error); !error && entry != end;
         entry.increment(error)) {
        const QString name = QFile::decodeName(entry->path().filename().c_str());
        if (name.endsWith(suffix) && isListed(*entry))
            names << name;
    }
    names.sort();
    return names;
}

QByteArray PresetFolder::linkTarget(const QString &path)
{
    std::error_code error;
    const std::filesystem::path target = std::filesystem::read_symlink(localPath(path).constData(), error);
    return error ? QByteArray() : QByteArray(target.c_str());
}
