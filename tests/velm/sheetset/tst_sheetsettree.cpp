#include "faketree.h"

#include "od/oderror.h"
#include "support/rowtext.h"
#include "support/scopes.h"
#include "support/vtableslots.h"
#include "velm/sheetset/sheetsetfilesystemsorter.h"
#include "velm/table/sortfilterselectmodel.h"

#include <QTest>

#include <unordered_map>

using velm::SheetSetFileSystemSorter;
using velmtest::rowText;
using Tree = velm::SheetSetFileSystemTreeModel;

/// Folders, drawings and model views, their order and what stays open.
class TestSheetSetTree : public QObject
{
    Q_OBJECT
    std::unique_ptr<FakeTree> m_tree;

    QVariant at(const QString& path, int role) const { return m_tree->index(path).data(role); }

private Q_SLOTS:
    void init()
    {
        m_tree = std::make_unique<FakeTree>();
        m_tree->disk.entries = {"/s/", "/s/folder/", "/s/plan.dwg", "/s/plain.dwg", "/s/folder/inner/"};
        m_tree->views["/s/plan.dwg"] = {"Model", "Sheet 1", "Sheet 2"};
        m_tree->addDirectory("/s");
        m_tree->open("/s");
    }
    void cleanup() { m_tree.reset(); }

    void eachKindAnswersForItself()
    {
        m_tree->open("/s/plan.dwg");
        QCOMPARE(rowText(*m_tree), QString("s(folder plan.dwg (3)(Model Sheet 1 Sheet 2) plain.dwg)"));
        QCOMPARE(at("/s/plan.dwg/Sheet 1", Qt::UserRole).toString(), QString("/s/plan.dwg/Sheet 1"));
        QCOMPARE(at("/s", Tree::IconRole).toString(), QString("folder.svg"));
        QCOMPARE(at("/s/plan.dwg", Tree::IconRole).toString(), QString("dwg.svg"));
        QCOMPARE(at("/s/plan.dwg/Model", Tree::IconRole).toString(), QString("sheetset-view.svg"));
        QCOMPARE(at("/s", Qt::ToolTipRole).toString(), QString("/s"));
        QCOMPARE(at("/s/folder", Qt::ToolTipRole), QVariant(QString()));
        QCOMPARE(at("/s/plan.dwg", Qt::ToolTipRole), QVariant(QString()));
        QCOMPARE(at("/s/plan.dwg/Model", Qt::ToolTipRole).toString(),
                 QString("Drag the model view to the drawing area"));
        QCOMPARE(at("/s", Tree::DragValidRole), QVariant(false));
        QCOMPARE(at("/s/plan.dwg", Tree::DragValidRole), QVariant(false));
        QCOMPARE(at("/s/plan.dwg/Model", Tree::DragValidRole), QVariant(true));
        QCOMPARE(at("/s/plan.dwg/Model", Tree::DropValidRole), QVariant(false));
        m_tree->dropValid = true;
        QCOMPARE(at("/s/plan.dwg/Model", Tree::DropValidRole), QVariant(true));
        QCOMPARE(at("/s/plan.dwg", Tree::DropValidRole), QVariant(false));
        QVERIFY(!at("/s", 260).isValid() && !at("/none", Qt::DisplayRole).isValid());
        const QHash<int, QByteArray> names = m_tree->roleNames();
        QCOMPARE(names.value(257) + names.value(258) + names.value(259), QByteArray("dragValiddropValidicon"));
        QVERIFY(!names.contains(256));
        QCOMPARE(m_tree->columnCount(m_tree->index("/s")), 1);
    }

    void modelViewsAreAskedForOnce()
    {
        QCOMPARE(m_tree->asked, QStringList({"/s/plan.dwg", "/s/plain.dwg"}));
        const QModelIndex drawing = m_tree->index("/s/plan.dwg");
        QVERIFY(m_tree->hasChildren(drawing) && m_tree->canFetchMore(drawing));
        m_tree->fetchMore(drawing);
        QVERIFY(!m_tree->canFetchMore(drawing));
        QVERIFY(!m_tree->hasChildren(m_tree->index("/s/plain.dwg")));
        const QModelIndex view = m_tree->index("/s/plan.dwg/Model");
        QVERIFY(!m_tree->hasChildren(view) && !m_tree->canFetchMore(view));
        QCOMPARE(m_tree->asked.size(), 2);
        QCOMPARE(m_tree->watch.watched, QStringList({"/s"}));
    }

