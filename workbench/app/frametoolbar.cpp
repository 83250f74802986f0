#include "app/frametoolbar.h"

#include "app/actions.h"
#include "velm/images/toolbitmaps.h"

#include <wx/bmpbndl.h>
#include <wx/frame.h>
#include <wx/menu.h>

namespace workbench {
namespace {
constexpr int toolSize = 24;

/// The icon for screens of one, one and a third, and two pixels a unit; what is between is scaled.
wxBitmapBundle bundle(const QString& icon, ut::EGuiColorTheme theme)
{
    wxVector<wxBitmap> bitmaps;
    for (const int size : {toolSize, 32, 2 * toolSize})
        bitmaps.push_back(velm::getToolBitmap(icon, size, true, theme).bitmapWx());
    return wxBitmapBundle::FromBitmaps(bitmaps);
}

wxString tip(const Action& action)
{
    // Three dots tell of a dialog, which a tool tip leaves to the help.
    wxString text = wxMenuItem::GetLabelText(action.label);
    text.Replace("...", "");
    return action.shortcut.empty() ? text : text + " (" + action.shortcut + ")";
}
} // namespace

FrameToolBar::FrameToolBar(wxFrame& frame, const std::vector<Action>& actions)
    : wxToolBar(&frame, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTB_FLAT | wxTB_HORIZONTAL | wxTB_NODIVIDER)
{
    SetToolBitmapSize(FromDIP(wxSize(toolSize, toolSize)));
    wxString lastMenu;
    for (const Action& action : actions) {
        if (action.icon.isEmpty())
            continue;
        if (!lastMenu.empty() && lastMenu != action.menu)
            AddSeparator();
        lastMenu = action.menu;
        const int id = frame.GetMenuBar()->FindMenuItem(action.menu, action.label);
        AddTool(id, wxMenuItem::GetLabelText(action.label), bundle(action.icon, ut::configColorTheme()), {},
                action.isChecked ? wxITEM_CHECK : wxITEM_NORMAL, tip(action), action.help);
        m_icons[id] = action.icon;
    }
    Realize();
}

void FrameToolBar::setTheme(ut::EGuiColorTheme theme)
{
    for (const auto& [id, icon] : m_icons)
        SetToolNormalBitmap(id, bundle(icon, theme));
}
} // namespace workbench
