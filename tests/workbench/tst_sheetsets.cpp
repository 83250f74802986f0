#include "sheetset/sheetsetcontroller.h"
#include "support/rowtext.h"
#include "support/scopes.h"
#include "velm/bridge/conversions.h"
#include "workbench/dxftexts.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <set>

using namespace workbench;
using Tree = velm::SheetSetFileSystemTreeModel;

namespace {
/// A drawing with these layouts, the last with a viewport.
QByteArray sheets(const QStringList& layouts)
{
    QByteArray objects;
    for (const QString& name : layouts)
        objects += "0 LAYOUT|100 AcDbLayout|1 " + name.toUtf8() + "|71 0|330 " + name.toUtf8() + "|";
    const QByteArray entities =
        layouts.isEmpty() ? QByteArray()
                          : "0 VIEWPORT|330 " + layouts.last().toUtf8() + "|69 2|40 20|41 10|12 50|22 0|45 10";
    return section("ENTITIES", entities) + section("OBJECTS", objects.chopped(objects.isEmpty() ? 0 : 1)) +
           groups("0 EOF");
}

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

/// A folder on the disk, and the panel's controller as long as it is started.
class Fixture
{
public:
    void start(std::unique_ptr<WatchedFolders> watcher = std::make_unique<WatchedFolders>())
    {
        startUntested(std::move(watcher));
        sourceTester = std::make_unique<QAbstractItemModelTester>(controller->source());
        tester = std::make_unique<QAbstractItemModelTester>(controller->tree());
        sourceTester->setUseFetchMore(false);
        tester->setUseFetchMore(false);
    }
    /// Without testers, which fetch what is there and take long for many rows.
    void startUntested(std::unique_ptr<WatchedFolders> watcher = std::make_unique<WatchedFolders>())
    {
        controller = std::make_unique<SheetSetController>(documents, std::move(watcher));
    }
    void stop()
    {
        tester.reset();
        sourceTester.reset();
        controller.reset();
    }

    QString path(const QString& name = {}) const { return QDir::cleanPath(folder.path() + u'/' + name); }
    void makeFolder(const QString& name) const { QVERIFY(QDir().mkpath(path(name))); }
    void write(const QString& name, const QByteArray& text = sheets({})) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), text.size());
    }
    /// Opens a row as the page does.
    void open(const QString& name) const
    {
        SheetSetTree* tree = controller->source();
        const QModelIndex index = tree->index(path(name));
        QVERIFY2(index.isValid(), qPrintable(name));
        controller->tree()->setData(controller->reveal(path(name)), true, velm::getWantsToBeExpandedRole());
    }
    QString rows() const { return velmtest::rowText(*controller->tree()); }
    QStringList expanded() const
    {
        QStringList names;
        for (const QString& expandedPath : controller->source()->expandedPaths())
            names += QDir(path()).relativeFilePath(expandedPath);
        return names;
    }

    velmtest::TemporaryConfig config;
    QTemporaryDir folder;
    OdApDocManager documents;
    std::unique_ptr<SheetSetController> controller;

private:
    std::unique_ptr<QAbstractItemModelTester> sourceTester;
    std::unique_ptr<QAbstractItemModelTester> tester;
};
} // namespace

/// The panel of sheet sets on a real disk, without its page.
class SheetSetsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void foldersDrawingsAndLayoutsAreSortedAndReadOnDemand();
    void whatIsOpenFollowsTheDisk();
    void rowsThatComeAndGoLeaveTheOthersInOrder();
    void namesMayHoldAnything();
    void aRootCoversWhatIsBelowIt();
    void rootsAndOpenFoldersAreFoundAtTheNextStart();
    void aRootThatVanishesComesBackAsItWas();
    void aRootThatIsMadeAgainAtOnceIsFollowed();
    void whatGoesLeavesThoseWithLongerNamesFollowed();
    void foldersThatLoopThroughLinksFollowTheDisk();
    void aFullWatcherIsToldOnce();
    void aBigFolderIsReadInTurns();
    void aChangeWhileAFolderIsReadIsFound();
    void reloadingReadsTheDiskAndKeepsWhatIsOpen();
    void reloadingTellsEqualNamesApart();
    void whatIsGoneForGoodIsForgotten();
    void aLayoutIsReadAgainWhenItsFileHasChanged();
    void drawingsAndLayoutsAreShown();
    void theCurrentDrawingIsFound();
};

