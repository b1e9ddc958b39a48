// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// Option lists. Input: keyword, value, keyword, value ... with NULs in between.

#include "Fuzz.h"

#include "cups/CupsSupport.h"
#include "FakeScheduler.h"
#include "presets/Preset.h"

namespace {

QString valueOf(const QStringList &list, const QString &keyword)
{
    for (int i = 0; i + 1 < list.size(); i += 2)
        if (list.at(i).compare(keyword, Qt::CaseInsensitive) == 0)
            return list.at(i + 1);
    return QString();
}

bool isAscii(const QString &text)
{
    for (const QChar c : text)
        if (c.unicode() > 0x7f)
            return false;
    return true;
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    FakeScheduler::setQueues({"P"});
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static CupsSupport cups;
    QStringList list;
    for (const QByteArray &text : texts(bytes(data, size)))
        list << QString::fromLatin1(text);

    const bool changed = cups.setOptions(list);
    const QStringList stored = cups.cupsOptions();
    FUZZ_CHECK(stored.size() % 2 == 0);
    FUZZ_CHECK(changed || stored.isEmpty());
    FUZZ_CHECK(!cups.setOptions(stored));
    FUZZ_CHECK(cups.cupsOptions() == stored);
    // The last value of each keyword counts.
    QStringList seen;
    for (auto i = (list.size() / 2) * 2 - 2; i >= 0; i -= 2) {
        const QString &keyword = list.at(i);
        if (keyword.isEmpty() || !isAscii(keyword) || seen.contains(keyword, Qt::CaseInsensitive))
            continue;
        seen << keyword;
        FUZZ_CHECK(valueOf(stored, keyword) == list.at(i + 1));
    }

    // Presets only take their own options from a list.
    Preset preset(QStringLiteral("P"), QString(), list, QStringLiteral("<Current Settings>"), QString(), 0);
    const QStringList carried = preset.options();
    for (int i = 0; i + 1 < carried.size(); i += 2)
        FUZZ_CHECK(preset.getOptionNames().contains(carried.at(i)));
    FUZZ_CHECK(!preset.setOptions(carried));

    QStringList keywords;
    for (int i = 0; i + 1 < stored.size(); i += 2)
        keywords << stored.at(i);
    cups.deleteOptions(keywords);
    FUZZ_CHECK(cups.cupsOptions().isEmpty());
    return 0;
}
