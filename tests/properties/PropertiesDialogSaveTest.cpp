// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/PropertiesDialog.h>

#include <QApplication>
#include <QGroupBox>
#include <QPaintEngine>
#include <QPrintEngine>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>

#include <clocale>
#include <cstdio>
#include <functional>
#include <memory>

namespace {

// Records the properties that a QPrinter sets, and passes them to the engine of another printer.
class RecordingEngine : public QPrintEngine
{
public:
    explicit RecordingEngine(QPrintEngine *next_)
        : next(next_)
    {
    }

    void setProperty(PrintEnginePropertyKey key, const QVariant &value) override
    {
        record << qMakePair(int(key), value);
        next->setProperty(key, value);
    }
    QVariant property(PrintEnginePropertyKey key) const override { return next->property(key); }
    bool newPage() override { return next->newPage(); }
    bool abort() override { return next->abort(); }
    int metric(QPaintDevice::PaintDeviceMetric id) const override { return next->metric(id); }
    QPrinter::PrinterState printerState() const override { return next->printerState(); }

    QList<QPair<int, QVariant>> record;

private:
    QPrintEngine *next;
};

class RecordingPrinter : public QPrinter
{
public:
    RecordingPrinter()
        : QPrinter(QPrinter::ScreenResolution)
        , engine(std::make_unique<RecordingEngine>(inner.printEngine()))
    {
        setEngines(engine.get(), inner.paintEngine());
    }

    QPrinter inner{QPrinter::ScreenResolution};
    std::unique_ptr<RecordingEngine> engine;
};

QString scriptPath(const QString &queue, const QString &file)
{
    return cupsFolder() + '/' + queue + '/' + file + ".sh";
}

QStringList filesOf(const QString &queue)
{
    return QDir(cupsFolder() + '/' + queue).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
}

// Writes the options of the queue that is its argument as a program with nothing in memory sees them.
int printOptions(int &, char **argv)
{
    const Options options = storedOptions(argv[1]);
    for (auto it = options.begin(); it != options.end(); ++it)
        std::printf("%s=%s\n", it.key().constData(), it.value().constData());
    return 0;
}
const TestMain::ChildFunction printOptionsFunction("print-options", printOptions);

// Writes what the command edit shows for each of the four commands.
int printCommands(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    OpenDialog open;
    for (const char *radio :
         {"jobStartRadioButton", "labelStartRadioButton", "labelEndRadioButton", "jobEndRadioButton"}) {
        open.click(radio);
        std::printf("%s|", qPrintable(open.plainText("commandEdit")));
    }
    return 0;
}
const TestMain::ChildFunction printCommandsFunction("print-commands", printCommands);

// Saves without a printer.
int saveWithoutScheduler(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    OpenDialog open;
    open.slide("darknessSlider", 4);
    open.click("applyButton");
    return open.isEnabled("applyButton") ? 1 : 0;
}
const TestMain::ChildFunction saveWithoutSchedulerFunction("save-without-scheduler", saveWithoutScheduler);

// Runs a function in the modal loop of the dialog that is about to open.
void inDialog(const std::function<void(QWidget *)> &function)
{
    QTimer::singleShot(
        0, qApp,
        [function] {
            QWidget *dialog = QApplication::activeModalWidget();
            QVERIFY(dialog);
            function(dialog);
        });
}

QByteArray line(const QByteArray &text, const QByteArray &start)
{
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &candidate : lines)
        if (candidate.startsWith(start))
            return candidate;
    return {};
}

const QPageSize label(QSizeF(288, 144), QPageSize::Point);

const QByteArray noValue; // null: the option is not stored

} // namespace

// If this fails, Apply or OK stores other values than the dialog shows.
class PropertiesDialogSaveTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void numbersOfTheLocale();

    // The printer.
    void printerOrientation_data();
    void printerOrientation();
    void printerMargins();
    void engineProperties_data();
    void engineProperties();
    void engineOptionsOfTheRealEngine();
    void engineOptionsAreThoseBeforeSaving();

    // The destination's options.
    void field_data();
    void field();
    void skippedField_data();
    void skippedField();
    void mediaTypeLeavesTheOthersAlone_data();
    void mediaTypeLeavesTheOthersAlone();
    void resolutionIsReadAnew();
    void hiddenFieldsAreCarried();
    void loadedValuesAreSaved();
    void valueOfTheDefaultIsNotStored();
    void unlistedMediaType();
    void noCutChosen();
    void commands_data();
    void commands();
    void commandsThroughTheFile();
    void emptyCommandsThroughTheFile();
    void otherQueuesStay();

    // The presets.
    void userPageSize_data();
    void userPageSize();
    void commandIsWaitedFor();
    void failingCommand_data();
    void failingCommand();
    void userPageSizeOfAUserPreset();
    void currentSettingsScript();
    void currentSettingsScriptReplacesAll();
    void nothingChanged();
    void nothingChangedStillAppliesThePageSize();
    void changedPresetsAreSaved();
    void failureOfThePresetsStillSavesTheSettings();

    // The buttons.
    void apply();
    void ok();
    void cancel();
    void cancelAfterApply();
    void modalResult_data();
    void modalResult();
    void modalResultIsThatOfTheCall();
    void setChanged();

    // Failures.
    void optionsFileCannotBeWritten();
    void presetCannotBeWritten();
    void currentSettingsCannotBeWritten();
    void noScheduler();

private:
    void makeDefault(const QString &queue);

    PrivateScheduler scheduler;
    QString added;
};

void PropertiesDialogSaveTest::initTestCase()
{
    scheduler.addQueue("Q");
    scheduler.addQueue("Q300", PrivateScheduler::samplePpd("label-300"));
}

// Other queues than Q and Q300 are removed after the function or row: every dialog asks for all queues, so that many
// would make all rows slow.
void PropertiesDialogSaveTest::makeDefault(const QString &queue)
{
    static const QMap<QString, QString> samples{{"Every", "every-option"}, {"Few", "few-options"}};
    if (!queue.startsWith('Q')) {
        added = queue;
        scheduler.addQueue(queue, PrivateScheduler::samplePpd(samples.value(queue, "label-203")));
    }
    scheduler.setServerDefault(queue);
}

void PropertiesDialogSaveTest::init()
{
    QVERIFY(QDir(cupsFolder()).removeRecursively());
    scheduler.setServerDefault("Q");
    if (!added.isEmpty())
        scheduler.removeQueue(added);
    added.clear();
}

