// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include "properties/Preview.h"

#include <PropertiesDialog/propertiesdialog_version.h>

#include <QKeyEvent>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTabWidget>

#include <clocale>

namespace {

// What is expected of a queue of each family; the index is the family's number.
const char *const queues[] = {"LP", "LP-KERN", "LP-LUMA", "LP-ORCA", "LP-TIK", "LP-ZED"};
constexpr int families = 6;

bool isOffsetGroup(int family)
{
    return family >= 3;
}

struct Command
{
    const char *radio;
    const char *keyword;
};

const Command commandSlots[] = {
    {"jobStartRadioButton", "JobStart"},
    {"labelStartRadioButton", "LabelStart"},
    {"labelEndRadioButton", "LabelEnd"},
    {"jobEndRadioButton", "JobEnd"},
};

struct Orientation
{
    const char *radio;
    int code;
    QPageLayout::Orientation orientation;
};

const Orientation orientations[] = {
    {"portraitRadioButton", 3, QPageLayout::Portrait},
    {"landscapeRadioButton", 4, QPageLayout::Landscape},
    {"landscape180RadioButton", 5, QPageLayout::Landscape},
    {"portrait180RadioButton", 6, QPageLayout::Portrait},
};

// Counts the paint events of a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return QObject::eventFilter(object, event);
    }

    int count = 0;
};

// Calls a slot as its signal would.
void call(PrintPropertiesDialog *dialog, const char *slot, int value)
{
    if (!QMetaObject::invokeMethod(dialog, slot, Qt::DirectConnection, Q_ARG(int, value)))
        qFatal("no slot %s", slot);
}

// Ways to change a widget from code.
void changeWidget(QWidget *widget)
{
    if (auto *edit = qobject_cast<QLineEdit *>(widget))
        edit->setText("0.5");
    else if (auto *text = qobject_cast<QPlainTextEdit *>(widget))
        text->setPlainText("typed");
    else if (auto *slider = qobject_cast<QSlider *>(widget))
        slider->setValue(slider->value() == slider->minimum() ? slider->maximum() : slider->minimum());
    else if (auto *list = qobject_cast<QComboBox *>(widget))
        list->setCurrentIndex(list->currentIndex() + 1);
    else if (auto *group = qobject_cast<QGroupBox *>(widget))
        group->setChecked(!group->isChecked());
    else if (auto *button = qobject_cast<QAbstractButton *>(widget))
        button->toggle();
    else
        qFatal("nothing to change in %s", qPrintable(widget->objectName()));
}

} // namespace

// If this fails, changing a field does not enable Apply or does not update what depends on the field.
class PropertiesDialogFieldsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void slotsAreDeclared_data();
    void slotsAreDeclared();
    void everyFieldMarksChanges_data();
    void everyFieldMarksChanges();
    void printMethodMarksChanges();
    void equalValueIsNoChange();

    void mediaTypeShowsRows_data();
    void mediaTypeShowsRows();
    void mediaTypeFillsFields_data();
    void mediaTypeFillsFields();
    void mediaTypeDropsWhatWasTyped();
    void continuousFillsNothing_data();
    void continuousFillsNothing();
    void mediaTypeReadsTheStoredValues();
    void mediaTypeHandlerMarksChanges();

    void orientationMapping_data();
    void orientationMapping();
    void noOrientationIsPortrait();
    void setOrientation_data();
    void setOrientation();
    void uncheckedOrientationDoesNothing_data();
    void uncheckedOrientationDoesNothing();
    void previewFollows_data();
    void previewFollows();
    void previewIsPaintedAgain_data();
    void previewIsPaintedAgain();
    void updatePreviewSetsEverything();

    void sizeGroup();
    void sliders_data();
    void sliders();

    void commandsAreKeptApart();
    void switchingCommandsMarksNothing();
    void retypedCommandMarksNothing();
    void uncheckedCommandDoesNothing_data();
    void uncheckedCommandDoesNothing();
    void typedCommandComesBack();

    void getDouble_data();
    void getDouble();
    void getInt_data();
    void getInt();

    void enterInThePageSize_data();
    void enterInThePageSize();
    void eventFilter_data();
    void eventFilter();

    void showLoadsAndSettles();

    void languageChange_data();
    void languageChange();
    void languageChangeReachesTheForm();
    void languageChangeMarksNothing();
    void languageChangeBeforeShowing();
    void languageChangeKeepsFields();
    void otherChangesKeepTexts();

private:
    PrivateScheduler scheduler;
};

void PropertiesDialogFieldsTest::initTestCase()
{
    // The second run of this program must not pass because the locale is missing.
    if (qgetenv("LC_ALL").startsWith("de_DE"))
        QCOMPARE(QByteArray(localeconv()->decimal_point), QByteArray(","));
    for (const char *queue : queues)
        scheduler.addQueue(queue);
    scheduler.addQueue("LP-NOPPD", QString());
}

