#include "workbench/sheetsethouse.h"

#include <set>

using namespace workbench;
using Tree = velm::SheetSetFileSystemTreeModel;

namespace {
/// A system that can watch a few folders only.
class FullWatcher : public WatchedFolders
{
public:
    int room = 0;
    int tries = 0;

private:
    bool watch(const QString& path) override
    {
        ++tries;
        return directories().size() < room && WatchedFolders::watch(path);
    }
};

/// A disk with a folder that nobody may read.
class LockedFiles : public SheetFiles
{
public:
    explicit LockedFiles(const QString& folder) : m_folder(folder) {}
    void unlock() { m_isLocked = false; }

private:
    std::optional<QStringList> list(const QString& folder, const QStringList& nameFilters) const override
    {
        return m_isLocked && folder == m_folder ? std::nullopt : SheetFiles::list(folder, nameFilters);
    }

    QString m_folder;
    std::atomic_bool m_isLocked = true;
};
} // namespace

/// The tree of sheet sets and the disk under it.
class SheetSetsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void foldersDrawingsAndLayoutsAreSortedAndReadOnDemand();
    void whatIsOpenFollowsTheDisk();
    void rowsThatComeAndGoLeaveTheOthersInOrder();
    void namesMayHoldAnything();
    void whatGoesLeavesThoseWithLongerNamesFollowed();
    void foldersThatLoopThroughLinksFollowTheDisk();
    void aFullWatcherIsToldOnce();
    void aFolderThatCantBeReadIsLocked_data();
    void aFolderThatCantBeReadIsLocked();
    void drawingsAndLayoutsAreShown();
    void whatALayoutShowsIsReadAgainWhenItsFileHasChanged();
};

void SheetSetsTest::foldersDrawingsAndLayoutsAreSortedAndReadOnDemand()
{
    SheetSetHouse disk;
    disk.makeFolder("b");
    disk.makeFolder("A/inner");
    disk.write("Sheet10.dxf");
    disk.write("sheet2.DXF", sheets({"Model", "Plan"}));
    disk.write("broken.dxf", "nonsense");
    disk.write("notes.txt");
    disk.start();
    QVERIFY(disk.controller->addRoot(disk.path()));
    const QString root = QFileInfo(disk.path()).fileName();
    QCOMPARE(disk.rows(), root);
    disk.open("");
    QTRY_COMPARE(disk.rows(), root + "(A b broken.dxf sheet2.DXF (2) Sheet10.dxf)");
    disk.open("sheet2.DXF");
    disk.open("A");
    QTRY_COMPARE(disk.rows(), root + "(A(inner) b broken.dxf sheet2.DXF (2)(Model Plan) Sheet10.dxf)");

    const QModelIndex layout = disk.row("sheet2.DXF/Plan");
    QCOMPARE(layout.data(Tree::IconRole), QVariant("sheetset-view.svg"));
    QCOMPARE(layout.data(Tree::DragValidRole), QVariant(true));
    QVERIFY(!layout.data(Qt::ToolTipRole).toString().isEmpty());
    QVERIFY(!disk.controller->tree()->hasChildren(layout));
    QCOMPARE(disk.row("").data(Qt::ToolTipRole), QVariant(disk.path()));
}

void SheetSetsTest::whatIsOpenFollowsTheDisk()
{
    SheetSetHouse disk;
    disk.makeFolder("root/closed");
    disk.write("root/a.dxf");
    disk.start();
    disk.addAndOpen("root");
    QTRY_COMPARE(disk.rows(), QString("root(closed a.dxf)"));
    QVERIFY(QFile::rename(disk.path("root/a.dxf"), disk.path("root/z.dxf")));
    disk.write("root/m.dxf", sheets({"Model"}));
    disk.makeFolder("root/another");
    QTRY_COMPARE(disk.rows(), QString("root(another closed m.dxf (1) z.dxf)"));
    // A folder is watched from when it is opened.
    disk.controller->source()->onDirectoryChanged(disk.path("root/closed"));
    disk.write("root/closed/inner.dxf");
    disk.open("root/closed");
    QTRY_COMPARE(disk.rows(), QString("root(another closed(inner.dxf) m.dxf (1) z.dxf)"));
    QVERIFY(QFile::remove(disk.path("root/closed/inner.dxf")));
    disk.write("root/closed/later.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(another closed(later.dxf) m.dxf (1) z.dxf)"));
    // Made again before anybody looked.
    QVERIFY(QDir(disk.path("root/closed")).removeRecursively());
    disk.makeFolder("root/closed");
    disk.write("root/closed/new.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(another closed(new.dxf) m.dxf (1) z.dxf)"));
    disk.write("root/closed/newer.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(another closed(new.dxf newer.dxf) m.dxf (1) z.dxf)"));
}

