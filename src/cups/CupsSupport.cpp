// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/CupsSupport.h"

#include "cups/CLocale.h"
#include "cups/Conflicts.h"
#include "cups/Dialect.h"
#include "cups/OptionArray.h"
#include "cups/OptionsFile.h"
#include "cups/PpdFile.h"
#include "cups/PrintJob.h"
#include "cups/Rounding.h"
#include "cups/Scheduler.h"

#include <QByteArray>
#include <QHash>
#include <QList>

#include <cups/cups.h>
#include <cups/ppd.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

// The whole PPD interface is deprecated, but label printers have no other yet.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

// How a line break is stored in an option's value: the two backslashes become one on the way through some readers.
constexpr char storedLineBreak[] = "\\\\r";
constexpr char reducedLineBreak[] = "\\r";

// Stands for the PPD file of a printer without one, so that not every getter asks the scheduler again.
ppd_file_t absentPpdFile;

bool isOneOf(int value, std::initializer_list<int> allowed)
{
    return std::find(allowed.begin(), allowed.end(), value) != allowed.end();
}

// The first of an array of libcups' records that matches, or null.
template<typename Record, typename Predicate>
Record *findRecord(Record *records, int count, Predicate matches)
{
    Record *const end = records + count;
    Record *const found = std::find_if(records, end, matches);
    return found == end ? nullptr : found;
}

// The first matching option of a PPD file's top-level groups; subgroups are not searched.
template<typename Predicate>
ppd_option_t *findPpdOption(const ppd_file_t *ppd, Predicate matches)
{
    for (int i = 0; ppd && i < ppd->num_groups; ++i)
        if (ppd_option_t *found = findRecord(ppd->groups[i].options, ppd->groups[i].num_options, matches))
            return found;
    return nullptr;
}

const ppd_size_t *findPageSize(const ppd_file_t *ppd, const char *name)
{
    const auto isNamed = [name](const ppd_size_t &size) { return qstrcmp(size.name, name) == 0; };
    return ppd ? findRecord(ppd->sizes, ppd->num_sizes, isNamed) : nullptr;
}

void removeOption(cups_dest_t *dest, const char *keyword)
{
    removeOption(keyword, &dest->num_options, &dest->options);
}

// A job's title: Latin-1 like all texts, but encoded in UTF-8. Otherwise the scheduler calls the job "Untitled".
QByteArray titleOf(const QString &text)
{
    return QString::fromLatin1(text.toLatin1()).toUtf8();
}

// The destinations as they were fetched. Freed with the object unless they were taken.
struct Destinations
{
    Destinations() = default;
    ~Destinations() { cupsFreeDests(count, list); }

    Destinations(const Destinations &) = delete;
    Destinations &operator=(const Destinations &) = delete;

    void fetch(http_t *http)
    {
        cupsFreeDests(count, list);
        count = cupsGetDests2(http, &list);
        status = cupsLastError();
    }

    int count = 0;
    cups_dest_t *list = nullptr;
    ipp_status_t status = IPP_STATUS_OK;
};

} // namespace

// ----- destinations and the current printer -----

struct CupsSupport::Private
{
    bool schedulerReachable = false;
    std::vector<OptionsFile::Stored> stored; // of each destination, as far as this object knows
    const Dialect *dialect = nullptr; // of the open PPD file; null when that has our own keywords

    static const Dialect *dialectOf(const CupsSupport &cups);

    // A setting by our keyword, whatever the driver's keyword is.
    static double number(const CupsSupport &cups, const char *keyword, double fallback);
    static int integer(const CupsSupport &cups, const char *keyword, int fallback);
    static bool flag(const CupsSupport &cups, const char *keyword);
    static QString text(const CupsSupport &cups, const char *keyword);
    static int setNumber(CupsSupport &cups, const char *keyword, double value);
    static int setInteger(CupsSupport &cups, const char *keyword, int value);
    static int setFlag(CupsSupport &cups, const char *keyword, bool value);
    static int setText(CupsSupport &cups, const char *keyword, const QString &value);
    static int setForeign(CupsSupport &cups, const char *keyword, double value);
};

