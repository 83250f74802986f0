#pragma once

#include "od/oddbentity.h"

#include <optional>
#include <vector>

/// Base of what measures and annotates; how the kinds differ is of no interest here.
class PLATFORM_EXPORT OdDbDimension : public OdDbEntity
{};

/// A length along two points.
class PLATFORM_EXPORT OdDbAlignedDimension : public OdDbDimension
{};

/// A length along a given direction.
class PLATFORM_EXPORT OdDbRotatedDimension : public OdDbDimension
{};

class PLATFORM_EXPORT OdDbRadialDimension : public OdDbDimension
{};

/// A radius whose line is broken, since the centre lies far away.
class PLATFORM_EXPORT OdDbRadialDimensionLarge : public OdDbDimension
{};

class PLATFORM_EXPORT OdDbDiametricDimension : public OdDbDimension
{};

/// The length of an arc.
class PLATFORM_EXPORT OdDbArcDimension : public OdDbDimension
{};

class PLATFORM_EXPORT OdDb2LineAngularDimension : public OdDbDimension
{};

class PLATFORM_EXPORT OdDb3PointAngularDimension : public OdDbDimension
{};

class PLATFORM_EXPORT OdDbOrdinateDimension : public OdDbDimension
{};

/// A line to what a text speaks of, with an arrowhead at its first point.
class PLATFORM_EXPORT OdDbLeader : public OdDbEntity
{
public:
    std::vector<OdGePoint3d> vertices;
    bool hasArrowHead = true;
    OdDbObjectId dimensionStyle;
    std::optional<OdString> arrowhead; ///< its own, by internal name; otherwise the style's
};

/// A frame of tolerances.
class PLATFORM_EXPORT OdDbFcf : public OdDbEntity
{};
