#include "velm/table/sorter.h"

namespace velm {
Sorter::~Sorter() = default;
} // namespace velm
