// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "HomeOfBytes.h"
#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "properties/PropertiesDialog.h"
#include "TestMain.h"

#include "properties/DoubleValidator.h"
#include "properties/Preview.h"
#include "properties/PrintPropertiesDialogPrivate.h"

#include <QBitmap>
#include <QIntValidator>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTimer>

#include <cups/cups.h>

#include <clocale>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>

namespace {

// The dialog's constructor needs the printer and its settings, but loading works without them.
// An explicit instantiation may name private members.
struct Reach
{
    friend auto partsOf(Reach);
};
template<auto member>
struct Open
{
    friend auto partsOf(Reach) { return member; }
};
template struct Open<&PrintPropertiesDialog::d>;

// ----- the entry function in processes of its own -----

// Calls back once the properties dialog runs.
void whenDialogRuns(const std::function<void(PrintPropertiesDialog *)> &callback)
{
    auto *timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, timer, [timer, callback] {
        auto *dialog = qobject_cast<PrintPropertiesDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer->stop();
        timer->deleteLater();
        callback(dialog);
    });
    timer->start(10);
}

void endDialog(PrintPropertiesDialog *dialog, const QString &action)
{
    if (action == "close")
        dialog->close();
    else
        dialog->findChild<QPushButton *>(action)->click();
}

QString pendingAction;

void endNextDialog()
{
    whenDialogRuns([](PrintPropertiesDialog *dialog) {
        std::printf("title=%s\n", qPrintable(dialog->windowTitle()));
        for (const char *name : {"widthEdit", "heightEdit", "speedSlider", "darknessSlider", "mediaType", "cut", "feed",
                                 "back", "overlap", "stop", "horizontalEdit", "verticalEdit"})
            std::printf("%s=%s\n", name, qPrintable(shownBy(dialog->findChild<QWidget *>(name))));
        // Something to save.
        dialog->findChild<QCheckBox *>("mirroredCheckBox")->toggle();
        endDialog(dialog, pendingAction);
    });
}

// Calls the entry function once per argument, the button to press.
int callForEachAction(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        pendingAction = argv[i];
        if (qApp)
            endNextDialog();
        std::printf("result=%d\n", propertiesDialog());
    }
    return 0;
}

int callWithoutApplication(int &argc, char **argv)
{
    qAddPreRoutine(endNextDialog); // runs as soon as there is an application object
    const int result = callForEachAction(argc, argv);
    std::printf("application=%s\n", qApp ? "left" : "gone");
    return result;
}

int callWithApplication(int &argc, char **argv)
{
    QApplication application(argc, argv);
    return callForEachAction(argc, argv);
}

int callWithCoreApplication(int &argc, char **argv)
{
    QCoreApplication application(argc, argv);
    std::printf("result=%d\n", propertiesDialog());
    return 0;
}

int callWithGuiApplication(int &argc, char **argv)
{
    QGuiApplication application(argc, argv);
    std::printf("result=%d\n", propertiesDialog());
    return 0;
}

int callWithoutDisplay(int &, char **)
{
    std::printf("result=%d\n", propertiesDialog());
    return 0;
}

int showPageSizeGroup(int &argc, char **argv)
{
    const QApplication application(argc, argv);
    OpenDialog open("LP");
    open.dialog.show();
    std::printf("stockGroupBox=%s\n", qPrintable(open.shown("stockGroupBox")));
    return 0;
}

const TestMain::ChildFunction children[] = {
    {"without-application", callWithoutApplication}, {"application", callWithApplication},
    {"core-application", callWithCoreApplication},   {"gui-application", callWithGuiApplication},
    {"without-display", callWithoutDisplay},         {"show-page-size-group", showPageSizeGroup},
};

struct FamilyOf
{
    const char *queue;
    int family;
};

const FamilyOf familyQueues[] = {
    {"LP", 0},      {"LP-KERN", 1},  {"LP-LUMA", 2},   {"LP-ORCA", 3},   {"LP-TIK", 4},     {"LP-ZED", 5},
    {"ZED-TIK", 4}, {"TIK-LUMA", 2}, {"LUMA-KERN", 1}, {"KERN-ORCA", 3}, {"zedtikluma", 0}, {"xTIKx", 4},
};

struct Limits
{
    double bottom;
    double top;
};

struct FamilyLimits
{
    Limits gapSize;
    Limits gapOffset;
    Limits feed;
    Limits stop;
    int offset203; // dots, at 203 dpi
    int offset300; // dots, at 300x305 dpi
    int speedMinimum;
    int speedMaximum;
    int darknessMaximum;
    int missingDarkness;
    const char *stopLabel;
    bool showGapOffset;
};

const FamilyLimits familyLimits[] = {
    {{0, 1000}, {-1000, 1000}, {0, 1000}, {0, 1.57}, 100, 100, 1, 3, 19, 7, "Stop Position", false},
    {{0, 1000}, {-1000, 1000}, {0, 1000}, {0, 1.57}, 100, 100, 1, 3, 19, 7, "Stop Position", false},
    {{0, 1000}, {-1000, 1000}, {0, 1000}, {0, 1.57}, 100, 100, 2, 2, 19, 7, "Stop Position", false},
    {{0, 1}, {0, 40}, {-1, 1}, {-1, 1}, 203, 304, 2, 3, 15, 8, "Vertical Offset", true},
    {{0, 1}, {0, 40}, {-1, 1}, {-1, 1}, 203, 304, 2, 3, 15, 8, "Vertical Offset", true},
    {{0, 1}, {0, 40}, {-1, 1}, {-1, 1}, 203, 304, 2, 5, 15, 8, "Vertical Offset", true},
};

// One queue of each family. Those with "-300" print at 300x305 dpi.
const char *const oneQueueOfEach[] = {"LP", "LP-KERN", "LP-LUMA", "LP-ORCA", "LP-TIK", "LP-ZED"};

const char homePreset[] = "#!/bin/bash\nlpoptions -pLP -oDarkness=5\n";
const char hostSettings[] = ".gconf/apps/Dashvane/%gconf.xml";

} // namespace

// If this fails, the dialog opens with other values or ranges than the printer has.
class PropertiesDialogLoadTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    // construction
    void windowIsADialogThatStaysOnTop();
    void parentIsKept();
    void icon();
    void startsOnPageSetupWithoutHelp();
    void sizeIsFixed_data();
    void sizeIsFixed();
    void rowsMoveTogetherBeforeTheFormGrows();
    void neverShownWidgets_data();
    void neverShownWidgets();
    void lists();
    void previewFillsItsFrame();
    void textContexts();
    void aboutTexts();
    void validators_data();
    void validators();
    void offsetValidators_data();
    void offsetValidators();
    void gapFieldsAreReadyBeforeShowing();
    void commandsStartWithTheJob();
    void builtInPresets();
    void builtInPresetsCarryOptions();
    void presetsOfThisPrinter();
    void applyIsDisabled();

    // loading
    void loadsWhenShown();
    void loadsWithoutCups_data();
    void loadsWithoutCups();
    void family_data();
    void family();
    void fields_data();
    void fields();
    void fallbacksOfMissingOptions_data();
    void fallbacksOfMissingOptions();
    void pageSizeIsKept_data();
    void pageSizeIsKept();
    void commands();
    void removedCommandsAreGone();
    void equalCommandIsNotSetAgain();
    void previewIsLoaded();
    void mediaTypeIsLoadedAgain();
    void userPageSizeOfThePreset_data();
    void userPageSizeOfThePreset();
    void hostSettingsForceThePageSize_data();
    void hostSettingsForceThePageSize();
    void hostSettingsAreReadOnce();
    void hostSettingsInAHomeOfBytes();

    // bad input
    void badValues_data();
    void badValues();
    void schedulerGoesWhileOpen();

    // numbers whatever the locale
    void numbersHaveAPoint();

    // entry function
    void entryInApplication_data();
    void entryInApplication();
    void entryEditsTheDefaultPrinter_data();
    void entryEditsTheDefaultPrinter();
    void entryWithoutApplication();
    void entryWithOtherApplications_data();
    void entryWithOtherApplications();
    void entryWithoutPrinter_data();
    void entryWithoutPrinter();
    void entryWithoutDefaultPrinter();

