#include "stringtree.h"

#include "support/rowtext.h"
#include "support/signallog.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace velm;
using velmtest::rowText;
using velmtest::SignalLog;
using velmtest::StringTree;

namespace {
constexpr int expandedRole = 8;
const char* const outOfBounds = "Trying to insert item out of bounds";
const char* const notFound = "Tree child item not found in parent";

/// Tells when it goes.
struct Witness
{
    explicit Witness(bool& flag) : isGone(flag) {}
    ~Witness() { isGone = true; }
    Q_DISABLE_COPY_MOVE(Witness)
    bool& isGone;
};

/// A tree of values that can't be copied.
class WitnessTree : public TreeModel<std::unique_ptr<Witness>>
{
public:
    int columnCount(const QModelIndex& = {}) const override { return 1; }
    QVariant dataImpl(const QModelIndex&, int) const override { return {}; }
};

/// Names its roles, takes texts as edits, and counts how its rows are deleted.
class CountingTree : public StringTree
{
public:
    using StringTree::StringTree;
    QHash<int, QByteArray> customRoleNames() const override
    {
        return {{Qt::ToolTipRole, "hint"}, {Qt::UserRole, "display"}};
    }
    bool setDataImpl(const QModelIndex& index, const QVariant& value, int role) override
    {
        setData(index, value.toString());
        return role == Qt::EditRole;
    }
    bool deleteItem(const QModelIndex& parent, const QModelIndex& child) override
    {
        calls += 'c';
        return StringTree::deleteItem(parent, child);
    }
    bool deleteItem(const QModelIndex& parent, int row) override
    {
        calls += 'r';
        return StringTree::deleteItem(parent, row);
    }
    QString calls;
};
} // namespace

class TestTreeModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rowsHangBelowTheFirstColumnOnly()
    {
        const StringTree tree("A(a1 a2)");
        const QModelIndex first = tree.index(0, 0);
        const QModelIndex second = tree.index(0, 1);
        QCOMPARE(tree.rowCount(first), 2);
        QCOMPARE(tree.rowCount(second), 0);
        QVERIFY(!tree.index(0, 0, second).isValid());
        QCOMPARE(tree.parent(tree.index(1, 1, first)), first);
        // Of an index itself the column isn't tested.
        QCOMPARE(tree.index(1, 70, first).column(), 70);
        QVERIFY(!tree.index(2, 0, first).isValid());
        QVERIFY(!tree.index(-1, 0, first).isValid());
        QVERIFY(!tree.index(0, -1, first).isValid());
        QVERIFY(!tree.rootIndex().isValid());
        QCOMPARE(tree.getData(QModelIndex()), nullptr);
    }

    void aChildThatDoesNotExistIsAnInvalidIndexInAFullOptional()
    {
        const StringTree tree("A(a1)");
        QCOMPARE(tree.child({}, 99), std::optional<QModelIndex>(QModelIndex()));
        QCOMPARE(tree.child({}, -1), std::optional<QModelIndex>(QModelIndex()));
        QCOMPARE(tree.child(tree.at("A"), 0), std::optional<QModelIndex>(tree.at("a1")));
        // Unlike rows, children are not asked for their parent's column.
        QCOMPARE(tree.child(tree.index(0, 1), 0), std::optional<QModelIndex>(tree.at("a1")));
        QCOMPARE(tree.children(tree.index(0, 1)), QList<QModelIndex>());
        QCOMPARE(tree.children({}), QList<QModelIndex>{tree.at("A")});
    }

    void anIndexWithoutANodeIsHarmless()
    {
        StringTree tree("A");
        SignalLog log(tree);
        const QModelIndex nodeless = tree.nodeless();
        QVERIFY(!tree.parent(nodeless).isValid());
        QCOMPARE(tree.rowCount(nodeless), 0);
        QCOMPARE(tree.data(nodeless, expandedRole), QVariant());
        QVERIFY(!tree.setData(nodeless, true, expandedRole));
        QVERIFY(!tree.wantsToBeExpanded(nodeless));
        QVERIFY(!tree.defaultExpandedState(nodeless));
        QVERIFY(!tree.deleteItem({}, nodeless));
        QVERIFY(!tree.deleteChildren(nodeless));
        QCOMPARE(tree.moveItem(nodeless, {}), nodeless);
        tree.setData(nodeless, "B");
        tree.setWantsToBeExpanded(nodeless, true);
        tree.setDefaultExpandedState(nodeless, true);
        tree.update(nodeless, {});
        QTest::ignoreMessage(QtWarningMsg, notFound);
        QCOMPARE(tree.child(nodeless, 0), std::nullopt);
        QCOMPARE(log.take(), "");
        QCOMPARE(rowText(tree), "A");
    }

    void customNamesWinOverTheBase()
    {
        const QHash<int, QByteArray> plain = StringTree().roleNames();
        QCOMPARE(plain.value(356), "disabled");
        QCOMPARE(plain.value(Qt::ToolTipRole), "toolTip");
        QVERIFY(!plain.contains(expandedRole));
        const QHash<int, QByteArray> custom = CountingTree().roleNames();
        QCOMPARE(custom.value(Qt::ToolTipRole), "hint");
        // A name may come twice.
        QCOMPARE(custom.keys("display").size(), 2);
    }

    void theExpansionFlagTakesABoolAndTellsNobody()
    {
        CountingTree tree("A");
        SignalLog log(tree);
        const QModelIndex row = tree.at("A");
        QCOMPARE(getWantsToBeExpandedRole(), expandedRole);
        QCOMPARE(row.data(expandedRole), QVariant(false));
        QVERIFY(!tree.setData(row, QVariant(1), expandedRole));
        QVERIFY(!tree.setData(row, QVariant("true"), expandedRole));
        QCOMPARE(row.data(expandedRole), QVariant(false));
        QVERIFY(tree.setData(row, true, expandedRole));
        QCOMPARE(row.data(expandedRole), QVariant(true));
        QVERIFY(!tree.setData({}, true, expandedRole));
        QVERIFY(!tree.wantsToBeExpanded({}));
        QCOMPARE(log.take(), "");
        // Other roles are the concrete model's business.
        QVERIFY(tree.setData(row, QVariant("B"), Qt::EditRole));
        QVERIFY(!tree.setData(row, QVariant("C"), Qt::UserRole));
        QCOMPARE(rowText(tree), "C");
        QVERIFY(!StringTree("A").setData({}, QVariant("C"), Qt::EditRole));
    }

    void everyChangeIsSignalledOnceAndInPlace()
    {
        StringTree tree("A(a1) B");
        const QAbstractItemModelTester tester(&tree, QAbstractItemModelTester::FailureReportingMode::QtTest);
        SignalLog log(tree);
        const QString text("c");
        QCOMPARE(tree.insertItem({}, 1, text).data(), "c");
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 1, 1) rowsInserted(-, 1, 1)");
        QCOMPARE(tree.insertItem(tree.at("A"), 1, "a2").row(), 1);
        QCOMPARE(log.take(), "rowsAboutToBeInserted(0,0, 1, 1) rowsInserted(0,0, 1, 1)");
        QCOMPARE(tree.appendItem({}, text).row(), 3);
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 3, 3) rowsInserted(-, 3, 3)");
        QVERIFY(tree.deleteItem({}, 1));
        QCOMPARE(log.take(), "rowsAboutToBeRemoved(-, 1, 1) rowsRemoved(-, 1, 1)");
        QVERIFY(tree.deleteItem(tree.at("A"), tree.at("a2")));
        QCOMPARE(log.take(), "rowsAboutToBeRemoved(0,0, 1, 1) rowsRemoved(0,0, 1, 1)");
        tree.setData(tree.at("a1"), "a0");
        QCOMPARE(log.take(), "dataChanged(0,0, 0,0, [])");
        tree.setWantsToBeExpanded(tree.at("B"), true);
        QCOMPARE(log.take(), "dataChanged(1,0, 1,0, [8])");
        tree.setDefaultExpandedState(tree.at("B"), true);
        QVERIFY(tree.defaultExpandedState(tree.at("B")));
        QCOMPARE(log.take(), "");
        QVERIFY(tree.deleteChildren({}));
        QCOMPARE(log.take(), "rowsAboutToBeRemoved(-, 0, 2) rowsRemoved(-, 0, 2)");
        QVERIFY(!tree.deleteChildren({}));
        tree.reset();
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset");
    }

    void onlyOneOfTheInsertsTestsTheRowBeforeItIsAnnounced()
    {
        StringTree tree("A");
        SignalLog log(tree);
        const QString text("B");
        QVERIFY(!tree.insertItem({}, 2, QString("B")).isValid());
        QCOMPARE(log.take(), "");
        QTest::ignoreMessage(QtDebugMsg, outOfBounds);
        QVERIFY(!tree.insertItem({}, 2, text).isValid());
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 2, 2) rowsInserted(-, 2, 2)");
        // A row below 0 passes that test.
        QTest::ignoreMessage(QtDebugMsg, outOfBounds);
        QVERIFY(!tree.insertItem({}, -1, QString("B")).isValid());
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, -1, -1) rowsInserted(-, -1, -1)");
        QCOMPARE(rowText(tree), "A");
    }

    void whatIsNotThereIsNotDeleted()
    {
        StringTree tree("A(a1) B");
        SignalLog log(tree);
        QTest::ignoreMessage(QtWarningMsg, notFound);
        QVERIFY(!tree.deleteItem(tree.at("B"), tree.at("a1")));
        QTest::ignoreMessage(QtWarningMsg, notFound);
        QVERIFY(!tree.deleteItem({}, tree.at("a1")));
        QVERIFY(!tree.deleteItem({}, QModelIndex()));
        QVERIFY(!tree.deleteItem({}, 2));
        QVERIFY(!tree.deleteItem({}, -1));
        QCOMPARE(log.take(), "");
        QCOMPARE(rowText(tree), "A(a1) B");
    }

    void aMoveTakesTheNextSiblingAlong()
    {
        CountingTree tree("A B(b1) C D");
        tree.setWantsToBeExpanded(tree.at("B"), true);
        tree.setDefaultExpandedState(tree.at("B"), true);
        SignalLog log(tree);
        const QModelIndex moved = tree.moveItem(tree.at("B"), tree.at("A"));
        QCOMPARE(log.take(), "rowsAboutToBeRemoved(-, 1, 1) rowsRemoved(-, 1, 1) "
                             "rowsAboutToBeInserted(0,0, 0, 0) rowsInserted(0,0, 0, 0)");
        // Children and flags stay behind.
        QCOMPARE(rowText(tree), "A(B) D");
        QCOMPARE(moved, tree.at("B"));
        QVERIFY(!tree.wantsToBeExpanded(moved));
        QVERIFY(!tree.defaultExpandedState(moved));
        QCOMPARE(tree.calls, "r");
    }

    void aMoveOfTheLastChildIsNotAnnouncedAsRemoved()
    {
        CountingTree tree("A(a1 a2) B");
        SignalLog log(tree);
        tree.moveItem(tree.at("a2"), {});
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 2, 2) rowsInserted(-, 2, 2)");
        QCOMPARE(rowText(tree), "A(a1) B a2");
        // To the place where it stands already.
        tree.moveItem(tree.at("a2"), {});
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 2, 2) rowsInserted(-, 2, 2)");
        QCOMPARE(rowText(tree), "A(a1) B a2");
        QCOMPARE(tree.calls, "rr");
        QCOMPARE(tree.moveItem({}, tree.at("A")), QModelIndex());
        QCOMPARE(log.take(), "");
    }

    void aMoveLeavesNoPersistentIndexBehind()
    {
        StringTree tree("P(A(a1 a2 a3) B(b1) C(c1) D)");
        const QList<QPersistentModelIndex> gone{tree.at("A"), tree.at("a1"), tree.at("a3"), tree.at("B"),
                                                tree.at("b1")};
        const QList<QPersistentModelIndex> kept{tree.at("C"), tree.at("c1"), tree.at("D")};
        tree.moveItem(tree.at("A"), {});
        QCOMPARE(rowText(tree), "P(C(c1) D) A");
        for (const QPersistentModelIndex& index : gone)
            QVERIFY(!index.isValid());
        QCOMPARE(kept, (QList<QPersistentModelIndex>{tree.at("C"), tree.at("c1"), tree.at("D")}));
        // The last child goes without a word.
        tree.moveItem(tree.at("D"), {});
        QVERIFY(!kept[2].isValid());
        QCOMPARE(kept[1].parent(), QModelIndex(kept[0]));
    }

    void aMoveToWhereNothingIsLeftLosesTheValue()
    {
        StringTree tree("A(a1(x)) B(b1) C");
        QVERIFY(!tree.moveItem(tree.at("A"), tree.at("b1")).isValid());
        QCOMPARE(rowText(tree), "C");
        tree.fill("D(d1(x)) E");
        QVERIFY(!tree.moveItem(tree.at("d1"), tree.at("x")).isValid());
        QCOMPARE(rowText(tree), "C D E");
        QVERIFY(!tree.moveItem(tree.at("D"), tree.at("D")).isValid());
        QCOMPARE(rowText(tree), "C");
    }

    void theMovedNodeDiesLast()
    {
        WitnessTree tree;
        bool isMovedGone = false;
        bool isChildGone = false;
        const QModelIndex row = tree.appendItem({}, std::make_unique<Witness>(isMovedGone));
        tree.appendItem(row, std::make_unique<Witness>(isChildGone));
        bool wasAliveAtInsert = false;
        connect(&tree, &QAbstractItemModel::rowsInserted, &tree, [&] { wasAliveAtInsert = !isChildGone; });
        const QModelIndex moved = tree.moveItem(row, {});
        QVERIFY(wasAliveAtInsert);
        QVERIFY(isChildGone);
        QVERIFY(!isMovedGone);
        QCOMPARE(&(*tree.getData(moved))->isGone, &isMovedGone);
        tree.reset();
        QVERIFY(isMovedGone);
    }

    void theRootHasAValueAndFlagsThatSurviveAReset()
    {
        StringTree tree("A");
        SignalLog log(tree);
        const QString text("root");
        tree.setData(QModelIndex(), text);
        QCOMPARE(log.take(), "dataChanged(-, -, [])");
        tree.setWantsToBeExpanded({}, true);
        QCOMPARE(log.take(), "dataChanged(-, -, [8])");
        tree.setDefaultExpandedState({}, true);
        tree.reset();
        QVERIFY(tree.wantsToBeExpanded({}));
        QVERIFY(tree.defaultExpandedState({}));
        QCOMPARE(tree.data({}, expandedRole), QVariant());
        QCOMPARE(rowText(tree), "");
    }

    void anUpdateSignalsWhenItsFunctionSaysSo()
    {
        StringTree tree("A");
        SignalLog log(tree);
        const auto change = [&](bool answer, const QList<int>& roles) {
            tree.update(
                tree.index(0, 0),
                [&](QString& text) {
                    text += 'x';
                    return answer;
                },
                roles);
            return log.take();
        };
        QCOMPARE(change(true, {Qt::DisplayRole, Qt::UserRole}), "dataChanged(0,0, 0,0, [0 256])");
        QCOMPARE(change(true, {}), "dataChanged(0,0, 0,0, [])");
        QCOMPARE(change(false, {}), "");
        tree.beginBatchChanges();
        log.take();
        QCOMPARE(change(true, {}), "");
        tree.endBatchChanges();
        QCOMPARE(rowText(tree), "Axxxx");
        QVERIFY_THROWS_EXCEPTION(std::bad_function_call, tree.update(tree.index(0, 0), {}));
        // Nobody is asked about the root.
        tree.update({}, {});
    }

    void oneResetStandsForABatch()
    {
        StringTree tree("A(a1) B");
        const QAbstractItemModelTester tester(&tree, QAbstractItemModelTester::FailureReportingMode::QtTest);
        SignalLog log(tree);
        {
            const auto batch = tree.scopedBatchChanges();
            QCOMPARE(log.take(), "modelAboutToBeReset");
            tree.deleteChildren({});
            tree.fill("C(c1 c2) D E F");
            tree.insertItem({}, 0, QString("G"));
            tree.deleteItem({}, 2);
            tree.deleteItem({}, tree.at("G"));
            tree.setData(tree.at("c1"), "c0");
            tree.setData(QModelIndex(), "root");
            tree.setWantsToBeExpanded(tree.at("c2"), true);
            tree.moveItem(tree.at("c2"), {});
            QCOMPARE(rowText(tree), "C(c0) E F c2");
            tree.reset();
            tree.fill("Z");
            QCOMPARE(log.take(), "");
        }
        QCOMPARE(log.take(), "modelReset");
        tree.appendItem({}, "Y");
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 1, 1) rowsInserted(-, 1, 1)");
    }

    void theFirstEndOfABatchIsTheEnd()
    {
        StringTree tree;
        SignalLog log(tree);
        tree.beginBatchChanges();
        tree.beginBatchChanges();
        tree.endBatchChanges();
        QCOMPARE(log.take(), "modelAboutToBeReset modelAboutToBeReset modelReset");
        tree.appendItem({}, "A");
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 0, 0) rowsInserted(-, 0, 0)");
        // Who hears of the end may edit at once, with signals.
        const auto connection =
            connect(&tree, &QAbstractItemModel::modelReset, &tree, [&] { tree.appendItem({}, "B"); });
        tree.beginBatchChanges();
        tree.endBatchChanges();
        QVERIFY(log.take().endsWith("rowsAboutToBeInserted(-, 1, 1) rowsInserted(-, 1, 1)"));
        disconnect(connection);
    }
};

QTEST_APPLESS_MAIN(TestTreeModel)
#include "tst_treemodel.moc"
