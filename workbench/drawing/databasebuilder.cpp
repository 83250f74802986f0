#include "drawing/databasebuilder.h"

#include "drawing/dxftext.h"
#include "drawing/dxfvalues.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace workbench {

namespace {

constexpr double degree = std::numbers::pi / 180.0;

bool isNamed(const std::string& name, const wchar_t* expected)
{
    return OdString(name.c_str()).iCompare(expected) == 0;
}

} // namespace

DatabaseBuilder::DatabaseBuilder(bool isUtf8) : m_database(std::make_unique<OdDbDatabase>()), m_isUtf8(isUtf8)
{
    m_units = m_database->formatter().units();
}

std::unique_ptr<OdDbDatabase> DatabaseBuilder::finish()
{
    for (const auto& [reference, name] : m_inserts)
        if (const OdDbBlockTableRecord* block = m_database->findBlock(name))
            reference->blockTableRecord = block->objectId();
    if (const OdDbLayerTableRecord* layer = m_database->findLayer(m_currentLayer))
        m_database->setCurrentLayer(layer->objectId());
    if (const OdDbLinetypeTableRecord* linetype = m_database->findLinetype(m_currentLinetype))
        m_database->setCELTYPE(linetype->objectId());
    if (const OdDbDimStyleTableRecord* style = m_database->findDimStyle(m_currentDimStyle))
        m_database->setDIMSTYLE(style->objectId());
    m_database->formatter().setUnits(m_units);
    return std::move(m_database);
}

std::wstring DatabaseBuilder::text(std::string_view value) const
{
    return decodeDxfText(value, m_isUtf8);
}

void DatabaseBuilder::setTransparency(std::string_view value)
{
    m_transparency = transparencyOf(value);
}

void DatabaseBuilder::addLayer(const DL_LayerData& data)
{
    OdDbLayerTableRecord* layer = m_database->addLayer(text(data.name));
    DL_Attributes layerAttributes = attributes;
    layerAttributes.setColor(std::abs(attributes.getColor()));
    const OdCmColor color = colorOf(layerAttributes);
    layer->setColor(color.isByACI() || color.isByColor() ? color : OdCmColor::fromIndex(7));
    layer->setIsOff(data.off || attributes.getColor() < 0);
    layer->setIsFrozen((data.flags & 1) != 0);
    layer->setIsLocked((data.flags & 4) != 0);
    const OdDbLinetypeTableRecord* linetype = m_database->findLinetype(text(attributes.getLinetype()));
    if (!linetype || isNamed(attributes.getLinetype(), L"ByLayer") || isNamed(attributes.getLinetype(), L"ByBlock"))
        linetype = m_database->findLinetype(L"Continuous");
    layer->setLinetypeObjectId(linetype->objectId());
    // dxflib makes 1, which is no lineweight, of the default one.
    layer->setLineWeight(attributes.getWidth() > 1 || attributes.getWidth() == 0 ? attributes.getWidth()
                                                                                 : OdDb::kLnWtByLwDefault);
}

void DatabaseBuilder::addLinetypeDash(double length)
{
    m_dashes.append(length);
}

void DatabaseBuilder::addLinetype(const DL_LinetypeData& data)
{
    OdDbLinetypeTableRecord* linetype = m_database->addLinetype(text(data.name));
    linetype->setComments(text(data.description));
    linetype->setDashes(m_dashes);
    m_dashes.clear();
}

void DatabaseBuilder::addTextStyle(const DL_StyleData& data)
{
    m_database->addTextStyle(text(data.name))->setFileName(text(data.primaryFontFile));
}

void DatabaseBuilder::addBlock(const DL_BlockData& data)
{
    m_block = m_database->addBlock(text(data.name));
    m_block->setOrigin({data.bpx, data.bpy, data.bpz});
}

void DatabaseBuilder::endBlock()
{
    m_block = nullptr;
}

