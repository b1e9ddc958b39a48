// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/Preview.h"

#include "TestMain.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPolygon>
#include <QTest>
#include <QTranslator>

#include <cstdio>
#include <limits>

namespace {

constexpr QRgb background = qRgb(255, 0, 255);
constexpr QRgb white = qRgb(255, 255, 255);
constexpr QRgb black = qRgb(0, 0, 0);
constexpr QRgb red = qRgb(255, 0, 0);
constexpr int noArrow = 0;

// What the widget paints, and @c background where it paints nothing.
QImage painted(Preview &preview)
{
    QImage image(preview.size() * preview.devicePixelRatio(), QImage::Format_RGB32);
    image.setDevicePixelRatio(preview.devicePixelRatio());
    image.fill(background);
    preview.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

// The label as it is before any effect, on an image of @p ratio pixels to the unit.
QImage sampleLabel(const QSize &size, const QString &text = QStringLiteral("DL"), int ratio = 1)
{
    QImage image(size * ratio, QImage::Format_Mono);
    image.setDevicePixelRatio(ratio);
    image.fill(1);
    QPainter painter(&image);
    painter.drawText(0, 0, size.width(), size.height(), Qt::AlignCenter, text);
    painter.end();
    return image.convertToFormat(QImage::Format_RGB32);
}

// Flips and inverts pixel by pixel.
QImage withEffects(const QImage &image, bool leftRight, bool topBottom, bool negative)
{
    QImage result = image;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int fromX = leftRight ? image.width() - 1 - x : x;
            const int fromY = topBottom ? image.height() - 1 - y : y;
            result.setPixel(x, y, image.pixel(fromX, fromY) ^ (negative ? 0xffffff : 0));
        }
    }
    return result;
}

// A widget of @p size with @p label in @p place.
QImage widgetWith(const QSize &size, const QPoint &place, const QImage &label)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(background);
    for (int y = 0; y < label.height(); ++y)
        for (int x = 0; x < label.width(); ++x)
            image.setPixel(place.x() + x, place.y() + y, label.pixel(x, y));
    return image;
}

// The part of @p image that is not @c background.
QRect paintedRect(const QImage &image)
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != background)
                rect |= QRect(x, y, 1, 1);
    }
    return rect;
}

QRect redRect(const QImage &image)
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == red)
                rect |= QRect(x, y, 1, 1);
    }
    return rect;
}

} // namespace

// If this fails, the preview shows the wrong orientation or effects.
class PreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initialState();
    void metaClass();
    void sampleText();
    void textIsTranslated();
    void proportions_data();
    void proportions();
    void effects_data();
    void effects();
    void arrow_data();
    void arrow();
    void arrowEndsShortOfTheFarEdges();
    void otherOrientationsHaveNoArrow_data();
    void otherOrientationsHaveNoArrow();
    void everyPaintLooksAtTheMembers();
    void tinyWidgets_data();
    void tinyWidgets();
    void impossibleLengths_data();
    void impossibleLengths();
    void denseScreen();
};

void PreviewTest::initialState()
{
    QWidget parent;
    const auto *preview = new Preview(&parent);

    QCOMPARE(preview->parentWidget(), &parent);
    QCOMPARE(preview->labelWidth, 160.0);
    QCOMPARE(preview->labelHeight, 160.0);
    QCOMPARE(preview->orientation, 4);
    QCOMPARE(preview->mirror, false);
    QCOMPARE(preview->negative, false);
}

void PreviewTest::metaClass()
{
    Preview preview;

    QCOMPARE(preview.metaObject()->className(), "Preview");
    QCOMPARE(preview.metaObject()->superClass(), &QWidget::staticMetaObject);
    QCOMPARE(preview.qt_metacast("Preview"), static_cast<void *>(&preview));
    QCOMPARE(preview.qt_metacast("QWidget"), static_cast<void *>(static_cast<QWidget *>(&preview)));
    QCOMPARE(preview.metaObject()->methodCount(), QWidget::staticMetaObject.methodCount());
}

void PreviewTest::sampleText()
{
    Preview preview;
    preview.resize(100, 100);
    preview.labelWidth = preview.labelHeight = 1200.0;
    preview.orientation = noArrow;

    const QImage image = painted(preview);
    QCOMPARE(image, widgetWith(QSize(100, 100), QPoint(1, 1), sampleLabel(QSize(98, 98))));

    // The comparison above would hold for an empty label, too, were no font there.
    QVERIFY(image != widgetWith(QSize(100, 100), QPoint(1, 1), sampleLabel(QSize(98, 98), QString())));
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            const QRgb pixel = image.pixel(x, y);
            QVERIFY(pixel == white || pixel == black || pixel == background); // no shades
        }
    }
}

