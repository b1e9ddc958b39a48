// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FORMROOM_H
#define FORMROOM_H

#include <QEvent>
#include <QLayout>
#include <QWidget>

/** Helps dialogs make room for large fonts and long words in forms of fixed sizes. */
namespace FormRoom {

/** Pixels; that of 10 points at 100 dpi. The forms' sizes are made for fonts up to this. */
inline constexpr int usualFontHeight = 17;

inline bool hasLargeFont(const QWidget &form)
{
    return form.fontMetrics().height() > usualFontHeight;
}

/** Whether a change event makes a form need another size or order, apart from that of the language. */
inline bool isChangedBy(const QEvent &event)
{
    return event.type() == QEvent::FontChange || event.type() == QEvent::StyleChange
           || event.type() == QEvent::LayoutDirectionChange;
}

/**
 * Makes all layouts ask their widgets for their sizes immediately. Otherwise they do so later, and only while shown.
 */
inline void freshenSizeHints(const QWidget &form)
{
    const QList<QLayout *> layouts = form.findChildren<QLayout *>();
    for (auto layout = layouts.crbegin(); layout != layouts.crend(); ++layout) { // inner ones first
        (*layout)->invalidate();
        if (!(*layout)->parent()->isWidgetType())
            continue; // placed with the one that it is in
        (*layout)->parentWidget()->updateGeometry();
        if (form.isVisible())
            (*layout)->activate(); // one that is not shown yet is placed once, when it is
    }
}

} // namespace FormRoom

#endif
