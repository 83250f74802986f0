#include "velm/models/treemodel/treemodelbase.h"

#include <QBuffer>
#include <QDataStream>
#include <QHashFunctions>
#include <QMessageLogger>

namespace velm {
namespace {
constexpr int disabledRole = 356;
constexpr int reservedBytes = 1000; // more than most display texts take

void warnOfMissingChild()
{
    QMessageLogger(nullptr, 0, nullptr).warning().noquote() << "Tree child item not found in parent";
}

/// Whether an item is the branch or below it.
bool isWithin(const TreeItemBase* item, const TreeItemBase* branch)
{
    while (item && item != branch)
        item = item->parent();
    return item != nullptr;
}
} // namespace

int getWantsToBeExpandedRole()
{
    return 8;
}

TreeModelBase::TreeModelBase(QObject* parent, TreeItemBase& root) : QAbstractItemModel(parent), m_root(root)
{}

TreeModelBase::~TreeModelBase() = default;

QModelIndex TreeModelBase::index(int row, int column, const QModelIndex& parent) const
{
    if (parent.isValid() && parent.column() != 0)
        return {};
    const TreeItemBase* item = getTreeItemOrRoot(parent);
    return createItemIndex(row, column, item ? item->child(row) : nullptr);
}

QModelIndex TreeModelBase::parent(const QModelIndex& index) const
{
    const TreeItemBase* item = getTreeItem(index);
    return item ? createItemIndex(item->parent()) : QModelIndex();
}

int TreeModelBase::rowCount(const QModelIndex& parent) const
{
    const TreeItemBase* item = parent.column() > 0 ? nullptr : getTreeItemOrRoot(parent);
    return item ? item->childCount() : 0;
}

QVariant TreeModelBase::data(const QModelIndex& index, int role) const
{
    if (role != getWantsToBeExpandedRole())
        return dataImpl(index, role);
    const TreeItemBase* item = getTreeItem(index);
    return item ? QVariant(item->wantsToBeExpanded) : QVariant();
}

bool TreeModelBase::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != getWantsToBeExpandedRole())
        return setDataImpl(index, value, role);
    TreeItemBase* item = getTreeItem(index);
    if (!item || value.metaType() != QMetaType::fromType<bool>())
        return false;
    item->wantsToBeExpanded = value.toBool();
    return true;
}

QHash<int, QByteArray> TreeModelBase::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractItemModel::roleNames();
    names.insert(disabledRole, "disabled");
    names.insert(customRoleNames());
    return names;
}

bool TreeModelBase::setDataImpl(const QModelIndex&, const QVariant&, int)
{
    return false;
}

QHash<int, QByteArray> TreeModelBase::customRoleNames() const
{
    return {};
}

bool TreeModelBase::deleteItem(const QModelIndex& parent, const QModelIndex& child)
{
    const TreeItemBase* item = getTreeItem(child);
    if (!item)
        return false;
    const TreeItemBase* parentItem = getTreeItemOrRoot(parent);
    // An index that is up to date needs no search.
    const bool isAtItsRow = parentItem && parentItem->child(child.row()) == item;
    const int row = isAtItsRow ? child.row() : parentItem ? parentItem->findChild(item) : -1;
    if (row < 0) {
        warnOfMissingChild();
        return false;
    }
    return removeAt(parent, row);
}

bool TreeModelBase::deleteItem(const QModelIndex& parent, int row)
{
    return removeAt(parent, row);
}

bool TreeModelBase::removeAt(const QModelIndex& parent, int row)
{
    TreeItemBase* item = getTreeItemOrRoot(parent);
    if (!item || !item->child(row))
        return false;
    if (!m_inBatch)
        beginRemoveRows(parent, row, row);
    item->takeChild(row).reset();
    if (!m_inBatch)
        endRemoveRows();
    return true;
}

unsigned long long TreeModelBase::rowContentId(const QModelIndex& index) const
{
    QByteArray bytes;
    bytes.reserve(reservedBytes);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QDataStream stream(&buffer);
    stream << data(index, Qt::DisplayRole);
    return static_cast<quint32>(qHashBits(bytes.constData(), static_cast<std::size_t>(buffer.pos()), 0));
}

std::optional<QModelIndex> TreeModelBase::child(const QModelIndex& parent, int row) const
{
    const TreeItemBase* item = getTreeItemOrRoot(parent);
    if (!item) {
        warnOfMissingChild();
        return std::nullopt;
    }
    return createItemIndex(item->child(row));
}

QList<QModelIndex> TreeModelBase::children(const QModelIndex& parent) const
{
    const int count = rowCount(parent);
    QList<QModelIndex> result;
    result.reserve(count);
    for (int row = 0; row < count; ++row)
        if (const std::optional<QModelIndex> index = child(parent, row))
            result.append(*index);
    return result;
}

bool TreeModelBase::wantsToBeExpanded(const QModelIndex& index) const
{
    const TreeItemBase* item = getTreeItemOrRoot(index);
    return item && item->wantsToBeExpanded;
}

bool TreeModelBase::defaultExpandedState(const QModelIndex& index) const
{
    const TreeItemBase* item = getTreeItemOrRoot(index);
    return item && item->defaultExpandedState;
}

std::optional<QModelIndex> TreeModelBase::findInTree(const std::function<bool(const QModelIndex&)>& predicate) const
{
    std::optional<QModelIndex> found;
    traverseTree([&](const QModelIndex& index) {
        if (!predicate(index))
            return TreeWalk::Continue;
        found = index;
        return TreeWalk::Stop;
    });
    return found;
}

