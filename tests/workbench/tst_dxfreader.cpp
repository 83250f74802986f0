#include "drawing/dxfreader.h"
#include "drawing/dxftext.h"

#include <QtTest>

#include <numbers>

using namespace workbench;

namespace {

/// "0 LINE|8 Wall" as the lines of a file.
QByteArray groups(const QByteArray& compact)
{
    QByteArray lines;
    for (const QByteArray& group : compact.split('|')) {
        const qsizetype space = group.indexOf(' ');
        lines += "  " + group.left(space) + "\n" + (space < 0 ? QByteArray() : group.mid(space + 1)) + "\n";
    }
    return lines;
}

QByteArray section(const QByteArray& name, const QByteArray& content)
{
    return groups("0 SECTION|2 " + name) + (content.isEmpty() ? content : groups(content)) + groups("0 ENDSEC");
}

QByteArray drawing(const QByteArray& entities, const QByteArray& blocks = {}, const QByteArray& tables = {},
                   const QByteArray& header = {})
{
    return section("HEADER", header) + section("TABLES", tables) + section("BLOCKS", blocks) +
           section("ENTITIES", entities) + groups("0 EOF");
}

QString qt(const OdString& text)
{
    return QString::fromStdWString(text.wide());
}

template <typename T>
const T* entity(const DxfReadResult& result, unsigned int index)
{
    return result.database->modelSpace()->entities()[index].open<T>();
}

} // namespace

class DxfReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void floorPlanIsReadWhole();
    void bracketIsReadWhole();
    void damagedSampleSaysWhatIsWrong_data();
    void damagedSampleSaysWhatIsWrong();
    void unknownEntitiesAreCountedAndTheRestIsRead();
    void badTextSaysWhatIsWrong_data();
    void badTextSaysWhatIsWrong();
    void goodTextIsAccepted_data();
    void goodTextIsAccepted();
    void entitiesKeepTheirGeometry();
    void mirroredEntitiesAreMirroredBack();
    void attributesAreRead();
    void textsStandWhereTheFileAlignsThem_data();
    void textsStandWhereTheFileAlignsThem();
    void blocksHoldTheirEntities();
    void layoutsShowTheirBlocks();
    void textIsDecoded_data();
    void textIsDecoded();
    void paragraphsLoseTheirFormatting_data();
    void paragraphsLoseTheirFormatting();
    void longLinesDontShiftTheGroups();
    void claimedCountsAreNotTrusted();
    void progressRisesAndCancels();
    void longFileIsRead();

private:
    DxfReadResult read(const QByteArray& text, const QString& name = "plan.dxf")
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("can't write the test's file");
        file.close();
        return readDxf(file.fileName().toStdWString(), {});
    }
    static DxfReadResult readSample(const QString& name)
    {
        return readDxf((QString(VELM_SAMPLES "/") + name).toStdWString(), {});
    }

    QTemporaryDir m_folder;
};

void DxfReaderTest::floorPlanIsReadWhole()
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
    QCOMPARE(database.dimStyles().size(), std::size_t(3));
    QCOMPARE(qt(database.findTextStyle(L"Titel")->fileName()), QString("DejaVuSans-Bold.ttf"));
    QCOMPARE(database.formatter().units().linearPrecision, 1);
    QCOMPARE(database.layouts().size(), std::size_t(2));
    QCOMPARE(qt(database.layouts()[1]->getName()), QString("Ausdruck A3"));
}

void DxfReaderTest::bracketIsReadWhole()
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

