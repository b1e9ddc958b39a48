// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef CUPSMEMBERS_H
#define CUPSMEMBERS_H

#include "Forked.h"
#include "PrivateScheduler.h"

#include <PropertiesDialog/CupsSupport.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QList>
#include <QMap>
#include <QString>
#include <QTextStream>
#include <QThread>

#include <cups/cups.h>
#include <cups/ppd.h>

#include <csignal>
#include <functional>
#include <utility>

#include <sys/wait.h>
#include <unistd.h>

/** A call of a member, and what it returned, as text. */
using MemberCall = std::function<QString(CupsSupport &)>;

struct Member
{
    const char *name;
    MemberCall call;
};

namespace CupsMembers {

inline QString text(const QStringList &list)
{
    return list.join(' ');
}
inline QString text(const char *bytes)
{
    return bytes != nullptr ? QString::fromLatin1(bytes) : QString("null");
}
inline QString text(const QString &string)
{
    return string.isNull() ? QString("null") : string;
}
inline QString text(const void *pointer)
{
    return pointer != nullptr ? "something" : "null";
}
inline QString text(bool flag)
{
    return flag ? "true" : "false";
}
inline QString text(int number)
{
    return QString::number(number);
}
inline QString text(double number)
{
    return QString::number(number);
}
inline QString text(const QSize &size)
{
    return QString("%1 %2").arg(size.width()).arg(size.height());
}
inline QString text(const QSizeF &size)
{
    return QString("%1 %2").arg(size.width()).arg(size.height());
}
inline QString text(const QRect &rect)
{
    return QString("%1 %2 ").arg(rect.x()).arg(rect.y()) + text(rect.size());
}

/** The file that is printed. */
inline QString document()
{
    return QDir::homePath() + "/document.txt";
}

/** Every member of CupsSupport but the constructor and the destructor. */
inline const QList<Member> &all()
{
#define GETTER(name)                                                                                                   \
    {                                                                                                                  \
#name, [](CupsSupport & cups) { return text(cups.name()); }                                                    \
    }
#define SETTER(name, value)                                                                                            \
    {                                                                                                                  \
#name, [](CupsSupport & cups) { return text(cups.name(value)); }                                               \
    }
    static const QList<Member> members{
        GETTER(getDefaultPrinter),
        {"setCurrentPrinter", [](CupsSupport &cups) { return cups.setCurrentPrinter(0), QString(); }},
        GETTER(getCurrentIndex),
        GETTER(getDestCount),
        SETTER(getQueueName, 0),
        GETTER(getCurrentQueueName),
        GETTER(getCurrentPrinterName),
        {"getPpdFile", [](CupsSupport &cups) { return text(static_cast<const void *>(cups.getPpdFile())); }},
        {"closePpdFile", [](CupsSupport &cups) { return cups.closePpdFile(), QString(); }},
        GETTER(setDests),
        {"getCupsError", [](CupsSupport &) { return CupsSupport::getCupsError() != nullptr ? "text" : "null"; }},
        {"printerOption",
         [](CupsSupport &cups) {
             const cups_option_t *option = cups.printerOption("Darkness");
             return text(option != nullptr ? option->value : nullptr);
         }},
        {"printerForSelectOption",
         [](CupsSupport &cups) { return text(cups.printerForSelectOption("printer-info", "Second Printer")); }},
        SETTER(getDefaultValue, "Darkness"),
        SETTER(getValue, "PrintSpeed"),
        {"setValue", [](CupsSupport &cups) { return text(cups.setValue("Darkness", "12")); }},
        {"setDouble", [](CupsSupport &cups) { return text(cups.setDouble("Shift", 1.25)); }},
        {"setInt", [](CupsSupport &cups) { return text(cups.setInt("Darkness", 12)); }},
        {"setBool", [](CupsSupport &cups) { return text(cups.setBool("MirrorPrint", true)); }},
        {"getDouble",
         [](CupsSupport &cups) {
             double value = 0.0;
             return text(cups.getDouble("GapSize", &value)) + ' ' + text(value);
         }},
        {"getInt",
         [](CupsSupport &cups) {
             int value = 0;
             return text(cups.getInt("Darkness", &value)) + ' ' + text(value);
         }},
        {"getBool",
         [](CupsSupport &cups) {
             bool value = false;
             return text(cups.getBool("MirrorPrint", &value)) + ' ' + text(value);
         }},
        {"getString",
         [](CupsSupport &cups) {
             QString value;
             return text(cups.getString("JobStart", &value)) + ' ' + text(value);
         }},
        {"setString", [](CupsSupport &cups) { return text(cups.setString("JobStart", "other")); }},
        {"ppdOption", [](CupsSupport &cups) { return text(static_cast<const void *>(cups.ppdOption("Darkness"))); }},
        GETTER(getShift),
        SETTER(setShift, 1.25),
        GETTER(getStart),
        SETTER(setStart, 1.25),
        GETTER(getStop),
        SETTER(setStop, 1.25),
        GETTER(getMarkOffset),
        SETTER(setMarkOffset, 1.25),
        GETTER(getMarkSize),
        SETTER(setMarkSize, 1.25),
        GETTER(getGapOffset),
        SETTER(setGapOffset, 1.25),
        GETTER(getGapSize),
        SETTER(setGapSize, 1.25),
        GETTER(getOffsetV),
        SETTER(setOffsetV, 13),
        GETTER(getOffsetH),
        SETTER(setOffsetH, 13),
        GETTER(getCut),
        SETTER(setCut, 2),
        GETTER(getOverlap),
        SETTER(setOverlap, 13),
        GETTER(getBack),
        SETTER(setBack, 13),
        GETTER(getFeed),
        SETTER(setFeed, 13),
        GETTER(getCategory),
        SETTER(setCategory, CupsSupport::LabelsWithMarks),
        GETTER(getDarkness),
        SETTER(setDarkness, 13),
        GETTER(getSpeed),
        SETTER(setSpeed, 5),
        GETTER(getOrientation),
        SETTER(setOrientation, CupsSupport::ReversePortrait),
        GETTER(getDirect),
        SETTER(setDirect, true),
        GETTER(getInverse),
        SETTER(setInverse, true),
        GETTER(getMirror),
        SETTER(setMirror, true),
        GETTER(getLabelEnd),
        SETTER(setLabelEnd, "end"),
        GETTER(getLabelStart),
        SETTER(setLabelStart, "start"),
        GETTER(getJobEnd),
        SETTER(setJobEnd, "end"),
        GETTER(getJobStart),
        SETTER(setJobStart, "start"),
        GETTER(getDefaultPageSize),
        SETTER(pageRect, "w288h144"),
        SETTER(paperRect, "w288h144"),
        GETTER(getResolution),
        GETTER(getExtendedOffset),
        SETTER(setExtendedOffset, 13),
        {"setOptions",
         [](CupsSupport &cups) {
             return text(cups.setOptions({"Darkness", "14"}));
         }},
        {"deleteOptions", [](CupsSupport &cups) { return cups.deleteOptions({"Darkness"}), QString(); }},
        GETTER(options),
        GETTER(cupsOptions),
        GETTER(ppdDefaults),
        {"collectMarkedOptions",
         [](CupsSupport &cups) {
             QStringList list;
             cups.collectMarkedOptions(list, nullptr);
             return text(list);
         }},
        {"collectMarkedOptionsHelper",
         [](CupsSupport &cups) {
             QStringList list;
             if (const ppd_file_t *ppd = cups.getPpdFile()) {
                 cups.collectMarkedOptionsHelper(list, ppd->groups);
             }
             return text(list);
         }},
        {"printFile", [](CupsSupport &cups) { return text(cups.printFile(document(), "", "title", {}) > 0); }},
        {"printFiles", [](CupsSupport &cups) { return text(cups.printFiles({document()}, "title", {}) > 0); }},
    };
#undef GETTER
#undef SETTER
    return members;
}

struct Outcome
{
    QString result; // "crashed" is one, too
    qint64 elapsed = 0; // milliseconds
};

using Outcomes = QMap<QString, Outcome>;

/** What each member returns. Each is called in its own copy of this process; several run at the same time. */
inline Outcomes callEach(CupsSupport &cups, const std::function<void(CupsSupport &)> &prepare = {})
{
    const int atOnce = 30; // the scheduler has a limit for its clients
    Outcomes outcomes;
    QList<std::pair<QString, std::pair<pid_t, int>>> running;
    const auto collect = [&] {
        for (const auto &[name, copy] : std::as_const(running)) {
            QFile pipeEnd;
            QByteArray said;
            if (pipeEnd.open(copy.second, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
                said = pipeEnd.readAll();
            const int status = waitForEnd(copy.first);
            const bool crashed = !WIFEXITED(status) || WEXITSTATUS(status) != 0;
            outcomes[name] = {crashed ? "crashed" : QString::fromUtf8(said.mid(said.indexOf('|') + 1)),
                              said.left(said.indexOf('|')).toLongLong()};
        }
        running.clear();
    };
    for (const Member &member : all()) {
        int ends[2];
        if (pipe(ends) != 0)
            qFatal("no pipe");
        const pid_t copy = fork();
        if (copy == 0) {
            if (prepare)
                prepare(cups);
            QElapsedTimer timer;
            timer.start();
            const QByteArray result = member.call(cups).toUtf8();
            const QByteArray said = QByteArray::number(timer.elapsed()) + '|' + result;
            _exit(write(ends[1], said.constData(), size_t(said.size())) == said.size() ? 0 : 1);
        }
        close(ends[1]);
        running << std::make_pair(QString(member.name), std::make_pair(copy, ends[0]));
        if (running.size() == atOnce)
            collect();
    }
    collect();
    return outcomes;
}

/** Makes @p cups as if there were no printer. */
inline void withoutPrinter(CupsSupport &cups)
{
    cups.setCurrentPrinter(-1);
}

/** Ends the scheduler without a chance to clean up; start() starts it again. */
inline void killScheduler(const PrivateScheduler &scheduler)
{
    const pid_t process = scheduler.process();
    kill(process, SIGKILL);
    QFile arguments(QString("/proc/%1/cmdline").arg(process));
    while (arguments.open(QIODevice::ReadOnly) && !arguments.readAll().isEmpty()) {
        arguments.close();
        QThread::msleep(1);
    }
}

} // namespace CupsMembers

#endif