void TreeModelBase::traverseTree(const ReadCallback& callback, const QModelIndex& start) const
{
    for (Iterator iterator = begin(start); iterator != end();) {
        // Another answer asks again.
        switch (callback(*iterator)) {
        case TreeWalk::Continue:
            ++iterator;
            break;
        case TreeWalk::Stop:
            return;
        case TreeWalk::SkipChildren:
            iterator.skipChildren();
            break;
        }
    }
}

void TreeModelBase::traverseTree(const EditCallback& callback, const QModelIndex& start)
{
    for (ReverseIterator iterator = rbegin(start); iterator != rend();) {
        const QModelIndex current = *iterator;
        // Another answer asks again.
        switch (callback(current)) {
        case TreeWalkEdit::Continue:
            ++iterator;
            break;
        case TreeWalkEdit::Stop:
            return;
        case TreeWalkEdit::SkipChildren:
            iterator.skipChildren();
            break;
        case TreeWalkEdit::Delete:
            ++iterator;
            deleteItem(current.parent(), current);
            break;
        }
    }
}

bool TreeModelBase::deleteChildren(const QModelIndex& parent)
{
    const int count = rowCount(parent);
    if (count < 1)
        return false;
    if (!m_inBatch)
        beginRemoveRows(parent, 0, count - 1);
    getTreeItemOrRoot(parent)->clearChildren();
    if (!m_inBatch)
        endRemoveRows();
    return true;
}

void TreeModelBase::reset()
{
    if (!m_inBatch)
        beginResetModel();
    m_root.clearChildren();
    if (!m_inBatch)
        endResetModel();
}

void TreeModelBase::setWantsToBeExpanded(const QModelIndex& index, bool value)
{
    if (TreeItemBase* item = getTreeItemOrRoot(index)) {
        item->wantsToBeExpanded = value;
        signalChange(index, {getWantsToBeExpandedRole()});
    }
}

void TreeModelBase::setDefaultExpandedState(const QModelIndex& index, bool value)
{
    if (TreeItemBase* item = getTreeItemOrRoot(index))
        item->defaultExpandedState = value;
}

void TreeModelBase::beginBatchChanges()
{
    beginResetModel();
    m_inBatch = true;
}

void TreeModelBase::endBatchChanges()
{
    m_inBatch = false;
    endResetModel();
}

ScopeGuard<std::function<void()>> TreeModelBase::scopedBatchChanges()
{
    beginBatchChanges();
    return ScopeGuard<std::function<void()>>([this] { endBatchChanges(); });
}

void TreeModelBase::saveExpandedState(QList<QModelIndex>& expanded)
{
    expanded.clear();
    traverseTree([&](const QModelIndex& index) {
        if (wantsToBeExpanded(index))
            expanded.append(index);
        return TreeWalkEdit::Continue;
    });
}

void TreeModelBase::saveExpandedState(std::unordered_set<unsigned long long>& expanded)
{
    expanded.clear();
    traverseTree([&](const QModelIndex& index) {
        if (wantsToBeExpanded(index))
            expanded.insert(rowContentId(index));
        return TreeWalkEdit::Continue;
    });
}

void TreeModelBase::restoreExpandedState(const std::unordered_set<unsigned long long>& expanded)
{
    beginResetModel();
    traverseTree([&](const QModelIndex& index) {
        if (expanded.contains(rowContentId(index)))
            setWantsToBeExpanded(index, true);
        return TreeWalkEdit::Continue;
    });
    endResetModel();
}

QModelIndex TreeModelBase::insertNode(const QModelIndex& parent, int row, std::unique_ptr<TreeItemBase> item)
{
    TreeItemBase* parentItem = getTreeItemOrRoot(parent);
    if (!parentItem)
        return {};
    if (!m_inBatch)
        beginInsertRows(parent, row, row);
    const TreeItemBase* inserted = parentItem->insertChild(row, std::move(item));
    if (!m_inBatch)
        endInsertRows();
    return createItemIndex(inserted);
}

QModelIndex TreeModelBase::appendNode(const QModelIndex& parent, std::unique_ptr<TreeItemBase> item)
{
    const TreeItemBase* parentItem = getTreeItemOrRoot(parent);
    return insertNode(parent, parentItem ? parentItem->childCount() : 0, std::move(item));
}

std::unique_ptr<TreeItemBase> TreeModelBase::takeForMove(const QModelIndex& from, const TreeItemBase*& to)
{
    TreeItemBase* parentItem = getTreeItem(from)->parent();
    const int row = parentItem->rowOfChild(getTreeItem(from));
    const QModelIndex parentIndex = createItemIndex(parentItem);
    const TreeItemBase* next = parentItem->child(row + 1);
    const bool isLost = isWithin(to, getTreeItem(from));
    const bool isInNext = next && isWithin(to, next);
    // No signal tells of the row that is taken out, so Qt doesn't see to the persistent indexes. In a batch they don't
    // count until its reset drops them.
    for (const QModelIndex& index : m_inBatch ? QModelIndexList() : persistentIndexList()) {
        if (isWithin(getTreeItem(index), getTreeItem(from)))
            changePersistentIndex(index, {});
        else if (index.row() > row && getTreeItem(index)->parent() == parentItem)
            changePersistentIndex(index, createIndex(index.row() - 1, index.column(), getTreeItem(index)));
    }
    std::unique_ptr<TreeItemBase> taken = parentItem->takeChild(row);
    deleteItem(parentIndex, row);
    if (isLost || (isInNext && parentItem->child(row) != next))
        to = nullptr;
    return taken;
}

void TreeModelBase::signalChange(const QModelIndex& index, const QList<int>& roles)
{
    if (!m_inBatch)
        Q_EMIT dataChanged(index, index, roles);
}
} // namespace velm
