// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef ICONS_H
#define ICONS_H

#include <QIcon>
#include <QStyle>

class QAbstractButton;

/** Icons that take long to make, compared with the opening of a dialog. They are kept in Qt's cache of pixmaps. */
namespace Icons {

/** A picture without its background. */
QIcon masked(const QString &file);

/**
 * Gives @p button an icon of its style, in one size only: without an icon theme, styles decode their icons in all
 * sizes.
 */
void showStyleIcon(QAbstractButton *button, QStyle::StandardPixmap icon);

} // namespace Icons

#endif
