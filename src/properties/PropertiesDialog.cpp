// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "PropertiesDialog.h"

#include "CupsSupport.h"
#include "PrintPropertiesDialog.h"

#include <QApplication>
#include <QPrinter>

#include <memory>

namespace {

// Whether an application object with windows can be made. Qt ends the process of a host that tries without.
bool hasDisplay()
{
    for (const char *variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    }
    return false;
}

int runDialog()
{
    QPrinter printer(QPrinter::ScreenResolution);
    CupsSupport cups;
    PrintPropertiesDialog dialog(nullptr, &printer, &cups);
    return dialog.exec();
}

} // namespace

int propertiesDialog()
{
    if (QCoreApplication::instance())
        return qobject_cast<QApplication *>(QCoreApplication::instance()) ? runDialog() : 0;
    if (!hasDisplay())
        return 0;

    int argc = 1;
    char name[] = "PropertiesDialog";
    char *argv[] = {name, nullptr};
    const QApplication application(argc, argv);
    return runDialog();
}
