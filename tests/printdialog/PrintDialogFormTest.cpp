// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "TestMain.h"
#include "ui_PrintDialog.h"

#include <QAbstractButton>
#include <QDialog>
#include <QSignalSpy>
#include <QTranslator>

namespace {

// Shows context and source of every text.
class EchoTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QStringLiteral("%1/%2").arg(QString::fromUtf8(context), QString::fromUtf8(source));
    }
};

struct Cell
{
    const char *name;
    const char *type;
    const char *layout;
    int row;
    int column;
    int rowSpan;
    int columnSpan;
    const char *text; // null: it has none
};

// In the order of creation, which is also that of the focus.
constexpr Cell cells[] = {
    {"frame_0", "QFrame", "gridLayout_8", 0, 0, 1, 2, nullptr},
    {"lblPrintTitle", "QLabel", "gridLayout_7", 0, 0, 1, 1, "Print"},
    {"frame_1", "QFrame", "gridLayout_7", 1, 0, 1, 1, nullptr},
    {"lblPrinterName", "QLabel", "gridLayout_4", 0, 0, 1, 1, "Name:"},
    {"cboPrinterName", "QComboBox", "gridLayout_4", 0, 1, 1, 1, nullptr},
    {"propertiesButton_2", "QPushButton", "gridLayout_4", 0, 2, 1, 1, "Properties"},
    {"lblStatus", "QLabel", "gridLayout_4", 1, 0, 1, 1, "Status:"},
    {"lblStatusInfo", "QLabel", "gridLayout_4", 1, 1, 1, 1, "Ready"},
    {"chkDefaultPrinter", "QCheckBox", "gridLayout_4", 1, 2, 2, 1, "Use Default"},
    {"lblType", "QLabel", "gridLayout_4", 2, 0, 1, 1, "Type:"},
    {"lblTypeInfo", "QLabel", "gridLayout_4", 2, 1, 1, 1, "Vantry"},
    {"lblWhere", "QLabel", "gridLayout_4", 3, 0, 1, 1, "Where:"},
    {"lblLocation", "QLabel", "gridLayout_4", 3, 1, 1, 1, "Here"},
    {"chkPrintToFile", "QCheckBox", "gridLayout_4", 3, 2, 1, 1, "Print to file"},
    {"frame_2", "QFrame", "gridLayout_8", 1, 0, 1, 1, nullptr},
    {"frame_3", "QFrame", "gridLayout_6", 0, 0, 1, 1, nullptr},
    {"numCopiesLabel_2", "QLabel", "gridLayout_5", 0, 0, 1, 1, "Number of Copies:"},
    {"numCopies_2", "QSpinBox", "gridLayout_5", 0, 1, 1, 1, nullptr},
    {"yesButton_2", "QPushButton", "gridLayout_8", 2, 0, 1, 1, "OK"},
    {"noButton_2", "QPushButton", "gridLayout_8", 2, 1, 1, 1, "Cancel"},
    {"textLabel", "QLabel", "gridLayout", 0, 0, 1, 4, "Request Print Job Now"},
    {"numCopiesLabel", "QLabel", "gridLayout", 1, 0, 1, 2, "Number of Copies:"},
    {"numCopies", "QSpinBox", "gridLayout", 1, 2, 1, 2, nullptr},
    {"yesButton", "QPushButton", "gridLayout", 2, 0, 1, 1, "Yes"},
    {"noButton", "QPushButton", "gridLayout", 2, 1, 1, 1, "No"},
    {"propertiesButton", "QPushButton", "gridLayout", 2, 2, 1, 2, "Properties"},
};

} // namespace

// If this fails, the print dialog looks different: controls are moved, missing or in the wrong tab order.
class PrintDialogFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void dialogHasTitleAndSize();
    void objectNameIsGivenToANamelessDialogAlone();
    void iconComesFromTheHost();
    void pagesAreInOrder();
    void fullFormHasAFixedPlace();
    void layoutsAreNested_data();
    void layoutsAreNested();
    void widgetsAreInTheirCells_data();
    void widgetsAreInTheirCells();
    void nothingElseIsThere();
    void focusFollowsTheTable();
    void framesAreDrawn_data();
    void framesAreDrawn();
    void fontsAndSizes_data();
    void fontsAndSizes();
    void buttonsCloseTheDialog_data();
    void buttonsCloseTheDialog();
    void textsAreTranslatable_data();
    void textsAreTranslatable();

private:
    QWidget *widget(const QString &name) const { return dialog->findChild<QWidget *>(name); }
    QGridLayout *layout(const QString &name) const { return dialog->findChild<QGridLayout *>(name); }

    std::unique_ptr<QDialog> dialog;
    Ui_PrintDialog ui;
};

