#include "shownmodeltable.h"
#include "support/scopes.h"
#include "support/table.h"

#include <QSignalSpy>

using namespace velm;
using namespace velmtest;

/// A table as a user works it.
class TestControlsTable : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_config.emplace(); }

    void theMouseSelects()
    {
        ShownTable t;
        QSignalSpy asked(t.table(), SIGNAL(contextMenuRequested(int, int, QPointF)));
        QSignalSpy activated(t.table(), SIGNAL(cellActivated(int, int)));
        t.click(t.point(2, 0));
        QCOMPARE(t.selection(), QStringLiteral("2 (2)"));
        QCOMPARE(t.cell(2, 2)->property("isSelected"), QVariant(true));
        t.click(t.point(4, 2), Qt::LeftButton, Qt::ShiftModifier);
        QCOMPARE(t.selection(), QStringLiteral("2 3 4 (2)"));
        t.click(t.point(1, 2), Qt::LeftButton, Qt::ShiftModifier);
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

    void theHeaderSorts()
    {
        ShownTable t(7);
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

    void theHeaderMovesAndResizes()
    {
        ShownTable t;
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
    }

    void theMenuHidesColumns()
    {
        ShownTable t;
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

    void sharesFillTheWidth()
    {
        ShownTable t(5, [](SampleRows& rows) {
            rows.columns().columns[0].proportionalSize = 2;
            rows.columns().columns[3].proportionalSize = 1;
        });
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
    }

    void keysSelect_data()
    {
        using Keys = QList<QKeyCombination>;
        const auto row = velmtest::columns<Keys, QString>("keys", "selection");
        const QKeyCombination shiftDown = Qt::SHIFT | Qt::Key_Down;
        row("Down takes the first row", Keys{Qt::Key_Down}, "0 (0)");
        row("End and Up", Keys{Qt::Key_End, Qt::Key_Up}, "28 (28)");
        row("a page is what fits", Keys{Qt::Key_Home, Qt::Key_PageDown}, "8 (8)");
        row("Shift extends and takes back", Keys{Qt::Key_Home, shiftDown, shiftDown, shiftDown, Qt::SHIFT | Qt::Key_Up},
            "0 1 2 (0)");
        row("a step after Shift begins at the current row", Keys{Qt::Key_Home, shiftDown, shiftDown, Qt::Key_Down},
            "1 (1)");
        row("letters find a name", Keys{Qt::Key_R, Qt::Key_O, Qt::Key_W, Qt::Key_Space, Qt::Key_2}, "2 (2)");
        row("letters go round the end", Keys{Qt::Key_End, Qt::Key_R}, "0 (0)");
    }
    void keysSelect()
    {
        QFETCH(QList<QKeyCombination>, keys);
        QFETCH(QString, selection);
        ShownTable t;
        for (const QKeyCombination& key : keys)
            t.press(key.key(), key.keyboardModifiers());
        QCOMPARE(t.selection(), selection);
        t.press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(t.model.selectedSourcesCount(), 30);
    }

    void keysWorkOnCells()
    {
        ShownTable t;
        QSignalSpy activated(t.table(), SIGNAL(cellActivated(int, int)));
        const auto preFocus = [&] {
            for (int row = 0; row < 12; ++row)
                for (int column = 0; column < t.model.columnCount(); ++column)
                    if (t.cell(row, column) && t.cell(row, column)->property("isPreFocusCell").toBool())
                        return QPoint(column, row);
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
        t.press(Qt::Key_Right);
        t.press(Qt::Key_Return);
        QCOMPARE(activated.takeFirst(), (QVariantList{1, 2}));
        QVERIFY(activated.isEmpty());
        t.press(Qt::Key_Escape);
        QCOMPARE(preFocus(), QPoint(-1, -1));
        t.press(Qt::Key_Left);
        t.click(t.point(2, 2));
        QCOMPARE(preFocus(), QPoint(-1, -1));
    }

    void anEditIsTakenOrLeft()
    {
        ShownTable t;
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

    void theModelBeginsAnEdit()
    {
        ShownTable t;
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

    void theRowUnderThePointerIsHovered()
    {
        ShownTable t;
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

    void aMillionRowsMakeFewCells()
    {
        ShownTable t(1000000);
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

    void theHeaderStaysAboveItsColumns()
    {
        // Uneven widths, of which the view guesses after a jump.
        ShownTable t(30, [](SampleRows& rows) {
            for (int column = 4; column < 40; ++column)
                rows.columns().columns.push_back(ColumnBuilder(column, 0, QString("Column %1").arg(column), "more")
                                                     .initialWidth(column < 20 ? 40 : 200));
        });
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

    void anotherSourceHasOtherRoles()
    {
        ShownTable t;
        SampleRows other(5);
        other.columns().columns.resize(3);
        other.ownNames = {{Qt::UserRole, "first"}, {Qt::UserRole + 1, "second"}};
        t.model.setSourceModel(&other);
        t.settle();
        QCOMPARE(t.texts(4), QStringLiteral("Row 4||4"));
        t.click(t.point(3, 0));
        QTRY_VERIFY(t.cell(3, 0) && t.cell(3, 0)->property("isSelected").toBool());
        QVERIFY(!t.cell(3, 0)->property("isPreFocusCell").toBool());
        t.press(Qt::Key_Right);
        QVERIFY(t.cell(3, 0)->property("isPreFocusCell").toBool());
    }

    void selectionMarksAddRows()
    {
        ShownTable t(10, [](SampleRows& rows) { rows.columns().columns[3].selectionColumn = true; });
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

    void theModelMayGoFirst()
    {
        SampleRows rows(20);
        auto model = std::make_unique<SortFilterSelectModel>();
        model->setSourceModel(&rows);
        PageEngine engine;
        Shown shown(
            engine.load("ModelTable {}", {{QStringLiteral("model"), QVariant::fromValue<QObject*>(model.get())}}));
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

private:
    std::optional<TemporaryConfig> m_config;
};

PAGE_TEST_MAIN(TestControlsTable)
#include "tst_controlstable.moc"
