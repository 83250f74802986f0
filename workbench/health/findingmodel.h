#pragma once

#include "od/oddbobjectid.h"
#include "velm/models/genericlistmodel/genericlistmodel.h"

namespace workbench {
/// What a task found in the drawing, a row each. Texts are read from the drawing when they are asked for; what was
/// erased since has none.
class FindingModel : public velm::GenericListModel<OdDbObjectId>
{
    Q_OBJECT
public:
    enum Role
    {
        DetailRole = Qt::UserRole, ///< where an entity is, or what is said of a layer
    };

    using GenericListModel::data;

    /// Rows that are the same ones only get their texts anew.
    void show(std::vector<OdDbObjectId> findings);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;
};
} // namespace workbench
