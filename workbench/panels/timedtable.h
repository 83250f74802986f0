#pragma once

#include "velm/table/sortfilterselectmodel.h"

namespace workbench {
/// A table that tells how long it sorted.
class TimedTable : public velm::SortFilterSelectModel
{
    Q_OBJECT
public:
    using SortFilterSelectModel::SortFilterSelectModel;

    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

Q_SIGNALS:
    void sorted(qint64 milliseconds);
};
} // namespace workbench
