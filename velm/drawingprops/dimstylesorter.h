#pragma once

#include "od/odstring.h"
#include "velm/velm_export.h"

class OdDbDatabase;

namespace velm {
/// Orders record names of dimension styles by what a user sees for them, without case, in the order of the C locale's
/// language. Without a database child styles are taken by their record names.
class VELM_EXPORT DimstyleSorter
{
public:
    explicit DimstyleSorter(OdDbDatabase* database);

    bool operator()(const OdString& left, const OdString& right) const;

private:
    OdDbDatabase* m_database; // not owned
};
} // namespace velm