CupsSupport::CupsSupport()
    : d(std::make_unique<Private>())
{
    getDefaultPrinter();
}

CupsSupport::~CupsSupport()
{
    closePpdFile();
    if (dests && destCount > 0)
        cupsFreeDests(destCount, dests);
}

int CupsSupport::getDefaultPrinter()
{
    cupsFreeDests(destCount, dests);
    dests = nullptr;
    destCount = 0;
    if (ppd == &absentPpdFile)
        ppd = nullptr; // another printer may become current, and only an open file stays
    const auto fetched = std::make_shared<Destinations>();
    d->schedulerReachable = Scheduler::ask([fetched](http_t *http) { fetched->fetch(http); });
    if (d->schedulerReachable) {
        destCount = std::exchange(fetched->count, 0);
        dests = std::exchange(fetched->list, nullptr);
        // Without any printer, the scheduler reports that it found none.
        d->schedulerReachable = dests || fetched->status == IPP_STATUS_ERROR_NOT_FOUND;
    }
    d->stored = OptionsFile::prepare(dests, destCount);
    if (!dests || destCount < 1)
        return currentIndex;
    // Printers may have been removed; an index past the end would permanently mean no printer.
    if (currentIndex >= destCount)
        currentIndex = 0;
    for (int i = 0; i < destCount; ++i)
        if (dests[i].is_default)
            currentIndex = i;
    return currentIndex;
}

void CupsSupport::setCurrentPrinter(int index)
{
    closePpdFile();
    currentIndex = index;
    openPpdFile();
}

void CupsSupport::openPpdFile() const
{
    const cups_dest_t *dest = currentDest();
    if (!dest)
        return;
    bool isAbsent = false;
    ppd = PpdFile::fetch(dest->name, &isAbsent);
    if (isAbsent)
        ppd = &absentPpdFile;
    if (isAbsent || !ppd)
        return;
    d->dialect = Dialect::of(ppd);
    ppdMarkDefaults(ppd);
    cupsMarkOptions(ppd, dest->num_options, dest->options);
}

cups_dest_t *CupsSupport::currentDest() const
{
    if (!dests || destCount < 1 || currentIndex < 0 || currentIndex >= destCount)
        return nullptr;
    return dests + currentIndex;
}

int CupsSupport::getCurrentIndex() const
{
    return currentIndex;
}

int CupsSupport::getDestCount() const
{
    return destCount;
}

QString CupsSupport::getQueueName(int index) const
{
    if (!dests || index < 0 || index >= destCount)
        return QString();
    const QString name = QString::fromUtf8(dests[index].name);
    return dests[index].instance ? name + QLatin1Char('/') + QString::fromUtf8(dests[index].instance) : name;
}

int CupsSupport::getQueueIndex(const QString &queueName) const
{
    for (int i = 0; i < destCount; ++i)
        if (getQueueName(i) == queueName)
            return i;
    return -1;
}

QString CupsSupport::getDefaultQueueName() const
{
    for (int i = destCount - 1; i >= 0; --i)
        if (dests[i].is_default)
            return getQueueName(i);
    // Not a destination: the environment names it, or there is none.
    const auto name = std::make_shared<std::string>();
    const bool isAnswered = Scheduler::ask([name](http_t *http) {
        if (const char *found = cupsGetDefault2(http))
            *name = found;
    });
    return isAnswered ? QString::fromStdString(*name) : QString();
}

bool CupsSupport::isSchedulerReachable() const
{
    return d->schedulerReachable;
}

QString CupsSupport::getCurrentQueueName() const
{
    return getQueueName(currentIndex);
}

QString CupsSupport::getCurrentPrinterName() const
{
    const cups_option_t *option = printerOption(QStringLiteral("printer-info"));
    return option ? QString::fromUtf8(option->value) : QLatin1String("");
}

ppd_file_t *CupsSupport::getPpdFile() const
{
    if (!ppd)
        openPpdFile();
    return ppd == &absentPpdFile ? nullptr : ppd;
}

