// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef ALLDIALOGS_H
#define ALLDIALOGS_H

#include "OpenDialog.h"
#include "widgets/PasswordDialog.h"

#include <PropertiesDialog/ExtDialog.h>
#include <PropertiesDialog/PrintDialog.h>

#include <memory>

/** Every dialog of the library for one queue; hidden when created. */
struct AllDialogs
{
    explicit AllDialogs(const QString &queue)
    {
        selectQueue(cups, queue);
        printer.setPrinterName(queue);
        create();
    }

    /** Replaces the dialogs by new ones, in the current language. */
    void create()
    {
        properties = std::make_unique<PrintPropertiesDialog>(nullptr, &printer, &cups);
        print = std::make_unique<PrintDialog>(nullptr, &printer, &cups);
        question = std::make_unique<PrintDialog>(nullptr);
        offset = std::make_unique<ExtDialog>(nullptr, &cups);
        password = std::make_unique<PasswordDialog>(nullptr, "user", true);
    }

    /** All of them, by a name for test rows and messages. */
    QMap<QString, QDialog *> byName() const
    {
        return {{"properties", properties.get()},
                {"print", print.get()},
                {"question", question.get()},
                {"offset", offset.get()},
                {"password", password.get()}};
    }

    QPrinter printer{QPrinter::ScreenResolution};
    CupsSupport cups;
    std::unique_ptr<PrintPropertiesDialog> properties;
    std::unique_ptr<PrintDialog> print;
    std::unique_ptr<PrintDialog> question; ///< The short form, which asks whether to change the printer.
    std::unique_ptr<ExtDialog> offset;
    std::unique_ptr<PasswordDialog> password;
};

#endif
