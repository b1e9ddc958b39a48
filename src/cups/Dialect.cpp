// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/Dialect.h"

#include "cups/CLocale.h"
#include "cups/CupsSupport.h"
#include "cups/Units.h"

#include <QtGlobal>

#include <cups/ppd.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>

// The whole PPD interface is deprecated, but label printers have no other yet.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

// How a setting's values become those of the driver.
enum class Conversion {
    Number, // the number that a choice begins with, in our unit
    Dots, // the same; ours is in millimetres, the driver's in dots of the vertical resolution
    MillimetresPerSecond, // the same; ours is in inches per second
    Steps, // value by value; other numbers become the nearest
    Choices // value by value, and no others
};

struct Condition
{
    const char *keyword;
    const char *choice;
};

// One of our values and the driver's choices for it. The PPD file must have the first keyword; the second condition
// only applies if the PPD file has its keyword too.
struct DriverValue
{
    double value;
    Condition first;
    Condition second;
};

} // namespace

struct DriverSetting
{
    const char *setting; // our keyword
    const char *keyword; // the driver's; without it the printer does not have the setting
    const char *leave; // the choice that leaves the setting to the printer, or null
    Conversion conversion;
    DriverValue values[5]; // for Steps and Choices; the first that fits counts, for reading as for writing
};

