#pragma once

#include "drawing/tessellation.h"
#include "od/odstring.h"

#include <vector>

namespace workbench {

/// A layout as a drawing's file tells of it.
struct DxfLayout
{
    OdString name;
    Box shown; ///< what its viewports show of the model space; empty for the model itself and without viewports
};

/// The layouts of a text DXF drawing in the order of their tabs. The file is checked, but nothing of it is made into a
/// drawing, so this takes a small part of the time of readDxf(). A file that is damaged has none.
/// Supported: viewports that look straight down. Not supported: twisted and clipped ones, whose box is too large.
std::vector<DxfLayout> readDxfLayouts(const OdString& fileName);

} // namespace workbench
