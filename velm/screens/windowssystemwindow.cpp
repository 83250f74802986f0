#include "velm/screens/windowssystemwindow.h"

#include <QMessageLogger>

namespace velm {
HWND WindowsSystemWindow::create()
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = DefWindowProcW;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"HiddenWindowClassPerMonitorV2";
    if (RegisterClassW(&windowClass) == 0 && GetLastError() != ERROR_CLASS_ALREADY_EXISTS) {
        QMessageLogger(nullptr, 0, nullptr).debug().noquote() << "Failed to register window class.";
        return nullptr;
    }
    m_handle =
        CreateWindowExW(0, windowClass.lpszClassName, L"Hidden Window PerMonitorV2", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, windowClass.hInstance, nullptr);
    return m_handle;
}

bool WindowsSystemWindow::moveTo(const RECT& rect)
{
    return SetWindowPos(m_handle, nullptr, rect.left, rect.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE) != 0;
}

HWND WindowsSystemWindow::handle() const
{
    return m_handle;
}
} // namespace velm
