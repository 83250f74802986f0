#pragma once

#include "od/oddbdatabase.h"

namespace ut::DatabaseUtils {
/// True when the name is that of a style for one kind of dimension below a parent style: the parent's name, "$" and the
/// kind's number, and the database's table holds both. False without a database.
PLATFORM_EXPORT bool isChildDimStyle(const OdString& name, const OdDbDatabase* database);
} // namespace ut::DatabaseUtils
