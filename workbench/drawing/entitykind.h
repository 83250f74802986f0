#pragma once

#include "od/oddbentity.h"

#include <wx/string.h>

namespace workbench {
/// What a person calls the entity, as in "Line".
wxString entityKind(const OdDbEntity& entity);
} // namespace workbench