    void whatIsNothingForTheTreeIsSkipped()
    {
        QVERIFY(m_tree->isModelView("/any/x.dwg/View") && !m_tree->isModelView("/any/x.DWG/View"));
        QVERIFY(!m_tree->isModelView("/any/x.dwg"));
        // A listing may hold what is neither, as a link to nowhere.
        m_tree->disk.entries += "/s/link/../gone";
        m_tree->watch.onDirectoryChanged("/s");
        QCOMPARE(m_tree->rowCount(m_tree->index("/s")), 3);
    }

    void foldersComeFirstAndNumbersCount_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::newRow("the library's own locale") << QLocale::c();
        QTest::newRow("German") << QLocale(QLocale::German);
    }
    void foldersComeFirstAndNumbersCount()
    {
        QFETCH(QLocale, locale);
        const velmtest::ScopedLocale scope(locale);
        m_tree->disk.entries = {"/t/",           "/t/Sheet10.dwg", "/t/sheet2.dwg", "/t/b.dwg",
                                "/t/zfolder10/", "/t/Zfolder9/",   "/t/A.dwg"};
        m_tree->addDirectory("/t");
        m_tree->open("/t");
        SheetSetFileSystemSorter sorter(m_tree.get());
        velm::SortFilterSelectModel proxy;
        proxy.setSorter(&sorter);
        proxy.setSourceModel(m_tree.get());
        proxy.doSort(0, true);
        const QModelIndex folder = proxy.mapFromSource(m_tree->index("/t"));
        QCOMPARE(rowText(proxy, Qt::DisplayRole, folder),
                 QString("Zfolder9 zfolder10 A.dwg b.dwg sheet2.dwg Sheet10.dwg"));

        const QModelIndex any = m_tree->index("/t/A.dwg");
        QVERIFY(sorter.lessThan({}, any) && !sorter.lessThan(any, {}) && sorter.lessThan({}, {}));
        QVERIFY(!sorter.lessThan(any, any));
    }

    void aSorterNeedsATree() { QVERIFY_THROWS_EXCEPTION(OdError, SheetSetFileSystemSorter(nullptr)); }

    void whatWasOpenIsFoundAgain()
    {
        m_tree->open("/s/folder");
        m_tree->setWantsToBeExpanded(m_tree->index("/s"), true);
        m_tree->setWantsToBeExpanded(m_tree->index("/s/folder"), true);
        std::unordered_map<unsigned long long, QString> expanded = {{1, "stale"}};
        m_tree->saveExpandedState(expanded);
        QCOMPARE(expanded.size(), std::size_t(2));
        QCOMPARE(expanded[m_tree->rowContentId(m_tree->index("/s/folder"))], QString("/s/folder"));

        FakeTree again;
        again.disk.entries = m_tree->disk.entries;
        again.addDirectory("/s");
        int resets = 0;
        connect(&again, &QAbstractItemModel::modelReset, this, [&] { ++resets; });
        again.restoreExpandedState(expanded);
        QCOMPARE(resets, 1);
        QCOMPARE(rowText(again), QString("s(folder(inner) plan.dwg plain.dwg)"));
        QVERIFY(again.wantsToBeExpanded(again.index("/s/folder")));
        QVERIFY(!again.wantsToBeExpanded(again.index("/s/folder/inner")));
    }

    void theOperationsKeepTheirSlots()
    {
#ifdef VELM_READS_VTABLES
        using velmtest::slotOf;
        using Data = velm::ISheetSetFileSystemTreeData;
        using Disk = velm::IFileSystem;
        using Watcher = velm::IFileSystemWatcher;
        // The destructor takes the first two.
        QCOMPARE((QList{slotOf(&Data::path), slotOf(&Data::hasChildren), slotOf(&Data::fetchChildren),
                        slotOf(&Data::canFetchMore), slotOf(&Data::icon), slotOf(&Data::name), slotOf(&Data::tooltip),
                        slotOf(&Data::dragValid), slotOf(&Data::dropValid), slotOf(&Data::isFolder)}),
                 velmtest::slotsFrom(2, 10));
        QCOMPARE((QList{slotOf(&Disk::isDirectory), slotOf(&Disk::isFile), slotOf(&Disk::directoryExists),
                        slotOf(&Disk::browseDirectory)}),
                 velmtest::slotsFrom(2, 4));
        QCOMPARE(
            (QList{slotOf(&Watcher::setListener), slotOf(&Watcher::addPath), slotOf(&Watcher::removePath),
                   slotOf(&Watcher::removePaths), slotOf(&Watcher::directories), slotOf(&Watcher::onDirectoryChanged)}),
            velmtest::slotsFrom(2, 6));
#else
        QSKIP("only read where the tables are laid out so");
#endif
    }
};

QTEST_GUILESS_MAIN(TestSheetSetTree)

#include "tst_sheetsettree.moc"
