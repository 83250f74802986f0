#pragma once

#include "od/odstring.h"

namespace ut {
/// The value of a variable of the process environment, empty when it isn't set.
PLATFORM_EXPORT OdString getEnvironment(const OdString& name);
PLATFORM_EXPORT void setEnvironment(const OdString& name, const OdString& value);

/// The folder of the running executable, on request with a slash at its end.
PLATFORM_EXPORT OdString getExecutableFolder(bool withTrailingSlash);

/// The path with the slashes that the system uses.
PLATFORM_EXPORT OdString correctSlashes(const OdString& path);
} // namespace ut
