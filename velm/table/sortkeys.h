#pragma once

#include "velm/table/textranks.h"
#include "velm/velm_export.h"

#include <QModelIndex>

#include <functional>
#include <memory>
#include <vector>

class QAbstractItemModel;

namespace velm {
/// The order of one column's rows, with everything that a comparison needs computed once a row: a sort of a million
/// rows makes twenty million comparisons. The rows are the source's, below one parent.
class VELM_EXPORT SortKeys
{
public:
    virtual ~SortKeys();

    virtual bool lessThan(int leftRow, int rightRow) const = 0;
};

/// The cells that keys are made of.
struct SortedCells
{
    const QAbstractItemModel* source = nullptr; // not owned
    QModelIndex parent;
    int column = 0;
    int role = Qt::DisplayRole;
    std::vector<int> rows; ///< those that will be compared, in the source's order
};

/// `baseLessThan` compares two indexes as QSortFilterProxyModel does, for the sort types that ask for that.
VELM_EXPORT std::unique_ptr<SortKeys>
makeSortKeys(const SortedCells& cells, int sortType,
             const std::function<bool(const QModelIndex&, const QModelIndex&)>& baseLessThan);

/// The order of numbers given by row.
VELM_EXPORT std::unique_ptr<SortKeys> makeSortKeys(textranks::Ranks ranks);
} // namespace velm