void SheetSetsTest::foldersDrawingsAndLayoutsAreSortedAndReadOnDemand()
{
    Fixture disk;
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
    QCOMPARE(disk.rows(), root + "(A b broken.dxf sheet2.DXF (2) Sheet10.dxf)");
    disk.open("sheet2.DXF");
    disk.open("A");
    QCOMPARE(disk.rows(), root + "(A(inner) b broken.dxf sheet2.DXF (2)(Model Plan) Sheet10.dxf)");

    const QModelIndex layout = disk.controller->reveal(disk.path("sheet2.DXF/Plan"));
    QCOMPARE(layout.data(Tree::IconRole), QVariant("sheetset-view.svg"));
    QCOMPARE(layout.data(Tree::DragValidRole), QVariant(true));
    QVERIFY(!layout.data(Qt::ToolTipRole).toString().isEmpty());
    QVERIFY(!disk.controller->tree()->hasChildren(layout));
    QCOMPARE(disk.controller->reveal(disk.path()).data(Qt::ToolTipRole), QVariant(disk.path()));
}

void SheetSetsTest::whatIsOpenFollowsTheDisk()
{
    Fixture disk;
    disk.makeFolder("closed");
    disk.write("a.dxf");
    disk.start();
    disk.controller->addRoot(disk.path());
    disk.open("");
    const QString root = QFileInfo(disk.path()).fileName();
    QVERIFY(QFile::rename(disk.path("a.dxf"), disk.path("z.dxf")));
    disk.write("m.dxf", sheets({"Model"}));
    disk.makeFolder("another");
    QTRY_COMPARE(disk.rows(), root + "(another closed m.dxf (1) z.dxf)");
    // A folder is watched from when it is opened.
    disk.write("closed/inner.dxf");
    disk.open("closed");
    QVERIFY(QFile::remove(disk.path("closed/inner.dxf")));
    disk.write("closed/later.dxf");
    QTRY_COMPARE(disk.rows(), root + "(another closed(later.dxf) m.dxf (1) z.dxf)");
    // Made again before anybody looked.
    QVERIFY(QDir(disk.path("closed")).removeRecursively());
    disk.makeFolder("closed");
    disk.write("closed/new.dxf");
    QTRY_COMPARE(disk.rows(), root + "(another closed(new.dxf) m.dxf (1) z.dxf)");
    disk.write("closed/newer.dxf");
    QTRY_COMPARE(disk.rows(), root + "(another closed(new.dxf newer.dxf) m.dxf (1) z.dxf)");
}

