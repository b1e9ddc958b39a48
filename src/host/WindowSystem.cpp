// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "host/WindowSystem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

using Connection = std::shared_ptr<void>;

// Connects as Qt's plug-in does first: this handles names of displays, networks and keys.
bool xServerAnswers(Connection *connection)
{
    using XcbConnection = void;
    QLibrary xcb(QStringLiteral("xcb"), 1);
    const auto connect = reinterpret_cast<XcbConnection *(*)(const char *, int *)>(xcb.resolve("xcb_connect"));
    const auto hasError = reinterpret_cast<int (*)(XcbConnection *)>(xcb.resolve("xcb_connection_has_error"));
    const auto disconnect = reinterpret_cast<void (*)(XcbConnection *)>(xcb.resolve("xcb_disconnect"));
    if (!connect || !hasError || !disconnect)
        return false; // the plug-in needs that library too
    connection->reset(connect(nullptr, nullptr), disconnect);
    return hasError(connection->get()) == 0;
}

// Whether a server listens on a local socket.
bool isListening(const QByteArray &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= int(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool listening = connect(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    close(descriptor);
    return listening;
}

// As libwayland: an inherited connection comes first, and a name is one in the folder of the session unless it is a
// path.
bool compositorAnswers(Connection *)
{
    if (qEnvironmentVariableIsSet("WAYLAND_SOCKET"))
        return fcntl(qEnvironmentVariableIntValue("WAYLAND_SOCKET"), F_GETFD) >= 0;
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    return isListening(name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name);
}

// The platforms that need a display server. Others are available if their plug-in is.
struct DisplayServer
{
    const char *platform; // variants of it begin with this name: "wayland-egl"
    const char *variable; // set if there should be one
    bool (*answers)(Connection *); // may leave the connection open
};
constexpr DisplayServer displayServers[] = {
    {"xcb", "DISPLAY", xServerAnswers},
    {"wayland", "WAYLAND_DISPLAY", compositorAnswers},
};

// The folders in which Qt looks for platform plug-ins.
QStringList pluginFolders()
{
    QStringList folders;
    const QString preferred = QFile::decodeName(qgetenv("QT_QPA_PLATFORM_PLUGIN_PATH"));
    if (!preferred.isEmpty())
        folders << preferred << preferred + QStringLiteral("/platforms");
    const QStringList libraryPaths = QCoreApplication::libraryPaths();
    for (const QString &path : libraryPaths)
        folders << path + QStringLiteral("/platforms");
    return folders;
}

bool isPluginFor(const QPluginLoader &plugin, const QByteArray &platform)
{
    const QJsonArray keys =
        plugin.metaData().value(QLatin1String("MetaData")).toObject().value(QLatin1String("Keys")).toArray();
    return std::any_of(keys.begin(), keys.end(), [&platform](const QJsonValue &key) {
        return key.toString().compare(QLatin1String(platform), Qt::CaseInsensitive) == 0;
    });
}

// Whether there is a plug-in for the platform, and all the libraries that it needs.
bool pluginLoads(const QByteArray &platform)
{
    const QStringList folders = pluginFolders();
    for (const QString &folder : folders) {
        const QStringList files = QDir(folder).entryList(QDir::Files);
        for (const QString &file : files) {
            QPluginLoader plugin(folder + QLatin1Char('/') + file);
            if (isPluginFor(plugin, platform) && plugin.load())
                return true;
        }
    }
    return false;
}

// For a platform as QT_QPA_PLATFORM names it, with its arguments: "xcb", "offscreen:configfile=screens.json".
bool isUsable(const QByteArray &platformWithArguments, Connection *connection)
{
    const QByteArray platform = platformWithArguments.split(':').constFirst().toLower();
    for (const DisplayServer &server : displayServers)
        if (platform.startsWith(server.platform) && !server.answers(connection))
            return false;
    return pluginLoads(platform);
}

QByteArrayList platformsWithDisplay()
{
    QByteArrayList platforms;
    for (const DisplayServer &server : displayServers)
        if (!qEnvironmentVariableIsEmpty(server.variable))
            platforms << server.platform;
    return platforms;
}

} // namespace

std::optional<WindowSystem::Platforms> WindowSystem::platforms()
{
    Connection connection;
    const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
    QByteArrayList platforms = chosen.isEmpty() ? platformsWithDisplay() : chosen.split(';');
    const auto isUseless = [&connection](const QByteArray &platform) { return !isUsable(platform, &connection); };
    platforms.erase(std::remove_if(platforms.begin(), platforms.end(), isUseless), platforms.end());
    if (platforms.isEmpty())
        return std::nullopt;
    // With all of them, the desktop's settings decide. A single one must be named, because otherwise Qt 5 only tries X.
    const bool isAnyGood = chosen.isEmpty() && platforms.size() == int(std::size(displayServers));
    return Platforms{isAnyGood ? QByteArray() : platforms.join(';'), connection};
}

WindowSystem::Arguments::Arguments(const QByteArray &program, const QByteArray &platforms)
    : texts{program, "-platform", platforms}
    , argc(platforms.isEmpty() ? 1 : 3)
{
    for (int i = 0; i < argc; ++i)
        argv[i] = texts[i].data();
}
