// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FORMROOM_H
#define FORMROOM_H

#include <QLayout>
#include <QWidget>

/** What the dialogs need to know to make room for large fonts and long words in forms of fixed sizes. */
namespace FormRoom {

/** Pixels; that of 10 points at 100 dpi. The forms' sizes are made for fonts up to this. */
inline constexpr int usualFontHeight = 17;

inline bool hasLargeFont(const QWidget &form)
{
    return form.fontMetrics().height() > usualFontHeight;
}

/** Has all layouts ask again what their widgets need. By themselves they do so only later, and only while shown. */
inline void freshenSizeHints(const QWidget &form)
{
    const QList<QLayout *> layouts = form.findChildren<QLayout *>();
    for (auto layout = layouts.crbegin(); layout != layouts.crend(); ++layout) { // inner ones first
        if (!(*layout)->parent()->isWidgetType())
            continue; // goes with the one that it is in
        (*layout)->invalidate();
        (*layout)->activate();
    }
}

} // namespace FormRoom

#endif
