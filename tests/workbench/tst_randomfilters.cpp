#include "filter/entitymatcher.h"
#include "filter/standardcolors.h"
#include "filterhouse.h"
#include "velm/bridge/conversions.h"
#include "velm/filter/valuetypes.h"

#include <QRandomGenerator>
#include <QtTest>

#include <cmath>
#include <limits>
#include <map>
#include <numbers>

using namespace workbench;
using P = EntityFilterProperties;
using Op = velm::FilterOperatorsModel;
using velm::FilterData;
using velm::FilterTagData;

namespace {
// How one would write it who needs no speed.

QStringList texts(const QVariant& value)
{
    QStringList result;
    if (value.typeId() == QMetaType::QStringList || value.typeId() == QMetaType::QVariantList)
        for (const QVariant& item : value.toList())
            if (item.typeId() == QMetaType::QString)
                result << item.toString();
    return result;
}

std::vector<int> indexes(const QVariantList& items, int count)
{
    std::vector<int> result;
    for (const QVariant& item : items)
        if (item.typeId() == QMetaType::Int && item.toInt() >= 0 && item.toInt() < count)
            result.push_back(item.toInt());
    return result;
}

bool matches(QStringView text, QStringView pattern)
{
    if (pattern.isEmpty())
        return text.isEmpty();
    if (pattern[0] == u'*')
        return matches(text, pattern.mid(1)) || (!text.isEmpty() && matches(text.mid(1), pattern));
    return !text.isEmpty() && (pattern[0] == u'?' || pattern[0].toCaseFolded() == text[0].toCaseFolded()) &&
           matches(text.mid(1), pattern.mid(1));
}

bool holdsForText(const QString& text, int operation, const QString& wanted)
{
    if (operation == Op::Contains || operation == Op::DoesNotContain)
        return text.contains(wanted, Qt::CaseInsensitive);
    if (operation == Op::Is || operation == Op::IsNot)
        return text.compare(wanted, Qt::CaseInsensitive) == 0;
    return matches(text, wanted);
}

bool holdsForNumber(const QVariant& fact, int operation, const QVariant& wanted)
{
    if ((wanted.typeId() != QMetaType::Int && wanted.typeId() != QMetaType::Double) || std::isnan(wanted.toDouble()))
        return false;
    if (!fact.isValid())
        return false;
    const double difference = fact.toDouble() - wanted.toDouble();
    const bool isEqual = std::abs(difference) < 1e-7;
    switch (operation) {
    case Op::Equal:
        return isEqual;
    case Op::NotEqual:
        return !isEqual;
    case Op::Greater:
        return difference > 0 && !isEqual;
    case Op::GreaterOrEqual:
        return difference > 0 || isEqual;
    case Op::Less:
        return difference < 0 && !isEqual;
    default:
        return difference < 0 || isEqual;
    }
}

/// `fact` is what the entity has: a text, a number or an index; invalid for nothing.
bool holds(const P& properties, const QVariant& fact, const FilterTagData& tag)
{
    using Kind = velm::filter::EDefaultValueType;
    const auto operators = Op::getOperatorsForCategory(properties.getOperatorCategoryType(tag.propertyIndex));
    if (std::ranges::find(operators, tag.operation) == operators.end())
        return false;
    const bool isNegative =
        tag.operation == Op::IsNot || tag.operation == Op::DoesNotContain || tag.operation == Op::DoesNotMatch;
    const Kind kind = P::valueType(static_cast<P::Property>(tag.propertyIndex));
    if (kind == Kind::String || kind == Kind::StringMultiple) {
        QStringList wanted = texts(tag.value);
        if (kind == Kind::String)
            wanted = tag.value.typeId() == QMetaType::QString ? QStringList(tag.value.toString()) : QStringList();
        const bool isOne = fact.isValid() && std::ranges::any_of(wanted, [&](const QString& item) {
                               return holdsForText(fact.toString(), tag.operation, item);
                           });
        return !wanted.isEmpty() && isOne != isNegative;
    }
    if (kind == Kind::Real || kind == Kind::Integer || kind == Kind::Transparency)
        return holdsForNumber(fact, tag.operation, tag.value);
    std::vector<int> wanted;
    if (kind == Kind::Boolean && tag.value.typeId() == QMetaType::Bool)
        wanted = {tag.value.toBool()};
    else if (kind == Kind::Enum)
        wanted = indexes({tag.value}, 3);
    else if (kind == Kind::LineWeight)
        wanted = indexes({tag.value}, 3);
    else if (kind != Kind::Boolean && tag.value.typeId() == QMetaType::QVariantList)
        wanted = indexes(tag.value.toList(),
                         kind == Kind::Color ? int(standardColors(properties.getColorModel()).size()) : 10);
    const bool isOne = fact.isValid() && std::ranges::find(wanted, fact.toInt()) != wanted.end();
    return !wanted.empty() && isOne != isNegative;
}

/// A large drawing of random entities, with what filters should know about each.
class RandomDrawing : public FilterHouse
{
public:
    using Facts = std::map<int, QVariant>;

