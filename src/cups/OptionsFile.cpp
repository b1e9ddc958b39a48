// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/OptionsFile.h"

#include "cups/OptionsMemory.h"
#include "cups/OptionsPlace.h"
#include "cups/UserFile.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace {

const int lockPatienceMs = 1000;
const int lockPauseMs = 2;
// How long another program may take between truncating the file and writing it.
const int rewritePauseMs = 20;
const int mostAttempts = 10;

// What the superuser saves applies to all users, who must be able to read it.
const mode_t systemWideMode = 0644;
const mode_t systemWideFolderMode = 0755;
const mode_t folderMode = 0700; // as libcups makes it

void pause(int milliseconds)
{
    usleep(static_cast<useconds_t>(milliseconds) * 1000);
}

// Keeps other instances of this library from saving at the same time. It is a lock of the folder: the file itself is
// replaced, and an extra lock file would be clutter. Anybody who may read the folder can hold the lock, so the wait is
// limited; on file systems without locks, such as some network disks, no lock is taken.
class Lock
{
public:
    explicit Lock(const QByteArray &folder)
        : fd(open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        const QDeadlineTimer deadline(lockPatienceMs);
        while (fd >= 0 && flock(fd, LOCK_EX | LOCK_NB) != 0 && (errno == EWOULDBLOCK || errno == EINTR)
               && !deadline.hasExpired())
            pause(lockPauseMs);
    }
    ~Lock()
    {
        if (fd >= 0)
            close(fd);
    }
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;

private:
    const int fd;
};

QString systemReason(const QByteArray &path)
{
    return QFile::decodeName(path) + QLatin1String(": ") + QString::fromLocal8Bit(std::strerror(errno));
}

QString lineReason(const OptionsMerge::Change &change)
{
    return QCoreApplication::translate("CupsSupport",
                                       "The options of %1 cannot be stored: they are too long, or hold a line break.")
        .arg(QString::fromUtf8(change.name));
}

// Another program truncates the file before it writes it.
bool looksUnfinished(const QByteArray &content)
{
    return !content.endsWith('\n');
}

bool readWhole(UserFile &file, QByteArray &content)
{
    if (!file.read(content))
        return false;
    if (!file.isThere() || !looksUnfinished(content))
        return true;
    pause(rewritePauseMs);
    return file.read(content);
}

OptionArray systemWideOptions(const QByteArray &path, const OptionsMerge::Change &change)
{
    QByteArray content;
    if (!UserFile(path, UserFile::Links::Follow).read(content))
        return {};
    return OptionsMerge::optionsIn(content, change, &OptionsSyntax::readWithLibcups);
}

} // namespace

std::vector<OptionsFile::Stored> OptionsFile::prepare(cups_dest_t *dests, int count)
{
    std::vector<Stored> stored;
    const QByteArray home = OptionsPlace::home(OptionsPlace::current());
    for (cups_dest_t *dest = dests; dest != dests + count; ++dest) {
        // Restored values do not count as the user's changes: whoever saves something else meanwhile sees the same
        // values.
        const bool isDamaged = OptionsMemory::restore(home, *dest, &OptionsSyntax::readWithLibcups);
        for (int i = 0; i < dest->num_options; ++i)
            if (!std::strcmp(dest->options[i].value, OptionsMerge::storedEmpty))
                cupsAddOption(dest->options[i].name, "", dest->num_options, &dest->options);
        stored.push_back({OptionsMerge::snapshot(*dest), isDamaged});
    }
    return stored;
}

QString OptionsFile::save(std::vector<OptionsMerge::Change> changes)
{
    if (changes.empty())
        return {};
    const OptionsPlace::Circumstances circumstances = OptionsPlace::current();
    const OptionsPlace::Place place = OptionsPlace::find(circumstances);
    if (!UserFile::makeFolder(place.folder, place.isSystemWide ? systemWideFolderMode : folderMode))
        return systemReason(place.folder);
    const Lock lock(place.folder);
    const QByteArray home = OptionsPlace::home(circumstances);
    for (OptionsMerge::Change &change : changes) {
        change.savedEarlier = OptionsMemory::recall(home, change.name, change.instance);
        if (!place.isSystemWide)
            change.systemWide = systemWideOptions(OptionsPlace::systemWideFile(circumstances), change);
    }
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        UserFile file(place.file(), UserFile::Links::Follow);
        QByteArray content;
        if (!readWhole(file, content))
            return systemReason(place.file());
        const OptionsMerge::Result merged = OptionsMerge::merge(content, changes, &OptionsSyntax::readWithLibcups);
        if (!merged.isReadable)
            return systemReason(place.file());
        if (merged.impossible)
            return lineReason(*merged.impossible);
        if (!merged.written.empty()) {
            const UserFile::Result result = file.replace(merged.content, place.isSystemWide ? systemWideMode : 0);
            if (result == UserFile::Result::Changed)
                continue;
            if (result == UserFile::Result::Failed)
                return systemReason(place.file());
        }
        for (const OptionsMerge::Written &written : merged.written)
            OptionsMemory::remember(home, written.change->name, written.change->instance, written.options,
                                    &OptionsSyntax::readWithLibcups);
        return {};
    }
    errno = EBUSY;
    return systemReason(place.file());
}
