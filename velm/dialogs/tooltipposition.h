#pragma once

#include "velm/velm_export.h"

#include <QPoint>

namespace velm {
/// Where a tool tip stands: to the lower right of the cursor, and on its other side in each direction in which it would
/// pass the screen's edge. The left and the top edge are not looked at.
VELM_EXPORT QPoint calculateTooltipPosition(int width, int height, int offsetX, int offsetY, const QPoint& cursor,
                                            const QPoint& screenBottomRight);
} // namespace velm
