// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "TestMain.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QLibrary>
#include <QLocale>
#include <QResource>
#include <QTest>

namespace {

const QString iconPath = QStringLiteral(":/b/printer.png");

} // namespace

// If this fails, the dialogs have no icon.
class ResourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void oneFile();
    void icon();
    void storedAsItIs();
    void noLocaleVariant();
};

void ResourceTest::initTestCase()
{
    QVERIFY(!QFile::exists(iconPath));
    QLibrary library(QStringLiteral(PROPERTIESDIALOG_LIBRARY));
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QVERIFY(QFile::exists(iconPath));
}

void ResourceTest::oneFile()
{
    QCOMPARE(QDir(QStringLiteral(":/b")).entryList(), QStringList{QStringLiteral("printer.png")});

    // The host registers the print dialog's icon.
    QVERIFY(!QFile::exists(QStringLiteral(":/b/print.png")));
}

void ResourceTest::icon()
{
    QFile file(iconPath);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray data = file.readAll();
    QVERIFY(data.startsWith("\x89PNG\r\n"));

    const QImage image = QImage::fromData(data);
    QCOMPARE(image.size(), QSize(48, 48));
    QVERIFY(image.hasAlphaChannel());
    const QList<QPoint> corners = {{0, 0}, {47, 0}, {0, 47}, {47, 47}};
    for (const QPoint &corner : corners)
        QCOMPARE(qAlpha(image.pixel(corner)), 0);
    QCOMPARE(qAlpha(image.pixel(24, 24)), 255);
}

void ResourceTest::storedAsItIs()
{
    const QResource resource(iconPath);
    QVERIFY(resource.isValid());
    QCOMPARE(resource.compressionAlgorithm(), QResource::NoCompression);
    QFile source(QStringLiteral(PROPERTIESDIALOG_ICON));
    QVERIFY(source.open(QIODevice::ReadOnly));
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(resource.data()), int(resource.size())), source.readAll());
}

void ResourceTest::noLocaleVariant()
{
    const QResource neutral(iconPath, QLocale::c());
    for (const char *name : {"de_DE", "ja_JP", "ar_EG"})
        QCOMPARE(QResource(iconPath, QLocale(name)).data(), neutral.data());
}

PROPERTIESDIALOG_TEST_MAIN(ResourceTest)

#include "ResourceTest.moc"
