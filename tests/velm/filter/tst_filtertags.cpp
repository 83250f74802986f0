#include "velm/filter/filtertagsmodel.h"

#include "fakeproperties.h"

#include "support/changescript.h"
#include "support/members.h"
#include "support/rowmirror.h"
#include "support/signallog.h"
#include "velm/filter/filtertagformatter.h"
#include "velm/filter/filtertagsconjunctionmodel.h"

#include <QJSEngine>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <climits>

using namespace velm;
using velmtest::FakeProperties;
using velmtest::SignalLog;

namespace {
constexpr int badIndexes[] = {-1, -2, INT_MIN, INT_MAX};

/// Three texts.
const FakeProperties& properties()
{
    static const FakeProperties result = {
        {"p", "string", {}, {}, {}, {}}, {"q", "string", {}, {}, {}, {}}, {"r", "string", {}, {}, {}, {}}};
    return result;
}

/// The values alone, a bracket for each conjunction: "[a b] []".
QString text(const FilterTagsModel& model)
{
    QStringList conjunctions;
    for (const std::vector<FilterTagData>& tags : model.getFilter()) {
        QStringList values;
        for (const FilterTagData& tag : tags)
            values += tag.value.toString();
        conjunctions += '[' + values.join(' ') + ']';
    }
    return conjunctions.join(' ');
}

/// Tags of the first property, from the form that text() gives.
FilterData filterOf(const QString& form)
{
    FilterData result;
    for (const QString& conjunction : form.split(']', Qt::SkipEmptyParts)) {
        result.emplace_back();
        for (const QString& value : QString(conjunction).remove('[').split(' ', Qt::SkipEmptyParts))
            result.back().push_back({0, 0, value});
    }
    return result;
}

struct Fixture
{
    FilterTagsModel model{properties(), nullptr};
    velmtest::RowMirror mirror{model};
    SignalLog log{model};

    explicit Fixture(const QString& form = "[]")
    {
        model.setFilter(filterOf(form));
        log.take();
    }

    FilterTagsConjunctionModel* conjunction(int row) const
    {
        return model.index(row, 0).data(0).value<FilterTagsConjunctionModel*>();
    }
};
} // namespace

