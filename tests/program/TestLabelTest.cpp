// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "PrivateScheduler.h"
#include "Programs.h"
#include "TestMain.h"

#include <QRectF>
#include <QSizeF>
#include <QTemporaryFile>
#include <QTest>

#include <cups/cups.h>
#include <cups/raster.h>

#include <unistd.h>

namespace {

constexpr double pointsPerMillimetre = 72.0 / 25.4;

// The first page that the filter of a driver gets: the imageable area. Positions are in points from its top left corner.
class Raster
{
public:
    explicit Raster(const QByteArray &data)
    {
        QTemporaryFile file;
        if (!file.open() || file.write(data) != data.size() || !file.seek(0))
            qFatal("no room for the raster");
        cups_raster_t *raster = cupsRasterOpen(file.handle(), CUPS_RASTER_READ);
        if (!raster || !cupsRasterReadHeader2(raster, &header))
            qFatal("not a raster: %s", data.left(100).constData());
        rows.resize(static_cast<int>(header.cupsBytesPerLine * header.cupsHeight));
        for (unsigned y = 0; y < header.cupsHeight; ++y)
            cupsRasterReadPixels(raster, row(y), header.cupsBytesPerLine);
        cupsRasterClose(raster);
        dotsPerPoint = header.HWResolution[0] / 72.0;
        if (header.cupsBitsPerPixel != 1 && header.cupsBitsPerPixel != 8)
            qFatal("%u bits per pixel", header.cupsBitsPerPixel);
    }

    QSizeF size() const { return {header.cupsWidth / dotsPerPoint, header.cupsHeight / dotsPerPoint}; }

    // The share of black dots, 0 to 1.
    double blackness(const QRectF &area) const
    {
        const int left = std::max(0, qRound(area.left() * dotsPerPoint));
        const int top = std::max(0, qRound(area.top() * dotsPerPoint));
        const int right = std::min(int(header.cupsWidth), std::max(left + 1, qRound(area.right() * dotsPerPoint)));
        const int bottom = std::min(int(header.cupsHeight), std::max(top + 1, qRound(area.bottom() * dotsPerPoint)));
        int black = 0;
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x)
                black += isBlack(x, y);
        return double(black) / ((right - left) * (bottom - top));
    }

    // The darkest of the columns, or rows, around a position: a line lies on one dot or the next.
    double columnAt(double x, double top, double bottom) const
    {
        double darkest = 0;
        for (int dot = -3; dot <= 3; ++dot)
            darkest = std::max(darkest, blackness(QRectF(x + dot / dotsPerPoint, top, 1 / dotsPerPoint, bottom - top)));
        return darkest;
    }
    double rowAt(double y, double left, double right) const
    {
        double darkest = 0;
        for (int dot = -3; dot <= 3; ++dot)
            darkest =
                std::max(darkest, blackness(QRectF(left, y + dot / dotsPerPoint, right - left, 1 / dotsPerPoint)));
        return darkest;
    }

private:
    unsigned char *row(unsigned y)
    {
        return reinterpret_cast<unsigned char *>(rows.data()) + y * header.cupsBytesPerLine;
    }

    bool isBlack(int x, int y) const
    {
        const auto *line =
            reinterpret_cast<const unsigned char *>(rows.constData()) + unsigned(y) * header.cupsBytesPerLine;
        if (header.cupsBitsPerPixel == 1)
            return line[x / 8] & (0x80 >> (x % 8));
        const bool isInk = header.cupsColorSpace == CUPS_CSPACE_K;
        return isInk ? line[x] >= 128 : line[x] < 128;
    }

    cups_page_header2_t header = {};
    double dotsPerPoint = 0;
    QByteArray rows;
};

} // namespace

// If this fails, label-printer-properties --test-label prints a label by which offsets and darkness cannot be adjusted.
class TestLabelTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fitsTheImageableArea_data();
    void fitsTheImageableArea();
    void arrowPointsToTheTop_data();
    void arrowPointsToTheTop();
    void takesTheDefaultPrinter();
    void saysWhyItCannotPrint_data();
    void saysWhyItCannotPrint();

private:
    Raster printed(const QStringList &options);

    PrivateScheduler scheduler;
};

void TestLabelTest::initTestCase()
{
    scheduler.useDrivers();
    // Its driver takes the raster as it is, so that it can be looked at here.
    const QString ppd = scheduler.editedPpd(
        PrivateScheduler::samplePpd("label-203"),
        {{"*cupsFilter: \"application/pdf 0 gziptoany\"", "*cupsFilter: \"application/vnd.cups-raster 0 -\""},
         {"*cupsFilter: \"application/postscript 0 gziptoany\"\n", ""},
         {"w162h90/2.25x1.25", "w57h28/20x10mm"},
         {"PageSize[162 90]", "PageSize[57 28]"},
         {"\"4 4 158 86\"", "\"2 2 55 26\""},
         {"\"162 90\"", "\"57 28\""}});
    scheduler.addQueue("Raster", ppd);
}

