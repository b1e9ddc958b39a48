// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef DRIVER_H
#define DRIVER_H

#include <QPoint>
#include <QString>

class QComboBox;
class QWidget;
class QWindow;

/**
 * Operates the properties dialog like a user, by mouse clicks and key strokes sent to its window, finding the
 * widgets by their names. Ends the process with status 3 if the dialog is not as expected.
 *
 * To be called while the dialog is running.
 */
class Driver
{
public:
    /** Waits until the dialog is shown and has the keyboard focus. */
    Driver();

    /** Changes settings on every tab, creates a preset from them and presses OK. */
    void edit();

    /** Compares what the dialog shows with what edit() entered, and prints both. @return whether they agree. */
    bool check();

    /** Saves a screenshot of the dialog for each tab as FOLDER/NUMBER-TAB.png. */
    void takeScreenshots(const QString &folder);

    /** Presses Cancel. */
    void cancel();

private:
    template<class Widget>
    Widget *find(const char *name) const;
    QWindow *window() const;
    void click(QWidget *widget, QPoint position);
    void click(QWidget *widget);
    void clickButton(const char *name);
    void showTab(int index);
    void choose(QComboBox *box, int index);
    void type(const QString &text);
    void retype(const char *name, const QString &text);

    QWidget *dialog = nullptr;
};

#endif
