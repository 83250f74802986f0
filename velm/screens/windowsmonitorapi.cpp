#include "velm/screens/windowsmonitorapi.h"

#include "velm/bridge/conversions.h"
#include "velm/screens/devicepixels.h"
#include "velm/screens/threaddpiawareness.h"
#include "velm/screens/windowssystemwindow.h"

#include <wx/display.h>
#include <wx/window.h>

namespace velm {
namespace {
WindowsSystemWindow systemWindow;
}

HMONITOR WindowsMonitorAPI::monitorFromPoint(const QPointF& point, int flags)
{
    return MonitorFromPoint(POINT{devicePixels(point.x()), devicePixels(point.y())},
                            flags == 0 ? MONITOR_DEFAULTTONEAREST : static_cast<DWORD>(flags));
}

bool WindowsMonitorAPI::getMonitorInfo(HMONITOR monitor, MONITORINFO* info)
{
    static_assert(sizeof(MONITORINFO) == 40);
    info->cbSize = sizeof(MONITORINFO);
    info->dwFlags = 0;
    return GetMonitorInfoW(monitor, info) != 0;
}

bool WindowsMonitorAPI::getMonitorRect(const QPointF& point, RECT* rect)
{
    const std::unique_ptr<IThreadDpiAwarenessOverridePerMonitorV2> scope = getPerMonitorV2Setter();
    MONITORINFO info{};
    if (getMonitorInfo(monitorFromPoint(point, 0), &info)) {
        *rect = info.rcMonitor;
        return rect->left == 0;
    }
    const int found = wxDisplay::GetFromPoint(wxPoint(devicePixels(point.x()), devicePixels(point.y())));
    if (found == wxNOT_FOUND)
        return true;
    const wxDisplay display(static_cast<unsigned>(found));
    const wxRect area = display.GetGeometry();
    // Deliberately width and height where a rectangle has right and bottom.
    *rect = {area.x, area.y, area.width, area.height};
    return display.IsPrimary();
}

std::optional<int> WindowsMonitorAPI::getDpiForWindow(ISystemWindow* window)
{
    using GetDpiForWindow = UINT (*)(HWND);
    const auto dpi = reinterpret_cast<GetDpiForWindow>(GetProcAddress(GetModuleHandleW(L"USER32.DLL"), //
                                                                      "GetDpiForWindow"));
    if (dpi == nullptr)
        return std::nullopt;
    return static_cast<int>(dpi(window ? window->handle() : nullptr));
}

int WindowsMonitorAPI::fromDIP(int value)
{
    return wxWindow::FromDIP(value, nullptr);
}

ISystemWindow* WindowsMonitorAPI::getSystemWindow()
{
    return &systemWindow;
}
} // namespace velm
