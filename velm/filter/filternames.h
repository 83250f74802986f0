#pragma once

#include "od/odstring.h"
#include "velm/velm_export.h"

#include <QStringList>

namespace velm {
/// Whether a filter may be saved under the name; a message says why not. Case doesn't count among the existing names.
/// With `allowOverwrite` the user decides about a name that exists. False, silently, without a dialog factory.
VELM_EXPORT bool checkFilterNameIsValid(const QString& name, bool allowOverwrite, const QStringList& existingNames);

/// The word for a filter, without characters that a name may not hold; for the host.
VELM_EXPORT OdString getDefaultFilterName();
} // namespace velm
