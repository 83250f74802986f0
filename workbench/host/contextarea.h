#pragma once

#include <wx/accel.h>
#include <wx/panel.h>

#include <memory>

class QUrl;

namespace velm {
class BaseDialogController;
class IHostDialog;
} // namespace velm

namespace workbench {
class PageGroup;

/// The place beside the drawing for the panels of running commands. It takes no room while it is hidden, as it is at
/// first.
class ContextArea : public wxPanel
{
public:
    /// The group outlives the area.
    ContextArea(wxWindow* parent, PageGroup& pages);

    /// What the pages do with keys that they have no use for.
    void setAcceleratorTable(const wxAcceleratorTable& table) { m_accelerators = table; }
    /// A page in the area instead of a window. The controller outlives what is given.
    std::unique_ptr<velm::IHostDialog> createPanel(const QUrl& page, velm::BaseDialogController& controller);
    void showArea(bool shown);
    /// Whether one of the pages has the keyboard.
    bool hasKeyboard() const;
    /// Gives the keyboard back to the page that came last; without a page nothing happens.
    void takeKeyboard();

private:
    PageGroup& m_pages;
    wxAcceleratorTable m_accelerators;
};
} // namespace workbench
