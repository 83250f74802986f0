#pragma once

#include "od/odapdocmanager.h"

#include <wx/string.h>

#include <functional>

namespace velm {
class IDialogFactory;
}

namespace workbench {
class PageGroup;

/// Opens and closes drawings in the document manager. Several are open at once, one of them is current.
class Documents
{
public:
    Documents(OdApDocManager& manager, velm::IDialogFactory& dialogs, PageGroup& pages);

    /// Reads a drawing, with a progress dialog when it takes long, and makes it current; one that is open already only
    /// becomes current. A drawing that can't be read, or that the person doesn't wait for, leaves everything as it was;
    /// why is told in a message box.
    bool open(const wxString& file);
    /// Closes the current drawing.
    void close();
    void closeAll();
    /// Goes to the drawing that was opened after the current one, or before it, around the ends.
    void next(bool forward);

    OdApDocument* current() const { return m_manager.curDocument(); }
    size_t openCount() const { return m_manager.documents().size(); }

    std::function<void(const wxString&)> log; ///< takes the lines that tell how it went

private:
    OdApDocManager& m_manager;
    velm::IDialogFactory& m_dialogs;
    PageGroup& m_pages;
};
} // namespace workbench
