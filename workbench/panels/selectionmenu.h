#pragma once

#include "velm/models/rememberlastactionmenumodel.h"

namespace workbench {
class Selection;

/// What can be done with the selected entity, for a split button. Each entry is a line for the command line.
class SelectionMenu : public velm::RememberLastActionMenuModel
{
    Q_OBJECT
public:
    /// The selection outlives the menu.
    explicit SelectionMenu(const Selection& selection);
};
} // namespace workbench
