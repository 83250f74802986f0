#include "house.h"
#include "panels/dimstylescontroller.h"
#include "panels/dimstyletablemodel.h"
#include "support/fakehost.h"
#include "support/rowtext.h"
#include "support/scopes.h"
#include "support/table.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace workbench;
using Model = DimStyleTableModel;

namespace {
constexpr auto reporting = QAbstractItemModelTester::FailureReportingMode::QtTest;

velm::ExternalFunctions currentDatabaseOf(OdDbDatabase* database)
{
    velm::ExternalFunctions functions;
    functions.currentDatabase = [database] { return database; };
    return functions;
}

/// A house with the styles "Standard", its child for angles, and "Iso"; another one is named like a child, but isn't.
class Fixture : public House
{
public:
    Fixture() : child(database->addDimStyle(L"Standard$2")), iso(database->addDimStyle(L"Iso"))
    {
        database->addDimStyle(L"Lone$4");
        iso->setDimtxt(10);
        controller = std::make_unique<DimStylesController>(documents, dialogs);
        sourceTester = std::make_unique<QAbstractItemModelTester>(controller->table()->sourceModel(), reporting);
        tester = std::make_unique<QAbstractItemModelTester>(controller->table(), reporting);
    }

    QAbstractItemModel& model() { return *controller->table()->sourceModel(); }
    /// Of a row of the drawing's order: "Standard", its child, "Iso", the lone one.
    QVariant get(int row, int column, int role = Qt::DisplayRole) { return model().index(row, column).data(role); }
    bool set(int row, int column, const QVariant& value) { return model().setData(model().index(row, column), value); }

    velmtest::TemporaryConfig config;
    velmtest::ScopedExternalFunctions functions{currentDatabaseOf(database)};
    velmtest::FakeDialogFactory dialogs;
    OdDbDimStyleTableRecord* child;
    OdDbDimStyleTableRecord* iso;
    std::unique_ptr<DimStylesController> controller;
    std::unique_ptr<QAbstractItemModelTester> sourceTester;
    std::unique_ptr<QAbstractItemModelTester> tester;
};
} // namespace

/// The table of dimension styles.
class DimStyleTableTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void stylesStandUnderTheNamesThatUsersSee()
    {
        Fixture house;
        QCOMPARE(velmtest::rowText(*house.controller->table()), QString("Iso Lone$4 Standard Standard: Angular"));
        QCOMPARE(house.get(0, Model::TypeColumn).toString(), QString("All"));
        QCOMPARE(house.get(1, Model::TypeColumn).toString(), QString("Angular"));
        QCOMPARE(house.get(3, Model::TypeColumn).toString(), QString("All"));
        house.controller->setSearchText("angu");
        QCOMPARE(velmtest::rowText(*house.controller->table()), QString("Standard: Angular"));
    }

    void sizesSortByTheirValues()
    {
        Fixture house;
        house.child->setDimtxt(9.5);
        house.controller->refresh();
        house.controller->table()->doSort(Model::TextHeightColumn, false);
        QCOMPARE(velmtest::rowText(*house.controller->table()).left(22), QString("Iso Standard: Angular "));
    }

    void anEditReachesTheDrawing()
    {
        Fixture house;
        int edits = 0;
        house.controller->onEdited = [&] { ++edits; };
        QVERIFY(house.set(1, Model::TextHeightColumn, " 2.5 "));
        QCOMPARE(house.child->dimtxt(), 2.5);
        QVERIFY(house.set(1, Model::ArrowSizeColumn, "0"));
        QCOMPARE(house.child->dimasz(), 0.0);
        QVERIFY(house.set(1, Model::ScaleColumn, 50));
        QCOMPARE(house.child->dimscale(), 50.0);
        QVERIFY(house.set(1, Model::DecimalsColumn, "3"));
        QCOMPARE(house.child->dimdec(), 3);
        const auto* narrow = house.database->addTextStyle(L"Narrow");
        const auto styles = house.get(1, Model::TextStyleColumn, RecordTableModel::ChoicesRole).toStringList();
        QVERIFY(house.set(1, Model::TextStyleColumn, static_cast<int>(styles.indexOf("Narrow"))));
        QCOMPARE(house.child->dimtxsty(), narrow->objectId());
        QCOMPARE(house.get(1, Model::TextStyleColumn).toString(), QString("Narrow"));
        QVERIFY(!house.set(1, Model::NameColumn, "Other"));
        QCOMPARE(edits, 5);
    }

    void aBadNumberIsRefused_data()
    {
        const auto row = velmtest::columns<int, QString>("column", "text");
        row("no number", int(Model::TextHeightColumn), "tall");
        row("a height of zero", int(Model::TextHeightColumn), "0");
        row("an arrow below zero", int(Model::ArrowSizeColumn), "-1");
        row("an endless scale", int(Model::ScaleColumn), "inf");
        row("broken decimals", int(Model::DecimalsColumn), "2.5");
    }
    void aBadNumberIsRefused()
    {
        QFETCH(int, column);
        QFETCH(QString, text);
        Fixture house;
        house.dialogs.answers = {{4, false}};
        const QVariant before = house.get(1, column);
        QVERIFY(!house.set(1, column, text));
        QCOMPARE(house.get(1, column), before);
        QCoreApplication::processEvents();
        QCOMPARE(house.dialogs.log.size(), 1);
    }
};

QTEST_MAIN(DimStyleTableTest)

#include "tst_dimstyletable.moc"