OdDbObjectId DatabaseBuilder::linetypeId(const std::string& name) const
{
    if (isNamed(name, L"ByLayer"))
        return OdDbObjectId::kNull;
    const OdDbLinetypeTableRecord* linetype = m_database->findLinetype(text(name));
    return linetype ? linetype->objectId() : OdDbObjectId::kNull;
}

OdDbObjectId DatabaseBuilder::textStyleId(const std::string& name) const
{
    const OdDbTextStyleTableRecord* style = m_database->findTextStyle(text(name));
    return style ? style->objectId() : m_database->findTextStyle(L"Standard")->objectId();
}

OdGePoint3d DatabaseBuilder::objectPoint(double x, double y, double z) const
{
    return {isMirrored() ? -x : x, y, z};
}

template <typename T>
void DatabaseBuilder::applyAttributes(T& target) const
{
    target.setColor(colorOf(attributes));
    target.setLinetype(linetypeId(attributes.getLinetype()));
    target.setLineWeight(attributes.getWidth());
    target.setTransparency(m_transparency);
    target.setLayer(m_database->addLayer(text(attributes.getLayer()))->objectId());
}

template <typename T>
T* DatabaseBuilder::append(std::unique_ptr<T> entity)
{
    if (entity->layerId().isNull())
        applyAttributes(*entity);
    if (!m_block)
        ++m_entityCount;
    OdDbBlockTableRecord* space =
        attributes.isInPaperSpace() ? m_database->findBlock(L"*Paper_Space") : m_database->modelSpace();
    return m_database->addEntity(std::move(entity), m_block ? m_block : space);
}

void DatabaseBuilder::addPoint(const DL_PointData& data)
{
    auto point = std::make_unique<OdDbPoint>();
    point->position = {data.x, data.y, data.z};
    append(std::move(point));
}

void DatabaseBuilder::addLine(const DL_LineData& data)
{
    auto line = std::make_unique<OdDbLine>();
    line->startPoint = {data.x1, data.y1, data.z1};
    line->endPoint = {data.x2, data.y2, data.z2};
    append(std::move(line));
}

void DatabaseBuilder::addArc(const DL_ArcData& data)
{
    auto arc = std::make_unique<OdDbArc>();
    arc->center = objectPoint(data.cx, data.cy, data.cz);
    arc->radius = data.radius;
    arc->startAngle = (isMirrored() ? 180.0 - data.angle2 : data.angle1) * degree;
    arc->endAngle = (isMirrored() ? 180.0 - data.angle1 : data.angle2) * degree;
    append(std::move(arc));
}

void DatabaseBuilder::addCircle(const DL_CircleData& data)
{
    auto circle = std::make_unique<OdDbCircle>();
    circle->center = objectPoint(data.cx, data.cy, data.cz);
    circle->radius = data.radius;
    append(std::move(circle));
}

void DatabaseBuilder::addEllipse(const DL_EllipseData& data)
{
    auto ellipse = std::make_unique<OdDbEllipse>();
    ellipse->center = {data.cx, data.cy, data.cz};
    ellipse->majorAxis = {data.mx, data.my, data.mz};
    ellipse->radiusRatio = data.ratio;
    // Ellipses have world coordinates; mirrored ones run the other way round.
    ellipse->startParam = isMirrored() ? -data.angle2 : data.angle1;
    ellipse->endParam = isMirrored() ? -data.angle1 : data.angle2;
    append(std::move(ellipse));
}

void DatabaseBuilder::addPolyline(const DL_PolylineData& data)
{
    constexpr int closed = 1;
    constexpr int meshes = 16 | 64;
    if (data.flags & meshes) {
        ++m_skipped["POLYLINE mesh"];
        return;
    }
    m_polyline = std::make_unique<OdDbPolyline>();
    m_polyline->closed = (data.flags & closed) != 0;
    m_isMirrored = isMirrored();
    applyAttributes(*m_polyline);
}

