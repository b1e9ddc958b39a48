// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FORMBUTTONS_H
#define FORMBUTTONS_H

class QWidget;

namespace FormButtons {

/**
 * Has the buttons of @p form show their icons beside their texts also where one reads from the right: there, styles put
 * the icon to the right of the middle and the text to the left end of the button.
 */
void keepIconsBesideTexts(QWidget &form);

} // namespace FormButtons

#endif
