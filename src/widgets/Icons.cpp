// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "widgets/Icons.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBitmap>
#include <QPixmapCache>

namespace {

template<class Function>
QIcon cached(const QString &name, Function make)
{
    const QString key = QStringLiteral("PropertiesDialog ") + name;
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = make();
        QPixmapCache::insert(key, pixmap);
    }
    return QIcon(pixmap);
}

} // namespace

QIcon Icons::masked(const QString &file)
{
    return cached(
        QStringLiteral("masked ") + file,
        [&file] {
            QPixmap picture(file);
            picture.setMask(picture.createHeuristicMask(true));
            return picture;
        });
}

void Icons::showStyleIcon(QAbstractButton *button, QStyle::StandardPixmap icon)
{
    const QStyle *style = button->style();
    const QString key = QStringLiteral("%1 %2 %3 %4 %5 %6")
                            .arg(QLatin1String(style->metaObject()->className()), QIcon::themeName())
                            .arg(icon)
                            .arg(button->iconSize().width())
                            .arg(qApp->devicePixelRatio())
                            .arg(QGuiApplication::palette().cacheKey());
    button->setIcon(cached(key, [&] { return style->standardIcon(icon).pixmap(button->iconSize()); }));
}
