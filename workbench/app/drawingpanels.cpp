#include "app/drawingpanels.h"

#include "drawing/selection.h"

namespace workbench {
DrawingPanels::DrawingPanels(OdApDocManager& documents, Selection& selection)
    : structure(documents, selection), branch(*structure.tree(), selection), properties(documents),
      entities(documents, selection), filter(documents, selection), health(documents, selection), m_selection(selection)
{
    connect(&structure, &StructureController::currentIndexChanged, this, &DrawingPanels::showProperties);
    connect(&selection, &Selection::changed, this, &DrawingPanels::showProperties);
}

void DrawingPanels::showProperties()
{
    const OdDbObjectId entity = m_selection.current();
    properties.show(entity.isNull() ? structure.currentObject() : entity);
}

void DrawingPanels::refresh()
{
    structure.refresh();
    properties.refresh();
    entities.refresh();
    filter.refresh();
    health.refresh();
}
} // namespace workbench
