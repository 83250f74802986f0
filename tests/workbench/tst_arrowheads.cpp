#include "drawing/arrowheads.h"
#include "drawing/entitygeometry.h"
#include "drawing/tessellation.h"
#include "od/oddbdimension.h"
#include "props/arrowheaddialogcontroller.h"
#include "props/arrowheadrecords.h"
#include "support/table.h"
#include "workbench/dxftexts.h"

#include <wx/defs.h>

using namespace workbench;

namespace {
const QByteArray tables =
    "0 TABLE|2 DIMSTYLE|0 DIMSTYLE|2 Dots|41 0.5|40 2|341 2A|0 DIMSTYLE|2 Doors|41 1|341 2B|0 ENDTAB"
    "|0 TABLE|2 BLOCK_RECORD|0 BLOCK_RECORD|5 2A|2 _DotBlank|0 BLOCK_RECORD|5 2B|2 Door|0 ENDTAB";
const QByteArray blocks = "0 BLOCK|2 Door|0 LINE|10 0|20 0|11 1|21 0|0 ENDBLK";

/// The chains of the only leader of a drawing, as their numbers of points, with a "*" where the chain is filled.
QString pieces(const DxfReadResult& result)
{
    QStringList chains;
    for (const Piece& piece : tessellate(*result.database).pieces)
        chains.append(QString::number(piece.count) + (piece.isFilled ? "*" : ""));
    return chains.join(' ');
}
} // namespace

class ArrowheadsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leadersAreDrawnWithTheirArrowhead_data()
    {
        const auto row = velmtest::columns<QByteArray, QString>("entity", "expected");
        const QByteArray way = "|10 0|20 0|10 8|20 0|10 9|20 1";
        row("a style without one has the closed, filled one", "0 LEADER|3 Standard|71 1" + way, "4* 3");
        row("one of the style's", "0 LEADER|3 Dots|71 1" + way, "25 3");
        row("a block of the drawing", "0 LEADER|3 Doors|71 1" + way, "2 3");
        row("a style that nobody knows", "0 LEADER|3 Nothing|71 1" + way, "4* 3");
        row("switched off", "0 LEADER|3 Dots|71 0" + way, "3");
        row("a line too short for it", "0 LEADER|3 Dots|71 1|10 0|20 0|10 1|20 0", "2");
        row("a single point", "0 LEADER|3 Dots|71 1|10 3|20 0", "1");
    }
    void leadersAreDrawnWithTheirArrowhead()
    {
        QFETCH(QByteArray, entity);
        QFETCH(QString, expected);
        const DxfReadResult result = readText(drawing(entity, blocks, tables));
        QCOMPARE(qt(result.error), QString());
        QCOMPARE(pieces(result), expected);
    }

    void lineBeginsBehindTheArrowhead()
    {
        const DxfReadResult result = readText(drawing("0 LEADER|3 Dots|71 1|10 5|20 5|10 5|20 15", blocks, tables));
        auto* leader = result.database->modelSpace()->entities()[0].open<OdDbLeader>();
        const auto from = [&] {
            const Tessellation tessellation = tessellate(*result.database);
            return tessellation.points[tessellation.pieces.back().first].y;
        };
        QCOMPARE(from(), 5.5); // half of a dot of size 0.5, twice as large by the scale
        leader->arrowhead = OdString(L"_none");
        QCOMPARE(from(), 5.0);
        QCOMPARE(pieces(result), "2");
        leader->arrowhead = OdString(); // its own, and the closed, filled one
        QCOMPARE(from(), 6.0);
        leader->arrowhead = OdString(L"no such block");
        QCOMPARE(pieces(result), "2");
    }

    void leaderHasALength()
    {
        OdDbLeader leader;
        QCOMPARE(entityGeometry(leader).length, 0.0);
        leader.vertices = {{1, 1, 0}, {4, 5, 0}, {4, 7, 0}};
        QCOMPARE(entityGeometry(leader).length, 7.0);
    }

    void namesAreFoundWithoutCase()
    {
        QCOMPARE(findArrowhead(L""), &arrowheads().front());
        QCOMPARE(findArrowhead(L"_ArchTick")->name, "Architectural tick");
        QVERIFY(!findArrowhead(L"ArchTick"));
        for (const Arrowhead& arrowhead : arrowheads())
            QCOMPARE(findArrowhead(arrowhead.internalName), &arrowhead);
    }

    void picturesShowTheArrowheads()
    {
        const auto common = arrowheadRecords({40, 21}, Qt::red);
        QCOMPARE(common.size(), std::size_t(commonArrowheads));
        const auto ink = [](const QImage& image) {
            int count = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    count += image.pixelColor(x, y).alpha() > 128 ? 1 : 0;
            return count;
        };
        // The line alone takes less than its arrowheads, and the filled one more than the blank one.
        const int filled = ink(arrowheadRecord({}, {40, 21}, Qt::red).preview);
        const int blank = ink(arrowheadRecord("_ClosedBlank", {40, 21}, Qt::red).preview);
        const int none = ink(arrowheadRecord("_None", {40, 21}, Qt::red).preview);
        QVERIFY(none > 20 && none < blank && blank < filled);
        QCOMPARE(common[0].preview.pixelColor(35, 10), QColor(Qt::red));
        QVERIFY(arrowheadRecord("_Dot", {}, Qt::red).preview.isNull());
        QVERIFY(arrowheadRecord("Door", {40, 21}, Qt::red).preview.isNull());
        QCOMPARE(arrowheadRecord("Door", {40, 21}, Qt::red).shownName, "Door");
    }

    void chooserOffersBlocksAndBeginsWithTheCurrentOne()
    {
        OdDbDatabase database;
        database.addBlock(L"Door");
        database.addBlock(L"_Dot"); // as files have it that use the arrowhead
        const auto all = allArrowheadRecords(&database, {40, 21}, Qt::black);
        QCOMPARE(all.size(), arrowheads().size() + 1);
        QCOMPARE(allArrowheadRecords(nullptr, {40, 21}, Qt::black).size(), arrowheads().size());

        ArrowheadDialogController controller(all, "_dot");
        QCOMPARE(controller.names().at(controller.property("chosen").toInt()), "Dot");
        QVERIFY(controller.setProperty("chosen", int(all.size()) - 1));
        QCOMPARE(controller.chosenRecord().internalName, "Door");
        for (const int bad : {-1, int(all.size()), INT_MAX, INT_MIN}) {
            controller.setProperty("chosen", bad);
            QVERIFY(controller.chosenRecord().internalName.isEmpty());
            QVERIFY(!controller.beforeEndModal(wxID_OK)); // nothing is chosen
        }
    }
};

QTEST_GUILESS_MAIN(ArrowheadsTest)

#include "tst_arrowheads.moc"
