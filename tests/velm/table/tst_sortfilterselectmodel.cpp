#include "sourcetable.h"

using namespace velm;
using namespace velmtest;

namespace {
const QString sample = QStringLiteral("b 2 x|a 10 y|c 1 z");
} // namespace

class TestSortFilterSelectModel : public TableTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { begin("ABC", sample); }

    void withoutASourceThereIsNothing()
    {
        SortFilterSelectModel table;
        const QAbstractItemModelTester tester(&table, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(SortFilterSelectModel::typeId(), "SortFilterSelectModel");
        QCOMPARE(table.sortRole(), int(Qt::DisplayRole));
        QCOMPARE(table.sortCaseSensitivity(), Qt::CaseInsensitive);
        QVERIFY(table.isSortLocaleAware() && !table.dynamicSortFilter());
        QCOMPARE(table.mapProxyColumnToSource(7), 7);
        QCOMPARE(table.mapSourceColumnToProxy(-7), -7);
        QCOMPARE(table.mapProxyRowToSource(0), -1);
        QCOMPARE(table.mapSourceRowToProxy(0), -1);
        QVERIFY(!table.mapProxyIndexToSource(0, 0).isValid());
        QVERIFY(!table.headerData(0, Qt::Horizontal).isValid());
        QVERIFY(table.isInitiallyAscending(0) && !table.doSort(0, true, true));
        QVERIFY(table.roleNames().contains(-1));
        SignalLog log(table);
        table.unSort();
        table.setSortColumn(-1);
        table.saveColumnData();
        table.loadColumnData();
        table.showAllColumns();
        table.selectNextRow();
        table.selectPreviousRow();
        table.selectAll();
        table.setHovered(0, 0, true);
        table.increasePreFocusIndexColumn();
        table.setBeginEditIndex(0);
        QCOMPARE(own(log), "proxySortColumnChanged");
    }

    void rolesTakeTheFirstFreeNumbers()
    {
        const auto numbers = [this] {
            QStringList result;
            for (const char* name : {"isSelected", "isHovered", "beginedit", "isPreFocusCell", "isFocusCell"})
                result += QString::number(roleNumber(*m_table, name));
            return result.join(' ');
        };
        QCOMPARE(numbers(), "256 257 258 259 260");
        SourceTable other("A", "a");
        other.names = {{0, "display"}, {256, "first"}, {258, "second"}, {260, "third"}};
        m_table->setSourceModel(&other);
        QCOMPARE(numbers(), "257 259 261 262 263");
        QCOMPARE(m_table->roleNames().value(258), "second");
        m_table->setSourceModel(nullptr);
        QVERIFY(!m_table->roleNames().contains(256));
        QCOMPARE(m_table->roleNames().value(261), "beginedit"); // only this one keeps its number
    }

    void mapsRowsAndColumns()
    {
        m_table->doSort(0, true);
        m_table->moveColumn(0, 2); // B C A
        m_table->setSourceColumnVisible(2, false);
        QCOMPARE(cellText(*m_table), "10 a|2 b|1 c");
        for (const QModelIndex& source : {m_source->index(0, 0), m_source->index(1, 1), m_source->index(2, 0)}) {
            const QModelIndex cell = m_table->mapFromSource(source);
            QCOMPARE(m_table->mapProxyIndexToSource(cell), source);
            QCOMPARE(m_table->mapProxyIndexToSource(cell.row(), cell.column()), source);
            QCOMPARE(m_table->mapProxyRowToSource(cell.row()), source.row());
            QCOMPARE(m_table->mapSourceRowToProxy(source.row()), cell.row());
            QCOMPARE(m_table->mapSourceColumnToProxy(source.column()), cell.column());
            QCOMPARE(m_table->mapProxyColumnToSource(cell.column()), source.column());
        }
        QCOMPARE(m_table->headerData(0, Qt::Horizontal), QVariant("B"));
        QCOMPARE(m_table->headerData(1, Qt::Horizontal, ColumnIdRole), QVariant("A"));
        QVERIFY(!m_table->mapFromSource(m_source->index(0, 2)).isValid()); // hidden
        QCOMPARE(m_table->mapSourceColumnToProxy(2), 1);                   // where it would be
    }

    void badIndexesAndColumnsAreIgnored()
    {
        const SourceTable stranger("ABC", sample);
        SortFilterSelectModel other;
        other.setSourceModel(&*m_source);
        for (const QModelIndex& index :
             {QModelIndex(), stranger.index(1, 1), other.index(1, 1), m_source->index(1, 1)}) {
            QVERIFY(!m_table->mapToSource(index).isValid());
            QVERIFY(!m_table->mapProxyIndexToSource(index).isValid());
            QVERIFY(!m_table->data(index).isValid());
        }
        for (const QModelIndex& index : {QModelIndex(), stranger.index(1, 1), m_table->index(1, 1)})
            QVERIFY(!m_table->mapFromSource(index).isValid());
        SignalLog log(*m_table);
        for (const int bad : {-7, -1, 3, 99}) {
            QVERIFY(!m_table->doSort(bad, true, true));
            QCOMPARE(m_table->mapProxyColumnToSource(bad), bad);
            QCOMPARE(m_table->mapSourceColumnToProxy(bad), bad);
            QCOMPARE(m_table->mapProxyRowToSource(bad), -1);
            QCOMPARE(m_table->mapSourceRowToProxy(bad), -1);
            QVERIFY(!m_table->mapProxyIndexToSource(bad, 0).isValid());
            QVERIFY(!m_table->mapProxyIndexToSource(0, bad).isValid());
            QVERIFY(!m_table->headerData(bad, Qt::Horizontal).isValid());
            QVERIFY(m_table->isInitiallyAscending(bad));
            QVERIFY(!m_table->isSourceColumnVisible(bad));
        }
        QCOMPARE(log.take(), "");
    }

    void aSourceIsTakenOverInOrder()
    {
        (*m_source)[1].initialSortOrder = Qt::DescendingOrder;
        m_source->columns.initialSortColumn = 1;
        SortFilterSelectModel table;
        QStringList order;
        connect(&table, &QAbstractItemModel::modelReset, this, [&] { order += "reset"; });
        connect(&table, &SortFilterSelectModel::proxySortColumnChanged, this,
                [&] { order += QString("column %1").arg(table.proxySortColumn()); });
        connect(&table, &SortFilterSelectModel::selectionChanged, this, [&] { order += "selection"; });
        connect(&table, &SortFilterSelectModel::ascendingChanged, this,
                [&](bool ascending) { order += ascending ? "up" : "down"; });
        connect(&table, &SortFilterSelectModel::hasInitialSortColumnChanged, this, [&] { order += "initial"; });
        connect(&table, &SortFilterSelectModel::sortColumnChanged, this, [&] { order += "pending"; });
        table.setSortColumn(2);
        table.setSourceModel(&*m_source);
        QCOMPARE(order.join(' '), "column -1 selection reset down column 1 initial down column 2 pending");
        QCOMPARE(cellText(table), "c 1 z|a 10 y|b 2 x");
        QVERIFY(table.hasInitialSortColumn());
        order.clear();
        SourceTable other("A", "a|b");
        table.setSourceModel(&other);
        QVERIFY(!table.hasInitialSortColumn());
        QCOMPARE(order.last(), "initial"); // and nothing is pending any longer
        order.clear();
        m_source->reset(); // from which nothing arrives
        QCOMPARE(order.join(' '), "");
        table.setSourceModel(nullptr);
        QCOMPARE(order.join(' '), "column -1 selection reset");
    }

    void aResetLosesAllButTheBasesSortColumn()
    {
        m_table->doSort(1, false);
        m_table->moveColumn(0, 2);
        m_table->setSourceColumnVisible(1, false);
        m_table->resizeColumn(0, 7);
        m_table->leftClickSelection(1, 0);
        m_table->increasePreFocusIndexColumn();
        const int sorted = m_table->sortColumn();
        (*m_source)[2].initiallyVisible = false;
        SignalLog log(*m_table);
        m_source->reset();
        QCOMPARE(own(log), "proxySortColumnChanged selectionChanged");
        QCOMPARE(columnText(*m_table), "AB");
        QCOMPARE(m_table->columnWidth(0), 100);
        QCOMPARE(m_table->proxySortColumn(), -1);
        QCOMPARE(m_table->sortColumn(), sorted);
        QVERIFY(!m_table->ascending() && !m_table->hasPreFocus());
        QVERIFY(!m_table->selectionModel()->hasSelection());
        m_source->reset([this] { m_source->rows.clear(); });
        QCOMPARE(m_table->rowCount(), 0);
        m_source->reset([this] { m_source->columns = {}; });
        QCOMPARE(m_table->columnCount(), 0);
    }

    void theRowToEditIsToldByItsColumn()
    {
        const auto editable = [this](int column) {
            return m_table->index(1, column).data(roleNumber(*m_table, "beginedit"));
        };
        SignalLog log(*m_table);
        m_table->setBeginEditIndex(1);
        QCOMPARE(log.take(), "dataChanged(1,0, 1,2, [258])");
        QVERIFY(!editable(1).isValid()); // no column is editable
        m_table->setDefaultEditableColumnId("B");
        m_table->setDefaultEditableColumnId("B");
        QCOMPARE(log.take(), "defaultEditableColumnIdChanged");
        m_table->moveColumn(1, 0);
        QCOMPARE(marks(*m_table, "beginedit"), "...|x..|...");
        log.take();
        m_table->setBeginEditIndex(1);
        m_table->setBeginEditIndex(77); // stored, but there is no such row
        m_table->setBeginEditIndex(-1);
        QCOMPARE(log.take(), "");
        QVERIFY(!editable(0).isValid());
    }

    void aSourceMayGoAway()
    {
        auto source = std::make_unique<SourceTable>("AB", "a b|c d");
        m_table->setSourceModel(source.get());
        m_table->moveColumn(0, 1);
        m_table->doSort(0, false);
        m_table->selectAll();
        m_table->setHovered(1, 1, true);
        m_table->leftClickSelection(1, 0);
        m_table->increasePreFocusIndexColumn();
        m_table->requestActiveFocusOnPrefocusedCell();
        m_table->setBeginEditIndex(1);
        source.reset();
        QCOMPARE(m_table->rowCount() + m_table->columnCount(), 0);
        QVERIFY(!m_table->selectionModel()->hasSelection() && !m_table->hasPreFocus());
        m_table->setHovered(0, 0, false);
        m_table->selectNextRow();
        m_table->setAscending(true);
        m_table->setSourceModel(&*m_source);
        QCOMPARE(columnText(*m_table), "ABC");
        QCOMPARE(marks(*m_table, "isHovered"), "...|...|...");
    }
};

QTEST_GUILESS_MAIN(TestSortFilterSelectModel)
#include "tst_sortfilterselectmodel.moc"
