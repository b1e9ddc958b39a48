// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef DRIVERPPDS_H
#define DRIVERPPDS_H

#include "PrivateScheduler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>

/** PPD files of label printer drivers, made by the installed packages as for a user who adds such a printer. */
class DriverPpds
{
public:
    /**
     * @param name a PPD file of CUPS itself ("zebra", "zebracpl", "zebraep1", "zebraep2", "intelbar", "dymo", "epson9", "laserjet"),
     *             or DRIVER:MODEL, with a part of what the driver calls the model, such as "ptouch:QL-820NWB" and
     *             "dymo:lm450".
     * @return the path of the file; if a driver made it, this object removes it.
     */
    QString ppd(const QString &name)
    {
        const QString driver = name.section(':', 0, 0);
        const QString model = name.section(':', 1);
        if (model.isEmpty())
            return PrivateScheduler::samplePpd("cups/" + name);
        const QString path = folder.filePath(QString(name).replace(':', '-') + ".ppd");
        if (!QFile::exists(path))
            write(path, PrivateScheduler::run(program(driver), {"cat", uri(driver, model)}));
        return path;
    }

private:
    QTemporaryDir folder{QStringLiteral("/tmp/pd-XXXXXX")};
    QMap<QString, QString> lists; // what each driver offers: to list that takes a while

    static QString program(const QString &driver) { return "/usr/lib/cups/driver/" + driver; }

    QString uri(const QString &driver, const QString &model)
    {
        QString &list = lists[driver];
        if (list.isEmpty())
            list = QString::fromUtf8(PrivateScheduler::run(program(driver), {"list"}));
        const QRegularExpression pattern("^\"([^\"]*\\b" + QRegularExpression::escape(model) + "\\b[^\"]*)\"",
                                         QRegularExpression::MultilineOption);
        const QRegularExpressionMatch match = pattern.match(list);
        if (!match.hasMatch())
            qFatal("the driver %s has no %s", qPrintable(driver), qPrintable(model));
        return match.captured(1);
    }

    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path));
    }
};

#endif
