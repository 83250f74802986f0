#include "drawing/selection.h"

#include <algorithm>

namespace workbench {
Selection::Selection(OdApDocManager& documents) : m_documents(documents)
{
    m_documents.addReactor(this);
}

Selection::~Selection()
{
    m_documents.removeReactor(this);
}

OdDbObjectId Selection::current() const
{
    return m_current.openObject() ? m_current : OdDbObjectId::kNull;
}

void Selection::set(OdDbObjectId entity)
{
    set(entity.isNull() ? std::vector<OdDbObjectId>() : std::vector{entity}, entity);
}

void Selection::set(std::vector<OdDbObjectId> entities, OdDbObjectId current)
{
    if (std::ranges::find(entities, current) == entities.end())
        current = entities.empty() ? OdDbObjectId::kNull : entities.front();
    if (current == m_current && entities == m_entities)
        return;
    m_entities = std::move(entities);
    m_current = current;
    Q_EMIT changed();
}

void Selection::documentBecameCurrent(OdApDocument*)
{
    clear();
}
} // namespace workbench
