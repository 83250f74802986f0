#pragma once

#include "velm/table/columnmap.h"
#include "velm/table/columnpersistence.h"
#include "velm/table/columns.h"
#include "velm/table/selectedcells.h"
#include "velm/table/selectionpolicy.h"
#include "velm/table/sortfilterselectmodel.h"
#include "velm/table/sortkeys.h"
#include "velm/table/tablecursor.h"

#include <QPersistentModelIndex>
#include <QPointer>

#include <memory>
#include <optional>
#include <vector>

namespace velm {
/// A selection model that tells before it changes, with or without a signal.
class WatchedSelectionModel : public QItemSelectionModel
{
public:
    using QItemSelectionModel::QItemSelectionModel;
    using QItemSelectionModel::select;

    void select(const QItemSelection& selection, SelectionFlags command) override
    {
        if (aboutToChange)
            aboutToChange();
        QItemSelectionModel::select(selection, command);
    }

    std::function<void()> aboutToChange;
};

/// The parts of the table and what ties them to the base class. Its functions stand beside the
/// slots that they serve: columns, what the source tells, selection, sorting and filtering, and the rest.
struct SortFilterSelectModel::Pimpl
{
    explicit Pimpl(SortFilterSelectModel& model);

    // The source.
    void connectBeforeBase(QAbstractItemModel& source);
    void connectBehindBase(QAbstractItemModel& source);
    void findRoles();
    const QHash<int, QByteArray>& namedRoles();
    void sourceReset();
    QVariant header(int sourceColumn, int role) const;

    // Columns.
    int headerWidth(int sourceColumn) const;
    int headerProportionalWidth(int sourceColumn) const;
    bool isHeaderVisible(int sourceColumn) const;
    void resetColumns(const QAbstractItemModel* source);
    void reorder(std::vector<int> order);
    void showColumns(std::vector<int> order);
    bool areWholeRowsSelected() const;
    void selectWholeRows();
    void takeSourceOrder();
    void prepareInsertedColumns(const QModelIndex& parent, int first, int last);
    void columnsAboutToBeInserted(const QModelIndex& parent, int first, int last);
    void columnsInserted(const QModelIndex& parent, int first, int last);
    void saveRemovedColumns(const QModelIndex& parent, int first, int last);
    void columnsAboutToBeRemoved(const QModelIndex& parent, int first, int last);
    void columnsRemoved(const QModelIndex& parent, int first, int last);
    bool isColumnRange(const QModelIndex& parent, int first, int last) const;
    std::optional<columnpersistence::SavedColumn> savedColumn(int sourceColumn, int defaultPosition) const;
    /// Keeps the base class from telling of changed cells and headers at the places where they'd be without the order.
    void beginForwarding(bool byColumn);
    bool endForwarding();
    bool isShown(const QModelIndex& sourceRow) const;
    void forwardDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles);
    void forwardHeaderDataChanged(Qt::Orientation orientation, int first, int last);

    // Sorting and filtering.
    void applyInitialSort(bool force);
    void sortIfSorted();
    void sourceRowsChanged();
    void dropKeys();
    void sortBase(int baseColumn, Qt::SortOrder order);
    std::optional<int> sourceColumnOfBase(int baseColumn) const;
    std::vector<int> sourceRows() const;
    std::vector<int> shownRows() const;
    const SortKeys* keysFor(const QModelIndex& sourceIndex);
    void filterInvalidated();
    void applyFilter();
    bool hasNoBranches() const;
    textranks::Ranks placesOf(const std::vector<int>& order, std::size_t rowCount) const;

    // Selection.
    SelectionPolicy policy() { return {selectionModel, selectionMode}; }
    bool isOwn(const QModelIndex& cell) const { return cell.isValid() && cell.model() == q; }
    const SelectedCells& cells();

    SortFilterSelectModel* const q; // not owned
    WatchedSelectionModel selectionModel;
    std::optional<SelectedCells> selectedCells; // made at need
    int selectedRole = -1;
    TableCursor cursor;
    QString defaultEditableColumnId;
    ColumnMap columns;
    ColumnContextMenuModel columnMenu;
    std::unique_ptr<QObject> connectionKeeper; // the context of all connections from the source
    int sourceSortColumn = -1;
    QPointer<RowFilter> rowFilter; // not owned
    QPointer<Sorter> sorter;       // not owned
    std::optional<int> pendingSortColumn;
    QString parentId;
    int sortType = SortByValueType;
    bool hasInitialSortColumn = false;
    bool sortSourceModel = false;
    bool sourceSortDescending = false;
    SelectionMode selectionMode = Row;

    QHash<int, QByteArray> sourceRoleNames; // those that roleNames was made from
    QHash<int, QByteArray> roleNames;

    /// Between two signals of a source that inserts or removes columns: the order to come back to.
    std::optional<std::vector<int>> orderToRestore;
    bool isForwarding = false;
    bool signalsWereBlocked = false;

    /// While one of these lives, the source doesn't change and comparisons may use keys made before.
    class KeyScope
    {
    public:
        explicit KeyScope(Pimpl& pimpl) : m_pimpl(pimpl) { ++m_pimpl.keyScopes; }
        ~KeyScope()
        {
            if (--m_pimpl.keyScopes == 0)
                m_pimpl.keys = {};
        }
        KeyScope(const KeyScope&) = delete;
        KeyScope& operator=(const KeyScope&) = delete;

    private:
        Pimpl& m_pimpl;
    };

    struct Keys
    {
        std::unique_ptr<SortKeys> keys;
        QPersistentModelIndex parent; // whose children they order
        int column = -1;
        qsizetype comparisons = 0; // made without keys
    };
    Keys keys;
    int keyScopes = 0;
    const SortKeys* onlyKeys = nullptr; // not owned; during a sort of a flat source, whose rows have one parent
    std::optional<KeyScope> resetScope;
    bool sourceIsFlat = false;

    // What the filter said of the top-level rows when it was applied last; by source row.
    std::vector<char> accepted;
    bool acceptedIsShown = false; // no row has come or gone since
    bool isFiltering = false;     // the base class is to take what stands in `accepted`
};
} // namespace velm
