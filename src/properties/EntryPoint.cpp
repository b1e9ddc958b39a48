// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/PropertiesDialog.h"

#include "cups/CupsSupport.h"
#include "host/HostLocale.h"
#include "host/PrinterProperties.h"
#include "host/Translation.h"
#include "host/WindowSystem.h"
#include "properties/PrintPropertiesDialog.h"

#include <QApplication>
#include <QPrintEngine>
#include <QPrinter>
#include <QThread>

#include <memory>
#include <optional>

namespace {

// The dialog of this queue; of the default printer if it is null.
int runDialog(const char *queue)
{
    // Nothing is printed with this printer object, so it only needs the name of the queue.
    const std::unique_ptr<QPrinter> printer = PrinterProperties::createWithoutRequests();
    CupsSupport cups;
    if (queue) {
        const int index = cups.getQueueIndex(QString::fromUtf8(queue));
        if (index < 0)
            return 0;
        cups.setCurrentPrinter(index);
    }
    printer->printEngine()->setProperty(QPrintEngine::PPK_PrinterName, cups.getCurrentQueueName());
    PrintPropertiesDialog dialog(nullptr, printer.get(), &cups);
    return dialog.exec();
}

// In an application that has windows, and in the thread that they belong to.
int runInApplicationOfHost(const char *queue)
{
    const auto *application = qobject_cast<QApplication *>(QCoreApplication::instance());
    if (!application || application->thread() != QThread::currentThread())
        return 0;
    const Translation translation(Translation::OwnTexts);
    return runDialog(queue);
}

int runInApplicationOfOurs(const char *queue)
{
    const QByteArray name("PropertiesDialog");
    HostLocale locale; // changed by any application object
    std::optional<WindowSystem::Platforms> platforms;
    {
        WindowSystem::Arguments arguments(name, {});
        const QCoreApplication withoutWindows(arguments.count(), arguments.values());
        platforms = WindowSystem::platforms();
    }
    if (!platforms)
        return 0;
    WindowSystem::Arguments arguments(name, platforms->names);
    const QApplication application(arguments.count(), arguments.values());
    platforms.reset();
    locale.restoreFormats();
    const Translation translation(Translation::AllTexts);
    return runDialog(queue);
}

int run(const char *queue)
{
    return QCoreApplication::instance() ? runInApplicationOfHost(queue) : runInApplicationOfOurs(queue);
}

} // namespace

int propertiesDialog()
{
    return run(nullptr);
}

int propertiesDialogFor(const char *queue)
{
    return queue && *queue ? run(queue) : 0;
}
