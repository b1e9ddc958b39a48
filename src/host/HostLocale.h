// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef HOSTLOCALE_H
#define HOSTLOCALE_H

#include <QByteArray>

#include <clocale>

/**
 * Restores the C library's locale for the host: each application object of Qt replaces it by that of the environment,
 * and numbers that the host prints and reads would then have the user's decimal comma.
 */
class HostLocale
{
public:
    HostLocale()
        : before(std::setlocale(LC_ALL, nullptr))
    {
    }
    ~HostLocale() { std::setlocale(LC_ALL, before.constData()); }

    HostLocale(const HostLocale &) = delete;
    HostLocale &operator=(const HostLocale &) = delete;

    /**
     * Restores all but the encoding of texts, in which Qt reads file names and key strokes. For the host's other
     * threads, while this one waits for the user.
     */
    void restoreFormats()
    {
        const QByteArray encoding(std::setlocale(LC_CTYPE, nullptr));
        std::setlocale(LC_ALL, before.constData());
        std::setlocale(LC_CTYPE, encoding.constData());
    }

private:
    const QByteArray before;
};

#endif
