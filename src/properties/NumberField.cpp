// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/NumberField.h"

#include "cups/Rounding.h"
#include "cups/Units.h"
#include "properties/DoubleValidator.h"
#include "properties/FieldLocale.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int decimals = 2;

// Every number that a line edit shows goes through this.
const QString numberFormat = QStringLiteral("%1");

// Many keypads have a comma where the fields have a point.
QString withPoints(QString text)
{
    return text.replace(QLatin1Char(','), QLatin1Char('.'));
}

bool hasComma(const QString &text)
{
    return text.contains(QLatin1Char(','));
}

// The ends of the range as the field would show them.
QString bottomText(const QValidator *validator)
{
    const auto *inches = qobject_cast<const QDoubleValidator *>(validator);
    return inches ? NumberField::inchesText(inches->bottom())
                  : NumberField::wholeText(qobject_cast<const QIntValidator *>(validator)->bottom());
}

QString topText(const QValidator *validator)
{
    const auto *inches = qobject_cast<const QDoubleValidator *>(validator);
    return inches ? NumberField::inchesText(inches->top())
                  : NumberField::wholeText(qobject_cast<const QIntValidator *>(validator)->top());
}

QString withWidestDigit(QString text, const QFontMetrics &metrics)
{
    const QString digits = QStringLiteral("0123456789");
    const QChar widest = *std::max_element(
        digits.begin(), digits.end(),
        [&metrics](QChar one, QChar other) {
            return metrics.horizontalAdvance(one) < metrics.horizontalAdvance(other);
        });
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return c.isDigit(); }, widest);
    return text;
}

} // namespace

const NumberField::Texts NumberField::inchesTexts = {
    QT_TR_NOOP("%1 to %2 inches"),
    QT_TR_NOOP("%1 inches = %2 mm"),
    QT_TR_NOOP("Only numbers from %1 to %2, with two decimals at most."),
};
const NumberField::Texts NumberField::dotsTexts = {
    QT_TR_NOOP("%1 to %2 dots"),
    QT_TR_NOOP("%1 dots = %2 mm"),
    QT_TR_NOOP("Only whole numbers from %1 to %2."),
};

NumberField::NumberField(QLineEdit *edit_)
    : QObject(edit_)
    , edit(edit_)
{
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::textChanged, this, &NumberField::describe);
    connect(edit, &QLineEdit::inputRejected, this, &NumberField::explainRefusal);
}

// The object of this edit, created on first use.
NumberField *NumberField::of(QLineEdit *edit)
{
    auto *field = edit->findChild<NumberField *>(QString(), Qt::FindDirectChildrenOnly);
    return field ? field : new NumberField(edit);
}

void NumberField::accept(QValidator *validator, const Texts &texts_, double perInch)
{
    edit->setValidator(validator);
    texts = &texts_;
    unitsPerInch = perInch;
    bottom = bottomText(validator);
    top = topText(validator);
    describe();
}

void NumberField::acceptInches(std::initializer_list<QLineEdit *> edits, const ModelFamily::Inches &range,
                               QObject *parent)
{
    auto *validator = new DoubleValidator(range.bottom, range.top, decimals, parent);
    for (QLineEdit *edit : edits)
        of(edit)->accept(validator, inchesTexts, 1.0);
}

void NumberField::acceptDots(std::initializer_list<QLineEdit *> edits, int limit, QObject *parent)
{
    auto *validator = new QIntValidator(-limit, limit, parent);
    validator->setLocale(fieldLocale());
    for (QLineEdit *edit : edits)
        of(edit)->accept(validator, dotsTexts, of(edit)->unitsPerInch);
}

void NumberField::setResolution(QLineEdit *edit, double resolution)
{
    of(edit)->unitsPerInch = resolution;
    of(edit)->describe();
}

void NumberField::setNote(QLineEdit *edit, const QString &note)
{
    of(edit)->note = note;
    of(edit)->describe();
}

void NumberField::setWarning(QLineEdit *edit, const QString &warning)
{
    of(edit)->warning = warning;
    of(edit)->describe();
}

QString NumberField::widestText(const QLineEdit *edit)
{
    if (!edit->validator())
        return {};
    const QFontMetrics metrics = edit->fontMetrics();
    const QString one = withWidestDigit(bottomText(edit->validator()), metrics);
    const QString other = withWidestDigit(topText(edit->validator()), metrics);
    return metrics.horizontalAdvance(one) > metrics.horizontalAdvance(other) ? one : other;
}