private:
    PrivateScheduler scheduler;
};

void PropertiesDialogLoadTest::initTestCase()
{
    // The second run of this program must not pass because the locale is missing.
    if (qgetenv("LC_ALL").startsWith("de_DE"))
        QCOMPARE(QByteArray(localeconv()->decimal_point), QByteArray(","));

    for (const FamilyOf &entry : familyQueues)
        scheduler.addQueue(entry.queue);
    for (const char *queue : oneQueueOfEach)
        scheduler.addQueue(QString(queue) + "-300", PrivateScheduler::samplePpd("label-300"));
    scheduler.addQueue("LP-NOPPD", QString());
    scheduler.addQueue("LP-NOPPD-TIK", QString());
    scheduler.addQueue("LP-FEW", PrivateScheduler::samplePpd("few-options"));
    scheduler.addQueue("LP-FEW-ZED", PrivateScheduler::samplePpd("few-options"));
    scheduler.addQueue("LP-EVERY", PrivateScheduler::samplePpd("every-option"));
    const QString ppd = PrivateScheduler::samplePpd("label-203");
    const QByteArray size = "PageSize w288h144/4.00x2.00\": \"<</PageSize[288 144]";
    const auto addSized = [&](const char *queue, const char *points) {
        const QByteArray replacement = QByteArray(size).replace("[288 144]", points);
        scheduler.addQueue(queue, scheduler.editedPpd(ppd, {{size, replacement}}));
    };
    addSized("LP-FLAT", "[288 0]");
    addSized("LP-THIN", "[-1 144]");
    addSized("LP-DOT", "[1 1]");
    addSized("LP-BIG", "[291 436]");
}

void PropertiesDialogLoadTest::init()
{
    clearHome();
}

// ----- construction -----

void PropertiesDialogLoadTest::windowIsADialogThatStaysOnTop()
{
    OpenDialog t("LP-TIK");
    // Qt itself adds the system menu, which holds the close button.
    QCOMPARE(t.dialog.windowFlags() & ~Qt::WindowSystemMenuHint,
             Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint
                 | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint);
    QCOMPARE(t.dialog.windowTitle(), "LP-TIK Printing Preferences");
    QCOMPARE(t.dialog.result(), 0);
    QVERIFY(!t.dialog.parentWidget());
}

void PropertiesDialogLoadTest::parentIsKept()
{
    OpenDialog t("LP");
    QWidget parent;
    auto *dialog = new PrintPropertiesDialog(&parent, t.printer.get(), &t.cups);
    QCOMPARE(dialog->parentWidget(), &parent);
    QVERIFY(dialog->isWindow());
}

void PropertiesDialogLoadTest::icon()
{
    OpenDialog t("LP");
    QPixmap expected(":/b/printer.png");
    QCOMPARE(expected.size(), QSize(48, 48));
    expected.setMask(expected.createHeuristicMask(true));
    const QIcon icon = t.dialog.windowIcon();
    QCOMPARE(icon.pixmap(48, 48).toImage(), expected.toImage());
}

void PropertiesDialogLoadTest::startsOnPageSetupWithoutHelp()
{
    OpenDialog t("LP");
    t.dialog.show();
    QVERIFY(t.button("helpButton")->isHidden());
    QCOMPARE(t.widget<QTabWidget>("tabs")->currentIndex(), 0);
    QCOMPARE(t.widget<QTabWidget>("tabs")->currentWidget()->objectName(), "pageSetupTab");
}

void PropertiesDialogLoadTest::sizeIsFixed_data()
{
    QTest::addColumn<int>("fontHeight"); // pixels
    QTest::addColumn<bool>("isFormSize");
    QTest::newRow("small font") << 8 << true;
    QTest::newRow("10 points") << 13 << true;
    QTest::newRow("large font") << 30 << false; // the fields need more room than the form has
}

void PropertiesDialogLoadTest::sizeIsFixed()
{
    QFETCH(int, fontHeight);
    const QFont before = QApplication::font();
    QFont font = before;
    font.setPixelSize(fontHeight);
    QApplication::setFont(font);
    {
        OpenDialog t("LP");
        const QSize size = t.dialog.size();
        QTEST(size == QSize(450, 489), "isFormSize");
        QCOMPARE(size, size.expandedTo(t.dialog.minimumSizeHint()));
        QCOMPARE(t.dialog.minimumSize(), size);
        QCOMPARE(t.dialog.maximumSize(), size);
        t.dialog.show();
        QCOMPARE(t.dialog.size(), size);
    }
    QApplication::setFont(before);
}

