// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef CUPSSUPPORT_H
#define CUPSSUPPORT_H

#include <PropertiesDialog/propertiesdialog_export.h>

#include <QRect>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

// The libcups records that this interface passes by pointer; include <cups/cups.h> and <cups/ppd.h> to look inside.
typedef struct cups_dest_s cups_dest_t;
typedef struct cups_option_s cups_option_t;
typedef struct ppd_file_s ppd_file_t;
typedef struct ppd_group_s ppd_group_t;
typedef struct ppd_option_s ppd_option_t;

/**
 * The library's only access to CUPS: the destinations of the user, which of them is the current
 * printer, that printer's PPD file, its settings by keyword and by name, and printing.
 *
 * The saved options of the current destination are the working copy of its settings. Setters change that copy in
 * memory; nothing reaches the user's options file until setDests() is called.
 *
 * "No printer" below means: there are no destinations, or the current index is negative (or past their end).
 *
 * Failures are reported by return values, never by exceptions or messages. Beware of the numeric and flag getters by
 * keyword (getDouble(), getInt(), getBool()): they return true for FAILURE.
 *
 * To be used from the GUI thread only.
 */
class PROPERTIESDIALOG_EXPORT CupsSupport
{
public:
    /** The media type, stored under "LabelCategory". Other numbers are passed through as they are. */
    enum _Category : int {
        Continuous = 0, ///< endless, without labels
        LabelsWithGaps = 1, ///< labels with gaps between them
        LabelsWithMarks = 2 ///< labels with black marks on the back
    };

    /** The IPP "orientation-requested" codes. */
    enum _CupsOrientation : int {
        Portrait = 3, ///< upright
        Landscape = 4, ///< turned by 90 degrees
        ReverseLandscape = 5, ///< landscape, turned by 180 degrees
        ReversePortrait = 6 ///< portrait, turned by 180 degrees
    };

    /**
     * Fetches the destinations and makes the default one current. Opens no PPD file yet. If the scheduler cannot be
     * reached there are none; one that does not answer costs 5 seconds, one that answers slowly up to 15. If it wants a
     * password, the user is asked for it.
     */
    CupsSupport();

    /** Closes the PPD file and frees the destinations; unsaved settings are dropped. */
    ~CupsSupport();

    CupsSupport(const CupsSupport &) = delete; ///< Not to be copied.
    CupsSupport &operator=(const CupsSupport &) = delete; ///< Not to be copied.

    /** @name Destinations and the current printer */
    /** @{ */

    /**
     * Fetches all destinations again and makes the default one current; the last one wins if several are flagged.
     * Without a default, the current index does not change (0 after construction, and if there are no longer as many
     * printers). Unsaved settings of every destination are dropped. An open PPD file stays open, even if it now belongs
     * to another printer: call setCurrentPrinter() or closePpdFile() to get the right one.
     *
     * @return the current index; unchanged when there are no destinations.
     */
    int getDefaultPrinter();

    /**
     * Makes destination @p index current and opens its PPD file, marked with its defaults and the saved options.
     *
     * @param index an index obtained from this object, or a negative number for no printer.
     */
    void setCurrentPrinter(int index);

    /** The index of the current printer among the destinations; negative if there is none. */
    int getCurrentIndex() const;

    /** The number of destinations, 0 when there are none or the scheduler could not be reached. */
    int getDestCount() const;

    /** The queue name of destination @p index, with "/instance" where it has one; empty if it does not exist. */
    QString getQueueName(int index) const;

    /** The index of the destination with this queue name, QUEUE or QUEUE/INSTANCE; -1 if it does not exist. */
    int getQueueIndex(const QString &queueName) const;

    /**
     * The name of the default queue, QUEUE or QUEUE/INSTANCE, which need not exist: users can name any in LPDEST or
     * PRINTER. Empty if there is no default.
     */
    QString getDefaultQueueName() const;

    /** Whether the scheduler answered when the destinations were last fetched; it may have said that there are none. */
    bool isSchedulerReachable() const;

    /** The queue name of the current destination; empty when there is no printer. */
    QString getCurrentQueueName() const;

    /** The description ("printer-info") of the current printer, not its queue name; "" when it has none. */
    QString getCurrentPrinterName() const;

    /**
     * The PPD file of the current printer, opened if it is not open.
     *
     * @return the PPD record, or null when there is no printer or it has no PPD file. Owned by this object and valid
     *         until closePpdFile(), setCurrentPrinter() or destruction.
     */
    ppd_file_t *getPpdFile() const;

    /**
     * Whether the current printer may have a PPD file that the scheduler did not send. Missing values may then be in
     * that file. False when the file is open, and when the scheduler said that it does not exist.
     */
    bool isPpdFileOutOfReach() const;

