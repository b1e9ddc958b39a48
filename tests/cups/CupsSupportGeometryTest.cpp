// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "CupsTest.h"
#include "TestMain.h"

#include <QTest>

#include <cstdlib>
#include <cstring>

// If this fails, page sizes and resolutions are wrong, and labels print shifted or scaled.
class CupsSupportGeometryTest : public CupsTest
{
    Q_OBJECT

private slots:
    void defaultPageSize_data();
    void defaultPageSize();
    void defaultPageSizeFollowsThePpdFile();
    void defaultPageSizeIgnoresSavedSize();
    void defaultPageSizeThatIsNoChoice();
    void defaultPageSizeOfLaterOption();
    void defaultPageSizeInSubgroup();
    void noPpdFile();

    void rectangles_data();
    void rectangles();
    void rectanglesOfSample();
    void rectanglesOfUnknownSizes();

    void resolution_data();
    void resolution();
    void resolutionOfSamples();
    void resolutionIgnoresSavedResolution();

    void extendedOffset_data();
    void extendedOffset();
    void extendedOffsetOfSavedBackfeed();
    void setExtendedOffset_data();
    void setExtendedOffset();
    void setExtendedOffsetSavesAtOnce();
    void setExtendedOffsetToPpdDefault();
    void setExtendedOffsetWithoutPrinter();
};

void CupsSupportGeometryTest::defaultPageSize_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<QSize>("size");
    const QSize unknown(-1, -1);
    QTest::newRow("label") << QByteArray("<</PageSize[288 432]/ImagingBBox null>>setpagedevice") << QSize(288, 432);
    QTest::newRow("brackets alone") << QByteArray("[288 432]") << QSize(288, 432);
    QTest::newRow("blanks") << QByteArray("[  288 \t\n 432 ]") << QSize(288, 432);
    QTest::newRow("no closing bracket") << QByteArray("x[288 432") << QSize(288, 432);
    QTest::newRow("fraction in the width") << QByteArray("[288.5 432]") << unknown;
    QTest::newRow("fraction in the height") << QByteArray("[288 432.5]") << QSize(288, 432);
    QTest::newRow("negative") << QByteArray("[-288 -432]") << QSize(-288, -432);
    QTest::newRow("width alone") << QByteArray("[288]") << unknown;
    QTest::newRow("comma") << QByteArray("[288,432]") << unknown;
    QTest::newRow("names") << QByteArray("[w h]") << unknown;
    QTest::newRow("first bracket counts") << QByteArray("[w h][288 432]") << unknown;
    QTest::newRow("two pairs") << QByteArray("[144 72][288 432]") << QSize(144, 72);
    QTest::newRow("no bracket") << QByteArray("288 432") << unknown;
    QTest::newRow("ends with bracket") << QByteArray("288 432[") << unknown;
    QTest::newRow("empty") << QByteArray("") << unknown;
}

void CupsSupportGeometryTest::defaultPageSize()
{
    QFETCH(QByteArray, code);
    const auto cups = supportFor(LP1);
    ppd_choice_t *choice = ppdFindChoice(cups->ppdOption("PageSize"), "w288h144");
    char *const original = choice->code;
    choice->code = code.data();
    const QSize size = cups->getDefaultPageSize();
    choice->code = original;
    QTEST(size, "size");
}

void CupsSupportGeometryTest::defaultPageSizeFollowsThePpdFile()
{
    const QString label = PrivateScheduler::samplePpd("label-300");
    const auto cups = supportFor(LP2);
    QCOMPARE(cups->getDefaultPageSize(), QSize(288, 144));
    scheduler->setPpd("LP2", scheduler->editedPpd(label, {{"Size: w288h144", "Size: w288h432"}}));
    QCOMPARE(cups->getDefaultPageSize(), QSize(288, 144)); // the file that is open
    cups->closePpdFile();
    QCOMPARE(cups->getDefaultPageSize(), QSize(288, 432));
    scheduler->setPpd("LP2", label);
}

void CupsSupportGeometryTest::defaultPageSizeIgnoresSavedSize()
{
    writeOptionsFile("Dest LP1 PageSize=w288h432\n");
    const auto cups = supportFor(LP1);
    QVERIFY(ppdIsMarked(cups->getPpdFile(), "PageSize", "w288h432"));
    QCOMPARE(cups->getDefaultPageSize(), QSize(288, 144));
}

void CupsSupportGeometryTest::defaultPageSizeThatIsNoChoice()
{
    const auto cups = supportFor(LP1);
    setPpdDefault(*cups, "PageSize", "w1h1");
    QCOMPARE(cups->getDefaultPageSize(), QSize(-1, -1));
    setPpdDefault(*cups, "PageSize", "W288H144"); // upper and lower case differ
    QCOMPARE(cups->getDefaultPageSize(), QSize(-1, -1));
}

