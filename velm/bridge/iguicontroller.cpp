#include "velm/bridge/iguicontroller.h"

namespace velm {
HostRecord::~HostRecord() = default;
IGuiController::~IGuiController() = default;
} // namespace velm
