#include "stringtree.h"

#include "support/changescript.h"
#include "support/signallog.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include <algorithm>
#include <map>

using namespace velm;
using velmtest::ChangeScript;
using velmtest::SignalLog;
using velmtest::StringTree;

namespace {
const char* const notFound = "Tree child item not found in parent";
constexpr int highestCount = 40; // of nodes, beyond which a tree doesn't grow

/// What the tree is to hold, in the plainest form.
struct Node
{
    Node* parent = nullptr;
    QString text;
    bool wantsToBeExpanded = false;
    bool defaultExpandedState = false;
    std::vector<std::unique_ptr<Node>> rows{};

    int count() const { return static_cast<int>(rows.size()); }
    int row() const
    {
        int row = 0;
        while (parent && parent->rows[static_cast<std::size_t>(row)].get() != this)
            ++row;
        return row;
    }
    bool isWithin(const Node* branch) const { return this == branch || (parent && parent->isWithin(branch)); }
    Node* insert(int row, const QString& value)
    {
        return rows.insert(rows.begin() + row, std::unique_ptr<Node>(new Node{this, value}))->get();
    }
    /// The node and all below it, parents first.
    void list(std::vector<Node*>& nodes)
    {
        nodes.push_back(this);
        for (const auto& child : rows)
            child->list(nodes);
    }
};

/// Makes the same edits in a tree model and in plain nodes, and compares the two.
class TreeScript
{
public:
    using Random = QRandomGenerator;

    /// Moves outside batches take rows out unannounced, which the tester can't follow.
    TreeScript(quint32 seed, bool withMoves) : m_script(seed), m_withMoves(withMoves)
    {
        const auto add = [this](const char* name, void (TreeScript::*edit)(Random&)) {
            m_edits.push_back(edit);
            m_script.add(name, [this, edit](Random& random) { (this->*edit)(random); });
        };
        add("insert", &TreeScript::insert);
        add("append", &TreeScript::append);
        add("append once more", &TreeScript::append);
        add("delete a child", &TreeScript::deleteChild);
        add("delete a row", &TreeScript::deleteRow);
        add("delete children", &TreeScript::deleteChildren);
        add("set", &TreeScript::set);
        add("expand", &TreeScript::expand);
        add("walk", &TreeScript::walk);
        add("reset", &TreeScript::reset);
        m_edits.push_back(&TreeScript::move);
        if (withMoves)
            m_script.add("move", [this](Random& random) { move(random); });
        m_script.add("batch", [this](Random& random) { batch(random); });
    }

    bool run(int steps)
    {
        remember();
        return m_script.run(steps, [this] { return compare(); });
    }

    StringTree model;

private:
    std::vector<Node*> nodes()
    {
        std::vector<Node*> result;
        m_root.list(result);
        return result;
    }
    QModelIndex indexOf(const Node* node) const
    {
        return node->parent ? model.index(node->row(), 0, indexOf(node->parent)) : QModelIndex();
    }
    /// The root is one of the choices.
    Node* pick(Random& random)
    {
        const std::vector<Node*> all = nodes();
        return all[random.bounded(static_cast<quint32>(all.size()))];
    }
    QString newText() { return QString::number(++m_lastText); }
    bool isFull() { return nodes().size() > highestCount; }

    void insert(Random& random)
    {
        Node* parent = pick(random);
        const QString text = newText();
        const int row = random.bounded(parent->count() + 2);
        if (row > parent->count() || isFull()) {
            QVERIFY(!model.insertItem(indexOf(parent), parent->count() + 1, QString(text)).isValid());
            return;
        }
        const QModelIndex index = random.bounded(2) ? model.insertItem(indexOf(parent), row, text)
                                                    : model.insertItem(indexOf(parent), row, QString(text));
        QCOMPARE(index, indexOf(parent->insert(row, text)));
    }

    void append(Random& random)
    {
        if (isFull())
            return;
        Node* parent = pick(random);
        const QString text = newText();
        const QModelIndex index = random.bounded(2) ? model.appendItem(indexOf(parent), text)
                                                    : model.appendItem(indexOf(parent), QString(text));
        QCOMPARE(index, indexOf(parent->insert(parent->count(), text)));
    }