void PrintDialogFormTest::init()
{
    dialog = std::make_unique<QDialog>();
    ui.setupUi(dialog.get());
}

void PrintDialogFormTest::cleanup()
{
    dialog.reset();
}

void PrintDialogFormTest::dialogHasTitleAndSize()
{
    QCOMPARE(dialog->windowTitle(), QString("Print"));
    QCOMPARE(dialog->size(), QSize(462, 291));
}

void PrintDialogFormTest::objectNameIsGivenToANamelessDialogAlone()
{
    QCOMPARE(dialog->objectName(), QString("PrintDialog"));

    QDialog named;
    named.setObjectName("mine");
    Ui_PrintDialog other;
    other.setupUi(&named);
    QCOMPARE(named.objectName(), QString("mine"));
}

void PrintDialogFormTest::iconComesFromTheHost()
{
    const QSize size(16, 16);
    QVERIFY(!dialog->windowIcon().pixmap(size, QIcon::Normal, QIcon::Off).isNull());

    Q_CLEANUP_RESOURCE(hosticon);
    QDialog without;
    Ui_PrintDialog other;
    other.setupUi(&without);
    QVERIFY(without.windowIcon().pixmap(size).isNull());
    Q_INIT_RESOURCE(hosticon);
}

void PrintDialogFormTest::pagesAreInOrder()
{
    QCOMPARE(layout("gridLayout_3"), dialog->layout());
    QCOMPARE(layout("gridLayout_3")->count(), 1);
    QCOMPARE(layout("gridLayout_3")->itemAtPosition(0, 0)->widget(), ui.stackedWidget);
    QCOMPARE(ui.stackedWidget->minimumSize(), QSize(0, 0));
    QCOMPARE(ui.stackedWidget->count(), 2);
    QCOMPARE(ui.stackedWidget->widget(0)->objectName(), QString("page_SelectPrinter"));
    QCOMPARE(ui.stackedWidget->widget(1)->objectName(), QString("page_Simple"));
    QCOMPARE(ui.stackedWidget->currentIndex(), 1);
}

void PrintDialogFormTest::fullFormHasAFixedPlace()
{
    QVERIFY(!ui.page_SelectPrinter->layout());
    QCOMPARE(widget("layoutWidget")->parentWidget(), ui.page_SelectPrinter);
    QCOMPARE(widget("layoutWidget")->geometry(), QRect(10, 10, 326, 290));
    QCOMPARE(layout("gridLayout_8")->contentsMargins(), QMargins(0, 0, 0, 0));
}

void PrintDialogFormTest::layoutsAreNested_data()
{
    QTest::addColumn<QString>("layoutName");
    QTest::addColumn<QString>("widgetName");

    QTest::newRow("8") << "gridLayout_8"
                       << "layoutWidget";
    QTest::newRow("7") << "gridLayout_7"
                       << "frame_0";
    QTest::newRow("4") << "gridLayout_4"
                       << "frame_1";
    QTest::newRow("6") << "gridLayout_6"
                       << "frame_2";
    QTest::newRow("5") << "gridLayout_5"
                       << "frame_3";
    QTest::newRow("2") << "gridLayout_2"
                       << "page_Simple";
}

void PrintDialogFormTest::layoutsAreNested()
{
    QFETCH(QString, layoutName);
    QFETCH(QString, widgetName);

    QVERIFY(layout(layoutName));
    QCOMPARE(widget(widgetName)->layout(), layout(layoutName));
}

void PrintDialogFormTest::widgetsAreInTheirCells_data()
{
    QTest::addColumn<int>("index");

    int index = 0;
    for (const Cell &cell : cells)
        QTest::newRow(cell.name) << index++;
}

void PrintDialogFormTest::widgetsAreInTheirCells()
{
    QFETCH(int, index);
    const Cell &cell = cells[index];

    QWidget *found = widget(cell.name);
    QVERIFY(found);
    QCOMPARE(found->metaObject()->className(), cell.type);
    if (cell.text)
        QCOMPARE(found->property("text").toString(), QString(cell.text));
    QGridLayout *grid = layout(cell.layout);
    const int position = grid->indexOf(found);
    QVERIFY(position >= 0);
    int row = 0;
    int column = 0;
    int rowSpan = 0;
    int columnSpan = 0;
    grid->getItemPosition(position, &row, &column, &rowSpan, &columnSpan);
    QCOMPARE(row, cell.row);
    QCOMPARE(column, cell.column);
    QCOMPARE(rowSpan, cell.rowSpan);
    QCOMPARE(columnSpan, cell.columnSpan);
}

