#include "velm/screens/imonitorinfo.h"
#include "velm/screens/screencoordinates.h"

#include "support/table.h"
#include "workbench/wxtestmain.h"

#include <QScreen>
#include <QWindow>

#include <wx/frame.h>
#include <wx/panel.h>

#include <cmath>

using namespace velm;

/// Where windows of the host stand. It runs with Qt's scale at 1.5, and its first test at 0.4 once more.
class TestHostWindows : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void qtsScaleCountsFromAHalfOn()
    {
        QWindow qtWindow;
        const double factor = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble();
        QCOMPARE(qtWindow.devicePixelRatio(), factor);
        wxFrame frame(nullptr, wxID_ANY, "Frame", wxPoint(200, 150), wxSize(300, 200));
        frame.Show();
        QVERIFY(waitUntil([&] { return frame.IsShownOnScreen() && frame.GetScreenRect().x > 0; }));
        const std::unique_ptr<IMonitorInfo> info = getMonitorInfo(&qtWindow, &frame);
        if (factor < 0.5)
            QTest::ignoreMessage(QtWarningMsg, "Invalid geometry scale factor: 0.4 (resetting to 1.0)");
        const IMonitorInfo::MonitorGeometry geometry = info->getGeometry();
        QCOMPARE(geometry.scale, factor < 0.5 ? 1.0 : factor);
        QCOMPARE(geometry.origin, QPointF());
        QCOMPARE(geometry.rect, QRectF());
    }

    void whereAWindowStands_data()
    {
        const auto row = velmtest::columns<double, QPointF>("scale", "origin");
        row("one to one", 1.0, QPointF());
        row("another monitor, one to one", 1.0, QPointF(-1920.0, 30.0));
        row("one and a half", 1.5, QPointF());
        row("another monitor at one and a half", 1.5, QPointF(-1921.0, 33.0));
        row("far to the right, where places are negative", 1.75, QPointF(2561.0, 1999.0));
    }
    void whereAWindowStands()
    {
        QFETCH(double, scale);
        QFETCH(QPointF, origin);
        const IMonitorInfo::MonitorGeometry geometry{origin, scale, QRectF()};
        wxFrame frame(nullptr, wxID_ANY, "Frame", wxPoint(101, 203), wxSize(300, 201));
        frame.SetMinSize(wxSize(77, 55));
        auto* panel = new wxPanel(&frame);
        panel->SetSize(13, 17, 51, 33);
        const auto rounded = [](double value) {
            return value < 0.0 ? std::ceil(value - 0.5) : std::floor(value + 0.5);
        };
        for (wxWindow* window : {static_cast<wxWindow*>(&frame), static_cast<wxWindow*>(panel)}) {
            const wxRect place = window->GetScreenRect();
            const LogicalRect rect = getScreenRect(window, geometry);
            QCOMPARE(rect.left(), rounded((place.x - origin.x()) / scale + origin.x()));
            QCOMPARE(rect.top(), rounded((place.y - origin.y()) / scale + origin.y()));
            QCOMPARE(rect.right(), rect.left() + place.width / scale);
            QCOMPARE(rect.bottom(), rect.top() + place.height / scale);
            QVERIFY(toScreenCoord(window, geometry, LogicalPoint(0.0, 0.0)) == rect.topLeft());
            const LogicalPoint within = toScreenCoord(window, geometry, LogicalPoint(4.25, -7.25));
            QCOMPARE(within.x(), rounded((place.x - origin.x()) / scale + origin.x() + 4.25));
            QCOMPARE(within.y(), rounded((place.y - origin.y()) / scale + origin.y() - 7.25));
        }
        QCOMPARE(getWindowSize(frame), wxSize(300, 201));
        QCOMPARE(getMinWindowSize(frame), wxSize(77, 55));
    }
};

int main(int argc, char** argv)
{
    return runWxTest<TestHostWindows>(argc, argv);
}
#include "tst_hostwindows.moc"
