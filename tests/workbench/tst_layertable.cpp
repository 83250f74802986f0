#include "house.h"
#include "panels/layerscontroller.h"
#include "panels/layertablemodel.h"
#include "support/fakehost.h"
#include "support/rowtext.h"
#include "support/scopes.h"
#include "support/table.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QSignalSpy>
#include <QtTest>

using namespace workbench;
using Model = LayerTableModel;

namespace {
constexpr auto reporting = QAbstractItemModelTester::FailureReportingMode::QtTest;

class Fixture : public House
{
public:
    Fixture()
    {
        controller.onEdited = [this] { ++edits; };
    }

    velm::SortFilterSelectModel& table() { return *controller.table(); }
    /// The cell of the source.
    QModelIndex cell(const QString& layer, int column)
    {
        const QAbstractItemModel* source = table().sourceModel();
        for (int row = 0; row < source->rowCount(); ++row)
            if (source->index(row, Model::NameColumn).data() == layer)
                return source->index(row, column);
        return {};
    }
    QVariant get(const QString& layer, int column, int role = Qt::DisplayRole)
    {
        return cell(layer, column).data(role);
    }
    bool set(const QString& layer, int column, const QVariant& value, int role = Qt::EditRole)
    {
        return table().sourceModel()->setData(cell(layer, column), value, role);
    }
    bool choose(const QString& layer, int column, const QString& text)
    {
        const auto choices = get(layer, column, RecordTableModel::ChoicesRole).toStringList();
        return set(layer, column, static_cast<int>(choices.indexOf(text)));
    }
    QString names() { return velmtest::rowText(table()); }
    QString current() { return table().index(controller.currentRow(), 0).data().toString(); }

    velmtest::TemporaryConfig config;
    velmtest::FakeDialogFactory dialogs;
    LayersController controller{documents, dialogs};
    int edits = 0;
    QAbstractItemModelTester sourceTester{controller.table()->sourceModel(), reporting};
    QAbstractItemModelTester tester{controller.table(), reporting};
};
} // namespace

