// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "presets/Presets.h"

#include "presets/Preset.h"
#include "presets/PresetScript.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>

#include <algorithm>
#include <cstdio>
#include <map>

namespace {

const QLatin1Char hiddenMark('_');

// Removes the suffix wherever it occurs: "a.sh.sh" is listed as "a".
QString withoutSuffix(QString entry)
{
    return entry.remove(PresetScript::suffix);
}

// Puts a symbolic link in the place of whatever link or file stands there. There is always one link or the other, even
// if the process ends here.
void replaceLink(const QString &target, const QString &path)
{
    const QString temporary = path + QLatin1Char('.') + QString::number(QCoreApplication::applicationPid());
    QFile::remove(temporary);
    if (QFile::link(target, temporary)
        && std::rename(QFile::encodeName(temporary).constData(), QFile::encodeName(path).constData()) != 0)
        QFile::remove(temporary);
}

} // namespace

Presets::Presets(const QString &printer)
    : m_printerName(printer)
{
    load();
}

Presets::~Presets()
{
    clearPresets();
}

bool Presets::load()
{
    clearPresets();
    const QString folder = PresetScript::folder(m_printerName);
    if (folder.isEmpty())
        return true;

    const QStringList entries = QDir(folder).entryList({QLatin1String("*") + PresetScript::suffix},
                                                       QDir::Files | QDir::CaseSensitive, QDir::Name);
    for (const QString &entry : entries)
        if (!entry.startsWith(hiddenMark))
            addPreset(new Preset(m_printerName, withoutSuffix(entry), {}, QString(), QString(), -1));

    const QString target = QFile::symLinkTarget(linkPathName());
    if (!target.isEmpty())
        m_currentPreset = findPresetByFileName(withoutSuffix(target.mid(target.lastIndexOf(QLatin1Char('/')) + 1)));
    return true;
}

bool Presets::save(const QStringList &defaults)
{
    const QList<Preset *> snapshot = m_presets;
    for (Preset *preset : snapshot) {
        const bool isDeleted = preset->state() == Preset::Deleted;
        if (!isDeleted && preset->state() != Preset::Modified)
            continue;
        // The removal of a script that does not exist is a failure like any other: presets behind it are not written.
        if (!preset->save(defaults))
            return false;
        if (isDeleted)
            drop(preset);
    }

    const QString link = linkPathName();
    if (m_currentPreset && !link.isEmpty() && QFile::symLinkTarget(link) != m_currentPreset->pathName())
        replaceLink(m_currentPreset->pathName(), link);
    return true;
}

void Presets::drop(Preset *preset)
{
    m_presets.removeOne(preset);
    if (m_currentPreset == preset)
        m_currentPreset = firstRemaining();
    delete preset;
}

Preset *Presets::addPreset(Preset *preset)
{
    if (!preset)
        return nullptr;
    m_presets.append(preset);
    if (!m_currentPreset)
        m_currentPreset = preset;
    return preset;
}

Preset *Presets::deletePreset(Preset *preset)
{
    if (!preset)
        return nullptr;
    if (preset->index() >= 0) {
        QMessageBox::warning(nullptr, QCoreApplication::translate("Presets", "Warning"),
                             QCoreApplication::translate("Presets", "%1 cannot be deleted.").arg(preset->name()),
                             QMessageBox::Ok);
        return preset;
    }
    if (preset->state() == Preset::Deleted)
        return preset;
    preset->setState(Preset::Deleted);
    // The only preset stays current until it is gone.
    Preset *remaining = firstRemaining();
    if (m_currentPreset == preset && remaining)
        m_currentPreset = remaining;
    return preset;
}

Preset *Presets::firstRemaining() const
{
    const auto found = std::find_if(m_presets.cbegin(), m_presets.cend(),
                                    [](const Preset *preset) { return preset->state() != Preset::Deleted; });
    return found == m_presets.cend() ? nullptr : *found;
}

Preset *Presets::findPreset(const QString &text) const
{
    if (text.isEmpty())
        return nullptr;
    const auto found = std::find_if(m_presets.cbegin(), m_presets.cend(), [&text](Preset *preset) {
        return preset->name() == text || preset->fileName() == text;
    });
    return found == m_presets.cend() ? nullptr : *found;
}

Preset *Presets::findPresetByFileName(const QString &file) const
{
    if (file.isEmpty())
        return nullptr;
    const auto found = std::find_if(m_presets.cbegin(), m_presets.cend(),
                                    [&file](const Preset *preset) { return preset->fileName() == file; });
    return found == m_presets.cend() ? nullptr : *found;
}

QStringList Presets::getPresetNames() const
{
    QStringList names;
    std::map<int, QStringList> builtIn; // by index
    for (Preset *preset : m_presets) {
        if (preset->state() == Preset::Deleted)
            continue;
        const int index = preset->index();
        (index < 0 ? names : builtIn[index]).append(preset->name());
    }
    // Each goes to the position of its index; those that share one follow each other; past the end they are appended.
    for (const auto &[index, group] : builtIn) {
        qint64 position = index;
        for (const QString &name : group)
            names.insert(static_cast<QStringList::size_type>(std::min<qint64>(position++, names.size())), name);
    }
    return names;
}

Preset *Presets::currentPreset() const
{
    return m_currentPreset;
}

void Presets::setCurrentPreset(Preset *preset)
{
    m_currentPreset = preset;
}

QString Presets::currentFileName() const
{
    return QStringLiteral("_current");
}

QString Presets::linkPathName() const
{
    const QString folder = PresetScript::folder(m_printerName);
    return folder.isEmpty() ? QString() : folder + QLatin1String("/currentPreset");
}

void Presets::clearPresets()
{
    m_currentPreset = nullptr;
    qDeleteAll(m_presets);
    m_presets.clear();
}
