// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "cups/OptionsMerge.h"

#include "cups/OptionsMemory.h"

#include <QHash>

#include <cerrno>
#include <memory>

namespace {

OptionArray fromSnapshot(const QByteArray &snapshot)
{
    OptionArray options;
    for (const char *text = snapshot.constData(), *const end = text + snapshot.size(); text < end;) {
        const char *value = text + qstrlen(text) + 1;
        options.set(text, value);
        text = value + qstrlen(value) + 1;
    }
    return options;
}

// libcups' table of these is not public, but its encoder uses it.
bool isPrinterAttribute(const cups_option_t &option)
{
    const std::unique_ptr<ipp_t, decltype(&ippDelete)> encoded(ippNew(), &ippDelete);
    cups_option_t copy = option;
    cupsEncodeOptions2(encoded.get(), 1, &copy, IPP_TAG_PRINTER);
    return ippFirstAttribute(encoded.get()) != nullptr;
}

// libcups does not tell upper from lower case in names.
QByteArray keyOf(const QByteArray &name, const QByteArray &instance)
{
    return (name + '/' + instance).toLower();
}

// The printer's own value of an option, if its absence would not suffice: another value applies to all users.
const char *neededDefault(const OptionsMerge::Change &change, const char *name)
{
    const char *value = change.systemWide.value(name) ? change.defaultValue(name) : nullptr;
    return value && !change.systemWide.has(name, value) ? value : nullptr;
}

OptionArray changed(const OptionArray &earlier, const OptionsMerge::Change &change)
{
    OptionArray options = earlier;
    for (const QByteArray &name : change.removed) {
        options.remove(name.constData());
        if (const char *value = neededDefault(change, name.constData()))
            options.set(name.constData(), *value ? value : OptionsMerge::storedEmpty);
    }
    for (const cups_option_t &option : change.set)
        if (*option.value)
            options.set(option.name, option.value);
        else if (change.isNeededEmpty(option.name))
            options.set(option.name, OptionsMerge::storedEmpty);
        else
            options.remove(option.name);
    return options;
}

// What a new line may hold: it outlives being rewritten by libcups, and does not describe the printer.
OptionArray cleaned(const OptionArray &options, const OptionsMerge::Change &change)
{
    OptionArray clean;
    for (const cups_option_t &option : options) {
        if (isPrinterAttribute(option))
            continue;
        if (*option.value)
            clean.set(option.name, option.value);
        else if (change.isNeededEmpty(option.name))
            clean.set(option.name, OptionsMerge::storedEmpty);
    }
    return clean;
}

// The text of a file, and where the destinations' lines are in it.
class Lines
{
public:
    bool read(const QByteArray &content, const OptionsSyntax::Reader &reader)
    {
        if (content.startsWith("\x1f\x8b")) { // compressed, which libcups reads but never writes
            errno = EINVAL;
            return false;
        }
        const auto found = OptionsSyntax::readEntries(content, reader);
        if (!found)
            return false;
        pieces = OptionsSyntax::pieces(content);
        for (const OptionsSyntax::Entry &entry : *found) {
            if (entry.number > pieces.size() || pieces.at(entry.number - 1).continues)
                continue;
            entries[keyOf(entry.name, entry.instance)].append(entry);
            hasDefault = hasDefault || entry.isDefault;
        }
        return true;
    }

    QList<OptionsSyntax::Entry> entriesOf(const OptionsMerge::Change &change) const
    {
        return entries.value(keyOf(change.name, change.instance));
    }

    // Replaces the first of the entries by a line and removes the others. Without entries the line is
    // appended.
    void replace(const QList<OptionsSyntax::Entry> &earlier, const QByteArray &line)
    {
        for (const OptionsSyntax::Entry &entry : earlier) {
            int i = entry.number - 1;
            pieces[i].text = QByteArray();
            while (++i < pieces.size() && pieces.at(i).continues)
                pieces[i].text = QByteArray();
        }
        if (line.isEmpty())
            return;
        if (!earlier.isEmpty()) {
            pieces[earlier.first().number - 1].text = line + '\n';
            return;
        }
        if (!pieces.isEmpty() && !pieces.last().text.isEmpty() && !pieces.last().text.endsWith('\n'))
            pieces.last().text += '\n';
        pieces.append({line + '\n', false});
    }

