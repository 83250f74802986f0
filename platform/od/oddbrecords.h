#pragma once

#include "od/odarray.h"
#include "od/odcmcolor.h"
#include "od/oddbobject.h"
#include "od/odge.h"

#include <map>

/// Lineweights are in hundredths of a millimetre, transparencies in percent; below zero stand the special ones.
namespace OdDb {
enum LineWeight
{
    kLnWtByLayer = -1,
    kLnWtByBlock = -2,
    kLnWtByLwDefault = -3,
};
enum Transparency
{
    kTransparencyByLayer = -1,
    kTransparencyByBlock = -2,
};
}

class PLATFORM_EXPORT OdDbLayerTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;

    const OdCmColor& color() const { return m_color; }
    void setColor(const OdCmColor& color) { m_color = color; }
    /// The colour in a viewport: the viewport's own, with `isOverride` set to true, or the layer's.
    OdCmColor color(const OdDbObjectId& viewport, bool& isOverride) const
    {
        const auto own = m_viewportColors.find(viewport);
        isOverride = own != m_viewportColors.end();
        return isOverride ? own->second : m_color;
    }
    /// Gives the layer a colour of its own in a viewport.
    void setColor(const OdCmColor& color, const OdDbObjectId& viewport) { m_viewportColors[viewport] = color; }
    bool isOff() const { return m_off; }
    void setIsOff(bool off) { m_off = off; }
    bool isFrozen() const { return m_frozen; }
    void setIsFrozen(bool frozen) { m_frozen = frozen; }
    bool isLocked() const { return m_locked; }
    void setIsLocked(bool locked) { m_locked = locked; }
    OdDbObjectId linetypeObjectId() const { return m_linetype; }
    void setLinetypeObjectId(OdDbObjectId linetype) { m_linetype = linetype; }
    int lineWeight() const { return m_lineWeight; }
    void setLineWeight(int lineWeight) { m_lineWeight = lineWeight; }
    const OdString& description() const { return m_description; }
    void setDescription(const OdString& description) { m_description = description; }
    /// Empty where the drawing's plot styles go by colour.
    const OdString& plotStyleName() const { return m_plotStyleName; }
    void setPlotStyleName(const OdString& name) { m_plotStyleName = name; }

private:
    OdCmColor m_color = OdCmColor::fromIndex(7);
    std::map<OdDbObjectId, OdCmColor> m_viewportColors;
    bool m_off = false;
    bool m_frozen = false;
    bool m_locked = false;
    OdDbObjectId m_linetype;
    int m_lineWeight = OdDb::kLnWtByLwDefault;
    OdString m_description;
    OdString m_plotStyleName;
};

/// A linetype: its dashes in drawing units, above zero a dash, below zero a gap, zero a dot. No dashes: continuous.
class PLATFORM_EXPORT OdDbLinetypeTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;

    const OdString& comments() const { return m_comments; }
    void setComments(const OdString& comments) { m_comments = comments; }
    const OdArray<double>& dashes() const { return m_dashes; }
    void setDashes(const OdArray<double>& dashes) { m_dashes = dashes; }

private:
    OdString m_comments;
    OdArray<double> m_dashes;
};

class PLATFORM_EXPORT OdDbDimStyleTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;

    /// The height of the text, in drawing units before the scale.
    double dimtxt() const { return m_textHeight; }
    void setDimtxt(double height) { m_textHeight = height; }
    /// The size of the arrows, in drawing units before the scale.
    double dimasz() const { return m_arrowSize; }
    void setDimasz(double size) { m_arrowSize = size; }
    /// What all sizes are multiplied by.
    double dimscale() const { return m_scale; }
    void setDimscale(double scale) { m_scale = scale; }
    /// Decimal places of lengths.
    int dimdec() const { return m_decimals; }
    void setDimdec(int decimals) { m_decimals = decimals; }
    /// The arrowhead of leaders by its internal name, as in "_DOT", or a block's; empty for the closed, filled one.
    const OdString& dimldrblk() const { return m_leaderArrowhead; }
    void setDimldrblk(const OdString& name) { m_leaderArrowhead = name; }
    OdDbObjectId dimtxsty() const { return m_textStyle; }
    void setDimtxsty(OdDbObjectId textStyle) { m_textStyle = textStyle; }

private:
    double m_textHeight = 0.18;
    double m_arrowSize = 0.18;
    double m_scale = 1.0;
    int m_decimals = 4;
    OdString m_leaderArrowhead;
    OdDbObjectId m_textStyle;
};

class PLATFORM_EXPORT OdDbTextStyleTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;

    const OdString& fileName() const { return m_fileName; }
    void setFileName(const OdString& fileName) { m_fileName = fileName; }

private:
    OdString m_fileName;
};

/// A block: the entities drawn as one by every insert of it, or the model or paper space of the drawing.
class PLATFORM_EXPORT OdDbBlockTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;

    const OdArray<OdDbObjectId>& entities() const { return m_entities; }
    OdGePoint3d origin() const { return m_origin; }
    void setOrigin(const OdGePoint3d& origin) { m_origin = origin; }
    /// The layout that shows this block, or null for an ordinary block.
    OdDbObjectId getLayoutId() const { return m_layout; }

private:
    friend class OdDbDatabase;

    OdArray<OdDbObjectId> m_entities;
    OdGePoint3d m_origin;
    OdDbObjectId m_layout;
};

/// A window of a sheet onto the model.
class PLATFORM_EXPORT OdDbViewport : public OdDbObject
{};

/// A sheet of the drawing over one block.
class PLATFORM_EXPORT OdDbLayout : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;

    OdDbObjectId getBlockTableRecordId() const { return m_block; }
    /// The viewport that a person works in, or null.
    OdDbObjectId activeViewportId() const { return m_activeViewport; }
    void setActiveViewportId(const OdDbObjectId& viewport) { m_activeViewport = viewport; }

private:
    friend class OdDbDatabase;

    OdDbObjectId m_block;
    OdDbObjectId m_activeViewport;
};