Raster TestLabelTest::printed(const QStringList &options)
{
    static int job = 0;
    scheduler.setUserOptions("Raster", options);
    const Programs::Result result = Programs::run({PROGRAM, "--test-label", "-p", "Raster"}, Programs::noDisplay());
    if (result.exitStatus != 0 || result.output != "The test label was sent to Raster.\n")
        qFatal("%d: %s%s", result.exitStatus, qPrintable(result.output), qPrintable(result.errors));
    return Raster(scheduler.job(++job).data);
}

void TestLabelTest::fitsTheImageableArea_data()
{
    QTest::addColumn<QString>("pageSize");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("4 x 2 inches") << "w288h144" << QSizeF(280, 136);
    QTest::newRow("4 x 6 inches") << "w288h432" << QSizeF(280, 424);
    QTest::newRow("20 x 10 mm") << "w57h28" << QSizeF(53, 24);
}

void TestLabelTest::fitsTheImageableArea()
{
    QFETCH(QString, pageSize);
    QFETCH(QSizeF, size);
    const Raster raster = printed({"PageSize=" + pageSize});
    QVERIFY(qAbs(raster.size().width() - size.width()) < 1);
    QVERIFY(qAbs(raster.size().height() - size.height()) < 1);

    // The frame is complete at all four edges.
    const QRectF area(QPointF(), raster.size());
    QVERIFY(raster.rowAt(0, 1, area.right() - 1) > 0.95);
    QVERIFY(raster.rowAt(area.bottom(), 1, area.right() - 1) > 0.95);
    QVERIFY(raster.columnAt(0, 1, area.bottom() - 1) > 0.95);
    QVERIFY(raster.columnAt(area.right(), 1, area.bottom() - 1) > 0.95);

    // Ten ticks of a millimetre from the left, and nothing between the last two.
    for (int tick = 1; tick <= 10; ++tick)
        QVERIFY2(raster.columnAt(tick * pointsPerMillimetre, 1, 1.5) > 0.9, qPrintable(QString::number(tick)));
    const double between = 9.5 * pointsPerMillimetre;
    QVERIFY(raster.columnAt(between, 1, 1.5) < 0.5);

    // The quarter inch from the left on the other edge.
    QVERIFY(raster.columnAt(18, area.bottom() - 1.5, area.bottom() - 1) > 0.9);

    // It has texts, and bars for judging the darkness.
    const double share = raster.blackness(area.adjusted(5, 5, -5, -5));
    QVERIFY2(share > 0.01 && share < 0.5, qPrintable(QString::number(share)));
}

void TestLabelTest::arrowPointsToTheTop_data()
{
    QTest::addColumn<QString>("orientation");
    QTest::addColumn<QPoint>("direction");
    QTest::newRow("portrait") << "3" << QPoint(0, -1);
    QTest::newRow("landscape") << "4" << QPoint(-1, 0);
    QTest::newRow("reverse landscape") << "5" << QPoint(1, 0);
    QTest::newRow("reverse portrait") << "6" << QPoint(0, 1);
}

void TestLabelTest::arrowPointsToTheTop()
{
    QFETCH(QString, orientation);
    QFETCH(QPoint, direction);
    const Raster raster = printed({"PageSize=w288h144", "orientation-requested=" + orientation});
    // Where the arrow is; its head has more black than its shaft.
    const QRectF arrow(14.93, 14.93, 37.5, 37.5);
    const double left = raster.blackness(arrow.adjusted(0, 0, -18.8, 0));
    const double right = raster.blackness(arrow.adjusted(18.8, 0, 0, 0));
    const double top = raster.blackness(arrow.adjusted(0, 0, 0, -18.8));
    const double bottom = raster.blackness(arrow.adjusted(0, 18.8, 0, 0));
    const auto sign = [](double one, double other) { return one > other * 1.2 ? -1 : other > one * 1.2 ? 1 : 0; };
    QCOMPARE(QPoint(sign(left, right), sign(top, bottom)), direction);
}

void TestLabelTest::takesTheDefaultPrinter()
{
    scheduler.setServerDefault("Raster");
    const Programs::Result result = Programs::run({PROGRAM, "--test-label"}, Programs::noDisplay());
    QCOMPARE(result.output, QString("The test label was sent to Raster.\n"));
    QCOMPARE(result.exitStatus, 0);
}

void TestLabelTest::saysWhyItCannotPrint_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<QString>("errors");
    QTest::addColumn<int>("exitStatus");
    QTest::newRow("no such queue") << "None"
                                   << "label-printer-properties: there is no printer \"None\"" << 2;
    QTest::newRow("queue takes no jobs") << "Closed"
                                         << "label-printer-properties: The test label could not be printed: " << 4;
}

void TestLabelTest::saysWhyItCannotPrint()
{
    QFETCH(QString, queue);
    QFETCH(QString, errors);
    QFETCH(int, exitStatus);
    scheduler.addQueue("Closed");
    PrivateScheduler::run("cupsreject", {"Closed"});
    const Programs::Result result = Programs::run({PROGRAM, "--test-label", "--printer", queue}, Programs::noDisplay());
    QVERIFY2(result.errors.startsWith(errors), qPrintable(result.errors));
    QCOMPARE(result.exitStatus, exitStatus);
}

PROPERTIESDIALOG_TEST_MAIN(TestLabelTest)

#include "TestLabelTest.moc"
