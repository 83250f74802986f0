#pragma once

#include "velm/velm_export.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

/// Numbers for texts that compare as the texts do: each text's place in the sorted order, equal texts having the same.
namespace velm::textranks {
using Ranks = std::vector<std::uint32_t>;

/// The order of ut::strCmpAlphanum. Each text counts up to its first zero.
VELM_EXPORT Ranks natural(const std::vector<QString>& texts);

/// The order of QString::compare() without regard to case.
VELM_EXPORT Ranks caseInsensitive(const std::vector<QString>& texts);

/// The order of a strict less-than on positions from 0 to count - 1.
VELM_EXPORT Ranks by(std::size_t count, const std::function<bool(std::uint32_t, std::uint32_t)>& lessThan);
} // namespace velm::textranks