void PreviewTest::textIsTranslated()
{
    class : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *sourceText, const char *, int) const override
        {
            const bool known = qstrcmp(context, "Preview") == 0 && qstrcmp(sourceText, "DL") == 0;
            return known ? QStringLiteral("Xyz") : QString();
        }
    } translator;
    Preview preview;
    preview.resize(100, 100);
    preview.orientation = noArrow;

    QVERIFY(QCoreApplication::installTranslator(&translator));
    const QImage image = painted(preview);
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(image, widgetWith(QSize(100, 100), QPoint(1, 1), sampleLabel(QSize(98, 98), QStringLiteral("Xyz"))));
}

void PreviewTest::proportions_data()
{
    QTest::addColumn<QSize>("widget");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<QRect>("label");

    QTest::newRow("square") << QSize(100, 100) << 1200.0 << 1200.0 << QRect(1, 1, 98, 98);
    QTest::newRow("tall") << QSize(100, 100) << 100.0 << 200.0 << QRect(25, 1, 50, 98);
    QTest::newRow("wide") << QSize(100, 100) << 200.0 << 100.0 << QRect(1, 25, 98, 50);
    QTest::newRow("tall, even rest") << QSize(100, 100) << 50.0 << 98.0 << QRect(25, 1, 50, 98);
    QTest::newRow("tall, odd rest goes to the label") << QSize(100, 100) << 51.0 << 98.0 << QRect(24, 1, 52, 98);
    QTest::newRow("wide, odd rest goes to the label") << QSize(100, 100) << 98.0 << 51.0 << QRect(1, 24, 98, 52);
    // 25 * 98 / 100 = 24.5, rounded up to 25: half of 73 is 36. From 24 it would be 37.
    QTest::newRow("tall, half rounds up") << QSize(100, 100) << 25.0 << 100.0 << QRect(37, 1, 26, 98);
    QTest::newRow("wide, half rounds up") << QSize(100, 100) << 100.0 << 25.0 << QRect(1, 37, 98, 26);
    // 24.42 of 98 rounds down to 24: half of 74 is 37.
    QTest::newRow("tall, rounds down") << QSize(100, 100) << 24.92 << 100.0 << QRect(38, 1, 24, 98);
    QTest::newRow("hardly tall") << QSize(100, 100) << 100.0 << 100.1 << QRect(1, 1, 98, 98);
    QTest::newRow("very tall") << QSize(100, 100) << 1.0 << 20.0 << QRect(47, 1, 6, 98);
    QTest::newRow("fractions of a unit") << QSize(100, 100) << 0.001 << 0.002 << QRect(25, 1, 50, 98);
    QTest::newRow("large unit") << QSize(100, 100) << 1e9 << 2e9 << QRect(25, 1, 50, 98);
    QTest::newRow("odd widget") << QSize(101, 101) << 100.0 << 200.0 << QRect(25, 1, 51, 99);
    // Tall labels scale with the width and wide ones with the height, so these do not keep their proportions.
    QTest::newRow("tall in a wide widget") << QSize(202, 102) << 100.0 << 200.0 << QRect(51, 1, 100, 100);
    QTest::newRow("wide in a wide widget") << QSize(202, 102) << 200.0 << 100.0 << QRect(1, 26, 200, 50);
    QTest::newRow("square in a wide widget") << QSize(202, 102) << 100.0 << 100.0 << QRect(1, 1, 200, 100);
}

void PreviewTest::proportions()
{
    QFETCH(QSize, widget);
    QFETCH(double, width);
    QFETCH(double, height);
    QFETCH(QRect, label);
    Preview preview;
    preview.resize(widget);
    preview.labelWidth = width;
    preview.labelHeight = height;
    preview.orientation = noArrow;

    const QImage image = painted(preview);
    QCOMPARE(paintedRect(image), label);
    QCOMPARE(image, widgetWith(widget, label.topLeft(), sampleLabel(label.size())));
}

void PreviewTest::effects_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("mirror");
    QTest::addColumn<bool>("negative");
    QTest::addColumn<bool>("leftRight");
    QTest::addColumn<bool>("topBottom");

    struct Flip
    {
        int orientation;
        bool leftRight;
        bool topBottom;
    };
    const Flip flips[] = {
        {3, true, false}, {4, false, true}, {5, false, true},  {6, true, false},
        {0, false, true}, {7, false, true}, {-1, false, true},
    };
    for (const Flip &flip : flips) {
        for (const bool mirror : {false, true}) {
            for (const bool negative : {false, true}) {
                const char *mirrorName = mirror ? " mirror" : "";
                const char *negativeName = negative ? " negative" : "";
                QTest::addRow("orientation %d%s%s", flip.orientation, mirrorName, negativeName)
                    << flip.orientation << mirror << negative << (mirror && flip.leftRight)
                    << (mirror && flip.topBottom);
            }
        }
    }
}

