#pragma once

#include "velm/models/treemodel/treemodel.h"

namespace velm {
class AbstractFilterPropertiesModel;

/// A row of the properties' tree.
struct NodeData
{
    QString name;
    int propertyIndex = -1; ///< -1 for a row that only groups others
};

/// The flat list of properties as a tree by their paths, siblings sorted by text. It is built anew at every change of
/// the list, and which rows are expanded is lost with that. A group and a property of the same path and text are one
/// row, and of two such properties the later one counts. This must stay.
class FilterPropertiesTreeModel : public TreeModel<NodeData>
{
    Q_OBJECT
public:
    enum Role
    {
        IsLeafRole = Qt::UserRole + 1,
        PropertyIndexRole,
    };

    /// Outlived by the properties, or at least silent when they are gone.
    explicit FilterPropertiesTreeModel(const AbstractFilterPropertiesModel& properties);
    ~FilterPropertiesTreeModel() override;

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant dataImpl(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> customRoleNames() const override;

private:
    void rebuild();

    const AbstractFilterPropertiesModel* m_properties; // not owned
};
} // namespace velm