namespace {

// Its buttons with texts have the height that fonts for Japanese give them.
class StyleWithHighTexts : public QProxyStyle
{
public:
    StyleWithHighTexts()
        : QProxyStyle(QStringLiteral("Fusion"))
    {
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override
    {
        const bool isHigh = type == CT_RadioButton || type == CT_CheckBox;
        return QProxyStyle::sizeFromContents(type, option, size, widget) + QSize(0, isHigh ? 2 : 0);
    }
};

} // namespace

void PropertiesDialogLoadTest::rowsMoveTogetherBeforeTheFormGrows()
{
    const QFont before = QApplication::font();
    QFont font = before;
    font.setPixelSize(16);
    QApplication::setFont(font);
    QApplication::setStyle(new StyleWithHighTexts);
    {
        const OpenDialog t("LP");
        QCOMPARE(t.dialog.height(), 489);
        QCOMPARE(t.dialog.size(), t.dialog.size().expandedTo(t.dialog.minimumSizeHint()));
    }
    QApplication::setStyle("Fusion");
    QApplication::setFont(before);
}

void PropertiesDialogLoadTest::neverShownWidgets_data()
{
    QTest::addColumn<QString>("queue");
    for (const char *queue : oneQueueOfEach)
        QTest::newRow(queue) << QString(queue);
}

void PropertiesDialogLoadTest::neverShownWidgets()
{
    QFETCH(QString, queue);
    OpenDialog t(queue);
    const auto check = [&t] {
        for (const char *name : {"printMethodLabel", "printMethod", "backLabel", "back", "backUnits", "overlapLabel",
                                 "overlap", "overlapUnits", "start", "startLabel", "startUnits", "helpButton"})
            QVERIFY2(t.widget(name)->isHidden(), name);
    };
    check();
    t.dialog.show();
    for (int index : {0, 1, 2}) {
        t.list("mediaType")->setCurrentIndex(index);
        check();
    }
}

static QStringList itemsOf(const QComboBox *list)
{
    QStringList items;
    for (int i = 0; i < list->count(); ++i)
        items.append(list->itemText(i));
    return items;
}

void PropertiesDialogLoadTest::lists()
{
    OpenDialog t("LP");
    QCOMPARE(itemsOf(t.list("mediaType")), QStringList({"Continuous", "Labels With Gaps", "Labels With Marks"}));
    QCOMPARE(itemsOf(t.list("cut")), QStringList({"No Cut", "Cut After Job", "Cut After Page"}));
    QCOMPARE(itemsOf(t.list("printMethod")), QStringList());
    t.dialog.show();
    t.dialog.updateDialog();
    QCOMPARE(t.list("mediaType")->count(), 3);
    QCOMPARE(t.list("cut")->count(), 3);
}

void PropertiesDialogLoadTest::previewFillsItsFrame()
{
    OpenDialog t("LP");
    auto *frame = t.widget("frame");
    QCOMPARE(frame->findChildren<Preview *>().size(), 1);
    const auto *preview = frame->findChild<Preview *>();
    QCOMPARE(preview->parentWidget(), frame);
    QCOMPARE(preview->geometry(), QRect(0, 0, 100, 100));
    QCOMPARE(preview->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    t.dialog.show();
    QVERIFY(preview->isVisible());
}

void PropertiesDialogLoadTest::textContexts()
{
    const MarkingTranslator translator;
    OpenDialog t("LP", {"LabelCategory", "1"});
    QCOMPARE(t.dialog.windowTitle(), "QObject: LP Printing Preferences");
    QCOMPARE(itemsOf(t.list("mediaType")),
             QStringList({"PrintPropertiesDialog: Continuous", "PrintPropertiesDialog: Labels With Gaps",
                          "PrintPropertiesDialog: Labels With Marks"}));
    QCOMPARE(itemsOf(t.list("cut")),
             QStringList({"PrintPropertiesDialog: No Cut", "PrintPropertiesDialog: Cut After Job",
                          "PrintPropertiesDialog: Cut After Page"}));
    QCOMPARE(t.shown("aboutVersionLabel"), "PrintPropertiesDialog: Version " PROPERTIESDIALOG_VERSION_STRING);
    QCOMPARE(t.shown("aboutDateLabel"), "PrintPropertiesDialog: " PROPERTIESDIALOG_RELEASE_DATE);
    t.dialog.show();
    QCOMPARE(t.shown("stopLabel"), "PrintPropertiesDialog: Stop Position");
    QCOMPARE(t.shown("gapSizeLabel"), "PrintPropertiesDialog: Gap Size");
    QCOMPARE(t.shown("gapOffsetLabel"), "PrintPropertiesDialog: Gap Offset");
    t.list("mediaType")->setCurrentIndex(2);
    QCOMPARE(t.shown("gapSizeLabel"), "PrintPropertiesDialog: Black Mark Size");
    QCOMPARE(t.shown("gapOffsetLabel"), "PrintPropertiesDialog: Black Mark Offset");

    QCOMPARE(itemsOf(t.list("preset1")).mid(0, 2), QStringList({"<Current Settings>", "<Default Settings>"}));
    QCOMPARE(t.shown("descriptionEdit"), "QObject: This preset contains this driver's current settings.");
    t.list("preset1")->setCurrentIndex(1);
    QCOMPARE(t.shown("descriptionEdit"), "QObject: This preset contains this driver's original default settings.");

    OpenDialog offsetGroup("LP-ZED");
    offsetGroup.dialog.show();
    QCOMPARE(offsetGroup.shown("stopLabel"), "PrintPropertiesDialog: Vertical Offset");
}

void PropertiesDialogLoadTest::aboutTexts()
{
    OpenDialog t("LP");
    QCOMPARE(t.shown("aboutVersionLabel"), "Version " PROPERTIESDIALOG_VERSION_STRING);
    QCOMPARE(t.shown("aboutDateLabel"), PROPERTIESDIALOG_RELEASE_DATE);
}

void PropertiesDialogLoadTest::validators_data()
{
    family_data();
}

void PropertiesDialogLoadTest::validators()
{
    QFETCH(QString, queue);
    QFETCH(int, family);
    const FamilyLimits &limits = familyLimits[family];
    const Limits pageSize = {0.2, 1200};
    OpenDialog t(queue);
    const auto check = [&t](const char *field, const Limits &range) {
        const auto *validator = dynamic_cast<const DoubleValidator *>(t.edit(field)->validator());
        QVERIFY2(validator, field);
        QCOMPARE(validator->bottom(), range.bottom);
        QCOMPARE(validator->top(), range.top);
        QCOMPARE(validator->decimals(), 2);
        QCOMPARE(validator->parent(), &t.dialog);
    };
    check("gapSize", limits.gapSize);
    check("gapOffset", limits.gapOffset);
    check("feed", limits.feed);
    check("stop", limits.stop);
    check("widthEdit", pageSize);
    check("heightEdit", pageSize);
    QCOMPARE(t.edit("widthEdit")->validator(), t.edit("heightEdit")->validator());
}

void PropertiesDialogLoadTest::offsetValidators_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<int>("limit");
    for (const FamilyOf &entry : familyQueues)
        QTest::newRow(entry.queue) << QString(entry.queue) << familyLimits[entry.family].offset203;
    for (int family = 0; family < 6; ++family) {
        const QString queue = QString(oneQueueOfEach[family]) + "-300";
        QTest::newRow(qPrintable(queue)) << queue << familyLimits[family].offset300;
    }
    QTest::newRow("unknown resolution") << "LP-NOPPD-TIK" << 304;
    QTest::newRow("unknown resolution does not matter") << "LP-NOPPD" << 100;
}

void PropertiesDialogLoadTest::offsetValidators()
{
    QFETCH(QString, queue);
    QFETCH(int, limit);
    OpenDialog t(queue);
    for (const char *field : {"horizontalEdit", "verticalEdit"}) {
        const auto *validator = qobject_cast<const QIntValidator *>(t.edit(field)->validator());
        QVERIFY(validator);
        QCOMPARE(validator->bottom(), -limit);
        QCOMPARE(validator->top(), limit);
        // The same texts are accepted in every country.
        QCOMPARE(validator->locale().language(), QLocale::C);
        QVERIFY(validator->locale().numberOptions().testFlag(QLocale::RejectGroupSeparator));
    }
}

void PropertiesDialogLoadTest::gapFieldsAreReadyBeforeShowing()
{
    OpenDialog t("LP", {"LabelCategory", "2", "MarkSize", "2.540", "MarkOffset", "5.080"});
    QCOMPARE(t.shown("gapSizeLabel"), "Black Mark Size");
    QCOMPARE(t.shown("gapOffsetLabel"), "Black Mark Offset");
    QCOMPARE(t.shown("gapSize"), "0.10");
    QCOMPARE(t.shown("gapOffset"), "0.20");
    QVERIFY(!t.widget("gapOffset")->isHidden());
    QVERIFY(t.widget("feed")->isHidden());
    QCOMPARE(t.list("mediaType")->currentIndex(), 0); // set when the dialog is shown
}

void PropertiesDialogLoadTest::commandsStartWithTheJob()
{
    OpenDialog t("LP");
    QVERIFY(t.button("jobStartRadioButton")->isChecked());
    t.dialog.show();
    QVERIFY(t.button("jobStartRadioButton")->isChecked());
    t.widget<QPlainTextEdit>("commandEdit")->setPlainText("A");
    t.dialog.saveValues();
    QCOMPARE(t.cups.getJobStart(), "A\n");
    QCOMPARE(t.cups.getJobEnd(), "");
}

void PropertiesDialogLoadTest::builtInPresets()
{
    OpenDialog t("LP");
    QCOMPARE(t.list("preset0")->count(), 0); // filled when the dialog is shown
    t.dialog.show();
    for (const char *list : {"preset0", "preset1"}) {
        QCOMPARE(itemsOf(t.list(list)), QStringList({"<Current Settings>", "<Default Settings>"}));
        QCOMPARE(t.list(list)->currentIndex(), 0);
    }
    QCOMPARE(t.shown("nameEdit"), "<Current Settings>");
    QCOMPARE(t.shown("descriptionEdit"), "This preset contains this driver's current settings.");
    t.list("preset0")->setCurrentIndex(1);
    QCOMPARE(t.shown("descriptionEdit"), "This preset contains this driver's original default settings.");
}

void PropertiesDialogLoadTest::builtInPresetsCarryOptions()
{
    OpenDialog t("LP", {"Darkness", "4"});
    t.dialog.show();
    t.cups.setDarkness(9);
    t.list("preset0")->setCurrentIndex(1); // the default settings
    QCOMPARE(t.shown("darknessSlider"), "10");
    t.list("preset0")->setCurrentIndex(0); // those at the time of construction
    QCOMPARE(t.shown("darknessSlider"), "4");
}

void PropertiesDialogLoadTest::presetsOfThisPrinter()
{
    writeFile(homePath(".cups/LP/Mine.sh"), homePreset);
    writeFile(homePath(".cups/LP-TIK/Other.sh"), homePreset);
    OpenDialog t("LP");
    t.dialog.show();
    QCOMPARE(itemsOf(t.list("preset0")), QStringList({"<Current Settings>", "<Default Settings>", "Mine"}));
    QCOMPARE(t.list("preset0")->currentText(), "Mine");
    QCOMPARE(t.list("preset1")->currentText(), "Mine");
}

void PropertiesDialogLoadTest::applyIsDisabled()
{
    OpenDialog t("LP", {"Darkness", "4", "PrintSpeed", "1", "LabelCategory", "2", "JobStart", "A"});
    QVERIFY(!t.isChanged());
    t.dialog.show();
    QVERIFY(!t.isChanged());
}

// ----- loading -----

void PropertiesDialogLoadTest::loadsWhenShown()
{
    OpenDialog t("LP");
    QCOMPARE(t.shown("darknessSlider"), "0");
    QCOMPARE(t.shown("feed"), "");
    t.cups.setDarkness(4);
    t.dialog.show();
    QCOMPARE(t.shown("darknessSlider"), "4");

    // Each time, unsaved changes are dropped.
    t.widget<QSlider>("darknessSlider")->setValue(9);
    t.edit("feed")->setText("0.77");
    QVERIFY(t.isChanged());
    t.dialog.hide();
    t.cups.setSpeed(1);
    t.dialog.show();
    QCOMPARE(t.shown("darknessSlider"), "4");
    QCOMPARE(t.shown("feed"), "0.00");
    QCOMPARE(t.shown("speedSlider"), "1");
    QVERIFY(!t.isChanged());
}

void PropertiesDialogLoadTest::loadsWithoutCups_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<bool>("hasPrinter");
    QTest::addColumn<QPageLayout::Orientation>("printerOrientation");
    QTest::addColumn<QString>("checkedOrientation");
    QTest::addColumn<QString>("darkness");
    QTest::newRow("portrait printer") << "LP" << true << QPageLayout::Portrait << "portraitRadioButton"
                                      << "7";
    QTest::newRow("landscape printer") << "LP" << true << QPageLayout::Landscape << "landscapeRadioButton"
                                       << "7";
    QTest::newRow("no printer") << "LP" << false << QPageLayout::Portrait << "landscapeRadioButton"
                                << "7";
    QTest::newRow("KERN") << "LP-KERN" << true << QPageLayout::Portrait << "portraitRadioButton"
                          << "7";
    QTest::newRow("ORCA") << "LP-ORCA" << true << QPageLayout::Portrait << "portraitRadioButton"
                          << "8";
    QTest::newRow("TIK") << "LP-TIK" << true << QPageLayout::Portrait << "portraitRadioButton"
                         << "8";
    QTest::newRow("ZED") << "LP-ZED" << true << QPageLayout::Portrait << "portraitRadioButton"
                         << "8";
}