bool CupsSupport::isPpdFileOutOfReach() const
{
    return currentDest() && !getPpdFile() && ppd != &absentPpdFile;
}

void CupsSupport::closePpdFile()
{
    if (ppd && ppd != &absentPpdFile)
        ppdClose(ppd);
    ppd = nullptr;
    d->dialect = nullptr;
}

int CupsSupport::setDests()
{
    cups_dest_t *dest = currentDest();
    if (!dest)
        return -1;
    // One pass: the option that slides into a freed slot is not examined in it. Settings that the user made equal to
    // the default are already removed, see setValue(); this removes values from elsewhere, and hosts rely on how far it
    // goes.
    for (int i = 0; i < dest->num_options; ++i) {
        const cups_option_t &option = dest->options[i];
        const char *defaultValue = getDefaultValue(option.name);
        if (defaultValue && !std::strcmp(defaultValue, option.value))
            removeOption(dest, option.name);
    }

    std::vector<OptionsMerge::Change> changes;
    for (int i = 0; i < destCount; ++i) {
        const OptionsFile::Stored &stored = d->stored[static_cast<std::size_t>(i)];
        OptionsMerge::Change change = OptionsMerge::changeSince(stored.snapshot, dests[i]);
        change.isDamaged = stored.isDamaged;
        if (change.isEmpty())
            continue;
        // The PPD file is only open for the current printer.
        change.areDefaultsKnown = i == currentIndex && !isPpdFileOutOfReach();
        change.defaultValue = [this, isKnown = change.areDefaultsKnown](const char *keyword) {
            return isKnown ? getDefaultValue(keyword) : nullptr;
        };
        changes.push_back(std::move(change));
    }
    const QString reason = OptionsFile::save(std::move(changes));
    Scheduler::setLastError(reason);
    if (!reason.isNull())
        return -1;
    for (int i = 0; i < destCount; ++i)
        d->stored[static_cast<std::size_t>(i)] = {OptionsMerge::snapshot(dests[i]), false};
    return 0;
}

namespace {

// Of one printer, as a destination's options hold them.
struct PrinterState
{
    QByteArray state;
    QByteArray reasons;
};
using PrinterStates = QHash<QByteArray, PrinterState>; // by queue

PrinterStates fetchPrinterStates()
{
    const auto answer = std::make_shared<std::unique_ptr<ipp_t, decltype(&ippDelete)>>(nullptr, &ippDelete);
    const bool isAnswered = Scheduler::ask([answer](http_t *http) {
        static const char *const wanted[] = {"printer-name", "printer-state", "printer-state-reasons"};
        ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
        ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                      static_cast<int>(std::size(wanted)), nullptr, wanted);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
        answer->reset(cupsDoRequest(http, request, "/"));
    });
    PrinterStates states;
    if (!isAnswered)
        return states;
    QByteArray printer;
    PrinterState current;
    const auto addCurrent = [&] {
        if (!printer.isEmpty())
            states.insert(printer, current);
        printer.clear();
        current = {};
    };
    for (ipp_attribute_t *a = ippFirstAttribute(answer->get()); a; a = ippNextAttribute(answer->get())) {
        if (ippGetGroupTag(a) != IPP_TAG_PRINTER) { // a separator without a name stands between two printers
            addCurrent();
            continue;
        }
        const QByteArray name = ippGetName(a);
        if (name == "printer-name")
            printer = ippGetString(a, 0, nullptr);
        else if (name == "printer-state")
            current.state = QByteArray::number(ippGetInteger(a, 0));
        else if (name == "printer-state-reasons")
            for (int i = 0; i < ippGetCount(a); ++i)
                current.reasons += (i ? "," : "") + QByteArray(ippGetString(a, i, nullptr));
    }
    addCurrent();
    return states;
}

} // namespace

bool CupsSupport::updatePrinterStates()
{
    const PrinterStates states = fetchPrinterStates();
    for (int i = 0; i < destCount; ++i) {
        cups_dest_t &dest = dests[i];
        const PrinterState now = states.value(dest.name);
        for (const auto &[name, value] :
             {std::pair("printer-state", now.state), std::pair("printer-state-reasons", now.reasons)})
            if (!value.isEmpty())
                dest.num_options = cupsAddOption(name, value.constData(), dest.num_options, &dest.options);
    }
    return !states.empty();
}

