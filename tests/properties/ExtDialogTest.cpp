// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include <PropertiesDialog/ExtDialog.h>

#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"
#include "Wheel.h"

#include <QDialogButtonBox>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTimer>

#include <memory>

Q_DECLARE_METATYPE(QDialogButtonBox::StandardButton)

namespace {

constexpr int initialResult = -5;

QByteArray savedFile()
{
    return fileContent(homePath(".cups/lpoptions"));
}

} // namespace

// If this fails, the offset dialog shows or stores another offset than the one chosen.
class ExtDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void slotsAreInOrder();
    void windowHasATitleBarOnly();
    void widgetsAreInPlace_data();
    void widgetsAreInPlace();
    void itemsLineUp();
    void textsAreTranslated();

    void storedOffsetIsChosen_data();
    void storedOffsetIsChosen();
    void chosenOffsetIsWritten_data();
    void chosenOffsetIsWritten();
    void offsetBetweenStepsIsSnappedTowardsZero();
    void unknownOffsetIsNotOverwritten_data();
    void unknownOffsetIsNotOverwritten();
    void unchangedOffsetIsWrittenAgain();
    void resolutionIsReadAgainOnOk();
    void rejectingWritesNothing_data();
    void rejectingWritesNothing();
    void slotsAloneDoTheWholeWork_data();
    void slotsAloneDoTheWholeWork();
    void execEnds_data();
    void execEnds();
    void wheelNeedsTheFocus();
    void opensWithoutAPrinter();

private:
    // A dialog for a queue that has this offset saved.
    void makeDialog(const QString &queue, int offset);
    QComboBox *list() const { return dialog->findChild<QComboBox *>("offset"); }
    QPushButton *button(QDialogButtonBox::StandardButton which) const
    {
        return dialog->findChild<QDialogButtonBox *>("buttonBox")->button(which);
    }

    PrivateScheduler scheduler;
    std::unique_ptr<CupsSupport> cups;
    std::unique_ptr<ExtDialog> dialog;
};

void ExtDialogTest::initTestCase()
{
    const QString label = PrivateScheduler::samplePpd("label-203");
    const auto withResolution = [&](const QByteArray &resolution) {
        return scheduler.editedPpd(label, {{"*DefaultResolution: 203dpi", "*DefaultResolution: " + resolution}});
    };
    scheduler.addQueue("dpi203", label);
    scheduler.addQueue("dpi203h", withResolution("203x300dpi"));
    scheduler.addQueue("dpi203v", withResolution("300x203dpi"));
    scheduler.addQueue("dpi203half", withResolution("203x203.5dpi"));
    scheduler.addQueue("dpi300", PrivateScheduler::samplePpd("label-300"));
    scheduler.addQueue("none", PrivateScheduler::samplePpd("few-options")); // declares no resolution
    scheduler.setServerDefault("dpi203");
}

void ExtDialogTest::init()
{
    QFile::remove(QDir::homePath() + "/.cups/lpoptions");
    dialog.reset();
    cups = std::make_unique<CupsSupport>();
}

void ExtDialogTest::makeDialog(const QString &queue, int offset)
{
    dialog.reset();
    if (cups->getCurrentQueueName() != queue)
        selectQueue(*cups, queue);
    QCOMPARE(cups->setExtendedOffset(offset), 0);
    QCOMPARE(cups->getExtendedOffset(), offset);
    dialog = std::make_unique<ExtDialog>(nullptr, cups.get());
    dialog->setResult(initialResult);
}

void ExtDialogTest::slotsAreInOrder()
{
    const QMetaObject &meta = ExtDialog::staticMetaObject;
    QCOMPARE(meta.className(), "ExtDialog");
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        names << meta.method(i).methodSignature();
    }
    QCOMPARE(names, QStringList({"on_buttonBox_accepted()", "on_buttonBox_rejected()"}));
}

void ExtDialogTest::windowHasATitleBarOnly()
{
    QWidget parent;
    const ExtDialog form(&parent, cups.get());
    QCOMPARE(form.parentWidget(), &parent);
    QCOMPARE(form.windowFlags(), Qt::Dialog | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint);
    QCOMPARE(form.windowTitle(), QString("Select Extended Print Offset"));
    QCOMPARE(form.objectName(), QString("ExtDialog"));
    QCOMPARE(form.minimumSize(), QSize(280, 90));
    QCOMPARE(form.maximumSize(), QSize(280, 90));
    QVERIFY(!form.layout());
}

