#include "drawing/dxftext.h"
#include "support/table.h"
#include "workbench/dxftexts.h"

using namespace workbench;

class DxfTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsStandWhereTheFileAlignsThem_data()
    {
        const auto row =
            velmtest::columns<QByteArray, double, int, int, double>("text", "x", "horizontal", "vertical", "rotation");
        const QByteArray text = "0 TEXT|1 T|40 2|10 1|20 1|11 5|21 1|";
        const QByteArray paragraphs = "0 MTEXT|1 T|40 2|10 7|20 1|";
        row("left, the second point doesn't count", text + "72 0", 1.0, 0, 0, 0.0);
        row("right on the base line", text + "72 2|50 90", 5.0, 2, 0, 90.0);
        row("middle of the text", text + "72 4", 5.0, 1, 2, 0.0);
        row("left at the top", text + "72 0|73 3", 5.0, 0, 3, 0.0);
        row("fitted between two points", text + "72 5|21 5", 1.0, 0, 0, 45.0);
        row("paragraphs at the top left", paragraphs + "71 1", 7.0, 0, 3, 0.0);
        row("paragraphs at the middle right", paragraphs + "71 6", 7.0, 2, 2, 0.0);
        row("paragraphs at the bottom", paragraphs + "71 8|50 30", 7.0, 1, 1, 30.0);
        row("paragraphs along a direction to the left", paragraphs + "71 1|11 -1|21 0", 7.0, 0, 3, 180.0);
    }
    void textsStandWhereTheFileAlignsThem()
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

    void textIsDecoded_data()
    {
        const auto row = velmtest::columns<QByteArray, QString>("bytes", "text");
        row("UTF-8", "Küche – Ω 日本", "Küche – Ω 日本");
        row("the western code page",
            "K\xFC"
            "che \x96 \x80 5",
            "Küche – € 5");
        row("escapes", "K\\U+00FCche \\U+65E5", "Küche 日");
        row("escapes beside the code page", "\xC4hre \\U+0141", "Ähre Ł");
        row("something like an escape", "C:\\U+12 \\U+ZZZZ", "C:\\U+12 \\U+ZZZZ");
        row("half of a pair", "\\U+D800x", "\\U+D800x");
        row("special characters", "%%c40 %%p0,1 90%%d %%uline%%u 5%%%", "Ø40 ±0,1 90° line 5%");
        row("an open code at the end", "100%%", "100%%");
        row("overlong UTF-8 is no UTF-8", "\xC0\xAF", "À¯");
        row("spaces at both ends stay", "  a  ", "  a  ");
    }
    void textIsDecoded()
    {
        QFETCH(const QByteArray, bytes);
        const DxfReadResult result = readText(drawing("0 TEXT|8 0|40 1|1 " + bytes));
        QCOMPARE(qt(result.error), QString());
        QTEST(qt(entity<OdDbText>(result, 0)->textString), "text");
    }

    void paragraphsLoseTheirFormatting_data()
    {
        const auto row = velmtest::columns<QString, QString>("coded", "text");
        row("paragraphs", "one\\Ptwo\\P", "one\ntwo\n");
        row("fonts and braces", "{\\fArial|b1|i0;Notes}: \\H2.5x;\\C1;big", "Notes: big");
        row("switches", "\\Lunder\\l \\Oover\\o \\Kout\\k", "under over out");
        row("fractions", "\\S1/2; \\S+0,2^-0,1; \\S3#4;", "1/2 +0,2/-0,1 3/4");
        row("masked characters", "\\{a\\} C:\\\\new\\~x", "{a} C:\\new x");
        row("a code that never ends", "\\fArial", "\\fArial");
        row("an unknown code", "\\zero", "\\zero");
        row("a backslash at the end", "end\\", "end\\");
        row("signs", "45%%d", "45°");
    }
    void paragraphsLoseTheirFormatting()
    {
        QFETCH(const QString, coded);
        QTEST(QString::fromStdWString(plainMText(coded.toStdWString())), "text");
    }
};

QTEST_GUILESS_MAIN(DxfTextTest)
#include "tst_dxftext.moc"
