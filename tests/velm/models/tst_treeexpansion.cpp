#include "stringtree.h"

#include "support/rowtext.h"
#include "support/signallog.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include <limits>

using namespace velm;
using velmtest::rowText;
using velmtest::SignalLog;
using velmtest::StringTree;

namespace {
/// A tree that shows nothing.
class SilentTree : public StringTree
{
public:
    using StringTree::StringTree;
    QVariant dataImpl(const QModelIndex&, int) const override { return {}; }
};

void expand(StringTree& tree, const QStringList& texts)
{
    for (const QString& text : texts)
        tree.setWantsToBeExpanded(tree.at(text), true);
}

QString expanded(StringTree& tree)
{
    QList<QModelIndex> rows{QModelIndex()};
    tree.saveExpandedState(rows);
    QStringList texts;
    for (const QModelIndex& row : rows)
        texts += *tree.getData(row);
    return texts.join(' ');
}
} // namespace

class TestTreeExpansion : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theListOfExpandedRowsRunsBackwards()
    {
        StringTree tree("A(a1(x) a2) B C");
        expand(tree, {"A", "a1", "B"});
        QCOMPARE(expanded(tree), "B a1 A");
    }

    void rowsAreKnownByTheirTextAlone()
    {
        const StringTree tree("A(same) B(same b)");
        const QModelIndex first = tree.index(0, 0, tree.at("A"));
        const QModelIndex second = tree.index(0, 0, tree.at("B"));
        QVERIFY(first != second);
        QCOMPARE(tree.rowContentId(first), tree.rowContentId(second));
        QVERIFY(tree.rowContentId(first) != tree.rowContentId(tree.at("b")));
        const SilentTree silent("A B");
        QCOMPARE(silent.rowContentId(silent.at("A")), silent.rowContentId(silent.at("B")));
    }

    void idsHave32Bits()
    {
        StringTree tree;
        unsigned long long all = 0;
        for (int number = 0; number < 100; ++number)
            all |= tree.rowContentId(tree.appendItem({}, QString::number(number)));
        QCOMPARE(all, static_cast<unsigned long long>(std::numeric_limits<quint32>::max()));
        // A text longer than the bytes that are kept ready counts to its end.
        const QString text(4000, 'x');
        QVERIFY(tree.rowContentId(tree.appendItem({}, text + 'y')) !=
                tree.rowContentId(tree.appendItem({}, text + 'z')));
    }

    void expandedRowsAreFoundAgainAfterARebuild()
    {
        StringTree tree("A(a1 a2) B(a1) C");
        expand(tree, {"A", "a2", "C"});
        std::unordered_set<unsigned long long> ids{42};
        tree.saveExpandedState(ids);
        QCOMPARE(ids.size(), 3u);
        tree.reset();
        tree.fill("C X(a2(A)) B");
        QCOMPARE(expanded(tree), "");
        tree.restoreExpandedState(ids);
        QCOMPARE(expanded(tree), "A a2 C");
    }

    void aRestoreRaisesFlagsAndLowersNone()
    {
        StringTree tree("A(same) B(same) C");
        expand(tree, {"same"});
        std::unordered_set<unsigned long long> ids;
        tree.saveExpandedState(ids);
        expand(tree, {"C"});
        tree.restoreExpandedState(ids);
        QCOMPARE(expanded(tree), "C same same");
    }

    void aRestoreIsAResetWithItsFlagsSignalledWithin()
    {
        StringTree tree("A B(b1)");
        const QAbstractItemModelTester tester(&tree, QAbstractItemModelTester::FailureReportingMode::QtTest);
        SignalLog log(tree);
        tree.restoreExpandedState({tree.rowContentId(tree.at("A")), tree.rowContentId(tree.at("b1"))});
        QCOMPARE(log.take(), "modelAboutToBeReset dataChanged(0,0, 0,0, [8]) dataChanged(0,0, 0,0, [8]) modelReset");
        tree.restoreExpandedState({});
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset");
    }

    void aRestoreWithinABatchResetsAllTheSame()
    {
        StringTree tree("A");
        SignalLog log(tree);
        tree.beginBatchChanges();
        tree.restoreExpandedState({tree.rowContentId(tree.at("A"))});
        QCOMPARE(log.take(), "modelAboutToBeReset modelAboutToBeReset modelReset");
        // The batch goes on.
        tree.appendItem({}, "B");
        QCOMPARE(log.take(), "");
        tree.endBatchChanges();
        QCOMPARE(log.take(), "modelReset");
        QCOMPARE(expanded(tree), "A");
    }
};

QTEST_APPLESS_MAIN(TestTreeExpansion)
#include "tst_treeexpansion.moc"
