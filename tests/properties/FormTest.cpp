// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "TestMain.h"

#include "ui_PrintPropertiesDialog.h"

#include <QApplication>
#include <QMap>
#include <QSet>
#include <QTabBar>
#include <QTest>
#include <QTranslator>

#include <iterator>
#include <memory>

namespace {

// A cell of a grid layout.
struct Cell
{
    int row;
    int column;
    int rowSpan = 1;
    int columnSpan = 1;
};

bool operator==(const Cell &a, const Cell &b)
{
    return a.row == b.row && a.column == b.column && a.rowSpan == b.rowSpan && a.columnSpan == b.columnSpan;
}

char *toString(const Cell &cell)
{
    return QTest::toString(
        QStringLiteral("(%1, %2, %3, %4)").arg(cell.row).arg(cell.column).arg(cell.rowSpan).arg(cell.columnSpan));
}

Cell cellOf(const QGridLayout *layout, int index)
{
    Cell cell{-1, -1, -1, -1};
    layout->getItemPosition(index, &cell.row, &cell.column, &cell.rowSpan, &cell.columnSpan);
    return cell;
}

constexpr int unlimited = QWIDGETSIZE_MAX;

// A widget that stands in a layout.
struct WidgetRow
{
    const char *name;
    const char *className;
    const char *layout;
    Cell cell;
    const char *text = nullptr; // the title of a group box
    QSize minimum = {0, 0};
    QSize maximum = {unlimited, unlimited};
};

constexpr QSize noMinimum = {0, 0};
constexpr QSize stockMinimum = {0, 22};
constexpr QSize stockMaximum = {40, unlimited};
constexpr const char *copyright = "Copyright \302\251 2026 The PropertiesDialog authors";

const WidgetRow widgetRows[] = {
    {"tabs", "QTabWidget", "gridLayout_20", {0, 0}},
    {"okButton", "QPushButton", "gridLayout_3", {0, 0}, "Ok"},
    {"cancelButton", "QPushButton", "gridLayout_3", {0, 1}, "Cancel"},
    {"applyButton", "QPushButton", "gridLayout_3", {0, 2}, "Apply"},
    {"helpButton", "QPushButton", "gridLayout_3", {0, 3}, "Help"},

    {"stockGroupBox", "QGroupBox", "gridLayout_4", {0, 0, 1, 3}, "User-defined Page Size"},
    {"widthLabel", "QLabel", "gridLayout_11", {0, 0}, "Width:"},
    {"widthEdit", "QLineEdit", "gridLayout_11", {0, 1}, nullptr, noMinimum, {80, unlimited}},
    {"widthUnits", "QLabel", "gridLayout_11", {0, 2}, "inches"},
    {"heightLabel", "QLabel", "gridLayout_11", {1, 0}, "Height:"},
    {"heightEdit", "QLineEdit", "gridLayout_11", {1, 1}, nullptr, noMinimum, {80, unlimited}},
    {"heightUnits", "QLabel", "gridLayout_11", {1, 2}, "inches"},
    {"previewGroupBox", "QGroupBox", "gridLayout_4", {1, 0}, "Preview", {100, 120}},
    {"frame", "QFrame", "gridLayout_9", {0, 0}, nullptr, {100, 100}, {100, 100}},
    {"orientationGroupBox", "QGroupBox", "gridLayout_4", {1, 1}, "Orientation", {140, 120}},
    {"portraitRadioButton", "QRadioButton", "gridLayout_7", {0, 0}, "Portrait"},
    {"landscapeRadioButton", "QRadioButton", "gridLayout_7", {1, 0}, "Landscape"},
    {"portrait180RadioButton", "QRadioButton", "gridLayout_7", {2, 0}, "Portrait 180\302\260"},
    {"landscape180RadioButton", "QRadioButton", "gridLayout_7", {3, 0}, "Landscape 180\302\260"},
    {"effectsGroupBox", "QGroupBox", "gridLayout_4", {1, 2}, "Effects", {0, 120}},
    {"mirroredCheckBox", "QCheckBox", "gridLayout_6", {0, 0}, "Mirror"},
    {"inverseCheckBox", "QCheckBox", "gridLayout_6", {1, 0}, "Negative"},
    {"presetGroupBox", "QGroupBox", "gridLayout_4", {3, 0, 1, 3}, "Preset"},
    {"presetLabel", "QLabel", "gridLayout_8", {0, 0}, "Name:"},
    {"preset0", "QComboBox", "gridLayout_8", {0, 1}, nullptr, {160, 0}},
    {"manageButton", "QPushButton", "gridLayout_8", {0, 2}, "Manage..."},
    {"speedGroupBox", "QGroupBox", "gridLayout_4", {4, 0, 1, 3}, "Speed Settings"},
    {"speedSlider", "QSlider", "gridLayout_10", {0, 0}},
    {"speedValue", "QLabel", "gridLayout_10", {0, 1}, "0"},
    {"darknessGroupBox", "QGroupBox", "gridLayout_4", {5, 0, 1, 3}, "Darkness"},
    {"darknessSlider", "QSlider", "gridLayout_5", {0, 0}},
    {"darknessValue", "QLabel", "gridLayout_5", {0, 1}, "0"},
    {"copyrightLabel", "QLabel", "gridLayout_4", {6, 0, 1, 3}, copyright},

    {"label",
     "QLabel",
     "gridLayout_12",
     {0, 0, 1, 4},
     "Presets allow you to save your print settings with a name so\n"
     "that you can quickly switch between different configurations."},
    {"presetListLabel", "QLabel", "gridLayout_12", {1, 0, 1, 2}, "Preset List:"},
    {"nameLabel", "QLabel", "gridLayout_12", {1, 2, 1, 2}, "Name:"},
    {"preset1", "QComboBox", "gridLayout_12", {2, 0, 1, 2}, nullptr, {160, 0}},
    {"nameEdit", "QLineEdit", "gridLayout_12", {2, 2, 1, 2}},
    {"descriptionLabel", "QLabel", "gridLayout_12", {3, 2, 1, 2}, "Description:"},
    {"descriptionEdit", "QPlainTextEdit", "gridLayout_12", {4, 2, 1, 2}},
    {"presetNewButton", "QPushButton", "gridLayout_12", {5, 0}, "New"},
    {"presetUpdateButton", "QPushButton", "gridLayout_12", {5, 1, 1, 2}, "Update..."},
    {"presetDeleteButton", "QPushButton", "gridLayout_12", {5, 3}, "Delete"},

    {"mediaSettingsGroupBox", "QGroupBox", "gridLayout_13", {0, 0}, "Media Settings"},
    {"mediaTypeLabel", "QLabel", "gridLayout_15", {0, 0}, "MediaType:"},
    {"mediaType", "QComboBox", "gridLayout_15", {0, 1, 1, 4}},
    {"gapSizeLabel", "QLabel", "gridLayout_15", {1, 0, 1, 2}, "Black Mark Width:"},
    {"gapSize", "QLineEdit", "gridLayout_15", {1, 2}, nullptr, stockMinimum, stockMaximum},
    {"gapSizeUnits", "QLabel", "gridLayout_15", {1, 3}, "inches"},
    {"gapOffsetLabel", "QLabel", "gridLayout_15", {2, 0, 1, 2}, "Black Mark Offset:"},
    {"gapOffset", "QLineEdit", "gridLayout_15", {2, 2}, nullptr, stockMinimum, stockMaximum},
    {"gapOffsetUnits", "QLabel", "gridLayout_15", {2, 3}, "inches"},
    {"printMethodLabel", "QLabel", "gridLayout_15", {3, 0}, "Print Method:"},
    {"printMethod", "QComboBox", "gridLayout_15", {3, 1, 1, 4}},
    {"mediaHandlingGroupBox", "QGroupBox", "gridLayout_13", {1, 0}, "Media Handling"},
    {"cutLabel", "QLabel", "gridLayout_14", {0, 0}, "Cut:"},
    {"cut", "QComboBox", "gridLayout_14", {0, 1, 1, 3}},
    {"feedLabel", "QLabel", "gridLayout_14", {1, 0}, "Feed:"},
    {"feed", "QLineEdit", "gridLayout_14", {1, 1}, nullptr, stockMinimum, stockMaximum},
    {"feedUnits", "QLabel", "gridLayout_14", {1, 2}, "inches"},
    {"backLabel", "QLabel", "gridLayout_14", {2, 0}, "Backfeed:"},
    {"back", "QLineEdit", "gridLayout_14", {2, 1}, nullptr, stockMinimum, stockMaximum},
    {"backUnits", "QLabel", "gridLayout_14", {2, 2}, "dots"},
    {"overlapLabel", "QLabel", "gridLayout_14", {3, 0}, "Overlap:"},
    {"overlap", "QLineEdit", "gridLayout_14", {3, 1}, nullptr, stockMinimum, stockMaximum},
    {"overlapUnits", "QLabel", "gridLayout_14", {3, 2}, "dots"},
    {"positionGroupBox", "QGroupBox", "gridLayout_13", {2, 0}, "Position Adjustments"},
    {"stopLabel", "QLabel", "gridLayout_16", {0, 0}, "Stop Position:"},
    {"stop", "QLineEdit", "gridLayout_16", {0, 1}, nullptr, stockMinimum, stockMaximum},
    {"stopUnits", "QLabel", "gridLayout_16", {0, 2}, "inches"},
    {"startLabel", "QLabel", "gridLayout_16", {1, 0}, "Start Position:"},
    {"start", "QLineEdit", "gridLayout_16", {1, 1}, nullptr, stockMinimum, stockMaximum},
    {"startUnits", "QLabel", "gridLayout_16", {1, 2}, "inches"},

    {"userCommandsGroup", "QGroupBox", "gridLayout_17", {0, 0}, "User Commands"},
    {"jobStartRadioButton", "QRadioButton", "gridLayout_19", {0, 0}, "Start of Job"},
    {"commandEdit", "QPlainTextEdit", "gridLayout_19", {0, 1, 4, 1}},
    {"labelStartRadioButton", "QRadioButton", "gridLayout_19", {1, 0}, "Start of Label"},
    {"labelEndRadioButton", "QRadioButton", "gridLayout_19", {2, 0}, "End of Label"},
    {"jobEndRadioButton", "QRadioButton", "gridLayout_19", {3, 0}, "End of Job"},
    {"positionGroup", "QGroupBox", "gridLayout_17", {1, 0}, "Position Adjustment"},
    {"horizontalLabel", "QLabel", "gridLayout_18", {0, 0}, "Horizontal Offset:"},
    {"horizontalEdit", "QLineEdit", "gridLayout_18", {0, 1}, nullptr, stockMinimum, stockMaximum},
    {"horizontalUnits", "QLabel", "gridLayout_18", {0, 2}, "dots"},
    {"verticalLabel", "QLabel", "gridLayout_18", {1, 0}, "Vertical Offset:"},
    {"verticalEdit", "QLineEdit", "gridLayout_18", {1, 1}, nullptr, stockMinimum, stockMaximum},
    {"verticalUnits", "QLabel", "gridLayout_18", {1, 2}, "dots"},

    {"aboutVersionLabel", "QLabel", "gridLayout", {1, 0}, "Version"},
    {"aboutDateLabel", "QLabel", "gridLayout", {2, 0}, "Date"},
    {"aboutCopyrightLabel", "QLabel", "gridLayout", {3, 0}, copyright},
};

struct SpacerCell
{
    int row;
    int column;
    Qt::Orientations expanding;
};

enum Margins {
    DefaultMargins,
    NoTopAndBottom,
    Nested
};

struct LayoutRow
{
    const char *name;
    const char *owner; // the widget whose layout it is; null for a layout within another
    Margins margins;
    int widgets;
    QList<SpacerCell> spacers = {};
};

const LayoutRow layoutRows[] = {
    {"gridLayout_20", "PrintPropertiesDialog", DefaultMargins, 1},
    {"gridLayout_3", nullptr, Nested, 4},
    {"gridLayout_4", "pageSetupTab", NoTopAndBottom, 8},
    {"gridLayout_11", "stockGroupBox", NoTopAndBottom, 6, {{0, 3, Qt::Horizontal}, {1, 3, Qt::Horizontal}}},
    {"gridLayout_9", "previewGroupBox", NoTopAndBottom, 1},
    {"gridLayout_7", "orientationGroupBox", NoTopAndBottom, 4, {{4, 0, Qt::Vertical}}},
    {"gridLayout_6", "effectsGroupBox", NoTopAndBottom, 2, {{2, 0, Qt::Vertical}}},
    {"gridLayout_8", "presetGroupBox", NoTopAndBottom, 3},
    {"gridLayout_10", "speedGroupBox", NoTopAndBottom, 2},
    {"gridLayout_5", "darknessGroupBox", NoTopAndBottom, 2},
    {"gridLayout_12", "presetsTab", DefaultMargins, 10},
    {"gridLayout_13", "stockTab", DefaultMargins, 3},
    {"gridLayout_15", "mediaSettingsGroupBox", NoTopAndBottom, 10, {{1, 4, Qt::Horizontal}, {2, 4, Qt::Horizontal}}},
    {"gridLayout_14",
     "mediaHandlingGroupBox",
     NoTopAndBottom,
     11,
     {{1, 3, Qt::Horizontal}, {2, 3, Qt::Horizontal}, {3, 3, Qt::Horizontal}}},
    {"gridLayout_16",
     "positionGroupBox",
     NoTopAndBottom,
     6,
     {{0, 3, Qt::Horizontal}, {1, 3, Qt::Horizontal}, {2, 1, Qt::Vertical}}},
    {"gridLayout_17", "advancedTab", DefaultMargins, 2},
    {"gridLayout_19", "userCommandsGroup", DefaultMargins, 5},
    {"gridLayout_18",
     "positionGroup",
     DefaultMargins,
     6,
     {{0, 3, Qt::Horizontal}, {1, 3, Qt::Horizontal}, {2, 1, Qt::Vertical}}},
    {"gridLayout_2", "aboutTab", DefaultMargins, 0},
    {"gridLayout", nullptr, Nested, 3, {{0, 0, Qt::Vertical}}},
};

struct TabRow
{
    const char *name;
    const char *text;
};

const TabRow tabRows[] = {
    {"pageSetupTab", "Page Setup"}, {"presetsTab", "Presets"}, {"stockTab", "Stock"},
    {"advancedTab", "Advanced"},    {"aboutTab", "About"},
};

// Print method before media type, although it stands below.
const char *const tabOrder[] = {
    "okButton",
    "cancelButton",
    "applyButton",
    "helpButton",
    "tabs",
    "portraitRadioButton",
    "landscapeRadioButton",
    "portrait180RadioButton",
    "landscape180RadioButton",
    "mirroredCheckBox",
    "inverseCheckBox",
    "preset0",
    "manageButton",
    "speedSlider",
    "darknessSlider",
    "presetNewButton",
    "presetUpdateButton",
    "presetDeleteButton",
    "preset1",
    "nameEdit",
    "descriptionEdit",
    "printMethod",
    "mediaType",
    "gapSize",
    "gapOffset",
    "cut",
    "feed",
    "back",
    "overlap",
    "stop",
    "start",
    "jobStartRadioButton",
    "labelStartRadioButton",
    "labelEndRadioButton",
    "jobEndRadioButton",
    "commandEdit",
    "horizontalEdit",
    "verticalEdit",
};

// Whether Qt made it, as a part of one of its own widgets.
bool isPartOfAWidget(const QObject *object)
{
    return object->objectName().isEmpty() || object->objectName().startsWith(QLatin1String("qt_"))
           || qobject_cast<const QTabBar *>(object->parent());
}

const char *textProperty(const QWidget *widget)
{
    return qobject_cast<const QGroupBox *>(widget) ? "title" : "text";
}

// Marks the texts that were asked for in the form's context and without a disambiguation.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *sourceText, const char *disambiguation, int) const override
    {
        if (qstrcmp(context, "PrintPropertiesDialog") != 0 || disambiguation)
            return QString();
        return mark(sourceText);
    }

