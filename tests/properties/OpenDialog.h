// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef OPENDIALOG_H
#define OPENDIALOG_H

#include "PrivateScheduler.h"

#include <PropertiesDialog/CupsSupport.h>
#include <PropertiesDialog/PrintPropertiesDialog.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>

#include <cups/cups.h>

/** The properties dialog of the default printer, shown, with what it works on, as propertiesDialog() makes it. */
struct OpenDialog
{
    QPrinter printer{QPrinter::ScreenResolution};
    CupsSupport cups;
    PrintPropertiesDialog dialog{nullptr, &printer, &cups};

    OpenDialog() { dialog.show(); }

    template<class Widget = QWidget>
    Widget *find(const char *name)
    {
        auto *widget = dialog.findChild<Widget *>(name);
        if (!widget) {
            qFatal("the dialog has no %s", name);
        }
        return widget;
    }

    void click(const char *name) { find<QAbstractButton>(name)->click(); }
    void setText(const char *name, const QString &text) { find<QLineEdit>(name)->setText(text); }
    QString text(const char *name) { return find<QLineEdit>(name)->text(); }
    void setPlainText(const char *name, const QString &text) { find<QPlainTextEdit>(name)->setPlainText(text); }
    QString plainText(const char *name) { return find<QPlainTextEdit>(name)->toPlainText(); }
    void choose(const char *name, int index) { find<QComboBox>(name)->setCurrentIndex(index); }
    void slide(const char *name, int value) { find<QSlider>(name)->setValue(value); }
    bool isEnabled(const char *name) { return find(name)->isEnabled(); }
};

using Options = QMap<QByteArray, QByteArray>;

/** The options of a destination as a program that starts now gets them from libcups. */
inline Options storedOptions(const QByteArray &queue)
{
    Options options;
    cups_dest_t *dests = nullptr;
    const int count = cupsGetDests(&dests);
    if (const cups_dest_t *dest = cupsGetDest(queue.constData(), nullptr, count, dests)) {
        for (int i = 0; i < dest->num_options; ++i) {
            options.insert(dest->options[i].name, dest->options[i].value);
        }
    }
    cupsFreeDests(count, dests);
    return options;
}

/** The options of the current printer in the working copy. */
inline Options workingCopy(const CupsSupport &cups)
{
    Options options;
    const QStringList list = cups.cupsOptions();
    for (QStringList::size_type i = 0; i + 1 < list.size(); i += 2) {
        options.insert(list.at(i).toLatin1(), list.at(i + 1).toLatin1());
    }
    return options;
}

inline QString cupsFolder()
{
    return QDir::homePath() + "/.cups";
}

inline QByteArray fileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

/**
 * The driver's command for the time of this object: programs that this process starts find @p script as "ppdhack", which
 * runs with STAND_IN set to the command that changes the queue's page size.
 */
class DriverCommand
{
public:
    explicit DriverCommand(const QByteArray &script = "exec \"$STAND_IN\" \"$@\"\n")
        : pathBefore(qgetenv("PATH"))
    {
        const QString command = folder.filePath("ppdhack");
        writeFile(command, "#!/bin/bash\necho \"$*\" >> \"${0%/*}/log\"\n" + script);
        QFile::setPermissions(command, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(folder.path()) + ':' + pathBefore);
        qputenv("STAND_IN", QFile::encodeName(PrivateScheduler::commandDir() + "/ppdhack"));
    }
    ~DriverCommand() { qputenv("PATH", pathBefore); }

    DriverCommand(const DriverCommand &) = delete;
    DriverCommand &operator=(const DriverCommand &) = delete;

    /** The arguments of each run, a line each. */
    QByteArray runs() const { return fileContent(folder.filePath("log")); }

private:
    QTemporaryDir folder{QStringLiteral("/tmp/pd-XXXXXX")};
    QByteArray pathBefore;
};

#endif
