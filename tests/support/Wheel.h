// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef WHEEL_H
#define WHEEL_H

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

/** Turns the wheel by one notch towards the user, with the pointer near the left end of @p widget. */
inline void turnWheel(QWidget *widget)
{
    const QPoint place(5, widget->height() / 2);
    QWidget *child = widget->childAt(place);
    QWidget *under = child ? child : widget; // such as the line edit of a spin box
    const QPoint global = widget->mapToGlobal(place);
    QWheelEvent event(under->mapFromGlobal(global), global, QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    // Only what comes from the user can move the focus and reaches the widgets around one that ignores it.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(under, &event);
}

#endif