void SheetSetsTest::rowsThatComeAndGoLeaveTheOthersInOrder()
{
    Fixture disk;
    disk.start();
    disk.controller->addRoot(disk.path());
    disk.open("");
    std::set<int> there;
    for (int round = 0; round < 5; ++round) {
        for (int number = 0; number < 300; ++number) {
            const QString name = QString("sheet %1.dxf").arg(number);
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
        QTRY_COMPARE(disk.rows(), QFileInfo(disk.path()).fileName() + u'(' + expected.join(' ') + u')');
    }
}

void SheetSetsTest::namesMayHoldAnything()
{
    Fixture disk;
    const QString name = QString::fromUtf8("a \"quoted\" 'name' \\ with\na line \t %1 ünï 图纸 🏠 & more");
    disk.makeFolder(name);
    disk.write(name + "/" + name + ".dxf", sheets({QString::fromUtf8("Plän \"1\" \\ %2"), ".."}));
    disk.start();
    QVERIFY(disk.controller->addRoot(disk.path(name)));
    disk.open("./" + name);
    disk.open(name + "/" + name + ".dxf");
    QCOMPARE(disk.rows(), name + u'(' + name + ".dxf (2)(.. " + QString::fromUtf8("Plän \"1\" \\ %2))"));
    disk.write(name + "/" + name + "2.dxf");
    QTRY_VERIFY(disk.rows().contains(name + "2.dxf"));
    disk.stop();
    disk.config.reopen();
    disk.start();
    QCOMPARE(disk.controller->roots(), QStringList(disk.path(name)));
    QVERIFY(disk.expanded().contains(name));
}

void SheetSetsTest::aRootCoversWhatIsBelowIt()
{
    Fixture disk;
    for (const char* name : {"set/one", "set/two", "set2", "other"})
        disk.makeFolder(name);
    disk.start();
    QVERIFY(disk.controller->addRoot(disk.path("set/one") + "/"));
    QVERIFY(disk.controller->addRoot(disk.path("other/../set/two")));
    QVERIFY(disk.controller->addRoot(disk.path("set2")));
    QCOMPARE(disk.rows(), QString("one set2 two"));
    QVERIFY(disk.controller->addRoot(disk.path("set"))); // which is no part of "set2"
    QCOMPARE(disk.rows(), QString("set set2"));
    QVERIFY(!disk.controller->addRoot(disk.path("set/one")));
    QVERIFY(!disk.controller->addRoot(disk.path("set2")));
    QVERIFY(!disk.controller->addRoot(disk.path("nowhere")));
    disk.open("set");
    disk.open("set/one");
    QCOMPARE(disk.expanded(), QStringList({"set", "set/one"}));

    disk.controller->setCurrentIndex(disk.controller->reveal(disk.path("set/one")));
    QVERIFY(!disk.controller->canRemove());
    disk.controller->removeCurrent();
    disk.controller->setCurrentIndex(disk.controller->reveal(disk.path("set")));
    QVERIFY(disk.controller->canRemove());
    disk.controller->removeCurrent();
    QCOMPARE(disk.rows(), QString("set2"));
    QVERIFY(!disk.controller->canRemove());
    // What was open there isn't when it is added anew.
    QVERIFY(disk.controller->addRoot(disk.path("set")));
    QCOMPARE(disk.expanded(), QStringList());
}

void SheetSetsTest::rootsAndOpenFoldersAreFoundAtTheNextStart()
{
    Fixture disk;
    for (const char* name : {"one/same/deep", "two/same"})
        disk.makeFolder(name);
    disk.start();
    disk.controller->addRoot(disk.path("two"));
    disk.controller->addRoot(disk.path("one"));
    for (const char* name : {"one", "two", "one/same", "two/same", "one/same/deep"})
        disk.open(name);
    const QStringList expanded = disk.expanded();
    QCOMPARE(expanded.size(), 5);
    disk.stop();
    disk.config.reopen();

    disk.startUntested();
    QCOMPARE(disk.rows(), QString("one two")); // nothing below is read yet
    QCOMPARE(disk.expanded(), expanded);
    disk.stop(); // before anything was opened
    disk.startUntested();
    disk.controller->reveal(disk.path("one/same/deep"));
    const SheetSetTree* tree = disk.controller->source();
    QVERIFY(tree->wantsToBeExpanded(tree->index(disk.path("one/same/deep"))));
    QCOMPARE(disk.expanded(), expanded);
}

void SheetSetsTest::aRootThatVanishesComesBackAsItWas()
{
    Fixture disk;
    disk.makeFolder("up/root/inner");
    disk.makeFolder("stays");
    disk.start();
    disk.controller->addRoot(disk.path("up/root"));
    disk.controller->addRoot(disk.path("stays"));
    disk.open("up/root");
    disk.open("up/root/inner");
    QVERIFY(QDir(disk.path("up")).removeRecursively());
    QTRY_COMPARE(disk.controller->missingRoots(), QStringList(disk.path("up/root")));
    QCOMPARE(disk.rows(), QString("stays"));
    QCOMPARE(disk.expanded(), QStringList({"up/root", "up/root/inner"}));

    disk.makeFolder("up/root/inner");
    QTRY_COMPARE(disk.rows(), QString("root stays"));
    QCOMPARE(disk.controller->missingRoots(), QStringList());
    disk.controller->reveal(disk.path("up/root/inner"));
    disk.write("up/root/inner/new.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(inner(new.dxf)) stays"));
    QCOMPARE(disk.expanded(), QStringList({"up/root", "up/root/inner"}));

    // One that is gone can be removed, too, and one that is no folder any more is gone.
    QVERIFY(QDir(disk.path("stays")).removeRecursively());
    disk.write("stays");
    QTRY_COMPARE(disk.controller->missingRoots(), QStringList(disk.path("stays")));
    disk.controller->removeRoot(disk.path("stays"));
    QCOMPARE(disk.controller->roots(), QStringList(disk.path("up/root")));
    QVERIFY(disk.controller->missingRoots().isEmpty());
}

void SheetSetsTest::aRootThatIsMadeAgainAtOnceIsFollowed()
{
    Fixture disk;
    disk.makeFolder("root");
    disk.write("root/old.dxf");
    disk.start();
    disk.controller->addRoot(disk.path("root"));
    disk.open("root");
    QVERIFY(QDir(disk.path("root")).removeRecursively());
    disk.makeFolder("root");
    disk.write("root/new.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(new.dxf)"));
    disk.write("root/newer.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(new.dxf newer.dxf)"));
}

