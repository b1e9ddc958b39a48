// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "Languages.h"
#include "OpenDialog.h"
#include "Programs.h"
#include "TestMain.h"
#include "widgets/PasswordDialog.h"

#include <PropertiesDialog/ExtDialog.h>
#include <PropertiesDialog/PrintDialog.h>

#include <QIcon>
#include <QImage>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

// The dialog on screens with more pixels and on small ones: a child process each, since Qt reads the factor and the size
// of the screen at its start. With SCALING_PICTURES set to a folder the dialogs are saved there, for people to look at;
// SCALING_LANGUAGE and SCALING_STYLE choose others than English and Fusion.

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

void savePicture(QWidget &window, const QByteArray &name)
{
    const QString folder = qEnvironmentVariable("SCALING_PICTURES");
    if (!folder.isEmpty())
        window.grab().save(folder + '/' + name + ".png");
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
    savePicture(open.dialog, QByteArray("scaled-").append(argv[1]));
    std::printf("examined\n");
    return 0;
}

// Pages scroll only if they are higher than the screen.
void examinePage(const QWidget *page)
{
    const auto *area = page->findChild<QScrollArea *>();
    const QWidget *content = area ? area->widget() : page;
    check(content->width() >= content->minimumSizeHint().width()
              && content->height() >= content->minimumSizeHint().height(),
          "a page is squeezed");
    if (!area)
        return;
    const QSize room = area->viewport()->size();
    check(content->width() <= room.width(), "a page is cut off at its side");
    check(area->verticalScrollBar()->maximum() == std::max(0, content->height() - room.height()),
          "the end of a page is out of reach");
}

void examineSize(const QWidget &dialog)
{
    constexpr int titleBar = 30; // of a window manager, which does not run here
    const QRect screen = dialog.screen()->availableGeometry();
    check(dialog.width() <= screen.width() && dialog.height() + titleBar <= screen.height(),
          "a dialog is larger than the screen");
    for (QAbstractButton *button : dialog.findChildren<QAbstractButton *>())
        if (button->isVisible() && button->inherits("QPushButton"))
            check(dialog.rect().contains(QRect(button->mapTo(&dialog, QPoint()), button->size())),
                  "a button is out of reach");
}

// Those that have no pages that scroll.
void examineOtherDialogs(QPrinter &printer, CupsSupport &cups, const QByteArray &screen)
{
    PrintDialog print(nullptr, &printer, &cups);
    PrintDialog question(nullptr);
    ExtDialog offset(nullptr, &cups);
    PasswordDialog password(nullptr, "user", true);
    for (const auto &[name, dialog] : {std::pair<const char *, QDialog *>{"print", &print},
                                       {"question", &question},
                                       {"offset", &offset},
                                       {"password", &password}}) {
        dialog->show();
        QCoreApplication::processEvents();
        examineSize(*dialog);
        savePicture(*dialog, screen + '-' + name);
    }
}

// Argument: the size of the font in points. Prints the size of the screen and the faults.
int examineOnSmallScreen(int &argc, char **argv)
{
    QApplication application(argc, argv);
    const InLanguage language(qEnvironmentVariable("SCALING_LANGUAGE", "en"));
    QApplication::setStyle(qEnvironmentVariable("SCALING_STYLE", "Fusion"));
    QFont font = QApplication::font();
    font.setPointSize(QByteArray(argv[1]).toInt());
    QApplication::setFont(font);
    OpenDialog open;
    const QRect screen = open.dialog.screen()->availableGeometry();
    const QByteArray size = QByteArray::number(screen.width()) + 'x' + QByteArray::number(screen.height());
    std::printf("%s\n", size.constData());
    const QByteArray name = QByteArray(size + '-').append(argv[1]).append("pt");
    examineSize(open.dialog);
    auto *tabs = open.widget<QTabWidget>("tabs");
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        QCoreApplication::processEvents();
        examinePage(tabs->currentWidget());
        savePicture(open.dialog, name + "-tab-" + QByteArray::number(i));
    }
    examineOtherDialogs(*open.printer, open.cups, name);
    return 0;
}

const TestMain::ChildFunction examineDialogChild("examineDialog", examineDialog);
const TestMain::ChildFunction examineOnSmallScreenChild("examineOnSmallScreen", examineOnSmallScreen);

} // namespace

// If this fails, the dialog is blurred or clipped on high-resolution screens, or parts of it are out of reach on small
// ones.
class ScalingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogIsSharpAndWhole_data();
    void dialogIsSharpAndWhole();
    void dialogsFitSmallScreen_data();
    void dialogsFitSmallScreen();
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

void ScalingTest::dialogsFitSmallScreen_data()
{
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QString>("factor");
    QTest::addColumn<QString>("points");
    QTest::addColumn<QString>("scaled");
    QTest::newRow("800x600, large font") << "800x600"
                                         << "1"
                                         << "14"
                                         << "800x600";
    QTest::newRow("800x600, 125 %") << "800x600"
                                    << "1.25"
                                    << "10"
                                    << "640x480";
    QTest::newRow("1366x768, 150 %") << "1366x768"
                                     << "1.5"
                                     << "10"
                                     << "911x512";
    QTest::newRow("1366x768, 150 %, large font") << "1366x768"
                                                 << "1.5"
                                                 << "14"
                                                 << "911x512";
}

void ScalingTest::dialogsFitSmallScreen()
{
    QFETCH(QString, screen);
    QFETCH(QString, factor);
    QFETCH(QString, points);
    QFETCH(QString, scaled);
    const Programs::Result result = Programs::run(
        {WITH_XVFB, QCoreApplication::applicationFilePath(), "--run-child", "examineOnSmallScreen", points},
        {{"XVFB_SCREEN", screen},
         {"QT_QPA_PLATFORM", "xcb"},
         {"QT_SCALE_FACTOR", factor},
         {"QT_FONT_DPI", "96"},
         {"CUPS_SERVER", "/nonexistent"}});
    QVERIFY2(result.exitStatus == 0, qPrintable(result.errors));
    QCOMPARE(result.output, scaled + '\n');
}

PROPERTIESDIALOG_TEST_MAIN(ScalingTest)
#include "ScalingTest.moc"
