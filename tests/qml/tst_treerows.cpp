#include "qml/controls/treerows.h"
#include "support/changescript.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTest>

using velmqml::TreeRows;
using velmtest::ChangeScript;

namespace {
constexpr int openRole = 8;

/// "A" is a leaf, "-A" an open branch, "+A" a closed one; the depth is given by dots.
QString text(const TreeRows& rows)
{
    QStringList list;
    for (int row = 0; row < rows.rowCount(); ++row) {
        const QModelIndex index = rows.index(row);
        const bool open = index.data(TreeRows::OpenRole).toBool();
        const bool branch = index.data(TreeRows::BranchRole).toBool();
        list += QString(index.data(TreeRows::DepthRole).toInt(), QLatin1Char('.')) +
                (branch ? QLatin1String(open ? "-" : "+") : QLatin1String()) + index.data(Qt::DisplayRole).toString();
    }
    return list.join(QLatin1Char(' '));
}

/// The rows that should be shown, by a plain walk.
void walk(const QAbstractItemModel& model, const QModelIndex& parent, QList<QModelIndex>& shown)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        shown += index;
        if (index.data(openRole).toBool())
            walk(model, index, shown);
    }
}

/// Letters with two children each, which have two children each.
void fill(QStandardItemModel& model)
{
    for (const char* name : {"A", "B", "C"}) {
        auto* item = new QStandardItem(QLatin1String(name));
        for (int child = 1; child <= 2; ++child) {
            auto* below = new QStandardItem(item->text() + QString::number(child));
            for (const char* leaf : {"x", "y"})
                below->appendRow(new QStandardItem(below->text() + QLatin1String(leaf)));
            item->appendRow(below);
        }
        model.appendRow(item);
    }
}
} // namespace

