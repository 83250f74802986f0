#pragma once

#include <wx/event.h>

class QKeyEvent;

namespace workbench {
/// A key of a page as the host's own windows would get it, to be offered to them (a wxEVT_CHAR_HOOK). The key code is
/// WXK_NONE for keys that the host has no code for.
wxKeyEvent toCharHook(const QKeyEvent& event);
} // namespace workbench
