// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef LANGUAGES_H
#define LANGUAGES_H

#include "host/Translation.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QStringList>
#include <QTranslator>

/** The catalogues as people edit them, and as programs load them. */
inline QString catalogueSource(const QString &language)
{
    return QStringLiteral(TRANSLATIONS_SOURCE_DIR "/propertiesdialog_%1.ts").arg(language);
}

inline QString compiledCatalogue(const QString &language)
{
    return QStringLiteral(TRANSLATIONS_BUILD_DIR "/propertiesdialog_%1.qm").arg(language);
}

inline QStringList languages()
{
    QStringList names = QDir(TRANSLATIONS_SOURCE_DIR).entryList({"propertiesdialog_*.ts"}, QDir::Files, QDir::Name);
    for (QString &name : names)
        name = name.section('_', 1).section('.', 0, 0);
    return names;
}

/** The texts in a language, as a host has them that installs the catalogues; "en" are those of the sources. */
class InLanguage
{
public:
    explicit InLanguage(const QString &language)
    {
        if (language == "en")
            return;
        if (!translator.load(compiledCatalogue(language)))
            qFatal("cannot load the catalogue %s", qPrintable(language));
        QCoreApplication::installTranslator(&translator);
        if (!Translation::loadTextsOfQt(translatorOfQt, QLocale(language)))
            qFatal("Qt's own texts are not installed in %s", qPrintable(language));
        QCoreApplication::installTranslator(&translatorOfQt);
        QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
    }
    ~InLanguage()
    {
        QCoreApplication::removeTranslator(&translatorOfQt);
        QCoreApplication::removeTranslator(&translator);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    InLanguage(const InLanguage &) = delete;
    InLanguage &operator=(const InLanguage &) = delete;

private:
    QTranslator translator;
    QTranslator translatorOfQt;
};

#endif
