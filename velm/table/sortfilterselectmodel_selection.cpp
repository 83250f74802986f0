// The selection of the table and the state of its single cells.

#include "velm/table/sortfilterselectmodel_p.h"

#include <algorithm>

namespace velm {
const SelectedCells& SortFilterSelectModel::Pimpl::cells()
{
    if (!selectedCells)
        selectedCells.emplace(selectionModel.selection());
    return *selectedCells;
}

void SortFilterSelectModel::updateSelection(QItemSelection selected, QItemSelection deselected)
{
    m_pimpl->selectedCells.reset();
    const int lastColumn = columnCount() - 1;
    if (lastColumn < 0)
        return;
    for (const QItemSelection& selection : {selected, deselected}) {
        for (const QItemSelectionRange& range : selection) {
            if (!range.isValid() || range.model() != this)
                continue;
            const QModelIndex parent = range.parent();
            const int last = std::min(lastColumn, columnCount(parent) - 1);
            if (last >= 0)
                Q_EMIT dataChanged(index(range.top(), 0, parent), index(range.bottom(), last, parent),
                                   {m_pimpl->selectedRole});
        }
    }
    Q_EMIT selectionChanged();
}

void SortFilterSelectModel::shiftSelection(int row, int column)
{
    shiftSelection(index(row, column));
}

void SortFilterSelectModel::shiftSelection(QModelIndex cell)
{
    if (m_pimpl->isOwn(cell))
        m_pimpl->policy().shiftClick(cell);
}

void SortFilterSelectModel::ctrlSelection(int row, int column)
{
    ctrlSelection(index(row, column));
}

void SortFilterSelectModel::ctrlSelection(QModelIndex cell)
{
    if (m_pimpl->isOwn(cell))
        m_pimpl->policy().controlClick(cell);
}

void SortFilterSelectModel::leftClickSelection(int row, int column)
{
    leftClickSelection(index(row, column));
}

void SortFilterSelectModel::leftClickSelection(QModelIndex cell)
{
    if (m_pimpl->isOwn(cell))
        m_pimpl->policy().leftClick(cell);
}

void SortFilterSelectModel::rightClickSelection(int row, int column)
{
    rightClickSelection(index(row, column));
}

void SortFilterSelectModel::rightClickSelection(QModelIndex cell)
{
    if (m_pimpl->isOwn(cell))
        m_pimpl->policy().rightClick(cell);
}

void SortFilterSelectModel::addToSelection(int row, int column)
{
    addToSelection(index(row, column));
}

void SortFilterSelectModel::addToSelection(QModelIndex cell)
{
    if (m_pimpl->isOwn(cell))
        m_pimpl->policy().ensureSelected(cell);
}

void SortFilterSelectModel::clearSelection()
{
    m_pimpl->selectionModel.clear();
}

bool SortFilterSelectModel::isSelected(QModelIndex index, QModelIndex parent) const
{
    return m_pimpl->policy().isSelected(index, parent);
}

bool SortFilterSelectModel::isSelected(int row, int column, QModelIndex parent) const
{
    return isSelected(index(row, column), parent);
}

void SortFilterSelectModel::selectAll()
{
    m_pimpl->policy().selectAllRows();
}

void SortFilterSelectModel::selectPreviousRow()
{
    m_pimpl->policy().selectPreviousRow();
}

void SortFilterSelectModel::selectNextRow()
{
    m_pimpl->policy().selectNextRow();
}

QModelIndex SortFilterSelectModel::getShiftSelectionStart() const
{
    return m_pimpl->policy().shiftStart();
}

int SortFilterSelectModel::selectedSourcesCount() const
{
    int count = 0;
    for (const QItemSelectionRange& range : m_pimpl->selectionModel.selection())
        count += range.bottom() - range.top() + 1;
    return count;
}

QModelIndexList SortFilterSelectModel::selectedSources() const
{
    QModelIndexList result = m_pimpl->policy().selected();
    for (QModelIndex& index : result)
        index = mapToSource(index);
    return result;
}

void SortFilterSelectModel::setSelectedSources(QModelIndexList selectedSources)
{
    QModelIndexList cells;
    for (const QModelIndex& source : selectedSources) {
        const QModelIndex index = mapFromSource(source);
        if (index.isValid())
            cells.append(index);
    }
    m_pimpl->policy().replace(std::move(cells));
}

// Single cells.

void SortFilterSelectModel::increasePreFocusIndexRow()
{
    m_pimpl->cursor.nextRow();
}

void SortFilterSelectModel::decreasePreFocusIndexRow()
{
    m_pimpl->cursor.previousRow();
}

void SortFilterSelectModel::increasePreFocusIndexColumn()
{
    m_pimpl->cursor.nextColumn();
}

void SortFilterSelectModel::decreasePreFocusIndexColumn()
{
    m_pimpl->cursor.previousColumn();
}

bool SortFilterSelectModel::hasPreFocus() const
{
    return m_pimpl->cursor.hasPreFocus();
}

void SortFilterSelectModel::unsetPreFocus()
{
    m_pimpl->cursor.unsetPreFocus();
}

bool SortFilterSelectModel::checkPreFocusOnParent(QModelIndex oldPreFocusIndex)
{
    return m_pimpl->cursor.checkPreFocusOnParent(oldPreFocusIndex);
}

void SortFilterSelectModel::requestActiveFocusOnPrefocusedCell()
{
    m_pimpl->cursor.focusPreFocused();
}

void SortFilterSelectModel::setHovered(int row, int column, bool hovered)
{
    m_pimpl->cursor.setHovered(row, column, hovered, m_pimpl->selectionMode);
}

void SortFilterSelectModel::setBeginEditIndex(int row)
{
    m_pimpl->cursor.setBeginEditRow(row);
}
} // namespace velm
