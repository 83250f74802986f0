#include "host/contextmenupopup.h"

#include "host/pagepopup.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/models/contextmenu.h"

namespace workbench {
ContextMenuPopup::ContextMenuPopup(PageGroup& pages, wxWindow& owner, IDynamicMenuCommandExecutor& executor)
    : m_pages(pages), m_owner(owner), m_executor(executor)
{}

ContextMenuPopup::~ContextMenuPopup() = default;

void ContextMenuPopup::open()
{
    m_popup.reset();
    velm::buildContextMenu(&m_executor, &m_menu, {});
    m_popup = std::make_unique<PagePopup>(m_pages, m_owner, velm::getUIFullUrl("Workbench/ContextMenuPage.qml"), *this);
}

bool ContextMenuPopup::isOpen() const
{
    return m_popup && m_popup->isOpen();
}
} // namespace workbench
