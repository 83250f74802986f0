#include "od/oddbdimension.h"
#include "support/table.h"
#include "workbench/dxftexts.h"

using namespace workbench;

class DxfFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void damagedSampleSaysWhatIsWrong_data()
    {
        const auto row = velmtest::columns<QString, QString>("name", "problem");
        row("an empty file", "damaged/empty.dxf", "the file is empty.");
        row("a binary file", "damaged/binary.dxf",
            "line 168 holds a zero byte: the file is binary, only text drawings can be read.");
        row("a file cut off in the middle", "damaged/truncated.dxf",
            "it ends at line 828 inside section \"ENTITIES\", so a part of it is missing.");
        row("a radius beyond all bounds", "damaged/absurd-numbers.dxf",
            "line 836 holds \"8.0E+123\", which is too large for a drawing.");
        row("a letter in a group code", "damaged/bad-group-code.dxf",
            "line 835 holds \"4O\" where a group code is expected.");
        row("two blocks that contain each other", "damaged/recursive-block.dxf",
            "line 650 inserts block \"Boden\" into one of its own parts.");
        row("no file", "damaged/nowhere.dxf", "there is no such file.");
        row("a folder", "damaged", "it is a folder, not a drawing.");
    }
    void damagedSampleSaysWhatIsWrong()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, problem);
        const DxfReadResult result = readSample(name);
        QCOMPARE(qt(result.error), '"' + name.section('/', -1) + "\" can't be read: " + problem);
        QVERIFY(!result.database);
        QVERIFY(!result.cancelled);
    }

    void badTextSaysWhatIsWrong_data()
    {
        const auto row = velmtest::columns<QByteArray, QString>("text", "problem");
        const auto line = [](const char* value) {
            return section("ENTITIES", QByteArray("0 LINE|8 0|10 ") + value) + groups("0 EOF");
        };
        row("letters instead of a coordinate", line("abc"), "line 10 holds \"abc\" where a number is expected.");
        row("a number with rubbish behind it", line("1.5x"), "line 10 holds \"1.5x\" where a number is expected.");
        row("nothing instead of a coordinate", line(""), "line 10 is empty where a number is expected.");
        row("not a number", line("nan"), "line 10 holds \"nan\", which is not a finite number.");
        row("infinity", line("-inf"), "line 10 holds \"-inf\", which is not a finite number.");
        row("more than a double holds", line("1e999"), "line 10 holds \"1e999\", which is not a finite number.");
        row("too far away", line("-1.1e15"), "line 10 holds \"-1.1e15\", which is too large for a drawing.");
        row("a long value is shortened in the message", line(QByteArray(60, 'x')),
            "line 10 holds \"" + QString(40, 'x') + "...\" where a number is expected.");
        row("an integer that is none", section("ENTITIES", "0 LINE|62 red") + groups("0 EOF"),
            "line 8 holds \"red\" where a number is expected.");
        row("some other text", "Dear reader,\nthis is a letter.\n",
            "line 1 holds \"Dear reader,\" where a group code is expected: this is not a "
            "DXF drawing.");
        row("numbers, but no section", "12\n13\n14\n15\n",
            "line 2 holds \"13\" before the first section: this is not a DXF "
            "drawing.");
        row("a group code out of range", groups("0 SECTION|2 ENTITIES|5000 x|0 ENDSEC|0 EOF"),
            "line 5 holds \"5000\" where a group code is expected.");
        row("an empty line that shifts the groups",
            groups("0 SECTION|2 ENTITIES") + "\n" + groups("0 LINE|8 Wall|0 ENDSEC|0 EOF"),
            "line 5 is empty where a group code is expected.");
        row("a section in a section", groups("0 SECTION|2 ENTITIES|0 SECTION|2 BLOCKS|0 ENDSEC|0 EOF"),
            "line 6 starts a section inside section \"ENTITIES\".");
        row("the end inside of a section", groups("0 SECTION|2 TABLES|0 EOF"),
            "line 6 ends the drawing inside section \"TABLES\".");
        row("a section ends twice", groups("0 SECTION|2 TABLES|0 ENDSEC|0 ENDSEC|0 EOF"),
            "line 8 ends a section where none is open.");
        row("an entity between sections", groups("0 SECTION|2 TABLES|0 ENDSEC|0 LINE|8 0|0 EOF"),
            "line 8 holds \"LINE\" outside of any section.");
        row("a section without a name", groups("0 SECTION|0 LINE|0 ENDSEC|0 EOF"),
            "line 3 should give the name of a section.");
        row("cut off between sections", groups("0 SECTION|2 TABLES|0 ENDSEC"),
            "it ends at line 6 without its end mark, so a part of it is missing.");
        row("cut off in a number", groups("0 SECTION|2 ENTITIES|0 LINE") + " 10\n-",
            "it ends at line 8 inside section \"ENTITIES\", so a part of it is missing.");
        row("cut off behind a group code", groups("0 SECTION|2 ENTITIES|0 LINE") + " 10",
            "it ends at line 7 inside section \"ENTITIES\", so a part of it is missing.");
        row("a block that contains itself",
            drawing("0 INSERT|2 Chair", "0 BLOCK|2 Chair|0 LINE|0 INSERT|8 0|2 CHAIR|0 ENDBLK"),
            "line 28 inserts block \"CHAIR\" into itself.");
    }
    void badTextSaysWhatIsWrong()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, problem);
        DxfReadResult result = readText(text);
        QCOMPARE(qt(result.error), "\"plan.dxf\" can't be read: " + problem);
        QVERIFY(!result.database);
        result = readText(QByteArray(text).replace("\n", "\r\n"));
        QCOMPARE(qt(result.error), "\"plan.dxf\" can't be read: " + problem);
    }

    void goodTextIsAccepted_data()
    {
        const auto row = velmtest::columns<QByteArray>("text");
        const QByteArray line = "0 LINE|8 0|10 1.5|20 -2|11 3|21 .5";
        row("line feeds", drawing(line));
        row("carriage returns and line feeds", drawing(line).replace("\n", "\r\n"));
        row("a byte order mark", "\xEF\xBB\xBF" + drawing(line));
        row("no line end at the end", drawing(line).chopped(1));
        row("blank lines behind the end", drawing(line) + "\n\n\n");
        row("comments before the first section", groups("999 by hand|999 ") + drawing(line));
        row("numbers as people write them", drawing("0 LINE|8 0|10 +1.50|20 -2.|11 3E0|21 5e-1"));
        row("a number too small for a double", drawing(line + "|30 1e-999"));
        row("the marks for no extents in the header", drawing(line, {}, {}, "9 $EXTMIN|10 1e20|20 1E+20"));
        row("entities only", section("ENTITIES", line) + groups("0 EOF"));
        row("a private value that looks like a variable", drawing("0 LINE|8 0|9 LAYER|10 1.5|20 -2|11 3|21 .5"));
    }
    void goodTextIsAccepted()
    {
        QFETCH(const QByteArray, text);
        const DxfReadResult result = readText(text);
        QCOMPARE(qt(result.error), QString());
        QCOMPARE(result.entityCount, 1);
        const auto* line = entity<OdDbLine>(result, 0);
        QVERIFY((line->startPoint == OdGePoint3d{1.5, -2, 0}));
        QVERIFY((line->endPoint == OdGePoint3d{3, 0.5, 0}));
    }

    void longLinesDontShiftTheGroups()
    {
        const QByteArray paragraphs = "ä" + QByteArray(5000, 'x') + " " + QByteArray(999, 'y') + " end";
        const DxfReadResult result =
            readText(drawing("0 TEXT|8 0|40 1|1 " + QByteArray(3000, 'a') + "|0 MTEXT|8 0|40 1|3 start |1 " +
                             paragraphs + "|0 POINT|10 4|20 5"));
        QCOMPARE(qt(result.error), QString());
        QCOMPARE(result.entityCount, 3);
        QCOMPARE(qt(entity<OdDbText>(result, 0)->textString), QString(1000, 'a'));
        QCOMPARE(qt(entity<OdDbText>(result, 1)->textString), QString::fromUtf8("start " + paragraphs));
        QVERIFY((entity<OdDbPoint>(result, 2)->position == OdGePoint3d{4, 5, 0}));
    }

    void claimedCountsAreNotTrusted()
    {
        const DxfReadResult result = readText(drawing(
            "0 LWPOLYLINE|90 99999999|70 0|42 7|10 1|20 1|10 2|20 2|0 LWPOLYLINE|10 5|20 5|10 6|20 6|10 7|20 7"
            "|0 LWPOLYLINE|90 -3|42 1|0 SPLINE|71 2000000000|72 99999999|73 99999999|74 -1|10 0|20 0|10 4|20 0|40 1"
            "|0 LEADER|76 99999999|10 0|20 0|10 3|20 3|0 INSERT|2 X|70 -5|71 0"));
        QCOMPARE(qt(result.error), QString());
        QCOMPARE(entity<OdDbPolyline>(result, 0)->vertices.size(), std::size_t(2));
        QCOMPARE(entity<OdDbPolyline>(result, 0)->vertices[0].bulge, 0.0);
        QCOMPARE(entity<OdDbPolyline>(result, 1)->vertices.size(), std::size_t(3));
        QVERIFY((entity<OdDbPolyline>(result, 2)->vertices.back().point == OdGePoint3d{4, 0, 0}));
        QCOMPARE(entity<OdDbLeader>(result, 3)->vertices.size(), std::size_t(2));
        QCOMPARE(entity<OdDbBlockReference>(result, 4)->columnCount, 1);
        QCOMPARE(result.entityCount, 5); // a polyline without a vertex is none
    }

    void progressRisesAndCancels()
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

    void longFileIsRead()
    {
        constexpr int count = 20000;
        QByteArray entities = "0 POINT|10 0";
        for (int i = 0; i < count; ++i)
            entities +=
                "|0 LINE|8 Layer " + QByteArray::number(i % 50) + "|10 " + QByteArray::number(i) + ".25|20 1|11 2|21 3";
        const QByteArray text = drawing(entities);
        QVERIFY(text.count('\n') > 200000);
        const DxfReadResult result = readText(text);
        QCOMPARE(result.entityCount, count + 1);
        QCOMPARE(result.database->layers().size(), std::size_t(51));
        QCOMPARE(entity<OdDbLine>(result, count)->startPoint.x, count - 1 + 0.25);
    }
};

QTEST_GUILESS_MAIN(DxfFilesTest)
#include "tst_dxffiles.moc"