bool CupsSupport::callWithScheduler(const std::function<void()> &function)
{
    if (Scheduler::isLeftAlone())
        return false;
    Scheduler::callWithScheduler(function);
    return true;
}

const char *CupsSupport::getCupsError()
{
    return Scheduler::lastError();
}

cups_option_t *CupsSupport::printerOption(const QString &name) const
{
    const cups_dest_t *dest = currentDest();
    if (!dest)
        return nullptr;
    return findRecord(dest->options, dest->num_options,
                      [&name](const cups_option_t &option) { return name == QString::fromUtf8(option.name); });
}

int CupsSupport::printerForSelectOption(const char *keyword, const char *value) const
{
    for (int i = 0; i < destCount; ++i) {
        const char *saved = cupsGetOption(keyword, dests[i].num_options, dests[i].options);
        if (saved && value && !std::strcmp(saved, value))
            return i;
    }
    return -1;
}

// ----- options by keyword -----

ppd_option_t *CupsSupport::ppdOption(const char *keyword) const
{
    return findPpdOption(
        getPpdFile(), [keyword](const ppd_option_t &option) { return qstrcmp(option.keyword, keyword) == 0; });
}

const char *CupsSupport::getDefaultValue(const char *keyword) const
{
    const ppd_option_t *option = ppdOption(keyword);
    return option ? option->defchoice : nullptr;
}

const char *CupsSupport::getValue(const char *keyword, int index) const
{
    const int i = index == -1 ? currentIndex : index;
    if (dests && i >= 0 && i < destCount) {
        // Not cupsGetOption(), which does not tell upper from lower case.
        const auto isNamed = [keyword](const cups_option_t &option) { return qstrcmp(option.name, keyword) == 0; };
        const cups_option_t *found = findRecord(dests[i].options, dests[i].num_options, isNamed);
        if (found && found->value)
            return found->value;
    }
    return getDefaultValue(keyword);
}

int CupsSupport::setValue(const char *keyword, const char *value)
{
    cups_dest_t *dest = currentDest();
    if (!dest)
        return -1;
    // The destination carries only what differs from the PPD file.
    const char *defaultValue = getDefaultValue(keyword);
    if (defaultValue && !std::strcmp(defaultValue, value))
        removeOption(dest, keyword);
    else
        dest->num_options = cupsAddOption(keyword, value, dest->num_options, &dest->options);
    return dest->num_options;
}

int CupsSupport::setDouble(const char *keyword, double value)
{
    char text[64];
    const CLocale cLocale;
    return std::snprintf(text, sizeof text, "%1.3lf", value) < 1 ? -1 : setValue(keyword, text);
}

int CupsSupport::setInt(const char *keyword, int value)
{
    char text[32];
    const CLocale cLocale;
    return std::snprintf(text, sizeof text, "%d", value) < 1 ? -1 : setValue(keyword, text);
}

int CupsSupport::setBool(const char *keyword, bool value)
{
    return setValue(keyword, value ? "True" : "False");
}

bool CupsSupport::getDouble(const char *keyword, double *value) const
{
    const char *text = getValue(keyword);
    const CLocale cLocale;
    return !text || std::sscanf(text, "%lf", value) != 1;
}

bool CupsSupport::getInt(const char *keyword, int *value) const
{
    const char *text = getValue(keyword);
    const CLocale cLocale;
    return !text || std::sscanf(text, "%d", value) != 1;
}

bool CupsSupport::getBool(const char *keyword, bool *value) const
{
    const char *text = getValue(keyword);
    if (!text)
        return true;
    *value = text[0] == 'T' || text[0] == 't';
    return false;
}

bool CupsSupport::getString(const char *keyword, QString *value) const
{
    const char *text = getValue(keyword);
    if (!text) {
        *value = QString();
        return false;
    }
    *value = QString::fromLatin1(text);
    value->replace(QLatin1String(storedLineBreak), QLatin1String("\n"));
    value->replace(QLatin1String(reducedLineBreak), QLatin1String("\n"));
    return true;
}

