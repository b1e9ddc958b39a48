// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/PropertiesDialog.h"

#include "cups/CupsSupport.h"
#include "cups/Scheduler.h"
#include "properties/PrintPropertiesDialog.h"
#include "properties/Translation.h"

#include <QApplication>
#include <QPrintEngine>
#include <QPrinter>

#include <optional>

namespace {

// Whether an application object with windows can be made. Qt ends the process of a host that tries without.
bool hasDisplay()
{
    for (const char *variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    return false;
}

int runDialog()
{
    const Translation translation;
    // Qt would ask the scheduler for all destinations and the PPD file once more, and wait for it without a limit. Nothing
    // is printed with this printer object: of its queue it only has to know the name.
    std::optional<QPrinter> printer;
    Scheduler::callWithoutScheduler([&printer] { printer.emplace(QPrinter::ScreenResolution); });
    CupsSupport cups;
    printer->printEngine()->setProperty(QPrintEngine::PPK_PrinterName, cups.getCurrentQueueName());
    PrintPropertiesDialog dialog(nullptr, &*printer, &cups);
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
