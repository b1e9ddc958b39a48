// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "presets/Preset.h"

#include "presets/PresetScript.h"
#include "widgets/MessageBox.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace {

// Printers whose names contain this take the extended option list.
const QLatin1String extendedMarker("ORCA");

// Deliberately one list for all: from the first such printer on, the presets of every printer contain these options.
void extendOptionNames(const QString &printer)
{
    if (printer.contains(extendedMarker))
        PresetScript::useExtendedOptionNames();
}

// The value of a keyword; the default if the options do not set it.
QString valueOf(const QString &keyword, const QStringList &options, const QStringList &defaults)
{
    const auto index = PresetScript::valueIndex(options, keyword);
    return index >= 0 ? options.at(index) : defaults.value(PresetScript::valueIndex(defaults, keyword));
}

QString valueInScript(const QString &keyword, const QByteArray &script, const QStringList &defaults)
{
    QString value = valueOf(keyword, {}, defaults);
    PresetScript::parseOption(script, keyword, value);
    return value;
}

// Scripts spell flags in one way. The readers of values take both forms of a stored line break.
bool isSameValue(QString one, QString other)
{
    for (QString *value : {&one, &other})
        value->replace(QLatin1String("\\\\r"), QLatin1String("\\r"));
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

} // namespace

struct Preset::Private
{
    struct Unparsed
    {
        QByteArray script;
        QStringList optionNames; // as they were when the script was read
    };

    Private(const QString &printer, const QString &file, const QString &name_, const QString &description_, int index_)
        : printerName(printer)
        , fileName(file)
        , name(name_)
        , description(description_)
        , index(index_)
        , state(file.isEmpty() ? Clean : NotLoaded)
    {
        extendOptionNames(printer);
    }

    const QStringList &optionNames() const { return PresetScript::optionNames(printerName); }
    bool load();
    void loadIfNeeded();
    void parseOptions();
    PresetScript::Content content(const QString &file, const QStringList &values) const;
    bool create(const QStringList &defaults);

    const QString printerName;
    QString fileName;
    QStringList options;
    Unparsed unparsed; // the script whose options are not among the options yet
    QString name;
    QString description;
    int index;
    _State state;
    bool isNew = false;
    QSizeF userPageSize{-1.0, -1.0};
};

Preset::Preset(const QString &printer, const QString &file, const QStringList &options, const QString &name,
               const QString &description, int index)
    : d(std::make_unique<Private>(printer, file, name, description, index))
{
    if (!options.isEmpty())
        setOptions(options);
}

Preset::~Preset() = default;

// ----- accessors that never read the script -----

QString Preset::printerName() const
{
    return d->printerName;
}

QString Preset::fileName() const
{
    return d->fileName;
}

Preset::_State Preset::state() const
{
    return d->state;
}

void Preset::setState(_State state)
{
    d->state = state;
}

void Preset::setUserPageSize(const QSizeF &size)
{
    d->userPageSize = size;
}

void Preset::setNew()
{
    d->isNew = true;
    d->state = Modified;
}

bool Preset::isNew() const
{
    return d->isNew;
}

QStringList Preset::getOptionNames() const
{
    return d->optionNames();
}

QString Preset::pathName() const
{
    return pathName(d->printerName, d->fileName);
}

QString Preset::pathName(const QString &printer, const QString &file)
{
    return PresetScript::pathName(printer, file);
}

QString Preset::ppdhack() const
{
    return PresetScript::ppdhack(d->userPageSize, d->printerName);
}

// ----- accessors that read the script first -----

QString Preset::name()
{
    d->loadIfNeeded();
    return d->name.isEmpty() ? d->fileName : d->name;
}

QString Preset::description()
{
    d->loadIfNeeded();
    return d->description;
}

int Preset::index()
{
    d->loadIfNeeded();
    return d->index;
}

QStringList Preset::options()
{
    d->loadIfNeeded();
    d->parseOptions();
    return d->options;
}

QSizeF Preset::getUserPageSize()
{
    d->loadIfNeeded();
    return d->userPageSize;
}

void Preset::setName(const QString &name)
{
    // An empty name already shows the file name.
    if (name == this->name() || name == d->name)
        return;
    d->name = name;
    d->state = Modified;
}

void Preset::setDescription(const QString &description)
{
    if (description == this->description())
        return;
    d->description = description;
    d->state = Modified;
}

void Preset::setIndex(int index)
{
    if (index == this->index())
        return;
    d->index = index;
    d->state = Modified;
}

void Preset::Private::loadIfNeeded()
{
    // If this fails, the state is unchanged and the next request tries again.
    if (state == NotLoaded)
        load();
}

