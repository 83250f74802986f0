#pragma once

#include <wx/modalhook.h>

#include <functional>
#include <vector>

class wxDialog;
class wxWindow;

namespace workbench {
/// The modal dialogs that run, of whatever class, innermost last. The toolkit's own modality doesn't reach pages, since
/// they are windows of another toolkit; whoever hosts one asks here.
class ModalStack : private wxModalDialogHook
{
public:
    ModalStack();
    ~ModalStack() override;

    /// Not owned; null when none runs.
    wxDialog* top() const { return m_dialogs.empty() ? nullptr : m_dialogs.back(); }
    /// Whether a modal dialog runs that the window isn't part of.
    bool blocks(const wxWindow& window) const;
    /// The window over which a dialog belongs that was asked for without one: the innermost modal dialog, or the
    /// program's frame. A window that is given stays.
    wxWindow* parentFor(wxWindow* window) const;

    std::function<void()> onChanged;

private:
    int Enter(wxDialog* dialog) override;
    void Exit(wxDialog* dialog) override;

    std::vector<wxDialog*> m_dialogs; // not owned
};
} // namespace workbench
