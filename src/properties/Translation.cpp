// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/Translation.h"

#include "BuildConstants.h"

#include <QGuiApplication>
#include <QLocale>
#include <QStandardPaths>

namespace {

// Every catalogue translates this to something else than itself.
constexpr char someText[] = "Page Setup";

bool isTranslated()
{
    return QCoreApplication::translate("PrintPropertiesDialog", someText) != QLatin1String(someText);
}

// Where the library was installed to, then wherever data of programs is looked for.
QStringList folders()
{
    return QStringList(BuildConstants::translationsDir)
           + QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, BuildConstants::translationsSubdir,
                                       QStandardPaths::LocateDirectory);
}

} // namespace

Translation::Translation()
{
    if (isTranslated())
        return;
    const QStringList candidates = folders();
    for (const QString &folder : candidates) {
        if (translator.load(QLocale(), QStringLiteral("propertiesdialog"), QStringLiteral("_"), folder)) {
            QCoreApplication::installTranslator(&translator);
            turnAround();
            return;
        }
    }
}

// Texts that are read from the right are laid out from there. Windows that the host shows already stay as they are.
void Translation::turnAround()
{
    if (QLocale(translator.language()).textDirection() != Qt::RightToLeft || QGuiApplication::isRightToLeft()
        || !QGuiApplication::topLevelWindows().isEmpty())
        return;
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    isTurnedAround = true;
}

Translation::~Translation()
{
    QCoreApplication::removeTranslator(&translator);
    if (isTurnedAround)
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}
