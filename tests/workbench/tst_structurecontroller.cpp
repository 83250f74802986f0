#include "drawing/selection.h"
#include "house.h"
#include "panels/structurecontroller.h"
#include "support/rowtext.h"
#include "support/scopes.h"
#include "velm/bridge/conversions.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace workbench;
using Kind = StructureRow::Kind;

namespace {
class Fixture : public House
{
public:
    Fixture() { tester.setUseFetchMore(false); }

    QString rows() { return velmtest::rowText(*controller.tree()); }
    QModelIndex row(Kind kind, const OdDbObject* object = nullptr)
    {
        return controller.tree()->find({kind, object ? object->objectId() : OdDbObjectId::kNull});
    }
    QStringList expanded()
    {
        QStringList texts;
        for (const QModelIndex& index : std::as_const(*controller.tree()))
            if (controller.tree()->wantsToBeExpanded(index))
                texts << index.data().toString();
        return texts;
    }
    int menuRow(const QString& text) { return controller.menu()->find({text, {}}).value_or(-1); }

    Selection selection{documents};
    StructureController controller{documents, selection};
    QAbstractItemModelTester tester{controller.tree(), QAbstractItemModelTester::FailureReportingMode::QtTest};
    QAbstractItemModelTester menuTester{controller.menu(), QAbstractItemModelTester::FailureReportingMode::QtTest};
};
} // namespace

