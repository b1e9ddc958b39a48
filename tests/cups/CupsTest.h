// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef CUPSTEST_H
#define CUPSTEST_H

#include "PrivateScheduler.h"

#include <PropertiesDialog/CupsSupport.h>

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <cups/cups.h>
#include <cups/ppd.h>

#include <memory>

// The PPD interface is deprecated as a whole; label printers have nothing else yet.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

/**
 * Base of the tests of CupsSupport: a scheduler with three printers and no default, and an options file
 * that does not exist when a test function begins.
 *
 *   LP1    every-option, described as "First Printer"
 *   LP2    label-300, described as "Second Printer"
 *   LP3    no PPD file, described as "Raw Printer"
 */
class CupsTest : public QObject
{
    Q_OBJECT

protected:
    enum Printer {
        LP1,
        LP2,
        LP3
    };

    /** A new object with this printer current. */
    static std::unique_ptr<CupsSupport> supportFor(int printer);

    static QString optionsPath();
    static QByteArray readOptionsFile();
    static void writeOptionsFile(const QByteArray &content);

    /** The value of a saved option of the current printer; null when it is not saved. */
    static QByteArray saved(const CupsSupport &cups, const char *keyword);

    /** Changes the default choice of an option in the open PPD file, until that is closed. */
    static void setPpdDefault(const CupsSupport &cups, const char *keyword, const QByteArray &choice);

    /** How many printers, or instances of them, the user has. */
    static int destCount();

    std::unique_ptr<PrivateScheduler> scheduler;

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();
};

#endif
