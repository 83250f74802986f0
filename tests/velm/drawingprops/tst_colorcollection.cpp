#include "velm/drawingprops/colorcollection.h"

#include "od/oderror.h"
#include "support/table.h"

#include <QTest>

using namespace velm;

Q_DECLARE_METATYPE(OdCmColor)

class TestColorCollection : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theHeadHoldsTheStandardColors()
    {
        const ColorCollection colors;
        QCOMPARE(colors.getArrayColor(0, 0), OdCmColor(OdCmColor::kByLayer));
        QCOMPARE(colors.getArrayColor(1, 0), OdCmColor(OdCmColor::kByBlock));
        QCOMPARE(colors.getArrayColor(2, 0), OdCmColor(OdCmColor::kNone));
        for (std::uint16_t index = 1; index <= 7; ++index)
            QCOMPARE(colors.getArrayColor(index + 2, 0), OdCmColor::fromIndex(index));
        QVERIFY_THROWS_EXCEPTION(OdError_InvalidIndex, colors.getArrayColor(10, 0));
        QVERIFY_THROWS_EXCEPTION(OdError_InvalidIndex, colors.getArrayColor(-1, 0));
    }

    void theFirstUseDecidesWhetherWhiteIsBlack()
    {
        const ColorCollection white;
        QCOMPARE(white.getArrayColor(9, 32), OdCmColor::fromRGB(0, 0, 0));
        QCOMPARE(white.getArrayColor(9, 0), OdCmColor::fromRGB(0, 0, 0));
        const ColorCollection plain;
        plain.initColorIndices(0);
        QCOMPARE(plain.getArrayColor(9, 32), OdCmColor::fromIndex(7));
    }

    void aColorIsTakenUpWhereTheFlagsAllowIt_data()
    {
        const auto row = velmtest::columns<OdCmColor, int, std::optional<int>>("color", "flags", "index");
        const std::optional<int> refused;
        const auto at = [](int index) { return std::optional<int>(index); };
        row("by block needs its flag", OdCmColor(OdCmColor::kByBlock), ~2, refused);
        row("by block with its flag", OdCmColor(OdCmColor::kByBlock), 2, at(1));
        row("by layer needs one of three flags", OdCmColor(OdCmColor::kByLayer), 1 + 8, refused);
        row("by layer with the rows", OdCmColor(OdCmColor::kByLayer), 2, at(0));
        row("by layer as black", OdCmColor(OdCmColor::kByLayer), 4, at(0));
        row("by layer in white mode", OdCmColor(OdCmColor::kByLayer), 32, at(0));
        row("a true colour needs its flag", OdCmColor::fromRGB(1, 2, 3), ~1, refused);
        row("a true colour with its flag", OdCmColor::fromRGB(1, 2, 3), 1, at(10));
        row("a packed value of 0 is refused whatever the flags", OdCmColor(0u), ~0, refused);
        row("none needs its flag", OdCmColor(OdCmColor::kNone), ~8, refused);
        row("none with its flag", OdCmColor(OdCmColor::kNone), 8, at(2));
        row("an index needs nothing", OdCmColor::fromIndex(3), 0, at(5));
    }
    void aColorIsTakenUpWhereTheFlagsAllowIt()
    {
        QFETCH(OdCmColor, color);
        QFETCH(int, flags);
        QFETCH(std::optional<int>, index);
        const ColorCollection colors;
        QCOMPARE(colors.tryAddColor(color, flags), index);
        // The second time it is found and not added again.
        QCOMPARE(colors.tryAddColor(color, flags), index);
    }

    void whiteModeKeepsPureWhiteOut()
    {
        const ColorCollection colors;
        QVERIFY(colors.shouldInitColor(OdCmColor::fromRGB(255, 255, 255), 0));
        QVERIFY(!colors.shouldInitColor(OdCmColor::fromRGB(255, 255, 255), 32));
        QVERIFY(colors.shouldInitColor(OdCmColor::fromRGB(255, 254, 255), 32));
        QVERIFY(colors.shouldInitColor(OdCmColor::fromIndex(1), 32));
    }

    void theFlagsOfTheColorDialog_data()
    {
        const auto row = velmtest::columns<int, bool, int>("flags", "varies", "dialog");
        row("a bare combo has no true colours", 0, false, 8);
        row("by layer and by block", 3, false, 1);
        row("black by layer wins over them", 7, false, 2);
        row("white mode wins over them", 35, false, 2);
        row("none and varies", 9, true, 64 + 16);
    }
    void theFlagsOfTheColorDialog()
    {
        QFETCH(int, flags);
        QFETCH(bool, varies);
        QFETCH(int, dialog);
        QCOMPARE(ColorCollection().colorComboFlagsToDialog(flags, varies), dialog);
    }

    void copiesShareNothing()
    {
        const ColorCollection colors;
        colors.tryAddColor(OdCmColor::fromRGB(1, 1, 1), 1);
        const ColorCollection copy = colors;
        copy.tryAddColor(OdCmColor::fromRGB(2, 2, 2), 1);
        QCOMPARE(colors.initColorIndices(1).size(), 8u);
        QCOMPARE(copy.initColorIndices(1).size(), 9u);
    }
};

QTEST_APPLESS_MAIN(TestColorCollection)
#include "tst_colorcollection.moc"
