#include "faketree.h"

#include "od/oderror.h"
#include "support/rowtext.h"

#include <QTest>

using velmtest::rowText;

/// The half of the tree that knows nothing of drawings. Qt's model tester refuses every such tree: its root has rows
/// but reports no children.
class TestFileSystemTree : public QObject
{
    Q_OBJECT
    std::unique_ptr<FakeTree> m_tree;

    QString rows() const { return rowText(*m_tree); }

private Q_SLOTS:
    void init()
    {
        m_tree = std::make_unique<FakeTree>();
        m_tree->disk.entries = {"/p/",    "/p/b/", "/p/a.dwg", "/p/b/deep/", "/p/b/deep/x.dwg",
                                "/p/bc/", "/q/",   "/q/y.dwg"};
    }
    void cleanup() { m_tree.reset(); }

    void bothPartsAreNeeded()
    {
        QVERIFY_THROWS_EXCEPTION(OdError, FakeTree(nullptr, std::make_unique<FakeWatcher>()));
        QVERIFY_THROWS_EXCEPTION(OdError, FakeTree(std::make_unique<FakeDisk>(), nullptr));
        QCOMPARE(m_tree->watch.listener, static_cast<velm::IFileSystemListener*>(m_tree.get()));
    }

    void aDirectoryIsReadWhenItIsOpened()
    {
        const QModelIndex root = m_tree->addDirectory("/p");
        QCOMPARE(rows(), QString("p"));
        QVERIFY(m_tree->disk.browsed.isEmpty() && m_tree->watch.watched.isEmpty());
        QVERIFY(m_tree->hasChildren(root) && m_tree->canFetchMore(root));
        QVERIFY(!m_tree->hasChildren({}) && !m_tree->canFetchMore({}));
        m_tree->fetchMore({});
        QCOMPARE(rows(), QString("p"));

        m_tree->setNameFilters({"*.dwg"});
        // What comes into it while it is read must be told.
        m_tree->disk.onBrowse = [this] { QCOMPARE(m_tree->watch.watched, QStringList({"/p"})); };
        m_tree->fetchMore(root);
        m_tree->disk.onBrowse = nullptr;
        QCOMPARE(rows(), QString("p(b a.dwg bc)"));
        QCOMPARE(m_tree->disk.filters, QStringList({"*.dwg", "6402"}));
        QCOMPARE(m_tree->watch.watched, QStringList({"/p"}));
        QVERIFY(!m_tree->canFetchMore(root));
        QCOMPARE(m_tree->nameFilters(), QStringList({"*.dwg"}));
        QCOMPARE(m_tree->filePath(m_tree->index("/p/b")), QString("/p/b"));
        QVERIFY(!m_tree->index("/p/B").isValid() && !m_tree->index("/p/").isValid());
        QVERIFY(m_tree->filePath({}).isEmpty());
    }

    void rootsDontCoverOneAnother_data()
    {
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QString>("rows");
        QTest::newRow("the same twice") << QStringList({"/p", "/p"}) << "p";
        QTest::newRow("below a root") << QStringList({"/p", "/p/b/deep"}) << "p";
        QTest::newRow("above a root") << QStringList({"/p/b", "/p"}) << "p";
        QTest::newRow("above two roots only the first goes") << QStringList({"/p/b", "/p/bc", "/p"}) << "bc p";
        QTest::newRow("a root by whose text the path is held goes, too") << QStringList({"/p/bc", "/p/b"}) << "b";
        QTest::newRow("beside a root") << QStringList({"/p", "/q"}) << "p q";
        QTest::newRow("what isn't there") << QStringList({"/p/none", "", "relative"}) << "";
        QTest::newRow("a file") << QStringList({"/p/a.dwg"}) << "";
    }
    void rootsDontCoverOneAnother()
    {
        QFETCH(QStringList, added);
        for (const QString& path : added)
            m_tree->addDirectory(path);
        QTEST(rows(), "rows");
    }

    void onlyRootsAreRemoved()
    {
        m_tree->addDirectory("/p");
        m_tree->addDirectory("/q");
        m_tree->open("/p");
        m_tree->open("/p/b");
        m_tree->open("/q");
        QCOMPARE(m_tree->watch.watched, QStringList({"/p", "/p/b", "/q"}));
        QVERIFY(!m_tree->removeDirectory("/p/b"));
        QVERIFY(!m_tree->removeDirectory("/none"));
        QVERIFY(m_tree->removeDirectory("/p"));
        QCOMPARE(rows(), QString("q(y.dwg)"));
        QCOMPARE(m_tree->watch.watched, QStringList({"/q"}));
    }

    void foldersWhosePathHoldsADeletedOnesLeaveTheWatch()
    {
        m_tree->addDirectory("/p");
        m_tree->open("/p");
        m_tree->open("/p/b");
        m_tree->open("/p/bc");
        QVERIFY(m_tree->deleteItem(m_tree->index("/p"), m_tree->index("/p/b")));
        QCOMPARE(m_tree->watch.watched, QStringList({"/p"}));
        QCOMPARE(rows(), QString("p(a.dwg bc)"));
        QVERIFY(m_tree->deleteItem(m_tree->index("/p"), 1));
        QVERIFY(!m_tree->deleteItem(m_tree->index("/p"), 5));
        QVERIFY(!m_tree->deleteItem(m_tree->index("/p"), -1));
        QCOMPARE(m_tree->watch.watched, QStringList({"/p"}));
        // Every path holds the empty text of no node.
        QVERIFY(!m_tree->deleteItem({}, QModelIndex()));
        QVERIFY(m_tree->watch.watched.isEmpty());
        QCOMPARE(rows(), QString("p(a.dwg)"));
    }