/// The tree of a drawing, and how it follows the drawing and the selection.
class StructureControllerTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theTreeHoldsTheDrawing()
    {
        Fixture house;
        QCOMPARE(
            house.rows(),
            QString("Layouts(Layout Model(Line, length 5.00 Circle, radius 2.00 Block Door at 0.00, 0.00 Text \"Hall\")"
                    " Layout Layout1) "
                    "Blocks(Block Door(Line, length 1.00)) "
                    "Layers(Layer 0(Text \"Hall\") Layer Walls(Line, length 5.00) "
                    "Layer Doors(Circle, radius 2.00 Block Door at 0.00, 0.00 Line, length 1.00))"));
        QCOMPARE(house.row(Kind::Layer, house.doors).data(StructureModel::CountRole), QVariant(3));
    }

    void aChangeOfTheDrawingShowsInTheTree()
    {
        Fixture house;
        house.database->rename(*house.walls, L"Outside");
        house.doors->setIsOff(true);
        house.circle->erase();
        house.controller.refresh();
        QCOMPARE(house.row(Kind::Layer, house.walls).data().toString(), QString("Layer Outside"));
        QVERIFY(!house.row(Kind::Entity, house.circle).isValid());
        QCOMPARE(house.row(Kind::Layer, house.doors).data(StructureModel::CountRole), QVariant(2));
        QCOMPARE(house.row(Kind::Layer, house.doors).data(StructureModel::DisabledRole), QVariant(true));
        QCOMPARE(house.row(Kind::Entity, house.insert).data(StructureModel::DisabledRole), QVariant(true));
        QCOMPARE(house.row(Kind::Entity, house.wall).data(StructureModel::DisabledRole), QVariant(false));

        house.openAnother();
        QCOMPARE(house.rows(), QString("Layouts(Layout Model Layout Layout1) Blocks Layers(Layer 0)"));
    }

    void expandedRowsStayExpandedThroughAChange()
    {
        Fixture house;
        QCOMPARE(house.expanded(), QStringList({"Layouts", "Blocks", "Layers"}));
        StructureModel* tree = house.controller.tree();
        QVERIFY(tree->setData(house.row(Kind::Blocks), false, velm::getWantsToBeExpandedRole()));
        QVERIFY(tree->setData(house.row(Kind::Layer, house.doors), true, velm::getWantsToBeExpandedRole()));
        QVERIFY(tree->setData(house.row(Kind::Layer, house.walls), true, velm::getWantsToBeExpandedRole()));
        house.database->rename(*house.walls, L"Outside");
        house.circle->erase();
        house.controller.refresh();
        QCOMPARE(house.expanded(), QStringList({"Layouts", "Layers", "Layer Outside", "Layer Doors"}));
    }

    void aRowSelectsItsEntityAndOnlyAnEntity()
    {
        Fixture house;
        const QSignalSpy changes(&house.selection, &Selection::changed);
        // The second of the circle's two rows.
        const QModelIndex below = house.controller.tree()->index(0, 0, house.row(Kind::Layer, house.doors));
        house.controller.setCurrentIndex(below);
        QCOMPARE(house.selection.current(), house.circle->objectId());
        QCOMPARE(house.controller.currentIndex(), below);
        house.controller.setCurrentIndex(house.row(Kind::Layer, house.walls));
        QVERIFY(house.selection.current().isNull());
        QCOMPARE(house.controller.currentObject(), house.walls->objectId());
        QCOMPARE(changes.size(), 2);
    }

    void aSelectedEntityIsRevealed()
    {
        Fixture house;
        const QSignalSpy moves(&house.controller, &StructureController::currentIndexChanged);
        house.selection.set(house.text->objectId());
        QCOMPARE(house.controller.currentIndex(), house.row(Kind::Entity, house.text));
        QCOMPARE(house.controller.currentIndex().parent().data().toString(), QString("Layout Model"));
        QCOMPARE(moves.size(), 1);
        house.selection.clear();
        QVERIFY(!house.controller.currentIndex().isValid());
    }

    void theCurrentRowIsFoundAgainAfterAChange()
    {
        Fixture house;
        house.controller.setCurrentIndex(house.row(Kind::Entity, house.circle));
        house.wall->erase();
        house.controller.refresh();
        QCOMPARE(house.controller.currentIndex().row(), 0);
        QCOMPARE(house.controller.currentObject(), house.circle->objectId());
        QCOMPARE(house.selection.current(), house.circle->objectId());
        house.circle->erase();
        house.controller.refresh();
        QVERIFY(!house.controller.currentIndex().isValid());
    }

    void whatTheViewTellsWhileTheTreeIsFilledIsNoChoice()
    {
        Fixture house;
        house.selection.set(house.circle->objectId());
        QObject::connect(house.controller.tree(), &QAbstractItemModel::modelReset, &house.controller,
                         [&] { house.controller.setCurrentIndex({}); });
        house.controller.refresh();
        QCOMPARE(house.selection.current(), house.circle->objectId());
        QCOMPARE(house.controller.currentObject(), house.circle->objectId());
    }

    void manyEntitiesAreSummedUpAndComeOnDemand()
    {
        Fixture house;
        for (int count = 0; count < 3000; ++count)
            house.line(count, house.database->modelSpace(), house.walls);
        house.controller.tree()->setEntityBudget(0); // a hundred rows each then
        house.controller.refresh();
        const auto walls = [&] { return house.row(Kind::Layer, house.walls); };
        StructureModel* tree = house.controller.tree();
        const auto last = [&] { return tree->index(tree->rowCount(walls()) - 1, 0, walls()); };
        QCOMPARE(tree->rowCount(walls()), 101);
        QCOMPARE(walls().data(StructureModel::CountRole), QVariant(3001));
        QCOMPARE(tree->getData(last())->kind, Kind::More);
        QCOMPARE(last().data().toString(), QString("and %L1 more").arg(2901));

        house.controller.activate(last());
        QCOMPARE(tree->rowCount(walls()), 1011);
        house.controller.activate(last());
        QCOMPARE(tree->rowCount(walls()), 3001);
        QCOMPARE(tree->getData(last())->kind, Kind::Entity);
    }

    void aSelectedEntityWithoutARowGetsOne()
    {
        Fixture house;
        OdDbLine* late = nullptr;
        for (int count = 0; count < 300; ++count)
            late = house.line(count, house.database->modelSpace(), house.walls);
        house.controller.tree()->setEntityBudget(0);
        house.controller.refresh();
        QVERIFY(!house.row(Kind::Entity, late).isValid());
        StructureModel* tree = house.controller.tree();
        const QModelIndex space = house.row(Kind::Layout, house.database->layouts().front());
        const auto last = [&] { return tree->index(tree->rowCount(space) - 1, 0, space).data().toString(); };
        QCOMPARE(last(), QString("and 204 more"));
        QSignalSpy inserts(tree, &QAbstractItemModel::rowsInserted);
        house.selection.set(late->objectId());
        QCOMPARE(inserts.size(), 1);
        QCOMPARE(house.controller.currentObject(), late->objectId());
        QCOMPARE(house.controller.currentIndex().parent(), space);
        QCOMPARE(last(), QString("and 203 more"));
        house.controller.refresh();
        QCOMPARE(house.controller.currentObject(), late->objectId());
    }

    void theMenuWorksOnTheTree()
    {
        Fixture house;
        house.selection.set(house.circle->objectId());
        house.controller.menu()->menuItemClicked(house.menuRow("Expand all"));
        QCOMPARE(house.expanded().size(), 8);
        QCOMPARE(house.controller.currentObject(), house.circle->objectId());
        house.controller.menu()->menuItemClicked(house.menuRow("Collapse all"));
        QCOMPARE(house.expanded(), QStringList());
        QCOMPARE(house.controller.currentIndex(), house.row(Kind::Layouts));
        QCOMPARE(house.selection.current(), house.circle->objectId());

        house.controller.menu()->menuItemClicked(house.menuRow("Show empty blocks and layers"));
        QVERIFY(!house.rows().contains("Layout1"));
        house.controller.menu()->menuItemClicked(house.menuRow("Show entities"));
        QCOMPARE(house.rows(),
                 QString("Layouts(Layout Model) Blocks(Block Door) Layers(Layer 0 Layer Walls Layer Doors)"));
    }

    void theMarksOfTheMenuAreTrueOnceItWasClicked()
    {
        Fixture house;
        const int row = house.menuRow("Show entities");
        const auto mark = [&] {
            return house.controller.menu()->data(row, velm::PanelMenuModel::CheckedRole).toBool();
        };
        for (const bool shown : {false, true}) {
            QSignalSpy changes(house.controller.menu(), &QAbstractItemModel::dataChanged);
            house.controller.menu()->menuItemClicked(row);
            QCOMPARE(house.controller.tree()->showsEntities(), shown);
            // A view is told once the mark is turned.
            QVERIFY(changes.wait());
            QCOMPARE(mark(), shown);
        }
        house.close();
        QCOMPARE(house.controller.menu()->data(row, velm::PanelMenuModel::DisabledRole), QVariant(true));
    }

    void theActionsGoToTheCommandLine()
    {
        QStringList lines;
        velm::ExternalFunctions functions;
        functions.processCommand = [&](const OdString& line) { lines << velm::toQt(line); };
        const velmtest::ScopedExternalFunctions scope(functions);
        Fixture house;
        SelectionMenu* menu = house.controller.actions();
        const QAbstractItemModelTester tester(menu, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const auto row = [&](const QString& text) {
            return menu->findInTree([&](const QModelIndex& index) { return menu->getMenuItemLabelText(index) == text; })
                .value_or(QModelIndex());
        };
        const auto isEnabled = [&](const QString& text) { return row(text).data(SelectionMenu::EnabledRole).toBool(); };
        QCOMPARE(menu->lastActionText(), QString("&Zoom to selection"));
        QVERIFY(!isEnabled("Erase selection") && !isEnabled("Layer of selection") && isEnabled("Show all layers"));
        house.selection.set(house.circle->objectId());
        QVERIFY(isEnabled("Erase selection") && isEnabled("Layer of selection"));

        menu->executeLastAction();
        menu->menuItemTriggered(row("Hide"));
        QCOMPARE(menu->lastActionText(), QString("&Hide"));
        house.selection.set(house.wall->objectId());
        menu->executeLastAction();
        QCOMPARE(lines, QStringList({"ZOOM SELECTION", "HIDE Doors", "HIDE Walls"}));
    }

    void noDrawingIsHarmless()
    {
        Fixture house;
        house.selection.set(house.circle->objectId());
        QSignalSpy changes(&house.controller, &StructureController::drawingChanged);
        house.close();
        QCOMPARE(changes.size(), 1);
        QVERIFY(!house.controller.hasDrawing());
        QCOMPARE(house.rows(), QString());
        QVERIFY(!house.controller.currentIndex().isValid());
        house.controller.refresh();
        house.controller.activate({});
        house.controller.setCurrentIndex({});
        for (const char* entry : {"Expand all", "Collapse all", "Show entities", "Show empty blocks and layers"})
            house.controller.menu()->menuItemClicked(house.menuRow(entry));
        QCOMPARE(house.rows(), QString());
    }
};

QTEST_MAIN(StructureControllerTest)

#include "tst_structurecontroller.moc"
