#include "panels/timedtable.h"

#include <QElapsedTimer>

namespace workbench {
bool TimedTable::doSort(int proxyColumn, bool isAscending, bool force)
{
    QElapsedTimer timer;
    timer.start();
    const bool done = SortFilterSelectModel::doSort(proxyColumn, isAscending, force);
    if (done)
        Q_EMIT sorted(timer.elapsed());
    return done;
}
} // namespace workbench
