#include "panels/timedtable.h"

#include <QElapsedTimer>

namespace workbench {
void TimedTable::sort(int column, Qt::SortOrder order)
{
    QElapsedTimer timer;
    timer.start();
    SortFilterSelectModel::sort(column, order);
    if (column >= 0)
        Q_EMIT sorted(timer.elapsed());
}
} // namespace workbench