void PropertiesDialogFieldsTest::init()
{
    clearHome();
}

// ----- slots -----

void PropertiesDialogFieldsTest::slotsAreDeclared_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QByteArray>("slot");
    const char *const slotNames[] = {
        "on_okButton_clicked()",
        "on_cancelButton_clicked()",
        "on_applyButton_clicked()",
        "on_stockGroupBox_toggled(bool)",
        "on_widthEdit_textChanged(QString)",
        "on_heightEdit_textChanged(QString)",
        "on_portraitRadioButton_toggled(bool)",
        "on_landscapeRadioButton_toggled(bool)",
        "on_portrait180RadioButton_toggled(bool)",
        "on_landscape180RadioButton_toggled(bool)",
        "on_mirroredCheckBox_toggled(bool)",
        "on_inverseCheckBox_toggled(bool)",
        "on_preset0_currentIndexChanged(int)",
        "on_manageButton_clicked()",
        "on_speedSlider_valueChanged(int)",
        "on_darknessSlider_valueChanged(int)",
        "on_preset1_currentIndexChanged(int)",
        "on_nameEdit_editingFinished()",
        "on_descriptionEdit_textChanged()",
        "on_presetNewButton_clicked()",
        "on_presetUpdateButton_clicked()",
        "on_presetDeleteButton_clicked()",
        "on_printMethod_currentIndexChanged(int)",
        "on_mediaType_currentIndexChanged(int)",
        "on_gapSize_textChanged(QString)",
        "on_gapOffset_textChanged(QString)",
        "on_cut_currentIndexChanged(int)",
        "on_feed_textChanged(QString)",
        "on_back_textChanged(QString)",
        "on_overlap_textChanged(QString)",
        "on_stop_textChanged(QString)",
        "on_jobStartRadioButton_toggled(bool)",
        "on_labelStartRadioButton_toggled(bool)",
        "on_labelEndRadioButton_toggled(bool)",
        "on_jobEndRadioButton_toggled(bool)",
        "on_commandEdit_textChanged()",
        "on_horizontalEdit_textChanged(QString)",
        "on_verticalEdit_textChanged(QString)",
    };
    int position = 0;
    for (const char *slot : slotNames)
        QTest::newRow(slot) << position++ << QByteArray(slot);
}

// A missing slot would silently never be called. The order is that of the tabs.
void PropertiesDialogFieldsTest::slotsAreDeclared()
{
    QFETCH(int, position);
    QFETCH(QByteArray, slot);
    const QMetaObject &meta = PrintPropertiesDialog::staticMetaObject;
    QCOMPARE(meta.indexOfMethod(slot.constData()), meta.methodOffset() + position);
    const QMetaMethod method = meta.method(meta.methodOffset() + position);
    QCOMPARE(method.methodType(), QMetaMethod::Slot);
    QCOMPARE(method.access(), QMetaMethod::Private);
}

void PropertiesDialogFieldsTest::everyFieldMarksChanges_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"stockGroupBox",
                             "widthEdit",
                             "heightEdit",
                             "portraitRadioButton",
                             "portrait180RadioButton",
                             "landscape180RadioButton",
                             "mirroredCheckBox",
                             "inverseCheckBox",
                             "speedSlider",
                             "darknessSlider",
                             "mediaType",
                             "gapSize",
                             "gapOffset",
                             "cut",
                             "feed",
                             "back",
                             "overlap",
                             "stop",
                             "commandEdit",
                             "horizontalEdit",
                             "verticalEdit"})
        QTest::newRow(name) << name;
}

void PropertiesDialogFieldsTest::everyFieldMarksChanges()
{
    QFETCH(QString, name);
    OpenDialog t("LP");
    t.dialog.show();
    QVERIFY(!t.isChanged());
    changeWidget(t.widget(name));
    QVERIFY(t.isChanged());
}

void PropertiesDialogFieldsTest::printMethodMarksChanges()
{
    OpenDialog t("LP");
    t.dialog.show();
    t.list("printMethod")->addItem("a"); // becomes current
    QVERIFY(t.isChanged());
}

void PropertiesDialogFieldsTest::equalValueIsNoChange()
{
    OpenDialog t("LP");
    t.dialog.show();
    for (const char *name : {"widthEdit", "heightEdit", "gapSize", "gapOffset", "feed", "back", "overlap", "stop",
                             "horizontalEdit", "verticalEdit"})
        t.edit(name)->setText(t.shown(name));
    t.button("landscapeRadioButton")->click();
    QVERIFY(!t.isChanged());
}

// ----- media type -----

