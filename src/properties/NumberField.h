// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef NUMBERFIELD_H
#define NUMBERFIELD_H

#include "properties/ModelFamily.h"

#include <QString>

#include <initializer_list>
#include <optional>

class QLineEdit;
class QObject;

/** Line edits that hold a number: what they accept, show and hold. Always with a decimal point, whatever the locale. */
namespace NumberField {

/** Has @p edits accept lengths in this range only, with two decimals. They share a validator, owned by @p parent. */
void acceptInches(std::initializer_list<QLineEdit *> edits, const ModelFamily::Inches &range, QObject *parent);

/** Has @p edits accept whole numbers from -@p limit to @p limit only. They share a validator, owned by @p parent. */
void acceptDots(std::initializer_list<QLineEdit *> edits, int limit, QObject *parent);

/** @name Showing a number; nothing if there is none, so that the stored value is kept */
/** @{ */
QString inchesText(std::optional<double> inches);
QString wholeText(std::optional<int> number);
/** @} */

/** @name What @p edit holds */
/** @{ */
std::optional<double> number(const QLineEdit *edit);
std::optional<int> whole(const QLineEdit *edit);
std::optional<int> rounded(const QLineEdit *edit); ///< A number with a fraction is rounded, halves upward.
/** @} */

} // namespace NumberField

#endif