class TestTreeRows : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void openRowsShowTheirChildren()
    {
        QStandardItemModel tree;
        fill(tree);
        TreeRows rows;
        const QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
        rows.setSource(&tree);
        QCOMPARE(text(rows), QStringLiteral("+A +B +C"));
        rows.setOpen(1, true);
        rows.setOpen(3, true);
        QCOMPARE(text(rows), QStringLiteral("+A -B .+B1 .-B2 ..B2x ..B2y +C"));
        QCOMPARE(rows.rowOf(tree.item(1)->child(1)->child(1)->index()), 5);
        QCOMPARE(rows.rowOf(tree.item(1)->child(0)->child(1)->index()), -1);
        QCOMPARE(rows.indexAt(6), tree.item(2)->index());
        QVERIFY(!rows.indexAt(7).isValid());
        // What was open below a closed row is open again.
        rows.setOpen(1, false);
        QCOMPARE(text(rows), QStringLiteral("+A +B +C"));
        rows.setOpen(1, true);
        QCOMPARE(text(rows), QStringLiteral("+A -B .+B1 .-B2 ..B2x ..B2y +C"));
        // A leaf can't be opened.
        rows.setOpen(4, true);
        QVERIFY(!tree.item(1)->child(1)->child(0)->data(openRole).toBool());
        QSignalSpy changed(&rows, &TreeRows::dataChanged);
        tree.item(1)->child(1)->child(1)->setText(QStringLiteral("new"));
        QCOMPARE(changed.takeFirst().first().toModelIndex().row(), 5);
        // A leaf becomes a branch and a leaf again.
        tree.item(1)->child(1)->child(0)->appendRow(new QStandardItem(QStringLiteral("z")));
        QVERIFY(rows.index(4).data(TreeRows::BranchRole).toBool());
        QVERIFY(!changed.isEmpty());
        changed.clear();
        tree.item(1)->child(1)->child(0)->removeRow(0);
        QVERIFY(!rows.index(4).data(TreeRows::BranchRole).toBool());
        QVERIFY(!changed.isEmpty());
    }

    void theTreeKeepsWhatIsOpen()
    {
        QStandardItemModel tree;
        fill(tree);
        tree.item(0)->setData(true, openRole);
        tree.item(2)->child(0)->setData(true, openRole);
        TreeRows rows;
        const QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
        rows.setSource(&tree);
        QCOMPARE(text(rows), QStringLiteral("-A .+A1 .+A2 +B +C"));
        // The owner of the tree opens and closes rows, too.
        tree.item(2)->setData(true, openRole);
        QCOMPARE(text(rows), QStringLiteral("-A .+A1 .+A2 +B -C .-C1 ..C1x ..C1y .+C2"));
        tree.item(0)->setData(false, openRole);
        QCOMPARE(text(rows), QStringLiteral("+A +B -C .-C1 ..C1x ..C1y .+C2"));
        // Another list of the same tree shows the same.
        TreeRows other;
        other.setSource(&tree);
        QCOMPARE(text(other), text(rows));
        rows.setOpen(2, false);
        QCOMPARE(text(other), text(rows));
        // A brush in that place is no answer.
        tree.item(0)->setBackground(Qt::red);
        QCOMPARE(text(rows), QStringLiteral("+A +B +C"));
        // Rows that come open are shown open.
        auto* item = new QStandardItem(QStringLiteral("D"));
        item->appendRow(new QStandardItem(QStringLiteral("D1")));
        item->setData(true, openRole);
        tree.insertRow(1, item);
        QCOMPARE(text(rows), QStringLiteral("+A -D .D1 +B +C"));
    }

    void theCurrentRowIsRevealedAndFollowed()
    {
        QStandardItemModel tree;
        fill(tree);
        TreeRows rows;
        // Set before the tree is: its parents are opened when the tree comes.
        rows.setCurrentIndex(tree.item(1)->child(1)->child(0)->index());
        rows.setSource(&tree);
        QCOMPARE(text(rows), QStringLiteral("+A -B .+B1 .-B2 ..B2x ..B2y +C"));
        QCOMPARE(rows.currentRow(), 4);
        QSignalSpy indexChanged(&rows, &TreeRows::currentIndexChanged);
        QSignalSpy rowChanged(&rows, &TreeRows::currentRowChanged);
        rows.setOpen(0, true);
        QCOMPARE(rows.currentRow(), 6);
        QCOMPARE(rowChanged.count(), 1);
        QCOMPARE(indexChanged.count(), 0);
        // The next row takes the place of a removed one, then the former one, then the parent.
        tree.item(1)->child(1)->removeRow(0);
        QCOMPARE(rows.currentIndex(), tree.item(1)->child(1)->child(0)->index());
        tree.item(1)->child(1)->removeRow(0);
        QCOMPARE(rows.currentIndex(), tree.item(1)->child(1)->index());
        tree.item(1)->removeRow(1);
        QCOMPARE(rows.currentIndex(), tree.item(1)->child(0)->index());
        QCOMPARE(rows.currentRow(), 4);
        // A row takes the place of what it hides.
        rows.setOpen(rows.rowOf(tree.item(1)->index()), false);
        QCOMPARE(rows.currentIndex(), tree.item(1)->index());
        // The parent goes with the current row in it.
        rows.setCurrentIndex(tree.item(1)->child(0)->child(1)->index());
        tree.removeRow(1);
        QCOMPARE(rows.currentIndex(), tree.item(1)->index());
        indexChanged.clear();
        tree.clear();
        QVERIFY(!rows.currentIndex().isValid());
        QCOMPARE(rows.currentRow(), -1);
        QCOMPARE(indexChanged.count(), 1);
    }

    void lettersFindShownRows()
    {
        QStandardItemModel tree;
        fill(tree);
        TreeRows rows;
        rows.setSource(&tree);
        rows.setOpen(1, true);
        QCOMPARE(rows.find(QStringLiteral("b2"), 0), 3);
        QCOMPARE(rows.find(QStringLiteral("b"), 2), 2);
        QCOMPARE(rows.find(QStringLiteral("B"), 4), 1);
        QCOMPARE(rows.find(QStringLiteral("b2x"), 0), -1);
        tree.setItemRoleNames({{Qt::UserRole, "name"}});
        tree.item(2)->setData(QStringLiteral("other"), Qt::UserRole);
        rows.setProperty("textRole", QStringLiteral("name"));
        QCOMPARE(rows.find(QStringLiteral("O"), 0), 4);
    }

    void rowsThatChangePlacesAreReadAnew()
    {
        QStandardItemModel tree;
        fill(tree);
        QSortFilterProxyModel sorted;
        sorted.setSourceModel(&tree);
        sorted.setRecursiveFilteringEnabled(true);
        TreeRows rows;
        const QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
        rows.setSource(&sorted);
        rows.setOpen(1, true);
        rows.setCurrentIndex(rows.indexAt(2));
        sorted.sort(0, Qt::DescendingOrder);
        QCOMPARE(text(rows), QStringLiteral("+C -B .+B2 .+B1 +A"));
        QCOMPARE(rows.currentRow(), 3);
        sorted.setFilterFixedString(QStringLiteral("B1"));
        QCOMPARE(text(rows), QStringLiteral("-B .+B1"));
        sorted.setFilterFixedString(QString());
        QCOMPARE(text(rows), QStringLiteral("+C -B .+B2 .+B1 +A"));
    }

    void theTreeMayGo()
    {
        auto tree = std::make_unique<QStandardItemModel>();
        fill(*tree);
        TreeRows rows;
        const QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
        rows.setSource(tree.get());
        rows.setCurrentIndex(tree->item(0)->child(0)->index());
        tree.reset();
        QCOMPARE(rows.rowCount(), 0);
        QCOMPARE(rows.currentRow(), -1);
        QVERIFY(!rows.currentIndex().isValid());
        QVERIFY(!rows.source());
    }

    void randomChangesLeaveWhatAWalkFinds()
    {
        QStandardItemModel tree;
        fill(tree);
        TreeRows rows;
        const QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
        rows.setSource(&tree);
        int named = 0;
        const auto anyItem = [&](QRandomGenerator& random) {
            QStandardItem* item = tree.invisibleRootItem();
            while (item->rowCount() > 0 && random.bounded(3) > 0)
                item = item->child(random.bounded(item->rowCount()));
            return item;
        };
        ChangeScript script(7);
        script.add("insert", [&](QRandomGenerator& random) {
            QStandardItem* parent = anyItem(random);
            auto* item = new QStandardItem(QString::number(++named));
            if (random.bounded(2)) {
                item->appendRow(new QStandardItem(QString::number(++named)));
                item->setData(random.bounded(2) == 1, openRole);
            }
            parent->insertRow(random.bounded(parent->rowCount() + 1), item);
        });
        // Without children: in a list of rows these would not be told to the model.
        script.add("insert some", [&](QRandomGenerator& random) {
            QStandardItem* parent = anyItem(random);
            QList<QStandardItem*> items;
            for (int count = random.bounded(2, 5); count > 0; --count)
                items += new QStandardItem(QString::number(++named));
            parent->insertRows(random.bounded(parent->rowCount() + 1), items);
        });
        script.add("remove", [&](QRandomGenerator& random) {
            QStandardItem* parent = anyItem(random);
            if (parent->rowCount() == 0)
                return;
            const int first = random.bounded(parent->rowCount());
            parent->removeRows(first, random.bounded(1, parent->rowCount() - first + 1));
        });
        const auto open = [&](QRandomGenerator& random) {
            if (rows.rowCount() > 0)
                rows.setOpen(random.bounded(rows.rowCount()), random.bounded(3) > 0);
        };
        script.add("open or close", open);
        script.add("open or close another", open);
        script.add("choose", [&](QRandomGenerator& random) { rows.setCurrentIndex(anyItem(random)->index()); });
        script.add("open by the owner", [&](QRandomGenerator& random) {
            QStandardItem* item = anyItem(random);
            if (item->rowCount() > 0 && item != tree.invisibleRootItem())
                item->setData(random.bounded(2) == 1, openRole);
        });
        QVERIFY(script.run(2000, [&] {
            QList<QModelIndex> shown;
            walk(tree, {}, shown);
            if (shown.size() != rows.rowCount() || rows.currentRow() != shown.indexOf(rows.currentIndex()))
                return false;
            for (int row = 0; row < shown.size(); ++row)
                if (rows.indexAt(row) != shown[row] || rows.rowOf(shown[row]) != row)
                    return false;
            return true;
        }));
    }

    void aHundredThousandRowsAreNoBurden()
    {
        QStandardItemModel tree;
        QList<QStandardItem*> items;
        for (int row = 0; row < 100000; ++row)
            items += new QStandardItem(QString::number(row));
        for (int row = 0; row < 100000; row += 10) {
            items[row]->appendRow(new QStandardItem(QStringLiteral("child")));
            items[row]->setData(true, openRole);
        }
        tree.invisibleRootItem()->appendRows(items);
        TreeRows rows;
        rows.setSource(&tree);
        QCOMPARE(rows.rowCount(), 110000);
        QCOMPARE(rows.indexAt(109999), tree.item(99999)->index());
        QCOMPARE(rows.find(QStringLiteral("99999"), 0), 109999);
        // One at a time, which costs no walk through the others.
        for (int row = 0; row < 2000; ++row) {
            rows.setOpen(0, row % 2 == 1);
            QCOMPARE(rows.rowOf(tree.item(99999)->index()), 109998 + row % 2);
        }
    }
};

QTEST_GUILESS_MAIN(TestTreeRows)

#include "tst_treerows.moc"
