#pragma once

#include <wx/panel.h>

#include <functional>
#include <vector>

class wxTextCtrl;

namespace workbench {

/// A log with one input line below it. Up and Down walk through the lines entered before; Down at the end brings back
/// what was being typed.
class CommandLine : public wxPanel
{
public:
    explicit CommandLine(wxWindow* parent);

    std::function<void(const wxString&)> onCommand; ///< a line was entered; trimmed, never empty
    std::function<void()> onEnter;                  ///< Enter was pressed on an empty line
    std::function<void()> onEscape;                 ///< Escape was pressed

    /// As if the text had been typed and entered: it is logged, goes to the history, and then onCommand gets it.
    void processCommand(const wxString& text);
    void processEnter();
    void processEscape();

    void log(const wxString& text);
    wxTextCtrl* input() const { return m_input; }
    wxString logText() const;
    void setColours(const wxColour& text, const wxColour& background, const wxColour& inputBackground);

private:
    void handleKey(wxKeyEvent& event);
    void showHistory(std::size_t index);

    wxTextCtrl* m_log = nullptr;   // owned by the window tree
    wxTextCtrl* m_input = nullptr; // owned by the window tree
    std::vector<wxString> m_history;
    std::size_t m_historyIndex = 0; // m_history.size() for the line being typed
    wxString m_draft;               // what was typed before the history was shown
};

} // namespace workbench
