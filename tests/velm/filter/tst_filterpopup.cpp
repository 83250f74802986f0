#include "velm/filter/filterpopupcontroller.h"

#include "fakeproperties.h"

#include "support/members.h"
#include "support/rowtext.h"
#include "support/signallog.h"
#include "support/table.h"
#include "velm/filter/examplefilterproperties.h"
#include "velm/filter/pinnedpropertiesmodel.h"
#include "velm/table/sortfilterselectmodel.h"

#include <QAbstractItemModelTester>
#include <QStringListModel>
#include <QTest>

using namespace velm;
using velmtest::FakeProperties;
using velmtest::rowText;
using velmtest::SignalLog;

namespace {
constexpr int isLeafRole = 257;
constexpr int propertyIndexRole = 258;
constexpr auto reporting = QAbstractItemModelTester::FailureReportingMode::QtTest;

const QAbstractItemModel* treeOf(const FilterPopupController& popup)
{
    return qobject_cast<const QAbstractItemModel*>(popup.getPropertiesTreeModel());
}

FakeProperties named(std::initializer_list<const char*> paths)
{
    std::vector<velmtest::FakeProperty> rows;
    for (const char* path : paths) {
        QStringList segments = QString::fromUtf8(path).split('/');
        const QString name = segments.takeLast();
        rows.push_back({name, "string", segments, {}, {}, {}});
    }
    return FakeProperties(rows);
}
} // namespace

