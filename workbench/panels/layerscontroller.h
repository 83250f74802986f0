#pragma once

#include "panels/recordtablecontroller.h"

namespace workbench {
class LayerTableModel;

/// What the page of layers talks to.
class LayersController : public RecordTableController
{
    Q_OBJECT
    Q_PROPERTY(bool canRename READ canRename NOTIFY currentRowChanged)
public:
    /// Neither is owned; both outlive the controller.
    LayersController(OdApDocManager& documents, velm::IDialogFactory& dialogs);

    bool canRename() const;
    void setDarkBackground(bool dark);

public Q_SLOTS:
    /// Asks for another name of the current layer until it is a good one or the person gives up.
    void renameCurrent();

private:
    LayersController(OdApDocManager& documents, velm::IDialogFactory& dialogs, std::unique_ptr<LayerTableModel> model);

    LayerTableModel& m_layers;
};
} // namespace workbench
