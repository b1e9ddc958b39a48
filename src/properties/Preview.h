// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PREVIEW_H
#define PREVIEW_H

#include <QWidget>

/**
 * Shows how a label will be printed: a sample text on a label of the right proportions, mirrored or in
 * negative, and an arrow at the edge of the widget that stands for the orientation.
 *
 * Whoever changes a member calls update() afterwards.
 */
class Preview : public QWidget
{
    Q_OBJECT

public:
    explicit Preview(QWidget *parent = nullptr);

    /** Width and height in any one unit: only their ratio matters. */
    double labelWidth = 160.0;
    double labelHeight = 160.0;

    /** A code of "orientation-requested", 3 to 6. With any other number there is no arrow. */
    int orientation = 4;

    bool mirror = false;
    bool negative = false;

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