    static QString mark(const char *sourceText) { return QLatin1Char('~') + QString::fromUtf8(sourceText); }
};

// A dialog with slots that have the names of widgets and their signals.
class SlotDialog : public QDialog
{
    Q_OBJECT

public:
    QStringList calls;

public Q_SLOTS:
    void on_okButton_clicked() { calls << QStringLiteral("ok"); }
    void on_darknessSlider_valueChanged(int value) { calls << QStringLiteral("darkness %1").arg(value); }
    void on_gapSize_textChanged(const QString &text) { calls << QStringLiteral("gap ") + text; }
};

} // namespace

// If this fails, the properties dialog looks different: controls are moved, missing or mislabelled.
class FormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void dialog();
    void widgets_data();
    void widgets();
    void nothingElse();
    void layouts_data();
    void layouts();
    void nestedLayouts();
    void tabs_data();
    void tabs();
    void fonts_data();
    void fonts();
    void labels_data();
    void labels();
    void groupBoxes_data();
    void groupBoxes();
    void buttons_data();
    void buttons();
    void frame();
    void sliders_data();
    void sliders();
    void combos_data();
    void combos();
    void preset1RefusesMoreThanAHundred();
    void buddies_data();
    void buddies();
    void focusOrder();
    void tabulator_data();
    void tabulator();
    void slotsAreConnected();
    void retranslate();
    void fitsItsSize();