void SheetSetsTest::whatGoesLeavesThoseWithLongerNamesFollowed()
{
    Fixture disk;
    for (const char* name : {"root/sheet1", "root/sheet10", "root/a.dxf_old"})
        disk.makeFolder(name);
    disk.write("root/a.dxf");
    disk.start();
    disk.controller->addRoot(disk.path("root"));
    for (const char* name : {"root", "root/sheet1", "root/sheet10", "root/a.dxf_old"})
        disk.open(name);
    QVERIFY(QDir().rmdir(disk.path("root/sheet1")));
    QVERIFY(QFile::remove(disk.path("root/a.dxf")));
    QTRY_COMPARE(disk.rows(), QString("root(a.dxf_old sheet10)"));
    disk.write("root/sheet10/new.dxf");
    disk.write("root/a.dxf_old/new.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(a.dxf_old(new.dxf) sheet10(new.dxf))"));

    // What had changed before is found as well.
    for (const char* name : {"set", "set2"}) {
        disk.makeFolder(name);
        disk.controller->addRoot(disk.path(name));
        disk.open(name);
    }
    disk.write("set2/new.dxf");
    disk.controller->removeRoot(disk.path("set"));
    QTRY_COMPARE(disk.rows(), QString("root(a.dxf_old(new.dxf) sheet10(new.dxf)) set2(new.dxf)"));
    QVERIFY(!disk.controller->source()->watcher()->directories().contains(disk.path("set")));
}

void SheetSetsTest::foldersThatLoopThroughLinksFollowTheDisk()
{
    Fixture disk;
    disk.makeFolder("root");
    QVERIFY(QFile::link(disk.path("root"), disk.path("root/loop")));
    QVERIFY(QFile::link(disk.path("nowhere"), disk.path("root/dead.dxf")));
    disk.start();
    disk.controller->addRoot(disk.path("root"));
    for (const char* name : {"root", "root/loop", "root/loop/loop"})
        disk.open(name);
    QCOMPARE(disk.rows(), QString("root(loop(loop(loop)))"));
    disk.write("root/new.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(loop(loop(loop new.dxf) new.dxf) new.dxf)"));
    QVERIFY(QFile::remove(disk.path("root/loop")));
    QTRY_COMPARE(disk.rows(), QString("root(new.dxf)"));
}

void SheetSetsTest::aFullWatcherIsToldOnce()
{
    Fixture disk;
    for (const char* name : {"root/a", "root/b", "root/c"})
        disk.makeFolder(name);
    auto watcher = std::make_unique<FullWatcher>();
    FullWatcher& full = *watcher;
    full.room = 1;
    disk.start(std::move(watcher));
    QStringList told;
    disk.controller->onWarning = [&](const QString& warning) { told += warning; };
    disk.controller->addRoot(disk.path("root"));
    disk.open("root");
    QCOMPARE(told, QStringList());
    disk.open("root/a");
    disk.open("root/b");
    QCOMPARE(told.size(), 1);
    QCOMPARE(disk.controller->warning(), told.first());
    QCOMPARE(full.tries, 2); // the system's own complaint isn't repeated either
    disk.controller->dismissWarning();
    QCOMPARE(disk.controller->warning(), QString());

    // The rest goes on: what is watched is followed, and reloading finds the rest.
    disk.write("root/a/new.dxf");
    disk.makeFolder("root/d");
    QTRY_COMPARE(disk.rows(), QString("root(a b c d)"));
    disk.controller->reload();
    QCOMPARE(disk.rows(), QString("root(a(new.dxf) b c d)"));
    QCOMPARE(told.size(), 1);
}

