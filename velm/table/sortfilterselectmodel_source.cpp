// What the source tells of its columns and cells, and how views hear of it where the table's order is another.

#include "velm/table/columns.h"
#include "velm/table/keptselection.h"
#include "velm/table/sortfilterselectmodel_p.h"

#include <algorithm>
#include <limits>

namespace velm {
namespace {
constexpr int insertedWidth = 80;
} // namespace

// Columns that come and go.

bool SortFilterSelectModel::Pimpl::isColumnRange(const QModelIndex& parent, int first, int last) const
{
    return !parent.isValid() && first >= 0 && first <= columns.sourceCount() && first <= last;
}

void SortFilterSelectModel::Pimpl::prepareInsertedColumns(const QModelIndex& parent, int first, int last)
{
    if (isColumnRange(parent, first, last))
        takeSourceOrder();
}

void SortFilterSelectModel::Pimpl::columnsAboutToBeInserted(const QModelIndex& parent, int first, int last)
{
    if (!isColumnRange(parent, first, last))
        return;
    std::vector<ColumnState> states;
    for (int column = first; column <= last; ++column)
        states.push_back({-1, insertedWidth, headerProportionalWidth(column), true});
    columns.insert(first, states);
}

void SortFilterSelectModel::Pimpl::columnsInserted(const QModelIndex& parent, int first, int last)
{
    if (!isColumnRange(parent, first, last))
        return;
    std::vector<int> order = columns.order();
    if (orderToRestore) {
        order = *std::exchange(orderToRestore, std::nullopt);
        for (int& column : order)
            if (column >= first)
                column += last - first + 1;
    }
    for (int column = first; column <= last && column < columns.sourceCount(); ++column) {
        int width = headerWidth(column);
        bool visible = isHeaderVisible(column);
        const int size = static_cast<int>(order.size());
        int position = std::min(columns.state(column)->position, size);
        if (const auto saved = savedColumn(column, position)) {
            width = saved->width;
            visible = saved->visible;
            position = std::clamp(saved->position, 0, size);
            columns.setPosition(column, position);
        }
        columns.setWidth(column, width);
        if (visible)
            order.insert(order.begin() + position, column);
    }
    showColumns(std::move(order));
    cursor.forgetFocus();
    if (first <= sourceSortColumn)
        sourceSortColumn += first - last + 1; // exact for one column only: this must stay
    Q_EMIT q->proxySortColumnChanged();
}

void SortFilterSelectModel::Pimpl::saveRemovedColumns(const QModelIndex& parent, int first, int last)
{
    if (!isColumnRange(parent, first, last))
        return;
    for (int column = first; column <= last; ++column)
        if (const ColumnState* state = columns.state(column))
            columnpersistence::write(header(column, ColumnIdRole).toString(), *state, parentId);
    takeSourceOrder();
}

void SortFilterSelectModel::Pimpl::columnsAboutToBeRemoved(const QModelIndex& parent, int first, int last)
{
    if (!isColumnRange(parent, first, last))
        return;
    columns.remove(first, last);
}

void SortFilterSelectModel::Pimpl::columnsRemoved(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid() || first < 0 || first > last)
        return;
    q->invalidateFilter();
    if (auto order = std::exchange(orderToRestore, std::nullopt)) {
        std::erase_if(*order, [=](int column) { return column >= first && column <= last; });
        for (int& column : *order)
            if (column > last)
                column -= last - first + 1;
        if (std::is_permutation(order->begin(), order->end(), columns.order().begin(), columns.order().end()))
            reorder(std::move(*order));
    }
    if (first <= sourceSortColumn)
        sourceSortColumn = last < sourceSortColumn ? sourceSortColumn - first - 1 + last // exact for one column only:
                                                   : -1;                                 // this must stay
    Q_EMIT q->proxySortColumnChanged();
}

// Changed cells and headers.

void SortFilterSelectModel::Pimpl::beginForwarding(bool byColumn)
{
    // With these two on, the base class may tell of rows and layout as well.
    isForwarding = byColumn && !columns.isInSourceOrder();
    if (isForwarding && !q->dynamicSortFilter() && !q->isRecursiveFilteringEnabled())
        signalsWereBlocked = q->blockSignals(true);
    else
        signalsWereBlocked = q->signalsBlocked();
}

bool SortFilterSelectModel::Pimpl::endForwarding()
{
    if (isForwarding)
        q->blockSignals(signalsWereBlocked);
    return std::exchange(isForwarding, false);
}

/// Whether children of a source row may be asked for. The base class would remember those of rows that aren't shown,
/// and show them wrongly when the row comes back.
bool SortFilterSelectModel::Pimpl::isShown(const QModelIndex& sourceRow) const
{
    return !sourceRow.isValid() || (isShown(sourceRow.parent()) && q->mapFromSource(sourceRow).isValid());
}

void SortFilterSelectModel::Pimpl::forwardDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                                      const QList<int>& roles)
{
    if (!topLeft.isValid() || !bottomRight.isValid())
        return;
    const QModelIndex parent = topLeft.parent();
    if (!isShown(parent))
        return;
    std::vector<int> places;
    int anyColumn = -1;
    for (int column = topLeft.column(); column <= bottomRight.column(); ++column) {
        if (!columns.isVisible(column))
            continue;
        anyColumn = column;
        places.push_back(columns.toProxy(column));
    }
    if (places.empty())
        return;
    int top = std::numeric_limits<int>::max();
    int bottom = -1;
    QPersistentModelIndex shown; // what hears of one range may change the rows before the next
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        const QModelIndex cell = q->mapFromSource(q->sourceModel()->index(row, anyColumn, parent));
        if (!cell.isValid())
            continue;
        if (bottom < 0)
            shown = cell;
        top = std::min(top, cell.row());
        bottom = std::max(bottom, cell.row());
    }
    forEachRun(std::move(places), [&](int first, int last) {
        if (shown.isValid())
            Q_EMIT q->dataChanged(shown.sibling(top, first), shown.sibling(bottom, last), roles);
    });
}

void SortFilterSelectModel::Pimpl::forwardHeaderDataChanged(Qt::Orientation orientation, int first, int last)
{
    std::vector<int> places;
    for (int column = first; column <= last; ++column)
        if (columns.isVisible(column))
            places.push_back(columns.toProxy(column));
    forEachRun(std::move(places), [&](int begin, int end) { Q_EMIT q->headerDataChanged(orientation, begin, end); });
}
} // namespace velm
