// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "LabelWindow.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    // Shows the library's dialogs in the user's language; without a catalogue for it, in English.
    QTranslator texts;
    if (texts.load(QLocale(), QStringLiteral("propertiesdialog"), QStringLiteral("_"),
                   QString::fromUtf8(TRANSLATIONS_DIR))) {
        QCoreApplication::installTranslator(&texts);
        QApplication::setLayoutDirection(QLocale().textDirection());
    }

    LabelWindow window;
    window.show();
    return QApplication::exec();
}
