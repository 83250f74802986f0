#pragma once

#include "od/odapdocmanager.h"

#include <wx/string.h>

#include <functional>

namespace velm {
class IDialogFactory;
}

namespace workbench {
class PageGroup;

/// Opens and closes drawings, one at a time, in the document manager.
class Documents
{
public:
    Documents(OdApDocManager& manager, velm::IDialogFactory& dialogs, PageGroup& pages);

    /// Reads a drawing, with a progress dialog when it takes long, and puts it in place of the open one. A drawing that
    /// can't be read, or that the person doesn't wait for, leaves everything as it was; why is told in a message box.
    bool open(const wxString& file);
    void close();

    OdApDocument* current() const { return m_manager.curDocument(); }

    std::function<void(const wxString&)> log; ///< takes the lines that tell how it went

private:
    OdApDocManager& m_manager;
    velm::IDialogFactory& m_dialogs;
    PageGroup& m_pages;
};
} // namespace workbench
