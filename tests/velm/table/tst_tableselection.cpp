#include "sourcetable.h"

#include "support/table.h"
#include "velm/models/stringtree.h"

using namespace velm;
using namespace velmtest;

namespace {
using Mode = SortFilterSelectModel::SelectionMode;
using Table = SortFilterSelectModel;

/// A table of a tree.
struct Tree
{
    explicit Tree(const QString& text) : source(text) { table.setSourceModel(&source); }
    QModelIndex at(const QString& text) const { return table.mapFromSource(source.at(text)); }

    StringTree source;
    Table table;
    QAbstractItemModelTester tester{&table, QAbstractItemModelTester::FailureReportingMode::QtTest};
};
} // namespace

class TestTableSelection : public TableTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { begin("ABC", "a1 b1 c1|a2 b2 c2|a3 b3 c3|a4 b4 c4"); }

    void clicksAndKeys_data()
    {
        // For the script see run().
        const auto row =
            velmtest::columns<Mode, QString, QString, QString, int>("mode", "script", "selected", "current", "count");
        row("a click takes the row", Table::Row, "L11", "...|xxx|...|...", "11", 1);
        row("shift begins at the first cell", Table::Row, "S21", "xxx|xxx|xxx|...", "21", 3);
        row("and keeps its anchor", Table::Row, "L10 S30 S00", "xxx|xxx|...|...", "10", 2);
        row("control adds", Table::Row, "L00 C21", "xxx|...|xxx|...", "21", 2);
        row("control takes away, the current cell stays", Table::Row, "L00 C21 C00", "...|...|xxx|...", "21", 1);
        row("to make sure replaces too", Table::Row, "L00 A21", "...|...|xxx|...", "21", 1);
        row("a right click inside keeps all", Table::Row, "L00 C20 R01", "xxx|...|xxx|...", "20", 2);
        row("unless it is selected", Table::Row, "L00 C20 A01", "xxx|...|xxx|...", "01", 2);
        row("all rows", Table::Row, "L11 *", "xxx|xxx|xxx|xxx", "11", 4);
        row("nothing", Table::Row, "L11 0", "...|...|...|...", "-", 0);
        row("down at the end", Table::Row, "L31 v", "...|...|...|xxx", "31", 1);
        row("down without a current cell finds none", Table::Row, "v", "...|...|...|...", "-", 0);
        row("up at the top", Table::Row, "L01 ^", "xxx|...|...|...", "01", 1);
        row("up without a current cell begins at the top", Table::Row, "^", "xxx|...|...|...", "00", 1);
        row("a click takes the column", Table::Column, "L11", ".x.|.x.|.x.|.x.", "11", 4);
        row("shift takes columns", Table::Column, "L01 S12", ".xx|.xx|.xx|.xx", "01", 4);
        row("a right click in a selected column", Table::Column, "L01 C32 R11", ".xx|.xx|.xx|.xx", "32", 8);
        row("all takes rows in any mode", Table::Column, "* r", "xxx|xxx|xxx|xxx", "-", 4);
        row("down in a column", Table::Column, "L11 v", ".x.|.x.|.x.|.x.", "21", 4);
        row("a click takes the cell", Table::Cell, "L11", "...|.x.|...|...", "11", 1);
        row("shift takes a block", Table::Cell, "L21 S10", "...|xx.|xx.|...", "21", 2);
        row("control takes one cell away", Table::Cell, "L21 S10 C20", "...|xx.|.x.|...", "21", 2);
        row("a right click beside it", Table::Cell, "L11 R12", "...|..x|...|...", "12", 1);
        row("up by one cell", Table::Cell, "L12 ^", "..x|...|...|...", "02", 1);
        row("a row counts by any of its cells", Table::Cell, "L11 r", "...|xxx|...|...", "11", 1);
        row("cells that aren't there do nothing", Table::Row, "L11 L99 S99 C99 R99 A99", "...|xxx|...|...", "11", 1);
    }
    void clicksAndKeys()
    {
        QFETCH(Mode, mode);
        QFETCH(QString, script);
        m_table->setSelectionMode(mode);
        run(script);
        QTEST(marks(*m_table, "isSelected"), "selected");
        const QModelIndex current = m_table->selectionModel()->currentIndex();
        QTEST(current.isValid() ? QString("%1%2").arg(current.row()).arg(current.column()) : QString("-"), "current");
        QTEST(m_table->selectedSourcesCount(), "count");
    }

    void aSelectionIsToldInWholeRows()
    {
        m_table->setSelectionMode(Table::Cell);
        SignalLog log(*m_table);
        run("L11");
        QCOMPARE(log.take(), "dataChanged(1,0, 1,2, [256]) selectionChanged");
        run("L00");
        QCOMPARE(log.take(), "dataChanged(0,0, 0,2, [256]) dataChanged(1,0, 1,2, [256]) selectionChanged");
        run("L00 v ^");
        log.take();
        const QItemSelection foreign(m_source->index(0, 0), m_source->index(1, 1));
        m_table->updateSelection(foreign, QItemSelection(QModelIndex(), QModelIndex()));
        QCOMPARE(log.take(), "selectionChanged");
        m_source->reset([this] { m_source->columns = {}; });
        log.take();
        m_table->updateSelection({}, {});
        QCOMPARE(log.take(), ""); // no column, no signal
    }

    void isSelectedByMode()
    {
        m_table->setSelectionMode(Table::Cell);
        run("L10 C11");
        const auto all = [this] {
            QString text;
            for (const auto& [row, column] : {std::pair(1, 0), {1, 2}, {0, 0}, {9, 9}, {-1, -1}})
                text += m_table->isSelected(row, column) ? 'x' : '.';
            return text;
        };
        QCOMPARE(all(), "x....");
        m_table->setSelectionMode(Table::Row);
        QCOMPARE(all(), "....."); // not the whole row, unlike the role
        run("L11");
        QCOMPARE(all(), "xx...");
        m_table->setSelectionMode(Table::Column);
        run("L30");
        QCOMPARE(all(), "x.x..");
        QVERIFY(!m_table->isSelected(m_table->index(1, 1), m_source->index(0, 0)));
        SignalLog log(*m_table);
        m_table->setSelectionMode(Table::Column);
        QCOMPARE(log.take(), "");
    }

    void foreignCellsAreIgnored()
    {
        Table other;
        other.setSourceModel(&*m_source);
        run("L11 C31 > f");
        SignalLog log(*m_table);
        for (const QModelIndex& cell : {QModelIndex(), m_source->index(0, 0), other.index(0, 0)}) {
            m_table->leftClickSelection(cell);
            m_table->rightClickSelection(cell);
            m_table->ctrlSelection(cell);
            m_table->shiftSelection(cell);
            m_table->addToSelection(cell);
            m_table->checkPreFocusOnParent(cell);
            QVERIFY(m_table->selectionMode() != Table::Cell && !m_table->data(cell, 256).toBool());
        }
        QCOMPARE(log.take(), "");
        QCOMPARE(marks(*m_table, "isSelected"), "...|xxx|...|xxx");
        m_table->setSelectedSources({QModelIndex(), other.index(0, 0), m_source->index(2, 1)});
        QCOMPARE(marks(*m_table, "isSelected"), "...|...|xxx|...");
        m_table->setSelectedSources({});
        QVERIFY(!m_table->selectionModel()->hasSelection());
    }

    void theFocusStaysWithItsCellAndTheSelectionIsSetAgain()
    {
        m_table->setSelectionMode(Table::Cell);
        run("L10 C12 C31 > > f"); // a2 c2 b4, the focus on b4
        const auto selected = [this] {
            QStringList result;
            for (const QModelIndex& cell : m_table->selectedSources())
                result += cell.data().toString();
            result.sort();
            return result.join(' ');
        };
        m_table->doSort(0, false);
        m_table->moveColumn(0, 2); // B C A
        QCOMPARE(cellText(*m_table).left(8), "b4 c4 a4");
        QCOMPARE(marks(*m_table, "isFocusCell"), "x..|...|...|...");
        QCOMPARE(selected(), "a2 b4 c2");
        const QModelIndexList before = m_table->selectedSources();
        m_table->restoreColumnPositions(); // a reset
        QCOMPARE(selected(), "");
        QCOMPARE(marks(*m_table, "isFocusCell"), "...|...|...|...");
        m_table->setSelectedSources(before);
        QCOMPARE(selected(), "a2 b4 c2");
        m_table->setSelectionMode(Table::Row);
        QVERIFY(m_table->setProperty("selectedSources", QVariant::fromValue(before)));
        QCOMPARE(selected(), "a2 a4");
    }

    void hover_data()
    {
        // Each step has row and column, and whether it was entered or left.
        const auto add = velmtest::columns<Mode, QString, QString, QString>("mode", "script", "signalText", "hovered");
        const auto row = [&add](const char* name, Mode mode, const char* script, const QStringList& told,
                            const char* hovered) {
            QStringList texts;
            for (const QString& corners : told)
                texts += "dataChanged(" + corners + ", [257])";
            add(name, mode, script, texts.join(' '), hovered);
        };
        const QString row1 = "1,0, 1,2";
        const QString row2 = "2,0, 2,2";
        const QString column1 = "0,1, 3,1";
        const QString column2 = "0,2, 3,2";
        const QString cell = "1,1, 1,1";
        row("a row", Table::Row, "11+", {row1}, "...|xxx|...|...");
        row("it stays when it is left", Table::Row, "11+ 11-", {row1}, "...|xxx|...|...");
        row("another cell of the row", Table::Row, "11+ 12+", {row1, row1}, "...|xxx|...|...");
        row("another row", Table::Row, "11+ 21+", {row1, row1, row2}, "...|...|xxx|...");
        row("leaving another row than the last", Table::Row, "11+ 21-", {row1, row2}, "...|...|...|...");
        row("a row that isn't there", Table::Row, "11+ 91+", {row1, row1}, "...|...|...|...");
        row("a column", Table::Column, "11+", {column1}, ".x.|.x.|.x.|.x.");
        row("the column is left", Table::Column, "11+ 11-", {column1, column1}, "...|...|...|...");
        row("a cell", Table::Cell, "11+", {cell}, "...|.x.|...|...");
        row("the same cell again", Table::Cell, "11+ 11+", {cell, cell}, "...|.x.|...|...");
        row("a cell that isn't there", Table::Cell, "99+ 99-", {}, "...|...|...|...");
    }
    void hover()
    {
        QFETCH(Mode, mode);
        QFETCH(QString, script);
        m_table->setSelectionMode(mode);
        SignalLog log(*m_table);
        for (const QString& step : script.split(' '))
            m_table->setHovered(step[0].digitValue(), step[1].digitValue(), step[2] == u'+');
        QTEST(log.take(), "signalText");
        QTEST(marks(*m_table, "isHovered"), "hovered");
        m_source->remove(0, 3);
        log.take();
        m_table->setHovered(0, 0, true); // nothing is there, and nothing of before is told of
        QCOMPARE(log.take(), "");
    }

    void preFocus_data()
    {
        // The signals are those of the last step: the cells told of.
        const auto row = velmtest::columns<QString, QString, QString>("script", "signalText", "cell");
        row("rows need one", "L11 +", "", "");
        row("a column begins it, in the current row", "L11 >", "1,0 1,0", "1,0");
        row("backwards as well", "L11 <", "1,0 1,0", "1,0");
        row("without a current cell there is none", ">", "", "");
        row("right", "L11 > >", "1,0 1,1", "1,1");
        row("right at the edge", "L11 > > > >", "", "1,2");
        row("left", "L11 > > <", "1,1 1,0", "1,0");
        row("left at the edge", "L11 > <", "1,0 1,0", "1,0");
        row("down", "L11 > > +", "1,1 2,1", "2,1");
        row("up", "L11 > > -", "1,1 0,1", "0,1");
        row("down over the edge ends it", "L31 > +", "3,0", "");
        row("up over the edge ends it", "L01 > -", "0,0", "");
        row("without a current cell a row ends it", "L11 > 0 +", "1,0", "");
        row("it ends", "L11 > > u", "1,1", "");
        row("the selection doesn't matter", "L11 > L31 +", "1,0 2,0", "2,0");
    }
    void preFocus()
    {
        QFETCH(QString, script);
        QFETCH(QString, cell);
        run(script.section(' ', 0, -2));
        SignalLog log(*m_table);
        run(script.section(' ', -1));
        QFETCH(QString, signalText);
        QStringList expected;
        for (const QString& told : signalText.split(' ', Qt::SkipEmptyParts))
            expected += QString("dataChanged(%1, %1, [259])").arg(told);
        QCOMPARE(log.take(), expected.join(' '));
        QCOMPARE(m_table->hasPreFocus(), !cell.isEmpty());
        QString found;
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 3; ++column)
                if (m_table->index(row, column).data(259).toBool())
                    found += QString("%1,%2").arg(row).arg(column);
        QCOMPARE(found, cell);
        run("f");
        QCOMPARE(log.take(), cell.isEmpty() ? "" : QString("dataChanged(%1, %1, [260])").arg(cell));
    }

    void keysWalkTrees()
    {
        Tree tree("A(a1 a2) B(b1(x)) C");
        const auto walk = [&](const QString& from, void (Table::*step)()) {
            tree.table.leftClickSelection(tree.at(from));
            QStringList way;
            for (int left = 9; left > 0; --left) {
                (tree.table.*step)();
                way += tree.table.selectionModel()->currentIndex().data().toString();
            }
            way.removeDuplicates();
            return way.join(' ');
        };
        QCOMPARE(walk("A", &Table::selectNextRow), "a1 a2 B b1 x"); // one level is climbed, not two
        QCOMPARE(walk("B", &Table::selectPreviousRow), "A");
        QCOMPARE(walk("x", &Table::selectPreviousRow), "b1 B A");
        QCOMPARE(walk("C", &Table::selectNextRow), "C");
        tree.table.leftClickSelection(tree.at("a2"));
        tree.table.ctrlSelection(tree.at("x"));
        QCOMPARE(marks(tree.table, "isSelected"), "..|..|..");
        QCOMPARE(marks(tree.table, "isSelected", tree.at("A")), "..|xx");
        QCOMPARE(marks(tree.table, "isSelected", tree.at("b1")), "xx");
        QVERIFY(tree.table.isSelected(tree.at("x"), tree.at("b1")) && !tree.table.isSelected(0, 0));
        tree.table.setHovered(0, 1, true); // by row number, whatever the parent
        QCOMPARE(marks(tree.table, "isHovered", tree.at("A")), "xx|..");
    }

    void preFocusIsNotKeptOnParents()
    {
        Tree tree("A(a1 a2) B C");
        const auto preFocused = [&] {
            QStringList result;
            for (const char* name : {"A", "a1", "a2", "B", "C"})
                if (tree.at(name).data(roleNumber(tree.table, "isPreFocusCell")).toBool())
                    result += name;
            return result.join(' ');
        };
        tree.table.leftClickSelection(tree.at("a2"));
        tree.table.increasePreFocusIndexColumn();
        QCOMPARE(preFocused(), "a2");
        tree.table.increasePreFocusIndexRow();
        QCOMPARE(preFocused(), "B"); // behind the last child
        tree.table.leftClickSelection(tree.at("a1"));
        tree.table.unsetPreFocus();
        tree.table.increasePreFocusIndexColumn();
        tree.table.decreasePreFocusIndexRow();
        QCOMPARE(preFocused(), "A"); // above the first
        tree.table.leftClickSelection(tree.at("A"));
        tree.table.increasePreFocusIndexRow();
        QVERIFY(!tree.table.hasPreFocus());
    }

