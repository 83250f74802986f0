#include "health/findingmodel.h"

#include "od/oddbdatabase.h"
#include "panels/entitytext.h"
#include "velm/bridge/conversions.h"

namespace workbench {
namespace {
QString nameOf(OdDbObjectId record)
{
    const auto* opened = record.open<OdDbSymbolTableRecord>();
    return opened ? velm::toQt(opened->getName()) : QString();
}

QString placeOf(const OdDbLine& line)
{
    // Of a line's measures the second is where it begins.
    return FindingModel::tr("Line at %1").arg(entityMeasures(line)[1].value);
}

/// The layer, and the block or sheet unless it is the model.
QString surroundings(const OdDbEntity& entity)
{
    const auto* itsLayer = entity.layerId().open<OdDbLayerTableRecord>();
    const QString layer =
        (itsLayer && itsLayer->isLocked() ? FindingModel::tr("Layer %1 (locked)") : FindingModel::tr("Layer %1"))
            .arg(nameOf(entity.layerId()));
    const auto* block = entity.ownerId().open<OdDbBlockTableRecord>();
    if (!block || block == entity.database()->modelSpace())
        return layer;
    const QString layout = nameOf(block->getLayoutId());
    return layout.isEmpty() ? FindingModel::tr("%1, block %2").arg(layer, nameOf(block->objectId()))
                            : FindingModel::tr("%1, layout %2").arg(layer, layout);
}
} // namespace

void FindingModel::show(std::vector<OdDbObjectId> findings)
{
    if (findings != getItems())
        reset(std::move(findings));
    else if (size() > 0)
        Q_EMIT dataChanged(index(0), index(size() - 1));
}

QVariant FindingModel::data(const QModelIndex& index, int role) const
{
    const OdDbObjectId* id = getItem(index);
    if (!id || (role != Qt::DisplayRole && role != DetailRole))
        return {};
    if (const auto* line = id->open<OdDbLine>())
        return role == DetailRole ? surroundings(*line) : placeOf(*line);
    if (const auto* layer = id->open<OdDbLayerTableRecord>())
        return velm::toQt(role == DetailRole ? layer->description() : layer->getName());
    return {};
}

QHash<int, QByteArray> FindingModel::roleNames() const
{
    return {{Qt::DisplayRole, "display"}, {DetailRole, "detail"}};
}
} // namespace workbench
