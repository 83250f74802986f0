#include "sourcetable.h"

#include "support/changescript.h"

#include <QStandardItemModel>

using namespace velm;
using namespace velmtest;

namespace {
/// Sorts and filters as the table does, with all columns where the source has them.
class Oracle : public QSortFilterProxyModel
{
public:
    Oracle() { setDynamicSortFilter(false); }
    using QSortFilterProxyModel::invalidateFilter;

    Filter* filter = nullptr;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        return filter->rowFilter(sourceModel(), row, parent);
    }
};

/// A table and the oracle on one source, under the same sorts and filters.
class Pair
{
public:
    explicit Pair(QAbstractItemModel& source) : m_source(source)
    {
        oracle.filter = &filter;
        table.setFilter(&filter);
        table.setSelectionMode(SortFilterSelectModel::Cell);
        oracle.setSourceModel(&source);
        table.setSourceModel(&source);
    }

    SortFilterSelectModel table;
    Oracle oracle;
    Filter filter;

    void sort(int sourceColumn, bool ascending)
    {
        const bool isShown = table.isSourceColumnVisible(sourceColumn);
        if (!isShown)
            table.unSort();
        else
            table.doSort(table.mapSourceColumnToProxy(sourceColumn), ascending, true);
        m_sorted = isShown ? sourceColumn : -1;
        m_ascending = ascending;
        oracle.sort(m_sorted, ascending || !isShown ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
    void turnRound()
    {
        if (m_sorted < 0)
            return;
        table.setAscending(m_ascending = !m_ascending);
        oracle.sort(m_sorted, m_ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
    void accept(int divisor)
    {
        filter.accepts = [divisor](QAbstractItemModel* source, int row, QModelIndex parent) {
            return divisor == 0 || source->index(row, 0, parent).data().toInt() % divisor != 0;
        };
        const int before = oracle.rowCount();
        Q_EMIT filter.invalidate();
        oracle.invalidateFilter();
        if (m_sorted >= 0 && oracle.rowCount() >= before)
            oracle.sort(m_sorted, oracle.sortOrder());
    }
    /// Behind a change of columns, which filters and leaves open by which one the base class sorts from then on.
    void settle(int sourceColumn)
    {
        oracle.invalidateFilter();
        sort(sourceColumn, m_ascending);
    }
    int sorted() const { return m_sorted; }

    /// Both show the same rows, and all cells come from where they should.
    bool compare(const QModelIndex& sourceParent = {}) const
    {
        const QModelIndex parent = table.mapFromSource(sourceParent);
        const QModelIndex oracleParent = oracle.mapFromSource(sourceParent);
        const int rows = table.rowCount(parent);
        if (rows != oracle.rowCount(oracleParent))
            return fail("rows", rows, oracle.rowCount(oracleParent));
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < table.columnCount(parent); ++column) {
                const QModelIndex cell = table.index(row, column, parent);
                const QModelIndex source = table.mapToSource(cell);
                if (source.row() != oracle.mapToSource(oracle.index(row, 0, oracleParent)).row())
                    return fail("row", row, source.row());
                if (source.column() != table.mapProxyColumnToSource(column) || source.parent() != sourceParent)
                    return fail("place", row, column);
                if (table.mapFromSource(source) != cell || cell.data() != source.data() || cell.parent() != parent)
                    return fail("way back", row, column);
            }
            const QModelIndex child = oracle.mapToSource(oracle.index(row, 0, oracleParent));
            if (m_source.hasChildren(child) && !compare(child))
                return false;
        }
        return true;
    }

    void select(QRandomGenerator& random)
    {
        const auto cell = [&] {
            return table.index(random.bounded(std::max(table.rowCount(), 1)),
                               random.bounded(std::max(table.columnCount(), 1)));
        };
        table.leftClickSelection(cell());
        table.shiftSelection(cell());
        table.ctrlSelection(cell());
        remember();
    }
    /// Which cells are selected, and where each stands, has been kept since the last look.
    bool keptCells()
    {
        QModelIndexList expected;
        for (const QPersistentModelIndex& source : m_selected)
            if (const QModelIndex cell = table.mapFromSource(source); cell.isValid())
                expected += cell;
        QModelIndexList selected = table.selectionModel()->selectedIndexes();
        std::sort(expected.begin(), expected.end());
        std::sort(selected.begin(), selected.end());
        const bool isKept = selected == expected;
        bool areRight = true;
        for (const auto& [cell, source] : m_cells)
            if (cell.isValid() || !source.parent().isValid())
                areRight = areRight && cell == table.mapFromSource(source);
        remember();
        return marksAreRight() &&
               (isKept || fail("selected", static_cast<int>(selected.size()), static_cast<int>(expected.size()))) &&
               (areRight || fail("persistent", 0, 0));
    }
    /// The role of every cell tells what the selection holds, in each mode.
    bool marksAreRight()
    {
        const QItemSelection selection = table.selectionModel()->selection();
        const int role = roleNumber(table, "isSelected");
        bool areRight = true;
        for (const auto mode :
             {SortFilterSelectModel::Row, SortFilterSelectModel::Column, SortFilterSelectModel::Cell}) {
            table.setSelectionMode(mode);
            for (int row = 0; row < table.rowCount(); ++row) {
                for (int column = 0; column < table.columnCount(); ++column) {
                    const bool marked = table.index(row, column).data(role).toBool();
                    areRight &= marked == std::any_of(selection.begin(), selection.end(), [&](const auto& range) {
                                    const bool hasRow = row >= range.top() && row <= range.bottom();
                                    const bool hasColumn = column >= range.left() && column <= range.right();
                                    return (hasRow || mode == SortFilterSelectModel::Column) &&
                                           (hasColumn || mode == SortFilterSelectModel::Row);
                                });
                }
            }
        }
        return areRight || fail("marks", 0, 0);
    }
    /// Takes things as they are, after a reset.
    void remember()
    {
        m_selected.clear();
        for (const QModelIndex& source : table.selectedSources())
            m_selected.emplace_back(source);
        m_cells.clear();
        rememberCells({});
    }

private:
    void rememberCells(const QModelIndex& parent)
    {
        for (int row = 0; row < table.rowCount(parent); row += 2) {
            for (int column = 0; column < table.columnCount(parent); ++column) {
                const QModelIndex cell = table.index(row, column, parent);
                m_cells.emplace_back(cell, table.mapToSource(cell));
                if (table.mapProxyColumnToSource(column) == 0 && table.hasChildren(cell))
                    rememberCells(cell);
            }
        }
    }
    static bool fail(const char* what, int left, int right)
    {
        qInfo("%s: %d, %d", what, left, right);
        return false;
    }

    QAbstractItemModel& m_source;
    int m_sorted = -1;
    bool m_ascending = true;
    std::vector<QPersistentModelIndex> m_selected;
    std::vector<std::pair<QPersistentModelIndex, QPersistentModelIndex>> m_cells;
    QAbstractItemModelTester m_tester{&table, QAbstractItemModelTester::FailureReportingMode::QtTest};
};
} // namespace

class TestTableChanges : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_store.emplace(); }
    void cleanup() { m_store.reset(); }

    void aFlatTableIsRightAfterEveryChange()
    {
        for (quint32 seed = 1; seed <= 6; ++seed)
            QVERIFY2(flatTableSurvives(seed), qPrintable(QString("seed %1").arg(seed)));
    }

    void aTreeIsRightAfterEveryChange()
    {
        for (quint32 seed = 1; seed <= 6; ++seed)
            QVERIFY2(treeSurvives(seed), qPrintable(QString("seed %1").arg(seed)));
    }