// ----- options -----

bool Preset::setOptions(const QStringList &list)
{
    d->loadIfNeeded();
    d->parseOptions();
    bool changed = false;
    for (const QString &keyword : d->optionNames()) {
        const auto given = PresetScript::valueIndex(list, keyword);
        if (given < 0)
            continue;
        const auto present = PresetScript::valueIndex(d->options, keyword);
        if (present >= 0 && d->options.at(present) == list.at(given))
            continue;
        if (present >= 0)
            d->options[present] = list.at(given);
        else
            d->options << keyword << list.at(given);
        changed = true;
    }
    if (changed)
        d->state = Modified;
    return changed;
}

bool Preset::clearOptions()
{
    d->parseOptions();
    const bool known = d->state == Clean || d->state == Modified;
    if (d->state == Deleted || (known && d->options.isEmpty()))
        return false;
    d->options.clear();
    d->state = Modified;
    return true;
}

QStringList Preset::valuesNotHeld(const QStringList &options, const QStringList &defaults)
{
    const QStringList own = this->options();
    if (d->fileName.isEmpty())
        return {};
    const QByteArray toWrite = PresetScript::text(d->content(d->fileName, own), defaults);
    const QByteArray script = d->state == Modified ? toWrite : PresetScript::read(pathName()).value_or(toWrite);
    const QByteArray ofPrinter = PresetScript::text(d->content(d->fileName, options), defaults);
    QStringList keywords;
    for (const QString &keyword : d->optionNames()) {
        const QString wanted = valueOf(keyword, options, defaults);
        const QString held = valueInScript(keyword, script, defaults);
        const bool isOfPrinter = isSameValue(valueOf(keyword, own, defaults), wanted)
                                 || isSameValue(held, valueInScript(keyword, ofPrinter, defaults));
        if (isOfPrinter && !isSameValue(held, wanted))
            keywords << keyword;
    }
    return keywords;
}

// ----- the script -----

bool Preset::load()
{
    return d->load();
}

bool Preset::Private::load()
{
    const std::optional<QByteArray> data = PresetScript::read(pathName(printerName, fileName));
    if (!data)
        return false;

    PresetScript::parseText(*data, QStringLiteral("name"), name);
    PresetScript::parseText(*data, QStringLiteral("description"), description);
    QString number;
    bool isNumber = false;
    parseAttribute(*data, QStringLiteral("index"), number);
    index = number.toInt(&isNumber);
    if (!isNumber)
        index = -1;

    options.clear();
    unparsed = {*data, optionNames()};
    parsePpdhack(*data, userPageSize);
    state = Clean;
    return true;
}

// A list of presets only needs their names, and parsing the options takes by far the longest.
void Preset::Private::parseOptions()
{
    const Unparsed script = std::exchange(unparsed, {});
    for (const QString &keyword : script.optionNames) {
        QString value;
        if (parseOption(script.script, keyword, value))
            options << keyword << value;
    }
}

PresetScript::Content Preset::Private::content(const QString &file, const QStringList &values) const
{
    return {printerName, file, name.isEmpty() ? file : name, description, index, values, userPageSize};
}

bool Preset::save(const QStringList &defaults)
{
    if (d->state < Modified || d->fileName.isEmpty())
        return true;
    if (d->index >= 0) {
        MessageBox::show(QMessageBox::Warning, QCoreApplication::translate("Preset", "Warning"),
                         QCoreApplication::translate("Preset", "%1 cannot be modified.").arg(name()));
        load();
        return false;
    }
    // An existing script in place of one that was never written belongs to another program.
    if (d->state == Deleted)
        return !d->isNew && PresetScript::remove(pathName());
    if (d->state != Modified)
        return false;

    d->parseOptions();
    if (d->isNew ? !d->create(defaults)
                 : !PresetScript::write(pathName(), PresetScript::text(d->content(d->fileName, d->options), defaults)))
        return false;
    d->isNew = false;
    d->state = Clean;
    return true;
}

// Writes the script of a new preset under the first file name that is free.
bool Preset::Private::create(const QStringList &defaults)
{
    auto stemSize = fileName.size();
    while (stemSize > 0 && fileName.at(stemSize - 1).isDigit())
        --stemSize;
    int number = std::max(1, fileName.mid(stemSize).toInt());
    QString file = fileName;
    for (;;) {
        const PresetFolder::Result result =
            PresetScript::create(pathName(printerName, file), PresetScript::text(content(file, options), defaults));
        if (result == PresetFolder::Failed)
            return false;
        if (result == PresetFolder::Done)
            break;
        file = fileName.left(stemSize) + QString::number(++number);
    }
    fileName = file;
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
