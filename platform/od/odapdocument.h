#pragma once

#include "od/odstring.h"

#include <memory>

class OdDbDatabase;

/// An open drawing of the application.
class PLATFORM_EXPORT OdApDocument
{
public:
    OdApDocument(OdString fileName, std::unique_ptr<OdDbDatabase> database);
    ~OdApDocument();
    OdApDocument(const OdApDocument&) = delete;
    OdApDocument& operator=(const OdApDocument&) = delete;

    /// The full path of the drawing's file, empty for a new drawing.
    const OdString& fileName() const { return m_fileName; }
    OdDbDatabase* database() const { return m_database.get(); }

private:
    OdString m_fileName;
    std::shared_ptr<OdDbDatabase> m_database;
};
