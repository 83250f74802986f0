#include "velm/table/sortfiltermodel.h"

#include "support/rowtext.h"
#include "support/signallog.h"

#include <QAbstractItemModelTester>
#include <QStandardItemModel>
#include <QTest>

using namespace velm;
using velmtest::rowText;
using velmtest::SignalLog;

class TestSortFilterModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_source.emplace();
        m_source->setItemRoleNames({{Qt::DisplayRole, "display"}, {300, "weight"}});
        const QStringList names = {"b", "a", "c"};
        for (int row = 0; row < names.size(); ++row) {
            auto* first = new QStandardItem(names[row]);
            first->setData(10 - row, 300);
            m_source->appendRow({first, new QStandardItem(QString::number(row))});
        }
    }

    void sortsByColumnAndOrder()
    {
        SortFilterModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setSourceModel(&*m_source);
        SignalLog log(model);
        model.setSortColumn(-1);
        model.setAscending(true);
        QCOMPARE(log.take(), "");
        model.setSortColumn(0);
        QVERIFY(log.take().endsWith("sortColumnChanged(0)"));
        QCOMPARE(rowText(model), "a b c");
        QVERIFY(model.setProperty("ascending", false));
        QVERIFY(log.take().endsWith("ascendingChanged(false)"));
        QCOMPARE(rowText(model), "c b a");
        model.setSortColumn(1);
        QCOMPARE(rowText(model), "c a b"); // the order stays
        model.setSortColumn(1);
        model.setAscending(false);
        log.take();
        model.setSortColumn(1);
        QCOMPARE(log.take(), "");
    }

    void rowsAreMappedBothWays()
    {
        SortFilterModel model;
        QCOMPARE(model.mapRowFromSource(0), -1);
        QCOMPARE(model.mapRowToSource(0), -1);
        model.setSourceModel(&*m_source);
        model.setSortColumn(0);
        model.setFilterRegularExpression("[ab]");
        QCOMPARE(rowText(model), "a b");
        for (const auto& [proxy, source] : {std::pair(0, 1), std::pair(1, 0)}) {
            QCOMPARE(model.mapRowToSource(proxy), source);
            QCOMPARE(model.mapRowFromSource(source), proxy);
        }
        QCOMPARE(model.mapRowFromSource(2), -1); // filtered
        for (const int row : {-1, 3, 99}) {
            QCOMPARE(model.mapRowToSource(row), -1);
            QCOMPARE(model.mapRowFromSource(row), -1);
        }
    }

    void theRoleIsGivenByItsName()
    {
        SortFilterModel model;
        model.setSourceModel(&*m_source);
        model.setSortColumn(0);
        SignalLog log(model);
        model.setSortRoleName("weight");
        QVERIFY(log.take().endsWith("sortRoleNameChanged(weight)"));
        QCOMPARE(model.sortRole(), 300);
        QCOMPARE(rowText(model), "c a b");
        model.setSortRoleName("weight");
        QTest::ignoreMessage(QtDebugMsg, "Sort role \"height\" not found");
        model.setSortRoleName("height");
        QCOMPARE(log.take(), "");
        QCOMPARE(model.sortRoleName(), "weight");
        model.setSortRole(301);
        QTest::ignoreMessage(QtDebugMsg, "Sort role 301 not found");
        QCOMPARE(model.sortRoleName(), "");
    }

    void aNameWaitsForTheSource()
    {
        SortFilterModel model;
        model.setSortRoleName("height");
        QVERIFY(model.setProperty("sortRoleName", "weight"));
        QCOMPARE(model.sortRoleName(), "");
        SignalLog log(model);
        model.setSourceModel(nullptr);
        model.setSourceModel(&*m_source);
        QVERIFY(log.take().contains("sortRoleNameChanged(weight)"));
        QCOMPARE(model.sortRoleName(), "weight");
        // It waits no longer.
        QStandardItemModel other;
        model.setSourceModel(&other);
        QCOMPARE(model.sortRole(), 300);
    }

private:
    std::optional<QStandardItemModel> m_source;
};

QTEST_APPLESS_MAIN(TestSortFilterModel)
#include "tst_sortfiltermodel.moc"
