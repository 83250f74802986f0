#pragma once

#include "host/dwghealth.h"
#include "od/oddbobjectid.h"
#include "velm/models/genericlistmodel/genericlistmodel.h"

class OdDbDatabase;

namespace workbench {
struct HealthTask
{
    oc::dwghealth::ETaskType type{};
    std::vector<OdDbObjectId> findings;
};

/// The kinds of tasks that somebody has registered traits for, and what they found at the last check. A kind that its
/// traits switch off is there and finds nothing.
class HealthTaskModel : public velm::GenericListModel<HealthTask>
{
    Q_OBJECT
public:
    enum Role
    {
        IconRole = Qt::UserRole,
        CountRole,
        EnabledRole,
    };

    using GenericListModel::data;

    /// Looks into a drawing; null empties all tasks. Rows stay where they are as long as the same kinds are there.
    void check(const OdDbDatabase* database);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;
};
} // namespace workbench
