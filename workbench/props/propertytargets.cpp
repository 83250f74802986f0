#include "props/propertytargets.h"

#include "drawing/arrowheads.h"
#include "od/oddbdimension.h"
#include "velm/bridge/conversions.h"

namespace workbench {
namespace {
/// What all of them have in common.
template <typename Objects, typename Get>
auto shared(const Objects& objects, Get get) -> std::optional<decltype(get(*objects.front()))>
{
    if (objects.empty())
        return {};
    const auto first = get(*objects.front());
    for (const auto* object : objects)
        if (!(get(*object) == first))
            return {};
    return first;
}

/// Sets what isn't so yet.
template <typename Objects, typename Value, typename Get, typename Set>
bool setAll(const Objects& objects, const Value& value, Get get, Set set)
{
    bool changed = false;
    for (auto* object : objects)
        if (!(get(*object) == value)) {
            set(*object, value);
            changed = true;
        }
    return changed;
}

OdDbObjectId byLayerLinetype(const OdDbDatabase& database)
{
    const OdDbLinetypeTableRecord* byLayer = database.findLinetype(L"ByLayer");
    return byLayer ? byLayer->objectId() : OdDbObjectId();
}

/// An entity that names no linetype has its layer's, and so has one whose linetype was erased.
OdDbObjectId linetypeOf(const OdDbEntity& entity)
{
    return entity.linetypeId().openObject() ? entity.linetypeId() : byLayerLinetype(*entity.database());
}

/// A drawing leaves the usual one's name empty and writes the others with capitals or without.
QString nameInCombos(const OdString& arrowhead)
{
    const Arrowhead* known = findArrowhead(arrowhead);
    return velm::toQt(known ? known->internalName : arrowhead);
}

OdString styleArrowhead(OdDbObjectId dimensionStyle)
{
    const auto* style = dimensionStyle.open<OdDbDimStyleTableRecord>();
    return style ? style->dimldrblk() : OdString();
}

QString arrowheadOf(const OdDbLeader& leader)
{
    return nameInCombos(leader.arrowhead ? *leader.arrowhead : styleArrowhead(leader.dimensionStyle));
}
} // namespace

PropertyTargets::PropertyTargets(OdDbDatabase* database, const std::vector<OdDbObjectId>& selected)
    : m_database(database)
{
    for (const OdDbObjectId& id : selected) {
        auto* entity = database && id.database() == database ? id.open<OdDbEntity>() : nullptr;
        if (!entity)
            continue;
        m_entities.push_back(entity);
        if (auto* leader = dynamic_cast<OdDbLeader*>(entity))
            m_leaders.push_back(leader);
    }
}

std::optional<OdCmColor> PropertyTargets::color() const
{
    if (m_database && m_entities.empty())
        return m_database->getCECOLOR();
    return shared(m_entities, [](const OdDbEntity& entity) { return entity.color(); });
}

std::optional<OdDbObjectId> PropertyTargets::linetype() const
{
    if (m_database && m_entities.empty())
        return m_database->getCELTYPE().openObject() ? m_database->getCELTYPE() : byLayerLinetype(*m_database);
    return shared(m_entities, linetypeOf);
}

std::optional<int> PropertyTargets::lineWeight() const
{
    if (m_database && m_entities.empty())
        return m_database->getCELWEIGHT();
    return shared(m_entities, [](const OdDbEntity& entity) { return entity.lineWeight(); });
}

std::optional<QString> PropertyTargets::arrowhead() const
{
    if (m_database && m_entities.empty())
        return nameInCombos(styleArrowhead(m_database->getDIMSTYLE()));
    return shared(m_leaders, arrowheadOf);
}

OdDbObjectId PropertyTargets::layer() const
{
    if (!m_database)
        return {};
    return m_entities.empty() ? m_database->currentLayer() : m_entities.front()->layerId();
}

bool PropertyTargets::setColor(const OdCmColor& color)
{
    if (m_database && m_entities.empty()) {
        const bool changes = m_database->getCECOLOR() != color;
        m_database->setCECOLOR(color);
        return changes;
    }
    return setAll(
        m_entities, color, [](const OdDbEntity& entity) { return entity.color(); },
        [](OdDbEntity& entity, const OdCmColor& value) { entity.setColor(value); });
}

bool PropertyTargets::setLinetype(const OdDbObjectId& linetype)
{
    if (!m_database || linetype.database() != m_database)
        return false;
    if (m_entities.empty()) {
        const bool changes = m_database->getCELTYPE() != linetype;
        m_database->setCELTYPE(linetype);
        return changes;
    }
    const OdDbObjectId stored = linetype == byLayerLinetype(*m_database) ? OdDbObjectId() : linetype;
    return setAll(m_entities, linetype, linetypeOf,
                  [&stored](OdDbEntity& entity, const OdDbObjectId&) { entity.setLinetype(stored); });
}

bool PropertyTargets::setLineWeight(int lineWeight)
{
    if (m_database && m_entities.empty()) {
        const bool changes = m_database->getCELWEIGHT() != lineWeight;
        m_database->setCELWEIGHT(lineWeight);
        return changes;
    }
    return setAll(
        m_entities, lineWeight, [](const OdDbEntity& entity) { return entity.lineWeight(); },
        [](OdDbEntity& entity, int value) { entity.setLineWeight(value); });
}

bool PropertyTargets::setArrowhead(const QString& internalName)
{
    const OdString name = internalName == nameInCombos({}) ? OdString() : velm::odFromQt(internalName);
    if (m_database && m_entities.empty()) {
        auto* style = m_database->getDIMSTYLE().open<OdDbDimStyleTableRecord>();
        const bool changes = style && nameInCombos(style->dimldrblk()) != internalName;
        if (changes)
            style->setDimldrblk(name);
        return changes;
    }
    return setAll(m_leaders, internalName, arrowheadOf,
                  [&name](OdDbLeader& leader, const QString&) { leader.arrowhead = name; });
}
} // namespace workbench
