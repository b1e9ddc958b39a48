// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "AllDialogs.h"
#include "Languages.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>

#include <QScreen>
#include <QScrollArea>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStyle>
#include <QStyleFactory>
#include <QTabBar>
#include <QTabWidget>

#include <cstdio>
#include <memory>
#include <optional>
#include <vector>

// Opens every dialog in every language, in two styles, at two screen resolutions and with two sizes of text, and looks
// for texts that are cut off and for widgets that cover each other. With FIT_PICTURES set to a folder the dialogs are
// saved there, for people to look at.

namespace {

// The usual texts of the scheduler for a printer, for which the labels must have room.
constexpr char usualStatus[] = "Printing";

// The size below which a widget cuts something off; nothing for those that show no text of their own.
std::optional<QSize> neededSize(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        if (label->wordWrap())
            return QSize(label->minimumSizeHint().width(), label->heightForWidth(label->width()));
        if (label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
            return QSize(label->fontMetrics().horizontalAdvance(usualStatus), label->sizeHint().height());
        return label->sizeHint();
    }
    if (const auto *list = qobject_cast<const QComboBox *>(widget)) {
        if (list->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored)
            return list->sizeHint();
        return QSize(list->fontMetrics().horizontalAdvance(usualStatus), list->sizeHint().height());
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
        const int frame = edit->minimumSizeHint().width() - edit->fontMetrics().maxWidth();
        return QSize(edit->fontMetrics().horizontalAdvance(edit->text()) + frame, edit->minimumSizeHint().height());
    }
    if (qobject_cast<const QPlainTextEdit *>(widget))
        return QSize(0, 3 * widget->fontMetrics().height());
    if (qobject_cast<const QGroupBox *>(widget) || qobject_cast<const QSlider *>(widget))
        return widget->minimumSizeHint();
    if (qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QSpinBox *>(widget)
        || qobject_cast<const QTabBar *>(widget) || qobject_cast<const QDialogButtonBox *>(widget))
        return widget->sizeHint();
    return std::nullopt;
}

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString nameOf(const QWidget *widget)
{
    return widget->objectName().isEmpty() ? widget->metaObject()->className() : widget->objectName();
}

// Parts of button boxes, spin boxes and the like are not checked.
bool isPart(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    return qobject_cast<const QComboBox *>(parent) || qobject_cast<const QAbstractSpinBox *>(parent)
           || qobject_cast<const QAbstractScrollArea *>(parent) || qobject_cast<const QTabBar *>(parent)
           || widget->isWindow();
}

class FaultFinder
{
public:
    explicit FaultFinder(const QWidget *window_)
        : window(window_)
    {
        for (const QWidget *widget : window->findChildren<QWidget *>()) {
            if (!widget->isVisible() || isPart(widget))
                continue;
            examineSize(widget);
            const QObjectList siblings = widget->parentWidget()->children();
            for (const QObject *object : siblings) {
                const auto *sibling = qobject_cast<const QWidget *>(object);
                if (sibling && sibling->isVisible() && !isPart(sibling))
                    examinePair(widget, sibling);
            }
        }
    }

    QStringList faults;
    int examined = 0;

private:
    // The window, or the page that scrolls down in it.
    const QWidget *wholeOf(const QWidget *widget) const
    {
        for (const auto *area : window->findChildren<QScrollArea *>())
            if (area->widget()->isAncestorOf(widget) && area->widget()->width() <= area->viewport()->width())
                return area->widget();
        return window;
    }

    void examineSize(const QWidget *widget)
    {
        const std::optional<QSize> needed = neededSize(widget);
        if (!needed)
            return;
        ++examined;
        const QSize size = widget->size();
        if (size.width() < needed->width() || size.height() < needed->height())
            faults += nameOf(widget) + " is " + sizeText(size) + ", needs " + sizeText(*needed);
        const QWidget *whole = wholeOf(widget);
        if (!whole->rect().contains(QRect(widget->mapTo(whole, QPoint(0, 0)), size)))
            faults += nameOf(widget) + " reaches out of the window";
    }

    void examinePair(const QWidget *widget, const QWidget *sibling)
    {
        if (qobject_cast<const QTabWidget *>(widget->parentWidget()))
            return; // a tab bar reaches over its pages' frame
        // Less a pixel: in the offset dialog the label's box deliberately reaches a pixel under the list's.
        if (widget < sibling && widget->geometry().adjusted(0, 0, -1, -1).intersects(sibling->geometry())
            && sibling->geometry().adjusted(0, 0, -1, -1).intersects(widget->geometry()))
            faults += nameOf(widget) + " and " + nameOf(sibling) + " cover each other";
    }