class TestFilterTags : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itShowsItselfToPages()
    {
        QCOMPARE(velmtest::members(FilterTagsModel::staticMetaObject),
                 "signal: filtersChanged() slot: addConjunction() removeConjunction(int) duplicateConjunction(int) "
                 "addTag(int,int,int,QVariant) editTag(int,int,int,int,QVariant) removeTag(int,int) removeTags(int) "
                 "clear() get(int,int) method: getDefaultConjunctionIndex()");
        Fixture f;
        QCOMPARE(f.model.roleNames(), (QHash<int, QByteArray>{{0, "conjunctionModel"}}));
        QCOMPARE(f.model.index(0, 0).data(0).typeName(), "velm::FilterTagsConjunctionModel*");
        QCOMPARE(QJSEngine::objectOwnership(f.conjunction(0)), QJSEngine::CppOwnership);
        QVERIFY(!f.model.index(0, 0).data(1).isValid());
        QVERIFY(!f.model.data(QModelIndex(), 0).isValid());
        QCOMPARE(f.model.rowCount(f.model.index(0, 0)), 1);
        QCOMPARE(f.model.getDefaultConjunctionIndex(), 0);
        QVERIFY(!f.model.parent() || f.model.QObject::parent() == nullptr);
    }

    void aNewFilterIsOneEmptyConjunction()
    {
        Fixture f;
        QCOMPARE(text(f.model), "[]");
        f.model.setFilter({});
        f.model.setFilter({{}});
        f.model.removeConjunction(0);
        f.model.clear();
        f.model.removeTags(0);
        QCOMPARE(f.log.take(), QString());
        QCOMPARE(text(f.model), "[]");
    }

    void anEditIsToldOnceByItsConjunction()
    {
        Fixture f;
        f.model.addTag(0, 1, 0, "a");
        QCOMPARE(f.log.take(), "filtersChanged");
        f.model.editTag(0, 0, 1, 0, "b");
        QCOMPARE(f.log.take(), "filtersChanged");
        f.model.editTag(0, 0, 1, 0, "b");
        QCOMPARE(f.log.take(), QString());
        f.conjunction(0)->addTag(2, 0, "c");
        QCOMPARE(f.log.take(), "filtersChanged");
        f.model.removeTag(0, 0);
        QCOMPARE(f.log.take(), "filtersChanged");
        QCOMPARE(text(f.model), "[c]");
        f.model.removeTags(0);
        QCOMPARE(f.log.take(), "filtersChanged");
        QCOMPARE(text(f.model), "[]");
    }

    void conjunctionsAreAddedBehind()
    {
        Fixture f("[a]");
        f.model.addConjunction();
        QCOMPARE(f.log.take(), "rowsAboutToBeInserted(-, 1, 1) rowsInserted(-, 1, 1) filtersChanged");
        f.model.addTag(1, 0, 0, "b");
        QCOMPARE(f.log.take(), "filtersChanged");
        QCOMPARE(text(f.model), "[a] [b]");
        QVERIFY(f.mirror.isRight());
    }

    void theOnlyConjunctionIsEmptiedAndToldTwice()
    {
        Fixture f("[a b]");
        const QPointer<FilterTagsConjunctionModel> conjunction = f.conjunction(0);
        f.model.removeConjunction(0);
        QCOMPARE(f.log.take(), "filtersChanged filtersChanged");
        QCOMPARE(text(f.model), "[]");
        QCOMPARE(f.conjunction(0), conjunction.data());
    }

    void oneOfSeveralConjunctionsGoes()
    {
        Fixture f("[a][b][c]");
        const QPointer<FilterTagsConjunctionModel> gone = f.conjunction(1);
        f.model.removeConjunction(1);
        QCOMPARE(f.log.take(), "rowsAboutToBeRemoved(-, 1, 1) rowsRemoved(-, 1, 1) filtersChanged");
        QVERIFY(!gone);
        QCOMPARE(text(f.model), "[a] [c]");
        QVERIFY(f.mirror.isRight());
    }

    void aCopyOfTheLastConjunctionTellsItsEdits()
    {
        Fixture f("[a][b]");
        f.model.duplicateConjunction(1);
        QCOMPARE(f.log.take(), "rowsAboutToBeInserted(-, 2, 2) rowsInserted(-, 2, 2) filtersChanged");
        QCOMPARE(text(f.model), "[a] [b] [b]");
        f.model.addTag(2, 0, 0, "c");
        f.model.addTag(1, 0, 0, "d");
        QCOMPARE(f.log.take(), "filtersChanged filtersChanged");
        QCOMPARE(text(f.model), "[a] [b d] [b c]");
        QVERIFY(f.mirror.isRight());
    }

    void aCopyInTheMiddleIsSilentAndTheLastTellsItsEditsTwice()
    {
        Fixture f("[a][b]");
        f.model.duplicateConjunction(0);
        QCOMPARE(f.log.take(), "rowsAboutToBeInserted(-, 1, 1) rowsInserted(-, 1, 1) filtersChanged");
        f.model.addTag(1, 0, 0, "c");
        f.model.editTag(1, 0, 0, 0, "x");
        f.model.removeTags(1);
        QCOMPARE(f.log.take(), QString());
        f.model.addTag(2, 0, 0, "d");
        QCOMPARE(f.log.take(), "filtersChanged filtersChanged");
        f.model.addTag(0, 0, 0, "e");
        QCOMPARE(f.log.take(), "filtersChanged");
        f.model.duplicateConjunction(0);
        f.log.take();
        f.model.addTag(3, 0, 0, "f");
        QCOMPARE(f.log.take(), "filtersChanged filtersChanged filtersChanged");
        QCOMPARE(text(f.model), "[a e] [a e] [] [b d f]");
    }

    void clearingLeavesOneConjunction()
    {
        Fixture f("[a][b][c]");
        const QPointer<FilterTagsConjunctionModel> first = f.conjunction(0);
        f.model.clear();
        QCOMPARE(f.log.take(), "rowsAboutToBeRemoved(-, 1, 2) rowsRemoved(-, 1, 2) filtersChanged");
        QCOMPARE(text(f.model), "[]");
        QCOMPARE(f.conjunction(0), first.data());
        QVERIFY(f.mirror.isRight());
    }

    void clearingIsNotToldWhenTheFirstConjunctionIsEmpty()
    {
        Fixture f("[][b]");
        f.model.clear();
        QCOMPARE(f.log.take(), "rowsAboutToBeRemoved(-, 1, 1) rowsRemoved(-, 1, 1)");
        QCOMPARE(text(f.model), "[]");
    }

    void aWholeFilterIsOneReset()
    {
        Fixture f("[a]");
        const QPointer<FilterTagsConjunctionModel> former = f.conjunction(0);
        bool livesAtTheReset = false;
        connect(&f.model, &QAbstractItemModel::modelReset, this, [&] { livesAtTheReset = former; });
        f.model.setFilter(filterOf("[x y][]"));
        QCOMPARE(f.log.take(), "modelAboutToBeReset modelReset filtersChanged");
        QVERIFY(livesAtTheReset && !former);
        QCOMPARE(text(f.model), "[x y] []");
        f.model.setFilter(filterOf("[x y][]"));
        QCOMPARE(f.log.take(), QString());
        f.model.setFilter({});
        QCOMPARE(f.log.take(), "modelAboutToBeReset modelReset filtersChanged");
        QCOMPARE(text(f.model), "[]");
        for (int row = 0; row < 2; ++row) { // the conjunctions of a whole filter are connected, each once
            f.model.setFilter(filterOf("[x][y]"));
            f.log.take();
            f.model.addTag(row, 0, 0, "z");
            QCOMPARE(f.log.take(), "filtersChanged");
        }
        f.model.setFilter({});
        f.log.take();
        f.model.addTag(0, 0, 0, "z");
        QCOMPARE(f.log.take(), "filtersChanged");
        QVERIFY(f.mirror.isRight());
    }

    void aWholeFilterIsTakenWithoutAPropertyOrRefusedWithAWrongOne()
    {
        Fixture f("[a]");
        for (const int bad : {-2, 3, INT_MIN, INT_MAX}) {
            f.model.setFilter({{{0, 0, "x"}}, {{0, 0, "y"}, {bad, 0, "z"}}});
            QCOMPARE(f.log.take(), QString());
            QCOMPARE(text(f.model), "[a]");
        }
        f.model.setFilter({{{-1, INT_MAX, "x"}, {2, -5, QVariant()}}});
        QCOMPARE(f.log.take(), "modelAboutToBeReset modelReset filtersChanged");
        const FilterData taken = f.model.getFilter();
        QVERIFY((taken == FilterData{{{-1, INT_MAX, "x"}, {2, -5, QVariant()}}}));
        f.model.addTag(0, -1, 0, "y");
        f.model.editTag(0, 0, -1, 0, "y");
        QCOMPARE(f.log.take(), QString());
        QVERIFY(taken == f.model.getFilter());
    }

    void whatIsGivenOutIsACopy()
    {
        Fixture f("[a]");
        FilterData copy = f.model.getFilter();
        copy[0][0].value = "changed";
        f.model.addTag(0, 0, 0, "b");
        QCOMPARE(text(f.model), "[a b]");
        QCOMPARE(copy[0].size(), std::size_t(1));
    }

    void aTagsRolesByName()
    {
        Fixture f("[a][b]");
        QVariantMap map = f.model.get(1, 0);
        QCOMPARE(map.size(), 8);
        QCOMPARE(map["tagString"], "p is b");
        QVERIFY(!map.contains("data"));
        for (const int bad : {-1, 1, INT_MAX, INT_MIN}) {
            map = f.model.get(1, bad);
            QCOMPARE(map.size(), 8);
            for (const QVariant& value : map)
                QVERIFY(!value.isValid());
        }
        for (const int bad : badIndexes)
            QVERIFY(f.model.get(bad, 0).isEmpty());
        QVERIFY(f.model.get(2, 0).isEmpty());
    }

    void everyConjunctionHasTheFormatter()
    {
        struct : FilterTagFormatter
        {
            QString getPropertyName(const FilterTagData&, const AbstractFilterPropertiesModel&) const override
            {
                return "mine";
            }
            QString formatPropertyLabelTooltip(const FilterTagData&,
                                               const AbstractFilterPropertiesModel&) const override
            {
                return {};
            }
            QString formatTag(const FilterTagData&, const AbstractFilterPropertiesModel&,
                              const FilterOperatorsModel&) const override
            {
                return {};
            }
            QString formatTagToolTip(const FilterTagData&, const AbstractFilterPropertiesModel&,
                                     const FilterOperatorsModel&) const override
            {
                return {};
            }
        } formatter;
        FilterTagsModel model(properties(), &formatter);
        const auto name = [&model](int conjunction) { return model.get(conjunction, 0)["propertyName"].toString(); };
        model.addTag(0, 0, 0, "a");
        model.duplicateConjunction(0);
        model.addConjunction();
        model.addTag(2, 0, 0, "b");
        QCOMPARE(name(0) + name(1) + name(2), "mineminemine");
        model.setFilter(filterOf("[x]"));
        QCOMPARE(name(0), "mine");
    }

    void badIndexesDoNothing()
    {
        Fixture f("[a][b]");
        const auto tryAll = [&f](int conjunction, int tag, int property) {
            f.model.addTag(conjunction, property, 0, "x");
            f.model.editTag(conjunction, tag, property, 0, "x");
            f.model.removeTag(conjunction, tag);
        };
        for (const int bad : badIndexes) {
            f.model.removeConjunction(bad);
            f.model.duplicateConjunction(bad);
            f.model.removeTags(bad);
            tryAll(bad, 0, 0);
            tryAll(0, bad, bad);
        }
        tryAll(2, 0, 0);
        tryAll(0, 1, 3);
        f.model.removeConjunction(2);
        f.model.duplicateConjunction(2);
        f.model.removeTags(2);
        QCOMPARE(f.log.take(), QString());
        QCOMPARE(text(f.model), "[a] [b]");
    }

    void theFilterMayBeReplacedWhileItTellsAChange()
    {
        Fixture f("[a]");
        bool isFirst = true;
        connect(&f.model, &FilterTagsModel::filtersChanged, this, [&] {
            if (std::exchange(isFirst, false))
                f.model.setFilter(filterOf("[x][y]")); // the conjunction that tells goes
        });
        f.model.addTag(0, 0, 0, "b");
        QCOMPARE(text(f.model), "[x] [y]");
        isFirst = true;
        f.model.removeTag(1, 0);
        QCOMPARE(text(f.model), "[x] [y]");
        f.model.setFilter(filterOf("[z]"));
        isFirst = true;
        f.model.removeConjunction(0);
        QCOMPARE(text(f.model), "[x] [y]");
        QVERIFY(f.mirror.isRight());
    }

    void randomEditsKeepToAPlainList()
    {
        Fixture f;
        FilterData expected(1);
        // What tells each conjunction's edits, since a copy in the middle is silent: how often it is connected.
        std::vector<int> connections = {1};
        int told = 0;
        int expectedTold = 0;
        QObject::connect(&f.model, &FilterTagsModel::filtersChanged, &f.model, [&told] { ++told; });

        using Random = QRandomGenerator;
        const auto row = [&](Random& random) { return random.bounded(-1, static_cast<int>(expected.size()) + 2); };
        const auto isRow = [&](int i) { return i >= 0 && i < static_cast<int>(expected.size()); };
        const auto at = [&](int i) -> std::vector<FilterTagData>& { return expected[static_cast<std::size_t>(i)]; };
        const auto toldBy = [&](int i) { return connections[static_cast<std::size_t>(i)]; };
        const auto value = [](Random& random) { return QVariant(QString::number(random.bounded(4))); };

        velmtest::ChangeScript script(20);
        script.add("addConjunction", [&](Random&) {
            f.model.addConjunction();
            expected.emplace_back();
            connections.push_back(1);
            ++expectedTold;
        });
        script.add("removeConjunction", [&](Random& random) {
            const int i = row(random);
            f.model.removeConjunction(i);
            if (!isRow(i))
                return;
            if (expected.size() == 1) {
                expectedTold += at(0).empty() ? 0 : toldBy(0) + 1;
                at(0).clear();
                return;
            }
            expected.erase(expected.begin() + i);
            connections.erase(connections.begin() + i);
            ++expectedTold;
        });
        script.add("duplicateConjunction", [&](Random& random) {
            const int i = row(random);
            if (expected.size() > 12)
                return;
            f.model.duplicateConjunction(i);
            if (!isRow(i))
                return;
            expected.insert(expected.begin() + i + 1, std::vector<FilterTagData>(at(i)));
            connections.insert(connections.begin() + i + 1, 0);
            ++connections.back();
            ++expectedTold;
        });
        const auto addTag = [&](Random& random) {
            const int i = row(random);
            const FilterTagData tag{random.bounded(-1, 4), random.bounded(-1, 13), value(random)};
            f.model.addTag(i, tag.propertyIndex, tag.operation, tag.value);
            if (!isRow(i) || tag.propertyIndex < 0 || tag.propertyIndex > 2)
                return;
            at(i).push_back(tag);
            expectedTold += toldBy(i);
        };
        for (int weight = 0; weight < 3; ++weight)
            script.add("addTag", addTag);
        script.add("editTag", [&](Random& random) {
            const int i = row(random);
            const int tag = random.bounded(-1, 4);
            FilterTagData edited{random.bounded(-1, 4), random.bounded(0, 2), value(random)};
            f.model.editTag(i, tag, edited.propertyIndex, edited.operation, edited.value);
            if (!isRow(i) || tag < 0 || tag >= static_cast<int>(at(i).size()) || edited.propertyIndex < 0 ||
                edited.propertyIndex > 2)
                return;
            FilterTagData& present = at(i)[static_cast<std::size_t>(tag)];
            expectedTold += present == edited ? 0 : toldBy(i);
            present = edited;
        });
        script.add("removeTag", [&](Random& random) {
            const int i = row(random);
            const int tag = random.bounded(-1, 4);
            f.model.removeTag(i, tag);
            if (!isRow(i) || tag < 0 || tag >= static_cast<int>(at(i).size()))
                return;
            at(i).erase(at(i).begin() + tag);
            expectedTold += toldBy(i);
        });
        script.add("removeTags", [&](Random& random) {
            const int i = row(random);
            f.model.removeTags(i);
            if (!isRow(i) || at(i).empty())
                return;
            at(i).clear();
            expectedTold += toldBy(i);
        });
        script.add("clear", [&](Random& random) {
            if (random.bounded(5) > 0)
                return;
            f.model.clear();
            expectedTold += at(0).empty() ? 0 : toldBy(0);
            expected.resize(1);
            connections.resize(1);
            at(0).clear();
        });
        script.add("setFilter", [&](Random& random) {
            FilterData filter(random.bounded(3u));
            for (std::vector<FilterTagData>& tags : filter)
                tags.push_back({random.bounded(-2, 3), 0, value(random)});
            f.model.setFilter(filter);
            const bool isBad =
                std::any_of(filter.begin(), filter.end(), [](const auto& tags) { return tags[0].propertyIndex < -1; });
            if (filter.empty())
                filter.resize(1);
            if (isBad || filter == expected)
                return;
            connections.assign(filter.size(), 1);
            expected = std::move(filter);
            ++expectedTold;
        });
        QVERIFY(script.run(3000, [&] {
            return f.model.getFilter() == expected && told == expectedTold && f.mirror.isRight() &&
                   f.model.rowCount() == static_cast<int>(expected.size());
        }));
    }
};

QTEST_GUILESS_MAIN(TestFilterTags)
#include "tst_filtertags.moc"
