#pragma once

#include "drawing/tessellation.h"
#include "od/odstring.h"

#include <stop_token>
#include <vector>

namespace workbench {

/// A layout as a drawing's file tells of it.
struct DxfLayout
{
    OdString name;
    Box shown; ///< what its viewports show of the model space; empty for the model itself and without viewports
};

/// The layouts of a text DXF drawing in the order of their tabs. The file is checked line by line, but little of it is
/// kept, so this takes a small part of the time and memory of readDxf(). A file that is damaged has none, nor has one
/// at which it was stopped. From any thread.
/// Supported: viewports that look straight down. Not supported: twisted and clipped ones, whose box is too large.
std::vector<DxfLayout> readDxfLayouts(const OdString& fileName, const std::stop_token& stop = {});

} // namespace workbench
