// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "presets/Presets.h"

#include "presets/Preset.h"
#include "presets/PresetScript.h"
#include "widgets/MessageBox.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <map>

namespace {

// Presets that no list shows: copies of what the options file holds.
const QLatin1Char hiddenMark('_');
const QLatin1Char hiddenFileMark('.');
const QString linkName = QStringLiteral("currentPreset");

// Removes the suffix wherever it occurs: "a.sh.sh" is listed as "a".
QString withoutSuffix(QString entry)
{
    return entry.remove(PresetScript::suffix);
}

} // namespace

struct Presets::Private
{
    Preset *firstRemaining() const;
    void drop(Preset *preset);

    QString printerName;
    QList<Preset *> presets;
    Preset *currentPreset = nullptr;
};

Presets::Presets(const QString &printer)
    : d(std::make_unique<Private>())
{
    d->printerName = printer;
    load();
}

Presets::~Presets()
{
    clearPresets();
}

void Presets::setPrinter(const QString &printer)
{
    d->printerName = printer;
    load();
}

bool Presets::load()
{
    clearPresets();
    const QString folder = PresetScript::folder(d->printerName);
    if (folder.isEmpty())
        return true;

    const QStringList entries = PresetFolder::files(folder, PresetScript::suffix);
    for (const QString &entry : entries)
        if (!entry.startsWith(hiddenMark) && !entry.startsWith(hiddenFileMark))
            addPreset(new Preset(d->printerName, withoutSuffix(entry), {}, QString(), QString(), -1));

    const QString target = QFile::decodeName(PresetFolder::linkTarget(linkPathName()));
    if (!target.isEmpty())
        d->currentPreset = findPresetByFileName(withoutSuffix(target.mid(target.lastIndexOf(QLatin1Char('/')) + 1)));
    return true;
}

bool Presets::save(const QStringList &defaults)
{
    const QList<Preset *> snapshot = d->presets;
    for (Preset *preset : snapshot) {
        const bool isDeleted = preset->state() == Preset::Deleted;
        if (!isDeleted && preset->state() != Preset::Modified)
            continue;
        // The removal of a script that does not exist is a failure like any other: later presets are not written.
        if (!preset->save(defaults))
            return false;
        if (isDeleted)
            d->drop(preset);
    }

    if (!d->currentPreset)
        return true;
    // It only helps the next run: if it cannot be created, nothing is lost.
    const QByteArray target = PresetFolder::localPath(d->currentPreset->pathName());
    if (PresetFolder::linkTarget(linkPathName()) != target)
        PresetFolder(PresetScript::folder(d->printerName), PresetFolder::LeaveIt).link(linkName, target);
    return true;
}

void Presets::dropMissing()
{
    const QList<Preset *> snapshot = d->presets;
    for (Preset *preset : snapshot)
        if (preset->state() == Preset::Deleted && (preset->isNew() || !PresetScript::exists(preset->pathName())))
            d->drop(preset);
}

void Presets::Private::drop(Preset *preset)
{
    presets.removeOne(preset);
    if (currentPreset == preset)
        currentPreset = firstRemaining();
    delete preset;
}

Preset *Presets::addPreset(Preset *preset)
{
    if (!preset)
        return nullptr;
    d->presets.append(preset);
    if (!d->currentPreset)
        d->currentPreset = preset;
    return preset;
}

Preset *Presets::deletePreset(Preset *preset)
{
    if (!preset)
        return nullptr;
    if (preset->index() >= 0) {
        MessageBox::show(QMessageBox::Warning, QCoreApplication::translate("Presets", "Warning"),
                         QCoreApplication::translate("Presets", "%1 cannot be deleted.").arg(preset->name()));
        return preset;
    }
    if (preset->state() == Preset::Deleted)
        return preset;
    preset->setState(Preset::Deleted);
    // The only preset stays current until it is gone.
    Preset *remaining = d->firstRemaining();
    if (d->currentPreset == preset && remaining)
        d->currentPreset = remaining;
    return preset;
}

Preset *Presets::Private::firstRemaining() const
{
    const auto found = std::find_if(presets.cbegin(), presets.cend(),
                                    [](const Preset *preset) { return preset->state() != Preset::Deleted; });
    return found == presets.cend() ? nullptr : *found;
}

Preset *Presets::findPreset(const QString &text) const
{
    if (text.isEmpty())
        return nullptr;
    const auto found = std::find_if(d->presets.cbegin(), d->presets.cend(), [&text](Preset *preset) {
        return preset->name() == text || preset->fileName() == text;
    });
    return found == d->presets.cend() ? nullptr : *found;
}

Preset *Presets::findPresetByFileName(const QString &file) const
{
    if (file.isEmpty())
        return nullptr;
    const auto found = std::find_if(d->presets.cbegin(), d->presets.cend(),
                                    [&file](const Preset *preset) { return preset->fileName() == file; });
    return found == d->presets.cend() ? nullptr : *found;
}

bool Presets::isFileNameTaken(const QString &file) const
{
    return findPresetByFileName(file) || PresetScript::exists(PresetScript::pathName(d->printerName, file));
}

QList<Preset *> Presets::listedPresets() const
{
    QList<Preset *> list;
    std::map<int, QList<Preset *>> builtIn; // by index
    for (Preset *preset : d->presets) {
        if (preset->state() == Preset::Deleted)
            continue;
        const int index = preset->index();
        (index < 0 ? list : builtIn[index]).append(preset);
    }
    // Each goes to the position of its index; those that share one follow each other; past the end they are appended.
    for (const auto &[index, group] : builtIn) {
        qint64 position = index;
        for (Preset *preset : group)
            list.insert(static_cast<QList<Preset *>::size_type>(std::min<qint64>(position++, list.size())), preset);
    }
    return list;
}

QStringList Presets::getPresetNames() const
{
    QStringList names;
    const QList<Preset *> list = listedPresets();
    for (Preset *preset : list)
        names << preset->name();
    return names;
}

Preset *Presets::currentPreset() const
{
    return d->currentPreset;
}

void Presets::setCurrentPreset(Preset *preset)
{
    d->currentPreset = preset;
}

QString Presets::currentFileName() const
{
    return QStringLiteral("_current");
}

QString Presets::linkPathName() const
{
    const QString folder = PresetScript::folder(d->printerName);
    return folder.isEmpty() ? QString() : folder + QLatin1Char('/') + linkName;
}

void Presets::clearPresets()
{
    d->currentPreset = nullptr;
    qDeleteAll(d->presets);
    d->presets.clear();
}
