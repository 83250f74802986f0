#include "app/actions.h"

#include <wx/frame.h>
#include <wx/menu.h>

#include <memory>

namespace workbench {
void addMenus(wxFrame& frame, const std::vector<Action>& actions)
{
    auto* bar = new wxMenuBar;
    for (const Action& action : actions) {
        const int position = bar->FindMenu(wxMenuItem::GetLabelText(action.menu));
        wxMenu* menu = position == wxNOT_FOUND ? new wxMenu : bar->GetMenu(static_cast<size_t>(position));
        if (position == wxNOT_FOUND)
            bar->Append(menu, action.menu);
        if (action.label.empty()) {
            menu->AppendSeparator();
            continue;
        }
        const wxString text = action.shortcut.empty() ? action.label : action.label + "\t" + action.shortcut;
        const int id =
            menu->Append(wxID_ANY, text, action.help, action.isChecked ? wxITEM_CHECK : wxITEM_NORMAL)->GetId();
        frame.Bind(
            wxEVT_MENU,
            [run = action.run, isEnabled = action.isEnabled](wxCommandEvent&) {
                // A shortcut from a page comes past the menu's own state.
                if (!isEnabled || isEnabled())
                    run();
            },
            id);
        frame.Bind(
            wxEVT_UPDATE_UI,
            [isChecked = action.isChecked, isEnabled = action.isEnabled](wxUpdateUIEvent& event) {
                if (isChecked)
                    event.Check(isChecked());
                if (isEnabled)
                    event.Enable(isEnabled());
            },
            id);
    }
    frame.SetMenuBar(bar);
}

wxAcceleratorTable shortcuts(const wxMenuBar& menus)
{
    std::vector<wxAcceleratorEntry> entries;
    for (size_t index = 0; index < menus.GetMenuCount(); ++index)
        for (const wxMenuItem* item : menus.GetMenu(index)->GetMenuItems())
            if (const std::unique_ptr<wxAcceleratorEntry> entry{item->GetAccel()})
                entries.emplace_back(entry->GetFlags(), entry->GetKeyCode(), item->GetId());
    return wxAcceleratorTable(static_cast<int>(entries.size()), entries.data());
}
} // namespace workbench
