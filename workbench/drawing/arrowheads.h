#pragma once

#include "od/odge.h"
#include "od/odstring.h"

#include <span>
#include <vector>

namespace workbench {
/// The shape of an arrowhead of size 1 whose tip is the origin and whose line comes along the x axis.
struct Arrowhead
{
    /// As drawing files write it, in capitals, as in "_DOT".
    OdString internalName;
    /// What a person calls it.
    const char* name;
    std::vector<std::vector<OdGePoint3d>> chains = {};
    bool isFilled = false;
    double lineFrom = 0.0; ///< where the line begins
};

/// All that drawing files know without a block of their own, the most common ones first.
std::span<const Arrowhead> arrowheads();
/// How many of arrowheads() are the common ones.
constexpr int commonArrowheads = 8;
/// By its internal name, without regard to case; the empty name is the closed, filled one. Null when there is none.
const Arrowhead* findArrowhead(const OdString& internalName);
} // namespace workbench
