#pragma once

#include "host/dyncmd.h"
#include "velm/dialogs/basepopupcontroller.h"
#include "velm/models/menumodel.h"

#include <memory>

class wxWindow;

namespace workbench {
class PageGroup;
class PagePopup;

/// A context menu at the mouse: written by the host's command system, shown as a page.
class ContextMenuPopup : public velm::BasePopupController
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* menu READ menu CONSTANT)
public:
    /// All are not owned and outlive the menu. The window is the one that the keyboard goes back to.
    ContextMenuPopup(PageGroup& pages, wxWindow& owner, IDynamicMenuCommandExecutor& executor);
    ~ContextMenuPopup() override;

    /// Has the executor write the menu and shows it.
    void open();
    bool isOpen() const;
    QAbstractItemModel* menu() { return &m_menu; }

private:
    PageGroup& m_pages;
    wxWindow& m_owner;
    IDynamicMenuCommandExecutor& m_executor;
    velm::MenuModel m_menu;
    std::unique_ptr<PagePopup> m_popup;
};
} // namespace workbench
