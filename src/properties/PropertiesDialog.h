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
 * May be called by any program, from its main thread. Where there is no QApplication yet, one is made for the time of
 * the call, so that a host needs no Qt code at all.
 *
 * Its texts are in the language of the default locale unless the host has installed translations of its own.
 *
 * @return 1 after OK; 0 after Cancel or closing the window. 0 as well, without a dialog, where none can be shown: in a
 *         process whose application object has no windows (QCoreApplication, QGuiApplication), or without a display.
 */
PROPERTIESDIALOG_EXPORT int propertiesDialog(void);

#ifdef __cplusplus
}
#endif

#endif