int CupsSupport::setString(const char *keyword, const QString &value)
{
    if (value.isEmpty())
        return setValue(keyword, "");
    QByteArray text = value.toLatin1();
    text.replace('\0', '?'); // which would end the value and lose what follows
    if (!text.endsWith('\n') && !text.endsWith('\r'))
        text += '\r';
    text.replace("\r\n", storedLineBreak);
    text.replace('\r', storedLineBreak);
    text.replace('\n', storedLineBreak);
    return setValue(keyword, text.constData());
}

// ----- label settings -----

namespace {

// The code itself if CUPS knows it, otherwise landscape.
CupsSupport::_CupsOrientation knownOrientation(int code)
{
    return code >= CupsSupport::Portrait && code <= CupsSupport::ReversePortrait
               ? static_cast<CupsSupport::_CupsOrientation>(code)
               : CupsSupport::Landscape;
}

} // namespace

const Dialect *CupsSupport::Private::dialectOf(const CupsSupport &cups)
{
    cups.getPpdFile();
    return cups.d->dialect;
}

double CupsSupport::Private::number(const CupsSupport &cups, const char *keyword, double fallback)
{
    if (const Dialect *dialect = dialectOf(cups))
        return dialect->value(cups, keyword).value_or(fallback);
    double value = fallback;
    return cups.getDouble(keyword, &value) ? fallback : value;
}

int CupsSupport::Private::integer(const CupsSupport &cups, const char *keyword, int fallback)
{
    if (const Dialect *dialect = dialectOf(cups))
        return roundHalfUp(dialect->value(cups, keyword).value_or(fallback));
    int value = fallback;
    return cups.getInt(keyword, &value) ? fallback : value;
}

bool CupsSupport::Private::flag(const CupsSupport &cups, const char *keyword)
{
    if (const Dialect *dialect = dialectOf(cups))
        return dialect->value(cups, keyword).value_or(0) != 0;
    bool value = false;
    return !cups.getBool(keyword, &value) && value;
}

QString CupsSupport::Private::text(const CupsSupport &cups, const char *keyword)
{
    QString value;
    if (!dialectOf(cups)) // no other driver has user commands
        cups.getString(keyword, &value);
    return value;
}

int CupsSupport::Private::setNumber(CupsSupport &cups, const char *keyword, double value)
{
    return dialectOf(cups) ? setForeign(cups, keyword, value) : cups.setDouble(keyword, value);
}

int CupsSupport::Private::setInteger(CupsSupport &cups, const char *keyword, int value)
{
    return dialectOf(cups) ? setForeign(cups, keyword, value) : cups.setInt(keyword, value);
}

int CupsSupport::Private::setFlag(CupsSupport &cups, const char *keyword, bool value)
{
    return dialectOf(cups) ? setForeign(cups, keyword, value) : cups.setBool(keyword, value);
}

int CupsSupport::Private::setText(CupsSupport &cups, const char *keyword, const QString &value)
{
    if (!dialectOf(cups))
        return cups.setString(keyword, value);
    const cups_dest_t *dest = cups.currentDest();
    return dest ? dest->num_options : -1;
}

// Only for a printer with a dialect.
int CupsSupport::Private::setForeign(CupsSupport &cups, const char *keyword, double value)
{
    const cups_dest_t *dest = cups.currentDest();
    if (!dest)
        return -1;
    cups.d->dialect->setValue(cups, keyword, value);
    return dest->num_options;
}

