#pragma once

#include "velm/velm_export.h"

namespace velm::notifications {
/// A number that no earlier call of the process gave, from 1 upwards.
VELM_EXPORT int generateSourceID();
} // namespace velm::notifications
