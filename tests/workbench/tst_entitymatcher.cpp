#include "filter/entitymatcher.h"
#include "filterhouse.h"
#include "od/oddbdimension.h"
#include "velm/bridge/conversions.h"

#include <QJSEngine>
#include <QtTest>

#include <cmath>
#include <map>
#include <numbers>

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
    void everyOperatorOfEveryKind_data();
    void everyOperatorOfEveryKind();
    void wildcardsAreForTheWholeText_data();
    void wildcardsAreForTheWholeText();
    void whatIsNoValueHoldsForNothing_data();
    void whatIsNoValueHoldsForNothing();
    void tagsHoldTogetherAndConjunctionsAreAlternatives();
    void valuesFromPagesAreUnderstood();
    void theDrawingIsReadWhenItIsTold();
    void withoutAHostColoursAndLineweightsHoldForNothing();
};

void EntityMatcherTest::everyOperatorOfEveryKind_data()
{
    QTest::addColumn<int>("property");
    QTest::addColumn<int>("operation");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("found");
    const auto add = [](const char* name, int property, int operation, const QVariant& value, const char* found) {
        QTest::newRow(name) << property << operation << value << QString(found);
    };
    add("type is one of several", P::Type, Op::Is, QVariantList{0, 9, 8}, "wall leader dimension");
    add("type is none of several", P::Type, Op::IsNot, QVariantList{0, 1, 2, 3, 5}, "insert leader point dimension");
    add("layer is, whatever the case", P::Layer, Op::Is, QStringList{"WALLS", "nowhere"}, "wall square");
    add("layer is none of several", P::Layer, Op::IsNot, QStringList{"0", "walls"}, "circle insert arc");
    add("layer contains", P::Layer, Op::Contains, QStringList{"OO", "hid"}, "circle insert arc");
    add("layer contains none", P::Layer, Op::DoesNotContain, QStringList{"o", "i"},
        "wall text square leader point dimension");
    add("layer matches", P::Layer, Op::Matches, QStringList{"*D*"}, "circle insert arc");
    add("layer matches none", P::Layer, Op::DoesNotMatch, QStringList{"*D*", "?"}, "wall square");
    add("description is", P::LayerDescription, Op::Is, "bearing", "wall square");
    add("description isn't", P::LayerDescription, Op::IsNot, "", "wall square");
    add("description contains", P::LayerDescription, Op::Contains, "EAR", "wall square");
    add("description doesn't contain", P::LayerDescription, Op::DoesNotContain, "ear",
        "circle insert text arc leader point dimension");
    add("colour is one's own", P::Color, Op::Is, QVariantList{2}, "square");
    add("colour isn't by layer", P::Color, Op::IsNot, QVariantList{0}, "square");
    add("linetype is by layer without one", P::Linetype, Op::Is, QStringList{"bylayer"},
        "wall circle insert text square leader point dimension");
    add("linetype is dashed", P::Linetype, Op::Is, QStringList{"dashed"}, "arc");
    add("lineweight is", P::LineWeight, Op::Is, 1, "wall");
    add("lineweight isn't", P::LineWeight, Op::IsNot, 0, "wall");
    add("transparency is above", P::Transparency, Op::Greater, 0, "wall");
    add("what is by layer is opaque", P::Transparency, Op::Equal, 0,
        "circle insert text square arc leader point dimension");
    add("visible is false", P::Visible, Op::Is, false, "arc");
    add("visible isn't false", P::Visible, Op::IsNot, false, "wall circle insert text square leader point dimension");
    add("length is equal", P::Length, Op::Equal, 5.0, "wall");
    add("length isn't equal, for what has one", P::Length, Op::NotEqual, 5.0, "circle square arc leader");
    add("length is greater", P::Length, Op::Greater, 5.0, "circle square arc");
    add("length is greater or equal", P::Length, Op::GreaterOrEqual, 5.0, "wall circle square arc");
    add("length is less", P::Length, Op::Less, 5.0, "leader");
    add("length is less or equal", P::Length, Op::LessOrEqual, 5.0, "wall leader");
    add("radius is that of circles and arcs", P::Radius, Op::Equal, 2.0, "circle arc");
    add("area is that of closed outlines", P::Area, Op::Equal, 9.0, "square");
    add("a sum in binary is equal to its decimal", P::TextHeight, Op::Equal, 0.3, "text");
    add("and not greater than it", P::TextHeight, Op::Greater, 0.3, "");
    add("vertices are counted", P::Vertices, Op::GreaterOrEqual, 3, "square leader");
    add("closed is true", P::Closed, Op::Is, true, "circle square");
    add("closed is false, for lines", P::Closed, Op::Is, false, "wall arc");
    add("what is no line isn't closed", P::Closed, Op::IsNot, true, "wall insert text arc leader point dimension");
    add("text is", P::TextContent, Op::Is, QStringList{"HALL"}, "text");
    add("what is no text has another", P::TextContent, Op::IsNot, QStringList{"Hall"},
        "wall circle insert square arc leader point dimension");
    add("what is no text has not an empty one", P::TextContent, Op::Contains, QStringList{""}, "text");
    add("alignment is", P::TextAlignment, Op::Is, 2, "text");
    add("block is", P::BlockName, Op::Is, QStringList{"door"}, "insert");
}

