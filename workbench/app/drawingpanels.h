#pragma once

#include "filter/filtercontroller.h"
#include "health/healthcontroller.h"
#include "panels/branchcontroller.h"
#include "panels/entitiescontroller.h"
#include "panels/propertiescontroller.h"
#include "panels/structurecontroller.h"

namespace workbench {
/// What is behind the panels about what is in the drawing, in step with one another: the properties are those of the
/// selected entity, or of the layer that is the structure's current row.
class DrawingPanels : public QObject
{
public:
    /// Both outlive the panels.
    DrawingPanels(OdApDocManager& documents, Selection& selection);

    StructureController structure;
    BranchController branch;
    PropertiesController properties;
    EntitiesController entities;
    FilterController filter;
    HealthController health;

    /// To call after a change of the drawing.
    void refresh();

private:
    void showProperties();

    Selection& m_selection;
};
} // namespace workbench
