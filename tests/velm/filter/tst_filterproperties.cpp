#include "velm/filter/abstractfilterpropertiesmodel.h"

#include "fakeproperties.h"
#include "filterhost.h"

#include "support/members.h"
#include "support/rowmirror.h"
#include "support/table.h"
#include "support/vtableslots.h"
#include "velm/drawingprops/icolormodel.h"
#include "velm/drawingprops/ilineweightmodel.h"
#include "velm/filter/examplefilterproperties.h"
#include "velm/filter/ientityfilterpropertiesmodel.h"

#include <QJSEngine>
#include <QTest>

using namespace velm;
using velmtest::FakeProperties;
using velmtest::typed;

namespace {
/// What a host must supply, and no more.
class BareProperties : public AbstractFilterPropertiesModel
{
public:
    int getNrProperties() const override { return 1; }
    QString getName(int index) const override { return QString::number(index); }
    QString getValueType(int) const override { return type; }

    QString type = "boolean";
};

/// With an editor of its own for integers, and one for a kind of its own.
class OwnEditors : public FakeProperties
{
public:
    using FakeProperties::FakeProperties;
    using FakeProperties::getCustomComponentUrl;

protected:
    ComponentUrlWithSettings getCustomComponentUrl(QString type) const override
    {
        if (type == "integer" || type == "angle")
            return {QUrl("qrc:/" + type), 7};
        return {QUrl(), "settings without a component"};
    }
};

class EntityProperties : public IEntityFilterPropertiesModel
{
public:
    explicit EntityProperties(const char* by) : madeBy(by) {}

    int getNrProperties() const override { return 0; }
    QString getName(int) const override { return {}; }
    QString getValueType(int) const override { return {}; }
    oc::PropertyFilterFactoriesManager* getPropertyFilterFactoriesManager() const override { return nullptr; }
    void hostFilterAction1() override {}
    void hostFilterAction2() override {}
    void hostFilterAction3() override {}
    void hostFilterAction4() override {}

    QString madeBy;
};

QString madeBy()
{
    const auto model = IEntityFilterPropertiesModel::create({});
    return model ? static_cast<const EntityProperties&>(*model).madeBy : QString("nobody");
}

IEntityFilterPropertiesModel::CreateFunc maker(const char* name)
{
    return [name](const IEntityFilterPropertiesModel::Manager&) { return std::make_shared<EntityProperties>(name); };
}
} // namespace

