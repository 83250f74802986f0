#include "drawing/selection.h"
#include "house.h"
#include "panels/entitiescontroller.h"
#include "support/scopes.h"
#include "support/signallog.h"
#include "support/table.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

#include <numbers>
#include <set>

using namespace workbench;
using M = EntityTableModel;
using velm::SortFilterSelectModel;

namespace {
class Fixture : public House
{
public:
    OdDbPolyline* addPolyline(std::vector<OdDbPolyline::Vertex> vertices, bool closed)
    {
        auto created = std::make_unique<OdDbPolyline>();
        created->vertices = std::move(vertices);
        created->closed = closed;
        return database->addEntity(std::move(created), database->modelSpace());
    }
    QVariant value(const OdDbEntity* entity, M::Column column, int role = Qt::EditRole)
    {
        M* model = controller.entities();
        return model->index(model->row(entity->objectId()), column).data(role);
    }
    /// The kinds of the entities that the table shows, in its order; "*" marks those that are selected.
    QString shown()
    {
        QStringList rows;
        for (int row = 0; row < table.rowCount(); ++row) {
            const QModelIndex source = table.mapToSource(table.index(row, 0));
            const QString kind = source.siblingAtColumn(M::KindColumn).data().toString();
            rows << (table.isSelected(row, 0) ? kind + '*' : kind);
        }
        return rows.join(' ');
    }
    std::set<OdDbObjectId> selected() const { return {selection.entities().begin(), selection.entities().end()}; }
    static std::set<OdDbObjectId> ids(std::initializer_list<const OdDbObject*> objects)
    {
        std::set<OdDbObjectId> result;
        for (const OdDbObject* object : objects)
            result.insert(object->objectId());
        return result;
    }

    velmtest::TemporaryConfig config;
    Selection selection{documents};
    EntitiesController controller{documents, selection};
    SortFilterSelectModel& table = *controller.table();
    QAbstractItemModelTester tester{controller.entities(), QAbstractItemModelTester::FailureReportingMode::QtTest};
    QAbstractItemModelTester tableTester{&table, QAbstractItemModelTester::FailureReportingMode::QtTest};
};
} // namespace

