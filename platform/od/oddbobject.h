#pragma once

#include "od/oddbobjectid.h"
#include "od/odstring.h"

/// Base of everything that a drawing database holds.
class PLATFORM_EXPORT OdDbObject
{
public:
    OdDbObject() = default;
    virtual ~OdDbObject();
    OdDbObject(const OdDbObject&) = delete;
    OdDbObject& operator=(const OdDbObject&) = delete;

    OdDbObjectId objectId() const { return m_id; }
    OdDbDatabase* database() const { return m_id.database(); }
    bool isErased() const { return m_erased; }
    /// Marks the object as erased; its id no longer opens.
    void erase() { m_erased = true; }

private:
    friend class OdDbDatabase;

    OdDbObjectId m_id;
    bool m_erased = false;
};

/// A record that stands in one of the drawing's tables under a name.
class PLATFORM_EXPORT OdDbSymbolTableRecord : public OdDbObject
{
public:
    explicit OdDbSymbolTableRecord(OdString name) : m_name(std::move(name)) {}

    const OdString& getName() const { return m_name; }
    void setName(const OdString& name) { m_name = name; }

private:
    OdString m_name;
};
