// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef HOSTSETTINGS_H
#define HOSTSETTINGS_H

/** What the host application's own settings say about printing. */
namespace HostSettings {

/** Whether the user-defined page size always applies. False if the host's settings cannot be read. */
bool alwaysUseUserPageSize();

} // namespace HostSettings

#endif
