#include "velm/models/prunedtreemodel.h"

#include "stringtree.h"

#include "support/changescript.h"
#include "support/rowtext.h"
#include "support/signallog.h"
#include "support/table.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include <vector>

using namespace velm;
using velmtest::rowText;
using velmtest::SignalLog;
using velmtest::StringTree;

namespace {
const QString sample = QStringLiteral("A(a1 a2(x(deep) y)) B(b1)");

/// The rows of a proxy that hang together: parents, and the way to the source and back.
bool isConsistent(const PrunedTreeModel& model, const QModelIndex& parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (!index.isValid() || index.parent() != parent || model.mapFromSource(model.mapToSource(index)) != index ||
            !isConsistent(model, index))
            return false;
    }
    return true;
}

QList<QModelIndex> rowsBelow(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    QList<QModelIndex> rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        rows += model.index(row, 0, parent);
        rows += rowsBelow(model, rows.last());
    }
    return rows;
}
} // namespace

class TestPrunedTreeModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_source.emplace(sample);
        m_model.emplace();
        m_tester.emplace(&*m_model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_model->setSourceModel(&*m_source);
    }

    void cleanup()
    {
        m_tester.reset();
        m_model.reset();
        m_source.reset();
    }

    void theRootsChildrenAreTheTopRows()
    {
        QCOMPARE(rowText(*m_model), sample);
        m_model->setRootIndex(m_source->at("a2"));
        QCOMPARE(m_model->rootIndex(), m_source->at("a2"));
        QCOMPARE(rowText(*m_model), "x(deep) y");
        QVERIFY(isConsistent(*m_model));
        QVERIFY(!m_model->index(2, 0).isValid());
        m_model->setRootIndex(m_source->at("b1"));
        QCOMPARE(rowText(*m_model), "");
        m_model->setRootIndex({});
        QCOMPARE(rowText(*m_model), sample);
    }

    void theCountIsThatOfTheRootAndItsSiblings()
    {
        QCOMPARE(m_model->count(), 2);
        m_source->appendItem({}, "C");
        m_model->setRootIndex(m_source->at("B"));
        QCOMPARE(m_model->count(), 3);
        m_model->setRootIndex(m_source->at("b1"));
        QCOMPARE(m_model->property("count"), QVariant(1));
    }

    void withoutASourceThereIsNothing()
    {
        PrunedTreeModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(!model.rootIndex().isValid());
        QCOMPARE(model.count(), 0);
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(!model.index(0, 0).isValid());
        QVERIFY(!model.parent(m_source->at("a1")).isValid());
        model.setRootIndex(m_source->at("a2"));
        QVERIFY(!model.rootIndex().isValid());
        QCOMPARE(model.rowCount(), 0);
        // The root was kept for the source to come.
        model.setSourceModel(&*m_source);
        QCOMPARE(rowText(model), "x(deep) y");
    }

    void aNewRootIsAResetAndThenTold()
    {
        SignalLog log(*m_model);
        m_model->setRootIndex({});
        QCOMPARE(log.take(), "");
        QVERIFY(m_model->setProperty("rootIndex", m_source->at("A")));
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset rootIndexChanged countChanged");
        // The row moves on and is still the present root.
        m_source->insertItem({}, 0, "0");
        log.take();
        m_model->setRootIndex(m_source->at("A"));
        QCOMPARE(log.take(), "");
    }

    void aChangeIsSignalledWhereItIsSeen_data()
    {
        const auto row = velmtest::columns<QString, QString, QString>("root", "parent", "place");
        row("without a root nothing is, not on the top level", "", "", "");
        row("without a root nothing is, not below", "", "A", "");
        row("right under the root", "a2", "a2", "-");
        row("deeper", "a2", "x", "0,0");
        row("under a sibling of the root", "a2", "a1", "");
        row("beside the root", "a2", "A", "");
        row("on the source's top level", "a2", "", "");
    }
    void aChangeIsSignalledWhereItIsSeen()
    {
        QFETCH(QString, root);
        QFETCH(QString, parent);
        QFETCH(QString, place);
        m_model->setRootIndex(m_source->at(root));
        const QString rows = rowText(*m_model);
        SignalLog log(*m_model);
        const auto expected = [&](const QString& change) {
            return place.isEmpty()
                       ? QStringLiteral("countChanged")
                       : QStringLiteral("rowsAboutToBe%1(%2, 0, 0) rows%1(%2, 0, 0) countChanged").arg(change, place);
        };
        m_source->insertItem(m_source->at(parent), 0, "new");
        QCOMPARE(log.take(), expected("Inserted"));
        QVERIFY(isConsistent(*m_model));
        m_source->deleteItem(m_source->at(parent), 0);
        QCOMPARE(log.take(), expected("Removed"));
        QCOMPARE(rowText(*m_model), rows);
    }

    void aRangeGoesAtOnce()
    {
        m_model->setRootIndex(m_source->at("A"));
        SignalLog log(*m_model);
        m_source->deleteChildren(m_source->at("A"));
        QCOMPARE(log.take(), "rowsAboutToBeRemoved(-, 0, 1) rowsRemoved(-, 0, 1) countChanged");
        m_source->beginBatchChanges();
        m_source->endBatchChanges();
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset countChanged");
    }

    void whenTheRootGoesTheSourcesTopLevelIsSeen_data()
    {
        const auto row = velmtest::columns<QString, QString>("removed", "rows");
        row("the root itself", "a2", "A(a1) B(b1)");
        row("the row above it", "A", "B(b1)");
    }
    void whenTheRootGoesTheSourcesTopLevelIsSeen()
    {
        QFETCH(QString, removed);
        m_model->setRootIndex(m_source->at("a2"));
        SignalLog log(*m_model);
        m_source->deleteItem(m_source->at(removed).parent(), m_source->at(removed));
        QCOMPARE(log.take(), "countChanged");
        QVERIFY(!m_model->rootIndex().isValid());
        QTEST(rowText(*m_model), "rows");
        QVERIFY(isConsistent(*m_model));
    }

    void anotherSourceIsShownAlone()
    {
        StringTree other("C(c1) D(d1)");
        SignalLog log(*m_model);
        m_model->setSourceModel(&other);
        QCOMPARE(log.take().section(' ', -1), "countChanged");
        QCOMPARE(rowText(*m_model), "C(c1) D(d1)");
        m_model->setRootIndex(other.at("D"));
        log.take();
        m_source->appendItem(m_source->at("A"), "a3");
        m_source->reset();
        QCOMPARE(log.take(), "");
        other.appendItem(other.at("D"), "d2");
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 1, 1) rowsInserted(-, 1, 1) countChanged");
        // The same source once more doesn't count twice.
        m_model->setSourceModel(&other);
        log.take();
        other.appendItem(other.at("D"), "d3");
        QCOMPARE(log.take(), "rowsAboutToBeInserted(-, 2, 2) rowsInserted(-, 2, 2) countChanged");
        m_model->setSourceModel(nullptr);
        QVERIFY(!log.take().contains("countChanged"));
        QCOMPARE(m_model->rowCount(), 0);
        // One that was set twice and goes is let go.
        auto third = std::make_unique<StringTree>("E(e1)");
        m_model->setRootIndex({});
        m_model->setSourceModel(third.get());
        m_model->setSourceModel(third.get());
        third.reset();
        QCOMPARE(m_model->sourceModel(), nullptr);
        QCOMPARE(m_model->rowCount(), 0);
    }

    void aTopRowOfAnotherSourceTakesTheRootsPlace()
    {
        StringTree other("C(c1) D(d1 d2)");
        m_model->setRootIndex(m_source->at("B"));
        m_model->setSourceModel(&other);
        QCOMPARE(m_model->rootIndex(), other.at("D"));
        QCOMPARE(rowText(*m_model), "d1 d2");
        m_tester.reset();
        m_source.reset();
        QCOMPARE(rowText(*m_model), "C(c1) D(d1 d2)");
        m_model.reset();
    }

    void theBranchIsRightAfterEveryChange()
    {
        for (quint32 seed = 1; seed <= 6; ++seed)
            QVERIFY2(survivesChanges(seed), qPrintable(QString("seed %1").arg(seed)));
    }

