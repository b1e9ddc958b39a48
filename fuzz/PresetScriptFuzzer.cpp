// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// The reader of preset scripts. Input: a script.

#include "Fuzz.h"

#include "presets/Preset.h"
#include "presets/PresetScript.h"

int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

namespace {

// Whether the readers, which look for their keys anywhere, find them only where the writer puts them.
bool isUnambiguous(const QString &text)
{
    return !text.contains(QLatin1Char('#')) && !text.contains(QLatin1String("ppdhack"));
}

// Both lists of options, the second for the rest of the process.
void tryPrinter(const QString &printer, const QByteArray &script)
{
    const QString path = Preset::pathName(printer, QStringLiteral("f"));
    writeFile(path, script);

    Preset preset(printer, QStringLiteral("f"), {}, QString(), QString(), -1);
    FUZZ_CHECK(preset.load());
    FUZZ_CHECK(preset.state() == Preset::Clean);
    const QStringList options = preset.options();
    QStringList parsed;
    bool unambiguous = isUnambiguous(preset.name()) && isUnambiguous(preset.description());
    for (const QString &keyword : preset.getOptionNames()) {
        QString value;
        if (Preset::parseOption(script, keyword, value)) {
            parsed << keyword << value;
            FUZZ_CHECK(!value.contains(QLatin1Char(' ')) && !value.contains(QLatin1Char('\n')));
            unambiguous = unambiguous && isUnambiguous(value);
        }
    }
    FUZZ_CHECK(options == parsed);
    FUZZ_CHECK(!preset.setOptions(options));
    const QSizeF size = preset.getUserPageSize();
    FUZZ_CHECK(size == QSizeF(-1, -1) || (size.width() > 0 && size.height() > 0));

    // Back into a script, unless it must not be written.
    if (preset.index() >= 0)
        return;
    preset.setState(Preset::Modified);
    FUZZ_CHECK(preset.save({}));
    Preset again(printer, QStringLiteral("f"), {}, QString(), QString(), -1);
    FUZZ_CHECK(again.load());
    if (unambiguous) {
        FUZZ_CHECK(again.name() == preset.name());
        FUZZ_CHECK(again.description() == preset.description());
        FUZZ_CHECK(again.index() == -1);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray script = bytes(data, size);
    const bool extended = size % 2 != 0;
    tryPrinter(extended ? QStringLiteral("ORCA") : QStringLiteral("P"), script);
    return 0;
}
