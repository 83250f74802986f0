#include "velm/screens/monitorutils.h"

#include "fakemonitors.h"
#include "support/table.h"

#include <QTest>

using namespace velm;

/// The window is made once in a process, so the first test must stay the first.
class TestMonitorUtils : public QObject
{
    Q_OBJECT
    const HMONITOR m_monitor = reinterpret_cast<HMONITOR>(5);

private Q_SLOTS:
    void anUnknownMonitorNeedsNoWindow()
    {
        FakeMonitors api;
        api.known = false;
        api.dpi = 96;
        QVERIFY(!MonitorUtils(&api).getDpiPerMonitor(m_monitor));
        QCOMPARE(api.log, QStringList({"info 5"}));
    }

    void theWindowIsMadeOnceAndMovedEachTime()
    {
        FakeMonitors api;
        api.dpi = 120;
        QCOMPARE(MonitorUtils(&api).getDpiPerMonitor(m_monitor), std::optional<int>(120));
        QCOMPARE(api.log, QStringList({"info 5", "create", "move -300,40", "dpi"}));
        FakeMonitors other;
        other.window.canBeMade = false;
        for (int count = 0; count < 2; ++count) {
            QVERIFY(!MonitorUtils(&other).getDpiPerMonitor(m_monitor)); // the system can't tell
            QCOMPARE(std::exchange(other.log, {}), QStringList({"info 5", "move -300,40", "dpi"}));
        }
        other.window.canMove = false;
        other.dpi = 96;
        QVERIFY(!MonitorUtils(&other).getDpiPerMonitor(m_monitor));
        QCOMPARE(other.log, QStringList({"info 5", "move -300,40"}));
    }

    void unitsFollowTheDots_data()
    {
        // Per monitor, -99 is none.
        const auto row = velmtest::columns<int, int, int, int>("dpi", "value", "perMonitor", "result");
        row("one and a half", 144, 100, 150, 150);
        row("rounded", 120, 2, 3, 3);
        row("rounded away from 0", 144, -3, -5, -5);
        row("-1 stays", 192, -1, -1, -1);
        row("0 is the system's", 144, 0, 0, 1000);
        row("what comes out as 0 is the system's", 40, 1, 0, 1001);
        row("no dots", 0, 1, -99, 1001);
        row("-1 without dots is the system's", 0, -1, -99, 999);
    }
    void unitsFollowTheDots()
    {
        QFETCH(int, dpi);
        QFETCH(int, value);
        QFETCH(int, perMonitor);
        QFETCH(int, result);
        FakeMonitors api;
        if (dpi != 0)
            api.dpi = dpi;
        MonitorUtils utils(&api);
        QCOMPARE(utils.fromDIP_PerMonitor(QPointF(2.5, -3.5), value).value_or(-99), perMonitor);
        QCOMPARE(std::exchange(api.log, {}), QStringList({"monitor at 2.5,-3.5", "info 4", "move -300,40", "dpi"}));
        QCOMPARE(utils.fromDIP(QPointF(), value), result);
        QCOMPARE(api.log.contains(QString("fromDIP %1").arg(value)), result >= 999);
    }
};

QTEST_APPLESS_MAIN(TestMonitorUtils)
#include "tst_monitorutils.moc"
