// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "TestMain.h"

#include <QIcon>
#include <QImage>

#include <cmath>
#include <cstdio>

// The dialog on screens with more pixels: a child process each, since Qt reads the factor at its start.

namespace {

constexpr QRgb red = 0xffff0000;
constexpr QRgb black = 0xff000000;
constexpr QRgb white = 0xffffffff;

bool isInk(QRgb pixel)
{
    return pixel == black;
}

bool isRed(QRgb pixel)
{
    return pixel == red;
}

bool isOpaque(QRgb pixel)
{
    return qAlpha(pixel) > 127;
}

// The smallest rectangle around all pixels that are so.
QRect extent(const QImage &image, bool (*isSo)(QRgb))
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (isSo(image.pixel(x, y)))
                rect |= QRect(x, y, 1, 1);
    }
    return rect;
}

// Whether the picture has nothing smaller than blocks of so many pixels: it was enlarged, not painted for the screen.
bool isEnlarged(const QImage &image, int factor)
{
    for (int y = 0; y + factor <= image.height(); y += factor) {
        for (int x = 0; x + factor <= image.width(); x += factor) {
            for (int i = 1; i < factor * factor; ++i)
                if (image.pixel(x + i % factor, y + i / factor) != image.pixel(x, y))
                    return false;
        }
    }
    return true;
}

void check(bool isRight, const char *what)
{
    if (!isRight)
        std::printf("%s\n", what);
}

bool isNear(double pixels, double expected, double factor)
{
    return std::abs(pixels - expected) <= factor + 1.0;
}

void examinePreview(QWidget *preview, double factor, const QRect &arrow)
{
    const QPixmap grabbed = preview->grab();
    QImage image = grabbed.toImage().convertToFormat(QImage::Format_ARGB32);
    image.setDevicePixelRatio(1.0);
    check(qFuzzyCompare(grabbed.devicePixelRatio(), factor), "the preview has not the screen's resolution");

    bool isSharp = true;
    const QRgb background = preview->palette().color(QPalette::Window).rgb();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            isSharp = isSharp && (pixel == red || pixel == black || pixel == white || pixel == background);
        }
    }
    check(isSharp, "the preview is blurred");
    if (factor >= 2.0)
        check(!isEnlarged(image, int(factor)), "the preview is enlarged");

    const QRect redRect = extent(image, isRed);
    check(isNear(redRect.left(), arrow.left() * factor, factor) && isNear(redRect.top(), arrow.top() * factor, factor)
              && isNear(redRect.right(), arrow.right() * factor, factor)
              && isNear(redRect.bottom(), arrow.bottom() * factor, factor),
          "the arrow is not whole");
    const QRect text = extent(image, isInk);
    check(!text.isEmpty() && image.rect().adjusted(9, 9, -9, -9).contains(text)
              && isNear(text.center().x(), image.width() / 2.0, 3 * factor)
              && isNear(text.center().y(), image.height() / 2.0, 3 * factor),
          "the text is not whole or not in the middle");
}

// All that the file shows, at any size.
void examineIcon(const QIcon &icon, double factor)
{
    const QRect whole = extent(QImage(":/b/printer.png"), isOpaque);
    for (const int side : {16, 32, 48}) {
        const QImage image = icon.pixmap(QSize(side, side) * factor).toImage();
        const QRect shown = extent(image, isOpaque);
        const double scale = image.width() / 48.0;
        check(isNear(shown.left(), whole.left() * scale, 1) && isNear(shown.top(), whole.top() * scale, 1)
                  && isNear(shown.right(), whole.right() * scale, 1)
                  && isNear(shown.bottom(), whole.bottom() * scale, 1),
              "the icon is not whole");
    }
}

// Argument: the factor. Prints the faults.
int examineDialog(int &argc, char **argv)
{
    QApplication application(argc, argv);
    const double factor = QByteArray(argv[1]).toDouble();
    QApplication::setStyle("Fusion");
    OpenDialog open;
    const QPixmap whole = open.dialog.grab();
    check(whole.size() == (QSizeF(open.dialog.size()) * factor).toSize(), "the dialog has not the screen's resolution");
    examineIcon(open.dialog.windowIcon(), factor);

    // Where the arrow is on a screen without scaling: of 31 pixels, 21 wide, at the middle of its edge.
    auto *preview = open.widget("frame")->findChildren<QWidget *>().constFirst();
    const QSize usable = preview->size() - QSize(2, 2);
    const int middle = usable.width() / 2;
    const int last = usable.width() - 1;
    const QMap<const char *, QRect> arrows{
        {"landscapeRadioButton", QRect(0, middle - 10, 31, 21)},
        {"landscape180RadioButton", QRect(last - 30, middle - 10, 31, 21)},
        {"portraitRadioButton", QRect(middle - 10, last - 30, 21, 31)},
        {"portrait180RadioButton", QRect(middle - 10, 0, 21, 31)},
    };
    for (auto arrow = arrows.cbegin(); arrow != arrows.cend(); ++arrow) {
        open.click(arrow.key());
        examinePreview(preview, factor, arrow.value());
    }
    const QString folder = qEnvironmentVariable("SCALING_PICTURES");
    if (!folder.isEmpty())
        whole.save(folder + "/scaled-" + argv[1] + ".png");
    std::printf("examined\n");
    return 0;
}

const TestMain::ChildFunction examineDialogChild("examineDialog", examineDialog);

} // namespace

// If this fails, the dialog is blurred or clipped on high-resolution screens.
class ScalingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogIsSharpAndWhole_data();
    void dialogIsSharpAndWhole();
};

void ScalingTest::dialogIsSharpAndWhole_data()
{
    QTest::addColumn<QString>("factor");
    for (const char *factor : {"1", "1.5", "2", "3"})
        QTest::newRow(factor) << QString(factor);
}

void ScalingTest::dialogIsSharpAndWhole()
{
    QFETCH(QString, factor);
    const TestMain::ChildResult result =
        TestMain::runChild("examineDialog", {factor},
                           {{"QT_SCALE_FACTOR", factor}, {"QT_FONT_DPI", "96"}, {"CUPS_SERVER", "/nonexistent"}});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QByteArray("examined\n"));
}

PROPERTIESDIALOG_TEST_MAIN(ScalingTest)
#include "ScalingTest.moc"
