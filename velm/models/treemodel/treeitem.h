#pragma once

#include "velm/velm_export.h"

#include <memory>
#include <vector>

namespace velm {
/// A node of a tree without its value. A node owns its children.
///
/// Children know their row by number. The numbers behind an insert or a removal are brought up to date when the next
/// one of them is asked for, all at once, so that many edits in a row cost no renumbering each.
class VELM_EXPORT TreeItemBase
{
public:
    TreeItemBase() = default;
    virtual ~TreeItemBase();
    TreeItemBase(const TreeItemBase&) = delete;
    TreeItemBase& operator=(const TreeItemBase&) = delete;

    TreeItemBase* parent() const { return m_parent; }
    int childCount() const { return static_cast<int>(m_children.size()); }
    /// Null for a row that doesn't exist.
    TreeItemBase* child(int row) const
    {
        return row >= 0 && row < childCount() ? m_children[static_cast<std::size_t>(row)].get() : nullptr;
    }
    /// The row of one of the children; 0 for another item.
    int rowOfChild(const TreeItemBase* child) const;
    /// The row found by looking through the children; -1 for another item.
    int findChild(const TreeItemBase* child) const;

    /// The item in its place, or null for a row outside 0 to childCount(); the item is destroyed then.
    TreeItemBase* insertChild(int row, std::unique_ptr<TreeItemBase> item);
    /// Null for a row that doesn't exist.
    std::unique_ptr<TreeItemBase> takeChild(int row);
    void clearChildren();

    bool wantsToBeExpanded = false;
    bool defaultExpandedState = false;

private:
    TreeItemBase* m_parent = nullptr; // not owned
    std::vector<std::unique_ptr<TreeItemBase>> m_children;
    int m_row = 0;
    mutable int m_numbered = 0; ///< so many leading children have their number
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
