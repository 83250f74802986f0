#include "workbench/sheetsethouse.h"

#include <atomic>
#include <set>

using namespace workbench;

namespace {
/// How many rows a row has had, at the times when the program was free for something else.
class SeenCounts
{
public:
    SeenCounts(const SheetSetHouse& disk, const QString& name)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, &disk, name] {
            if (!m_row.isValid())
                m_row = disk.row(name);
            m_counts.insert(disk.controller->tree()->rowCount(m_row));
        });
        m_timer.start(0);
    }
    bool areMany() const { return m_counts.size() > 5; }

private:
    QTimer m_timer;
    QPersistentModelIndex m_row;
    std::set<int> m_counts;
};

/// "+a -b": the drawings that came and went, in this order.
class Order
{
public:
    explicit Order(const QAbstractItemModel& model)
    {
        const auto note = [this, &model](const QString& sign) {
            return [this, &model, sign](const QModelIndex& parent, int first, int) {
                m_names += sign + model.index(first, 0, parent).data().toString().section(u'.', 0, 0);
            };
        };
        QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model, note("+"));
        QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, &model, note("-"));
    }
    const QStringList& names() const { return m_names; }

private:
    QStringList m_names;
};

/// Counts the listings that failed.
class CountingFiles : public SheetFiles
{
public:
    explicit CountingFiles(std::shared_ptr<std::atomic<int>> failures) : m_failures(std::move(failures)) {}
    std::optional<QStringList> list(const QString& folder, const QStringList& nameFilters) const override
    {
        const auto paths = SheetFiles::list(folder, nameFilters);
        *m_failures += paths ? 0 : 1;
        return paths;
    }

private:
    std::shared_ptr<std::atomic<int>> m_failures;
};

/// A drawing that takes some tenths of a second to read.
QByteArray largeDrawing()
{
    const QByteArray line = groups("0 LINE|8 Wall|10 1.25|20 2.5|30 0.0|11 100.75|21 3.125|31 0.0");
    return groups("0 SECTION|2 ENTITIES") + line.repeated(200'000) + groups("0 ENDSEC") +
           section("OBJECTS", "0 LAYOUT|100 AcDbLayout|1 Model|71 0|330 B") + groups("0 EOF");
}
} // namespace

/// How the rows of the sheet sets come and go while the program is used.
class SheetSetReadingTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void manyRowsComeAndGoInTurns();
    void whatIsOpenedLastComesFirst();
    void aChangeWhileAFolderIsReadIsFound();
    void aLargeDrawingHoldsUpNothingElse();
    void whatIsNewComesBeforeWhatIsGoneGoes();
    void aFolderMayGoWhileItIsRead();
    void aFolderThatIsMadeAgainIsReadAgain();
    void theCurrentDrawingIsFound();
    void theUsersChoiceTakesThePlaceOfAWish();
    void aWishThatCantBeFulfilledIsForgotten();
};

void SheetSetReadingTest::manyRowsComeAndGoInTurns()
{
    constexpr int count = 2000;
    SheetSetHouse disk;
    disk.makeFolder("root/folder");
    disk.writeMany("root/folder", 0, count);
    disk.startUntested();
    disk.controller->addRoot(disk.path("root"));
    {
        // Nothing of it has been read.
        const SeenCounts seen(disk, "root/folder");
        disk.controller->reveal(disk.path("root/folder/7.dxf"));
        QTRY_COMPARE(disk.count("root/folder"), count);
        QCOMPARE(disk.current(), QString("7.dxf"));
        QVERIFY(seen.areMany());
    }
    {
        const SeenCounts seen(disk, "root/folder");
        disk.writeMany("root/folder", count, 2 * count);
        QTRY_COMPARE(disk.count("root/folder"), 2 * count);
        QVERIFY(seen.areMany());
    }
    {
        const SeenCounts seen(disk, "root/folder");
        disk.removeMany("root/folder", 0, count);
        QTRY_COMPARE(disk.count("root/folder"), count);
        QVERIFY(seen.areMany());
    }
    QTRY_VERIFY(!disk.controller->isReading());
    for (int row = 0; row < count; ++row)
        QCOMPARE(disk.controller->tree()->index(row, 0, disk.row("root/folder")).data().toString(),
                 QString("%1.dxf").arg(count + row));
}

void SheetSetReadingTest::whatIsOpenedLastComesFirst()
{
    SheetSetHouse disk;
    constexpr int count = 2000;
    for (const char* name : {"large", "small"})
        disk.makeFolder(name);
    disk.writeMany("large", 0, count);
    disk.write("small/one.dxf");
    disk.startUntested();
    disk.addAndOpen("large");
    disk.controller->addRoot(disk.path("small"));
    const Order order(*disk.controller->source());
    const auto openSmall = [&](const QModelIndex& parent) {
        if (parent.isValid() && order.names().size() == 1)
            QMetaObject::invokeMethod(
                disk.controller.get(), [&] { disk.open("small"); }, Qt::QueuedConnection);
    };
    connect(disk.controller->source(), &QAbstractItemModel::rowsInserted, this, openSmall);
    QTRY_COMPARE(order.names().size(), count + 1);
    const qsizetype place = order.names().indexOf("+one");
    QVERIFY2(place > 0 && place < count, qPrintable(QString::number(place)));
}