void PrintDialogFormTest::nothingElseIsThere()
{
    QStringList expected{"stackedWidget", "page_SelectPrinter", "layoutWidget", "page_Simple"};
    for (const Cell &cell : cells)
        expected << cell.name;
    QStringList found;
    for (const QWidget *child : dialog->findChildren<QWidget *>()) {
        const QString name = child->objectName();
        // A spin box and a stacked widget have nameless and "qt_" parts of their own.
        if (!name.isEmpty() && !name.startsWith("qt_"))
            found << name;
    }
    expected.sort();
    found.sort();
    QCOMPARE(found, expected);
    QCOMPARE(layout("gridLayout_2")->itemAtPosition(0, 0)->layout(), layout("gridLayout"));
    QCOMPARE(layout("gridLayout_2")->count(), 1);
}

void PrintDialogFormTest::focusFollowsTheTable()
{
    QStringList expected;
    for (const Cell &cell : cells)
        if (widget(cell.name)->focusPolicy() != Qt::NoFocus)
            expected << cell.name;
    QStringList found;
    for (QWidget *next = dialog->nextInFocusChain(); next != dialog.get(); next = next->nextInFocusChain())
        if (next->focusPolicy() != Qt::NoFocus && expected.contains(next->objectName()))
            found << next->objectName();
    QCOMPARE(found, expected);
}

void PrintDialogFormTest::framesAreDrawn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QFrame::Shape>("shape");

    QTest::newRow("0") << "frame_0" << QFrame::StyledPanel;
    QTest::newRow("1") << "frame_1" << QFrame::WinPanel;
    QTest::newRow("2") << "frame_2" << QFrame::StyledPanel;
    QTest::newRow("3") << "frame_3" << QFrame::WinPanel;
}

void PrintDialogFormTest::framesAreDrawn()
{
    QFETCH(QString, name);
    QFETCH(QFrame::Shape, shape);

    const auto *frame = dialog->findChild<QFrame *>(name);
    QCOMPARE(frame->frameShape(), shape);
    QCOMPARE(frame->frameShadow(), QFrame::Raised);
}

void PrintDialogFormTest::fontsAndSizes_data()
{
    widgetsAreInTheirCells_data();
}

void PrintDialogFormTest::fontsAndSizes()
{
    QFETCH(int, index);
    const QString name = cells[index].name;
    const QWidget *found = widget(name);

    const QStringList bold = {"lblPrintTitle", "textLabel"};
    QCOMPARE(found->font().bold(), bold.contains(name));
    QCOMPARE(found->font().pointSize(), name == "lblPrintTitle" ? 11 : dialog->font().pointSize());
    const QStringList tall = {"numCopies", "yesButton", "noButton", "propertiesButton"};
    QCOMPARE(found->minimumSize(), QSize(0, tall.contains(name) ? 27 : 0));
    QCOMPARE(found->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QVERIFY(found->isEnabled());
    if (const auto *label = qobject_cast<const QLabel *>(found))
        QCOMPARE(label->alignment(), name == "textLabel" ? Qt::AlignCenter : QLabel().alignment());
    if (const auto *button = qobject_cast<const QAbstractButton *>(found)) {
        QVERIFY(!button->isChecked());
        QVERIFY(button->icon().isNull());
    }
    if (const auto *list = qobject_cast<const QComboBox *>(found))
        QCOMPARE(list->count(), 0);
}

void PrintDialogFormTest::buttonsCloseTheDialog_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<int>("result");

    QTest::newRow("yes") << "yesButton" << true << 1;
    QTest::newRow("no") << "noButton" << true << 0;
    QTest::newRow("cancel") << "noButton_2" << true << 0;
    // The class that owns the form sets these.
    QTest::newRow("ok") << "yesButton_2" << false << -5;
    QTest::newRow("properties") << "propertiesButton" << false << -5;
    QTest::newRow("properties of the full form") << "propertiesButton_2" << false << -5;
}

void PrintDialogFormTest::buttonsCloseTheDialog()
{
    QFETCH(QString, name);
    QFETCH(bool, closes);
    QFETCH(int, result);

    dialog->setResult(-5);
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    dialog->findChild<QAbstractButton *>(name)->click();
    QCOMPARE(finished.count(), closes ? 1 : 0);
    QCOMPARE(dialog->result(), result);
}

void PrintDialogFormTest::textsAreTranslatable_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");

    for (const Cell &cell : cells)
        if (cell.text)
            QTest::newRow(cell.name) << cell.name << cell.text;
}

void PrintDialogFormTest::textsAreTranslatable()
{
    QFETCH(QString, name);
    QFETCH(QString, text);

    EchoTranslator translator;
    QCoreApplication::installTranslator(&translator);
    ui.retranslateUi(dialog.get());
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(widget(name)->property("text").toString(), "PrintDialog/" + text);
    QCOMPARE(dialog->windowTitle(), QString("PrintDialog/Print"));
}

PROPERTIESDIALOG_TEST_MAIN(PrintDialogFormTest)
#include "PrintDialogFormTest.moc"
