// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/FormButtons.h"

#include <QEvent>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

// Reaches how a button wants to be painted, which is protected.
struct PaintedButton : QPushButton
{
    static QStyleOptionButton optionOf(const QPushButton &button)
    {
        QStyleOptionButton option;
        (button.*&PaintedButton::initStyleOption)(&option);
        return option;
    }
};

class ButtonPainter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        auto *button = qobject_cast<QPushButton *>(object);
        if (event->type() != QEvent::Paint || !button || !button->isRightToLeft() || button->icon().isNull())
            return false;
        QStylePainter painter(button);
        // The style has turned left and right already. A painter that reads from the right turns them once more.
        painter.setLayoutDirection(Qt::LayoutDirectionAuto);
        painter.drawControl(QStyle::CE_PushButton, PaintedButton::optionOf(*button));
        return true;
    }
};

} // namespace

void FormButtons::keepIconsBesideTexts(QWidget &form)
{
    auto *painter = new ButtonPainter(&form);
    const QList<QPushButton *> buttons = form.findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        button->installEventFilter(painter);
}
