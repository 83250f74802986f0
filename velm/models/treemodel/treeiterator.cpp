#include "velm/models/treemodel/treeiterator.h"

#include <QAbstractItemModel>

namespace velm {
TreeIterator::TreeIterator(const QAbstractItemModel* model, const QModelIndex& start) : m_model(model)
{
    if (!m_model)
        return;
    if (start != QModelIndex())
        m_stack.push_back(start);
    else
        pushChildren(start);
}

void TreeIterator::pushChildren(const QModelIndex& parent)
{
    for (int row = m_model->rowCount(parent) - 1; row >= 0; --row)
        m_stack.push_back(m_model->index(row, 0, parent));
}

TreeIterator& TreeIterator::operator++()
{
    if (m_stack.empty())
        return *this;
    const QModelIndex passed = m_stack.back();
    m_stack.pop_back();
    if (passed.isValid())
        pushChildren(passed);
    return *this;
}

TreeIterator& TreeIterator::skipChildren()
{
    if (!m_stack.empty())
        m_stack.pop_back();
    return *this;
}

ReverseTreeIterator::ReverseTreeIterator(const QAbstractItemModel* model, const QModelIndex& start) : m_model(model)
{
    if (!m_model)
        return;
    if (start != QModelIndex())
        m_stack.push_back(start);
    else
        pushChildren(start);
    descend();
}

void ReverseTreeIterator::pushChildren(const QModelIndex& parent)
{
    const int count = m_model->rowCount(parent);
    for (int row = 0; row < count; ++row)
        m_stack.push_back(m_model->index(row, 0, parent));
}

void ReverseTreeIterator::descend()
{
    while (!m_stack.empty()) {
        const std::size_t before = m_stack.size();
        pushChildren(QModelIndex(m_stack.back()));
        if (m_stack.size() == before)
            return;
    }
}

ReverseTreeIterator& ReverseTreeIterator::operator++()
{
    if (m_stack.empty())
        return *this;
    const QModelIndex parent = m_stack.back().parent();
    m_stack.pop_back();
    // A parent on top has had its children; anything else is a sibling that is still closed.
    if (!m_stack.empty() && m_stack.back() != parent)
        descend();
    return *this;
}

ReverseTreeIterator& ReverseTreeIterator::skipChildren()
{
    if (!m_stack.empty())
        m_stack.pop_back();
    return *this;
}
} // namespace velm
