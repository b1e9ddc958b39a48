// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef WHEELGUARD_H
#define WHEELGUARD_H

#include <QComboBox>
#include <QEvent>
#include <QSlider>

/** Lets the wheel change a list or a slider only while it has the focus. The wheel does not give it the focus. */
class WheelGuard : public QObject
{
public:
    /** Guards the lists and sliders that @p form has now. @p form owns the guard. */
    explicit WheelGuard(QWidget *form)
        : QObject(form)
    {
        for (QComboBox *list : form->findChildren<QComboBox *>())
            guard(list);
        for (QSlider *slider : form->findChildren<QSlider *>())
            guard(slider);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget *>(object)->hasFocus())
            return QObject::eventFilter(object, event);
        event->ignore(); // a scroll area around it may scroll
        return true;
    }

private:
    void guard(QWidget *widget)
    {
        widget->setFocusPolicy(Qt::StrongFocus);
        widget->installEventFilter(this);
    }
};

#endif
