#include "command/commandline.h"

#include <wx/sizer.h>
#include <wx/textctrl.h>

namespace workbench {

CommandLine::CommandLine(wxWindow* parent) : wxPanel(parent)
{
    m_log = new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                           wxTE_MULTILINE | wxTE_READONLY | wxBORDER_NONE);
    m_input = new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxTE_PROCESS_ENTER);
    m_input->SetHint("Type a command");
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_log, 1, wxEXPAND | wxLEFT | wxTOP, FromDIP(6));
    sizer->Add(m_input, 0, wxEXPAND);
    SetSizer(sizer);
    m_input->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) {
        const wxString text = m_input->GetValue();
        m_input->Clear();
        processCommand(text);
    });
    m_input->Bind(wxEVT_KEY_DOWN, &CommandLine::handleKey, this);
}

void CommandLine::processCommand(const wxString& text)
{
    const wxString command = wxString(text).Trim(true).Trim(false);
    if (command.empty()) {
        processEnter();
        return;
    }
    log("> " + command);
    if (m_history.empty() || m_history.back() != command)
        m_history.push_back(command);
    m_historyIndex = m_history.size();
    m_draft.clear();
    if (onCommand)
        onCommand(command);
}

void CommandLine::processEnter()
{
    if (onEnter)
        onEnter();
}

void CommandLine::processEscape()
{
    m_input->Clear();
    m_historyIndex = m_history.size();
    m_draft.clear();
    if (onEscape)
        onEscape();
}

void CommandLine::log(const wxString& text)
{
    if (!m_log->IsEmpty())
        m_log->AppendText("\n");
    m_log->AppendText(text);
    m_log->ShowPosition(m_log->GetLastPosition());
}

wxString CommandLine::logText() const
{
    return m_log->GetValue();
}

void CommandLine::setColours(const wxColour& text, const wxColour& background, const wxColour& inputBackground)
{
    SetBackgroundColour(background);
    for (wxTextCtrl* control : {m_log, m_input}) {
        control->SetForegroundColour(text);
        control->SetBackgroundColour(control == m_log ? background : inputBackground);
        control->Refresh();
    }
    // What is in the log already keeps the colours that it was written with.
    m_log->SetStyle(0, m_log->GetLastPosition(), wxTextAttr(text, background));
    Refresh();
}

void CommandLine::handleKey(wxKeyEvent& event)
{
    const int key = event.GetKeyCode();
    if (key == WXK_ESCAPE)
        processEscape();
    else if (key == WXK_UP && m_historyIndex > 0)
        showHistory(m_historyIndex - 1);
    else if (key == WXK_DOWN && m_historyIndex < m_history.size())
        showHistory(m_historyIndex + 1);
    else if (key != WXK_UP && key != WXK_DOWN)
        event.Skip();
}

void CommandLine::showHistory(std::size_t index)
{
    if (m_historyIndex == m_history.size())
        m_draft = m_input->GetValue();
    m_historyIndex = index;
    m_input->ChangeValue(index == m_history.size() ? m_draft : m_history[index]);
    m_input->SetInsertionPointEnd();
}

} // namespace workbench
