#pragma once

#include "od/oddbentity.h"

#include <optional>

namespace workbench {
/// What can be measured on an entity, in drawing units; what it doesn't have is empty.
struct EntityGeometry
{
    std::optional<double> length; ///< of a circle its circumference
    std::optional<double> radius; ///< of an ellipse the greater one
    std::optional<double> area;   ///< of a closed outline
    OdGePoint3d start;            ///< where it begins, or its centre or position

    friend bool operator==(const EntityGeometry&, const EntityGeometry&) = default;
};

EntityGeometry entityGeometry(const OdDbEntity& entity);
/// Of an arc, in radians: above 0 up to a full turn.
double sweep(const OdDbArc& arc);
} // namespace workbench
