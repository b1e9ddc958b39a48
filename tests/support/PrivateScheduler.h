// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PRIVATESCHEDULER_H
#define PRIVATESCHEDULER_H

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <cups/ipp.h>

#include <sys/types.h>

/** What one print job sent to its printer. */
struct CapturedJob
{
    QString queue;
    int job = 0;
    QByteArray data; // of all its files, concatenated
    QByteArray title;
    QByteArray user;
    QByteArray copies;
    QByteArray options; // as a filter gets them: "KEYWORD=VALUE KEYWORD=VALUE", with others that the scheduler adds
    QByteArray type; // MIME type of the document

    /** The value of an option of the job; null when it was not sent. */
    QByteArray option(const char *keyword) const;
};

/**
 * A CUPS scheduler that runs while this object exists, with queues whose jobs are kept instead of printed.
 *
 * Clients in this process and in processes that it starts find it through CUPS_SERVER. Create it before
 * the first use of libcups. It also stops when this process crashes.
 *
 * Failures end the test program with a message, as no test could continue.
 */
class PrivateScheduler
{
public:
    PrivateScheduler();
    ~PrivateScheduler();

    PrivateScheduler(const PrivateScheduler &) = delete;
    PrivateScheduler &operator=(const PrivateScheduler &) = delete;

    void start(); ///< Starts it again after stop(), with the same queues.
    void stop();

    /** Has PDF files converted for printer drivers from now on, by the installed filters of CUPS. Restarts it. */
    void useDrivers();

    /** Adds or changes a queue; with @p ppd empty it has no PPD file. */
    void addQueue(const QString &name, const QString &ppd = samplePpd(QStringLiteral("label-203")),
                  const QString &description = {}, const QString &location = {});
    void removeQueue(const QString &name);

    /** Gives an existing queue another PPD file. */
    void setPpd(const QString &queue, const QString &ppd);

    /** Makes @p name the default printer of the scheduler. To have none, remove the default printer. */
    void setServerDefault(const QString &name);

    /** Makes @p name, a queue or QUEUE/INSTANCE, the default printer in the options file of the user. */
    void setUserDefault(const QString &name);

    /** Saves options of a queue or QUEUE/INSTANCE in the options file of the user, as by lpoptions -o KEYWORD=VALUE. */
    void setUserOptions(const QString &name, const QStringList &options);

    /** Runs a CUPS command such as cupsdisable, which must succeed, and returns its output. */
    static QByteArray run(const QString &program, const QStringList &arguments);

    /**
     * What clients have requested since startRequests(), in order: the name of each IPP operation ("Get-Jobs",
     * "CUPS-Get-Printers"), or "GET /path".
     */
    QStringList requests();
    void startRequests();

    /** Waits until there are @p count jobs and returns them all, sorted by number. */
    QList<CapturedJob> jobs(int count);

    /** Waits for the job with this number. */
    CapturedJob job(int number);

    /** The path of a sample PPD file: label-203, label-300, every-option or few-options, or cups/NAME, see DriverPpds. */
    static QString samplePpd(const QString &name);

    /** The path of a copy of @p ppd with texts replaced; each must occur in it. */
    QString editedPpd(const QString &ppd, const QList<QPair<QByteArray, QByteArray>> &replacements);

    /** A folder for PATH that contains the stand-in for ppdhack. */
    static QString commandDir();

    QString dir() const { return temporaryDir.path(); }
    QString socket() const;
    pid_t process() const; ///< It must be running.

private:
    void script(const QString &command);
    void send(ipp_t *request, const QString &file = {}) const;
    QList<CapturedJob> capturedNow() const;
    QByteArray accessLog() const;

    QTemporaryDir temporaryDir;
    QString serverDefault;
    int loggedBefore = 0;
    int markers = 0;
    int editedPpds = 0;
};

#endif
