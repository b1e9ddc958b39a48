// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef LABELSETTINGS_H
#define LABELSETTINGS_H

#include "cups/CupsSupport.h"

#include <QString>

#include <array>
#include <optional>

class DriverSettings;
struct ModelFamily;

/**
 * The settings of a label printer in the units of the form, on their way between the printer's options and the fields.
 *
 * A value is missing if a field cannot show it or does not hold one; write() does not change its option.
 */
struct LabelSettings
{
    using Length = std::optional<double> LabelSettings::*;
    using Command = std::optional<QString> LabelSettings::*;

    std::optional<CupsSupport::_CupsOrientation> orientation;
    std::optional<bool> mirror;
    std::optional<bool> inverse;
    std::optional<int> speed;
    std::optional<int> darkness;
    std::optional<CupsSupport::_Category> category;
    std::optional<double> gapSize; ///< Inches, as all lengths here.
    std::optional<double> gapOffset;
    std::optional<double> markSize;
    std::optional<double> markOffset;
    std::optional<int> cut; ///< 0, 2 or 4.
    std::optional<double> feed;
    std::optional<int> back; ///< Dots.
    std::optional<int> overlap; ///< Dots.
    std::optional<double> shift;
    std::optional<double> stop;
    std::optional<QString> jobStart;
    std::optional<QString> labelStart;
    std::optional<QString> labelEnd;
    std::optional<QString> jobEnd;
    std::optional<int> offsetH; ///< Dots.
    std::optional<int> offsetV; ///< Dots.

    /** The user commands in the order of the form. */
    static constexpr std::array<Command, 4> commands{&LabelSettings::jobStart, &LabelSettings::labelStart,
                                                     &LabelSettings::labelEnd, &LabelSettings::jobEnd};

    /** The values shown without a printer. */
    static LabelSettings withoutPrinter(const ModelFamily &family);

    /** The settings of the current printer; without those that its driver does not have or leaves to the printer. */
    static LabelSettings read(const CupsSupport &cups, const DriverSettings &driver);

    /** Removes the values that are equal in @p other, so that write() does not change these options. */
    void forgetSame(const LabelSettings &other);

    /** Stores the values as options of the current printer, in memory. */
    void write(CupsSupport &cups) const;
};

#endif
