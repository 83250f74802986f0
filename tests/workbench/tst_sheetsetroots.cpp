#include "workbench/sheetsethouse.h"

using namespace workbench;

/// The folders that the user adds to the sheet sets, and what is kept of them.
class SheetSetRootsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aRootCoversWhatIsBelowIt();
    void rootsAndOpenFoldersAreFoundAtTheNextStart();
    void whatIsGoneAtTheNextStartIsForgotten();
    void whatGoesWhileItIsShownIsForgotten();
    void aRootThatVanishesComesBackAsItWas();
    void aRootThatIsMadeAgainAtOnceIsFollowed();
    void reloadingReadsTheDiskAndKeepsWhatIsOpen();
    void reloadingTellsEqualNamesApart();
};

void SheetSetRootsTest::aRootCoversWhatIsBelowIt()
{
    SheetSetHouse disk;
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

    disk.controller->setCurrentIndex(disk.row("set/one"));
    QVERIFY(!disk.controller->canRemove());
    disk.controller->removeCurrent();
    disk.controller->setCurrentIndex(disk.row("set"));
    QVERIFY(disk.controller->canRemove());
    disk.controller->removeCurrent();
    QCOMPARE(disk.rows(), QString("set2"));
    QVERIFY(!disk.controller->canRemove());
    // What was open there isn't when it is added anew.
    QVERIFY(disk.controller->addRoot(disk.path("set")));
    QCOMPARE(disk.expanded(), QStringList());

    // The root of all ends with what stands between the names of others.
    SheetSetTree tree;
    tree.setExpandedPaths({"/", "/somewhere"});
    tree.removeRoot("/");
    QCOMPARE(tree.expandedPaths(), QStringList());
}

void SheetSetRootsTest::rootsAndOpenFoldersAreFoundAtTheNextStart()
{
    SheetSetHouse disk;
    for (const char* name : {"one/same/deep", "two/same"})
        disk.makeFolder(name);
    disk.start();
    for (const char* name : {"two", "one"})
        disk.addAndOpen(name);
    for (const char* name : {"one/same", "two/same", "one/same/deep"})
        disk.open(name);
    const QStringList expanded = disk.expanded();
    QCOMPARE(expanded.size(), 5);
    disk.stop();
    disk.config.reopen();

    disk.startUntested();
    QCOMPARE(disk.rows(), QString("one two"));
    QVERIFY(!disk.controller->isReading()); // nothing below before it is shown
    QCOMPARE(disk.expanded(), expanded);
    disk.stop(); // before anything was opened
    disk.start();
    disk.showPage();
    QTRY_COMPARE(disk.rows(), QString("one(same(deep)) two(same)"));
    QTRY_VERIFY(!disk.controller->isReading());
    QCOMPARE(disk.expanded(), expanded);
}

void SheetSetRootsTest::whatIsGoneAtTheNextStartIsForgotten()
{
    SheetSetHouse disk;
    for (const char* name : {"root/goes/deep", "root/stays/goes", "root/closed/stays", "away/inner"})
        disk.makeFolder(name);
    disk.start();
    for (const char* name : {"root", "away"})
        disk.addAndOpen(name);
    for (const char* name : {"root/goes", "root/goes/deep", "root/stays", "root/stays/goes", "root/closed",
                             "root/closed/stays", "away/inner"})
        disk.open(name);
    disk.controller->tree()->setData(disk.row("root/closed"), false, velm::getWantsToBeExpandedRole());
    disk.stop();
    for (const char* name : {"root/goes", "root/stays/goes", "root/closed/stays", "away"})
        QVERIFY(QDir(disk.path(name)).removeRecursively());

    disk.start();
    disk.showPage();
    QTRY_COMPARE(disk.rows(), QString("root(closed stays)"));
    QTRY_VERIFY(!disk.controller->isReading());
    // Nothing is known of what hasn't been read.
    const QStringList known = {"away", "away/inner", "root", "root/closed/stays", "root/stays"};
    QCOMPARE(disk.expanded(), known);
    disk.stop();
    disk.config.reopen();
    disk.startUntested();
    QCOMPARE(disk.expanded(), known);
}

