#include "velm/drawingprops/arrowheadobject.h"

#include <QJSEngine>

namespace velm {
ArrowHeadObject::ArrowHeadObject(const ArrowHeadRecord& record, QSize size) : m_record(record), m_size(size)
{
    // Pages read rows by calls, which leave what they give to the engine.
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}
} // namespace velm