// The run in another locale would prove nothing if the locale were not active.
void PropertiesDialogSaveTest::numbersOfTheLocale()
{
    const bool german = qgetenv("LC_ALL").startsWith("de_DE");
    QCOMPARE(QByteArray(std::localeconv()->decimal_point), QByteArray(german ? "," : "."));
}

// ----- the printer -----

void PropertiesDialogSaveTest::printerOrientation_data()
{
    QTest::addColumn<QByteArray>("radio");
    QTest::addColumn<QPageLayout::Orientation>("orientation");
    QTest::newRow("portrait") << QByteArray("portraitRadioButton") << QPageLayout::Portrait;
    QTest::newRow("landscape") << QByteArray("landscapeRadioButton") << QPageLayout::Landscape;
    QTest::newRow("portrait 180") << QByteArray("portrait180RadioButton") << QPageLayout::Portrait;
    QTest::newRow("landscape 180") << QByteArray("landscape180RadioButton") << QPageLayout::Landscape;
}

void PropertiesDialogSaveTest::printerOrientation()
{
    QFETCH(QByteArray, radio);
    QFETCH(QPageLayout::Orientation, orientation);
    OpenDialog open(std::make_unique<QPrinter>(QPrinter::ScreenResolution));
    open.printer->setPageSize(label);
    const bool isLandscape = orientation == QPageLayout::Landscape;
    open.printer->setPageOrientation(isLandscape ? QPageLayout::Portrait : QPageLayout::Landscape);
    open.click(radio);
    open.dialog.saveValues();
    QCOMPARE(open.printer->pageLayout().orientation(), orientation);
    // The sheet is what it was.
    QCOMPARE(open.printer->pageLayout().pageSize().size(QPageSize::Point), QSizeF(288, 144));
}

void PropertiesDialogSaveTest::printerMargins()
{
    OpenDialog open(std::make_unique<QPrinter>(QPrinter::ScreenResolution));
    open.printer->setPageMargins(QMarginsF(10, 11, 12, 13), QPageLayout::Point);
    QCOMPARE(open.printer->pageLayout().margins(QPageLayout::Point), QMarginsF(10, 11, 12, 13));
    open.dialog.saveValues();
    QCOMPARE(open.printer->pageLayout().margins(QPageLayout::Point), QMarginsF(0, 0, 0, 0));

    // The host decides whether it counts from the edge of the sheet.
    for (bool fullPage : {true, false}) {
        open.printer->setFullPage(fullPage);
        open.dialog.saveValues();
        QCOMPARE(open.printer->fullPage(), fullPage);
    }
}

void PropertiesDialogSaveTest::engineProperties_data()
{
    QTest::addColumn<QByteArray>("radio");
    QTest::newRow("portrait") << QByteArray("portraitRadioButton");
    // The sheet's sides are not swapped.
    QTest::newRow("landscape") << QByteArray("landscapeRadioButton");
}

void PropertiesDialogSaveTest::engineProperties()
{
    QFETCH(QByteArray, radio);
    makeDefault("Customs");
    const QByteArray customDarkness = "*CustomDarkness True: \"pop\"\n*ParamCustomDarkness Level: 1 int 0 19\n";
    scheduler.setPpd("Customs",
                     scheduler.editedPpd(PrivateScheduler::samplePpd("label-203"),
                                         {{"*CloseUI: *Darkness\n", "*CloseUI: *Darkness\n" + customDarkness},
                                          {"*PrintSpeed 1/1", "*PrintSpeed Customary/Customary"}}));
    scheduler.setUserOptions("Customs", {"PageSize=Custom.288x144", "Darkness=Custom.5", "PrintSpeed=Customary"});
    RecordingPrinter printer;
    printer.setPageSize(label);
    CupsSupport cups;
    PrintPropertiesDialog dialog(nullptr, &printer, &cups);
    dialog.show();
    dialog.findChild<QAbstractButton *>(radio)->click();
    const QStringList options = cups.options();
    // Otherwise the test would prove nothing: each of these becomes the full size, and no others do.
    QCOMPARE(options.count("Custom"), 2);
    QVERIFY(options.contains("Customary"));
    printer.engine->record.clear();
    dialog.saveValues();

    QList<int> keys;
    QMap<int, QVariant> values;
    for (const auto &[key, value] : std::as_const(printer.engine->record)) {
        keys << key;
        values.insert(key, value);
    }
    const QList<int> expected{
        QPrintEngine::PPK_Orientation, QPrintEngine::PPK_QPageMargins, 0xFE03, 0xFE00, 0xFE01, 0xFE02};
    keys.erase(std::remove_if(keys.begin(), keys.end(), [&](int key) { return !expected.contains(key); }), keys.end());
    QCOMPARE(keys, expected);

    QCOMPARE(values.value(0xFE03).toString(), QString("Custom"));
    QStringList renamed = options;
    renamed.replaceInStrings(QRegularExpression("^Custom$"), "Custom.288.00x144.00");
    QCOMPARE(values.value(0xFE00).toStringList(), renamed);
    // No PPD file has a page size of that name.
    QCOMPARE(values.value(0xFE01), QVariant(QRect()));
    QCOMPARE(values.value(0xFE02), QVariant(QRect()));
}

void PropertiesDialogSaveTest::engineOptionsOfTheRealEngine()
{
    scheduler.setUserOptions("Q", {"PageSize=Custom.288x144"});
    OpenDialog open(std::make_unique<QPrinter>(QPrinter::ScreenResolution));
    QCOMPARE(open.printer->printerName(), QString("Q"));
    open.printer->setPageSize(label);
    QStringList options = open.cups.options();
    QVERIFY(options.contains("Custom"));
    options.replaceInStrings(QRegularExpression("^Custom$"), "Custom.288.00x144.00");
    open.dialog.saveValues();
    const auto key = QPrintEngine::PrintEnginePropertyKey(0xFE00);
    QCOMPARE(open.printer->printEngine()->property(key).toStringList(), options);
}

