#pragma once

namespace workbench {
/// What a cell of a table shows: velm::ColumnData::type of the workbench's tables. The pages know the numbers.
enum class CellKind
{
    Text = 0,
    Check = 1,  ///< Qt::CheckStateRole, which a click writes
    Color = 2,  ///< a text beside the colour of Qt::DecorationRole
    Number = 3, ///< a text that stands on the right
};
} // namespace workbench
