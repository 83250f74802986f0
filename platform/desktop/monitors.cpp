// The monitors as Qt knows them, in physical pixels.
#ifndef _WIN32
#include "desktop/desktop.h"
#include "desktop/hiddenwindows.h"

#include <QGuiApplication>
#include <qpa/qplatformscreen.h>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace {
constexpr double standardDpi = 96.0;

HMONITOR handleOf(const QScreen* screen)
{
    return reinterpret_cast<HMONITOR>(const_cast<QScreen*>(screen));
}

/// Null for a monitor that isn't there any more.
const QScreen* screenOf(HMONITOR monitor)
{
    if (!qGuiApp)
        return nullptr;
    for (const QScreen* screen : QGuiApplication::screens())
        if (handleOf(screen) == monitor)
            return screen;
    return nullptr;
}

RECT nativeRect(const QRect& rect)
{
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

double distance(const RECT& rect, POINT point)
{
    const auto outside = [](LONG value, LONG first, LONG end) {
        return value < first ? double(first) - value : value >= end ? double(value) - end + 1.0 : 0.0;
    };
    return std::hypot(outside(point.x, rect.left, rect.right), outside(point.y, rect.top, rect.bottom));
}

UINT dpiForWindow(HWND window)
{
    const RECT* rect = desktop::hiddenWindowRect(window);
    RECT bounds{};
    if (rect)
        bounds = *rect;
    else if (DwmGetWindowAttribute(window, DWMWA_EXTENDED_FRAME_BOUNDS, &bounds, sizeof bounds) != 0)
        return 0;
    const POINT place = rect ? POINT{bounds.left, bounds.top}
                             : POINT{(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
    const QScreen* screen = screenOf(MonitorFromPoint(place, MONITOR_DEFAULTTONEAREST));
    return screen ? static_cast<UINT>(std::lround(screen->devicePixelRatio() * standardDpi)) : 0;
}
} // namespace

HMONITOR MonitorFromPoint(POINT point, DWORD flags)
{
    const QScreen* nearest = nullptr;
    double shortest = std::numeric_limits<double>::infinity();
    if (!qGuiApp)
        return nullptr;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const double here = distance(nativeRect(screen->handle()->geometry()), point);
        if (here < shortest) {
            shortest = here;
            nearest = screen;
        }
    }
    if (shortest == 0.0 || flags == MONITOR_DEFAULTTONEAREST)
        return handleOf(nearest);
    return flags == MONITOR_DEFAULTTOPRIMARY ? handleOf(QGuiApplication::primaryScreen()) : nullptr;
}

BOOL GetMonitorInfoW(HMONITOR monitor, MONITORINFO* info)
{
    const QScreen* screen = screenOf(monitor);
    if (!screen || info->cbSize != sizeof(MONITORINFO))
        return 0;
    info->rcMonitor = nativeRect(screen->handle()->geometry());
    info->rcWork = nativeRect(screen->handle()->availableGeometry());
    info->dwFlags = screen == QGuiApplication::primaryScreen() ? MONITORINFOF_PRIMARY : 0;
    return 1;
}

BOOL EnumDisplayMonitors(HDC, const RECT*, MONITORENUMPROC function, LPARAM data)
{
    if (!qGuiApp)
        return 0;
    for (const QScreen* screen : QGuiApplication::screens()) {
        RECT rect = nativeRect(screen->handle()->geometry());
        if (!function(handleOf(screen), nullptr, &rect, data))
            return 0;
    }
    return 1;
}

BOOL PtInRect(const RECT* rect, POINT point)
{
    return point.x >= rect->left && point.x < rect->right && point.y >= rect->top && point.y < rect->bottom;
}

BOOL SetRectEmpty(RECT* rect)
{
    *rect = RECT{};
    return 1;
}

BOOL UnionRect(RECT* result, const RECT* left, const RECT* right)
{
    const auto isEmpty = [](const RECT& rect) { return rect.right <= rect.left || rect.bottom <= rect.top; };
    if (isEmpty(*left))
        *result = isEmpty(*right) ? RECT{} : *right;
    else if (isEmpty(*right))
        *result = *left;
    else
        *result = {std::min(left->left, right->left), std::min(left->top, right->top),
                   std::max(left->right, right->right), std::max(left->bottom, right->bottom)};
    return !isEmpty(*result);
}

int MulDiv(int number, int numerator, int denominator)
{
    if (denominator == 0)
        return -1;
    std::int64_t product = std::int64_t{number} * numerator;
    std::int64_t divisor = denominator;
    if (divisor < 0) {
        product = -product;
        divisor = -divisor;
    }
    const std::int64_t half = divisor / 2;
    const std::int64_t result = (product < 0 ? product - half : product + half) / divisor;
    const bool fits = result >= std::numeric_limits<int>::min() && result <= std::numeric_limits<int>::max();
    return fits ? static_cast<int>(result) : -1;
}

HMODULE GetModuleHandleW(const wchar_t*)
{
    // There is one module, which is only asked for its procedures.
    return nullptr;
}

FARPROC GetProcAddress(HMODULE, const char* name)
{
    return std::strcmp(name, "GetDpiForWindow") == 0 ? reinterpret_cast<FARPROC>(&dpiForWindow) : nullptr;
}
#endif