void ExtDialogTest::widgetsAreInPlace_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QRect>("geometry");

    QTest::newRow("buttons") << "buttonBox"
                             << "QDialogButtonBox" << QRect(100, 50, 171, 31);
    QTest::newRow("list") << "offset"
                          << "QComboBox" << QRect(100, 10, 171, 31);
    QTest::newRow("label") << "offsetLabel"
                           << "QLabel" << QRect(10, 10, 91, 31);
}

void ExtDialogTest::widgetsAreInPlace()
{
    QFETCH(QString, name);
    QFETCH(QString, type);
    QFETCH(QRect, geometry);

    makeDialog("dpi203", 0);
    const auto *widget = dialog->findChild<QWidget *>(name);
    QVERIFY(widget);
    QCOMPARE(widget->parentWidget(), dialog.get());
    QCOMPARE(QString(widget->metaObject()->className()), type);
    QCOMPARE(widget->geometry(), geometry);
    QCOMPARE(dialog->findChild<QLabel *>("offsetLabel")->text(), QString("Offset:"));
    const auto *buttons = dialog->findChild<QDialogButtonBox *>();
    QCOMPARE(buttons->orientation(), Qt::Horizontal);
    QCOMPARE(buttons->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void ExtDialogTest::itemsLineUp()
{
    makeDialog("dpi203", 0);
    QStringList items;
    for (int i = 0; i < list()->count(); ++i) {
        items << list()->itemText(i);
        QVERIFY(list()->itemIcon(i).isNull());
        QVERIFY(!list()->itemData(i).isValid());
    }
    QCOMPARE(items, QStringList({"-0.75mm", "-0.50mm", "-0.25mm", " 0.00mm", " 0.25mm", " 0.50mm", " 0.75mm"}));
}

void ExtDialogTest::textsAreTranslated()
{
    makeDialog("dpi203", 2);
    auto translator = std::make_unique<MarkingTranslator>();
    QCoreApplication::processEvents(); // the change of language is posted
    QCOMPARE(dialog->windowTitle(), QString("ExtDialog: Select Extended Print Offset"));
    QCOMPARE(dialog->findChild<QLabel *>("offsetLabel")->text(), QString("ExtDialog: Offset:"));
    QCOMPARE(list()->itemText(0), QString("ExtDialog: -0.75mm"));
    QCOMPARE(list()->itemText(6), QString("ExtDialog:  0.75mm"));
    QCOMPARE(list()->currentIndex(), 4);

    const ExtDialog late(nullptr, cups.get());
    translator.reset();
    QCOMPARE(late.findChild<QComboBox *>("offset")->itemText(0), QString("ExtDialog: -0.75mm"));
    QCoreApplication::processEvents();
    QCOMPARE(dialog->windowTitle(), QString("Select Extended Print Offset"));
    QCOMPARE(list()->itemText(3), QString(" 0.00mm"));
}

void ExtDialogTest::storedOffsetIsChosen_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("index"); // -1: nothing

    const QMap<int, int> smallSteps{{-6, 0},  {-4, 1}, {-2, 2},   {0, 3},    {2, 4}, {4, 5}, {6, 6}, // the steps
                                    {-7, 0},  {-5, 1}, {-3, 2},   {-1, 3},   {1, 3}, {3, 4}, {5, 5}, {7, 6}, // between
                                    {-8, -1}, {8, -1}, {100, -1}, {-100, -1}}; // beyond
    const QMap<int, int> largeSteps{{-9, 0},  {-6, 1},   {-3, 2},  {0, 3},    {3, 4},    {6, 5},  {9, 6},
                                    {-11, 0}, {-8, 1},   {-7, 1},  {-5, 2},   {-4, 2},   {-2, 3}, {-1, 3},
                                    {1, 3},   {2, 3},    {4, 4},   {5, 4},    {7, 5},    {8, 5},  {10, 6},
                                    {11, 6},  {-12, -1}, {12, -1}, {100, -1}, {-100, -1}};
    // The vertical resolution decides, and only 203 exactly has the small steps.
    const QMap<QString, QMap<int, int>> queues{{"dpi203", smallSteps},  {"dpi203v", smallSteps},
                                               {"dpi203h", largeSteps}, {"dpi203half", largeSteps},
                                               {"dpi300", largeSteps},  {"none", largeSteps}};
    for (auto queue = queues.begin(); queue != queues.end(); ++queue)
        for (auto step = queue->begin(); step != queue->end(); ++step)
            QTest::addRow("%s %d", qPrintable(queue.key()), step.key()) << queue.key() << step.key() << step.value();
}

void ExtDialogTest::storedOffsetIsChosen()
{
    QFETCH(QString, queue);
    QFETCH(int, offset);
    QFETCH(int, index);

    makeDialog(queue, offset);
    QCOMPARE(list()->currentIndex(), index);
}

void ExtDialogTest::chosenOffsetIsWritten_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("saved"); // the backfeed; null when it is the default and so not saved

    // No offset is a backfeed of 12 dots at 203 dpi and of 2 dots otherwise, which is also what the PPD files declare.
    for (int index = 0; index < 7; ++index) {
        const int k = index - 3;
        const auto saved = [k](int backfeed) { return k == 0 ? QByteArray() : "Back=" + QByteArray::number(backfeed); };
        QTest::addRow("203 dpi, %d", index) << "dpi203" << index << 2 * k << saved(2 * k + 12);
        QTest::addRow("300 dpi, %d", index) << "dpi300" << index << 3 * k << saved(3 * k + 2);
    }
}