class TestFilterProperties : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itShowsItselfToPages()
    {
        QCOMPARE(velmtest::members(AbstractFilterPropertiesModel::staticMetaObject),
                 "slot: get(int) get(int,int) indexOf(QString) indexOf(int,QString) "
                 "method: getValues(int) getModel(int) getName(int) getValueType(int) getDefaultOperation(int) "
                 "getDefaultValue(int) getUnit(int) getComponentUrl(int) getFullPathName(int,bool) "
                 "valueToString(int,QVariant,bool,bool) valueToString(int,QVariant,bool) valueToString(int,QVariant) "
                 "pipetEnabled() pipet(int) property: isHierarchical! hasPipet!");
        const FakeProperties model;
        QCOMPARE(model.roleNames(), (QHash<int, QByteArray>{{257, "name"},
                                                            {258, "fullPathName"},
                                                            {259, "type"},
                                                            {260, "values"},
                                                            {261, "valueModel"},
                                                            {262, "componentUrl"},
                                                            {263, "unit"}}));
    }

    void aHostNeedSupplyOnlyThreeOperations()
    {
        BareProperties model;
        QCOMPARE(model.getUnit(0), QString());
        QCOMPARE(model.getPath(0), QStringList());
        QCOMPARE(model.getFullPathName(0, true), QString());
        QVERIFY(model.getRegistryId(0) == OdString(L"00000000-0000-0000-0000-000000000000"));
        QVERIFY(model.getRegistrySubCategory().isEmpty());
        QVERIFY(!model.isHierarchical());
        QCOMPARE(model.getIndexByGuid(ut::UUID::s_cNil), -1);
        QCOMPARE(model.getIndexByGuidAndPath(ut::UUID::s_cNil, {}), -1);
        QVERIFY(model.getInitialPinnedProperties().empty());
        QVERIFY(!model.hasPipet() && !model.pipetEnabled());
        QCOMPARE(model.pipet(0), (QVariantMap{{"success", false}, {"value", QVariant()}}));
        QCOMPARE(model.getValues(0), QStringList({"false", "true"}));
        model.type = "enum";
        QCOMPARE(model.getValues(0), QStringList());
    }

    void theKindTellsTheBeginningOfATag_data()
    {
        // Category, operator and value.
        const auto row = velmtest::columns<QString>("expected");
        row("string", "1 0 QString ");
        row("stringMultiple", "8 0 QStringList first");
        row("real", "2 2 double 0");
        row("integer", "2 2 int 0");
        row("enum", "4 0 int 0");
        row("enumMultiple", "4 0 QVariantList 0");
        row("boolean", "4 0 bool false");
        row("lineWeight", "4 0 int 0");
        row("color", "4 0 QVariantList 0");
        row("transparency", "2 2 int 0");
        row("String", "0 0 nothing");
    }
    void theKindTellsTheBeginningOfATag()
    {
        QFETCH(QString, expected);
        const FakeProperties model = {{"p", QTest::currentDataTag(), {}, {}, {"first", "second"}, {}}};
        QCOMPARE(QString("%1 %2 %3")
                     .arg(model.getOperatorCategoryType(0))
                     .arg(model.getDefaultOperation(0))
                     .arg(typed(model.getDefaultValue(0))),
                 expected);
    }

    void severalTextsWithoutSuggestionsBeginEmpty()
    {
        const FakeProperties model = {{"p", "stringMultiple", {}, {}, {}, {}}};
        QCOMPARE(model.getDefaultValue(0), QStringList{QString()});
    }

    void eachRoleReadsItsOperation()
    {
        const FakeProperties model = {{"p", "enum", {"G"}, "mm", {"a", "b"}, {}}};
        QAbstractItemModelTester tester(const_cast<FakeProperties*>(&model),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QStringList texts;
        for (int role = 256; role <= 264; ++role)
            texts += typed(model.index(0, 0).data(role));
        QCOMPARE(texts.join(", "), "nothing, QString p, QString G/p{mm}, QString enum, QStringList a/b, nothing, "
                                   "velm::ComponentUrlWithSettings , QString mm, nothing");
        const QVariantMap all = model.get(0);
        QCOMPARE(all.size(), 7);
        QCOMPARE(all["fullPathName"], "G/p{mm}");
        QVERIFY(all["componentUrl"].value<ComponentUrlWithSettings>().url.path().endsWith("EnumValue.qml"));
        // A row that isn't there has all roles, too: the model answers for it, or not.
        QCOMPARE(model.get(-1).size(), 7);
        QCOMPARE(model.get(INT_MAX)["name"], QString());
    }

    void valuesAreFoundByNumberAndByText()
    {
        const FakeProperties model = {{"a", "string", {}, {}, {}, {}},
                                      {"", "string", {}, {}, {}, {}},
                                      {"b", "enum", {}, {}, {"x", "", "y", "y"}, {}},
                                      {"b", "boolean", {}, {}, {}, {}}};
        QCOMPARE(model.get(2, 2), "y");
        QCOMPARE(model.get(3, 0), "false");
        for (const int bad : {-1, 4, 99, INT_MAX, INT_MIN}) {
            QCOMPARE(model.get(2, bad), QString());
            QCOMPARE(model.get(bad, 0), QString());
            QCOMPARE(model.indexOf(bad, "x"), 0);
        }
        QCOMPARE(model.indexOf("b"), 2);
        QCOMPARE(model.indexOf(2, "y"), 2);
        QCOMPARE(model.indexOf(3, "true"), 1);
        // What isn't there reads as the first.
        QCOMPARE(model.indexOf("B"), 0);
        QCOMPARE(model.indexOf("missing"), 0);
        QCOMPARE(model.indexOf(QString()), 0);
        QCOMPARE(model.indexOf(2, "missing"), 0);
        QCOMPARE(model.indexOf(2, QString()), 0);
    }

    void aHostMayBringItsOwnEditors()
    {
        const OwnEditors model = {
            {"a", "integer", {}, {}, {}, {}}, {"b", "angle", {}, {}, {}, {}}, {"c", "real", {}, {}, {}, {}}};
        QCOMPARE(model.getComponentUrl(0).url, QUrl("qrc:/integer"));
        QCOMPARE(model.getComponentUrl(0).settings, 7);
        QCOMPARE(model.getComponentUrl(1).url, QUrl("qrc:/angle"));
        QCOMPARE(model.getComponentUrl(2).url, filter::defaultComponentUrl("real"));
        QVERIFY(!model.getComponentUrl(2).settings.isValid());
    }

    void coloursAndLineweightsHaveTheHostsModels()
    {
        const velmtest::FilterHost host;
        FakeProperties model = {
            {"c", "color", {}, {}, {}, {}}, {"w", "lineWeight", {}, {}, {}, {}}, {"e", "enum", {}, {}, {}, {}}};
        QVERIFY(model.getColorModel() && model.getLineWeightModel());
        QCOMPARE(model.getModel(0).value<IColorModel*>(), model.getColorModel());
        QCOMPARE(model.getModel(0).typeName(), "velm::IColorModel*");
        QCOMPARE(model.getModel(1).value<ILineWeightModel*>(), model.getLineWeightModel());
        QCOMPARE(model.getModel(1).typeName(), "velm::ILineWeightModel*");
        QVERIFY(!model.getModel(2).isValid());
        QVERIFY(model.getColorModel()->hasFlag(1) && model.getColorModel()->hasFlag(2));
        QVERIFY(!model.getColorModel()->hasFlag(4) && !model.getColorModel()->hasFlag(8));
        QCOMPARE(model.getLineWeightModel()->rowCount(), 5); // all of the special ones
        QCOMPARE(QJSEngine::objectOwnership(model.getColorModel()), QJSEngine::CppOwnership);
        QCOMPARE(QJSEngine::objectOwnership(model.getLineWeightModel()), QJSEngine::CppOwnership);
    }

    void withoutAWholeHostThereAreNoModels()
    {
        velmtest::FakeGuiController gui;
        velmtest::FakeDialogFactory dialogs;
        for (const bool hasGui : {false, true}) {
            ExternalFunctions functions;
            if (hasGui)
                functions.guiController = [&gui] { return &gui; };
            else
                functions.dlgFactory = [&dialogs] { return &dialogs; };
            const velmtest::ScopedExternalFunctions scope(functions);
            FakeProperties model = {{"c", "color", {}, {}, {}, {}}, {"w", "lineWeight", {}, {}, {}, {}}};
            QVERIFY(!model.getColorModel() && !model.getLineWeightModel());
            QVERIFY(model.getModel(0).isValid() && !model.getModel(0).value<IColorModel*>());
            QVERIFY(model.getModel(1).isValid() && !model.getModel(1).value<ILineWeightModel*>());
        }
    }

    void theExample()
    {
        const auto model = ExampleFilterProperties::createExampleFilterProperties();
        QAbstractItemModelTester tester(model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QStringList rows;
        for (int row = 0; row < model->rowCount(); ++row)
            rows += QStringList{model->getName(row), model->getPath(row).join('>'), model->getValueType(row),
                                model->getValues(row).join('/'), model->getUnit(row)}
                        .join(',');
        QCOMPARE(rows, QStringList({"name,General,string,,", "name (multiple),General,stringMultiple,,",
                                    "type,General,enum,Wall/Window/Door/Beam,", "color,Misc.,color,,",
                                    "lineweight,Misc.,lineWeight,,", "transparency,Misc.,transparency,,",
                                    "parameter,Several>Levels,real,,inch", "integer,Several>Levels,integer,,item(s)",
                                    "boolean,Several>Levels>Deep,boolean,false/true,"}));
        QVERIFY(model->property("isHierarchical").toBool());
        QVERIFY(!model->property("hasPipet").toBool());
        QCOMPARE(model->index(6, 0).data(AbstractFilterPropertiesModel::FullPathNameRole), QString());
        QCOMPARE(model->indexOf(2, "Door"), 2);
        QCOMPARE(model->get(0, 99), QString());
        for (const int bad : {-1, 9, INT_MAX}) {
            QVERIFY_THROWS_EXCEPTION(std::out_of_range, model->getName(bad));
            QVERIFY_THROWS_EXCEPTION(std::out_of_range, model->getPath(bad));
        }
    }

    void theFirstFactoryOfEntitysPropertiesWins()
    {
        QCOMPARE(madeBy(), "nobody");
        IEntityFilterPropertiesModel::setCreateFunc(maker("first"));
        IEntityFilterPropertiesModel::setCreateFunc(maker("second"));
        QCOMPARE(madeBy(), "first");
        IEntityFilterPropertiesModel::setCreateFunc({});
        QCOMPARE(madeBy(), "nobody");
        IEntityFilterPropertiesModel::setCreateFunc(maker("second"));
        QCOMPARE(madeBy(), "second");
        IEntityFilterPropertiesModel::setCreateFunc({});
    }

    void theOperationsKeepTheirSlots()
    {
#ifdef VELM_READS_VTABLES
        using velmtest::slotOf;
        using M = AbstractFilterPropertiesModel;
        struct Open : M
        {
            using M::getCustomComponentUrl;
        };
        const QList<std::ptrdiff_t> places = {slotOf(&M::getNrProperties),
                                              slotOf(&M::getValues),
                                              slotOf(&M::getName),
                                              slotOf(&M::getValueType),
                                              slotOf(&M::getOperatorCategoryType),
                                              slotOf(&M::getDefaultOperation),
                                              slotOf(&M::getDefaultValue),
                                              slotOf(&M::getUnit),
                                              slotOf(&M::getPath),
                                              slotOf(&M::getFullPathName),
                                              slotOf(&M::getRegistryId),
                                              slotOf(&M::getRegistrySubCategory),
                                              slotOf(&M::isHierarchical),
                                              slotOf(&M::getIndexByGuid),
                                              slotOf(&M::getInitialPinnedProperties),
                                              slotOf(&M::getIndexByGuidAndPath),
                                              slotOf(&M::valueToString),
                                              slotOf(&M::hasPipet),
                                              slotOf(&M::pipetEnabled),
                                              slotOf(&M::pipet),
                                              slotOf(&Open::getCustomComponentUrl),
                                              slotOf(&IEntityFilterPropertiesModel::getPropertyFilterFactoriesManager),
                                              slotOf(&IEntityFilterPropertiesModel::hostFilterAction1),
                                              slotOf(&IEntityFilterPropertiesModel::hostFilterAction2),
                                              slotOf(&IEntityFilterPropertiesModel::hostFilterAction3),
                                              slotOf(&IEntityFilterPropertiesModel::hostFilterAction4)};
        QCOMPARE(places, velmtest::slotsFrom(places.first(), places.size()));
        QVERIFY(places.first() > slotOf(&QAbstractItemModel::multiData));
#else
        QSKIP("only read where the tables are laid out so");
#endif
    }
};

QTEST_GUILESS_MAIN(TestFilterProperties)
#include "tst_filterproperties.moc"
