// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// The reader of stored values and the writer of texts. Input: a text to store, a NUL, a value as something else stored
// it.

#include "Fuzz.h"

#include "cups/CupsSupport.h"
#include "FakeScheduler.h"

#include <cstdlib>
#include <cstring>

namespace {

// The expected text after storing and reading: Latin-1, with line feeds as line breaks, the last of which is never
// missing; a stored line break that was typed is one.
QString expectedText(const QString &text)
{
    if (text.isEmpty())
        return QString::fromLatin1("");
    QString expected;
    for (const QChar c : text)
        expected += c.unicode() == 0 || c.unicode() > 0xff ? QLatin1Char('?') : c;
    expected.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    expected.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    if (!expected.endsWith(QLatin1Char('\n')))
        expected += QLatin1Char('\n');
    expected.replace(QLatin1String("\\\\r"), QLatin1String("\n"));
    expected.replace(QLatin1String("\\r"), QLatin1String("\n"));
    return expected;
}

void tryText(CupsSupport &cups, const QString &text)
{
    cups.setLabelStart(text);
    QString read;
    FUZZ_CHECK(cups.getString("LabelStart", &read));
    FUZZ_CHECK(read == expectedText(text));
    // Storing and reading it again does not change it.
    cups.setLabelStart(read);
    QString again;
    FUZZ_CHECK(cups.getString("LabelStart", &again));
    FUZZ_CHECK(again == read);
    const char *stored = cups.getValue("LabelStart");
    FUZZ_CHECK(!std::strpbrk(stored, "\r\n"));
}

void tryNumbers(CupsSupport &cups, const QByteArray &value)
{
    for (const char *keyword : {"Shift", "GapSize", "OffsetV", "CutMedia", "LabelCategory", "Darkness", "PrintSpeed",
                                "orientation-requested", "Direct", "JobEnd", "Back", "Resolution"})
        cups.setValue(keyword, value.constData());

    double number = 4711.0;
    char *end = nullptr;
    const double expected = std::strtod(value.constData(), &end);
    const bool failed = cups.getDouble("Shift", &number);
    if (failed)
        FUZZ_CHECK(number == 4711.0);
    else
        FUZZ_CHECK(end != value.constData() && (number == expected || expected != expected));

    int integer = 4711;
    if (cups.getInt("OffsetV", &integer))
        FUZZ_CHECK(integer == 4711);
    bool flag = false;
    FUZZ_CHECK(!cups.getBool("Direct", &flag));
    FUZZ_CHECK(flag == (value.startsWith('T') || value.startsWith('t')));

    const int cut = cups.getCut();
    FUZZ_CHECK(cut == 0 || cut == 2 || cut == 4);
    const int orientation = cups.getOrientation();
    FUZZ_CHECK(orientation >= 3 && orientation <= 6);
    cups.getCategory();
    cups.getJobEnd();
    cups.getExtendedOffset();
    cups.getResolution();
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    FakeScheduler::setQueues({"P"});
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static CupsSupport cups;
    const QByteArray input = bytes(data, size);
    const int end = static_cast<int>(input.indexOf('\0'));
    const QByteArray text = end < 0 ? input : input.left(end);
    const QByteArray value = end < 0 ? input : input.mid(end + 1);
    tryText(cups, QString::fromUtf8(text));
    tryText(cups, QString::fromLatin1(input.constData(), input.size()));
    tryNumbers(cups, value.left(value.indexOf('\0')));
    return 0;
}
