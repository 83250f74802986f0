#pragma once

#include "velm/images/ibitmapsizeselector.h"

#include <array>

namespace velm {
class PixelRatioHolder;

/// The order in which the sizes of the tool icons are tried for a wanted size: the nearest one, the nearest power of
/// two, which scales down cleanly, then the rest from the largest down.
class VELM_EXPORT BitmapLookupSize : public IBitmapSizeSelector
{
public:
    /// The sizes that exist, in pixels, ascending.
    static const std::array<int, 9> s_lookup;

    /// Hands out nothing.
    BitmapLookupSize();
    /// `size` in logical pixels, -1 for the default of 16; `scale` in physical pixels a logical one, -1.0 for 1.0.
    BitmapLookupSize(int size, double scale);
    BitmapLookupSize(int size, const PixelRatioHolder& pixelRatio);
    BitmapLookupSize(const BitmapLookupSize&);
    BitmapLookupSize& operator=(const BitmapLookupSize&);
    ~BitmapLookupSize() override;

    /// The next size to try; -1 when all were handed out, and always for a wanted size below 15.
    int getNextLoadSize() override;
    /// The wanted size in physical pixels, truncated.
    int getTargetSize() const;

private:
    void initArray();

    int m_baseSize = -1;
    double m_scale = -1.0;
    int m_position = 0;
    int m_order[9] = {};
};
} // namespace velm