void PropertiesDialogLoadTest::loadsWithoutCups()
{
    QFETCH(QString, queue);
    QFETCH(bool, hasPrinter);
    QFETCH(QPageLayout::Orientation, printerOrientation);
    QFETCH(QString, checkedOrientation);

    // All options differ from their fallbacks.
    OpenDialog t(queue, {"MirrorPrint", "True",       "NegativePrint",
                         "True",        "PrintSpeed", "3",
                         "Darkness",    "13",         "LabelCategory",
                         "2",           "CutMedia",   "0",
                         "Feed",        "50",         "Back",
                         "7",           "Overlap",    "3",
                         "Stop",        "1",          "Shift",
                         "1",           "OffsetH",    "5",
                         "OffsetV",     "6",          "orientation-requested",
                         "6",           "JobStart",   "A",
                         "LabelStart",  "A",          "LabelEnd",
                         "A",           "JobEnd",     "A"});
    t.dialog.show();
    t.printer->setPageOrientation(printerOrientation);
    t.edit("widthEdit")->setText("7.77");
    const auto &parts = t.dialog.*partsOf(Reach());
    parts->cups = nullptr;
    if (!hasPrinter)
        parts->printer = nullptr;
    t.dialog.updateDialog();

    QCOMPARE(t.shown(checkedOrientation), "True");
    QCOMPARE(t.shown("mirroredCheckBox"), "False");
    QCOMPARE(t.shown("inverseCheckBox"), "False");
    QCOMPARE(t.shown("speedSlider"), "2");
    QTEST(t.shown("darknessSlider"), "darkness");
    QCOMPARE(t.shown("mediaType"), "0");
    QCOMPARE(t.shown("cut"), "2");
    QCOMPARE(t.shown("feed"), "0.00");
    QCOMPARE(t.shown("back"), "2");
    QCOMPARE(t.shown("overlap"), "12");
    QCOMPARE(t.shown("stop"), "1.18");
    QCOMPARE(t.shown("horizontalEdit"), "0");
    QCOMPARE(t.shown("verticalEdit"), "0");
    QCOMPARE(t.shown("commandEdit"), "");
    for (const char *radio : {"labelStartRadioButton", "labelEndRadioButton", "jobEndRadioButton"}) {
        t.button(radio)->setChecked(true);
        QCOMPARE(t.shown("commandEdit"), "");
    }
    QCOMPARE(t.shown("widthEdit"), "7.77");
}

void PropertiesDialogLoadTest::family_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<int>("family");
    for (const FamilyOf &entry : familyQueues)
        QTest::newRow(entry.queue) << QString(entry.queue) << entry.family;
}

void PropertiesDialogLoadTest::family()
{
    QFETCH(QString, queue);
    QFETCH(int, family);
    const FamilyLimits &limits = familyLimits[family];
    OpenDialog t(queue, {"Stop", "12.700", "Shift", "7.620", "LabelCategory", "1"});
    t.dialog.show();
    const auto *speed = t.widget<QSlider>("speedSlider");
    QCOMPARE(speed->minimum(), limits.speedMinimum);
    QCOMPARE(speed->maximum(), limits.speedMaximum);
    const auto *darkness = t.widget<QSlider>("darknessSlider");
    QCOMPARE(darkness->minimum(), 0);
    QCOMPARE(darkness->maximum(), limits.darknessMaximum);
    QCOMPARE(t.shown("stopLabel"), QString(limits.stopLabel));
    QCOMPARE(t.shown("stop"), family >= 3 ? QString("0.30") : QString("0.50"));
    QCOMPARE(t.widget("gapOffset")->isHidden(), !limits.showGapOffset);
    QCOMPARE(t.widget("feed")->isHidden(), family < 3);
}

