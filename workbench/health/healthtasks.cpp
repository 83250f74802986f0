#include "health/healthtasks.h"

#include "od/oddbdatabase.h"

#include <set>

namespace workbench {
namespace {
/// Of the model, the sheets and all blocks.
template <typename T, typename Visit>
void forEachEntity(const OdDbDatabase& database, Visit visit)
{
    for (const OdDbBlockTableRecord* block : database.blocks())
        for (const OdDbObjectId& id : block->entities())
            if (const auto* entity = id.open<T>())
                visit(*entity);
}

std::vector<OdDbObjectId> emptyLayers(const OdDbDatabase& database)
{
    std::set<OdDbObjectId> used{database.currentLayer()};
    OdDbObjectId last;
    forEachEntity<OdDbEntity>(database, [&](const OdDbEntity& entity) {
        // Neighbours are mostly on the same layer.
        if (entity.layerId() != last)
            used.insert(last = entity.layerId());
    });
    std::vector<OdDbObjectId> result;
    for (const OdDbLayerTableRecord* layer : database.layers())
        if (layer->getName() != OdString(L"0") && !used.contains(layer->objectId()))
            result.push_back(layer->objectId());
    return result;
}

std::vector<OdDbObjectId> zeroLengthLines(const OdDbDatabase& database)
{
    constexpr double tolerance = 1e-10; // in drawing units
    std::vector<OdDbObjectId> result;
    forEachEntity<OdDbLine>(database, [&](const OdDbLine& line) {
        if ((line.endPoint - line.startPoint).length() <= tolerance)
            result.push_back(line.objectId());
    });
    return result;
}
} // namespace

std::vector<OdDbObjectId> healthFindings(oc::dwghealth::ETaskType type, const OdDbDatabase& database)
{
    switch (type) {
    case oc::dwghealth::ETaskType::EmptyLayers:
        return emptyLayers(database);
    case oc::dwghealth::ETaskType::ZeroLengthLines:
        return zeroLengthLines(database);
    }
    return {};
}

bool isFixable(OdDbObjectId finding)
{
    const auto* entity = finding.open<OdDbEntity>();
    const auto* layer = entity ? entity->layerId().open<OdDbLayerTableRecord>() : nullptr;
    return !layer || !layer->isLocked();
}
} // namespace workbench
