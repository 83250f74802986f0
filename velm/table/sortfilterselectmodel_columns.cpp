// The columns of the table: which source column stands where, and how views are told of it.
//
// The base class numbers visible columns in the source's order and knows nothing of another one. Where it inserts or
// removes columns itself, the table is brought into the source's order before and into its own again behind, so that
// what it tells of, and the persistent indexes that it moves, are the right ones.

#include "velm/table/columns.h"
#include "velm/table/keptselection.h"
#include "velm/table/sortfilterselectmodel_p.h"

#include <QSize>

#include <algorithm>
#include <limits>
#include <numeric>
#include <tuple>

namespace velm {
namespace {
constexpr int defaultWidth = 100;

std::vector<int> sorted(std::vector<int> columns)
{
    std::sort(columns.begin(), columns.end());
    return columns;
}

} // namespace

// What the source says of its columns.

int SortFilterSelectModel::Pimpl::headerWidth(int sourceColumn) const
{
    const int width = header(sourceColumn, Qt::SizeHintRole).toSize().width();
    return width > 0 ? width : defaultWidth;
}

int SortFilterSelectModel::Pimpl::headerProportionalWidth(int sourceColumn) const
{
    return std::max(header(sourceColumn, ColumnProportionalSizeRole).toInt(), 0);
}

bool SortFilterSelectModel::Pimpl::isHeaderVisible(int sourceColumn) const
{
    const QVariant visible = header(sourceColumn, ColumnInitiallyVisibleRole);
    return visible.metaType().id() != QMetaType::Bool || visible.toBool();
}

void SortFilterSelectModel::Pimpl::resetColumns(const QAbstractItemModel* source)
{
    const int count = source ? source->columnCount() : 0;
    std::vector<ColumnState> states(static_cast<std::size_t>(count));
    std::vector<int> order;
    for (int column = 0; column < count; ++column) {
        const auto ask = [&](int role) { return source->headerData(column, Qt::Horizontal, role); };
        const int width = ask(Qt::SizeHintRole).toSize().width();
        const QVariant visible = ask(ColumnInitiallyVisibleRole);
        states[static_cast<std::size_t>(column)] = {column, width > 0 ? width : defaultWidth,
                                                    std::max(ask(ColumnProportionalSizeRole).toInt(), 0), true};
        if (visible.metaType().id() != QMetaType::Bool || visible.toBool())
            order.push_back(column);
    }
    columns.reset(std::move(states), std::move(order));
}

bool SortFilterSelectModel::filterAcceptsColumn(int sourceColumn, const QModelIndex& /*sourceParent*/) const
{
    return m_pimpl->columns.isVisible(sourceColumn);
}

bool SortFilterSelectModel::isSourceColumnVisible(int sourceColumn) const
{
    return m_pimpl->columns.isVisible(sourceColumn);
}

// Changes of the order.

/// The same columns in another order.
void SortFilterSelectModel::Pimpl::reorder(std::vector<int> order)
{
    if (order == columns.order())
        return;
    const KeptSelection selection(*q, columns);
    Q_EMIT q->layoutAboutToBeChanged({}, QAbstractItemModel::HorizontalSortHint);
    const QModelIndexList from = q->persistentIndexList();
    const ColumnMap before = columns;
    columns.setOrder(std::move(order));
    QModelIndexList to;
    to.reserve(from.size());
    for (const QModelIndex& index : from)
        to.append(
            q->createIndex(index.row(), columns.toProxy(before.toSource(index.column())), index.internalPointer()));
    q->changePersistentIndexList(from, to);
    Q_EMIT q->layoutChanged({}, QAbstractItemModel::HorizontalSortHint);
    selection.putBack();
}

/// Until columns have come or gone.
void SortFilterSelectModel::Pimpl::takeSourceOrder()
{
    orderToRestore = columns.order();
    reorder(sorted(columns.order()));
}

/// Other columns, with their order; applies the filters.
void SortFilterSelectModel::Pimpl::showColumns(std::vector<int> order)
{
    const ColumnMap before = columns;
    if (sorted(order) == sorted(before.order())) {
        reorder(std::move(order));
        q->invalidateFilter();
        return;
    }
    const bool wholeRows = selectionMode == Row && areWholeRowsSelected();
    reorder(sorted(before.order()));
    columns.setOrder(sorted(order));
    q->invalidateFilter();
    reorder(std::move(order));
    for (int column = 0; column < columns.sourceCount(); ++column)
        if (!columns.isVisible(column))
            columns.setPosition(column, before.state(column)->position);
    if (wholeRows && columns.shownCount() > before.shownCount())
        selectWholeRows();
}

bool SortFilterSelectModel::Pimpl::areWholeRowsSelected() const
{
    const QItemSelection selection = selectionModel.selection();
    return std::all_of(selection.begin(), selection.end(), [this](const QItemSelectionRange& range) {
        return range.left() == 0 && range.right() == q->columnCount(range.parent()) - 1;
    });
}

/// A column that comes is no part of the ranges selected until then, but it is of their rows.
void SortFilterSelectModel::Pimpl::selectWholeRows()
{
    using Rows = std::tuple<QModelIndex, int, int>;
    std::vector<Rows> selected;
    for (const QItemSelectionRange& range : selectionModel.selection())
        selected.emplace_back(range.parent(), range.top(), range.bottom());
    if (selected.empty())
        return;
    std::sort(selected.begin(), selected.end());
    selected.erase(std::unique(selected.begin(), selected.end()), selected.end());
    QItemSelection selection;
    for (const auto& [parent, top, bottom] : selected)
        selection.append(
            QItemSelectionRange(q->index(top, 0, parent), q->index(bottom, q->columnCount(parent) - 1, parent)));
    selectionModel.clearSelection();
    selectionModel.select(selection, QItemSelectionModel::Select);
}

void SortFilterSelectModel::moveColumn(int from, int to)
{
    if (from == to)
        return;
    const auto isValid = [this](int column) { return column >= 0 && column < columnCount(); };
    const auto debug = [] { return QMessageLogger(nullptr, 0, nullptr).debug(); };
    if (!isValid(from)) {
        debug() << "move from column," << from << ", is not valid";
        return;
    }
    if (!isValid(to)) {
        debug() << "move to column," << to << ", is not valid";
        return;
    }
    Pimpl& p = *m_pimpl;
    const KeptSelection selection(*this, p.columns);
    const int destination = to > from ? to + 1 : to;
    if (!beginMoveColumns(QModelIndex(), from, from, QModelIndex(), destination)) {
        debug() << "Invalid move operation. from:" << from << "to index:" << destination;
        return;
    }
    const ColumnMap before = p.columns;
    std::vector<int> order = before.order();
    const int source = order[static_cast<std::size_t>(from)];
    order.erase(order.begin() + from);
    order.insert(order.begin() + to, source);
    p.columns.setOrder(std::move(order));
    // The move concerns top-level cells alone, but their children have the same columns.
    for (const QModelIndex& index : persistentIndexList())
        if (index.parent().isValid())
            changePersistentIndex(index, createIndex(index.row(), p.columns.toProxy(before.toSource(index.column())),
                                                     index.internalPointer()));
    endMoveColumns();
    Q_EMIT proxySortColumnChanged();
    selection.putBack();
}

void SortFilterSelectModel::setSourceColumnVisible(int sourceColumn, bool visible)
{
    Pimpl& p = *m_pimpl;
    if (!p.columns.state(sourceColumn))
        return;
    if (!visible && p.columns.shownCount() < 2)
        return;
    if (visible != p.columns.isVisible(sourceColumn))
        p.showColumns(visible ? p.columns.orderWith(sourceColumn) : p.columns.orderWithout(sourceColumn));
    Q_EMIT proxySortColumnChanged();
}

void SortFilterSelectModel::showAllColumns()
{
    if (!sourceModel())
        return;
    ColumnMap shown = m_pimpl->columns;
    for (int column = 0; column < shown.sourceCount(); ++column)
        shown.setOrder(shown.orderWith(column));
    m_pimpl->showColumns(shown.order());
    Q_EMIT proxySortColumnChanged();
}

void SortFilterSelectModel::restoreColumnPositions()
{
    const Pimpl::KeyScope scope(*m_pimpl);
    beginResetModel();
    m_pimpl->columns.setOrder(sorted(m_pimpl->columns.order()));
    endResetModel();
    m_pimpl->sortIfSorted();
    Q_EMIT proxySortColumnChanged();
}

// Widths.

void SortFilterSelectModel::resizeColumn(int proxyColumn, int newSize)
{
    m_pimpl->columns.setWidth(mapProxyColumnToSource(proxyColumn), newSize);
}

void SortFilterSelectModel::setColumnWidth(int proxyColumn, int width)
{
    if (width >= 0)
        resizeColumn(proxyColumn, width);
}

int SortFilterSelectModel::columnWidth(int proxyColumn) const
{
    const ColumnState* state = m_pimpl->columns.shown(proxyColumn);
    return state ? state->width : defaultWidth;
}

int SortFilterSelectModel::columnProportionalWidth(int proxyColumn) const
{
    const ColumnState* state = m_pimpl->columns.shown(proxyColumn);
    return state ? state->proportionalWidth : 0;
}

namespace {
int sumOverColumns(int count, auto width)
{
    using Limits = std::numeric_limits<int>;
    long long sum = 0;
    for (int column = 0; column < count; ++column)
        sum += width(column);
    return static_cast<int>(std::clamp<long long>(sum, Limits::min(), Limits::max()));
}
} // namespace

int SortFilterSelectModel::naturalWidth() const
{
    return sumOverColumns(m_pimpl->columns.shownCount(), [this](int column) { return columnWidth(column); });
}

int SortFilterSelectModel::proportionalWidth() const
{
    return sumOverColumns(m_pimpl->columns.shownCount(),
                          [this](int column) { return columnProportionalWidth(column); });
}

// Persistence.

std::optional<columnpersistence::SavedColumn> SortFilterSelectModel::Pimpl::savedColumn(int sourceColumn,
                                                                                        int defaultPosition) const
{
    return columnpersistence::read(header(sourceColumn, ColumnIdRole).toString(),
                                   {headerWidth(sourceColumn), defaultPosition, isHeaderVisible(sourceColumn)},
                                   parentId);
}

void SortFilterSelectModel::saveColumnData() const
{
    if (!sourceModel())
        return;
    std::vector<columnpersistence::NamedState> columns;
    for (int column = 0; column < m_pimpl->columns.sourceCount(); ++column)
        columns.push_back({m_pimpl->header(column, ColumnIdRole).toString(), *m_pimpl->columns.state(column)});
    columnpersistence::writeAll(std::move(columns), m_pimpl->parentId);
}

void SortFilterSelectModel::loadColumnData()
{
    Pimpl& p = *m_pimpl;
    if (!sourceModel() || p.columns.shownCount() == 0)
        return;
    struct Saved
    {
        int source;
        columnpersistence::SavedColumn column;
    };
    std::vector<Saved> saved;
    for (int column = 0; column < p.columns.sourceCount(); ++column)
        if (const auto found = p.savedColumn(column, 0))
            saved.push_back({column, *found});
    std::stable_sort(saved.begin(), saved.end(), [](const Saved& left, const Saved& right) {
        return left.column.position < right.column.position;
    });
    std::vector<int> order;
    for (const Saved& entry : saved) {
        p.columns.setWidth(entry.source, entry.column.width);
        if (entry.column.visible && entry.column.position >= 0)
            order.push_back(entry.source);
    }
    // The columns first: the base class finds the one to sort by among those that it shows.
    p.showColumns(order.empty() ? p.columns.order() : std::move(order));
    p.applyInitialSort(true);
}
} // namespace velm
