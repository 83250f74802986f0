#include "panels/dimstylescontroller.h"

#include "panels/dimstyletablemodel.h"

namespace workbench {
DimStylesController::DimStylesController(OdApDocManager& documents, velm::IDialogFactory& dialogs)
    : RecordTableController(documents, dialogs, std::make_unique<DimStyleTableModel>(), QStringLiteral("DimStyles"),
                            {DimStyleTableModel::NameColumn, DimStyleTableModel::TypeColumn})
{}
} // namespace workbench
