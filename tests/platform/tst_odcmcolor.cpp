#include <QTest>

#include "od/odcmcolor.h"

class tst_OdCmColor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void packedFormRoundTrips_data();
    void packedFormRoundTrips();
    void indexDecidesTheMethod_data();
    void indexDecidesTheMethod();
    void changingTheMethodForgetsTheRest();
    void paletteColors_data();
    void paletteColors();
    void paletteOfALightBackground();
};

void tst_OdCmColor::packedFormRoundTrips_data()
{
    QTest::addColumn<uint>("packed");
    QTest::addColumn<uint>("expected");
    QTest::newRow("red, green and blue") << 0xC2010203u << 0xC2010203u;
    QTest::newRow("an index") << 0xC3000005u << 0xC3000005u;
    QTest::newRow("none has no method byte") << 257u << 257u;
    QTest::newRow("none with its method") << 0xC8000000u << 257u;
    QTest::newRow("by block") << 0xC1000000u << 0xC1000000u;
    QTest::newRow("by layer") << OdCmColor().color() << OdCmColor().color();
    QTest::newRow("an index that means by block") << 0xC3000000u << 0xC1000000u;
    QTest::newRow("an unknown method is by layer") << 0x12345678u << OdCmColor().color();
}

void tst_OdCmColor::packedFormRoundTrips()
{
    QFETCH(uint, packed);
    QFETCH(uint, expected);
    const OdCmColor color(packed);
    QCOMPARE(color.color(), expected);
    QVERIFY(OdCmColor(color.color()) == color);
}

void tst_OdCmColor::indexDecidesTheMethod_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("readBack");
    QTest::newRow("0 is by block") << 0 << int(OdCmColor::kByBlock) << 0;
    QTest::newRow("1 is an index") << 1 << int(OdCmColor::kByACI) << 1;
    QTest::newRow("255 is an index") << 255 << int(OdCmColor::kByACI) << 255;
    QTest::newRow("256 is by layer") << 256 << int(OdCmColor::kByLayer) << 256;
    QTest::newRow("257 is none") << 257 << int(OdCmColor::kNone) << 257;
    QTest::newRow("beyond is by layer") << 258 << int(OdCmColor::kByLayer) << 256;
}

void tst_OdCmColor::indexDecidesTheMethod()
{
    QFETCH(int, index);
    QFETCH(int, method);
    QFETCH(int, readBack);
    const OdCmColor color = OdCmColor::fromIndex(static_cast<std::uint16_t>(index));
    QCOMPARE(int(color.colorMethod()), method);
    QCOMPARE(int(color.colorIndex()), readBack);
    QVERIFY(OdCmColor(color.colorMethod()).colorMethod() == method);
}

void tst_OdCmColor::changingTheMethodForgetsTheRest()
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

void tst_OdCmColor::paletteColors_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<uint>("rgb");
    QTest::newRow("red") << 1 << 0xFF0000u;
    QTest::newRow("yellow") << 2 << 0xFFFF00u;
    QTest::newRow("magenta") << 6 << 0xFF00FFu;
    QTest::newRow("white on dark") << 7 << 0xFFFFFFu;
    QTest::newRow("the first hue, pure") << 10 << 0xFF0000u;
    QTest::newRow("the first hue, half saturated") << 11 << 0xFF7F7Fu;
    QTest::newRow("a quarter towards yellow") << 20 << 0xFF3F00u;
    QTest::newRow("the darkest value") << 18 << 0x260000u;
    QTest::newRow("three quarters towards yellow, 65 per cent") << 42 << 0xA57C00u;
    QTest::newRow("green") << 90 << 0x00FF00u;
    QTest::newRow("blue, half saturated, half value") << 175 << 0x3F3F7Fu;
    QTest::newRow("the last hue") << 240 << 0xFF003Fu;
    QTest::newRow("the first grey") << 250 << 0x333333u;
    QTest::newRow("the last grey") << 255 << 0xFFFFFFu;
}

void tst_OdCmColor::paletteColors()
{
    QFETCH(int, index);
    QFETCH(uint, rgb);
    const OdCmColor color = OdCmColor::fromIndex(static_cast<std::uint16_t>(index));
    QCOMPARE((uint(color.red()) << 16) | (uint(color.green()) << 8) | color.blue(), rgb);
    // The table itself has blue in the high byte.
    const unsigned long entry = odcmIndexPalette(true)[index - 1];
    QCOMPARE(uint(((entry & 0xFF) << 16) | (entry & 0xFF00) | (entry >> 16)), rgb);
}

void tst_OdCmColor::paletteOfALightBackground()
{
    const unsigned long* dark = odcmIndexPalette(true);
    const unsigned long* light = odcmIndexPalette(false);
    QCOMPARE(light[6], 0ul);
    QCOMPARE(dark[255], 0ul);
    for (int i = 0; i < 256; ++i)
        QVERIFY(i == 6 || light[i] == dark[i]);
}

QTEST_APPLESS_MAIN(tst_OdCmColor)
#include "tst_odcmcolor.moc"
