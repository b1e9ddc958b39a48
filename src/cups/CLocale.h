// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef CLOCALE_H
#define CLOCALE_H

#include <locale.h>

/**
 * Sets the C locale for this thread while it lives.
 *
 * The application object has set the user's locale for the process, in which printf() writes "1,5" and scanf() reads 1
 * from "1.5". What is stored for the printer is written and read with a point everywhere. The process' locale is the
 * host's and is never touched.
 */
class CLocale
{
public:
    CLocale()
        : previous(uselocale(object()))
    {
    }
    ~CLocale() { uselocale(previous); }

    CLocale(const CLocale &) = delete;
    CLocale &operator=(const CLocale &) = delete;

private:
    static locale_t object()
    {
        static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
        return cLocale;
    }

    locale_t previous;
};

#endif
