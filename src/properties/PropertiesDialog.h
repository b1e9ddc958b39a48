/* SPDX-FileCopyrightText: 2026 The PropertiesDialog authors */
/* SPDX-License-Identifier: MIT */

#ifndef PROPERTIESDIALOG_H
#define PROPERTIESDIALOG_H

#include <PropertiesDialog/propertiesdialog_export.h>
#include <PropertiesDialog/propertiesdialog_version.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Opens the properties dialog of the default printer and waits until the user closes it.
 *
 * May be called by any program, from its main thread. If there is no QApplication yet, one is created for the duration
 * of the call, so a host needs no Qt code. The host's locale (setlocale()) is restored at the end.
 *
 * Texts are in the user's language unless the host has installed translations of its own.
 *
 * @return 1 after OK; 0 after Cancel or closing the window. Also 0, without a dialog, if none can be shown: without a
 *         display that can be reached or a Qt platform plug-in for it, in a process whose application object has no
 *         windows (QCoreApplication, QGuiApplication), or in another thread than that of the QApplication.
 */
PROPERTIESDIALOG_EXPORT int propertiesDialog(void);

/**
 * The same for a queue instead of the default printer.
 *
 * @param queue the name of a queue, "QUEUE" or "QUEUE/INSTANCE", in UTF-8.
 * @return as propertiesDialog(); also 0, without a dialog, if @p queue is null or empty or there is no such queue.
 */
PROPERTIESDIALOG_EXPORT int propertiesDialogFor(const char *queue);

#ifdef __cplusplus
}
#endif

#endif