    QByteArray text() const
    {
        QByteArray all;
        for (const OptionsSyntax::Piece &piece : pieces)
            all += piece.text;
        return all;
    }

    bool hasDefault = false;

private:
    QList<OptionsSyntax::Piece> pieces;
    QHash<QByteArray, QList<OptionsSyntax::Entry>> entries;
};

} // namespace

bool OptionsMerge::Change::isNeededEmpty(const char *option) const
{
    const char *value = areDefaultsKnown ? defaultValue(option) : nullptr;
    return !areDefaultsKnown || (value && *value) || systemWide.value(option);
}

QByteArray OptionsMerge::snapshot(const cups_dest_t &dest)
{
    QByteArray all;
    for (int i = 0; i < dest.num_options; ++i) {
        const cups_option_t &option = dest.options[i];
        all.append(option.name, static_cast<int>(qstrlen(option.name)) + 1);
        all.append(option.value, static_cast<int>(qstrlen(option.value)) + 1);
    }
    return all;
}

OptionsMerge::Change OptionsMerge::changeSince(const QByteArray &earlier, const cups_dest_t &dest)
{
    Change change;
    change.name = dest.name;
    change.instance = dest.instance;
    change.isDefault = dest.is_default != 0;
    if (snapshot(dest) == earlier)
        return change;
    const OptionArray before = fromSnapshot(earlier);
    for (int i = 0; i < dest.num_options; ++i) {
        const cups_option_t &option = dest.options[i];
        if (!before.has(option.name, option.value) && !isPrinterAttribute(option))
            change.set.set(option.name, option.value);
    }
    for (const cups_option_t &option : before)
        if (!cupsGetOption(option.name, dest.num_options, dest.options))
            change.removed.append(option.name);
    return change;
}

OptionArray OptionsMerge::optionsIn(const QByteArray &content, const Change &change,
                                    const OptionsSyntax::Reader &reader)
{
    OptionArray options;
    Lines lines;
    if (!content.isEmpty() && lines.read(content, reader))
        for (const OptionsSyntax::Entry &entry : lines.entriesOf(change))
            options.parse(entry.options.constData());
    return options;
}

OptionsMerge::Result OptionsMerge::merge(const QByteArray &content, const std::vector<Change> &changes,
                                         const OptionsSyntax::Reader &reader)
{
    Result result;
    Lines lines;
    if (!lines.read(content, reader)) {
        result.isReadable = false;
        return result;
    }
    for (const Change &change : changes) {
        const QList<OptionsSyntax::Entry> earlier = lines.entriesOf(change);
        OptionArray options;
        OptionsSyntax::Entry head;
        head.name = change.name;
        head.instance = change.instance;
        for (const OptionsSyntax::Entry &entry : earlier) {
            options.parse(entry.options.constData());
            head.isDefault = head.isDefault || entry.isDefault;
        }
        const OptionArray lost = OptionsMemory::lost(change.savedEarlier, options, reader);
        if (changed(options, change) == options && !(change.isDamaged && lost.size() > 0))
            continue;
        // What other programs have damaged would be remembered as the new value otherwise.
        OptionArray restored = options;
        for (const cups_option_t &option : lost)
            restored.set(option.name, option.value);
        Written written{&change, cleaned(changed(restored, change), change)};

        // A line "Dest" for the server's default printer would leave all programs without a default.
        if (earlier.isEmpty() && change.isDefault && !lines.hasDefault)
            head.isDefault = lines.hasDefault = true;
        // Without options there is no line, unless it defines the default or the instance.
        const bool isKept = head.isDefault || !head.instance.isEmpty();
        QByteArray line;
        if (written.options.size() > 0 || isKept) {
            line = OptionsSyntax::compose(head, written.options, reader);
            if (line.isEmpty()) {
                result.impossible = &change;
                return result;
            }
        }
        lines.replace(earlier, line);
        result.written.push_back(std::move(written));
    }
    result.content = lines.text();
    return result;
}
