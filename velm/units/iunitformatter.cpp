#include "velm/units/iunitformatter.h"

namespace velm {
IUnitFormatter::~IUnitFormatter() = default;
}
