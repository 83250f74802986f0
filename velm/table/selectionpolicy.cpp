#include "velm/table/selectionpolicy.h"

#include <algorithm>

namespace velm {
QItemSelectionModel::SelectionFlags SelectionPolicy::command(QItemSelectionModel::SelectionFlag flag) const
{
    QItemSelectionModel::SelectionFlags result = flag;
    if (m_mode == Mode::Row)
        result |= QItemSelectionModel::Rows;
    else if (m_mode == Mode::Column)
        result |= QItemSelectionModel::Columns;
    return result;
}

void SelectionPolicy::makeCurrent(const QModelIndex& cell)
{
    m_selection.setCurrentIndex(cell, QItemSelectionModel::Current);
}

void SelectionPolicy::leftClick(const QModelIndex& cell)
{
    const QPersistentModelIndex kept = cell; // what hears of the selection may change the rows
    m_selection.select(cell, command(QItemSelectionModel::ClearAndSelect));
    makeCurrent(kept);
}

void SelectionPolicy::rightClick(const QModelIndex& cell)
{
    if (!m_selection.isSelected(cell))
        leftClick(cell);
}

void SelectionPolicy::controlClick(const QModelIndex& cell)
{
    if (m_selection.isSelected(cell)) {
        m_selection.select(cell, command(QItemSelectionModel::Deselect));
    } else {
        const QPersistentModelIndex kept = cell;
        m_selection.select(cell, command(QItemSelectionModel::Select));
        makeCurrent(kept);
    }
}

QModelIndex SelectionPolicy::shiftStart() const
{
    return m_selection.hasSelection() ? m_selection.currentIndex() : model().index(0, 0);
}

void SelectionPolicy::shiftClick(const QModelIndex& cell)
{
    const QPersistentModelIndex start = shiftStart();
    const QPersistentModelIndex end = cell;
    if (!m_selection.hasSelection())
        makeCurrent(cell);
    m_selection.select(QItemSelection(start, end), command(QItemSelectionModel::ClearAndSelect));
}

void SelectionPolicy::ensureSelected(const QModelIndex& cell)
{
    if (isSelected(cell, cell.parent()))
        makeCurrent(cell);
    else
        leftClick(cell);
}

bool SelectionPolicy::isSelected(const QModelIndex& index, const QModelIndex& parent) const
{
    switch (m_mode) {
    case Mode::Row:
        return m_selection.isRowSelected(index.row(), parent);
    case Mode::Column:
        return m_selection.isColumnSelected(index.column(), parent);
    case Mode::Cell:
        break;
    }
    return m_selection.isSelected(index);
}

void SelectionPolicy::selectAllRows()
{
    m_selection.select(QItemSelection(model().index(0, 0), model().index(model().rowCount() - 1, 0)),
                       QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void SelectionPolicy::selectNextRow()
{
    const QModelIndex current = m_selection.currentIndex();
    const int last = model().rowCount(current.parent()) - 1;
    QModelIndex target =
        model().index(std::max(std::min(current.row() + 1, last), 0), std::max(current.column(), 0), current.parent());
    if (model().hasChildren(current))
        target = model().index(0, current.column(), current);
    if (target == current && current.parent().isValid()) {
        const QModelIndex parent = current.parent();
        const QModelIndex behind = parent.sibling(parent.row() + 1, parent.column()); // one level only
        if (behind.isValid())
            target = behind;
    }
    leftClick(target);
}

void SelectionPolicy::selectPreviousRow()
{
    const QModelIndex current = m_selection.currentIndex();
    QModelIndex target = model().index(std::max(current.row() - 1, 0), std::max(current.column(), 0), current.parent());
    if (current.row() == 0 && target.row() == 0) {
        const QModelIndex parent = current.parent();
        target = model().index(parent.row(), parent.column(), parent.parent());
    }
    if (!target.isValid())
        target = current;
    leftClick(target);
}

QModelIndexList SelectionPolicy::selected() const
{
    switch (m_mode) {
    case Mode::Row:
        return m_selection.selectedRows(0);
    case Mode::Column:
        return m_selection.selectedColumns(0);
    case Mode::Cell:
        break;
    }
    return m_selection.selectedIndexes();
}

void SelectionPolicy::replace(QModelIndexList cells)
{
    // The selection model compares each range with each other; neighbours among many rows are one range.
    constexpr int many = 500;
    const bool joins = m_mode == Mode::Row && cells.size() > many;
    if (joins)
        std::sort(cells.begin(), cells.end(), [](const QModelIndex& left, const QModelIndex& right) {
            const QModelIndex parents[] = {left.parent(), right.parent()};
            return parents[0] == parents[1] ? left.row() < right.row() : parents[0] < parents[1];
        });
    QItemSelection selection;
    for (auto first = cells.cbegin(); first != cells.cend();) {
        auto last = first;
        while (joins && std::next(last) != cells.cend() && std::next(last)->row() <= last->row() + 1 &&
               std::next(last)->parent() == last->parent())
            ++last;
        const int width = joins ? model().columnCount(first->parent()) : 0;
        selection.append(joins ? QItemSelectionRange(first->siblingAtColumn(0), last->siblingAtColumn(width - 1))
                               : QItemSelectionRange(*first));
        first = std::next(last);
    }
    if (joins) {
        m_selection.clearSelection();
        m_selection.select(selection, QItemSelectionModel::Select);
    } else {
        m_selection.select(selection, command(QItemSelectionModel::ClearAndSelect));
    }
}
} // namespace velm
