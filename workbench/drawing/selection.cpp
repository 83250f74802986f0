#include "drawing/selection.h"

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
    if (entity == m_current)
        return;
    m_current = entity;
    Q_EMIT changed();
}

void Selection::documentBecameCurrent(OdApDocument*)
{
    clear();
}
} // namespace workbench
