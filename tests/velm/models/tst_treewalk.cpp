#include "stringtree.h"
#include "support/table.h"

#include <QTest>

using namespace velm;
using velmtest::StringTree;

namespace {
const QString sample = QStringLiteral("A(a1 a2(x y) a3) B(b1)");

/// All that an iterator passes.
template <typename Iterator>
QString walk(Iterator iterator)
{
    QStringList texts;
    for (; iterator != Iterator(); ++iterator)
        texts += (*iterator).data().toString();
    return texts.join(' ');
}

/// The texts that a walk shows its callback, which answers `there` at one text and `Continue` at the others.
template <typename Answer>
QString visits(StringTree& tree, const QString& text, Answer there, const QModelIndex& start = {})
{
    QStringList texts;
    tree.traverseTree(
        [&](const QModelIndex& index) {
            texts += index.data().toString();
            return texts.last() == text ? there : Answer::Continue;
        },
        start);
    return texts.join(' ');
}
} // namespace

class TestTreeWalk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void bothWaysPassEveryRowOnce()
    {
        const StringTree tree(sample);
        QCOMPARE(walk(tree.begin()), "A a1 a2 x y a3 B b1");
        QCOMPARE(walk(tree.rbegin()), "b1 B a3 y x a2 a1 A");
        QCOMPARE(walk(StringTree().begin()), "");
        QCOMPARE(walk(StringTree().rbegin()), "");
    }

    void aWalkFromARowKeepsToItsBranch()
    {
        const StringTree tree(sample);
        QCOMPARE(walk(tree.begin(tree.at("A"))), "A a1 a2 x y a3");
        QCOMPARE(walk(tree.rbegin(tree.at("A"))), "a3 y x a2 a1 A");
        QCOMPARE(walk(tree.begin(tree.at("b1"))), "b1");
        QCOMPARE(walk(tree.rbegin(tree.at("b1"))), "b1");
    }

    void anIteratorWithoutAModelIsAtItsEnd()
    {
        const StringTree tree(sample);
        TreeIterator iterator(nullptr, tree.at("A"));
        QVERIFY(iterator == tree.end());
        QVERIFY(++iterator == tree.end());
        ReverseTreeIterator backwards(nullptr, tree.at("A"));
        QVERIFY(backwards == tree.rend());
        QVERIFY(++backwards == tree.rend());
    }

    void iteratorsAreToldApartByTheirIndexAlone()
    {
        const StringTree tree(sample);
        TreeIterator iterator = tree.begin();
        for (int step = 0; step < 6; ++step)
            ++iterator;
        QVERIFY(iterator == tree.begin(tree.at("B")));
        QVERIFY(iterator != tree.begin());
    }

    void aReadingWalkFollowsItsCallback_data()
    {
        const auto row = velmtest::columns<QString, TreeWalk, QString>("text", "answer", "visited");
        row("stop ends it in the midst of a level", "x", TreeWalk::Stop, "A a1 a2 x");
        row("skipped children don't come, their uncles do", "a2", TreeWalk::SkipChildren, "A a1 a2 a3 B b1");
        row("a leaf has nothing to skip", "a1", TreeWalk::SkipChildren, "A a1 a2 x y a3 B b1");
        row("the last top row skipped", "B", TreeWalk::SkipChildren, "A a1 a2 x y a3 B");
    }
    void aReadingWalkFollowsItsCallback()
    {
        QFETCH(QString, text);
        QFETCH(TreeWalk, answer);
        StringTree tree(sample);
        QTEST(visits(tree, text, answer), "visited");
    }

    void anEditingWalkFollowsItsCallback_data()
    {
        const auto row = velmtest::columns<QString, TreeWalkEdit, QString>("text", "answer", "visited");
        row("stop ends it", "y", TreeWalkEdit::Stop, "b1 B a3 y");
        row("a skip closes the sibling that comes next", "a3", TreeWalkEdit::SkipChildren, "b1 B a3 a2 a1 A");
        row("a skip on the top level does so, too", "B", TreeWalkEdit::SkipChildren, "b1 B A");
        row("a skip at the first child goes on to the parent", "x", TreeWalkEdit::SkipChildren, "b1 B a3 y x a2 a1 A");
        row("a deleted row was passed already", "a2", TreeWalkEdit::Delete, "b1 B a3 y x a2 a1 A");
    }
    void anEditingWalkFollowsItsCallback()
    {
        QFETCH(QString, text);
        QFETCH(TreeWalkEdit, answer);
        StringTree tree(sample);
        QTEST(visits(tree, text, answer), "visited");
    }

    void walksCanStartBelow()
    {
        StringTree tree(sample);
        QCOMPARE(visits(tree, "x", TreeWalk::Stop, tree.at("a2")), "a2 x");
        QCOMPARE(visits(tree, "y", TreeWalk::SkipChildren, tree.at("a2")), "a2 x y");
        // The start itself can go, and its siblings are none of the walk's business.
        QCOMPARE(visits(tree, "a2", TreeWalkEdit::Delete, tree.at("a2")), "y x a2");
        QCOMPARE(walk(tree.begin()), "A a1 a3 B b1");
    }

    void deletingAtEveryRowEmptiesTheTreeFromTheEnd()
    {
        StringTree tree(sample);
        QStringList removed;
        connect(&tree, &QAbstractItemModel::rowsAboutToBeRemoved, &tree, [&](const QModelIndex& parent, int first) {
            removed += tree.index(first, 0, parent).data().toString();
        });
        tree.traverseTree([](const QModelIndex&) { return TreeWalkEdit::Delete; });
        QCOMPARE(removed.join(' '), "b1 B a3 y x a2 a1 A");
        QCOMPARE(tree.rowCount(), 0);
    }

    void theIteratorHasMovedOnWhenARowGoes()
    {
        StringTree tree("A B C");
        QStringList events;
        connect(&tree, &QAbstractItemModel::rowsAboutToBeRemoved, &tree,
                [&](const QModelIndex&, int first) { events += QString("-%1").arg(first); });
        tree.traverseTree([&](const QModelIndex& index) {
            events += index.data().toString();
            return index.row() == 1 ? TreeWalkEdit::Delete : TreeWalkEdit::Continue;
        });
        QCOMPARE(events.join(' '), "C B -1 A");
    }

    void anAnswerThatDoesNotExistAsksAgain()
    {
        StringTree tree("A B");
        QStringList read;
        tree.traverseTree([&](const QModelIndex& index) {
            read += index.data().toString();
            return read.size() == 1 ? static_cast<TreeWalk>(7) : TreeWalk::Continue;
        });
        QCOMPARE(read.join(' '), "A A B");
        QStringList edited;
        tree.traverseTree([&](const QModelIndex& index) {
            edited += index.data().toString();
            return edited.size() < 3 ? static_cast<TreeWalkEdit>(-1) : TreeWalkEdit::Continue;
        });
        QCOMPARE(edited.join(' '), "B B B A");
    }

    void anEmptyCallbackThrowsAtTheFirstRow()
    {
        StringTree tree;
        tree.traverseTree(TreeModelBase::ReadCallback());
        tree.traverseTree(TreeModelBase::EditCallback());
        tree.fill("A");
        QVERIFY_THROWS_EXCEPTION(std::bad_function_call, tree.traverseTree(TreeModelBase::ReadCallback()));
        QVERIFY_THROWS_EXCEPTION(std::bad_function_call, tree.traverseTree(TreeModelBase::EditCallback()));
    }

    void theFirstRowInWalkOrderIsFound()
    {
        StringTree tree("A(a(deep) b) deep");
        int asked = 0;
        const std::optional<QModelIndex> found = tree.findInTree([&](const QModelIndex& index) {
            ++asked;
            return index.data() == "deep";
        });
        QVERIFY(found);
        QCOMPARE(found->parent().data(), "a");
        QCOMPARE(asked, 3);
        QVERIFY(!tree.findInTree([](const QModelIndex&) { return false; }));
    }
};

QTEST_APPLESS_MAIN(TestTreeWalk)
#include "tst_treewalk.moc"
