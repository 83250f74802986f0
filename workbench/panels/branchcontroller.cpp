#include "panels/branchcontroller.h"

#include "drawing/selection.h"

#include <algorithm>

namespace workbench {
BranchController::BranchController(StructureModel& tree, Selection& selection) : m_tree(tree), m_selection(selection)
{
    // Before the rows' own connections: what changes outside the branch would be told as if it were in it.
    connect(&m_tree, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        m_isResetting = true;
        m_rows.setRootIndex({});
    });
    m_rows.setSourceModel(&m_tree);
    // After them: they show the new tree by now.
    connect(&m_tree, &QAbstractItemModel::modelReset, this, &BranchController::find);
    connect(&m_selection, &Selection::changed, this, &BranchController::showSelected);
}

QModelIndex BranchController::sourceIndex(int row) const
{
    return m_rows.mapToSource(m_rows.index(row, 0));
}

QStringList BranchController::crumbs() const
{
    QStringList texts;
    for (QModelIndex index = m_rows.rootIndex(); index.isValid(); index = index.parent())
        texts.prepend(index.data().toString());
    texts.prepend(tr("Drawing"));
    return texts;
}

void BranchController::setCurrentRow(int row)
{
    if (m_isResetting || row == m_currentRow)
        return;
    m_currentRow = row;
    Q_EMIT currentRowChanged();
    const StructureRow* data = m_tree.getData(sourceIndex(row));
    if (data && data->kind == StructureRow::Kind::Entity)
        m_selection.set(data->id);
}

void BranchController::show(const QModelIndex& index)
{
    m_notice.clear();
    moveTo(index, 0);
}

void BranchController::moveTo(const QModelIndex& index, int currentRow)
{
    m_path.clear();
    for (QModelIndex each = index; each.isValid(); each = each.parent())
        if (const StructureRow* row = m_tree.getData(each))
            m_path.insert(m_path.begin(), *row);
    m_branchText = index.data().toString();
    m_isResetting = true;
    m_rows.setRootIndex(index);
    m_isResetting = false;
    m_currentRow = qMin(currentRow, m_rows.rowCount() - 1);
    Q_EMIT branchChanged();
    Q_EMIT currentRowChanged();
}

void BranchController::find()
{
    m_isResetting = false;
    // Only rows of the same kind and thing are the same: the tree knows expanded rows by their texts alone.
    const QModelIndex branch = m_path.empty() ? QModelIndex() : m_tree.find(m_path.back());
    if (!m_path.empty() && !branch.isValid() && m_tree.rowCount() > 0)
        m_notice = tr("\"%1\" is not there any more.").arg(m_branchText);
    moveTo(branch, m_currentRow);
    showSelected();
}

void BranchController::showSelected()
{
    const OdDbObjectId entity = m_selection.current();
    for (int row = 0; !entity.isNull() && row < m_rows.rowCount(); ++row) {
        const StructureRow* data = m_tree.getData(sourceIndex(row));
        if (data->kind != StructureRow::Kind::Entity || data->id != entity)
            continue;
        if (m_currentRow != row) {
            m_currentRow = row;
            Q_EMIT currentRowChanged();
        }
        return;
    }
}

void BranchController::enter(int row)
{
    const QModelIndex index = sourceIndex(row);
    if (m_tree.rowCount(index) > 0)
        show(index);
    else
        setCurrentRow(row);
}

void BranchController::up()
{
    goTo(static_cast<int>(m_path.size()) - 1);
}

void BranchController::goTo(int crumb)
{
    QModelIndex index = m_rows.rootIndex();
    if (crumb < 0 || crumb >= static_cast<int>(m_path.size()))
        return;
    int row = -1;
    for (int depth = static_cast<int>(m_path.size()); depth > crumb; --depth) {
        row = index.row();
        index = index.parent();
    }
    m_notice.clear();
    moveTo(index, row);
}
} // namespace workbench
