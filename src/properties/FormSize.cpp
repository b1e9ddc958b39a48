// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// The members of the dialog that give the form the size that it needs.

#include "widgets/FormRoom.h"
#include "properties/NumberField.h"
#include "properties/PrintPropertiesDialogPrivate.h"

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize formSize(450, 489);
constexpr int presetListWidth = 160; // pixels; the form's
constexpr int tightMargin = 5; // pixels
constexpr int asInStyle = -1;
constexpr int titleBarHeight = 40; // pixels; that of usual window managers, with the frame

// What is above the form.
int noteHeight(const QDialog &dialog)
{
    const QWidget *note = dialog.layout()->menuBar();
    return note ? note->heightForWidth(dialog.width()) : 0;
}

int widthFor(const QString &text, const QComboBox *list)
{
    QStyleOptionComboBox option;
    option.initFrom(list);
    const int margin = 2 * list->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, list);
    const QSize content(list->fontMetrics().horizontalAdvance(text) + margin, list->fontMetrics().height());
    return list->style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, list).width();
}

} // namespace

// The form's sizes are for usual fonts and short words. They grow where something would be cut off; pages that are then
// higher than the screen scroll.
void PrintPropertiesDialog::Private::makeRoom()
{
    widenFields();
    ui.tabs->setUsesScrollButtons(false); // so that the style tells what room all tabs need
    // With the most rows, so that the window stays as it is when the media type changes.
    media.showMost();
    const int available = q->screen()->availableGeometry().height() - titleBarHeight;
    QSize needed = tightenedSize();
    if (needed.height() > available && scrollPages())
        needed = neededSize();
    const QSize size = formSize.expandedTo(needed).boundedTo(QSize(QWIDGETSIZE_MAX, available));
    media.showRows(media.shownType());
    q->setFixedSize(size);
}

// Less is left between the boxes where this keeps the form at its size, and only there.
QSize PrintPropertiesDialog::Private::tightenedSize()
{
    const int height = formSize.height() + noteHeight(*q);
    setTight(false);
    const QSize usual = neededSize();
    if (usual.height() <= height)
        return usual;
    setTight(true);
    const QSize tight = neededSize();
    if (tight.height() <= height)
        return tight;
    setTight(false);
    return neededSize();
}

QSize PrintPropertiesDialog::Private::neededSize()
{
    FormRoom::freshenSizeHints(*q);
    for (QGroupBox *box : {ui.previewGroupBox, ui.orientationGroupBox, ui.effectsGroupBox})
        box->setMinimumSize(box->minimumSize().expandedTo(box->minimumSizeHint()));
    int scrolled = 0;
    for (QScrollArea *area : ui.tabs->findChildren<QScrollArea *>()) {
        const QSize page = area->widget()->minimumSizeHint();
        area->setMinimumWidth(page.width() + area->verticalScrollBar()->sizeHint().width());
        scrolled = std::max(scrolled, page.height() - area->minimumSizeHint().height());
    }
    ui.tabs->updateGeometry(); // its pages do not tell it
    return q->minimumSizeHint() + QSize(0, scrolled);
}

// Affects the dialog and the page that is the highest.
void PrintPropertiesDialog::Private::setTight(bool isTight)
{
    ui.gridLayout_4->setVerticalSpacing(isTight ? 0 : asInStyle); // the titles above the boxes keep these apart
    const int margin = isTight ? tightMargin : asInStyle;
    ui.gridLayout_20->setContentsMargins(asInStyle, margin, asInStyle, margin);
}

// What is on a page goes into a scroll area on it. The pages stay, as the form knows them. Returns whether they were changed.
bool PrintPropertiesDialog::Private::scrollPages()
{
    if (ui.tabs->findChild<QScrollArea *>())
        return false;
    for (int i = 0; i < ui.tabs->count(); ++i) {
        QWidget *page = ui.tabs->widget(i);
        auto *content = new QWidget;
        content->setLayout(page->layout());
        auto *area = new QScrollArea(page);
        area->setFrameShape(QFrame::NoFrame);
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setWidgetResizable(true);
        area->setFocusPolicy(Qt::NoFocus);
        area->setWidget(content);
        area->viewport()->setAutoFillBackground(false);
        content->setAutoFillBackground(false);
        auto *layout = new QVBoxLayout(page);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(area);
    }
    return true;
}

void PrintPropertiesDialog::Private::widenFields()
{
    for (QComboBox *list : {ui.preset0, ui.preset1})
        list->setMinimumWidth(std::max(presetListWidth, widthFor(QStringLiteral("<Current Settings>"), list)));
    for (QLineEdit *edit : q->findChildren<QLineEdit *>()) {
        const QFontMetrics metrics = edit->fontMetrics();
        const int frame = edit->sizeHint().width() - 17 * metrics.horizontalAdvance(QLatin1Char('x')); // as Qt makes it
        const int cursor = edit->style()->pixelMetric(QStyle::PM_TextCursorWidth);
        const int needed = metrics.horizontalAdvance(NumberField::widestText(edit)) + frame + cursor;
        if (!statedWidths.contains(edit))
            statedWidths.insert(edit, edit->maximumWidth());
        edit->setMaximumWidth(std::max(needed, statedWidths.value(edit)));
        edit->setMinimumWidth(needed);
        edit->setMinimumHeight(std::max(edit->minimumHeight(), edit->minimumSizeHint().height()));
    }
}
