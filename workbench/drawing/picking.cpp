#include "drawing/picking.h"

#include <algorithm>
#include <cmath>

namespace workbench {
namespace {
/// How far the origin is from the segment.
double distanceToSegment(double fromX, double fromY, double toX, double toY)
{
    const double wayX = toX - fromX;
    const double wayY = toY - fromY;
    const double squared = wayX * wayX + wayY * wayY;
    const double at = squared > 0.0 ? std::clamp(-(fromX * wayX + fromY * wayY) / squared, 0.0, 1.0) : 0.0;
    return std::hypot(fromX + at * wayX, fromY + at * wayY);
}

double distanceToChain(const Tessellation& tessellation, const Piece& piece, double x, double y)
{
    const Tessellation::Point* point = &tessellation.points[piece.first];
    double distance = std::hypot(point->x - x, point->y - y);
    for (std::uint32_t i = 1; i < piece.count; ++i, ++point)
        distance = std::min(distance, distanceToSegment(point->x - x, point->y - y, point[1].x - x, point[1].y - y));
    return distance;
}

bool isOnText(const PlacedText& text, double x, double y, double tolerance)
{
    const double c = std::cos(text.rotation);
    const double s = std::sin(text.rotation);
    const double wayX = x - text.position.x;
    const double wayY = y - text.position.y;
    return text.extent.grown(tolerance).contains(c * wayX + s * wayY, c * wayY - s * wayX);
}
} // namespace

std::optional<std::uint32_t> pickEntity(const Tessellation& tessellation, double x, double y, double tolerance)
{
    std::optional<std::uint32_t> nearest;
    double least = tolerance;
    for (const Piece& piece : tessellation.pieces) {
        if (!piece.box.grown(tolerance).contains(x, y))
            continue;
        double distance = tolerance;
        if (piece.text < 0)
            distance = distanceToChain(tessellation, piece, x, y);
        else if (!isOnText(tessellation.texts[static_cast<std::size_t>(piece.text)], x, y, tolerance))
            continue;
        if (distance <= least) {
            least = distance;
            nearest = piece.entity;
        }
    }
    return nearest;
}
} // namespace workbench
