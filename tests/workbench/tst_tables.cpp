#include "workbenchtest.h"

#include "panels/entitytablemodel.h"

using namespace workbench;
using M = EntityTableModel;

/// The wide tables, worked in the running program by mouse and keyboard. The program is started once for each test, in
/// the order of the tests, with the settings of the one before.
class TablesTest : public WorkbenchTest
{
    Q_OBJECT
public:
    using WorkbenchTest::WorkbenchTest;

private Q_SLOTS:
    void init()
    {
        const QString file = write("kinds.dxf", "0\nSECTION\n2\nENTITIES\n"
                   "0\nTEXT\n8\n0\n10\n0\n20\n0\n40\n2\n1\nHall\n"
                   "0\nCIRCLE\n8\nDoors\n10\n5\n20\n5\n40\n2\n"
                   "0\nLINE\n8\nWalls\n10\n0\n20\n0\n11\n10\n21\n5\n"
                   "0\nPOINT\n8\nWalls\n10\n1\n20\n1\n"
                   "0\nENDSEC\n0\nEOF\n");
        m_driver.ask([&] {
            openAlone(m_frame, file);
            m_frame.showPanel("Entities");
        });
        m_driver.waitFor("the table", [&] { return m_driver.hasItem("header:Type"); });
    }

    void aUserArrangesAndSelects()
    {
        QCOMPARE(columns().mid(0, 3), QStringList({"number", "type", "layer"}));
        // A title goes before another one, a border makes a column wider.
        m_driver.drag(m_driver.placeOfItem("header:Layer"), m_driver.placeOfItem("header:Type") - QPoint(15, 0));
        m_driver.waitFor("the column in its new place",
                         [&] { return table().mapProxyColumnToSource(1) == M::LayerColumn; });
        QCOMPARE(columns().mid(0, 3), QStringList({"number", "layer", "type"}));
        const int width = m_driver.ask([&] { return table().columnWidth(1); });
        const QPoint middle = m_driver.placeOfItem("header:Layer");
        const QPoint border = middle + QPoint(width / 2, 0);
        m_driver.drag(border, border + QPoint(40, 0));
        m_driver.waitFor("a wider column", [&] { return table().columnWidth(1) > width + 30; });
        m_driver.clickItem("header:Radius", 3);
        m_driver.clickItem("menu:Radius");
        m_driver.waitFor("a column less", [&] { return table().columnCount() == M::ColumnCount - 1; });

        m_driver.clickItem("header:Type");
        m_driver.waitFor("rows in order", [&] { return table().proxySortColumn() == 2; });
        const auto cell = [this](int row) {
            return "entities/" + m_driver.ask([&] { return table().index(row, 0).data().toString(); }) + "/type";
        };
        m_driver.clickItem(cell(0));
        m_driver.waitFor("one entity", [&] { return selectedKinds() == QStringList({"Circle"}); });
        m_driver.clickItem(cell(2), 1, "shift");
        m_driver.waitFor("three entities", [&] { return m_frame.selection().entities().size() == 3; });
        QCOMPARE(selectedKinds(), QStringList({"Circle", "Line", "Point"})); // as the drawing has them
        m_driver.clickItem(cell(1), 1, "ctrl");
        m_driver.waitFor("two entities", [&] { return selectedKinds() == QStringList({"Circle", "Point"}); });
        m_driver.command("ERASE");
        m_driver.waitFor("the rows to go", [&] { return table().rowCount() == 2; });
        QVERIFY(m_driver.ask([&] { return m_frame.commandLine().logText().Contains("Erased: 2 entities"); }));

        // The search hides what is selected, and the drawing keeps it.
        m_driver.clickItem(cell(1));
        m_driver.clickItem("searchEntities");
        m_driver.type("line");
        m_driver.waitFor("one row", [&] { return table().rowCount() == 1; });
        QCOMPARE(selectedKinds(), QStringList({"Text"}));
    }

    void theProgramStartsWithTheSameColumns()
    {
        const QStringList shown = columns();
        QCOMPARE(shown.mid(0, 3), QStringList({"number", "layer", "type"}));
        QVERIFY(!shown.contains("radius"));
        QVERIFY(m_driver.ask([&] { return table().columnWidth(1); }) > 120);
        QVERIFY(m_driver.placeOfItem("header:Layer").x() < m_driver.placeOfItem("header:Type").x());
    }

private:
    velm::SortFilterSelectModel& table() { return *m_frame.entities().table(); }

    /// The ids of the shown columns.
    QStringList columns()
    {
        return m_driver.ask([&] {
            QStringList ids;
            for (int column = 0; column < table().columnCount(); ++column)
                ids << table().headerData(column, Qt::Horizontal, velm::ColumnIdRole).toString();
            return ids;
        });
    }

    QStringList selectedKinds()
    {
        return m_driver.ask([&] {
            QStringList kinds;
            for (const OdDbObjectId& entity : m_frame.selection().entities()) {
                const EntityTableModel* model = m_frame.entities().entities();
                kinds << model->index(model->row(entity), M::KindColumn).data().toString();
            }
            return kinds;
        });
    }
};

int main(int argc, char** argv)
{
    return runEachInAProgram<TablesTest>(argc, argv, {"aUserArrangesAndSelects", "theProgramStartsWithTheSameColumns"});
}

#include "tst_tables.moc"
