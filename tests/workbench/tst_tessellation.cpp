#include "drawing/tessellation.h"
#include "entities.h"

#include <QtTest>

#include <cmath>

using namespace workbench;

namespace {
OdDbBlockReference* addInsert(OdDbDatabase& database, const OdDbBlockTableRecord* of,
                              OdDbBlockTableRecord* block = nullptr)
{
    auto* insert = add<OdDbBlockReference>(database, block);
    insert->blockTableRecord = of->objectId();
    return insert;
}

QString colours(const Tessellation& tessellation)
{
    QStringList indices;
    for (const Piece& piece : tessellation.pieces)
        indices << QString::number(piece.color.colorIndex());
    return indices.join(' ');
}

bool isNear(double a, double b, double tolerance)
{
    return std::abs(a - b) <= tolerance;
}
} // namespace

/// How a drawing is taken apart into what is drawn.
class TessellationTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void coloursComeThroughInserts();
    void layersOfInsertsHideTheirParts();
    void curvesReachTheirExtremes();
    void endlessBlocksComeToAnEnd();
};

void TessellationTest::coloursComeThroughInserts()
{
    OdDbDatabase database;
    OdDbLayerTableRecord* green = database.addLayer(L"Green");
    green->setColor(OdCmColor::fromIndex(3));
    OdDbLayerTableRecord* blue = database.addLayer(L"Blue");
    blue->setColor(OdCmColor::fromIndex(5));
    OdDbBlockTableRecord* inner = database.addBlock(L"Inner");
    addLine(database, {}, {1, 0, 0}, inner); // by the insert's layer
    addLine(database, {}, {1, 0, 0}, inner)->setColor(OdCmColor(OdCmColor::kByBlock));
    addLine(database, {}, {1, 0, 0}, inner)->setLayer(blue->objectId());
    addLine(database, {}, {1, 0, 0}, inner)->setColor(OdCmColor::fromIndex(2));
    OdDbBlockTableRecord* outer = database.addBlock(L"Outer");
    addInsert(database, inner, outer)->setColor(OdCmColor(OdCmColor::kByBlock));
    OdDbBlockReference* insert = addInsert(database, outer);
    insert->setLayer(green->objectId());
    insert->setColor(OdCmColor::fromIndex(6));
    QCOMPARE(colours(tessellate(database)), QString("3 6 5 2"));
    insert->setColor(OdCmColor());
    QCOMPARE(colours(tessellate(database)), QString("3 3 5 2"));
}

void TessellationTest::layersOfInsertsHideTheirParts()
{
    OdDbDatabase database;
    OdDbLayerTableRecord* layer = database.addLayer(L"Doors");
    OdDbLayerTableRecord* other = database.addLayer(L"Glass");
    OdDbBlockTableRecord* block = database.addBlock(L"Door");
    addLine(database, {}, {1, 0, 0}, block);
    addLine(database, {}, {1, 0, 0}, block)->setLayer(other->objectId());
    OdDbBlockReference* insert = addInsert(database, block);
    insert->setLayer(layer->objectId());
    insert->columnCount = 3;
    insert->columnSpacing = 10;
    QCOMPARE(tessellate(database).pieces.size(), std::size_t(6));
    QCOMPARE(tessellate(database).box.right, 21.0);
    layer->setIsOff(true);
    QCOMPARE(tessellate(database).pieces.size(), std::size_t(3)); // those on a layer of their own
    layer->setIsFrozen(true);
    QCOMPARE(tessellate(database).pieces.size(), std::size_t(0));
}

void TessellationTest::curvesReachTheirExtremes()
{
    OdDbDatabase database;
    auto* half = add<OdDbPolyline>(database); // a half circle below its chord
    half->vertices = {{{-2, 0, 0}, 1.0}, {{2, 0, 0}, 0.0}};
    Box box = tessellate(database).box;
    QVERIFY(isNear(box.bottom, -2.0, 1e-9) && isNear(box.top, 0.0, 1e-9));
    QVERIFY(isNear(box.left, -2.0, 1e-9) && isNear(box.right, 2.0, 1e-9));
    half->erase();
    auto* arc = add<OdDbArc>(database); // through the zero direction
    arc->radius = 3.0;
    arc->startAngle = -M_PI / 2;
    arc->endAngle = M_PI / 2 + 4 * M_PI;
    box = tessellate(database).box;
    QVERIFY(isNear(box.right, 3.0, 1e-9) && isNear(box.left, 0.0, 1e-9));
    arc->erase();
    auto* ellipse = add<OdDbEllipse>(database); // upright and whole
    ellipse->majorAxis = {0, 4, 0};
    ellipse->radiusRatio = 0.25;
    ellipse->endParam = 2 * M_PI;
    box = tessellate(database).box;
    QVERIFY(isNear(box.top, 4.0, 1e-9) && isNear(box.right, 1.0, 1e-9));
}

void TessellationTest::endlessBlocksComeToAnEnd()
{
    OdDbDatabase database;
    OdDbBlockTableRecord* self = database.addBlock(L"Self");
    addLine(database, {}, {1, 0, 0}, self);
    addInsert(database, self, self);
    addInsert(database, self);
    QCOMPARE(tessellate(database).pieces.size(), std::size_t(1));

    OdDbBlockTableRecord* block = database.addBlock(L"Level 0");
    addLine(database, {}, {1, 0, 0}, block);
    for (int level = 1; level <= 9; ++level) { // a thousand million lines
        OdDbBlockTableRecord* next = database.addBlock(L"Level " + std::to_wstring(level));
        for (int i = 0; i < 10; ++i)
            addInsert(database, block, next);
        block = next;
    }
    addInsert(database, block);
    OdDbBlockReference* grid = addInsert(database, self);
    grid->columnCount = grid->rowCount = 2'000'000'000;
    const Tessellation tessellation = tessellate(database);
    QVERIFY(tessellation.pieces.size() > 1000);
    QVERIFY(tessellation.pieces.size() < 5'000'000);
}

QTEST_GUILESS_MAIN(TessellationTest)

#include "tst_tessellation.moc"
