// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "host/HostSettings.h"

#include <QFile>
#include <QFileInfo>

bool HostSettings::alwaysUseUserPageSize()
{
    const QString path = qEnvironmentVariable("HOME") + QStringLiteral("/.gconf/apps/Dashvane/%gconf.xml");
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)
           && file.readAll().contains("<stringvalue>adobe</stringvalue>");
}
