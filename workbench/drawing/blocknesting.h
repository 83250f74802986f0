#pragma once

#include "drawing/dxfgroups.h"

namespace workbench {

/// Throws DxfError for a file in which a block contains itself, also by way of others.
void checkBlockNesting(const DxfGroups& file);

} // namespace workbench