namespace {

// ----- the tables -----

// rastertolabel of CUPS for ZPL, EPL1, EPL2 and CPCL. Peel-off, rewinder and applicator are modes without a cut.
constexpr DriverSetting zebraSettings[] = {
    {"Darkness", "Darkness", "-1", Conversion::Number, {}},
    {"PrintSpeed", "zePrintRate", "Default", Conversion::Number, {}},
    {"LabelCategory",
     "zeMediaTracking",
     nullptr,
     Conversion::Choices,
     {{0, {"zeMediaTracking", "Continuous"}, {}},
      {1, {"zeMediaTracking", "Web"}, {}},
      {2, {"zeMediaTracking", "Mark"}, {}}}},
    {"Direct",
     "MediaType",
     "Saved",
     Conversion::Choices,
     {{1, {"MediaType", "Direct"}, {}}, {0, {"MediaType", "Thermal"}, {}}}},
    {"CutMedia",
     "zePrintMode",
     "Saved",
     Conversion::Choices,
     {{4, {"zePrintMode", "Cutter"}, {}},
      {0, {"zePrintMode", "Tear"}, {}},
      {0, {"zePrintMode", "Peel"}, {}},
      {0, {"zePrintMode", "Rewind"}, {}},
      {0, {"zePrintMode", "Applicator"}, {}}}},
    {"OffsetV", "zeLabelTop", "200", Conversion::Number, {}},
    {"Stop", "zeTearOffPosition", "1000", Conversion::Dots, {}},
};

// rastertolabel of CUPS for Intellitech PCL.
constexpr DriverSetting intellitechSettings[] = {
    {"Darkness", "inPrintDensity", "Default", Conversion::Number, {}},
    {"PrintSpeed", "inPrintRate", "Default", Conversion::MillimetresPerSecond, {}},
    {"CutMedia",
     "inPrintMode",
     nullptr,
     Conversion::Choices,
     {{4, {"inPrintMode", "Cut"}, {}}, {0, {"inPrintMode", "Standard"}, {}}, {0, {"inPrintMode", "Tear"}, {}}}},
};

// rastertolabel of CUPS for Dymo.
constexpr DriverSetting cupsDymoSettings[] = {
    {"Darkness",
     "cupsDarkness",
     nullptr,
     Conversion::Steps,
     {{1, {"cupsDarkness", "Light"}, {}},
      {2, {"cupsDarkness", "Medium"}, {}},
      {3, {"cupsDarkness", "Normal"}, {}},
      {4, {"cupsDarkness", "Dark"}, {}}}},
};

// Dymo's own drivers, for labels and for tape. Between labels the tape printers cut or print chain marks, and so at the
// end of the job.
constexpr DriverSetting dymoSettings[] = {
    {"Darkness",
     "DymoPrintDensity",
     nullptr,
     Conversion::Steps,
     {{1, {"DymoPrintDensity", "Light"}, {}},
      {2, {"DymoPrintDensity", "Medium"}, {}},
      {3, {"DymoPrintDensity", "Normal"}, {}},
      {4, {"DymoPrintDensity", "Dark"}, {}}}},
    {"LabelCategory",
     "DymoContinuousPaper",
     nullptr,
     Conversion::Choices,
     {{0, {"DymoContinuousPaper", "1"}, {}}, {1, {"DymoContinuousPaper", "0"}, {}}}},
    {"CutMedia",
     "DymoCutOptions",
     nullptr,
     Conversion::Choices,
     {{4, {"DymoCutOptions", "Cut"}, {"DymoPrintChainMarksAtDocEnd", "0"}},
      {4, {"DymoCutOptions", "Cut"}, {}},
      {2, {"DymoCutOptions", "ChainMarks"}, {"DymoPrintChainMarksAtDocEnd", "0"}},
      {0, {"DymoPrintChainMarksAtDocEnd", "1"}, {"DymoCutOptions", "ChainMarks"}}}},
};

// printer-driver-ptouch. Without AutoEject the end of a job stays in the printer, uncut, until the next one.
constexpr DriverSetting ptouchSettings[] = {
    {"Darkness", "PrintDensity", "0PrinterDefault", Conversion::Number, {}},
    {"LabelCategory",
     "MediaType",
     nullptr,
     Conversion::Choices,
     {{0, {"MediaType", "Tape"}, {}}, {1, {"MediaType", "Labels"}, {}}}},
    {"CutMedia",
     "AutoEject",
     nullptr,
     Conversion::Choices,
     {{4, {"AutoCut", "True"}, {"AutoEject", "True"}},
      {4, {"AutoCut", "True"}, {}},
      {2, {"AutoEject", "True"}, {"AutoCut", "False"}},
      {0, {"AutoEject", "False"}, {"AutoCut", "False"}}}},
    {"MirrorPrint",
     "MirrorPrint",
     nullptr,
     Conversion::Choices,
     {{1, {"MirrorPrint", "True"}, {}}, {0, {"MirrorPrint", "False"}, {}}}},
};

template<int size>
constexpr Dialect dialect(const char *marker, const DriverSetting (&settings)[size], const char *marker2 = nullptr,
                          const char *marker3 = nullptr)
{
    return {{marker, marker2, marker3, nullptr}, settings, size};
}

constexpr Dialect dialects[] = {
    dialect("zePrintRate", zebraSettings),
    dialect("inPrintDensity", intellitechSettings),
    dialect("cupsDarkness", cupsDymoSettings),
    dialect("DymoPrintDensity", dymoSettings, "DymoContinuousPaper", "DymoCutOptions"),
    dialect("ExtraMargin", ptouchSettings),
};

// If the PPD file has any of these, it is for our own printers. Other makes use the rest of our keywords too.
constexpr const char *ownKeywords[] = {"LabelCategory", "GapSize",    "GapOffset", "MarkSize", "MarkOffset",
                                       "PrintSpeed",    "LabelStart", "LabelEnd",  "JobStart", "JobEnd"};

// ----- one setting of one printer -----

// A setting's row with the PPD file that it is looked up in.
class Counterpart
{
public:
    Counterpart(const CupsSupport &cups_, const DriverSetting &row_)
        : cups(cups_)
        , row(row_)
        , ppd(cups_.getPpdFile())
    {
    }

    bool exists() const { return option(row.keyword); }

    bool isListed() const { return row.conversion == Conversion::Steps || row.conversion == Conversion::Choices; }

