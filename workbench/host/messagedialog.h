#pragma once

#include "velm/dialogs/messagebuttons.h"

#include <wx/dialog.h>

class wxCheckBox;

namespace workbench {
/// A message box with any buttons, whose modal run gives the id of the pressed one. Escape and the window's close
/// button stand for the button of Cancel, else of No, else for the last one.
class MessageDialog : public wxDialog
{
public:
    /// An empty question leaves out the check box.
    MessageDialog(wxWindow* parent, const wxString& caption, const wxString& text, const wxString& question,
                  velm::EMessageStyle style, const std::vector<velm::MessageButtonInfo>& buttons);

    bool isQuestionChecked() const;

private:
    wxCheckBox* m_question = nullptr; // owned by the window tree
};
} // namespace workbench
