#include "drawing/entitykind.h"

#include "od/oddbdimension.h"

#include <wx/translation.h>

namespace workbench {
wxString entityKind(const OdDbEntity& entity)
{
    if (dynamic_cast<const OdDbLine*>(&entity))
        return _("Line");
    if (dynamic_cast<const OdDbPolyline*>(&entity))
        return _("Polyline");
    if (dynamic_cast<const OdDbLeader*>(&entity))
        return _("Leader");
    if (dynamic_cast<const OdDbCircle*>(&entity))
        return _("Circle");
    if (dynamic_cast<const OdDbArc*>(&entity))
        return _("Arc");
    if (dynamic_cast<const OdDbEllipse*>(&entity))
        return _("Ellipse");
    if (dynamic_cast<const OdDbText*>(&entity))
        return _("Text");
    if (dynamic_cast<const OdDbPoint*>(&entity))
        return _("Point");
    if (const auto* insert = dynamic_cast<const OdDbBlockReference*>(&entity))
        if (const auto* block = insert->blockTableRecord.open<OdDbBlockTableRecord>())
            return wxString::Format(_("Block %s"), block->getName().c_str());
    return _("Entity");
}
} // namespace workbench
