// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/OptionsPlace.h"

#include "cups/UserFile.h"

#include <QtGlobal>

#include <cups/cups.h>

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <tuple>

namespace {

// In the home folder.
const QByteArray traditionalFolder("/.cups");
const QByteArray desktopFolder("/.config/cups");

// The host may have set its own name for this thread, so that text is put back afterwards.
QByteArray libcupsName()
{
    const QByteArray hostText = cupsUserAgent();
    cupsEncryption(); // so that libcups reads client.conf, without which newer ones give no name
    cupsSetUserAgent(nullptr);
    QByteArray name = cupsUserAgent();
    if (hostText != name && !hostText.isEmpty())
        cupsSetUserAgent(hostText.constData());
    return name;
}

bool isFrom(const OptionsPlace::Circumstances &c, int major, int minor, int patch)
{
    return std::make_tuple(c.major, c.minor, c.patch) >= std::make_tuple(major, minor, patch);
}

QByteArray systemWideFolder(const OptionsPlace::Circumstances &c)
{
    for (const char *variable : {"CUPS_SYSCONFIG", "CUPS_SERVERROOT"}) {
        const bool isKnown = isFrom(c, 2, 5, 0) || std::strcmp(variable, "CUPS_SERVERROOT") == 0;
        if (const QByteArray folder = c.environment(variable); isKnown && !folder.isNull())
            return folder;
    }
    return "/etc/cups";
}

} // namespace

OptionsPlace::Circumstances OptionsPlace::fromVersion(const QByteArray &name)
{
    int version[] = {CUPS_VERSION_MAJOR, CUPS_VERSION_MINOR, CUPS_VERSION_PATCH};
    int found[] = {0, 0, 0};
    const int count = std::sscanf(name.constData(), "CUPS/%d.%d.%d", &found[0], &found[1], &found[2]);
    // client.conf decides how much of its version libcups tells. The rest is taken from the version that this was built
    // with.
    if (count > 0 && !std::equal(found, found + count, version))
        std::copy(found, found + 3, version);
    Circumstances circumstances;
    circumstances.major = version[0];
    circumstances.minor = version[1];
    circumstances.patch = version[2];
    return circumstances;
}

OptionsPlace::Circumstances OptionsPlace::current()
{
    static const QByteArray name = libcupsName();
    Circumstances circumstances = fromVersion(name);
    circumstances.isRoot = getuid() == 0;
    circumstances.environment = [](const char *variable) { return qgetenv(variable); };
    circumstances.exists = [](const QByteArray &path) { return access(path.constData(), F_OK) == 0; };
    if (const passwd *user = qEnvironmentVariableIsSet("HOME") ? nullptr : getpwuid(getuid()))
        circumstances.homeOfUser = user->pw_dir;
    return circumstances;
}

QByteArray OptionsPlace::home(const Circumstances &circumstances)
{
    const QByteArray home = circumstances.environment("HOME");
    return home.isNull() ? circumstances.homeOfUser : home;
}

OptionsPlace::Place OptionsPlace::find(const Circumstances &c)
{
    const bool rootHasTheSystems = isFrom(c, 2, 4, 10);
    const bool followsDesktop = isFrom(c, 2, 5, 0);

    if (c.isRoot && rootHasTheSystems)
        return {systemWideFolder(c), true};

    const QByteArray traditional = home(c) + traditionalFolder;
    if (!followsDesktop)
        return {traditional, false};
    if (const QByteArray folder = c.environment("CUPS_USERCONFIG"); !folder.isNull())
        return {folder, false};
    for (const char *variable : {"SNAP_COMMON", "XDG_CONFIG_HOME"})
        if (const QByteArray folder = c.environment(variable); !folder.isNull())
            return {folder + "/cups", false};
    return {c.exists(traditional) ? traditional : home(c) + desktopFolder, false};
}

QByteArray OptionsPlace::systemWideFile(const Circumstances &circumstances)
{
    return Place{systemWideFolder(circumstances), true}.file();
}

void OptionsPlace::keepInUse()
{
    const Circumstances c = current();
    const QByteArray folder = find(c).folder;
    const QByteArray traditional = home(c) + traditionalFolder;
    if (folder != home(c) + desktopFolder || c.exists(traditional) || !UserFile::makeFolder(folder))
        return;
    // If this fails, something else has been created there meanwhile and is used.
    [[maybe_unused]] const int result = symlink(desktopFolder.constData() + 1, traditional.constData());
}
