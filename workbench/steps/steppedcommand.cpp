#include "steps/steppedcommand.h"

namespace workbench {
SteppedCommand::SteppedCommand(OdDbDatabase& database) : m_database(database)
{}

SteppedCommand::~SteppedCommand() = default;

OdDbObjectId SteppedCommand::add(std::unique_ptr<OdDbEntity> entity)
{
    entity->setLayer(m_database.currentLayer());
    entity->setColor(m_database.getCECOLOR());
    entity->setLineWeight(m_database.getCELWEIGHT());
    const OdDbLinetypeTableRecord* byLayer = m_database.findLinetype(L"ByLayer");
    if (!byLayer || m_database.getCELTYPE() != byLayer->objectId())
        entity->setLinetype(m_database.getCELTYPE());
    const OdDbObjectId id = m_database.addEntity(std::move(entity), m_database.modelSpace())->objectId();
    tell();
    return id;
}

void SteppedCommand::erase(OdDbObjectId entity)
{
    // Another command may have erased it meanwhile.
    if (auto* found = entity.open<OdDbEntity>()) {
        found->erase();
        tell();
    }
}

void SteppedCommand::tell()
{
    if (onDrawingChanged)
        onDrawingChanged();
}
} // namespace workbench
