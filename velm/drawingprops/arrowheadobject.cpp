#include "velm/drawingprops/arrowheadobject.h"

namespace velm {
ArrowHeadObject::ArrowHeadObject(const ArrowHeadRecord& record, QSize size) : m_record(record), m_size(size)
{}
} // namespace velm
