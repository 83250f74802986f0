#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace velm {
/// A coordinate in whole pixels, truncated toward zero and cut to what an int holds; 0 for a NaN.
inline int devicePixels(double coordinate)
{
    using Limits = std::numeric_limits<int>;
    return std::isnan(coordinate)
               ? 0
               : static_cast<int>(std::clamp(coordinate, double(Limits::min()), double(Limits::max())));
}
} // namespace velm
