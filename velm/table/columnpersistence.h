#pragma once

#include "velm/table/columnmap.h"
#include "velm/velm_export.h"

#include <QString>

#include <optional>
#include <vector>

/// How a table's columns are kept in the dialog settings, each under its column id. Columns without an id aren't kept.
namespace velm::columnpersistence {
struct SavedColumn
{
    int width = 0;
    int position = 0; ///< as stored: may be anything
    bool visible = true;
};

/// Nothing for an empty id. What isn't stored is taken from `header`, a stored width of 0 as well.
VELM_EXPORT std::optional<SavedColumn> read(const QString& columnId, const SavedColumn& header,
                                            const QString& dialogId);

/// A hidden column is stored with width 0.
VELM_EXPORT void write(const QString& columnId, const ColumnState& state, const QString& dialogId);

struct NamedState
{
    QString columnId;
    ColumnState state;
};

/// Stores the columns of a table. Positions step around the columns that are stored but aren't in the table.
VELM_EXPORT void writeAll(std::vector<NamedState> columns, const QString& dialogId);
} // namespace velm::columnpersistence