    /**
     * Closes the PPD file. The next use opens it again and marks it with the current options. Also call this
     * when a printer without a PPD file may have received one.
     */
    void closePpdFile();

    /**
     * Merges what was changed since the last reading or saving, for all destinations, into the options file that
     * libcups reads, usually $HOME/.cups/lpoptions. Everything else in the file is kept, also what other programs have
     * written meanwhile. Without a change nothing is written. The scheduler is not asked.
     *
     * Options of the current printer that equal the default of its PPD file are dropped first, in a single pass: of two
     * such options in a row only the first one goes.
     *
     * The file is replaced atomically and reads back as it was in memory.
     *
     * @return 0 when saved, -1 when there is no printer or the file could not be written; the file is then unchanged
     *         and getCupsError() says why.
     */
    int setDests();

    /**
     * Fetches the states of all printers ("printer-state" and "printer-state-reasons") with one request. Everything
     * else is kept, including unsaved settings.
     *
     * @return false when the scheduler did not answer; the states then stay as they were.
     */
    bool updatePrinterStates();

    /**
     * Calls @p function, in which Qt sends requests to the scheduler, as in QPrinter::setPrinterName(), and waits for
     * it. It runs on a thread on which Qt gets the password that the user has entered. Because Qt waits without a
     * limit, @p function is not called if the scheduler has just left a request unanswered.
     *
     * @return whether it was called.
     */
    static bool callWithScheduler(const std::function<void()> &function);

    /**
     * Why the last saving failed, or else what libcups says of the last failure in this thread, as a text for the user.
     * Valid until the next call of a member.
     */
    static const char *getCupsError();

    /**
     * The saved option @p name of the current printer.
     *
     * @return the record, owned by this object and valid until the options change; null when there is no such option.
     */
    cups_option_t *printerOption(const QString &name) const;

    /** The first destination whose saved option @p keyword has exactly this @p value; -1 when there is none. */
    int printerForSelectOption(const char *keyword, const char *value) const;

    /** @} */
    /** @name Options by keyword */
    /** @{ */

    /**
     * The default choice that the current printer's PPD file declares for option @p keyword. Options in subgroups are
     * not searched.
     *
     * @return the choice, owned by the PPD file; null when there is no PPD file or no such option.
     */
    const char *getDefaultValue(const char *keyword) const;

    /**
     * The saved option @p keyword of destination @p index (-1: the current printer), else the default of the current
     * printer's PPD file, also when @p index names another destination.
     *
     * @return the value, owned by this object and valid until the options change; null when there is none.
     */
    const char *getValue(const char *keyword, int index = -1) const;

    /**
     * Stores @p value, which must not be null, in the working copy. A value that equals the PPD default removes the
     * saved option instead.
     *
     * @return the new number of saved options, -1 when there is no printer.
     */
    int setValue(const char *keyword, const char *value);

    /**
     * Stores a number with three decimals and a decimal point, whatever the locale.
     *
     * @return what setValue() returns.
     */
    int setDouble(const char *keyword, double value);

    /** Stores a whole number. @return what setValue() returns. */
    int setInt(const char *keyword, int value);

    /** Stores "True" or "False". @return what setValue() returns. */
    int setBool(const char *keyword, bool value);

    /**
     * Reads a number with a decimal point, whatever the locale, into @p value, which must not be null; see getValue().
     *
     * @return true on FAILURE (missing, or no number); then @p value is untouched.
     */
    bool getDouble(const char *keyword, double *value) const;

    /**
     * Reads a whole number into @p value, which must not be null; see getValue().
     *
     * @return true on FAILURE (missing, or no number); then @p value is untouched.
     */
    bool getInt(const char *keyword, int *value) const;

    /**
     * Reads a flag, true when it begins with T or t, into @p value, which must not be null; see getValue().
     *
     * @return true on FAILURE (missing); then @p value is untouched.
     */
    bool getBool(const char *keyword, bool *value) const;

    /**
     * Reads a text of several lines, with line feeds as line breaks, into @p value, which must not be null; see
     * getValue().
     *
     * @return true if found; otherwise false, and @p value is a null string.
     */
    bool getString(const char *keyword, QString *value) const;

    /**
     * Stores a text of several lines as one line of Latin-1; other characters become "?". A text that is not empty
     * always ends with a line break, which is added if it is missing.
     *
     * @return what setValue() returns.
     */
    int setString(const char *keyword, const QString &value);

    /** The option @p keyword of the current printer's PPD file, which owns it; null if it does not exist. */
    ppd_option_t *ppdOption(const char *keyword) const;