void PropertiesDialogLoadTest::fields_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("expected");
    const auto add = [](const char *queue, const QStringList &options, const char *widget, const char *expected) {
        QTest::addRow("%s %s %s", queue, qPrintable(options.join("=")), widget)
            << QString(queue) << options << QString(widget) << QString(expected);
    };
    add("LP", {}, "widthEdit", "4.00");
    add("LP", {}, "heightEdit", "2.00");
    add("LP-BIG", {}, "widthEdit", "4.04");
    add("LP-BIG", {}, "heightEdit", "6.06");
    add("LP-DOT", {}, "widthEdit", "0.01");
    add("LP-FEW", {}, "heightEdit", "2.00");
    // A saved size and the orientation do not change what is shown.
    add("LP", {"PageSize", "w288h432"}, "heightEdit", "2.00");
    add("LP", {"orientation-requested", "3"}, "widthEdit", "4.00");
    add("LP", {}, "stockGroupBox", "False");

    add("LP", {"orientation-requested", "3"}, "portraitRadioButton", "True");
    add("LP", {"orientation-requested", "4"}, "landscapeRadioButton", "True");
    add("LP", {"orientation-requested", "5"}, "landscape180RadioButton", "True");
    add("LP", {"orientation-requested", "6"}, "portrait180RadioButton", "True");
    add("LP", {}, "landscapeRadioButton", "True");
    add("LP-EVERY", {}, "landscape180RadioButton", "True");

    add("LP", {"MirrorPrint", "True"}, "mirroredCheckBox", "True");
    add("LP", {"MirrorPrint", "True"}, "inverseCheckBox", "False");
    add("LP", {"NegativePrint", "True"}, "inverseCheckBox", "True");
    add("LP", {"NegativePrint", "True"}, "mirroredCheckBox", "False");

    add("LP", {"PrintSpeed", "1"}, "speedSlider", "1");
    add("LP", {"PrintSpeed", "1"}, "speedValue", "1");
    // The label tells the stored value even where the slider cannot.
    add("LP", {"PrintSpeed", "5"}, "speedSlider", "3");
    add("LP", {"PrintSpeed", "5"}, "speedValue", "5");
    add("LP-ZED", {"PrintSpeed", "5"}, "speedSlider", "5");
    add("LP-ZED", {"PrintSpeed", "1"}, "speedSlider", "2");
    add("LP-LUMA", {"PrintSpeed", "3"}, "speedSlider", "2");
    add("LP-LUMA", {"PrintSpeed", "3"}, "speedValue", "3");
    add("LP", {"Darkness", "19"}, "darknessSlider", "19");
    add("LP", {"Darkness", "19"}, "darknessValue", "19");
    add("LP-TIK", {"Darkness", "19"}, "darknessSlider", "15");
    add("LP-TIK", {"Darkness", "19"}, "darknessValue", "19");
    add("LP", {"Darkness", "0"}, "darknessValue", "0");

    add("LP", {"LabelCategory", "0"}, "mediaType", "0");
    add("LP", {"LabelCategory", "1"}, "mediaType", "1");
    add("LP", {"LabelCategory", "2"}, "mediaType", "2");
    add("LP", {"CutMedia", "0"}, "cut", "0");
    add("LP", {"CutMedia", "2"}, "cut", "1");
    add("LP", {"CutMedia", "4"}, "cut", "2");

    add("LP", {"GapSize", "3.048"}, "gapSize", "0.12");
    add("LP", {"GapOffset", "-2.540"}, "gapOffset", "-0.10");
    add("LP", {"LabelCategory", "2", "MarkSize", "2.540", "GapSize", "1"}, "gapSize", "0.10");
    add("LP", {"LabelCategory", "2", "MarkOffset", "-5.080"}, "gapOffset", "-0.20");

    add("LP", {"Feed", "24"}, "feed", "0.12");
    add("LP", {"Feed", "-203"}, "feed", "-1.00");
    add("LP-300", {"Feed", "24"}, "feed", "0.08");
    add("LP-300", {"Feed", "1524"}, "feed", "5.00"); // 304.8 dots to the inch, not 300 or 305
    add("LP", {"Resolution", "300x305dpi", "Feed", "203"}, "feed", "1.00"); // the PPD's default counts
    add("LP", {"Back", "7"}, "back", "7");
    add("LP", {"Overlap", "-3"}, "overlap", "-3");
    add("LP", {}, "back", "12");
    add("LP-300", {}, "back", "2");

    add("LP", {}, "stop", "1.18");
    add("LP", {"Stop", "25.400", "Shift", "12.700"}, "stop", "1.00");
    add("LP-KERN", {"Stop", "25.400", "Shift", "12.700"}, "stop", "1.00");
    add("LP-LUMA", {"Stop", "25.400", "Shift", "12.700"}, "stop", "1.00");
    add("LP-ORCA", {"Stop", "25.400", "Shift", "-12.700"}, "stop", "-0.50");
    add("LP-TIK", {"Stop", "25.400", "Shift", "-12.700"}, "stop", "-0.50");
    add("LP-ZED", {"Stop", "25.400", "Shift", "-12.700"}, "stop", "-0.50");

    add("LP", {"OffsetH", "8"}, "horizontalEdit", "8");
    add("LP", {"OffsetH", "8"}, "verticalEdit", "0");
    add("LP", {"OffsetV", "-9"}, "verticalEdit", "-9");
    add("LP", {"OffsetV", "-9"}, "horizontalEdit", "0");
}

void PropertiesDialogLoadTest::fields()
{
    QFETCH(QString, queue);
    QFETCH(QStringList, options);
    QFETCH(QString, widget);
    OpenDialog t(queue, options);
    t.dialog.show();
    QTEST(t.shown(widget), "expected");
    QVERIFY(!t.isChanged());
    // Again, onto fields that are filled already.
    t.dialog.updateDialog();
    QTEST(t.shown(widget), "expected");
}

void PropertiesDialogLoadTest::fallbacksOfMissingOptions_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("height");
    QTest::addColumn<QString>("darkness");
    for (const char *queue : {"LP-NOPPD", "LP-NOPPD-TIK"})
        QTest::newRow(queue) << QString(queue) << ""
                             << ""
                             << "7";
    for (const char *queue : {"LP-FEW", "LP-FEW-ZED"})
        QTest::newRow(queue) << QString(queue) << "4.00"
                             << "2.00"
                             << "10";
}

