#pragma once

#include "desktop/desktop.h"
#include "velm/velm_export.h"

namespace velm {
/// A native window that is never shown, moved to a monitor to ask for its dots per inch.
class VELM_EXPORT ISystemWindow
{
public:
    virtual ~ISystemWindow();
    /// Null when it can't be made.
    virtual HWND create() = 0;
    /// To the rectangle's top-left corner.
    virtual bool moveTo(const RECT& rect) = 0;
    virtual HWND handle() const = 0;
};
} // namespace velm
