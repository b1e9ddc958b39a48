// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "Languages.h"
#include "OpenDialog.h"
#include "PrivateScheduler.h"
#include "Programs.h"
#include "TestMain.h"

#include <PropertiesDialog/PrintDialog.h>
#include <PropertiesDialog/PropertiesDialog.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPrinter>
#include <QTabWidget>
#include <QTimer>
#include <QXmlStreamReader>

#include <cstdio>
#include <memory>

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    bool isFinished;
};

QList<Message> messages(const QString &language)
{
    QFile file(catalogueSource(language));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    QXmlStreamReader xml(&file);
    QList<Message> list;
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const bool isFinished = !xml.attributes().hasAttribute("type");
            list.append({context, source, xml.readElementText(), isFinished});
        }
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(xml.errorString()));
    return list;
}

QStringList sources(const QString &language)
{
    QStringList list;
    for (const Message &message : messages(language))
        list.append(message.context + '|' + message.source);
    list.sort();
    return list;
}

// Marks that keep numbers and signs in order between texts that run to the left.
QString withoutMarks(QString text)
{
    return text.remove(QChar(0x200e));
}

// Closes the modal dialog once it is there, after a look at it.
template<class Look>
void whenOpen(Look look)
{
    QTimer::singleShot(
        0, QCoreApplication::instance(), // which may not be a whole QApplication yet
        [look] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                qFatal("no dialog is open");
            look(*dialog);
            dialog->reject();
        });
}

void printTexts(const QDialog &dialog)
{
    std::printf("%s|%s|%s\n", qUtf8Printable(dialog.findChild<QTabWidget *>("tabs")->tabText(0)),
                qUtf8Printable(dialog.findChild<QGroupBox *>("darknessGroupBox")->title()),
                dialog.layoutDirection() == Qt::RightToLeft ? "rtl" : "ltr");
}

// With argument "catalogue" the host has installed one, with "window" it shows a window of its own.
int callPropertiesDialog(int &argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    QTranslator translator;
    if (QApplication::arguments().contains("window"))
        window.show();
    if (QApplication::arguments().contains("catalogue")) {
        if (!translator.load(compiledCatalogue("fr")))
            qFatal("cannot load the catalogue");
        QCoreApplication::installTranslator(&translator);
    }
    whenOpen(printTexts);
    propertiesDialog();
    std::printf("%s|%s\n", qUtf8Printable(QCoreApplication::translate("PrintPropertiesDialog", "Page Setup")),
                QGuiApplication::isRightToLeft() ? "rtl" : "ltr");
    return 0;
}

const TestMain::ChildFunction callPropertiesDialogChild("propertiesDialog", callPropertiesDialog);

// The application object is the library's.
int callWithoutApplication(int &, char **)
{
    qputenv("PROPERTIESDIALOG_TEST_CLOSES", "1");
    return propertiesDialog();
}

// The last entry of the context menu of a field, and the button of a message box.
void printTextsOfQt(const QDialog &dialog)
{
    const std::unique_ptr<QMenu> menu(dialog.findChild<QLineEdit *>("widthEdit")->createStandardContextMenu());
    const QMessageBox box(QMessageBox::Warning, QString(), QString(), QMessageBox::Cancel);
    std::printf("%s|%s\n", qUtf8Printable(menu->actions().constLast()->text().section('\t', 0, 0)),
                qUtf8Printable(box.button(QMessageBox::Cancel)->text()));
}

// In a process without an application object, a new one does this first.
void closeFirstDialog()
{
    if (qEnvironmentVariableIsSet("PROPERTIESDIALOG_TEST_CLOSES"))
        whenOpen([](const QDialog &dialog) {
            printTexts(dialog);
            printTextsOfQt(dialog);
        });
}
Q_COREAPP_STARTUP_FUNCTION(closeFirstDialog)

const TestMain::ChildFunction callWithoutApplicationChild("withoutApplication", callWithoutApplication);

} // namespace

// If this fails, texts appear untranslated, in the wrong language, or with broken placeholders.
class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void thereIsEachLanguage();
    void catalogueIsComplete_data();
    void catalogueIsComplete();
    void marksOfTextsSurvive_data() { catalogueIsComplete_data(); }
    void marksOfTextsSurvive();
    void pageSetupIsTranslated_data() { catalogueIsComplete_data(); }
    void pageSetupIsTranslated();
    void fixedTextsStay_data() { catalogueIsComplete_data(); }
    void fixedTextsStay();
    void dialogFindsItsCatalogue_data();
    void dialogFindsItsCatalogue();
    void cataloguesOfHostStay();
    void windowsOfHostAreNotTurnedAround();
    void ownApplicationRunsFromTheRight();
    void ownApplicationTranslatesQt_data();
    void ownApplicationTranslatesQt();
    void helpIsTranslated_data() { catalogueIsComplete_data(); }
    void helpIsTranslated();

