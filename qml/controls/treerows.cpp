#include "treerows.h"

#include <algorithm>
#include <utility>

namespace velmqml {
namespace {
constexpr int openRole = 8; // where trees keep whether a row is expanded

bool isBelow(QModelIndex index, const QModelIndex& ancestor)
{
    while (index.isValid() && index != ancestor)
        index = index.parent();
    return index.isValid();
}
} // namespace

TreeRows::TreeRows(QObject* parent) : QAbstractListModel(parent)
{
    load();
}

TreeRows::~TreeRows() = default;

void TreeRows::setSource(QAbstractItemModel* source)
{
    if (m_source == source)
        return;
    beginReset();
    if (m_source) {
        disconnect(m_source, nullptr, this, nullptr);
        if (m_current.model() == m_source)
            m_current = QModelIndex();
    }
    m_source = source;
    if (m_source) {
        connectSource();
        if (m_current.isValid() && m_current.model() == m_source)
            openParents(m_current);
    }
    endReset();
    Q_EMIT sourceChanged();
}

void TreeRows::connectSource()
{
    const QAbstractItemModel* source = m_source;
    connect(source, &QAbstractItemModel::dataChanged, this, &TreeRows::onDataChanged);
    connect(source, &QAbstractItemModel::rowsAboutToBeInserted, this, &TreeRows::onRowsAboutToBeInserted);
    connect(source, &QAbstractItemModel::rowsInserted, this, &TreeRows::onRowsInserted);
    connect(source, &QAbstractItemModel::rowsAboutToBeRemoved, this, &TreeRows::onRowsAboutToBeRemoved);
    connect(source, &QAbstractItemModel::rowsRemoved, this, &TreeRows::onRowsRemoved);
    connect(source, &QAbstractItemModel::modelAboutToBeReset, this, &TreeRows::beginReset);
    connect(source, &QAbstractItemModel::modelReset, this, &TreeRows::endReset);
    // Rows that change places are read anew.
    connect(source, &QAbstractItemModel::rowsAboutToBeMoved, this, &TreeRows::beginReset);
    connect(source, &QAbstractItemModel::rowsMoved, this, &TreeRows::endReset);
    connect(source, &QAbstractItemModel::layoutAboutToBeChanged, this, &TreeRows::beginReset);
    connect(source, &QAbstractItemModel::layoutChanged, this, &TreeRows::endReset);
    connect(source, &QObject::destroyed, this, [this] {
        beginReset();
        m_source = nullptr;
        endReset();
        Q_EMIT sourceChanged();
    });
}

void TreeRows::beginReset()
{
    m_resetting = true;
    m_hadCurrent = m_current.isValid();
    beginResetModel();
}

void TreeRows::endReset()
{
    m_resetting = false;
    load();
    endResetModel();
    if (m_hadCurrent && !m_current.isValid())
        Q_EMIT currentIndexChanged();
    noteCurrent();
    fetchOpen();
}

void TreeRows::fetchOpen()
{
    for (const QPersistentModelIndex& index : std::exchange(m_unfetched, {}))
        if (index.isValid() && m_source->canFetchMore(index))
            m_source->fetchMore(index);
}

void TreeRows::load()
{
    m_root = m_source ? makeBranch(QModelIndex()) : std::make_unique<OpenBranch>(0, 0, OpenBranch::Children());
}

std::unique_ptr<OpenBranch> TreeRows::makeBranch(const QModelIndex& index)
{
    if (index.isValid() && m_source->canFetchMore(index))
        m_unfetched.append(index);
    const int count = m_source->rowCount(index);
    OpenBranch::Children open;
    for (int row = 0; row < count; ++row) {
        const QModelIndex child = m_source->index(row, 0, index);
        if (isOpen(child))
            open.push_back(makeBranch(child));
    }
    return std::make_unique<OpenBranch>(index.row(), count, std::move(open));
}

bool TreeRows::isOpen(const QModelIndex& index) const
{
    const QVariant value = m_source->data(index, openRole);
    return value.metaType() == QMetaType::fromType<bool>() && value.toBool();
}

OpenBranch* TreeRows::findBranch(const QModelIndex& index) const
{
    if (!index.isValid())
        return m_root.get();
    const OpenBranch* parent = findBranch(index.parent());
    return parent ? parent->openChild(index.row()) : nullptr;
}

QModelIndex TreeRows::toIndex(const OpenBranch& branch) const
{
    return branch.parent() ? m_source->index(branch.row(), 0, toIndex(*branch.parent())) : QModelIndex();
}

QModelIndex TreeRows::indexAt(int row) const
{
    if (!m_source || row < 0 || row >= m_root->total())
        return {};
    const OpenBranch::Place place = m_root->find(row);
    return m_source->index(place.row, 0, toIndex(*place.branch));
}

int TreeRows::rowOf(const QModelIndex& index) const
{
    if (!index.isValid() || index.model() != m_source)
        return -1;
    const OpenBranch* parent = findBranch(index.parent());
    return parent ? parent->placeInRoot() + parent->placeOfChild(index.row()) : -1;
}

int TreeRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_root->total();
}

