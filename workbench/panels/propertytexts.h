#pragma once

#include "od/odcmcolor.h"

#include <QString>

#include <span>

namespace workbench {
// How panels, combos and dialogs write the values that layers and entities have.

/// "ByLayer", "Red", "Color 12", the channels as in "255,128,0", or "None".
QString colorText(const OdCmColor& color);

/// All lineweights that can be chosen, in hundredths of a millimetre: the special ones, then from the thinnest to the
/// thickest.
std::span<const int> lineWeights();
/// "ByLayer", "ByBlock", "Default", or in the user's units as in "0.25 mm" and "0.010\"".
QString lineWeightText(int lineWeight);
/// "ByLayer", "ByBlock", or in percent as in "30 %".
QString transparencyText(int transparency);
/// Otherwise in millimetres.
bool areLineWeightsInInches();
/// Stores the user's units. What shows lineweights has to be told to write them anew.
void setLineWeightsInInches(bool inches);
} // namespace workbench
