// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "DriverPpds.h"
#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <QValidator>

namespace {

// Everything that a form shows, a line for each widget.
QStringList seenIn(const QDialog &dialog)
{
    QStringList lines{dialog.windowTitle()};
    for (const QWidget *widget : dialog.findChildren<QWidget *>()) {
        if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"))
            continue;
        if (widget->isHidden()) // by itself, not by the tab that it is on
            continue;
        QString line = widget->objectName() + (widget->isEnabled() ? " enabled " : " disabled ") + widget->toolTip();
        if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
            QString accepted;
            for (const char *text : {"-300", "-150", "-2", "-0.5", "0.1", "0.5", "15", "120", "220", "1100"}) {
                QString copy = text;
                int position = 0;
                accepted += edit->validator() && edit->validator()->validate(copy, position) == QValidator::Acceptable
                                ? '1'
                                : '0';
            }
            line += ' ' + edit->text() + ' ' + edit->placeholderText() + ' ' + accepted;
        } else if (const auto *list = qobject_cast<const QComboBox *>(widget)) {
            for (int i = 0; i < list->count(); ++i)
                line += ' ' + list->itemText(i);
            line += ' ' + QString::number(list->currentIndex());
        } else if (const auto *slider = qobject_cast<const QSlider *>(widget)) {
            line += QString(" %1 %2 %3").arg(slider->minimum()).arg(slider->maximum()).arg(slider->value());
        } else if (widget->property("text").isValid()) {
            line += ' ' + widget->property("text").toString();
            line += widget->property("checked").toBool() ? " checked" : "";
        }
        lines << line;
    }
    lines.sort();
    return lines;
}

} // namespace

// If this fails, a dialog that the program keeps shows or saves something of the printer that it was opened for before.
class PropertiesDialogQueueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { clearHome(); }

    void turnedDialogIsLikeANewOne_data();
    void turnedDialogIsLikeANewOne();
    void presetsAreThoseOfTheQueue();

private:
    static void turn(OpenDialog &open, const QString &queue);

    PrivateScheduler scheduler;
    DriverPpds drivers;
};

void PropertiesDialogQueueTest::initTestCase()
{
    scheduler.addQueue("LP1", PrivateScheduler::samplePpd("label-203"));
    scheduler.addQueue("LP-ORCA", PrivateScheduler::samplePpd("label-300"));
    scheduler.addQueue("Zebra", drivers.ppd("zebra"));
    scheduler.addQueue("Office", drivers.ppd("laserjet"));
    scheduler.setServerDefault("LP1");
}

void PropertiesDialogQueueTest::turn(OpenDialog &open, const QString &queue)
{
    selectQueue(open.cups, queue);
    open.printer->setPrinterName(queue);
    QCOMPARE(open.printer->printerName(), queue);
}

void PropertiesDialogQueueTest::turnedDialogIsLikeANewOne_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");

    const QStringList queues{"LP1", "LP-ORCA", "Zebra", "Office"};
    for (const QString &from : queues)
        for (const QString &to : queues)
            if (from != to)
                QTest::addRow("%s to %s", qPrintable(from), qPrintable(to)) << from << to;
}

void PropertiesDialogQueueTest::turnedDialogIsLikeANewOne()
{
    QFETCH(QString, from);
    QFETCH(QString, to);

    OpenDialog turned(from);
    turned.dialog.show();
    turned.dialog.hide();
    turn(turned, to);
    turned.dialog.show();
    OpenDialog fresh(to);
    fresh.dialog.show();
    QCOMPARE(seenIn(turned.dialog), seenIn(fresh.dialog));
    QVERIFY(!turned.isChanged());
}

void PropertiesDialogQueueTest::presetsAreThoseOfTheQueue()
{
    OpenDialog open("LP-ORCA");
    open.dialog.show();
    open.click("presetNewButton");
    open.click("okButton");
    turn(open, "LP1");
    open.dialog.show();
    const int presets = open.list("preset1")->count();
    open.slide("darknessSlider", 3);
    open.click("okButton");
    QCOMPARE(presets, 2); // those that every printer has
    QVERIFY(QFile::exists(homePath(".cups/LP-ORCA/Preset.sh")));
    QVERIFY(QFile::exists(homePath(".cups/LP1/_current.sh")));
    QVERIFY(!QFile::exists(homePath(".cups/LP1/Preset.sh")));
    QVERIFY(!storedOptions("LP-ORCA").contains("Darkness"));
    QCOMPARE(storedOptions("LP1").value("Darkness"), QByteArray("3"));
}

PROPERTIESDIALOG_TEST_MAIN(PropertiesDialogQueueTest)
#include "PropertiesDialogQueueTest.moc"