    void aChangeOnDiskComesBeforeWhatWentGoes()
    {
        m_tree->addDirectory("/p");
        m_tree->open("/p");
        QStringList log;
        connect(m_tree.get(), &QAbstractItemModel::rowsInserted, this,
                [&](const QModelIndex&, int first, int) { log += "+" + QString::number(first); });
        connect(m_tree.get(), &QAbstractItemModel::rowsRemoved, this,
                [&](const QModelIndex&, int first, int) { log += "-" + QString::number(first); });
        m_tree->disk.entries = {"/p/", "/p/n.dwg", "/p/a.dwg", "/p/m/"};
        m_tree->setNameFilters({"*.none"});
        m_tree->watch.onDirectoryChanged("/p");
        QCOMPARE(rows(), QString("p(a.dwg n.dwg m)"));
        QCOMPARE(log, QStringList({"+3", "+4", "-2", "-0"}));
        // What is new isn't watched before it is opened.
        QCOMPARE(m_tree->watch.watched, QStringList({"/p"}));
        QCOMPARE(m_tree->disk.filters, QStringList({"*.none", "6402"}));
        log.clear();
        m_tree->watch.onDirectoryChanged("/p");
        m_tree->watch.onDirectoryChanged("/elsewhere");
        QVERIFY(log.isEmpty());
    }

    void aDirectoryThatIsTakenAwayByAListenerLeavesTheOthersAlone()
    {
        m_tree->addDirectory("/p");
        m_tree->addDirectory("/q");
        m_tree->open("/p");
        const auto whenRemoved =
            connect(m_tree.get(), &QAbstractItemModel::rowsRemoved, this, [this] { m_tree->removeDirectory("/p"); });
        m_tree->disk.entries = {"/p/", "/q/"};
        m_tree->watch.onDirectoryChanged("/p");
        QCOMPARE(rows(), QString("q"));
        disconnect(whenRemoved);
    }

    void aReplacedKindOfEntryKeepsItsNode()
    {
        m_tree->addDirectory("/q");
        m_tree->open("/q");
        m_tree->disk.entries = {"/q/", "/q/y.dwg/"};
        m_tree->watch.onDirectoryChanged("/q");
        QCOMPARE(rows(), QString("q(y.dwg)"));
    }

    void theNearestNodeIsFoundByCharacters_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("nearest");
        QTest::addColumn<QStringList>("rest");
        QTest::newRow("itself") << "/p/b"
                                << "/p/b" << QStringList();
        QTest::newRow("below a leaf") << "/p/b/none/more"
                                      << "/p/b" << QStringList({"none", "more"});
        QTest::newRow("a name that begins like another") << "/p/bd"
                                                         << "/p/b" << QStringList();
        QTest::newRow("a longer child doesn't count") << "/p/a"
                                                      << "/p/b" << QStringList();
        QTest::newRow("another root is near by its slash") << "/z"
                                                           << "/p" << QStringList();
    }
    void theNearestNodeIsFoundByCharacters()
    {
        QFETCH(QString, path);
        m_tree->addDirectory("/p");
        m_tree->addDirectory("/q");
        m_tree->open("/p");
        const auto [nearest, rest] = m_tree->getIndexWithSubDirectories(path);
        QTEST(m_tree->filePath(nearest), "nearest");
        QTEST(QStringList(rest), "rest");
        QCOMPARE(m_tree->getNearestIndexByPath(path), nearest);
    }

    void anEmptyTreeHasNothingNear()
    {
        QVERIFY(!m_tree->getNearestIndexByPath("/p").isValid());
        QVERIFY(!m_tree->fetchDirectory("/p").isValid());
        QCOMPARE(FakeTree::splitPath("/a//b/c.dwg/"), QStringList({"a", "b", "c.dwg"}));
    }

    void aPathIsOpenedByOneCall()
    {
        m_tree->addDirectory("/p");
        QCOMPARE(m_tree->filePath(m_tree->fetchDirectory("/p/b/deep")), QString("/p/b/deep"));
        QCOMPARE(rows(), QString("p(b(deep(x.dwg)) a.dwg bc)"));
        QCOMPARE(m_tree->watch.watched, QStringList({"/p", "/p/b", "/p/b/deep"}));
        QCOMPARE(m_tree->filePath(m_tree->fetchDirectory("/p/bc/none/more")), QString("/p/bc"));
        QCOMPARE(m_tree->watch.watched.last(), QString("/p/bc"));
        QCOMPARE(m_tree->disk.browsed.size(), 4);
    }

    void clearForgetsAll()
    {
        m_tree->addDirectory("/p");
        m_tree->open("/p");
        int resets = 0;
        connect(m_tree.get(), &QAbstractItemModel::modelReset, this, [&] { ++resets; });
        m_tree->clear();
        QCOMPARE(resets, 1);
        QCOMPARE(m_tree->rowCount(), 0);
        QVERIFY(m_tree->watch.watched.isEmpty());
        QVERIFY(m_tree->addDirectory("/p/b").isValid());
    }
};

QTEST_GUILESS_MAIN(TestFileSystemTree)

#include "tst_filesystemtree.moc"
