#include "velm/filter/filtertagformatter.h"

namespace velm {
FilterTagFormatter::~FilterTagFormatter() = default;
} // namespace velm