void PropertiesDialogSaveTest::engineOptionsAreThoseBeforeSaving()
{
    scheduler.setUserOptions("Q", {"Darkness=4"});
    OpenDialog open(std::make_unique<QPrinter>(QPrinter::ScreenResolution));
    open.slide("darknessSlider", 6);
    open.dialog.saveValues();
    const auto key = QPrintEngine::PrintEnginePropertyKey(0xFE00);
    QCOMPARE(open.printer->printEngine()->property(key).toStringList(), QStringList({"Darkness", "4"}));
}

// ----- the destination's options -----

namespace {

using Edit = std::function<void(OpenDialog &)>;

Edit clicked(const char *button)
{
    return [button](OpenDialog &open) { open.click(button); };
}

Edit slid(const char *slider, int value)
{
    return [=](OpenDialog &open) { open.slide(slider, value); };
}

Edit chosen(const char *list, int index)
{
    return [=](OpenDialog &open) { open.choose(list, index); };
}

Edit typed(const char *edit, const QString &text)
{
    return [=](OpenDialog &open) { open.setText(edit, text); };
}

// For the gap fields, which belong to the media type.
Edit typedFor(int mediaType, const char *edit, const QString &text)
{
    return [=](OpenDialog &open) {
        open.choose("mediaType", mediaType);
        open.setText(edit, text);
    };
}

} // namespace

Q_DECLARE_METATYPE(Edit)

void PropertiesDialogSaveTest::field_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QByteArray>("keyword");
    QTest::addColumn<QByteArray>("value"); // as stored; null when it equals the default

    const auto row = [](const char *name, const char *queue, const Edit &edit, const char *keyword,
                        const QByteArray &value) {
        QTest::newRow(name) << QString(queue) << edit << QByteArray(keyword) << value;
    };

    const char *orientation = "orientation-requested";
    row("portrait", "Q", clicked("portraitRadioButton"), orientation, "3");
    row("landscape", "Q", clicked("landscapeRadioButton"), orientation, "4");
    row("landscape 180", "Q", clicked("landscape180RadioButton"), orientation, "5");
    row("portrait 180", "Q", clicked("portrait180RadioButton"), orientation, "6");
    row("orientation of the PPD file", "Every", clicked("landscape180RadioButton"), orientation, noValue);
    row("other orientation", "Every", clicked("portraitRadioButton"), orientation, "3");

    row("mirror", "Q", clicked("mirroredCheckBox"), "MirrorPrint", "True");
    row("no mirror", "Q", Edit([](OpenDialog &) {}), "MirrorPrint", noValue);
    row("no mirror, without default", "Few", Edit([](OpenDialog &) {}), "MirrorPrint", "False");
    row("negative", "Q", clicked("inverseCheckBox"), "NegativePrint", "True");
    row("not negative", "Q", Edit([](OpenDialog &) {}), "NegativePrint", noValue);
    row("not negative, without default", "Few", Edit([](OpenDialog &) {}), "NegativePrint", "False");

    row("speed", "Q", slid("speedSlider", 1), "PrintSpeed", "1");
    row("speed of the PPD file", "Q", slid("speedSlider", 3), "PrintSpeed", noValue);
    row("darkness", "Q", slid("darknessSlider", 4), "Darkness", "4");
    row("no darkness", "Q", slid("darknessSlider", 0), "Darkness", "0");
    row("darkness of the PPD file", "Q", slid("darknessSlider", 10), "Darkness", noValue);

    row("continuous", "Q", chosen("mediaType", 0), "LabelCategory", "0");
    row("gaps", "Q", chosen("mediaType", 1), "LabelCategory", noValue);
    row("marks", "Q", chosen("mediaType", 2), "LabelCategory", "2");

    row("gap size 0.12", "Q", typedFor(1, "gapSize", "0.12"), "GapSize", "3.048");
    row("gap size 0.1", "Q", typedFor(1, "gapSize", "0.1"), "GapSize", "2.540");
    row("gap size 0", "Q", typedFor(1, "gapSize", "0"), "GapSize", "0.000");
    row("gap size to the thousandth", "Q", typedFor(1, "gapSize", "0.12345"), "GapSize", "3.136");
    row("gap size, downward", "Q", typedFor(1, "gapSize", "0.12342"), "GapSize", "3.135");
    row("gap size, half", "Q", typedFor(1, "gapSize", "0.0625"), "GapSize", "1.588"); // of 1587.5
    row("gap offset, half below 0", "Q", typedFor(1, "gapOffset", "-0.0625"), "GapOffset", "-1.587");
    row("mark size, half", "Q", typedFor(2, "gapSize", "0.0625"), "MarkSize", "1.588");
    row("mark offset, half", "Q", typedFor(2, "gapOffset", "0.0625"), "MarkOffset", "1.588");
    row("gap offset", "Q", typedFor(1, "gapOffset", "0.5"), "GapOffset", "12.700");
    row("gap offset below 0", "Q", typedFor(1, "gapOffset", "-0.12"), "GapOffset", "-3.048");
    row("mark size", "Q", typedFor(2, "gapSize", "0.12"), "MarkSize", "3.048");
    row("mark offset", "Q", typedFor(2, "gapOffset", "0.1"), "MarkOffset", "2.540");
    row("mark offset below 0", "Q", typedFor(2, "gapOffset", "-1"), "MarkOffset", "-25.400");

    row("cut never", "Q", chosen("cut", 0), "CutMedia", noValue);
    row("cut after the job", "Q", chosen("cut", 1), "CutMedia", "2");
    row("cut after each page", "Q", chosen("cut", 2), "CutMedia", "4");

    row("feed at 203 dpi", "Q", typed("feed", "0.12"), "Feed", "24");
    row("feed upward", "Q", typed("feed", "0.5"), "Feed", "102"); // of 101.5
    row("feed below 0", "TIK", typed("feed", "-0.5"), "Feed", "-101"); // of -101.5
    row("feed down", "Q", typed("feed", "0.11"), "Feed", "22"); // of 22.33
    row("feed 0", "Q", typed("feed", "0"), "Feed", noValue);
    row("feed at 300x305 dpi", "Q300", typed("feed", "1"), "Feed", "305"); // of 304.8, the vertical one
    row("small feed at 300x305 dpi", "Q300", typed("feed", "0.12"), "Feed", "37"); // of 36.576

    row("backfeed", "Q", typed("back", "7"), "Back", "7");
    row("backfeed of the PPD file", "Q", typed("back", "12"), "Back", noValue);
    row("overlap", "Q", typed("overlap", "7"), "Overlap", "7");
    row("overlap of the PPD file", "Q", typed("overlap", "12"), "Overlap", noValue);

    row("stop", "Q", typed("stop", "0.5"), "Stop", "12.700");
    row("stop, half", "Q", typed("stop", "0.0625"), "Stop", "1.588");
    row("stop, family 1", "KERN", typed("stop", "0.5"), "Stop", "12.700");
    row("stop, family 2", "LUMA", typed("stop", "0.5"), "Stop", "12.700");
    row("vertical offset, family 4", "TIK", typed("stop", "-0.5"), "Shift", "-12.700");
    row("vertical offset, family 5", "ZED", typed("stop", "0.5"), "Shift", "12.700");
    row("vertical offset of family 4, half", "TIK", typed("stop", "0.0625"), "Shift", "1.588");
    row("stop of family 0 is no shift", "Q", typed("stop", "0.5"), "Shift", noValue);
    row("shift of family 4 is no stop", "TIK", typed("stop", "0.5"), "Stop", noValue);
    row("shift of family 5 is no stop", "ZED", typed("stop", "0.5"), "Stop", noValue);

    row("horizontal offset", "Q", typed("horizontalEdit", "-17"), "OffsetH", "-17");
    row("horizontal offset of the PPD file", "Q", typed("horizontalEdit", "0"), "OffsetH", noValue);
    row("horizontal offset, half", "Q", typed("horizontalEdit", "2.5"), "OffsetH", "3");
    row("horizontal offset, half below 0", "Q", typed("horizontalEdit", "-2.5"), "OffsetH", "-2");
    row("horizontal offset, just below 0", "Q", typed("horizontalEdit", "-0.6"), "OffsetH", "-1");
    row("vertical offset", "Q", typed("verticalEdit", "42"), "OffsetV", "42");
    row("vertical offset, half", "Q", typed("verticalEdit", "1.5"), "OffsetV", "2");
    row("vertical offset, half below 0", "Q", typed("verticalEdit", "-1.5"), "OffsetV", "-1");
}