void PropertiesDialogFieldsTest::mediaTypeShowsRows_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("size");
    QTest::addColumn<bool>("offset");
    QTest::addColumn<bool>("feed");
    for (int family = 0; family < families; ++family) {
        const bool offsetGroup = isOffsetGroup(family);
        for (int continuous : {0, -1, 3, 7})
            QTest::addRow("%s %d", queues[family], continuous) << family << continuous << false << false << true;
        QTest::addRow("%s gaps", queues[family]) << family << 1 << true << offsetGroup << offsetGroup;
        QTest::addRow("%s marks", queues[family]) << family << 2 << true << true << offsetGroup;
    }
}

void PropertiesDialogFieldsTest::mediaTypeShowsRows()
{
    QFETCH(int, family);
    QFETCH(int, index);
    OpenDialog t(queues[family], {"LabelCategory", "0"});
    t.dialog.show();
    const auto check = [&t] {
        for (const char *suffix : {"", "Label", "Units"}) {
            QTEST(!t.widget(QString("gapSize") + suffix)->isHidden(), "size");
            QTEST(!t.widget(QString("gapOffset") + suffix)->isHidden(), "offset");
            QTEST(!t.widget(QString("feed") + suffix)->isHidden(), "feed");
        }
    };
    // From each other type.
    for (int before : {0, 1, 2}) {
        call(&t.dialog, "on_mediaType_currentIndexChanged", before);
        call(&t.dialog, "on_mediaType_currentIndexChanged", index);
        check();
    }
    if (index < t.list("mediaType")->count()) {
        t.list("mediaType")->setCurrentIndex(2);
        t.list("mediaType")->setCurrentIndex(index);
        check();
    }
}

void PropertiesDialogFieldsTest::mediaTypeFillsFields_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("offset");
    QTest::addColumn<QString>("sizeLabel");
    QTest::addColumn<QString>("offsetLabel");
    for (const char *queue : queues) {
        QTest::addRow("%s gaps", queue) << queue << 1 << "0.12"
                                        << "0.04"
                                        << "Gap Size"
                                        << "Gap Offset";
        QTest::addRow("%s marks", queue) << queue << 2 << "1.00"
                                         << "-0.10"
                                         << "Black Mark Size"
                                         << "Black Mark Offset";
    }
}

void PropertiesDialogFieldsTest::mediaTypeFillsFields()
{
    QFETCH(QString, queue);
    QFETCH(int, index);
    OpenDialog t(queue, {"LabelCategory", "0", "GapSize", "3.048", "GapOffset", "1.016", "MarkSize", "25.400",
                         "MarkOffset", "-2.540"});
    t.dialog.show();
    t.list("mediaType")->setCurrentIndex(index);
    QTEST(t.shown("gapSize"), "size");
    QTEST(t.shown("gapOffset"), "offset");
    QTEST(t.shown("gapSizeLabel"), "sizeLabel");
    QTEST(t.shown("gapOffsetLabel"), "offsetLabel");
    QVERIFY(t.isChanged());
}

void PropertiesDialogFieldsTest::mediaTypeDropsWhatWasTyped()
{
    OpenDialog t("LP-TIK", {"LabelCategory", "1", "GapSize", "2.540", "GapOffset", "5.080"});
    t.dialog.show();
    t.edit("gapSize")->setText("0.77");
    t.edit("gapOffset")->setText("0.88");
    t.list("mediaType")->setCurrentIndex(2);
    t.list("mediaType")->setCurrentIndex(1);
    QCOMPARE(t.shown("gapSize"), "0.10");
    QCOMPARE(t.shown("gapOffset"), "0.20");
}

void PropertiesDialogFieldsTest::continuousFillsNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("continuous") << 0;
    QTest::newRow("none") << -1;
    QTest::newRow("past the list") << 3;
}

void PropertiesDialogFieldsTest::continuousFillsNothing()
{
    QFETCH(int, index);
    OpenDialog t("LP-TIK", {"LabelCategory", "2"});
    t.dialog.show();
    t.edit("gapSize")->setText("0.77");
    t.edit("gapOffset")->setText("0.88");
    t.edit("feed")->setText("0.99");
    call(&t.dialog, "on_mediaType_currentIndexChanged", index);
    QCOMPARE(t.shown("gapSize"), "0.77");
    QCOMPARE(t.shown("gapOffset"), "0.88");
    QCOMPARE(t.shown("feed"), "0.99");
    QCOMPARE(t.shown("gapSizeLabel"), "Black Mark Size");
}

void PropertiesDialogFieldsTest::mediaTypeReadsTheStoredValues()
{
    OpenDialog t("LP", {"LabelCategory", "0"});
    t.dialog.show();
    t.cups.setGapSize(7.62);
    t.list("mediaType")->setCurrentIndex(1);
    QCOMPARE(t.shown("gapSize"), "0.30");
    t.cups.deleteOptions({"GapSize"});
    call(&t.dialog, "on_mediaType_currentIndexChanged", 1);
    QCOMPARE(t.shown("gapSize"), "0.12"); // the default of 3 mm

    OpenDialog withoutPpd("LP-NOPPD");
    withoutPpd.dialog.show();
    withoutPpd.list("mediaType")->setCurrentIndex(2);
    QCOMPARE(withoutPpd.shown("gapSize"), "0.00");
    QCOMPARE(withoutPpd.shown("gapOffset"), "0.00");
}

