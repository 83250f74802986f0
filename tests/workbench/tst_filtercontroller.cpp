#include "filter/filtercontroller.h"
#include "filterhouse.h"

#include <QSignalSpy>
#include <QtTest>

using namespace workbench;
using P = EntityFilterProperties;
using Op = velm::FilterOperatorsModel;

namespace {
class Fixture : public FilterHouse
{
public:
    Fixture()
    {
        velm::IEntityFilterPropertiesModel::setCreateFunc(
            [](const velm::IEntityFilterPropertiesModel::Manager& manager) {
                return std::make_shared<P>(std::dynamic_pointer_cast<EntityFilterFactories>(manager));
            });
        filter = std::make_unique<FilterController>(documents, selection);
    }
    ~Fixture() { velm::IEntityFilterPropertiesModel::setCreateFunc({}); }

    velm::FilterTagsModel& tags() { return *filter->tags(); }
    void addLayer(int conjunction, const QString& layer)
    {
        tags().addTag(conjunction, P::Layer, Op::Is, QStringList{layer});
    }
    using Ids = std::vector<OdDbObjectId>;
    Ids ids(std::vector<const OdDbEntity*> entities) const
    {
        Ids result;
        for (const OdDbEntity* entity : entities)
            result.push_back(entity->objectId());
        return result;
    }
    const Ids& selected() const { return selection.entities(); }
    /// Whether anything is still to be found or selected.
    bool isPending() const
    {
        return std::ranges::any_of(filter->findChildren<QTimer*>(),
                                   [](const QTimer* timer) { return timer->isActive(); });
    }

    std::unique_ptr<FilterController> filter;
};
} // namespace

class TestFilterController : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatIsFoundIsToldAtOnceAndSelectedInThePause()
    {
        Fixture house;
        QVERIFY(house.filter->status().isEmpty());
        QVERIFY(!house.filter->canSelect());
        QSignalSpy found(house.filter.get(), &FilterController::matchesFound);
        // Looked at right behind the signal: when the test comes to it, the pause may be over.
        bool waits = false;
        const auto look = connect(
            house.filter.get(), &FilterController::matchesFound, house.filter.get(),
            [&] { waits = house.isPending() && house.selected().empty(); }, Qt::QueuedConnection);
        house.addLayer(0, "Doors");
        QVERIFY(house.filter->matches().empty());
        QTRY_COMPARE(found.size(), 1);
        QCOMPARE(house.filter->matches(), house.ids({house.circle, house.insert}));
        QCOMPARE(house.filter->status(), QString("2 entities match"));
        QTRY_COMPARE(house.selected(), house.ids({house.circle, house.insert}));
        QVERIFY(waits);
        disconnect(look);
        QCOMPARE(house.selection.current(), house.circle->objectId());

        house.tags().editTag(0, 0, P::Layer, Op::Is, QStringList{"Walls"});
        QTRY_COMPARE(house.selected(), house.ids({house.wall}));
        QCOMPARE(house.filter->status(), QString("1 entity matches"));
        house.selection.clear();
        house.filter->selectMatches();
        QCOMPARE(house.selected(), house.ids({house.wall}));
        house.tags().clear();
        QTRY_VERIFY(house.selected().empty());
        QVERIFY(house.filter->status().isEmpty());
    }

    void editsOfACopiedAlternativeCount()
    {
        Fixture house;
        house.addLayer(0, "Walls");
        house.tags().addConjunction();
        house.addLayer(1, "nothing");
        house.tags().duplicateConjunction(0);
        QTRY_COMPARE(house.filter->matches(), house.ids({house.wall}));
        // The tags themselves are silent about this edit.
        house.tags().editTag(1, 0, P::Layer, Op::Is, QStringList{"Doors"});
        QTRY_COMPARE(house.filter->matches(), house.ids({house.wall, house.circle, house.insert}));
    }

    void clearForgetsWhatWasFound()
    {
        Fixture house;
        house.tags().addConjunction();
        house.addLayer(1, "Doors");
        QTRY_COMPARE(house.selected().size(), std::size_t(2));
        // The first alternative has nothing to lose, so nothing is told of it.
        house.tags().clear();
        QTRY_VERIFY(!house.filter->canSelect());
        QTRY_VERIFY(house.selected().empty());
    }

    void aChangeThatFindsTheSameLeavesThePickedAlone()
    {
        Fixture house;
        house.addLayer(0, "Doors");
        QTRY_COMPARE(house.selected().size(), std::size_t(2));
        house.selection.set(house.wall->objectId());
        QSignalSpy counted(house.filter.get(), &FilterController::matchesChanged);
        house.tags().addConjunction();
        QTRY_COMPARE(counted.size(), 1);
        house.tags().clear();
        QTRY_COMPARE(counted.size(), 2);
        QVERIFY(!house.isPending());
        QCOMPARE(house.selected(), house.ids({house.wall}));
    }

    void aChangedDrawingIsCountedAnew()
    {
        Fixture house;
        house.addLayer(0, "Walls");
        QTRY_COMPARE(house.selected().size(), std::size_t(1));
        house.selection.clear();
        const OdDbLine* line = house.line(2.0, house.database->modelSpace(), house.walls);
        house.filter->refresh();
        QCOMPARE(house.filter->matches(), house.ids({house.wall, line}));
        QVERIFY(house.selected().empty());
    }

    void anotherDrawingSelectsNothing()
    {
        Fixture house;
        bool wasPending = false;
        connect(
            house.filter.get(), &FilterController::matchesFound, house.filter.get(),
            [&] {
                wasPending = house.isPending();
                house.openAnother();
            },
            Qt::QueuedConnection);
        house.addLayer(0, "Walls");
        QTRY_VERIFY(wasPending);
        QVERIFY(house.filter->matches().empty());
        QCOMPARE(house.filter->status(), QString("0 entities match"));
        QVERIFY(!house.isPending());
        QVERIFY(house.selected().empty());
    }
};

QTEST_GUILESS_MAIN(TestFilterController)

#include "tst_filtercontroller.moc"
