// Sorting and filtering of the table. Both are the base class's own; what is here is their order of steps, the keys
// that make comparisons cheap, and a way around the base class's slowness where a filter changes in very many places.

#include "velm/table/cellcomparison.h"
#include "velm/table/columns.h"
#include "velm/table/keptselection.h"
#include "velm/table/sortfilterselectmodel_p.h"

#include <algorithm>
#include <numeric>

namespace velm {
namespace {
// The base class tells of each changed range of rows by itself and goes through all rows for it. Up to this product of
// rows and ranges that takes less than making the order anew.
constexpr qint64 cheapRangeSteps = 20'000'000;
} // namespace

// Sorting.

bool SortFilterSelectModel::doSort(int proxyColumn, bool isAscending, bool force)
{
    Pimpl& p = *m_pimpl;
    if (proxyColumn < 0 || proxyColumn >= p.columns.shownCount())
        return false;
    const int source = p.columns.toSource(proxyColumn);
    if (!force && isAscending == ascending() && source == p.sourceSortColumn)
        return false;
    if (p.columns.state(source) && source - p.columns.hiddenBefore(source) >= 0) {
        p.sourceSortColumn = source;
        const QVariant type = p.header(source, ColumnSortTypeRole);
        p.sortType = type.isValid() && type.canConvert<int>() ? type.toInt() : static_cast<int>(SortByValueType);
    } else {
        p.sourceSortColumn = -1;
    }
    sortBySourceColumn(source, isAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
    Q_EMIT ascendingChanged(isAscending);
    Q_EMIT proxySortColumnChanged();
    return true;
}

void SortFilterSelectModel::sortBySourceColumn(int sourceColumn, Qt::SortOrder order)
{
    Pimpl& p = *m_pimpl;
    if (p.sortSourceModel) {
        if (sourceModel())
            sourceModel()->sort(sourceColumn, order);
        p.sourceSortDescending = order == Qt::DescendingOrder;
        return;
    }
    if (sourceColumn < 0) {
        sort(-1, Qt::AscendingOrder);
        return;
    }
    const int baseColumn = p.sourceSortColumn - p.columns.hiddenBefore(p.sourceSortColumn);
    if (baseColumn >= 0 && baseColumn < columnCount())
        p.sortBase(baseColumn, order);
}

void SortFilterSelectModel::unSort()
{
    Pimpl& p = *m_pimpl;
    p.sourceSortColumn = -1;
    if (p.sortSourceModel) {
        if (sourceModel())
            sourceModel()->sort(-1, Qt::AscendingOrder);
        p.sourceSortDescending = false;
    } else {
        sort(-1, Qt::AscendingOrder);
    }
    Q_EMIT proxySortColumnChanged();
}

bool SortFilterSelectModel::isInitiallyAscending(int proxyColumn) const
{
    const QVariant order = headerData(proxyColumn, Qt::Horizontal, Qt::InitialSortOrderRole);
    return !order.isValid() || order.toInt() == Qt::AscendingOrder;
}

int SortFilterSelectModel::proxySortColumn() const
{
    const ColumnState* state = m_pimpl->columns.state(m_pimpl->sourceSortColumn);
    return state ? state->position : m_pimpl->sourceSortColumn;
}

bool SortFilterSelectModel::ascending() const
{
    return m_pimpl->sortSourceModel ? !m_pimpl->sourceSortDescending : sortOrder() == Qt::AscendingOrder;
}

void SortFilterSelectModel::setAscending(bool value)
{
    if (value == ascending())
        return;
    sortBySourceColumn(m_pimpl->sourceSortColumn, value ? Qt::AscendingOrder : Qt::DescendingOrder);
    Q_EMIT ascendingChanged(value);
}

void SortFilterSelectModel::setSortColumn(int column)
{
    if (column == sortColumn())
        return;
    if (!sourceModel()) {
        m_pimpl->pendingSortColumn = column;
        return;
    }
    if (!doSort(column, ascending(), false))
        m_pimpl->sortBase(column, sortOrder());
    if (column == sortColumn())
        Q_EMIT sortColumnChanged();
}

int SortFilterSelectModel::sortColumn() const
{
    return QSortFilterProxyModel::sortColumn();
}

bool SortFilterSelectModel::hasInitialSortColumn() const
{
    return m_pimpl->hasInitialSortColumn;
}

bool SortFilterSelectModel::sortSourceModel() const
{
    return m_pimpl->sortSourceModel;
}

void SortFilterSelectModel::setSortSourceModel(bool sortSource)
{
    if (sortSource == m_pimpl->sortSourceModel)
        return;
    m_pimpl->sortSourceModel = sortSource;
    Q_EMIT sortSourceModelChanged();
}

Sorter* SortFilterSelectModel::sorter() const
{
    return m_pimpl->sorter;
}

void SortFilterSelectModel::setSorter(Sorter* sorter)
{
    m_pimpl->sorter = sorter;
}

void SortFilterSelectModel::Pimpl::applyInitialSort(bool force)
{
    const auto isInitial = [this](int column) { return header(column, ColumnIsInitialSortColumnRole).toBool(); };
    int initial = 0;
    while (initial < columns.sourceCount() && !isInitial(initial))
        ++initial;
    const bool found = initial < columns.sourceCount();
    const bool changed = found != hasInitialSortColumn;
    hasInitialSortColumn = found;
    if (found) {
        const int position = columns.state(initial)->position;
        if (position >= 0)
            q->doSort(position, q->isInitiallyAscending(position), force);
    }
    if (changed)
        Q_EMIT q->hasInitialSortColumnChanged();
}

/// Lets the base class sort what it would sort when it is asked for the first row.
void SortFilterSelectModel::Pimpl::sortIfSorted()
{
    if (q->QSortFilterProxyModel::sortColumn() >= 0)
        q->rowCount();
}

/// What was computed for the rows as they were is of no use now.
void SortFilterSelectModel::Pimpl::sourceRowsChanged()
{
    dropKeys();
    acceptedIsShown = false;
    isFiltering = false;
}

void SortFilterSelectModel::Pimpl::dropKeys()
{
    onlyKeys = nullptr;
    keys = {};
}

/// A sort by a column of the base class's numbering, with the keys of all shown rows made before.
void SortFilterSelectModel::Pimpl::sortBase(int baseColumn, Qt::SortOrder order)
{
    const KeyScope scope(*this);
    dropKeys();
    const std::optional<int> column = sourceColumnOfBase(baseColumn);
    if (column && !sorter) {
        const SortedCells cells{q->sourceModel(), {}, *column, q->sortRole(), shownRows()};
        keys = {makeSortKeys(cells, sortType,
                             [this](const QModelIndex& left, const QModelIndex& right) {
                                 return q->QSortFilterProxyModel::lessThan(left, right);
                             }),
                {},
                *column,
                0};
    }
    onlyKeys = sourceIsFlat ? keys.keys.get() : nullptr;
    q->sort(baseColumn, order);
    onlyKeys = nullptr;
}

std::optional<int> SortFilterSelectModel::Pimpl::sourceColumnOfBase(int baseColumn) const
{
    for (int column = 0; column < columns.sourceCount(); ++column)
        if (columns.isVisible(column) && baseColumn-- == 0)
            return column;
    return std::nullopt;
}

/// The top-level rows of the source that the table shows, in its order.
std::vector<int> SortFilterSelectModel::Pimpl::sourceRows() const
{
    std::vector<int> rows(static_cast<std::size_t>(q->rowCount()));
    for (std::size_t row = 0; row < rows.size(); ++row)
        rows[row] = q->QSortFilterProxyModel::mapToSource(q->index(static_cast<int>(row), 0)).row();
    return rows;
}

/// The same in the source's order.
std::vector<int> SortFilterSelectModel::Pimpl::shownRows() const
{
    if (q->rowCount() != q->sourceModel()->rowCount()) {
        std::vector<int> rows = sourceRows();
        std::sort(rows.begin(), rows.end());
        return rows;
    }
    std::vector<int> rows(static_cast<std::size_t>(q->rowCount()));
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

/// The keys for the siblings of an index, or null while comparisons without them are cheaper.
const SortKeys* SortFilterSelectModel::Pimpl::keysFor(const QModelIndex& sourceIndex)
{
    // The base class also compares cells of a column that a new source no longer has.
    if (keyScopes == 0 || !sourceIndex.isValid())
        return nullptr;
    const QModelIndex parent = sourceIsFlat ? QModelIndex() : sourceIndex.parent();
    if (sourceIndex.column() != keys.column || parent != keys.parent)
        keys = {nullptr, parent, sourceIndex.column(), 0};
    if (keys.keys || sorter)
        return keys.keys.get();
    const int rows = sourceIndex.model()->rowCount(parent);
    if (++keys.comparisons <= rows / 8)
        return nullptr;
    SortedCells cells{sourceIndex.model(), parent, sourceIndex.column(), q->sortRole(), {}};
    cells.rows.resize(static_cast<std::size_t>(rows));
    std::iota(cells.rows.begin(), cells.rows.end(), 0);
    keys.keys = makeSortKeys(cells, sortType, [this](const QModelIndex& left, const QModelIndex& right) {
        return q->QSortFilterProxyModel::lessThan(left, right);
    });
    return keys.keys.get();
}

bool SortFilterSelectModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    Pimpl& p = *m_pimpl;
    if (p.onlyKeys)
        return p.onlyKeys->lessThan(left.row(), right.row());
    if (const SortKeys* keys = p.keysFor(left))
        return keys->lessThan(left.row(), right.row());
    if (p.sorter)
        return p.sorter->lessThan(left, right);
    if (p.sortType == SortProxyDefault || p.sortType == SortProxyDefaultAlt)
        return QSortFilterProxyModel::lessThan(left, right);
    return cellcomparison::cellsLessThan(left, right, p.sortType, sortRole());
}

// Filtering.

RowFilter* SortFilterSelectModel::filter() const
{
    return m_pimpl->rowFilter;
}

void SortFilterSelectModel::setFilter(RowFilter* filter)
{
    if (!filter || filter == m_pimpl->rowFilter)
        return;
    m_pimpl->rowFilter = filter;
    // A filter that was set before stays connected: this must stay.
    connect(filter, &RowFilter::invalidate, this, [this] { m_pimpl->filterInvalidated(); });
    Q_EMIT filterChanged();
}

bool SortFilterSelectModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    Pimpl& p = *m_pimpl;
    if (p.isFiltering && !sourceParent.isValid() && static_cast<std::size_t>(sourceRow) < p.accepted.size())
        return p.accepted[static_cast<std::size_t>(sourceRow)];
    if (p.rowFilter)
        return p.rowFilter->rowFilter(sourceModel(), sourceRow, sourceParent);
    return QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent);
}

