#include "drawing/arrowheads.h"

#include <wx/intl.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace workbench {
namespace {
using Chain = std::vector<OdGePoint3d>;

Chain circle(double radius)
{
    constexpr int corners = 24;
    Chain chain;
    for (int corner = 0; corner <= corners; ++corner) {
        const double angle = 2.0 * std::numbers::pi * corner / corners;
        chain.push_back({radius * std::cos(angle), radius * std::sin(angle), 0.0});
    }
    return chain;
}

Chain box()
{
    return {{-0.5, -0.5, 0}, {0.5, -0.5, 0}, {0.5, 0.5, 0}, {-0.5, 0.5, 0}, {-0.5, -0.5, 0}};
}

/// Two sides that meet at the tip, `spread` apart at `length`.
Chain sides(double length, double spread)
{
    return {{length, spread / 2.0, 0}, {0, 0, 0}, {length, -spread / 2.0, 0}};
}

Chain triangle()
{
    Chain chain = sides(1.0, 1.0 / 3.0);
    chain.push_back(chain.front());
    return chain;
}

/// An equilateral triangle that stands on the tip's place.
Chain datum()
{
    const double half = 1.0 / std::sqrt(3.0);
    return {{0, half, 0}, {0, -half, 0}, {1, 0, 0}, {0, half, 0}};
}

/// A thick stroke across the line.
Chain tick()
{
    constexpr double width = 0.08;
    return {{-0.5 - width, -0.5 + width, 0},
            {-0.5 + width, -0.5 - width, 0},
            {0.5 + width, 0.5 - width, 0},
            {0.5 - width, 0.5 + width, 0},
            {-0.5 - width, -0.5 + width, 0}};
}

/// A long s through the tip.
Chain integral()
{
    constexpr int steps = 12;
    Chain chain;
    for (int step = -steps; step <= steps; ++step) {
        const double along = static_cast<double>(step) / steps;
        chain.push_back({0.22 * std::sin(along * std::numbers::pi / 1.4), 0.5 * along, 0.0});
    }
    return chain;
}

std::vector<Arrowhead> makeArrowheads()
{
    const Chain narrow = sides(1.0, 2.0 * std::tan(std::numbers::pi / 12.0)); // 30 degrees
    return {
        {L"_CLOSEDFILLED", wxTRANSLATE("Closed filled"), {triangle()}, true, 1.0},
        {L"_CLOSEDBLANK", wxTRANSLATE("Closed blank"), {triangle()}, false, 1.0},
        {L"_OPEN30", wxTRANSLATE("Open 30"), {narrow}},
        {L"_DOT", wxTRANSLATE("Dot"), {circle(0.5)}, true, 0.5},
        {L"_DOTSMALL", wxTRANSLATE("Dot small"), {circle(0.15)}, true},
        {L"_OBLIQUE", wxTRANSLATE("Oblique"), {{{-0.5, -0.5, 0}, {0.5, 0.5, 0}}}},
        {L"_ARCHTICK", wxTRANSLATE("Architectural tick"), {tick()}, true},
        {L"_NONE", wxTRANSLATE("None")},
        {L"_CLOSED", wxTRANSLATE("Closed"), {triangle()}},
        {L"_OPEN", wxTRANSLATE("Open"), {sides(1.0, 1.0 / 3.0)}},
        {L"_OPEN90", wxTRANSLATE("Right angle"), {sides(0.5, 1.0)}},
        {L"_ORIGIN", wxTRANSLATE("Origin indicator"), {circle(0.5)}},
        {L"_ORIGIN2", wxTRANSLATE("Origin indicator 2"), {circle(0.5), circle(0.25)}, false, 0.5},
        {L"_DOTBLANK", wxTRANSLATE("Dot blank"), {circle(0.5)}, false, 0.5},
        {L"_SMALL", wxTRANSLATE("Dot small blank"), {circle(0.25)}, false, 0.25},
        {L"_BOXBLANK", wxTRANSLATE("Box"), {box()}, false, 0.5},
        {L"_BOXFILLED", wxTRANSLATE("Box filled"), {box()}, true, 0.5},
        {L"_DATUMBLANK", wxTRANSLATE("Datum triangle"), {datum()}, false, 1.0},
        {L"_DATUMFILLED", wxTRANSLATE("Datum triangle filled"), {datum()}, true, 1.0},
        {L"_INTEGRAL", wxTRANSLATE("Integral"), {integral()}},
    };
}
} // namespace

std::span<const Arrowhead> arrowheads()
{
    static const std::vector<Arrowhead> all = makeArrowheads();
    return all;
}

const Arrowhead* findArrowhead(const OdString& internalName)
{
    if (internalName.isEmpty())
        return &arrowheads().front();
    const auto all = arrowheads();
    const auto found = std::ranges::find_if(
        all, [&](const Arrowhead& arrowhead) { return arrowhead.internalName.iCompare(internalName) == 0; });
    return found == all.end() ? nullptr : &*found;
}
} // namespace workbench
