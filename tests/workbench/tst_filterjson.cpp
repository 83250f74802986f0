#include "filter/filterjson.h"

#include "filter/entityfilterproperties.h"
#include "od/odapdocmanager.h"
#include "support/fakefilterproperties.h"
#include "support/fakehost.h"
#include "support/scopes.h"
#include "support/table.h"
#include "velm/drawingprops/icolormodel.h"
#include "velm/filter/filteroperatorsmodel.h"

#include <QJsonDocument>
#include <QTest>

#include <limits>

using namespace velm;
using velmtest::FakeFilterProperties;
using velmtest::FakeFilterProperty;
using workbench::filterToJson;

namespace {
constexpr int is = FilterOperatorsModel::Is;

QString id(int number)
{
    return QString("00000000-0000-4000-8000-%1").arg(number, 12, 10, QChar('0'));
}

/// One property of each kind, in the order of the kinds.
std::vector<FakeFilterProperty> allKinds()
{
    std::vector<FakeFilterProperty> properties;
    for (int kind = 0; kind < 10; ++kind)
        properties.push_back(
            {id(kind), QString("P%1").arg(kind), filter::getValueTypeName(filter::EDefaultValueType(kind)), {}, {}});
    properties[4].values = QStringList{"Wall", "Window", "Door"};
    properties[5].values = properties[4].values;
    return properties;
}

/// A host with colours and the lineweights -3 -1 0 25 50.
struct Host
{
    velmtest::FakeGuiController gui;
    velmtest::FakeDialogFactory dialogs;
    std::vector<int> lineWeights{-3, -1, 0, 25, 50};
    velmtest::ScopedExternalFunctions scope{functions()};

    ExternalFunctions functions()
    {
        gui.lineWeights = [this] {
            std::vector<std::pair<int, OdString>> table;
            for (const int weight : lineWeights)
                table.emplace_back(weight, odFromQt(QString("%1 mm").arg(weight / 100.0)));
            return table;
        };
        gui.describe = [](const OdCmColor& color, wxColour, bool, int) {
            ColorDescription description{};
            description.name = wxFromQt(QString::number(color.color(), 16));
            return description;
        };
        ExternalFunctions result;
        result.guiController = [this] { return &gui; };
        result.dlgFactory = [this] { return &dialogs; };
        return result;
    }
};

QByteArray written(const FilterData& filter, const AbstractFilterPropertiesModel& properties)
{
    return QJsonDocument(filterToJson(filter, properties)).toJson();
}

FilterData read(const QByteArray& text, const AbstractFilterPropertiesModel& properties, QStringList& missing)
{
    const QJsonArray json = QJsonDocument::fromJson(text).array();
    return workbench::isFilterJson(json) ? workbench::filterFromJson(json, properties, missing) : FilterData();
}
} // namespace

