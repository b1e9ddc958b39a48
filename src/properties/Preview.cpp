// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/Preview.h"

#include "cups/CupsSupport.h"
#include "cups/Rounding.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QPolygon>
#include <QTransform>

#include <algorithm>

namespace {

QAccessibleInterface *pictureInterface(const QString &, QObject *object)
{
    auto *preview = qobject_cast<Preview *>(object);
    return preview ? new QAccessibleWidget(preview, QAccessible::Graphic) : nullptr;
}

// Tells screen readers that a preview is a picture, for as long as the library is loaded.
class PictureInterfaces
{
public:
    PictureInterfaces() { QAccessible::installFactory(pictureInterface); }
    ~PictureInterfaces() { QAccessible::removeFactory(pictureInterface); }

    PictureInterfaces(const PictureInterfaces &) = delete;
    PictureInterfaces &operator=(const PictureInterfaces &) = delete;
};

// The position of a label of these proportions; @p usable is the size of the widget less one pixel on each side.
//
// A tall label scales with the usable width and a wide one with the usable height: the widget is square in the dialog,
// where this makes no difference. The margin is the truncated half of the remainder, on both sides, so that the label
// stays centred and an odd pixel goes to the label.
QRect labelRect(double labelWidth, double labelHeight, const QSize &usable)
{
    if (usable.isEmpty())
        return QRect();

    const bool tall = labelWidth <= labelHeight;
    const int available = tall ? usable.width() : usable.height();
    const double shorter = tall ? labelWidth : labelHeight;
    const double longer = tall ? labelHeight : labelWidth;
    // Lengths of zero and below do no harm: the result is kept within bounds, and roundHalfUp() turns NaN into 0.
    const int scaled = roundHalfUp(std::clamp(shorter * available / longer, 0.0, static_cast<double>(available)));
    const int margin = (available - scaled) / 2;
    if (tall)
        return QRect(margin + 1, 1, usable.width() - 2 * margin, usable.height());
    return QRect(1, margin + 1, usable.width(), usable.height() - 2 * margin);
}

// The label in black and white. On high-resolution screens, the image has more pixels than @p size, to be sharp.
QImage labelImage(const QString &text, const QSize &size, qreal devicePixelRatio)
{
    QImage image((QSizeF(size) * devicePixelRatio).toSize(), QImage::Format_Mono);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(0xffffff);
    QPainter painter(&image);
    painter.drawText(QRect(QPoint(0, 0), size), Qt::AlignCenter, text);
    return image;
}

// An arrow of head and shaft, its tip at the origin, pointing left.
constexpr QPoint arrowPoints[] = {{0, 0}, {10, 10}, {10, 5}, {30, 5}, {30, -5}, {10, -5}, {10, -10}, {0, 0}};

// The arrow of this orientation, at the middle of its edge; empty for an invalid orientation.
//
// The left and top arrows touch the first pixel of the widget, the right and bottom ones stop two pixels short of the
// last: @p usable is two pixels smaller than the widget. The arrows are meant to be uneven in this.
QPolygon arrow(int orientation, const QSize &usable)
{
    const QPoint centre(usable.width() / 2, usable.height() / 2);
    const QPoint farEdge(usable.width() - 1, usable.height() - 1);
    QPolygon polygon;
    for (const QPoint &point : arrowPoints) {
        switch (orientation) {
        case CupsSupport::Portrait:
            polygon << QPoint(centre.x() + point.y(), farEdge.y() - point.x());
            break;
        case CupsSupport::Landscape:
            polygon << QPoint(point.x(), centre.y() + point.y());
            break;
        case CupsSupport::ReverseLandscape:
            polygon << QPoint(farEdge.x() - point.x(), centre.y() + point.y());
            break;
        case CupsSupport::ReversePortrait:
            polygon << QPoint(centre.x() + point.y(), point.x());
            break;
        default:
            break;
        }
    }
    return polygon;
}

} // namespace

Preview::Preview(QWidget *parent)
    : QWidget(parent)
{
    static const PictureInterfaces interfaces;
}

void Preview::paintEvent(QPaintEvent *)
{
    const QSize usable = size() - QSize(2, 2);
    const QRect target = labelRect(labelWidth, labelHeight, usable);
    QPainter painter(this);

    // Without an area of widget or label there is nothing to draw.
    if (!target.isEmpty()) {
        QImage image = labelImage(tr("DL"), target.size(), std::max(1.0, devicePixelRatioF()));
        if (mirror) {
            const bool leftRight = orientation == CupsSupport::Portrait || orientation == CupsSupport::ReversePortrait;
            image = image.transformed(QTransform::fromScale(leftRight ? -1 : 1, leftRight ? 1 : -1));
        }
        if (negative)
            image.invertPixels(QImage::InvertRgb);
        painter.drawImage(target, image, image.rect());
    }

    painter.setPen(QPen(QBrush(Qt::red, Qt::SolidPattern), 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(QBrush(Qt::red, Qt::SolidPattern));
    painter.drawPolygon(arrow(orientation, usable), Qt::OddEvenFill);
}
