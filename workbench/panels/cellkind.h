#pragma once

#include "velm/table/columns.h"

namespace workbench {
/// What a cell of a table shows: velm::ColumnData::type of the workbench's tables. The pages know the numbers.
enum class CellKind
{
    Text = 0,
    Check = 1,    ///< Qt::CheckStateRole, which a click writes
    Color = 2,    ///< a choice beside the colour of Qt::DecorationRole
    Number = 3,   ///< a text that stands on the right
    Choice = 4,   ///< one of some texts, which role "choices" gives; Qt::EditRole is its index
    LineType = 5, ///< the line of Qt::DecorationRole, a list of dashes
};

/// A column of a kind, aligned as it goes with that.
inline velm::ColumnBuilder tableColumn(int id, CellKind kind, const QString& name, const char* columnId, int width)
{
    velm::ColumnBuilder builder(id, static_cast<int>(kind), name, QString::fromLatin1(columnId));
    builder.initialWidth(width);
    if (kind != CellKind::Check)
        builder.textAlignment(Qt::AlignVCenter | (kind == CellKind::Number ? Qt::AlignRight : Qt::AlignLeft));
    return builder;
}
} // namespace workbench
