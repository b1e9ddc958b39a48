// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef TRANSLATION_H
#define TRANSLATION_H

#include <QLocale>
#include <QTranslator>

/**
 * Translates the library's texts to the language of the default locale while this object exists.
 *
 * Does nothing if the host has installed a catalogue of these texts itself, or if there is none for the language. For
 * right-to-left languages, windows are also mirrored, unless the host has visible windows.
 */
class Translation
{
public:
    /** Which texts to translate. In the application of a host, the host decides about Qt's own texts. */
    enum Extent {
        OwnTexts,
        AllTexts ///< also Qt's, in context menus and message boxes, in the same language
    };

    explicit Translation(Extent extent);
    ~Translation();

    /** Loads Qt's own texts. Returns false if they are not installed. */
    static bool loadTextsOfQt(QTranslator &translator, const QLocale &locale);

    Translation(const Translation &) = delete;
    Translation &operator=(const Translation &) = delete;

private:
    void turnAround();

    QTranslator translator;
    QTranslator translatorOfQt;
    bool isTurnedAround = false;
};

#endif