void SheetSetsTest::aBigFolderIsReadInTurns()
{
    Fixture disk;
    disk.makeFolder("root/small");
    disk.write("root/small/one.dxf");
    constexpr int count = 3000;
    for (int number = 0; number < count; ++number)
        disk.write(QString("root/%1.dxf").arg(number));
    disk.startUntested();
    disk.controller->addRoot(disk.path("root"));
    SheetSetTree* tree = disk.controller->source();
    const QSignalSpy reading(disk.controller.get(), &SheetSetController::readingChanged);
    tree->fetchMore(tree->index(disk.path("root")));
    QVERIFY(disk.controller->isReading());
    const int first = tree->rowCount(tree->index(disk.path("root")));
    QVERIFY2(first > 0 && first < count, qPrintable(QString::number(first)));
    // What is opened meanwhile doesn't wait for the rest.
    QTRY_VERIFY(tree->index(disk.path("root/small")).isValid());
    disk.controller->source()->fetchMore(tree->index(disk.path("root/small")));
    QVERIFY(tree->index(disk.path("root/small/one.dxf")).isValid());
    QTRY_VERIFY(!disk.controller->isReading());
    QVERIFY(reading.size() >= 2);
    QCOMPARE(tree->rowCount(tree->index(disk.path("root"))), count + 1);
    const QModelIndex root = disk.controller->reveal(disk.path("root"));
    for (int row = 0; row < count; ++row)
        QCOMPARE(disk.controller->tree()->index(row + 1, 0, root).data().toString(), QString("%1.dxf").arg(row));

    // A root that is removed while it is read.
    disk.controller->removeRoot(disk.path("root"));
    disk.controller->addRoot(disk.path("root"));
    tree->fetchMore(tree->index(disk.path("root")));
    QVERIFY(disk.controller->isReading());
    disk.controller->removeRoot(disk.path("root"));
    QTRY_VERIFY(!disk.controller->isReading());
    QCOMPARE(disk.rows(), QString());
}

void SheetSetsTest::aChangeWhileAFolderIsReadIsFound()
{
    Fixture disk;
    disk.makeFolder("root");
    constexpr int count = 3000;
    for (int number = 0; number < count; ++number)
        disk.write(QString("root/%1.dxf").arg(number));
    disk.startUntested();
    disk.controller->addRoot(disk.path("root"));
    SheetSetTree* tree = disk.controller->source();
    tree->fetchMore(tree->index(disk.path("root")));
    QVERIFY(disk.controller->isReading());
    for (int number = 0; number < count; number += 2)
        QVERIFY(QFile::remove(disk.path(QString("root/%1.dxf").arg(number))));
    disk.write("root/new.dxf");
    tree->onDirectoryChanged(disk.path("root"));
    QTRY_COMPARE(tree->rowCount(tree->index(disk.path("root"))), count / 2 + 1);
    QTRY_VERIFY(!disk.controller->isReading());
    QVERIFY(tree->index(disk.path("root/new.dxf")).isValid());
}

void SheetSetsTest::reloadingReadsTheDiskAndKeepsWhatIsOpen()
{
    Fixture disk;
    disk.makeFolder("root/inner");
    disk.write("root/inner/plan.dxf", sheets({"Model"}));
    disk.start();
    disk.controller->addRoot(disk.path("root"));
    for (const char* name : {"root", "root/inner", "root/inner/plan.dxf"})
        disk.open(name);
    const QStringList expanded = disk.expanded();
    QCOMPARE(expanded.size(), 3);
    disk.write("root/inner/plan2.dxf");
    disk.controller->reload();
    QCOMPARE(disk.rows(), QString("root(inner(plan.dxf (1)(Model) plan2.dxf))"));
    QCOMPARE(disk.expanded(), expanded);
    disk.write("root/inner/plan3.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(inner(plan.dxf (1)(Model) plan2.dxf plan3.dxf))"));
}

void SheetSetsTest::reloadingTellsEqualNamesApart()
{
    Fixture disk;
    for (const char* name : {"root/a/x", "root/b/x", "root/c/y/z", "root/d/y/z"})
        disk.makeFolder(name);
    disk.write("root/a/x/1.dxf");
    disk.write("root/b/x/2.dxf");
    disk.start();
    disk.controller->addRoot(disk.path("root"));
    for (const char* name : {"root", "root/a", "root/a/x", "root/b", "root/c", "root/c/y", "root/d", "root/d/y"})
        disk.open(name);
    const QStringList expanded = disk.expanded();
    QCOMPARE(expanded.size(), 8);
    disk.controller->reload();
    QCOMPARE(disk.rows(), QString("root(a(x(1.dxf)) b(x) c(y(z)) d(y(z)))"));
    QCOMPARE(disk.expanded(), expanded);
}

