#include "sourcetable.h"
#include "support/table.h"

using namespace velm;
using namespace velmtest;

namespace {
class BackwardsSorter : public Sorter
{
public:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        return left.data().toString() > right.data().toString();
    }
};
} // namespace

class TestTableSorting : public TableTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { begin("ABC", "b 2 x|a 10 y|c 1 z"); }

    void sortsByTheColumnsType_data()
    {
        const auto row = velmtest::columns<QString, QVariant, QString>("cells", "type", "expected");
        const QString names = "n10|n9|N1|Mx";
        row("natural", names, 0, "Mx|N1|n9|n10");
        row("without regard to case", names, 1, "Mx|N1|n10|n9");
        row("the base's own", "b|a|c", 2, "a|b|c");
        row("the same under another number", "b|a|c", 3, "a|b|c");
        row("by value, nothing last", "10|-|9|-|1", 4, "1|9|10||");
        row("no type is by value", "10|-|9", QVariant(), "9|10|");
        row("a type that is no number is by value", "10|-|9", QVariantList{1}, "9|10|");
        row("a type as text is taken as a number", names, "1", "Mx|N1|n10|n9");
        row("disabled first", "a|zDisabled|B", 9, "zDisabled|a|B");
        row("decorations are all alike here", "b|a", 13, "b|a");
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
};

QTEST_GUILESS_MAIN(TestTableSorting)
#include "tst_tablesorting.moc"