void PropertiesDialogLoadTest::fallbacksOfMissingOptions()
{
    QFETCH(QString, queue);
    OpenDialog t(queue);
    t.dialog.show();
    QTEST(t.shown("widthEdit"), "width");
    QTEST(t.shown("heightEdit"), "height");
    QTEST(t.shown("darknessSlider"), "darkness");
    QTEST(t.shown("darknessValue"), "darkness");
    const QMap<QString, QString> others = {
        {"landscapeRadioButton", "True"},
        {"mirroredCheckBox", "False"},
        {"inverseCheckBox", "False"},
        {"speedSlider", "2"},
        {"speedValue", "2"},
        {"mediaType", "0"},
        {"cut", "2"},
        {"feed", "0.00"},
        {"back", "0"},
        {"overlap", "0"},
        {"stop", "0.00"},
        {"commandEdit", ""},
        {"horizontalEdit", "0"},
        {"verticalEdit", "0"},
    };
    for (auto it = others.begin(); it != others.end(); ++it)
        QCOMPARE(it.key() + '=' + t.shown(it.key()), it.key() + '=' + it.value());

    t.button("okButton")->click();
    QCOMPARE(t.dialog.result(), 1);
    CupsSupport saved;
    selectQueue(saved, queue);
    QCOMPARE(QString(saved.getValue("LabelCategory")), QString("0"));
    QCOMPARE(QString(saved.getValue("CutMedia")), QString("4"));
    QCOMPARE(QString(saved.getValue("orientation-requested")), QString("4"));
    QCOMPARE(QString(saved.getValue("MirrorPrint")), QString("False"));
}

void PropertiesDialogLoadTest::pageSizeIsKept_data()
{
    QTest::addColumn<QString>("queue");
    for (const char *queue : {"LP-FLAT", "LP-THIN", "LP-NOPPD"})
        QTest::newRow(queue) << QString(queue);
}

void PropertiesDialogLoadTest::pageSizeIsKept()
{
    QFETCH(QString, queue);
    OpenDialog t(queue);
    t.edit("widthEdit")->setText("3.21");
    t.edit("heightEdit")->setText("1.23");
    t.dialog.show();
    QCOMPARE(t.shown("widthEdit"), "3.21");
    QCOMPARE(t.shown("heightEdit"), "1.23");
}

void PropertiesDialogLoadTest::commands()
{
    OpenDialog t("LP");
    t.cups.setJobStart("job start");
    t.cups.setLabelStart("label\nstart");
    t.cups.setLabelEnd("label end \\ 'q' \"q\" \xc3\xa9\xc2\xa0#");
    t.cups.setJobEnd("job end\n");
    t.dialog.show();
    QCOMPARE(t.shown("commandEdit"), "job start\n");
    t.button("labelStartRadioButton")->setChecked(true);
    QCOMPARE(t.shown("commandEdit"), "label\nstart\n");
    t.button("labelEndRadioButton")->setChecked(true);
    QCOMPARE(t.widget<QPlainTextEdit>("commandEdit")->document()->toRawText(),
             QString("label end \\ 'q' \"q\" \xc3\xa9\xc2\xa0#\xe2\x80\xa9"));
    t.button("jobEndRadioButton")->setChecked(true);
    QCOMPARE(t.shown("commandEdit"), "job end\n");

    // Loading again shows the chosen command, not the first one.
    t.cups.setJobEnd("other");
    t.dialog.updateDialog();
    QCOMPARE(t.shown("commandEdit"), "other\n");
}

void PropertiesDialogLoadTest::removedCommandsAreGone()
{
    OpenDialog t("LP", {"JobStart", "A", "LabelStart", "B", "LabelEnd", "C", "JobEnd", "D"});
    t.dialog.show();
    t.cups.deleteOptions({"JobStart", "LabelStart", "LabelEnd", "JobEnd"});
    t.dialog.updateDialog();
    for (const char *radio :
         {"jobStartRadioButton", "labelStartRadioButton", "labelEndRadioButton", "jobEndRadioButton"}) {
        t.button(radio)->setChecked(true);
        QCOMPARE(t.shown("commandEdit"), "");
    }
}

void PropertiesDialogLoadTest::equalCommandIsNotSetAgain()
{
    OpenDialog t("LP", {"JobStart", "A\\\\rB\\\\r"});
    t.dialog.show();
    const QSignalSpy spy(t.widget<QPlainTextEdit>("commandEdit"), &QPlainTextEdit::textChanged);
    t.dialog.updateDialog();
    QCOMPARE(spy.count(), 0);
    QCOMPARE(t.shown("commandEdit"), "A\nB\n");
}

void PropertiesDialogLoadTest::previewIsLoaded()
{
    OpenDialog t("LP", {"orientation-requested", "6", "MirrorPrint", "True", "NegativePrint", "True"});
    auto *preview = t.dialog.findChild<Preview *>();
    t.dialog.show();
    QCOMPARE(preview->orientation, 6);
    QVERIFY(preview->mirror);
    QVERIFY(preview->negative);
    QCOMPARE(preview->labelWidth, 1200.0);
    QCOMPARE(preview->labelHeight, 1200.0);

    // Also when no field changes.
    preview->orientation = 0;
    t.dialog.updateDialog();
    QCOMPARE(preview->orientation, 6);
}

void PropertiesDialogLoadTest::mediaTypeIsLoadedAgain()
{
    OpenDialog t("LP", {"GapSize", "2.540"});
    t.dialog.show();
    QCOMPARE(t.shown("gapSize"), "0.10");
    t.cups.setGapSize(5.08);
    t.dialog.updateDialog(); // the media type stays, but the fields are filled
    QCOMPARE(t.shown("gapSize"), "0.20");
}

void PropertiesDialogLoadTest::userPageSizeOfThePreset_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("expected");
    QTest::newRow("size") << QByteArray("ppdhack 2.00 1.00 LP\n") << "True";
    QTest::newRow("no size") << QByteArray() << "False";
    QTest::newRow("no width") << QByteArray("ppdhack 0.00 1.00 LP\n") << "False";
    QTest::newRow("no height") << QByteArray("ppdhack 2.00 0.00 LP\n") << "False";
}

void PropertiesDialogLoadTest::userPageSizeOfThePreset()
{
    QFETCH(QByteArray, line);
    writeFile(homePath(".cups/LP/Mine.sh"), homePreset + line);
    OpenDialog t("LP");
    t.dialog.show();
    QCOMPARE(t.list("preset0")->currentText(), "Mine");
    QTEST(t.shown("stockGroupBox"), "expected");
    QCOMPARE(t.widget("widthEdit")->isEnabled() ? QString("True") : QString("False"), t.shown("stockGroupBox"));
}

void PropertiesDialogLoadTest::hostSettingsForceThePageSize_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("expected");
    QTest::newRow("only that") << QByteArray("<stringvalue>adobe</stringvalue>") << "True";
    QTest::newRow("among others") << QByteArray("<gconf>\n\0<stringvalue>adobe</stringvalue>\n</gconf>", 50) << "True";
    QTest::newRow("other value") << QByteArray("<stringvalue>other</stringvalue>") << "False";
    QTest::newRow("other case") << QByteArray("<stringvalue>Adobe</stringvalue>") << "False";
    QTest::newRow("no value") << QByteArray("adobe") << "False";
    QTest::newRow("empty") << QByteArray("") << "False";
}

void PropertiesDialogLoadTest::hostSettingsForceThePageSize()
{
    QFETCH(QByteArray, data);
    writeFile(homePath(hostSettings), data);
    OpenDialog t("LP");
    t.dialog.show();
    QTEST(t.shown("stockGroupBox"), "expected");
    t.widget<QGroupBox>("stockGroupBox")->setChecked(false);
    t.dialog.updateDialog();
    QTEST(t.shown("stockGroupBox"), "expected");
}

void PropertiesDialogLoadTest::hostSettingsAreReadOnce()
{
    QDir().mkpath(homePath(hostSettings)); // a folder in place of the file
    OpenDialog unreadable("LP");
    unreadable.dialog.show();
    QCOMPARE(unreadable.shown("stockGroupBox"), "False");

    clearHome();
    OpenDialog before("LP");
    writeFile(homePath(hostSettings), "<stringvalue>adobe</stringvalue>");
    OpenDialog during("LP");
    clearHome();
    before.dialog.show();
    QCOMPARE(before.shown("stockGroupBox"), "False");
    during.dialog.show();
    QCOMPARE(during.shown("stockGroupBox"), "True");
}