private:
    template<class T = QWidget>
    T *child(const char *name) const
    {
        return dialogWidget->findChild<T *>(QString::fromLatin1(name));
    }

    QWidget *widgetOrDialog(const char *name) const
    {
        return dialogWidget->objectName() == QLatin1String(name) ? dialogWidget.get() : child(name);
    }

    std::unique_ptr<QDialog> dialogWidget;
    Ui_PrintPropertiesDialog ui;
};

void FormTest::initTestCase()
{
    // What desktops have. Without it Qt takes the first font that the machine has, in 12 points.
    QApplication::setFont(QFont("DejaVu Sans", 9));
    QCOMPARE(QFontInfo(QApplication::font()).family(), QString("DejaVu Sans"));
}

void FormTest::init()
{
    dialogWidget = std::make_unique<QDialog>();
    ui.setupUi(dialogWidget.get());
}

void FormTest::cleanup()
{
    dialogWidget.reset();
}

void FormTest::dialog()
{
    QCOMPARE(dialogWidget->objectName(), QStringLiteral("PrintPropertiesDialog"));
    QCOMPARE(dialogWidget->windowTitle(), QStringLiteral("PrintPropertiesDialog"));
    QCOMPARE(dialogWidget->size(), QSize(450, 489));
    QCOMPARE(dialogWidget->maximumSize(), QSize(500, 520));
    QCOMPARE(dialogWidget->layout(), ui.gridLayout_20);
}

