#include "house.h"
#include "panels/propertiescontroller.h"
#include "velm/bridge/conversions.h"

#include <QAbstractItemModelTester>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

using namespace workbench;
using velm::PropertiesListModel;

namespace {
class Fixture : public House
{
public:
    Fixture()
    {
        controller.onEdited = [this] { ++edits; };
        QObject::connect(&controller, &PropertiesController::changed, &controller, [this] {
            if (controller.properties())
                tester = std::make_unique<QAbstractItemModelTester>(
                    controller.properties(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        });
    }

    int row(const QString& label)
    {
        const PropertiesListModel* list = controller.properties();
        for (int row = 0; row < list->rowCount(); ++row)
            if (list->data(list->index(row), PropertiesListModel::LabelRole) == label)
                return row;
        return -1;
    }
    QVariant get(const QString& label, int role)
    {
        return controller.properties()->data(controller.properties()->index(row(label)), role);
    }
    /// The value as the page shows it.
    QString shown(const QString& label)
    {
        const QVariant value = get(label, PropertiesListModel::ValueRole);
        return get(label, PropertiesListModel::IsComboBoxRole).toBool()
                   ? get(label, PropertiesListModel::ChoicesRole).toStringList().value(value.toInt())
                   : value.toString();
    }
    /// As the page does it.
    void set(const QString& label, const QVariant& value) { controller.properties()->valueChanged(value, row(label)); }
    void choose(const QString& label, const QString& choice)
    {
        set(label, static_cast<int>(get(label, PropertiesListModel::ChoicesRole).toStringList().indexOf(choice)));
    }

    PropertiesController controller{documents};
    int edits = 0;
    std::unique_ptr<QAbstractItemModelTester> tester;
};
} // namespace

/// The properties of entities and layers, read and edited.
class PropertiesControllerTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void anEntityShowsWhatItIs()
    {
        Fixture house;
        QVERIFY(!house.controller.properties());
        house.controller.show(house.wall->objectId());
        QCOMPARE(house.controller.properties()->getTitle(), QString("Line"));
        QCOMPARE(house.shown("Layer"), QString("Walls"));
        QCOMPARE(house.shown("Layer shown"), QString("true"));
        QCOMPARE(house.shown("Colour"), QString("ByLayer"));
        QCOMPARE(house.shown("Lineweight"), QString("ByLayer"));
        QCOMPARE(house.shown("Length"), QString("5.00"));
        QVERIFY(house.get("Length", PropertiesListModel::ReadOnlyRole).toBool());
        QVERIFY(!house.get("Layer", PropertiesListModel::ReadOnlyRole).toBool());
        QVERIFY(house.get("Layer shown", PropertiesListModel::IsSwitchRole).toBool());
        house.controller.show(house.text->objectId());
        QCOMPARE(house.shown("Text"), QString("Hall"));
    }

    void measuresAreWrittenAsTheDrawingWritesThem()
    {
        Fixture house;
        OdUnits units;
        units.linearKind = OdUnits::kArchitectural;
        units.linearPrecision = 1;
        house.database->formatter().setUnits(units);
        house.wall->endPoint.x = 14.5;
        house.controller.show(house.wall->objectId());
        QCOMPARE(house.shown("Length"), velm::toQt(house.database->formatter().formatLinear(14.5)));

        // A full circle of two half ones, as the measure of a polyline.
        auto round = std::make_unique<OdDbPolyline>();
        round->vertices = {{{0, 0, 0}, 1.0}, {{2, 0, 0}, 1.0}};
        round->closed = true;
        const OdDbPolyline* polyline = house.database->addEntity(std::move(round), house.database->modelSpace());
        house.database->formatter().setUnits({});
        house.controller.show(polyline->objectId());
        QCOMPARE(house.shown("Length"), QString("6.2832"));
    }

    void anEditChangesTheDrawing()
    {
        Fixture house;
        house.controller.show(house.text->objectId());
        house.choose("Layer", "Doors");
        QCOMPARE(house.text->layerId(), house.doors->objectId());
        house.choose("Colour", "Green");
        QCOMPARE(house.text->color(), OdCmColor::fromIndex(3));
        house.choose("Lineweight", "0.50 mm");
        QCOMPARE(house.text->lineWeight(), 50);
        house.choose("Lineweight", "ByBlock");
        QCOMPARE(house.text->lineWeight(), int(OdDb::kLnWtByBlock));
        house.set("Text", "Kitchen");
        QCOMPARE(house.text->textString, OdString(L"Kitchen"));
        QCOMPARE(house.edits, 5);
        house.set("Layer shown", false);
        QVERIFY(house.walls->isOff() == false && house.database->findLayer(L"0")->isOff() == false);
        QVERIFY(house.doors->isOff());
        QCOMPARE(house.edits, 6);

        // A value out of range, and one that the page shows already.
        house.set("Colour", -1);
        QCOMPARE(house.text->color(), OdCmColor::fromIndex(3));
        house.set("Text", "Kitchen");
        QCOMPARE(house.edits, 7);
    }

    void aTextOfSeveralLinesKeepsThem()
    {
        Fixture house;
        house.text->textString = L"Hall\nand stairs";
        house.controller.show(house.text->objectId());
        const QString mark(QChar(0x23CE));
        QCOMPARE(house.shown("Text"), QString("Hall" + mark + "and stairs"));
        house.set("Text", "Hall" + mark + "and" + mark + "stairs");
        QCOMPARE(house.text->textString, OdString(L"Hall\nand\nstairs"));
    }