void CupsSupportGeometryTest::defaultPageSizeOfLaterOption()
{
    const auto cups = supportFor(LP1);
    // Another option of that name, in a later group.
    ppd_option_t *later = cups->ppdOption("Resolution");
    qstrncpy(later->keyword, "PageSize", sizeof later->keyword);
    QCOMPARE(cups->getDefaultPageSize(), QSize(288, 144));
    setPpdDefault(*cups, "PageSize", "w1h1"); // of the first one
    QCOMPARE(cups->getDefaultPageSize(), QSize(203, 203));

    // A default that is found ends the search, whether it can be read or not.
    setPpdDefault(*cups, "PageSize", "w288h144");
    ppd_choice_t *choice = ppdFindChoice(cups->ppdOption("PageSize"), "w288h144");
    *std::strchr(choice->code, '[') = ' ';
    QCOMPARE(cups->getDefaultPageSize(), QSize(-1, -1));
}

void CupsSupportGeometryTest::defaultPageSizeInSubgroup()
{
    const auto cups = supportFor(LP1);
    ppd_group_t *group = cups->getPpdFile()->groups;
    QCOMPARE(QByteArray(group->name), QByteArray("General"));
    ppd_group_t subgroup = *group;
    group->num_options = 0;
    group->num_subgroups = 1;
    group->subgroups = &subgroup;
    const QSize size = cups->getDefaultPageSize();
    *group = subgroup;
    QCOMPARE(size, QSize(-1, -1));
}

void CupsSupportGeometryTest::noPpdFile()
{
    const auto cups = supportFor(LP3);
    QCOMPARE(cups->getDefaultPageSize(), QSize(-1, -1));
    QCOMPARE(cups->pageRect("w288h144"), QRect());
    QCOMPARE(cups->paperRect("w288h144"), QRect());
    QCOMPARE(cups->getResolution(), QSizeF(300.0, 304.8));
    QCOMPARE(cups->getExtendedOffset(), -2);
}

void CupsSupportGeometryTest::rectangles_data()
{
    QTest::addColumn<QList<float>>("edges"); // left, bottom, right, top, width, length
    QTest::addColumn<QRect>("page");
    QTest::addColumn<QRect>("paper");
    QTest::newRow("tenths") << QList<float>{10.2f, 0, 100.6f, 200, 110, 210} << QRect(10, 10, 90, 200)
                            << QRect(0, 0, 110, 210);
    QTest::newRow("no margins") << QList<float>{0, 0, 288, 144, 288, 144} << QRect(0, 0, 288, 144)
                                << QRect(0, 0, 288, 144);
    QTest::newRow("different margins") << QList<float>{1, 2, 96, 193, 100, 200} << QRect(1, 7, 95, 191)
                                       << QRect(0, 0, 100, 200);
    QTest::newRow("halves") << QList<float>{2.5f, 1, 103, 195.5f, 110.5f, 200} << QRect(3, 5, 101, 195)
                            << QRect(0, 0, 111, 200);
    QTest::newRow("negative halves") << QList<float>{-2.5f, 0, 98, 202.5f, 100, 200} << QRect(-2, -2, 101, 203)
                                     << QRect(0, 0, 100, 200);
    QTest::newRow("minus a half") << QList<float>{-0.5f, 0, 100, 200.5f, 100, 200} << QRect(0, 0, 101, 201)
                                  << QRect(0, 0, 100, 200);
    QTest::newRow("negative") << QList<float>{-2.6f, 0, 100, 202.4f, 100, 200} << QRect(-3, -2, 103, 202)
                              << QRect(0, 0, 100, 200);
    // Rounding the edges instead would give a width of 99 and a height of 199.
    QTest::newRow("each number by itself")
        << QList<float>{0.6f, 0.6f, 100.2f, 200.2f, 101, 201} << QRect(1, 1, 100, 200) << QRect(0, 0, 101, 201);
    QTest::newRow("empty") << QList<float>{0, 0, 0, 0, 0, 0} << QRect(0, 0, 0, 0) << QRect(0, 0, 0, 0);
}

void CupsSupportGeometryTest::rectangles()
{
    QFETCH(QList<float>, edges);
    const auto cups = supportFor(LP1);
    ppd_size_t *size = ppdPageSize(cups->getPpdFile(), "w162h90");
    size->left = edges.at(0);
    size->bottom = edges.at(1);
    size->right = edges.at(2);
    size->top = edges.at(3);
    size->width = edges.at(4);
    size->length = edges.at(5);
    QTEST(cups->pageRect("w162h90"), "page");
    QTEST(cups->paperRect("w162h90"), "paper");
}