void FormTest::widgets_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const WidgetRow &widgetRow : widgetRows)
        QTest::newRow(widgetRow.name) << row++;
}

void FormTest::widgets()
{
    QFETCH(int, row);
    const WidgetRow &expected = widgetRows[row];
    QWidget *widget = child(expected.name);
    QVERIFY(widget);
    const auto *layout = child<QGridLayout>(expected.layout);
    QVERIFY(layout);

    QCOMPARE(widget->metaObject()->className(), expected.className);
    QCOMPARE(widget->parentWidget(), layout->parentWidget());
    const int index = layout->indexOf(widget);
    QVERIFY(index >= 0);
    QCOMPARE(cellOf(layout, index), expected.cell);
    QCOMPARE(widget->minimumSize(), expected.minimum);
    QCOMPARE(widget->maximumSize(), expected.maximum);
    QVERIFY(widget->isEnabled());
    QVERIFY(!widget->isHidden());
    const QString text = widget->property(textProperty(widget)).toString();
    QCOMPARE(text, expected.text ? QString::fromUtf8(expected.text) : QString());
}

void FormTest::nothingElse()
{
    QStringList expected;
    for (const WidgetRow &row : widgetRows)
        expected << QString::fromLatin1(row.name);
    for (const TabRow &row : tabRows)
        expected << QString::fromLatin1(row.name);
    expected.sort();

    QStringList actual;
    const auto widgets = dialogWidget->findChildren<QWidget *>();
    for (const QWidget *widget : widgets)
        if (!isPartOfAWidget(widget))
            actual << widget->objectName();
    actual.sort();
    QCOMPARE(actual, expected);

    QStringList layouts;
    const auto gridLayouts = dialogWidget->findChildren<QGridLayout *>();
    for (const QGridLayout *layout : gridLayouts)
        if (!isPartOfAWidget(layout))
            layouts << layout->objectName();
    QCOMPARE(layouts.size(), int(std::size(layoutRows)));
}

