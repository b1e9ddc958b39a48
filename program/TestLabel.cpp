// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "TestLabel.h"

#include <PropertiesDialog/CupsSupport.h>

#include <QCoreApplication>
#include <QDir>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QPolygonF>
#include <QTemporaryFile>

#include <algorithm>
#include <array>

namespace {

constexpr double pointsPerInch = 72.0;
constexpr double pointsPerMillimetre = pointsPerInch / 25.4;
constexpr QSizeF fallbackSheet(4 * pointsPerInch, 6 * pointsPerInch); // the most common label
constexpr int pdfResolution = 1200;
constexpr double largestText = 12.0; // points, as all lengths below
constexpr double smallestText = 4.0;
constexpr double frameWidth = 2.5; // dots, from the edge of the imageable area
constexpr double numberSize = 0.9; // of the longest tick
constexpr double leading = 1.3; // of the text size

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TestLabel)
};

QString number(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

// Texts are drawn as outlines: fonts have whole sizes only, and other widths on each device.
constexpr int designSize = 100; // pixels

QFont designFont()
{
    QFont font;
    font.setPixelSize(designSize);
    return font;
}

double widthAt(double size, const QString &text)
{
    return QFontMetricsF(designFont()).horizontalAdvance(text) * size / designSize;
}

// Draws one line of text with its left edge or its middle at `position`, cut to `width`.
void drawText(QPainter &painter, const QPointF &position, Qt::AlignmentFlag alignment, double width, double size,
              const QString &text)
{
    const QFont font = designFont();
    const QFontMetricsF metrics(font);
    const double scale = size / designSize;
    const QString shown = metrics.elidedText(text, Qt::ElideRight, width / scale + 1.0);
    const double left = alignment == Qt::AlignHCenter ? -metrics.horizontalAdvance(shown) / 2 : 0.0;

    QPainterPath outline;
    outline.addText(left, metrics.capHeight(), font, shown);
    painter.save();
    painter.translate(position);
    painter.scale(scale, scale);
    painter.fillPath(outline, Qt::black);
    painter.restore();
}

struct Ruler
{
    double step; // between two ticks
    int middleEvery; // ticks
    int numberEvery; // ticks
    int unitsPerNumber;
};

constexpr Ruler millimetres{pointsPerMillimetre, 5, 10, 10};
constexpr Ruler inches{pointsPerInch / 8, 4, 8, 1};

// Where a number could be read.
bool hasNumbers(double tick)
{
    return tick * numberSize >= 3.0;
}

// Draws a ruler from `corner` along one edge of the frame; turned by `angle` degrees, ticks point into the label.
void drawRuler(QPainter &painter, const Ruler &ruler, const QPointF &corner, double angle, bool isMirrored,
               double length, double tick)
{
    painter.save();
    painter.translate(corner);
    painter.rotate(angle);
    const double inwards = isMirrored ? -1.0 : 1.0;
    for (int i = 1; i * ruler.step < length; ++i) {
        const double x = i * ruler.step;
        const bool isNumbered = i % ruler.numberEvery == 0;
        const double size = isNumbered ? tick : i % ruler.middleEvery == 0 ? tick * 0.7 : tick * 0.4;
        painter.drawLine(QPointF(x, 0), QPointF(x, inwards * (frameWidth * painter.pen().widthF() + size)));
        if (hasNumbers(tick) && isNumbered && x > 2 * tick && x < length - 2 * tick)
            drawText(painter, QPointF(x, isMirrored ? -tick * 1.9 : tick * 1.2), Qt::AlignHCenter, length,
                     tick * numberSize, QString::number(i / ruler.numberEvery * ruler.unitsPerNumber));
    }
    painter.restore();
}

// An arrow to the top of what is printed.
void drawArrow(QPainter &painter, const QRectF &area, double angle)
{
    const double side = std::min(area.width(), area.height());
    painter.save();
    painter.translate(area.center());
    painter.rotate(angle);
    painter.scale(side, side);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawPolygon(QPolygonF(
        {{0.0, -0.5}, {0.35, -0.05}, {0.12, -0.05}, {0.12, 0.5}, {-0.12, 0.5}, {-0.12, -0.05}, {-0.35, -0.05}}));
    painter.restore();
}

// Lines and spaces of 1 to 4 dots, and a solid bar. Too much heat closes the spaces, too little leaves holes in the bar.
void drawDarknessBars(QPainter &painter, const QRectF &area, double dot)
{
    constexpr int widest = 4; // dots
    const double column = area.width() / (widest + 1);
    for (int width = 1; width <= widest; ++width) {
        const double start = area.left() + column * (width - 1);
        const int lines = static_cast<int>((column - dot + width * dot) / (2 * width * dot));
        for (int i = 0; i < lines; ++i)
            painter.fillRect(QRectF(start + 2 * i * width * dot, area.top(), width * dot, area.height()), Qt::black);
    }
    painter.fillRect(QRectF(area.right() - column, area.top(), column, area.height()), Qt::black);
}

// The size at which all lines fit, but always readable: otherwise lines are cut and the last ones left out.
double fittingSize(const QSizeF &area, const QStringList &lines)
{
    const double high = std::min(largestText, area.height() / (leading * double(lines.size())));
    double widest = 1.0;
    for (const QString &line : lines)
        widest = std::max(widest, widthAt(1.0, line));
    return std::max(smallestText, std::clamp(area.width() / widest, high * 0.6, high));
}

void drawTexts(QPainter &painter, const QRectF &area, const QStringList &lines)
{
    const double size = fittingSize(area.size(), lines);
    QPointF position = area.topLeft();
    for (const QString &line : lines) {
        if (position.y() + size > area.bottom())
            break;
        drawText(painter, position, Qt::AlignLeft, area.width(), size, line);
        position.ry() += size * leading;
    }
}

// Where arrow, bars and texts go: side by side, or, on a tall label, the texts below.
std::array<QRectF, 3> divide(const QRectF &inner)
{
    const bool isWide = inner.width() >= inner.height();
    const double picture =
        isWide ? std::min(inner.height(), inner.width() * 0.15) : std::min(inner.width(), inner.height()) * 0.3;
    const double gap = picture * 0.15;
    const QRectF arrow(inner.topLeft(), QSizeF(picture, picture));
    const QRectF bars(arrow.right() + gap, inner.top(), isWide ? picture * 1.4 : inner.width() - picture - gap,
                      picture);
    const QRectF texts =
        isWide ? inner.adjusted(bars.right() + gap - inner.left(), 0, 0, 0) : inner.adjusted(0, picture + gap, 0, 0);
    return {arrow, bars, texts};
}

double angleOf(CupsSupport::_CupsOrientation orientation)
{
    switch (orientation) {
    case CupsSupport::Landscape:
        return -90.0;
    case CupsSupport::ReverseLandscape:
        return 90.0;
    case CupsSupport::ReversePortrait:
        return 180.0;
    default:
        return 0.0;
    }
}

// The settings with the dialog's names, in its order.
QString mediaText(int category)
{
    const QStringList texts{Texts::tr("Continuous"), Texts::tr("Labels With Gaps"), Texts::tr("Labels With Marks")};
    return texts.value(category);
}

QString cutText(int cut)
{
    const QStringList texts{Texts::tr("No Cut"), Texts::tr("Cut After Job"), Texts::tr("Cut After Page")};
    return texts.value(cut / 2);
}

// The settings that this label helps to adjust come first.
QStringList ownSettings(const CupsSupport &cups)
{
    return {Texts::tr("Darkness %1").arg(cups.getDarkness()), Texts::tr("Speed %1").arg(cups.getSpeed()),
            Texts::tr("Offset %1, %2 dots").arg(cups.getOffsetH()).arg(cups.getOffsetV()),
            mediaText(cups.getCategory()), cutText(cups.getCut())};
}

// The settings of another make's driver that differ from its defaults, with the driver's names.
QStringList driverSettings(const CupsSupport &cups)
{
    QStringList lines;
    const QStringList options = cups.options();
    for (QStringList::size_type i = 0; i + 1 < options.size(); i += 2)
        if (!options.at(i).startsWith(QLatin1String("Page")))
            lines << options.at(i) + QLatin1Char(' ') + options.at(i + 1);
    return lines.isEmpty() ? QStringList{Texts::tr("Default settings")} : lines;
}

} // namespace