void DatabaseBuilder::addVertex(const DL_VertexData& data)
{
    if (m_polyline)
        m_polyline->vertices.push_back(
            {{m_isMirrored ? -data.x : data.x, data.y, data.z}, m_isMirrored ? -data.bulge : data.bulge});
}

void DatabaseBuilder::addSpline(const DL_SplineData& data)
{
    m_spline = std::make_unique<Spline>();
    m_spline->degree = static_cast<int>(std::min(data.degree, 100u));
    m_spline->closed = (data.flags & 1) != 0;
}

void DatabaseBuilder::addControlPoint(const DL_ControlPointData& data)
{
    m_spline->controlPoints.push_back({data.x, data.y, data.z});
    m_spline->weights.push_back(data.w);
}

void DatabaseBuilder::addFitPoint(const DL_FitPointData& data)
{
    m_spline->fitPoints.push_back({data.x, data.y, data.z});
}

void DatabaseBuilder::addKnot(const DL_KnotData& data)
{
    m_spline->knots.push_back(data.k);
}

void DatabaseBuilder::addLeader(const DL_LeaderData& data)
{
    const OdDbDimStyleTableRecord* style = m_database->findDimStyle(text(m_leaderStyle));
    m_leader = std::make_unique<OdDbLeader>();
    m_leader->hasArrowHead = data.arrowHeadFlag != 0;
    m_leader->dimensionStyle = style ? style->objectId() : m_database->getDIMSTYLE();
    applyAttributes(*m_leader);
}

void DatabaseBuilder::addLeaderVertex(const DL_LeaderVertexData& data)
{
    m_leader->vertices.push_back({data.x, data.y, data.z});
}

void DatabaseBuilder::endEntity()
{
    if (m_spline) {
        m_polyline = std::make_unique<OdDbPolyline>();
        m_polyline->closed = m_spline->closed;
        for (const OdGePoint3d& point : splinePoints(*m_spline))
            m_polyline->vertices.push_back({point, 0.0});
        m_spline.reset();
    }
    if (m_polyline && !m_polyline->vertices.empty())
        append(std::move(m_polyline));
    m_polyline.reset();
    if (m_leader && !m_leader->vertices.empty())
        append(std::move(m_leader));
    m_leader.reset();
}

void DatabaseBuilder::addInsert(const DL_InsertData& data)
{
    auto reference = std::make_unique<OdDbBlockReference>();
    reference->position = objectPoint(data.ipx, data.ipy, data.ipz);
    reference->scaleFactors = {isMirrored() ? -data.sx : data.sx, data.sy, data.sz};
    reference->rotation = (isMirrored() ? -data.angle : data.angle) * degree;
    reference->columnCount = std::max(data.cols, 1);
    reference->rowCount = std::max(data.rows, 1);
    reference->columnSpacing = isMirrored() ? -data.colSp : data.colSp;
    reference->rowSpacing = data.rowSp;
    m_inserts.emplace_back(append(std::move(reference)), text(data.name));
}

void DatabaseBuilder::appendOutline(const DL_TraceData& data, bool crossed)
{
    auto outline = std::make_unique<OdDbPolyline>();
    outline->closed = true;
    for (const int corner : crossed ? std::array{0, 1, 3, 2} : std::array{0, 1, 2, 3})
        outline->vertices.push_back({objectPoint(data.x[corner], data.y[corner], data.z[corner]), 0.0});
    append(std::move(outline));
}

void DatabaseBuilder::addTrace(const DL_TraceData& data)
{
    appendOutline(data, true);
}

void DatabaseBuilder::add3dFace(const DL_3dFaceData& data)
{
    appendOutline(data, false);
}

void DatabaseBuilder::addSolid(const DL_SolidData& data)
{
    appendOutline(data, true);
}

