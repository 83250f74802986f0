#pragma once

#include <algorithm>

namespace velm {
/// A coordinate in whole pixels, truncated toward zero. What no screen has is cut off: beyond a thousand million, and
/// 0 for a NaN.
inline int devicePixels(double coordinate)
{
    constexpr double most = 1e9;
    return coordinate == coordinate ? static_cast<int>(std::clamp(coordinate, -most, most)) : 0;
}
} // namespace velm
