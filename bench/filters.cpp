#include "bench/comparison.h"
#include "filter/entitymatcher.h"
#include "od/odapdocmanager.h"
#include "od/oddbdatabase.h"

#include <QRandomGenerator>

#include <algorithm>
#include <ctime>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velmbench {
namespace {
using P = workbench::EntityFilterProperties;
using Op = velm::FilterOperatorsModel;

/// Lines, circles and texts, in no order, on fifty layers.
class Drawing
{
public:
    explicit Drawing(int count)
    {
        for (int number = 0; number < 50; ++number)
            database.addLayer(L"Layer " + std::to_wstring(number))->setIsOff(number % 10 == 9);
        database.addLinetype(L"Dashed");
        database.addLinetype(L"Dash and dot");
        m_layers = database.layers();
        m_linetypes = database.linetypes();
        for (int number = 0; number < count; ++number)
            addEntity();
        matcher.setDatabase(&database);
    }

    OdDbDatabase database;
    OdApDocManager documents;
    P properties{std::make_shared<workbench::EntityFilterFactories>(documents)};
    workbench::EntityMatcher matcher{properties};

private:
    std::unique_ptr<OdDbEntity> makeEntity()
    {
        const int chance = m_random.bounded(10);
        if (chance < 4) {
            auto line = std::make_unique<OdDbLine>();
            line->endPoint.x = m_random.bounded(20.0);
            return line;
        }
        if (chance < 7) {
            auto circle = std::make_unique<OdDbCircle>();
            circle->radius = m_random.bounded(10.0);
            return circle;
        }
        auto text = std::make_unique<OdDbText>();
        text->textString = L"Room " + std::to_wstring(m_random.bounded(10'000));
        text->height = m_random.bounded(5.0);
        text->horizontalMode = static_cast<OdDbText::HorizontalMode>(m_random.bounded(3));
        return text;
    }

    void addEntity()
    {
        std::unique_ptr<OdDbEntity> entity = makeEntity();
        const auto layers = static_cast<int>(m_layers.size());
        entity->setLayer(m_layers[static_cast<std::size_t>(m_random.bounded(layers))]->objectId());
        const auto linetypes = static_cast<int>(m_linetypes.size());
        entity->setLinetype(m_linetypes[static_cast<std::size_t>(m_random.bounded(linetypes))]->objectId());
        entity->setTransparency(m_random.bounded(91));
        database.addEntity(std::move(entity), database.modelSpace());
    }

    QRandomGenerator m_random{1};
    std::vector<OdDbLayerTableRecord*> m_layers;
    std::vector<OdDbLinetypeTableRecord*> m_linetypes;
};

const Drawing& drawing(int count)
{
    static std::map<int, std::unique_ptr<Drawing>> drawings;
    std::unique_ptr<Drawing>& result = drawings[count];
    if (!result)
        result = std::make_unique<Drawing>(count);
    return *result;
}

const velm::FilterData filter = {{{P::Type, Op::Is, QVariantList{0}},
                                  {P::Layer, Op::Is, QStringList{"Layer 3", "layer 5", "Layer 9"}},
                                  {P::Length, Op::Greater, 10.0},
                                  {P::Visible, Op::Is, true}},
                                 {{P::TextContent, Op::Matches, QStringList{"room *1?"}},
                                  {P::TextHeight, Op::GreaterOrEqual, 2.5},
                                  {P::Layer, Op::IsNot, QStringList{"Layer 7"}},
                                  {P::TextAlignment, Op::IsNot, 2}},
                                 {{P::Radius, Op::LessOrEqual, 5.0},
                                  {P::Linetype, Op::Contains, QStringList{"dash"}},
                                  {P::Transparency, Op::Less, 50},
                                  {P::Closed, Op::Is, true}}};

/// By code, whether the predicate holds for the value; `without` for an entity that has none.
template <typename Value, typename Predicate>
std::vector<char> decided(const std::vector<Value>& values, bool without, Predicate predicate)
{
    std::vector<char> result{without};
    for (const Value& value : values)
        result.push_back(predicate(value));
    return result;
}

/// The same filter as one writes it down who knows the records.
std::vector<OdDbObjectId> byHand(const workbench::EntityRecords& records)
{
    const auto codeOf = [&](P::Property property, int choice) {
        const std::vector<int>& choices = records.choices(property);
        return static_cast<int>(std::ranges::find(choices, choice) - choices.begin()) + 1;
    };
    const int line = codeOf(P::Type, 0);
    const int visible = codeOf(P::Visible, 1);
    const int right = codeOf(P::TextAlignment, 2);
    const int closed = codeOf(P::Closed, 1);
    const auto isWantedLayer = decided(records.foldedTexts(P::Layer), false, [](const QString& name) {
        return name == QLatin1String("layer 3") || name == QLatin1String("layer 5") || name == QLatin1String("layer 9");
    });
    const auto isOtherLayer = decided(records.foldedTexts(P::Layer), true,
                                      [](const QString& name) { return name != QLatin1String("layer 7"); });
    const auto isWantedText = decided(records.foldedTexts(P::TextContent), false, [](const QString& text) {
        return text.size() > 6 && text.startsWith(QLatin1String("room ")) && text[text.size() - 2] == u'1';
    });
    const auto isDashed = decided(records.foldedTexts(P::Linetype), false,
                                  [](const QString& name) { return name.contains(QLatin1String("dash")); });
    const int* types = records.codes(P::Type).data();
    const int* layers = records.codes(P::Layer).data();
    const int* visibles = records.codes(P::Visible).data();
    const int* texts = records.codes(P::TextContent).data();
    const int* alignments = records.codes(P::TextAlignment).data();
    const int* linetypes = records.codes(P::Linetype).data();
    const int* closednesses = records.codes(P::Closed).data();
    const double* lengths = records.numbers(P::Length).data();
    const double* heights = records.numbers(P::TextHeight).data();
    const double* radii = records.numbers(P::Radius).data();
    const double* transparencies = records.numbers(P::Transparency).data();
    std::vector<OdDbObjectId> result;
    for (std::size_t row = 0; row < records.ids().size(); ++row)
        if ((types[row] == line && isWantedLayer[layers[row]] && lengths[row] > 10.0 && visibles[row] == visible) ||
            (isWantedText[texts[row]] && heights[row] >= 2.5 && isOtherLayer[layers[row]] &&
             alignments[row] != right) ||
            (radii[row] <= 5.0 && isDashed[linetypes[row]] && transparencies[row] < 50.0 &&
             closednesses[row] == closed))
            result.push_back(records.ids()[row]);
    return result;
}

template <typename Find>
void measure(benchmark::State& state, int count, Find find)
{
    const Drawing& searched = drawing(count);
    std::vector<OdDbObjectId> found;
    for (auto _ : state)
        found = find(searched);
    const auto size = static_cast<int>(found.size());
    verify(size > count / 50 && size < count / 2, "a filter that tells entities apart");
    verify(found == byHand(searched.matcher.records()), "filtering entities");
}

void filterOurs(benchmark::State& state, int count)
{
    measure(state, count, [](const Drawing& searched) { return searched.matcher.matches(filter); });
}

/// A sixtieth of a second.
void takeAFrame(benchmark::State& state)
{
    for (auto _ : state) {
        const std::clock_t end = std::clock() + CLOCKS_PER_SEC / 60;
        while (std::clock() < end)
            ;
    }
}
} // namespace

void addFilters()
{
    constexpr int million = 1'000'000;
    compare(
        "filter: a million entities, by hand", [](benchmark::State& state) { filterOurs(state, million); },
        [](benchmark::State& state) {
            measure(state, million, [](const Drawing& searched) { return byHand(searched.matcher.records()); });
        });
    compare(
        "filter: 100,000 entities, one frame", [](benchmark::State& state) { filterOurs(state, 100'000); }, takeAFrame);
}
} // namespace velmbench
