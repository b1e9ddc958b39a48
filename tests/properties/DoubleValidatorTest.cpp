// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/DoubleValidator.h"

#include "TestMain.h"

#include <QLineEdit>
#include <QLocale>
#include <QTest>

namespace {

class FixupCounter : public DoubleValidator
{
public:
    using DoubleValidator::DoubleValidator;

    void fixup(QString &) const override { ++count; }

    mutable int count = 0;
};

} // namespace

// If this fails, numeric fields reject valid input or accept invalid input.
class DoubleValidatorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void arguments();
    void validate_data();
    void validate();
    void touchesNeitherTextNorPosition_data() { validate_data(); }
    void touchesNeitherTextNorPosition();
    void typing_data();
    void typing();
};

void DoubleValidatorTest::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void DoubleValidatorTest::arguments()
{
    QObject parent;
    const auto *validator = new DoubleValidator(0.2, 1200.0, 2, &parent);

    QCOMPARE(validator->bottom(), 0.2);
    QCOMPARE(validator->top(), 1200.0);
    QCOMPARE(validator->decimals(), 2);
    QCOMPARE(validator->parent(), &parent);
    QCOMPARE(validator->notation(), QDoubleValidator::ScientificNotation);
    QCOMPARE(validator->metaObject()->className(), "DoubleValidator");
}

void DoubleValidatorTest::validate_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<double>("bottom");
    QTest::addColumn<double>("top");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QValidator::State>("state");

    struct Row
    {
        const char *name;
        double bottom;
        double top;
        const char *text;
        QValidator::State state;
    };
    const Row rows[] = {
        {"point, above zero", 0.2, 1200.0, ".", QValidator::Intermediate},
        {"point, from zero", 0.0, 1.0, ".", QValidator::Intermediate},
        {"point, below zero", -1.0, 1.0, ".", QValidator::Intermediate},
        {"point, no number in range", 5.0, 4.0, ".", QValidator::Intermediate},
        {"two points", 0.2, 1200.0, "..", QValidator::Invalid},
        {"minus, above zero", 0.2, 1200.0, "-", QValidator::Invalid},
        {"minus, from zero", 0.0, 1000.0, "-", QValidator::Invalid},
        {"minus, below zero", -1.0, 1.0, "-", QValidator::Intermediate},
        {"minus, just below zero", -0.01, 1.0, "-", QValidator::Intermediate},
        {"minus, negative only", -2.0, -1.0, "-", QValidator::Intermediate},
        {"two minuses", -1.0, 1.0, "--", QValidator::Invalid},
        {"minus and point", -1.0, 1.0, "-.", QValidator::Invalid},
        {"plus", -1.0, 1.0, "+", QValidator::Invalid},
        {"empty, above zero", 0.2, 1200.0, "", QValidator::Intermediate},
        {"empty, below zero", -1.0, 1.0, "", QValidator::Intermediate},
        {"inside", 0.2, 1200.0, "4.00", QValidator::Acceptable},
        {"bottom", 0.2, 1200.0, "0.2", QValidator::Acceptable},
        {"top", 0.2, 1200.0, "1200", QValidator::Acceptable},
        {"top with decimals", 0.2, 1200.0, "1200.00", QValidator::Acceptable},
        {"above top", 0.2, 1200.0, "1201", QValidator::Invalid},
        {"just above top", 0.2, 1200.0, "1200.01", QValidator::Invalid},
        {"below bottom", 0.2, 1200.0, "0.1", QValidator::Invalid},
        {"just below bottom", 0.2, 1200.0, "0.19", QValidator::Invalid},
        {"zero below bottom", 0.2, 1200.0, "0", QValidator::Invalid},
        {"one decimal", 0.2, 1200.0, "1.2", QValidator::Acceptable},
        {"two decimals", 0.2, 1200.0, "1.23", QValidator::Acceptable},
        {"three decimals", 0.2, 1200.0, "1.234", QValidator::Invalid},
        {"trailing point", 0.2, 1200.0, "4.", QValidator::Acceptable},
        {"leading point", 0.2, 1200.0, ".5", QValidator::Acceptable},
        {"leading point, two decimals", 0.0, 1.0, ".25", QValidator::Acceptable},
        {"leading point, out of range", 0.2, 1200.0, ".1", QValidator::Invalid},
        {"leading point, three decimals", 0.0, 1.0, ".255", QValidator::Invalid},
        {"negative leading point", -1.0, 1.0, "-.5", QValidator::Acceptable},
        {"negative", -1.0, 1.0, "-0.75", QValidator::Acceptable},
        {"negative bottom", -1.0, 1.0, "-1", QValidator::Acceptable},
        {"below negative bottom", -1.0, 1.0, "-1.01", QValidator::Invalid},
        {"negative, from zero", 0.0, 1.57, "-1", QValidator::Invalid},
        {"decimal top", 0.0, 1.57, "1.57", QValidator::Acceptable},
        {"above decimal top", 0.0, 1.57, "1.58", QValidator::Invalid},
        {"unfinished exponent", 0.2, 1200.0, "1e", QValidator::Invalid},
        {"exponent", 0.2, 1200.0, "1e2", QValidator::Acceptable},
        {"exponent out of range", 0.2, 1200.0, "1e4", QValidator::Invalid},
        {"decimal comma", 0.2, 1200.0, "1,5", QValidator::Invalid},
        {"comma", 0.2, 1200.0, ",", QValidator::Invalid},
        {"group separator", 0.2, 1200.0, "1,000", QValidator::Invalid},
        {"foreign group separator", 0.2, 1200.0, "1.000", QValidator::Invalid},
        {"letters", 0.2, 1200.0, "four", QValidator::Invalid},
        {"hexadecimal", 0.2, 1200.0, "0x10", QValidator::Invalid},
        {"infinity", 0.2, 1200.0, "inf", QValidator::Invalid},
        {"no number", 0.2, 1200.0, "nan", QValidator::Invalid},
        {"point and blank", 0.2, 1200.0, ". ", QValidator::Invalid},
    };
    for (const char *localeName : {"C", "en_US", "de_DE"}) {
        for (const Row &row : rows) {
            QTest::addRow("%s: %s", localeName, row.name)
                << QLocale(localeName) << row.bottom << row.top << QString(row.text) << row.state;
        }
    }
}