void PropertiesDialogFieldsTest::mediaTypeHandlerMarksChanges()
{
    OpenDialog t("LP");
    t.dialog.show();
    for (int index : {0, 1, 2, -1}) {
        t.dialog.setChanged(false);
        call(&t.dialog, "on_mediaType_currentIndexChanged", index);
        QVERIFY(t.isChanged());
    }
}

// ----- orientation, effects, preview -----

void PropertiesDialogFieldsTest::orientationMapping_data()
{
    QTest::addColumn<QString>("radio");
    QTest::addColumn<int>("code");
    QTest::addColumn<QPageLayout::Orientation>("orientation");
    for (const Orientation &entry : orientations)
        QTest::newRow(entry.radio) << entry.radio << entry.code << entry.orientation;
}

void PropertiesDialogFieldsTest::orientationMapping()
{
    QFETCH(QString, radio);
    OpenDialog t("LP");
    t.dialog.show();
    t.button(radio)->setChecked(true);
    QTEST(static_cast<int>(t.dialog.cups_orientation()), "code");
    QTEST(t.dialog.orientation(), "orientation");
}

void PropertiesDialogFieldsTest::noOrientationIsPortrait()
{
    OpenDialog t("LP"); // before it is shown none is checked
    for (const Orientation &entry : orientations)
        QVERIFY(!t.button(entry.radio)->isChecked());
    QCOMPARE(t.dialog.cups_orientation(), CupsSupport::Portrait);
    QCOMPARE(t.dialog.orientation(), QPageLayout::Portrait);
}

void PropertiesDialogFieldsTest::setOrientation_data()
{
    orientationMapping_data();
}

void PropertiesDialogFieldsTest::setOrientation()
{
    QFETCH(QString, radio);
    OpenDialog t("LP");
    t.dialog.show();
    auto *preview = t.dialog.findChild<Preview *>();
    t.button(radio)->setChecked(true);
    t.dialog.setOrientation(QPageLayout::Landscape);
    QVERIFY(t.button("landscapeRadioButton")->isChecked());
    QCOMPARE(preview->orientation, 4);

    t.button(radio)->setChecked(true);
    t.dialog.setOrientation(QPageLayout::Portrait);
    QVERIFY(t.button("portraitRadioButton")->isChecked());
    QCOMPARE(preview->orientation, 3);

    // The preview is updated even if nothing changes.
    preview->orientation = 0;
    t.dialog.setOrientation(QPageLayout::Portrait);
    QCOMPARE(preview->orientation, 3);
}

void PropertiesDialogFieldsTest::uncheckedOrientationDoesNothing_data()
{
    orientationMapping_data();
}

void PropertiesDialogFieldsTest::uncheckedOrientationDoesNothing()
{
    QFETCH(QString, radio);
    OpenDialog t("LP");
    t.dialog.show();
    for (const Orientation &entry : orientations)
        t.button(entry.radio)->setAutoExclusive(false);
    t.button(radio)->setChecked(true);
    t.dialog.setChanged(false);
    auto *preview = t.dialog.findChild<Preview *>();
    preview->orientation = 0;
    t.button(radio)->setChecked(false);
    QVERIFY(!t.isChanged());
    QCOMPARE(preview->orientation, 0);
}

void PropertiesDialogFieldsTest::previewFollows_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("mirror");
    QTest::addColumn<bool>("negative");
    QTest::newRow("portrait") << "portraitRadioButton" << 3 << false << false;
    QTest::newRow("landscape 180") << "landscape180RadioButton" << 5 << false << false;
    QTest::newRow("portrait 180") << "portrait180RadioButton" << 6 << false << false;
    QTest::newRow("mirror") << "mirroredCheckBox" << 4 << true << false;
    QTest::newRow("negative") << "inverseCheckBox" << 4 << false << true;
}

void PropertiesDialogFieldsTest::previewFollows()
{
    QFETCH(QString, name);
    OpenDialog t("LP");
    t.dialog.show();
    const auto *preview = t.dialog.findChild<Preview *>();
    QCOMPARE(preview->orientation, 4);
    t.button(name)->setChecked(true);
    QTEST(preview->orientation, "orientation");
    QTEST(preview->mirror, "mirror");
    QTEST(preview->negative, "negative");

    if (qobject_cast<QCheckBox *>(t.widget(name)))
        t.button(name)->setChecked(false);
    else
        t.button("landscapeRadioButton")->setChecked(true);
    QCOMPARE(preview->orientation, 4);
    QVERIFY(!preview->mirror);
    QVERIFY(!preview->negative);
}

