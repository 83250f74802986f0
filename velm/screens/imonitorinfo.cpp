#include "velm/screens/imonitorinfo.h"

#include "velm/screens/windowsmonitorinfo.h"

namespace velm {
IMonitorInfo::~IMonitorInfo() = default;

std::unique_ptr<IMonitorInfo> getMonitorInfo(QWindow* qtWindow, const wxWindow* hostWindow)
{
    return std::make_unique<WindowsMonitorInfo>(MonitorInfo::Source{.qtWindow = qtWindow, .hostWindow = hostWindow});
}

std::unique_ptr<IMonitorInfo> getMonitorInfo(const QScreen* screen)
{
    return std::make_unique<WindowsMonitorInfo>(MonitorInfo::Source{.screen = screen});
}

std::unique_ptr<IMonitorInfo> getMonitorInfo(const QPointF& point)
{
    return std::make_unique<WindowsMonitorInfo>(MonitorInfo::Source{.point = point});
}
} // namespace velm