void CupsSupportGeometryTest::rectanglesOfSample()
{
    const auto cups = supportFor(LP1);
    QCOMPARE(cups->pageRect("w288h432"), QRect(4, 4, 280, 424));
    QCOMPARE(cups->paperRect("w288h432"), QRect(0, 0, 288, 432));
    QCOMPARE(cups->paperRect("w288h144"), QRect(0, 0, 288, 144));
}

void CupsSupportGeometryTest::rectanglesOfUnknownSizes()
{
    const auto cups = supportFor(LP1);
    // A custom size would be known to ppdPageSize(), which also changes the PPD file's record of it.
    for (const char *name : {"w1h1", "W288H144", "w288h14", "w288h1444", "", "Custom.288.00x144.00"}) {
        QCOMPARE(cups->pageRect(name), QRect());
        QCOMPARE(cups->paperRect(name), QRect());
        QVERIFY(cups->pageRect(name).isNull());
    }
    QCOMPARE(cups->pageRect(nullptr), QRect());
    QCOMPARE(cups->paperRect(nullptr), QRect());

    ppd_file_t *ppd = cups->getPpdFile();
    const int count = ppd->num_sizes;
    ppd->num_sizes = 0;
    const QRect page = cups->pageRect("w288h144");
    const QRect paper = cups->paperRect("w288h144");
    ppd->num_sizes = count;
    QCOMPARE(page, QRect());
    QCOMPARE(paper, QRect());
}

void CupsSupportGeometryTest::resolution_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("second");
    QTest::newRow("two") << QByteArray("600x300dpi") << 600.0 << 300.0;
    QTest::newRow("two without unit") << QByteArray("600x300") << 600.0 << 300.0;
    QTest::newRow("305 twice") << QByteArray("305x305dpi") << 305.0 << 304.8;
    QTest::newRow("305 second") << QByteArray("300x305dpi") << 300.0 << 304.8;
    QTest::newRow("305 first") << QByteArray("305x300dpi") << 305.0 << 300.0;
    QTest::newRow("305 alone") << QByteArray("305dpi") << 305.0 << 305.0;
    QTest::newRow("almost 305") << QByteArray("300x305.5dpi") << 300.0 << 305.5;
    QTest::newRow("203 alone") << QByteArray("203dpi") << 203.0 << 203.0;
    QTest::newRow("203 twice") << QByteArray("203x203dpi") << 203.0 << 203.0;
    QTest::newRow("fractions") << QByteArray("203.2x304.8dpi") << 203.2 << 304.8;
    QTest::newRow("one fraction") << QByteArray("304.8dpi") << 304.8 << 304.8;
    QTest::newRow("decimal comma") << QByteArray("203,2dpi") << 203.0 << 203.0;
    QTest::newRow("blank before x") << QByteArray("600 x300dpi") << 600.0 << 600.0;
    QTest::newRow("blank after x") << QByteArray("600x 300dpi") << 600.0 << 300.0;
    QTest::newRow("x alone") << QByteArray("600xdpi") << 600.0 << 600.0;
    QTest::newRow("capital X") << QByteArray("600X300dpi") << 600.0 << 600.0;
    QTest::newRow("zero") << QByteArray("0dpi") << 0.0 << 0.0;
    QTest::newRow("letters") << QByteArray("high") << 300.0 << 304.8;
    QTest::newRow("x first") << QByteArray("x305dpi") << 300.0 << 304.8;
    QTest::newRow("empty") << QByteArray("") << 300.0 << 304.8;
}

void CupsSupportGeometryTest::resolution()
{
    QFETCH(QByteArray, text);
    const auto cups = supportFor(LP1);
    setPpdDefault(*cups, "Resolution", text);
    QTEST(cups->getResolution().width(), "first");
    QTEST(cups->getResolution().height(), "second");
}

void CupsSupportGeometryTest::resolutionOfSamples()
{
    QCOMPARE(supportFor(LP1)->getResolution(), QSizeF(203.0, 203.0));
    QCOMPARE(supportFor(LP2)->getResolution(), QSizeF(300.0, 304.8));

    scheduler->setPpd("LP2", PrivateScheduler::samplePpd("few-options")); // has no resolution
    QCOMPARE(supportFor(LP2)->getResolution(), QSizeF(300.0, 304.8));
    QCOMPARE(supportFor(LP2)->getExtendedOffset(), -2);
    scheduler->setPpd("LP2", PrivateScheduler::samplePpd("label-300"));
}