void PropertiesDialogFieldsTest::previewIsPaintedAgain_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"portraitRadioButton", "landscape180RadioButton", "portrait180RadioButton",
                             "mirroredCheckBox", "inverseCheckBox"})
        QTest::newRow(name) << name;
}

void PropertiesDialogFieldsTest::previewIsPaintedAgain()
{
    QFETCH(QString, name);
    OpenDialog t("LP");
    t.dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&t.dialog));
    PaintCounter paints(t.dialog.findChild<Preview *>());
    do { // until the window is complete
        paints.count = 0;
        QTest::qWait(50);
    } while (paints.count > 0);
    t.button(name)->setChecked(true);
    QTRY_VERIFY(paints.count > 0);
}

void PropertiesDialogFieldsTest::updatePreviewSetsEverything()
{
    OpenDialog t("LP");
    t.dialog.show();
    auto *preview = t.dialog.findChild<Preview *>();
    for (const Orientation &entry : orientations) {
        t.button(entry.radio)->setChecked(true);
        preview->labelWidth = 1;
        preview->labelHeight = 2;
        preview->orientation = 0;
        preview->mirror = true;
        preview->negative = true;
        t.dialog.updatePreview();
        QCOMPARE(preview->labelWidth, 1200.0);
        QCOMPARE(preview->labelHeight, 1200.0);
        QCOMPARE(preview->orientation, entry.code);
        QVERIFY(!preview->mirror);
        QVERIFY(!preview->negative);
    }
}

// ----- size group, sliders -----

void PropertiesDialogFieldsTest::sizeGroup()
{
    OpenDialog t("LP");
    t.dialog.show();
    auto *group = t.widget<QGroupBox>("stockGroupBox");
    for (bool checked : {true, false, true}) {
        t.dialog.setChanged(false);
        group->setChecked(checked);
        QVERIFY(t.isChanged());
        for (const char *name : {"widthLabel", "widthEdit", "widthUnits", "heightLabel", "heightEdit", "heightUnits"})
            QCOMPARE(t.widget(name)->isEnabled(), checked);
    }
    // By the handler itself, not just by the group box.
    QMetaObject::invokeMethod(&t.dialog, "on_stockGroupBox_toggled", Q_ARG(bool, false));
    for (const char *name : {"widthLabel", "widthEdit", "widthUnits", "heightLabel", "heightEdit", "heightUnits"})
        QVERIFY(!t.widget(name)->isEnabled());
}

void PropertiesDialogFieldsTest::sliders_data()
{
    QTest::addColumn<QString>("slider");
    QTest::addColumn<QString>("label");
    QTest::newRow("speed") << "speedSlider"
                           << "speedValue";
    QTest::newRow("darkness") << "darknessSlider"
                              << "darknessValue";
}

void PropertiesDialogFieldsTest::sliders()
{
    QFETCH(QString, slider);
    QFETCH(QString, label);
    OpenDialog t("LP-ZED", {"PrintSpeed", "3", "Darkness", "3"});
    t.dialog.show();
    for (int value : {4, 2, 5}) {
        t.dialog.setChanged(false);
        t.widget<QSlider>(slider)->setValue(value);
        QCOMPARE(t.shown(label), QString::number(value));
        QVERIFY(t.isChanged());
    }
    // Only its own label.
    QCOMPARE(t.shown(label == "speedValue" ? "darknessValue" : "speedValue"), "3");
}

// ----- user commands -----

void PropertiesDialogFieldsTest::commandsAreKeptApart()
{
    OpenDialog t("LP");
    t.dialog.show();
    for (const Command &command : commandSlots) {
        t.button(command.radio)->setChecked(true);
        QCOMPARE(t.shown("commandEdit"), "");
        t.dialog.setChanged(false);
        t.widget<QPlainTextEdit>("commandEdit")->setPlainText(command.keyword);
        QVERIFY(t.isChanged());
    }
    for (const Command &command : commandSlots) {
        t.button(command.radio)->setChecked(true);
        QCOMPARE(t.shown("commandEdit"), command.keyword);
    }
    t.button("applyButton")->click();
    for (const Command &command : commandSlots) {
        QString stored;
        QVERIFY(t.cups.getString(command.keyword, &stored));
        QCOMPARE(stored, QString(command.keyword) + '\n');
    }
}

void PropertiesDialogFieldsTest::switchingCommandsMarksNothing()
{
    OpenDialog t("LP", {"JobStart", "a\\\\r", "LabelStart", "b\\\\rc\\\\r", "JobEnd", "\xc2\xa0 d\t\\\\r"});
    t.dialog.show();
    for (int i : {1, 2, 3, 0, 3, 2, 1, 0}) {
        t.button(commandSlots[i].radio)->setChecked(true);
        QVERIFY(!t.isChanged());
    }
    t.dialog.saveValues();
    QCOMPARE(t.cups.getLabelStart(), "b\nc\n");
    QCOMPARE(t.cups.getLabelEnd(), "");
    QCOMPARE(t.cups.getJobEnd(), QString("\xc2\xa0 d\t\n"));
}

