#include "velm/models/prunedtreemodel.h"

namespace velm {
PrunedTreeModel::PrunedTreeModel() = default;

PrunedTreeModel::~PrunedTreeModel() = default;

QModelIndex PrunedTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    return sourceModel() ? mapFromSource(sourceModel()->index(row, column, getSourceIndex(parent))) : QModelIndex();
}

QModelIndex PrunedTreeModel::parent(const QModelIndex& child) const
{
    // An invalid child would stand for the root, whose parent is no row here.
    return sourceModel() && child.isValid() ? getDestIndex(sourceModel()->parent(getSourceIndex(child)))
                                            : QModelIndex();
}

int PrunedTreeModel::rowCount(const QModelIndex& parent) const
{
    return sourceModel() ? sourceModel()->rowCount(getSourceIndex(parent)) : 0;
}

void PrunedTreeModel::setSourceModel(QAbstractItemModel* source)
{
    const auto disconnectRows = [this](QAbstractItemModel* model) {
        disconnect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, nullptr);
        disconnect(model, &QAbstractItemModel::rowsInserted, this, nullptr);
        disconnect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, nullptr);
        disconnect(model, &QAbstractItemModel::rowsRemoved, this, nullptr);
    };
    if (sourceModel()) {
        disconnectRows(sourceModel());
        disconnect(sourceModel(), &QAbstractItemModel::modelReset, this, &PrunedTreeModel::countChanged);
    }
    QIdentityProxyModel::setSourceModel(source);
    if (!source)
        return;
    // The base would hand on the rows of the whole source.
    disconnectRows(source);
    connect(source, &QAbstractItemModel::rowsAboutToBeInserted, this, &PrunedTreeModel::onSourceRowsAboutToBeInserted);
    connect(source, &QAbstractItemModel::rowsInserted, this, &PrunedTreeModel::onSourceRowsInserted);
    connect(source, &QAbstractItemModel::rowsAboutToBeRemoved, this, &PrunedTreeModel::onSourceRowsAboutToBeRemoved);
    connect(source, &QAbstractItemModel::rowsRemoved, this, &PrunedTreeModel::onSourceRowsRemoved);
    connect(source, &QAbstractItemModel::modelReset, this, &PrunedTreeModel::countChanged);
    Q_EMIT countChanged();
}

QModelIndex PrunedTreeModel::rootIndex() const
{
    return sourceModel() ? sourceModel()->index(m_rootIndex.row(), m_rootIndex.column(), m_rootIndex.parent())
                         : QModelIndex();
}

void PrunedTreeModel::setRootIndex(const QModelIndex& index)
{
    if (m_rootIndex == index)
        return;
    beginResetModel();
    m_rootIndex = index;
    endResetModel();
    Q_EMIT rootIndexChanged();
    Q_EMIT countChanged();
}

int PrunedTreeModel::count() const
{
    return sourceModel() ? sourceModel()->rowCount(m_rootIndex.parent()) : 0;
}

QModelIndex PrunedTreeModel::getSourceIndex(const QModelIndex& proxyIndex) const
{
    return m_rootIndex.isValid() && !proxyIndex.isValid() ? rootIndex() : mapToSource(proxyIndex);
}

QModelIndex PrunedTreeModel::getDestIndex(const QModelIndex& sourceIndex) const
{
    return sourceIndex == rootIndex() ? QModelIndex() : mapFromSource(sourceIndex);
}

bool PrunedTreeModel::indexIsPruned(const QModelIndex& sourceIndex) const
{
    const QModelIndex root = rootIndex();
    QModelIndex index = sourceIndex;
    while (index.isValid() && index != root)
        index = index.parent();
    return !index.isValid();
}

void PrunedTreeModel::onSourceRowsAboutToBeInserted(const QModelIndex& parent, int start, int end)
{
    if (!indexIsPruned(parent))
        beginInsertRows(getDestIndex(parent), start, end);
}

void PrunedTreeModel::onSourceRowsInserted(const QModelIndex& parent, int, int)
{
    if (!indexIsPruned(parent))
        endInsertRows();
    Q_EMIT countChanged();
}

void PrunedTreeModel::onSourceRowsAboutToBeRemoved(const QModelIndex& parent, int start, int end)
{
    if (!indexIsPruned(parent))
        beginRemoveRows(getDestIndex(parent), start, end);
}

void PrunedTreeModel::onSourceRowsRemoved(const QModelIndex& parent, int, int)
{
    if (!indexIsPruned(parent))
        endRemoveRows();
    Q_EMIT countChanged();
}
} // namespace velm
