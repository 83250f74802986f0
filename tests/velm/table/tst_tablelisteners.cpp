#include "sourcetable.h"

#include <QSignalSpy>
#include <QStandardItemModel>

using namespace velm;
using namespace velmtest;

namespace {
/// A filtered table of the numbers below 10000 in one column, even ones in even rows.
struct Numbers
{
    Numbers()
    {
        for (int row = 0; row < 10'000; ++row)
            source.rows.push_back({(row * 7919) % 10'000});
        table.setSourceModel(&source);
        table.setFilter(&filter);
    }
    /// Keeps the numbers that leave this rest. Told as one change of the layout, or it would take minutes.
    void accept(int divisor, int rest)
    {
        SignalLog log(table);
        filter.accepts = [=](QAbstractItemModel* model, int row, QModelIndex) {
            return model->index(row, 0).data().toInt() % divisor == rest;
        };
        Q_EMIT filter.invalidate();
        const QString told = log.take();
        QVERIFY2(told.count("layoutChanged") <= 2 && !told.contains("rows"), qPrintable(told.left(500)));
    }

    SourceTable source{"A"};
    Filter filter;
    SortFilterSelectModel table;
};
} // namespace

/// What the table does when those who hear of a change change it themselves, and what is left of former states.
class TestTableListeners : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aClickWhoseSelectionResetsTheSource()
    {
        SourceTable source("AB", "a1 b1|a2 b2");
        SortFilterSelectModel table;
        table.setSourceModel(&source);
        const auto once = std::make_shared<bool>(true);
        connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this, [&, once] {
            if (std::exchange(*once, false))
                source.reset([&] { source.rows.resize(1); });
        });
        table.leftClickSelection(1, 0);
        QVERIFY(!table.selectionModel()->currentIndex().isValid());
        QCOMPARE(table.selectedSourcesCount(), 0);
        table.shiftSelection(0, 1);
        QCOMPARE(table.selectedSourcesCount(), 1);
    }

    void rowsThatComeWhileViewsHearOfASort()
    {
        SourceTable source("A", "3|1|2");
        SortFilterSelectModel table;
        const QAbstractItemModelTester tester(&table, QAbstractItemModelTester::FailureReportingMode::QtTest);
        table.setSourceModel(&source);
        const auto once = std::make_shared<bool>(true);
        connect(&table, &QAbstractItemModel::layoutChanged, this, [&, once] {
            if (std::exchange(*once, false))
                source.insert(3, {{9}, {8}});
        });
        table.doSort(0, true);
        QCOMPARE(table.rowCount(), 5);
        table.doSort(0, true, true);
        QCOMPARE(cellText(table), "1|2|3|8|9");
    }

    void aSourceSetByWhoHearsThatAnotherIsSet()
    {
        SourceTable wide("ABC", "a1 b1 c1");
        SourceTable narrow("X", "x1|x2");
        SortFilterSelectModel table;
        const auto once = std::make_shared<bool>(true);
        connect(&table, &SortFilterSelectModel::selectionChanged, this, [&, once] {
            if (std::exchange(*once, false))
                table.setSourceModel(&narrow);
        });
        table.setSourceModel(&wide);
        QCOMPARE(table.sourceModel(), &narrow);
        QCOMPARE(cellText(table), "x1|x2");
    }

    void theSameSourceOnceMore()
    {
        SourceTable source("ABC", "a1 b1 c1");
        SortFilterSelectModel table;
        table.setSourceModel(&source);
        table.setSourceColumnVisible(1, false);
        table.setSourceModel(&source);
        QCOMPARE(cellText(table), "a1 b1 c1");
        table.moveColumn(0, 2); // B C A
        QSignalSpy changes(&table, &QAbstractItemModel::dataChanged);
        source.setData(source.index(0, 0), "new");
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.first().first().toModelIndex(), table.index(0, 2));
    }

    void cellsReadWhileColumnsGoAndCome()
    {
        SourceTable source("ABC", "a1 b1 c1");
        SortFilterSelectModel table;
        table.setSourceModel(&source);
        QCOMPARE(table.columnCount(), 3); // or nobody has asked for it yet
        QStringList read;
        connect(&table, &QAbstractItemModel::columnsRemoved, this, [&] { read += cellText(table); });
        connect(&table, &QAbstractItemModel::columnsInserted, this, [&] { read += cellText(table); });
        source.removeColumns(0, 0);
        table.setSourceColumnVisible(0, false);
        table.showAllColumns();
        QCOMPARE(read, (QStringList{"b1 c1", "c1", "b1 c1"}));
    }

