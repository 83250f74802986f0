#include "velm/screens/monitorutils.h"

#include "velm/screens/imonitorapi.h"
#include "velm/screens/isystemwindow.h"
#include "velm/screens/threaddpiawareness.h"

#include <QMessageLogger>

namespace velm {
MonitorUtils::MonitorUtils(IMonitorAPI* api) : m_api(api)
{}

std::optional<int> MonitorUtils::getDpiPerMonitor(HMONITOR monitor)
{
    // The system tells the right dots only to a window that is aware of them and stands on the monitor.
    const std::unique_ptr<IThreadDpiAwarenessOverridePerMonitorV2> scope = getPerMonitorV2Setter();
    MONITORINFO info{};
    if (!m_api->getMonitorInfo(monitor, &info))
        return std::nullopt;
    ISystemWindow* const window = m_api->getSystemWindow();
    const auto created = [window] {
        static const HWND handle = window->create();
        return handle != nullptr;
    };
    if (!window || !created()) {
        QMessageLogger(nullptr, 0, nullptr).debug().noquote()
            << "Failed to create hidden window for ThreadDpiAwarenessOverridePerMonitorV2.";
        return std::nullopt;
    }
    if (!window->moveTo(info.rcMonitor))
        return std::nullopt;
    return m_api->getDpiForWindow(window);
}

std::optional<int> MonitorUtils::fromDIP_PerMonitor(const QPointF& point, int value)
{
    const std::optional<int> dpi = getDpiPerMonitor(m_api->monitorFromPoint(point, 0));
    if (!dpi)
        return std::nullopt;
    return value == -1 ? -1 : MulDiv(value, *dpi, standardDpi);
}

int MonitorUtils::fromDIP(const QPointF& point, int value)
{
    const int result = fromDIP_PerMonitor(point, value).value_or(0);
    return result != 0 ? result : m_api->fromDIP(value);
}
} // namespace velm
