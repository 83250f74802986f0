#include "drawing/dxftext.h"
#include "workbench/dxftexts.h"

using namespace workbench;

class DxfTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsStandWhereTheFileAlignsThem_data();
    void textsStandWhereTheFileAlignsThem();
    void textIsDecoded_data();
    void textIsDecoded();
    void paragraphsLoseTheirFormatting_data();
    void paragraphsLoseTheirFormatting();
};

void DxfTextTest::textsStandWhereTheFileAlignsThem_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("x");
    QTest::addColumn<int>("horizontal");
    QTest::addColumn<int>("vertical");
    QTest::addColumn<double>("rotation");
    const QByteArray text = "0 TEXT|1 T|40 2|10 1|20 1|11 5|21 1|";
    const QByteArray paragraphs = "0 MTEXT|1 T|40 2|10 7|20 1|";
    QTest::newRow("left, the second point doesn't count") << text + "72 0" << 1.0 << 0 << 0 << 0.0;
    QTest::newRow("right on the base line") << text + "72 2|50 90" << 5.0 << 2 << 0 << 90.0;
    QTest::newRow("middle of the text") << text + "72 4" << 5.0 << 1 << 2 << 0.0;
    QTest::newRow("left at the top") << text + "72 0|73 3" << 5.0 << 0 << 3 << 0.0;
    QTest::newRow("fitted between two points") << text + "72 5|21 5" << 1.0 << 0 << 0 << 45.0;
    QTest::newRow("paragraphs at the top left") << paragraphs + "71 1" << 7.0 << 0 << 3 << 0.0;
    QTest::newRow("paragraphs at the middle right") << paragraphs + "71 6" << 7.0 << 2 << 2 << 0.0;
    QTest::newRow("paragraphs at the bottom") << paragraphs + "71 8|50 30" << 7.0 << 1 << 1 << 30.0;
    QTest::newRow("paragraphs along a direction to the left")
        << paragraphs + "71 1|11 -1|21 0" << 7.0 << 0 << 3 << 180.0;
}

void DxfTextTest::textsStandWhereTheFileAlignsThem()
{
    QFETCH(const QByteArray, text);
    const DxfReadResult result = readText(groups("999 dxflib 3.0.0.0") + drawing(text));
    const auto* placed = entity<OdDbText>(result, 0);
    QVERIFY(placed);
    QTEST(placed->position.x, "x");
    QTEST(int(placed->horizontalMode), "horizontal");
    QTEST(int(placed->verticalMode), "vertical");
    QTEST(placed->rotation * 180.0 / std::numbers::pi, "rotation");
}

void DxfTextTest::textIsDecoded_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("UTF-8") << QByteArray("Küche – Ω 日本") << "Küche – Ω 日本";
    QTest::newRow("the western code page") << QByteArray("K\xFC"
                                                         "che \x96 \x80 5")
                                           << "Küche – € 5";
    QTest::newRow("escapes") << QByteArray("K\\U+00FCche \\U+65E5") << "Küche 日";
    QTest::newRow("escapes beside the code page") << QByteArray("\xC4hre \\U+0141") << "Ähre Ł";
    QTest::newRow("something like an escape") << QByteArray("C:\\U+12 \\U+ZZZZ") << "C:\\U+12 \\U+ZZZZ";
    QTest::newRow("half of a pair") << QByteArray("\\U+D800x") << "\\U+D800x";
    QTest::newRow("special characters") << QByteArray("%%c40 %%p0,1 90%%d %%uline%%u 5%%%") << "Ø40 ±0,1 90° line 5%";
    QTest::newRow("an open code at the end") << QByteArray("100%%") << "100%%";
    QTest::newRow("overlong UTF-8 is no UTF-8") << QByteArray("\xC0\xAF") << "À¯";
    QTest::newRow("spaces at both ends stay") << QByteArray("  a  ") << "  a  ";
}

void DxfTextTest::textIsDecoded()
{
    QFETCH(const QByteArray, bytes);
    const DxfReadResult result = readText(drawing("0 TEXT|8 0|40 1|1 " + bytes));
    QCOMPARE(qt(result.error), QString());
    QTEST(qt(entity<OdDbText>(result, 0)->textString), "text");
}

void DxfTextTest::paragraphsLoseTheirFormatting_data()
{
    QTest::addColumn<QString>("coded");
    QTest::addColumn<QString>("text");
    QTest::newRow("paragraphs") << "one\\Ptwo\\P"
                                << "one\ntwo\n";
    QTest::newRow("fonts and braces") << "{\\fArial|b1|i0;Notes}: \\H2.5x;\\C1;big"
                                      << "Notes: big";
    QTest::newRow("switches") << "\\Lunder\\l \\Oover\\o \\Kout\\k"
                              << "under over out";
    QTest::newRow("fractions") << "\\S1/2; \\S+0,2^-0,1; \\S3#4;"
                               << "1/2 +0,2/-0,1 3/4";
    QTest::newRow("masked characters") << "\\{a\\} C:\\\\new\\~x"
                                       << "{a} C:\\new x";
    QTest::newRow("a code that never ends") << "\\fArial"
                                            << "\\fArial";
    QTest::newRow("an unknown code") << "\\zero"
                                     << "\\zero";
    QTest::newRow("a backslash at the end") << "end\\"
                                            << "end\\";
    QTest::newRow("signs") << "45%%d"
                           << "45°";
}

void DxfTextTest::paragraphsLoseTheirFormatting()
{
    QFETCH(const QString, coded);
    QTEST(QString::fromStdWString(plainMText(coded.toStdWString())), "text");
}

QTEST_GUILESS_MAIN(DxfTextTest)
#include "tst_dxftext.moc"
