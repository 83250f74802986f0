#pragma once

#include "velm/velm_export.h"

#include <QIdentityProxyModel>
#include <QPersistentModelIndex>

namespace velm {
/// Shows one branch of a source tree as if that branch were the whole model: the children of rootIndex() are the
/// top-level rows. Moving the root navigates without copying data.
/// Supported: row inserts and removals below the root. Not supported: moves, layout and column changes of the source.
/// Changed data is handed on for rows beside the branch, too, and hasChildren() of the invalid index is that of the
/// source. The rows are not signalled anew when the root's own row goes: the model then stands for the source's top
/// level.
class VELM_EXPORT PrunedTreeModel : public QIdentityProxyModel
{
    Q_OBJECT
    Q_PROPERTY(QModelIndex rootIndex READ rootIndex WRITE setRootIndex NOTIFY rootIndexChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    PrunedTreeModel();
    ~PrunedTreeModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    using QObject::parent;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    void setSourceModel(QAbstractItemModel* source) override;

    /// An index of the source; the invalid one stands for its top level. While it is invalid, rows that come or go in
    /// the source are not signalled.
    QModelIndex rootIndex() const;
    void setRootIndex(const QModelIndex& index);
    /// The number of rows beside the root, the root included, and not that below it. This must stay.
    int count() const;

Q_SIGNALS:
    void rootIndexChanged();
    void countChanged();

private Q_SLOTS:
    void onSourceRowsAboutToBeInserted(const QModelIndex& parent, int start, int end);
    void onSourceRowsInserted(const QModelIndex& parent, int start, int end);
    void onSourceRowsAboutToBeRemoved(const QModelIndex& parent, int start, int end);
    void onSourceRowsRemoved(const QModelIndex& parent, int start, int end);

private:
    QModelIndex getSourceIndex(const QModelIndex& proxyIndex) const;
    QModelIndex getDestIndex(const QModelIndex& sourceIndex) const;
    /// Whether a source index is neither the root nor below it; always true while the root is invalid.
    bool indexIsPruned(const QModelIndex& sourceIndex) const;

    QPersistentModelIndex m_rootIndex;
};
} // namespace velm