    /** @} */
    /**
     * @name Label settings
     *
     * On a queue with a known driver of another make, they use the driver's keywords instead of those below: a number
     * becomes the driver's nearest choice, and settings that the driver does not have are not stored. The fallback is
     * returned for a setting that is left to the printer.
     *
     * Getters return the stated fallback when the setting is missing or unreadable. Setters store through the setter by
     * keyword and return its result: -1 if there is no printer. Except for setOrientation(), they do not check
     * their input; what the driver allows is in its PPD file.
     */
    /** @{ */

    double getShift() const; ///< "Shift", vertical offset, in millimetres; fallback 0.0. Dialog: -25.4 to 25.4.
    int setShift(double millimetres); ///< Stores "Shift". @return what setDouble() returns.
    double getStart() const; ///< "Start", start position, in millimetres; fallback 0.0. The dialog does not show it.
    int setStart(double millimetres); ///< Stores "Start". @return what setDouble() returns.
    double getStop() const; ///< "Stop", stop position, in millimetres; fallback 0.0. The dialog offers 0 to 39.878.
    int setStop(double millimetres); ///< Stores "Stop". @return what setDouble() returns.
    double getMarkOffset() const; ///< "MarkOffset", black mark offset, in millimetres; fallback 0.0.
    int setMarkOffset(double millimetres); ///< Stores "MarkOffset". @return what setDouble() returns.
    double getMarkSize() const; ///< "MarkSize", black mark size, in millimetres; fallback 0.0.
    int setMarkSize(double millimetres); ///< Stores "MarkSize". @return what setDouble() returns.
    double getGapOffset() const; ///< "GapOffset", in millimetres; fallback 0.0.
    int setGapOffset(double millimetres); ///< Stores "GapOffset". @return what setDouble() returns.
    double getGapSize() const; ///< "GapSize", in millimetres; fallback 0.0.
    int setGapSize(double millimetres); ///< Stores "GapSize". @return what setDouble() returns.
    int getOffsetV() const; ///< "OffsetV", vertical print offset, in dots; fallback 0.
    int setOffsetV(int dots); ///< Stores "OffsetV". @return what setInt() returns.
    int getOffsetH() const; ///< "OffsetH", horizontal print offset, in dots; fallback 0.
    int setOffsetH(int dots); ///< Stores "OffsetH". @return what setInt() returns.
    int getCut() const; ///< "CutMedia": 0 no cut, 2 after the job, 4 after each page; fallback and any other value: 4.
    int setCut(int cut); ///< Stores "CutMedia"; see getCut(). @return what setInt() returns.
    int getOverlap() const; ///< "Overlap", in dots; fallback 0.
    int setOverlap(int dots); ///< Stores "Overlap". @return what setInt() returns.
    int getBack() const; ///< "Back", backfeed, in dots; fallback 0. See getExtendedOffset().
    int setBack(int dots); ///< Stores "Back". @return what setInt() returns.
    int getFeed() const; ///< "Feed", in dots of the vertical resolution; fallback 0.
    int setFeed(int dots); ///< Stores "Feed". @return what setInt() returns.
    _Category getCategory() const; ///< "LabelCategory", the media type; fallback 0. May be a number without a name.
    int setCategory(_Category category); ///< Stores "LabelCategory". @return what setInt() returns.
    int getDarkness() const; ///< "Darkness"; fallback 7. The dialog offers 0 to 19, for some models 0 to 15.
    int setDarkness(int darkness); ///< Stores "Darkness". @return what setInt() returns.
    int getSpeed() const; ///< "PrintSpeed", in inches per second; fallback 2. The dialog offers at most 1 to 5.
    int setSpeed(int speed); ///< Stores "PrintSpeed". @return what setInt() returns.
    _CupsOrientation getOrientation() const; ///< "orientation-requested"; fallback and any value outside 3 to 6: 4.
    int setOrientation(_CupsOrientation orientation); ///< Stores 4 for any value outside 3 to 6. @return as setInt().
    bool getDirect() const; ///< "Direct"; fallback false. The dialog does not show it.
    int setDirect(bool direct); ///< Stores "Direct". @return what setBool() returns.
    bool getInverse() const; ///< "NegativePrint": black and white are exchanged; fallback false.
    int setInverse(bool inverse); ///< Stores "NegativePrint". @return what setBool() returns.
    bool getMirror() const; ///< "MirrorPrint": left and right are exchanged; fallback false.
    int setMirror(bool mirror); ///< Stores "MirrorPrint". @return what setBool() returns.
    QString getLabelEnd() const; ///< "LabelEnd", user command at the end of each label; fallback a null string.
    int setLabelEnd(const QString &command); ///< Stores "LabelEnd". @return what setString() returns.
    QString getLabelStart() const; ///< "LabelStart", user command at the start of each label; fallback a null string.
    int setLabelStart(const QString &command); ///< Stores "LabelStart". @return what setString() returns.
    QString getJobEnd() const; ///< "JobEnd", user command at the end of each job; fallback a null string.
    int setJobEnd(const QString &command); ///< Stores "JobEnd". @return what setString() returns.
    QString getJobStart() const; ///< "JobStart", user command at the start of each job; fallback a null string.
    int setJobStart(const QString &command); ///< Stores "JobStart". @return what setString() returns.