QVariant TreeRows::data(const QModelIndex& index, int role) const
{
    if (!m_source || !index.isValid() || index.row() >= m_root->total())
        return {};
    const OpenBranch::Place place = m_root->find(index.row());
    switch (role) {
    case DepthRole:
        return place.branch->depth();
    case OpenRole:
        return place.branch->openChild(place.row) != nullptr;
    case BranchRole:
        return m_source->hasChildren(indexAt(index.row()));
    default:
        return m_source->data(indexAt(index.row()), role);
    }
}

QHash<int, QByteArray> TreeRows::roleNames() const
{
    QHash<int, QByteArray> names = m_source ? m_source->roleNames() : QHash<int, QByteArray>();
    names.insert({{DepthRole, "treeDepth"}, {OpenRole, "treeOpen"}, {BranchRole, "treeBranch"}});
    return names;
}

int TreeRows::find(const QString& letters, int first) const
{
    const int count = m_root->total();
    const int role = m_source ? m_source->roleNames().key(m_textRole.toUtf8(), Qt::DisplayRole) : Qt::DisplayRole;
    for (int step = 0; step < count; ++step) {
        const int row = (std::max(0, first) + step) % count;
        if (indexAt(row).data(role).toString().startsWith(letters, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

void TreeRows::setOpen(int row, bool open)
{
    const QModelIndex index = indexAt(row);
    if (!index.isValid() || (open && !m_source->hasChildren(index)))
        return;
    if (!open && m_current != index && isBelow(m_current, index))
        setCurrentIndex(index);
    m_source->setData(index, open, openRole);
    apply(index, open);
}

void TreeRows::openAll()
{
    if (m_source)
        openBelow(QModelIndex());
}

void TreeRows::openBelow(const QModelIndex& parent)
{
    const int count = m_source->rowCount(parent);
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = m_source->index(row, 0, parent);
        if (!m_source->hasChildren(index))
            continue;
        m_source->setData(index, true, openRole);
        apply(index, true);
        openBelow(index);
    }
}

void TreeRows::apply(const QModelIndex& index, bool open)
{
    if (m_resetting)
        return;
    OpenBranch* parent = findBranch(index.parent());
    OpenBranch* branch = parent ? parent->openChild(index.row()) : nullptr;
    if (!parent || open == (branch != nullptr))
        return;
    const int row = rowOf(index);
    if (open) {
        if (m_source->canFetchMore(index))
            m_source->fetchMore(index);
        std::unique_ptr<OpenBranch> made = makeBranch(index);
        const int total = made->total();
        if (total > 0)
            beginInsertRows(QModelIndex(), row + 1, row + total);
        parent->open(std::move(made));
        if (total > 0)
            endInsertRows();
        fetchOpen();
    } else {
        const int total = branch->total();
        if (total > 0)
            beginRemoveRows(QModelIndex(), row + 1, row + total);
        parent->close(index.row());
        if (total > 0)
            endRemoveRows();
    }
    signalBranch(index);
    noteCurrent();
}

void TreeRows::openParents(const QModelIndex& index)
{
    const QModelIndex parent = index.parent();
    if (!parent.isValid())
        return;
    openParents(parent);
    if (!findBranch(parent) || m_resetting) {
        m_source->setData(parent, true, openRole);
        apply(parent, true);
    }
}

void TreeRows::setCurrentIndex(const QModelIndex& index)
{
    const QPersistentModelIndex wanted(index.siblingAtColumn(0));
    if (m_current == wanted)
        return;
    m_current = wanted;
    if (m_current.isValid() && m_current.model() == m_source)
        openParents(m_current);
    Q_EMIT currentIndexChanged();
    noteCurrent();
}

void TreeRows::noteCurrent()
{
    const int row = m_resetting ? -1 : rowOf(m_current);
    if (m_currentRow == row)
        return;
    m_currentRow = row;
    Q_EMIT currentRowChanged();
}

void TreeRows::signalBranch(const QModelIndex& index)
{
    const int row = rowOf(index);
    if (row >= 0)
        Q_EMIT dataChanged(this->index(row), this->index(row), {OpenRole, BranchRole});
}

void TreeRows::onDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles)
{
    // A proxy may tell of rows that it doesn't show.
    if (m_resetting || topLeft.column() > 0 || !topLeft.isValid() ||
        m_source->index(topLeft.row(), 0, topLeft.parent()) != topLeft)
        return;
    if (roles.isEmpty() || roles.contains(openRole)) {
        for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
            const QModelIndex index = topLeft.siblingAtRow(row);
            const QVariant open = m_source->data(index, openRole);
            // A tree that doesn't keep the state has no say.
            if (open.metaType() == QMetaType::fromType<bool>())
                apply(index, open.toBool());
        }
    }
    const int first = rowOf(topLeft);
    if (first >= 0)
        Q_EMIT dataChanged(index(first), index(rowOf(bottomRight.siblingAtColumn(0))), roles);
}

void TreeRows::onRowsAboutToBeInserted(const QModelIndex& parent, int first, int last)
{
    const OpenBranch* branch = m_resetting ? nullptr : findBranch(parent);
    if (!branch)
        return;
    const int row = branch->placeInRoot() + branch->placeOfChild(first);
    beginInsertRows(QModelIndex(), row, row + last - first);
}

void TreeRows::onRowsInserted(const QModelIndex& parent, int first, int last)
{
    if (m_resetting)
        return;
    if (OpenBranch* branch = findBranch(parent)) {
        // At first as closed ones.
        branch->insertRows(first, last - first + 1);
        endInsertRows();
        for (int row = first; row <= last; ++row) {
            const QModelIndex index = m_source->index(row, 0, parent);
            if (isOpen(index))
                apply(index, true);
        }
    }
    signalBranch(parent);
    noteCurrent();
}

void TreeRows::onRowsAboutToBeRemoved(const QModelIndex& parent, int first, int last)
{
    if (m_resetting)
        return;
    for (QModelIndex index = m_current; index.isValid(); index = index.parent()) {
        if (index.parent() != parent || index.row() < first || index.row() > last)
            continue;
        const bool hasNext = last + 1 < m_source->rowCount(parent);
        setCurrentIndex(hasNext     ? m_source->index(last + 1, 0, parent)
                        : first > 0 ? m_source->index(first - 1, 0, parent)
                                    : parent);
        break;
    }
    if (OpenBranch* branch = findBranch(parent)) {
        const int begin = branch->placeInRoot();
        beginRemoveRows(QModelIndex(), begin + branch->placeOfChild(first), begin + branch->placeOfChild(last + 1) - 1);
    }
}

void TreeRows::onRowsRemoved(const QModelIndex& parent, int first, int last)
{
    if (m_resetting)
        return;
    if (OpenBranch* branch = findBranch(parent)) {
        branch->removeRows(first, last - first + 1);
        endRemoveRows();
    }
    signalBranch(parent);
    noteCurrent();
}
} // namespace velmqml