void SheetSetReadingTest::aChangeWhileAFolderIsReadIsFound()
{
    SheetSetHouse disk;
    constexpr int count = 2000;
    disk.makeFolder("root");
    disk.writeMany("root", 0, count);
    disk.startUntested();
    disk.addAndOpen("root");
    QTRY_VERIFY(disk.count("root") > 0);
    QVERIFY(disk.controller->isReading());
    disk.removeMany("root", 0, count / 2);
    disk.write("root/new.dxf");
    disk.controller->source()->onDirectoryChanged(disk.path("root"));
    QTRY_VERIFY(!disk.controller->isReading());
    QVERIFY(disk.row("root/new.dxf").isValid());
    QCOMPARE(disk.count("root"), count / 2 + 1);
}

void SheetSetReadingTest::aLargeDrawingHoldsUpNothingElse()
{
    SheetSetHouse disk;
    disk.makeFolder("root");
    disk.write("root/large.dxf", largeDrawing());
    disk.write("root/small.dxf");
    disk.start();
    const Order order(*disk.controller->source());
    disk.addAndOpen("root");
    QTRY_VERIFY(disk.row("root/small.dxf").isValid());
    // Not even a later change in the folder.
    disk.write("root/new.dxf");
    QVERIFY(QFile::rename(disk.path("root/small.dxf"), disk.path("root/other.dxf")));
    disk.controller->source()->onDirectoryChanged(disk.path("root"));
    QTRY_COMPARE(disk.rows(), QString("root(large.dxf (1) new.dxf other.dxf)"));
    QStringList names = order.names();
    std::sort(names.begin() + 2, names.begin() + 4);
    QCOMPARE(names, QStringList({"+root", "+small", "+new", "+other", "+large", "-small"}));

    // Nothing waits for it at the end either.
    disk.write("root/larger.dxf", largeDrawing());
    disk.controller->source()->onDirectoryChanged(disk.path("root"));
    disk.write("root/last.dxf");
    QTRY_VERIFY(disk.row("root/last.dxf").isValid());
    disk.stop();
}

void SheetSetReadingTest::whatIsNewComesBeforeWhatIsGoneGoes()
{
    SheetSetHouse disk;
    disk.makeFolder("root");
    disk.writeMany("root", 0, 20);
    disk.start();
    disk.addAndOpen("root");
    QTRY_COMPARE(disk.count("root"), 20);
    const Order order(*disk.controller->source());
    for (int number = 0; number < 20; number += 2)
        QVERIFY(QFile::rename(disk.path(QString("root/%1.dxf").arg(number)),
                              disk.path(QString("root/%1.dxf").arg(100 + number))));
    QTRY_COMPARE(order.names().size(), 20);
    QCOMPARE(order.names().lastIndexOf(QRegularExpression("\\+.*")), 9);
    QCOMPARE(disk.count("root"), 20);
}

void SheetSetReadingTest::aFolderMayGoWhileItIsRead()
{
    SheetSetHouse disk;
    disk.makeFolder("root/inner");
    disk.writeMany("root/inner", 0, 500);
    disk.write("root/inner/large.dxf", largeDrawing());
    disk.start();
    disk.addAndOpen("root");
    disk.open("root/inner");
    QTRY_VERIFY(disk.count("root/inner") > 0);
    QVERIFY(disk.controller->isReading());
    QVERIFY(QDir(disk.path("root/inner")).removeRecursively());
    disk.controller->source()->onDirectoryChanged(disk.path("root"));
    QTRY_COMPARE(disk.rows(), QString("root"));
    QTRY_VERIFY(!disk.controller->isReading());

    disk.makeFolder("root/inner");
    disk.write("root/inner/large.dxf", largeDrawing());
    disk.open("root/inner");
    QTRY_VERIFY(disk.controller->isReading());
    disk.controller->removeRoot(disk.path("root"));
    QTRY_VERIFY(!disk.controller->isReading());
    QCOMPARE(disk.rows(), QString());
}

