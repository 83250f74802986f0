#pragma once

#include "velm/table/sortfilterselectmodel.h"

namespace workbench {
/// A table that tells how long a sort took.
class TimedTable : public velm::SortFilterSelectModel
{
    Q_OBJECT
public:
    using SortFilterSelectModel::SortFilterSelectModel;

public Q_SLOTS:
    /// In the place of the base's for pages, and for whoever calls it on a TimedTable.
    bool doSort(int proxyColumn, bool isAscending, bool force = false);

Q_SIGNALS:
    void sorted(qint64 milliseconds);
};
} // namespace workbench
