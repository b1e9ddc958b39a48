// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// A host built against an installed prefix: uses each public class, and lets the properties dialog open and close.

#include <PropertiesDialog/CupsSupport.h>
#include <PropertiesDialog/ExtDialog.h>
#include <PropertiesDialog/Preset.h>
#include <PropertiesDialog/Presets.h>
#include <PropertiesDialog/PrintDialog.h>
#include <PropertiesDialog/PrintPropertiesDialog.h>
#include <PropertiesDialog/PropertiesDialog.h>

#include <QApplication>
#include <QPrinter>
#include <QTimer>

#include <cstdio>

namespace {

int failures = 0;

void check(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "wrong: %s\n", what);
        ++failures;
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    CupsSupport cups;
    check(cups.getDarkness() == 7, "darkness without a printer");

    QPrinter printer;
    PrintPropertiesDialog properties(nullptr, &printer, &cups);
    properties.setOrientation(QPageLayout::Landscape);
    check(properties.cups_orientation() == CupsSupport::Landscape, "orientation");

    PrintDialog print(nullptr, &printer, &cups);
    print.setNumCopies(3);
    check(print.numCopies() == 3, "copies");

    ExtDialog offset(nullptr, &cups);
    check(offset.size() == QSize(280, 90), "size of the offset dialog");

    Preset preset(QStringLiteral("HostPrinter"), QStringLiteral("Wide"), {}, {}, {}, -1);
    check(preset.name() == QLatin1String("Wide"), "name of a preset");
    Presets presets(QStringLiteral("HostPrinter"));
    check(presets.getPresetNames().isEmpty(), "presets of an unknown printer");

    // The dialogs above are hidden, so the active modal one is that of the entry function.
    bool seen = false;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&seen] {
        if (auto *dialog = qobject_cast<PrintPropertiesDialog *>(QApplication::activeModalWidget())) {
            seen = dialog->isVisible();
            dialog->close();
        }
    });
    closer.start(10);
    check(propertiesDialog() == 0, "result of a closed dialog");
    check(seen, "dialog shown");

    return failures == 0 ? 0 : 1;
}
