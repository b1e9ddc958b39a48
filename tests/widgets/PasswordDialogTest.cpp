// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

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
    void buttonsKeepIconAndTextInArabic();
};

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
