// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "host/HostSettings.h"

#include "cups/UserFile.h"

#include <QByteArray>

bool HostSettings::alwaysUseUserPageSize()
{
    UserFile file(qgetenv("HOME") + "/.gconf/apps/Dashvane/%gconf.xml", UserFile::Links::Follow);
    QByteArray content;
    return file.read(content) && content.contains("<stringvalue>adobe</stringvalue>");
}
