#pragma once

#include "velm/models/treemodel/treemodel.h"

namespace velm {
/// Throws OdError with "NULL pointer encountered" for a null pointer.
VELM_EXPORT void checkNotNull(const void* pointer);

/// Fills a tree model in one chain of calls. It empties the model first and writes under its cursor, which begins at
/// the root. A null model throws an OdError.
template <typename T>
class TreeBuilder
{
public:
    /// The model is not owned.
    explicit TreeBuilder(TreeModel<T>* model) : m_model(model)
    {
        checkNotNull(model);
        m_model->reset();
    }

    // The cursor stays where it is.
    TreeBuilder& addItem(T&& item)
    {
        m_model->appendItem(m_cursor, std::move(item));
        return *this;
    }
    TreeBuilder& addItem(const T& item)
    {
        m_model->appendItem(m_cursor, item);
        return *this;
    }
    TreeBuilder& addItems(const std::vector<T>& items)
    {
        for (const T& item : items)
            addItem(item);
        return *this;
    }

    /// Down to the last child of the cursor; to the root when it has none.
    TreeBuilder& children()
    {
        if (const std::optional<QModelIndex> last = m_model->child(m_cursor, m_model->rowCount(m_cursor) - 1))
            m_cursor = *last;
        return *this;
    }
    /// Up to the cursor's parent.
    TreeBuilder& parent()
    {
        m_cursor = m_cursor.parent();
        return *this;
    }

private:
    TreeModel<T>* m_model; // not owned
    QModelIndex m_cursor;
};
} // namespace velm
