#include "velm/models/treemodel/treeitem.h"

#include <QMessageLogger>

#include <utility>

namespace velm {
TreeItemBase::~TreeItemBase()
{
    clearChildren();
}

void TreeItemBase::numberChildren() const
{
    for (int row = 0; row < childCount(); ++row)
        child(row)->m_row = row;
}

int TreeItemBase::findChild(const TreeItemBase* child) const
{
    for (int row = 0; row < childCount(); ++row)
        if (this->child(row) == child)
            return row;
    return -1;
}

TreeItemBase* TreeItemBase::insertChild(int row, std::unique_ptr<TreeItemBase> item)
{
    if (row < 0 || row > childCount()) {
        QMessageLogger(nullptr, 0, nullptr).debug().noquote() << "Trying to insert item out of bounds";
        return nullptr;
    }
    item->m_parent = this;
    item->m_row = row;
    if (!m_children)
        m_children = std::make_unique<QList<TreeItemBase*>>();
    m_children->insert(row, item.get());
    return item.release();
}

std::unique_ptr<TreeItemBase> TreeItemBase::takeChild(int row)
{
    if (!child(row))
        return nullptr;
    std::unique_ptr<TreeItemBase> taken(m_children->takeAt(row));
    taken->m_parent = nullptr;
    return taken;
}

void TreeItemBase::clearChildren()
{
    // Whatever dies here must not find itself in the tree any more.
    if (const auto former = std::exchange(m_children, nullptr))
        qDeleteAll(*former);
}
} // namespace velm