    void anUncommonValueIsShownAndKept()
    {
        Fixture house;
        house.wall->setColor(OdCmColor::fromIndex(42));
        house.wall->setLineWeight(77);
        house.controller.show(house.wall->objectId());
        QCOMPARE(house.shown("Colour"), QString("Color 42"));
        QCOMPARE(house.shown("Lineweight"), QString("0.77 mm"));
        house.choose("Colour", "Red");
        house.controller.refresh();
        QVERIFY(!house.get("Colour", PropertiesListModel::ChoicesRole).toStringList().contains("Color 42"));
        QCOMPARE(house.wall->lineWeight(), 77);
        house.wall->setColor(OdCmColor::fromRGB(1, 2, 3));
        house.controller.refresh();
        QCOMPARE(house.shown("Colour"), QString("1,2,3"));
    }

    void aLayerIsEdited()
    {
        Fixture house;
        house.controller.show(house.doors->objectId());
        QCOMPARE(house.controller.properties()->getTitle(), QString("Layer"));
        QCOMPARE(house.shown("Name"), QString("Doors"));
        house.set("Shown", false);
        house.set("Frozen", true);
        house.set("Locked", true);
        QVERIFY(house.doors->isOff() && house.doors->isFrozen() && house.doors->isLocked());
        QVERIFY(!house.get("Colour", PropertiesListModel::ChoicesRole).toStringList().contains("ByLayer"));
        house.choose("Colour", "Blue");
        QCOMPARE(house.doors->color(), OdCmColor::fromIndex(5));
        QCOMPARE(house.edits, 4);
    }

    void aChangeElsewhereShowsInTheSameList()
    {
        Fixture house;
        house.controller.show(house.wall->objectId());
        const PropertiesListModel* list = house.controller.properties();
        QSignalSpy changes(list, &QAbstractItemModel::dataChanged);
        house.walls->setIsOff(true);
        house.wall->endPoint.x = 7;
        house.controller.refresh();
        QCOMPARE(house.controller.properties(), list);
        QCOMPARE(house.shown("Layer shown"), QString("false"));
        QCOMPARE(house.shown("Length"), QString("7.00"));
        QCOMPARE(changes.size(), 3); // with the end of the line
        QCOMPARE(house.edits, 0);
    }

    void otherChoicesBringAnotherList()
    {
        Fixture house;
        house.controller.show(house.wall->objectId());
        QSignalSpy changes(&house.controller, &PropertiesController::changed);
        house.database->rename(*house.walls, L"Outside");
        house.controller.refresh();
        QCOMPARE(changes.size(), 1);
        QCOMPARE(house.shown("Layer"), QString("Outside"));
    }

    void theFormerListLivesUntilItsPageLetGo()
    {
        Fixture house;
        house.controller.show(house.wall->objectId());
        const QPointer<PropertiesListModel> former = house.controller.properties();
        bool lived = false;
        QObject::connect(&house.controller, &PropertiesController::changed, &house.controller,
                         [&] { lived = former && former->rowCount() > 0; });
        // The edit of an entity's property that brings another entity's list, from within the former list's own call.
        house.controller.onEdited = [&] { house.controller.show(house.circle->objectId()); };
        house.choose("Colour", "Red");
        QVERIFY(lived);
        QVERIFY(former && former != house.controller.properties());
        QCOMPARE(house.controller.properties()->getTitle(), QString("Circle"));
        QTRY_VERIFY(!former);
    }

    void aLateEditGoesToTheObjectOfItsList()
    {
        Fixture house;
        auto other = std::make_unique<OdDbText>();
        other->textString = L"Stairs";
        const OdDbText* stairs = house.database->addEntity(std::move(other), house.database->modelSpace());
        house.controller.show(house.text->objectId());
        PropertiesListModel* former = house.controller.properties();
        house.controller.show(stairs->objectId());
        former->valueChanged("Kitchen", 0);
        QCOMPARE(house.text->textString, OdString(L"Kitchen"));
        QCOMPARE(stairs->textString, OdString(L"Stairs"));
        QCOMPARE(house.edits, 1);
    }

    void whatIsGoneIsNotShown()
    {
        Fixture house;
        house.controller.show(house.circle->objectId());
        house.circle->erase();
        house.controller.refresh();
        QVERIFY(!house.controller.properties());
        house.controller.show(house.circle->objectId());
        QVERIFY(!house.controller.properties());
        house.controller.show(house.block->objectId());
        QVERIFY(!house.controller.properties());

        house.controller.show(house.wall->objectId());
        house.close();
        QVERIFY(!house.controller.hasDrawing());
        QVERIFY(!house.controller.properties());
        house.controller.refresh();
        QVERIFY(!house.controller.properties());
    }

    void anErasedObjectTakesNoEdit()
    {
        Fixture house;
        house.controller.show(house.text->objectId());
        house.text->erase();
        house.set("Text", "Kitchen");
        QCOMPARE(house.text->textString, OdString(L"Hall"));
        QCOMPARE(house.edits, 0);

        // A page that still shows the list of a drawing that was closed.
        house.controller.show(house.wall->objectId());
        PropertiesListModel* former = house.controller.properties();
        house.close();
        former->valueChanged(0, 0);
        former->valueChanged(2, 0);
        QCOMPARE(house.edits, 0);
    }
};

QTEST_MAIN(PropertiesControllerTest)

#include "tst_propertiescontroller.moc"
