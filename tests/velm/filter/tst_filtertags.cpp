#include "velm/filter/filtertagsmodel.h"

#include "filtertags.h"
#include "namingformatter.h"

#include "support/members.h"

#include <QJSEngine>
#include <QPointer>
#include <QTest>

#include <climits>

using namespace velm;
using velmtest::filterOf;
using Fixture = velmtest::TagsFixture;
using velmtest::threeTexts;

namespace {
constexpr int badIndexes[] = {-1, -2, INT_MIN, INT_MAX};

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
        const velmtest::NamingFormatter formatter;
        FilterTagsModel model(threeTexts(), &formatter);
        const auto name = [&model](int conjunction) { return model.get(conjunction, 0)["propertyName"].toString(); };
        model.addTag(0, 0, 0, "a");
        model.duplicateConjunction(0);
        model.addConjunction();
        model.addTag(2, 0, 0, "b");
        QCOMPARE(name(0) + name(1) + name(2), "name 0name 0name 0");
        model.setFilter(filterOf("[x]"));
        QCOMPARE(name(0), "name 0");
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
};

QTEST_GUILESS_MAIN(TestFilterTags)
#include "tst_filtertags.moc"
