#include "velm/table/rowfilter.h"

namespace velm {
RowFilter::~RowFilter() = default;
} // namespace velm
