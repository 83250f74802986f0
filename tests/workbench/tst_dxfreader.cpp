#include "od/oddbdimension.h"
#include "support/table.h"
#include "ut/databaseutils.h"
#include "workbench/dxftexts.h"

#include <numbers>

using namespace workbench;

class DxfReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void floorPlanIsReadWhole()
    {
        const DxfReadResult result = readSample("house.dxf");
        QCOMPARE(qt(result.error), QString());
        QVERIFY(result.skipped.empty());
        OdDbDatabase& database = *result.database;
        QCOMPARE(database.layers().size(), std::size_t(14));
        QCOMPARE(result.entityCount, int(database.modelSpace()->entities().size()) + 2); // two on the sheet
        QVERIFY(result.entityCount > 400);

        const OdDbLayerTableRecord* walls = database.findLayer(L"WÄNDE");
        QVERIFY(walls);
        QCOMPARE(walls->lineWeight(), 50);
        const auto* outline = entity<OdDbPolyline>(result, 0);
        QVERIFY(outline);
        QVERIFY(outline->closed);
        QVERIFY(outline->layerId() == walls->objectId());
        QVERIFY(outline->vertices.front().point == OdGePoint3d());

        QVERIFY(database.findLayer(L"Elektro")->isOff());
        QCOMPARE(int(database.findLayer(L"Elektro")->color().colorIndex()), 6);
        QVERIFY(database.findLayer(L"Bestand (Altbau)")->isFrozen());
        QVERIFY(database.findLayer(L"Rahmen")->isLocked());
        QVERIFY(!database.findLayer(L"Rahmen")->isFrozen());
        QVERIFY(database.findLayer(L"Möbel")->color() == OdCmColor::fromRGB(0xC9, 0xA0, 0x6A));
        QCOMPARE(database.findLayer(L"0")->lineWeight(), int(OdDb::kLnWtByLwDefault));
        QVERIFY(database.findLayer(L"Achsen")->linetypeObjectId() == database.findLinetype(L"Mitte")->objectId());
        QVERIFY((database.findLinetype(L"MITTE")->dashes() == OdArray<double>{600, -120, 120, -120}));
        QVERIFY(database.currentLayer() == database.findLayer(L"Möbel")->objectId());
        QCOMPARE(qt(walls->description()), QString("Tragende und leichte Wände"));
        QCOMPARE(qt(database.findLayer(L"Türen")->description()), QString());
        QCOMPARE(database.dimStyles().size(), std::size_t(7));
        QVERIFY(ut::DatabaseUtils::isChildDimStyle(L"Standard$2", &database));
        QVERIFY(ut::DatabaseUtils::isChildDimStyle(L"Small$3", &database));
        QCOMPARE(database.findDimStyle(L"Architektur 1-50")->dimscale(), 50.0);
        QCOMPARE(database.findDimStyle(L"Small")->dimtxsty(), database.findTextStyle(L"Beschriftung")->objectId());
        QCOMPARE(qt(database.findTextStyle(L"Titel")->fileName()), QString("DejaVuSans-Bold.ttf"));
        QCOMPARE(database.formatter().units().linearPrecision, 1);
        QCOMPARE(database.layouts().size(), std::size_t(2));
        QCOMPARE(qt(database.layouts()[1]->getName()), QString("Ausdruck A3"));
    }

    void bracketIsReadWhole()
    {
        const DxfReadResult result = readSample("bracket.dxf"); // another code page, other line ends
        QCOMPARE(qt(result.error), QString());
        QVERIFY(result.skipped.empty());
        QCOMPARE(result.database->layers().size(), std::size_t(10));
        QVERIFY(result.database->findLayer(L"Maße"));
        const auto* plate = entity<OdDbPolyline>(result, 0);
        QCOMPARE(plate->vertices.size(), std::size_t(8));
        QCOMPARE(plate->vertices[1].point.x, 148.0);
        QCOMPARE(plate->vertices[1].bulge, 0.414214);
        const auto* screws = entity<OdDbBlockReference>(result, 1);
        QCOMPARE(screws->columnCount, 2);
        QCOMPARE(screws->rowSpacing, 68.0);
        QCOMPARE(int(result.database->formatter().units().angularKind), int(OdUnits::kDegreesMinutesSeconds));
        bool hasOmega = false;
        for (const OdDbObjectId& id : result.database->modelSpace()->entities())
            if (const auto* text = id.open<OdDbText>())
                hasOmega = hasOmega || qt(text->textString).contains("Ω-Profil");
        QVERIFY(hasOmega); // it is an escape in the file
    }

    void unknownEntitiesAreCountedAndTheRestIsRead()
    {
        const DxfReadResult result = readSample("damaged/unknown-entity.dxf");
        QCOMPARE(qt(result.error), QString());
        QVERIFY((result.skipped == std::map<std::string, int>{{"REVISIONCLOUD", 2}, {"WEATHERSTATION", 1}}));
        QCOMPARE(result.entityCount, 5);
        // The one behind them took nothing over from them.
        const auto* line = entity<OdDbLine>(result, 4);
        QVERIFY(line);
        QVERIFY((line->endPoint == OdGePoint3d{90, 60, 0}));
        // A viewport is known, though it is no entity that is drawn.
        const DxfReadResult sheet =
            readText(drawing("0 VIEWPORT|67 1|8 0|69 2|40 20|41 10|0 LINE|10 0|20 0|11 1|21 1"));
        QVERIFY(sheet.skipped.empty());
        QCOMPARE(sheet.entityCount, 1);
    }

    void entitiesKeepTheirGeometry()
    {
        const DxfReadResult result = readText(drawing(
            "0 POINT|10 1|20 2|0 CIRCLE|10 3|20 4|40 5|0 ARC|10 0|20 0|40 2|50 30|51 90"
            "|0 ELLIPSE|10 1|20 1|11 4|21 0|40 0.5|41 0|42 3.14159"
            "|0 POLYLINE|70 1|0 VERTEX|10 0|20 0|42 1|0 VERTEX|10 2|20 0|0 SEQEND"
            "|0 SPLINE|71 3|72 8|73 4|40 0|40 0|40 0|40 0|40 1|40 1|40 1|40 1|10 0|20 0|10 0|20 1|10 1|20 1|10 1|20 0"
            "|0 SOLID|10 0|20 0|11 1|21 0|12 0|22 1|13 1|23 1"
            "|0 SPLINE|71 3|74 3|11 0|21 0|11 5|21 1|11 9|21 0|0 POLYLINE|70 64|0 VERTEX|10 1|20 1|0 SEQEND"));
        QCOMPARE(qt(result.error), QString());
        QCOMPARE(result.entityCount, 8);
        QVERIFY((entity<OdDbPoint>(result, 0)->position == OdGePoint3d{1, 2, 0}));
        QCOMPARE(entity<OdDbCircle>(result, 1)->radius, 5.0);
        QCOMPARE(entity<OdDbArc>(result, 2)->startAngle, std::numbers::pi / 6);
        QCOMPARE(entity<OdDbArc>(result, 2)->endAngle, std::numbers::pi / 2);
        QCOMPARE(entity<OdDbEllipse>(result, 3)->radiusRatio, 0.5);
        QCOMPARE(entity<OdDbEllipse>(result, 3)->endParam, 3.14159);
        const auto* polyline = entity<OdDbPolyline>(result, 4);
        QVERIFY(polyline->closed);
        QCOMPARE(polyline->vertices.size(), std::size_t(2));
        QCOMPARE(polyline->vertices[0].bulge, 1.0);
        const auto* spline = entity<OdDbPolyline>(result, 5);
        QVERIFY(!spline->closed);
        const auto& middle = spline->vertices[spline->vertices.size() / 2].point;
        QCOMPARE(middle.x, 0.5); // the cubic's middle, known from its four points
        QCOMPARE(middle.y, 0.75);
        QVERIFY((spline->vertices.back().point == OdGePoint3d{1, 0, 0}));
        QVERIFY((entity<OdDbPolyline>(result, 6)->vertices[2].point == OdGePoint3d{1, 1, 0})); // corners in their order
        const auto& fitted = entity<OdDbPolyline>(result, 7)->vertices;
        const auto isOnFit = [](const auto& vertex) { return vertex.point == OdGePoint3d{5, 1, 0}; };
        QVERIFY(std::any_of(fitted.begin(), fitted.end(), isOnFit));
        QVERIFY((result.skipped == std::map<std::string, int>{{"POLYLINE mesh", 1}}));
    }

    void mirroredEntitiesAreMirroredBack()
    {
        const QByteArray mirrored = "|210 0|220 0|230 -1";
        const DxfReadResult result = readText(
            drawing("0 ARC|10 3|20 1|40 2|50 0|51 90" + mirrored + "|0 LWPOLYLINE|90 2|10 1|20 0|42 1|10 3|20 0" +
                    mirrored + "|0 INSERT|2 B|10 5|20 1|50 30" + mirrored + "|0 LINE|10 1|20 0|11 2|21 0" + mirrored));
        const auto* arc = entity<OdDbArc>(result, 0);
        QCOMPARE(arc->center.x, -3.0);
        QCOMPARE(arc->startAngle, std::numbers::pi / 2);
        QCOMPARE(arc->endAngle, std::numbers::pi);
        const auto* polyline = entity<OdDbPolyline>(result, 1);
        QCOMPARE(polyline->vertices[1].point.x, -3.0);
        QCOMPARE(polyline->vertices[0].bulge, -1.0);
        const auto* insert = entity<OdDbBlockReference>(result, 2);
        QCOMPARE(insert->scaleFactors.x, -1.0);
        QCOMPARE(insert->rotation, -std::numbers::pi / 6);
        QCOMPARE(entity<OdDbLine>(result, 3)->endPoint.x, 2.0); // lines have the drawing's coordinates anyway
    }

    void attributesAreRead()
    {
        const DxfReadResult result = readText(
            drawing("0 POINT|8 New layer|62 3|6 Dash|370 35|39 99|0 POINT|8 0|0 POINT|8 0|62 0|6 ByBlock|370 -2"
                    "|0 POINT|8 0|62 1|420 1193046|0 POINT|8 0|62 9999",
                    {}, "0 TABLE|2 LTYPE|0 LTYPE|2 Dash|3 _ _|73 2|40 3|49 2|49 -1|0 ENDTAB",
                    "9 $LTSCALE|40 2.5|9 $LTSCALE|40 -1"));
        QCOMPARE(qt(result.error), QString());
        OdDbDatabase& database = *result.database;
        QCOMPARE(database.getLTSCALE(), 2.5); // the one below zero is none
        const auto* first = entity<OdDbPoint>(result, 0);
        QVERIFY(first->layerId() == database.findLayer(L"new LAYER")->objectId());
        QCOMPARE(int(first->color().colorIndex()), 3);
        QVERIFY(first->linetypeId() == database.findLinetype(L"Dash")->objectId());
        QCOMPARE(first->lineWeight(), 35);
        const auto* plain = entity<OdDbPoint>(result, 1);
        QVERIFY(plain->color().isByLayer());
        QVERIFY(plain->linetypeId().isNull());
        QCOMPARE(plain->lineWeight(), int(OdDb::kLnWtByLayer));
        const auto* byBlock = entity<OdDbPoint>(result, 2);
        QVERIFY(byBlock->color().isByBlock());
        QVERIFY(byBlock->linetypeId() == database.findLinetype(L"ByBlock")->objectId());
        QCOMPARE(byBlock->lineWeight(), int(OdDb::kLnWtByBlock));
        QVERIFY(entity<OdDbPoint>(result, 3)->color() == OdCmColor::fromRGB(0x12, 0x34, 0x56));
        QVERIFY(entity<OdDbPoint>(result, 4)->color().isByLayer());
    }

    void transparenciesAreRead()
    {
        const DxfReadResult result = readText(
            drawing("0 POINT|8 0|440 33554559|0 POINT|8 0|0 POINT|8 0|440 16777216|0 POINT|8 0|440 33554432"
                    "|0 POINT|8 0|440 -5|0 POLYLINE|8 0|66 1|440 33554610|0 VERTEX|8 0|10 0|20 0|440 33554559"
                    "|0 VERTEX|8 0|10 1|20 1|0 SEQEND|0 LINE|8 0|440 33554687|0 HATCH|440 33554559|0 CIRCLE|40 1"));
        QCOMPARE(qt(result.error), QString());
        QStringList transparencies;
        for (const OdDbObjectId& id : result.database->modelSpace()->entities())
            transparencies << QString::number(id.open<OdDbEntity>()->transparency());
        // Above 90 percent there is none.
        QCOMPARE(transparencies.join(' '), QString("50 -1 -2 90 -1 30 0 -1"));
    }

    void leadersInARowKeepTheirOwnStyles()
    {
        const DxfReadResult result =
            readText(drawing("0 LEADER|3 Dots|10 0|20 0|10 1|20 0|0 LEADER|3 Doors|10 0|20 0|10 1|20 0", {},
                             "0 TABLE|2 DIMSTYLE|0 DIMSTYLE|2 Dots|0 DIMSTYLE|2 Doors|0 ENDTAB"));
        QCOMPARE(qt(result.error), QString());
        const auto styleOf = [&](unsigned int index) {
            return entity<OdDbLeader>(result, index)->dimensionStyle.open<OdDbDimStyleTableRecord>()->getName();
        };
        QCOMPARE(qt(styleOf(0)), QString("Dots"));
        QCOMPARE(qt(styleOf(1)), QString("Doors"));
    }

    void blocksHoldTheirEntities()
    {
        const DxfReadResult result = readText(drawing(
            "0 INSERT|8 0|2 CHAIR|10 5|20 6|41 2|42 -1|50 90|70 3|71 2|44 10|45 20|66 1"
            "|0 ATTRIB|8 0|1 No. 7|2 NUMBER|10 1|20 1|40 1|0 SEQEND|0 INSERT|2 Nowhere|0 DIMENSION|2 *D1|70 32|10 9|41 "
            "4",
            "0 BLOCK|2 Chair|10 1|20 2|0 CIRCLE|40 1|0 LINE|11 1|0 ENDBLK|0 BLOCK|2 *D1|70 1|0 POINT|0 ENDBLK"));
        QCOMPARE(qt(result.error), QString());
        QCOMPARE(result.entityCount, 4);
        const OdDbBlockTableRecord* chair = result.database->findBlock(L"Chair");
        QCOMPARE(chair->entities().size(), 2u);
        QVERIFY((chair->origin() == OdGePoint3d{1, 2, 0}));
        const auto* insert = entity<OdDbBlockReference>(result, 0);
        QVERIFY(insert->blockTableRecord == chair->objectId());
        QVERIFY((insert->scaleFactors == OdGeVector3d{2, -1, 1}));
        QCOMPARE(insert->rotation, std::numbers::pi / 2);
        QCOMPARE(insert->columnCount * 100 + insert->rowCount, 302);
        QCOMPARE(insert->rowSpacing, 20.0);
        QCOMPARE(qt(entity<OdDbText>(result, 1)->textString), QString("No. 7"));
        QVERIFY(entity<OdDbBlockReference>(result, 2)->blockTableRecord.isNull());
        const auto* dimension = entity<OdDbBlockReference>(result, 3);
        QVERIFY(dimension->blockTableRecord == result.database->findBlock(L"*D1")->objectId());
        QVERIFY((dimension->position == OdGePoint3d())); // its points are not those of the insert
        QCOMPARE(dimension->columnCount, 1);
    }

    void layoutsShowTheirBlocks()
    {
        const auto layout = [](const QByteArray& name, const QByteArray& handle) {
            return "0 LAYOUT|5 AA|330 C|100 AcDbPlotSettings|1 setup|330 F0|100 AcDbLayout|1 " + name + "|330 " +
                   handle;
        };
        const QByteArray records = "0 TABLE|2 BLOCK_RECORD|0 BLOCK_RECORD|5 1F|2 *Model_Space|0 BLOCK_RECORD|5 1B"
                                   "|2 *Paper_Space|0 BLOCK_RECORD|5 2A|2 *Paper_Space0|0 ENDTAB";
        // The second sheet has the name that the first one has in every new database.
        const DxfReadResult result = readText(
            section("TABLES", records) + section("BLOCKS", "0 BLOCK|2 *Paper_Space0|0 POINT|0 ENDBLK") +
            section("ENTITIES", "0 POINT|67 1|0 POINT") +
            section("OBJECTS", layout("Layout1", "2A") + '|' + layout("Model", "1F") + '|' + layout("Plan", "1B")) +
            groups("0 EOF"));
        QCOMPARE(qt(result.error), QString());
        QStringList names;
        QList<unsigned int> counts;
        for (const OdDbLayout* shown : result.database->layouts()) {
            names << qt(shown->getName());
            counts << shown->getBlockTableRecordId().open<OdDbBlockTableRecord>()->entities().size();
        }
        QCOMPARE(names, (QStringList{"Model", "Plan", "Layout1"}));
        QCOMPARE(counts, (QList<unsigned int>{1, 1, 1}));
    }

    void dimStylesHaveTheirValues()
    {
        // The text styles stand below, and the private data of an application hold numbers of their own.
        const DxfReadResult result = readText(
            drawing({}, {},
                    "0 TABLE|2 DIMSTYLE|0 DIMSTYLE|105 A|2 Plan|40 +50.0|41 2.5|140 3.5|271 1|340 C1|1001 ACAD|1040 7"
                    "|0 DIMSTYLE|105 B|2 Bare|0 DIMSTYLE|105 C|2 Odd|271 1e300|340 FF|0 DIMSTYLE|2 |0 ENDTAB"
                    "|0 TABLE|2 STYLE|0 STYLE|2 Old|3 txt|0 STYLE|5 C1|2 Notes|3 txt|0 ENDTAB"));
        QCOMPARE(qt(result.error), QString());
        const OdDbDatabase& database = *result.database;
        QCOMPARE(database.dimStyles().size(), std::size_t(4));
        const OdDbDimStyleTableRecord* plan = database.findDimStyle(L"Plan");
        QCOMPARE(plan->dimscale(), 50.0);
        QCOMPARE(plan->dimasz(), 2.5);
        QCOMPARE(plan->dimtxt(), 3.5);
        QCOMPARE(plan->dimdec(), 1);
        QVERIFY(plan->dimtxsty() == database.findTextStyle(L"Notes")->objectId());
        QCOMPARE(database.findDimStyle(L"Bare")->dimscale(), 1.0);
        for (const wchar_t* name : {L"Bare", L"Odd", L"Standard"})
            QVERIFY(database.findDimStyle(name)->dimtxsty() == database.findTextStyle(L"Standard")->objectId());
        QCOMPARE(database.findDimStyle(L"Odd")->dimdec(), 8);
    }

    void layersHaveDescriptionsAndPlotStyles()
    {
        const QByteArray layers =
            "0 TABLE|2 LAYER|0 LAYER|5 10|2 Walls|390 F2|1001 OTHER|1000 no|1000 no|1001 AcAecLayerStandard|1000 "
            "|1000 W\\U+00E4nde|1000 no|0 LAYER|5 11|2 Doors|390 F1|1001 AcAecLayerStandard|1000 no|1001 OTHER|1000 no"
            "|0 LAYER|5 12|2 Roof|390 EE|0 LAYER|5 13|2 Old|0 ENDTAB";
        const QByteArray objects = "0 DICTIONARY|5 C|3 ACAD_GROUP|350 D|3 ACDB_PLOTSTYLENAME|350 E"
                                   "|0 DICTIONARY|5 D|3 Group|350 EE"
                                   "|0 ACDBDICTIONARYWDFLT|5 E|3 Normal|350 F1|3 Half tone|350 F2|340 F1"
                                   "|0 ACDBPLACEHOLDER|5 F1|0 ACDBPLACEHOLDER|5 F2";
        const auto read = [&](const QByteArray& mode) {
            const DxfReadResult result =
                readText(section("HEADER", "9 $PSTYLEMODE|290 " + mode) + section("TABLES", layers) +
                         section("OBJECTS", objects) + groups("0 EOF"));
            QStringList shown;
            for (const OdDbLayerTableRecord* layer : result.database->layers())
                shown += qt(layer->getName()) + '/' + qt(layer->description()) + '/' + qt(layer->plotStyleName());
            return shown.join(' ');
        };
        QCOMPARE(read("0"), QString("0// Walls/Wände/Half tone Doors//Normal Roof// Old//"));
        QCOMPARE(read("1"), QString("0// Walls/Wände/ Doors// Roof// Old//")); // they go by colour
    }

    void currentValuesComeFromTheHeader_data()
    {
        const auto row = velmtest::columns<QByteArray, QString>("header", "expected");
        row("all of them", QByteArray("9 $CECOLOR|62 3|9 $CELTYPE|6 dots|9 $CELWEIGHT|370 50|9 $DIMSTYLE|2 Doors"),
            "3 Dots 50 Doors");
        row("none", QByteArray(), "256 ByLayer -1 Standard");
        row("nonsense", "9 $CECOLOR|62 999|9 $CELTYPE|6 No|9 $CELWEIGHT|370 9999|9 $DIMSTYLE|2 No",
            "256 ByLayer -1 Standard");
    }
    void currentValuesComeFromTheHeader()
    {
        QFETCH(QByteArray, header);
        QFETCH(QString, expected);
        const DxfReadResult result = readText(drawing(
            {}, {}, "0 TABLE|2 LTYPE|0 LTYPE|2 Dots|0 ENDTAB|0 TABLE|2 DIMSTYLE|0 DIMSTYLE|2 Doors|0 ENDTAB", header));
        const OdDbDatabase& database = *result.database;
        QCOMPARE(QString("%1 %2 %3 %4")
                     .arg(database.getCECOLOR().colorIndex())
                     .arg(qt(database.getCELTYPE().open<OdDbLinetypeTableRecord>()->getName()))
                     .arg(database.getCELWEIGHT())
                     .arg(qt(database.getDIMSTYLE().open<OdDbDimStyleTableRecord>()->getName())),
                 expected);
    }
};

QTEST_GUILESS_MAIN(DxfReaderTest)
#include "tst_dxfreader.moc"