private:
    /// Clicks, a letter with row and column: Left, Shift, Control, Right, Add; and * all, 0 none, v and ^ the arrow
    /// keys, r c another mode; pre-focus > < + - by column and row, u its end, f the focus.
    void run(const QString& script)
    {
        using Click = void (Table::*)(int, int);
        static const QHash<QChar, Click> clicks = {{u'L', &Table::leftClickSelection},
                                                   {u'S', &Table::shiftSelection},
                                                   {u'C', &Table::ctrlSelection},
                                                   {u'R', &Table::rightClickSelection},
                                                   {u'A', &Table::addToSelection}};
        static const QHash<QChar, std::function<void(Table&)>> keys = {
            {u'*', &Table::selectAll},
            {u'0', &Table::clearSelection},
            {u'v', &Table::selectNextRow},
            {u'^', &Table::selectPreviousRow},
            {u'r', [](Table& table) { table.setSelectionMode(Table::Row); }},
            {u'c', [](Table& table) { table.setSelectionMode(Table::Column); }},
            {u'>', &Table::increasePreFocusIndexColumn},
            {u'<', &Table::decreasePreFocusIndexColumn},
            {u'+', &Table::increasePreFocusIndexRow},
            {u'-', &Table::decreasePreFocusIndexRow},
            {u'u', &Table::unsetPreFocus},
            {u'f', &Table::requestActiveFocusOnPrefocusedCell}};
        for (const QString& step : script.split(' ', Qt::SkipEmptyParts)) {
            if (const Click click = clicks.value(step[0]))
                (*m_table.*click)(step[1].digitValue(), step[2].digitValue());
            else
                keys[step[0]](*m_table);
        }
    }
};

QTEST_GUILESS_MAIN(TestTableSelection)
#include "tst_tableselection.moc"
