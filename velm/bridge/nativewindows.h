#pragma once

#include "desktop/desktop.h"
#include "velm/velm_export.h"

#include <memory>

class QOpenGLContext;
class QWindow;

namespace velm {
/// A Qt window that stands for a native host window; the caller owns it.
VELM_EXPORT QWindow* getQtWrapper(HWND window);
/// A new context that shares with the host's native one.
VELM_EXPORT std::unique_ptr<QOpenGLContext> getQGLContextFromNative(HGLRC context, HWND window);
} // namespace velm
