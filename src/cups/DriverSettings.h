// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef DRIVERSETTINGS_H
#define DRIVERSETTINGS_H

#include "cups/Dialect.h"

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class CupsSupport;

/**
 * What the driver of the current printer can do, for the dialog: which label settings it has and within which bounds,
 * and whether it takes page sizes of the user's. The values themselves go through CupsSupport's accessors.
 *
 * Settings are named by our keyword, in the units of CupsSupport's accessors. Points to the printer access object,
 * which has to live longer. What it says holds until another printer becomes current or the printer gets another driver, see
 * update(); the PPD file may be reopened.
 */
class DriverSettings
{
public:
    /** Whose keywords the PPD file declares. */
    enum class Kind {
        Own, ///< ours, or there is no PPD file: every setting is taken to exist, with any value
        Foreign, ///< those of a label printer of another make, see Dialect
        None ///< no label settings at all, as for an office printer or a driverless queue
    };

    /** Width and height in points. */
    struct PageSizeLimits
    {
        QSizeF minimum;
        QSizeF maximum;
    };

    explicit DriverSettings(CupsSupport &cups);

    /**
     * Looks at the PPD file of the printer that is current now. While that is out of reach, everything stays as it is.
     *
     * @return whether the driver is of another kind than before.
     */
    bool update();

    Kind kind() const { return settingsKind; }
    bool isForeign() const { return settingsKind == Kind::Foreign; }

    /** Whether the driver has this setting; true for everything unless the kind is Foreign. */
    bool has(const char *setting) const;

    /** The values that the driver has, in ascending order; empty when there are no bounds known. */
    std::vector<Dialect::Choice> choices(const char *setting) const;

    /** The value in force; nothing when it is left to the printer or the kind is not Foreign. */
    std::optional<double> value(const char *setting) const;

    /** Whether there is a value in force that CupsSupport's getter reads; true for everything unless Foreign. */
    bool holds(const char *setting) const;

    /** Whether the setting is left to the printer. */
    bool isLeftToPrinter(const char *setting) const;

    /** The driver's text for leaving the setting to the printer; null when there is no such choice. */
    QString leaveText(const char *setting) const;

    /** Leaves the setting to the printer, where the driver has a choice for that. */
    void leaveToPrinter(const char *setting);

    /** The keywords of the PPD file that a setting is stored under. */
    QStringList keywords(const char *setting) const;

    /**
     * The keywords that a preset of this printer carries: the driver's, the orientation and the page size. Empty when
     * the kind is Own.
     */
    QStringList presetKeywords() const;

    /** What page sizes of the user's the PPD file allows; nothing when it allows none or there is no PPD file. */
    std::optional<PageSizeLimits> customPageSize() const;

    /** The saved page size in points, where it is one of the user's ("Custom.WxH"); empty otherwise. */
    QSizeF userPageSize() const;

    /**
     * Stores a page size of the user's, in points, brought within the limits. An empty size removes the one that is
     * stored; a page size by name stays. Does nothing where the PPD file allows none.
     */
    void setUserPageSize(const QSizeF &points);

private:
    CupsSupport &cups;
    const Dialect *dialect = nullptr;
    Kind settingsKind = Kind::Own;
};

#endif
