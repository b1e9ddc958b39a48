// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef UNITS_H
#define UNITS_H

inline constexpr double millimetresPerInch = 25.4;
inline constexpr double pointsPerInch = 72.0; // of CUPS and PPD files

#endif
