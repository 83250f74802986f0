#include "drawing/dxflayouts.h"
#include "workbench/dxftexts.h"

using namespace workbench;

/// The layouts of a drawing file, without the drawing.
class DxfLayoutsTest : public QObject
{
    Q_OBJECT
    static std::vector<DxfLayout> read(const QByteArray& text)
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("sheet \"1\".dxf"));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("can't write the test's file");
        file.close();
        return readDxfLayouts(file.fileName().toStdWString());
    }
    static QByteArray layout(const QByteArray& name, const QByteArray& tab, const QByteArray& block)
    {
        return "0 LAYOUT|5 22|330 D|100 AcDbPlotSettings|1 A page setup|100 AcDbLayout|1 " + name + "|71 " + tab +
               "|330 " + block + "|";
    }
    static QByteArray file(const QByteArray& layouts, const QByteArray& entities)
    {
        return section("ENTITIES", entities) + section("OBJECTS", layouts.chopped(1)) + groups("0 EOF");
    }
    static QStringList names(const std::vector<DxfLayout>& layouts)
    {
        QStringList result;
        for (const DxfLayout& layout : layouts)
            result += qt(layout.name);
        return result;
    }

private Q_SLOTS:
    void aFileWithoutLayoutsOrWithADefectHasNone_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"absurd-numbers", "bad-group-code", "binary", "empty", "recursive-block", "truncated"})
            QTest::newRow(name) << QString("damaged/%1.dxf").arg(name);
        QTest::newRow("a file that isn't there") << QString("no-such-drawing.dxf");
        QTest::newRow("a folder") << QString("damaged");
    }
    void aFileWithoutLayoutsOrWithADefectHasNone()
    {
        QFETCH(QString, name);
        QVERIFY(readDxfLayouts((QString(VELM_SAMPLES "/") + name).toStdWString()).empty());
    }

    void layoutsComeInTheOrderOfTheirTabs()
    {
        QCOMPARE(names(readDxfLayouts(L"" VELM_SAMPLES "/house.dxf")), readSampleLayouts());
        QCOMPARE(names(read(file(layout("Gr\\U+00FCn", "2", "B2") + layout("Model", "0", "B0") +
                                     layout("A \"quoted\" / sheet", "1", "B1") + layout("", "3", "B3"),
                                 "0 POINT|8 0|10 1|20 1"))),
                 QStringList({"Model", "A \"quoted\" / sheet", "Grün"}));
    }

    void aLayoutShowsWhatItsViewportsShow()
    {
        const QByteArray sheet = "0 VIEWPORT|330 B1|69 1|40 400|41 300|12 0|22 0|45 300|";
        const QByteArray left = "0 VIEWPORT|330 B1|69 2|40 20|41 10|12 100|22 50|17 5|27 0|45 20|";
        const QByteArray right = "0 VIEWPORT|330 B1|69 3|40 10|41 10|12 300|22 50|45 10|";
        const QByteArray oblique = "0 VIEWPORT|330 B1|69 4|40 10|41 10|12 9000|22 0|16 1|26 1|36 1|45 10|";
        const QByteArray flat = "0 VIEWPORT|330 B1|69 5|40 10|41 0|12 9000|22 0|45 10";
        const std::vector<DxfLayout> layouts =
            read(file(layout("Sheet", "1", "B1") + layout("Empty", "2", "B2"), sheet + left + right + oblique + flat));
        QCOMPARE(names(layouts), QStringList({"Sheet", "Empty"}));
        const Box& shown = layouts[0].shown;
        QCOMPARE(QRectF(QPointF(shown.left, shown.bottom), QPointF(shown.right, shown.top)),
                 QRectF(QPointF(85, 40), QPointF(305, 60)));
        QVERIFY(layouts[1].shown.isEmpty());
    }

private:
    /// As the reader of whole drawings finds them.
    static QStringList readSampleLayouts()
    {
        QStringList result;
        const DxfReadResult house = readSample("house.dxf");
        for (const OdDbLayout* layout : house.database->layouts())
            result += qt(layout->getName());
        return result;
    }
};

QTEST_GUILESS_MAIN(DxfLayoutsTest)
#include "tst_dxflayouts.moc"
