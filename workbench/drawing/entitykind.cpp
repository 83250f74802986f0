#include "drawing/entitykind.h"

#include "od/oddbdimension.h"

#include <wx/translation.h>

namespace workbench {
EntityKind kindOf(const OdDbEntity& entity)
{
    if (dynamic_cast<const OdDbLine*>(&entity))
        return EntityKind::Line;
    if (dynamic_cast<const OdDbPolyline*>(&entity))
        return EntityKind::Polyline;
    if (dynamic_cast<const OdDbLeader*>(&entity))
        return EntityKind::Leader;
    if (dynamic_cast<const OdDbCircle*>(&entity))
        return EntityKind::Circle;
    if (dynamic_cast<const OdDbArc*>(&entity))
        return EntityKind::Arc;
    if (dynamic_cast<const OdDbEllipse*>(&entity))
        return EntityKind::Ellipse;
    if (dynamic_cast<const OdDbText*>(&entity))
        return EntityKind::Text;
    if (dynamic_cast<const OdDbPoint*>(&entity))
        return EntityKind::Point;
    if (dynamic_cast<const OdDbDimension*>(&entity))
        return EntityKind::Dimension;
    if (const auto* insert = dynamic_cast<const OdDbBlockReference*>(&entity))
        if (insert->blockTableRecord.open<OdDbBlockTableRecord>())
            return EntityKind::Block;
    return EntityKind::Other;
}

wxString kindName(EntityKind kind)
{
    switch (kind) {
    case EntityKind::Line:
        return _("Line");
    case EntityKind::Polyline:
        return _("Polyline");
    case EntityKind::Circle:
        return _("Circle");
    case EntityKind::Arc:
        return _("Arc");
    case EntityKind::Ellipse:
        return _("Ellipse");
    case EntityKind::Text:
        return _("Text");
    case EntityKind::Block:
        return _("Block");
    case EntityKind::Point:
        return _("Point");
    case EntityKind::Dimension:
        return _("Dimension");
    case EntityKind::Leader:
        return _("Leader");
    case EntityKind::Other:
        break;
    }
    return _("Entity");
}

wxString entityKind(const OdDbEntity& entity)
{
    const EntityKind kind = kindOf(entity);
    if (kind != EntityKind::Block)
        return kindName(kind);
    const auto& insert = static_cast<const OdDbBlockReference&>(entity);
    return wxString::Format(_("Block %s"), insert.blockTableRecord.open<OdDbBlockTableRecord>()->getName().c_str());
}
} // namespace workbench
