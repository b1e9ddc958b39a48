// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef CONFLICTS_H
#define CONFLICTS_H

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

class CupsSupport;

/** Options that the constraints of the current printer's PPD file do not allow together. */
namespace Conflicts {

/** Two conflicting options: their keywords, and the texts that users know them and their choices by. */
struct Pair
{
    std::array<QString, 2> keywords;
    std::array<QString, 2> texts; ///< "Print Mode: Cut"
};

/** Whether the PPD file has any constraints; false without a PPD file. */
bool arePossible(const CupsSupport &cups);

/** The pairs among @p options, an option list, and the PPD defaults for the others. */
std::vector<Pair> among(const CupsSupport &cups, const QStringList &options);

/** The options, as an option list, that CUPS proposes to change so that @p options have no conflict; may be empty. */
QStringList resolution(const CupsSupport &cups, const QStringList &options);

/** The text that users know an option and its choice by: "Print Mode: Cut". */
QString text(const CupsSupport &cups, const QString &keyword, const QString &choice);

} // namespace Conflicts

#endif
