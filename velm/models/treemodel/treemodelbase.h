#pragma once

#include "velm/models/treemodel/treeitem.h"
#include "velm/models/treemodel/treeiterator.h"

#include <QAbstractItemModel>
#include <QScopeGuard>

#include <functional>
#include <memory>
#include <optional>
#include <unordered_set>

namespace velm {
/// What the callback of a walk that reads answers.
enum class TreeWalk
{
    Continue = 0,
    Stop = 1,
    SkipChildren = 2,
};

/// What the callback of a walk that edits answers.
enum class TreeWalkEdit
{
    Continue = 0,
    Stop = 1,
    SkipChildren = 2, ///< the sibling that comes next is visited without its children
    Delete = 3,       ///< removes the row with all that is below it
};

/// Runs its function once at the end of its life. It can be moved.
template <typename Function>
using ScopeGuard = QScopeGuard<Function>;

/// The role under which a view reads and writes whether a row is expanded. It is the number of Qt::BackgroundRole, used
/// anew on purpose, and has no name in QML.
VELM_EXPORT int getWantsToBeExpandedRole();

/// Everything of a TreeModel that doesn't depend on the type of its values. The root has no index of its own: wherever
/// an index is taken, the invalid one stands for the root. The internal pointer of an index is its node.
/// For the GUI thread only.
class VELM_EXPORT TreeModelBase : public QAbstractItemModel
{
public:
    using Iterator = TreeIterator;
    using ReverseIterator = ReverseTreeIterator;
    using ReadCallback = std::function<TreeWalk(const QModelIndex&)>;
    using EditCallback = std::function<TreeWalkEdit(const QModelIndex&)>;

    ~TreeModelBase() override;

    /// Invalid for a row that doesn't exist and below a parent of another column than 0; the column isn't tested.
    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    using QObject::parent;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// The expansion flag takes nothing but a bool, and a change of it isn't signalled: the view that sets it knows.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    /// The names of QAbstractItemModel, "disabled" (356), and the custom ones, which win.
    QHash<int, QByteArray> roleNames() const override;

    /// Takes every role but the expansion flag. False: nothing was set.
    virtual bool setDataImpl(const QModelIndex& index, const QVariant& value, int role);
    /// Answers every role but the expansion flag.
    virtual QVariant dataImpl(const QModelIndex& index, int role) const = 0;
    virtual QHash<int, QByteArray> customRoleNames() const;
    /// Removes the child; false when it is invalid or, with a warning, not below the parent.
    virtual bool deleteItem(const QModelIndex& parent, const QModelIndex& child);
    /// Removes a row; false when there is no such row.
    virtual bool deleteItem(const QModelIndex& parent, int row);
    /// What a row is known by across rebuilds: 32 bits out of its display text alone. Rows of equal text share it.
    virtual unsigned long long rowContentId(const QModelIndex& index) const;

    QModelIndex rootIndex() const { return {}; }
    /// Holds an invalid index for a row that doesn't exist; empty only for a parent without a node, with a warning.
    std::optional<QModelIndex> child(const QModelIndex& parent, int row) const;
    QList<QModelIndex> children(const QModelIndex& parent) const;
    bool wantsToBeExpanded(const QModelIndex& index) const;
    bool defaultExpandedState(const QModelIndex& index) const;

    Iterator begin() const { return begin({}); }
    Iterator begin(const QModelIndex& index) const { return {this, index}; }
    Iterator end() const { return {}; }
    ReverseIterator rbegin() const { return rbegin({}); }
    ReverseIterator rbegin(const QModelIndex& index) const { return {this, index}; }
    ReverseIterator rend() const { return {}; }

    /// The first index in walk order that fulfils the predicate; empty when none does. An empty predicate throws
    /// std::bad_function_call as soon as there is a row to ask about.
    std::optional<QModelIndex> findInTree(const std::function<bool(const QModelIndex&)>& predicate) const;
    /// Forwards, parents first. An empty callback throws std::bad_function_call at its first call.
    void traverseTree(const ReadCallback& callback, const QModelIndex& start = {}) const;
    /// Backwards, children first, so that removals never shift the rows still to come.
    void traverseTree(const EditCallback& callback, const QModelIndex& start = {});

    /// False when there are none.
    bool deleteChildren(const QModelIndex& parent);
    /// Removes all rows. The root's own value and flags stay.
    void reset();
    /// Signals with the role of the flag.
    void setWantsToBeExpanded(const QModelIndex& index, bool value);
    /// Never signals; the model doesn't read it by itself.
    void setDefaultExpandedState(const QModelIndex& index, bool value);

    /// From here to endBatchChanges() one reset stands for all signals. Batches don't nest: the first end is the end.
    void beginBatchChanges();
    void endBatchChanges();
    /// A batch that lasts as long as the guard.
    ScopeGuard<std::function<void()>> scopedBatchChanges();

    /// The expanded rows, in the order of the backward walk.
    void saveExpandedState(QList<QModelIndex>& expanded);
    /// The content ids of the expanded rows.
    void saveExpandedState(std::unordered_set<unsigned long long>& expanded);
    /// Expands the rows whose ids are in the set and leaves the others as they are, within a reset.
    void restoreExpandedState(const std::unordered_set<unsigned long long>& expanded);

protected:
    /// The root is not owned and not touched at the end of the model's life.
    TreeModelBase(QObject* parent, TreeItemBase& root);

    // Inline, since views and walks ask for little else.
    /// Null for an invalid index.
    static TreeItemBase* getTreeItem(const QModelIndex& index)
    {
        return index.isValid() ? static_cast<TreeItemBase*>(index.internalPointer()) : nullptr;
    }
    TreeItemBase* getTreeItemOrRoot(const QModelIndex& index) const
    {
        return index.isValid() ? static_cast<TreeItemBase*>(index.internalPointer()) : &m_root;
    }
    // Both invalid for a null item and for the root.
    QModelIndex createItemIndex(int row, int column, const TreeItemBase* item) const
    {
        return item && item != &m_root ? createIndex(row, column, item) : QModelIndex();
    }
    QModelIndex createItemIndex(const TreeItemBase* item) const
    {
        const TreeItemBase* parent = item ? item->parent() : nullptr;
        return parent ? createIndex(parent->rowOfChild(item), 0, item) : QModelIndex();
    }

    /// The row isn't tested before it is announced.
    QModelIndex insertNode(const QModelIndex& parent, int row, std::unique_ptr<TreeItemBase> item);
    QModelIndex appendNode(const QModelIndex& parent, std::unique_ptr<TreeItemBase> item);
    /// Takes the row out unannounced and then deletes what stands in its place; see TreeModel::moveItem().
    /// `to` becomes null when it went in the course of this.
    std::unique_ptr<TreeItemBase> takeForMove(const QModelIndex& from, const TreeItemBase*& to);
    void signalChange(const QModelIndex& index, const QList<int>& roles = {});

private:
    bool removeAt(const QModelIndex& parent, int row);

    TreeItemBase& m_root; // not owned
    bool m_inBatch = false;
};
} // namespace velm
