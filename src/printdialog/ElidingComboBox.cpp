// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "printdialog/ElidingComboBox.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>

namespace {

// The margin beside the text that styles leave, both sides together.
constexpr int textMargins = 4;

} // namespace

int ElidingComboBox::wholeWidth() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    int width = 0;
    for (int index = 0; index < count(); ++index)
        width = std::max(width, option.fontMetrics.horizontalAdvance(itemText(index)));
    const QSize content(width + textMargins, option.fontMetrics.height());
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this).width();
}

void ElidingComboBox::showPopup()
{
    const int whole = view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(std::min(whole, screen()->availableGeometry().width() / 2));
    view()->setTextElideMode(Qt::ElideMiddle);
    QComboBox::showPopup();
}

// Not the tool tip property: screen readers would read the name twice.
bool ElidingComboBox::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QComboBox::event(event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const bool isWhole = isEditable() || shownText(option) == option.currentText;
    const QString text = isWhole ? QString() : QStringLiteral("<span>%1</span>").arg(currentText().toHtmlEscaped());
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text, this);
    return true;
}

void ElidingComboBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.currentText = shownText(option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

QString ElidingComboBox::shownText(const QStyleOptionComboBox &option) const
{
    const QRect place = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    return option.fontMetrics.elidedText(option.currentText, Qt::ElideMiddle, place.width() - textMargins);
}