    void theSortedColumnStaysWhenOneComesWhileTheOrderIsAnother()
    {
        SourceTable source("ABC", "1 2 3|2 1 2|3 3 1");
        SortFilterSelectModel table;
        table.setSourceModel(&source);
        table.doSort(2, true);
        table.moveColumn(2, 0); // C A B
        source.insertColumns(3, {SourceTable::column('D')});
        QCOMPARE(columnText(table), "CABD");
        QCOMPARE(table.sortColumn(), 2);
        source.insert(3, {{0, 0, 0, "d"}, {9, 9, 9, "d"}});
        table.setAscending(false);
        table.setAscending(true);
        QCOMPARE(cellText(table), "0 0 0 d|1 3 3 d3|2 2 1 d2|3 1 2 d1|9 9 9 d");
    }

    void wholeRowsTakeInAColumnThatComes()
    {
        SourceTable source("ABC", "a1 b1 c1|a2 b2 c2");
        SortFilterSelectModel table;
        table.setSourceModel(&source);
        table.setSourceColumnVisible(1, false);
        table.leftClickSelection(1, 0);
        table.showAllColumns();
        QVERIFY(table.selectionModel()->isSelected(table.index(1, 1)));
        QCOMPARE(table.selectedSourcesCount(), 1);
        table.rightClickSelection(1, 1); // inside the selection: keeps it
        QCOMPARE(table.selectionModel()->currentIndex(), table.index(1, 0));
    }

    void everythingSelectedAndEverySecondRowFilteredAway()
    {
        Numbers numbers;
        SortFilterSelectModel& table = numbers.table;
        table.leftClickSelection(10, 0);
        table.selectAll();
        QSignalSpy changes(&table, &SortFilterSelectModel::selectionChanged);
        numbers.accept(2, 1);
        QVERIFY(!changes.isEmpty());
        QCOMPARE(table.selectedSourcesCount(), 5000);
        QCOMPARE(table.selectionModel()->currentIndex().row(), 10); // the row at its place
        numbers.accept(1, 0);
        QCOMPARE(table.selectedSourcesCount(), 5000); // those that come again aren't selected
    }

    void aTreeWithoutBranchesIsFilteredAsOne()
    {
        QStandardItemModel source;
        for (int row = 0; row < 10'000; ++row)
            source.appendRow(new QStandardItem(QString::number(row)));
        SortFilterSelectModel table;
        table.setSourceModel(&source);
        Filter filter;
        table.setFilter(&filter);
        QCOMPARE(table.rowCount(), 10'000);
        QSignalSpy removals(&table, &QAbstractItemModel::rowsRemoved);
        filter.accepts = [](QAbstractItemModel*, int row, QModelIndex) { return row % 2 == 1; };
        Q_EMIT filter.invalidate();
        QCOMPARE(table.rowCount(), 5000);
        QCOMPARE(removals.size(), 0);
        source.item(1)->appendRow(new QStandardItem("child"));
        filter.accepts = [](QAbstractItemModel*, int row, QModelIndex) { return row % 4 == 1; };
        Q_EMIT filter.invalidate();
        QCOMPARE(table.rowCount(), 2500);
        QCOMPARE(removals.size(), 2500);
    }

    void hiddenRowsThatComeAndGoBetweenTwoFilters()
    {
        Numbers numbers;
        numbers.table.doSort(0, false);
        numbers.accept(4, 3);
        numbers.source.insert(0, {{-4}});
        numbers.source.remove(5, 5); // one of the fourth numbers
        numbers.accept(4, 0);
        QCOMPARE(numbers.table.rowCount(), 2500);
        QCOMPARE(numbers.table.index(0, 0).data(), QVariant(9996));
        for (int row = 1; row < 2500; ++row)
            QVERIFY(numbers.table.index(row - 1, 0).data().toInt() > numbers.table.index(row, 0).data().toInt());
        QCOMPARE(numbers.table.index(2499, 0).data(), QVariant(-4));
    }
};

QTEST_GUILESS_MAIN(TestTableListeners)
#include "tst_tablelisteners.moc"
