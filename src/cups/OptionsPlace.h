// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef OPTIONSPLACE_H
#define OPTIONSPLACE_H

#include <QByteArray>

#include <functional>

/** Where libcups keeps the options file, which depends on its version. All paths are as the system has them, in bytes. */
namespace OptionsPlace {

/** What the place depends on. */
struct Circumstances
{
    int major = 0; ///< the version of libcups
    int minor = 0;
    int patch = 0;
    bool isRoot = false;
    std::function<QByteArray(const char *)> environment; ///< null for a variable that is not set
    std::function<bool(const QByteArray &)> exists; ///< whether there is something at a path
    QByteArray homeOfUser; ///< from the user database, for a process without HOME
};

/**
 * Only the version, from the name that libcups gives itself: "CUPS/2.4.2 (Linux ...)". Missing numbers are those of the
 * libcups that this was built with.
 */
Circumstances fromVersion(const QByteArray &name);

/** Those of this process and of the libcups that runs, which may differ from the one that this was built with. */
Circumstances current();

struct Place
{
    QByteArray folder;
    bool isSystemWide = false; ///< the file applies to all users

    QByteArray file() const { return folder + "/lpoptions"; }
};

Place find(const Circumstances &circumstances);

/** The file whose options apply to all users who have no others; for root it may be that of find(). */
QByteArray systemWideFile(const Circumstances &circumstances);

/**
 * Call this before creating anything in ~/.cups. As soon as that folder exists, libcups 2.5 and later read the file in
 * it instead of the one in ~/.config/cups. If the latter is in use, this makes ~/.cups a link to its folder.
 */
void keepInUse();

/** The user's home folder. */
QByteArray home(const Circumstances &circumstances);

} // namespace OptionsPlace

#endif