void PropertiesDialogSaveTest::field()
{
    QFETCH(QString, queue);
    QFETCH(Edit, edit);
    QFETCH(QByteArray, keyword);
    QFETCH(QByteArray, value);
    makeDefault(queue);
    OpenDialog open;
    edit(open);
    open.dialog.saveValues();
    const Options stored = storedOptions(queue.toLatin1());
    QCOMPARE(stored.contains(keyword), !value.isNull());
    QCOMPARE(stored.value(keyword), value);
    QCOMPARE(workingCopy(open.cups).value(keyword), value);
}

void PropertiesDialogSaveTest::skippedField_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<int>("mediaType");
    QTest::addColumn<QByteArray>("edit");
    QTest::addColumn<QByteArray>("keyword");
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("text");

    struct Field
    {
        const char *queue;
        int mediaType;
        const char *edit;
        const char *keyword;
        const char *stored;
    };
    const Field fields[] = {
        {"Q", 1, "gapSize", "GapSize", "2.000"},  {"Q", 1, "gapOffset", "GapOffset", "1.000"},
        {"Q", 2, "gapSize", "MarkSize", "3.000"}, {"Q", 2, "gapOffset", "MarkOffset", "1.000"},
        {"Q", 0, "feed", "Feed", "24"},           {"Q", 0, "back", "Back", "5"},
        {"Q", 0, "overlap", "Overlap", "5"},      {"Q", 0, "stop", "Stop", "20.000"},
        {"TIK", 0, "stop", "Shift", "1.000"},     {"Q", 0, "horizontalEdit", "OffsetH", "8"},
        {"Q", 0, "verticalEdit", "OffsetV", "8"},
    };
    const auto row = [](const Field &field, const char *text) {
        QTest::addRow("%s %s \"%s\"", field.queue, field.keyword, text)
            << QString(field.queue) << field.mediaType << QByteArray(field.edit) << QByteArray(field.keyword)
            << QByteArray(field.stored) << QString(text);
    };
    for (const Field &field : fields)
        for (const char *text : {"", ".", "-", "1,5", "x"})
            row(field, text);
    // Whole numbers only.
    row(fields[5], "1.5");
    row(fields[6], "1.5");
    row(fields[5], "0x7");
    row(fields[6], "0x7");
}

void PropertiesDialogSaveTest::skippedField()
{
    QFETCH(QString, queue);
    QFETCH(int, mediaType);
    QFETCH(QByteArray, edit);
    QFETCH(QByteArray, keyword);
    QFETCH(QByteArray, stored);
    QFETCH(QString, text);
    makeDefault(queue);
    scheduler.setUserOptions(queue, {keyword + '=' + stored, QStringLiteral("LabelCategory=%1").arg(mediaType)});
    OpenDialog open;
    QVERIFY(!open.text(edit).isEmpty());
    open.setText(edit, text);
    open.slide("darknessSlider", 4);
    open.dialog.saveValues();
    const Options options = storedOptions(queue.toLatin1());
    QCOMPARE(options.value(keyword), stored);
    QCOMPARE(options.value("Darkness"), QByteArray("4")); // the rest is saved
}

void PropertiesDialogSaveTest::mediaTypeLeavesTheOthersAlone_data()
{
    QTest::addColumn<int>("mediaType");
    QTest::newRow("continuous") << 0;
    QTest::newRow("gaps") << 1;
    QTest::newRow("marks") << 2;
}

void PropertiesDialogSaveTest::mediaTypeLeavesTheOthersAlone()
{
    QFETCH(int, mediaType);
    Options expected{{"GapSize", "2.000"}, {"GapOffset", "1.000"}, {"MarkSize", "3.000"}, {"MarkOffset", "1.500"}};
    scheduler.setUserOptions("Q", {"GapSize=2.000", "GapOffset=1.000", "MarkSize=3.000", "MarkOffset=1.500"});
    OpenDialog open;
    open.choose("mediaType", mediaType);
    open.setText("gapSize", "0.5");
    open.setText("gapOffset", "0.6");
    open.dialog.saveValues();
    if (mediaType != 0) {
        const QByteArray kind = mediaType == 1 ? "Gap" : "Mark";
        expected[kind + "Size"] = "12.700";
        expected[kind + "Offset"] = "15.240";
    }
    const Options stored = storedOptions("Q");
    for (auto it = expected.begin(); it != expected.end(); ++it)
        QCOMPARE(stored.value(it.key()), it.value());
}