    const QWidget *window;
};

// The result of a child process.
int examinedWidgets = 0;
bool areFormSizesExpected = false;

void examine(const QWidget &window, const QString &what)
{
    QCoreApplication::processEvents();
    const FaultFinder finder(&window);
    examinedWidgets += finder.examined;
    for (const QString &fault : finder.faults)
        std::printf("%s: %s\n", qPrintable(what), qPrintable(fault));
    static const QList<QSize> formSizes{{450, 489}, {462, 291}, {380, 110}, {280, 90}};
    // The usual words for the tabs and effects of these languages need more room than the form has.
    static const QStringList wideLanguages{"es", "pl", "ru", "uk"};
    const bool isWide = wideLanguages.contains(what.section(' ', 0, 0)) && window.height() == 489
                        && window.width() > 450 && window.width() <= 500;
    const bool isFreeSize = window.inherits("PasswordDialog");
    if (areFormSizesExpected && !formSizes.contains(window.size()) && !isWide && !isFreeSize)
        std::printf("%s: no size of a form: %s\n", qPrintable(what), qPrintable(sizeText(window.size())));
    const QString folder = qEnvironmentVariable("FIT_PICTURES");
    if (!folder.isEmpty())
        const_cast<QWidget &>(window).grab().save(folder + '/' + QString(what).replace(' ', '-') + ".png");
}

void show(QWidget &dialog)
{
    // The sizes do not depend on painting, which would take much of the time.
    dialog.setUpdatesEnabled(qEnvironmentVariableIsSet("FIT_PICTURES"));
    dialog.show();
}

void examineTabs(QWidget &dialog, const QString &what)
{
    show(dialog);
    auto *tabs = dialog.findChild<QTabWidget *>("tabs");
    auto *media = dialog.findChild<QComboBox *>("mediaType");
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        if (!tabs->currentWidget()->isAncestorOf(media)) {
            examine(dialog, QStringLiteral("%1 tab %2").arg(what).arg(tab));
            continue;
        }
        for (int type = 0; type < media->count(); ++type) {
            media->setCurrentIndex(type);
            examine(dialog, QStringLiteral("%1 tab %2 media %3").arg(what).arg(tab).arg(type));
        }
    }
}

void examineAll(const AllDialogs &dialogs, const QString &what)
{
    examineTabs(*dialogs.properties, what + " properties");
    dialogs.properties->hide();
    for (const char *name : {"print", "question", "offset", "password"}) {
        QDialog *dialog = dialogs.byName().value(name);
        show(*dialog);
        examine(*dialog, what + ' ' + name);
        dialog->hide();
    }
}

// Arguments: style, dots per inch. Prints the faults, and how many widgets were examined.
int findFaults(int &argc, char **argv)
{
    QApplication application(argc, argv);
    const QString style = argv[1];
    const int dpi = QByteArray(argv[2]).toInt();
    QApplication::setStyle(style);
    if (QApplication::style()->objectName().compare(style, Qt::CaseInsensitive) != 0
        || qRound(QGuiApplication::primaryScreen()->logicalDotsPerInchY()) != dpi)
        qFatal("not the style or the resolution that was wanted");

    AllDialogs labels("Labels");
    AllDialogs orca("ORCA-1");
    for (const int points : {9, 12}) {
        QApplication::setFont(QFont("DejaVu Sans", points));
        areFormSizesExpected = points == 9 && dpi == 96 && style != "Breeze";
        for (const QString &language : QStringList("en") + languages()) {
            const QString what = QStringLiteral("%1 %2 %3dpi %4pt").arg(language, style).arg(dpi).arg(points);
            for (AllDialogs *dialogs : {&labels, &orca}) {
                const InLanguage texts(language);
                dialogs->create();
                examineAll(*dialogs, what + ' ' + dialogs->printer.printerName());
            }
            // The language that the user changes to while the dialogs are there.
            labels.create();
            const InLanguage texts(language);
            examineAll(labels, what + " switched");
        }
    }
    // The font that the user changes to while the dialogs are there.
    QApplication::setFont(QFont("DejaVu Sans", 9));
    labels.create();
    QApplication::setFont(QFont("DejaVu Sans", 12));
    examineAll(labels, QStringLiteral("en %1 %2dpi enlarged").arg(style).arg(dpi));
    std::printf("%d examined\n", examinedWidgets);
    return 0;
}

