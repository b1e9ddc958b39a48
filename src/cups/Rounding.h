// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef ROUNDING_H
#define ROUNDING_H

#include <algorithm>
#include <cmath>
#include <limits>

/**
 * The nearest whole number, halves upward: 2.5 gives 3, -2.5 gives -2, -0.5 gives 0.
 *
 * qRound() is not used because Qt 6 rounds negative halves away from zero, and what is stored for the printer must not
 * depend on the Qt version. Numbers out of range give the nearest int, and not-a-number gives 0.
 */
inline int roundHalfUp(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::floor(value + 0.5), lowest, highest));
}

#endif
