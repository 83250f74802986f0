#include "sourcetable.h"
#include "support/table.h"

#include <limits>

using namespace velm;
using namespace velmtest;

namespace {
const QString sample = QStringLiteral("a1 b1 c1 d1|a2 b2 c2 d2");

/// A column that isn't shown at first.
ColumnData hidden(ColumnData column)
{
    column.initiallyVisible = false;
    return column;
}
} // namespace

class TestTableColumns : public TableTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { begin("ABCD", sample); }

    void columnsMove()
    {
        m_table->selectionModel()->setCurrentIndex(m_table->index(1, 1), QItemSelectionModel::Current);
        SignalLog log(*m_table);
        const auto move = [&](int from, int to, const char* columns, int destination) {
            m_table->moveColumn(from, to);
            const QString text = QString("(-, %1, %1, -, %2)").arg(from).arg(destination);
            QCOMPARE(log.take(), "columnsAboutToBeMoved" + text + " columnsMoved" + text + " proxySortColumnChanged");
            QCOMPARE(columnText(*m_table), columns);
            QCOMPARE(cellText(*m_table).section('|', 0, 0).remove('1').remove(' ').toUpper(), columns);
            QCOMPARE(m_table->selectionModel()->currentIndex().data(), QVariant("b2"));
        };
        move(0, 2, "BCAD", 3);
        move(2, 0, "ABCD", 0);
        move(1, 3, "ACDB", 4);
    }

    void aMoveThatIsNoneSaysSo()
    {
        SignalLog log(*m_table);
        m_table->moveColumn(1, 1);
        m_table->moveColumn(-1, -1);
        for (const int bad : {-1, 4, 99}) {
            QTest::ignoreMessage(QtDebugMsg, qPrintable(QString("move from column, %1 , is not valid").arg(bad)));
            m_table->moveColumn(bad, 0);
            QTest::ignoreMessage(QtDebugMsg, qPrintable(QString("move to column, %1 , is not valid").arg(bad)));
            m_table->moveColumn(0, bad);
        }
        QCOMPARE(log.take(), "");
    }

    void theLastColumnCantBeHidden()
    {
        for (int column = 0; column < 3; ++column)
            m_table->setSourceColumnVisible(column, false);
        SignalLog log(*m_table);
        m_table->setSourceColumnVisible(3, false);
        m_table->setSourceColumnVisible(0, false); // nor can one that is hidden already be told of
        QCOMPARE(log.take(), "");
        QCOMPARE(columnText(*m_table), "D");
        for (const int bad : {-1, 4, 99}) {
            m_table->setSourceColumnVisible(bad, true);
            m_table->setSourceColumnVisible(bad, false);
        }
        QCOMPARE(log.take(), "");
        m_table->setSourceColumnVisible(3, true); // told also when nothing changes
        QCOMPARE(log.take(), "proxySortColumnChanged");
    }

    void aColumnComesBackWhereItWas()
    {
        m_table->moveColumn(3, 0); // D A B C
        m_table->setSourceColumnVisible(0, false);
        QCOMPARE(columnText(*m_table), "DBC");
        QVERIFY(!m_table->isSourceColumnVisible(0));
        m_table->setSourceColumnVisible(0, true);
        QCOMPARE(columnText(*m_table), "DABC");
        m_table->setSourceColumnVisible(2, false); // was at 3
        m_table->setSourceColumnVisible(3, false);
        m_table->setSourceColumnVisible(1, false);
        m_table->setSourceColumnVisible(2, true); // 3 is no place any more
        QCOMPARE(columnText(*m_table), "AC");
        SignalLog log(*m_table);
        m_table->showAllColumns();
        QCOMPARE(cellText(*m_table), "d1 a1 b1 c1|d2 a2 b2 c2");
        QVERIFY(log.take().endsWith("proxySortColumnChanged"));
        m_table->showAllColumns();
        QCOMPARE(log.take(), "proxySortColumnChanged");
    }

    void positionsAreRestoredByAReset()
    {
        m_table->moveColumn(3, 0);
        m_table->moveColumn(2, 1);
        m_table->setSourceColumnVisible(2, false);
        QCOMPARE(columnText(*m_table), "DBA");
        SignalLog log(*m_table);
        m_table->restoreColumnPositions();
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset proxySortColumnChanged");
        QCOMPARE(columnText(*m_table), "ABD");
        QCOMPARE(cellText(*m_table), "a1 b1 d1|a2 b2 d2");
    }

    void widths()
    {
        SignalLog log(*m_table);
        (*m_source)[0].proportionalSize = 2;
        (*m_source)[1].proportionalSize = -3;
        (*m_source)[2].sizeHint = {55, 0};
        (*m_source)[3].sizeHint = {0, 9};
        m_source->reset();
        m_table->moveColumn(0, 2); // B C A D
        log.take();
        const auto all = [&] {
            QStringList result;
            for (int column = 0; column < m_table->columnCount(); ++column)
                result +=
                    QString("%1/%2").arg(m_table->columnWidth(column)).arg(m_table->columnProportionalWidth(column));
            return result.join(' ');
        };
        QCOMPARE(all(), "100/0 55/0 100/2 100/0");
        m_table->resizeColumn(2, -20); // taken as it is
        m_table->setColumnWidth(3, -20);
        m_table->setColumnWidth(1, 0);
        for (const int bad : {-1, 4, 99}) {
            m_table->resizeColumn(bad, 1);
            QCOMPARE(m_table->columnWidth(bad), 100);
            QCOMPARE(m_table->columnProportionalWidth(bad), 0);
        }
        QCOMPARE(all(), "100/0 0/0 -20/2 100/0");
        QCOMPARE(m_table->naturalWidth(), 180);
        QCOMPARE(m_table->proportionalWidth(), 2);
        m_table->setSourceColumnVisible(0, false);
        QCOMPARE(m_table->naturalWidth(), 200);
        QCOMPARE(m_table->proportionalWidth(), 0);
        QVERIFY(!log.take().contains("data"));
        QCOMPARE(SortFilterSelectModel().naturalWidth() + SortFilterSelectModel().proportionalWidth(), 0);
    }

    void initialVisibilityIsABool()
    {
        for (const auto& [value, columns] : {std::pair<QVariant, QString>(false, "ACD"),
                                             {true, "ABCD"},
                                             {0, "ABCD"},
                                             {"false", "ABCD"},
                                             {{}, "ABCD"}}) {
            m_source->headers[{1, ColumnInitiallyVisibleRole}] = value;
            m_source->reset();
            QCOMPARE(columnText(*m_table), columns);
        }
    }

    void columnsComeAndGo_data()
    {
        // By the source column that is sorted.
        const auto row =
            velmtest::columns<int, int, int, int, int>("sorted", "first", "count", "behindInsert", "behindRemove");
        // Exact for one column only.
        row("one before", 2, 1, 1, 3, 1);
        row("one in its place", 2, 2, 1, 3, -1);
        row("one behind", 1, 2, 1, 1, 1);
        row("two at the beginning", 3, 0, 2, 3, 3);
        row("two with it among them", 2, 1, 2, 2, -1);
        row("three before", 3, 0, 3, 2, 4);
    }
    void columnsComeAndGo()
    {
        QFETCH(int, sorted);
        QFETCH(int, first);
        QFETCH(int, count);
        std::vector<ColumnData> added;
        for (int i = 0; i < count; ++i)
            added.push_back(SourceTable::column(QChar(u'X' + i)));
        m_table->doSort(sorted, true);
        SignalLog log(*m_table);
        m_source->insertColumns(first, added);
        QVERIFY(log.take().endsWith("proxySortColumnChanged"));
        QTEST(m_table->proxySortColumn(), "behindInsert");
        QCOMPARE(columnText(*m_table), QString("ABCD").insert(first, QString("XYZ").left(count)));

        m_table->unSort();
        m_source->removeColumns(first, first + count - 1);
        QCOMPARE(m_table->proxySortColumn(), -1);
        m_table->doSort(sorted, true);
        log.take();
        m_source->removeColumns(first, first + count - 1);
        QVERIFY(log.take().endsWith("proxySortColumnChanged"));
        QTEST(m_table->proxySortColumn(), "behindRemove");
        QCOMPARE(columnText(*m_table), QString("ABCD").remove(first, count));
    }

    void insertedColumnsStandBehindTheShownOnesBefore()
    {
        m_table->moveColumn(3, 0);
        m_table->setSourceColumnVisible(0, false); // D B C
        m_table->resizeColumn(1, 33);
        m_table->increasePreFocusIndexColumn();
        ColumnData wide = SourceTable::column('X');
        wide.sizeHint = {70, 0};
        m_source->insertColumns(2, {wide, hidden(SourceTable::column('Y')), SourceTable::column('Z')});
        QCOMPARE(columnText(*m_table), "DXBZC");
        QCOMPARE(m_table->columnWidth(1), 70);
        QVERIFY(!m_table->hasPreFocus());
        QCOMPARE(cellText(*m_table).section('|', 1).left(5), "d2 x2");
        m_table->showAllColumns();
        QCOMPARE(m_table->columnCount(), 7);
        m_source->insertColumns(7, {SourceTable::column('E')});
        QCOMPARE(columnText(*m_table).right(1), "E");
    }

    void removedColumnsAreSavedAndComeBackAsTheyWere()
    {
        m_table->setParentId("Layers");
        m_table->moveColumn(1, 3); // A C D B
        m_table->resizeColumn(3, 42);
        m_table->setSourceColumnVisible(2, false); // A D B
        m_source->removeColumns(1, 2);
        QCOMPARE(columnText(*m_table), "AD");
        bool isHidden = false;
        long position = 0;
        QCOMPARE(readColumnDataFromRegistry("B", 1, 0, isHidden, position, "Layers"), 42L);
        QCOMPARE(position, 2L);
        QVERIFY(!isHidden);
        QCOMPARE(readColumnDataFromRegistry("C", 1, 0, isHidden, position, "Layers"), 0L);
        QCOMPARE(position, 1L);
        QVERIFY(isHidden);
        QCOMPARE(getSavedColumnDataList("Layers").size(), std::size_t(2)); // and no others
        m_source->insertColumns(1, {SourceTable::column('B'), SourceTable::column('C')});
        QCOMPARE(columnText(*m_table), "ADB");
        QCOMPARE(m_table->columnWidth(2), 42);
        // Stored nonsense is held within the table.
        for (const int nonsense : {-7, std::numeric_limits<int>::max()}) {
            writeColumnDataToRegistry("X", 10, nonsense, "Layers");
            m_source->insertColumns(0, {SourceTable::column('X')});
            QCOMPARE(columnText(*m_table), nonsense < 0 ? "XADB" : "ADBX");
            m_source->removeColumns(0, 0);
        }
    }

    void changedCellsAreToldWhereTheyStand_data()
    {
        // The order is of the shown source columns, the runs are of the table's.
        const auto row = velmtest::columns<QString, int, int, QStringList>("order", "first", "last", "runs");
        row("a hidden one left out", "023", 0, 2, {"0 1"});
        row("apart", "0213", 0, 1, {"0 0", "2 2"});
        row("apart with one hidden", "310", 1, 3, {"0 1"});
        row("all hidden", "30", 1, 2, {});
    }
    void changedCellsAreToldWhereTheyStand()
    {
        QFETCH(QString, order);
        QFETCH(int, first);
        QFETCH(int, last);
        QFETCH(QStringList, runs);
        m_source->insert(2, {{"0", "b3", "c3", "d3"}});
        for (int source = 0; source < 4; ++source)
            if (!order.contains(QString::number(source)))
                m_table->setSourceColumnVisible(source, false);
        for (int place = 0; place < order.size(); ++place)
            m_table->moveColumn(m_table->mapSourceColumnToProxy(order[place].digitValue()), place);
        m_table->doSort(m_table->mapSourceColumnToProxy(0), true); // the source's last row comes first
        QStringList cells;
        QStringList headers;
        for (const QString& run : runs) {
            const QString left = run.section(' ', 0, 0);
            const QString right = run.section(' ', 1, 1);
            cells += QString("dataChanged(1,%1, 2,%2, [0 8])").arg(left, right);
            headers += QString("headerDataChanged(1, %1, %2)").arg(left, right);
        }
        SignalLog log(*m_table);
        Q_EMIT m_source->dataChanged(m_source->index(0, first), m_source->index(1, last), {0, 8});
        QCOMPARE(log.take(), cells.join(' '));
        Q_EMIT m_source->headerDataChanged(Qt::Horizontal, first, last);
        QString told = log.take();
        QVERIFY(!told.isEmpty() == !headers.isEmpty());
        QCOMPARE(told.count("headerDataChanged"), headers.size());
        for (const QString& run : runs)
            QVERIFY2(told.contains(", " + run.section(' ', 0, 0) + ", " + run.section(' ', 1, 1) + ")"),
                     qPrintable(told));
        // What isn't a range of the source tells nothing, and leaves nothing behind.
        Q_EMIT m_source->dataChanged({}, {});
        QCOMPARE(log.take(), "");
        Q_EMIT m_source->dataChanged(m_source->index(0, first), m_source->index(1, last), {0, 8});
        QCOMPARE(log.take(), cells.join(' '));
    }
};

QTEST_GUILESS_MAIN(TestTableColumns)
#include "tst_tablecolumns.moc"