    /** @} */
    /** @name Page geometry, in points (72 to the inch) and dots per inch */
    /** @{ */

    /** The default page size of the PPD file, in points; -1 by -1 when it is not known. */
    QSize getDefaultPageSize() const;

    /** The imageable area of page size @p name, in points, origin at the top left; a null rectangle when not known. */
    QRect pageRect(const char *name) const;

    /** The sheet of page size @p name at (0, 0), in points; a null rectangle when not known. */
    QRect paperRect(const char *name) const;

    /** Horizontal and vertical resolution of the PPD default, in dots per inch; 300 and 304.8 when not known. */
    QSizeF getResolution() const;

    /**
     * The extended print offset in dots, positive or negative: the backfeed less the 12 (at 203 dpi) or 2 dots that
     * mean no offset.
     */
    int getExtendedOffset() const;

    /** Stores the extended print offset, in dots, and saves at once. @return what setDests() returns. */
    int setExtendedOffset(int dots);

    /** @} */
    /**
     * @name Option lists and printing
     *
     * An option list alternates keyword and value. A trailing keyword without value is ignored.
     */
    /** @{ */

    /**
     * Changes the working copy; an empty value removes the option. Unlike setValue() it keeps values that equal the PPD
     * default.
     *
     * @return true when anything changed.
     */
    bool setOptions(const QStringList &list);

    /** Removes the options with these keywords from the working copy; does nothing when there is no printer. */
    void deleteOptions(const QStringList &keywords);

    /**
     * The marked choices of the PPD file that differ from its defaults, as an option list; empty without a PPD file.
     */
    QStringList options() const;

    /**
     * The saved options, and PPD defaults, that the constraints of the PPD file do not allow together: a list that
     * alternates the texts of the two, such as "Print Mode: Cut". Empty if there are none or without a PPD file.
     */
    QStringList conflicts() const;

    /** The changes that CUPS proposes to resolve the conflicts(), as an option list; empty if it has no proposal. */
    QStringList conflictResolution() const;

    /**
     * The text that users know an option and its choice by, such as "Print Mode: Cut"; the keywords if there is none.
     */
    QString optionText(const QString &keyword, const QString &choice) const;

    /** All saved options of the current destination, as an option list; empty when there is no printer. */
    QStringList cupsOptions() const;

    /**
     * Every option of the PPD file with its default choice, as an option list; options in subgroups are left out. Empty
     * without a PPD file.
     */
    QStringList ppdDefaults() const;

    /** Appends to @p list what options() returns for @p group's subgroups; null: for the whole PPD file. */
    void collectMarkedOptions(QStringList &list, const ppd_group_t *group) const;

    /** Appends to @p list the marked choices of @p group's own options that differ from their defaults. */
    void collectMarkedOptionsHelper(QStringList &list, const ppd_group_t *group) const;

    /**
     * Prints a file with the saved options of the destination, overridden for this job by @p list.
     *
     * @param fileName the file to print, in any format that the queue accepts.
     * @param printerDescription the "printer-info" of the destination, in any language; empty or unknown means the current
     *        printer.
     * @param title the job's title; empty means the file name. Characters outside Latin-1 become "?".
     * @param list an option list.
     * @return the job number, 0 on failure (see getCupsError()).
     */
    int printFile(const QString &fileName, const QString &printerDescription, const QString &title,
                  const QStringList &list) const;

    /**
     * Prints several files as one job on the current printer.
     *
     * @param fileNames the files to print; without any nothing is printed.
     * @param title the job's title, sent unchanged even if empty.
     * @param list an option list.
     * @return the job number, 0 on failure (see getCupsError()).
     */
    int printFiles(const QStringList &fileNames, const QString &title, const QStringList &list) const;

    /** @} */

private:
    struct Q_DECL_HIDDEN Private;

    Q_DECL_HIDDEN cups_dest_t *currentDest() const;
    Q_DECL_HIDDEN void openPpdFile() const;

    int currentIndex = 0;
    int destCount = 0;
    cups_dest_t *dests = nullptr;
    mutable ppd_file_t *ppd = nullptr; // opened by the first getter that needs it
    const std::unique_ptr<Private> d; // everything else, so that hosts need not be rebuilt
};

#endif
