// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"
#include "Pictures.h"
#include "TestMain.h"
#include "widgets/PasswordDialog.h"

#include <QDialogButtonBox>
#include <QTest>

// If this fails, the question for a password looks wrong.
class PasswordDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsChangeWithTheLanguage();
    void buttonsKeepIconAndTextInArabic();
};

void PasswordDialogTest::textsChangeWithTheLanguage()
{
    PasswordDialog dialog(nullptr, "user", false);
    dialog.show();
    const MarkingTranslator translator;
    QCoreApplication::processEvents();
    QCOMPARE(dialog.windowTitle(), QString("PasswordDialog: Password"));
    QCOMPARE(childOf<QLabel>(dialog, "userLabel")->text(), QString("PasswordDialog: User name:"));
    QCOMPARE(dialog.user(), QString("user"));
    QVERIFY(!childOf<QLabel>(dialog, "refusedLabel")->isVisible());
}

void PasswordDialogTest::buttonsKeepIconAndTextInArabic()
{
    QApplication::setStyle(new StyleWithIcons);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    PasswordDialog dialog(nullptr, "user", false);
    dialog.show();
    for (QAbstractButton *button : dialog.findChild<QDialogButtonBox *>()->buttons()) {
        button->setFixedWidth(200);
        QVERIFY2(isTogether(button), qPrintable(button->text()));
    }
}

PROPERTIESDIALOG_TEST_MAIN(PasswordDialogTest)
#include "PasswordDialogTest.moc"