    bool isLeft() const { return row.leave && qstrcmp(effective(row.keyword), row.leave) == 0; }

    const ppd_choice_t *leaveChoice() const { return row.leave ? choice(row.keyword, row.leave) : nullptr; }

    std::optional<double> value() const
    {
        if (isListed())
            return listedValue();
        const char *text = effective(row.keyword);
        return text && !isLeft() ? number(text) : std::nullopt;
    }

    // Calls a function with each value that the driver has and the choice's record.
    template<typename Function>
    void forEachValue(Function function) const
    {
        if (isListed()) {
            for (const DriverValue &listed : row.values)
                if (listed.first.keyword)
                    if (const ppd_choice_t *found = choice(listed.first.keyword, listed.first.choice))
                        function(listed.value, *found, &listed);
            return;
        }
        const ppd_option_t *numbers = option(row.keyword);
        for (int i = 0; numbers && i < numbers->num_choices; ++i)
            if (const ppd_choice_t &found = numbers->choices[i]; !row.leave || qstrcmp(found.choice, row.leave) != 0)
                if (const std::optional<double> ours = number(found.choice))
                    function(*ours, found, nullptr);
    }

    // The choice nearest to one of our values, the first of two equally near ones; null keywords if there is none.
    DriverValue nearest(double wanted) const
    {
        DriverValue best = {};
        forEachValue([&](double ours, const ppd_choice_t &found, const DriverValue *listed) {
            const bool fits = row.conversion != Conversion::Choices || ours == wanted;
            if (!fits || (best.first.keyword && std::abs(ours - wanted) >= std::abs(best.value - wanted)))
                return;
            best = listed ? *listed : DriverValue{ours, {row.keyword, found.choice}, {}};
        });
        return best;
    }

    bool declares(const Condition &condition) const { return condition.keyword && option(condition.keyword); }

private:
    const CupsSupport &cups;
    const DriverSetting &row;
    ppd_file_t *const ppd;

    ppd_option_t *option(const char *keyword) const { return ppd ? ppdFindOption(ppd, keyword) : nullptr; }

    const ppd_choice_t *choice(const char *keyword, const char *name) const
    {
        ppd_option_t *found = option(keyword);
        return found ? ppdFindChoice(found, name) : nullptr;
    }

    // The filters pass over choices that the PPD file does not list.
    const char *effective(const char *keyword) const
    {
        ppd_option_t *found = option(keyword);
        if (!found)
            return nullptr;
        const char *saved = cups.getValue(keyword);
        const ppd_choice_t *listed = saved ? ppdFindChoice(found, saved) : nullptr;
        return listed ? listed->choice : found->defchoice;
    }

    bool holds(const Condition &condition) const
    {
        return qstrcmp(effective(condition.keyword), condition.choice) == 0;
    }

    std::optional<double> listedValue() const
    {
        for (const DriverValue &listed : row.values)
            if (declares(listed.first) && holds(listed.first) && (!declares(listed.second) || holds(listed.second)))
                return listed.value;
        return std::nullopt;
    }

    std::optional<double> number(const char *text) const
    {
        const CLocale cLocale;
        char *end = nullptr;
        const double driver = std::strtod(text, &end);
        if (end == text || !std::isfinite(driver))
            return std::nullopt;
        switch (row.conversion) {
        case Conversion::Dots:
            return driver * millimetresPerInch / cups.getResolution().height();
        case Conversion::MillimetresPerSecond:
            return driver / millimetresPerInch;
        default:
            return driver;
        }
    }
};

} // namespace

// ----- choosing -----

bool Dialect::isOwn(ppd_file_t *ppd)
{
    return ppd
           && std::any_of(
               std::begin(ownKeywords), std::end(ownKeywords),
               [ppd](const char *keyword) { return ppdFindOption(ppd, keyword); });
}

