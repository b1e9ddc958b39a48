// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "presets/Preset.h"

#include "presets/PresetScript.h"

#include <QCoreApplication>
#include <QFile>
#include <QMessageBox>

#include <utility>

namespace {

// Printers whose names contain this take the extended option list.
const QLatin1String extendedMarker("ORCA");

const QStringList &optionNamesFor(const QString &printer)
{
    // One list for all on purpose: from the first such printer on, the presets of every printer carry these options.
    if (printer.contains(extendedMarker))
        PresetScript::useExtendedOptionNames();
    return PresetScript::optionNames();
}

} // namespace

Preset::Preset(const QString &printer, const QString &file, const QStringList &options, const QString &name,
               const QString &description, int index)
    : m_printerName(printer)
    , m_fileName(file)
    , m_name(name)
    , m_description(description)
    , m_index(index)
    , m_state(file.isEmpty() ? Clean : NotLoaded)
    , m_optionNames(optionNamesFor(printer))
{
    if (!options.isEmpty())
        setOptions(options);
}

Preset::~Preset() = default;

// ----- accessors that never read the script -----

QString Preset::printerName() const
{
    return m_printerName;
}

QString Preset::fileName() const
{
    return m_fileName;
}

Preset::_State Preset::state() const
{
    return m_state;
}

void Preset::setState(_State state)
{
    m_state = state;
}

void Preset::setUserPageSize(const QSizeF &size)
{
    m_userPageSize = size;
}

QStringList Preset::getOptionNames() const
{
    return m_optionNames;
}

QString Preset::pathName() const
{
    return pathName(m_printerName, m_fileName);
}

QString Preset::pathName(const QString &printer, const QString &file)
{
    return PresetScript::pathName(printer, file);
}

QString Preset::ppdhack() const
{
    return PresetScript::ppdhack(m_userPageSize, m_printerName);
}

// ----- accessors that read the script first -----

QString Preset::name()
{
    loadIfNeeded();
    return m_name.isEmpty() ? m_fileName : m_name;
}

QString Preset::description()
{
    loadIfNeeded();
    return m_description;
}

int Preset::index()
{
    loadIfNeeded();
    return m_index;
}

QStringList Preset::options()
{
    loadIfNeeded();
    parseOptions();
    return m_options;
}

QSizeF Preset::getUserPageSize()
{
    loadIfNeeded();
    return m_userPageSize;
}

void Preset::setName(const QString &name)
{
    // The file name is what an empty name shows already.
    if (name == this->name() || name == m_name)
        return;
    m_name = name;
    m_state = Modified;
}

void Preset::setDescription(const QString &description)
{
    if (description == this->description())
        return;
    m_description = description;
    m_state = Modified;
}

void Preset::setIndex(int index)
{
    if (index == this->index())
        return;
    m_index = index;
    m_state = Modified;
}

void Preset::loadIfNeeded()
{
    // Where this fails, the state stays and the next request tries again.
    if (m_state == NotLoaded)
        load();
}

// ----- options -----

bool Preset::setOptions(const QStringList &list)
{
    loadIfNeeded();
    parseOptions();
    bool changed = false;
    for (const QString &keyword : m_optionNames) {
        const auto given = PresetScript::valueIndex(list, keyword);
        if (given < 0)
            continue;
        const auto present = PresetScript::valueIndex(m_options, keyword);
        if (present >= 0 && m_options.at(present) == list.at(given))
            continue;
        if (present >= 0)
            m_options[present] = list.at(given);
        else
            m_options << keyword << list.at(given);
        changed = true;
    }
    if (changed)
        m_state = Modified;
    return changed;
}

bool Preset::clearOptions()
{
    parseOptions();
    const bool known = m_state == Clean || m_state == Modified;
    if (m_state == Deleted || (known && m_options.isEmpty()))
        return false;
    m_options.clear();
    m_state = Modified;
    return true;
}

// ----- the script -----

bool Preset::load()
{
    const std::optional<QByteArray> data = PresetScript::read(pathName());
    if (!data)
        return false;

    parseAttribute(*data, QStringLiteral("name"), m_name);
    parseAttribute(*data, QStringLiteral("description"), m_description);
    QString index;
    bool isNumber = false;
    parseAttribute(*data, QStringLiteral("index"), index);
    m_index = index.toInt(&isNumber);
    if (!isNumber)
        m_index = -1;

    m_options.clear();
    m_unparsed = {*data, m_optionNames};
    parsePpdhack(*data, m_userPageSize);
    m_state = Clean;
    return true;
}

// A list of presets needs their names alone, and the options are by far the most to parse.
void Preset::parseOptions()
{
    const Unparsed unparsed = std::exchange(m_unparsed, {});
    for (const QString &keyword : unparsed.optionNames) {
        QString value;
        if (parseOption(unparsed.script, keyword, value))
            m_options << keyword << value;
    }
}

bool Preset::save(const QStringList &defaults)
{
    if (m_state < Modified || m_fileName.isEmpty())
        return true;
    if (m_index >= 0) {
        QMessageBox::warning(nullptr, QCoreApplication::translate("Preset", "Warning"),
                             QCoreApplication::translate("Preset", "%1 cannot be modified.").arg(name()),
                             QMessageBox::Ok);
        load();
        return false;
    }
    if (m_state == Deleted)
        return PresetScript::remove(pathName());
    if (m_state != Modified)
        return false;

    parseOptions();
    const PresetScript::Content content{m_printerName, m_fileName, name(),        m_description,
                                        m_index,       m_options,  m_userPageSize};
    if (!PresetScript::write(pathName(), PresetScript::text(content, defaults)))
        return false;
    m_state = Clean;
    return true;
}

bool Preset::parseAttribute(const QByteArray &data, const QString &key, QString &value)
{
    return PresetScript::parseAttribute(data, key, value);
}

bool Preset::parseOption(const QByteArray &data, const QString &keyword, QString &value)
{
    return PresetScript::parseOption(data, keyword, value);
}

bool Preset::parsePpdhack(const QByteArray &data, QSizeF &size)
{
    return PresetScript::parsePpdhack(data, size);
}
