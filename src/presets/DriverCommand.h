// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef DRIVERCOMMAND_H
#define DRIVERCOMMAND_H

#include <QLatin1String>
#include <QString>

/** The driver's command that writes a user page size to the queue's PPD file; a line of a preset's script. */
namespace DriverCommand {

constexpr QLatin1String name("ppdhack");

/** The first line of a preset's script that begins with the command; null when there is none. */
QString lineIn(const QString &scriptPath);

/**
 * Runs the command and waits for it.
 *
 * A preset may come from anywhere, so only the driver's command is run: found on the PATH, and without a shell.
 */
void run(const QString &line);

} // namespace DriverCommand

#endif