void DxfReaderTest::damagedSampleSaysWhatIsWrong_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("problem");
    QTest::newRow("an empty file") << "damaged/empty.dxf"
                                   << "the file is empty.";
    QTest::newRow("a binary file") << "damaged/binary.dxf"
                                   << "line 168 holds a zero byte: the file is binary, only text drawings can be read.";
    QTest::newRow("a file cut off in the middle")
        << "damaged/truncated.dxf"
        << "it ends at line 828 inside section \"ENTITIES\", so a part of it is missing.";
    QTest::newRow("a radius beyond all bounds") << "damaged/absurd-numbers.dxf"
                                                << "line 836 holds \"8.0E+123\", which is too large for a drawing.";
    QTest::newRow("a letter in a group code") << "damaged/bad-group-code.dxf"
                                              << "line 835 holds \"4O\" where a group code is expected.";
    QTest::newRow("two blocks that contain each other")
        << "damaged/recursive-block.dxf"
        << "line 650 inserts block \"Boden\" into one of its own parts.";
    QTest::newRow("no file") << "damaged/nowhere.dxf"
                             << "there is no such file.";
    QTest::newRow("a folder") << "damaged"
                              << "it is a folder, not a drawing.";
}

void DxfReaderTest::damagedSampleSaysWhatIsWrong()
{
    QFETCH(const QString, name);
    QFETCH(const QString, problem);
    const DxfReadResult result = readSample(name);
    QCOMPARE(qt(result.error), '"' + name.section('/', -1) + "\" can't be read: " + problem);
    QVERIFY(!result.database);
    QVERIFY(!result.cancelled);
}

void DxfReaderTest::unknownEntitiesAreCountedAndTheRestIsRead()
{
    const DxfReadResult result = readSample("damaged/unknown-entity.dxf");
    QCOMPARE(qt(result.error), QString());
    QVERIFY((result.skipped == std::map<std::string, int>{{"REVISIONCLOUD", 2}, {"WEATHERSTATION", 1}}));
    QCOMPARE(result.entityCount, 5);
    // The one behind them took nothing over from them.
    const auto* line = entity<OdDbLine>(result, 4);
    QVERIFY(line);
    QVERIFY((line->endPoint == OdGePoint3d{90, 60, 0}));
}

void DxfReaderTest::badTextSaysWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    const auto line = [](const char* value) {
        return section("ENTITIES", QByteArray("0 LINE|8 0|10 ") + value) + groups("0 EOF");
    };
    QTest::newRow("letters instead of a coordinate")
        << line("abc") << "line 10 holds \"abc\" where a number is expected.";
    QTest::newRow("a number with rubbish behind it")
        << line("1.5x") << "line 10 holds \"1.5x\" where a number is expected.";
    QTest::newRow("nothing instead of a coordinate") << line("") << "line 10 is empty where a number is expected.";
    QTest::newRow("not a number") << line("nan") << "line 10 holds \"nan\", which is not a finite number.";
    QTest::newRow("infinity") << line("-inf") << "line 10 holds \"-inf\", which is not a finite number.";
    QTest::newRow("more than a double holds")
        << line("1e999") << "line 10 holds \"1e999\", which is not a finite number.";
    QTest::newRow("too far away") << line("-1.1e15") << "line 10 holds \"-1.1e15\", which is too large for a drawing.";
    QTest::newRow("a long value is shortened in the message")
        << line(QByteArray(60, 'x')) << "line 10 holds \"" + QString(40, 'x') + "...\" where a number is expected.";
    QTest::newRow("an integer that is none")
        << section("ENTITIES", "0 LINE|62 red") + groups("0 EOF") << "line 8 holds \"red\" where a number is expected.";
    QTest::newRow("some other text") << QByteArray("Dear reader,\nthis is a letter.\n")
                                     << "line 1 holds \"Dear reader,\" where a group code is expected: this is not a "
                                        "DXF drawing.";
    QTest::newRow("numbers, but no section") << QByteArray("12\n13\n14\n15\n")
                                             << "line 2 holds \"13\" before the first section: this is not a DXF "
                                                "drawing.";
    QTest::newRow("a group code out of range") << groups("0 SECTION|2 ENTITIES|5000 x|0 ENDSEC|0 EOF")
                                               << "line 5 holds \"5000\" where a group code is expected.";
    QTest::newRow("an empty line that shifts the groups")
        << groups("0 SECTION|2 ENTITIES") + "\n" + groups("0 LINE|8 Wall|0 ENDSEC|0 EOF")
        << "line 5 is empty where a group code is expected.";
    QTest::newRow("a section in a section") << groups("0 SECTION|2 ENTITIES|0 SECTION|2 BLOCKS|0 ENDSEC|0 EOF")
                                            << "line 6 starts a section inside section \"ENTITIES\".";
    QTest::newRow("the end inside of a section")
        << groups("0 SECTION|2 TABLES|0 EOF") << "line 6 ends the drawing inside section \"TABLES\".";
    QTest::newRow("a section ends twice")
        << groups("0 SECTION|2 TABLES|0 ENDSEC|0 ENDSEC|0 EOF") << "line 8 ends a section where none is open.";
    QTest::newRow("an entity between sections")
        << groups("0 SECTION|2 TABLES|0 ENDSEC|0 LINE|8 0|0 EOF") << "line 8 holds \"LINE\" outside of any section.";
    QTest::newRow("a section without a name")
        << groups("0 SECTION|0 LINE|0 ENDSEC|0 EOF") << "line 3 should give the name of a section.";
    QTest::newRow("cut off between sections") << groups("0 SECTION|2 TABLES|0 ENDSEC")
                                              << "it ends at line 6 without its end mark, so a part of it is missing.";
    QTest::newRow("cut off in a number")
        << groups("0 SECTION|2 ENTITIES|0 LINE") + " 10\n-"
        << "it ends at line 8 inside section \"ENTITIES\", so a part of it is missing.";
    QTest::newRow("cut off behind a group code")
        << groups("0 SECTION|2 ENTITIES|0 LINE") + " 10"
        << "it ends at line 7 inside section \"ENTITIES\", so a part of it is missing.";
    QTest::newRow("a block that contains itself")
        << drawing("0 INSERT|2 Chair", "0 BLOCK|2 Chair|0 LINE|0 INSERT|8 0|2 CHAIR|0 ENDBLK")
        << "line 28 inserts block \"CHAIR\" into itself.";
}

