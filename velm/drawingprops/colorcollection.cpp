#include "velm/drawingprops/colorcollection.h"

namespace velm {
namespace {
constexpr int trueColors = 1;
constexpr int byLayerAndByBlock = 2;
constexpr int byLayerAsBlack = 4;
constexpr int none = 8;
constexpr int whiteMode = 32;

// The entries of the fixed head.
constexpr int byLayerEntry = 0;
constexpr int byBlockEntry = 1;
constexpr int noneEntry = 2;
constexpr int firstStandardEntry = 3;
constexpr int whiteEntry = 9;
constexpr int firstAddedEntry = 10;
} // namespace

OdArray<int> ColorCollection::initColorIndices(int flags) const
{
    OdArray<int> result;
    if (flags & byLayerAndByBlock) {
        result.append(byLayerEntry);
        result.append(byBlockEntry);
    }
    if (flags & none)
        result.append(noneEntry);
    for (int entry = firstStandardEntry; entry < whiteEntry; ++entry)
        result.append(entry);
    // In white mode the row of the by-layer entry is the one that reads as white.
    result.append(flags & whiteMode ? byLayerEntry : whiteEntry);
    if (flags & byLayerAsBlack)
        result.append(byLayerEntry);
    const OdArray<OdCmColor>& colors = colorArray(flags & whiteMode);
    for (int entry = firstAddedEntry; entry < static_cast<int>(colors.size()); ++entry)
        if ((flags & trueColors) || !colors[entry].isByColor())
            result.append(entry);
    return result;
}

bool ColorCollection::shouldInitColor(const OdCmColor& color, int flags) const
{
    if (!(flags & whiteMode))
        return true;
    const std::uint32_t packed = color.color();
    if (packed == 0)
        return true;
    const OdCmColor unpacked(packed);
    return !(unpacked.red() > 254 && unpacked.green() > 254 && unpacked.blue() > 254);
}

std::optional<int> ColorCollection::tryAddColor(const OdCmColor& color, int flags) const
{
    const std::uint32_t packed = color.color();
    if (packed == 0 || (packed == OdCmColor::kACInone && !(flags & none)))
        return {};
    const bool fits = color.isByBlock()   ? flags & byLayerAndByBlock
                      : color.isByLayer() ? flags & (byLayerAndByBlock | byLayerAsBlack | whiteMode)
                      : color.isByColor() ? flags & trueColors
                                          : true;
    if (!fits)
        return {};
    return addColorToArray(color, flags & whiteMode);
}

OdCmColor& ColorCollection::getArrayColor(int index, int flags) const
{
    return colorArray(flags & whiteMode)[index];
}

int ColorCollection::colorComboFlagsToDialog(int flags, bool varies) const
{
    constexpr int dialogByLayerAndByBlock = 1;
    constexpr int dialogBlackByLayer = 2;
    constexpr int dialogNoTrueColors = 8;
    constexpr int dialogVaries = 16;
    constexpr int dialogNone = 64;

    int result = 0;
    if (!(flags & trueColors))
        result |= dialogNoTrueColors;
    if (flags & (byLayerAsBlack | whiteMode))
        result |= dialogBlackByLayer;
    else if (flags & byLayerAndByBlock)
        result |= dialogByLayerAndByBlock;
    if (flags & none)
        result |= dialogNone;
    if (varies)
        result |= dialogVaries;
    return result;
}

OdArray<OdCmColor>& ColorCollection::colorArray(bool white) const
{
    // The first call decides for good whether the white entry is black.
    if (m_colors.isEmpty()) {
        m_colors.append(OdCmColor::fromIndex(OdCmColor::kACIbyLayer));
        m_colors.append(OdCmColor::fromIndex(OdCmColor::kACIbyBlock));
        m_colors.append(OdCmColor(OdCmColor::kNone));
        for (std::uint16_t index = 1; index <= 6; ++index)
            m_colors.append(OdCmColor::fromIndex(index));
        m_colors.append(white ? OdCmColor::fromRGB(0, 0, 0) : OdCmColor::fromIndex(7));
    }
    return m_colors;
}

int ColorCollection::addColorToArray(const OdCmColor& color, bool white) const
{
    OdArray<OdCmColor>& colors = colorArray(white);
    const int count = static_cast<int>(colors.size());
    for (int index = 0; index < count; ++index)
        if (colors[index] == color)
            return index;
    colors.append(color);
    return count;
}
} // namespace velm