void PropertiesDialogSaveTest::resolutionIsReadAnew()
{
    makeDefault("Changing");
    OpenDialog open;
    open.setText("feed", "1");
    scheduler.setPpd("Changing", PrivateScheduler::samplePpd("label-300"));
    open.cups.closePpdFile();
    open.dialog.saveValues();
    QCOMPARE(storedOptions("Changing").value("Feed"), QByteArray("305"));
}

// Backfeed and overlap are never shown but not lost, even if they differ from the PPD file.
void PropertiesDialogSaveTest::hiddenFieldsAreCarried()
{
    scheduler.setUserOptions("Q", {"Back=5", "Overlap=6", "Start=1.000", "Direct=True"});
    OpenDialog open;
    open.dialog.saveValues();
    const Options stored = storedOptions("Q");
    QCOMPARE(stored.value("Back"), QByteArray("5"));
    QCOMPARE(stored.value("Overlap"), QByteArray("6"));
    // These have no field.
    QCOMPARE(stored.value("Start"), QByteArray("1.000"));
    QCOMPARE(stored.value("Direct"), QByteArray("True"));
}

// What is saved without an edit is what the fields show, two decimals of an inch included.
void PropertiesDialogSaveTest::loadedValuesAreSaved()
{
    {
        OpenDialog open;
        QCOMPARE(open.text("stop"), QString("1.18"));
        QCOMPARE(open.text("gapSize"), QString("0.12"));
        open.dialog.saveValues();
    }
    const Options stored = storedOptions("Q");
    QCOMPARE(stored.value("Stop"), QByteArray("29.972"));
    QCOMPARE(stored.value("GapSize"), QByteArray("3.048"));
    // From then on it is stable.
    {
        OpenDialog open;
        QCOMPARE(open.text("stop"), QString("1.18"));
        QCOMPARE(open.text("gapSize"), QString("0.12"));
        open.dialog.saveValues();
    }
    QCOMPARE(storedOptions("Q"), stored);
}

void PropertiesDialogSaveTest::valueOfTheDefaultIsNotStored()
{
    scheduler.setUserOptions("Q", {"Darkness=4", "MirrorPrint=True", "CutMedia=2"});
    OpenDialog open;
    open.slide("darknessSlider", 10);
    open.click("mirroredCheckBox");
    open.choose("cut", 0);
    open.dialog.saveValues();
    const Options stored = storedOptions("Q");
    for (const char *keyword : {"Darkness", "MirrorPrint", "CutMedia"}) {
        QVERIFY2(!stored.contains(keyword), keyword);
        QVERIFY2(!workingCopy(open.cups).contains(keyword), keyword);
    }
}

void PropertiesDialogSaveTest::unlistedMediaType()
{
    scheduler.setUserOptions("Q", {"LabelCategory=7"});
    OpenDialog open;
    open.dialog.saveValues();
    // The list shows no media type, and the stored value is not lost.
    QCOMPARE(storedOptions("Q").value("LabelCategory"), QByteArray("7"));
}

void PropertiesDialogSaveTest::noCutChosen()
{
    scheduler.setUserOptions("Q", {"CutMedia=2"});
    OpenDialog open;
    open.choose("cut", -1);
    open.dialog.saveValues();
    QCOMPARE(storedOptions("Q").value("CutMedia"), QByteArray("2"));
}

void PropertiesDialogSaveTest::commands_data()
{
    QTest::addColumn<QByteArray>("radio");
    QTest::addColumn<QByteArray>("keyword");
    QTest::newRow("start of job") << QByteArray("jobStartRadioButton") << QByteArray("JobStart");
    QTest::newRow("start of label") << QByteArray("labelStartRadioButton") << QByteArray("LabelStart");
    QTest::newRow("end of label") << QByteArray("labelEndRadioButton") << QByteArray("LabelEnd");
    QTest::newRow("end of job") << QByteArray("jobEndRadioButton") << QByteArray("JobEnd");
}

void PropertiesDialogSaveTest::commands()
{
    QFETCH(QByteArray, radio);
    QFETCH(QByteArray, keyword);
    OpenDialog open;
    open.click(radio);
    open.setPlainText("commandEdit", "A\nB");
    open.dialog.saveValues();
    const Options memory = workingCopy(open.cups);
    for (const char *each : {"JobStart", "LabelStart", "LabelEnd", "JobEnd"}) {
        // Each of them is stored, whether it was edited or not.
        QVERIFY2(memory.contains(each), each);
        QCOMPARE(memory.value(each), QByteArray(each == keyword ? "A\\\\rB\\\\r" : ""));
    }
}

void PropertiesDialogSaveTest::commandsThroughTheFile()
{
    const QList<QPair<const char *, QString>> commands{
        {"jobStartRadioButton", "A\nB"},
        {"labelStartRadioButton", "one 'two' \"three\"\n\n#four\n"},
        {"labelEndRadioButton", "tab\there\n~JSN = \\\\x"},
        {"jobEndRadioButton", QString::fromUtf8("\303\244\303\266\nlast")}};
    {
        OpenDialog open;
        for (const auto &[radio, text] : commands) {
            open.click(radio);
            open.setPlainText("commandEdit", text);
        }
        open.click("applyButton");
        // Nothing of it is lost on the way through the file.
        const Options memory = workingCopy(open.cups);
        const Options stored = storedOptions("Q");
        for (const char *keyword : {"JobStart", "LabelStart", "LabelEnd", "JobEnd"})
            QCOMPARE(stored.value(keyword), memory.value(keyword));
    }
    const TestMain::ChildResult child = TestMain::runChild("print-commands");
    QCOMPARE(child.exitCode, 0);
    QString expected;
    for (const auto &[radio, text] : commands)
        expected += text + (text.endsWith('\n') ? "|" : "\n|"); // they end with a line break
    QCOMPARE(QString::fromUtf8(child.output), expected);
}

void PropertiesDialogSaveTest::emptyCommandsThroughTheFile()
{
    {
        OpenDialog open;
        open.slide("darknessSlider", 4);
        open.click("applyButton");
    }
    const TestMain::ChildResult options = TestMain::runChild("print-options", {"Q"});
    QCOMPARE(options.exitCode, 0);
    // Other programs would make "true" of an empty value, so there is none.
    QVERIFY2(!options.output.contains("JobStart="), options.output.constData());
    QVERIFY2(options.output.contains("\nDarkness=4\n") || options.output.startsWith("Darkness=4\n"),
             options.output.constData());
    const TestMain::ChildResult commands = TestMain::runChild("print-commands");
    QCOMPARE(commands.exitCode, 0);
    QCOMPARE(commands.output, QByteArray("||||"));
}