void PropertiesDialogFieldsTest::retypedCommandMarksNothing()
{
    OpenDialog t("LP", {"JobStart", "a\\\\r"});
    t.dialog.show();
    auto *edit = t.widget<QPlainTextEdit>("commandEdit");
    edit->setPlainText("a\n"); // the same text, set again
    QVERIFY(!t.isChanged());
    edit->setPlainText("a");
    QVERIFY(t.isChanged());
}

void PropertiesDialogFieldsTest::uncheckedCommandDoesNothing_data()
{
    QTest::addColumn<int>("slot");
    for (int slot = 0; slot < 4; ++slot)
        QTest::newRow(commandSlots[slot].keyword) << slot;
}

void PropertiesDialogFieldsTest::uncheckedCommandDoesNothing()
{
    QFETCH(int, slot);
    const Command &other = commandSlots[(slot + 1) % 4];
    OpenDialog t("LP", {commandSlots[slot].keyword, "a\\\\r", other.keyword, "b\\\\r"});
    t.dialog.show();
    for (const Command &command : commandSlots)
        t.button(command.radio)->setAutoExclusive(false);
    for (const Command &command : commandSlots)
        t.button(command.radio)->setChecked(false);
    t.button(commandSlots[slot].radio)->setChecked(true);
    t.button(other.radio)->setChecked(true);
    t.button(commandSlots[slot].radio)->setChecked(false);
    QCOMPARE(t.shown("commandEdit"), "b\n");
    t.widget<QPlainTextEdit>("commandEdit")->setPlainText("c");
    t.button(commandSlots[slot].radio)->setChecked(true);
    QCOMPARE(t.shown("commandEdit"), "a\n");
    t.button(other.radio)->setChecked(false);
    t.button(other.radio)->setChecked(true);
    QCOMPARE(t.shown("commandEdit"), "c");
}

void PropertiesDialogFieldsTest::typedCommandComesBack()
{
    OpenDialog t("LP");
    t.dialog.show();
    t.widget<QTabWidget>("tabs")->setCurrentIndex(3);
    t.button("labelEndRadioButton")->click();
    auto *edit = t.widget<QPlainTextEdit>("commandEdit");
    QTest::keyClicks(edit, "cut 1");
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClicks(edit, "feed");
    QVERIFY(t.isChanged());
    t.dialog.setChanged(false);
    t.button("jobStartRadioButton")->click();
    QCOMPARE(t.shown("commandEdit"), "");
    t.button("labelEndRadioButton")->click();
    QCOMPARE(t.shown("commandEdit"), "cut 1\nfeed");
    QVERIFY(!t.isChanged());
}

// ----- parsers -----

void PropertiesDialogFieldsTest::getDouble_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<double>("value");
    QTest::newRow("fraction") << "1.5" << true << 1.5;
    QTest::newRow("negative") << "-0.25" << true << -0.25;
    QTest::newRow("whole") << "12" << true << 12.0;
    QTest::newRow("no digit before") << ".5" << true << 0.5;
    QTest::newRow("no digit after") << "5." << true << 5.0;
    QTest::newRow("exponent") << "1e2" << true << 100.0;
    QTest::newRow("blanks around") << " 1.5 " << true << 1.5;
    QTest::newRow("empty") << "" << false << 0.0;
    QTest::newRow("point") << "." << false << 0.0;
    QTest::newRow("minus") << "-" << false << 0.0;
    QTest::newRow("letters") << "abc" << false << 0.0;
    QTest::newRow("comma") << "1,5" << false << 0.0;
    QTest::newRow("group separator") << "1,000.5" << false << 0.0;
    QTest::newRow("unit") << "1.5in" << false << 0.0;
    QTest::newRow("two numbers") << "1 2" << false << 0.0;
    QTest::newRow("hexadecimal") << "0x10" << false << 0.0;
}

void PropertiesDialogFieldsTest::getDouble()
{
    QFETCH(QString, text);
    OpenDialog t("LP");
    QLineEdit edit(text);
    double value = 7.0;
    QTEST(t.dialog.getDouble(&edit, &value), "ok");
    QTEST(value, "value");
}

