#pragma once

#include "od/odge.h"

#include <vector>

namespace workbench {

/// Points on an ellipse around `center`, from the parameter `start` over `sweep` radians (a full turn at most), both
/// ends included. `major` and `minor` are its half axes; a circle's have one length.
void appendEllipticArc(std::vector<OdGePoint3d>& points, const OdGePoint3d& center, const OdGeVector3d& major,
                       const OdGeVector3d& minor, double start, double sweep);

/// Points of the segment with a bulge that leads from `from` to `to`, without the first.
void appendBulge(std::vector<OdGePoint3d>& points, const OdGePoint3d& from, const OdGePoint3d& to, double bulge);

/// A non-uniform rational B-spline as the file gives it; knots that don't fit the points count as evenly spread.
struct Spline
{
    int degree = 3;
    bool closed = false;
    std::vector<OdGePoint3d> controlPoints;
    std::vector<double> weights;
    std::vector<double> knots;
    std::vector<OdGePoint3d> fitPoints; ///< used when there are no control points
};

std::vector<OdGePoint3d> splinePoints(const Spline& spline);

} // namespace workbench