void SheetSetRootsTest::whatGoesWhileItIsShownIsForgotten()
{
    SheetSetHouse disk;
    for (const char* name : {"root/a/deep", "root/ab"})
        disk.makeFolder(name);
    disk.start();
    disk.addAndOpen("root");
    for (const char* name : {"root/a", "root/a/deep", "root/ab"})
        disk.open(name);
    QVERIFY(QDir(disk.path("root/a")).removeRecursively());
    QTRY_COMPARE(disk.rows(), QString("root(ab)"));
    QCOMPARE(disk.expanded(), QStringList({"root", "root/ab"}));
    QVERIFY(!disk.controller->source()->deleteItem({}, QModelIndex()));
    QVERIFY(disk.controller->source()->watcher()->directories().contains(disk.path("root/ab")));
}

void SheetSetRootsTest::aRootThatVanishesComesBackAsItWas()
{
    SheetSetHouse disk;
    disk.makeFolder("up/root/inner");
    disk.makeFolder("stays");
    disk.start();
    disk.showPage();
    disk.addAndOpen("up/root");
    disk.controller->addRoot(disk.path("stays"));
    disk.open("up/root/inner");
    QVERIFY(QDir(disk.path("up")).removeRecursively());
    QTRY_COMPARE(disk.controller->missingRoots(), QStringList(disk.path("up/root")));
    QCOMPARE(disk.rows(), QString("stays"));
    QCOMPARE(disk.expanded(), QStringList({"up/root", "up/root/inner"}));

    disk.makeFolder("up/root/inner");
    QTRY_COMPARE(disk.rows(), QString("root(inner) stays"));
    QCOMPARE(disk.controller->missingRoots(), QStringList());
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

void SheetSetRootsTest::aRootThatIsMadeAgainAtOnceIsFollowed()
{
    SheetSetHouse disk;
    disk.makeFolder("root");
    disk.write("root/old.dxf");
    disk.start();
    disk.addAndOpen("root");
    QTRY_COMPARE(disk.rows(), QString("root(old.dxf)"));
    QVERIFY(QDir(disk.path("root")).removeRecursively());
    disk.makeFolder("root");
    disk.write("root/new.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(new.dxf)"));
    disk.write("root/newer.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(new.dxf newer.dxf)"));
}

void SheetSetRootsTest::reloadingReadsTheDiskAndKeepsWhatIsOpen()
{
    SheetSetHouse disk;
    disk.makeFolder("root/inner");
    disk.write("root/inner/plan.dxf", sheets({"Model"}));
    disk.start();
    disk.showPage();
    disk.addAndOpen("root");
    for (const char* name : {"root/inner", "root/inner/plan.dxf"})
        disk.open(name);
    QTRY_VERIFY(disk.row("root/inner/plan.dxf/Model").isValid());
    disk.controller->setCurrentIndex(disk.row("root/inner/plan.dxf/Model"));
    const QStringList expanded = disk.expanded();
    QCOMPARE(expanded.size(), 3);
    disk.write("root/inner/plan.dxf", sheets({"Model", "Plan"})); // which no folder tells of
    disk.write("root/inner/plan2.dxf");
    disk.controller->reload();
    QTRY_COMPARE(disk.rows(), QString("root(inner(plan.dxf (2)(Model Plan) plan2.dxf))"));
    QCOMPARE(disk.expanded(), expanded);
    QCOMPARE(disk.current(), QString("Model"));
    disk.write("root/inner/plan3.dxf");
    QTRY_COMPARE(disk.rows(), QString("root(inner(plan.dxf (2)(Model Plan) plan2.dxf plan3.dxf))"));
}

void SheetSetRootsTest::reloadingTellsEqualNamesApart()
{
    SheetSetHouse disk;
    for (const char* name : {"root/a/x", "root/b/x", "root/c/y/z", "root/d/y/z"})
        disk.makeFolder(name);
    disk.write("root/a/x/1.dxf");
    disk.write("root/b/x/2.dxf");
    disk.start();
    disk.showPage();
    disk.addAndOpen("root");
    for (const char* name : {"root/a", "root/a/x", "root/b", "root/c", "root/c/y", "root/d", "root/d/y"})
        disk.open(name);
    const QStringList expanded = disk.expanded();
    QCOMPARE(expanded.size(), 8);
    disk.controller->reload();
    QTRY_COMPARE(disk.rows(), QString("root(a(x(1.dxf)) b(x) c(y(z)) d(y(z)))"));
    QCOMPARE(disk.expanded(), expanded);
}

QTEST_GUILESS_MAIN(SheetSetRootsTest)
#include "tst_sheetsetroots.moc"
