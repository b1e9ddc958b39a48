// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRESETFILES_H
#define PRESETFILES_H

#include "Pictures.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QMessageBox>
#include <QString>
#include <QTimer>
#include <QTranslator>

#include <sys/stat.h>
#include <unistd.h>

/** Files below the test's HOME, and what presets show. */
namespace PresetFiles {

/** The folder of all presets. */
inline QString root()
{
    return qEnvironmentVariable("HOME") + QStringLiteral("/.cups");
}

inline QString folder(const QString &printer)
{
    return root() + QLatin1Char('/') + printer;
}

inline QString script(const QString &printer, const QString &file)
{
    return folder(printer) + QLatin1Char('/') + file + QStringLiteral(".sh");
}

/** Everything in a folder, hidden files included: what is left behind is seen. */
inline QStringList entries(const QString &path)
{
    return QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

inline bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
           && file.write(content) == content.size();
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

/** Removes all presets, and lets others pass through HOME. */
inline bool reset()
{
    return chmod(qgetenv("HOME").constData(), 0755) == 0 && QDir(root()).removeRecursively() && QDir().mkpath(root());
}

/** For its time, file permissions bind the superuser, too. */
class Unprivileged
{
public:
    Unprivileged()
    {
        if (user == 0)
            isDropped = setresuid(65534, 65534, 0) == 0;
    }
    ~Unprivileged()
    {
        if (isDropped && setresuid(0, 0, 0) != 0)
            qFatal("cannot become root again");
    }
    Unprivileged(const Unprivileged &) = delete;
    Unprivileged &operator=(const Unprivileged &) = delete;

    bool isBound() const { return user != 0 || isDropped; }

private:
    const uid_t user = geteuid();
    bool isDropped = false;
};

/** While this object exists, answers message boxes with Ok and keeps what they showed. */
class BoxCloser
{
public:
    BoxCloser()
    {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            shownTitles << box->windowTitle();
            shownTexts << box->text();
            areAllWarnings = areAllWarnings && box->icon() == QMessageBox::Warning && !box->parent()
                             && box->standardButtons() == QMessageBox::Ok;
            if (box->isRightToLeft())
                examine(box->button(QMessageBox::Ok));
            box->button(QMessageBox::Ok)->click();
        });
        timer.start(1);
    }

    QStringList titles() const { return shownTitles; }
    QStringList texts() const { return shownTexts; }
    /** Whether all of them were warnings without a parent and with the one button. */
    bool areWarnings() const { return areAllWarnings; }
    /** Whether those from right to left had the icons of their buttons beside the texts. */
    bool areButtonsWhole() const { return areAllButtonsWhole; }

private:
    void examine(QAbstractButton *button)
    {
        timer.stop(); // while events are processed
        button->setFixedWidth(200);
        areAllButtonsWhole = areAllButtonsWhole && isTogether(button);
        timer.start();
    }

    QTimer timer;
    QStringList shownTitles;
    QStringList shownTexts;
    bool areAllWarnings = true;
    bool areAllButtonsWhole = true;
};

/** For its time, every translated text is its context and itself. */
class ContextTranslator : public QTranslator
{
public:
    ContextTranslator() { QCoreApplication::installTranslator(this); }
    ~ContextTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QLatin1String(context) + QStringLiteral("::") + QLatin1String(text);
    }
};

} // namespace PresetFiles

#endif
