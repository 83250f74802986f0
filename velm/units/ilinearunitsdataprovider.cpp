#include "velm/units/ilinearunitsdataprovider.h"

namespace velm {
ILinearUnitsDataProvider::~ILinearUnitsDataProvider() = default;
}
