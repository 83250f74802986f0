#pragma once

#include "platform_export.h"

#include <compare>
#include <cstdint>

class OdDbDatabase;
class OdDbObject;

/// Names an object of a drawing for as long as its database lives, also after the object was erased.
class PLATFORM_EXPORT OdDbObjectId
{
public:
    /// Names no object.
    static const OdDbObjectId kNull;

    OdDbObjectId() = default;
    OdDbObjectId(OdDbDatabase* database, std::uint32_t index) : m_database(database), m_index(index) {}

    bool isNull() const { return m_database == nullptr; }
    /// True when the database holds an object of this id, erased or not.
    bool isValid() const;
    bool isErased() const;
    OdDbDatabase* database() const { return m_database; }
    std::uint32_t index() const { return m_index; }

    /// The object, or null when the id is null, invalid or erased.
    OdDbObject* openObject() const;
    /// The object as a T, or null when it doesn't open or is something else.
    template <typename T>
    T* open() const
    {
        return dynamic_cast<T*>(openObject());
    }

    friend bool operator==(const OdDbObjectId&, const OdDbObjectId&) = default;
    friend auto operator<=>(const OdDbObjectId&, const OdDbObjectId&) = default;

private:
    OdDbDatabase* m_database = nullptr; // not owned
    std::uint32_t m_index = 0;
};
