#include "velm/table/keptselection.h"

namespace velm {
KeptSelection::KeptSelection(SortFilterSelectModel& model, const ColumnMap& columns)
    : m_model(model), m_columns(columns)
{
    for (const QItemSelectionRange& range : model.selectionModel()->selection()) {
        Rows rows{range.parent(), range.top(), range.bottom(), {}};
        for (int column = range.left(); column <= range.right(); ++column)
            rows.sourceColumns.push_back(columns.toSource(column));
        m_rows.push_back(std::move(rows));
    }
    model.selectionModel()->clearSelection();
}

void KeptSelection::putBack() const
{
    QItemSelection selection;
    for (const Rows& rows : m_rows) {
        std::vector<int> places;
        for (const int source : rows.sourceColumns)
            places.push_back(m_columns.toProxy(source));
        forEachRun(std::move(places), [&](int first, int last) {
            selection.append(QItemSelectionRange(m_model.index(rows.top, first, rows.parent),
                                                 m_model.index(rows.bottom, last, rows.parent)));
        });
    }
    m_model.selectionModel()->select(selection, QItemSelectionModel::Select);
}

KeptRows::KeptRows(SortFilterSelectModel& model) : m_model(model)
{
    QItemSelectionModel& selection = *model.selectionModel();
    const QModelIndex current = selection.currentIndex();
    m_current = model.mapToSource(current);
    m_currentRow = current.row();
    m_currentColumn = current.column();
    for (const QItemSelectionRange& range : selection.selection()) {
        const auto sameColumns = [&](const Rows& rows) {
            return rows.left == range.left() && rows.right == range.right();
        };
        auto rows = std::find_if(m_rows.begin(), m_rows.end(), sameColumns);
        if (rows == m_rows.end())
            rows = m_rows.insert(rows, {range.left(), range.right(), {}});
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows->sourceRows.push_back(model.mapProxyRowToSource(row));
    }
    selection.clearSelection();
}

void KeptRows::putBack() const
{
    QItemSelection selection;
    for (const Rows& rows : m_rows) {
        std::vector<int> places;
        places.reserve(rows.sourceRows.size());
        for (const int row : rows.sourceRows)
            if (const int place = m_model.mapSourceRowToProxy(row); place >= 0)
                places.push_back(place);
        forEachRun(std::move(places), [&](int first, int last) {
            selection.append(QItemSelectionRange(m_model.index(first, rows.left), m_model.index(last, rows.right)));
        });
    }
    m_model.selectionModel()->select(selection, QItemSelectionModel::Select);
    // The row at the current one's place when it is gone.
    if (m_currentRow >= 0 && !m_model.mapFromSource(m_current).isValid())
        m_model.selectionModel()->setCurrentIndex(
            m_model.index(std::min(m_currentRow, m_model.rowCount() - 1), m_currentColumn),
            QItemSelectionModel::NoUpdate);
}
} // namespace velm
