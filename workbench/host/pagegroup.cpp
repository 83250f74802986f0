#include "host/pagegroup.h"

#include "host/pagepanel.h"
#include "host/pagepopup.h"

#include <QObject>

#include <algorithm>
#include <utility>

namespace workbench {
PageGroup::PageGroup()
{
    m_modals.onChanged = [this] { updateBlocking(); };
}

PageGroup::~PageGroup() = default;

void PageGroup::setEngine(QQmlEngine* engine)
{
    if (m_popup)
        m_popup->takeDown();
    m_engine = engine;
    for (PagePanel* page : std::vector(m_pages))
        page->reload(0);
}

void PageGroup::setBusy(bool busy)
{
    m_busy = busy;
    updateBlocking();
}

bool PageGroup::isBlocked(const PagePanel& page) const
{
    return m_busy || m_modals.blocks(page);
}

void PageGroup::applyTheme()
{
    for (PagePanel* page : m_pages)
        page->applyTheme();
    if (m_popup)
        m_popup->applyTheme();
}

void PageGroup::add(PagePanel* page)
{
    m_pages.push_back(page);
}

void PageGroup::remove(PagePanel* page)
{
    std::erase(m_pages, page);
}

void PageGroup::setPopup(PagePopup* popup)
{
    if (PagePopup* former = std::exchange(m_popup, popup))
        former->takeDown();
}

void PageGroup::updateBlocking()
{
    if (m_popup && (m_busy || m_modals.top()))
        m_popup->close();
    for (PagePanel* page : m_pages)
        page->updateBlocking();
}

void PageGroup::reload(int reason)
{
    if (m_popup)
        m_popup->close();
    for (PagePanel* page : std::vector(m_pages))
        page->reload(reason);
}

void PageGroup::setAcceleratorTable(const wxAcceleratorTable& table)
{
    for (PagePanel* page : m_pages)
        page->setAcceleratorTable(table);
}

QObject* PageGroup::findInTransientPopups(const QString& objectName)
{
    if (QObject* object = m_popup ? m_popup->find(objectName) : nullptr)
        return object;
    for (PagePanel* page : m_pages)
        if (QObject* object = page->findInTransientPopups(objectName))
            return object;
    return nullptr;
}
} // namespace workbench
