// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FUZZ_H
#define FUZZ_H

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QList>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/** Ends the process with a message unless @p condition is true; the fuzzer then keeps the input. */
#define FUZZ_CHECK(condition)                                                                                          \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition);                        \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)

inline QByteArray bytes(const std::uint8_t *data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size));
}

/** The texts of an input, which are separated by NULs. */
inline QList<QByteArray> texts(const QByteArray &input)
{
    return input.split('\0');
}

/** The home directory while inputs are tried; scripts/fuzz creates it. */
inline QString homePath(const QString &name)
{
    return QDir::homePath() + QLatin1Char('/') + name;
}

inline QByteArray fileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(path.section(QLatin1Char('/'), 0, -2));
    QFile file(path);
    FUZZ_CHECK(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

#endif