void SheetSetsTest::whatIsGoneForGoodIsForgotten()
{
    Fixture disk;
    for (const char* name : {"root/a/deep", "root/ab"})
        disk.makeFolder(name);
    disk.start();
    disk.controller->addRoot(disk.path("root"));
    for (const char* name : {"root", "root/a", "root/a/deep", "root/ab"})
        disk.open(name);
    QVERIFY(QDir(disk.path("root/a")).removeRecursively());
    QTRY_COMPARE(disk.rows(), QString("root(ab)"));
    QCOMPARE(disk.expanded(), QStringList({"root", "root/ab"}));
    QVERIFY(!disk.controller->source()->deleteItem({}, QModelIndex()));
    QVERIFY(disk.controller->source()->watcher()->directories().contains(disk.path("root/ab")));
    disk.stop();
    disk.config.reopen();
    disk.startUntested();
    QCOMPARE(disk.expanded(), QStringList({"root", "root/ab"}));

    // The root of all ends with what stands between the names of others.
    SheetSetTree tree;
    tree.setExpandedPaths({"/", "/somewhere"});
    tree.removeRoot("/");
    QCOMPARE(tree.expandedPaths(), QStringList());
}

void SheetSetsTest::aLayoutIsReadAgainWhenItsFileHasChanged()
{
    Fixture disk;
    LayoutCache cache;
    const auto count = [&] { return cache.layouts(disk.path("a.dxf")).size(); };
    QCOMPARE(count(), 0u);
    disk.write("a.dxf", sheets({"Model"}));
    QCOMPARE(count(), 1u);
    QCOMPARE(count(), 1u);
    const int before = cache.readCount();
    disk.write("a.dxf", sheets({"Model", "Plan"}));
    QCOMPARE(count(), 2u);
    QCOMPARE(count(), 2u);
    QCOMPARE(cache.readCount(), before + 1);
    disk.write("a.dxf", "0\nnonsense\n");
    QCOMPARE(count(), 0u);
}

void SheetSetsTest::drawingsAndLayoutsAreShown()
{
    Fixture disk;
    disk.makeFolder("root");
    disk.write("root/plan.dxf", sheets({"Model", "Plan"}));
    disk.start();
    disk.controller->addRoot(disk.path("root"));
    QStringList shown;
    disk.controller->show = [&](const QString& drawing, std::optional<Box> box) {
        shown += QFileInfo(drawing).fileName() + (!box             ? QString()
                                                  : box->isEmpty() ? QString(" all")
                                                                   : QString(" %1..%2").arg(box->left).arg(box->right));
    };
    bool isOver = false;
    disk.controller->isOverCanvas() = [&] { return isOver; };
    disk.open("root");
    const QModelIndex drawing = disk.controller->reveal(disk.path("root/plan.dxf"));
    disk.open("root/plan.dxf");
    const QModelIndex model = disk.controller->reveal(disk.path("root/plan.dxf/Model"));
    const QModelIndex plan = disk.controller->reveal(disk.path("root/plan.dxf/Plan"));
    QVERIFY(!disk.controller->activate(disk.controller->reveal(disk.path("root"))));
    QVERIFY(!disk.controller->activate({}));
    QVERIFY(disk.controller->activate(drawing));
    QVERIFY(disk.controller->activate(model));
    disk.controller->drop(plan);
    isOver = true;
    QVERIFY(disk.controller->isDropValid(plan));
    disk.controller->drop(plan);
    disk.controller->drop(drawing);
    disk.controller->drop({});
    QCOMPARE(shown, QStringList({"plan.dxf", "plan.dxf all", "plan.dxf 40..60"}));
}

void SheetSetsTest::theCurrentDrawingIsFound()
{
    Fixture disk;
    disk.makeFolder("root/inner");
    disk.write("root/inner/plan.dxf");
    disk.start();
    QVERIFY(!disk.controller->hasDrawing());
    disk.controller->goToDrawing();
    QCOMPARE(disk.rows(), QString());
    disk.documents.open(std::make_unique<OdApDocument>(velm::odFromQt(disk.path("root/inner/plan.dxf")),
                                                       std::make_unique<OdDbDatabase>()));
    QVERIFY(disk.controller->hasDrawing());
    disk.controller->addRoot(disk.path("root"));
    disk.controller->goToDrawing();
    QCOMPARE(disk.rows(), QString("root(inner(plan.dxf))"));
    QCOMPARE(disk.controller->currentIndex().data().toString(), QString("plan.dxf"));
    disk.controller->removeRoot(disk.path("root"));
    QVERIFY(!disk.controller->currentIndex().isValid());
    disk.controller->goToDrawing();
    QCOMPARE(disk.rows(), QString("inner(plan.dxf)"));
}

QTEST_GUILESS_MAIN(SheetSetsTest)
#include "tst_sheetsets.moc"
