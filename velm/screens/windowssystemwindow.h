#pragma once

#include "velm/screens/isystemwindow.h"

namespace velm {
/// The hidden window of the operating system.
class VELM_EXPORT WindowsSystemWindow : public ISystemWindow
{
public:
    HWND create() override;
    bool moveTo(const RECT& rect) override;
    HWND handle() const override;

private:
    HWND m_handle = nullptr; // never destroyed
};
} // namespace velm
