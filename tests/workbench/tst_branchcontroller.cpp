#include "drawing/selection.h"
#include "house.h"
#include "panels/branchcontroller.h"
#include "support/rowtext.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace workbench;
using Kind = StructureRow::Kind;

namespace {
class Fixture : public House
{
public:
    Fixture() { tree.build(database); }

    QString rows()
    {
        QStringList texts;
        for (int row = 0; row < controller.rows()->rowCount(); ++row)
            texts << controller.rows()->index(row, 0).data().toString();
        return texts.join(" | ");
    }
    QString way() { return controller.crumbs().join(" > "); }
    QModelIndex row(Kind kind, const OdDbObject* object = nullptr)
    {
        return tree.find({kind, object ? object->objectId() : OdDbObjectId::kNull});
    }

    StructureModel tree;
    Selection selection{documents};
    BranchController controller{tree, selection};
    QAbstractItemModelTester tester{controller.rows(), QAbstractItemModelTester::FailureReportingMode::QtTest};
};
} // namespace

/// One branch of a drawing's tree: the ways through it, and what becomes of it when the tree changes.
class BranchControllerTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theWayGoesDownAndUp()
    {
        Fixture house;
        QCOMPARE(house.rows(), QString("Layouts | Blocks | Layers"));
        QCOMPARE(house.way(), QString("Drawing"));
        house.controller.enter(2);
        QCOMPARE(house.rows(), QString("Layer 0 | Layer Walls | Layer Doors"));
        house.controller.enter(1);
        QCOMPARE(house.rows(), QString("Line, length 5.00"));
        QCOMPARE(house.way(), QString("Drawing > Layers > Layer Walls"));
        QCOMPARE(house.controller.currentRow(), 0);

        house.controller.up();
        QCOMPARE(house.way(), QString("Drawing > Layers"));
        QCOMPARE(house.controller.currentRow(), 1); // where it came from
        house.controller.up();
        QCOMPARE(house.controller.currentRow(), 2);
        house.controller.up();
        QCOMPARE(house.way(), QString("Drawing"));
        QCOMPARE(house.controller.currentRow(), 2);
    }

    void aCrumbGoesUpSeveralLevelsAtOnce()
    {
        Fixture house;
        house.controller.show(house.row(Kind::Layer, house.doors));
        QCOMPARE(house.way(), QString("Drawing > Layers > Layer Doors"));
        for (const int wrong : {-1, 2, 3})
            house.controller.goTo(wrong);
        QCOMPARE(house.way(), QString("Drawing > Layers > Layer Doors"));
        house.controller.goTo(0);
        QCOMPARE(house.rows(), QString("Layouts | Blocks | Layers"));
        QCOMPARE(house.controller.currentRow(), 2);
    }

    void anEntityIsSelectedAndNotGoneInto()
    {
        Fixture house;
        house.controller.show(house.row(Kind::Layer, house.doors));
        house.controller.enter(1);
        QCOMPARE(house.way(), QString("Drawing > Layers > Layer Doors"));
        QCOMPARE(house.selection.current(), house.insert->objectId());
        house.controller.setCurrentRow(0);
        QCOMPARE(house.selection.current(), house.circle->objectId());
        house.controller.enter(99);
        QCOMPARE(house.selection.current(), house.circle->objectId());
    }

    void theSelectedEntityIsTheCurrentRow()
    {
        Fixture house;
        house.controller.show(house.row(Kind::Layer, house.doors));
        house.selection.set(house.insert->objectId());
        QCOMPARE(house.controller.currentRow(), 1);
        house.selection.set(house.wall->objectId());
        QCOMPARE(house.controller.currentRow(), 1);
    }

    void aBranchIsFoundAgainAfterAChange()
    {
        Fixture house;
        house.controller.show(house.row(Kind::Layer, house.doors));
        house.controller.setCurrentRow(1);
        house.database->rename(*house.doors, L"Ways");
        house.circle->erase();
        house.tree.build(house.database);
        QCOMPARE(house.way(), QString("Drawing > Layers > Layer Ways"));
        QCOMPARE(house.rows(), QString("Block Door at 0.00, 0.00 | Line, length 1.00"));
        QCOMPARE(house.controller.currentRow(), 0); // that of the selected entity
        QCOMPARE(house.controller.notice(), QString());
    }

    void aBranchOfEqualTextIsNotTheSame()
    {
        Fixture house;
        house.controller.show(house.row(Kind::Layer, house.walls));
        house.walls->erase();
        house.database->addLayer(L"Walls");
        house.tree.build(house.database);
        QCOMPARE(house.way(), QString("Drawing"));
    }

    void aBranchThatIsGoneShowsTheTopLevelAndSaysSo()
    {
        Fixture house;
        house.controller.show(house.row(Kind::Block, house.block));
        QSignalSpy changes(&house.controller, &BranchController::branchChanged);
        house.block->erase();
        house.tree.build(house.database);
        QVERIFY(!changes.isEmpty());
        QCOMPARE(house.rows(), QString("Layouts | Blocks | Layers"));
        QCOMPARE(house.controller.notice(), QString("\"Block Door\" is not there any more."));
        house.tree.build(house.database);
        QVERIFY(!house.controller.notice().isEmpty());
        house.controller.enter(0);
        QCOMPARE(house.controller.notice(), QString());
    }

    void noDrawingIsHarmless()
    {
        Fixture house;
        house.controller.show(house.row(Kind::Layer, house.doors));
        house.tree.build(nullptr);
        QVERIFY(house.controller.isEmpty());
        QCOMPARE(house.way(), QString("Drawing"));
        QCOMPARE(house.controller.notice(), QString());
        QCOMPARE(house.controller.currentRow(), -1);
        house.controller.enter(0);
        house.controller.up();
        house.controller.goTo(0);
        house.controller.setCurrentRow(5);
        house.controller.show({});
        QVERIFY(house.controller.isEmpty());
    }
};

QTEST_MAIN(BranchControllerTest)

#include "tst_branchcontroller.moc"