const TestMain::ChildFunction findFaultsChild("findFaults", findFaults);

} // namespace

// If this fails, texts are cut off in some language, font or style.
class FitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void faultsAreFound_data();
    void faultsAreFound();
    void soundWindowHasNoFaults();

private:
    PrivateScheduler scheduler;
};

void FitTest::initTestCase()
{
    scheduler.addQueue("Labels", PrivateScheduler::samplePpd("label-203"), "Labels of the hall", "Hall 3");
    scheduler.addQueue("ORCA-1", PrivateScheduler::samplePpd("label-300"), "Labels of the office", "Office");
    scheduler.setServerDefault("Labels");
}

void FitTest::nothingIsCutOff_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("dpi");
    for (const char *style : {"Fusion", "Windows"})
        for (const char *dpi : {"96", "192"})
            QTest::addRow("%s %s dpi", style, dpi) << style << dpi;
    // Its tabs are the widest.
    if (QStyleFactory::keys().contains("Breeze"))
        QTest::newRow("Breeze 96 dpi") << "Breeze"
                                       << "96";
}

void FitTest::nothingIsCutOff()
{
    QFETCH(QString, style);
    QFETCH(QString, dpi);
    // Without the scaling of high resolutions, texts grow with the resolution and pixels do not.
    const TestMain::ChildResult result =
        TestMain::runChild("findFaults", {style, dpi}, {{"QT_FONT_DPI", dpi}, {"QT_ENABLE_HIGHDPI_SCALING", "0"}});
    QCOMPARE(result.exitCode, 0);
    QByteArrayList lines = result.output.trimmed().split('\n');
    const int examined = lines.takeLast().split(' ').constFirst().toInt();
    for (const QByteArray &fault : lines)
        std::printf("%s\n", fault.constData());
    QCOMPARE(lines.size(), 0);
    // Three rounds of about a hundred widgets, for each language and font size.
    const int least = int(languages().size() + 1) * 2 * 3 * 100;
    QVERIFY2(examined > least, qPrintable(QString::number(examined)));
}

void FitTest::faultsAreFound_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRect>("place");
    QTest::addColumn<QString>("fault");
    QTest::newRow("narrow label") << "label" << QRect(10, 10, 20, 30) << "needs";
    QTest::newRow("low label") << "label" << QRect(10, 10, 150, 5) << "needs";
    QTest::newRow("narrow button") << "button" << QRect(10, 50, 20, 40) << "needs";
    QTest::newRow("narrow edit") << "edit" << QRect(10, 100, 20, 40) << "needs";
    QTest::newRow("narrow list") << "list" << QRect(10, 150, 20, 40) << "needs";
    QTest::newRow("narrow group") << "group" << QRect(10, 200, 20, 40) << "needs";
    QTest::newRow("outside") << "edit" << QRect(-5, 100, 150, 40) << "out of the window";
    QTest::newRow("covered") << "edit" << QRect(10, 70, 150, 40) << "cover each other";
}

namespace {

// A window with everything in its place.
struct Window : QWidget
{
    Window()
    {
        resize(200, 300);
        setFont(QFont("DejaVu Sans", 8));
        auto *label = new QLabel("Some text", this);
        auto *button = new QPushButton("Some text", this);
        auto *edit = new QLineEdit("Some text", this);
        auto *list = new QComboBox(this);
        list->addItem("Some text");
        auto *group = new QGroupBox("Some text", this);
        int y = 10;
        for (const auto &[widget, name] : {std::pair<QWidget *, const char *>{label, "label"},
                                           {button, "button"},
                                           {edit, "edit"},
                                           {list, "list"},
                                           {group, "group"}}) {
            widget->setObjectName(name);
            widget->setGeometry(10, y, 180, 40);
            y += 50;
        }
        show();
    }
};

} // namespace

void FitTest::faultsAreFound()
{
    QFETCH(QString, name);
    QFETCH(QRect, place);
    QFETCH(QString, fault);
    Window window;
    window.findChild<QWidget *>(name)->setGeometry(place);
    const FaultFinder finder(&window);
    QCOMPARE(finder.faults.size(), 1);
    QVERIFY2(finder.faults.constFirst().contains(name) && finder.faults.constFirst().contains(fault),
             qPrintable(finder.faults.constFirst()));
}

void FitTest::soundWindowHasNoFaults()
{
    const Window window;
    QCOMPARE(FaultFinder(&window).faults, QStringList());
}

PROPERTIESDIALOG_TEST_MAIN(FitTest)
#include "FitTest.moc"