void CupsSupportGeometryTest::resolutionIgnoresSavedResolution()
{
    writeOptionsFile("Dest LP1 Resolution=300x305dpi\nDest LP3 Resolution=203dpi\n");
    const auto cups = supportFor(LP1);
    QCOMPARE(cups->getResolution(), QSizeF(203.0, 203.0));
    cups->setCurrentPrinter(LP3);
    QCOMPARE(cups->getResolution(), QSizeF(300.0, 304.8));
}

void CupsSupportGeometryTest::extendedOffset_data()
{
    QTest::addColumn<QByteArray>("resolution");
    QTest::addColumn<QByteArray>("back");
    QTest::addColumn<int>("offset");
    QTest::newRow("203") << QByteArray("203dpi") << QByteArray("12") << 0;
    QTest::newRow("203, more") << QByteArray("203dpi") << QByteArray("20") << 8;
    QTest::newRow("203, less") << QByteArray("203dpi") << QByteArray("0") << -12;
    QTest::newRow("203, unreadable") << QByteArray("203dpi") << QByteArray("abc") << -12;
    QTest::newRow("203 second") << QByteArray("300x203dpi") << QByteArray("12") << 0;
    QTest::newRow("203 first") << QByteArray("203x300dpi") << QByteArray("12") << 10;
    QTest::newRow("almost 203") << QByteArray("203.2dpi") << QByteArray("12") << 10;
    QTest::newRow("305") << QByteArray("300x305dpi") << QByteArray("2") << 0;
    QTest::newRow("600") << QByteArray("600dpi") << QByteArray("0") << -2;
    QTest::newRow("unknown") << QByteArray("high") << QByteArray("12") << 10;
}

void CupsSupportGeometryTest::extendedOffset()
{
    QFETCH(QByteArray, resolution);
    QFETCH(QByteArray, back);
    const auto cups = supportFor(LP1);
    setPpdDefault(*cups, "Resolution", resolution);
    setPpdDefault(*cups, "Back", back);
    QTEST(cups->getExtendedOffset(), "offset");
}

void CupsSupportGeometryTest::extendedOffsetOfSavedBackfeed()
{
    writeOptionsFile("Dest LP1 Back=30\nDest LP2 Back=30\nDest LP3 Back=30\n");
    const auto cups = supportFor(LP1);
    QCOMPARE(cups->getExtendedOffset(), 18);
    cups->setCurrentPrinter(LP2);
    QCOMPARE(cups->getExtendedOffset(), 28);
    cups->setCurrentPrinter(LP3);
    QCOMPARE(cups->getExtendedOffset(), 28);
}

void CupsSupportGeometryTest::setExtendedOffset_data()
{
    QTest::addColumn<int>("printer");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("back");
    QTest::newRow("203") << int(LP1) << 8 << QByteArray("20");
    QTest::newRow("203, negative") << int(LP1) << -20 << QByteArray("-8");
    QTest::newRow("300") << int(LP2) << 8 << QByteArray("10");
    QTest::newRow("300, negative") << int(LP2) << -5 << QByteArray("-3");
    QTest::newRow("unknown resolution") << int(LP3) << 0 << QByteArray("2");
}

void CupsSupportGeometryTest::setExtendedOffset()
{
    QFETCH(int, printer);
    QFETCH(int, offset);
    const auto cups = supportFor(printer);
    QCOMPARE(cups->setExtendedOffset(offset), 0);
    QTEST(saved(*cups, "Back"), "back");
    QCOMPARE(cups->getExtendedOffset(), offset);
}

void CupsSupportGeometryTest::setExtendedOffsetSavesAtOnce()
{
    const auto cups = supportFor(LP1);
    cups->setFeed(24); // goes with it
    QCOMPARE(cups->setExtendedOffset(8), 0);
    const auto fresh = supportFor(LP1);
    QCOMPARE(saved(*fresh, "Back"), QByteArray("20"));
    QCOMPARE(fresh->getExtendedOffset(), 8);
    QCOMPARE(fresh->getFeed(), 24);
}

void CupsSupportGeometryTest::setExtendedOffsetToPpdDefault()
{
    const auto cups = supportFor(LP1);
    QCOMPARE(cups->setExtendedOffset(8), 0);
    QCOMPARE(cups->setExtendedOffset(0), 0);
    QVERIFY(cups->printerOption("Back") == nullptr);
    QCOMPARE(cups->getExtendedOffset(), 0);
    QVERIFY(supportFor(LP1)->printerOption("Back") == nullptr);
}

void CupsSupportGeometryTest::setExtendedOffsetWithoutPrinter()
{
    const auto cups = supportFor(-1);
    QCOMPARE(cups->setExtendedOffset(8), -1);
    QCOMPARE(cups->getExtendedOffset(), -2);
}

PROPERTIESDIALOG_TEST_MAIN(CupsSupportGeometryTest)
#include "CupsSupportGeometryTest.moc"