void DoubleValidatorTest::validate()
{
    QFETCH(QLocale, locale);
    QFETCH(double, bottom);
    QFETCH(double, top);
    QFETCH(QString, text);
    QLocale::setDefault(locale);
    const DoubleValidator validator(bottom, top, 2, nullptr);
    const QValidator &asBase = validator;

    int pos = 0;
    QTEST(asBase.validate(text, pos), "state");
}

void DoubleValidatorTest::touchesNeitherTextNorPosition()
{
    QFETCH(QLocale, locale);
    QFETCH(double, bottom);
    QFETCH(double, top);
    QFETCH(const QString, text);
    QLocale::setDefault(locale);
    const FixupCounter validator(bottom, top, 2, nullptr);

    const QList<int> positions = {0, int(text.size()), 17};
    for (const int position : positions) {
        QString input = text;
        int pos = position;
        validator.validate(input, pos);
        QCOMPARE(input, text);
        QCOMPARE(pos, position);
    }
    QCOMPARE(validator.count, 0);
}

void DoubleValidatorTest::typing_data()
{
    QTest::addColumn<double>("bottom");
    QTest::addColumn<double>("top");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");

    QTest::newRow("a number in range") << 0.2 << 1200.0 << "4.25"
                                       << "4.25";
    QTest::newRow("the key that leads out of range") << 0.2 << 1200.0 << "1201"
                                                     << "120";
    QTest::newRow("the third decimal") << 0.2 << 1200.0 << "1.234"
                                       << "1.23";
    QTest::newRow("below the bottom") << 0.2 << 1200.0 << "01"
                                      << "1";
    QTest::newRow("from the point on") << 0.2 << 1200.0 << ".5"
                                       << ".5";
    QTest::newRow("the second point") << 0.2 << 1200.0 << "1.2.3"
                                      << "1.23";
    QTest::newRow("the decimal comma") << 0.2 << 1200.0 << "1,5"
                                       << "15";
    QTest::newRow("the exponent") << 0.2 << 1200.0 << "1e2"
                                  << "12";
    QTest::newRow("a minus above zero") << 0.0 << 1200.0 << "-1"
                                        << "1";
    QTest::newRow("a minus below zero") << -1.0 << 1.0 << "-1"
                                        << "-1";
}

void DoubleValidatorTest::typing()
{
    QFETCH(double, bottom);
    QFETCH(double, top);
    QFETCH(QString, keys);
    const DoubleValidator validator(bottom, top, 2, nullptr);
    QLineEdit edit;
    edit.setValidator(&validator);

    QTest::keyClicks(&edit, keys);
    QTEST(edit.text(), "text");

    // What was typed may be taken back to the empty field.
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Delete);
    QCOMPARE(edit.text(), QString());
}

PROPERTIESDIALOG_TEST_MAIN(DoubleValidatorTest)

#include "DoubleValidatorTest.moc"
