#pragma once

#include "drawing/drawingpainter.h"

namespace workbench {
/// The spacing of the grid in drawing units when one of them takes so many pixels: 1, 2 or 5 times a power of ten.
double gridSpacing(double scale);
/// The nearest point of the grid.
OdGePoint3d onGrid(const OdGePoint3d& point, double spacing);
/// Draws the grid's lines, every fifth of them stronger.
void paintGrid(wxGraphicsContext& context, const DrawingView& view, const wxColour& background);
} // namespace workbench