class TestFilterJson : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aValueComesBackOnOtherRows_data()
    {
        const auto row = velmtest::columns<int, QVariant>("row", "value");
        row("a text of any characters", 0, QString::fromUtf8("\"Ä\\ 中\n\U0001F600\t") + QChar(0));
        row("an empty text", 0, QString());
        row("several texts, an empty one among them", 1, QStringList{"A*", "", "B"});
        row("no text at all", 1, QStringList());
        row("a real that has no short form", 2, 0.1 + 0.2);
        row("the largest real", 2, std::numeric_limits<double>::max());
        row("the smallest real", 2, std::numeric_limits<double>::denorm_min());
        row("a whole real", 2, -3.0);
        row("the smallest integer", 3, INT_MIN);
        row("the largest integer", 3, INT_MAX);
        row("a choice", 4, 2);
        row("several choices", 5, QVariantList{2, 0});
        row("no choice", 5, QVariantList());
        row("a boolean", 6, true);
        row("a special lineweight", 7, 1);
        row("a lineweight", 7, 3);
        row("several colours", 8, QVariantList{1, 0, 8});
        row("a transparency", 9, 90);
        row("no value", 3, QVariant());
        row("a value without a property", -1, QString("a"));
        row("nothing at all", -1, QVariant());
    }
    void aValueComesBackOnOtherRows()
    {
        QFETCH(int, row);
        QFETCH(QVariant, value);
        const Host host;
        const FakeFilterProperties properties(allKinds());
        std::vector<FakeFilterProperty> others = allKinds();
        std::reverse(others.begin(), others.end());
        const FakeFilterProperties elsewhere(others);
        QStringList missing;
        const FilterData filter = read(written({{{row, is, value}}}, properties), elsewhere, missing);
        QCOMPARE(missing, QStringList());
        QCOMPARE(filter, (FilterData{{{row < 0 ? row : 9 - row, is, value}}}));
        QCOMPARE(filter[0][0].value.typeId(), value.typeId());
    }

    void thePropertiesOfEntitiesComeBack()
    {
        const Host host;
        OdApDocManager documents;
        const workbench::EntityFilterProperties properties(
            std::make_shared<workbench::EntityFilterFactories>(documents));
        FilterData filter(1);
        for (int row = 0; row < properties.getNrProperties(); ++row)
            filter[0].push_back({row, properties.getDefaultOperation(row), properties.getDefaultValue(row)});
        QStringList missing;
        QCOMPARE(read(written(filter, properties), properties, missing), filter);
        QCOMPARE(missing, QStringList());
    }

    void theShapeOfAFilterAndItsOperatorsComeBack()
    {
        FilterData filter{{}, {}, {}};
        for (int operation = FilterOperatorsModel::Is; operation <= FilterOperatorsModel::LessOrEqual; ++operation)
            filter[1].push_back({operation % 2 - 1, operation, QString::number(operation)});
        const FakeFilterProperties texts({{id(0), "Name", "string", {}, {}}});
        QVERIFY2(written(filter, texts).contains("\"operator\": \"LessOrEqual\""), "a lasting word");
        QStringList missing;
        for (const FilterData& each : {filter, FilterData(), FilterData(1)})
            QCOMPARE(read(written(each, texts), texts, missing), each);
        QCOMPARE(missing, QStringList());
        // What is no operator or no row isn't stored as such.
        QCOMPARE(read(written({{{0, 99, "a"}, {7, is, "b"}, {-2, -1, "c"}}}, texts), texts, missing),
                 (FilterData{{{0, is, "a"}, {-1, is, "b"}, {-1, is, "c"}}}));
    }

    void aValueOfAWrongKindIsNoValue()
    {
        const Host host;
        const FakeFilterProperties properties(allKinds());
        FilterData filter(1);
        for (const int row : {2, 3, 4, 7, 9})
            filter[0].push_back({row, is, "no number"});
        for (const int choice : {-1, 5, INT_MAX}) {
            filter[0].push_back({4, is, choice});
            filter[0].push_back({7, is, choice});
        }
        filter[0].push_back({2, is, std::numeric_limits<double>::quiet_NaN()});
        QStringList missing;
        const FilterData back = read(written(filter, properties), properties, missing);
        QCOMPARE(back.at(0).size(), filter[0].size());
        for (const FilterTagData& tag : back[0])
            QVERIFY(!tag.value.isValid());
        // Of several choices the others stay.
        const QVariantList choices{-1, 1, 99, "x", 0};
        QCOMPARE(read(written({{{5, is, choices}, {8, is, choices}}}, properties), properties, missing),
                 (FilterData{{{5, is, QVariantList{1, 0}}, {8, is, QVariantList{1, 0}}}}));
        QCOMPARE(missing, QStringList());
    }

    void choicesMeanTheSameInAnotherLanguage()
    {
        std::vector<FakeFilterProperty> kinds = allKinds();
        const FakeFilterProperties english(kinds);
        const FilterData filter{{{4, is, 2}, {5, is, QVariantList{0, 2}}}};
        const QByteArray text = written(filter, english);
        kinds[4].values = kinds[5].values = QStringList{"Wand", "Fenster", "Tür"};
        const FakeFilterProperties german(kinds);
        QStringList missing;
        QCOMPARE(read(text, german, missing), filter);
        QCOMPARE(missing, QStringList());
        // An earlier file has the words alone.
        QByteArray earlier = QJsonDocument::fromJson(text).toJson(QJsonDocument::Compact);
        const auto replace = [&](int number, const char* word) {
            const QByteArray choice = QString(R"({"number":%1,"text":"%2"})").arg(number).arg(word).toUtf8();
            QVERIFY(earlier.contains(choice));
            earlier.replace(choice, QByteArray("\"") + word + '"');
        };
        replace(0, "Wall");
        replace(2, "Door");
        QCOMPARE(read(earlier, english, missing), filter);
        QCOMPARE(missing, QStringList());
        QCOMPARE(read(earlier, german, missing), FilterData());
        QCOMPARE(missing, (QStringList{"P4: Door", "P5: Wall", "P5: Door"}));
    }

    void choicesMeanTheSameWhereTheyHaveOtherPlaces()
    {
        auto host = std::make_unique<Host>();
        auto properties = std::make_unique<FakeFilterProperties>(allKinds());
        const OdCmColor picked = OdCmColor::fromRGB(1, 2, 3);
        IColorModel* colors = properties->getColorModel();
        colors->getOrAddColor(OdCmColor::fromIndex(77));
        const int number = colors->getOrAddColor(picked);
        const QByteArray text = written({{{7, is, 3}, {8, is, QVariantList{0, number}}}}, *properties);

        properties.reset();
        host = nullptr;
        host = std::make_unique<Host>();
        host->lineWeights = {0, 25};
        properties = std::make_unique<FakeFilterProperties>(allKinds());
        QStringList missing;
        const FilterData filter = read(text, *properties, missing);
        QCOMPARE(missing, QStringList());
        const int there = properties->getColorModel()->getOrAddColor(picked);
        QVERIFY(there != number);
        QCOMPARE(filter, (FilterData{{{7, is, 1}, {8, is, QVariantList{0, there}}}}));
    }

    void whatIsNotThereIsLeftOutAndNamedOnce()
    {
        auto host = std::make_unique<Host>();
        std::vector<FakeFilterProperty> kinds = allKinds();
        auto properties = std::make_unique<FakeFilterProperties>(kinds);
        const QByteArray text =
            written({{{0, is, "a"}, {3, is, 5}},
                     {{0, is, "b"}},
                     {},
                     {{4, is, 1}, {5, is, QVariantList{0, 1}}, {7, is, 4}, {7, is, 3}, {2, is, 1.5}},
                     {{5, is, QVariantList{1}}}},
                    *properties);

        host->lineWeights = {-3, 0, 25};
        kinds[0].id = id(77);
        kinds[4].values = kinds[5].values = QStringList{"Door"};
        kinds[2].type = "boolean";
        properties = std::make_unique<FakeFilterProperties>(kinds);
        QStringList missing;
        const FilterData filter = read(text, *properties, missing);
        QCOMPARE(missing, (QStringList{"P0", "P4: Window", "P5: Window", "P7: 0.5 mm", "P2: 1.5"}));
        // The second and the last conjunction had nothing else; the third was empty before.
        QCOMPARE(filter, (FilterData{{{3, is, 5}}, {}, {{5, is, QVariantList{0}}, {7, is, 2}}}));

        // A colour that the combo doesn't take, and one that is none.
        const QByteArray red = written({{{8, is, QVariantList{2}}}}, *properties);
        QVERIFY(red.contains("c3000001"));
        for (const QByteArray other : {"257", "0", "-1", "305419896", "1e20", "\"red\""}) {
            missing.clear();
            const QByteArray packed = "\"number\": " + QByteArray::number(0xc3000001U);
            QVERIFY(red.contains(packed));
            QCOMPARE(read(QByteArray(red).replace(packed, "\"number\": " + other), *properties, missing), FilterData());
            QCOMPARE(missing, QStringList("P8: c3000001"));
        }
        // Without a host there are no colours and no lineweights.
        properties.reset();
        host.reset();
        const FakeFilterProperties bare(allKinds());
        missing.clear();
        QCOMPARE(read(red, bare, missing), FilterData());
        read(text, bare, missing);
        QCOMPARE(missing, (QStringList{"P8: c3000001", "P7: 0.5 mm", "P7: 0.25 mm"}));
    }

    void aPropertyIsFoundByItsPathFirst()
    {
        const FakeFilterProperties twice(
            {{id(1), "Size", "integer", {"Left"}, {}}, {id(1), "Size", "integer", {"Right", "/"}, {}}});
        const QByteArray text = written({{{1, is, 4}}}, twice);
        QStringList missing;
        QCOMPARE(read(text, twice, missing), (FilterData{{{1, is, 4}}}));
        const FakeFilterProperties once({{id(1), "Size", "integer", {"Moved"}, {}}});
        QCOMPARE(read(text, once, missing), (FilterData{{{0, is, 4}}}));
        QCOMPARE(missing, QStringList());
        // The identity of all zeros, and what is none, names nothing.
        const FakeFilterProperties nameless({{"", "Size", "integer", {"Right", "/"}, {}}});
        QCOMPARE(read(QByteArray(text).replace(id(1).toLatin1(), "Size"), nameless, missing), FilterData());
        QCOMPARE(missing, QStringList("Size"));
    }
};

QTEST_GUILESS_MAIN(TestFilterJson)
#include "tst_filterjson.moc"