    void deleteChild(Random& random)
    {
        Node* node = pick(random);
        Node* parent = random.bounded(4) ? node->parent : pick(random);
        if (!node->parent) {
            QVERIFY(!model.deleteItem({}, indexOf(node)));
        } else if (parent != node->parent) {
            QTest::ignoreMessage(QtWarningMsg, notFound);
            QVERIFY(!model.deleteItem(indexOf(parent), indexOf(node)));
        } else {
            QVERIFY(model.deleteItem(indexOf(parent), indexOf(node)));
            parent->rows.erase(parent->rows.begin() + node->row());
        }
    }

    void deleteRow(Random& random)
    {
        Node* parent = pick(random);
        const int row = random.bounded(-1, parent->count() + 1);
        const bool isThere = row >= 0 && row < parent->count();
        QCOMPARE(model.deleteItem(indexOf(parent), row), isThere);
        if (isThere)
            parent->rows.erase(parent->rows.begin() + row);
    }

    void deleteChildren(Random& random)
    {
        Node* parent = pick(random);
        QCOMPARE(model.deleteChildren(indexOf(parent)), parent->count() > 0);
        parent->rows.clear();
    }

    void set(Random& random)
    {
        Node* node = pick(random);
        if (!node->parent)
            return;
        node->text = newText();
        if (random.bounded(2))
            model.setData(indexOf(node), node->text);
        else
            model.setData(indexOf(node), QString(node->text));
    }

    void expand(Random& random)
    {
        Node* node = pick(random);
        if (!node->parent)
            return;
        if (random.bounded(2))
            model.setWantsToBeExpanded(indexOf(node), node->wantsToBeExpanded = random.bounded(2));
        else if (random.bounded(2))
            model.setData(indexOf(node), node->wantsToBeExpanded = random.bounded(2), getWantsToBeExpandedRole());
        else
            model.setDefaultExpandedState(indexOf(node), node->defaultExpandedState = random.bounded(2));
    }

    void move(Random& random)
    {
        Node* node = pick(random);
        Node* target = pick(random);
        const QModelIndex moved = model.moveItem(indexOf(node), indexOf(target));
        if (!node->parent) {
            QVERIFY(!moved.isValid());
            return;
        }
        auto& rows = node->parent->rows;
        const auto first = rows.begin() + node->row();
        const auto last = std::min(first + 2, rows.end());
        const bool isLost = std::any_of(first, last, [&](const auto& goes) { return target->isWithin(goes.get()); });
        const QString text = node->text;
        rows.erase(first, last);
        QCOMPARE(moved, isLost ? QModelIndex() : indexOf(target->insert(target->count(), text)));
    }

    void reset(Random& random)
    {
        if (random.bounded(10))
            return;
        model.reset();
        m_root.rows.clear();
        m_wasReset = true;
    }

    void batch(Random& random)
    {
        SignalLog log(model);
        {
            const auto guard = model.scopedBatchChanges();
            for (int left = random.bounded(6); left > 0; --left)
                (this->*m_edits[random.bounded(static_cast<quint32>(m_edits.size()))])(random);
        }
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset");
        m_wasReset = true;
    }

    /// An editing walk that answers at random, beside one through the plain nodes.
    void walk(Random& random)
    {
        // Otherwise few trees would live long.
        const std::vector<TreeWalkEdit> choice(8, TreeWalkEdit::Continue);
        std::vector<TreeWalkEdit> answers = choice;
        answers.insert(answers.end(), {TreeWalkEdit::SkipChildren, TreeWalkEdit::Delete});
        if (random.bounded(3) == 0)
            answers.push_back(TreeWalkEdit::Stop);
        QList<TreeWalkEdit> given;
        QStringList visited;
        model.traverseTree([&](const QModelIndex& index) {
            visited += *model.getData(index);
            given += answers[random.bounded(static_cast<quint32>(answers.size()))];
            return given.last();
        });
        QStringList expected;
        walk(m_root, given, expected);
        QCOMPARE(visited.join(' '), expected.join(' '));
    }
    /// False: the walk is over.
    static bool walk(Node& parent, const QList<TreeWalkEdit>& answers, QStringList& visited)
    {
        bool isOpen = true;
        for (int row = parent.count() - 1; row >= 0; --row) {
            Node& node = *parent.rows[static_cast<std::size_t>(row)];
            if (isOpen && !walk(node, answers, visited))
                return false;
            if (visited.size() == answers.size())
                return false;
            const TreeWalkEdit answer = answers[visited.size()];
            visited += node.text;
            if (answer == TreeWalkEdit::Delete)
                parent.rows.erase(parent.rows.begin() + row);
            isOpen = answer != TreeWalkEdit::SkipChildren;
        }
        return true;
    }

