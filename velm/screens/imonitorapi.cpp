#include "velm/screens/imonitorapi.h"

namespace velm {
IMonitorAPI::~IMonitorAPI() = default;
}