// A table of one-line functions.
// clang-format off
double CupsSupport::getShift() const { return Private::number(*this, "Shift", 0.0); }
int CupsSupport::setShift(double millimetres) { return Private::setNumber(*this, "Shift", millimetres); }
double CupsSupport::getStart() const { return Private::number(*this, "Start", 0.0); }
int CupsSupport::setStart(double millimetres) { return Private::setNumber(*this, "Start", millimetres); }
double CupsSupport::getStop() const { return Private::number(*this, "Stop", 0.0); }
int CupsSupport::setStop(double millimetres) { return Private::setNumber(*this, "Stop", millimetres); }
double CupsSupport::getMarkOffset() const { return Private::number(*this, "MarkOffset", 0.0); }
int CupsSupport::setMarkOffset(double millimetres) { return Private::setNumber(*this, "MarkOffset", millimetres); }
double CupsSupport::getMarkSize() const { return Private::number(*this, "MarkSize", 0.0); }
int CupsSupport::setMarkSize(double millimetres) { return Private::setNumber(*this, "MarkSize", millimetres); }
double CupsSupport::getGapOffset() const { return Private::number(*this, "GapOffset", 0.0); }
int CupsSupport::setGapOffset(double millimetres) { return Private::setNumber(*this, "GapOffset", millimetres); }
double CupsSupport::getGapSize() const { return Private::number(*this, "GapSize", 0.0); }
int CupsSupport::setGapSize(double millimetres) { return Private::setNumber(*this, "GapSize", millimetres); }
int CupsSupport::getOffsetV() const { return Private::integer(*this, "OffsetV", 0); }
int CupsSupport::setOffsetV(int dots) { return Private::setInteger(*this, "OffsetV", dots); }
int CupsSupport::getOffsetH() const { return Private::integer(*this, "OffsetH", 0); }
int CupsSupport::setOffsetH(int dots) { return Private::setInteger(*this, "OffsetH", dots); }
int CupsSupport::setCut(int cut) { return Private::setInteger(*this, "CutMedia", cut); }
int CupsSupport::getOverlap() const { return Private::integer(*this, "Overlap", 0); }
int CupsSupport::setOverlap(int dots) { return Private::setInteger(*this, "Overlap", dots); }
int CupsSupport::getBack() const { return Private::integer(*this, "Back", 0); }
int CupsSupport::setBack(int dots) { return Private::setInteger(*this, "Back", dots); }
int CupsSupport::getFeed() const { return Private::integer(*this, "Feed", 0); }
int CupsSupport::setFeed(int dots) { return Private::setInteger(*this, "Feed", dots); }
int CupsSupport::setCategory(_Category category) { return Private::setInteger(*this, "LabelCategory", category); }
int CupsSupport::getDarkness() const { return Private::integer(*this, "Darkness", 7); }
int CupsSupport::setDarkness(int darkness) { return Private::setInteger(*this, "Darkness", darkness); }
int CupsSupport::getSpeed() const { return Private::integer(*this, "PrintSpeed", 2); }
int CupsSupport::setSpeed(int speed) { return Private::setInteger(*this, "PrintSpeed", speed); }
bool CupsSupport::getDirect() const { return Private::flag(*this, "Direct"); }
int CupsSupport::setDirect(bool direct) { return Private::setFlag(*this, "Direct", direct); }
bool CupsSupport::getInverse() const { return Private::flag(*this, "NegativePrint"); }
int CupsSupport::setInverse(bool inverse) { return Private::setFlag(*this, "NegativePrint", inverse); }
bool CupsSupport::getMirror() const { return Private::flag(*this, "MirrorPrint"); }
int CupsSupport::setMirror(bool mirror) { return Private::setFlag(*this, "MirrorPrint", mirror); }
QString CupsSupport::getLabelEnd() const { return Private::text(*this, "LabelEnd"); }
int CupsSupport::setLabelEnd(const QString &command) { return Private::setText(*this, "LabelEnd", command); }
QString CupsSupport::getLabelStart() const { return Private::text(*this, "LabelStart"); }
int CupsSupport::setLabelStart(const QString &command) { return Private::setText(*this, "LabelStart", command); }
QString CupsSupport::getJobEnd() const { return Private::text(*this, "JobEnd"); }
int CupsSupport::setJobEnd(const QString &command) { return Private::setText(*this, "JobEnd", command); }
QString CupsSupport::getJobStart() const { return Private::text(*this, "JobStart"); }
int CupsSupport::setJobStart(const QString &command) { return Private::setText(*this, "JobStart", command); }
// clang-format on

