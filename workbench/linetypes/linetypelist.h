#pragma once

#include "od/odarray.h"
#include "od/oddbobjectid.h"
#include "od/odstring.h"

class OdDbDatabase;

namespace workbench {
/// Which of a drawing's linetypes a list shows.
struct LineTypeChoice
{
    bool withByLayer = true; ///< "ByLayer" and "ByBlock"
    bool usedOnly = false;   ///< by a layer, an entity, or new entities
    OdDbObjectId wanted;     ///< counts as used
};

/// "ByLayer", "ByBlock", then the others by their names.
OdArray<OdDbObjectId> listLineTypes(const OdDbDatabase& database, const LineTypeChoice& choice);

/// The name that users see: drawings write those that every drawing has in many ways.
OdString lineTypeLocalName(const OdString& storedName);
} // namespace workbench
