#include "velm/screens/imonitorinfo.h"

#include "support/table.h"
#include "velm/screens/screencoordinates.h"
#include "velm/screens/windowsmonitorapi.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWindow>

using namespace velm;

namespace {
QString text(const IMonitorInfo::MonitorGeometry& geometry)
{
    const QRectF& rect = geometry.rect;
    return QString("%1,%2 *%3 %4,%5 %6x%7")
        .arg(geometry.origin.x())
        .arg(geometry.origin.y())
        .arg(geometry.scale)
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}
} // namespace

/// Two monitors: the left one at 0,0 with 1000x800 pixels, the right one at 1000,-200 with 1500x1200 pixels, one and a
/// half to a logical one.
class TestMonitorInfo : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aPointHasItsMonitor_data()
    {
        const auto row = velmtest::columns<QPointF, QString, QString, double>("point", "logical", "physical", "scale");
        const QString left = "0,0 *1 0,0 1000x800";
        const QString logicalRight = "1000,-200 *1 1000,-200 1000x800";
        const QString physicalRight = "1000,-200 *1 1000,-200 1500x1200";
        const QString none = "0,0 *1 0,0 0x0";
        row("left", QPointF(10.0, 10.0), left, left, 1.0);
        row("right", QPointF(1500.0, -100.0), logicalRight, physicalRight, 1.5);
        row("one is rounded, the other cut off", QPointF(999.6, 10.0), logicalRight, left, 1.5);
        row("logically nowhere", QPointF(2200.0, 10.0), none, physicalRight, 1.0);
        row("nowhere", QPointF(-1.0, -1.0), none, none, 1.0);
    }
    void aPointHasItsMonitor()
    {
        QFETCH(QPointF, point);
        QFETCH(double, scale);
        const std::unique_ptr<IMonitorInfo> info = getMonitorInfo(point);
        QTEST(text(info->getGeometry()), "logical");
        QTEST(text(info->getScreenGeometry()), "physical");
        QCOMPARE(info->getScale(), scale);
    }

    void screensAndWindowsHaveTheirs()
    {
        QScreen* const right = QGuiApplication::screens().at(1);
        QWindow window(right);
        for (const auto& info : {getMonitorInfo(right), getMonitorInfo(&window, nullptr)}) {
            QCOMPARE(text(info->getGeometry()), QString("1000,-200 *1 1000,-200 1000x800"));
            QCOMPARE(text(info->getScreenGeometry()), QString("0,0 *1 0,0 0x0")); // of points only
            QCOMPARE(info->getScale(), 1.5);
            QCOMPARE(info->fromLogicalUnit(3), 5);
            QCOMPARE(info->fromLogicalUnit(-3), -5);
            QCOMPARE(info->fromLogicalUnit(-1), -1);
            QCOMPARE(info->toLogicalUnit(10), 7);
            QCOMPARE(info->toLogicalUnit(-1), -1);
        }
        QCOMPARE(getMonitorInfo(QGuiApplication::primaryScreen())->fromLogicalUnit(7), 7);
    }

    void unitsAreTheMonitors()
    {
        QCOMPARE(getMonitorDPI(QPointF(999.9, 0.0)), 1.0);
        QCOMPARE(getMonitorDPI(QPointF(1000.0, -200.0)), 1.5);
        QCOMPARE(getMonitorDPI(QPointF(9000.0, 9000.0)), 1.5); // the nearest
        QCOMPARE(convertToMonitorUnit(QPointF(1500.0, 0.0), 5), 8);
        QCOMPARE(convertToMonitorUnit(QPointF(1500.0, 0.0), -1), -1);
        QCOMPARE(convertToMonitorUnit(QPointF(1500.0, 0.0), 0), 0);
        QCOMPARE(convertToMonitorUnit(QPointF(0.0, 0.0), 5), 5);
    }

    void pointsBecomePhysical_data()
    {
        const auto row = velmtest::columns<QPointF, QPointF>("point", "expected");
        row("from 0 on, cut off", QPointF(100.9, 50.9), QPointF(100.0, 50.0));
        row("from the monitor's corner", QPointF(1100.0, 0.0), QPointF(1150.0, 100.0));
        row("cut off within the monitor", QPointF(1003.9, -196.1), QPointF(1005.0, -195.0));
        row("the corner itself", QPointF(1000.0, -200.0), QPointF(1000.0, -200.0));
        row("-1 stays within the monitor", QPointF(1500.0, -201.0), QPointF(1750.0, -201.0));
    }
    void pointsBecomePhysical()
    {
        QFETCH(QPointF, point);
        QTEST(getGlobalCoordinates(point, 7.0, 9.0), "expected");
    }

    void theSystemIsAsked()
    {
        WindowsMonitorAPI api;
        RECT rect{1, 2, 3, 4};
        QVERIFY(api.getMonitorRect(QPointF(999.9, 0.0), &rect));
        QCOMPARE(rect.right, 1000);
        QVERIFY(!api.getMonitorRect(QPointF(1000.0, 0.0), &rect));
        QCOMPARE(QRect(QPoint(rect.left, rect.top), QPoint(rect.right, rect.bottom)),
                 QRect(QPoint(1000, -200), QPoint(2500, 1000)));
        const QPointF outside(1e300, -201.0);
        QVERIFY(api.monitorFromPoint(outside, MONITOR_DEFAULTTOPRIMARY) == api.monitorFromPoint(QPointF(), 0));
        QVERIFY(api.monitorFromPoint(outside, 0) == api.monitorFromPoint(QPointF(2000.0, 0.0), 0));
        MONITORINFO info{};
        info.dwFlags = 77;
        QVERIFY(!api.getMonitorInfo(nullptr, &info));
        QCOMPARE(info.cbSize, 40u);
        QCOMPARE(info.dwFlags, 0u);
        QCOMPARE(api.getDpiForWindow(nullptr), std::optional<int>(0));
        QVERIFY(api.getSystemWindow() == WindowsMonitorAPI().getSystemWindow());
    }
};

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TWO_MONITORS);
    QGuiApplication application(argc, argv);
    TestMonitorInfo test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_monitorinfo.moc"
