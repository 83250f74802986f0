#pragma once

#include "od/oddbrecords.h"

#include <vector>

/// Base of what is drawn. Coordinates are in drawing units, angles in radians counter-clockwise from the x axis.
class PLATFORM_EXPORT OdDbEntity : public OdDbObject
{
public:
    const OdCmColor& color() const { return m_color; }
    void setColor(const OdCmColor& color) { m_color = color; }
    OdDbObjectId layerId() const { return m_layer; }
    void setLayer(OdDbObjectId layer) { m_layer = layer; }
    OdDbObjectId linetypeId() const { return m_linetype; }
    void setLinetype(OdDbObjectId linetype) { m_linetype = linetype; }
    int lineWeight() const { return m_lineWeight; }
    void setLineWeight(int lineWeight) { m_lineWeight = lineWeight; }
    /// In percent from 0 to 90, by layer or by block.
    int transparency() const { return m_transparency; }
    void setTransparency(int transparency) { m_transparency = transparency; }
    /// The block that holds the entity.
    OdDbObjectId ownerId() const { return m_owner; }

private:
    friend class OdDbDatabase;

    OdCmColor m_color;
    OdDbObjectId m_layer;
    OdDbObjectId m_linetype; // null: by layer
    int m_lineWeight = OdDb::kLnWtByLayer;
    int m_transparency = OdDb::kTransparencyByLayer;
    OdDbObjectId m_owner;
};

class PLATFORM_EXPORT OdDbPoint : public OdDbEntity
{
public:
    OdGePoint3d position;
};

class PLATFORM_EXPORT OdDbLine : public OdDbEntity
{
public:
    OdGePoint3d startPoint;
    OdGePoint3d endPoint;
};

/// A chain of straight and circular segments.
class PLATFORM_EXPORT OdDbPolyline : public OdDbEntity
{
public:
    struct Vertex
    {
        OdGePoint3d point;
        double bulge = 0.0; ///< tangent of a quarter of the arc's angle to the next vertex; 0 for a straight segment
    };

    std::vector<Vertex> vertices;
    bool closed = false;
};

class PLATFORM_EXPORT OdDbCircle : public OdDbEntity
{
public:
    OdGePoint3d center;
    double radius = 0.0;
};

/// From startAngle counter-clockwise to endAngle.
class PLATFORM_EXPORT OdDbArc : public OdDbEntity
{
public:
    OdGePoint3d center;
    double radius = 0.0;
    double startAngle = 0.0;
    double endAngle = 0.0;
};

/// From startParam counter-clockwise to endParam, parameters in radians on the ellipse.
class PLATFORM_EXPORT OdDbEllipse : public OdDbEntity
{
public:
    OdGePoint3d center;
    OdGeVector3d majorAxis;
    double radiusRatio = 1.0; ///< minor axis by major axis
    double startParam = 0.0;
    double endParam = 0.0;
};

/// Text of one or, separated by newlines, several lines.
class PLATFORM_EXPORT OdDbText : public OdDbEntity
{
public:
    enum class HorizontalMode
    {
        Left,
        Center,
        Right,
    };
    enum class VerticalMode
    {
        Baseline,
        Bottom,
        Middle,
        Top,
    };

    OdGePoint3d position;
    double height = 0.0;
    double rotation = 0.0;
    HorizontalMode horizontalMode = HorizontalMode::Left;
    VerticalMode verticalMode = VerticalMode::Baseline;
    OdString textString;
    OdDbObjectId textStyle;
};

/// An insert of a block, or a grid of them.
class PLATFORM_EXPORT OdDbBlockReference : public OdDbEntity
{
public:
    OdDbObjectId blockTableRecord;
    OdGePoint3d position;
    OdGeVector3d scaleFactors{1.0, 1.0, 1.0};
    double rotation = 0.0;
    int columnCount = 1;
    int rowCount = 1;
    double columnSpacing = 0.0;
    double rowSpacing = 0.0;

    /// From the block's coordinates to those around the insert, for the insert in one cell of the grid.
    OdGeMatrix3d blockTransform(int column = 0, int row = 0) const;
};
