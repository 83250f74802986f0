#include "velm/screens/windowsmonitorinfo.h"

#include "desktop/desktop.h"
#include "velm/bridge/conversions.h"
#include "velm/screens/devicepixels.h"
#include "velm/screens/monitorutils.h"
#include "velm/screens/screencoordinates.h"
#include "velm/screens/threaddpiawareness.h"

#include <QMessageLogger>
#include <QtGui/private/qhighdpiscaling_p.h>

#include <wx/window.h>

#include <vector>

namespace velm {
namespace {
constexpr double lowestScale = 0.5;

struct Monitors
{
    std::vector<RECT> rects;
    RECT desktop{}; // all of them
};

Monitors monitors()
{
    Monitors result;
    SetRectEmpty(&result.desktop);
    EnumDisplayMonitors(
        nullptr, nullptr,
        [](HMONITOR, HDC, RECT* rect, LPARAM data) -> BOOL {
            auto& all = *reinterpret_cast<Monitors*>(data);
            all.rects.push_back(*rect);
            UnionRect(&all.desktop, &all.desktop, rect);
            return 1;
        },
        reinterpret_cast<LPARAM>(&result));
    return result;
}

/// The first monitor that holds the point, or null.
const RECT* monitorAt(const Monitors& all, POINT point)
{
    for (const RECT& rect : all.rects)
        if (PtInRect(&rect, point))
            return &rect;
    return nullptr;
}
} // namespace

IMonitorInfo::MonitorGeometry WindowsMonitorInfo::getGeometry() const
{
    return source().hostWindow ? hostWindowGeometry() : MonitorInfo::getGeometry();
}

IMonitorInfo::MonitorGeometry WindowsMonitorInfo::hostWindowGeometry() const
{
    const wxWindow& window = *source().hostWindow;
    const QHighDpiScaling::Point place{QHighDpiScaling::Point::Native, toQt(window.GetRect().GetPosition())};
    MonitorGeometry geometry;
    geometry.scale = QHighDpiScaling::scaleAndOrigin(source().qtWindow, place).factor;
    if (geometry.scale < lowestScale) {
        QMessageLogger(nullptr, 0, nullptr).warning().noquote().nospace()
            << "Invalid geometry scale factor: " << geometry.scale << " (resetting to 1.0)";
        geometry.scale = 1.0;
    }
    RECT frame{};
    DwmGetWindowAttribute(desktop::nativeWindowOf(window), DWMWA_EXTENDED_FRAME_BOUNDS, &frame, sizeof frame);
    const POINT centre{(frame.left + frame.right) / 2, (frame.top + frame.bottom) / 2};
    const Monitors all = monitors();
    if (const RECT* monitor = monitorAt(all, centre))
        geometry.origin = QPointF(monitor->left, monitor->top);
    return geometry;
}

IMonitorInfo::MonitorGeometry WindowsMonitorInfo::getScreenGeometry() const
{
    const std::unique_ptr<IThreadDpiAwarenessOverridePerMonitorV2> scope = getPerMonitorV2Setter();
    const POINT point{devicePixels(source().point.x()), devicePixels(source().point.y())};
    const Monitors all = monitors();
    MonitorGeometry geometry;
    if (const RECT* monitor = monitorAt(all, point)) {
        geometry.rect =
            QRectF(monitor->left, monitor->top, monitor->right - monitor->left, monitor->bottom - monitor->top);
        geometry.origin = geometry.rect.topLeft();
    }
    return geometry;
}

double WindowsMonitorInfo::getScale() const
{
    const double scale = getMonitorDPI(getGeometry().origin);
    return scale == 0.0 ? 1.0 : scale;
}

int WindowsMonitorInfo::scaledDpi() const
{
    return static_cast<int>(getScale() * standardDpi);
}

int WindowsMonitorInfo::toLogicalUnit(int value) const
{
    return value == -1 ? -1 : MulDiv(value, standardDpi, scaledDpi());
}

int WindowsMonitorInfo::fromLogicalUnit(int value) const
{
    return value == -1 ? -1 : MulDiv(value, scaledDpi(), standardDpi);
}
} // namespace velm