void PropertiesDialogSaveTest::otherQueuesStay()
{
    scheduler.setUserOptions("Q300", {"Darkness=2", "JobStart=x y"});
    const Options before = storedOptions("Q300");
    OpenDialog open;
    open.slide("darknessSlider", 4);
    open.dialog.saveValues();
    QCOMPARE(storedOptions("Q").value("Darkness"), QByteArray("4"));
    QCOMPARE(storedOptions("Q300"), before);
}

// ----- the presets -----

void PropertiesDialogSaveTest::userPageSize_data()
{
    QTest::addColumn<bool>("isChecked");
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("height");
    QTest::addColumn<QByteArray>("run"); // the command's arguments; null when it is not run

    const auto row = [](const char *name, bool isChecked, const char *width, const char *height,
                        const QByteArray &run) {
        QTest::newRow(name) << isChecked << QString(width) << QString(height) << run;
    };
    row("usual", true, "4", "6", "4.00 6.00 Q\n");
    row("decimals", true, "2.25", "1.5", "2.25 1.50 Q\n");
    row("not checked", false, "4", "6", noValue);
    row("no width", true, "", "6", noValue);
    row("no height", true, "4", "", noValue);
    row("width is no number", true, ".", "6", noValue);
    row("decimal comma", true, "2,25", "1,5", noValue);
    row("width 0", true, "0", "6", noValue);
    row("height 0", true, "4", "0", noValue);
    row("below 0", true, "-4", "6", noValue);
}

void PropertiesDialogSaveTest::userPageSize()
{
    QFETCH(bool, isChecked);
    QFETCH(QString, width);
    QFETCH(QString, height);
    QFETCH(QByteArray, run);
    // The size of the current preset is replaced, also by none.
    writeFile(scriptPath("Q", "Mine"), "#!/bin/bash\nlpoptions -pQ\nppdhack 1.00 2.00 Q\n");
    const DriverCommand driver("");
    OpenDialog open;
    auto *group = open.widget<QGroupBox>("stockGroupBox");
    QVERIFY(group->isChecked());
    group->setChecked(isChecked);
    open.setText("widthEdit", width);
    open.setText("heightEdit", height);
    open.click("applyButton");
    QCOMPARE(driver.runs(), run);
    // The settings last applied carry the same size.
    QCOMPARE(line(fileContent(scriptPath("Q", "_current")), "ppdhack"),
             run.isNull() ? noValue : "ppdhack " + run.trimmed());
    // The preset is not written for the size alone, but has it in this run: when shown again, the group follows it.
    open.dialog.updateDialog();
    QCOMPARE(group->isChecked(), !run.isNull());
    // It is written with the size when something else of it changes.
    open.setPlainText("descriptionEdit", "new");
    group->setChecked(isChecked);
    open.setText("widthEdit", width);
    open.setText("heightEdit", height);
    open.click("applyButton");
    QVERIFY(fileContent(scriptPath("Q", "Mine")).contains("#description=new\n"));
    QCOMPARE(line(fileContent(scriptPath("Q", "Mine")), "ppdhack"),
             run.isNull() ? noValue : "ppdhack " + run.trimmed());
}

void PropertiesDialogSaveTest::commandIsWaitedFor()
{
    const DriverCommand driver("sleep 0.5\ntouch \"$HOME/finished\"\n");
    QFile::remove(QDir::homePath() + "/finished");
    OpenDialog open;
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    open.dialog.saveValues();
    QVERIFY(QFile::exists(QDir::homePath() + "/finished"));
}

void PropertiesDialogSaveTest::failingCommand_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("exit status") << QByteArray("exit 7\n");
    QTest::newRow("killed") << QByteArray("kill -KILL $$\n");
}

void PropertiesDialogSaveTest::failingCommand()
{
    QFETCH(QByteArray, script);
    const DriverCommand driver(script);
    OpenDialog open;
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    open.slide("darknessSlider", 4);
    open.click("applyButton");
    QCOMPARE(driver.runs(), QByteArray("4.00 2.00 Q\n"));
    QVERIFY(!open.isEnabled("applyButton"));
    QVERIFY(fileContent(scriptPath("Q", "_current")).contains(" -oDarkness=4 "));
}

void PropertiesDialogSaveTest::userPageSizeOfAUserPreset()
{
    const DriverCommand driver("");
    {
        OpenDialog open;
        open.click("presetNewButton");
        open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
        open.setText("widthEdit", "3.5");
        open.setText("heightEdit", "1.25");
        open.click("applyButton");
    }
    QCOMPARE(driver.runs(), QByteArray("3.50 1.25 Q\n"));
    const QByteArray script = fileContent(scriptPath("Q", "Preset"));
    QVERIFY2(script.endsWith("\nppdhack 3.50 1.25 Q\n"), script.constData());
    OpenDialog open;
    QVERIFY(open.widget<QGroupBox>("stockGroupBox")->isChecked());
}

void PropertiesDialogSaveTest::currentSettingsScript()
{
    const DriverCommand driver("");
    scheduler.setUserOptions("Q", {"GapOffset=1.000", "Shift=1.000", "Start=1.000", "Direct=True"});
    OpenDialog open;
    open.click("landscape180RadioButton");
    open.click("mirroredCheckBox");
    open.slide("darknessSlider", 4);
    open.slide("speedSlider", 2);
    open.choose("mediaType", 1);
    open.setText("gapSize", "0.2");
    open.setText("feed", "0.12");
    open.setText("horizontalEdit", "-3");
    open.setPlainText("commandEdit", "A B");
    open.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    open.click("applyButton");
    const QString path = scriptPath("Q", "_current");
    QCOMPARE(fileContent(path),
             QByteArray("#!/bin/bash\n"
                        "lpoptions -pQ -oDarkness=4 -oDirect=True -oFeed=24 -oGapSize=5.080 -rJobEnd"
                        " -oJobStart='A B\\\\\\\\r' -rLabelCategory -rLabelEnd -rLabelStart -rMarkOffset -rMarkSize"
                        " -oMirrorPrint=True -rNegativePrint -oOffsetH=-3 -rOffsetV -oorientation-requested=5"
                        " -oPrintSpeed=2 -oStop=29.972 -oStart=1.000\n"
                        "ppdhack 4.00 2.00 Q\n"));
    QVERIFY(QFile::permissions(path).testFlag(QFile::ExeUser));
    // It cannot be chosen as a preset.
    const auto *list = open.widget<QComboBox>("preset0");
    QCOMPARE(list->count(), 2);
    OpenDialog again;
    QCOMPARE(again.widget<QComboBox>("preset0")->count(), 2);
}