void DatabaseBuilder::addText(const DL_TextData& data)
{
    using Horizontal = OdDbText::HorizontalMode;
    using Vertical = OdDbText::VerticalMode;
    auto entity = std::make_unique<OdDbText>();
    entity->height = data.height;
    entity->rotation = data.angle;
    entity->textString = plainText(text(data.text));
    entity->textStyle = textStyleId(data.style);
    const bool isBetweenPoints = data.hJustification == 3 || data.hJustification == 5;
    const bool isAligned = !isBetweenPoints && (data.hJustification != 0 || data.vJustification != 0);
    entity->position =
        isAligned ? objectPoint(data.apx, data.apy, data.apz) : objectPoint(data.ipx, data.ipy, data.ipz);
    if (isBetweenPoints) {
        entity->rotation = std::atan2(data.apy - data.ipy, data.apx - data.ipx);
    } else {
        constexpr Vertical vertical[] = {Vertical::Baseline, Vertical::Bottom, Vertical::Middle, Vertical::Top};
        const bool isMiddle = data.hJustification == 4;
        entity->horizontalMode = data.hJustification == 1 || isMiddle ? Horizontal::Center
                                 : data.hJustification == 2           ? Horizontal::Right
                                                                      : Horizontal::Left;
        entity->verticalMode = isMiddle ? Vertical::Middle : vertical[data.vJustification & 3];
    }
    append(std::move(entity));
}

void DatabaseBuilder::addAttribute(const DL_AttributeData& data)
{
    addText(data);
}

void DatabaseBuilder::addMTextChunk(const std::string& text)
{
    m_paragraphs += text;
}

void DatabaseBuilder::addMText(const DL_MTextData& data)
{
    auto entity = std::make_unique<OdDbText>();
    entity->position = {data.ipx, data.ipy, data.ipz};
    entity->height = data.height;
    // The direction counts more than the angle, which comes in degrees.
    const bool hasDirection = data.dirx != 0.0 || data.diry != 0.0;
    entity->rotation = hasDirection ? std::atan2(data.diry, data.dirx) : data.angle * degree;
    const int attachment = std::clamp(data.attachmentPoint, 1, 9) - 1;
    entity->horizontalMode = static_cast<OdDbText::HorizontalMode>(attachment % 3);
    constexpr OdDbText::VerticalMode vertical[] = {OdDbText::VerticalMode::Top, OdDbText::VerticalMode::Middle,
                                                   OdDbText::VerticalMode::Bottom};
    entity->verticalMode = vertical[attachment / 3];
    entity->textString = plainMText(text(m_paragraphs + data.text));
    entity->textStyle = textStyleId(data.style);
    m_paragraphs.clear();
    append(std::move(entity));
}

void DatabaseBuilder::setVariableString(const std::string& key, const std::string& value, int)
{
    if (key == "$CLAYER")
        m_currentLayer = text(value);
    else if (key == "$CELTYPE")
        m_currentLinetype = text(value);
    else if (key == "$DIMSTYLE")
        m_currentDimStyle = text(value);
    else if (key == "$CELWEIGHT") // a number of a kind that dxflib hands on as it stands
        m_database->setCELWEIGHT(lineWeightOf(value));
}

void DatabaseBuilder::setVariableDouble(const std::string& key, double value, int)
{
    if (key == "$LTSCALE" && std::isfinite(value) && value > 0.0)
        m_database->setLTSCALE(value);
}

void DatabaseBuilder::setVariableInt(const std::string& key, int value, int)
{
    if (key == "$LUNITS")
        m_units.linearKind = static_cast<OdUnits::LinearKind>(std::clamp(value, 1, 5));
    else if (key == "$LUPREC")
        m_units.linearPrecision = std::clamp(value, 0, 8);
    else if (key == "$AUNITS")
        m_units.angularKind = static_cast<OdUnits::AngularKind>(std::clamp(value, 0, 4));
    else if (key == "$AUPREC")
        m_units.angularPrecision = std::clamp(value, 0, 8);
    else if (key == "$CECOLOR")
        m_database->setCECOLOR(colorOf(value));
}

} // namespace workbench