void FormTest::layouts_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const LayoutRow &layoutRow : layoutRows)
        QTest::newRow(layoutRow.name) << row++;
}

void FormTest::layouts()
{
    QFETCH(int, row);
    const LayoutRow &expected = layoutRows[row];
    const auto *layout = child<QGridLayout>(expected.name);
    QVERIFY(layout);

    // What the form does not set follows the style, as the margins and spacings of any other layout do.
    // Those of a window are another matter than those of a widget within.
    QWidget window;
    auto *plain = new QWidget(&window);
    const bool inWindow = qstrcmp(expected.name, "gridLayout_20") == 0;
    const auto *plainLayout = new QGridLayout(inWindow ? &window : plain);
    QMargins margins = plainLayout->contentsMargins();
    QVERIFY(margins.top() > 0);
    if (expected.margins == Nested) {
        QVERIFY(expected.owner == nullptr);
        QVERIFY(layout->parent()->inherits("QGridLayout"));
        margins = QMargins();
    } else {
        const auto *owner = widgetOrDialog(expected.owner);
        QVERIFY(owner);
        QCOMPARE(owner->layout(), layout);
    }
    if (expected.margins == NoTopAndBottom) {
        margins.setTop(0);
        margins.setBottom(0);
    }
    QCOMPARE(layout->contentsMargins(), margins);
    const bool tight = qstrcmp(expected.name, "gridLayout_11") == 0;
    QCOMPARE(layout->verticalSpacing(), tight ? 0 : plainLayout->verticalSpacing());
    QCOMPARE(layout->horizontalSpacing(), plainLayout->horizontalSpacing());

    int widgets = 0;
    int spacers = 0;
    for (int i = 0; i < layout->count(); ++i) {
        widgets += layout->itemAt(i)->widget() ? 1 : 0;
        spacers += layout->itemAt(i)->spacerItem() ? 1 : 0;
    }
    QCOMPARE(widgets, expected.widgets);
    QCOMPARE(spacers, int(expected.spacers.size()));
    for (const SpacerCell &cell : expected.spacers) {
        QLayoutItem *item = layout->itemAtPosition(cell.row, cell.column);
        QVERIFY(item && item->spacerItem());
        const bool horizontal = cell.expanding == Qt::Horizontal;
        QCOMPARE(item->sizeHint(), horizontal ? QSize(40, 20) : QSize(20, 40));
        const QSizePolicy policy = item->spacerItem()->sizePolicy();
        QCOMPARE(policy.horizontalPolicy(), horizontal ? QSizePolicy::Expanding : QSizePolicy::Minimum);
        QCOMPARE(policy.verticalPolicy(), horizontal ? QSizePolicy::Minimum : QSizePolicy::Expanding);
    }
}

