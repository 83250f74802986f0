#include "velm/bridge/nativewindows.h"

#include <QOpenGLContext>
#include <QWindow>

namespace velm {
QWindow* getQtWrapper(HWND window)
{
    return QWindow::fromWinId(reinterpret_cast<WId>(window));
}

std::unique_ptr<QOpenGLContext> getQGLContextFromNative(HGLRC context, HWND window)
{
    QOpenGLContext* native = desktop::openGlContextFromNative(context, window);
    auto result = std::make_unique<QOpenGLContext>(native);
    // The new context is a child of the native one's Qt form, which nobody else would delete.
    if (native != nullptr)
        QObject::connect(result.get(), &QObject::destroyed, native, &QObject::deleteLater);
    result->setShareContext(native);
    result->create();
    return result;
}
} // namespace velm
