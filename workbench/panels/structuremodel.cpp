#include "panels/structuremodel.h"

#include "panels/entitytext.h"
#include "velm/bridge/conversions.h"
#include "velm/models/treemodel/treebuilder.h"

#include <algorithm>

namespace workbench {
namespace {
using Kind = StructureRow::Kind;

constexpr std::size_t fewestRows = 100;
constexpr std::size_t mostRows = 5'000;

/// The layout or block that holds an entity, as the container of its row.
StructureRow containerOf(const OdDbEntity& entity)
{
    const auto* block = entity.ownerId().open<OdDbBlockTableRecord>();
    if (!block)
        return {};
    return block->getLayoutId().isNull() ? StructureRow{Kind::Block, block->objectId()}
                                         : StructureRow{Kind::Layout, block->getLayoutId()};
}

QString nameOf(OdDbObjectId id)
{
    const auto* record = id.open<OdDbSymbolTableRecord>();
    return record ? velm::toQt(record->getName()) : QString();
}
} // namespace

StructureModel::StructureModel(QObject* parent) : TreeModel(parent)
{}

void StructureModel::want(OdDbObjectId container, std::size_t count)
{
    std::size_t& wanted = m_wanted[container];
    wanted = std::max(wanted, count);
}

std::size_t StructureModel::limit(OdDbObjectId container, std::size_t containers) const
{
    if (!m_showsEntities)
        return 0;
    const auto wanted = m_wanted.find(container);
    const std::size_t share = std::clamp(m_budget / std::max<std::size_t>(containers, 1), fewestRows, mostRows);
    return wanted == m_wanted.end() ? share : std::max(share, wanted->second);
}

StructureModel::Contents StructureModel::collect(const OdDbDatabase& database) const
{
    const auto blocks = database.blocks();
    const auto layers = database.layers();
    const std::size_t containers = blocks.size() + layers.size();
    Contents contents;
    std::map<OdDbObjectId, std::size_t> limits;
    for (const OdDbLayerTableRecord* layer : layers)
        limits[layer->objectId()] = limit(layer->objectId(), containers);
    for (const OdDbBlockTableRecord* block : blocks) {
        const OdDbObjectId container =
            block->getLayoutId().isNull() ? block->objectId() : OdDbObjectId(block->getLayoutId());
        Content& ofBlock = contents[container];
        const std::size_t limitOfBlock = limit(container, containers);
        OdDbObjectId layer;
        Content* ofLayer = nullptr;
        std::size_t limitOfLayer = 0;
        for (const OdDbObjectId& id : block->entities()) {
            const auto* entity = static_cast<const OdDbEntity*>(id.openObject());
            if (!entity)
                continue;
            // Neighbours are mostly on the same layer.
            if (!ofLayer || layer != entity->layerId()) {
                layer = entity->layerId();
                ofLayer = &contents[layer];
                limitOfLayer = limits[layer];
            }
            if (ofBlock.count++ < limitOfBlock)
                ofBlock.entities.push_back(id);
            if (ofLayer->count++ < limitOfLayer)
                ofLayer->entities.push_back(id);
        }
    }
    return contents;
}

void StructureModel::fill(OdDbDatabase& database)
{
    const Contents contents = collect(database);
    velm::TreeBuilder<StructureRow> builder(this);
    const auto addContainers = [&](Kind group, Kind kind, const auto& records) {
        builder.addItem(StructureRow{group, {}}).children();
        for (const auto* record : records) {
            const auto found = contents.find(record->objectId());
            const Content none;
            const Content& content = found == contents.end() ? none : found->second;
            if (content.count == 0 && !m_showsEmpty)
                continue;
            builder.addItem(StructureRow{kind, record->objectId(), content.count});
            if (content.count == 0 || !m_showsEntities)
                continue;
            builder.children();
            for (const OdDbObjectId& entity : content.entities)
                builder.addItem(StructureRow{Kind::Entity, entity});
            if (const std::size_t rest = content.count - content.entities.size(); rest > 0)
                builder.addItem(StructureRow{Kind::More, record->objectId(), rest});
            builder.parent();
        }
        builder.parent();
    };
    std::vector<OdDbBlockTableRecord*> blocks = database.blocks();
    std::erase_if(blocks, [](const OdDbBlockTableRecord* block) { return !block->getLayoutId().isNull(); });
    addContainers(Kind::Layouts, Kind::Layout, database.layouts());
    addContainers(Kind::Blocks, Kind::Block, blocks);
    addContainers(Kind::Layers, Kind::Layer, database.layers());
}

void StructureModel::build(OdDbDatabase* database)
{
    const bool isFirst = rowCount() == 0;
    std::unordered_set<unsigned long long> expanded;
    saveExpandedState(expanded);
    if (m_database != database)
        m_wanted.clear();
    m_database = database;
    {
        const auto batch = scopedBatchChanges();
        if (database)
            fill(*database);
        else
            reset();
        if (isFirst)
            for (const QModelIndex& group : children(rootIndex()))
                setWantsToBeExpanded(group, true);
    }
    restoreExpandedState(expanded);
}

QModelIndex StructureModel::find(const StructureRow& row) const
{
    const auto isSame = [&](const QModelIndex& index) { return getData(index)->isSame(row); };
    return findInTree(isSame).value_or(QModelIndex());
}

QModelIndex StructureModel::entityRow(OdDbObjectId id)
{
    const auto* entity = id.open<OdDbEntity>();
    if (!entity || id.database() != m_database)
        return {};
    const QModelIndex container = find(containerOf(*entity));
    const QModelIndex last = index(rowCount(container) - 1, 0, container);
    if (!container.isValid() || !last.isValid())
        return {};
    const StructureRow wanted{Kind::Entity, id};
    for (const QModelIndex& child : children(container))
        if (getData(child)->isSame(wanted))
            return child;
    if (getData(last)->kind != Kind::More)
        return {};
    if (getData(last)->count == 1) {
        setData(last, wanted);
        return last;
    }
    const QModelIndex inserted = insertItem(container, last.row(), wanted);
    update(index(last.row() + 1, 0, container), [](StructureRow& more) {
        --more.count;
        return true;
    });
    return inserted;
}

void StructureModel::expandAll(bool expanded)
{
    const auto batch = scopedBatchChanges();
    traverseTree([&](const QModelIndex& index) {
        if (rowCount(index) > 0)
            setWantsToBeExpanded(index, expanded);
        return velm::TreeWalk::Continue;
    });
}

int StructureModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QString StructureModel::text(const StructureRow& row)
{
    // No counts: a text is also what an expanded row is known by after a change.
    switch (row.kind) {
    case Kind::Layouts:
        return tr("Layouts");
    case Kind::Blocks:
        return tr("Blocks");
    case Kind::Layers:
        return tr("Layers");
    case Kind::Layout:
        return tr("Layout %1").arg(nameOf(row.id));
    case Kind::Block:
        return tr("Block %1").arg(nameOf(row.id));
    case Kind::Layer:
        return tr("Layer %1").arg(nameOf(row.id));
    case Kind::Entity: {
        const auto* entity = row.id.open<OdDbEntity>();
        return entity ? entityText(*entity) : QString();
    }
    case Kind::More:
        return tr("and %L1 more").arg(row.count);
    }
    return {};
}

QString StructureModel::mark(const StructureRow& row)
{
    if (row.kind == Kind::Entity)
        return {};
    return row.kind == Kind::More ? QStringLiteral("more") : QStringLiteral("folder");
}

bool StructureModel::isHidden(const StructureRow& row)
{
    const auto* entity = row.id.open<OdDbEntity>();
    const auto* layer = (entity ? entity->layerId() : row.id).open<OdDbLayerTableRecord>();
    return layer && (layer->isOff() || layer->isFrozen());
}

QVariant StructureModel::dataImpl(const QModelIndex& index, int role) const
{
    const StructureRow* row = getData(index);
    if (!row)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(*row);
    case MarkRole:
        return mark(*row);
    case CountRole:
        return row->isContainer() ? static_cast<int>(row->count) : 0;
    case HasChildrenRole:
        return rowCount(index) > 0;
    case DisabledRole:
        return isHidden(*row);
    default:
        return {};
    }
}

QHash<int, QByteArray> StructureModel::customRoleNames() const
{
    return {{MarkRole, "mark"}, {CountRole, "count"}, {HasChildrenRole, "hasChildren"}};
}

unsigned long long StructureModel::rowContentId(const QModelIndex& index) const
{
    return rowCount(index) > 0 ? TreeModel::rowContentId(index) : 0;
}
} // namespace workbench
