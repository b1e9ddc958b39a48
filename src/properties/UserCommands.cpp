// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/UserCommands.h"

#include "ui_PrintPropertiesDialog.h"

#include <QTextDocument>

#include <utility>

UserCommands::UserCommands(const Ui_PrintPropertiesDialog &ui_)
    : ui(ui_)
{
}

void UserCommands::show(const LabelSettings &settings)
{
    for (std::size_t i = 0; i < commands.size(); ++i)
        commands[i] = (settings.*LabelSettings::commands[i]).value_or(QString());
    showSelected();
}

void UserCommands::copyTo(LabelSettings &settings) const
{
    for (std::size_t i = 0; i < commands.size(); ++i)
        settings.*LabelSettings::commands[i] = commands[i];
}

// The selection changes before the text, so that takeText(), which the edit's signal calls, finds no difference.
void UserCommands::select(std::size_t position)
{
    selected = position;
    showSelected();
}

bool UserCommands::takeText()
{
    const QString now = text();
    return now != std::exchange(commands[selected], now);
}

QString UserCommands::selectedName() const
{
    return radioButtons()[selected]->text();
}

QString UserCommands::name(const QString &keyword) const
{
    for (std::size_t i = 0; i < keywords.size(); ++i)
        if (keyword == QLatin1String(keywords[i]))
            return radioButtons()[i]->text();
    return QString();
}

std::array<const QRadioButton *, UserCommands::keywords.size()> UserCommands::radioButtons() const
{
    return {ui.jobStartRadioButton, ui.labelStartRadioButton, ui.labelEndRadioButton, ui.jobEndRadioButton};
}

// Unlike toPlainText(), this keeps no-break spaces, which would otherwise be lost from a stored command just by
// displaying it.
QString UserCommands::text() const
{
    QString text = ui.commandEdit->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    return text.replace(QChar::LineSeparator, QLatin1Char('\n'));
}

void UserCommands::showSelected()
{
    if (text() != commands[selected])
        ui.commandEdit->setPlainText(commands[selected]);
}
