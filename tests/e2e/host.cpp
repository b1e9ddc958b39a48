// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT
//
// A host that opens the properties dialog, and whose exit status is the dialog's result. Each line on its standard
// input is answered by a line with the state of the dialog, as JSON: where its widgets are and what they show. It only
// reports: the dialog must be operated by mouse and keyboard.

#include <PropertiesDialog/PropertiesDialog.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>
#include <QSocketNotifier>
#include <QTabBar>

#include <cstdio>

#include <unistd.h>

namespace {

QJsonArray onScreen(const QWidget *widget, const QRect &rect)
{
    const QPoint corner = widget->mapToGlobal(rect.topLeft());
    return {corner.x(), corner.y(), rect.width(), rect.height()};
}

// What the user sees in it; undefined for widgets that show nothing of interest.
QJsonValue shownBy(const QWidget *widget)
{
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->text();
    if (const auto *edit = qobject_cast<const QPlainTextEdit *>(widget))
        return edit->toPlainText();
    if (const auto *slider = qobject_cast<const QSlider *>(widget))
        return slider->value();
    if (const auto *list = qobject_cast<const QComboBox *>(widget))
        return list->currentText();
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *group = qobject_cast<const QGroupBox *>(widget); group && group->isCheckable())
        return group->isChecked();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget); button && button->isCheckable())
        return button->isChecked();
    return QJsonValue::Undefined;
}

QJsonObject state()
{
    const QWidget *dialog = QApplication::activeModalWidget();
    if (!dialog)
        return {};
    QJsonObject widgets;
    const QList<QWidget *> children = dialog->findChildren<QWidget *>();
    for (const QWidget *widget : children) {
        if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"))
            continue;
        QJsonObject object{{"rect", onScreen(widget, widget->rect())},
                           {"visible", widget->isVisible()},
                           {"enabled", widget->isEnabled()},
                           {"focus", widget->hasFocus()}};
        if (const QJsonValue shown = shownBy(widget); !shown.isUndefined())
            object.insert("shows", shown);
        widgets.insert(widget->objectName(), object);
    }
    QJsonArray tabs;
    const auto *bar = dialog->findChild<QTabBar *>();
    for (int i = 0; i < bar->count(); ++i)
        tabs << onScreen(bar, bar->tabRect(i));
    return {{"window", double(dialog->winId())},
            {"title", dialog->windowTitle()},
            {"active", dialog->isActiveWindow()},
            {"popup", QApplication::activePopupWidget() != nullptr},
            {"tab", bar->currentIndex()},
            {"tabs", tabs},
            {"widgets", widgets}};
}

void answer()
{
    char buffer[256];
    const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
    if (count <= 0) // the other end has closed
        std::_Exit(3);
    for (ssize_t i = 0; i < count; ++i) {
        if (buffer[i] == '\n') {
            std::puts(QJsonDocument(state()).toJson(QJsonDocument::Compact).constData());
            std::fflush(stdout);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    const QSocketNotifier questions(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&questions, &QSocketNotifier::activated, &app, &answer);
    return propertiesDialog();
}
