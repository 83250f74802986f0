#include "panels/recordtablecontroller.h"

#include "panels/recordtablemodel.h"
#include "velm/bridge/conversions.h"
#include "velm/dialogs/idialogfactory.h"

namespace workbench {
RecordTableController::RecordTableController(OdApDocManager& documents, velm::IDialogFactory& dialogs,
                                             std::unique_ptr<RecordTableModel> model, const QString& name,
                                             std::vector<int> searched)
    : m_documents(documents), m_dialogs(dialogs), m_model(std::move(model)), m_filter(std::move(searched))
{
    m_table.setParentId(QStringLiteral("Workbench/") + name);
    m_table.setSourceModel(m_model.get());
    m_table.setFilter(&m_filter);
    connect(m_table.selectionModel(), &QItemSelectionModel::currentChanged, this,
            &RecordTableController::currentRowChanged);
    connect(m_model.get(), &RecordTableModel::edited, this, [this] {
        Q_EMIT currentRowChanged();
        if (onEdited)
            onEdited();
    });
    // Once the editor has gone: it may have given its value because the keyboard went elsewhere.
    connect(m_model.get(), &RecordTableModel::refused, this, &RecordTableController::tellOfProblem,
            Qt::QueuedConnection);
    m_documents.addReactor(this);
    documentBecameCurrent(m_documents.curDocument());
}

RecordTableController::~RecordTableController()
{
    m_documents.removeReactor(this);
}

bool RecordTableController::hasDrawing() const
{
    return m_model->database() != nullptr;
}

void RecordTableController::documentBecameCurrent(OdApDocument* document)
{
    m_model->setDatabase(document ? document->database() : nullptr);
    m_table.sort(m_table.sortColumn(), m_table.sortOrder());
    selectSome();
    Q_EMIT drawingChanged();
    Q_EMIT currentRowChanged();
}

void RecordTableController::setCurrentRow(int row)
{
    if (row != currentRow() && row >= 0 && row < m_table.rowCount())
        m_table.leftClickSelection(row, 0);
}

int RecordTableController::currentSourceRow() const
{
    return m_table.mapToSource(m_table.selectionModel()->currentIndex()).row();
}

void RecordTableController::selectSome()
{
    if (!m_table.selectionModel()->hasSelection() && m_table.rowCount() > 0)
        m_table.leftClickSelection(qMax(0, currentRow()), 0);
}

void RecordTableController::refresh()
{
    if (m_model->refresh())
        m_table.sort(m_table.sortColumn(), m_table.sortOrder());
    Q_EMIT currentRowChanged();
}

void RecordTableController::setSearchText(const QString& text)
{
    m_filter.setText(text);
    selectSome();
}

void RecordTableController::tellOfProblem(const QString& problem)
{
    m_dialogs.showErrorMessage(velm::odFromQt(tr("Edit")), velm::odFromQt(problem), nullptr,
                               velm::MessageButtonStyle::OK);
}
} // namespace workbench