void SheetSetsTest::rowsThatComeAndGoLeaveTheOthersInOrder()
{
    SheetSetHouse disk;
    disk.makeFolder("root");
    disk.start();
    disk.addAndOpen("root");
    std::set<int> there;
    for (int round = 0; round < 5; ++round) {
        for (int number = 0; number < 300; ++number) {
            const QString name = QString("root/sheet %1.dxf").arg(number);
            if ((number * 7 + round * 11) % (round + 2) == 0) {
                if (there.erase(number) == 1)
                    QVERIFY(QFile::remove(disk.path(name)));
            } else if (there.insert(number).second) {
                disk.write(name);
            }
        }
        QStringList expected;
        for (const int number : there)
            expected += QString("sheet %1.dxf").arg(number);
        QTRY_COMPARE(disk.rows(), "root(" + expected.join(' ') + u')');
    }
}

void SheetSetsTest::namesMayHoldAnything()
{
    SheetSetHouse disk;
    const QString name = QString::fromUtf8("a \"quoted\" 'name' \\ with\na line \t %1 ünï 图纸 🏠 & more");
    disk.makeFolder(name);
    disk.write(name + "/" + name + ".dxf", sheets({QString::fromUtf8("Plän \"1\" \\ %2"), ".."}));
    disk.start();
    disk.addAndOpen(name);
    disk.open(name + "/" + name + ".dxf");
    QTRY_COMPARE(disk.rows(), name + u'(' + name + ".dxf (2)(.. " + QString::fromUtf8("Plän \"1\" \\ %2))"));
    disk.write(name + "/" + name + "2.dxf");
    QTRY_VERIFY(disk.rows().contains(name + "2.dxf"));
    disk.stop();
    disk.config.reopen();
    disk.start();
    QCOMPARE(disk.controller->roots(), QStringList(disk.path(name)));
    QVERIFY(disk.expanded().contains(name));
}

void SheetSetsTest::whatGoesLeavesThoseWithLongerNamesFollowed()
{
    SheetSetHouse disk;
    for (const char* name : {"root/sheet1", "root/sheet10", "root/a.dxf_old"})
        disk.makeFolder(name);
    disk.write("root/a.dxf");
    disk.start();
    disk.addAndOpen("root");
    for (const char* name : {"root/sheet1", "root/sheet10", "root/a.dxf_old"})
        disk.open(name);
    QTRY_COMPARE(disk.rows(), QString("root(a.dxf_old sheet1 sheet10 a.dxf)"));
    QVERIFY(QDir().rmdir(disk.path("root/sheet1")));
    QVERIFY(QFile::remove(disk.path("root/a.dxf")));
    QTRY_COMPARE(disk.rows(), QString("root(a.dxf_old sheet10)"));
    disk.write("root/sheet10/new.dxf");
    disk.write("root/a.dxf_old/new.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(a.dxf_old(new.dxf) sheet10(new.dxf))"));

    // What had changed before is found as well.
    for (const char* name : {"set", "set2"}) {
        disk.makeFolder(name);
        disk.addAndOpen(name);
    }
    QTRY_VERIFY(!disk.controller->isReading());
    disk.write("set2/new.dxf");
    disk.controller->removeRoot(disk.path("set"));
    QTRY_COMPARE(disk.rows(), QString("root(a.dxf_old(new.dxf) sheet10(new.dxf)) set2(new.dxf)"));
    QVERIFY(!disk.controller->source()->watcher()->directories().contains(disk.path("set")));
}

void SheetSetsTest::foldersThatLoopThroughLinksFollowTheDisk()
{
    SheetSetHouse disk;
    disk.makeFolder("root");
    QVERIFY(QFile::link(disk.path("root"), disk.path("root/loop")));
    QVERIFY(QFile::link(disk.path("nowhere"), disk.path("root/dead.dxf")));
    disk.start();
    disk.addAndOpen("root");
    for (const char* name : {"root/loop", "root/loop/loop"})
        disk.open(name);
    QTRY_COMPARE(disk.rows(), QString("root(loop(loop(loop)))"));
    disk.write("root/new.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(loop(loop(loop new.dxf) new.dxf) new.dxf)"));
    QVERIFY(QFile::remove(disk.path("root/loop")));
    QTRY_COMPARE(disk.rows(), QString("root(new.dxf)"));
}

void SheetSetsTest::aFullWatcherIsToldOnce()
{
    SheetSetHouse disk;
    for (const char* name : {"root/a", "root/b", "root/c"})
        disk.makeFolder(name);
    auto watcher = std::make_unique<FullWatcher>();
    FullWatcher& full = *watcher;
    full.room = 1;
    disk.start(std::move(watcher));
    disk.showPage();
    QStringList told;
    disk.controller->onWarning = [&](const QString& warning) { told += warning; };
    disk.addAndOpen("root");
    QCOMPARE(told, QStringList());
    disk.open("root/a");
    disk.open("root/b");
    QCOMPARE(told.size(), 1);
    QCOMPARE(disk.controller->warning(), told.first());
    QCOMPARE(full.tries, 2); // the system's own complaint isn't repeated either
    disk.controller->dismissWarning();
    QCOMPARE(disk.controller->warning(), QString());

    QTRY_VERIFY(!disk.controller->isReading());
    // The rest goes on: what is watched is followed, and reloading finds the rest.
    disk.write("root/a/new.dxf");
    disk.makeFolder("root/d");
    QTRY_COMPARE(disk.rows(), QString("root(a b c d)"));
    disk.controller->reload();
    QTRY_COMPARE(disk.rows(), QString("root(a(new.dxf) b c d)"));
    QCOMPARE(told.size(), 1);
}

