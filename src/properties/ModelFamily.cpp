// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/ModelFamily.h"

#include "cups/Rounding.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

// The first one whose marker the name contains; every name contains the last one's.
// clang-format off
constexpr ModelFamily families[] = {
    //                      speed   darkness     gap size   gap offset     feed       stop         offset group
    {QLatin1String("ORCA"), {2, 3}, {0, 15}, 8, {0, 1},    {0, 40},       {-1, 1},   {-1, 1},     true},
    {QLatin1String("KERN"), {1, 3}, {0, 19}, 7, {0, 1000}, {-1000, 1000}, {0, 1000}, {0, 1.57},   false},
    {QLatin1String("LUMA"), {2, 2}, {0, 19}, 7, {0, 1000}, {-1000, 1000}, {0, 1000}, {0, 1.57},   false},
    {QLatin1String("TIK"),  {2, 3}, {0, 15}, 8, {0, 1},    {0, 40},       {-1, 1},   {-1, 1},     true},
    {QLatin1String("ZED"),  {2, 5}, {0, 15}, 8, {0, 1},    {0, 40},       {-1, 1},   {-1, 1},     true},
    {QLatin1String(""),     {1, 3}, {0, 19}, 7, {0, 1000}, {-1000, 1000}, {0, 1000}, {0, 1.57},   false},
};
// clang-format on

constexpr int usualOffsetLimit = 100; // dots

} // namespace

const ModelFamily &ModelFamily::of(const QString &queueName)
{
    return *std::find_if(
        std::begin(families), std::end(families) - 1,
        [&queueName](const ModelFamily &family) { return queueName.contains(family.marker); });
}

int ModelFamily::offsetLimit(double resolution) const
{
    return isOffsetGroup ? roundHalfUp(std::trunc(resolution)) : usualOffsetLimit;
}
