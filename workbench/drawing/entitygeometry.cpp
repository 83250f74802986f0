#include "drawing/entitygeometry.h"

#include "od/oddbdimension.h"

#include <cmath>
#include <numbers>

namespace workbench {
namespace {
EntityGeometry geometryOf(const OdDbPolyline& polyline)
{
    double length = 0.0;
    double area = 0.0; // to the left of the way
    const std::size_t count = polyline.vertices.size();
    const OdGePoint3d start = count > 0 ? polyline.vertices.front().point : OdGePoint3d();
    for (std::size_t at = 0; at + (polyline.closed ? 0 : 1) < count; ++at) {
        const OdDbPolyline::Vertex& vertex = polyline.vertices[at];
        const OdGePoint3d& from = vertex.point;
        const OdGePoint3d& to = polyline.vertices[(at + 1) % count].point;
        const double chord = (to - from).length();
        area += ((from.x - start.x) * (to.y - start.y) - (to.x - start.x) * (from.y - start.y)) / 2.0;
        // Half the angle of the arc; its sine is half the chord by the radius.
        const double half = 2.0 * std::atan(vertex.bulge);
        if (half == 0.0) {
            length += chord;
            continue;
        }
        const double radius = chord / 2.0 / std::sin(half);
        length += 2.0 * half * radius;
        area += radius * radius * (2.0 * half - std::sin(2.0 * half)) / 2.0;
    }
    EntityGeometry result{length, {}, {}, start};
    if (polyline.closed)
        result.area = std::abs(area);
    return result;
}

EntityGeometry geometryOf(const OdDbLeader& leader)
{
    double length = 0.0;
    for (std::size_t at = 1; at < leader.vertices.size(); ++at)
        length += (leader.vertices[at] - leader.vertices[at - 1]).length();
    return {length, {}, {}, leader.vertices.empty() ? OdGePoint3d() : leader.vertices.front()};
}

OdGePoint3d pointAt(const OdDbArc& arc, double angle)
{
    return {arc.center.x + arc.radius * std::cos(angle), arc.center.y + arc.radius * std::sin(angle), arc.center.z};
}
} // namespace

double sweep(const OdDbArc& arc)
{
    constexpr double turn = 2 * std::numbers::pi;
    const double angle = std::fmod(arc.endAngle - arc.startAngle, turn);
    return angle > 0.0 ? angle : angle + turn;
}

EntityGeometry entityGeometry(const OdDbEntity& entity)
{
    constexpr double pi = std::numbers::pi;
    if (const auto* line = dynamic_cast<const OdDbLine*>(&entity))
        return {(line->endPoint - line->startPoint).length(), {}, {}, line->startPoint};
    if (const auto* polyline = dynamic_cast<const OdDbPolyline*>(&entity))
        return geometryOf(*polyline);
    if (const auto* leader = dynamic_cast<const OdDbLeader*>(&entity))
        return geometryOf(*leader);
    if (const auto* circle = dynamic_cast<const OdDbCircle*>(&entity))
        return {2 * pi * circle->radius, circle->radius, pi * circle->radius * circle->radius, circle->center};
    if (const auto* arc = dynamic_cast<const OdDbArc*>(&entity))
        return {arc->radius * sweep(*arc), arc->radius, {}, pointAt(*arc, arc->startAngle)};
    if (const auto* ellipse = dynamic_cast<const OdDbEllipse*>(&entity))
        return {{}, ellipse->majorAxis.length(), {}, ellipse->center};
    if (const auto* text = dynamic_cast<const OdDbText*>(&entity))
        return {{}, {}, {}, text->position};
    if (const auto* point = dynamic_cast<const OdDbPoint*>(&entity))
        return {{}, {}, {}, point->position};
    if (const auto* reference = dynamic_cast<const OdDbBlockReference*>(&entity))
        return {{}, {}, {}, reference->position};
    return {};
}
} // namespace workbench
