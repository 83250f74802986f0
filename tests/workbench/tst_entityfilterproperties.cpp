#include "filter/standardcolors.h"
#include "filterhouse.h"
#include "support/table.h"
#include "velm/bridge/conversions.h"
#include "velm/drawingprops/icolormodel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

#include <set>

using namespace workbench;
using P = EntityFilterProperties;

/// The properties of entities that filters test, over the current drawing.
class EntityFilterPropertiesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theyAreAModel()
    {
        FilterHouse house;
        const QAbstractItemModelTester tester(house.properties.get(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        house.database->addLayer(L"New");
        house.properties->refresh();
        QCOMPARE(house.properties->rowCount(), int(P::PropertyCount));
        QVERIFY(dynamic_cast<EntityFilterFactories*>(house.properties->getPropertyFilterFactoriesManager()));
    }

    void savedFiltersFindTheirProperties()
    {
        FilterHouse house;
        std::set<OdString> ids;
        for (int row = 0; row < P::PropertyCount; ++row) {
            const OdString id = house.properties->getRegistryId(row);
            QVERIFY(!ut::UUID(id).isNil());
            QVERIFY(ids.insert(id).second);
            QCOMPARE(house.properties->getIndexByGuid(ut::UUID(id)), row);
            QCOMPARE(house.properties->getIndexByGuidAndPath(ut::UUID(id), {L"In another language"}), row);
        }
        QCOMPARE(house.properties->getIndexByGuid(ut::UUID::create()), -1);
        QCOMPARE(house.properties->getIndexByGuid(ut::UUID::s_cNil), -1);
        // What files and favourites hold must not change.
        QCOMPARE(house.properties->getIndexByGuid(ut::UUID(L"28b995b4-ac40-4877-bb75-18ef57a71824")), int(P::Type));
        QCOMPARE(house.properties->getIndexByGuid(ut::UUID(L"9e49c1e9-cd41-4f37-b8f9-d676fe7ed217")), int(P::Length));
        QCOMPARE(house.properties->getValues(P::Type).join(' '),
                 QString("Line Polyline Circle Arc Ellipse Text Block Point Dimension Leader"));
        QStringList pinned;
        for (const ut::UUID& id : house.properties->getInitialPinnedProperties())
            pinned << house.properties->getName(house.properties->getIndexByGuid(id));
        QCOMPARE(pinned.join(' '), QString("Type Layer Colour Length"));
    }

    void everyKindOfValueIsThere()
    {
        FilterHouse house;
        std::set<QString> kinds;
        for (int row = 0; row < P::PropertyCount; ++row) {
            kinds.insert(house.properties->getValueType(row));
            QVERIFY(house.properties->getDefaultValue(row).isValid());
            QVERIFY(!house.properties->getName(row).isEmpty());
        }
        QCOMPARE(kinds.size(), std::size_t(10));
        QCOMPARE(house.properties->getValues(P::Visible), QStringList({"false", "true"}));
        QCOMPARE(house.properties->valueToString(P::TextAlignment, 1), QString("Centre"));
    }

    void pathsNameGroupsAndUnits()
    {
        FilterHouse house;
        QVERIFY(house.properties->isHierarchical());
        QCOMPARE(house.properties->getPath(P::Closed), QStringList({"Geometry", "Outline"}));
        QCOMPARE(house.properties->getFullPathName(P::Closed, true), QString("Geometry/Outline/Closed"));
        QCOMPARE(house.properties->getFullPathName(P::Transparency, true), QString("General/Transparency [%]"));
        QCOMPARE(house.properties->getFullPathName(P::Transparency, false), QString("General/Transparency"));
    }

    void suggestionsFollowTheDrawing()
    {
        FilterHouse house;
        QCOMPARE(house.properties->getValues(P::Layer), QStringList({"0", "Doors", "Walls"}));
        QCOMPARE(house.properties->getValues(P::BlockName), QStringList({"Door"})); // no space of the drawing
        QSignalSpy changes(house.properties.get(), &QAbstractItemModel::dataChanged);
        house.properties->refresh();
        QCOMPARE(changes.size(), 0);
        house.database->addLayer(L"attic");
        house.database->addLinetype(L"Dashed");
        house.properties->refresh();
        QCOMPARE(house.properties->getValues(P::Layer), QStringList({"0", "attic", "Doors", "Walls"}));
        QCOMPARE(house.properties->getDefaultValue(P::Linetype), QVariant(QStringList("ByBlock")));
        QCOMPARE(changes.size(), 2);
        QCOMPARE(changes[0][0].toModelIndex().row(), int(P::Layer));
        QCOMPARE(changes[1][1].toModelIndex().row(), int(P::Linetype));
        QVERIFY(house.database->rename(*house.block, L"Gate"));
        house.properties->refresh();
        QCOMPARE(house.properties->getValues(P::BlockName), QStringList({"Gate"}));
        QCOMPARE(changes.size(), 3);
    }

    void suggestionsFollowTheCurrentDocument()
    {
        FilterHouse house;
        house.openAnother();
        house.properties->refresh();
        QCOMPARE(house.properties->getValues(P::Layer), QStringList({"0"}));
        house.close();
        house.properties->refresh();
        QCOMPARE(house.properties->getValues(P::Layer), QStringList());
        QCOMPARE(house.properties->getDefaultValue(P::Layer), QVariant(QStringList("")));
        QCOMPARE(house.properties->getNrProperties(), int(P::PropertyCount));
    }

    void feetAndInchesHaveAUnit()
    {
        FilterHouse house;
        QCOMPARE(house.properties->getUnit(P::Length), QString());
        OdUnits units;
        units.linearKind = OdUnits::kArchitectural;
        house.database->formatter().setUnits(units);
        QSignalSpy changes(house.properties.get(), &QAbstractItemModel::dataChanged);
        house.properties->refresh();
        QCOMPARE(house.properties->getFullPathName(P::TextHeight, true), QString("Text/Text height [in]"));
        QCOMPARE(house.properties->getFullPathName(P::Area, true), QString::fromUtf8("Geometry/Outline/Area [in²]"));
        QCOMPARE(house.properties->getUnit(P::Vertices), QString());
        QCOMPARE(changes.size(), 4);
    }

    void aBadRowIsEmpty()
    {
        FilterHouse house;
        for (const int row : {-1, int(P::PropertyCount), 9999}) {
            const QVariantMap all = house.properties->get(row);
            QCOMPARE(all["name"].toString() + all["type"].toString() + all["unit"].toString(), QString());
            QCOMPARE(house.properties->getPath(row), QStringList());
            QCOMPARE(house.properties->getRegistryId(row), ut::UUID::s_cNil.toString());
            QVERIFY(!house.properties->getDefaultValue(row).isValid());
            QCOMPARE(house.properties->pipet(row)["success"], QVariant(false));
        }
    }

    void valuesArePickedFromTheSelectedEntity_data()
    {
        const auto row = velmtest::columns<int, QVariant>("property", "picked");
        row("a choice of several as a list", int(P::Type), QVariantList{2});
        row("a suggested text as a list", int(P::Layer), QStringList{"Doors"});
        row("a text as it is", int(P::LayerDescription), "Openings");
        row("a colour as its place among the standard ones", int(P::Color), QVariantList{2});
        row("a lineweight as its row", int(P::LineWeight), 2);
        row("a transparency in percent", int(P::Transparency), 30);
        row("a switch", int(P::Visible), true);
        row("a number", int(P::Radius), 2.0);
        row("no number that the entity hasn't", int(P::Vertices), QVariant());
        row("no text that the entity hasn't", int(P::BlockName), QVariant());
        row("no choice that the entity hasn't", int(P::TextAlignment), QVariant());
    }
    void valuesArePickedFromTheSelectedEntity()
    {
        QFETCH(int, property);
        QFETCH(QVariant, picked);
        FilterHouse house;
        house.doors->setDescription(L"Openings");
        house.circle->setColor(OdCmColor::fromIndex(1));
        house.circle->setLineWeight(50);
        house.circle->setTransparency(30);
        house.properties->setSelection(&house.selection);
        house.selection.set(house.circle->objectId());
        QVERIFY(house.properties->hasPipet());
        QVERIFY(house.properties->pipetEnabled());
        const QVariantMap result = house.properties->pipet(property);
        QCOMPARE(result["success"].toBool(), picked.isValid());
        QCOMPARE(result["value"], picked);
        if (picked.isValid())
            QCOMPARE(result["value"].typeId(), house.properties->getDefaultValue(property).typeId());
    }

    void nothingIsPickedWithoutOneEntity()
    {
        FilterHouse house;
        QVERIFY(!house.properties->pipetEnabled());
        house.properties->setSelection(&house.selection);
        QVERIFY(!house.properties->pipetEnabled());
        house.selection.set({house.circle->objectId(), house.wall->objectId()}, {});
        QVERIFY(!house.properties->pipetEnabled());
        QCOMPARE(house.properties->pipet(P::Type)["success"], QVariant(false));
        house.selection.set(house.circle->objectId());
        house.circle->erase();
        QVERIFY(!house.properties->pipetEnabled());
        QCOMPARE(house.properties->pipet(P::Type)["success"], QVariant(false));
    }

    void aPickedColourIsAddedToTheStandardOnes()
    {
        FilterHouse house;
        house.circle->setColor(OdCmColor::fromRGB(1, 2, 3));
        house.properties->setSelection(&house.selection);
        house.selection.set(house.circle->objectId());
        const QVariantMap result = house.properties->pipet(P::Color);
        QVERIFY(result["success"].toBool());
        const auto place = static_cast<std::size_t>(result["value"].toList().at(0).toInt());
        QVERIFY(standardColors(house.properties->getColorModel()).at(place) == OdCmColor::fromRGB(1, 2, 3));
        QCOMPARE(house.properties->valueToString(P::Color, result["value"]), QString("1,2,3"));
    }
};

QTEST_GUILESS_MAIN(EntityFilterPropertiesTest)
#include "tst_entityfilterproperties.moc"
