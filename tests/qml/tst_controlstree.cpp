#include "shownpage.h"
#include "support/table.h"
#include "velm/models/treemodel/treemodel.h"

#include <QSignalSpy>

using namespace velm;
using velmtest::PageEngine;
using velmtest::Shown;

namespace {
class NameTree : public TreeModel<QString>
{
public:
    static constexpr int DragRole = Qt::UserRole;

    using TreeModel::TreeModel;
    QHash<int, QByteArray> roleNames() const override
    {
        QHash<int, QByteArray> names = TreeModel::roleNames();
        names.insert(DragRole, "drag");
        return names;
    }
    int columnCount(const QModelIndex& = {}) const override { return 1; }
    QVariant dataImpl(const QModelIndex& index, int role) const override
    {
        const QString* name = getData(index);
        if (!name)
            return {};
        if (role == DragRole)
            return name->startsWith(QLatin1Char('B'));
        if (role == Qt::DecorationRole)
            return name->startsWith(QLatin1Char('B')) ? QStringLiteral("folder") : QString();
        return role == Qt::DisplayRole ? QVariant(*name) : QVariant();
    }
};

/// Alpha(Apple Avocado(Axe)) Beta(Bread) Gamma & more
void fill(NameTree& tree)
{
    const auto alpha = tree.appendItem({}, QStringLiteral("Alpha"));
    tree.appendItem(alpha, QStringLiteral("Apple"));
    tree.appendItem(tree.appendItem(alpha, QStringLiteral("Avocado")), QStringLiteral("Axe"));
    tree.appendItem(tree.appendItem({}, QStringLiteral("Beta")), QStringLiteral("Bread"));
    tree.appendItem({}, QStringLiteral("Gamma & more"));
}

/// A window with the tree, which has the keyboard.
class ShownTree
{
public:
    explicit ShownTree(QAbstractItemModel& model) : m_shown(load(model)) {}

    QObject* view() const { return m_shown.page(); }
    Shown& shown() { return m_shown; }
    int count() const { return view()->property("count").toInt(); }
    void choose(const QModelIndex& index) { view()->setProperty("currentIndex", QVariant::fromValue(index)); }
    QModelIndex currentIndex() const { return view()->property("currentIndex").toModelIndex(); }
    QString current() const { return currentIndex().data().toString(); }
    QPoint point(int row, int x = 100) const { return {x, 2 + row * 24 + 12}; }

private:
    QObject* load(QAbstractItemModel& model)
    {
        return m_engine.load(
            "ModelTreeView { height: 100; implicitHeight: 100; iconRole: 'decoration'; dragRole: 'drag' }",
            {{QStringLiteral("model"), QVariant::fromValue<QObject*>(&model)}});
    }

    PageEngine m_engine;
    Shown m_shown;
};
} // namespace