private:
    PrivateScheduler scheduler;
};

void TranslationsTest::initTestCase()
{
    scheduler.addQueue("Labels");
    scheduler.setServerDefault("Labels");
}

void TranslationsTest::thereIsEachLanguage()
{
    QCOMPARE(languages(), QStringList({"ar", "cs", "de", "es", "fr", "it", "ja", "ko", "nl", "pl", "pt_BR", "ru", "sv",
                                       "tr", "uk", "zh_CN"}));
}

void TranslationsTest::catalogueIsComplete_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages())
        QTest::newRow(qPrintable(language)) << language;
}

void TranslationsTest::catalogueIsComplete()
{
    QFETCH(QString, language);
    const QList<Message> list = messages(language);
    QVERIFY(list.size() > 100);
    for (const Message &message : list)
        QVERIFY2(message.isFinished && !message.translation.isEmpty(), qPrintable(message.source));
    QCOMPARE(sources(language), sources("de"));
    const QString catalogue = compiledCatalogue(language);
    QVERIFY(QTranslator().load(catalogue));
    QTranslator translator;
    QVERIFY(translator.load(catalogue));
    for (const Message &message : list)
        QCOMPARE(translator.translate(message.context.toUtf8(), message.source.toUtf8()), message.translation);
}

void TranslationsTest::marksOfTextsSurvive()
{
    QFETCH(QString, language);
    for (const Message &message : messages(language)) {
        const QString text = withoutMarks(message.translation);
        const QByteArray bytes = message.source.toLocal8Bit();
        const char *const source = bytes.constData();
        QVERIFY2(text.count("%1") == message.source.count("%1"), source);
        QVERIFY2(text.count('%') == message.source.count('%'), source);
        // A blank before a question mark is a matter of the language.
        if (message.source != " ?")
            QVERIFY2(text.startsWith(' ') == message.source.startsWith(' '), source);
        QVERIFY2(text.endsWith('\n') == message.source.endsWith('\n'), source);
        QVERIFY2(text.endsWith("...") == message.source.endsWith("..."), source);
        QVERIFY2((text.endsWith(':') || text.endsWith(QChar(0xff1a))) == message.source.endsWith(':'), source);
        // The offsets line up in their list: sign or blank, and the number as fields show numbers in any language.
        if (message.context == "ExtDialog" && message.source.endsWith("mm"))
            QVERIFY2(text.startsWith(message.source.chopped(2)), source);
        for (const char *name : {"DL", "0", "%1", "Vantry", "PrintPropertiesDialog"})
            QVERIFY2(message.source != name || message.translation == name, source);
    }
}

// The library uses this text to detect whether the host has installed a catalogue.
void TranslationsTest::pageSetupIsTranslated()
{
    QFETCH(QString, language);
    const InLanguage texts(language);
    QVERIFY(QCoreApplication::translate("PrintPropertiesDialog", "Page Setup") != "Page Setup");
}

void TranslationsTest::fixedTextsStay()
{
    QFETCH(QString, language);
    const InLanguage texts(language);
    OpenDialog open;
    const auto *list = open.list("preset0");
    QCOMPARE(list->itemText(0), QString("<Current Settings>"));
    QCOMPARE(list->itemText(1), QString("<Default Settings>"));

    PrivateScheduler::run("cupsdisable", {"Labels"});
    CupsSupport stopped;
    PrintDialog print(nullptr, open.printer.get(), &stopped);
    const QString status = print.findChild<QLabel *>("lblStatusInfo")->text();
    PrivateScheduler::run("cupsenable", {"Labels"});
    QVERIFY2(status.startsWith("Stopped"), qPrintable(status));
    CupsSupport idle;
    PrintDialog printAgain(nullptr, open.printer.get(), &idle);
    QCOMPARE(printAgain.findChild<QLabel *>("lblStatusInfo")->text(), QString("Idle"));
}

namespace {

QMap<QString, QString> inLocale(const QString &locale, const QString &language = {})
{
    return {{"LC_ALL", locale}, {"LANGUAGE", language}, {"XDG_DATA_DIRS", TRANSLATIONS_DATA_DIR}};
}

// What the child prints of the open dialog, and then of the host without it.
QByteArray seen(const TestMain::ChildResult &result, int line)
{
    return result.exitCode == 0 ? result.output.split('\n').value(line) : QByteArray("crashed");
}

} // namespace

