#pragma once

#include "od/odarray.h"

#include <wx/bitmap.h>
#include <wx/colour.h>

#include <utility>
#include <vector>

namespace workbench {
/// What a short line of a linetype shows, in pixels: where each dash begins and ends. At least two patterns fit, dots
/// and dashes have a pixel, and gaps can be seen where there is room. Dashes that make no pattern, as those of a
/// continuous line, give a plain one.
std::vector<std::pair<int, int>> lineTypeStrokes(const OdArray<double>& dashes, int length);

/// A line of a linetype across the middle of a picture that is clear beside it. Null for a size that no picture has.
wxBitmap lineTypePicture(const OdArray<double>& dashes, const wxSize& size, const wxColour& colour);
} // namespace workbench