int CupsSupport::getCut() const
{
    const int cut = Private::integer(*this, "CutMedia", 4);
    return isOneOf(cut, {0, 2, 4}) ? cut : 4;
}

CupsSupport::_Category CupsSupport::getCategory() const
{
    return static_cast<_Category>(Private::integer(*this, "LabelCategory", 0));
}

CupsSupport::_CupsOrientation CupsSupport::getOrientation() const
{
    int code = Landscape; // an option of the job, whatever the driver
    return getInt("orientation-requested", &code) ? Landscape : knownOrientation(code);
}

int CupsSupport::setOrientation(_CupsOrientation orientation)
{
    return setInt("orientation-requested", knownOrientation(orientation));
}

// ----- page geometry -----

QSize CupsSupport::getDefaultPageSize() const
{
    const ppd_choice_t *size = nullptr;
    findPpdOption(getPpdFile(), [&size](const ppd_option_t &option) {
        if (qstrcmp(option.keyword, "PageSize") != 0)
            return false;
        size = findRecord(option.choices, option.num_choices, [&option](const ppd_choice_t &choice) {
            return qstrcmp(choice.choice, option.defchoice) == 0;
        });
        return size != nullptr; // otherwise another option of that name may hold its default
    });

    const char *bracket = size && size->code ? std::strchr(size->code, '[') : nullptr;
    int width = -1;
    int height = -1;
    const CLocale cLocale;
    if (!bracket || std::sscanf(bracket + 1, "%d %d", &width, &height) != 2)
        return QSize(-1, -1);
    return QSize(width, height);
}

QRect CupsSupport::pageRect(const char *name) const
{
    const ppd_size_t *size = findPageSize(getPpdFile(), name);
    if (!size)
        return QRect();
    // The PPD file counts from the bottom left. Each number is rounded on its own.
    return QRect(roundHalfUp(size->left), roundHalfUp(size->length - size->top), roundHalfUp(size->right - size->left),
                 roundHalfUp(size->top - size->bottom));
}

QRect CupsSupport::paperRect(const char *name) const
{
    const ppd_size_t *size = findPageSize(getPpdFile(), name);
    return size ? QRect(0, 0, roundHalfUp(size->width), roundHalfUp(size->length)) : QRect();
}

namespace {

// A PPD file without a choice of resolutions, such as those that CUPS makes for driverless printers, may still name
// one.
const char *declaredResolution(ppd_file_t *ppd)
{
    const ppd_attr_t *attribute = ppd ? ppdFindAttr(ppd, "DefaultResolution", nullptr) : nullptr;
    return attribute ? attribute->value : nullptr;
}

} // namespace

QSizeF CupsSupport::getResolution() const
{
    const QSizeF unknown(300.0, 304.8);
    // The PPD default decides, whatever resolution the destination has saved: lengths in dots must not change with it.
    const char *value = getDefaultValue("Resolution");
    if (!value)
        value = declaredResolution(getPpdFile());
    if (!value)
        return unknown;
    double first = 0.0;
    double second = 0.0;
    const CLocale cLocale;
    switch (std::sscanf(value, "%lfx%lf", &first, &second)) {
    case 2:
        // Twelve dots per millimetre are called 305. Only feed lengths are counted in them, so only this direction is
        // exact.
        return QSizeF(first, second == 305.0 ? 304.8 : second);
    case 1:
        return QSizeF(first, first);
    default:
        return unknown;
    }
}

namespace {

// The backfeed in dots that means no extended offset.
int neutralBack(const CupsSupport &cups)
{
    return cups.getResolution().height() == 203.0 ? 12 : 2;
}

} // namespace

int CupsSupport::getExtendedOffset() const
{
    return getBack() - neutralBack(*this);
}

int CupsSupport::setExtendedOffset(int dots)
{
    setBack(dots + neutralBack(*this));
    return setDests();
}

// ----- option lists and printing -----

