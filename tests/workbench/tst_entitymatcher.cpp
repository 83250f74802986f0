#include "filter/entitymatcher.h"
#include "filterhouse.h"
#include "od/oddbdimension.h"
#include "support/table.h"
#include "velm/bridge/conversions.h"

#include <QJSEngine>
#include <QRandomGenerator>
#include <QtTest>

#include <cmath>
#include <map>
#include <numbers>
#include <set>

using namespace workbench;
using P = EntityFilterProperties;
using Op = velm::FilterOperatorsModel;
using velm::FilterData;
using velm::FilterTagData;

namespace {
/// The house, with a red square wall, a hidden, dashed arc, a leader, a point and a dimension.
class Fixture : public FilterHouse
{
public:
    Fixture()
    {
        walls->setDescription(L"Bearing");
        wall->setLineWeight(25);
        wall->setTransparency(30);
        square = addTo<OdDbPolyline>(walls);
        for (const OdGePoint3d& corner : {OdGePoint3d{0, 0, 0}, {3, 0, 0}, {3, 3, 0}, {0, 3, 0}})
            square->vertices.push_back({corner, 0.0});
        square->closed = true;
        square->setColor(OdCmColor::fromIndex(1));
        OdDbLayerTableRecord* hidden = database->addLayer(L"Hidden");
        hidden->setIsOff(true);
        arc = addTo<OdDbArc>(hidden);
        arc->radius = 2.0;
        arc->endAngle = std::numbers::pi;
        arc->setLinetype(database->addLinetype(L"Dashed")->objectId());
        leader = addTo<OdDbLeader>(nullptr);
        leader->vertices = {{}, {1, 0, 0}, {2, 0, 0}};
        point = addTo<OdDbPoint>(nullptr);
        dimension = addTo<OdDbAlignedDimension>(nullptr);
        text->height = 0.1 + 0.2;
        text->horizontalMode = OdDbText::HorizontalMode::Right;
        matcher.setDatabase(database);
    }

    /// The entities that were found, by a word for each.
    QString found(const FilterData& filter)
    {
        const std::map<OdDbObjectId, QString> names = {
            {wall->objectId(), "wall"},     {circle->objectId(), "circle"}, {insert->objectId(), "insert"},
            {text->objectId(), "text"},     {square->objectId(), "square"}, {arc->objectId(), "arc"},
            {leader->objectId(), "leader"}, {point->objectId(), "point"},   {dimension->objectId(), "dimension"}};
        QStringList result;
        for (const OdDbObjectId& id : matcher.matches(filter))
            result << names.at(id);
        return result.join(' ');
    }
    QString found(int property, int operation, const QVariant& value)
    {
        return found({{{property, operation, value}}});
    }

    OdDbPolyline* square;
    OdDbArc* arc;
    OdDbLeader* leader;
    OdDbPoint* point;
    OdDbAlignedDimension* dimension;
    EntityMatcher matcher{*properties};
};
} // namespace

