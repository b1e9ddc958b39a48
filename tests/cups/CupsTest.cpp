// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "CupsTest.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <clocale>

std::unique_ptr<CupsSupport> CupsTest::supportFor(int printer)
{
    auto cups = std::make_unique<CupsSupport>();
    cups->setCurrentPrinter(printer);
    return cups;
}

QString CupsTest::optionsPath()
{
    return QDir::homePath() + "/.cups/lpoptions";
}

QByteArray CupsTest::readOptionsFile()
{
    QFile file(optionsPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void CupsTest::writeOptionsFile(const QByteArray &content)
{
    QDir::home().mkdir(".cups");
    QFile file(optionsPath());
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(optionsPath()));
}

QByteArray CupsTest::saved(const CupsSupport &cups, const char *keyword)
{
    const cups_option_t *option = cups.printerOption(QString::fromLatin1(keyword));
    return option != nullptr ? QByteArray(option->value) : QByteArray();
}

void CupsTest::setPpdDefault(const CupsSupport &cups, const char *keyword, const QByteArray &choice)
{
    ppd_option_t *option = cups.ppdOption(keyword);
    if (option == nullptr)
        qFatal("the PPD file has no %s", keyword);
    qstrncpy(option->defchoice, choice.constData(), sizeof option->defchoice);
}

int CupsTest::destCount()
{
    cups_dest_t *dests = nullptr;
    const int count = cupsGetDests(&dests);
    cupsFreeDests(count, dests);
    return count;
}

void CupsTest::initTestCase()
{
    // Otherwise the run in another locale would prove nothing.
    QCOMPARE(QByteArray(localeconv()->decimal_point), QByteArray(qgetenv("LC_ALL").startsWith("de_DE") ? "," : "."));

    scheduler = std::make_unique<PrivateScheduler>();
    scheduler->addQueue("LP1", PrivateScheduler::samplePpd("every-option"), "First Printer", "Desk");
    scheduler->addQueue("LP2", PrivateScheduler::samplePpd("label-300"), "Second Printer");
    scheduler->addQueue("LP3", QString(), "Raw Printer");
    QCOMPARE(destCount(), 3);
}

void CupsTest::init()
{
    QDir(QDir::homePath() + "/.cups").removeRecursively();
}

void CupsTest::cleanupTestCase()
{
    scheduler.reset();
}
