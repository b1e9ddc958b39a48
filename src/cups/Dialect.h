// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef DIALECT_H
#define DIALECT_H

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class CupsSupport;
struct DriverSetting;
typedef struct ppd_file_s ppd_file_t;

/**
 * The names of our label settings in a driver of another make: its keyword for each setting, and how values are
 * converted. Each dialect is one table in Dialect.cpp.
 *
 * Settings are named by our keyword ("Darkness", "PrintSpeed", "CutMedia") and have our units, as in CupsSupport's
 * accessors; flags are 0 and 1. Values are read from and written to the working copy of the current printer.
 */
struct Dialect
{
    /** One value that the driver has for a setting. */
    struct Choice
    {
        double value; ///< in our unit
        QString text; ///< the driver's text for it, for the user
    };

    /**
     * The dialect of a PPD file, told by the keywords that it declares; null for a PPD file with our own label options
     * and for one that declares none that we know.
     */
    static const Dialect *of(ppd_file_t *ppd);

    /** Whether the PPD file declares label options of our own printers. */
    static bool isOwn(ppd_file_t *ppd);

    /** Whether the current printer has a counterpart of @p setting. */
    bool has(const CupsSupport &cups, const char *setting) const;

    /**
     * The value in force for @p setting: the saved choice or, if none is saved or the PPD file does not list it, the
     * default, as for the driver.
     *
     * @return nothing when the driver does not have the setting, leaves it to the printer, or is at a choice that has no
     *         counterpart here.
     */
    std::optional<double> value(const CupsSupport &cups, const char *setting) const;

    /** Whether the choice in force is the one that leaves @p setting to the printer. */
    bool isLeftToPrinter(const CupsSupport &cups, const char *setting) const;

    /** The driver's text for leaving @p setting to the printer; null when it has no such choice. */
    QString leaveText(const CupsSupport &cups, const char *setting) const;

    /**
     * Stores @p value as the driver's nearest choice. Stores nothing if the driver does not have the setting, or if the
     * setting is not a quantity (the media type, for example) and the driver does not have this value.
     */
    void setValue(CupsSupport &cups, const char *setting, double value) const;

    /** Stores the choice that leaves @p setting to the printer, if it exists. */
    void leaveToPrinter(CupsSupport &cups, const char *setting) const;

    /** The values that the PPD file lists for @p setting, in ascending order, without the one that leaves it open. */
    std::vector<Choice> choices(const CupsSupport &cups, const char *setting) const;

    /** The driver's keywords for one setting; empty when the current printer does not have it. */
    QStringList keywords(const CupsSupport &cups, const char *setting) const;

    /** The driver's keywords for all settings that the current printer has, in the order of the table. */
    QStringList keywords(const CupsSupport &cups) const;

    const char *markers[4]; ///< a PPD file that declares one of these speaks the dialect; null ends them
    const DriverSetting *settings;
    int count; ///< of settings
};

#endif
