// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// Opens the properties dialog of the default printer and prints what propertiesDialog() returned.
//
//   properties-demo                  leaves the dialog to the user
//   properties-demo --edit           changes settings and presses OK
//   properties-demo --check FOLDER   checks that they are shown, saves pictures of all tabs, and presses Cancel

#include "Driver.h"

#include <PropertiesDialog/PropertiesDialog.h>

#include <QApplication>
#include <QTimer>

#include <cstdio>

namespace {

int open()
{
    const int result = propertiesDialog();
    std::printf("propertiesDialog() returned %d.\n", result);
    return result;
}

} // namespace

int main(int argc, char *argv[])
{
    const QString mode = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    if (mode.isEmpty())
        return open() == 1 ? 0 : 1;

    QApplication application(argc, argv);
    if (mode == QLatin1String("--edit")) {
        QTimer::singleShot(0, [] { Driver().edit(); });
        return open() == 1 ? 0 : 1;
    }
    if (mode == QLatin1String("--check") && argc > 2) {
        bool good = false;
        QTimer::singleShot(0, [&good, folder = QString::fromLocal8Bit(argv[2])] {
            Driver driver;
            good = driver.check();
            driver.takeScreenshots(folder);
            driver.cancel();
        });
        return open() == 0 && good ? 0 : 1;
    }
    std::fprintf(stderr, "usage: properties-demo [--edit | --check FOLDER]\n");
    return 2;
}