void DxfReaderTest::badTextSaysWhatIsWrong()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, problem);
    DxfReadResult result = read(text);
    QCOMPARE(qt(result.error), "\"plan.dxf\" can't be read: " + problem);
    QVERIFY(!result.database);
    result = read(QByteArray(text).replace("\n", "\r\n"));
    QCOMPARE(qt(result.error), "\"plan.dxf\" can't be read: " + problem);
}

void DxfReaderTest::goodTextIsAccepted_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray line = "0 LINE|8 0|10 1.5|20 -2|11 3|21 .5";
    QTest::newRow("line feeds") << drawing(line);
    QTest::newRow("carriage returns and line feeds") << drawing(line).replace("\n", "\r\n");
    QTest::newRow("a byte order mark") << "\xEF\xBB\xBF" + drawing(line);
    QTest::newRow("no line end at the end") << drawing(line).chopped(1);
    QTest::newRow("blank lines behind the end") << drawing(line) + "\n\n\n";
    QTest::newRow("comments before the first section") << groups("999 by hand|999 ") + drawing(line);
    QTest::newRow("numbers as people write them") << drawing("0 LINE|8 0|10 +1.50|20 -2.|11 3E0|21 5e-1");
    QTest::newRow("a number too small for a double") << drawing(line + "|30 1e-999");
    QTest::newRow("the marks for no extents in the header") << drawing(line, {}, {}, "9 $EXTMIN|10 1e20|20 1E+20");
    QTest::newRow("entities only") << section("ENTITIES", line) + groups("0 EOF");
    QTest::newRow("a private value that looks like a variable")
        << drawing("0 LINE|8 0|9 LAYER|10 1.5|20 -2|11 3|21 .5");
}

void DxfReaderTest::goodTextIsAccepted()
{
    QFETCH(const QByteArray, text);
    const DxfReadResult result = read(text);
    QCOMPARE(qt(result.error), QString());
    QCOMPARE(result.entityCount, 1);
    const auto* line = entity<OdDbLine>(result, 0);
    QVERIFY((line->startPoint == OdGePoint3d{1.5, -2, 0}));
    QVERIFY((line->endPoint == OdGePoint3d{3, 0.5, 0}));
}

