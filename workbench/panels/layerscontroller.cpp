#include "panels/layerscontroller.h"

#include "panels/layertablemodel.h"
#include "velm/bridge/conversions.h"
#include "velm/dialogs/idialogfactory.h"
#include "velm/dialogs/namedialogcontroller.h"

namespace workbench {
LayersController::LayersController(OdApDocManager& documents, velm::IDialogFactory& dialogs)
    : LayersController(documents, dialogs, std::make_unique<LayerTableModel>())
{}

LayersController::LayersController(OdApDocManager& documents, velm::IDialogFactory& dialogs,
                                   std::unique_ptr<LayerTableModel> model)
    : RecordTableController(documents, dialogs, std::move(model), QStringLiteral("Layers"),
                            {LayerTableModel::NameColumn, LayerTableModel::DescriptionColumn}),
      m_layers(static_cast<LayerTableModel&>(*table()->sourceModel()))
{
    table()->setDefaultEditableColumnId(QStringLiteral("name"));
}

void LayersController::setDarkBackground(bool dark)
{
    m_layers.setDarkBackground(dark);
}

bool LayersController::canRename() const
{
    return m_layers.isRenamable(currentSourceRow());
}

void LayersController::renameCurrent()
{
    const QPersistentModelIndex index = m_layers.index(currentSourceRow(), LayerTableModel::NameColumn);
    if (!m_layers.isRenamable(index.row()))
        return;
    const QString title = QStringLiteral(QT_TR_NOOP("Rename Layer"));
    const std::optional<QString> name = velm::NameDialogController::launchDialog(
        title, tr("Name of the layer:"), tr("&Rename"), index.data().toString(), [&](const QString& wanted) {
            // The drawing may have gone while the dialog was open.
            const OdDbSymbolTableRecord* layer = m_layers.record(index.row());
            const QString problem = layer ? m_layers.nameProblem(*layer, wanted) : QString();
            if (problem.isEmpty())
                return true;
            dialogs().showErrorMessage(velm::odFromQt(tr(title.toUtf8())), velm::odFromQt(problem), nullptr,
                                       velm::MessageButtonStyle::OK);
            return false;
        });
    if (name)
        m_layers.setData(index, *name);
}
} // namespace workbench
