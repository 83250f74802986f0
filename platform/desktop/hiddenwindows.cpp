#ifndef _WIN32
#include "desktop/hiddenwindows.h"

#include <deque>
#include <set>
#include <string>

struct NativeWindow
{
    RECT rect;
};

namespace {
thread_local DWORD lastError = 0;

std::set<std::wstring>& classes()
{
    static std::set<std::wstring> names;
    return names;
}

/// None ever goes, so the addresses stay.
std::deque<NativeWindow>& windows()
{
    static std::deque<NativeWindow> all;
    return all;
}

NativeWindow* find(HWND window)
{
    for (NativeWindow& hidden : windows())
        if (&hidden == window)
            return &hidden;
    return nullptr;
}
} // namespace

const RECT* desktop::hiddenWindowRect(HWND window)
{
    const NativeWindow* hidden = find(window);
    return hidden ? &hidden->rect : nullptr;
}

LRESULT DefWindowProcW(HWND, UINT, WPARAM, LPARAM)
{
    return 0;
}

std::uint16_t RegisterClassW(const WNDCLASSW* windowClass)
{
    if (!classes().insert(windowClass->lpszClassName).second) {
        lastError = ERROR_CLASS_ALREADY_EXISTS;
        return 0;
    }
    return static_cast<std::uint16_t>(classes().size());
}

DWORD GetLastError()
{
    return lastError;
}

HWND CreateWindowExW(DWORD, const wchar_t* className, const wchar_t*, DWORD, int x, int y, int width, int height, HWND,
                     void*, HINSTANCE, void*)
{
    if (!classes().contains(className))
        return nullptr;
    const auto plain = [](int value) { return value == CW_USEDEFAULT ? 0 : value; };
    const RECT rect{plain(x), plain(y), plain(x) + plain(width), plain(y) + plain(height)};
    return &windows().emplace_back(NativeWindow{rect});
}

BOOL SetWindowPos(HWND window, HWND, int x, int y, int width, int height, UINT flags)
{
    NativeWindow* hidden = find(window);
    if (!hidden)
        return 0;
    RECT& rect = hidden->rect;
    if (flags & SWP_NOSIZE) {
        width = rect.right - rect.left;
        height = rect.bottom - rect.top;
    }
    rect = {x, y, x + width, y + height};
    return 1;
}
#endif
