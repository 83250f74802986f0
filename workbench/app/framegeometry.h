#pragma once

class wxFrame;

namespace workbench {
/// Puts the program's window where it was at the last end, if there is still a screen.
void restoreGeometry(wxFrame& frame);
void storeGeometry(const wxFrame& frame);
} // namespace workbench
