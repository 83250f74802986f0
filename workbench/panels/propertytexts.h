#pragma once

#include "od/odcmcolor.h"

#include <QString>

namespace workbench {
// How the panels write the values that layers and entities have.

/// "By layer", "Red", "Colour 12", or the channels as in "255, 128, 0".
QString colorText(const OdCmColor& color);
/// "By layer", "Default" or as in "0.25 mm", from hundredths of a millimetre.
QString lineWeightText(int lineWeight);
} // namespace workbench
