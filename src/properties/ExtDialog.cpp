// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/ExtDialog.h"

#include "cups/CupsSupport.h"
#include "ui_ExtDialog.h"
#include "widgets/FormButtons.h"
#include "widgets/FormRoom.h"
#include "widgets/WheelGuard.h"

#include <QCoreApplication>
#include <QEvent>
#include <QStyle>

#include <algorithm>
#include <array>

namespace {

// The choices in the order of the list. A leading blank takes the place of a plus sign, so that the texts line up.
constexpr std::array<const char *, 7> offsetTexts = {
    QT_TRANSLATE_NOOP("ExtDialog", "-0.75mm"), QT_TRANSLATE_NOOP("ExtDialog", "-0.50mm"),
    QT_TRANSLATE_NOOP("ExtDialog", "-0.25mm"), QT_TRANSLATE_NOOP("ExtDialog", " 0.00mm"),
    QT_TRANSLATE_NOOP("ExtDialog", " 0.25mm"), QT_TRANSLATE_NOOP("ExtDialog", " 0.50mm"),
    QT_TRANSLATE_NOOP("ExtDialog", " 0.75mm"),
};

// The form's places, for usual fonts and short words.
constexpr QSize formSize(280, 90);
constexpr QRect labelPlace(10, 10, 91, 31);
constexpr QRect listPlace(100, 10, 171, 31);
constexpr QRect buttonsPlace(100, 50, 171, 31);

// The index of " 0.00mm".
constexpr int zeroIndex = 3;

// The printer dots per quarter millimetre. Deliberately a whole number, so that the offset is one too; only
// a resolution of exactly 203 dpi has the small step.
int dotsPerStep(const CupsSupport &cups)
{
    return cups.getResolution().height() == 203.0 ? 2 : 3;
}

} // namespace

struct ExtDialog::Private
{
    void makeRoom(QDialog &dialog) const;

    Ui_ExtDialog ui;
    CupsSupport *cups;
};

ExtDialog::ExtDialog(QWidget *parent, CupsSupport *cups)
    : QDialog(parent)
    , d(new Private{{}, cups})
{
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint);
    d->ui.setupUi(this);
    FormButtons::keepIconsBesideTexts(*this);
    new WheelGuard(this);
    for (const char *text : offsetTexts)
        d->ui.offset->addItem(tr(text));
    d->makeRoom(*this);

    // The division truncates towards zero: an offset between two steps shows the one nearer to zero. An offset past the
    // last step gives an index past the list and so selects nothing, and OK then leaves the stored offset alone.
    d->ui.offset->setCurrentIndex(cups->getExtendedOffset() / dotsPerStep(*cups) + zeroIndex);
}

ExtDialog::~ExtDialog() = default;

void ExtDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        d->ui.retranslateUi(this);
        for (int index = 0; index < d->ui.offset->count(); ++index)
            d->ui.offset->setItemText(index, tr(offsetTexts[static_cast<std::size_t>(index)]));
        // Qt tells the buttons, whose texts are its own, after this dialog, which must make room for them.
        QCoreApplication::sendEvent(d->ui.buttonBox, event);
        d->makeRoom(*this);
    } else if (FormRoom::isChangedBy(*event)) {
        d->makeRoom(*this);
    }
}

// Moves the form's widgets apart if their texts need it, and to the other side for right-to-left languages.
void ExtDialog::Private::makeRoom(QDialog &dialog) const
{
    const QSize label = ui.offsetLabel->sizeHint();
    const QSize list = ui.offset->sizeHint();
    const QSize buttons = ui.buttonBox->sizeHint();
    const int wider = std::max(0, label.width() - (listPlace.left() - labelPlace.left()));
    const int wider2 = std::max({0, list.width() - listPlace.width(), buttons.width() - buttonsPlace.width()});
    const int higher = std::max({0, label.height() - labelPlace.height(), list.height() - listPlace.height()});
    const int higher2 = std::max(0, buttons.height() - buttonsPlace.height());
    dialog.setFixedSize(formSize + QSize(wider + wider2, higher + higher2));

    const auto place = [&dialog](QWidget *widget, const QRect &where) {
        widget->setGeometry(QStyle::visualRect(dialog.layoutDirection(), dialog.rect(), where));
    };
    place(ui.offsetLabel, labelPlace.adjusted(0, 0, wider, higher));
    place(ui.offset, listPlace.adjusted(wider, 0, wider + wider2, higher));
    place(ui.buttonBox, buttonsPlace.adjusted(wider, higher, wider + wider2, higher + higher2));
}

// The button box is also connected to accept() and reject(), which come first and end exec(). These two then only
// repeat the hiding and the result; either way is sufficient.

void ExtDialog::on_buttonBox_accepted()
{
    const int index = d->ui.offset->currentIndex();
    if (index >= 0)
        d->cups->setExtendedOffset((index - zeroIndex) * dotsPerStep(*d->cups));
    hide();
    setResult(Accepted);
}

void ExtDialog::on_buttonBox_rejected()
{
    hide();
    setResult(Rejected);
}