QString NumberField::inchesText(std::optional<double> inches)
{
    return inches ? numberFormat.arg(*inches, 0, 'f', decimals) : QString();
}

QString NumberField::wholeText(std::optional<int> number)
{
    return number ? numberFormat.arg(*number) : QString();
}

std::optional<double> NumberField::number(const QLineEdit *edit)
{
    bool ok = false;
    const double value = edit->text().toDouble(&ok);
    return ok ? std::optional<double>(value) : std::nullopt;
}

std::optional<int> NumberField::whole(const QLineEdit *edit)
{
    bool ok = false;
    const int value = edit->text().toInt(&ok);
    return ok ? std::optional<int>(value) : std::nullopt;
}

std::optional<int> NumberField::rounded(const QLineEdit *edit)
{
    const std::optional<double> value = number(edit);
    return value ? std::optional<int>(roundHalfUp(*value)) : std::nullopt;
}

// ----- typing -----

bool NumberField::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && pressKey(*static_cast<QKeyEvent *>(event)))
        return true;
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::EnabledChange)
        describe();
    if (event->type() == QEvent::InputMethod) {
        const auto *typed = static_cast<QInputMethodEvent *>(event);
        if (hasComma(typed->commitString())) {
            QInputMethodEvent other(typed->preeditString(), typed->attributes());
            other.setCommitString(withPoints(typed->commitString()), typed->replacementStart(),
                                  typed->replacementLength());
            QCoreApplication::sendEvent(edit, &other);
            return true;
        }
    }
    return QObject::eventFilter(object, event);
}

// Returns whether there is nothing more to do for the key.
bool NumberField::pressKey(const QKeyEvent &event)
{
    const QString pasted = event.matches(QKeySequence::Paste) ? QGuiApplication::clipboard()->text() : QString();
    if (hasComma(pasted)) {
        edit->insert(withPoints(pasted));
        return true;
    }
    if (hasComma(event.text())) {
        QKeyEvent other(event.type(), event.key(), event.modifiers(), withPoints(event.text()), event.isAutoRepeat());
        QCoreApplication::sendEvent(edit, &other);
        return true;
    }
    return passOver(event);
}

// If 0 is out of range, "0.5" can be neither typed nor deleted by way of "0" and "0.". A zero at the beginning is
// therefore left out, and a deletion that would leave only zero deletes that too.
bool NumberField::passOver(const QKeyEvent &event)
{
    const bool isSelected = edit->hasSelectedText();
    QString text = edit->text();
    if (event.text() == QLatin1String("0")) {
        if (text != edit->selectedText())
            return false;
        text = event.text();
    } else if (event.key() == Qt::Key_Backspace && !isSelected) {
        text.remove(edit->cursorPosition() - 1, edit->cursorPosition() > 0 ? 1 : 0);
    } else if (event.key() == Qt::Key_Delete && !isSelected) {
        text.remove(edit->cursorPosition(), 1);
    } else {
        return false;
    }
    const bool isZero = text.contains(QLatin1Char('0')) && text.toDouble() == 0.0;
    if (!isZero || accepts(text))
        return false;
    edit->selectAll();
    edit->del();
    return true;
}

bool NumberField::accepts(QString text) const
{
    int position = 0;
    return edit->validator()->validate(text, position) != QValidator::Invalid;
}

// ----- tool tips -----

void NumberField::describe()
{
    if (!edit->isEnabled() && !note.isEmpty()) {
        edit->setToolTip(note);
        return;
    }
    QStringList lines{tr(texts->range).arg(bottom, top)};
    const std::optional<double> value = number(edit);
    if (value && unitsPerInch > 0)
        lines << tr(texts->length).arg(edit->text(), inchesText(*value / unitsPerInch * millimetresPerInch));
    for (const QString &text : {note, warning})
        if (!text.isEmpty())
            lines << text;
    edit->setToolTip(lines.join(QLatin1Char('\n')));
}

// The field still holds the text that is about to be refused. This includes commas that are dropped, or pasted with the
// mouse.
void NumberField::explainRefusal()
{
    const QString repaired = withPoints(edit->text());
    if (hasComma(edit->text()) && accepts(repaired)) {
        QMetaObject::invokeMethod(
            this, [this, repaired] { edit->setText(repaired); }, Qt::QueuedConnection);
    } else if (edit->hasFocus()) {
        QToolTip::showText(edit->mapToGlobal(QPoint(0, edit->height() / 2)), tr(texts->refusal).arg(bottom, top), edit);
    }
}
