// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "widgets/FormButtons.h"

#include <QEvent>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

// Gives access to the protected style option of a button.
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
        // The style has already exchanged left and right. A painter with a right-to-left layout would exchange them
        // again.
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
