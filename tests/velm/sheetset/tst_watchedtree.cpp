#include "support/rowtext.h"
#include "velm/sheetset/filesystem.h"
#include "velm/sheetset/filesystemwatcher.h"
#include "velm/sheetset/sheetsetfilesystemtreemodel.h"

#include <QTemporaryDir>
#include <QTest>

#include <set>

namespace {
class Tree : public velm::SheetSetFileSystemTreeModel
{
public:
    Tree()
        : SheetSetFileSystemTreeModel(std::make_unique<velm::FileSystem>(), std::make_unique<velm::FileSystemWatcher>())
    {}
    bool isModelViewDropValid() override { return false; }
    QList<QString> getModelViewNames(const QString&) override { return {}; }
};
} // namespace

/// The tree on a real disk.
class TestWatchedTree : public QObject
{
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString& name) const { return m_folder->filePath(name); }
    void write(const QString& name)
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    /// The names below a folder of the tree.
    static std::set<QString> names(const Tree& tree, const QString& folder)
    {
        std::set<QString> result;
        for (const QModelIndex& child : tree.children(tree.index(folder)))
            result.insert(child.data().toString());
        return result;
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void anOpenFolderFollowsTheDisk()
    {
        Tree tree;
        QVERIFY(QDir(m_folder->path()).mkdir("closed"));
        write("a.dwg");
        tree.addDirectory(m_folder->path());
        tree.fetchDirectory(m_folder->path());
        QCOMPARE(names(tree, m_folder->path()), std::set<QString>({"a.dwg", "closed"}));

        write("b \"quoted\" \\ \n ü.dwg");
        QVERIFY(QFile::remove(path("a.dwg")));
        QTRY_COMPARE(names(tree, m_folder->path()), std::set<QString>({"b \"quoted\" \\ \n ü.dwg", "closed"}));

        // What happens in a closed folder is seen when it is opened.
        write("closed/inner.dwg");
        QVERIFY(names(tree, path("closed")).empty());
        tree.fetchMore(tree.index(path("closed")));
        QCOMPARE(names(tree, path("closed")), std::set<QString>({"inner.dwg"}));

        QVERIFY(QDir(path("closed")).removeRecursively());
        QTRY_VERIFY(!tree.index(path("closed")).isValid());
        QVERIFY(QDir(m_folder->path()).mkdir("closed"));
        QTRY_VERIFY(tree.index(path("closed")).isValid());
        QVERIFY(tree.canFetchMore(tree.index(path("closed"))));
    }

    void aStormOfRenamesEndsWithWhatIsThere()
    {
        Tree tree;
        tree.addDirectory(m_folder->path());
        tree.fetchDirectory(m_folder->path());
        for (int i = 0; i < 200; ++i)
            write(QString("%1.dwg").arg(i));
        for (int i = 0; i < 200; ++i)
            QVERIFY(QFile::rename(path(QString("%1.dwg").arg(i)), path(QString("r%1.dwg").arg(i))));
        std::set<QString> expected;
        for (int i = 0; i < 200; ++i)
            expected.insert(QString("r%1.dwg").arg(i));
        QTRY_COMPARE(names(tree, m_folder->path()), expected);
    }

    void linksThatLoopAreOpenedOneStepAtATime()
    {
        Tree tree;
        QVERIFY(QFile::link(m_folder->path(), path("loop")));
        tree.addDirectory(m_folder->path());
        QCOMPARE(tree.filePath(tree.fetchDirectory(path("loop/loop"))), path("loop/loop"));
        QCOMPARE(tree.children(tree.index(path("loop/loop"))).size(), 1);
    }

    void aVanishedRootStaysWithoutACrash()
    {
        Tree tree;
        write("a.dwg");
        const QString root = m_folder->path();
        tree.addDirectory(root);
        tree.fetchDirectory(root);
        m_folder.reset();
        QTRY_VERIFY(names(tree, root).empty());
        QVERIFY(tree.index(root).isValid());
        QVERIFY(tree.removeDirectory(root));
    }
};

QTEST_GUILESS_MAIN(TestWatchedTree)

#include "tst_watchedtree.moc"