bool CupsSupport::setOptions(const QStringList &list)
{
    cups_dest_t *dest = currentDest();
    if (!dest)
        return false;
    bool changed = false;
    for (int i = 0; i + 1 < list.size(); i += 2) {
        const QByteArray keyword = list.at(i).toLatin1();
        const QByteArray value = list.at(i + 1).toLatin1();
        const char *saved = cupsGetOption(keyword.constData(), dest->num_options, dest->options);
        if (saved ? !value.isEmpty() && value == saved : value.isEmpty())
            continue;
        if (saved)
            removeOption(dest, keyword.constData());
        if (!value.isEmpty())
            dest->num_options =
                cupsAddOption(keyword.constData(), value.constData(), dest->num_options, &dest->options);
        changed = true;
    }
    return changed;
}

void CupsSupport::deleteOptions(const QStringList &keywords)
{
    cups_dest_t *dest = currentDest();
    if (!dest)
        return;
    for (const QString &keyword : keywords)
        removeOption(dest, keyword.toLatin1().constData());
}

QStringList CupsSupport::options() const
{
    QStringList list;
    collectMarkedOptions(list, nullptr);
    return list;
}

QStringList CupsSupport::conflicts() const
{
    QStringList texts;
    for (const Conflicts::Pair &pair : Conflicts::among(*this, cupsOptions()))
        texts << pair.texts[0] << pair.texts[1];
    return texts;
}

QStringList CupsSupport::conflictResolution() const
{
    return Conflicts::resolution(*this, cupsOptions());
}

QString CupsSupport::optionText(const QString &keyword, const QString &choice) const
{
    return Conflicts::text(*this, keyword, choice);
}

QStringList CupsSupport::cupsOptions() const
{
    QStringList list;
    if (const cups_dest_t *dest = currentDest())
        for (int i = 0; i < dest->num_options; ++i)
            list << QString::fromLatin1(dest->options[i].name) << QString::fromLatin1(dest->options[i].value);
    return list;
}

QStringList CupsSupport::ppdDefaults() const
{
    QStringList list;
    findPpdOption(getPpdFile(), [&list](const ppd_option_t &option) {
        list << QString::fromLocal8Bit(option.keyword) << QString::fromLocal8Bit(option.defchoice);
        return false;
    });
    return list;
}

void CupsSupport::collectMarkedOptions(QStringList &list, const ppd_group_t *group) const
{
    if (group) {
        for (int i = 0; i < group->num_subgroups; ++i)
            collectMarkedOptionsHelper(list, group->subgroups + i);
        return;
    }
    const ppd_file_t *file = getPpdFile();
    for (int i = 0; file && i < file->num_groups; ++i) {
        collectMarkedOptions(list, file->groups + i); // a group's subgroups come before its own options
        collectMarkedOptionsHelper(list, file->groups + i);
    }
}

void CupsSupport::collectMarkedOptionsHelper(QStringList &list, const ppd_group_t *group) const
{
    for (int o = 0; group && o < group->num_options; ++o) {
        const ppd_option_t &option = group->options[o];
        for (int c = 0; c < option.num_choices; ++c) {
            const ppd_choice_t &choice = option.choices[c];
            if (choice.marked == 1 && qstrcmp(choice.choice, option.defchoice) != 0)
                list << QString::fromLocal8Bit(option.keyword) << QString::fromLocal8Bit(choice.choice);
        }
    }
}

int CupsSupport::printFile(const QString &fileName, const QString &printerDescription, const QString &title,
                           const QStringList &list) const
{
    int index = -1;
    if (!printerDescription.isEmpty())
        index = printerForSelectOption("printer-info", printerDescription.toUtf8().constData());
    const cups_dest_t *dest = index < 0 ? currentDest() : dests + index;
    if (!dest)
        return 0;
    return PrintJob::submit(*dest, {fileName}, titleOf(title.isEmpty() ? fileName : title), list);
}

int CupsSupport::printFiles(const QStringList &fileNames, const QString &title, const QStringList &list) const
{
    const cups_dest_t *dest = currentDest();
    if (!dest || fileNames.isEmpty())
        return 0;
    return PrintJob::submit(*dest, fileNames, titleOf(title), list);
}
