// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "TestMain.h"

#include <QFile>
#include <QTest>

// If this fails, unloading or registering the icon's resource affects other resources of the host.
class ResourceRegistrationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pair();
};

void ResourceRegistrationTest::pair()
{
    const QString iconPath = QStringLiteral(":/b/printer.png");
    QVERIFY(QFile::exists(iconPath)); // it registers itself

    Q_CLEANUP_RESOURCE(b);
    QVERIFY(!QFile::exists(iconPath));

    Q_INIT_RESOURCE(b);
    QVERIFY(QFile::exists(iconPath));
}

PROPERTIESDIALOG_TEST_MAIN(ResourceRegistrationTest)

#include "ResourceRegistrationTest.moc"
