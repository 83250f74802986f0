#include "od/oddbobject.h"

#include "od/oddbdatabase.h"

const OdDbObjectId OdDbObjectId::kNull;

OdDbObject::~OdDbObject() = default;

bool OdDbObjectId::isValid() const
{
    return m_database && m_database->objectAt(m_index);
}

bool OdDbObjectId::isErased() const
{
    return isValid() && m_database->objectAt(m_index)->isErased();
}

OdDbObject* OdDbObjectId::openObject() const
{
    OdDbObject* object = m_database ? m_database->objectAt(m_index) : nullptr;
    return object && !object->isErased() ? object : nullptr;
}
