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
 * What the driver of the current printer can do, for the dialog: its label settings and their bounds, and whether it
 * accepts user-defined page sizes. Values are read and written with CupsSupport's accessors.
 *
 * Settings are named by our keyword, in the units of CupsSupport's accessors. Points to the CupsSupport, which must
 * outlive it. Valid until another printer becomes current or the printer gets another driver, see update(); the PPD
 * file may be reopened.
 */
class DriverSettings
{
public:
    /** Whose keywords the PPD file declares. */
    enum class Kind {
        Own, ///< ours, or there is no PPD file: every setting is taken to exist, with any value
        Foreign, ///< those of a label printer of another make, see Dialect
        None ///< no label settings: an office printer or a driverless queue
    };

    /** Width and height in points. */
    struct PageSizeLimits
    {
        QSizeF minimum;
        QSizeF maximum;
    };

    explicit DriverSettings(CupsSupport &cups);

    /**
     * Examines the PPD file of the current printer. Changes nothing while the file is out of reach.
     *
     * @return whether the kind of the driver has changed.
     */
    bool update();

    Kind kind() const { return settingsKind; }
    bool isForeign() const { return settingsKind == Kind::Foreign; }

    /** Whether the driver has this setting; true for everything unless the kind is Foreign. */
    bool has(const char *setting) const;

    /** The values that the driver has, in ascending order; empty when no bounds are known. */
    std::vector<Dialect::Choice> choices(const char *setting) const;

    /** The value in force; nothing when it is left to the printer or the kind is not Foreign. */
    std::optional<double> value(const char *setting) const;

    /** Whether there is a value in force that CupsSupport's getter reads; true for everything unless Foreign. */
    bool holds(const char *setting) const;

    /** Whether the setting is left to the printer. */
    bool isLeftToPrinter(const char *setting) const;

    /** The driver's text for leaving the setting to the printer; null when there is no such choice. */
    QString leaveText(const char *setting) const;

    /** Leaves the setting to the printer, if the driver has a choice for that. */
    void leaveToPrinter(const char *setting);

    /** The keywords of the PPD file that a setting is stored under. */
    QStringList keywords(const char *setting) const;

    /**
     * The keywords that a preset of this printer carries: the driver's, the orientation and the page size. Empty when
     * the kind is Own.
     */
    QStringList presetKeywords() const;

    /** The user-defined page sizes that the PPD file allows; nothing when it allows none or there is no PPD file. */
    std::optional<PageSizeLimits> customPageSize() const;

    /** The saved page size in points, if it is user-defined ("Custom.WxH"); empty otherwise. */
    QSizeF userPageSize() const;

    /**
     * Stores a user-defined page size, in points, brought within the limits. An empty size removes the stored one; a
     * page size by name stays. Does nothing if the PPD file does not allow user-defined sizes.
     */
    void setUserPageSize(const QSizeF &points);

private:
    CupsSupport &cups;
    const Dialect *dialect = nullptr;
    Kind settingsKind = Kind::Own;
};

#endif
