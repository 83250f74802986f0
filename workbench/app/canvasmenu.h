#pragma once

#include "host/dyncmd.h"
#include "od/odapdocmanager.h"

#include <wx/string.h>

#include <functional>
#include <vector>

namespace workbench {
class Selection;

/// The context menu of the canvas. Each entry stands for a line of the command line.
class CanvasMenu : public IDynamicMenuCommandExecutor
{
public:
    /// Neither is owned; both outlive the menu.
    CanvasMenu(OdApDocManager& documents, const Selection& selection);

    void fillMenu(IDynamicMenu& menu) override;
    void executeMenuCommand(int commandId) override;

    std::function<void(const wxString&)> run; ///< takes the line of a chosen entry
    std::function<bool()> isGridShown;
    std::function<bool()> isSnapping;

private:
    enum Mark
    {
        None,
        Off,
        On,
    };

    void add(IDynamicMenu& menu, const wxString& text, const wxString& line, bool enabled, Mark mark = None);
    void addLayers(IDynamicMenu& menu);

    OdApDocManager& m_documents;
    const Selection& m_selection;
    std::vector<wxString> m_lines; // by command id
};
} // namespace workbench
