// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/DriverSettings.h"

#include "cups/CLocale.h"
#include "cups/CupsSupport.h"

#include <cups/ppd.h>

#include <algorithm>
#include <cstring>
#include <utility>

// The whole PPD interface is deprecated, but label printers have no other yet.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

constexpr char pageSizeKeyword[] = "PageSize";
constexpr char customPrefix[] = "Custom.";

// A PPD file that only declares the darkness may also be ours.
DriverSettings::Kind kindOf(ppd_file_t *ppd, const Dialect *dialect)
{
    if (dialect)
        return DriverSettings::Kind::Foreign;
    return !ppd || Dialect::isOwn(ppd) || ppdFindOption(ppd, "Darkness") ? DriverSettings::Kind::Own
                                                                         : DriverSettings::Kind::None;
}

} // namespace

DriverSettings::DriverSettings(CupsSupport &cups_)
    : cups(cups_)
{
    update();
}

bool DriverSettings::update()
{
    ppd_file_t *ppd = cups.getPpdFile();
    if (cups.isPpdFileOutOfReach())
        return false;
    const Dialect *dialectBefore = std::exchange(dialect, Dialect::of(ppd));
    const Kind kindBefore = std::exchange(settingsKind, kindOf(ppd, dialect));
    return dialect != dialectBefore || settingsKind != kindBefore;
}

bool DriverSettings::has(const char *setting) const
{
    return !dialect || dialect->has(cups, setting);
}

std::vector<Dialect::Choice> DriverSettings::choices(const char *setting) const
{
    return dialect ? dialect->choices(cups, setting) : std::vector<Dialect::Choice>();
}

std::optional<double> DriverSettings::value(const char *setting) const
{
    return dialect ? dialect->value(cups, setting) : std::nullopt;
}

bool DriverSettings::holds(const char *setting) const
{
    return !dialect || dialect->value(cups, setting).has_value();
}

bool DriverSettings::isLeftToPrinter(const char *setting) const
{
    return dialect && dialect->isLeftToPrinter(cups, setting);
}

QString DriverSettings::leaveText(const char *setting) const
{
    return dialect ? dialect->leaveText(cups, setting) : QString();
}

void DriverSettings::leaveToPrinter(const char *setting)
{
    if (dialect)
        dialect->leaveToPrinter(cups, setting);
}

QStringList DriverSettings::keywords(const char *setting) const
{
    return dialect ? dialect->keywords(cups, setting) : QStringList(QLatin1String(setting));
}

QStringList DriverSettings::presetKeywords() const
{
    if (!dialect)
        return QStringList();
    return dialect->keywords(cups) << QStringLiteral("orientation-requested") << QLatin1String(pageSizeKeyword);
}

std::optional<DriverSettings::PageSizeLimits> DriverSettings::customPageSize() const
{
    ppd_file_t *ppd = cups.getPpdFile();
    if (!ppd || !ppd->variable_sizes)
        return std::nullopt;
    return PageSizeLimits{QSizeF(ppd->custom_min[0], ppd->custom_min[1]),
                          QSizeF(ppd->custom_max[0], ppd->custom_max[1])};
}

QSizeF DriverSettings::userPageSize() const
{
    const char *saved = cups.getValue(pageSizeKeyword);
    ppd_file_t *ppd = cups.getPpdFile();
    if (!ppd || !saved || qstrnicmp(saved, customPrefix, std::strlen(customPrefix)) != 0)
        return QSizeF();
    const CLocale cLocale;
    const ppd_size_t *size = ppdPageSize(ppd, saved);
    return size ? QSizeF(size->width, size->length) : QSizeF();
}

void DriverSettings::setUserPageSize(const QSizeF &points)
{
    const std::optional<PageSizeLimits> limits = customPageSize();
    if (!limits)
        return;
    if (points.isEmpty()) {
        if (!userPageSize().isEmpty())
            cups.deleteOptions({QLatin1String(pageSizeKeyword)});
        return;
    }
    const QSizeF size = points.expandedTo(limits->minimum).boundedTo(limits->maximum);
    const QByteArray value =
        customPrefix + QByteArray::number(size.width(), 'f', 2) + 'x' + QByteArray::number(size.height(), 'f', 2);
    cups.setValue(pageSizeKeyword, value.constData());
}