TestLabel::TestLabel(const CupsSupport &cups)
    : sheet(fallbackSheet)
    , dot(pointsPerInch / cups.getResolution().width())
    , arrowAngle(angleOf(cups.getOrientation()))
{
    const char *pageSize = cups.getValue("PageSize");
    const QRect paper = cups.paperRect(pageSize);
    const QSize standard = cups.getDefaultPageSize();
    if (paper.isValid())
        sheet = paper.size();
    else if (!standard.isEmpty())
        sheet = standard;
    const QRect printable = cups.pageRect(pageSize);
    imageable = printable.isValid() ? QRectF(printable) : QRectF(QPointF(), sheet);

    lines = cups.ppdOption("LabelCategory") ? ownSettings(cups) : driverSettings(cups);
    lines << Texts::tr("%1 x %2 mm")
                 .arg(number(sheet.width() / pointsPerMillimetre, 1), number(sheet.height() / pointsPerMillimetre, 1))
          << cups.getCurrentQueueName();
}

void TestLabel::paint(QPainter &painter) const
{
    // Filters round the area to whole dots, so only a frame that is wider than one dot is printed on all sides.
    const double inset = (frameWidth - 1.0) * dot;
    const QRectF frame = imageable.adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(Qt::black, 2 * dot, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
    painter.setPen(QPen(Qt::black, dot, Qt::SolidLine, Qt::FlatCap));

    const QRectF &area = imageable;
    const double tick = std::clamp(std::min(area.width(), area.height()) * 0.08, 1.5, 6.0);
    drawRuler(painter, millimetres, area.topLeft(), 0, false, area.width(), tick);
    drawRuler(painter, millimetres, area.topLeft(), 90, true, area.height(), tick);
    drawRuler(painter, inches, area.bottomLeft(), 0, true, area.width(), tick);
    drawRuler(painter, inches, area.topRight(), 90, false, area.height(), tick);

    const double margin = tick * (hasNumbers(tick) ? 2.4 : 1.4);
    const auto [arrow, bars, texts] = divide(frame.adjusted(margin, margin, -margin, -margin));
    drawArrow(painter, arrow, arrowAngle);
    drawDarknessBars(painter, bars, dot);
    drawTexts(painter, texts, lines);
}

bool TestLabel::writePdf(const QString &path) const
{
    QPdfWriter writer(path);
    writer.setResolution(pdfResolution);
    const QPageSize size(sheet, QPageSize::Point, QString(), QPageSize::ExactMatch);
    if (!writer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, QMarginsF())))
        return false;
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    painter.scale(pdfResolution / pointsPerInch, pdfResolution / pointsPerInch);
    paint(painter);
    return painter.end();
}

int TestLabel::print(const CupsSupport &cups, QString *error) const
{
    QTemporaryFile file(QDir::tempPath() + QStringLiteral("/label-XXXXXX.pdf"));
    if (!file.open() || !writePdf(file.fileName())) {
        *error = file.errorString();
        return 0;
    }
    // The sheet is drawn as it lies, so that the frame is where the area is; the arrow shows the orientation.
    const int job = cups.printFile(file.fileName(), QString(), Texts::tr("Test label"),
                                   {QStringLiteral("orientation-requested"), QString::number(CupsSupport::Portrait),
                                    QStringLiteral("print-scaling"), QStringLiteral("none"), QStringLiteral("copies"),
                                    QStringLiteral("1")});
    if (job == 0)
        *error = QString::fromUtf8(CupsSupport::getCupsError());
    return job;
}
