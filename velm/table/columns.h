#pragma once

#include "velm/velm_export.h"

#include <QByteArray>
#include <QHash>
#include <QSize>
#include <QString>
#include <QVariant>

#include <wx/string.h>

#include <vector>

namespace velm {
/// How a column's cells compare; the comparisons stand in comparators.h.
enum SortType
{
    SortAlphanumeric = 0,    ///< stringsLessThan
    SortCaseInsensitive = 1, ///< QString::compare without regard to case
    SortProxyDefault = 2,    ///< QSortFilterProxyModel::lessThan
    SortProxyDefaultAlt = 3, ///< as SortProxyDefault
    SortByValueType = 4,     ///< by the type of the left value
    SortAlphanumericAlt = 5, ///< as SortAlphanumeric
    SortInteger = 6,         ///< integersLessThan
    SortDouble = 7,          ///< doublesLessThan
    SortFileSize = 8,        ///< fileSizeLessThan
    SortToggleDisabled = 9,  ///< toggleDisabledLessThan
    SortPlotStyle = 10,      ///< plotStylesLessThan
    SortPixelSize = 11,      ///< pixelSizeLessThan
    SortDimStyle = 12,       ///< dimStylesLessThan
    SortDecoration = 13,     ///< stringsLessThan of Qt::DecorationRole instead of the sort role
};

/// The header roles of a column beyond Qt's own, as headerData() answers them.
enum ColumnHeaderRole
{
    ColumnInitiallyVisibleRole = Qt::UserRole, ///< bool
    ColumnProportionalSizeRole,                ///< int
    ColumnSortTypeRole,                        ///< SortType as int
    ColumnIdRole,                              ///< QString
    ColumnPropertyIdRole,                      ///< int
    ColumnIsInitialSortColumnRole,             ///< bool
    ColumnNameInMenuRole,                      ///< QString, never empty for a column that has a name
};

/// One column of a table.
struct ColumnData
{
    int propertyId = -1; ///< the source's id of the property shown
    int type = -1;       ///< the source's type of cell, which pages read as "whatsThis"
    QString name;        ///< the title
    QString columnId;    ///< the key under which the column is saved; a column without one is never saved
    QString icon;        ///< of the header
    QString cellIcon;    ///< read by the source, not by the proxy
    QSize sizeHint;
    int proportionalSize = 0; ///< share of the width; 0 for none
    SortType sortType = SortByValueType;
    bool initiallyVisible = true;
    Qt::SortOrder initialSortOrder = Qt::AscendingOrder;
    QString nameInMenu; ///< empty: the title
    Qt::Alignment textAlignment = Qt::AlignCenter;
    bool selectionColumn = false; ///< the column of row-selection marks
};

/// Makes one ColumnData in a chain of calls; it is the record, and goes into Columns::columns as it stands.
class VELM_EXPORT ColumnBuilder : public ColumnData
{
public:
    ColumnBuilder(const QString& name, const QString& columnId);
    /// A column 100 pixels wide.
    ColumnBuilder(int propertyId, int type, const QString& name, const QString& columnId);

    ColumnBuilder& propertyId(int id);
    ColumnBuilder& type(int type);
    ColumnBuilder& icon(const QString& icon);
    ColumnBuilder& cellIcon(const QString& icon);
    ColumnBuilder& initialWidth(int width);
    ColumnBuilder& sortType(SortType type);
    ColumnBuilder& initiallyVisible(bool visible);
    ColumnBuilder& initialSortOrder(Qt::SortOrder order);
    ColumnBuilder& nameInMenu(const QString& name);
    ColumnBuilder& proportionalSize(int size);
    ColumnBuilder& textAlignment(Qt::Alignment alignment);
};

/// The columns of a source model, in its order.
struct Columns
{
    int initialSortColumn = -1; ///< the column that a table sorts by at start; -1 for none
    std::vector<ColumnData> columns;
};

/// What a source model answers from its headerData(): everything that the table proxy and the pages know of a column.
/// Empty for a vertical header, a section that isn't there and an unknown role.
VELM_EXPORT QVariant headerData(const Columns& columns, int section, Qt::Orientation orientation, int role);
/// The names under which pages read the roles of a header.
VELM_EXPORT QHash<int, QByteArray> columnRoleNames();

// What is kept of a column in the dialog settings, under the column's id.

/// Gives the width. What isn't stored is `defaultWidth`, `defaultPosition`, and `hidden` as it came in.
VELM_EXPORT long readColumnDataFromRegistry(const wxString& columnName, long defaultWidth, long defaultPosition,
                                            bool& hidden, long& position, const wxString& dialogId);
/// A width below 1 means that the column is hidden; its absolute value is stored.
VELM_EXPORT void writeColumnDataToRegistry(const wxString& columnName, int width, int position,
                                           const wxString& dialogId);
/// The names of the columns that have something stored; none for an empty dialog id.
VELM_EXPORT std::vector<wxString> getSavedColumnDataList(const wxString& dialogId);
} // namespace velm