/// Which entities a filter finds.
class EntityMatcherTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyOperatorOfEveryKind_data()
    {
        const auto row = velmtest::columns<int, int, QVariant, QString>("property", "operation", "value", "found");
        row("type is one of several", P::Type, Op::Is, QVariantList{0, 9, 8}, "wall leader dimension");
        row("type is none of several", P::Type, Op::IsNot, QVariantList{0, 1, 2, 3, 5},
            "insert leader point dimension");
        row("layer is, whatever the case", P::Layer, Op::Is, QStringList{"WALLS", "nowhere"}, "wall square");
        row("layer is none of several", P::Layer, Op::IsNot, QStringList{"0", "walls"}, "circle insert arc");
        row("layer contains", P::Layer, Op::Contains, QStringList{"OO", "hid"}, "circle insert arc");
        row("layer contains none", P::Layer, Op::DoesNotContain, QStringList{"o", "i"},
            "wall text square leader point dimension");
        row("layer matches", P::Layer, Op::Matches, QStringList{"*D*"}, "circle insert arc");
        row("layer matches none", P::Layer, Op::DoesNotMatch, QStringList{"*D*", "?"}, "wall square");
        row("description is", P::LayerDescription, Op::Is, "bearing", "wall square");
        row("description isn't", P::LayerDescription, Op::IsNot, "", "wall square");
        row("description contains", P::LayerDescription, Op::Contains, "EAR", "wall square");
        row("description doesn't contain", P::LayerDescription, Op::DoesNotContain, "ear",
            "circle insert text arc leader point dimension");
        row("colour is one's own", P::Color, Op::Is, QVariantList{2}, "square");
        row("colour isn't by layer", P::Color, Op::IsNot, QVariantList{0}, "square");
        row("linetype is by layer without one", P::Linetype, Op::Is, QStringList{"bylayer"},
            "wall circle insert text square leader point dimension");
        row("linetype is dashed", P::Linetype, Op::Is, QStringList{"dashed"}, "arc");
        row("lineweight is", P::LineWeight, Op::Is, 1, "wall");
        row("lineweight isn't", P::LineWeight, Op::IsNot, 0, "wall");
        row("transparency is above", P::Transparency, Op::Greater, 0, "wall");
        row("what is by layer is opaque", P::Transparency, Op::Equal, 0,
            "circle insert text square arc leader point dimension");
        row("visible is false", P::Visible, Op::Is, false, "arc");
        row("visible isn't false", P::Visible, Op::IsNot, false,
            "wall circle insert text square leader point dimension");
        row("length is equal", P::Length, Op::Equal, 5.0, "wall");
        row("length isn't equal, for what has one", P::Length, Op::NotEqual, 5.0, "circle square arc leader");
        row("length is greater", P::Length, Op::Greater, 5.0, "circle square arc");
        row("length is greater or equal", P::Length, Op::GreaterOrEqual, 5.0, "wall circle square arc");
        row("length is less", P::Length, Op::Less, 5.0, "leader");
        row("length is less or equal", P::Length, Op::LessOrEqual, 5.0, "wall leader");
        row("radius is that of circles and arcs", P::Radius, Op::Equal, 2.0, "circle arc");
        row("area is that of closed outlines", P::Area, Op::Equal, 9.0, "square");
        row("a sum in binary is equal to its decimal", P::TextHeight, Op::Equal, 0.3, "text");
        row("and not greater than it", P::TextHeight, Op::Greater, 0.3, "");
        row("vertices are counted", P::Vertices, Op::GreaterOrEqual, 3, "square leader");
        row("closed is true", P::Closed, Op::Is, true, "circle square");
        row("closed is false, for lines", P::Closed, Op::Is, false, "wall arc");
        row("what is no line isn't closed", P::Closed, Op::IsNot, true, "wall insert text arc leader point dimension");
        row("text is", P::TextContent, Op::Is, QStringList{"HALL"}, "text");
        row("what is no text has another", P::TextContent, Op::IsNot, QStringList{"Hall"},
            "wall circle insert square arc leader point dimension");
        row("what is no text has not an empty one", P::TextContent, Op::Contains, QStringList{""}, "text");
        row("alignment is", P::TextAlignment, Op::Is, 2, "text");
        row("block is", P::BlockName, Op::Is, QStringList{"door"}, "insert");
    }
    void everyOperatorOfEveryKind()
    {
        QFETCH(int, property);
        QFETCH(int, operation);
        QFETCH(QVariant, value);
        QTEST(Fixture().found(property, operation, value), "found");
    }

    void wildcardsAreForTheWholeText_data()
    {
        const auto row = velmtest::columns<QString, QString, bool>("text", "pattern", "matches");
        row("a text without wildcards", "Hall", "hALL", true);
        row("only a part of the text", "Hall", "hal", false);
        row("more than the text", "Hall", "halls", false);
        row("a star for nothing", "Hall", "*ha*ll*", true);
        row("a star that has to go back", "abcabd", "*ab?", true);
        row("two stars that have to go back", "aab-aab-aac", "*aab*aac", true);
        row("a mark for exactly one", "Hall", "ha?", false);
        row("marks only", "Hall", "????", true);
        row("an empty text and stars", "", "**", true);
        row("an empty text and a mark", "", "?", false);
        row("an empty pattern", "Hall", "", false);
        row("line ends and slashes are characters", "a/b\nc", "a*c", true);
        row("brackets stand for themselves", "[a].b", "[A]*", true);
        row("a dot isn't any character", "Hall", "h.ll", false);
        row("a character of two units", "x\U0001F600y", "x?y", true);
        row("many stars over a long text", QString(5000, 'a'), QString("*a").repeated(20) + "b", false);
    }
    void wildcardsAreForTheWholeText()
    {
        QFETCH(QString, text);
        QFETCH(QString, pattern);
        QFETCH(bool, matches);
        Fixture house;
        house.text->textString = velm::odFromQt(text);
        house.matcher.setDatabase(house.database);
        QCOMPARE(house.found(P::TextContent, Op::Matches, QStringList{pattern}), QString(matches ? "text" : ""));
        QCOMPARE(house.found(P::TextContent, Op::DoesNotMatch, QStringList{pattern}).contains("text"), !matches);
    }

    void whatIsNoValueHoldsForNothing_data()
    {
        const auto row = velmtest::columns<int, int, QVariant>("property", "operation", "value");
        row("a number that is none", int(P::Length), int(Op::NotEqual), std::nan(""));
        row("a number without end", int(P::Length), int(Op::Less), HUGE_VAL);
        row("a text for a number", int(P::Length), int(Op::Greater), "1");
        row("no value", int(P::Layer), int(Op::IsNot), QVariant());
        row("an empty list", int(P::Layer), int(Op::IsNot), QStringList());
        row("one text for a list", int(P::Layer), int(Op::Is), "Walls");
        row("a list of numbers for one of texts", int(P::Layer), int(Op::IsNot), QVariantList{0});
        row("a number for a text", int(P::LayerDescription), int(Op::IsNot), 1);
        row("a choice that isn't there", int(P::Type), int(Op::IsNot), QVariantList{10, -1});
        row("half a choice", int(P::TextAlignment), int(Op::IsNot), 0.5);
        row("a colour that isn't there", int(P::Color), int(Op::IsNot), QVariantList{99});
        row("a lineweight that isn't there", int(P::LineWeight), int(Op::IsNot), 3);
        row("a number for a switch", int(P::Closed), int(Op::IsNot), 0);
        row("wildcards for a single text", int(P::LayerDescription), int(Op::DoesNotMatch), "x");
        row("a comparison of texts", int(P::Layer), int(Op::NotEqual), QStringList{"x"});
        row("an unknown operator", int(P::Length), 12, 1.0);
        row("a negative operator", int(P::Length), -1, 1.0);
        row("an unknown property", int(P::PropertyCount), int(Op::Is), 1.0);
        row("a property below none", -2, int(Op::Is), 1.0);
    }
    void whatIsNoValueHoldsForNothing()
    {
        QFETCH(int, property);
        QFETCH(int, operation);
        QFETCH(QVariant, value);
        Fixture house;
        QCOMPARE(house.found(property, operation, value), QString());
        // Neither does it with a tag that holds, while another conjunction still can.
        const FilterTagData tag{property, operation, value};
        const FilterTagData good{P::Type, Op::Is, QVariantList{0}};
        QCOMPARE(house.found({{good, tag}}), QString());
        QCOMPARE(house.found({{tag}, {good}}), QString("wall"));
    }

    void tagsHoldTogetherAndConjunctionsAreAlternatives()
    {
        Fixture house;
        const FilterTagData onWalls{P::Layer, Op::Is, QStringList{"Walls"}};
        const FilterTagData longer{P::Length, Op::Greater, 10.0};
        const FilterTagData red{P::Color, Op::Is, QVariantList{2}};
        const FilterTagData round{P::Radius, Op::Equal, 2.0};
        const FilterTagData none;
        QCOMPARE(house.found({{onWalls, longer}}), QString("square"));
        QCOMPARE(house.found({{longer, round}, {onWalls}}), QString("wall circle square")); // in the drawing's order
        QCOMPARE(house.found({{red}, {onWalls, longer}, {red}}), QString("square"));        // and each once
        QCOMPARE(house.found({{none, onWalls, none}}), QString("wall square"));
        QCOMPARE(house.found({{none}, {}, {round}}), QString("circle arc"));
        for (const FilterData& empty : {FilterData(), FilterData{{}}, FilterData{{none}, {none, none}}})
            QCOMPARE(house.found(empty), QString());
    }

    void conditionsAreCombinedOverManyEntities()
    {
        // Several blocks of what is looked at together, and a tenth of it erased.
        Fixture house;
        std::vector<OdDbObjectId> longOnes;
        for (int number = 0; number < 9000; ++number) {
            OdDbLine* line = house.line(number % 7, house.database->modelSpace(),
                                        number % 5 < 2 ? house.walls : house.doors);
            line->setColor(OdCmColor::fromIndex(number % 3 ? 256 : 1));
            line->setTransparency(number % 11 * 8);
            if (number % 10 == 4)
                line->erase();
            else if (number % 7 == 6)
                longOnes.push_back(line->objectId());
        }
        house.matcher.setDatabase(house.database);
        const std::vector<FilterTagData> tags = {{P::Layer, Op::Is, QStringList{"walls", "hidden"}},
                                                 {P::Layer, Op::DoesNotContain, QStringList{"oo"}},
                                                 {P::Length, Op::GreaterOrEqual, 4},
                                                 {P::Length, Op::NotEqual, 2.0},
                                                 {P::Color, Op::IsNot, QVariantList{2}},
                                                 {P::Transparency, Op::Less, 50},
                                                 {P::Visible, Op::Is, true},
                                                 {P::Type, Op::IsNot, QVariantList{0}},
                                                 {P::Closed, Op::Is, 1}, // a wrong kind, which holds for nothing
                                                 {}};
        std::vector<std::set<OdDbObjectId>> alone;
        for (const FilterTagData& tag : tags) {
            const auto found = house.matcher.matches({{tag}});
            alone.emplace_back(found.begin(), found.end());
        }
        QRandomGenerator random(7);
        for (int round = 0; round < 150; ++round) {
            FilterData filter(static_cast<std::size_t>(random.bounded(1, 4)));
            std::vector<OdDbObjectId> expected = house.matcher.records().ids();
            std::vector<std::vector<std::size_t>> chosen(filter.size());
            for (std::size_t place = 0; place < filter.size(); ++place)
                for (int count = random.bounded(4); count > 0; --count) {
                    const std::size_t tag = random.bounded(static_cast<quint32>(tags.size()));
                    filter[place].push_back(tags[tag]);
                    if (tag + 1 < tags.size()) // the last one has no property
                        chosen[place].push_back(tag);
                }
            std::erase_if(expected, [&](const OdDbObjectId& id) {
                return std::ranges::none_of(chosen, [&](const std::vector<std::size_t>& all) {
                    return !all.empty() &&
                           std::ranges::all_of(all, [&](std::size_t tag) { return alone[tag].contains(id); });
                });
            });
            QVERIFY2(house.matcher.matches(filter) == expected, qPrintable(QString::number(round)));
        }
        QCOMPARE(house.matcher.matches({{{P::Length, Op::Equal, 6.0}}}), longOnes);
    }

    void valuesFromPagesAreUnderstood()
    {
        Fixture house;
        QJSEngine engine;
        const auto evaluate = [&](const char* script) { return QVariant::fromValue(engine.evaluate(script)); };
        QCOMPARE(house.found(P::Type, Op::Is, evaluate("[0, 1]")), QString("wall square"));
        QCOMPARE(house.found(P::Layer, Op::Is, evaluate("['walls']")), QString("wall square"));
        QCOMPARE(house.found(P::Length, Op::Equal, 5), QString("wall"));
        QCOMPARE(house.found(P::TextAlignment, Op::Is, 2.0), QString("text"));
        QCOMPARE(house.found(P::Vertices, Op::Equal, 4.0), QString("square"));
    }

    void theDrawingIsReadWhenItIsTold()
    {
        Fixture house;
        const auto walls = [&] { return house.found(P::Layer, Op::Is, QStringList{"walls"}); };
        house.wall->erase();
        house.circle->setLayer(house.walls->objectId());
        QCOMPARE(walls(), QString("wall square"));
        house.matcher.setDatabase(house.database);
        QCOMPARE(walls(), QString("circle square"));
        QVERIFY(house.database->rename(*house.walls, L"Former"));
        house.matcher.setDatabase(house.database);
        QCOMPARE(walls(), QString());
        house.matcher.setDatabase(nullptr);
        QCOMPARE(house.found(P::Layer, Op::IsNot, QStringList{"x"}), QString());
    }

    void withoutAHostColoursAndLineweightsHoldForNothing()
    {
        House house;
        const P properties(std::make_shared<EntityFilterFactories>(house.documents));
        EntityMatcher matcher(properties);
        matcher.setDatabase(house.database);
        QVERIFY(matcher.matches({{{P::Color, Op::Is, QVariantList{0}}}}).empty());
        QVERIFY(matcher.matches({{{P::LineWeight, Op::IsNot, 0}}}).empty());
        QCOMPARE(matcher.matches({{{P::Type, Op::Is, QVariantList{0}}}}).size(), std::size_t(1));
    }
};

QTEST_GUILESS_MAIN(EntityMatcherTest)
#include "tst_entitymatcher.moc"
