#include "velm/dialogs/tooltipposition.h"

namespace velm {
QPoint calculateTooltipPosition(int width, int height, int offsetX, int offsetY, const QPoint& cursor,
                                const QPoint& screenBottomRight)
{
    QPoint place(cursor.x() + offsetX, cursor.y() + offsetY);
    if (cursor.x() - screenBottomRight.x() + width + offsetX > 0)
        place.setX(cursor.x() - width - offsetX);
    if (cursor.y() - screenBottomRight.y() + height + offsetY >= 1)
        place.setY(cursor.y() - height - offsetY);
    return place;
}
} // namespace velm
