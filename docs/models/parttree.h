#pragma once
#include "velm/models/treemodel/treebuilder.h"

#include <unordered_set>

/// The parts of an assembly, an assembly's parts below it.
struct Part
{
    QString name;
    int count;
};

class PartTree : public velm::TreeModel<Part>
{
public:
    static constexpr int countRole = Qt::UserRole;

    using TreeModel::TreeModel;

    int columnCount(const QModelIndex& = {}) const override { return 1; }
    QVariant dataImpl(const QModelIndex& index, int role) const override
    {
        const Part* part = getData(index);
        if (!part)
            return {};
        if (role == Qt::DisplayRole)
            return part->name;
        return role == countRole ? QVariant(part->count) : QVariant();
    }
    QHash<int, QByteArray> customRoleNames() const override { return {{countRole, "count"}}; }

    /// Reads the assembly anew; what was open stays open.
    void rebuild(int doors)
    {
        std::unordered_set<unsigned long long> expanded;
        saveExpandedState(expanded);
        {
            const auto batch = scopedBatchChanges(); // one reset for all rows
            velm::TreeBuilder<Part>(this)
                .addItem({"House", 1})
                .children()
                .addItem({"Door", doors})
                .children()
                .addItems({{"Hinge", 3}, {"Handle", 2}})
                .parent()
                .addItem({"Window", 6});
        }
        restoreExpandedState(expanded);
    }
};
