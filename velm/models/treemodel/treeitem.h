#pragma once

#include "velm/velm_export.h"

#include <QList>

#include <memory>

namespace velm {
/// A node of a tree without its value. A node owns its children.
///
/// Children know their row by number. After an insert or a removal the numbers behind it are wrong, and a child shows
/// it by not being where its number says; then all are brought up to date at once, so that many edits in a row cost no
/// renumbering each.
class VELM_EXPORT TreeItemBase
{
public:
    TreeItemBase() = default;
    virtual ~TreeItemBase();
    TreeItemBase(const TreeItemBase&) = delete;
    TreeItemBase& operator=(const TreeItemBase&) = delete;

    TreeItemBase* parent() const { return m_parent; }
    int childCount() const { return m_children ? static_cast<int>(m_children->size()) : 0; }
    /// Null for a row that doesn't exist.
    TreeItemBase* child(int row) const { return row >= 0 && row < childCount() ? m_children->at(row) : nullptr; }
    /// The row of one of the children; 0 for another item.
    int rowOfChild(const TreeItemBase* child) const
    {
        if (child->m_parent != this)
            return 0;
        if (this->child(child->m_row) != child)
            numberChildren();
        return child->m_row;
    }
    /// The row found by looking through the children; -1 for another item.
    int findChild(const TreeItemBase* child) const;

    /// The item in its place, or null for a row outside 0 to childCount(); the item is destroyed then.
    TreeItemBase* insertChild(int row, std::unique_ptr<TreeItemBase> item);
    /// Null for a row that doesn't exist.
    std::unique_ptr<TreeItemBase> takeChild(int row);
    void clearChildren();

private:
    void numberChildren() const;

    TreeItemBase* m_parent = nullptr; // not owned
    // The children are owned; null until there are any, since most nodes of a tree have none. No vector, which would
    // move all rows for an insert in front of them.
    std::unique_ptr<QList<TreeItemBase*>> m_children;
    int m_row = 0;

public: // here, where they take no room
    bool wantsToBeExpanded = false;
    bool defaultExpandedState = false;
};

/// A node with its value.
template <typename T>
class TreeItemPrivate : public TreeItemBase
{
public:
    TreeItemPrivate() = default;
    explicit TreeItemPrivate(T&& value) : data(std::move(value)) {}
    explicit TreeItemPrivate(const T& value) : data(value) {}

    T data{};
};
} // namespace velm
