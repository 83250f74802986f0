#include "filter/entityrecords.h"

#include "drawing/entitygeometry.h"
#include "drawing/entitykind.h"
#include "od/oddbdatabase.h"
#include "od/oddbdimension.h"
#include "velm/bridge/conversions.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace workbench {
namespace {
using P = EntityFilterProperties;

/// The entity as what its kind says, or null for another kind.
template <typename T>
const T* as(const OdDbEntity& entity, EntityKind kind, EntityKind wanted)
{
    return kind == wanted ? static_cast<const T*>(&entity) : nullptr;
}

bool isWhole(const OdDbEllipse& ellipse)
{
    return std::abs(std::remainder(ellipse.endParam - ellipse.startParam, 2 * std::numbers::pi)) < 1e-9;
}

/// Only what is drawn as a line is open or closed.
std::optional<int> closedness(const OdDbEntity& entity, EntityKind kind)
{
    switch (kind) {
    case EntityKind::Line:
    case EntityKind::Arc:
        return false;
    case EntityKind::Circle:
        return true;
    case EntityKind::Polyline:
        return static_cast<const OdDbPolyline&>(entity).closed;
    case EntityKind::Ellipse:
        return isWhole(static_cast<const OdDbEllipse&>(entity));
    default:
        return {};
    }
}

std::optional<double> vertexCount(const OdDbEntity& entity, EntityKind kind)
{
    if (const auto* polyline = as<OdDbPolyline>(entity, kind, EntityKind::Polyline))
        return static_cast<double>(polyline->vertices.size());
    if (const auto* leader = as<OdDbLeader>(entity, kind, EntityKind::Leader))
        return static_cast<double>(leader->vertices.size());
    return {};
}
} // namespace

void EntityRecords::read(const OdDbDatabase* database)
{
    *this = EntityRecords();
    if (!database)
        return;
    const OdArray<OdDbObjectId>& entities = database->modelSpace()->entities();
    m_ids.reserve(entities.size());
    for (const OdDbObjectId& id : entities)
        if (const auto* entity = static_cast<const OdDbEntity*>(id.openObject()))
            append(*entity);
}

void EntityRecords::append(const OdDbEntity& entity)
{
    const EntityKind kind = kindOf(entity);
    const LayerCodes& layer = layerCodes(entity.layerId());
    const EntityGeometry geometry = entityGeometry(entity);
    const auto* text = as<OdDbText>(entity, kind, EntityKind::Text);
    const auto* insert = as<OdDbBlockReference>(entity, kind, EntityKind::Block);

    m_ids.push_back(entity.objectId());
    addChoice(P::Type, kind == EntityKind::Other ? std::nullopt : std::optional(static_cast<int>(kind)));
    addCode(P::Layer, layer.name);
    addCode(P::LayerDescription, layer.description);
    addCode(P::Visible, layer.visible);
    addChoice(P::Color, static_cast<int>(entity.color().color()));
    addCode(P::Linetype, nameCode(P::Linetype, entity.linetypeId()));
    addChoice(P::LineWeight, entity.lineWeight());
    addNumber(P::Transparency, std::max(0, entity.transparency()));
    addNumber(P::Length, geometry.length);
    addNumber(P::Radius, geometry.radius);
    addNumber(P::Area, geometry.area);
    addNumber(P::Vertices, vertexCount(entity, kind));
    addChoice(P::Closed, closedness(entity, kind));
    addCode(P::TextContent, text ? textCode(P::TextContent, velm::toQt(text->textString)) : 0);
    addNumber(P::TextHeight, text ? std::optional(text->height) : std::nullopt);
    addChoice(P::TextAlignment, text ? std::optional(static_cast<int>(text->horizontalMode)) : std::nullopt);
    addCode(P::BlockName, insert ? nameCode(P::BlockName, insert->blockTableRecord) : 0);
}

int EntityRecords::textCode(Property property, const QString& text)
{
    Column& column = m_columns[property];
    const int number = column.texts.number(text);
    if (column.folded.size() < column.texts.values().size())
        column.folded.push_back(text.toCaseFolded());
    return number + 1;
}

int EntityRecords::choiceCode(Property property, int choice)
{
    return m_columns[property].choices.number(choice) + 1;
}

int EntityRecords::nameCode(Property property, OdDbObjectId record)
{
    const auto [found, isNew] = m_names.try_emplace(record);
    if (isNew) {
        const auto* opened = record.open<OdDbSymbolTableRecord>();
        // An entity that names no linetype takes the layer's.
        const bool isByLayer = property == P::Linetype && record.isNull();
        if (opened || isByLayer)
            found->second = textCode(property, opened ? velm::toQt(opened->getName()) : QStringLiteral("ByLayer"));
    }
    return found->second;
}

const EntityRecords::LayerCodes& EntityRecords::layerCodes(OdDbObjectId layer)
{
    const auto [found, isNew] = m_layers.try_emplace(layer);
    if (const auto* opened = isNew ? layer.open<OdDbLayerTableRecord>() : nullptr)
        found->second = {textCode(P::Layer, velm::toQt(opened->getName())),
                         textCode(P::LayerDescription, velm::toQt(opened->description())),
                         choiceCode(P::Visible, !opened->isOff() && !opened->isFrozen())};
    return found->second;
}

void EntityRecords::addChoice(Property property, std::optional<int> choice)
{
    addCode(property, choice ? choiceCode(property, *choice) : 0);
}

void EntityRecords::addNumber(Property property, std::optional<double> number)
{
    m_columns[property].numbers.push_back(number.value_or(std::numeric_limits<double>::quiet_NaN()));
}
} // namespace workbench
