#include "velm/table/sortfilterselectmodel.h"

#include "sourcetable.h"

#include "support/scopes.h"
#include "support/signallog.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include <optional>

using namespace velm;
using namespace velmtest;

namespace {
const QString sample = QStringLiteral("b 2 x|a 10 y|c 1 z");

/// What of a log is the table's own: without the signals of every item model.
QString own(SignalLog& log)
{
    QStringList told = log.take().split(' ');
    told.removeIf([](const QString& entry) {
        static const QStringList names = {"selectionChanged", "proxySortColumnChanged",      "ascendingChanged",
                                          "filterChanged",    "hasInitialSortColumnChanged", "sortColumnChanged"};
        return !names.contains(entry.section('(', 0, 0));
    });
    return told.join(' ');
}

class BackwardsSorter : public Sorter
{
public:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        return left.data().toString() > right.data().toString();
    }
};
} // namespace

class TestSortFilterSelectModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_source.emplace("ABC", sample);
        m_table.emplace();
        m_tester.emplace(&*m_table, QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_table->setSourceModel(&*m_source);
    }
    void cleanup()
    {
        m_tester.reset();
        m_table.reset();
        m_source.reset();
    }

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
        QVERIFY(table.isInitiallyAscending(0));
        QVERIFY(!table.doSort(0, true, true));
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
        SortFilterSelectModel plain;
        m_source->names = plain.QSortFilterProxyModel::roleNames();
        plain.setSourceModel(&*m_source);
        plain.roleNames();
        plain.setSourceModel(nullptr);
        QVERIFY(!plain.roleNames().contains(256));
    }

    void mapsRowsAndColumns()
    {
        m_table->doSort(0, true);
        m_table->moveColumn(0, 2); // B C A
        m_table->setSourceColumnVisible(2, false);
        QCOMPARE(cellText(*m_table), "10 a|2 b|1 c");
        for (const QModelIndex& source : {m_source->index(0, 0), m_source->index(1, 1), m_source->index(2, 0)}) {
            const QModelIndex cell = m_table->mapFromSource(source);
            QCOMPARE(cell.data(), source.data());
            QCOMPARE(m_table->mapToSource(cell), source);
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

    void sortsByTheColumnsType_data()
    {
        QTest::addColumn<QString>("cells");
        QTest::addColumn<QVariant>("type");
        QTest::addColumn<QString>("expected");
        const QString names = "n10|n9|N1|Mx";
        QTest::newRow("natural") << names << QVariant(0) << "Mx|N1|n9|n10";
        QTest::newRow("without regard to case") << names << QVariant(1) << "Mx|N1|n10|n9";
        QTest::newRow("the base's own") << "b|a|c" << QVariant(2) << "a|b|c";
        QTest::newRow("the same under another number") << "b|a|c" << QVariant(3) << "a|b|c";
        QTest::newRow("numbers as their texts are natural too") << "10|9|-" << QVariant(5) << "|9|10";
        QTest::newRow("by value, nothing last") << "10|-|9|-|1" << QVariant(4) << "1|9|10||";
        QTest::newRow("an unknown type is by value") << "10|-|9" << QVariant(99) << "9|10|";
        QTest::newRow("no type is by value") << "10|-|9" << QVariant() << "9|10|";
        QTest::newRow("a type that is no number is by value") << "10|-|9" << QVariant(QVariantList{1}) << "9|10|";
        QTest::newRow("a type as text is taken as a number") << names << QVariant("1") << "Mx|N1|n10|n9";
        QTest::newRow("disabled first") << "a|zDisabled|B" << QVariant(9) << "zDisabled|a|B";
        QTest::newRow("decorations are all alike here") << "b|a" << QVariant(13) << "b|a";
    }
    void sortsByTheColumnsType()
    {
        QFETCH(QString, cells);
        QFETCH(QVariant, type);
        SourceTable source("A", cells);
        source.headers[{0, ColumnSortTypeRole}] = type;
        m_table->setSourceModel(&source);
        QVERIFY(m_table->doSort(0, true));
        QTEST(cellText(*m_table), "expected");
    }

    void sortingIsToldUnlessItStands()
    {
        SignalLog log(*m_table);
        QVERIFY(m_table->doSort(0, true));
        QCOMPARE(own(log), "ascendingChanged(true) proxySortColumnChanged");
        QVERIFY(!m_table->doSort(0, true));
        QCOMPARE(log.take(), "");
        QVERIFY(m_table->setData(m_table->index(0, 0), "d", Qt::EditRole));
        QCOMPARE(cellText(*m_table).left(1), "d"); // rows don't move by themselves
        log.take();
        QVERIFY(m_table->doSort(0, true, true));
        QCOMPARE(own(log), "ascendingChanged(true) proxySortColumnChanged");
        QCOMPARE(cellText(*m_table), "b 2 x|c 1 z|d 10 y");
        m_table->setAscending(false);
        QCOMPARE(own(log), "ascendingChanged(false)");
        QCOMPARE(cellText(*m_table), "d 10 y|c 1 z|b 2 x");
        m_table->setAscending(false);
        QCOMPARE(log.take(), "");
        m_table->unSort();
        QCOMPARE(own(log), "proxySortColumnChanged");
        QCOMPARE(m_table->sortColumn(), -1);
        QCOMPARE(cellText(*m_table), "b 2 x|d 10 y|c 1 z");
        // Nothing to turn round, and told all the same.
        m_table->setAscending(false);
        QCOMPARE(own(log), "ascendingChanged(false)");
        QVERIFY(m_table->ascending());
        QVERIFY(m_table->setProperty("sortColumn", 1));
        QCOMPARE(own(log), "ascendingChanged(true) proxySortColumnChanged sortColumnChanged");
        m_table->setSortColumn(9);
        QCOMPARE(own(log), "sortColumnChanged"); // the base class takes any column
        m_table->setSortColumn(-1);
        QCOMPARE(own(log), "sortColumnChanged");
        QCOMPARE(m_table->proxySortColumn(), 1);
    }

    void aHiddenSortColumnKeepsItsPlace()
    {
        m_table->doSort(1, true);
        m_table->setSourceColumnVisible(1, false);
        QCOMPARE(m_table->proxySortColumn(), 1);
        QVERIFY(m_table->doSort(1, true)); // C now
        QCOMPARE(cellText(*m_table), "b x|a y|c z");
        m_table->setSourceColumnVisible(0, false);
        QCOMPARE(m_table->proxySortColumn(), 0);
        m_table->doSort(0, false);
        QCOMPARE(cellText(*m_table), "z|y|x");
        QCOMPARE(m_table->sortColumn(), 0); // the base class counts visible columns in the source's order
    }

    void theSourceMaySortItself()
    {
        SignalLog log(*m_table);
        m_table->setSortSourceModel(true);
        m_table->setSortSourceModel(true);
        QCOMPARE(log.take(), "sortSourceModelChanged");
        m_table->moveColumn(0, 2); // B C A
        m_table->leftClickSelection(0, 2);
        m_table->doSort(2, false);
        QCOMPARE(m_source->sorts.join(' '), "0-");
        QCOMPARE(cellText(*m_table), "1 z c|2 x b|10 y a");
        QCOMPARE(marks(*m_table, "isSelected"), "...|xxx|...");
        for (int row = 0; row < 3; ++row)
            QCOMPARE(m_table->mapProxyRowToSource(row), row);
        QVERIFY(!m_table->ascending());
        QVERIFY(!m_table->doSort(2, false));
        m_table->setAscending(true);
        QCOMPARE(m_table->proxySortColumn(), 2);
        m_table->unSort();
        QCOMPARE(m_source->sorts.join(' '), "0- 0+ -1+");
        QVERIFY(m_table->ascending());
        QCOMPARE(m_table->sortColumn(), -1);
    }

    void aSorterTakesThePlaceOfAllComparisons()
    {
        auto sorter = std::make_unique<BackwardsSorter>();
        SignalLog log(*m_table);
        m_table->setSorter(sorter.get());
        QCOMPARE(log.take(), "");
        QCOMPARE(m_table->sorter(), sorter.get());
        m_table->doSort(0, true);
        QCOMPARE(cellText(*m_table), "c 1 z|b 2 x|a 10 y");
        sorter.reset();
        m_table->doSort(0, true, true);
        QCOMPARE(cellText(*m_table), "a 10 y|b 2 x|c 1 z");
    }

    void rowsThatComeBackAreSorted()
    {
        Filter filter;
        SignalLog log(*m_table);
        m_table->setFilter(&filter);
        QCOMPARE(log.take(), "filterChanged");
        m_table->setFilter(&filter);
        m_table->setFilter(nullptr); // a filter stays
        QCOMPARE(log.take(), "");
        QCOMPARE(m_table->filter(), &filter);
        m_table->doSort(0, true);
        log.take();
        filter.hide({"a"});
        QCOMPARE(own(log), "");
        QCOMPARE(cellText(*m_table), "b 2 x|c 1 z");
        m_source->setData(m_source->index(0, 0), "d"); // not sorted in, for now
        filter.hide({"c"});
        QCOMPARE(own(log), "ascendingChanged(true) proxySortColumnChanged");
        QCOMPARE(cellText(*m_table), "a 10 y|d 2 x");
        filter.hide({"a", "c"});
        QCOMPARE(own(log), "");
        filter.hide({});
        QCOMPARE(cellText(*m_table), "a 10 y|c 1 z|d 2 x");
        m_table->unSort();
        log.take();
        filter.hide({"b"});
        QCOMPARE(own(log), ""); // there is no column to sort by
    }

    void anOldFilterIsStillListenedTo()
    {
        Filter first;
        auto second = std::make_unique<Filter>();
        m_table->setFilter(&first);
        m_table->setFilter(second.get());
        m_table->doSort(0, true);
        second->accepts = [](QAbstractItemModel*, int row, QModelIndex) { return row != 1; };
        QCOMPARE(m_table->rowCount(), 3);
        Q_EMIT first.invalidate();
        QCOMPARE(cellText(*m_table), "b 2 x|c 1 z");
        second.reset(); // gone: all rows
        Q_EMIT first.invalidate();
        QCOMPARE(m_table->rowCount(), 3);
    }

    /// Told as one change of the layout, or it would take minutes.
    void aFilterThatChangesInVeryManyPlaces()
    {
        const int count = 9000;
        SourceTable source("A");
        for (int row = 0; row < count; ++row)
            source.rows.push_back({(row * 7919) % count});
        m_table->setSourceModel(&source);
        Filter filter;
        m_table->setFilter(&filter);
        m_table->doSort(0, false);
        m_table->leftClickSelection(count - 5, 0); // the row of the number 4
        m_table->ctrlSelection(count - 6, 0);
        const auto numbers = [&] {
            std::vector<int> result;
            for (int row = 0; row < m_table->rowCount(); ++row)
                result.push_back(m_table->index(row, 0).data().toInt());
            return result;
        };
        const auto accept = [&](int divisor) {
            filter.accepts = [=](QAbstractItemModel* model, int row, QModelIndex) {
                return model->index(row, 0).data().toInt() % divisor == 0;
            };
            SignalLog log(*m_table);
            Q_EMIT filter.invalidate();
            const QString told = log.take();
            QVERIFY2(told.count("layoutChanged") <= 2 && !told.contains("rows"), qPrintable(told.left(500)));
            std::vector<int> expected;
            for (int number = count - 1; number >= 0; --number)
                if (number % divisor == 0)
                    expected.push_back(number);
            QCOMPARE(numbers(), expected);
        };
        accept(2);
        QCOMPARE(m_table->selectedSources().size(), 1); // 4 stayed, 5 went
        QCOMPARE(m_table->selectedSources().first().data(), QVariant(4));
        accept(4);
        accept(1);
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

private:
    std::optional<SourceTable> m_source;
    std::optional<SortFilterSelectModel> m_table;
    std::optional<QAbstractItemModelTester> m_tester;
};

QTEST_GUILESS_MAIN(TestSortFilterSelectModel)
#include "tst_sortfilterselectmodel.moc"
