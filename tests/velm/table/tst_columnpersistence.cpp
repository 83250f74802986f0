#include "velm/table/columnpersistence.h"

#include "sourcetable.h"
#include "support/table.h"

using namespace velm;
using namespace velmtest;
using namespace velm::columnpersistence;

namespace {
/// What is stored of a column: "120@2", hidden ones with an h.
QString stored(const wxString& column, const wxString& dialog = "Layers")
{
    bool hidden = false;
    long position = 99;
    const long width = readColumnDataFromRegistry(column, -1, 99, hidden, position, dialog);
    return QString("%1@%2%3").arg(width).arg(position).arg(hidden ? QString("h") : QString());
}

NamedState column(const char* id, int position, int width, bool visible = true)
{
    return {id, {position, width, 0, visible}};
}
} // namespace

class TestColumnPersistence : public TableTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { begin("ABCD", "a1 b1 c1 d1|a2 b2 c2 d2"); }

    void positionsStepAroundColumnsThatArentThere_data()
    {
        const auto row = velmtest::columns<QList<int>, QString>("foreignWidths", "expected");
        row("a width that is no position of the table", QList{120}, "50@0 60@1 0@2h");
        row("a width is taken for a position", QList{1}, "50@0 60@2 0@3h");
        row("widths are taken in order", QList{3, 1}, "50@0 60@2 0@4h");
        row("the same width twice", QList{1, 1}, "50@0 60@3 0@4h");
        row("hidden ones don't count", QList{-1}, "50@0 60@1 0@2h");
    }
    void positionsStepAroundColumnsThatArentThere()
    {
        QFETCH(QList<int>, foreignWidths);
        for (int i = 0; i < foreignWidths.size(); ++i)
            writeColumnDataToRegistry(wxString::Format("foreign %d", i), foreignWidths[i], 70 + i, "Layers");
        // The table's own columns don't count, whatever was stored before; nor do other dialogs'.
        writeColumnDataToRegistry("B", 1, 0, "Layers");
        writeColumnDataToRegistry("foreign", 1, 0, "Blocks");
        writeAll({column("C", 2, 70, false), column("A", 0, 50), column("B", 1, 60)}, "Layers");
        QTEST(QStringList({stored("A"), stored("B"), stored("C")}).join(' '), "expected");
        if (!foreignWidths.isEmpty())
            QVERIFY(stored("foreign 0").contains("@70"));
    }

    void aColumnWithoutAnIdTakesItsPositionAllTheSame()
    {
        writeColumnDataToRegistry("foreign", 1, 0, "Layers");
        writeAll({column("A", 0, 50), column("", 1, 60), column("B", 2, 70)}, "Layers");
        QCOMPARE(stored("A") + ' ' + stored("B"), "50@0 70@3");
        QCOMPARE(getSavedColumnDataList("Layers").size(), std::size_t(3));
    }

    void aTableComesBackAsItWasSaved()
    {
        m_table->setParentId("Layers");
        m_table->moveColumn(0, 3); // B C D A
        m_table->resizeColumn(0, 41);
        m_table->setSourceColumnVisible(3, false); // B C A
        m_table->saveColumnData();
        m_store->reopen();

        SortFilterSelectModel next;
        next.setParentId("Layers");
        next.setSourceModel(&*m_source);
        QCOMPARE(columnText(next), "BCA");
        QCOMPARE(next.columnWidth(0), 41);
        QCOMPARE(next.columnWidth(2), 100);
        next.setSourceColumnVisible(3, true); // its place isn't loaded, as it is hidden
        QCOMPARE(columnText(next), "BCAD");
        QCOMPARE(next.columnWidth(3), 100); // hidden columns lose their width
        next.saveColumnData();
        next.setSourceModel(&*m_source);
        QCOMPARE(columnText(next), "BCAD");
    }

    void whatIsStoredMayNotFit_data()
    {
        // What is stored: id, width and position.
        const auto row = velmtest::columns<QString, QString, QString>("source", "stored", "columns");
        row("a new column comes first, at 0", "ABC", "A 10 0,B 10 1", "ACB");
        row("one that is gone leaves no gap", "AC", "C 10 0,B 10 1,A 10 2", "CA");
        row("negative positions hide", "ABC", "A 10 -1,B 10 0,C 10 1", "BC");
        row("unless all are", "AB", "A 10 -1,B 10 -2", "AB");
        row("huge positions are the end", "ABC", "A 10 2147483647,B 10 1,C 10 5", "BCA");
        row("the same position is in the source's order", "ABC", "A 10 1,B 10 1,C 10 0", "CAB");
        row("hidden ones stay hidden", "ABC", "A 0 0,B -10 1,C 10 2", "C");
        row("all hidden changes nothing", "AB", "A 0 0,B 0 1", "AB");
    }
    void whatIsStoredMayNotFit()
    {
        QFETCH(QString, source);
        QFETCH(QString, stored);
        for (const QString& column : stored.split(',', Qt::SkipEmptyParts)) {
            const QStringList parts = column.split(' ');
            writeColumnDataToRegistry(parts[0].toStdString(), parts[1].toInt(), parts[2].toInt(), "Layers");
        }
        SourceTable table(source, QStringList(source.split("", Qt::SkipEmptyParts)).join(' '));
        m_table->setParentId("Layers");
        m_table->setSourceModel(&table);
        QTEST(columnText(*m_table), "columns");
        QCOMPARE(cellText(*m_table).remove(' '), columnText(*m_table));
    }

    void columnsWithoutAnIdVanishBesideOthers()
    {
        (*m_source)[1].columnId.clear();
        m_table->setParentId("Layers");
        m_table->loadColumnData();
        QCOMPARE(columnText(*m_table), "ACD");
        for (int column = 0; column < 4; ++column)
            (*m_source)[column].columnId.clear();
        m_source->reset();
        m_table->loadColumnData();
        QCOMPARE(columnText(*m_table), "ABCD");
        m_table->saveColumnData();
        QVERIFY(getSavedColumnDataList("Layers").empty());
    }

    void loadingSortsAnew()
    {
        m_source->columns.initialSortColumn = 2;
        (*m_source)[2].initialSortOrder = Qt::DescendingOrder;
        writeColumnDataToRegistry("A", 0, 0, "Layers");
        m_table->setParentId("Layers");
        m_table->loadColumnData();
        QCOMPARE(cellText(*m_table), "b2 c2 d2|b1 c1 d1");
        QVERIFY(m_table->hasInitialSortColumn());
        m_table->setAscending(true);
        m_table->loadColumnData();
        QVERIFY(!m_table->ascending());
        QCOMPARE(m_table->proxySortColumn(), 1);
    }
};

QTEST_GUILESS_MAIN(TestColumnPersistence)
#include "tst_columnpersistence.moc"
