#pragma once

#include "velm/velm_export.h"

#include <QModelIndex>

#include <vector>

namespace velm {
/// Walks a model depth first, parents before their children. A walk from an index begins at that index alone; a walk
/// from the invalid index goes through the whole model. Not safe against a change of the rows still to come.
class VELM_EXPORT TreeIterator
{
public:
    /// Past the end.
    TreeIterator() = default;
    /// The model is not owned; null gives the end.
    TreeIterator(const QAbstractItemModel* model, const QModelIndex& start);

    /// Invalid past the end.
    QModelIndex operator*() const { return m_stack.empty() ? QModelIndex() : m_stack.back(); }
    /// On to the next index, children included.
    TreeIterator& operator++();
    /// On to the next index that isn't a child of the current one.
    TreeIterator& skipChildren();

    /// Iterators are told apart by their current index alone.
    friend bool operator==(const TreeIterator& left, const TreeIterator& right) { return *left == *right; }

private:
    void pushChildren(const QModelIndex& parent);

    const QAbstractItemModel* m_model = nullptr; // not owned
    std::vector<QModelIndex> m_stack;
};

/// Walks a model in exactly the reverse order: last rows first, children before their parents. A row that was passed
/// may be removed, since the rows still to come lie before it.
class VELM_EXPORT ReverseTreeIterator
{
public:
    /// Past the end.
    ReverseTreeIterator() = default;
    /// The model is not owned; null gives the end. From a valid index its children come first, then it ends the walk.
    ReverseTreeIterator(const QAbstractItemModel* model, const QModelIndex& start);

    /// Invalid past the end.
    QModelIndex operator*() const { return m_stack.empty() ? QModelIndex() : m_stack.back(); }
    /// On to the next index.
    ReverseTreeIterator& operator++();
    /// On without opening the next sibling, which comes without its children then.
    ReverseTreeIterator& skipChildren();

    /// Iterators are told apart by their current index alone.
    friend bool operator==(const ReverseTreeIterator& left, const ReverseTreeIterator& right)
    {
        return *left == *right;
    }

private:
    void pushChildren(const QModelIndex& parent);
    void descend();

    const QAbstractItemModel* m_model = nullptr; // not owned
    std::vector<QModelIndex> m_stack;
};
} // namespace velm
