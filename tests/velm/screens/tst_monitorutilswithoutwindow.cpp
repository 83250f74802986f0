#include "velm/screens/monitorutils.h"

#include "fakemonitors.h"

#include <QTest>

using namespace velm;

/// A process whose window could not be made never has one.
class TestMonitorUtilsWithoutWindow : public QObject
{
    Q_OBJECT
    const char* const m_message = "Failed to create hidden window for ThreadDpiAwarenessOverridePerMonitorV2.";

private Q_SLOTS:
    void itIsToldAtEachQuestion()
    {
        FakeMonitors api;
        api.dpi = 96;
        api.window.canBeMade = false;
        MonitorUtils utils(&api);
        QTest::ignoreMessage(QtDebugMsg, m_message);
        QVERIFY(!utils.getDpiPerMonitor(nullptr));
        QCOMPARE(std::exchange(api.log, {}), QStringList({"info 0", "create"}));
        api.window.canBeMade = true;
        for (const bool hasWindow : {true, false}) {
            api.hasWindow = hasWindow;
            QTest::ignoreMessage(QtDebugMsg, m_message);
            QCOMPARE(utils.fromDIP(QPointF(1.0, 2.0), 50), 1050);
            QCOMPARE(std::exchange(api.log, {}), QStringList({"monitor at 1,2", "info 4", "fromDIP 50"}));
        }
    }
};

QTEST_APPLESS_MAIN(TestMonitorUtilsWithoutWindow)
#include "tst_monitorutilswithoutwindow.moc"