const Dialect *Dialect::of(ppd_file_t *ppd)
{
    if (!ppd || isOwn(ppd))
        return nullptr;
    for (const Dialect &dialect : dialects)
        for (int i = 0; dialect.markers[i]; ++i)
            if (ppdFindOption(ppd, dialect.markers[i]))
                return &dialect;
    return nullptr;
}

// ----- settings by our keyword -----

namespace {

// The counterpart of a setting, where the current printer has one.
std::optional<Counterpart> counterpart(const Dialect &dialect, const CupsSupport &cups, const char *setting)
{
    for (int i = 0; i < dialect.count; ++i) {
        if (qstrcmp(dialect.settings[i].setting, setting) == 0) {
            const Counterpart found(cups, dialect.settings[i]);
            return found.exists() ? std::optional<Counterpart>(found) : std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace

bool Dialect::has(const CupsSupport &cups, const char *setting) const
{
    return counterpart(*this, cups, setting).has_value();
}

std::optional<double> Dialect::value(const CupsSupport &cups, const char *setting) const
{
    const auto found = counterpart(*this, cups, setting);
    return found ? found->value() : std::nullopt;
}

bool Dialect::isLeftToPrinter(const CupsSupport &cups, const char *setting) const
{
    const auto found = counterpart(*this, cups, setting);
    return found && found->isLeft();
}

QString Dialect::leaveText(const CupsSupport &cups, const char *setting) const
{
    const auto found = counterpart(*this, cups, setting);
    const ppd_choice_t *choice = found ? found->leaveChoice() : nullptr;
    return choice ? QString::fromUtf8(choice->text) : QString();
}

void Dialect::setValue(CupsSupport &cups, const char *setting, double value) const
{
    const auto found = counterpart(*this, cups, setting);
    if (!found || std::isnan(value))
        return;
    const DriverValue choice = found->nearest(value);
    // Of several choices that mean the same, such as the modes without a cut, the one in force stays.
    if (!choice.first.keyword || (found->isListed() && found->value() == choice.value))
        return;
    cups.setValue(choice.first.keyword, choice.first.choice);
    if (found->declares(choice.second))
        cups.setValue(choice.second.keyword, choice.second.choice);
}

void Dialect::leaveToPrinter(CupsSupport &cups, const char *setting) const
{
    for (int i = 0; i < count; ++i)
        if (qstrcmp(settings[i].setting, setting) == 0 && Counterpart(cups, settings[i]).leaveChoice())
            cups.setValue(settings[i].keyword, settings[i].leave);
}

std::vector<Dialect::Choice> Dialect::choices(const CupsSupport &cups, const char *setting) const
{
    std::vector<Choice> list;
    if (const auto found = counterpart(*this, cups, setting))
        found->forEachValue([&list](double value, const ppd_choice_t &choice, const DriverValue *) {
            list.push_back({value, QString::fromUtf8(choice.text)});
        });
    // Of several choices that mean the same the first is the one that is written.
    std::stable_sort(
        list.begin(), list.end(), [](const Choice &a, const Choice &b) { return a.value < b.value; });
    const auto isSame = [](const Choice &a, const Choice &b) { return a.value == b.value; };
    list.erase(std::unique(list.begin(), list.end(), isSame), list.end());
    return list;
}

QStringList Dialect::keywords(const CupsSupport &cups, const char *setting) const
{
    QStringList list;
    for (int i = 0; i < count; ++i) {
        const Counterpart found(cups, settings[i]);
        if (qstrcmp(settings[i].setting, setting) != 0 || !found.exists())
            continue;
        list << QString::fromLatin1(settings[i].keyword);
        for (const DriverValue &value : settings[i].values)
            for (const Condition &condition : {value.first, value.second})
                if (found.declares(condition))
                    list << QString::fromLatin1(condition.keyword);
    }
    list.removeDuplicates();
    return list;
}

QStringList Dialect::keywords(const CupsSupport &cups) const
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list << keywords(cups, settings[i].setting);
    return list;
}
