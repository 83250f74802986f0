#pragma once

// The window system: the real header on Windows, the few types and calls that are needed of it elsewhere.

#include "platform_export.h"

#include <QtCore/qglobal.h>

#ifdef _WIN32
#include <windows.h>

#include <wchar.h>
#else
#include <cstdint>

struct NativeWindow;
struct NativeGlContext;
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

/// Three-way comparison without case, in the order of the C locale's language.
PLATFORM_EXPORT int _wcsicoll(const wchar_t* left, const wchar_t* right);
#endif

QT_BEGIN_NAMESPACE
class QOpenGLContext;
QT_END_NAMESPACE

namespace desktop {
/// The Qt form of a native OpenGL context and its window, or null when the running platform has no such form.
/// The caller owns the result; the native context stays its maker's.
PLATFORM_EXPORT QOpenGLContext* openGlContextFromNative(HGLRC context, HWND window);
} // namespace desktop
