// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef USERCOMMANDS_H
#define USERCOMMANDS_H

#include "properties/LabelSettings.h"

#include <QString>

#include <array>

class QRadioButton;
class Ui_PrintPropertiesDialog;

/**
 * The four user commands of the properties dialog, in the order of LabelSettings::commands. They share one edit, which
 * shows the selected one.
 */
class UserCommands
{
public:
    /** The keywords that the commands are stored under. */
    static constexpr std::array<const char *, LabelSettings::commands.size()> keywords{"JobStart", "LabelStart",
                                                                                       "LabelEnd", "JobEnd"};

    /** @param ui must outlive this object. */
    explicit UserCommands(const Ui_PrintPropertiesDialog &ui);

    /** Replaces all commands; missing ones become empty. */
    void show(const LabelSettings &settings);

    /** Copies all commands to @p settings. */
    void copyTo(LabelSettings &settings) const;

    /** Makes the edit show the command at this position. */
    void select(std::size_t position);

    /** Takes the text of the edit as the selected command. @return whether it has changed. */
    bool takeText();

    /** The name that users know the selected command by. */
    QString selectedName() const;

    /** The name of the command with this keyword; null if it is no user command. */
    QString name(const QString &keyword) const;

private:
    std::array<const QRadioButton *, keywords.size()> radioButtons() const;
    QString text() const;
    void showSelected();

    const Ui_PrintPropertiesDialog &ui;
    std::array<QString, keywords.size()> commands;
    std::size_t selected = keywords.size() - 1;
};

#endif
