#pragma once

#include "drawing/tessellation.h"

#include <cstdint>
#include <optional>

namespace workbench {
/// The entity of the model space, by its number there, that lies nearest to a point of the drawing, but no farther than
/// the tolerance. Of several at the same distance it is the one drawn last. A text is met anywhere on it, but a line
/// that is met as well comes before it.
std::optional<std::uint32_t> pickEntity(const Tessellation& tessellation, double x, double y, double tolerance);
} // namespace workbench
