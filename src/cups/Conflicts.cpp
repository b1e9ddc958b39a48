// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/Conflicts.h"

#include "cups/CupsSupport.h"
#include "cups/OptionArray.h"

#include <cups/cups.h>
#include <cups/ppd.h>

#include <algorithm>
#include <utility>

// The whole PPD interface is deprecated, but label printers have no other yet.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

OptionArray toArray(const QStringList &list)
{
    OptionArray array;
    for (QStringList::size_type i = 0; i + 1 < list.size(); i += 2)
        array.set(list.at(i).toLatin1().constData(), list.at(i + 1).toLatin1().constData());
    return array;
}

QStringList toList(const OptionArray &array)
{
    QStringList list;
    for (const cups_option_t &option : array)
        list << QString::fromLatin1(option.name) << QString::fromLatin1(option.value);
    return list;
}

// Calls a function with each option of the PPD file and its marked choice.
template<typename Function>
void forEachMarked(ppd_file_t *ppd, Function function)
{
    for (ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd))
        for (int i = 0; i < option->num_choices; ++i)
            if (option->choices[i].marked)
                function(*option, option->choices[i]);
}

// Marks a PPD file with other options for the time of this object: hosts read the marks that it was opened with.
class OtherMarks
{
public:
    OtherMarks(ppd_file_t *ppd_, const QStringList &list)
        : ppd(ppd_)
    {
        forEachMarked(ppd, [this](const ppd_option_t &option, const ppd_choice_t &choice) {
            before.emplace_back(option.keyword, choice.choice);
        });
        ppdMarkDefaults(ppd);
        toArray(list).pass([this](int count, cups_option_t *options) { cupsMarkOptions(ppd, count, options); });
    }
    ~OtherMarks()
    {
        ppdMarkDefaults(ppd);
        for (const auto &[keyword, choice] : before)
            ppdMarkOption(ppd, keyword, choice);
    }

    OtherMarks(const OtherMarks &) = delete;
    OtherMarks &operator=(const OtherMarks &) = delete;

private:
    ppd_file_t *const ppd;
    std::vector<std::pair<const char *, const char *>> before; // owned by the PPD file
};

QString textOf(const ppd_option_t &option, const ppd_choice_t &choice)
{
    return QString::fromUtf8(option.text) + QLatin1String(": ") + QString::fromUtf8(choice.text);
}

void addPair(std::vector<Conflicts::Pair> &pairs, const Conflicts::Pair &pair)
{
    const bool isKnown = std::any_of(pairs.begin(), pairs.end(), [&pair](const Conflicts::Pair &known) {
        return std::is_permutation(known.keywords.begin(), known.keywords.end(), pair.keywords.begin());
    });
    if (!isKnown)
        pairs.push_back(pair);
}

} // namespace

bool Conflicts::arePossible(const CupsSupport &cups)
{
    ppd_file_t *ppd = cups.getPpdFile();
    return ppd && (ppd->num_consts > 0 || ppdFindAttr(ppd, "cupsUIConstraints", nullptr));
}

std::vector<Conflicts::Pair> Conflicts::among(const CupsSupport &cups, const QStringList &options)
{
    std::vector<Pair> pairs;
    if (!arePossible(cups))
        return pairs;
    ppd_file_t *const ppd = cups.getPpdFile();
    const OtherMarks marks(ppd, options);
    if (ppdConflicts(ppd) == 0)
        return pairs;
    std::vector<std::pair<const ppd_option_t *, const ppd_choice_t *>> inConflict;
    forEachMarked(ppd, [&inConflict](const ppd_option_t &option, const ppd_choice_t &choice) {
        if (option.conflicted)
            inConflict.emplace_back(&option, &choice);
    });
    for (const auto &[option, choice] : inConflict) {
        OptionArray others;
        others.pass([ppd, keyword = option->keyword, text = choice->choice](int &count, cups_option_t *&array) {
            count = cupsGetConflicts(ppd, keyword, text, &array);
        });
        for (const auto &[other, otherChoice] : inConflict)
            if (other != option && others.value(other->keyword))
                addPair(pairs, {{QString::fromLatin1(option->keyword), QString::fromLatin1(other->keyword)},
                                {textOf(*option, *choice), textOf(*other, *otherChoice)}});
    }
    return pairs;
}

QStringList Conflicts::resolution(const CupsSupport &cups, const QStringList &options)
{
    if (among(cups, options).empty())
        return QStringList();
    ppd_file_t *const ppd = cups.getPpdFile();
    const OtherMarks marks(ppd, options);
    OptionArray changes;
    const bool isResolved = changes.pass([ppd](int &count, cups_option_t *&array) {
        return cupsResolveConflicts(ppd, nullptr, nullptr, &count, &array) != 0;
    });
    return isResolved ? toList(changes) : QStringList();
}

QString Conflicts::text(const CupsSupport &cups, const QString &keyword, const QString &choice)
{
    ppd_file_t *const ppd = cups.getPpdFile();
    ppd_option_t *option = ppd ? ppdFindOption(ppd, keyword.toLatin1().constData()) : nullptr;
    const ppd_choice_t *found = option ? ppdFindChoice(option, choice.toLatin1().constData()) : nullptr;
    return found ? textOf(*option, *found) : keyword + QLatin1String(": ") + choice;
}