void SheetSetReadingTest::aFolderThatIsMadeAgainIsReadAgain()
{
    SheetSetHouse disk;
    disk.makeFolder("root/inner");
    disk.write("root/inner/old.dxf");
    const auto failures = std::make_shared<std::atomic<int>>(0);
    disk.start(std::make_unique<WatchedFolders>(), std::make_unique<CountingFiles>(failures));
    disk.addAndOpen("root");
    disk.open("root/inner");
    QTRY_COMPARE(disk.rows(), QString("root(inner(old.dxf))"));
    // Its row can't go as long as the large drawing is read.
    disk.write("root/large.dxf", largeDrawing());
    disk.controller->source()->onDirectoryChanged(disk.path("root"));
    QVERIFY(QDir(disk.path("root/inner")).removeRecursively());
    disk.controller->source()->onDirectoryChanged(disk.path("root/inner"));
    // Once at the call, and once when the watch of it has ended.
    QTRY_VERIFY(*failures > 1 || !disk.row("root/inner").isValid());
    disk.makeFolder("root/inner");
    disk.write("root/inner/new.dxf");
    disk.controller->source()->onDirectoryChanged(disk.path("root"));
    // It is open still, or has been taken away and is opened again.
    const auto isRead = [&disk] {
        const QModelIndex inner = disk.row("root/inner");
        if (disk.controller->tree()->canFetchMore(inner))
            disk.controller->tree()->fetchMore(inner);
        return disk.rows() == QString("root(inner(new.dxf) large.dxf (1))");
    };
    QTRY_VERIFY2(isRead(), qPrintable(disk.rows()));
}

void SheetSetReadingTest::theCurrentDrawingIsFound()
{
    SheetSetHouse disk;
    disk.makeFolder("root/inner");
    disk.write("root/inner/plan.dxf", sheets({"Model"}));
    disk.start();
    QVERIFY(!disk.controller->hasDrawing());
    disk.controller->goToDrawing();
    QCOMPARE(disk.rows(), QString());
    disk.documents.open(std::make_unique<OdApDocument>(velm::odFromQt(disk.path("root/inner/plan.dxf")),
                                                       std::make_unique<OdDbDatabase>()));
    QVERIFY(disk.controller->hasDrawing());
    disk.controller->addRoot(disk.path("root"));
    disk.controller->goToDrawing();
    QTRY_COMPARE(disk.current(), QString("plan.dxf (1)"));
    QCOMPARE(disk.rows(), QString("root(inner(plan.dxf (1)))"));
    disk.controller->reveal(disk.path("root/inner/plan.dxf/Model"));
    QTRY_COMPARE(disk.current(), QString("Model"));
    disk.controller->removeRoot(disk.path("root"));
    QVERIFY(!disk.controller->currentIndex().isValid());
    disk.controller->goToDrawing();
    QTRY_COMPARE(disk.current(), QString("plan.dxf (1)"));
    QCOMPARE(disk.rows(), QString("inner(plan.dxf (1))"));
}

void SheetSetReadingTest::theUsersChoiceTakesThePlaceOfAWish()
{
    SheetSetHouse disk;
    for (const char* name : {"root/a", "root/b"})
        disk.makeFolder(name);
    disk.write("root/a/1.dxf");
    disk.write("root/b/2.dxf");
    disk.start();
    disk.controller->addRoot(disk.path("root"));
    disk.controller->setCurrentIndex(disk.row("root"));
    disk.controller->reveal(disk.path("root/a/1.dxf"));
    disk.controller->setCurrentIndex(disk.row("root")); // the row that is the current one already
    QTRY_VERIFY(!disk.controller->isReading());
    QCOMPARE(disk.rows(), QString("root(a b)"));
    QCOMPARE(disk.current(), QString("root"));

    // A wish outlives a reload.
    disk.controller->reveal(disk.path("root/a/1.dxf"));
    disk.controller->reveal(disk.path("root/b/2.dxf"));
    disk.controller->reload();
    QTRY_COMPARE(disk.current(), QString("2.dxf"));
    QTRY_VERIFY(!disk.controller->isReading());
    QCOMPARE(disk.current(), QString("2.dxf"));
}

void SheetSetReadingTest::aWishThatCantBeFulfilledIsForgotten()
{
    SheetSetHouse disk;
    disk.makeFolder("root");
    disk.start();
    disk.addAndOpen("root");
    disk.controller->setCurrentIndex(disk.row("root"));
    for (const char* name : {"root/later.dxf", "elsewhere/later.dxf"}) {
        disk.controller->reveal(disk.path(name));
        QTRY_VERIFY(!disk.controller->isReading());
    }
    disk.write("root/later.dxf");
    QTRY_VERIFY(disk.row("root/later.dxf").isValid());
    QCOMPARE(disk.current(), QString("root"));
    // One that has just come and wasn't told of yet is found.
    disk.write("root/now.dxf");
    disk.controller->reveal(disk.path("root/now.dxf"));
    QTRY_COMPARE(disk.current(), QString("now.dxf"));
}

QTEST_GUILESS_MAIN(SheetSetReadingTest)
#include "tst_sheetsetreading.moc"