/// The table of a drawing's entities, and how it follows the drawing and the selection.
class EntitiesControllerTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aRowTellsWhatItsEntityIs()
    {
        Fixture house;
        house.text->setColor(OdCmColor::fromRGB(1, 2, 3));
        house.circle->setLineWeight(25);
        house.doors->setColor(OdCmColor::fromIndex(1));
        house.controller.refresh();
        QCOMPARE(house.shown(), "Line Circle Block Door Text");
        QCOMPARE(house.value(house.circle, M::LayerColumn), "Doors");
        QCOMPARE(house.value(house.circle, M::RadiusColumn, Qt::DisplayRole), "2.00");
        QCOMPARE(house.value(house.circle, M::LineWeightColumn, Qt::DisplayRole), "0.25 mm");
        QCOMPARE(house.value(house.circle, M::ColorColumn), "ByLayer");
        QCOMPARE(house.value(house.circle, M::ColorColumn, Qt::DecorationRole), QColor(Qt::red));
        QCOMPARE(house.value(house.text, M::ColorColumn), "1,2,3");
        QCOMPARE(house.value(house.text, M::TextColumn), "Hall");
        QCOMPARE(house.value(house.wall, M::LengthColumn, Qt::DisplayRole), "5.00");
        // What an entity doesn't have is empty, and comes last.
        QVERIFY(!house.value(house.text, M::LengthColumn, Qt::DisplayRole).isValid());
        QVERIFY(house.table.doSort(M::LengthColumn, true));
        QCOMPARE(house.shown(), "Line Circle Block Door Text");
        QVERIFY(house.table.doSort(M::LengthColumn, false));
        QVERIFY(house.shown().endsWith("Circle Line"));
    }

    void outlinesAreMeasured_data()
    {
        // Each vertex has x, y and bulge; an area below zero is none.
        const auto row =
            velmtest::columns<std::vector<double>, bool, double, double>("numbers", "closed", "length", "area");
        const double pi = std::numbers::pi;
        row("an open angle", {0, 0, 0, 3, 0, 0, 3, 4, 0}, false, 7.0, -1.0);
        row("a triangle, far away and clockwise", {1e6, 0, 0, 1e6, 4, 0, 1e6 + 3, 0, 0}, true, 12.0, 6.0);
        row("a circle of two arcs, clockwise", {0, 0, -1, 2, 0, -1}, true, 2 * pi, pi);
        row("a square with half a disc cut out of one side", {0, 0, -1, 2, 0, 0, 2, 2, 0, 0, 2, 0}, true, 6 + pi,
            4 - pi / 2);
        row("nothing at all", std::vector<double>(), true, 0.0, 0.0);
    }
    void outlinesAreMeasured()
    {
        QFETCH(std::vector<double>, numbers);
        QFETCH(bool, closed);
        QFETCH(double, length);
        QFETCH(double, area);
        Fixture house;
        std::vector<OdDbPolyline::Vertex> vertices;
        for (std::size_t at = 0; at < numbers.size(); at += 3)
            vertices.push_back({{numbers[at], numbers[at + 1], 0}, numbers[at + 2]});
        const OdDbPolyline* polyline = house.addPolyline(vertices, closed);
        house.controller.refresh();
        QVERIFY(std::abs(house.value(polyline, M::LengthColumn).toDouble() - length) < 1e-6);
        const QVariant measured = house.value(polyline, M::AreaColumn);
        QCOMPARE(measured.isValid(), area >= 0);
        QVERIFY(area < 0 || std::abs(measured.toDouble() - area) < 1e-6);
    }

    void aChangeOfTheDrawingIsToldByRows()
    {
        Fixture house;
        velmtest::SignalLog log(*house.controller.entities());
        house.controller.refresh();
        QCOMPARE(log.take(), "");
        house.circle->radius = 3.0;
        house.doors->setColor(OdCmColor::fromIndex(1));
        house.controller.refresh();
        QCOMPARE(log.take(), "dataChanged(1,0, 2,11, [])");
        house.database->rename(*house.walls, L"Outside");
        house.wall->erase();
        house.insert->erase();
        house.text->erase();
        house.line(7.0, house.database->modelSpace(), house.walls);
        house.controller.refresh();
        QCOMPARE(log.take(), "rowsAboutToBeRemoved(-, 2, 3) rowsRemoved(-, 2, 3) rowsAboutToBeRemoved(-, 0, 0) "
                             "rowsRemoved(-, 0, 0) rowsAboutToBeInserted(-, 1, 1) rowsInserted(-, 1, 1)");
        QCOMPARE(house.shown(), "Circle Line");
        house.openAnother();
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset");
        house.close();
        QVERIFY(!house.controller.hasDrawing());
        QCOMPARE(house.controller.status(), "0 entities");
    }

    void theTableSelectsInTheDrawing()
    {
        Fixture house;
        house.table.doSort(M::KindColumn, true);
        QCOMPARE(house.shown(), "Block Door Circle Line Text");
        QSignalSpy changed(&house.selection, &Selection::changed);
        house.table.leftClickSelection(1, 3);
        QCOMPARE(house.selection.current(), house.circle->objectId());
        house.table.shiftSelection(2, 0);
        QCOMPARE(house.selected(), Fixture::ids({house.circle, house.wall}));
        QCOMPARE(house.selection.current(), house.circle->objectId());
        house.table.ctrlSelection(0, 0);
        QCOMPARE(house.selected(), Fixture::ids({house.insert, house.circle, house.wall}));
        QCOMPARE(house.selection.current(), house.insert->objectId());
        QCOMPARE(house.controller.status(), "4 entities, 3 selected");
        QCOMPARE(changed.size(), 4); // the last click selected, and then went to another row
        // What is erased leaves the selection of the table, and what is left of it stays.
        house.wall->erase();
        house.controller.refresh();
        QCOMPARE(house.shown(), "Block Door* Circle* Text");
    }

    void theDrawingSelectsInTheTable()
    {
        Fixture house;
        house.table.doSort(M::KindColumn, true);
        QSignalSpy changed(&house.selection, &Selection::changed);
        house.selection.set(house.wall->objectId());
        QCOMPARE(house.shown(), "Block Door Circle Line* Text");
        QCOMPARE(house.table.selectionModel()->currentIndex().row(), 2);
        house.selection.set({house.text->objectId(), house.insert->objectId(), house.circle->objectId()},
                            house.circle->objectId());
        QCOMPARE(house.shown(), "Block Door* Circle* Line Text*");
        QCOMPARE(house.table.selectionModel()->currentIndex().row(), 1);
        house.selection.clear();
        QCOMPARE(house.shown(), "Block Door Circle Line Text");
        QCOMPARE(changed.size(), 3);
    }

    void columnsAreNoSelectionOfEntities()
    {
        Fixture house;
        house.selection.set(house.wall->objectId());
        house.table.setSelectionMode(SortFilterSelectModel::Column);
        QCOMPARE(house.table.selectedSourcesCount(), 0);
        house.table.leftClickSelection(1, 1);
        QCOMPARE(house.selected(), Fixture::ids({house.wall}));
        house.selection.set(house.circle->objectId());
        QVERIFY(house.table.isSelected(0, 1));
        QVERIFY(!house.table.isSelected(0, 2));

        house.table.setSelectionMode(SortFilterSelectModel::Cell);
        QVERIFY(house.table.isSelected(1, 1));
        house.table.leftClickSelection(0, 1);
        house.table.ctrlSelection(3, 2);
        QCOMPARE(house.selected(), Fixture::ids({house.wall, house.text}));
        house.circle->radius = 3.0;
        house.controller.refresh();
        QCOMPARE(house.table.selectedSources().size(), 2); // cells, not their rows
    }

    void whatTheSearchHidesStaysSelected()
    {
        Fixture house;
        house.table.leftClickSelection(0, 0);
        house.table.shiftSelection(1, 0);
        QSignalSpy changed(&house.selection, &Selection::changed);
        house.controller.setSearchText("DOOR");
        QCOMPARE(house.shown(), "Circle* Block Door");
        QCOMPARE(house.controller.status(), "2 of 4 entities, 2 selected");
        QCOMPARE(house.selected(), Fixture::ids({house.wall, house.circle}));
        house.controller.setSearchText({});
        QCOMPARE(house.shown(), "Line* Circle* Block Door Text");
        QVERIFY(changed.isEmpty());
    }

    void theSearchKnowsTextsThatChange()
    {
        Fixture house;
        house.controller.setSearchText("kitchen");
        QCOMPARE(house.shown(), "");
        house.text->textString = L"Kitchen";
        house.database->rename(*house.walls, L"Kitchen walls");
        house.controller.refresh();
        QCOMPARE(house.table.rowCount(), 2);
        house.openAnother();
        QCOMPARE(house.controller.searchText(), "kitchen");
        OdDbDatabase* other = house.documents.curDocument()->database();
        other->addEntity(std::make_unique<OdDbPoint>(), other->modelSpace());
        house.controller.refresh();
        QCOMPARE(house.controller.status(), "0 of 1 entities");
    }

    void anotherDrawingKeepsColumnsAndOrder()
    {
        Fixture house;
        house.table.moveColumn(M::TextColumn, 0);
        house.table.setSourceColumnVisible(M::ColorColumn, false);
        house.table.setColumnWidth(0, 222);
        house.table.doSort(0, false);
        house.openAnother();
        QCOMPARE(house.table.mapProxyColumnToSource(0), int(M::TextColumn));
        QCOMPARE(house.table.columnWidth(0), 222);
        QVERIFY(!house.table.isSourceColumnVisible(M::ColorColumn));
        QCOMPARE(house.table.proxySortColumn(), 0);
        QVERIFY(!house.table.ascending());
    }
};

QTEST_MAIN(EntitiesControllerTest)
#include "tst_entitiescontroller.moc"