// Whose path no QString holds.
void PropertiesDialogLoadTest::hostSettingsInAHomeOfBytes()
{
    const HomeOfBytes home;
    const std::filesystem::path file((HomeOfBytes::path() + '/' + hostSettings).constData());
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << "<stringvalue>adobe</stringvalue>";
    const TestMain::ChildResult result = HomeOfBytes::runChild("show-page-size-group");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QByteArray("stockGroupBox=True\n"));
}

// ----- bad input -----

void PropertiesDialogLoadTest::badValues_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("saved");
    const auto add = [](const char *queue, const char *option, const char *widget, const char *shown,
                        const char *saved) {
        QTest::addRow("%s %s %s", queue, option, widget)
            << QString(queue) << QString(option) << QString(widget) << QString(shown) << QString(saved);
    };
    // No numbers: the fallback.
    add("LP", "Stop=abc", "stop", "0.00", "0.000");
    add("LP-TIK", "Shift=abc", "stop", "0.00", "0.000");
    add("LP", "GapSize=abc", "gapSize", "0.00", "0.000");
    add("LP", "GapOffset=-", "gapOffset", "0.00", "0.000");
    add("LP", "LabelCategory=x", "mediaType", "0", "0");
    add("LP", "CutMedia=x", "cut", "2", "4");
    add("LP", "Darkness=dark", "darknessSlider", "7", "7");
    add("LP-ZED", "Darkness=dark", "darknessSlider", "7", "7");
    add("LP", "PrintSpeed=fast", "speedSlider", "2", "2");
    add("LP", "Feed=far", "feed", "0.00", "0");
    add("LP", "Back=far", "back", "0", "0");
    add("LP", "Overlap=far", "overlap", "0", "0");
    add("LP", "OffsetH=left", "horizontalEdit", "0", "0");
    add("LP", "OffsetV=up", "verticalEdit", "0", "0");
    add("LP", "orientation-requested=x", "landscapeRadioButton", "True", "4");
    add("LP", "MirrorPrint=yes", "mirroredCheckBox", "False", "False");
    add("LP", "NegativePrint=1", "inverseCheckBox", "False", "False");

    // Of another type.
    add("LP", "Overlap=1.5", "overlap", "1", "1");
    add("LP", "Stop=25", "stop", "0.98", "24.892");
    add("LP", "Stop=25,4", "stop", "0.98", "24.892");
    add("LP", "MirrorPrint=true", "mirroredCheckBox", "True", "True");

    // Out of range: the nearest that a field can show; the fields that can show it show it.
    add("LP", "Darkness=999", "darknessSlider", "19", "19");
    add("LP", "Darkness=999", "darknessValue", "999", "19");
    add("LP", "Darkness=-5", "darknessSlider", "0", "0");
    add("LP", "PrintSpeed=0", "speedSlider", "1", "1");
    add("LP", "CutMedia=9", "cut", "2", "4");
    add("LP", "CutMedia=3", "cut", "2", "4");
    add("LP", "CutMedia=-2", "cut", "2", "4");
    add("LP", "orientation-requested=7", "landscapeRadioButton", "True", "4");
    add("LP", "orientation-requested=2", "landscapeRadioButton", "True", "4");
    add("LP", "OffsetH=5000", "horizontalEdit", "5000", "5000");
    add("LP-TIK", "OffsetV=-5000", "verticalEdit", "-5000", "-5000");
    add("LP", "Stop=254", "stop", "10.00", "254.000");
    add("LP-TIK", "Shift=-254", "stop", "-10.00", "-254.000");
    add("LP", "Feed=-203", "feed", "-1.00", "-203");

    // An unlisted media type, and numbers that C accepts but that are not lengths: not shown, and kept.
    add("LP", "LabelCategory=7", "mediaType", "-1", "7");
    add("LP", "LabelCategory=-1", "mediaType", "-1", "-1");
    add("LP", "GapSize=nan", "gapSize", "", "nan");
    add("LP", "GapOffset=inf", "gapOffset", "", "inf");
    add("LP", "Stop=-inf", "stop", "", "-inf");
    add("LP-TIK", "Shift=nan", "stop", "", "nan");
}

void PropertiesDialogLoadTest::badValues()
{
    QFETCH(QString, queue);
    QFETCH(QString, option);
    QFETCH(QString, widget);
    scheduler.setUserOptions(queue, {option, "UnknownOption=kept", "JobEnd=kept"});
    const QByteArray keyword = option.section('=', 0, 0).toLatin1();

    OpenDialog t(queue);
    QCOMPARE(QString(t.cups.getValue(keyword.constData())), option.section('=', 1));
    t.dialog.show();
    QTEST(t.shown(widget), "shown");
    t.button("okButton")->click();
    QCOMPARE(t.dialog.result(), 1);

    CupsSupport saved;
    selectQueue(saved, queue);
    QTEST(QString(saved.getValue(keyword.constData())), "saved");
    QCOMPARE(QString(saved.getValue("UnknownOption")), QString("kept"));
    QCOMPARE(saved.getJobEnd().section('\n', 0, 0), QString("kept"));
}

void PropertiesDialogLoadTest::schedulerGoesWhileOpen()
{
    scheduler.setUserOptions("LP", {"UnknownOption=kept", "Darkness=4"});
    {
        OpenDialog t("LP");
        t.dialog.show();
        scheduler.stop();
        t.widget<QSlider>("darknessSlider")->setValue(6);
        t.button("okButton")->click();
        QCOMPARE(t.dialog.result(), 1);
        t.dialog.show();
        QCOMPARE(t.shown("darknessSlider"), "6");
        QCOMPARE(t.shown("widthEdit"), "4.00");
    }
    scheduler.start();
    CupsSupport saved;
    selectQueue(saved, "LP");
    QCOMPARE(saved.getDarkness(), 6);
    QCOMPARE(QString(saved.getValue("UnknownOption")), QString("kept"));
}

void PropertiesDialogLoadTest::numbersHaveAPoint()
{
    OpenDialog t("LP", {"Stop", "38.100"}); // 1.5 inches
    QVERIFY(t.cups.setGapOffset(1.5) >= 0);
    QCOMPARE(t.cups.getValue("GapOffset"), "1.500");
    t.dialog.show();
    QCOMPARE(t.shown("stop"), "1.50");
    t.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    for (const char *field : {"widthEdit", "heightEdit", "gapSize", "gapOffset", "feed", "stop"}) {
        t.edit(field)->clear();
        QTest::keyClicks(t.edit(field), "1.50");
        QCOMPARE(t.shown(field), "1.50");
        QVERIFY(t.edit(field)->hasAcceptableInput());
        t.edit(field)->clear();
        QTest::keyClicks(t.edit(field), "1,5"); // the comma is refused
        QVERIFY(!t.shown(field).contains(','));
        t.edit(field)->setText("1,50");
        QVERIFY(!t.edit(field)->hasAcceptableInput());
    }
    t.edit("horizontalEdit")->setText("1.000");
    QVERIFY(!t.edit("horizontalEdit")->hasAcceptableInput());
    t.edit("horizontalEdit")->setText("-100");
    QVERIFY(t.edit("horizontalEdit")->hasAcceptableInput());

    t.edit("stop")->setText("1.50");
    t.edit("gapSize")->setText("0.15");
    t.dialog.saveValues();
    QCOMPARE(t.cups.getValue("Stop"), "38.100");
    QCOMPARE(t.cups.getValue("GapSize"), "3.810");
}