void PropertiesDialogFieldsTest::getInt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<int>("value");
    QTest::newRow("number") << "12" << true << 12;
    QTest::newRow("negative") << "-3" << true << -3;
    QTest::newRow("plus") << "+3" << true << 3;
    QTest::newRow("leading zero is not octal") << "010" << true << 10;
    QTest::newRow("largest") << "2147483647" << true << 2147483647;
    QTest::newRow("blanks around") << " 4 " << true << 4;
    QTest::newRow("empty") << "" << false << 0;
    QTest::newRow("letters") << "abc" << false << 0;
    QTest::newRow("fraction") << "1.5" << false << 0;
    QTest::newRow("comma") << "1,000" << false << 0;
    QTest::newRow("hexadecimal") << "0x10" << false << 0;
    QTest::newRow("too large") << "2147483648" << false << 0;
    QTest::newRow("far too large") << "99999999999" << false << 0;
}

void PropertiesDialogFieldsTest::getInt()
{
    QFETCH(QString, text);
    OpenDialog t("LP");
    QLineEdit edit(text);
    int value = 7;
    QTEST(t.dialog.getInt(&edit, &value), "ok");
    QTEST(value, "value");
}

// ----- events -----

void PropertiesDialogFieldsTest::enterInThePageSize_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Qt::Key>("key");
    for (const char *name : {"widthEdit", "heightEdit"}) {
        QTest::addRow("%s Return", name) << name << Qt::Key_Return;
        QTest::addRow("%s Enter", name) << name << Qt::Key_Enter;
    }
}

void PropertiesDialogFieldsTest::enterInThePageSize()
{
    QFETCH(QString, name);
    QFETCH(Qt::Key, key);
    OpenDialog t("LP");
    t.dialog.show();
    t.widget<QGroupBox>("stockGroupBox")->setChecked(true);
    t.edit(name)->setText("1.50");
    const QSignalSpy finished(t.edit(name), &QLineEdit::editingFinished);
    QTest::keyClick(t.edit(name), key);
    QVERIFY(t.dialog.isVisible());
    QCOMPARE(t.dialog.result(), 0);
    QCOMPARE(t.shown(name), "1.50");
    QCOMPARE(finished.count(), 0);
    QVERIFY(t.isChanged()); // nothing was saved

    // Other keys are typed.
    QTest::keyClick(t.edit(name), Qt::Key_Backspace);
    QCOMPARE(t.shown(name), "1.5");
}

void PropertiesDialogFieldsTest::eventFilter_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("consumed");
    QTest::newRow("Return") << QEvent::KeyPress << Qt::Key_Return << true;
    QTest::newRow("Enter") << QEvent::KeyPress << Qt::Key_Enter << true;
    QTest::newRow("Return released") << QEvent::KeyRelease << Qt::Key_Return << false;
    QTest::newRow("Escape") << QEvent::KeyPress << Qt::Key_Escape << false;
    QTest::newRow("digit") << QEvent::KeyPress << Qt::Key_1 << false;
    QTest::newRow("Tab") << QEvent::KeyPress << Qt::Key_Tab << false;
}

void PropertiesDialogFieldsTest::eventFilter()
{
    QFETCH(QEvent::Type, type);
    QFETCH(Qt::Key, key);
    OpenDialog t("LP");
    QKeyEvent event(type, key, Qt::NoModifier);
    QTEST(t.dialog.eventFilter(t.edit("widthEdit"), &event), "consumed");
    QEvent other(QEvent::User);
    QVERIFY(!t.dialog.eventFilter(t.edit("widthEdit"), &other));
}

void PropertiesDialogFieldsTest::showLoadsAndSettles()
{
    OpenDialog t("LP");
    t.dialog.setChanged(true);
    t.cups.setOffsetH(17);
    t.dialog.show();
    QCOMPARE(t.shown("horizontalEdit"), "17");
    QVERIFY(!t.isChanged());
}

void PropertiesDialogFieldsTest::languageChange_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<QStringList>("options");
    for (const char *queue : queues)
        for (const char *category : {"0", "1", "2"})
            QTest::addRow("%s %s", queue, category) << queue << QStringList({"LabelCategory", category});
    // The labels tell stored values that the sliders cannot.
    QTest::newRow("beyond the sliders") << "LP" << QStringList({"PrintSpeed", "5", "Darkness", "999"});
}

// A change of the language sets the form's own texts; the texts that replace them must be set again.
void PropertiesDialogFieldsTest::languageChange()
{
    QFETCH(QString, queue);
    QFETCH(QStringList, options);
    OpenDialog t(queue, options);
    t.dialog.show();
    // All labels, line edits and so on; rows that were never shown have no text of interest.
    const char *const names[] = {"speedValue",     "darknessValue",  "stopLabel",      "aboutVersionLabel",
                                 "aboutDateLabel", "gapSizeLabel",   "gapOffsetLabel", "widthEdit",
                                 "heightEdit",     "gapSize",        "gapOffset",      "feed",
                                 "stop",           "horizontalEdit", "verticalEdit",   "copyrightLabel"};
    const bool hasGapRows = !t.widget("gapSizeLabel")->isHidden();
    QStringList before;
    for (const char *name : names)
        before.append(t.shown(name));
    const QString title = t.dialog.windowTitle();

    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&t.dialog, &event);
    QCOMPARE(t.dialog.windowTitle(), title);
    for (std::size_t i = 0; i < std::size(names); ++i) {
        if (QString(names[i]).startsWith("gap") && !hasGapRows)
            continue;
        QCOMPARE(QString(names[i]) + ' ' + t.shown(names[i]), QString(names[i]) + ' ' + before.at(static_cast<int>(i)));
    }
}

