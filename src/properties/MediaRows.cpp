// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/MediaRows.h"

#include "properties/ModelFamily.h"
#include "properties/PrintPropertiesDialog.h"
#include "ui_PrintPropertiesDialog.h"

#include <initializer_list>
#include <utility>

namespace {

void setAllVisible(std::initializer_list<QWidget *> widgets, bool isVisible)
{
    for (QWidget *widget : widgets)
        widget->setVisible(isVisible);
}

} // namespace

MediaRows::MediaRows(const Ui_PrintPropertiesDialog &ui_, const ModelFamily &family_)
    : ui(ui_)
    , family(family_)
{
}

std::optional<MediaRows::Gap> MediaRows::gapOf(int type)
{
    switch (type) {
    case CupsSupport::LabelsWithGaps:
        return Gap{&LabelSettings::gapSize, &LabelSettings::gapOffset};
    case CupsSupport::LabelsWithMarks:
        return Gap{&LabelSettings::markSize, &LabelSettings::markOffset};
    default:
        return std::nullopt;
    }
}

int MediaRows::typeAt(int index) const
{
    const QVariant type = ui.mediaType->itemData(index);
    return type.isValid() ? type.toInt() : noType;
}

int MediaRows::listedType() const
{
    return typeAt(ui.mediaType->currentIndex());
}

void MediaRows::showInList(int type)
{
    ui.mediaType->setCurrentIndex(ui.mediaType->findData(type));
}

void MediaRows::showRows(int type)
{
    shown = type;
    setLabels(type);
    setVisible(type);
}

void MediaRows::showLabels()
{
    setLabels(shown);
}

void MediaRows::showMost()
{
    setVisible(CupsSupport::LabelsWithMarks);
    setLabels(CupsSupport::LabelsWithGaps);
    const QString size = ui.gapSizeLabel->text();
    const QString offset = ui.gapOffsetLabel->text();
    setLabels(CupsSupport::LabelsWithMarks);
    for (const auto &[label, other] : {std::pair(ui.gapSizeLabel, size), std::pair(ui.gapOffsetLabel, offset)})
        if (label->fontMetrics().horizontalAdvance(other) > label->fontMetrics().horizontalAdvance(label->text()))
            label->setText(other);
}

void MediaRows::setLabels(int type)
{
    if (type == CupsSupport::LabelsWithGaps) {
        ui.gapSizeLabel->setText(PrintPropertiesDialog::tr("Gap Size"));
        ui.gapOffsetLabel->setText(PrintPropertiesDialog::tr("Gap Offset"));
    } else if (type == CupsSupport::LabelsWithMarks) {
        ui.gapSizeLabel->setText(PrintPropertiesDialog::tr("Black Mark Size"));
        ui.gapOffsetLabel->setText(PrintPropertiesDialog::tr("Black Mark Offset"));
    }
}

void MediaRows::setVisible(int type)
{
    const bool marks = type == CupsSupport::LabelsWithMarks;
    const bool gaps = type == CupsSupport::LabelsWithGaps;
    setAllVisible({ui.gapSize, ui.gapSizeLabel, ui.gapSizeUnits}, gaps || marks);
    setAllVisible({ui.gapOffset, ui.gapOffsetLabel, ui.gapOffsetUnits}, marks || (gaps && family.isOffsetGroup));
    setAllVisible({ui.feed, ui.feedLabel, ui.feedUnits}, family.isOffsetGroup || !(gaps || marks));
}
