#include "velm/filter/filterpropertiestreemodel.h"

#include "velm/filter/abstractfilterpropertiesmodel.h"
#include "velm/filter/valuetext.h"
#include "velm/models/treemodel/treebuilder.h"

#include <map>

namespace velm {
namespace {
struct Node
{
    int propertyIndex = -1;
    std::map<QString, Node> children; // by name
};

void build(TreeBuilder<NodeData>& builder, const Node& parent)
{
    for (const auto& [name, node] : parent.children) {
        builder.addItem(NodeData{name, node.propertyIndex});
        if (node.children.empty())
            continue;
        builder.children();
        build(builder, node);
        builder.parent();
    }
}
} // namespace

FilterPropertiesTreeModel::FilterPropertiesTreeModel(const AbstractFilterPropertiesModel& properties)
    : m_properties(&properties)
{
    connect(m_properties, &QAbstractItemModel::modelReset, this, &FilterPropertiesTreeModel::rebuild);
    connect(m_properties, &QAbstractItemModel::rowsInserted, this, &FilterPropertiesTreeModel::rebuild);
    connect(m_properties, &QAbstractItemModel::rowsRemoved, this, &FilterPropertiesTreeModel::rebuild);
    connect(m_properties, &QAbstractItemModel::dataChanged, this, &FilterPropertiesTreeModel::rebuild);
    rebuild();
}

FilterPropertiesTreeModel::~FilterPropertiesTreeModel() = default;

int FilterPropertiesTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

QVariant FilterPropertiesTreeModel::dataImpl(const QModelIndex& index, int role) const
{
    const NodeData* node = getData(index);
    if (node == nullptr)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return node->name;
    case IsLeafRole:
        return rowCount(index) == 0;
    case PropertyIndexRole:
        return node->propertyIndex;
    default:
        return {};
    }
}

QHash<int, QByteArray> FilterPropertiesTreeModel::customRoleNames() const
{
    return {{IsLeafRole, "isLeaf"}, {PropertyIndexRole, "propertyIndex"}};
}

void FilterPropertiesTreeModel::rebuild()
{
    Node root;
    const int count = m_properties->getNrProperties();
    for (int i = 0; i < count; ++i) {
        Node* node = &root;
        for (const QString& segment : m_properties->getPath(i))
            node = &node->children[segment];
        node->children[nameWithUnit(*m_properties, i)].propertyIndex = i;
    }
    const auto batch = scopedBatchChanges();
    TreeBuilder<NodeData> builder(this);
    build(builder, root);
}
} // namespace velm
