// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef NUMBERFIELD_H
#define NUMBERFIELD_H

#include "properties/ModelFamily.h"

#include <QObject>
#include <QString>

#include <initializer_list>
#include <optional>

class QKeyEvent;
class QLineEdit;
class QValidator;

/**
 * A line edit that holds a number with a decimal point, whatever the locale.
 *
 * Its validator refuses keys that would lead out of the range; a note at the field says why. A comma that is typed or
 * pasted becomes a point, and a zero is left out if the range does not allow it alone ("0.5" becomes ".5"). The tool
 * tip shows the range and the length in millimetres.
 */
class NumberField : public QObject
{
    Q_OBJECT

public:
    /** Limits @p edits to lengths in this range, with two decimals. They share a validator, owned by @p parent. */
    static void acceptInches(std::initializer_list<QLineEdit *> edits, const ModelFamily::Inches &range,
                             QObject *parent);

    /** Limits @p edits to whole numbers from -@p limit to @p limit. They share a validator, owned by @p parent. */
    static void acceptDots(std::initializer_list<QLineEdit *> edits, int limit, QObject *parent);

    /** Shows millimetres in the tool tip of @p edit, which holds dots. @param resolution in dots per inch. */
    static void setResolution(QLineEdit *edit, double resolution);

    /** Adds @p note to the tool tip of @p edit; while that is disabled, the tool tip is the note alone. */
    static void setNote(QLineEdit *edit, const QString &note);

    /** Adds @p warning to the tool tip of @p edit; an empty one removes it. */
    static void setWarning(QLineEdit *edit, const QString &warning);

    /** The widest text that @p edit accepts; null when it is not a number field. */
    static QString widestText(const QLineEdit *edit);

    /** @name What is shown; nothing if it is not a number, because stored values must be kept */
    /** @{ */
    static QString inchesText(std::optional<double> inches);
    static QString wholeText(std::optional<int> number);
    /** @} */

    /** @name What @p edit holds */
    /** @{ */
    static std::optional<double> number(const QLineEdit *edit);
    static std::optional<int> whole(const QLineEdit *edit);
    static std::optional<int> rounded(const QLineEdit *edit); ///< A number with a fraction is rounded, halves upward.
    /** @} */

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    struct Texts // to be translated
    {
        const char *range;
        const char *length;
        const char *refusal;
    };
    static const Texts inchesTexts;
    static const Texts dotsTexts;

    explicit NumberField(QLineEdit *edit);

    static NumberField *of(QLineEdit *edit);
    void accept(QValidator *validator, const Texts &texts, double perInch);
    bool pressKey(const QKeyEvent &event);
    bool passOver(const QKeyEvent &event);
    bool accepts(QString text) const;
    void describe();
    void explainRefusal();

    QLineEdit *const edit;
    const Texts *texts = nullptr;
    double unitsPerInch = 0.0; // 0 when not known
    QString bottom; // as shown
    QString top;
    QString note;
    QString warning;
};

#endif
