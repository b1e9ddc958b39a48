// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

// How long the preview of the properties dialog takes to repaint, and whether that increases with use.

#include "Benchmark.h"

#include <PropertiesDialog/PropertiesDialog.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QImage>

#include <malloc.h>

using namespace Benchmark;

namespace {

constexpr double goal = 0.2; // milliseconds

QWidget *previewOf(const QDialog *dialog)
{
    const QList<QWidget *> widgets = dialog->findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        if (qstrcmp(widget->metaObject()->className(), "Preview") == 0)
            return widget;
    qFatal("the dialog has no preview");
}

// Each kind of label is painted equally often. A repaint includes the widgets under the preview, which Qt paints.
void measure(QDialog *dialog, int repaints)
{
    struct Look
    {
        const char *name;
        const char *orientation;
        bool mirrored;
        bool inverse;
    };
    const Look looks[] = {
        {"portrait", "portraitRadioButton", false, false},
        {"landscape", "landscapeRadioButton", false, false},
        {"mirrored", "landscapeRadioButton", true, false},
        {"mirrored in negative", "portrait180RadioButton", true, true},
    };
    QWidget *preview = previewOf(dialog);
    Table table("Repainting the preview",
                {"label", "repaint", "goal", "preview alone", "with use", "bytes kept by each"});
    for (const Look &look : looks) {
        dialog->findChild<QAbstractButton *>(look.orientation)->setChecked(true);
        dialog->findChild<QAbstractButton *>("mirroredCheckBox")->setChecked(look.mirrored);
        dialog->findChild<QAbstractButton *>("inverseCheckBox")->setChecked(look.inverse);
        QCoreApplication::processEvents();
        Samples samples;
        samples.reserve(repaints);
        const auto before = mallinfo2().uordblks;
        for (int i = 0; i < repaints; ++i)
            samples.add(milliseconds([&] { preview->repaint(); }));
        const auto after = mallinfo2().uordblks;
        QImage image(preview->size(), QImage::Format_ARGB32_Premultiplied);
        Samples alone;
        for (int i = 0; i < repaints; ++i)
            alone.add(milliseconds([&] { preview->render(&image, {}, {}, QWidget::RenderFlags()); }));
        const double kept = (double(after) - double(before)) / repaints;
        table.addRow({look.name, text(samples.median(), 4), withGoal(samples.median(), goal), text(alone.median(), 4),
                      text(samples.growth()), text(kept, 1)});
    }
}

void program(const Extent &extent)
{
    PrivateScheduler scheduler;
    setQueues(scheduler, 3);
    runDialogs([] { propertiesDialog(); },
               [&](QDialog *dialog) {
                   measure(dialog, extent.isShort ? 50 : 10000);
                   dialog->reject();
               });
}

} // namespace

int main(int argc, char **argv)
{
    return run(argc, argv, program);
}
