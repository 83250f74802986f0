#pragma once

// The window system: the real header on Windows, the few types and calls that are needed of it elsewhere.

#include "platform_export.h"

#include <QtCore/qglobal.h>

#ifdef _WIN32
#include <windows.h>

#include <wchar.h>
#else
#include <cstddef>
#include <cstdint>

struct NativeWindow;
struct NativeGlContext;
struct NativeMonitor;
struct NativeModule;
/// A native window; on X11 the window's XID.
using HWND = NativeWindow*;
/// A native OpenGL context; on X11 a GLXContext.
using HGLRC = NativeGlContext*;
/// A colour 0x00BBGGRR.
using COLORREF = std::uint32_t;

constexpr COLORREF RGB(unsigned red, unsigned green, unsigned blue)
{
    return red | (green << 8) | (blue << 16);
}
constexpr std::uint8_t GetRValue(COLORREF color)
{
    return static_cast<std::uint8_t>(color & 0xFF);
}
constexpr std::uint8_t GetGValue(COLORREF color)
{
    return static_cast<std::uint8_t>((color >> 8) & 0xFF);
}
constexpr std::uint8_t GetBValue(COLORREF color)
{
    return static_cast<std::uint8_t>((color >> 16) & 0xFF);
}

using BOOL = int;
using DWORD = std::uint32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using HRESULT = std::int32_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using WPARAM = std::uintptr_t;
using HDC = void*;
using HINSTANCE = NativeModule*;
using HMODULE = NativeModule*;
using FARPROC = void (*)();
/// A monitor; it may be unplugged while the handle lives.
using HMONITOR = NativeMonitor*;

/// In physical pixels of the virtual desktop.
struct POINT
{
    LONG x;
    LONG y;
};

/// Right and bottom lie outside.
struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

struct MONITORINFO
{
    DWORD cbSize;
    RECT rcMonitor;
    RECT rcWork; ///< without the desktop's own bars
    DWORD dwFlags;
};

constexpr DWORD MONITOR_DEFAULTTONULL = 0;
constexpr DWORD MONITOR_DEFAULTTOPRIMARY = 1;
constexpr DWORD MONITOR_DEFAULTTONEAREST = 2;
constexpr DWORD MONITORINFOF_PRIMARY = 1;
using MONITORENUMPROC = BOOL (*)(HMONITOR monitor, HDC context, RECT* rect, LPARAM data);

PLATFORM_EXPORT HMONITOR MonitorFromPoint(POINT point, DWORD flags);
/// False for a monitor that isn't there any more.
PLATFORM_EXPORT BOOL GetMonitorInfoW(HMONITOR monitor, MONITORINFO* info);
/// Calls the function for each monitor until it answers false. There is no context and no clip here.
PLATFORM_EXPORT BOOL EnumDisplayMonitors(HDC context, const RECT* clip, MONITORENUMPROC function, LPARAM data);

PLATFORM_EXPORT BOOL PtInRect(const RECT* rect, POINT point);
PLATFORM_EXPORT BOOL SetRectEmpty(RECT* rect);
/// The rectangle around both; an empty one doesn't count.
PLATFORM_EXPORT BOOL UnionRect(RECT* result, const RECT* left, const RECT* right);
/// number * numerator / denominator, rounded half away from zero; -1 when it doesn't fit or divides by zero.
PLATFORM_EXPORT int MulDiv(int number, int numerator, int denominator);

constexpr DWORD DWMWA_EXTENDED_FRAME_BOUNDS = 9;
/// The rectangle of a window with its frame, the one attribute there is; 0 on success.
PLATFORM_EXPORT HRESULT DwmGetWindowAttribute(HWND window, DWORD attribute, void* value, DWORD size);

using WNDPROC = LRESULT (*)(HWND window, UINT message, WPARAM w, LPARAM l);
struct WNDCLASSW
{
    WNDPROC lpfnWndProc;
    HINSTANCE hInstance;
    const wchar_t* lpszClassName;
};

constexpr DWORD ERROR_CLASS_ALREADY_EXISTS = 1410;
constexpr DWORD WS_OVERLAPPEDWINDOW = 0x00CF0000;
constexpr int CW_USEDEFAULT = static_cast<int>(0x80000000);
constexpr UINT SWP_NOSIZE = 0x0001;
constexpr UINT SWP_NOZORDER = 0x0004;
constexpr UINT SWP_NOACTIVATE = 0x0010;

// Windows that are never shown: places on the desktop whose monitor can be asked. The window system knows nothing of
// them.
PLATFORM_EXPORT LRESULT DefWindowProcW(HWND window, UINT message, WPARAM w, LPARAM l);
/// 0 for a class that is registered already.
PLATFORM_EXPORT std::uint16_t RegisterClassW(const WNDCLASSW* windowClass);
PLATFORM_EXPORT DWORD GetLastError();
PLATFORM_EXPORT HWND CreateWindowExW(DWORD extendedStyle, const wchar_t* className, const wchar_t* title, DWORD style,
                                     int x, int y, int width, int height, HWND parent, void* menu, HINSTANCE instance,
                                     void* parameter);
PLATFORM_EXPORT BOOL SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags);

PLATFORM_EXPORT HMODULE GetModuleHandleW(const wchar_t* name);
/// Of the calls that newer systems add there is "GetDpiForWindow".
PLATFORM_EXPORT FARPROC GetProcAddress(HMODULE module, const char* name);

/// Three-way comparison without case, in the order of the C locale's language.
PLATFORM_EXPORT int _wcsicoll(const wchar_t* left, const wchar_t* right);
#endif

QT_BEGIN_NAMESPACE
class QOpenGLContext;
QT_END_NAMESPACE
class wxWindow;

namespace desktop {
/// The Qt form of a native OpenGL context and its window, or null when the running platform has no such form.
/// The caller owns the result; the native context stays its maker's.
PLATFORM_EXPORT QOpenGLContext* openGlContextFromNative(HGLRC context, HWND window);
/// The native window of a window of the host's toolkit; null while there is none.
PLATFORM_EXPORT HWND nativeWindowOf(const wxWindow& window);
} // namespace desktop