void PropertiesDialogFieldsTest::languageChangeReachesTheForm()
{
    OpenDialog t("LP-TIK", {"LabelCategory", "2"});
    t.dialog.show();
    {
        const MarkingTranslator translator; // Qt itself sends the event
        QCoreApplication::processEvents();
        const QString context = "PrintPropertiesDialog: ";
        QCOMPARE(t.button("okButton")->text(), context + "Ok");
        QCOMPARE(t.shown("widthLabel"), context + "Width:");
        QCOMPARE(t.widget<QGroupBox>("stockGroupBox")->title(), context + "User-defined Page Size");
        QCOMPARE(t.widget<QTabWidget>("tabs")->tabText(2), context + "Stock");
        QCOMPARE(t.button("landscape180RadioButton")->text(), context + "Landscape 180\u00b0");
        // Replaces the form's text.
        QCOMPARE(t.dialog.windowTitle(), "QObject: LP-TIK Printing Preferences");
        QCOMPARE(t.shown("stopLabel"), context + "Vertical Offset");
        QCOMPARE(t.shown("gapSizeLabel"), context + "Black Mark Size");
        QCOMPARE(t.shown("gapOffsetLabel"), context + "Black Mark Offset");
        QCOMPARE(t.shown("aboutVersionLabel"), context + "Version " PROPERTIESDIALOG_VERSION_STRING);
        QCOMPARE(t.shown("aboutDateLabel"), context + PROPERTIESDIALOG_RELEASE_DATE);
        QCOMPARE(t.shown("speedValue"), "3");
        QCOMPARE(t.shown("darknessValue"), "10");
        // These are not translated again.
        QCOMPARE(t.list("mediaType")->itemText(2), "Labels With Marks");
        QCOMPARE(t.list("cut")->itemText(0), "No Cut");
        QCOMPARE(t.list("preset0")->itemText(0), "<Current Settings>");
    }
    QCoreApplication::processEvents();
    QCOMPARE(t.button("okButton")->text(), "Ok");
    QCOMPARE(t.shown("stopLabel"), "Vertical Offset");
}

void PropertiesDialogFieldsTest::languageChangeMarksNothing()
{
    OpenDialog t("LP");
    t.dialog.show();
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&t.dialog, &event);
    QVERIFY(!t.isChanged());
}

void PropertiesDialogFieldsTest::languageChangeBeforeShowing()
{
    OpenDialog t("LP-TIK", {"LabelCategory", "1"});
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&t.dialog, &event);
    QCOMPARE(t.dialog.windowTitle(), "LP-TIK Printing Preferences");
    QCOMPARE(t.shown("aboutVersionLabel"), "Version " PROPERTIESDIALOG_VERSION_STRING);
    t.dialog.show();
    QCOMPARE(t.shown("stopLabel"), "Vertical Offset");
    QCOMPARE(t.shown("gapSizeLabel"), "Gap Size");
}

void PropertiesDialogFieldsTest::languageChangeKeepsFields()
{
    OpenDialog t("LP-TIK", {"LabelCategory", "1"});
    t.dialog.show();
    t.edit("gapSize")->setText("0.77");
    t.edit("stop")->setText("0.88");
    t.widget<QPlainTextEdit>("commandEdit")->setPlainText("typed");
    t.widget<QTabWidget>("tabs")->setCurrentIndex(2);
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&t.dialog, &event);
    QCOMPARE(t.shown("gapSize"), "0.77");
    QCOMPARE(t.shown("stop"), "0.88");
    QCOMPARE(t.shown("commandEdit"), "typed");
    QCOMPARE(t.widget<QTabWidget>("tabs")->currentIndex(), 2);
    QVERIFY(t.isChanged());
}

void PropertiesDialogFieldsTest::otherChangesKeepTexts()
{
    OpenDialog t("LP");
    t.dialog.show();
    t.widget<QLabel>("widthLabel")->setText("other");
    for (QEvent::Type type : {QEvent::FontChange, QEvent::StyleChange, QEvent::PaletteChange, QEvent::LocaleChange}) {
        QEvent event(type);
        QCoreApplication::sendEvent(&t.dialog, &event);
        QCOMPARE(t.shown("widthLabel"), "other");
    }
}

PROPERTIESDIALOG_TEST_MAIN(PropertiesDialogFieldsTest)
#include "PropertiesDialogFieldsTest.moc"