void SortFilterSelectModel::Pimpl::filterInvalidated()
{
    const int before = q->rowCount();
    applyFilter();
    // Rows that came back aren't in order; those that stayed are.
    if (q->rowCount() >= before)
        q->doSort(q->mapSourceColumnToProxy(sourceSortColumn), q->ascending(), true);
}

/// As invalidateFilter(), but with one change of the layout in place of the signals for very many ranges of rows. A
/// tree isn't told that way.
void SortFilterSelectModel::Pimpl::applyFilter()
{
    const KeyScope scope(*this);
    QAbstractItemModel* const source = q->sourceModel();
    const int rows = source ? source->rowCount() : 0;
    if (qint64(rows) * rows <= cheapRangeSteps || q->columnCount() == 0) {
        q->invalidateFilter();
        return;
    }

    std::vector<char> before = std::exchange(accepted, {});
    if (!acceptedIsShown) {
        before.assign(static_cast<std::size_t>(rows), q->rowCount() == rows);
        if (q->rowCount() != rows)
            for (const int row : sourceRows())
                before[static_cast<std::size_t>(row)] = true;
    }
    std::vector<char> now(static_cast<std::size_t>(rows));
    RowFilter* const filter = rowFilter;
    for (int row = 0; row < rows; ++row)
        now[static_cast<std::size_t>(row)] =
            filter ? filter->rowFilter(source, row, {}) : q->filterAcceptsRow(row, QModelIndex());

    qint64 changedRanges = 0;
    char last = 0;
    const auto count = [&](std::size_t row) {
        const char change = static_cast<char>(now[row] - before[row]);
        changedRanges += change != 0 && change != last;
        last = change;
    };
    const std::optional<int> sortedColumn = sourceColumnOfBase(q->QSortFilterProxyModel::sortColumn());
    const std::vector<int> order = sortedColumn ? sourceRows() : std::vector<int>();
    for (const int row : order)
        count(static_cast<std::size_t>(row));
    for (std::size_t row = 0; row < now.size(); ++row) {
        if (!sortedColumn)
            count(row);
        else
            changedRanges += now[row] && !before[row]; // each at a place of its own
    }

    accepted = std::move(now);
    isFiltering = true;
    if (changedRanges * rows <= cheapRangeSteps || !hasNoBranches()) {
        q->invalidateFilter();
    } else {
        // The selection model would keep the places of selected rows where all are selected, and tell nobody.
        const KeptRows selected(*q);
        if (sortedColumn && isFiltering) // unless who heard of the selection changed the rows
            keys = {makeSortKeys(placesOf(order, before.size())), {}, *sortedColumn, 0};
        q->invalidate();
        q->rowCount(); // filters and sorts, if nothing else asked for it
        selected.putBack();
    }
    acceptedIsShown = std::exchange(isFiltering, false);
}

bool SortFilterSelectModel::Pimpl::hasNoBranches() const
{
    if (sourceIsFlat)
        return true;
    const QAbstractItemModel& source = *q->sourceModel();
    for (int row = 0; row < source.rowCount(); ++row)
        if (source.hasChildren(source.index(row, 0)))
            return false;
    return true;
}

/// By source row the places of rows in this order, as the base class compares now; those of other rows behind them.
textranks::Ranks SortFilterSelectModel::Pimpl::placesOf(const std::vector<int>& order, std::size_t rowCount) const
{
    const auto notShown = static_cast<std::uint32_t>(rowCount);
    const bool isDescending = q->sortOrder() == Qt::DescendingOrder;
    textranks::Ranks places(rowCount, isDescending ? 0 : notShown);
    for (std::size_t place = 0; place < order.size(); ++place)
        places[static_cast<std::size_t>(order[place])] =
            static_cast<std::uint32_t>(isDescending ? notShown - place : place);
    return places;
}
} // namespace velm