private:
    bool survivesChanges(quint32 seed)
    {
        StringTree& source = *m_source;
        source.reset();
        source.fill(sample);
        QPersistentModelIndex root = source.at("a2");
        m_model->setRootIndex(root);
        int lastText = 0;
        const auto pick = [&](QRandomGenerator& random) {
            const QList<QModelIndex> rows = rowsBelow(source);
            // Half of the changes happen in the branch.
            const QList<QModelIndex> branch = rowsBelow(source, root) << root;
            const QList<QModelIndex>& choice = root.isValid() && random.bounded(2) ? branch : rows;
            const int number = random.bounded(-1, static_cast<int>(choice.size()));
            return number < 0 ? QModelIndex() : choice[number];
        };
        velmtest::ChangeScript script(seed);
        const auto insert = [&](QRandomGenerator& random) {
            const QModelIndex parent = pick(random);
            if (rowsBelow(source).size() < 40)
                source.insertItem(parent, random.bounded(source.rowCount(parent) + 1), QString::number(++lastText));
        };
        script.add("insert", insert);
        script.add("insert once more", insert);
        script.add("delete", [&](QRandomGenerator& random) {
            const QModelIndex row = pick(random);
            source.deleteItem(row.parent(), row);
        });
        script.add("delete children", [&](QRandomGenerator& random) {
            if (const QModelIndex row = pick(random); row.isValid())
                source.deleteChildren(row);
        });
        // Changes of values outside the branch are handed on as well, for rows that the tester can't find.
        script.add("change", [&](QRandomGenerator& random) {
            const QList<QModelIndex> rows = rowsBelow(source, root);
            if (!rows.isEmpty())
                source.setData(rows[random.bounded(static_cast<int>(rows.size()))], QString::number(++lastText));
        });
        // Pairs of a row here and its row in the source.
        std::vector<std::pair<QPersistentModelIndex, QPersistentModelIndex>> pairs;
        script.add("another root", [&](QRandomGenerator& random) {
            pairs.clear();
            root = pick(random);
            m_model->setRootIndex(root);
        });
        script.add("batch", [&](QRandomGenerator& random) {
            if (random.bounded(4))
                return;
            const auto batch = source.scopedBatchChanges();
            source.reset();
            source.fill(sample);
        });

        return script.run(400, [&] {
            const bool isWhole =
                m_model->rootIndex() == root && rowText(*m_model) == rowText(source, 0, root) && isConsistent(*m_model);
            bool isPaired = true;
            // Once the root is gone, rows go and come unannounced.
            if (root.isValid())
                for (const auto& [row, sourceRow] : pairs)
                    isPaired = isPaired && m_model->mapToSource(row) == sourceRow;
            pairs.clear();
            if (root.isValid())
                for (const QModelIndex& row : rowsBelow(*m_model))
                    pairs.emplace_back(row, m_model->mapToSource(row));
            return isWhole && isPaired;
        });
    }

    std::optional<StringTree> m_source;
    std::optional<PrunedTreeModel> m_model;
    std::optional<QAbstractItemModelTester> m_tester;
};

QTEST_APPLESS_MAIN(TestPrunedTreeModel)
#include "tst_prunedtreemodel.moc"