/// The tree as a user works it.
class TestControlsTree : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keysWalkTheTree_data()
    {
        const auto row = velmtest::columns<QList<int>, QString, int>("keys", "current", "count");
        row("Down takes the first row", {Qt::Key_Down}, "Alpha", 3);
        row("Down passes what is closed", {Qt::Key_Down, Qt::Key_Down}, "Beta", 3);
        row("Down stops at the end", {Qt::Key_End, Qt::Key_Down}, "Gamma & more", 3);
        row("Right opens", {Qt::Key_Home, Qt::Key_Right}, "Alpha", 5);
        row("Right again goes to the first child", {Qt::Key_Home, Qt::Key_Right, Qt::Key_Right}, "Apple", 5);
        row("Right on a leaf stays", {Qt::Key_Home, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right}, "Apple", 5);
        row("Left goes to the parent", {Qt::Key_Home, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left}, "Alpha", 5);
        row("Left again closes", {Qt::Key_Home, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Left}, "Alpha", 3);
        row("Left at the top stays", {Qt::Key_Home, Qt::Key_Left}, "Alpha", 3);
        row("Left without a current row is nothing", {Qt::Key_Left, Qt::Key_Right}, "", 3);
        row("a page is what fits", {Qt::Key_Home, Qt::Key_Right, Qt::Key_PageDown}, "Beta", 5);
        row("a letter finds a shown row", {Qt::Key_B}, "Beta", 3);
        row("a letter goes round the end", {Qt::Key_End, Qt::Key_A}, "Alpha", 3);
        row("letters narrow the search", {Qt::Key_Home, Qt::Key_Right, Qt::Key_A, Qt::Key_V}, "Avocado", 5);
        row("a blank is a letter, too", {Qt::Key_G, Qt::Key_A, Qt::Key_M, Qt::Key_M, Qt::Key_A, Qt::Key_Space},
            "Gamma & more", 3);
        row("the same letter goes on", {Qt::Key_Home, Qt::Key_Right, Qt::Key_A, Qt::Key_A}, "Avocado", 5);
        row("closed rows aren't found", {Qt::Key_End, Qt::Key_A, Qt::Key_P}, "Alpha", 3);
    }
    void keysWalkTheTree()
    {
        QFETCH(QList<int>, keys);
        QFETCH(QString, current);
        QFETCH(int, count);
        NameTree tree;
        fill(tree);
        ShownTree view(tree);
        for (const int key : keys)
            view.shown().press(Qt::Key(key));
        QCOMPARE(view.current(), current);
        QCOMPARE(view.count(), count);
    }

    void theMouseOpensAndActivates()
    {
        NameTree tree;
        fill(tree);
        ShownTree view(tree);
        QSignalSpy activated(view.view(), SIGNAL(activated(QVariant)));
        QTest::mouseClick(view.shown().window(), Qt::LeftButton, {}, view.point(1));
        QCOMPARE(view.current(), QStringLiteral("Beta"));
        QVERIFY(activated.isEmpty());
        QTest::mouseDClick(view.shown().window(), Qt::LeftButton, {}, view.point(0));
        QCOMPARE(activated.takeFirst().first().value<QModelIndex>(), tree.index(0, 0));
        QVERIFY(activated.isEmpty());
        view.shown().press(Qt::Key_Enter);
        QCOMPARE(activated.takeFirst().first().value<QModelIndex>(), tree.index(0, 0));
        // The mark at the left opens and closes; a double click on it is two clicks.
        QTest::mouseClick(view.shown().window(), Qt::LeftButton, {}, view.point(0, 13));
        QTRY_COMPARE(view.count(), 5);
        QVERIFY(tree.wantsToBeExpanded(tree.index(0, 0)));
        QTest::mouseClick(view.shown().window(), Qt::LeftButton, {}, view.point(0, 13));
        QTRY_COMPARE(view.count(), 3);
        QVERIFY(!tree.wantsToBeExpanded(tree.index(0, 0)));
        QVERIFY(activated.isEmpty());
    }

    void aRowIsDraggedOutOfTheTree()
    {
        NameTree tree;
        fill(tree);
        ShownTree view(tree);
        QSignalSpy dropped(view.view(), SIGNAL(dropped(QVariant)));
        QSignalSpy activated(view.view(), SIGNAL(activated(QVariant)));
        const auto drag = [&](int row, const std::function<void()>& onTheWay = {}) {
            QTest::mousePress(view.shown().window(), Qt::LeftButton, {}, view.point(row));
            for (const int way : {30, 60})
                QTest::mouseMove(view.shown().window(), view.point(row) + QPoint(0, way));
            if (onTheWay)
                onTheWay();
            QTest::mouseMove(view.shown().window(), QPoint(480, 380));
            QTest::mouseRelease(view.shown().window(), Qt::LeftButton, {}, QPoint(480, 380));
        };
        drag(1);
        QCOMPARE(dropped.count(), 1);
        QCOMPARE(dropped.takeFirst().first().value<QModelIndex>(), tree.index(1, 0));
        QCOMPARE(view.current(), QStringLiteral("Beta"));
        drag(0); // which isn't for it
        QVERIFY(dropped.isEmpty());
        drag(1, [&] { view.shown().press(Qt::Key_Escape); });
        QVERIFY(dropped.isEmpty());
        // Such a row is a row all the same.
        QVERIFY(activated.isEmpty());
        QTest::mouseDClick(view.shown().window(), Qt::LeftButton, {}, view.point(1));
        QCOMPARE(activated.count(), 1);
        QTest::mouseClick(view.shown().window(), Qt::LeftButton, {}, view.point(1, 13));
        QTRY_COMPARE(view.count(), 4);
        QTest::mouseClick(view.shown().window(), Qt::LeftButton, {}, view.point(1, 13));
        QTRY_COMPARE(view.count(), 3);

        drag(1, [&] { tree.deleteItem(QModelIndex(), 1); });
        QCOMPARE(view.count(), 2);
        QVERIFY(dropped.isEmpty());
    }

    void theMenuIsAskedForAtItsRow()
    {
        NameTree tree;
        fill(tree);
        ShownTree view(tree);
        QSignalSpy asked(view.view(), SIGNAL(contextMenuRequested(QVariant, QPointF)));
        QVERIFY(asked.isValid());
        QTest::mouseClick(view.shown().window(), Qt::RightButton, {}, view.point(1));
        QTRY_COMPARE(asked.count(), 1);
        QCOMPARE(view.current(), QStringLiteral("Beta"));
        QVariantList arguments = asked.takeFirst();
        QCOMPARE(arguments[0].value<QModelIndex>(), tree.index(1, 0));
        QCOMPARE(arguments[1].toPointF().toPoint(), view.point(1));
        view.shown().press(Qt::Key_Menu);
        QCOMPARE(asked.count(), 1);
    }

    void openRowsOutliveResetsAndPages()
    {
        NameTree tree;
        fill(tree);
        {
            ShownTree view(tree);
            view.shown().press(Qt::Key_Home);
            view.shown().press(Qt::Key_Right);
            view.shown().press(Qt::Key_Down);
            view.shown().press(Qt::Key_Down);
            view.shown().press(Qt::Key_Right);
            QCOMPARE(view.count(), 6);
        }
        ShownTree view(tree);
        QCOMPARE(view.count(), 6);
        std::unordered_set<unsigned long long> expanded;
        tree.saveExpandedState(expanded);
        {
            const auto batch = tree.scopedBatchChanges();
            tree.reset();
            fill(tree);
        }
        QCOMPARE(view.count(), 3);
        QVERIFY(!view.currentIndex().isValid());
        tree.restoreExpandedState(expanded);
        QCOMPARE(view.count(), 6);
        // The owner's own word.
        tree.setWantsToBeExpanded(tree.index(1, 0), true);
        QCOMPARE(view.count(), 7);
        // A value that the page reads.
        QCOMPARE(tree.index(0, 0).data(getWantsToBeExpandedRole()), QVariant(true));
    }

    void theCurrentRowComesIntoView()
    {
        NameTree tree;
        for (int row = 0; row < 50; ++row)
            tree.appendItem(tree.appendItem({}, QStringLiteral("Row %1").arg(row)),
                            QStringLiteral("Child %1").arg(row));
        ShownTree view(tree);
        QSignalSpy changed(view.view(), SIGNAL(currentIndexChanged()));
        view.choose(tree.index(0, 0, tree.index(40, 0)));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(view.count(), 51);
        QVERIFY(tree.wantsToBeExpanded(tree.index(40, 0)));
        auto* list = view.view()->property("view").value<QQuickItem*>();
        const double top = list->property("contentY").toDouble();
        QVERIFY(top <= 41 * 24 && top + list->height() >= 42 * 24);
        view.shown().press(Qt::Key_Home);
        QCOMPARE(list->property("contentY").toDouble(), 0.0);
        view.view()->setProperty("currentIndex", QVariant());
        QVERIFY(!view.currentIndex().isValid());
    }

    void aLargeTreeMakesFewRows()
    {
        NameTree tree;
        tree.beginBatchChanges();
        for (int row = 0; row < 1000; ++row) {
            const QModelIndex parent = tree.appendItem({}, QStringLiteral("Row %1").arg(row));
            for (int child = 0; child < 100; ++child)
                tree.appendItem(parent, QStringLiteral("Child %1").arg(child));
        }
        tree.endBatchChanges();
        ShownTree view(tree);
        QCOMPARE(view.count(), 1000);
        view.shown().press(Qt::Key_End);
        view.shown().press(Qt::Key_Right);
        view.shown().press(Qt::Key_End);
        QCOMPARE(view.current(), QStringLiteral("Child 99"));
        auto* list = view.view()->property("view").value<QQuickItem*>();
        const auto* content = list->property("contentItem").value<QQuickItem*>();
        QVERIFY2(content->childItems().size() < 60, qPrintable(QString::number(content->childItems().size())));
    }
};

PAGE_TEST_MAIN(TestControlsTree)
#include "tst_controlstree.moc"
