// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// The options file. Input: the earlier file, then keyword, value, keyword, value ... with NULs in between.

#include "Fuzz.h"

#include "cups/OptionsFile.h"
#include "FakeScheduler.h"

#include <cups/cups.h>

#include <algorithm>
#include <cctype>
#include <cstring>

namespace {

const char queue[] = "P";

// What libcups reads for a queue; it has no public function for this.
int readOptions(cups_option_t **options)
{
    cups_file_t *file = cupsFileOpen(QFile::encodeName(OptionsFile::path()).constData(), "r");
    char line[8192];
    char *words = nullptr;
    int number = 0;
    int count = 0;
    while (file && cupsFileGetConf(file, line, sizeof line, &words, &number)) {
        if ((qstricmp(line, "dest") != 0 && qstricmp(line, "default") != 0) || !words)
            continue;
        char *name = words;
        while (*words && !std::isspace(*words & 255) && *words != '/')
            ++words;
        if (*words == '/')
            continue; // of an instance
        if (*words)
            *words++ = '\0';
        if (qstricmp(name, queue) == 0)
            count = cupsParseOptions(words, count, options);
    }
    if (file)
        cupsFileClose(file);
    return count;
}

// No attribute of printers begins so.
QByteArray keywordFrom(const QByteArray &text)
{
    QByteArray keyword("x");
    for (const char c : text.left(20))
        keyword += static_cast<char>('a' + (c & 15));
    return keyword;
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    FakeScheduler::setQueues({queue});
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QList<QByteArray> parts = texts(bytes(data, size));
    const QByteArray &earlier = parts.first();
    writeFile(OptionsFile::path(), earlier);

    char name[] = "P";
    cups_dest_t dest = {};
    dest.name = name;
    bool isSimple = true; // nothing that the file's syntax cannot express
    int length = 0;
    for (int i = 1; i + 1 < parts.size(); i += 2) {
        const QByteArray keyword = keywordFrom(parts.at(i));
        const QByteArray &value = parts.at(i + 1);
        dest.num_options = cupsAddOption(keyword.constData(), value.constData(), dest.num_options, &dest.options);
        isSimple = isSimple && !value.contains('\n') && !value.contains('\r');
        length += static_cast<int>(keyword.size() + 2 * value.size()) + 4;
    }

    if (!OptionsFile::save(&dest, 1)) {
        FUZZ_CHECK(!isSimple || length > 8000);
        FUZZ_CHECK(fileContent(OptionsFile::path()) == earlier);
    } else {
        cups_option_t *read = nullptr;
        const int count = readOptions(&read);
        FUZZ_CHECK(count == dest.num_options);
        for (int i = 0; i < dest.num_options; ++i) {
            const char *value = cupsGetOption(dest.options[i].name, count, read);
            FUZZ_CHECK(value && !std::strcmp(value, dest.options[i].value));
        }
        cupsFreeOptions(count, read);
        // Saving a second time reads what the first wrote.
        const QByteArray saved = fileContent(OptionsFile::path());
        FUZZ_CHECK(OptionsFile::save(&dest, 1));
        FUZZ_CHECK(fileContent(OptionsFile::path()) == saved);
    }
    cupsFreeOptions(dest.num_options, dest.options);
    return 0;
}