void SheetSetsTest::aFolderThatCantBeReadIsLocked_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("changing");
    QTest::newRow("a root") << "root"
                            << "other";
    QTest::newRow("a folder in a root") << "root/inner"
                                        << "root/other";
}

void SheetSetsTest::aFolderThatCantBeReadIsLocked()
{
    QFETCH(QString, name);
    QFETCH(QString, changing);
    SheetSetHouse disk;
    disk.makeFolder(name + "/below");
    auto files = std::make_unique<LockedFiles>(disk.path(name));
    LockedFiles& locked = *files;
    disk.start(std::make_unique<WatchedFolders>(), std::move(files));
    disk.addAndOpen("root");
    disk.controller->source()->setExpandedPaths({disk.path("root"), disk.path(name), disk.path(name + "/below")});
    disk.open(name);
    QTRY_COMPARE(disk.row(name).data(Tree::IconRole), QVariant("lock.svg"));
    QVERIFY(disk.row(name).data(Qt::ToolTipRole).toString().contains(disk.path(name)));
    QTRY_VERIFY(!disk.controller->isReading());
    QVERIFY(disk.expanded().contains(name + "/below")); // which may be there

    // A system doesn't watch what can't be read, but tells of a change in the folder above.
    disk.controller->source()->watcher()->removePaths({disk.path(name)});
    locked.unlock();
    disk.makeFolder(changing);
    QTRY_COMPARE(disk.row(name).data(Tree::IconRole), QVariant("folder.svg"));
    QTRY_VERIFY(disk.row(name + "/below").isValid());
    QVERIFY(disk.controller->source()->watcher()->directories().contains(disk.path(name)));
}

void SheetSetsTest::drawingsAndLayoutsAreShown()
{
    SheetSetHouse disk;
    disk.makeFolder("root");
    disk.write("root/plan.dxf", sheets({"Model", "Plan"}));
    disk.start();
    QStringList shown;
    disk.controller->show = [&](const QString& drawing, std::optional<Box> box) {
        shown += QFileInfo(drawing).fileName() + (!box             ? QString()
                                                  : box->isEmpty() ? QString(" all")
                                                                   : QString(" %1..%2").arg(box->left).arg(box->right));
    };
    bool isOver = false;
    disk.controller->isOverCanvas() = [&] { return isOver; };
    disk.addAndOpen("root");
    disk.open("root/plan.dxf");
    QTRY_VERIFY(disk.row("root/plan.dxf/Plan").isValid());
    const QModelIndex drawing = disk.row("root/plan.dxf");
    const QModelIndex plan = disk.row("root/plan.dxf/Plan");
    QVERIFY(!disk.controller->activate(disk.row("root")));
    QVERIFY(!disk.controller->activate({}));
    QVERIFY(disk.controller->activate(drawing));
    QVERIFY(disk.controller->activate(disk.row("root/plan.dxf/Model")));
    disk.controller->drop(plan);
    isOver = true;
    QVERIFY(disk.controller->isDropValid(plan));
    disk.controller->drop(plan);
    disk.controller->drop(drawing);
    disk.controller->drop({});
    QCOMPARE(shown, QStringList({"plan.dxf", "plan.dxf all", "plan.dxf 40..60"}));
}

void SheetSetsTest::whatALayoutShowsIsReadAgainWhenItsFileHasChanged()
{
    SheetSetHouse disk;
    disk.makeFolder("root");
    disk.write("root/plan.dxf", sheets({"Plan"}));
    disk.start();
    disk.addAndOpen("root");
    disk.open("root/plan.dxf");
    QStringList shown;
    disk.controller->show = [&](const QString&, std::optional<Box> box) { shown += QString::number(box->right); };
    disk.controller->activate(disk.row("root/plan.dxf/Plan"));
    disk.write("root/plan.dxf", sheets({"Plan"}).replace("50", "250"));
    disk.controller->activate(disk.row("root/plan.dxf/Plan"));
    QTRY_COMPARE(shown, QStringList({"60", "260"}));
    QVERIFY(QFile::remove(disk.path("root/plan.dxf")));
    disk.controller->activate(disk.row("root/plan.dxf/Plan"));
    QTRY_COMPARE(shown.size(), 3); // as all of what isn't there
}

QTEST_GUILESS_MAIN(SheetSetsTest)
#include "tst_sheetsets.moc"
