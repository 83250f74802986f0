#pragma once

#include "od/oddbentity.h"

#include <wx/string.h>

namespace workbench {
/// The numbers are kept in saved filters.
enum class EntityKind
{
    Line = 0,
    Polyline = 1,
    Circle = 2,
    Arc = 3,
    Ellipse = 4,
    Text = 5,
    Block = 6, ///< an insert of a block that is there
    Point = 7,
    Dimension = 8,
    Leader = 9,
    Other = 10,
};

EntityKind kindOf(const OdDbEntity& entity);
/// What a person calls the kind, as in "Line".
wxString kindName(EntityKind kind);
/// As kindName(), for an insert with the name of its block.
wxString entityKind(const OdDbEntity& entity);
} // namespace workbench