void PreviewTest::effects()
{
    QFETCH(int, orientation);
    QFETCH(bool, mirror);
    QFETCH(bool, negative);
    QFETCH(bool, leftRight);
    QFETCH(bool, topBottom);
    const QImage label = sampleLabel(QSize(98, 98));
    QVERIFY(withEffects(label, true, false, false) != label);
    QVERIFY(withEffects(label, false, true, false) != label);
    QVERIFY(withEffects(label, true, false, false) != withEffects(label, false, true, false));

    Preview preview;
    preview.resize(100, 100);
    preview.orientation = orientation;
    preview.mirror = mirror;
    preview.negative = negative;
    const QImage image = painted(preview);

    // The arrow covers the label: where it is red, the label is not visible.
    const QImage expected =
        widgetWith(QSize(100, 100), QPoint(1, 1), withEffects(label, leftRight, topBottom, negative));
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x)
            if (image.pixel(x, y) != red)
                QCOMPARE(image.pixel(x, y), expected.pixel(x, y));
    }
}

void PreviewTest::arrow_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QSize>("widget");
    QTest::addColumn<QPolygon>("points");

    // W and H are two less than the widget has.
    QTest::newRow("portrait") << 3 << QSize(100, 100)
                              << QPolygon(
                                     {{49, 97}, {59, 87}, {54, 87}, {54, 67}, {44, 67}, {44, 87}, {39, 87}, {49, 97}});
    QTest::newRow("landscape") << 4 << QSize(100, 100)
                               << QPolygon(
                                      {{0, 49}, {10, 59}, {10, 54}, {30, 54}, {30, 44}, {10, 44}, {10, 39}, {0, 49}});
    QTest::newRow("reverse landscape")
        << 5 << QSize(100, 100)
        << QPolygon({{97, 49}, {87, 59}, {87, 54}, {67, 54}, {67, 44}, {87, 44}, {87, 39}, {97, 49}});
    QTest::newRow("reverse portrait")
        << 6 << QSize(100, 100)
        << QPolygon({{49, 0}, {59, 10}, {54, 10}, {54, 30}, {44, 30}, {44, 10}, {39, 10}, {49, 0}});
    QTest::newRow("portrait, oblong")
        << 3 << QSize(123, 81)
        << QPolygon({{60, 78}, {70, 68}, {65, 68}, {65, 48}, {55, 48}, {55, 68}, {50, 68}, {60, 78}});
    QTest::newRow("landscape, oblong")
        << 4 << QSize(123, 81)
        << QPolygon({{0, 39}, {10, 49}, {10, 44}, {30, 44}, {30, 34}, {10, 34}, {10, 29}, {0, 39}});
    QTest::newRow("reverse landscape, oblong")
        << 5 << QSize(123, 81)
        << QPolygon({{120, 39}, {110, 49}, {110, 44}, {90, 44}, {90, 34}, {110, 34}, {110, 29}, {120, 39}});
    QTest::newRow("reverse portrait, oblong")
        << 6 << QSize(123, 81)
        << QPolygon({{60, 0}, {70, 10}, {65, 10}, {65, 30}, {55, 30}, {55, 10}, {50, 10}, {60, 0}});
}

