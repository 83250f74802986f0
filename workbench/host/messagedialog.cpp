#include "host/messagedialog.h"

#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include <algorithm>

namespace workbench {
namespace {
constexpr int margin = 16;
constexpr int textWidth = 420;

wxArtID icon(velm::EMessageStyle style)
{
    switch (style) {
    case velm::EMessageStyle::Warning:
        return wxART_WARNING;
    case velm::EMessageStyle::Error:
        return wxART_ERROR;
    default:
        return wxART_INFORMATION;
    }
}

int escapeId(const std::vector<velm::MessageButtonInfo>& buttons)
{
    for (const int id : {wxCANCEL, wxNO})
        if (std::ranges::any_of(buttons, [id](const auto& button) { return button.id == id; }))
            return id;
    return buttons.empty() ? wxCANCEL : buttons.back().id;
}
} // namespace

MessageDialog::MessageDialog(wxWindow* parent, const wxString& caption, const wxString& text, const wxString& question,
                             velm::EMessageStyle style, const std::vector<velm::MessageButtonInfo>& buttons)
    : wxDialog(parent, wxID_ANY, caption)
{
    auto* message = new wxStaticText(this, wxID_ANY, text);
    message->Wrap(FromDIP(textWidth));
    auto* texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(message);
    if (!question.empty()) {
        m_question = new wxCheckBox(this, wxID_ANY, question);
        texts->Add(m_question, 0, wxTOP, FromDIP(margin));
    }
    auto* upper = new wxBoxSizer(wxHORIZONTAL);
    upper->Add(new wxStaticBitmap(this, wxID_ANY, wxArtProvider::GetBitmap(icon(style), wxART_MESSAGE_BOX)), 0, wxRIGHT,
               FromDIP(margin));
    upper->Add(texts, 1, wxALIGN_CENTRE_VERTICAL);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->AddStretchSpacer();
    for (const velm::MessageButtonInfo& info : buttons) {
        auto* button = new wxButton(this, wxID_ANY, info.text.c_str());
        button->Bind(wxEVT_BUTTON, [this, id = info.id](wxCommandEvent&) { EndModal(id); });
        row->Add(button, 0, wxLEFT, row->GetItemCount() > 1 ? FromDIP(margin / 2) : 0);
        if (row->GetItemCount() == 2) {
            button->SetDefault();
            button->SetFocus();
        }
    }
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(upper, 1, wxEXPAND | wxALL, FromDIP(margin));
    sizer->Add(row, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(margin));
    SetSizerAndFit(sizer);
    CentreOnParent();

    const int escape = escapeId(buttons);
    Bind(wxEVT_CLOSE_WINDOW, [this, escape](wxCloseEvent&) { EndModal(escape); });
    Bind(wxEVT_CHAR_HOOK, [this, escape](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_ESCAPE)
            EndModal(escape);
        else
            event.Skip();
    });
}

bool MessageDialog::isQuestionChecked() const
{
    return m_question && m_question->IsChecked();
}
} // namespace workbench
