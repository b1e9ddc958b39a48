// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef WINDOWSYSTEM_H
#define WINDOWSYSTEM_H

#include <QByteArray>

#include <memory>
#include <optional>

/**
 * Where windows can be shown.
 *
 * Qt aborts the host's process if a QApplication is created and no platform plug-in can be loaded or none
 * of them can connect to its display. This is therefore checked first.
 */
namespace WindowSystem {

/** The platforms that a QApplication can be created with. Must exist until it has been created. */
struct Platforms
{
    QByteArray names; ///< A value for Qt's option "-platform"; empty if Qt's own choice works.
    /**
     * To the X server, which resets itself when its last client leaves, and then drops connections that are being made.
     * On a desktop there are other clients, but not in a kiosk or a test.
     */
    std::shared_ptr<void> connection;
};

/**
 * Nothing if no window can be shown.
 *
 * Needs a QCoreApplication, which knows the folders of plug-ins.
 */
std::optional<Platforms> platforms();

/** The arguments to make a QApplication with. Must outlive it. */
class Arguments
{
public:
    /** @param program the name of the program. @param platforms the names that platforms() found. */
    Arguments(const QByteArray &program, const QByteArray &platforms);

    Arguments(const Arguments &) = delete;
    Arguments &operator=(const Arguments &) = delete;

    int &count() { return argc; }
    char **values() { return argv; }

private:
    QByteArray texts[3];
    int argc;
    char *argv[4] = {};
};

} // namespace WindowSystem

#endif
