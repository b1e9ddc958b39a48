// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PAGESIZEBOX_H
#define PAGESIZEBOX_H

#include <QList>
#include <QPair>
#include <QSizeF>
#include <QString>

class CupsSupport;
class DriverSettings;
class QLineEdit;
class Ui_PrintPropertiesDialog;

/**
 * The box of the properties dialog for a user-defined page size. Our own drivers are given the size by their command,
 * others as an option.
 */
class PageSizeBox
{
public:
    /** Both must outlive this object. */
    PageSizeBox(const Ui_PrintPropertiesDialog &ui, DriverSettings &driver);

    /**
     * Shows the page size of the current printer, and by the check mark whether it is the user's.
     *
     * @param ofPreset the user-defined page size of the current preset, in inches.
     */
    void show(const CupsSupport *cups, const QSizeF &ofPreset);

    /** The fields and what they show of the page size of the current printer; none if that is not known. */
    QList<QPair<QLineEdit *, QString>> texts(const CupsSupport *cups) const;

    /** The user-defined page size in inches; 0 by 0 when there is none. */
    QSizeF size() const;

    /** Stores the size in the working copy if the driver has it as an option and it was changed since it was shown. */
    void store();

    /** Treats the size as unchanged. */
    void setUnchanged();

    void setFieldsEnabled(bool isEnabled);
    void clearFields();

private:
    QSizeF option() const;

    const Ui_PrintPropertiesDialog &ui;
    DriverSettings &driver;
    const bool isAlwaysUsed;
    QSizeF unchanged; // inches; the size when it was last shown or saved
};

#endif
