#include "health/healthtaskmodel.h"

#include "health/healthtasks.h"
#include "velm/services/iqttasktraits.h"

#include <algorithm>

namespace workbench {
namespace {
using Type = oc::dwghealth::ETaskType;
} // namespace

void HealthTaskModel::check(const OdDbDatabase* database)
{
    std::vector<HealthTask> tasks;
    for (const Type type : {Type::EmptyLayers, Type::ZeroLengthLines}) {
        const velm::dwghealth::IQtTaskTraits& traits = velm::dwghealth::getQtTaskTraits(type);
        if (traits.taskType() != type)
            continue;
        const bool isWanted = database && traits.traitFlag1();
        tasks.push_back({type, isWanted ? healthFindings(type, *database) : std::vector<OdDbObjectId>()});
    }
    if (!std::ranges::equal(tasks, getItems(), {}, &HealthTask::type, &HealthTask::type)) {
        reset(std::move(tasks));
        return;
    }
    for (int row = 0; row < size(); ++row)
        update(row, std::move(tasks[static_cast<std::size_t>(row)]));
}

QVariant HealthTaskModel::data(const QModelIndex& index, int role) const
{
    const HealthTask* task = getItem(index);
    if (!task)
        return {};
    const velm::dwghealth::IQtTaskTraits& traits = velm::dwghealth::getQtTaskTraits(task->type);
    switch (role) {
    case Qt::DisplayRole:
        return traits.traitText1();
    case IconRole:
        return traits.traitText4();
    case CountRole:
        return static_cast<int>(task->findings.size());
    case EnabledRole:
        return traits.traitFlag1();
    default:
        return {};
    }
}

QHash<int, QByteArray> HealthTaskModel::roleNames() const
{
    return {{Qt::DisplayRole, "display"}, {IconRole, "iconName"}, {CountRole, "count"}, {EnabledRole, "isWanted"}};
}
} // namespace workbench