/// The table of layers: what it shows, how it is edited, and how it follows the drawing.
class LayerTableTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aRowShowsItsLayer()
    {
        Fixture house;
        house.walls->setColor(OdCmColor::fromIndex(7));
        QCOMPARE(house.get("Walls", Model::OnColumn, Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QCOMPARE(house.get("Walls", Model::FrozenColumn, Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        QVERIFY(!house.get("Walls", Model::NameColumn, Qt::CheckStateRole).isValid());
        QCOMPARE(house.get("Walls", Model::ColorColumn).toString(), QString("White"));
        QCOMPARE(house.get("Walls", Model::ColorColumn, Qt::DecorationRole).value<QColor>(), QColor(Qt::white));
        house.controller.setDarkBackground(false);
        QCOMPARE(house.get("Walls", Model::ColorColumn, Qt::DecorationRole).value<QColor>(), QColor(Qt::black));
        QCOMPARE(house.get("Walls", Model::LinetypeColumn).toString(), QString("Continuous"));
        QCOMPARE(house.get("Walls", Model::LineWeightColumn).toString(), QString("Default"));
        QCOMPARE(house.get("Walls", Model::PlotStyleColumn).toString(), QString("Color 7"));
        QCOMPARE(house.get("0", Model::EntitiesColumn).toInt(), 1);
        // One of them in the block.
        QCOMPARE(house.get("Doors", Model::EntitiesColumn).toInt(), 3);
        QVERIFY(!house.table().isSourceColumnVisible(Model::PlotStyleColumn));
        QCOMPARE(house.names(), QString("0 Doors Walls"));
    }

    void anEditReachesTheDrawing()
    {
        Fixture house;
        QSignalSpy changes(&house.table(), &QAbstractItemModel::dataChanged);
        QVERIFY(house.set("Walls", Model::OnColumn, Qt::Unchecked, Qt::CheckStateRole) && house.walls->isOff());
        QVERIFY(house.set("Walls", Model::FrozenColumn, true) && house.walls->isFrozen());
        QVERIFY(house.set("Walls", Model::LockedColumn, true) && house.walls->isLocked());
        QVERIFY(house.choose("Walls", Model::ColorColumn, "Green"));
        QCOMPARE(house.walls->color(), OdCmColor::fromIndex(3));
        QVERIFY(house.choose("Walls", Model::LineWeightColumn, "0.50 mm"));
        QCOMPARE(house.walls->lineWeight(), 50);
        const auto* dashed = house.database->addLinetype(L"Dashed");
        QVERIFY(house.choose("Walls", Model::LinetypeColumn, "Dashed"));
        QCOMPARE(house.walls->linetypeObjectId(), dashed->objectId());
        QVERIFY(house.set("Walls", Model::DescriptionColumn, "outer ones"));
        QCOMPARE(house.walls->description(), OdString(L"outer ones"));
        QVERIFY(house.set("Walls", Model::NameColumn, " Outside "));
        QCOMPARE(house.database->findLayer(L"outside"), house.walls);
        QCOMPARE(house.edits, 8);
        QCOMPARE(changes.size(), 8);

        QVERIFY(house.set("Outside", Model::NameColumn, "Outside"));
        QVERIFY(!house.set("Outside", Model::EntitiesColumn, 5));
        QVERIFY(!house.set("Outside", Model::NameColumn, true, Qt::CheckStateRole));
        QVERIFY(!(house.cell("0", Model::NameColumn).flags() & Qt::ItemIsEditable));
        QVERIFY(house.cell("Doors", Model::NameColumn).flags() & Qt::ItemIsEditable);
        QVERIFY(house.cell("0", Model::OnColumn).flags() & Qt::ItemIsUserCheckable);
        QCOMPARE(house.edits, 8);
    }

    void aBadNameIsRefused_data()
    {
        const auto row = velmtest::columns<QString, QString, QString>("layer", "name", "reason");
        row("a name of another layer, in other letters", "Walls", "doors", "already");
        row("a forbidden character", "Walls", "Wa/lls", "characters");
        row("blanks alone", "Walls", "  ", "needs a name");
        row("any name for the layer that every drawing has", "0", "Zero", "");
    }
    void aBadNameIsRefused()
    {
        QFETCH(QString, layer);
        QFETCH(QString, name);
        QFETCH(QString, reason);
        Fixture house;
        house.dialogs.answers = {{4, false}};
        QVERIFY(!house.set(layer, Model::NameColumn, name));
        QVERIFY(house.cell(layer, Model::NameColumn).isValid());
        QCOMPARE(house.edits, 0);
        // Told once the editor has gone.
        QVERIFY(house.dialogs.log.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(house.dialogs.log.size(), reason.isEmpty() ? 0 : 1);
        QVERIFY(house.dialogs.log.join("").contains(reason));
    }

    void aChangeElsewhereKeepsOrderAndSelection()
    {
        Fixture house;
        house.table().doSort(house.table().mapSourceColumnToProxy(Model::EntitiesColumn), false);
        QCOMPARE(house.names().section(' ', 0, 0), QString("Doors"));
        const QString before = house.names();
        house.table().leftClickSelection(0, 0);
        QSignalSpy resets(&house.table(), &QAbstractItemModel::modelReset);
        QSignalSpy named(&house.controller, &LayersController::currentRowChanged);
        house.line(3.0, house.database->modelSpace(), house.walls);
        house.database->rename(*house.doors, L"Gates");
        house.controller.refresh();
        QCOMPARE(house.names(), QString(before).replace("Doors", "Gates"));
        QCOMPARE(house.get("Walls", Model::EntitiesColumn).toInt(), 2);
        QCOMPARE(house.current(), QString("Gates"));
        QVERIFY(house.controller.canRename());
        QCOMPARE(named.size(), 1);
        house.set("Gates", Model::NameColumn, "Zzz");
        QCOMPARE(house.current(), QString("Zzz"));
        // Layers come and go as rows.
        house.database->addLayer(L"Attic");
        house.walls->erase();
        house.controller.refresh();
        QCOMPARE(house.current(), QString("Zzz"));
        QCOMPARE(house.names().section(' ', 0, 0), QString("Zzz"));
        QCOMPARE(house.table().rowCount(), 3);
        QCOMPARE(resets.size(), 0);
    }

    void theSearchIsInNamesAndDescriptions()
    {
        Fixture house;
        house.walls->setDescription(L"of the old doorway");
        house.table().leftClickSelection(0, 0);
        house.controller.setSearchText("DOOR");
        QCOMPARE(house.names(), QString("Doors Walls"));
        QCOMPARE(house.current(), QString("Doors"));
        QVERIFY(house.controller.canRename());
        house.controller.setSearchText("nothing of this");
        QCOMPARE(house.names(), QString());
        QVERIFY(!house.controller.canRename());
        house.controller.setSearchText("");
        QCOMPARE(house.names(), QString("0 Doors Walls"));
    }

    void theTableFollowsTheDocument()
    {
        Fixture house;
        house.table().doSort(0, false);
        house.table().setSourceColumnVisible(Model::LockedColumn, false);
        QCOMPARE(house.names(), QString("Walls Doors 0"));
        house.openAnother();
        QCOMPARE(house.names(), QString("0"));
        QCOMPARE(house.current(), QString("0"));
        QVERIFY(house.controller.hasDrawing() && !house.controller.canRename());
        house.documents.curDocument()->database()->addLayer(L"Alone");
        house.controller.refresh();
        QCOMPARE(house.names(), QString("Alone 0"));
        house.close();
        QCOMPARE(house.names(), QString());
        QVERIFY(!house.controller.hasDrawing() && !house.controller.canRename());
        house.controller.refresh();
        QVERIFY(!house.table().isSourceColumnVisible(Model::LockedColumn));
    }
};

QTEST_MAIN(LayerTableTest)

#include "tst_layertable.moc"
