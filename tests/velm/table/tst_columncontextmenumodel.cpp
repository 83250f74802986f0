#include "velm/table/columncontextmenumodel.h"

#include "sourcetable.h"

#include "support/roletext.h"

using namespace velm;
using namespace velmtest;

class TestColumnContextMenuModel : public TableTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { begin("ABCD", "a1 b1 c1 d1|a2 b2 c2 d2"); }

    void theMenuListsTheSourcesColumns()
    {
        ColumnContextMenuModel& menu = *m_table->columnModel();
        const QAbstractItemModelTester tester(&menu, QAbstractItemModelTester::FailureReportingMode::QtTest);
        (*m_source)[0].nameInMenu = "Title";
        (*m_source)[2].propertyId = 415;
        m_table->moveColumn(0, 3);
        menu.setSourceColumnVisible(1, false);
        const auto column = [](const char* name, const char* inMenu, bool checked, bool enabled) {
            return QString("0 name QString(%1), 1 nameInMenu QString(%2), 2 checkable bool(true), 3 checked bool(%3), "
                           "4 enabled bool(%4), 5 type QString(showhide)")
                .arg(name, inMenu, QVariant(checked).toString(), QVariant(enabled).toString());
        };
        const QString rest = "2 checkable bool(false), 3 checked nothing, 4 enabled nothing, 5 type QString";
        QCOMPARE(roleText(menu, 0), column("A", "Title", true, true));
        QCOMPARE(roleText(menu, 1), column("B", "B", false, true));
        QCOMPARE(roleText(menu, 2), column("C", "C", true, false)); // can be shown but not hidden again
        menu.setSourceColumnVisible(2, false);
        QCOMPARE(roleText(menu, 2), column("C", "C", false, true));
        QCOMPARE(roleText(menu, 4), "0 name nothing, 1 nameInMenu nothing, " + rest + "(separator)");
        const QString action = "0 name QString(%1), 1 nameInMenu QString(%1), " + rest + "(action)";
        QCOMPARE(roleText(menu, 5), action.arg("&Show all columns"));
        QCOMPARE(roleText(menu, 6), action.arg("&Restore column positions"));
        QCOMPARE(menu.rowCount(), 7);
        QCOMPARE(menu.rowCount(menu.index(0)), 0);
        QVERIFY(!menu.data({}, 0).isValid() && !menu.data(m_source->index(0, 0), 0).isValid());
        QVERIFY(!menu.index(5).data(6).isValid());

        for (const int none : {-1, 0, 4, 7, 99})
            menu.trigger(none, 0);
        QCOMPARE(columnText(*m_table), "DA");
        menu.trigger(5, 0);
        QCOMPARE(columnText(*m_table), "CBDA"); // each where it was when it went
        menu.trigger(6, 0);
        QCOMPARE(columnText(*m_table), "ABCD");
        SignalLog log(menu);
        menu.refresh();
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset");
        m_table->setSourceModel(nullptr);
        QCOMPARE(menu.rowCount(), 0);
    }

    void aPanelsOwnActions()
    {
        ColumnContextMenuModel& menu = *m_table->columnModel();
        int triggered = -1;
        menu.actions().push_back({"Own", [&](int column) { triggered = column; }});
        menu.actions().push_back({"Nothing", {}});
        menu.refresh();
        menu.trigger(7, 3);
        QCOMPARE(triggered, 3);
        menu.trigger(8, 3);
        menu.disableDefaultModel();
        QCOMPARE(menu.rowCount(), 2);
        QCOMPARE(menu.index(0).data(0), QVariant("Own"));
        menu.trigger(0, -4);
        QCOMPARE(triggered, -4);
        m_table->setSourceModel(nullptr);
        menu.trigger(0, 9);
        QCOMPARE(triggered, 9);
        menu.actions().clear();
        menu.refresh();
        menu.disableDefaultModel();
        QCOMPARE(menu.rowCount(), 0);
        menu.trigger(0, 0);
    }
};

QTEST_GUILESS_MAIN(TestColumnContextMenuModel)
#include "tst_columncontextmenumodel.moc"