private:
    static bool flatTableSurvives(quint32 seed)
    {
        SourceTable source("ABCD");
        std::vector<int> numbers(4000); // each is used once, so that no two rows are equal
        std::iota(numbers.begin(), numbers.end(), 0);
        std::shuffle(numbers.begin(), numbers.end(), QRandomGenerator(seed));
        int lastColumn = 0;
        const auto number = [&] {
            std::rotate(numbers.begin(), numbers.begin() + 1, numbers.end());
            return QVariant(numbers.back());
        };
        source.newCell = [&](const ColumnData&, int) { return number(); };
        const auto newRow = [&] {
            SourceTable::Row row(source.columns.columns.size());
            std::generate(row.begin(), row.end(), number);
            return row;
        };
        Pair pair(source);
        SortFilterSelectModel& table = pair.table;
        const auto anyRow = [&](QRandomGenerator& random) { return random.bounded(std::max(source.rowCount(), 1)); };
        const auto anyColumn = [&](QRandomGenerator& random) { return random.bounded(source.columnCount()); };

        ChangeScript script(seed);
        const auto insert = [&](QRandomGenerator& random) {
            std::vector<SourceTable::Row> added(static_cast<std::size_t>(random.bounded(4)));
            std::generate(added.begin(), added.end(), newRow);
            if (source.rowCount() < 25)
                source.insert(random.bounded(source.rowCount() + 1), added);
        };
        script.add("insert rows", insert);
        script.add("insert more rows", insert);
        script.add("remove rows", [&](QRandomGenerator& random) {
            if (const int first = anyRow(random); first < source.rowCount())
                source.remove(first, std::min(first + random.bounded(3), source.rowCount() - 1));
        });
        script.add("move a row", [&](QRandomGenerator& random) {
            if (source.rowCount() > 0)
                source.move(anyRow(random), anyRow(random));
        });
        script.add("change a cell", [&](QRandomGenerator& random) {
            if (source.rowCount() > 0)
                source.setData(source.index(anyRow(random), anyColumn(random)), number());
        });
        script.add("another layout", [&](QRandomGenerator& random) {
            const auto column = static_cast<std::size_t>(anyColumn(random));
            source.permute(
                [=](const auto& left, const auto& right) { return left[column].toInt() < right[column].toInt(); });
        });
        script.add("reset", [&](QRandomGenerator& random) {
            if (random.bounded(5))
                return;
            source.reset([&] { source.rows.resize(source.rows.size() / 2); });
            pair.sort(-1, true);
            pair.remember();
        });
        script.add("insert a column", [&](QRandomGenerator& random) {
            if (source.columnCount() > 6)
                return;
            const int at = random.bounded(source.columnCount() + 1);
            source.insertColumns(at, {SourceTable::column(QChar(u'E' + ++lastColumn))});
            pair.settle(pair.sorted() + (at <= pair.sorted()));
        });
        script.add("remove a column", [&](QRandomGenerator& random) {
            const int column = anyColumn(random);
            if (source.columnCount() < 3)
                return;
            source.removeColumns(column, column);
            pair.settle(column == pair.sorted() ? -1 : pair.sorted() - (column < pair.sorted()));
        });
        script.add("sort", [&](QRandomGenerator& random) { pair.sort(anyColumn(random), random.bounded(2)); });
        script.add("turn round", [&](QRandomGenerator&) { pair.turnRound(); });
        script.add("filter", [&](QRandomGenerator& random) { pair.accept(random.bounded(5)); });
        script.add("select", [&](QRandomGenerator& random) { pair.select(random); });
        script.add("hover, focus and edit", [&](QRandomGenerator& random) {
            table.setHovered(random.bounded(9), random.bounded(9), random.bounded(2));
            table.setBeginEditIndex(random.bounded(-1, 9));
            table.increasePreFocusIndexColumn();
            table.increasePreFocusIndexRow();
            table.requestActiveFocusOnPrefocusedCell();
        });
        script.add("move a column", [&](QRandomGenerator& random) {
            if (table.columnCount() > 0)
                table.moveColumn(random.bounded(table.columnCount()), random.bounded(table.columnCount()));
        });
        const auto show = [&](QRandomGenerator& random) {
            const int column = anyColumn(random);
            if (table.columnCount() == 1 && table.isSourceColumnVisible(column))
                return; // the last one stays
            table.setSourceColumnVisible(column, !table.isSourceColumnVisible(column));
            pair.settle(pair.sorted());
        };
        script.add("show or hide", show);
        script.add("hide or show", show);
        script.add("show all", [&](QRandomGenerator&) {
            table.showAllColumns();
            pair.settle(pair.sorted());
        });
        script.add("restore positions", [&](QRandomGenerator& random) {
            if (random.bounded(4))
                return;
            table.restoreColumnPositions(); // a reset, which filters
            pair.settle(pair.sorted());
            pair.remember();
        });
        script.add("save and load", [&](QRandomGenerator& random) {
            if (random.bounded(4))
                return;
            table.setParentId("Changes");
            table.saveColumnData();
            const QString before = columnText(table);
            table.loadColumnData();
            QCOMPARE(columnText(table).size(), before.size());
            pair.settle(pair.sorted());
            table.setParentId({});
        });
        return script.run(300, [&] { return pair.compare() && pair.keptCells(); });
    }

    static bool treeSurvives(quint32 seed)
    {
        QStandardItemModel source(0, 3);
        int lastNumber = 0;
        Pair pair(source);
        const auto pick = [&](QRandomGenerator& random) {
            QStandardItem* item = source.invisibleRootItem();
            while (item->rowCount() > 0 && random.bounded(3))
                item = item->child(random.bounded(item->rowCount()));
            return item;
        };
        ChangeScript script(seed);
        const auto insert = [&](QRandomGenerator& random) {
            QList<QStandardItem*> row;
            for (int column = 0; column < 3; ++column) {
                row += new QStandardItem;
                row.last()->setData((++lastNumber * 7919) % 10007, Qt::DisplayRole);
            }
            QStandardItem* parent = pick(random);
            parent->insertRow(random.bounded(parent->rowCount() + 1), row);
        };
        script.add("insert", insert);
        script.add("insert more", insert);
        script.add("remove", [&](QRandomGenerator& random) {
            QStandardItem* parent = pick(random);
            if (parent->rowCount() > 0)
                parent->removeRow(random.bounded(parent->rowCount()));
        });
        script.add("change", [&](QRandomGenerator& random) {
            QStandardItem* parent = pick(random);
            if (parent->rowCount() > 0)
                parent->child(random.bounded(parent->rowCount()), random.bounded(3))
                    ->setData((++lastNumber * 7919) % 10007, Qt::DisplayRole);
        });
        script.add("another layout", [&](QRandomGenerator& random) {
            source.sort(random.bounded(3), random.bounded(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
        });
        script.add("sort", [&](QRandomGenerator& random) { pair.sort(random.bounded(3), random.bounded(2)); });
        script.add("turn round", [&](QRandomGenerator&) { pair.turnRound(); });
        script.add("filter", [&](QRandomGenerator& random) { pair.accept(random.bounded(5)); });
        script.add("move a column", [&](QRandomGenerator& random) {
            pair.table.moveColumn(random.bounded(pair.table.columnCount()), random.bounded(pair.table.columnCount()));
        });
        script.add("show or hide", [&](QRandomGenerator& random) {
            const int column = 1 + random.bounded(2); // the tree hangs on the first column
            pair.table.setSourceColumnVisible(column, !pair.table.isSourceColumnVisible(column));
            pair.settle(pair.sorted());
        });
        return script.run(250, [&] { return pair.compare() && pair.keptCells(); });
    }

    std::optional<TemporaryConfig> m_store;
};

QTEST_GUILESS_MAIN(TestTableChanges)
#include "tst_tablechanges.moc"
