#pragma once

#include "desktop/desktop.h"

namespace desktop {
/// The rectangle of a window that is never shown; null for any other handle.
const RECT* hiddenWindowRect(HWND window);
} // namespace desktop
