// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef TESTLABEL_H
#define TESTLABEL_H

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

class CupsSupport;
class QPainter;

/**
 * A label that shows how the current printer prints: a frame around the imageable area, rulers in millimetres and
 * inches, an arrow to the top of what is printed in the saved orientation, bars for judging the darkness, and the
 * settings in words. It fits labels from 20 x 10 mm.
 */
class TestLabel
{
public:
    /** Takes the page size and the settings of the current printer of @p cups. */
    explicit TestLabel(const CupsSupport &cups);

    /** Draws the label. The painter's unit is the point (1/72 inch) and its origin the sheet's top left corner. */
    void paint(QPainter &painter) const;

    /**
     * Prints the label on the current printer of @p cups.
     *
     * @return the job number, 0 on failure; then @p error says why.
     */
    int print(const CupsSupport &cups, QString *error) const;

    const QSizeF &sheetSize() const { return sheet; } ///< In points.
    const QRectF &imageableArea() const { return imageable; } ///< In points, origin at the sheet's top left.

private:
    bool writePdf(const QString &path) const;

    QSizeF sheet;
    QRectF imageable;
    double dot; // points
    double arrowAngle; // degrees, clockwise from upwards
    QStringList lines;
};

#endif