void ExtDialogTest::chosenOffsetIsWritten()
{
    QFETCH(QString, queue);
    QFETCH(int, index);
    QFETCH(int, offset);
    QFETCH(QByteArray, saved);

    makeDialog(queue, 1);
    list()->setCurrentIndex(index);
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    button(QDialogButtonBox::Ok)->click();
    QCOMPARE(dialog->result(), 1);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(cups->getExtendedOffset(), offset);

    const QByteArray file = savedFile();
    QCOMPARE(file.contains("Back="), !saved.isNull());
    QVERIFY2(saved.isNull() || file.contains(queue.toUtf8() + ' ' + saved + '\n'), file.constData());
    // What was saved is what another run of the program finds.
    const int dest = cups->getCurrentIndex();
    dialog.reset();
    cups = std::make_unique<CupsSupport>();
    cups->setCurrentPrinter(dest);
    QCOMPARE(cups->getExtendedOffset(), offset);
}

void ExtDialogTest::offsetBetweenStepsIsSnappedTowardsZero()
{
    makeDialog("dpi300", -4);
    QCOMPARE(list()->currentText(), QString("-0.25mm"));
    button(QDialogButtonBox::Ok)->click();
    QCOMPARE(cups->getExtendedOffset(), -3);
}

void ExtDialogTest::unknownOffsetIsNotOverwritten_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<int>("offset");

    QTest::newRow("203 dpi, above") << "dpi203" << 8;
    QTest::newRow("203 dpi, below") << "dpi203" << -8;
    QTest::newRow("300 dpi, above") << "dpi300" << 12;
    QTest::newRow("300 dpi, below") << "dpi300" << -12;
}

void ExtDialogTest::unknownOffsetIsNotOverwritten()
{
    QFETCH(QString, queue);
    QFETCH(int, offset);

    makeDialog(queue, offset);
    QCOMPARE(list()->currentIndex(), -1);
    QFile::remove(QDir::homePath() + "/.cups/lpoptions");
    button(QDialogButtonBox::Ok)->click();
    QCOMPARE(dialog->result(), 1);
    QCOMPARE(cups->getExtendedOffset(), offset);
    QCOMPARE(savedFile(), QByteArray());
}

void ExtDialogTest::unchangedOffsetIsWrittenAgain()
{
    makeDialog("dpi203", 0);
    cups->setOptions({"Darkness", "3"}); // what is saved with it
    QVERIFY(!savedFile().contains("Darkness=3"));
    button(QDialogButtonBox::Ok)->click();
    QCOMPARE(cups->getExtendedOffset(), 0);
    QVERIFY(savedFile().contains("dpi203 Darkness=3\n"));
}

