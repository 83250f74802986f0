#include "velm/drawingprops/arrowheadobject.h"

#include <QJSEngine>

namespace velm {
ArrowHeadObject::ArrowHeadObject(const ArrowHeadRecord& record, QSize size) : m_record(record), m_size(size)
{
    // A script that calls data() would own the row otherwise.
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}
} // namespace velm
