#include "app/secondpane.h"

#include <wx/splitter.h>

#include <memory>

namespace workbench {
void keepSecondPane(wxSplitterWindow& splitter, int size)
{
    const auto wanted = std::make_shared<int>(size);
    splitter.Bind(wxEVT_SIZE, [&splitter, wanted](wxSizeEvent& event) {
        // The splitter itself, which comes next, places the panes by it.
        splitter.SetSashPosition(-*wanted, false);
        event.Skip();
    });
    splitter.Bind(wxEVT_SPLITTER_SASH_POS_CHANGED, [&splitter, wanted](wxSplitterEvent& event) {
        event.Skip();
        // Splitters within this one tell it of theirs, too.
        if (event.GetEventObject() != &splitter)
            return;
        const wxSize all = splitter.GetClientSize();
        *wanted = (splitter.GetSplitMode() == wxSPLIT_VERTICAL ? all.x : all.y) - event.GetSashPosition();
    });
}
} // namespace workbench
