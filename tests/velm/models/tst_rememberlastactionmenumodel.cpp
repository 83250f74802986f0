#include "velm/models/rememberlastactionmenumodel.h"

#include "support/signallog.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace velm;
using velmtest::SignalLog;

namespace {
using Plain = std::function<void()>;
} // namespace

class TestRememberLastActionMenuModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_menu.emplace();
        m_tester.emplace(&*m_menu, QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_runs.clear();
    }

    void cleanup()
    {
        m_tester.reset();
        m_menu.reset();
    }

    void anEmptyMenuHasNoLastAction()
    {
        QCOMPARE(m_menu->lastActionText(), "");
        QCOMPARE(m_menu->lastActionIcon(), "");
        QCOMPARE(m_menu->lastActionTooltip(), "");
        m_menu->executeLastAction();
        m_menu->appendItem({}, MenuData());
        m_menu->appendItem({}, MenuData::title("head"));
        QCOMPARE(m_menu->lastActionText(), "");
    }

    void atFirstItIsTheFirstEntryInWalkOrder()
    {
        m_menu->appendItem({}, MenuData::title("head"));
        m_menu->appendItem({}, MenuData());
        add("late");
        const QModelIndex sub = m_menu->insertItem({}, 2, MenuData("more", Plain(), "submenu"));
        add("deep", sub);
        QCOMPARE(m_menu->property("lastActionText"), "deep");
        QCOMPARE(m_menu->property("lastActionIcon"), "deep.png");
        QCOMPARE(m_menu->property("lastActionTooltip"), "deep tip");
        SignalLog log(*m_menu);
        m_menu->executeLastAction();
        m_menu->insertItem({}, 0, MenuData("first", Plain([this] { m_runs += "first"; })));
        log.take();
        // Nothing was remembered by running it.
        m_menu->executeLastAction();
        QCOMPARE(m_runs.join(' '), "deep first");
        QCOMPARE(log.take(), "");
    }

    void aTriggeredRowIsRememberedOnceItHasRun()
    {
        add("a");
        SignalLog log(*m_menu);
        QString during;
        const QModelIndex row =
            m_menu->appendItem({}, MenuData("b", Plain([&] { during = m_menu->lastActionText(); })));
        log.take();
        for (int time = 0; time < 2; ++time) {
            QVERIFY(QMetaObject::invokeMethod(&*m_menu, "menuItemTriggered", Q_ARG(QModelIndex, row)));
            QCOMPARE(log.take(), "lastActionChanged");
            QCOMPARE(during, time == 0 ? "a" : "b");
        }
        m_menu->executeLastAction();
        QCOMPARE(log.take(), "");
        QCOMPARE(m_menu->lastActionText(), "b");
        // No row is remembered, too.
        m_menu->menuItemTriggered({});
        QCOMPARE(log.take(), "lastActionChanged");
        QCOMPARE(m_menu->lastActionText(), "a");
    }

    void settingItTellsOfChangesOnly()
    {
        const QModelIndex first = add("a");
        const QModelIndex second = add("b");
        SignalLog log(*m_menu);
        m_menu->setLastAction(first);
        QCOMPARE(log.take(), "lastActionChanged");
        m_menu->setLastAction(first);
        QCOMPARE(log.take(), "");
        m_menu->setLastAction(second);
        QCOMPARE(log.take(), "lastActionChanged");
        m_menu->setLastAction({});
        QCOMPARE(log.take(), "lastActionChanged");
        m_menu->setLastAction({});
        QCOMPARE(log.take(), "");
    }

    void itNeedNotBeAnEntry()
    {
        add("a");
        m_menu->setLastAction(m_menu->appendItem({}, MenuData::title("head")));
        QCOMPARE(m_menu->lastActionText(), "head");
    }

    void updateStateTellsAfterTheRows()
    {
        m_menu->appendItem(
            {}, MenuData("a", Plain(), {}, {}, {}, MenuData::Enabled, {}, [](MenuData& data) { data.text += '!'; }));
        SignalLog log(*m_menu);
        m_menu->updateState();
        QCOMPARE(log.take(), "dataChanged(0,0, 0,0, []) lastActionChanged");
        QCOMPARE(m_menu->lastActionText(), "a!");
    }

    void aRowThatIsGoneGivesWayToTheFirstEntry()
    {
        const QModelIndex last = [this] {
            add("a");
            return add("b");
        }();
        m_menu->menuItemTriggered(last);
        m_menu->insertItem({}, 0, MenuData("first", Plain()));
        // The row has moved down and is still known.
        QCOMPARE(m_menu->lastActionText(), "b");
        m_menu->deleteItem({}, 2);
        QCOMPARE(m_menu->lastActionText(), "first");
        m_menu->executeLastAction();
        m_menu->menuItemTriggered(m_menu->index(1, 0));
        SignalLog log(*m_menu);
        m_menu->reset();
        QCOMPARE(m_menu->lastActionText(), "");
        m_menu->executeLastAction();
        // Nobody is told that it is forgotten.
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset");
        QCOMPARE(m_runs.join(' '), "b a");
    }

    void aCommandMayEmptyTheMenuItIsRunFrom()
    {
        const QModelIndex row = m_menu->appendItem({}, MenuData("a", Plain([this] { m_menu->reset(); })));
        SignalLog log(*m_menu);
        m_menu->menuItemTriggered(row);
        QCOMPARE(log.take(), "modelAboutToBeReset modelReset lastActionChanged");
        QCOMPARE(m_menu->lastActionText(), "");
        m_menu->appendItem({}, MenuData("b", Plain([this] { m_menu->reset(); })));
        m_menu->executeLastAction();
        QCOMPARE(m_menu->rowCount(), 0);
    }

private:
    QModelIndex add(const QString& text, const QModelIndex& parent = {})
    {
        return m_menu->appendItem(
            parent, MenuData(text, Plain([this, text] { m_runs += text; }), {}, text + " tip", text + ".png"));
    }

    std::optional<RememberLastActionMenuModel> m_menu;
    std::optional<QAbstractItemModelTester> m_tester;
    QStringList m_runs;
};

QTEST_APPLESS_MAIN(TestRememberLastActionMenuModel)
#include "tst_rememberlastactionmenumodel.moc"
