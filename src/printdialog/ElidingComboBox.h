// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef ELIDINGCOMBOBOX_H
#define ELIDINGCOMBOBOX_H

#include <QComboBox>

/**
 * A list whose current entry has an ellipsis in the middle if it is too long, so that entries that begin alike can be
 * told apart; a tool tip shows all of it. The open list is as wide as its entries.
 */
class ElidingComboBox : public QComboBox
{
public:
    using QComboBox::QComboBox;

    /** The width at which no entry is cut, in pixels. */
    int wholeWidth() const;

    void showPopup() override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownText(const QStyleOptionComboBox &option) const;
};

#endif
