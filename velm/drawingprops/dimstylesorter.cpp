#include "velm/drawingprops/dimstylesorter.h"

#include "desktop/desktop.h"
#include "velm/drawingprops/dimensiontypes.h"

namespace velm {
DimstyleSorter::DimstyleSorter(OdDbDatabase* database) : m_database(database)
{}

bool DimstyleSorter::operator()(const OdString& left, const OdString& right) const
{
    return _wcsicoll(toDisplayName(left.wide(), m_database).wc_str(),
                     toDisplayName(right.wide(), m_database).wc_str()) < 0;
}
} // namespace velm