// Nothing is left of the settings that were applied before.
void PropertiesDialogSaveTest::currentSettingsScriptReplacesAll()
{
    const QString path = scriptPath("Q", "_current");
    writeFile(path,
              "#!/bin/bash\n#name=Old\n#description=Old\nlpoptions -pQ -oFeed=77 -oDarkness=9\nppdhack 9.00 9.00 Q\n");
    OpenDialog open;
    open.slide("darknessSlider", 4);
    open.widget<QGroupBox>("stockGroupBox")->setChecked(false);
    open.click("applyButton");
    const QByteArray script = fileContent(path);
    QVERIFY2(script.startsWith("#!/bin/bash\nlpoptions -pQ -oDarkness=4 "), script.constData());
    QVERIFY2(script.contains(" -rFeed "), script.constData());
    QVERIFY2(!script.contains("ppdhack"), script.constData());
}

void PropertiesDialogSaveTest::nothingChanged()
{
    OpenDialog open(std::make_unique<QPrinter>(QPrinter::ScreenResolution));
    QVERIFY(!open.isEnabled("applyButton"));
    open.printer->setPageMargins(QMarginsF(10, 10, 10, 10), QPageLayout::Point);
    open.dialog.saveValues();
    QVERIFY(!open.isEnabled("applyButton"));
    QCOMPARE(filesOf("Q"), QStringList());
    // The printer and the options are written nevertheless.
    QCOMPARE(open.printer->pageLayout().orientation(), QPageLayout::Landscape);
    QCOMPARE(storedOptions("Q").value("orientation-requested"), QByteArray("4"));
}

void PropertiesDialogSaveTest::nothingChangedStillAppliesThePageSize()
{
    const DriverCommand driver("");
    writeFile(scriptPath("Q", "Mine"), "#!/bin/bash\nlpoptions -pQ\nppdhack 4.00 6.00 Q\n");
    OpenDialog open;
    QVERIFY(open.widget<QGroupBox>("stockGroupBox")->isChecked());
    QCOMPARE(open.text("widthEdit"), QString("4.00")); // of the PPD file
    QCOMPARE(open.text("heightEdit"), QString("2.00"));
    QVERIFY(!open.isEnabled("applyButton"));
    open.dialog.saveValues();
    QCOMPARE(driver.runs(), QByteArray("4.00 2.00 Q\n"));
    QCOMPARE(filesOf("Q"), QStringList({"Mine.sh"}));
}

void PropertiesDialogSaveTest::changedPresetsAreSaved()
{
    OpenDialog open;
    open.slide("darknessSlider", 4);
    open.click("applyButton");
    open.click("presetNewButton");
    QVERIFY(open.isEnabled("applyButton"));
    QVERIFY(!QFile::exists(scriptPath("Q", "Preset")));
    open.click("applyButton");
    QVERIFY(!open.isEnabled("applyButton"));
    // Values of the PPD file become removals: what its defaults are reaches the scripts.
    const QByteArray script = fileContent(scriptPath("Q", "Preset"));
    QVERIFY2(script.startsWith("#!/bin/bash\n#name=New Preset\nlpoptions -pQ -oDarkness=4 -rDirect "),
             script.constData());
    QCOMPARE(QFile::symLinkTarget(cupsFolder() + "/Q/currentPreset"), scriptPath("Q", "Preset"));
}

// A preset that is created and deleted before it was saved makes the collection fail.
void PropertiesDialogSaveTest::failureOfThePresetsStillSavesTheSettings()
{
    OpenDialog open;
    open.click("presetNewButton");
    open.click("presetDeleteButton");
    open.slide("darknessSlider", 4);
    open.click("applyButton");
    QCOMPARE(filesOf("Q"), QStringList({"_current.sh"}));
    QVERIFY(fileContent(scriptPath("Q", "_current")).contains(" -oDarkness=4 "));
    QVERIFY(!open.isEnabled("applyButton"));
}

// ----- the buttons -----

void PropertiesDialogSaveTest::apply()
{
    OpenDialog open;
    open.slide("darknessSlider", 4);
    QVERIFY(open.isEnabled("applyButton"));
    open.click("applyButton");
    QVERIFY(open.dialog.isVisible());
    QVERIFY(!open.isEnabled("applyButton"));
    QCOMPARE(open.dialog.result(), 0);
    QCOMPARE(storedOptions("Q").value("Darkness"), QByteArray("4"));
}

void PropertiesDialogSaveTest::ok()
{
    OpenDialog open;
    open.slide("darknessSlider", 4);
    open.click("okButton");
    QVERIFY(!open.dialog.isVisible());
    QCOMPARE(open.dialog.result(), 1);
    QCOMPARE(storedOptions("Q").value("Darkness"), QByteArray("4"));
    QVERIFY(QFile::exists(scriptPath("Q", "_current")));
}

void PropertiesDialogSaveTest::cancel()
{
    OpenDialog open(std::make_unique<QPrinter>(QPrinter::ScreenResolution));
    const QPageLayout layout = open.printer->pageLayout();
    open.slide("darknessSlider", 4);
    open.click("portraitRadioButton");
    open.click("presetNewButton");
    open.dialog.setResult(1);
    open.click("cancelButton");
    QVERIFY(!open.dialog.isVisible());
    QCOMPARE(open.dialog.result(), 0);
    QCOMPARE(open.printer->pageLayout(), layout);
    QVERIFY(!QDir(cupsFolder()).exists());
    // Shown again, it has the settings as they are.
    open.dialog.show();
    QCOMPARE(open.widget<QSlider>("darknessSlider")->value(), 10);
}

