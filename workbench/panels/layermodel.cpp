#include "panels/layermodel.h"

#include "od/oddbdatabase.h"
#include "velm/bridge/conversions.h"

namespace workbench {
LayerModel::LayerModel(QObject* parent) : QAbstractListModel(parent)
{}

void LayerModel::setDatabase(OdDbDatabase* database)
{
    beginResetModel();
    m_database = database;
    m_layers.clear();
    if (database)
        for (const OdDbLayerTableRecord* layer : database->layers())
            m_layers.push_back(layer->objectId());
    endResetModel();
}

OdDbLayerTableRecord* LayerModel::layer(int row) const
{
    if (row < 0 || row >= rowCount())
        return nullptr;
    return m_layers[static_cast<std::size_t>(row)].open<OdDbLayerTableRecord>();
}

void LayerModel::setDarkBackground(bool dark)
{
    m_darkBackground = dark;
    if (!m_layers.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {ColorRole});
}

void LayerModel::layersChanged()
{
    if (!m_layers.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int LayerModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_layers.size());
}

QVariant LayerModel::data(const QModelIndex& index, int role) const
{
    const OdDbLayerTableRecord* record = layer(index.row());
    if (!record)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return velm::toQt(record->getName());
    case ColorRole:
        return velm::toQtColor(record->color(), odcmIndexPalette(m_darkBackground));
    case OnRole:
        return !record->isOff();
    case FrozenRole:
        return record->isFrozen();
    case LockedRole:
        return record->isLocked();
    case RenamableRole:
        // Every drawing has the layer "0".
        return record->getName() != OdString(L"0");
    default:
        return {};
    }
}

QHash<int, QByteArray> LayerModel::roleNames() const
{
    return {{NameRole, "name"},     {ColorRole, "layerColor"}, {OnRole, "on"},
            {FrozenRole, "frozen"}, {LockedRole, "locked"},    {RenamableRole, "renamable"}};
}
} // namespace workbench
