// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PICTURES_H
#define PICTURES_H

#include <QAbstractButton>
#include <QCoreApplication>
#include <QImage>
#include <QPixmap>
#include <QProxyStyle>

#include <algorithm>
#include <cstdlib>

/** Fusion with icons on the buttons of dialogs, as on most desktops; without a desktop it has none. */
class StyleWithIcons : public QProxyStyle
{
public:
    StyleWithIcons()
        : QProxyStyle(QStringLiteral("Fusion"))
    {
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *result) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 1 : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

inline QImage picture(QWidget *widget)
{
    QCoreApplication::processEvents();
    return widget->grab().toImage();
}

/** The longest stretch of columns without anything painted between the first and the last thing on a button. */
inline int widestGap(QAbstractButton *button)
{
    QImage image = picture(button);
    const int frame = 6;
    image = image.copy(image.rect().adjusted(frame, frame, -frame, -frame));
    int last = -1;
    int gap = 0;
    for (int x = 0; x < image.width(); ++x) {
        // Against its own upper end: a button's face changes from top to bottom, and slowly.
        bool isPainted = false;
        for (int y = 1; y < image.height(); ++y)
            isPainted = isPainted || std::abs(qGray(image.pixel(x, y)) - qGray(image.pixel(x, y - 1))) > 40;
        if (!isPainted)
            continue;
        if (last >= 0)
            gap = std::max(gap, x - last);
        last = x;
    }
    return last < 0 ? -1 : gap;
}

/** Whether a button has an icon and a text, side by side. */
inline bool isTogether(QAbstractButton *button)
{
    constexpr int closeEnough = 12; // pixels; less than two letters
    const int gap = widestGap(button);
    return !button->icon().isNull() && gap > 0 && gap < closeEnough;
}

#endif