class TestFilterPopup : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itShowsItselfToPages()
    {
        QCOMPARE(velmtest::members(FilterPopupController::staticMetaObject),
                 "signal: propertiesModelChanged() searchStringChanged() property: propertiesModel= "
                 "propertiesTreeModel! searchString= sortFilterSelectModel! pinnedPropertiesModel!");
        QObject parent;
        auto* popup = new FilterPopupController(&parent);
        QCOMPARE(popup->parent(), &parent);
        QVERIFY(!popup->getPropertiesModel() && !popup->getPropertiesTreeModel());
        QVERIFY(popup->getSortFilterSelectModel() && !popup->getSortFilterSelectModel()->sourceModel());
        QVERIFY(qobject_cast<PinnedPropertiesModel*>(popup->getPinnedPropertiesModel()));
        QCOMPARE(popup->getSearchString(), QString());
    }

    void theExamplesTree()
    {
        const auto example = ExampleFilterProperties::createExampleFilterProperties();
        FilterPopupController popup;
        popup.setPropertiesModel(example.get());
        QAbstractItemModelTester tester(const_cast<QAbstractItemModel*>(treeOf(popup)), reporting);
        QAbstractItemModelTester proxyTester(const_cast<QSortFilterProxyModel*>(popup.getSortFilterSelectModel()),
                                             reporting);
        const QAbstractItemModel& tree = *treeOf(popup);
        QCOMPARE(rowText(tree), "General(name name (multiple) type) Misc.(color lineweight transparency) "
                                "Several(Levels(Deep(boolean) integer [item(s)] parameter [inch]))");
        QCOMPARE(rowText(tree, propertyIndexRole), "-1(0 1 2) -1(3 4 5) -1(-1(-1(8) 7 6))");
        QCOMPARE(rowText(tree, isLeafRole), "false(true true true) false(true true true) "
                                            "false(false(false(true) true true))");
        QCOMPARE(tree.columnCount(), 1);
        QCOMPARE(tree.roleNames().value(isLeafRole), "isLeaf");
        QCOMPARE(tree.roleNames().value(propertyIndexRole), "propertyIndex");
        QVERIFY(!tree.index(0, 0).data(259).isValid());
        QCOMPARE(rowText(*popup.getSortFilterSelectModel()), rowText(tree));
    }

    void siblingsStandByTextWithCapitalsFirst()
    {
        const FakeProperties properties = named({"b", "a/z", "B", "\u00e4", "A/y", "c", "C/x", ""});
        FilterPopupController popup;
        popup.setPropertiesModel(&properties);
        QCOMPARE(rowText(*treeOf(popup)), QString::fromUtf8("- A(y) B C(x) a(z) b c \u00e4"));
    }

    void aGroupAndAPropertyOfOneTextAreOneRow()
    {
        const FakeProperties properties = named({"area/inner", "area", "b"});
        FilterPopupController popup;
        popup.setPropertiesModel(&properties);
        QCOMPARE(rowText(*treeOf(popup)), "area(inner) b");
        QCOMPARE(rowText(*treeOf(popup), propertyIndexRole), "1(0) 2");
        QCOMPARE(rowText(*treeOf(popup), isLeafRole), "false(true) true");
    }

    void ofTwoPropertiesOfOneTextTheLaterCounts()
    {
        FakeProperties properties = named({"g/a", "g/b", "g/a"});
        properties.append({"w", "real", {}, "mm", {}, {}});
        properties.append({"w [mm]", "real", {}, {}, {}, {}}); // the unit is part of the text
        FilterPopupController popup;
        popup.setPropertiesModel(&properties);
        QCOMPARE(rowText(*treeOf(popup)), "g(a b) w [mm]");
        QCOMPARE(rowText(*treeOf(popup), propertyIndexRole), "-1(2 1) 4");
    }

    void theTreeFollowsItsProperties()
    {
        FakeProperties properties = named({"g/a", "b"});
        FilterPopupController popup;
        popup.setPropertiesModel(&properties);
        QAbstractItemModelTester tester(const_cast<QAbstractItemModel*>(treeOf(popup)), reporting);
        SignalLog log(*treeOf(popup));
        const QString oneReset = "modelAboutToBeReset modelReset";
        properties.append({"c", "string", {"h"}, {}, {}, {}});
        QCOMPARE(log.take(), oneReset);
        QCOMPARE(rowText(*treeOf(popup)), "b g(a) h(c)");
        properties.remove(0);
        QCOMPARE(log.take(), oneReset);
        QCOMPARE(rowText(*treeOf(popup)), "b h(c)");
        QCOMPARE(rowText(*treeOf(popup), propertyIndexRole), "0 -1(1)");
        properties.change(0, {"b", "real", {}, "mm", {}, {}});
        QCOMPARE(log.take(), oneReset);
        QCOMPARE(rowText(*treeOf(popup)), "b [mm] h(c)");
        properties.reset({});
        QCOMPARE(log.take(), oneReset);
        QCOMPARE(rowText(*treeOf(popup)), "");
        properties.append({"d", "string", {}, {}, {}, {}});
        QCOMPARE(rowText(*treeOf(popup)), "d");
        QCOMPARE(rowText(*popup.getSortFilterSelectModel()), "d");
    }

    void aSearchKeepsWhatHoldsEveryTerm_data()
    {
        const auto row = velmtest::columns<QString, QString>("search", "shown");
        const QString all = "General(name name (multiple) type) Misc.(color lineweight transparency) "
                            "Several(Levels(Deep(boolean) integer [item(s)] parameter [inch]))";
        row("nothing", "", all);
        row("two blanks", "  ", all);
        row("a tab and a line feed", "\t\n", all);
        row("path and name together", "levels parameter", "Several(Levels(parameter [inch]))");
        row("in any order, whatever the blanks", " PARAMETER\t levels ", "Several(Levels(parameter [inch]))");
        row("the unit", "parameter inch", "Several(Levels(parameter [inch]))");
        row("a group's name alone shows all that is in it", "misc", "Misc.(color lineweight transparency)");
        row("a deep group", "deep", "Several(Levels(Deep(boolean)))");
        row("a part of a word", "olo", "Misc.(color)");
        row("in several groups", "a e n",
            "General(name name (multiple) type) Misc.(transparency) "
            "Several(Levels(Deep(boolean) integer [item(s)] parameter [inch]))");
        row("terms of two neighbours", "color lineweight", "");
        row("a term across a name's end", "genername", "");
        row("signs of patterns are letters", "(multiple", "General(name (multiple))");
        row("a sign that fits nothing", ".*", "");
        row("a term twice", "deep deep", "Several(Levels(Deep(boolean)))");
    }
    void aSearchKeepsWhatHoldsEveryTerm()
    {
        QFETCH(QString, search);
        QFETCH(QString, shown);
        const auto example = ExampleFilterProperties::createExampleFilterProperties();
        FilterPopupController popup;
        popup.setPropertiesModel(example.get());
        const QAbstractItemModel& proxy = *popup.getSortFilterSelectModel();
        rowText(proxy); // a view has mapped the rows before
        popup.setSearchString(search);
        QCOMPARE(popup.getSearchString(), search);
        QCOMPARE(rowText(proxy), shown);
        popup.setSearchString({});
        QCOMPARE(rowText(proxy), rowText(*treeOf(popup)));
    }

    void namesAreSearchedWithoutTheBlanksAroundThem()
    {
        const FakeProperties properties = named({" two words /  \u00c4pfel ", "/x", "Stra\u00dfe"});
        FilterPopupController popup;
        popup.setPropertiesModel(&properties);
        const QAbstractItemModel& proxy = *popup.getSortFilterSelectModel();
        popup.setSearchString(QString::fromUtf8("words \u00e4PF"));
        QCOMPARE(rowText(proxy, propertyIndexRole), "-1(0)");
        popup.setSearchString("x");
        QCOMPARE(rowText(proxy, propertyIndexRole), "-1(1)");
        popup.setSearchString(QString::fromUtf8("RA\u00df"));
        QCOMPARE(rowText(proxy, propertyIndexRole), "2");
    }

    void aPropertyThatIsAlsoAGroupIsSearchedAsAGroup()
    {
        const FakeProperties properties = named({"area/inner", "area"});
        FilterPopupController popup;
        popup.setPropertiesModel(&properties);
        popup.setSearchString("area");
        QCOMPARE(rowText(*popup.getSortFilterSelectModel()), "area(inner)");
    }

    void theSameSearchDoesNothing()
    {
        const auto example = ExampleFilterProperties::createExampleFilterProperties();
        FilterPopupController popup;
        popup.setPropertiesModel(example.get());
        const auto* proxy = static_cast<const SortFilterSelectModel*>(popup.getSortFilterSelectModel());
        SignalLog log(popup);
        SignalLog filterLog(*proxy->filter());
        popup.setSearchString("color");
        QCOMPARE(filterLog.take(), "invalidate");
        popup.setSearchString("color");
        QCOMPARE(filterLog.take(), QString());
        popup.setSearchString("color "); // another text of the same terms
        QCOMPARE(filterLog.take(), "invalidate");
        QCOMPARE(log.take(), QString()); // the text is the field's own
    }

    void aNewModelIsToldOnceAndKeepsTheSearch()
    {
        const FakeProperties first = named({"g/a", "g/b"});
        const FakeProperties second = named({"h/a", "h/c"});
        FilterPopupController popup;
        QStringList log;
        connect(&popup, &FilterPopupController::propertiesModelChanged, this, [&] {
            log += QString("propertiesModelChanged %1").arg(popup.getPropertiesTreeModel() ? "with tree" : "without");
        });
        connect(static_cast<const SortFilterSelectModel*>(popup.getSortFilterSelectModel()),
                &SortFilterSelectModel::filterChanged, this, [&] { log += "filterChanged"; });
        popup.setPropertiesModel(nullptr);
        QCOMPARE(log, QStringList());
        popup.setSearchString("a");
        popup.setPropertiesModel(&first);
        popup.setPropertiesModel(&first);
        QCOMPARE(log, QStringList({"propertiesModelChanged with tree", "filterChanged"}));
        QCOMPARE(popup.getPropertiesModel(), &first);
        QCOMPARE(rowText(*popup.getSortFilterSelectModel()), "g(a)");
        popup.setPropertiesModel(&second);
        QCOMPARE(rowText(*popup.getSortFilterSelectModel()), "h(a)");
        log.clear();
        QStringListModel other; // of another class: as good as none
        popup.setPropertiesModel(&other);
        QCOMPARE(log, QStringList({"propertiesModelChanged without", "filterChanged"}));
        QVERIFY(!popup.getPropertiesModel() && !popup.getSortFilterSelectModel()->sourceModel());
        popup.setPropertiesModel(nullptr);
        QCOMPARE(log.size(), 2);
        QVERIFY(popup.setProperty("propertiesModel", QVariant::fromValue<const QAbstractItemModel*>(&first)));
        QCOMPARE(rowText(*popup.getSortFilterSelectModel()), "g(a)");
    }

    void aModelThatDiesLeavesNothingBehind()
    {
        auto properties = std::make_unique<FakeProperties>();
        properties->append({"a", "string", {}, {}, {}, {}});
        FilterPopupController popup;
        popup.setPropertiesModel(properties.get());
        auto* pinned = static_cast<PinnedPropertiesModel*>(popup.getPinnedPropertiesModel());
        pinned->pinProperty(0);
        properties.reset();
        QVERIFY(!popup.getPropertiesModel());
        pinned->pinProperty(1);
        pinned->loadPinnedProperties();
        popup.setSearchString("a");
        SignalLog log(popup);
        popup.setPropertiesModel(nullptr);
        QCOMPARE(log.take(), "propertiesModelChanged");
        QVERIFY(!popup.getPropertiesTreeModel());
        QCOMPARE(rowText(*popup.getSortFilterSelectModel()), "");
    }

    void favouritesGoWithTheirPropertiesAndStayWithoutAny()
    {
        const FakeProperties first = named({"a", "b"});
        const FakeProperties second = named({"c"});
        FilterPopupController popup;
        popup.setPropertiesModel(&first);
        auto* pinned = static_cast<PinnedPropertiesModel*>(popup.getPinnedPropertiesModel());
        pinned->pinProperty(1);
        popup.setPropertiesModel(nullptr);
        QCOMPARE(rowText(*pinned, PinnedPropertiesModel::NameRole), "b");
        popup.setPropertiesModel(&first);
        QCOMPARE(rowText(*pinned, PinnedPropertiesModel::NameRole), "b");
        SignalLog log(*pinned);
        popup.setPropertiesModel(&second);
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset");
        QCOMPARE(pinned->rowCount(), 0);
        QVERIFY(!pinned->isPinned(1));
    }
};

QTEST_GUILESS_MAIN(TestFilterPopup)
#include "tst_filterpopup.moc"
