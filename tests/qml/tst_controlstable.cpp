#include "shownpage.h"
#include "support/scopes.h"
#include "velm/table/columns.h"
#include "velm/table/sortfilterselectmodel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace velm;
using velmtest::PageEngine;
using velmtest::Shown;

namespace {
/// Rows of a name, a mark, a number and a note. Row 0 is "Row 0" with the number 0; the numbers repeat after 5.
class Rows : public QAbstractTableModel
{
public:
    explicit Rows(int count) : m_count(count)
    {
        m_columns.columns = {
            ColumnBuilder(1, 0, QStringLiteral("Name"), QStringLiteral("name")).textAlignment(Qt::AlignLeft),
            ColumnBuilder(2, 1, QStringLiteral("On"), QStringLiteral("on")).initialWidth(60),
            ColumnBuilder(3, 3, QStringLiteral("Count"), QStringLiteral("count"))
                .initialSortOrder(Qt::DescendingOrder)
                .textAlignment(Qt::AlignRight),
            ColumnBuilder(4, 0, QStringLiteral("Note"), QStringLiteral("note")),
        };
    }

    Columns& columns() { return m_columns; }
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_count; }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_columns.columns.size());
    }
    QHash<int, QByteArray> roleNames() const override
    {
        auto names = QAbstractTableModel::roleNames();
        names[Qt::CheckStateRole] = "checkState";
        return names;
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        return QAbstractTableModel::flags(index) | (index.column() == 0   ? Qt::ItemIsEditable
                                                    : index.column() == 1 ? Qt::ItemIsUserCheckable
                                                                          : Qt::NoItemFlags);
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override
    {
        return velm::headerData(m_columns, section, orientation, role);
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
        const auto written = m_written.constFind({index.row(), index.column()});
        if (written != m_written.constEnd() && (index.column() == 1 ? role == Qt::CheckStateRole : isText))
            return *written;
        if (role == Qt::CheckStateRole && index.column() == 1)
            return int(Qt::Unchecked);
        if (!isText || index.column() == 1)
            return {};
        if (index.column() == 2)
            return index.row() % 5;
        return QStringLiteral("%1 %2")
            .arg(m_columns.columns[size_t(index.column())].name == QLatin1String("Name") ? QStringLiteral("Row")
                                                                                         : QStringLiteral("Note"))
            .arg(index.row());
    }
    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        if (role != Qt::EditRole && role != Qt::CheckStateRole)
            return false;
        m_written[{index.row(), index.column()}] = value;
        Q_EMIT dataChanged(index, index);
        return true;
    }

private:
    Columns m_columns;
    int m_count;
    QHash<std::pair<int, int>, QVariant> m_written;
};

/// What a repeater makes is no child of the page but for the eye.
QQuickItem* findItem(QQuickItem* from, const QString& name)
{
    if (from->objectName() == name)
        return from;
    for (QQuickItem* child : from->childItems()) {
        if (QQuickItem* found = findItem(child, name))
            return found;
    }
    return nullptr;
}