void ExtDialogTest::resolutionIsReadAgainOnOk()
{
    makeDialog("dpi203", 2);
    QCOMPARE(list()->currentIndex(), 4);
    scheduler.setPpd("dpi203", PrivateScheduler::samplePpd("label-300"));
    cups->closePpdFile();
    button(QDialogButtonBox::Ok)->click();
    scheduler.setPpd("dpi203", PrivateScheduler::samplePpd("label-203"));
    QCOMPARE(cups->getExtendedOffset(), 3);
}

void ExtDialogTest::rejectingWritesNothing_data()
{
    QTest::addColumn<bool>("byEscape");

    QTest::newRow("cancel") << false;
    QTest::newRow("escape") << true;
}

void ExtDialogTest::rejectingWritesNothing()
{
    QFETCH(bool, byEscape);

    makeDialog("dpi203", 2);
    const QByteArray before = savedFile();
    QVERIFY(before.contains("Back=14"));
    list()->setCurrentIndex(0);
    if (byEscape)
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
    else
        button(QDialogButtonBox::Cancel)->click();
    QCOMPARE(dialog->result(), 0);
    QCOMPARE(cups->getExtendedOffset(), 2);
    QCOMPARE(savedFile(), before);
}

// The buttons call both the slots of the dialog and those of every QDialog; each of them does the whole work.
void ExtDialogTest::slotsAloneDoTheWholeWork_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("offset");

    QTest::newRow("accepted") << QByteArray("on_buttonBox_accepted") << 1 << -6;
    QTest::newRow("rejected") << QByteArray("on_buttonBox_rejected") << 0 << 2;
}

void ExtDialogTest::slotsAloneDoTheWholeWork()
{
    QFETCH(QByteArray, slot);
    QFETCH(int, result);
    QFETCH(int, offset);

    makeDialog("dpi203", 2);
    dialog->show();
    list()->setCurrentIndex(0);
    QVERIFY(QMetaObject::invokeMethod(dialog.get(), slot.constData()));
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), result);
    QCOMPARE(cups->getExtendedOffset(), offset);
}

void ExtDialogTest::execEnds_data()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("which");
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("ok") << QDialogButtonBox::Ok << 1 << true;
    QTest::newRow("cancel") << QDialogButtonBox::Cancel << 0 << false;
}

void ExtDialogTest::execEnds()
{
    QFETCH(QDialogButtonBox::StandardButton, which);
    QFETCH(int, result);
    QFETCH(bool, accepted);

    makeDialog("dpi203", 2);
    QSignalSpy acceptedSpy(dialog.get(), &QDialog::accepted);
    QSignalSpy rejectedSpy(dialog.get(), &QDialog::rejected);
    QTimer::singleShot(0, dialog.get(), [&] { button(which)->click(); });
    QCOMPARE(dialog->exec(), result);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(acceptedSpy.count(), accepted ? 1 : 0);
    QCOMPARE(rejectedSpy.count(), accepted ? 0 : 1);
}

void ExtDialogTest::wheelNeedsTheFocus()
{
    makeDialog("dpi203", 0);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    button(QDialogButtonBox::Ok)->setFocus();
    turnWheel(list());
    QCOMPARE(list()->currentText(), QString(" 0.00mm"));
    QVERIFY(!list()->hasFocus());
    list()->setFocus();
    turnWheel(list());
    QCOMPARE(list()->currentText(), QString(" 0.25mm"));
}

void ExtDialogTest::opensWithoutAPrinter()
{
    cups->setCurrentPrinter(-1);
    dialog = std::make_unique<ExtDialog>(nullptr, cups.get());
    // Without a backfeed the offset is -2, which is no whole step of 3.
    QCOMPARE(list()->currentIndex(), 3);
    button(QDialogButtonBox::Ok)->click();
    QCOMPARE(dialog->result(), 1);
    QCOMPARE(savedFile(), QByteArray());
}

PROPERTIESDIALOG_TEST_MAIN(ExtDialogTest)
#include "ExtDialogTest.moc"
