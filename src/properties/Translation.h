// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef TRANSLATION_H
#define TRANSLATION_H

#include <QTranslator>

/**
 * The library's texts in the language of the default locale, for as long as this object lives.
 *
 * Does nothing where the host has installed a catalogue of these texts itself, or where there is none for the language.
 * With texts that are read from the right, windows run from there as well, unless the host has windows of its own.
 */
class Translation
{
public:
    Translation();
    ~Translation();

    Translation(const Translation &) = delete;
    Translation &operator=(const Translation &) = delete;

private:
    void turnAround();

    QTranslator translator;
    bool isTurnedAround = false;
};

#endif
