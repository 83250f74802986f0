#include "velm/screens/screencoordinates.h"

#include "velm/screens/devicepixels.h"
#include "velm/screens/monitorutils.h"
#include "velm/screens/windowsmonitorapi.h"

#include <wx/window.h>

#include <cmath>

namespace velm {
namespace {
std::optional<int> dpiAt(const QPointF& point)
{
    WindowsMonitorAPI api;
    return MonitorUtils(&api).getDpiPerMonitor(api.monitorFromPoint(point, MONITOR_DEFAULTTONEAREST));
}

/// A physical offset inside a window as a logical coordinate of the screen, half away from zero.
double onScreen(double offset, double window, double origin, double scale)
{
    return std::round((offset + window - origin + origin * scale) / scale);
}
} // namespace

double getMonitorDPI(const QPointF& point)
{
    const std::optional<int> dpi = dpiAt(point);
    return dpi ? static_cast<double>(*dpi) / standardDpi : 0.0;
}

int convertToMonitorUnit(const QPointF& point, int value)
{
    const std::optional<int> dpi = dpiAt(point);
    if (!dpi)
        return 0;
    return value == -1 ? -1 : MulDiv(value, *dpi, standardDpi);
}

QPointF getGlobalCoordinates(QPointF point, double, double)
{
    WindowsMonitorAPI api;
    MonitorUtils utils(&api);
    RECT rect{};
    // A monitor that begins at 0 counts from there in both directions.
    if (api.getMonitorRect(point, &rect))
        return QPointF(utils.fromDIP(point, devicePixels(point.x())), utils.fromDIP(point, devicePixels(point.y())));
    return QPointF(utils.fromDIP(point, devicePixels(point.x() - rect.left)) + double(rect.left),
                   utils.fromDIP(point, devicePixels(point.y() - rect.top)) + double(rect.top));
}

LogicalRect getScreenRect(wxWindow* window, const IMonitorInfo::MonitorGeometry& geometry)
{
    const wxRect rect = window->GetScreenRect();
    const double left = onScreen(0.0, rect.x, geometry.origin.x(), geometry.scale);
    const double top = onScreen(0.0, rect.y, geometry.origin.y(), geometry.scale);
    // The right and the bottom that the corners want are not taken off: this must stay.
    return LogicalRect(LogicalPoint(left, top),
                       LogicalPoint(left + rect.width / geometry.scale, top + rect.height / geometry.scale));
}

LogicalPoint toScreenCoord(wxWindow* window, const IMonitorInfo::MonitorGeometry& geometry, const LogicalPoint& point)
{
    const wxPoint place = window->GetScreenPosition();
    return LogicalPoint(onScreen(geometry.scale * point.x(), place.x, geometry.origin.x(), geometry.scale),
                        onScreen(geometry.scale * point.y(), place.y, geometry.origin.y(), geometry.scale));
}

wxSize getWindowSize(const wxWindow& window)
{
    return window.GetSize();
}

wxSize getMinWindowSize(const wxWindow& window)
{
    return window.GetMinSize();
}
} // namespace velm