void FormTest::nestedLayouts()
{
    QCOMPARE(ui.gridLayout_20->count(), 2);
    QCOMPARE(ui.gridLayout_20->itemAtPosition(1, 0), ui.gridLayout_3);
    QCOMPARE(ui.gridLayout_3->count(), 4);
    QCOMPARE(ui.gridLayout_2->count(), 1);
    QCOMPARE(ui.gridLayout_2->itemAtPosition(0, 0), ui.gridLayout);

    // The row between the preview and the presets is empty on purpose.
    for (int column = 0; column < 3; ++column)
        QVERIFY(!ui.gridLayout_4->itemAtPosition(2, column));
    QCOMPARE(ui.gridLayout_4->rowCount(), 7);
}

void FormTest::tabs_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const TabRow &row : tabRows)
        QTest::newRow(row.name) << index++;
}

void FormTest::tabs()
{
    QFETCH(int, index);
    QCOMPARE(ui.tabs->count(), int(std::size(tabRows)));
    QCOMPARE(ui.tabs->currentIndex(), 0);
    const QWidget *page = ui.tabs->widget(index);
    QCOMPARE(page->objectName(), QString::fromLatin1(tabRows[index].name));
    QCOMPARE(page->metaObject()->className(), "QWidget");
    QCOMPARE(ui.tabs->tabText(index), QString::fromLatin1(tabRows[index].text));
}

void FormTest::fonts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("pointSize");

    // One that no widget has for its own: the others take it from the dialog.
    const int dialogPointSize = 13;
    const QMap<QString, int> ownSizes = {
        {"speedValue", 16},
        {"darknessValue", 16},
        {"copyrightLabel", 10},
        {"label", 9},
    };
    for (const WidgetRow &row : widgetRows)
        QTest::newRow(row.name) << QString(row.name) << ownSizes.value(row.name, dialogPointSize);
}

void FormTest::fonts()
{
    QFETCH(QString, name);
    QFont font = dialogWidget->font();
    font.setPointSize(13);
    dialogWidget->setFont(font);

    QTEST(child(name.toLatin1())->font().pointSize(), "pointSize");
    QVERIFY(!child(name.toLatin1())->font().bold());
}

void FormTest::labels_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<bool>("wordWrap");
    const QSet<QString> centred = {"copyrightLabel", "aboutVersionLabel", "aboutDateLabel", "aboutCopyrightLabel"};
    const QLabel plain;
    for (const WidgetRow &row : widgetRows) {
        if (qstrcmp(row.className, "QLabel") == 0) {
            const Qt::Alignment alignment = centred.contains(row.name) ? Qt::AlignCenter : plain.alignment();
            QTest::newRow(row.name) << QString(row.name) << int(alignment) << (qstrcmp(row.name, "label") == 0);
        }
    }
}