    RandomDrawing()
    {
        dashed = database->addLinetype(L"Dashed")->objectId();
        OdDbLayerTableRecord* frozen = database->addLayer(L"Frozen");
        frozen->setIsFrozen(true);
        frozen->setDescription(L"Kept");
        layers = {walls, doors, frozen};
        entities.reserve(4500);
        while (entities.size() < 4500)
            addEntity();
    }

    /// One of the values, by chance.
    template <typename Value>
    Value one(std::initializer_list<Value> values)
    {
        return values.begin()[random.bounded(static_cast<int>(values.size()))];
    }

    QVariant randomValue(int property)
    {
        using Kind = velm::filter::EDefaultValueType;
        if (random.bounded(20) == 0)
            return one<QVariant>({QVariant(), std::nan(""), "Walls", 1, true, QVariantList(), QVariantList{99, -1},
                                  QVariantList{"wa*", 1}, QStringList(), std::numeric_limits<double>::infinity()});
        switch (P::valueType(static_cast<P::Property>(property))) {
        case Kind::String:
            return one<QVariant>({"", "KEPT", "ep", "Kept?"});
        case Kind::StringMultiple:
            return one<QVariant>({QStringList{"walls", "note 3"}, QStringList{"*"}, QStringList{"N*T?\n*7", "d?o*"},
                                  QStringList{"dashed"}, QStringList{"o"}, QStringList{""}});
        case Kind::Boolean:
            return one<QVariant>({true, false});
        case Kind::Enum:
        case Kind::LineWeight:
            return random.bounded(4);
        case Kind::EnumMultiple:
        case Kind::Color:
            return one<QVariant>({QVariantList{0, 2}, QVariantList{1}, QVariantList{5, 6, 99}, QVariantList{3, 3}});
        default:
            return one<QVariant>({0, 1.5, 3, 4.0, 30, -2.0});
        }
    }

    FilterData randomFilter()
    {
        FilterData filter(static_cast<std::size_t>(random.bounded(1, 4)));
        for (std::vector<FilterTagData>& tags : filter) {
            tags.resize(static_cast<std::size_t>(one({0, 1, 1, 1, 2, 3})));
            for (FilterTagData& tag : tags) {
                tag.propertyIndex = random.bounded(-1, int(P::PropertyCount));
                const auto operators = Op::getOperatorsForCategory(
                    random.bounded(20) ? properties->getOperatorCategoryType(tag.propertyIndex) : Op::All);
                tag.operation = operators[static_cast<std::size_t>(random.bounded(static_cast<int>(operators.size())))];
                tag.value = randomValue(std::max(0, tag.propertyIndex)); // one without a property has any value
            }
        }
        return filter;
    }

    std::vector<OdDbObjectId> expected(const FilterData& filter) const
    {
        std::vector<OdDbObjectId> result;
        for (const auto& [entity, facts] : entities)
            if (isExpected(filter, facts))
                result.push_back(entity->objectId());
        return result;
    }

private:
    bool isExpected(const FilterData& filter, const Facts& facts) const
    {
        for (const std::vector<FilterTagData>& tags : filter) {
            bool isEmpty = true;
            bool all = true;
            for (const FilterTagData& tag : tags) {
                if (tag.propertyIndex == -1)
                    continue;
                isEmpty = false;
                const auto fact = facts.find(tag.propertyIndex);
                all = all && holds(*properties, fact == facts.end() ? QVariant() : fact->second, tag);
            }
            if (all && !isEmpty)
                return true;
        }
        return false;
    }