// ----- entry function -----

void PropertiesDialogLoadTest::entryInApplication_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("darkness");
    QTest::newRow("OK") << "okButton" << 1 << "3";
    QTest::newRow("Cancel") << "cancelButton" << 0 << "10";
    QTest::newRow("close") << "close" << 0 << "10";
    QTest::newRow("OK again") << "okButton" << 1 << "3";
}

void PropertiesDialogLoadTest::entryInApplication()
{
    QFETCH(QString, action);
    scheduler.setServerDefault("LP");
    bool wasModal = false;
    bool hadParent = true;
    whenDialogRuns([&](PrintPropertiesDialog *dialog) {
        wasModal = dialog->isModal();
        hadParent = dialog->parent();
        dialog->findChild<QSlider *>("darknessSlider")->setValue(3);
        endDialog(dialog, action);
    });
    QTEST(propertiesDialog(), "result");
    QVERIFY(wasModal);
    QVERIFY(!hadParent);
    QVERIFY(!QApplication::activeModalWidget());
    for (const QWidget *widget : QApplication::topLevelWidgets())
        QVERIFY(!qobject_cast<const PrintPropertiesDialog *>(widget));
    CupsSupport saved;
    selectQueue(saved, "LP");
    QTEST(QString(saved.getValue("Darkness")), "darkness");
}

void PropertiesDialogLoadTest::entryEditsTheDefaultPrinter_data()
{
    QTest::addColumn<QString>("serverDefault");
    QTest::addColumn<QString>("userDefault");
    QTest::addColumn<QString>("expected");
    QTest::newRow("of the server") << "LP-TIK"
                                   << ""
                                   << "LP-TIK";
    QTest::newRow("of the user") << "LP-TIK"
                                 << "LP-ZED"
                                 << "LP-ZED";
}

void PropertiesDialogLoadTest::entryEditsTheDefaultPrinter()
{
    QFETCH(QString, serverDefault);
    QFETCH(QString, userDefault);
    QFETCH(QString, expected);
    scheduler.setServerDefault(serverDefault);
    if (!userDefault.isEmpty())
        scheduler.setUserDefault(userDefault);
    scheduler.setUserOptions(expected, {"Darkness=5"});
    QString title;
    QString darkness;
    whenDialogRuns([&](PrintPropertiesDialog *dialog) {
        title = dialog->windowTitle();
        darkness = shownBy(dialog->findChild<QSlider *>("darknessSlider"));
        dialog->findChild<QSlider *>("darknessSlider")->setValue(6);
        endDialog(dialog, "okButton");
    });
    QCOMPARE(propertiesDialog(), 1);
    QCOMPARE(title, expected + " Printing Preferences");
    QCOMPARE(darkness, "5");
    CupsSupport saved;
    selectQueue(saved, expected);
    QCOMPARE(saved.getDarkness(), 6);
}

void PropertiesDialogLoadTest::entryWithoutApplication()
{
    scheduler.setServerDefault("LP");
    const auto child = TestMain::runChild("without-application", {"okButton", "cancelButton", "close", "okButton"});
    QCOMPARE(child.exitCode, 0);
    QCOMPARE(child.output.count("title=LP Printing Preferences\n"), 4);
    QVERIFY(child.output.contains("widthEdit=4.00\n"));
    QVERIFY(child.output.contains("darknessSlider=10\n"));
    QByteArrayList results;
    for (const QByteArray &line : child.output.split('\n'))
        if (line.startsWith("result="))
            results.append(line.mid(7));
    QCOMPARE(results, QByteArrayList({"1", "0", "0", "1"}));
    QVERIFY(child.output.endsWith("application=gone\n"));
}

void PropertiesDialogLoadTest::entryWithOtherApplications_data()
{
    QTest::addColumn<QString>("child");
    QTest::newRow("QCoreApplication") << "core-application";
    QTest::newRow("QGuiApplication") << "gui-application";
    QTest::newRow("no display") << "without-display";
}

void PropertiesDialogLoadTest::entryWithOtherApplications()
{
    QFETCH(QString, child);
    QMap<QString, QString> environment;
    if (child == "without-display")
        environment = {{"QT_QPA_PLATFORM", QString()}, {"DISPLAY", QString()}, {"WAYLAND_DISPLAY", QString()}};
    const auto result = TestMain::runChild(child.toLatin1().constData(), {}, environment);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QByteArray("result=0\n"));
}

void PropertiesDialogLoadTest::entryWithoutPrinter_data()
{
    QTest::addColumn<QString>("child");
    QTest::addColumn<bool>("hasScheduler");
    QTest::newRow("no scheduler, no application") << "without-application" << false;
    QTest::newRow("no scheduler") << "application" << false;
    QTest::newRow("no queue, no application") << "without-application" << true;
    QTest::newRow("no queue") << "application" << true;
}

void PropertiesDialogLoadTest::entryWithoutPrinter()
{
    QFETCH(QString, child);
    QFETCH(bool, hasScheduler);
    const QByteArray stored = "Dest LP Darkness=4 UnknownOption=kept\n";
    writeFile(homePath(".cups/lpoptions"), stored);

    const QByteArray server = qgetenv("CUPS_SERVER");
    std::unique_ptr<PrivateScheduler> withoutQueues;
    if (hasScheduler)
        withoutQueues = std::make_unique<PrivateScheduler>();
    const QString socket = hasScheduler ? withoutQueues->socket() : QString("/nowhere");
    const auto result =
        TestMain::runChild(child.toLatin1().constData(), {"okButton", "cancelButton"}, {{"CUPS_SERVER", socket}});
    withoutQueues.reset();
    qputenv("CUPS_SERVER", server);
    cupsSetServer(server.constData());

    QCOMPARE(result.exitCode, 0);
    const QByteArray shown = "title= Printing Preferences\nwidthEdit=\nheightEdit=\nspeedSlider=2\ndarknessSlider=7\n"
                             "mediaType=0\ncut=2\nfeed=0.00\nback=0\noverlap=0\nstop=0.00\nhorizontalEdit=0\n"
                             "verticalEdit=0\n";
    QVERIFY2(result.output.startsWith(shown + "result=1\n" + shown + "result=0\n"), result.output.constData());
    QFile file(homePath(".cups/lpoptions"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), stored);
}

void PropertiesDialogLoadTest::entryWithoutDefaultPrinter()
{
    // Removing the default printer leaves none.
    scheduler.addQueue("LP-GONE");
    scheduler.setServerDefault("LP-GONE");
    scheduler.removeQueue("LP-GONE");
    CupsSupport cups;
    const QString first = cups.getCurrentQueueName();
    QVERIFY(!first.isEmpty());

    QString title;
    whenDialogRuns([&](PrintPropertiesDialog *dialog) {
        title = dialog->windowTitle();
        dialog->findChild<QSlider *>("darknessSlider")->setValue(3);
        endDialog(dialog, "okButton");
    });
    QCOMPARE(propertiesDialog(), 1);
    QCOMPARE(title, first + " Printing Preferences");
    CupsSupport saved;
    QCOMPARE(saved.getCurrentQueueName(), first);
    QCOMPARE(saved.getDarkness(), 3);
}

PROPERTIESDIALOG_TEST_MAIN(PropertiesDialogLoadTest)
#include "PropertiesDialogLoadTest.moc"
