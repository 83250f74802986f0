#include "velm/table/columns.h"

#include "velm/units/velmconfig.h"

#include "support/scopes.h"
#include "support/table.h"

#include <QTest>

using namespace velm;

class TestColumns : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void headers_data()
    {
        const auto row = velmtest::columns<int, QVariant, QVariant>("role", "plain", "full");
        const auto edit = [](bool selectionColumn, int alignment) {
            return QVariantMap{{"selectionColumn", selectionColumn}, {"textAlignment", alignment}};
        };
        row("title", 0, "Name", "Size");
        row("icon", 1, "", "size.svg");
        row("marks and alignment", 2, edit(false, 132), edit(true, 1));
        row("type of cell", 5, -1, 7);
        row("initial size", 13, QSize(), QSize(55, 0));
        row("initial order", 14, 0, 1);
        row("initially visible", 256, true, false);
        row("share of the width", 257, 0, 3);
        row("sort type", 258, 4, 8);
        row("id", 259, "name", "size");
        row("property id", 260, -1, 415);
        row("initial sort column", 261, false, true);
        row("text in the menu, or the title", 262, "Name", "File size");
        row("nothing beyond", 263, {}, {});
    }
    void headers()
    {
        Columns columns;
        columns.columns.push_back(ColumnBuilder("Name", "name"));
        columns.columns.push_back(ColumnBuilder(1, 2, "Size", "size")
                                      .propertyId(415)
                                      .type(7)
                                      .icon("size.svg")
                                      .cellIcon("cell.svg")
                                      .initialWidth(55)
                                      .sortType(SortFileSize)
                                      .initiallyVisible(false)
                                      .initialSortOrder(Qt::DescendingOrder)
                                      .nameInMenu("File size")
                                      .proportionalSize(3)
                                      .textAlignment(Qt::AlignLeft));
        columns.columns[1].selectionColumn = true;
        columns.initialSortColumn = 1;
        QFETCH(int, role);
        const auto header = [&](int section, Qt::Orientation orientation = Qt::Horizontal) {
            return headerData(columns, section, orientation, role);
        };
        QTEST(header(0), "plain");
        QTEST(header(1), "full");
        QFETCH(QVariant, full);
        QCOMPARE(header(1).metaType(), full.metaType());
        QVERIFY(!header(-1).isValid());
        QVERIFY(!header(2).isValid());
        QVERIFY(!header(0, Qt::Vertical).isValid());
        QVERIFY(!headerData({}, 0, Qt::Horizontal, role).isValid());
    }

    void buildersBeginWithAWidthOrWithout()
    {
        const ColumnData two = ColumnBuilder("Name", "id");
        QVERIFY(!two.sizeHint.isValid());
        const ColumnBuilder four(7, 8, "Name", "id");
        QCOMPARE(four.sizeHint, QSize(100, 0));
        QCOMPARE(four.ColumnData::propertyId, 7);
        QCOMPARE(four.ColumnData::type, 8);
    }

    void theSignOfAWidthIsTheHiddenState()
    {
        for (const auto& [width, stored] :
             {std::pair(-120, 120L), {0, 0L}, {1, 1L}, {std::numeric_limits<int>::min(), 2147483648L}}) {
            velmtest::TemporaryConfig store;
            writeColumnDataToRegistry("Name", width, -3, "Layers");
            store.reopen();
            QCOMPARE(VelmConfig::readDialogSetting("Layers", "Column Data/Name/Width", -1L), stored);
            QCOMPARE(VelmConfig::readDialogSetting("Layers", "Column Data/Name/Hidden", width > 0), width <= 0);
            QCOMPARE(VelmConfig::readDialogSetting("Layers", "Column Data/Name/Position", 9L), -3L);
            bool hidden = width > 0;
            long position = 5;
            QCOMPARE(readColumnDataFromRegistry("Name", 44, 4, hidden, position, "Layers"), stored);
            QCOMPARE(hidden, width <= 0);
            QCOMPARE(position, -3L);
        }
    }

    void savedColumnsAreListedByDialog()
    {
        const velmtest::TemporaryConfig store;
        for (const char* name : {"Size", "Name", "Last saved on"})
            writeColumnDataToRegistry(name, 10, 0, "Layers");
        writeColumnDataToRegistry("Other", 10, 0, "Layers 2");
        auto names = getSavedColumnDataList("Layers");
        std::sort(names.begin(), names.end());
        QCOMPARE(names, (std::vector<wxString>{"Last saved on", "Name", "Size"}));
        writeColumnDataToRegistry("Nameless", 10, 0, "");
        QVERIFY(getSavedColumnDataList("").empty());
        QVERIFY(getSavedColumnDataList("Blocks").empty());
    }
};

QTEST_APPLESS_MAIN(TestColumns)
#include "tst_columns.moc"