    bool compare()
    {
        QStringList forwards;
        if (!compareRows(m_root, {}, forwards))
            return false;
        QStringList walked;
        for (auto iterator = model.begin(); iterator != model.end(); ++iterator)
            walked += *model.getData(*iterator);
        QStringList walkedBack;
        for (auto iterator = model.rbegin(); iterator != model.rend(); ++iterator)
            walkedBack.prepend(*model.getData(*iterator));
        if (walked != forwards || walkedBack != forwards)
            return false;
        const bool arePersistentIndexesRight = m_withMoves || comparePersistentIndexes();
        remember();
        return arePersistentIndexesRight;
    }

    bool compareRows(const Node& node, const QModelIndex& index, QStringList& texts) const
    {
        bool isEqual = model.rowCount(index) == node.count();
        for (int row = 0; isEqual && row < node.count(); ++row) {
            const Node& child = *node.rows[static_cast<std::size_t>(row)];
            const QModelIndex childIndex = model.index(row, 0, index);
            texts += child.text;
            isEqual = childIndex.isValid() && childIndex.parent() == index &&
                      *model.getData(childIndex) == child.text && model.child(index, row) == childIndex &&
                      model.wantsToBeExpanded(childIndex) == child.wantsToBeExpanded &&
                      model.defaultExpandedState(childIndex) == child.defaultExpandedState &&
                      compareRows(child, childIndex, texts);
        }
        return isEqual;
    }

    bool comparePersistentIndexes()
    {
        const std::vector<Node*> living = nodes();
        return std::all_of(m_remembered.begin(), m_remembered.end(), [&](const auto& entry) {
            const bool isAlive = !m_wasReset && std::find(living.begin(), living.end(), entry.first) != living.end();
            return entry.second == (isAlive ? indexOf(entry.first) : QModelIndex());
        });
    }
    void remember()
    {
        m_remembered.clear();
        m_wasReset = false;
        if (m_withMoves)
            return;
        for (const Node* node : nodes())
            if (node->parent)
                m_remembered.emplace(node, indexOf(node));
    }

    ChangeScript m_script;
    const bool m_withMoves;
    std::vector<void (TreeScript::*)(Random&)> m_edits;
    Node m_root;
    int m_lastText = 0;
    bool m_wasReset = false;
    /// By node. A step adds one node at most outside a batch, so no address serves twice between two looks.
    std::map<const Node*, QPersistentModelIndex> m_remembered;
};
} // namespace

class TestTreeChanges : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void persistentIndexesFollowEveryAnnouncedChange()
    {
        for (quint32 seed = 1; seed <= 6; ++seed) {
            TreeScript script(seed, false);
            const QAbstractItemModelTester tester(&script.model,
                                                  QAbstractItemModelTester::FailureReportingMode::QtTest);
            QVERIFY2(script.run(400), qPrintable(QString("seed %1").arg(seed)));
        }
    }

    void rowsAreRightWithMovesAmongTheChanges()
    {
        for (quint32 seed = 1; seed <= 6; ++seed) {
            TreeScript script(seed, true);
            QVERIFY2(script.run(600), qPrintable(QString("seed %1").arg(seed)));
        }
    }
};

QTEST_APPLESS_MAIN(TestTreeChanges)
#include "tst_treechanges.moc"
