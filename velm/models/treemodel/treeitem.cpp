#include "velm/models/treemodel/treeitem.h"

#include <QMessageLogger>

#include <algorithm>

namespace velm {
TreeItemBase::~TreeItemBase() = default;

int TreeItemBase::rowOfChild(const TreeItemBase* child) const
{
    if (child->m_parent != this)
        return 0;
    if (child->m_row >= m_numbered || m_children[static_cast<std::size_t>(child->m_row)].get() != child)
        for (; m_numbered < childCount(); ++m_numbered)
            m_children[static_cast<std::size_t>(m_numbered)]->m_row = m_numbered;
    return child->m_row;
}

int TreeItemBase::findChild(const TreeItemBase* child) const
{
    const auto found = std::find_if(m_children.begin(), m_children.end(),
                                    [child](const auto& candidate) { return candidate.get() == child; });
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
    if (m_numbered >= row)
        m_numbered = row + 1;
    return m_children.insert(m_children.begin() + row, std::move(item))->get();
}

std::unique_ptr<TreeItemBase> TreeItemBase::takeChild(int row)
{
    if (!child(row))
        return nullptr;
    const auto place = m_children.begin() + row;
    std::unique_ptr<TreeItemBase> taken = std::move(*place);
    m_children.erase(place);
    m_numbered = std::min(m_numbered, row);
    taken->m_parent = nullptr;
    return taken;
}

void TreeItemBase::clearChildren()
{
    // Whatever dies here must not find itself in the tree any more.
    const auto former = std::exchange(m_children, {});
    m_numbered = 0;
}
} // namespace velm
