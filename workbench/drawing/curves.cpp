#include "drawing/curves.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace workbench {

namespace {

constexpr double fullTurn = 2.0 * std::numbers::pi;
constexpr int segmentsPerTurn = 192;
constexpr int highestDegree = 15;

OdGePoint3d mixed(const OdGePoint3d& a, const OdGePoint3d& b, double share)
{
    return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share, a.z + (b.z - a.z) * share};
}

std::vector<double> evenKnots(int pointCount, int degree)
{
    std::vector<double> knots;
    for (int i = 0; i <= pointCount + degree; ++i)
        knots.push_back(std::clamp(i - degree, 0, pointCount - degree));
    return knots;
}

/// De Boor's scheme in the span of `knots` that starts at index `span`.
OdGePoint3d pointAt(const Spline& spline, const std::vector<double>& knots, int degree, int span, double parameter)
{
    struct Weighted
    {
        OdGePoint3d point; // times the weight
        double weight = 1.0;
    };
    std::array<Weighted, highestDegree + 1> levels;
    for (int i = 0; i <= degree; ++i) {
        const auto index = static_cast<std::size_t>(span - degree + i);
        const OdGePoint3d& point = spline.controlPoints[index];
        const double weight =
            index < spline.weights.size() && spline.weights[index] > 0.0 ? spline.weights[index] : 1.0;
        levels[i] = {{point.x * weight, point.y * weight, point.z * weight}, weight};
    }
    for (int level = 1; level <= degree; ++level)
        for (int i = degree; i >= level; --i) {
            const double low = knots[span - degree + i];
            const double width = knots[span + 1 + i - level] - low;
            const double share = width > 0.0 ? (parameter - low) / width : 0.0;
            levels[i].point = mixed(levels[i - 1].point, levels[i].point, share);
            levels[i].weight += (levels[i - 1].weight - levels[i].weight) * (1.0 - share);
        }
    const Weighted& end = levels[degree];
    return {end.point.x / end.weight, end.point.y / end.weight, end.point.z / end.weight};
}

/// A smooth curve through all points (Catmull and Rom's).
std::vector<OdGePoint3d> pointsThrough(const std::vector<OdGePoint3d>& fit)
{
    constexpr int steps = 12;
    std::vector<OdGePoint3d> points;
    const auto count = static_cast<int>(fit.size());
    for (int i = 0; i + 1 < count; ++i) {
        const OdGePoint3d& before = fit[std::max(i - 1, 0)];
        const OdGePoint3d& after = fit[std::min(i + 2, count - 1)];
        const OdGeVector3d leave = (fit[i + 1] - before) * 0.5;
        const OdGeVector3d arrive = (after - fit[i]) * 0.5;
        for (int step = 0; step < steps; ++step) {
            const double t = static_cast<double>(step) / steps;
            const double square = t * t;
            const double cube = square * t;
            points.push_back(mixed(fit[i], fit[i + 1], 3 * square - 2 * cube) + leave * (cube - 2 * square + t) +
                             arrive * (cube - square));
        }
    }
    if (!fit.empty())
        points.push_back(fit.back());
    return points;
}

} // namespace

void appendEllipticArc(std::vector<OdGePoint3d>& points, const OdGePoint3d& center, const OdGeVector3d& major,
                       const OdGeVector3d& minor, double start, double sweep)
{
    const double turn = std::clamp(sweep, -fullTurn, fullTurn);
    const int steps = std::max(4, static_cast<int>(std::ceil(std::abs(turn) / fullTurn * segmentsPerTurn)));
    for (int i = 0; i <= steps; ++i) {
        const double angle = start + turn * i / steps;
        points.push_back(center + major * std::cos(angle) + minor * std::sin(angle));
    }
}

void appendBulge(std::vector<OdGePoint3d>& points, const OdGePoint3d& from, const OdGePoint3d& to, double bulge)
{
    const OdGeVector3d chord = to - from;
    if (std::abs(bulge) < 1e-9 || chord.length() == 0.0) {
        points.push_back(to);
        return;
    }
    const double factor = (1.0 / bulge - bulge) / 4.0; // of the chord, from its middle to the centre
    const OdGePoint3d center = mixed(from, to, 0.5) + OdGeVector3d{-chord.y * factor, chord.x * factor, 0.0};
    const OdGeVector3d radius = from - center;
    std::vector<OdGePoint3d> arc;
    appendEllipticArc(arc, center, radius, {-radius.y, radius.x, 0.0}, 0.0, 4.0 * std::atan(bulge));
    arc.back() = to;
    points.insert(points.end(), arc.begin() + 1, arc.end());
}

std::vector<OdGePoint3d> splinePoints(const Spline& spline)
{
    const auto count = static_cast<int>(spline.controlPoints.size());
    if (count < 2)
        return pointsThrough(spline.fitPoints);
    const int degree = std::clamp(spline.degree, 1, std::min(count - 1, highestDegree));
    const bool knotsFit = spline.knots.size() == static_cast<std::size_t>(count + degree + 1) &&
                          std::is_sorted(spline.knots.begin(), spline.knots.end()) &&
                          spline.knots[degree] < spline.knots[count];
    const std::vector<double> knots = knotsFit ? spline.knots : evenKnots(count, degree);
    const int steps = count > 1000 ? 3 : 16;
    std::vector<OdGePoint3d> points;
    for (int span = degree; span < count; ++span) {
        const double width = knots[span + 1] - knots[span];
        if (width <= 0.0)
            continue;
        for (int step = points.empty() ? 0 : 1; step <= steps; ++step)
            points.push_back(pointAt(spline, knots, degree, span, knots[span] + width * step / steps));
    }
    return points;
}

} // namespace workbench