/// A window with a table, which has the keyboard.
class ShownTable
{
public:
    explicit ShownTable(int count = 30, const std::function<void(Rows&)>& prepare = {}) : rows(count)
    {
        if (prepare)
            prepare(rows);
        model.setParentId(QStringLiteral("TableOfTest"));
        model.setDefaultEditableColumnId(QStringLiteral("name"));
        model.setSourceModel(&rows);
        // It walks all rows.
        if (count < 1000)
            tester.emplace(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        shown.emplace(m_engine.load("ModelTable { implicitWidth: 480; implicitHeight: 260\n"
                                    "  delegates: ({1: check})\n"
                                    "  Component { id: check; ModelTableCheck {} } }",
                                    {{QStringLiteral("model"), QVariant::fromValue<QObject*>(&model)}}));
        settle();
    }

    QObject* table() const { return shown->page(); }
    QQuickItem* view() const { return table()->property("view").value<QQuickItem*>(); }
    /// Lays out what waits for the next frame.
    void settle()
    {
        QCoreApplication::processEvents();
        shown->window()->grabWindow();
        QCoreApplication::processEvents();
    }
    QQuickItem* cell(int row, int column) const
    {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(view(), "itemAtCell", Q_RETURN_ARG(QQuickItem*, found),
                                  Q_ARG(QPoint, QPoint(column, row)));
        return found;
    }
    QPoint point(int row, int column) const { return centre(cell(row, column)); }
    QQuickItem* title(const QString& name) const
    {
        return findItem(qobject_cast<QQuickItem*>(table()), QStringLiteral("header:") + name);
    }
    /// A point of a title, from its left edge, or from its right one when it is negative.
    QPoint titlePoint(const char* name, int x) const
    {
        QQuickItem* item = title(QString::fromLatin1(name));
        return item->mapToScene(QPointF(x < 0 ? item->width() + x : x, item->height() / 2)).toPoint();
    }
    static QPoint centre(QQuickItem* item)
    {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }
    void click(const QPoint& at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(shown->window(), button, modifiers, at);
        settle();
    }
    void drag(const QPoint& from, const QPoint& to)
    {
        QTest::mousePress(shown->window(), Qt::LeftButton, {}, from);
        QTest::mouseMove(shown->window(), (from + to) / 2);
        QTest::mouseMove(shown->window(), to);
        QTest::mouseRelease(shown->window(), Qt::LeftButton, {}, to);
        settle();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        shown->press(key, modifiers);
        settle();
    }
    /// Which rows are selected and where the current one is: "1 2 (2)".
    QString selection() const
    {
        QStringList selected;
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.isSelected(row, 0))
                selected += QString::number(row);
        }
        const QModelIndex current = model.selectionModel()->currentIndex();
        return selected.join(QLatin1Char(' ')) + (current.isValid() ? QStringLiteral(" (%1)").arg(current.row()) : "");
    }
    /// The titles as they stand from left to right, with the sort mark's column in brackets: "Name [Count] Note".
    QString titles()
    {
        std::map<double, QString> found;
        for (const ColumnData& column : rows.columns().columns) {
            QQuickItem* item = title(column.name);
            if (!item)
                continue;
            const bool isSorted = findItem(item, QStringLiteral("sortMark"))->isVisible();
            found[item->x()] = isSorted ? QLatin1Char('[') + column.name + QLatin1Char(']') : column.name;
        }
        QStringList result;
        for (const auto& [x, name] : found)
            result += name;
        return result.join(QLatin1Char(' '));
    }
    /// What a row's cells show.
    QString texts(int row) const
    {
        QStringList result;
        for (int column = 0; column < model.columnCount(); ++column) {
            const QQuickItem* item = cell(row, column);
            result += item ? item->property("text").toString() : QStringLiteral("-");
        }
        return result.join(QLatin1Char('|'));
    }

    Rows rows;
    SortFilterSelectModel model;
    std::optional<QAbstractItemModelTester> tester;
    std::optional<Shown> shown;

private:
    PageEngine m_engine;
};
} // namespace

/// A table as a user works it.
class TestControlsTable : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_config.emplace(); }
    void theMouseSelects();
    void theHeaderSorts();
    void theHeaderMovesAndResizes();
    void theMenuHidesColumns();
    void columnsAreAsTheyWereLeft();
    void sharesFillTheWidth();
    void keysSelect_data();
    void keysSelect();
    void keysWorkOnCells();
    void anEditIsTakenOrLeft();
    void theModelBeginsAnEdit();
    void theRowUnderThePointerIsHovered();
    void aMillionRowsMakeFewCells();
    void theHeaderStaysAboveItsColumns();
    void anotherSourceHasOtherRoles();
    void selectionMarksAddRows();
    void theModelMayGoFirst();

private:
    std::optional<velmtest::TemporaryConfig> m_config;
};

