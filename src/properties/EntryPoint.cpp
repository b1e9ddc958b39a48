// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/PropertiesDialog.h"

#include "cups/CupsSupport.h"
#include "cups/Scheduler.h"
#include "properties/PrintPropertiesDialog.h"
#include "properties/Translation.h"

#include <QApplication>
#include <QPrinter>
#include <QPrinterInfo>

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
    // The printer object is destroyed last but made after the other, whose waits for the scheduler have a limit: QPrinter's
    // have none. It is kept from a scheduler that does not answer, and then prints to PDF.
    std::optional<QPrinter> printer;
    CupsSupport cups;
    if (SchedulerConnection::isSilent()) {
        const SchedulerOutOfReach guard;
        printer.emplace(QPrinter::ScreenResolution);
    } else {
        // Told which printer is meant, it does not fetch all destinations once more to find the default one.
        printer.emplace(QPrinterInfo::printerInfo(cups.getCurrentQueueName()), QPrinter::ScreenResolution);
    }
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