void EntityMatcherTest::everyOperatorOfEveryKind()
{
    QFETCH(int, property);
    QFETCH(int, operation);
    QFETCH(QVariant, value);
    QTEST(Fixture().found(property, operation, value), "found");
}

void EntityMatcherTest::wildcardsAreForTheWholeText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<bool>("matches");
    QTest::newRow("a text without wildcards") << "Hall"
                                              << "hALL" << true;
    QTest::newRow("only a part of the text") << "Hall"
                                             << "hal" << false;
    QTest::newRow("more than the text") << "Hall"
                                        << "halls" << false;
    QTest::newRow("a star for nothing") << "Hall"
                                        << "*ha*ll*" << true;
    QTest::newRow("a star that has to go back") << "abcabd"
                                                << "*ab?" << true;
    QTest::newRow("two stars that have to go back") << "aab-aab-aac"
                                                    << "*aab*aac" << true;
    QTest::newRow("a mark for exactly one") << "Hall"
                                            << "ha?" << false;
    QTest::newRow("marks only") << "Hall"
                                << "????" << true;
    QTest::newRow("an empty text and stars") << ""
                                             << "**" << true;
    QTest::newRow("an empty text and a mark") << ""
                                              << "?" << false;
    QTest::newRow("an empty pattern") << "Hall"
                                      << "" << false;
    QTest::newRow("line ends and slashes are characters") << "a/b\nc"
                                                          << "a*c" << true;
    QTest::newRow("brackets stand for themselves") << "[a].b"
                                                   << "[A]*" << true;
    QTest::newRow("a dot isn't any character") << "Hall"
                                               << "h.ll" << false;
    QTest::newRow("a character of two units") << QString::fromUtf8("x\U0001F600y") << "x?y" << true;
    QTest::newRow("many stars over a long text") << QString(5000, 'a') << QString("*a").repeated(20) + "b" << false;
}

void EntityMatcherTest::wildcardsAreForTheWholeText()
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

void EntityMatcherTest::whatIsNoValueHoldsForNothing_data()
{
    QTest::addColumn<int>("property");
    QTest::addColumn<int>("operation");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("a number that is none") << int(P::Length) << int(Op::NotEqual) << QVariant(std::nan(""));
    QTest::newRow("a number without end") << int(P::Length) << int(Op::Less) << QVariant(HUGE_VAL);
    QTest::newRow("a text for a number") << int(P::Length) << int(Op::Greater) << QVariant("1");
    QTest::newRow("no value") << int(P::Layer) << int(Op::IsNot) << QVariant();
    QTest::newRow("an empty list") << int(P::Layer) << int(Op::IsNot) << QVariant(QStringList());
    QTest::newRow("one text for a list") << int(P::Layer) << int(Op::Is) << QVariant("Walls");
    QTest::newRow("a list of numbers for one of texts") << int(P::Layer) << int(Op::IsNot) << QVariant(QVariantList{0});
    QTest::newRow("a number for a text") << int(P::LayerDescription) << int(Op::IsNot) << QVariant(1);
    QTest::newRow("a choice that isn't there") << int(P::Type) << int(Op::IsNot) << QVariant(QVariantList{10, -1});
    QTest::newRow("half a choice") << int(P::TextAlignment) << int(Op::IsNot) << QVariant(0.5);
    QTest::newRow("a colour that isn't there") << int(P::Color) << int(Op::IsNot) << QVariant(QVariantList{99});
    QTest::newRow("a lineweight that isn't there") << int(P::LineWeight) << int(Op::IsNot) << QVariant(3);
    QTest::newRow("a number for a switch") << int(P::Closed) << int(Op::IsNot) << QVariant(0);
    QTest::newRow("wildcards for a single text") << int(P::LayerDescription) << int(Op::DoesNotMatch) << QVariant("x");
    QTest::newRow("a comparison of texts") << int(P::Layer) << int(Op::NotEqual) << QVariant(QStringList{"x"});
    QTest::newRow("an unknown operator") << int(P::Length) << 12 << QVariant(1.0);
    QTest::newRow("a negative operator") << int(P::Length) << -1 << QVariant(1.0);
    QTest::newRow("an unknown property") << int(P::PropertyCount) << int(Op::Is) << QVariant(1.0);
    QTest::newRow("a property below none") << -2 << int(Op::Is) << QVariant(1.0);
}

void EntityMatcherTest::whatIsNoValueHoldsForNothing()
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

void EntityMatcherTest::tagsHoldTogetherAndConjunctionsAreAlternatives()
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

void EntityMatcherTest::valuesFromPagesAreUnderstood()
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

void EntityMatcherTest::theDrawingIsReadWhenItIsTold()
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

void EntityMatcherTest::withoutAHostColoursAndLineweightsHoldForNothing()
{
    House house;
    const P properties(std::make_shared<EntityFilterFactories>(house.documents));
    EntityMatcher matcher(properties);
    matcher.setDatabase(house.database);
    QVERIFY(matcher.matches({{{P::Color, Op::Is, QVariantList{0}}}}).empty());
    QVERIFY(matcher.matches({{{P::LineWeight, Op::IsNot, 0}}}).empty());
    QCOMPARE(matcher.matches({{{P::Type, Op::Is, QVariantList{0}}}}).size(), std::size_t(1));
}

QTEST_GUILESS_MAIN(EntityMatcherTest)
#include "tst_entitymatcher.moc"