void TestControlsTable::theMouseSelects()
{
    ShownTable t;
    QVERIFY(t.shown->isReady());
    QSignalSpy asked(t.table(), SIGNAL(contextMenuRequested(int, int, QPointF)));
    QSignalSpy activated(t.table(), SIGNAL(cellActivated(int, int)));
    t.click(t.point(2, 0));
    QCOMPARE(t.selection(), QStringLiteral("2 (2)"));
    QCOMPARE(t.cell(2, 2)->property("isSelected"), QVariant(true));
    t.click(t.point(4, 2), Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(t.selection(), QStringLiteral("2 3 4 (2)"));
    t.click(t.point(1, 2), Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(t.selection(), QStringLiteral("1 2 (2)"));
    t.click(t.point(6, 3), Qt::LeftButton, Qt::ControlModifier);
    t.click(t.point(1, 3), Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(t.selection(), QStringLiteral("2 6 (6)"));
    // A click on a check box isn't one on the row.
    t.click(t.point(3, 1));
    QCOMPARE(t.rows.index(3, 1).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QCOMPARE(t.selection(), QStringLiteral("2 6 (6)"));

    const QPoint at = t.point(6, 2);
    t.click(at, Qt::RightButton);
    QCOMPARE(t.selection(), QStringLiteral("2 6 (6)"));
    QVariantList arguments = asked.takeFirst();
    QCOMPARE(arguments[0].toInt(), 6);
    QCOMPARE(arguments[1].toInt(), 2);
    QCOMPARE(arguments[2].toPointF().toPoint(), at);
    t.click(t.point(5, 2), Qt::RightButton);
    QCOMPARE(t.selection(), QStringLiteral("5 (5)"));
    asked.clear();

    // A drag takes rows and doesn't move the table.
    t.drag(t.point(1, 2), t.point(3, 3));
    QCOMPARE(t.selection(), QStringLiteral("1 2 3 (1)"));
    QCOMPARE(t.view()->property("contentY").toDouble(), 0.0);

    QTest::mouseDClick(t.shown->window(), Qt::LeftButton, {}, t.point(2, 2));
    QCOMPARE(activated.takeFirst(), (QVariantList{2, 2}));
    QTest::mouseDClick(t.shown->window(), Qt::LeftButton, {}, t.point(2, 0));
    QVERIFY(activated.isEmpty());
    QVERIFY(t.table()->property("isEditing").toBool());
}

void TestControlsTable::theHeaderSorts()
{
    ShownTable t(7);
    QVERIFY(t.shown->isReady());
    QCOMPARE(t.titles(), QStringLiteral("Name On Count Note"));
    t.click(t.point(6, 0));
    t.click(t.titlePoint("Count", 20));
    // The column begins with its own order, and the selection stays with its row.
    QCOMPARE(t.titles(), QStringLiteral("Name On [Count] Note"));
    QCOMPARE(t.texts(0), QStringLiteral("Row 4||4|Note 4"));
    QCOMPARE(t.rows.index(6, 0), t.model.mapToSource(t.model.selectionModel()->currentIndex()));
    QCOMPARE(t.model.selectedSourcesCount(), 1);
    t.click(t.titlePoint("Count", 20));
    QCOMPARE(t.texts(0), QStringLiteral("Row 0||0|Note 0"));
    t.click(t.titlePoint("Name", 20));
    QCOMPARE(t.titles(), QStringLiteral("[Name] On Count Note"));
    QVERIFY(t.model.ascending());
    // The mark goes with its column, and not to the one that comes to its place.
    t.model.setSourceColumnVisible(0, false);
    t.settle();
    QCOMPARE(t.titles(), QStringLiteral("On Count Note"));
    t.model.setSourceColumnVisible(0, true);
    t.settle();
    QCOMPARE(t.titles(), QStringLiteral("[Name] On Count Note"));
}

void TestControlsTable::theHeaderMovesAndResizes()
{
    ShownTable t;
    QVERIFY(t.shown->isReady());
    t.click(t.point(3, 0));
    t.drag(t.titlePoint("Name", 50), t.titlePoint("Count", 70));
    QCOMPARE(t.titles(), QStringLiteral("On Count Name Note"));
    QCOMPARE(t.texts(3), QStringLiteral("|3|Row 3|Note 3"));
    QCOMPARE(t.selection(), QStringLiteral("3 (3)"));
    // A short way, and one to the same place, are no moves; neither sorts.
    t.drag(t.titlePoint("Count", 20), t.titlePoint("Count", 70));
    QCOMPARE(t.titles(), QStringLiteral("On Count Name Note"));
    t.drag(t.titlePoint("Note", 50), t.titlePoint("On", 10));
    QCOMPARE(t.titles(), QStringLiteral("Note On Count Name"));

    const double right = t.cell(0, 3)->x();
    t.drag(t.titlePoint("Note", -1), t.titlePoint("Note", -1) + QPoint(37, 0));
    QCOMPARE(t.model.columnWidth(0), 137);
    QCOMPARE(t.cell(0, 0)->width(), 137.0);
    QCOMPARE(t.cell(0, 3)->x(), right + 37);
    QCOMPARE(t.title(QStringLiteral("Name"))->x(), right + 37);
    t.drag(t.titlePoint("Note", 135), t.titlePoint("Note", -900));
    QVERIFY(t.model.columnWidth(0) > 10);
    // As wide as its texts.
    QTest::mouseDClick(t.shown->window(), Qt::LeftButton, {}, t.titlePoint("Note", -1));
    t.settle();
    QVERIFY(!t.cell(0, 0)->property("isTruncated").toBool());
    QCOMPARE(t.titles(), QStringLiteral("Note On Count Name"));
}

void TestControlsTable::theMenuHidesColumns()
{
    ShownTable t;
    QVERIFY(t.shown->isReady());
    auto* menu = t.table()->findChild<QObject*>(QStringLiteral("columnMenu"));
    const auto choose = [&](int row) {
        t.click(t.titlePoint("Note", 20), Qt::RightButton);
        QTRY_VERIFY(menu->property("opened").toBool());
        QQuickItem* item = nullptr;
        QMetaObject::invokeMethod(menu, "itemAt", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, row));
        t.click(ShownTable::centre(item));
        QTRY_VERIFY(!menu->property("visible").toBool());
        QCoreApplication::processEvents();
    };
    choose(1);
    QTRY_COMPARE(t.titles(), QStringLiteral("Name Count Note"));
    t.settle();
    QCOMPARE(t.texts(4), QStringLiteral("Row 4|4|Note 4"));
    choose(0);
    QTRY_COMPARE(t.titles(), QStringLiteral("Count Note"));
    choose(1);
    QTRY_COMPARE(t.titles(), QStringLiteral("Count On Note"));
    // Below the separator.
    choose(5);
    QTRY_COMPARE(t.titles(), QStringLiteral("Name Count On Note"));
    t.settle();
    QCOMPARE(t.texts(4), QStringLiteral("Row 4|4||Note 4"));
}

void TestControlsTable::columnsAreAsTheyWereLeft()
{
    {
        ShownTable t;
        QVERIFY(t.shown->isReady());
        t.drag(t.titlePoint("Note", 50), t.titlePoint("Name", 10));
        t.drag(t.titlePoint("Count", -1), t.titlePoint("Count", -1) + QPoint(50, 0));
        t.model.setSourceColumnVisible(1, false);
    }
    m_config->reopen();
    ShownTable t;
    QVERIFY(t.shown->isReady());
    QCOMPARE(t.titles(), QStringLiteral("Note Name Count"));
    QCOMPARE(t.cell(0, 2)->width(), 150.0);
    QCOMPARE(t.texts(2), QStringLiteral("Note 2|Row 2|2"));
}

void TestControlsTable::sharesFillTheWidth()
{
    ShownTable t(5, [](Rows& rows) {
        rows.columns().columns[0].proportionalSize = 2;
        rows.columns().columns[3].proportionalSize = 1;
    });
    QVERIFY(t.shown->isReady());
    const double left = t.view()->width() - 60 - 100;
    QCOMPARE(t.cell(0, 0)->width(), std::round(2 * left / 3));
    QCOMPARE(t.cell(0, 0)->width() + t.cell(0, 3)->width(), left);
    QCOMPARE(t.title(QStringLiteral("Note"))->x() + t.title(QStringLiteral("Note"))->width(), t.view()->width());
    t.shown->page()->setProperty("width", 600);
    t.settle();
    QCOMPARE(t.cell(0, 0)->width() + t.cell(0, 3)->width(), left + 120);
    // The user's hand has no say in a share.
    t.drag(t.titlePoint("Name", -2), t.titlePoint("Name", -2) - QPoint(40, 0));
    QCOMPARE(t.cell(0, 0)->width() + t.cell(0, 3)->width(), left + 120);
    QCOMPARE(t.titles(), QStringLiteral("Name On Count Note"));
}

void TestControlsTable::keysSelect_data()
{
    using Keys = QList<QKeyCombination>;
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<QString>("selection");
    QTest::addRow("Down takes the first row") << Keys{Qt::Key_Down} << "0 (0)";
    QTest::addRow("End and Up") << Keys{Qt::Key_End, Qt::Key_Up} << "28 (28)";
    QTest::addRow("a page is what fits") << Keys{Qt::Key_Home, Qt::Key_PageDown} << "8 (8)";
    QTest::addRow("Shift extends and takes back")
        << Keys{Qt::Key_Home, Qt::SHIFT | Qt::Key_Down, Qt::SHIFT | Qt::Key_Down, Qt::SHIFT | Qt::Key_Down,
                Qt::SHIFT | Qt::Key_Up}
        << "0 1 2 (0)";
    QTest::addRow("a step after Shift begins at the current row")
        << Keys{Qt::Key_Home, Qt::SHIFT | Qt::Key_Down, Qt::SHIFT | Qt::Key_Down, Qt::Key_Down} << "1 (1)";
    QTest::addRow("Shift and End") << Keys{Qt::Key_End, Qt::Key_Up, Qt::SHIFT | Qt::Key_End} << "28 29 (28)";
    QTest::addRow("letters find a name") << Keys{Qt::Key_R, Qt::Key_O, Qt::Key_W, Qt::Key_Space, Qt::Key_2} << "2 (2)";
    QTest::addRow("letters go round the end") << Keys{Qt::Key_End, Qt::Key_R} << "0 (0)";
    QTest::addRow("letters that nothing begins with") << Keys{Qt::Key_Down, Qt::Key_X} << "0 (0)";
}

void TestControlsTable::keysSelect()
{
    QFETCH(QList<QKeyCombination>, keys);
    QFETCH(QString, selection);
    ShownTable t;
    QVERIFY(t.shown->isReady());
    for (const QKeyCombination& key : keys)
        t.press(key.key(), key.keyboardModifiers());
    QCOMPARE(t.selection(), selection);
    // The far end of the selection is in sight.
    t.press(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(t.model.selectedSourcesCount(), 30);
}

void TestControlsTable::keysWorkOnCells()
{
    ShownTable t;
    QVERIFY(t.shown->isReady());
    QSignalSpy activated(t.table(), SIGNAL(cellActivated(int, int)));
    const auto preFocus = [&] {
        for (int row = 0; row < 12; ++row) {
            for (int column = 0; column < t.model.columnCount(); ++column) {
                if (t.cell(row, column) && t.cell(row, column)->property("isPreFocusCell").toBool())
                    return QPoint(column, row);
            }
        }
        return QPoint(-1, -1);
    };
    t.press(Qt::Key_Down);
    t.press(Qt::Key_Return);
    QCOMPARE(activated.takeFirst(), (QVariantList{0, 0}));
    t.press(Qt::Key_Right);
    QCOMPARE(preFocus(), QPoint(0, 0));
    t.press(Qt::Key_Right);
    t.press(Qt::Key_Down);
    QCOMPARE(preFocus(), QPoint(1, 1));
    QCOMPARE(t.selection(), QStringLiteral("0 (0)"));
    // Space and Enter toggle a check box, more than once.
    const auto checked = [&] { return t.rows.index(1, 1).data(Qt::CheckStateRole).toInt() == Qt::Checked; };
    t.press(Qt::Key_Space);
    QVERIFY(checked());
    t.press(Qt::Key_Return);
    QVERIFY(!checked());
    t.press(Qt::Key_Return);
    QVERIFY(checked());
    t.press(Qt::Key_Right);
    t.press(Qt::Key_Return);
    QCOMPARE(activated.takeFirst(), (QVariantList{1, 2}));
    QVERIFY(activated.isEmpty());
    t.press(Qt::Key_Escape);
    QCOMPARE(preFocus(), QPoint(-1, -1));
    t.press(Qt::Key_Left);
    QCOMPARE(preFocus(), QPoint(0, 0));
    t.click(t.point(2, 2));
    QCOMPARE(preFocus(), QPoint(-1, -1));
}

void TestControlsTable::anEditIsTakenOrLeft()
{
    ShownTable t;
    QVERIFY(t.shown->isReady());
    const auto name = [&](int row) { return t.rows.index(row, 0).data().toString(); };
    const auto isEditing = [&] { return t.table()->property("isEditing").toBool(); };
    const auto begin = [&] {
        t.press(Qt::Key_F2);
        QVERIFY(isEditing());
        t.shown->type("new");
    };
    t.press(Qt::Key_Down);
    begin();
    t.press(Qt::Key_Escape);
    QVERIFY(!isEditing());
    QCOMPARE(name(0), QStringLiteral("Row 0"));
    // The same row again, and the keyboard is the table's afterwards.
    begin();
    t.press(Qt::Key_Return);
    QVERIFY(!isEditing());
    QCOMPARE(name(0), QStringLiteral("new"));
    QCOMPARE(t.texts(0), QStringLiteral("new||0|Note 0"));
    t.press(Qt::Key_Down);
    QCOMPARE(t.selection(), QStringLiteral("1 (1)"));
    begin();
    t.click(t.point(3, 2));
    QVERIFY(!isEditing());
    QCOMPARE(name(1), QStringLiteral("new"));
    QCOMPARE(t.selection(), QStringLiteral("3 (3)"));
    // By the pre-focus, in the row that it is on.
    t.press(Qt::Key_Right);
    t.press(Qt::Key_Down);
    t.press(Qt::Key_Return);
    QVERIFY(isEditing());
    // The rows are others now: the text is nobody's.
    t.shown->type("lost");
    t.model.doSort(2, false);
    QVERIFY(!isEditing());
    QCOMPARE(name(4), QStringLiteral("Row 4"));
}

void TestControlsTable::theModelBeginsAnEdit()
{
    ShownTable t;
    QVERIFY(t.shown->isReady());
    // Also in a row that isn't in sight, in the column wherever it stands, and twice.
    t.model.moveColumn(0, 3);
    for (const char* text : {"a", "b"}) {
        t.model.setBeginEditIndex(25);
        t.settle();
        QVERIFY(t.table()->property("isEditing").toBool());
        QVERIFY(t.cell(25, 3));
        QCOMPARE(t.shown->focusItem()->mapToScene({}).toPoint(), t.cell(25, 3)->mapToScene({}).toPoint());
        t.shown->type(text);
        t.press(Qt::Key_Return);
        QCOMPARE(t.rows.index(25, 0).data().toString(), QLatin1String(text));
    }
}

void TestControlsTable::theRowUnderThePointerIsHovered()
{
    ShownTable t;
    QVERIFY(t.shown->isReady());
    const auto isHighlighted = [&](int row) {
        return t.cell(row, 0) && t.cell(row, 0)->property("isHighlighted").toBool();
    };
    QTest::mouseMove(t.shown->window(), t.point(2, 2));
    QTest::mouseMove(t.shown->window(), t.point(3, 2));
    QTRY_VERIFY(isHighlighted(3));
    QTest::mouseMove(t.shown->window(), t.point(4, 1));
    QTRY_VERIFY(isHighlighted(4) && !isHighlighted(3));
    // The pointer stays and the rows go.
    t.view()->setProperty("contentY", 48);
    QTRY_VERIFY(isHighlighted(6) && !isHighlighted(4));
    QTest::mouseMove(t.shown->window(), t.titlePoint("Name", 10));
    QTRY_VERIFY(!isHighlighted(6));
}

void TestControlsTable::aMillionRowsMakeFewCells()
{
    ShownTable t(1000000);
    QVERIFY(t.shown->isReady());
    const auto cells = [&] { return t.view()->property("contentItem").value<QQuickItem*>()->childItems().size(); };
    QVERIFY(cells() < 80);
    t.press(Qt::Key_End);
    QCOMPARE(t.texts(999999), QStringLiteral("Row 999999||4|Note 999999"));
    const QPoint at = t.point(999999, 0);
    QVERIFY2(at.y() > 230 && at.y() < 258, qPrintable(QString::number(at.y())));
    t.click(at - QPoint(0, 24));
    QCOMPARE(t.model.selectionModel()->currentIndex().row(), 999998);
    for (int page = 0; page < 20; ++page)
        t.press(Qt::Key_PageUp);
    QVERIFY2(cells() < 160, qPrintable(QString::number(cells())));
    t.press(Qt::Key_Home);
    QCOMPARE(t.texts(0), QStringLiteral("Row 0||0|Note 0"));
    QCOMPARE(t.view()->property("contentY").toDouble(), 0.0);
}

void TestControlsTable::theHeaderStaysAboveItsColumns()
{
    // Uneven widths, of which the view guesses after a jump.
    ShownTable t(30, [](Rows& rows) {
        for (int column = 4; column < 40; ++column) {
            rows.columns().columns.push_back(
                ColumnBuilder(column, 0, QStringLiteral("Column %1").arg(column), QStringLiteral("c%1").arg(column))
                    .initialWidth(column < 20 ? 40 : 200));
        }
    });
    QVERIFY(t.shown->isReady());
    const auto check = [&] {
        t.settle();
        const int left = t.view()->property("leftColumn").toInt();
        const QString name = t.model.headerData(left, Qt::Horizontal).toString();
        QCOMPARE(t.title(name)->mapToScene({}).x(), t.cell(0, left)->mapToScene({}).x());
    };
    for (const double x : {37.0, 3000.0, 700.0, 4500.0, 100.0, 0.0}) {
        t.view()->setProperty("contentX", x);
        check();
    }
    QCOMPARE(t.title(QStringLiteral("Name"))->mapToScene({}).x(), t.view()->mapToScene({}).x());
    t.model.moveColumn(39, 1);
    check();
    t.view()->setProperty("contentX", 2000.0);
    t.model.moveColumn(0, 39);
    check();
}

void TestControlsTable::anotherSourceHasOtherRoles()
{
    ShownTable t;
    QVERIFY(t.shown->isReady());
    class OtherRows : public Rows
    {
    public:
        OtherRows() : Rows(5) { columns().columns.resize(3); }
        QHash<int, QByteArray> roleNames() const override
        {
            auto names = Rows::roleNames();
            names[Qt::UserRole] = "first";
            names[Qt::UserRole + 1] = "second";
            return names;
        }
    } other;
    t.model.setSourceModel(&other);
    t.settle();
    QCOMPARE(t.texts(4), QStringLiteral("Row 4||4"));
    t.click(t.point(3, 0));
    QTRY_VERIFY(t.cell(3, 0) && t.cell(3, 0)->property("isSelected").toBool());
    QVERIFY(!t.cell(3, 0)->property("isPreFocusCell").toBool());
    t.press(Qt::Key_Right);
    QVERIFY(t.cell(3, 0)->property("isPreFocusCell").toBool());
    t.model.setSourceModel(nullptr);
    t.settle();
    QVERIFY(!t.cell(0, 0));
}

void TestControlsTable::selectionMarksAddRows()
{
    ShownTable t(10, [](Rows& rows) { rows.columns().columns[3].selectionColumn = true; });
    QVERIFY(t.shown->isReady());
    t.click(t.point(2, 0));
    t.click(t.point(4, 3));
    QCOMPARE(t.selection(), QStringLiteral("2 4 (4)"));
    t.click(t.point(2, 3));
    QCOMPARE(t.selection(), QStringLiteral("4 (4)"));
    const auto isChecked = [&](int row) {
        return findItem(t.cell(row, 3), QStringLiteral("check"))->property("checked").toBool();
    };
    QVERIFY(isChecked(4) && !isChecked(2));
}

void TestControlsTable::theModelMayGoFirst()
{
    Rows rows(20);
    auto model = std::make_unique<SortFilterSelectModel>();
    model->setSourceModel(&rows);
    PageEngine engine;
    Shown shown(engine.load("ModelTable {}", {{QStringLiteral("model"), QVariant::fromValue<QObject*>(model.get())}}));
    QVERIFY(shown.isReady());
    shown.press(Qt::Key_Down);
    shown.press(Qt::Key_F2);
    shown.window()->grabWindow();
    model.reset();
    shown.window()->grabWindow();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_End, Qt::Key_Return})
        shown.press(key);
    QTest::mouseClick(shown.window(), Qt::LeftButton, {}, QPoint(50, 60));
    QTest::mouseClick(shown.window(), Qt::RightButton, {}, QPoint(50, 10));
    QTRY_COMPARE(shown.page()->property("view").value<QQuickItem*>()->property("rows").toInt(), 0);
}

int main(int argc, char** argv)
{
    return velmtest::runPageTest<TestControlsTable>(argc, argv);
}

#include "tst_controlstable.moc"
