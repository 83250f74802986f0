#pragma once

#include "host/dwghealth.h"
#include "od/oddbobjectid.h"

#include <vector>

class OdDbDatabase;

namespace workbench {
/// The layers or the lines of a drawing that a kind of task finds, in the drawing's order; nothing of a kind that
/// isn't known.
std::vector<OdDbObjectId> healthFindings(oc::dwghealth::ETaskType type, const OdDbDatabase& database);
/// Not what is on a locked layer.
bool isFixable(OdDbObjectId finding);
} // namespace workbench
