#pragma once

#include <QString>

#include <wx/accel.h>
#include <wx/string.h>

#include <functional>
#include <vector>

class wxFrame;
class wxMenuBar;

namespace workbench {
/// One thing that a person can have done from the menu, by its shortcut, from a page by the same shortcut, or by a
/// tool.
struct Action
{
    wxString menu;
    wxString label;    ///< with its mnemonic; empty for a line between the entries
    wxString shortcut; ///< as in "Ctrl+O"; may be empty
    wxString help;
    std::function<void()> run;
    std::function<bool()> isChecked; ///< an entry with a mark; empty for one without
    std::function<bool()> isEnabled; ///< empty for one that always is
    QString icon{};                  ///< the tool's; empty for one without a tool
};

/// Gives a frame a menu bar with the actions, in their order.
void addMenus(wxFrame& frame, const std::vector<Action>& actions);
/// The shortcuts of a menu bar made by addMenus().
wxAcceleratorTable shortcuts(const wxMenuBar& menus);
} // namespace workbench
