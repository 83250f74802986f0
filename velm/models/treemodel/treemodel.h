#pragma once

#include "velm/models/treemodel/treemodelbase.h"

namespace velm {
/// A tree of values that a page shows: the rows carry a T and two expansion flags. A concrete model supplies
/// columnCount() and dataImpl().
/// Supported: single inserts and removals, batches that end in one reset, walks in both directions, expanded rows that
/// are found again after a rebuild. Not supported: inserts of several rows with one signal, moves that keep subtrees.
template <typename T>
class TreeModel : public TreeModelBase
{
public:
    explicit TreeModel(QObject* parent = nullptr) : TreeModelBase(parent, m_root) {}

    /// Null for an invalid index.
    const T* getData(const QModelIndex& index) const
    {
        const TreeItemBase* item = getTreeItem(index);
        return item ? &static_cast<const TreeItemPrivate<T>*>(item)->data : nullptr;
    }

    /// The new row; invalid, with no signal, for a row above the count.
    QModelIndex insertItem(const QModelIndex& parent, int row, T&& value)
    {
        return row > rowCount(parent) ? QModelIndex()
                                      : insertNode(parent, row, std::make_unique<TreeItemPrivate<T>>(std::move(value)));
    }
    /// Here a row that doesn't fit is announced all the same. This must stay.
    QModelIndex insertItem(const QModelIndex& parent, int row, const T& value)
    {
        return insertNode(parent, row, std::make_unique<TreeItemPrivate<T>>(value));
    }
    QModelIndex appendItem(const QModelIndex& parent, T&& value)
    {
        return appendNode(parent, std::make_unique<TreeItemPrivate<T>>(std::move(value)));
    }
    QModelIndex appendItem(const QModelIndex& parent, const T& value)
    {
        return appendNode(parent, std::make_unique<TreeItemPrivate<T>>(value));
    }

    /// Moves the value, without children and flags, to the end of the rows of another parent. The row is taken out
    /// unannounced and then deleted as if it still stood there, so the sibling behind it goes, too; nothing is
    /// announced as removed when there is none. This must stay. Invalid, the value lost, when the new parent went with
    /// one of them.
    QModelIndex moveItem(const QModelIndex& from, const QModelIndex& toParent)
    {
        if (!getTreeItem(from))
            return from;
        const TreeItemBase* to = getTreeItemOrRoot(toParent);
        const std::unique_ptr<TreeItemBase> taken = takeForMove(from, to);
        return to ? appendItem(toParent, std::move(static_cast<TreeItemPrivate<T>*>(taken.get())->data))
                  : QModelIndex();
    }

    using TreeModelBase::setData;
    /// An invalid index sets the root's value.
    void setData(const QModelIndex& index, T&& value) { assign(index, std::move(value)); }
    void setData(const QModelIndex& index, const T& value) { assign(index, value); }

    /// Changes a value in place; the function tells whether it did. An empty function throws std::bad_function_call.
    void update(const QModelIndex& index, const std::function<bool(T&)>& function, const QList<int>& roles = {})
    {
        TreeItemBase* item = getTreeItem(index);
        if (item && function(static_cast<TreeItemPrivate<T>*>(item)->data))
            signalChange(index, roles);
    }

private:
    template <typename Value>
    void assign(const QModelIndex& index, Value&& value)
    {
        if (TreeItemBase* item = getTreeItemOrRoot(index)) {
            static_cast<TreeItemPrivate<T>*>(item)->data = std::forward<Value>(value);
            signalChange(index);
        }
    }

    TreeItemPrivate<T> m_root;
};
} // namespace velm
