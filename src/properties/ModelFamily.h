// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef MODELFAMILY_H
#define MODELFAMILY_H

#include "properties/LabelSettings.h"

#include <QLatin1String>
#include <QString>

/** What the form offers depends on the family of the printer's model, which its queue name tells. */
struct ModelFamily
{
    struct Steps
    {
        int minimum;
        int maximum;
    };
    struct Inches
    {
        double bottom;
        double top;
    };

    QLatin1String marker; ///< What the queue's name contains.
    Steps speed;
    Steps darkness;
    int fallbackDarkness;
    Inches gapSize; ///< Also of black marks.
    Inches gapOffset;
    Inches feed;
    Inches stop;
    /**
     * The stop field is a vertical offset, stored as the shift. Labels with gaps have an offset, too, and all labels a
     * feed. The print offsets reach as far as the resolution.
     */
    bool isOffsetGroup;

    /** The family of a queue. Queues without any marker also have a family. */
    static const ModelFamily &of(const QString &queueName);

    /** The setting that the stop field holds. */
    LabelSettings::Length stopField() const { return isOffsetGroup ? &LabelSettings::shift : &LabelSettings::stop; }

    /** The largest print offset, in dots, at a vertical resolution in dots per inch. */
    int offsetLimit(double resolution) const;
};

#endif