    OdDbEntity* make(Facts& facts)
    {
        const double number = one({1.5, 3.0, 4.0});
        switch (random.bounded(5)) {
        case 0: {
            auto* line = addTo<OdDbLine>(nullptr);
            line->endPoint.x = number;
            facts = {{P::Type, 0}, {P::Length, number}, {P::Closed, false}};
            return line;
        }
        case 1: {
            auto* circle = addTo<OdDbCircle>(nullptr);
            circle->radius = number;
            facts = {{P::Type, 2},
                     {P::Radius, number},
                     {P::Length, 2 * std::numbers::pi * number},
                     {P::Area, std::numbers::pi * number * number},
                     {P::Closed, true}};
            return circle;
        }
        case 2: {
            auto* text = addTo<OdDbText>(nullptr);
            const QString content = one<QString>({"Note 3", "NOTE\n17", "", "dxo", "Stra\u00DFe"});
            text->textString = velm::odFromQt(content);
            text->height = number;
            text->horizontalMode = OdDbText::HorizontalMode::Center;
            facts = {{P::Type, 5}, {P::TextContent, content}, {P::TextHeight, number}, {P::TextAlignment, 1}};
            return text;
        }
        case 3: {
            auto* polyline = addTo<OdDbPolyline>(nullptr);
            polyline->vertices = {{{0, 0, 0}, 0.0}, {{number, 0, 0}, 0.0}, {{2 * number, 0, 0}, 0.0}};
            facts = {{P::Type, 1}, {P::Length, 2 * number}, {P::Vertices, 3}, {P::Closed, false}};
            return polyline;
        }
        default: {
            auto* insert = addTo<OdDbBlockReference>(nullptr);
            insert->blockTableRecord = block->objectId();
            facts = {{P::Type, 6}, {P::BlockName, "Door"}};
            return insert;
        }
        }
    }

    void addEntity()
    {
        Facts facts;
        OdDbEntity* entity = make(facts);
        OdDbLayerTableRecord* layer = layers[static_cast<std::size_t>(random.bounded(3))];
        entity->setLayer(layer->objectId());
        facts[P::Layer] = velm::toQt(layer->getName());
        facts[P::LayerDescription] = layer == layers[2] ? "Kept" : "";
        facts[P::Visible] = layer != layers[2];
        const int weight = random.bounded(3);
        entity->setLineWeight(weight == 0 ? -1 : weight * 25);
        facts[P::LineWeight] = weight;
        const auto colors = standardColors(properties->getColorModel());
        const int color = random.bounded(4);
        entity->setColor(colors[static_cast<std::size_t>(color)]);
        facts[P::Color] = color;
        const bool isDashed = random.bounded(2) != 0;
        entity->setLinetype(isDashed ? dashed : OdDbObjectId::kNull);
        facts[P::Linetype] = isDashed ? "Dashed" : "ByLayer";
        entity->setTransparency(one({-2, -1, 0, 30}));
        facts[P::Transparency] = std::max(0, entity->transparency());
        if (random.bounded(10) == 0)
            entity->erase();
        else
            entities.emplace_back(entity, std::move(facts));
    }

    QRandomGenerator random{7};
    OdDbObjectId dashed;
    std::vector<OdDbLayerTableRecord*> layers;
    std::vector<std::pair<OdDbEntity*, Facts>> entities;
};
} // namespace

/// Random filters over a large drawing find what a plain evaluation finds.
class RandomFiltersTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void allAreFoundThatASlowerWayFinds();
};

void RandomFiltersTest::allAreFoundThatASlowerWayFinds()
{
    RandomDrawing house;
    // The house's own are in the way.
    for (OdDbEntity* entity : std::initializer_list<OdDbEntity*>{house.wall, house.circle, house.insert, house.text})
        entity->erase();
    EntityMatcher matcher(*house.properties);
    matcher.setDatabase(house.database);
    int partial = 0;
    for (int round = 0; round < 150; ++round) {
        const FilterData filter = house.randomFilter();
        const std::vector<OdDbObjectId> found = matcher.matches(filter);
        if (found != house.expected(filter)) {
            for (const auto& tags : filter)
                for (const FilterTagData& tag : tags)
                    qWarning() << house.properties->getName(tag.propertyIndex) << tag.operation << tag.value;
            QFAIL("other entities were expected");
        }
        partial += !found.empty() && found.size() < matcher.records().ids().size();
    }
    QVERIFY2(partial > 50, qPrintable(QString::number(partial))); // these filters tell entities apart
}

QTEST_GUILESS_MAIN(RandomFiltersTest)
#include "tst_randomfilters.moc"
