#pragma once

#include "velm/velm_export.h"

#include <utility>
#include <vector>

namespace velm {
/// How many of the values are below `value`, and how many are equal to it.
VELM_EXPORT std::pair<int, int> getRankAndCount(const std::vector<int>& values, int value);
} // namespace velm