void FormTest::labels()
{
    QFETCH(QString, name);
    const auto *label = child<QLabel>(name.toLatin1());

    QTEST(int(label->alignment()), "alignment");
    QTEST(label->wordWrap(), "wordWrap");
}

void FormTest::groupBoxes_data()
{
    QTest::addColumn<QString>("name");
    for (const WidgetRow &row : widgetRows)
        if (qstrcmp(row.className, "QGroupBox") == 0)
            QTest::newRow(row.name) << QString(row.name);
}

void FormTest::groupBoxes()
{
    QFETCH(QString, name);
    const auto *box = child<QGroupBox>(name.toLatin1());

    QVERIFY(!box->isFlat());
    QCOMPARE(box->isCheckable(), box == ui.stockGroupBox);
    QCOMPARE(box->isChecked(), box == ui.stockGroupBox);
}

void FormTest::buttons_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isDefault");
    for (const WidgetRow &row : widgetRows)
        if (qstrcmp(row.className, "QPushButton") == 0)
            QTest::newRow(row.name) << QString(row.name) << (qstrcmp(row.name, "okButton") == 0);
}

// Enter is for the button on which the focus is, and for OK everywhere else.
void FormTest::buttons()
{
    QFETCH(QString, name);
    const auto *button = child<QPushButton>(name.toLatin1());

    QVERIFY(button->autoDefault());
    QTEST(button->isDefault(), "isDefault");
    QVERIFY(!button->isCheckable());
}

void FormTest::frame()
{
    QCOMPARE(ui.frame->frameShape(), QFrame::StyledPanel);
    QCOMPARE(ui.frame->frameShadow(), QFrame::Raised);

    // The preview is made to this size before the dialog is shown.
    QCOMPARE(ui.frame->size(), QSize(100, 100));
}

void FormTest::sliders_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");

    QTest::newRow("speed") << "speedSlider" << 1 << 3;
    QTest::newRow("darkness") << "darknessSlider" << 0 << 19;
}

void FormTest::sliders()
{
    QFETCH(QString, name);
    const auto *slider = child<QSlider>(name.toLatin1());

    QTEST(slider->minimum(), "minimum");
    QTEST(slider->maximum(), "maximum");
    QCOMPARE(slider->pageStep(), 1);
    QCOMPARE(slider->orientation(), Qt::Horizontal);
    QCOMPARE(slider->tickPosition(), QSlider::NoTicks);
    QCOMPARE(slider->tickInterval(), 0);
}

void FormTest::combos_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("maxVisibleItems");
    QTest::addColumn<int>("maxCount");
    const QComboBox plain;
    for (const char *name : {"preset0", "mediaType", "printMethod", "cut"})
        QTest::newRow(name) << QString(name) << plain.maxVisibleItems() << plain.maxCount();
    QTest::newRow("preset1") << "preset1" << 10 << 100;
}

void FormTest::combos()
{
    QFETCH(QString, name);
    const auto *combo = child<QComboBox>(name.toLatin1());

    QCOMPARE(combo->count(), 0);
    QCOMPARE(combo->currentIndex(), -1);
    QVERIFY(!combo->isEditable());
    QTEST(combo->maxVisibleItems(), "maxVisibleItems");
    QTEST(combo->maxCount(), "maxCount");
}

void FormTest::preset1RefusesMoreThanAHundred()
{
    for (int i = 0; i < 101; ++i)
        ui.preset1->addItem(QString::number(i));

    QCOMPARE(ui.preset1->count(), 100);
    QCOMPARE(ui.preset1->itemText(99), QStringLiteral("99"));
}

void FormTest::buddies_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("field");
    const QMap<QString, QString> fields = {
        {"widthLabel", "widthEdit"},
        {"heightLabel", "heightEdit"},
        {"presetLabel", "preset0"},
        {"presetListLabel", "preset1"},
        {"nameLabel", "nameEdit"},
        {"descriptionLabel", "descriptionEdit"},
        {"mediaTypeLabel", "mediaType"},
        {"gapSizeLabel", "gapSize"},
        {"gapOffsetLabel", "gapOffset"},
        {"printMethodLabel", "printMethod"},
        {"cutLabel", "cut"},
        {"feedLabel", "feed"},
        {"backLabel", "back"},
        {"overlapLabel", "overlap"},
        {"stopLabel", "stop"},
        {"startLabel", "start"},
        {"horizontalLabel", "horizontalEdit"},
        {"verticalLabel", "verticalEdit"},
    };
    for (auto it = fields.begin(); it != fields.end(); ++it)
        QTest::newRow(qPrintable(it.key())) << it.key() << it.value();
}

