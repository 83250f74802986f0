#include "panels/layerscontroller.h"

#include "od/oddbdatabase.h"
#include "ut/names.h"
#include "velm/bridge/conversions.h"
#include "velm/dialogs/idialogfactory.h"
#include "velm/dialogs/namedialogcontroller.h"

namespace workbench {
LayersController::LayersController(OdApDocManager& documents, velm::IDialogFactory& dialogs)
    : m_documents(documents), m_dialogs(dialogs)
{
    m_shown.setSourceModel(&m_model);
    m_shown.setFilterRole(LayerModel::NameRole);
    m_shown.setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_shown.setDynamicSortFilter(true);
    m_documents.addReactor(this);
    documentBecameCurrent(m_documents.curDocument());
}

LayersController::~LayersController()
{
    m_documents.removeReactor(this);
}

void LayersController::documentBecameCurrent(OdApDocument* document)
{
    m_model.setDatabase(document ? document->database() : nullptr);
    m_currentRow = m_shown.rowCount() > 0 ? 0 : -1;
    Q_EMIT drawingChanged();
    Q_EMIT currentRowChanged();
}

int LayersController::sourceRow(int row) const
{
    return m_shown.mapToSource(m_shown.index(row, 0)).row();
}

void LayersController::setCurrentRow(int row)
{
    if (row == m_currentRow)
        return;
    m_currentRow = row;
    Q_EMIT currentRowChanged();
}

bool LayersController::canRename() const
{
    return m_shown.index(m_currentRow, 0).data(LayerModel::RenamableRole).toBool();
}

void LayersController::setOn(int row, bool on)
{
    OdDbLayerTableRecord* layer = m_model.layer(sourceRow(row));
    if (!layer || layer->isOff() != on)
        return;
    layer->setIsOff(!on);
    tellOfChange();
}

void LayersController::refresh()
{
    m_model.layersChanged();
    Q_EMIT currentRowChanged();
}

void LayersController::tellOfChange()
{
    refresh();
    if (onLayersChanged)
        onLayersChanged();
}

void LayersController::setSearchText(const QString& text)
{
    m_shown.setFilterFixedString(text);
    setCurrentRow(qMin(qMax(0, m_currentRow), m_shown.rowCount() - 1));
    // The same row may stand for another layer now.
    Q_EMIT currentRowChanged();
}

QString LayersController::nameProblem(const QString& name, int row) const
{
    if (name.trimmed().isEmpty())
        return tr("A layer needs a name.");
    const QString forbidden = velm::toQt(ut::getForbiddenCharacters());
    for (const QChar character : name)
        if (forbidden.contains(character))
            return tr("A name can't contain any of these characters: %1").arg(forbidden);
    const OdDbLayerTableRecord* other = m_model.database()->findLayer(velm::odFromQt(name.trimmed()));
    if (other && other != m_model.layer(row))
        return tr("The drawing has a layer \"%1\" already.").arg(velm::toQt(other->getName()));
    return {};
}

void LayersController::renameCurrent()
{
    if (!canRename())
        return;
    const QPersistentModelIndex index = m_shown.mapToSource(m_shown.index(m_currentRow, 0));
    const QString title = QStringLiteral(QT_TR_NOOP("Rename Layer"));
    const std::optional<QString> name = velm::NameDialogController::launchDialog(
        title, tr("Name of the layer:"), tr("&Rename"), index.data().toString(), [&](const QString& wanted) {
            const QString problem = nameProblem(wanted, index.row());
            if (problem.isEmpty())
                return true;
            m_dialogs.showErrorMessage(velm::odFromQt(tr(title.toUtf8())), velm::odFromQt(problem), nullptr,
                                       velm::MessageButtonStyle::OK);
            return false;
        });
    // The drawing may have gone while the dialog was open.
    OdDbLayerTableRecord* layer = m_model.layer(index.row());
    if (!name || !index.isValid() || !layer)
        return;
    m_model.database()->rename(*layer, velm::odFromQt(name->trimmed()));
    tellOfChange();
}
} // namespace workbench
