#include "host/modalstack.h"

#include "host/nativewindow.h"

#include <wx/app.h>
#include <wx/dialog.h>

#include <algorithm>

namespace workbench {
ModalStack::ModalStack()
{
    Register();
}

ModalStack::~ModalStack()
{
    Unregister();
}

bool ModalStack::blocks(const wxWindow& window) const
{
    const wxWindow* ancestor = &window;
    while (ancestor && ancestor != top())
        ancestor = ancestor->GetParent();
    return top() && !ancestor;
}

wxWindow* ModalStack::parentFor(wxWindow* window) const
{
    if (window)
        return window;
    return top() ? top() : wxTheApp->GetTopWindow();
}

int ModalStack::Enter(wxDialog* dialog)
{
    m_dialogs.push_back(dialog);
    if (onChanged)
        onChanged();
    return wxID_NONE;
}

void ModalStack::Exit(wxDialog* dialog)
{
    std::erase(m_dialogs, dialog);
    if (onChanged)
        onChanged();
    // Not every window manager gives the keyboard back to the window below when several dialogs went at once.
    wxWindow* below = parentFor(nullptr);
    if (below && below->IsShownOnScreen() && !below->IsBeingDeleted())
        native::takeKeyboard(*below);
}
} // namespace workbench