void PreviewTest::arrow()
{
    QFETCH(int, orientation);
    QFETCH(QSize, widget);
    QFETCH(QPolygon, points);

    for (const bool negative : {false, true}) {
        Preview preview;
        preview.resize(widget);
        preview.negative = negative;
        preview.orientation = noArrow;
        QImage expected = painted(preview);
        QPainter painter(&expected);
        painter.setPen(QPen(Qt::red, 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.setBrush(Qt::red);
        painter.drawPolygon(points, Qt::OddEvenFill);
        painter.end();

        preview.orientation = orientation;
        const QImage image = painted(preview);
        QCOMPARE(image, expected);
        QCOMPARE(image.pixel(points.first()), red);
    }
}

void PreviewTest::arrowEndsShortOfTheFarEdges()
{
    Preview preview;
    preview.resize(100, 100);
    const auto arrowRect = [&preview](int orientation) {
        preview.orientation = orientation;
        return redRect(painted(preview));
    };

    QCOMPARE(arrowRect(3).bottom(), 97);
    QCOMPARE(arrowRect(3).height(), 31);
    QCOMPARE(arrowRect(4).left(), 0);
    QCOMPARE(arrowRect(4).width(), 31);
    QCOMPARE(arrowRect(5).right(), 97);
    QCOMPARE(arrowRect(5).width(), 31);
    QCOMPARE(arrowRect(6).top(), 0);
    QCOMPARE(arrowRect(6).height(), 31);
}

void PreviewTest::otherOrientationsHaveNoArrow_data()
{
    QTest::addColumn<int>("orientation");
    for (const int orientation : {std::numeric_limits<int>::min(), -1, 0, 1, 2, 7, 8, std::numeric_limits<int>::max()})
        QTest::addRow("%d", orientation) << orientation;
}

void PreviewTest::otherOrientationsHaveNoArrow()
{
    QFETCH(int, orientation);
    Preview preview;
    preview.resize(100, 100);
    preview.orientation = orientation;

    QCOMPARE(painted(preview), widgetWith(QSize(100, 100), QPoint(1, 1), sampleLabel(QSize(98, 98))));
}

void PreviewTest::everyPaintLooksAtTheMembers()
{
    Preview preview;
    preview.resize(100, 100);
    const QImage before = painted(preview);

    preview.labelWidth = 80.0;
    preview.orientation = 3;
    preview.mirror = true;
    preview.negative = true;
    QVERIFY(painted(preview) != before);

    preview.labelWidth = 160.0;
    preview.orientation = 4;
    preview.mirror = false;
    preview.negative = false;
    QCOMPARE(painted(preview), before);
}

void PreviewTest::tinyWidgets_data()
{
    QTest::addColumn<QSize>("widget");
    QTest::addColumn<QRect>("label");

    QTest::newRow("a pixel") << QSize(1, 1) << QRect();
    QTest::newRow("margins only") << QSize(2, 2) << QRect();
    QTest::newRow("no width") << QSize(2, 50) << QRect();
    QTest::newRow("no height") << QSize(50, 2) << QRect();
    QTest::newRow("one pixel of label") << QSize(3, 3) << QRect(1, 1, 1, 1);
}

void PreviewTest::tinyWidgets()
{
    QFETCH(QSize, widget);
    QFETCH(QRect, label);
    const QRect all(QPoint(0, 0), widget);
    for (int orientation = 2; orientation <= 6; ++orientation) {
        Preview preview;
        preview.resize(widget);
        preview.orientation = orientation;
        preview.mirror = true;
        preview.negative = true;

        const QImage image = painted(preview);
        QVERIFY(all.contains(paintedRect(image)) || paintedRect(image).isNull());
        if (orientation == 2)
            QCOMPARE(paintedRect(image), label);
    }
}

void PreviewTest::impossibleLengths_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<QRect>("label");

    const double infinity = std::numeric_limits<double>::infinity();
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("no width") << 0.0 << 100.0 << QRect();
    QTest::newRow("no height") << 100.0 << 0.0 << QRect();
    QTest::newRow("neither") << 0.0 << 0.0 << QRect();
    QTest::newRow("negative width") << -50.0 << 100.0 << QRect();
    QTest::newRow("negative height") << 100.0 << -50.0 << QRect();
    QTest::newRow("hugely negative") << -1e300 << 1e-300 << QRect();
    QTest::newRow("infinite height") << 100.0 << infinity << QRect();
    QTest::newRow("infinite width") << infinity << 100.0 << QRect();
    QTest::newRow("both infinite") << infinity << infinity << QRect();
    QTest::newRow("no number") << notANumber << 100.0 << QRect();
    QTest::newRow("more than a double holds") << 1e308 << 1e308 << QRect(1, 1, 98, 98);
}

void PreviewTest::impossibleLengths()
{
    QFETCH(double, width);
    QFETCH(double, height);
    Preview preview;
    preview.resize(100, 100);
    preview.labelWidth = width;
    preview.labelHeight = height;
    preview.orientation = noArrow;

    QTEST(paintedRect(painted(preview)), "label");
}

namespace {

// In a process whose screen has two pixels to the unit.
int paintOnDenseScreen(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    Preview preview;
    preview.resize(100, 100);
    preview.orientation = noArrow;
    if (preview.devicePixelRatio() != 2.0) {
        std::fputs("the screen is not dense\n", stderr);
        return 1;
    }

    const QImage label = sampleLabel(QSize(98, 98), QStringLiteral("DL"), 2);
    const QImage expected = widgetWith(QSize(200, 200), QPoint(2, 2), label);
    QImage image = painted(preview);
    image.setDevicePixelRatio(1.0);
    if (image != expected) {
        std::fputs("the label is not painted in the pixels of the screen\n", stderr);
        return 2;
    }

    const QImage half = sampleLabel(QSize(98, 98)).scaled(196, 196);
    if (image == widgetWith(QSize(200, 200), QPoint(2, 2), half)) {
        std::fputs("the label is painted in doubled pixels\n", stderr);
        return 3;
    }
    return 0;
}

const TestMain::ChildFunction paintOnDenseScreenFunction("paintOnDenseScreen", paintOnDenseScreen);

} // namespace

void PreviewTest::denseScreen()
{
    const TestMain::ChildResult child =
        TestMain::runChild("paintOnDenseScreen", {}, {{QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2")}});
    QCOMPARE(child.exitCode, 0);
}

PROPERTIESDIALOG_TEST_MAIN(PreviewTest)

#include "PreviewTest.moc"
