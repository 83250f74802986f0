#pragma once

#include "od/odarray.h"
#include "od/odcmcolor.h"
#include "velm/velm_export.h"

#include <optional>

namespace velm {
/// The colours that all colour combos of one GUI controller share: a fixed head of standard colours, filled at the
/// first use, and behind it the colours that were picked. Combo flags: 1 true colours, 2 by layer and by block, 4 by
/// layer as black, 8 none, 32 white mode.
class VELM_EXPORT ColorCollection
{
public:
    /// The entries that a combo with these flags lists, in its order.
    OdArray<int> initColorIndices(int flags) const;
    bool shouldInitColor(const OdCmColor& color, int flags) const;
    /// The entry of a colour, added when it is new; empty when a combo with these flags doesn't take it.
    std::optional<int> tryAddColor(const OdCmColor& color, int flags) const;
    /// A bad index throws OdError_InvalidIndex.
    OdCmColor& getArrayColor(int index, int flags) const;
    /// The flags of the colour dialog for a combo's flags.
    int colorComboFlagsToDialog(int flags, bool varies) const;

private:
    OdArray<OdCmColor>& colorArray(bool whiteMode) const;
    int addColorToArray(const OdCmColor& color, bool whiteMode) const;

    mutable OdArray<OdCmColor> m_colors;
};
} // namespace velm