void TranslationsTest::dialogFindsItsCatalogue_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("expected");
    QTest::newRow("C") << "C.UTF-8" << QString() << "Page Setup|Darkness|ltr";
    QTest::newRow("no catalogue") << "fi_FI.UTF-8" << QString() << "Page Setup|Darkness|ltr";
    QTest::newRow("de") << "de_DE.UTF-8" << QString() << "Seite einrichten|Druckdichte|ltr";
    QTest::newRow("de_AT") << "de_AT.UTF-8" << QString() << "Seite einrichten|Druckdichte|ltr";
    QTest::newRow("pt_BR") << "pt_BR.UTF-8" << QString() << "Página|Densidade de impressão|ltr";
    QTest::newRow("zh_CN") << "zh_CN.UTF-8" << QString() << "页面设置|打印浓度|ltr";
    QTest::newRow("LANGUAGE") << "en_US.UTF-8"
                              << "fr"
                              << "Mise en page|Densité d’impression|ltr";
    QTest::newRow("second LANGUAGE") << "en_US.UTF-8"
                                     << "fi:ja"
                                     << "ページ設定|印刷濃度|ltr";
    QTest::newRow("ar") << "ar_EG.UTF-8" << QString() << "إعداد الصفحة|كثافة الطباعة|rtl";
}

void TranslationsTest::dialogFindsItsCatalogue()
{
    QFETCH(QString, locale);
    QFETCH(QString, language);
    QFETCH(QString, expected);
    const TestMain::ChildResult result = TestMain::runChild("propertiesDialog", {}, inLocale(locale, language));
    QCOMPARE(QString::fromUtf8(seen(result, 0)), expected);
    QCOMPARE(seen(result, 1), QByteArray("Page Setup|ltr"));
}

void TranslationsTest::cataloguesOfHostStay()
{
    const TestMain::ChildResult result = TestMain::runChild("propertiesDialog", {"catalogue"}, inLocale("de_DE.UTF-8"));
    QCOMPARE(QString::fromUtf8(seen(result, 0)), QString("Mise en page|Densité d’impression|ltr"));
    QCOMPARE(seen(result, 1), QByteArray("Mise en page|ltr"));
}

void TranslationsTest::windowsOfHostAreNotTurnedAround()
{
    const TestMain::ChildResult result = TestMain::runChild("propertiesDialog", {"window"}, inLocale("ar_EG.UTF-8"));
    QCOMPARE(QString::fromUtf8(seen(result, 0)), QString("إعداد الصفحة|كثافة الطباعة|ltr"));
    QCOMPARE(seen(result, 1), QByteArray("Page Setup|ltr"));
}

void TranslationsTest::ownApplicationRunsFromTheRight()
{
    const TestMain::ChildResult result = TestMain::runChild("withoutApplication", {}, inLocale("ar_EG.UTF-8"));
    QCOMPARE(QString::fromUtf8(seen(result, 0)), QString("إعداد الصفحة|كثافة الطباعة|rtl"));
}

void TranslationsTest::ownApplicationTranslatesQt_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("expected");
    QTest::newRow("C") << "C.UTF-8" << QString() << "Select All|Cancel";
    QTest::newRow("de") << "de_DE.UTF-8" << QString() << "Alles auswählen|Abbrechen";
    QTest::newRow("pt_BR") << "pt_BR.UTF-8" << QString() << "Selecionar tudo|Cancelar";
    // The language of our own texts, also where Qt has a catalogue for one that comes before.
    QTest::newRow("second LANGUAGE") << "en_US.UTF-8"
                                     << "fi:fr"
                                     << "Tout sélectionner|Annuler";
}

// Context menus and message boxes come from Qt.
void TranslationsTest::ownApplicationTranslatesQt()
{
    QFETCH(QString, locale);
    QFETCH(QString, language);
    QFETCH(QString, expected);
    const TestMain::ChildResult result = TestMain::runChild("withoutApplication", {}, inLocale(locale, language));
    QCOMPARE(QString::fromUtf8(seen(result, 1)).remove('&'), expected);
}

void TranslationsTest::helpIsTranslated()
{
    QFETCH(QString, language);
    const auto linesIn = [](const QString &wanted) {
        const Programs::Result result = Programs::run({PROGRAM, "--help"}, inLocale("C.UTF-8", wanted));
        QStringList lines;
        for (const QString &line : (result.exitStatus == 0 ? result.output : QString()).split('\n'))
            lines << line.simplified();
        return lines;
    };
    const QStringList help = linesIn(language);
    const QStringList english = linesIn("en");
    QVERIFY(english.size() > 5);
    QVERIFY(help.size() > 5);
    for (const QString &line : english)
        QVERIFY2(line.isEmpty() || !help.contains(line), qPrintable(line));
}

PROPERTIESDIALOG_TEST_MAIN(TranslationsTest)
#include "TranslationsTest.moc"
