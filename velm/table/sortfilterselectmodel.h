#pragma once

#include "velm/table/columncontextmenumodel.h"
#include "velm/table/rowfilter.h"
#include "velm/table/sorter.h"
#include "velm/velm_export.h"

#include <QItemSelectionModel>
#include <QSortFilterProxyModel>

#include <memory>

namespace velm {
/// The proxy under every table page: columns in the user's order and some of them hidden, sorting by the type of the
/// column, a row filter, selection, a keyboard cursor ("pre-focus"), hover and the row in which an edit begins. The
/// source describes its columns through the header roles of columns.h. The state of a cell is read through five roles,
/// "isSelected", "isHovered", "beginedit", "isPreFocusCell" and "isFocusCell"; their numbers differ from source to
/// source, and roleNames() tells them.
///
/// "Source" in a name means the source's numbering of rows and columns, "proxy" the one shown. Slots ignore bad
/// indexes. Rows don't move when cells change: sorting is always asked for. A reset of the source loses the sort, the
/// selection and the order of the columns, until loadColumnData(). Not supported: writing headers, and inserting and
/// removing columns, through the proxy.
class VELM_EXPORT SortFilterSelectModel : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_PROPERTY(QItemSelectionModel* selectionModel READ selectionModel CONSTANT)
    Q_PROPERTY(velm::ColumnContextMenuModel* columnModel READ columnModel CONSTANT)
    Q_PROPERTY(int proxySortColumn READ proxySortColumn NOTIFY proxySortColumnChanged)
    Q_PROPERTY(bool ascending READ ascending WRITE setAscending NOTIFY ascendingChanged)
    Q_PROPERTY(bool hasInitialSortColumn READ hasInitialSortColumn NOTIFY hasInitialSortColumnChanged)
    Q_PROPERTY(bool sortSourceModel READ sortSourceModel WRITE setSortSourceModel NOTIFY sortSourceModelChanged)
    Q_PROPERTY(SelectionMode selectionMode READ selectionMode WRITE setSelectionMode NOTIFY selectionModeChanged)
    Q_PROPERTY(QString parentId READ parentId WRITE setParentId NOTIFY parentIdChanged)
    Q_PROPERTY(int selectedSourcesCount READ selectedSourcesCount NOTIFY selectionChanged)
    Q_PROPERTY(QString defaultEditableColumnId READ defaultEditableColumnId WRITE setDefaultEditableColumnId NOTIFY
                   defaultEditableColumnIdChanged)
    Q_PROPERTY(QModelIndexList selectedSources READ selectedSources WRITE setSelectedSources NOTIFY selectionChanged)
    Q_PROPERTY(velm::RowFilter* filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(velm::Sorter* sorter READ sorter WRITE setSorter)
    Q_PROPERTY(int sortColumn READ sortColumn WRITE setSortColumn NOTIFY sortColumnChanged)
public:
    /// What a click selects.
    enum SelectionMode
    {
        Row = 0,
        Column = 1,
        Cell = 2,
    };
    Q_ENUM(SelectionMode)

    explicit SortFilterSelectModel(QObject* parent = nullptr);
    ~SortFilterSelectModel() override;

    /// "SortFilterSelectModel".
    static QString typeId();
    /// The settings of a new table, and the connection from the selection model; the constructor has called it.
    void initSortFilterSelectModel();

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;
    void setSourceModel(QAbstractItemModel* sourceModel) override;
    QModelIndex mapToSource(const QModelIndex& proxyIndex) const override;
    QModelIndex mapFromSource(const QModelIndex& sourceIndex) const override;

Q_SIGNALS:
    void selectionChanged();
    void proxySortColumnChanged();
    void ascendingChanged(bool ascending);
    void filterChanged();
    void defaultEditableColumnIdChanged();
    void parentIdChanged();
    void hasInitialSortColumnChanged();
    void sortSourceModelChanged();
    void selectionModeChanged();
    void sortColumnChanged();

public Q_SLOTS:
    // Mapping. Columns that aren't there are given back unchanged; rows that aren't there give -1.
    int mapProxyColumnToSource(int proxyColumn) const;
    /// For a hidden column the place that it would be shown at.
    int mapSourceColumnToProxy(int sourceColumn) const;
    int mapSourceRowToProxy(int sourceRow) const;
    int mapProxyRowToSource(int proxyRow) const;
    QModelIndex mapProxyIndexToSource(int proxyRow, int proxyColumn) const;
    QModelIndex mapProxyIndexToSource(QModelIndex proxyIndex) const;

    // Sorting.

    /// False, with nothing done, for a column that isn't there and, unless forced, for the order that stands already.
    bool doSort(int proxyColumn, bool isAscending, bool force = false);
    void unSort();
    bool isInitiallyAscending(int proxyColumn) const;
    /// -1 when the table isn't sorted.
    int proxySortColumn() const;
    bool ascending() const;
    void setAscending(bool ascending);
    RowFilter* filter() const;
    /// Not owned. Null is ignored: a filter can be replaced but not removed.
    void setFilter(RowFilter* filter);
    Sorter* sorter() const;
    /// Not owned. Takes the place of all comparisons from the next sort on; null gives them back.
    void setSorter(Sorter* sorter);
    /// Before a source is set, the column is kept for then.
    void setSortColumn(int column);
    /// In the base class's numbering: visible columns in the source's order.
    int sortColumn() const;
    QString parentId() const;
    /// The dialog id under which the columns are saved; empty to save nothing.
    void setParentId(QString id);
    bool isSourceColumnVisible(int sourceColumn) const;
    bool hasInitialSortColumn() const;
    bool sortSourceModel() const;
    /// Whether the source sorts itself, by its sort(), instead of the proxy.
    void setSortSourceModel(bool sortSource);
    SelectionMode selectionMode() const;
    void setSelectionMode(SelectionMode mode);
    QString defaultEditableColumnId() const;
    void setDefaultEditableColumnId(QString id);
    ColumnContextMenuModel* columnModel() const;
    QItemSelectionModel* selectionModel() const;

    // Selection. The forms with row and column reach top-level rows only.
    void updateSelection(QItemSelection selected, QItemSelection deselected);
    void shiftSelection(int row, int column);
    void shiftSelection(QModelIndex cell);
    void ctrlSelection(int row, int column);
    void ctrlSelection(QModelIndex cell);
    void leftClickSelection(int row, int column);
    void leftClickSelection(QModelIndex cell);
    void rightClickSelection(int row, int column);
    void rightClickSelection(QModelIndex cell);
    /// Makes sure that the cell is selected; one that isn't replaces the selection.
    void addToSelection(int row, int column);
    void addToSelection(QModelIndex cell);
    void clearSelection();
    bool isSelected(QModelIndex index, QModelIndex parent = QModelIndex()) const;
    bool isSelected(int row, int column, QModelIndex parent = QModelIndex()) const;
    /// All top-level rows, whatever the mode.
    void selectAll();
    void selectPreviousRow();
    void selectNextRow();

    // Pre-focus: a second cursor that the keyboard moves without a change of the selection. The moves by column begin
    // it, those by row need it.
    void increasePreFocusIndexRow();
    void decreasePreFocusIndexRow();
    void increasePreFocusIndexColumn();
    void decreasePreFocusIndexColumn();
    bool hasPreFocus() const;
    void unsetPreFocus();
    /// Ends the pre-focus, and gives false, while the current row has children.
    bool checkPreFocusOnParent(QModelIndex oldPreFocusIndex);
    /// The delegate of the pre-focused cell is to take the keyboard.
    void requestActiveFocusOnPrefocusedCell();
    void setHovered(int row, int column, bool hovered);
    /// -1 for none.
    void setBeginEditIndex(int row);
    /// Where the next shift click begins.
    QModelIndex getShiftSelectionStart() const;
    /// In rows, whatever the mode.
    int selectedSourcesCount() const;
    QModelIndexList selectedSources() const;
    void setSelectedSources(QModelIndexList selectedSources);

    // Columns. Widths in pixels.
    void moveColumn(int from, int to);
    void resizeColumn(int proxyColumn, int newSize);
    /// 100 for a column that isn't there.
    int columnWidth(int proxyColumn) const;
    int naturalWidth() const;
    /// A negative width is ignored, unlike by resizeColumn().
    void setColumnWidth(int proxyColumn, int width);
    int columnProportionalWidth(int proxyColumn) const;
    /// The sum over all columns; 0 when none has a share.
    int proportionalWidth() const;
    /// The last visible column can't be hidden.
    void setSourceColumnVisible(int sourceColumn, bool visible);
    void showAllColumns();
    void restoreColumnPositions();
    void saveColumnData() const;
    void loadColumnData();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    bool filterAcceptsColumn(int sourceColumn, const QModelIndex& sourceParent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    struct Pimpl;

    void sortBySourceColumn(int sourceColumn, Qt::SortOrder order);

    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
