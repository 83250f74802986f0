#include "drawing/dxfvalues.h"

#include "od/oddbdatabase.h"

#include <dxflib/dl_attributes.h>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace workbench {
OdCmColor colorOf(int index)
{
    return OdCmColor::fromIndex(static_cast<std::uint16_t>(index < 0 || index > 256 ? 256 : index));
}

OdCmColor colorOf(const DL_Attributes& attributes)
{
    if (const int rgb = attributes.getColor24(); rgb >= 0)
        return OdCmColor::fromRGB((rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF);
    return colorOf(attributes.getColor());
}

int lineWeightOf(std::string_view value)
{
    int weight = OdDb::kLnWtByLayer;
    std::from_chars(value.data(), value.data() + value.size(), weight);
    return weight < OdDb::kLnWtByLwDefault || weight > 211 ? OdDb::kLnWtByLayer : weight;
}

int transparencyOf(std::string_view value)
{
    // The method stands in the highest byte, and the opacity from 0 to 255 in the lowest.
    std::uint32_t packed = 0;
    std::from_chars(value.data(), value.data() + value.size(), packed);
    switch (packed >> 24) {
    case 1:
        return OdDb::kTransparencyByBlock;
    case 2:
        return std::clamp(100 - static_cast<int>(std::lround((packed & 0xFF) / 2.55)), 0, 90);
    default:
        return OdDb::kTransparencyByLayer;
    }
}
} // namespace workbench
