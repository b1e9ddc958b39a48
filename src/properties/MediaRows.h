// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef MEDIAROWS_H
#define MEDIAROWS_H

#include "properties/LabelSettings.h"

#include <optional>

class Ui_PrintPropertiesDialog;
struct ModelFamily;

/**
 * The media type in the properties dialog, and the rows that depend on it. The rows of labels with gaps double as those
 * of labels with black marks.
 *
 * Types are those of CupsSupport::_Category. Other numbers are treated as continuous media.
 */
class MediaRows
{
public:
    /** What the gap fields hold. */
    struct Gap
    {
        LabelSettings::Length size;
        LabelSettings::Length offset;
    };

    static constexpr int noType = -1;

    /** Both must outlive this object. */
    MediaRows(const Ui_PrintPropertiesDialog &ui, const ModelFamily &family);

    /** What the gap fields hold for this type; nothing for media without gaps and marks. */
    static std::optional<Gap> gapOf(int type);

    /** The type of an entry of the list, which need not have all types; noType if there is no such entry. */
    int typeAt(int index) const;

    /** The type that the list shows; noType if it shows none. */
    int listedType() const;

    /** Makes the list show this type, or none if it does not have it. */
    void showInList(int type);

    /** Shows the rows of this type with their labels. */
    void showRows(int type);

    /** The type of the last showRows(). */
    int shownType() const { return shown; }

    /** Sets the labels of the gap fields in the present language. */
    void showLabels();

    /** Shows the most rows with the widest labels of any type, for measuring; to be followed by showRows(). */
    void showMost();

private:
    void setLabels(int type);
    void setVisible(int type);

    const Ui_PrintPropertiesDialog &ui;
    const ModelFamily &family;
    int shown = CupsSupport::Continuous;
};

#endif
