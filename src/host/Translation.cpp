// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "host/Translation.h"

#include "BuildConstants.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QStandardPaths>

#include <dlfcn.h>

#include <algorithm>

namespace {

// Every catalogue translates this to a different text.
constexpr char someText[] = "Page Setup";

bool isTranslated()
{
    return QCoreApplication::translate("PrintPropertiesDialog", someText) != QLatin1String(someText);
}

// The folder relative to the library itself, which may have been moved after installation.
QString folderOfLibrary()
{
    Dl_info library;
    if (dladdr(dlsym(RTLD_DEFAULT, "propertiesDialog"), &library) == 0)
        return QString();
    const QString file = QFileInfo(QFile::decodeName(library.dli_fname)).canonicalFilePath();
    return QFileInfo(file).path() + QLatin1Char('/') + BuildConstants::translationsFromLibrary;
}

// Relative to the library, where the build was to be installed, then the standard data folders.
QStringList folders()
{
    return QStringList{folderOfLibrary(), BuildConstants::translationsDir}
           + QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, BuildConstants::translationsSubdir,
                                       QStandardPaths::LocateDirectory);
}

QString folderOfQt()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

} // namespace

Translation::Translation(Extent extent)
{
    if (isTranslated())
        return;
    const QStringList candidates = folders();
    const auto loadFrom = [this](const QString &folder) {
        return translator.load(QLocale(), QStringLiteral("propertiesdialog"), QStringLiteral("_"), folder);
    };
    if (std::none_of(candidates.begin(), candidates.end(), loadFrom))
        return;
    if (extent == AllTexts && loadTextsOfQt(translatorOfQt, QLocale(translator.language())))
        QCoreApplication::installTranslator(&translatorOfQt); // in the language of our own texts
    QCoreApplication::installTranslator(&translator);
    turnAround();
}

// Where they are not kept apart by module, one catalogue has them all.
bool Translation::loadTextsOfQt(QTranslator &translator, const QLocale &locale)
{
    const auto isLoaded = [&](const char *catalogue) {
        return translator.load(locale, QLatin1String(catalogue), QStringLiteral("_"), folderOfQt());
    };
    return isLoaded("qtbase") || isLoaded("qt");
}

// Right-to-left languages mirror the layout. Windows that the host already shows are not changed.
void Translation::turnAround()
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return; // there is no layout; the program's command line has texts too
    if (QLocale(translator.language()).textDirection() != Qt::RightToLeft || QGuiApplication::isRightToLeft()
        || !QGuiApplication::topLevelWindows().isEmpty())
        return;
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    isTurnedAround = true;
}

Translation::~Translation()
{
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::removeTranslator(&translatorOfQt);
    if (isTurnedAround)
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}
