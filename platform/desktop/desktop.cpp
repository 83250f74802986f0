#include "desktop/desktop.h"

#include "od/odstring.h"

#include <QGuiApplication>
#include <QOpenGLContext>

#ifdef _WIN32
#include <wx/window.h>
#endif

#include <cwchar>

#ifndef _WIN32
int _wcsicoll(const wchar_t* left, const wchar_t* right)
{
    return std::wcscoll(OdString(left).makeLower().c_str(), OdString(right).makeLower().c_str());
}
#endif

namespace desktop {
QOpenGLContext* openGlContextFromNative(HGLRC context, [[maybe_unused]] HWND window)
{
    if (!context || !qGuiApp)
        return nullptr;
#if defined(Q_OS_WIN)
    return QNativeInterface::QWGLContext::fromNative(context, window);
#elif QT_CONFIG(xcb_glx_plugin)
    // The GLX integration of another platform than this is not there to ask.
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        return QNativeInterface::QGLXContext::fromNative(reinterpret_cast<GLXContext>(context));
    return nullptr;
#else
    return nullptr;
#endif
}

#ifdef _WIN32
HWND nativeWindowOf(const wxWindow& window)
{
    return window.GetHandle();
}
#endif
} // namespace desktop
