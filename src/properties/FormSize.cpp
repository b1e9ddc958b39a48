// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// The members of the dialog that give the form the size that it needs.

#include "properties/NumberField.h"
#include "properties/PrintPropertiesDialogPrivate.h"
#include "widgets/FormRoom.h"

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
constexpr int asInStyle = -1;
constexpr int titleBarHeight = 40; // pixels; that of usual window managers, with the frame

// Of the note above the form, if there is one.
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

// What is left between widgets, in pixels.
struct PrintPropertiesDialog::Private::Room
{
    int betweenBoxes;
    int betweenButtons; // in the boxes for orientation and effects
    int aroundForm; // above and below
};

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

// Less is left between widgets where this keeps the form at its size, and only there.
QSize PrintPropertiesDialog::Private::tightenedSize()
{
    // A box needs nothing above it: its title keeps its frame apart.
    static constexpr Room rooms[] = {{asInStyle, asInStyle, asInStyle}, {0, asInStyle, 5}, {0, 2, 5}};
    const int height = formSize.height() + noteHeight(*q);
    for (const Room &room : rooms) {
        setRoom(room);
        const QSize needed = neededSize();
        if (needed.height() <= height)
            return needed;
    }
    setRoom(rooms[0]);
    return neededSize();
}

QSize PrintPropertiesDialog::Private::neededSize()
{
    FormRoom::freshenSizeHints(*q);
    for (QGroupBox *box : {ui.previewGroupBox, ui.orientationGroupBox, ui.effectsGroupBox}) {
        if (!statedSizes.contains(box))
            statedSizes.insert(box, box->minimumSize());
        box->setMinimumSize(statedSizes.value(box).expandedTo(box->minimumSizeHint()));
    }
    int scrolled = 0;
    for (QScrollArea *area : ui.tabs->findChildren<QScrollArea *>()) {
        const QSize page = area->widget()->minimumSizeHint();
        area->setMinimumWidth(page.width() + area->verticalScrollBar()->sizeHint().width());
        scrolled = std::max(scrolled, page.height() - area->minimumSizeHint().height());
    }
    ui.tabs->updateGeometry(); // it does not notice the changes of its pages
    return q->minimumSizeHint() + QSize(0, scrolled);
}

// Affects the dialog and the page that is the highest.
void PrintPropertiesDialog::Private::setRoom(const Room &room)
{
    ui.gridLayout_4->setVerticalSpacing(room.betweenBoxes);
    for (QGridLayout *box : {ui.gridLayout_6, ui.gridLayout_7})
        box->setVerticalSpacing(room.betweenButtons);
    ui.gridLayout_20->setContentsMargins(asInStyle, room.aroundForm, asInStyle, room.aroundForm);
}

// Moves what is on each page into a scroll area on it; the pages themselves stay, since the form refers to them. Returns
// whether they were changed.
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