void DxfReaderTest::entitiesKeepTheirGeometry()
{
    const DxfReadResult result = read(drawing(
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

void DxfReaderTest::mirroredEntitiesAreMirroredBack()
{
    const QByteArray mirrored = "|210 0|220 0|230 -1";
    const DxfReadResult result =
        read(drawing("0 ARC|10 3|20 1|40 2|50 0|51 90" + mirrored + "|0 LWPOLYLINE|90 2|10 1|20 0|42 1|10 3|20 0" +
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

void DxfReaderTest::attributesAreRead()
{
    const DxfReadResult result =
        read(drawing("0 POINT|8 New layer|62 3|6 Dash|370 35|39 99|0 POINT|8 0|0 POINT|8 0|62 0|6 ByBlock|370 -2"
                     "|0 POINT|8 0|62 1|420 1193046|0 POINT|8 0|62 9999",
                     {}, "0 TABLE|2 LTYPE|0 LTYPE|2 Dash|3 _ _|73 2|40 3|49 2|49 -1|0 ENDTAB"));
    QCOMPARE(qt(result.error), QString());
    OdDbDatabase& database = *result.database;
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

void DxfReaderTest::textsStandWhereTheFileAlignsThem_data()
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

void DxfReaderTest::textsStandWhereTheFileAlignsThem()
{
    QFETCH(const QByteArray, text);
    const DxfReadResult result = read(groups("999 dxflib 3.0.0.0") + drawing(text));
    const auto* placed = entity<OdDbText>(result, 0);
    QVERIFY(placed);
    QTEST(placed->position.x, "x");
    QTEST(int(placed->horizontalMode), "horizontal");
    QTEST(int(placed->verticalMode), "vertical");
    QTEST(placed->rotation * 180.0 / std::numbers::pi, "rotation");
}

void DxfReaderTest::blocksHoldTheirEntities()
{
    const DxfReadResult result = read(drawing(
        "0 INSERT|8 0|2 CHAIR|10 5|20 6|41 2|42 -1|50 90|70 3|71 2|44 10|45 20|66 1"
        "|0 ATTRIB|8 0|1 No. 7|2 NUMBER|10 1|20 1|40 1|0 SEQEND|0 INSERT|2 Nowhere|0 DIMENSION|2 *D1|70 32|10 9|41 4",
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

void DxfReaderTest::layoutsShowTheirBlocks()
{
    const auto layout = [](const QByteArray& name, const QByteArray& handle) {
        return "0 LAYOUT|5 AA|330 C|100 AcDbPlotSettings|1 setup|330 F0|100 AcDbLayout|1 " + name + "|330 " + handle;
    };
    const QByteArray records = "0 TABLE|2 BLOCK_RECORD|0 BLOCK_RECORD|5 1F|2 *Model_Space|0 BLOCK_RECORD|5 1B"
                               "|2 *Paper_Space|0 BLOCK_RECORD|5 2A|2 *Paper_Space0|0 ENDTAB";
    // The second sheet has the name that the first one has in every new database.
    const DxfReadResult result =
        read(section("TABLES", records) + section("BLOCKS", "0 BLOCK|2 *Paper_Space0|0 POINT|0 ENDBLK") +
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

void DxfReaderTest::textIsDecoded_data()
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

void DxfReaderTest::textIsDecoded()
{
    QFETCH(const QByteArray, bytes);
    const DxfReadResult result = read(drawing("0 TEXT|8 0|40 1|1 " + bytes));
    QCOMPARE(qt(result.error), QString());
    QTEST(qt(entity<OdDbText>(result, 0)->textString), "text");
}

void DxfReaderTest::paragraphsLoseTheirFormatting_data()
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

void DxfReaderTest::paragraphsLoseTheirFormatting()
{
    QFETCH(const QString, coded);
    QTEST(QString::fromStdWString(plainMText(coded.toStdWString())), "text");
}

void DxfReaderTest::longLinesDontShiftTheGroups()
{
    const QByteArray paragraphs = "ä" + QByteArray(5000, 'x') + " " + QByteArray(999, 'y') + " end";
    const DxfReadResult result = read(drawing("0 TEXT|8 0|40 1|1 " + QByteArray(3000, 'a') +
                                              "|0 MTEXT|8 0|40 1|3 start |1 " + paragraphs + "|0 POINT|10 4|20 5"));
    QCOMPARE(qt(result.error), QString());
    QCOMPARE(result.entityCount, 3);
    QCOMPARE(qt(entity<OdDbText>(result, 0)->textString), QString(1000, 'a'));
    QCOMPARE(qt(entity<OdDbText>(result, 1)->textString), QString::fromUtf8("start " + paragraphs));
    QVERIFY((entity<OdDbPoint>(result, 2)->position == OdGePoint3d{4, 5, 0}));
}

void DxfReaderTest::claimedCountsAreNotTrusted()
{
    const DxfReadResult result = read(
        drawing("0 LWPOLYLINE|90 99999999|70 0|42 7|10 1|20 1|10 2|20 2|0 LWPOLYLINE|10 5|20 5|10 6|20 6|10 7|20 7"
                "|0 LWPOLYLINE|90 -3|42 1|0 SPLINE|71 2000000000|72 99999999|73 99999999|74 -1|10 0|20 0|10 4|20 0|40 1"
                "|0 LEADER|76 99999999|10 0|20 0|10 3|20 3|0 INSERT|2 X|70 -5|71 0"));
    QCOMPARE(qt(result.error), QString());
    QCOMPARE(entity<OdDbPolyline>(result, 0)->vertices.size(), std::size_t(2));
    QCOMPARE(entity<OdDbPolyline>(result, 0)->vertices[0].bulge, 0.0);
    QCOMPARE(entity<OdDbPolyline>(result, 1)->vertices.size(), std::size_t(3));
    QVERIFY((entity<OdDbPolyline>(result, 2)->vertices.back().point == OdGePoint3d{4, 0, 0}));
    QCOMPARE(entity<OdDbPolyline>(result, 3)->vertices.size(), std::size_t(2));
    QCOMPARE(entity<OdDbBlockReference>(result, 4)->columnCount, 1);
    QCOMPARE(result.entityCount, 5); // a polyline without a vertex is none
}

void DxfReaderTest::progressRisesAndCancels()
{
    const OdString file = QString(VELM_SAMPLES "/house.dxf").toStdWString();
    std::vector<int> reports;
    const DxfReadResult whole = readDxf(file, [&](int percent) {
        reports.push_back(percent);
        return true;
    });
    QVERIFY(whole.database);
    QVERIFY(std::adjacent_find(reports.begin(), reports.end(), std::greater_equal<int>()) == reports.end());
    QCOMPARE(reports.front(), 0);
    QCOMPARE(reports.back(), 100);
    QVERIFY(reports.size() > 50);

    for (const int stop : {0, 10, 60, 100}) { // before, while checking, while building, at the end
        int last = -1;
        const DxfReadResult result = readDxf(file, [&](int percent) {
            last = percent;
            return percent < stop;
        });
        QVERIFY(result.cancelled);
        QVERIFY(!result.database);
        QVERIFY(result.error.isEmpty());
        QVERIFY2(last >= stop && last < stop + 10, qPrintable(QString::number(last)));
    }
}

void DxfReaderTest::longFileIsRead()
{
    constexpr int count = 20000;
    QByteArray entities = "0 POINT|10 0";
    for (int i = 0; i < count; ++i)
        entities +=
            "|0 LINE|8 Layer " + QByteArray::number(i % 50) + "|10 " + QByteArray::number(i) + ".25|20 1|11 2|21 3";
    const QByteArray text = drawing(entities);
    QVERIFY(text.count('\n') > 200000);
    const DxfReadResult result = read(text);
    QCOMPARE(result.entityCount, count + 1);
    QCOMPARE(result.database->layers().size(), std::size_t(51));
    QCOMPARE(entity<OdDbLine>(result, count)->startPoint.x, count - 1 + 0.25);
}

QTEST_GUILESS_MAIN(DxfReaderTest)
#include "tst_dxfreader.moc"
