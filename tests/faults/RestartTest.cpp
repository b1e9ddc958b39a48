// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "CupsMembers.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/CupsSupport.h>

#include <QRandomGenerator>

#include <memory>

using namespace CupsMembers;

// If this fails, restarting the scheduler while a dialog is open crashes the host or gives wrong settings.
class RestartTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void member_data();
    void member();
    void constructorAndDestructor();
    void queueIsGone();
    void randomCalls();

private:
    PrivateScheduler scheduler;
    // By whether the PPD file was open before.
    Outcomes running[2];
    Outcomes killed[2];
    Outcomes restarted[2];
    Outcomes noPrinter;
    Outcomes noPpdFile; // but the same settings
};

void RestartTest::initTestCase()
{
    scheduler.addQueue("LP1", PrivateScheduler::samplePpd("every-option"), "First Printer");
    scheduler.addQueue("LP2", PrivateScheduler::samplePpd("label-300"), "Second Printer");
    scheduler.addQueue("LP3", QString(), "Raw Printer");
    for (const char *queue : {"LP1", "LP3"})
        scheduler.setUserOptions(queue, {"Darkness=5", "GapSize=4.5", "JobStart=begin", "Back=30"});
    QFile file(document());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("text\n") > 0);
    file.close();

    // An object for each row, made while the scheduler runs.
    CupsSupport cups[2];
    cups[1].setCurrentPrinter(0);
    QVERIFY(cups[1].getPpdFile());
    for (int isOpen = 0; isOpen < 2; ++isOpen)
        running[isOpen] = callEach(cups[isOpen]);
    noPpdFile = callEach(cups[0], [](CupsSupport &c) { c.setCurrentPrinter(2); });
    killScheduler(scheduler);
    noPrinter = callEach(cups[0], withoutPrinter);
    for (int isOpen = 0; isOpen < 2; ++isOpen)
        killed[isOpen] = callEach(cups[isOpen]);
    scheduler.start();
    for (int isOpen = 0; isOpen < 2; ++isOpen)
        restarted[isOpen] = callEach(cups[isOpen]);
}

void RestartTest::member_data()
{
    QTest::addColumn<QString>("name");
    for (const Member &member : all())
        QTest::newRow(member.name) << QString(member.name);
}

void RestartTest::member()
{
    QFETCH(QString, name);
    const QString none = noPrinter.value(name).result;
    QVERIFY(none != "crashed");
    for (int isOpen = 0; isOpen < 2; ++isOpen) {
        const QString correct = running[isOpen].value(name).result;
        QVERIFY(correct != "crashed");
        const QString found = killed[isOpen].value(name).result;
        QVERIFY2(found == correct || found == none || found == noPpdFile.value(name).result, qPrintable(found));
        QCOMPARE(restarted[isOpen].value(name).result, correct);
        // The PPD file that is open does not need the scheduler.
        if (isOpen && !name.startsWith("print") && name != "getDefaultPrinter")
            QCOMPARE(found, correct);
    }
}

void RestartTest::constructorAndDestructor()
{
    auto before = std::make_unique<CupsSupport>();
    QVERIFY(before->getPpdFile());
    killScheduler(scheduler);
    before.reset();
    auto between = std::make_unique<CupsSupport>();
    QCOMPARE(between->getDestCount(), 0);
    QVERIFY(!between->getPpdFile());
    scheduler.start();
    QCOMPARE(between->getDefaultPrinter(), 0);
    QCOMPARE(between->getDestCount(), 3);
    QVERIFY(between->getPpdFile());
}

// It comes back without the edited printer, whose settings are nevertheless saved for its return.
void RestartTest::queueIsGone()
{
    CupsSupport cups;
    cups.setCurrentPrinter(1);
    QCOMPARE(cups.getCurrentQueueName(), QString("LP2"));
    scheduler.removeQueue("LP2");
    killScheduler(scheduler);
    scheduler.start();
    for (const Outcomes &outcomes : {callEach(cups), callEach(cups, [](CupsSupport &c) { c.closePpdFile(); })})
        for (auto it = outcomes.begin(); it != outcomes.end(); ++it)
            QVERIFY2(it.value().result != "crashed", qPrintable(it.key()));
    cups.setDarkness(11);
    QCOMPARE(cups.setDests(), 0);
    QCOMPARE(cups.printFile(document(), "", "title", {}), 0);

    scheduler.addQueue("LP2", PrivateScheduler::samplePpd("label-300"), "Second Printer");
    CupsSupport after;
    after.setCurrentPrinter(1);
    QCOMPARE(after.getDarkness(), 11);
}

void RestartTest::randomCalls()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    bool isRunning = true;
    int changes = 0;
    CupsSupport cups;
    for (int i = 0; i < 500; ++i) {
        if (random.bounded(25) == 0) {
            isRunning ? killScheduler(scheduler) : scheduler.start();
            isRunning = !isRunning;
            ++changes;
        }
        all().at(random.bounded(int(all().size()))).call(cups);
    }
    qInfo("the scheduler was killed or started %d times", changes);
    if (!isRunning)
        scheduler.start();
    // One that broke off in the middle of an answer is left alone for a while.
    QTRY_COMPARE_WITH_TIMEOUT((cups.getDefaultPrinter(), cups.getDestCount()), 3, 15000);
    cups.setCurrentPrinter(0);
    QCOMPARE(cups.getCurrentQueueName(), QString("LP1"));
    QVERIFY(cups.getPpdFile());
    QCOMPARE(cups.setDests(), 0);
}

PROPERTIESDIALOG_TEST_MAIN(RestartTest)

#include "RestartTest.moc"
