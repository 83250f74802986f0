#include <QTest>

#include "od/odapdocument.h"
#include "od/oddbdatabase.h"
#include "ut/databaseutils.h"

#include <numbers>

template <typename Records>
static QString names(const Records& records)
{
    QStringList result;
    for (const auto* record : records)
        result += QString::fromStdWString(record->getName().wide());
    return result.join(u',');
}

class tst_OdDbDatabase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDatabaseHoldsTheStandardRecords()
    {
        const OdDbDatabase database;
        QCOMPARE(names(database.layers()), QStringLiteral("0"));
        QCOMPARE(names(database.linetypes()), QStringLiteral("ByBlock,ByLayer,Continuous"));
        QCOMPARE(names(database.dimStyles()), QStringLiteral("Standard"));
        QCOMPARE(names(database.textStyles()), QStringLiteral("Standard"));
        QCOMPARE(names(database.blocks()), QStringLiteral("*Model_Space,*Paper_Space"));
        QCOMPARE(names(database.layouts()), QStringLiteral("Model,Layout1"));
        QCOMPARE(database.layouts()[0]->getBlockTableRecordId(), database.modelSpace()->objectId());
        QVERIFY(database.currentLayer() == database.findLayer(L"0")->objectId());
        QVERIFY(OdDbObjectId::kNull.isNull() && !OdDbObjectId::kNull.openObject());
    }

    void namesAreFoundWithoutCaseAndAddedOnce()
    {
        OdDbDatabase database;
        OdDbLayerTableRecord* layer = database.addLayer("Ma\xc3\x9f\xc3\x84");
        QCOMPARE(database.findLayer(L"maßä"), layer);
        QCOMPARE(database.addLayer(L"MAßÄ"), layer);
        QCOMPARE(database.layers().size(), 2u);
        QCOMPARE(database.findLinetype(L"CONTINUOUS"), database.linetypes()[2]);
        QVERIFY(!database.findLayer(L""));
        QVERIFY(!database.findBlock(L"maßä"));
    }

    void renamingKeepsTheMapRight()
    {
        OdDbDatabase database;
        OdDbLayerTableRecord* walls = database.addLayer(L"Walls");
        OdDbLayerTableRecord* doors = database.addLayer(L"Doors");
        QVERIFY(database.rename(*walls, L"WALLS"));
        QCOMPARE(names(database.layers()), QStringLiteral("0,WALLS,Doors"));
        QCOMPARE(database.findLayer(L"walls"), walls);
        QVERIFY(!database.rename(*walls, L"doors"));
        QCOMPARE(names(database.layers()), QStringLiteral("0,WALLS,Doors"));
        QVERIFY(database.rename(*walls, L"Ceilings"));
        QVERIFY(!database.findLayer(L"walls"));
        QVERIFY(database.rename(*doors, L"Walls"));
        QCOMPARE(database.findLayer(L"WALLS"), doors);
        QCOMPARE(database.findLayer(L"ceilings"), walls);
    }

    void childDimStylesHaveAParentAndAKind()
    {
        using ut::DatabaseUtils::isChildDimStyle;
        OdDbDatabase database;
        for (const wchar_t* name :
             {L"Standard$2", L"Standard$5", L"Standard$22", L"Standard$", L"Orphan$2", L"A$B", L"A$B$0"})
            database.addDimStyle(name);
        QVERIFY(isChildDimStyle(L"STANDARD$2", &database));
        QVERIFY(isChildDimStyle(L"A$B$0", &database));
        for (const wchar_t* name :
             {L"Standard", L"Standard$5", L"Standard$22", L"Standard$", L"Orphan$2", L"Standard$4", L"$2", L""})
            QVERIFY2(!isChildDimStyle(name, &database), qPrintable(QString::fromWCharArray(name)));
        QVERIFY(!isChildDimStyle(L"Standard$2", nullptr));
        database.findDimStyle(L"standard")->erase();
        QVERIFY(!isChildDimStyle(L"Standard$2", &database));
    }

    void renamingGoesByTableAndDatabase()
    {
        OdDbDatabase database;
        OdDbDatabase other;
        QVERIFY(database.rename(*database.layouts()[1], L"Standard"));
        QVERIFY(!database.rename(*database.layouts()[1], L"MODEL"));
        QVERIFY(!other.rename(*database.layers()[0], L"x"));
        QCOMPARE(names(database.layers()), QStringLiteral("0"));
    }

    void erasedRecordsGoButTheirIdsStay()
    {
        OdDbDatabase database;
        OdDbLayerTableRecord* former = database.addLayer(L"A");
        const OdDbObjectId id = former->objectId();
        former->erase();
        QVERIFY(id.isValid() && id.isErased() && !id.openObject());
        QCOMPARE(database.objectAt(id.index()), former);
        QCOMPARE(names(database.layers()), QStringLiteral("0"));
        QVERIFY(!database.findLayer(L"A"));

        OdDbLayerTableRecord* next = database.addLayer(L"a");
        QVERIFY(next != former);
        QVERIFY(database.rename(*former, L"B")); // must not take the name from the one that has it now
        QCOMPARE(database.findLayer(L"A"), next);
        QVERIFY(!database.findLayer(L"B"));

        QVERIFY(!OdDbObjectId(&database, 1000).isValid());
        QVERIFY(!id.open<OdDbLayerTableRecord>());
        QVERIFY(!next->objectId().open<OdDbBlockTableRecord>());
        QCOMPARE(next->objectId().open<OdDbLayerTableRecord>(), next);
    }

    void layoutsOverBlocks()
    {
        OdDbDatabase database;
        OdDbLayout* second = database.addLayout(L"Layout2");
        OdDbLayout* third = database.addLayout(L"Layout3");
        QCOMPARE(names(database.blocks()), QStringLiteral("*Model_Space,*Paper_Space,*Paper_Space0,*Paper_Space1"));
        QCOMPARE(third->getBlockTableRecordId().open<OdDbBlockTableRecord>()->getLayoutId(), third->objectId());
        QCOMPARE(database.addLayout(L"LAYOUT2"), second);
        QCOMPARE(database.blocks().size(), 4u);
        QVERIFY(database.addBlock(L"Door")->getLayoutId().isNull());
    }

    void layerColorsGoByViewport()
    {
        OdDbDatabase database;
        QVERIFY(database.getTILEMODE());
        OdDbLayout* sheet = database.getPaperSpaceId().open<OdDbBlockTableRecord>()->getLayoutId().open<OdDbLayout>();
        QCOMPARE(sheet, database.layouts()[1]);
        QVERIFY(sheet->activeViewportId().isNull());
        const OdDbObjectId viewport = database.addViewport()->objectId();
        const OdDbObjectId other = database.addViewport()->objectId();
        QVERIFY(viewport != other && other.open<OdDbViewport>());
        OdDbLayerTableRecord* layer = database.layers()[0];
        const OdCmColor own = OdCmColor::fromRGB(1, 2, 3);
        layer->setColor(own, viewport);
        bool isOverride = false;
        QVERIFY(layer->color(viewport, isOverride) == own && isOverride);
        QVERIFY(layer->color(other, isOverride) == OdCmColor::fromIndex(7) && !isOverride);
        QVERIFY(layer->color() == OdCmColor::fromIndex(7));
    }

    void newEntitiesAreByLayer()
    {
        const OdDbDatabase database;
        QVERIFY(database.getCECOLOR().isByLayer());
        QCOMPARE(database.getCELTYPE(), database.findLinetype(L"ByLayer")->objectId());
        QCOMPARE(database.getCELWEIGHT(), int(OdDb::kLnWtByLayer));
        QCOMPARE(database.getDIMSTYLE().open<OdDbDimStyleTableRecord>(), database.findDimStyle(L"Standard"));
    }

    void aKeptDatabaseOutlivesItsDocument()
    {
        auto document = std::make_unique<OdApDocument>(L"a.dxf", std::make_unique<OdDbDatabase>());
        std::shared_ptr<OdDbDatabase> kept = OdDbDatabase::keep(document->database());
        const OdDbObjectId layer = kept->currentLayer();
        document.reset();
        QVERIFY(layer.open<OdDbLayerTableRecord>());
        const std::weak_ptr<OdDbDatabase> watched = kept;
        kept.reset();
        QVERIFY(watched.expired());
        OdDbDatabase local; // owned by no pointer: must not be freed twice
        QCOMPARE(OdDbDatabase::keep(&local).get(), &local);
        QVERIFY(!OdDbDatabase::keep(nullptr));
    }

    void entitiesGoToTheirBlock()
    {
        OdDbDatabase database;
        OdDbBlockTableRecord* block = database.addBlock(L"Door");
        auto line = std::make_unique<OdDbLine>();
        line->setLayer(database.addLayer(L"Doors")->objectId());
        const OdDbLine* added = database.addEntity(std::move(line), block);
        const auto* point = database.addEntity(std::make_unique<OdDbPoint>(), block);
        QCOMPARE(added->ownerId(), block->objectId());
        QCOMPARE(added->layerId(), database.findLayer(L"Doors")->objectId());
        QCOMPARE(point->layerId(), database.findLayer(L"0")->objectId());
        QVERIFY(block->entities() == OdArray<OdDbObjectId>({added->objectId(), point->objectId()}));
    }

    void aMillionEntities()
    {
        OdDbDatabase database;
        for (int i = 0; i < 1000000; ++i)
            database.addEntity(std::make_unique<OdDbPoint>(), database.modelSpace())->position.x = i;
        const OdArray<OdDbObjectId>& ids = database.modelSpace()->entities();
        QCOMPARE(ids.size(), 1000000u);
        QCOMPARE(ids.last().open<OdDbPoint>()->position.x, 999999.0);
    }

    void insertTransformsInOrder()
    {
        OdDbDatabase database;
        OdDbBlockTableRecord* block = database.addBlock(L"Door");
        block->setOrigin({1, 1, 0});
        OdDbBlockReference insert;
        insert.blockTableRecord = block->objectId();
        insert.position = {100, 200, 5};
        insert.scaleFactors = {2, 3, 1};
        insert.rotation = std::numbers::pi / 2;
        insert.columnSpacing = 10;
        insert.rowSpacing = 20;
        const auto isNear = [](const OdGePoint3d& a, const OdGePoint3d& b) { return (a - b).length() < 1e-9; };
        // (2, 3) is (1, 2) from the origin, (2, 6) scaled, (-6, 2) turned.
        QVERIFY(isNear(insert.blockTransform() * OdGePoint3d{2, 3, 0}, {94, 202, 5}));
        // The grid turns with the insert but is not scaled: a column goes up, a row to the left.
        QVERIFY(isNear(insert.blockTransform(1, 2) * OdGePoint3d{2, 3, 0}, {54, 212, 5}));
        block->erase();
        QVERIFY(isNear(insert.blockTransform() * OdGePoint3d{0, 0, 0}, {100, 200, 5}));
    }
};

QTEST_APPLESS_MAIN(tst_OdDbDatabase)
#include "tst_oddbdatabase.moc"