// A screen reader names the fields after their labels.
void FormTest::buddies()
{
    QFETCH(QString, label);
    QFETCH(QString, field);
    QCOMPARE(child<QLabel>(label.toLatin1())->buddy(), child(field.toLatin1()));
}

void FormTest::focusOrder()
{
    QStringList expected;
    for (const char *name : tabOrder)
        expected << QString::fromLatin1(name);

    QStringList actual;
    const QWidget *widget = ui.okButton;
    do {
        if (expected.contains(widget->objectName()))
            actual << widget->objectName();
        widget = widget->nextInFocusChain();
    } while (widget != ui.okButton);
    QCOMPARE(actual, expected);
}

// The tab order on each tab.
void FormTest::tabulator_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QStringList>("names");

    // The size fields, which have no place in the order that the form sets, keep theirs on top of the page.
    QTest::newRow("page setup") << 0 << QStringList{"stockGroupBox",    "widthEdit",
                                                    "heightEdit",       "portraitRadioButton",
                                                    "mirroredCheckBox", "inverseCheckBox",
                                                    "preset0",          "manageButton",
                                                    "speedSlider",      "darknessSlider"};
    QTest::newRow("presets") << 1 << QStringList{"presetNewButton", "presetUpdateButton", "presetDeleteButton",
                                                 "preset1",         "nameEdit",           "descriptionEdit"};
    QTest::newRow("stock") << 2 << QStringList{"printMethod", "mediaType", "gapSize", "gapOffset", "cut",
                                               "feed",        "back",      "overlap", "stop",      "start"};
    QTest::newRow("advanced") << 3
                              << QStringList{"jobStartRadioButton", "commandEdit", "horizontalEdit", "verticalEdit"};
    QTest::newRow("about") << 4 << QStringList{};
}

void FormTest::tabulator()
{
    QFETCH(int, tab);
    QFETCH(QStringList, names);
    ui.portraitRadioButton->setChecked(true);
    ui.jobStartRadioButton->setChecked(true);
    ui.tabs->setCurrentIndex(tab);
    dialogWidget->show();
    QVERIFY(QTest::qWaitForWindowActive(dialogWidget.get()));
    ui.okButton->setFocus();

    const QStringList buttons = {"okButton", "cancelButton", "applyButton", "helpButton", "qt_tabwidget_tabbar"};
    const QStringList expected = buttons + names + QStringList{"okButton"};
    QStringList actual = {QApplication::focusWidget()->objectName()};
    while (actual.size() < expected.size()) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        actual << QApplication::focusWidget()->objectName();
    }
    QCOMPARE(actual, expected);
}

void FormTest::slotsAreConnected()
{
    SlotDialog slotDialog;
    Ui_PrintPropertiesDialog form;
    form.setupUi(&slotDialog);
    QCOMPARE(slotDialog.calls, QStringList()); // the form itself triggers none

    form.okButton->click();
    form.darknessSlider->setValue(7);
    form.gapSize->setText("0.12");
    QCOMPARE(slotDialog.calls, QStringList({"ok", "darkness 7", "gap 0.12"}));
}

void FormTest::retranslate()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    ui.retranslateUi(dialogWidget.get());
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(dialogWidget->windowTitle(), MarkingTranslator::mark("PrintPropertiesDialog"));
    for (const WidgetRow &row : widgetRows) {
        const QWidget *widget = child(row.name);
        const QString text = widget->property(textProperty(widget)).toString();
        QCOMPARE(text, row.text ? MarkingTranslator::mark(row.text) : QString());
        QCOMPARE(widget->toolTip(), QString());
    }
    for (int i = 0; i < ui.tabs->count(); ++i)
        QCOMPARE(ui.tabs->tabText(i), MarkingTranslator::mark(tabRows[i].text));
}

// The dialog cannot be resized: at its initial size nothing may be squeezed.
void FormTest::fitsItsSize()
{
    const QSize needed = dialogWidget->minimumSizeHint();
    QVERIFY2(needed.width() <= 450, qPrintable(QString::number(needed.width())));
    QVERIFY2(needed.height() <= 489, qPrintable(QString::number(needed.height())));
}

PROPERTIESDIALOG_TEST_MAIN(FormTest)

#include "FormTest.moc"
