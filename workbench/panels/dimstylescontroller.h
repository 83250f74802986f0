#pragma once

#include "panels/recordtablecontroller.h"

namespace workbench {
/// What the page of dimension styles talks to.
class DimStylesController : public RecordTableController
{
    Q_OBJECT
public:
    /// Neither is owned; both outlive the controller.
    DimStylesController(OdApDocManager& documents, velm::IDialogFactory& dialogs);
};
} // namespace workbench
