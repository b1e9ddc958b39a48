// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef WHEELGUARD_H
#define WHEELGUARD_H

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QSlider>

/** Lets the wheel change lists, sliders and spin boxes only while they have the focus, which it does not give them. */
class WheelGuard : public QObject
{
public:
    /** Guards the fields that @p form has now. @p form owns the guard. */
    explicit WheelGuard(QWidget *form)
        : QObject(form)
    {
        for (QComboBox *list : form->findChildren<QComboBox *>())
            guard(list);
        for (QSlider *slider : form->findChildren<QSlider *>())
            guard(slider);
        for (QAbstractSpinBox *box : form->findChildren<QAbstractSpinBox *>())
            guard(box);
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
