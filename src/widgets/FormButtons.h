// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef FORMBUTTONS_H
#define FORMBUTTONS_H

class QWidget;

namespace FormButtons {

/**
 * Makes the buttons of @p form show their icons beside their texts in right-to-left languages, where styles put the
 * icon to the right of the middle and the text to the left end of the button.
 */
void keepIconsBesideTexts(QWidget &form);

} // namespace FormButtons

#endif
