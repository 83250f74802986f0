#pragma once

#include "velm/velm_export.h"

#include <QHash>
#include <QItemSelection>
#include <QModelIndex>

#include <cstdint>
#include <vector>

namespace velm {
/// A selection spread out so that asking for one cell costs the same whatever the number of its ranges. It is a copy:
/// to be made anew when the selection or the model's rows and columns change.
class VELM_EXPORT SelectedCells
{
public:
    SelectedCells() = default;
    explicit SelectedCells(const QItemSelection& selection);

    /// Whether any cell of the row is selected.
    bool containsRow(int row, const QModelIndex& parent) const;
    bool containsColumn(int column, const QModelIndex& parent) const;
    bool containsCell(int row, int column, const QModelIndex& parent) const;

private:
    using ColumnSet = std::vector<bool>;

    /// What is selected below one parent.
    struct Branch
    {
        std::vector<std::uint32_t> rows; // 1 + the row's place in columnSets, 0 for a row without selected cells
        std::vector<ColumnSet> columnSets;
        ColumnSet columns; // all selected ones
    };

    static Branch spread(const std::vector<QItemSelectionRange>& ranges);
    const Branch& branch(const QModelIndex& parent) const;

    Branch m_top;
    QHash<QModelIndex, Branch> m_branches; // by valid parents
};
} // namespace velm