void PropertiesDialogSaveTest::cancelAfterApply()
{
    OpenDialog open;
    open.slide("darknessSlider", 4);
    open.click("applyButton");
    open.slide("darknessSlider", 5);
    open.click("cancelButton");
    QCOMPARE(storedOptions("Q").value("Darkness"), QByteArray("4"));
}

void PropertiesDialogSaveTest::modalResult_data()
{
    QTest::addColumn<QStringList>("buttons"); // none: the window is closed
    QTest::addColumn<int>("result");
    QTest::addColumn<QByteArray>("darkness");
    QTest::newRow("ok") << QStringList{"okButton"} << 1 << QByteArray("4");
    QTest::newRow("cancel") << QStringList{"cancelButton"} << 0 << noValue;
    QTest::newRow("closed") << QStringList{} << 0 << noValue;
    QTest::newRow("apply, ok") << QStringList{"applyButton", "okButton"} << 1 << QByteArray("4");
    QTest::newRow("apply, cancel") << QStringList{"applyButton", "cancelButton"} << 0 << QByteArray("4");
    QTest::newRow("apply, closed") << QStringList{"applyButton"} << 0 << QByteArray("4");
}

void PropertiesDialogSaveTest::modalResult()
{
    QFETCH(QStringList, buttons);
    QFETCH(int, result);
    QFETCH(QByteArray, darkness);
    inDialog([&](QWidget *dialog) {
        dialog->findChild<QSlider *>("darknessSlider")->setValue(4);
        for (const QString &button : std::as_const(buttons))
            dialog->findChild<QPushButton *>(button)->click();
        if (dialog->isVisible())
            dialog->close();
    });
    QCOMPARE(propertiesDialog(), result);
    QCOMPARE(storedOptions("Q").value("Darkness"), darkness);
}

void PropertiesDialogSaveTest::modalResultIsThatOfTheCall()
{
    CupsSupport cups;
    QPrinter printer(QPrinter::ScreenResolution);
    PrintPropertiesDialog dialog(nullptr, &printer, &cups);
    const auto press = [](const char *button) {
        inDialog([button](QWidget *open) { open->findChild<QPushButton *>(button)->click(); });
    };
    press("okButton");
    QCOMPARE(dialog.exec(), 1);
    press("cancelButton");
    QCOMPARE(dialog.exec(), 0);
    press("okButton");
    QCOMPARE(dialog.exec(), 1);
    inDialog([](QWidget *open) { open->close(); });
    QCOMPARE(dialog.exec(), 0);
}

void PropertiesDialogSaveTest::setChanged()
{
    OpenDialog open;
    auto *apply = open.widget<QPushButton>("applyButton");
    QVERIFY(!apply->isEnabled());
    open.dialog.setChanged(true);
    QVERIFY(apply->isEnabled());
    open.dialog.setChanged(false);
    QVERIFY(!apply->isEnabled());
    // The same value again does nothing.
    apply->setEnabled(true);
    open.dialog.setChanged(false);
    QVERIFY(apply->isEnabled());
    open.dialog.setChanged(true);
    apply->setEnabled(false);
    open.dialog.setChanged(true);
    QVERIFY(!apply->isEnabled());
}

// ----- failures -----

void PropertiesDialogSaveTest::optionsFileCannotBeWritten()
{
    QVERIFY(QDir().mkpath(cupsFolder() + "/lpoptions/in the way"));
    OpenDialog open;
    open.slide("darknessSlider", 4);
    open.click("okButton");
    QCOMPARE(open.dialog.result(), 1);
    QVERIFY(!open.dialog.lastSaveSucceeded());
    const QString error = open.dialog.lastSaveError();
    QVERIFY2(error.startsWith(cupsFolder() + "/lpoptions: "), qPrintable(error));
    const CupsSupport another; // sends a request
    QCOMPARE(open.dialog.lastSaveError(), error);
    QVERIFY(QDir(cupsFolder() + "/lpoptions/in the way").exists());
    QVERIFY(fileContent(scriptPath("Q", "_current")).contains(" -oDarkness=4 "));

    QVERIFY(QDir(cupsFolder() + "/lpoptions").removeRecursively());
    open.dialog.saveValues();
    QVERIFY(open.dialog.lastSaveSucceeded());
    QCOMPARE(open.dialog.lastSaveError(), QString());
}

// OK after a failed Apply has nothing new to save, but must still save the preset as soon as that is possible.
void PropertiesDialogSaveTest::presetCannotBeWritten()
{
    writeFile(scriptPath("Q", "Mine"), "#!/bin/bash\nlpoptions -pQ\n");
    OpenDialog open;
    open.widget<QLineEdit>("nameEdit")->setText("Yours");
    QVERIFY(QMetaObject::invokeMethod(&open.dialog, "on_nameEdit_editingFinished"));
    QVERIFY(QFile::remove(scriptPath("Q", "Mine")));
    QVERIFY(QDir().mkpath(scriptPath("Q", "Mine")));
    open.click("applyButton");
    QVERIFY(!open.dialog.lastSaveSucceeded());
    open.dialog.saveValues();
    QVERIFY(!open.dialog.lastSaveSucceeded());
    QCOMPARE(open.dialog.lastSaveError(), QString());

    QVERIFY(QDir().rmdir(scriptPath("Q", "Mine")));
    open.click("okButton");
    QVERIFY(open.dialog.lastSaveSucceeded());
    QVERIFY(fileContent(scriptPath("Q", "Mine")).contains("#name=Yours\n"));
}

void PropertiesDialogSaveTest::currentSettingsCannotBeWritten()
{
    QVERIFY(QDir().mkpath(scriptPath("Q", "_current")));
    OpenDialog open;
    open.slide("darknessSlider", 4);
    open.click("applyButton");
    QVERIFY(!open.dialog.lastSaveSucceeded());
    QCOMPARE(storedOptions("Q").value("Darkness"), QByteArray("4"));
}

void PropertiesDialogSaveTest::noScheduler()
{
    const TestMain::ChildResult child =
        TestMain::runChild("save-without-scheduler", {}, {{"CUPS_SERVER", scheduler.dir() + "/nowhere"}});
    QCOMPARE(child.exitCode, 0);
    QVERIFY(!QFile::exists(cupsFolder() + "/lpoptions"));
}

PROPERTIESDIALOG_TEST_MAIN(PropertiesDialogSaveTest)

#include "PropertiesDialogSaveTest.moc"
