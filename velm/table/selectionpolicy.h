#pragma once

#include "velm/table/sortfilterselectmodel.h"
#include "velm/velm_export.h"

#include <QItemSelectionModel>

namespace velm {
/// What clicks and the arrow keys do to a selection, by what the table selects.
class VELM_EXPORT SelectionPolicy
{
public:
    using Mode = SortFilterSelectModel::SelectionMode;

    /// The selection model isn't owned.
    SelectionPolicy(QItemSelectionModel& selection, Mode mode) : m_selection(selection), m_mode(mode) {}

    void leftClick(const QModelIndex& cell);
    /// Keeps a selection that holds the cell.
    void rightClick(const QModelIndex& cell);
    void controlClick(const QModelIndex& cell);
    void shiftClick(const QModelIndex& cell);
    QModelIndex shiftStart() const;
    /// Makes sure that the cell is selected, in place of what was when it isn't.
    void ensureSelected(const QModelIndex& cell);
    bool isSelected(const QModelIndex& index, const QModelIndex& parent) const;
    void selectAllRows();
    void selectNextRow();
    void selectPreviousRow();
    /// In the selection's own order: a row by its first column, a column by its first row.
    QModelIndexList selected() const;
    void replace(QModelIndexList cells);

private:
    QItemSelectionModel::SelectionFlags command(QItemSelectionModel::SelectionFlag flag) const;
    void makeCurrent(const QModelIndex& cell);
    const QAbstractItemModel& model() const { return *m_selection.model(); }

    QItemSelectionModel& m_selection;
    Mode m_mode;
};
} // namespace velm
