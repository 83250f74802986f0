#include "panels/entitiescontroller.h"

#include "drawing/selection.h"
#include "velm/bridge/externalfunctions.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace workbench {
namespace {
/// A selection model compares all pieces of its former selection with all of the new one.
constexpr qsizetype mostRanges = 1000;
} // namespace

EntitiesController::EntitiesController(OdApDocManager& documents, Selection& selection)
    : m_documents(documents), m_selection(selection), m_actions(selection)
{
    m_table.setSortRole(Qt::EditRole);
    m_table.setParentId(QStringLiteral("Workbench/Entities"));
    m_table.setFilter(&m_filter);
    m_table.setSourceModel(&m_entities);
    connect(&m_table, &velm::SortFilterSelectModel::selectionChanged, this, &EntitiesController::tellSelection);
    connect(m_table.selectionModel(), &QItemSelectionModel::currentChanged, this, &EntitiesController::tellCurrent);
    connect(&m_table, &velm::SortFilterSelectModel::selectionModeChanged, this, [this] {
        // Cells, rows and columns that are selected mean something else in another mode.
        keepSelection([this] { m_table.clearSelection(); });
    });
    connect(&m_selection, &Selection::changed, this, &EntitiesController::followSelection);
    m_documents.addReactor(this);
    documentBecameCurrent(m_documents.curDocument());
}

EntitiesController::~EntitiesController()
{
    m_documents.removeReactor(this);
}

void EntitiesController::documentBecameCurrent(OdApDocument* document)
{
    OdDbDatabase* database = document ? document->database() : nullptr;
    if (database == m_entities.database())
        return;
    m_filter.forget();
    // A reset loses the sort and the order of the columns.
    m_table.saveColumnData();
    const int sorted = m_table.mapProxyColumnToSource(m_table.proxySortColumn());
    const bool ascending = m_table.ascending();
    keepSelection([&] { m_entities.setDatabase(database); });
    m_table.loadColumnData();
    if (m_table.isSourceColumnVisible(sorted))
        m_table.doSort(m_table.mapSourceColumnToProxy(sorted), ascending);
    Q_EMIT drawingChanged();
    Q_EMIT statusChanged();
}

bool EntitiesController::selectsColumns() const
{
    return m_table.selectionMode() == velm::SortFilterSelectModel::Column;
}

template <typename Change>
void EntitiesController::keepSelection(Change change)
{
    {
        const QScopedValueRollback following(m_isFollowing, true);
        change();
    }
    followSelection();
}

void EntitiesController::refresh()
{
    keepSelection([this] {
        m_entities.refresh();
        // The table doesn't ask again for rows that changed.
        if (!m_filter.text().isEmpty())
            Q_EMIT m_filter.invalidate();
    });
    Q_EMIT statusChanged();
}

void EntitiesController::setSearchText(const QString& text)
{
    if (text == m_filter.text())
        return;
    keepSelection([&] { m_filter.setText(text); });
    Q_EMIT searchTextChanged();
    Q_EMIT statusChanged();
}

QString EntitiesController::status() const
{
    const int shown = m_table.rowCount();
    const int all = m_entities.rowCount();
    const int selected = static_cast<int>(m_selection.entities().size());
    const QString count = shown == all ? tr("%1 entities").arg(all) : tr("%1 of %2 entities").arg(shown).arg(all);
    return selected == 0 ? count : tr("%1, %2 selected").arg(count).arg(selected);
}

void EntitiesController::zoomToSelection()
{
    velm::processCommand(L"ZOOM SELECTION");
}

OdDbObjectId EntitiesController::currentInTable() const
{
    return m_entities.entity(m_table.mapProxyRowToSource(m_table.selectionModel()->currentIndex().row()));
}

std::vector<OdDbObjectId> EntitiesController::selectedInTable() const
{
    std::vector<OdDbObjectId> entities;
    for (const QItemSelectionRange& range : m_table.selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            entities.push_back(m_entities.entity(m_table.mapProxyRowToSource(row)));
    std::ranges::sort(entities);
    // The cells of one row may lie in several ranges.
    const auto repeated = std::ranges::unique(entities);
    entities.erase(repeated.begin(), repeated.end());
    return entities;
}

void EntitiesController::tellSelection()
{
    if (m_isFollowing || selectsColumns())
        return;
    const QScopedValueRollback following(m_isFollowing, true);
    m_selection.set(selectedInTable(), currentInTable());
    Q_EMIT statusChanged();
}

void EntitiesController::tellCurrent()
{
    const OdDbObjectId current = currentInTable();
    // A click makes its cell the current one after it has selected.
    if (m_isFollowing || selectsColumns() || std::ranges::count(m_selection.entities(), current) == 0)
        return;
    const QScopedValueRollback following(m_isFollowing, true);
    m_selection.set(m_selection.entities(), current);
}

void EntitiesController::followSelection()
{
    if (m_isFollowing)
        return;
    Q_EMIT statusChanged();
    if (selectsColumns())
        return;
    const QScopedValueRollback following(m_isFollowing, true);
    std::vector<std::pair<int, OdDbObjectId>> shown;
    for (const OdDbObjectId& entity : m_selection.entities())
        if (const int row = m_table.mapSourceRowToProxy(m_entities.row(entity)); row >= 0)
            shown.emplace_back(row, entity);
    select(std::move(shown));
    const QModelIndex former = m_table.selectionModel()->currentIndex();
    const int current = m_table.mapSourceRowToProxy(m_entities.row(m_selection.current()));
    if (current < 0 || current == former.row())
        return;
    // The table brings its current row into view.
    m_table.selectionModel()->setCurrentIndex(m_table.index(current, std::max(0, former.column())),
                                              QItemSelectionModel::Current);
}

void EntitiesController::select(std::vector<std::pair<int, OdDbObjectId>> shown)
{
    std::ranges::sort(shown, {}, [](const auto& entry) { return entry.second; });
    // Selected cells stay what they are.
    if (std::ranges::equal(shown, selectedInTable(), {}, [](const auto& entry) { return entry.second; }))
        return;
    std::ranges::sort(shown);
    QItemSelection ranges;
    const int lastColumn = m_table.columnCount() - 1;
    for (auto first = shown.begin(); first != shown.end() && ranges.size() <= mostRanges;) {
        // Ranges are dear: one for all rows that lie together.
        auto last = first;
        while (last + 1 != shown.end() && (last + 1)->first == last->first + 1)
            ++last;
        ranges.select(m_table.index(first->first, 0), m_table.index(last->first, lastColumn));
        first = last + 1;
    }
    if (ranges.size() > mostRanges)
        ranges.clear();
    m_table.selectionModel()->select(ranges, QItemSelectionModel::ClearAndSelect);
}
} // namespace workbench
