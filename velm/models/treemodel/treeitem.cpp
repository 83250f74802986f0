#include "velm/models/treemodel/treeitem.h"

#include <QMessageLogger>

#include <algorithm>

namespace velm {
TreeItemBase::~TreeItemBase()
{
    qDeleteAll(m_children);
}

void TreeItemBase::numberChildren() const
{
    for (int row = 0; row < childCount(); ++row)
        m_children.at(row)->m_row = row;
}

int TreeItemBase::findChild(const TreeItemBase* child) const
{
    const auto found = std::find(m_children.begin(), m_children.end(), child);
    return found == m_children.end() ? -1 : static_cast<int>(found - m_children.begin());
}

TreeItemBase* TreeItemBase::insertChild(int row, std::unique_ptr<TreeItemBase> item)
{
    if (row < 0 || row > childCount()) {
        QMessageLogger(nullptr, 0, nullptr).debug().noquote() << "Trying to insert item out of bounds";
        return nullptr;
    }
    item->m_parent = this;
    item->m_row = row;
    m_children.insert(row, item.get());
    return item.release();
}

std::unique_ptr<TreeItemBase> TreeItemBase::takeChild(int row)
{
    if (!child(row))
        return nullptr;
    std::unique_ptr<TreeItemBase> taken(m_children.takeAt(row));
    taken->m_parent = nullptr;
    return taken;
}

void TreeItemBase::clearChildren()
{
    // Whatever dies here must not find itself in the tree any more.
    qDeleteAll(std::exchange(m_children, {}));
}
} // namespace velm
