// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "LabelWindow.h"
#include "PrivateScheduler.h"
#include "TestMain.h"

#include <PropertiesDialog/ExtDialog.h>
#include <PropertiesDialog/PrintDialog.h>
#include <PropertiesDialog/PrintPropertiesDialog.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTimer>

#include <functional>

// Plays the user, step by step; each step handles the next dialog that opens.
class User
{
public:
    // Waits for a modal dialog of this class and hands it to @p action, which ends it without opening another one.
    template<class Dialog>
    User &then(std::function<void(Dialog *)> action)
    {
        steps.append([action] {
            auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return false;
            action(dialog);
            return true;
        });
        return *this;
    }

    // The same for a dialog that may not be ready yet: @p action is repeated until it has closed the dialog.
    template<class Dialog>
    User &thenUntilClosed(std::function<void(Dialog *)> action)
    {
        steps.append([action] {
            auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return false;
            action(dialog);
            return !dialog->isVisible();
        });
        return *this;
    }

    void begin()
    {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] {
            if (!steps.isEmpty() && steps.first()())
                steps.removeFirst();
        });
        timer.start(10);
    }

    bool isDone() const { return steps.isEmpty(); }

private:
    QList<std::function<bool()>> steps;
    QTimer timer;
};

// If this fails, the C++ example that developers copy does not print or leads them to the wrong calls.
class LabelWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void printsTheCopiesToTheChosenQueue();
    void propertiesComeBackToThePrintDialog();
    void printsToFile();
    void saysWhyItCannotPrint();
    void savesTheOffset();

private:
    static void click(QWidget *dialog, const char *button);
    static QString statusOf(const LabelWindow &window);
    QString savedOption(const QString &queue, const char *keyword) const;

    PrivateScheduler scheduler;
    int jobsBefore = 0;
};

void LabelWindowTest::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QString fileModel =
        scheduler.editedPpd(PrivateScheduler::samplePpd("label-203"),
                            {{"*NickName: \"Sample Label label 203dpi\"", "*NickName: \"Quillon Vantry\""}});
    scheduler.addQueue("Desk", fileModel, "Printer on the desk");
    scheduler.addQueue("Store", PrivateScheduler::samplePpd("label-203"), "Printer in the store");
    scheduler.setServerDefault("Desk");
}

void LabelWindowTest::init()
{
    QFile::remove(QDir::homePath() + "/.cups/lpoptions");
}

void LabelWindowTest::click(QWidget *dialog, const char *button)
{
    dialog->findChild<QPushButton *>(button)->click();
}

QString LabelWindowTest::statusOf(const LabelWindow &window)
{
    return window.findChild<QLabel *>("status")->text();
}

QString LabelWindowTest::savedOption(const QString &queue, const char *keyword) const
{
    const QByteArray options = PrivateScheduler::run("lpoptions", {"-p", queue});
    CapturedJob parser;
    parser.options = options;
    return QString::fromLatin1(parser.option(keyword));
}

void LabelWindowTest::printsTheCopiesToTheChosenQueue()
{
    scheduler.setUserOptions("Store", {"Darkness=13"});
    LabelWindow window;
    window.show();

    User user;
    user.then<PrintDialog>([](PrintDialog *dialog) {
        auto *printers = dialog->findChild<QComboBox *>("cboPrinterName");
        printers->setCurrentIndex(printers->findText("Printer in the store"));
        dialog->findChild<QSpinBox *>("numCopies_2")->setValue(3);
        QMetaObject::invokeMethod(dialog->findChild<QPushButton *>("yesButton_2"), "click", Qt::QueuedConnection);
    });
    user.then<QMessageBox>([](QMessageBox *question) { question->button(QMessageBox::Yes)->click(); });
    user.begin();
    click(&window, "printButton");

    QVERIFY(user.isDone());
    const CapturedJob job = scheduler.jobs(++jobsBefore).last();
    QCOMPARE(job.queue, QString("Store"));
    QCOMPARE(job.copies, QByteArray("3"));
    QCOMPARE(job.title, QByteArray("Label"));
    QCOMPARE(job.option("Darkness"), QByteArray("13"));
    QVERIFY(job.data.startsWith("%PDF"));
    QCOMPARE(statusOf(window), QString("Job %1 was sent to Printer in the store.").arg(job.job));
}

void LabelWindowTest::propertiesComeBackToThePrintDialog()
{
    LabelWindow window;
    window.show();

    User user;
    user.then<PrintDialog>([](PrintDialog *dialog) { click(dialog, "propertiesButton_2"); });
    user.then<PrintPropertiesDialog>([](PrintPropertiesDialog *dialog) {
        dialog->findChild<QSlider *>("darknessSlider")->setValue(14);
        click(dialog, "okButton");
    });
    user.then<PrintDialog>([](PrintDialog *dialog) { click(dialog, "noButton_2"); });
    user.begin();
    click(&window, "printButton");

    QVERIFY(user.isDone());
    QCOMPARE(savedOption("Desk", "Darkness"), QString("14"));
    QCOMPARE(statusOf(window), QString());
    QCOMPARE(scheduler.jobs(jobsBefore).size(), jobsBefore);
}

void LabelWindowTest::printsToFile()
{
    LabelWindow window;
    window.show();
    const QString fileName = QDir::homePath() + "/label.pdf";

    User user;
    user.then<PrintDialog>([](PrintDialog *dialog) {
        auto *box = dialog->findChild<QCheckBox *>("chkPrintToFile");
        QVERIFY(box->isEnabled());
        box->click();
        click(dialog, "yesButton_2");
    });
    user.thenUntilClosed<QFileDialog>([fileName](QFileDialog *dialog) {
        // Typed, not selected: what can be selected depends on how far it has read the folder.
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(fileName);
        static_cast<QDialog *>(dialog)->accept();
    });
    user.begin();
    click(&window, "printButton");

    QVERIFY(user.isDone());
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith("%PDF"));
    QCOMPARE(scheduler.jobs(jobsBefore).size(), jobsBefore);
}

void LabelWindowTest::saysWhyItCannotPrint()
{
    LabelWindow window;
    window.show();
    scheduler.stop();

    QString message;
    User user;
    user.then<PrintDialog>([](PrintDialog *dialog) { click(dialog, "yesButton_2"); });
    user.then<QMessageBox>([&message](QMessageBox *box) {
        message = box->text();
        box->accept();
    });
    user.begin();
    click(&window, "printButton");
    scheduler.start();

    QVERIFY(user.isDone());
    QVERIFY(!message.isEmpty());
    QCOMPARE(statusOf(window), QString());
}

void LabelWindowTest::savesTheOffset()
{
    LabelWindow window;
    window.show();

    User user;
    user.then<ExtDialog>([](ExtDialog *dialog) {
        dialog->findChild<QComboBox *>("offset")->setCurrentIndex(5); // half a millimetre: 4 dots at 203 dpi
        dialog->findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Ok)->click();
    });
    user.begin();
    click(&window, "offsetButton");

    QVERIFY(user.isDone());
    QCOMPARE(savedOption("Desk", "Back"), QString("16"));
}

PROPERTIESDIALOG_TEST_MAIN(LabelWindowTest)

#include "LabelWindowTest.moc"
