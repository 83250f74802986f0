#include <QTest>

#include "od/odcmcolor.h"
#include "support/table.h"

class tst_OdCmColor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void packedFormRoundTrips_data()
    {
        const auto row = velmtest::columns<uint, uint>("packed", "expected");
        row("red, green and blue", 0xC2010203u, 0xC2010203u);
        row("an index", 0xC3000005u, 0xC3000005u);
        row("none has no method byte", 257u, 257u);
        row("none with its method", 0xC8000000u, 257u);
        row("by block", 0xC1000000u, 0xC1000000u);
        row("by layer", OdCmColor().color(), OdCmColor().color());
        row("a colour of no method stays one", 0u, 0u);
        row("index 256 stays an index", 0xC3000100u, 0xC3000100u);
        row("index 0 stays an index", 0xC3000000u, 0xC3000000u);
    }
    void packedFormRoundTrips()
    {
        QFETCH(uint, packed);
        QFETCH(uint, expected);
        const OdCmColor color(packed);
        QCOMPARE(color.color(), expected);
        QVERIFY(OdCmColor(color.color()) == color);
    }

    void indexDecidesTheMethod_data()
    {
        const auto row = velmtest::columns<int, int, int>("index", "method", "readBack");
        row("0 is by block", 0, int(OdCmColor::kByBlock), 0);
        row("1 is an index", 1, int(OdCmColor::kByACI), 1);
        row("255 is an index", 255, int(OdCmColor::kByACI), 255);
        row("256 is by layer", 256, int(OdCmColor::kByLayer), 256);
        row("257 is none", 257, int(OdCmColor::kNone), 257);
        row("beyond is by layer", 258, int(OdCmColor::kByLayer), 256);
    }
    void indexDecidesTheMethod()
    {
        QFETCH(int, index);
        QFETCH(int, method);
        QFETCH(int, readBack);
        const OdCmColor color = OdCmColor::fromIndex(static_cast<std::uint16_t>(index));
        QCOMPARE(int(color.colorMethod()), method);
        QCOMPARE(int(color.colorIndex()), readBack);
        QVERIFY(OdCmColor(color.colorMethod()).colorMethod() == method);
    }

    void changingTheMethodForgetsTheRest()
    {
        OdCmColor color = OdCmColor::fromRGB(1, 2, 3);
        QCOMPARE(int(color.colorIndex()), 7);
        color.setColorMethod(OdCmColor::kByLayer);
        QVERIFY(color == OdCmColor());
        QCOMPARE(int(color.blue()), 0);
        color.setColorMethod(OdCmColor::kByColor);
        QVERIFY(color == OdCmColor::fromRGB(0, 0, 0));
        color.setColorIndex(3);
        color.setColorMethod(OdCmColor::kByACI);
        QVERIFY(color == OdCmColor::fromIndex(7));
    }

    void paletteColors_data()
    {
        const auto row = velmtest::columns<int, uint>("index", "rgb");
        row("red", 1, 0xFF0000u);
        row("yellow", 2, 0xFFFF00u);
        row("magenta", 6, 0xFF00FFu);
        row("white on dark", 7, 0xFFFFFFu);
        row("the first hue, pure", 10, 0xFF0000u);
        row("the first hue, half saturated", 11, 0xFF7F7Fu);
        row("a quarter towards yellow", 20, 0xFF3F00u);
        row("the darkest value", 18, 0x260000u);
        row("three quarters towards yellow, 65 per cent", 42, 0xA57C00u);
        row("green", 90, 0x00FF00u);
        row("blue, half saturated, half value", 175, 0x3F3F7Fu);
        row("the last hue", 240, 0xFF003Fu);
        row("the first grey", 250, 0x333333u);
        row("the last grey", 255, 0xFFFFFFu);
    }
    void paletteColors()
    {
        QFETCH(int, index);
        QFETCH(uint, rgb);
        const OdCmColor color = OdCmColor::fromIndex(static_cast<std::uint16_t>(index));
        QCOMPARE((uint(color.red()) << 16) | (uint(color.green()) << 8) | color.blue(), rgb);
        // The table itself has blue in the high byte.
        const unsigned long entry = odcmIndexPalette(true)[index - 1];
        QCOMPARE(uint(((entry & 0xFF) << 16) | (entry & 0xFF00) | (entry >> 16)), rgb);
    }

    void paletteOfALightBackground()
    {
        const unsigned long* dark = odcmIndexPalette(true);
        const unsigned long* light = odcmIndexPalette(false);
        QCOMPARE(light[6], 0ul);
        QCOMPARE(dark[255], 0ul);
        for (int i = 0; i < 256; ++i)
            QVERIFY(i == 6 || light[i] == dark[i]);
    }
};

QTEST_APPLESS_MAIN(tst_OdCmColor)
#include "tst_odcmcolor.moc"
