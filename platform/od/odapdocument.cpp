#include "od/odapdocument.h"

#include "od/oddbdatabase.h"

OdApDocument::OdApDocument(OdString fileName, std::unique_ptr<OdDbDatabase> database)
    : m_fileName(std::move(fileName)), m_database(std::move(database))
{}

OdApDocument::~OdApDocument() = default;
