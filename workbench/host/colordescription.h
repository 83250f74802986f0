#pragma once

#include "velm/bridge/iguicontroller.h"

namespace workbench {
/// How a colour reads and what its swatch looks like in the present theme. `flags` are a combo's: with 32 by layer
/// stands for white, with 4 it is drawn black, and is called so where the combo has no by layer beside it (2). A swatch
/// gets a diagonal when what is drawn may be of another colour.
velm::ColorDescription describeColor(const OdCmColor& color, const wxColour& byLayerColor, bool layerOverride,
                                     int flags);
/// What stands behind index 7, and nearly always is the colour of lines without another.
bool isBackgroundDark();
} // namespace workbench
