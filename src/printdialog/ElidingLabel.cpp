// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "printdialog/ElidingLabel.h"

#include <QPainter>
#include <QStyle>

void ElidingLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QRect place = contentsRect();
    const auto flags = QStyle::visualAlignment(layoutDirection(), alignment());
    // Also in an Arabic form, an English text begins at the left and has its ellipsis at the right.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    style()->drawItemText(&painter, place, static_cast<int>(flags) | Qt::TextSingleLine, palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, place.width()), foregroundRole());
}
