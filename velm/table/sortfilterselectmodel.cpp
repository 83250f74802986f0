#include "velm/table/sortfilterselectmodel_p.h"

#include "velm/table/columns.h"

#include <QAbstractListModel>
#include <QAbstractTableModel>

#include <algorithm>
#include <limits>

namespace velm {
SortFilterSelectModel::Pimpl::Pimpl(SortFilterSelectModel& model)
    : q(&model), selectionModel(q), cursor(model, selectionModel), columnMenu(model)
{
    selectionModel.aboutToChange = [this] { selectedCells.reset(); };
    const auto forgetCells = [this] {
        selectedCells.reset();
        acceptedIsShown = false;
    };
    QObject::connect(q, &QAbstractItemModel::rowsInserted, q, forgetCells);
    QObject::connect(q, &QAbstractItemModel::rowsRemoved, q, forgetCells);
    QObject::connect(q, &QAbstractItemModel::rowsMoved, q, forgetCells);
    QObject::connect(q, &QAbstractItemModel::columnsInserted, q, forgetCells);
    QObject::connect(q, &QAbstractItemModel::columnsRemoved, q, forgetCells);
    QObject::connect(q, &QAbstractItemModel::columnsMoved, q, forgetCells);
    QObject::connect(q, &QAbstractItemModel::layoutChanged, q, forgetCells);
    QObject::connect(q, &QAbstractItemModel::modelReset, q, forgetCells);
}

SortFilterSelectModel::SortFilterSelectModel(QObject* parent)
    : QSortFilterProxyModel(parent), m_pimpl(std::make_unique<Pimpl>(*this))
{
    initSortFilterSelectModel();
}

SortFilterSelectModel::~SortFilterSelectModel() = default;

QString SortFilterSelectModel::typeId()
{
    return QStringLiteral("SortFilterSelectModel");
}

void SortFilterSelectModel::initSortFilterSelectModel()
{
    setSortRole(Qt::DisplayRole);
    setSortCaseSensitivity(Qt::CaseInsensitive);
    setSortLocaleAware(true);
    setDynamicSortFilter(false);
    connect(&m_pimpl->selectionModel, &QItemSelectionModel::selectionChanged, this,
            &SortFilterSelectModel::updateSelection, Qt::UniqueConnection);
}

// The source.

void SortFilterSelectModel::setSourceModel(QAbstractItemModel* source)
{
    Pimpl& p = *m_pimpl;
    p.connectionKeeper = std::make_unique<QObject>();
    const QPointer<QObject> keeper = p.connectionKeeper.get(); // goes when a slot below sets another source
    p.orderToRestore.reset();
    p.resetScope.reset();
    p.endForwarding();
    p.resetColumns(source);
    p.sourceSortColumn = -1;
    Q_EMIT proxySortColumnChanged();
    p.selectionModel.clear();
    Q_EMIT selectionChanged();
    if (!keeper)
        return;
    p.roleNames.clear();
    p.selectedRole = -1;
    p.cursor.roles().hovered = p.cursor.roles().preFocus = p.cursor.roles().focusCell = -1;
    p.cursor.forgetHover();
    p.cursor.forgetFocus();

    p.sourceIsFlat = qobject_cast<QAbstractTableModel*>(source) || qobject_cast<QAbstractListModel*>(source);
    if (source && source == sourceModel())
        QSortFilterProxyModel::setSourceModel(nullptr); // or the base class would keep its place among the connections
    if (source)
        p.connectBeforeBase(*source);
    {
        const Pimpl::KeyScope scope(p);
        QSortFilterProxyModel::setSourceModel(source);
        p.sortIfSorted();
    }
    if (!keeper)
        return;
    p.sortType = SortByValueType;
    if (!source)
        return;
    p.findRoles();
    p.connectBehindBase(*source);
    if (!p.parentId.isEmpty())
        loadColumnData();
    p.applyInitialSort(false);
    if (p.pendingSortColumn)
        setSortColumn(*std::exchange(p.pendingSortColumn, std::nullopt));
}

// What must be known before views hear of it through the base class, whose connections come next.
void SortFilterSelectModel::Pimpl::connectBeforeBase(QAbstractItemModel& source)
{
    QObject* const keeper = connectionKeeper.get();
    QObject::connect(&source, &QAbstractItemModel::rowsInserted, keeper, [this] { sourceRowsChanged(); });
    QObject::connect(&source, &QAbstractItemModel::rowsRemoved, keeper, [this] { sourceRowsChanged(); });
    QObject::connect(&source, &QAbstractItemModel::rowsMoved, keeper, [this] { sourceRowsChanged(); });
    QObject::connect(&source, &QAbstractItemModel::modelReset, keeper, [this] {
        sourceRowsChanged();
        resetColumns(q->sourceModel());
        resetScope.emplace(*this);
    });
    QObject::connect(&source, &QAbstractItemModel::layoutChanged, keeper, [this] {
        sourceRowsChanged();
        resetScope.emplace(*this);
    });
    QObject::connect(
        &source, &QAbstractItemModel::columnsAboutToBeInserted, keeper,
        [this](const QModelIndex& parent, int first, int last) { prepareInsertedColumns(parent, first, last); });
    QObject::connect(
        &source, &QAbstractItemModel::columnsAboutToBeRemoved, keeper,
        [this](const QModelIndex& parent, int first, int last) { saveRemovedColumns(parent, first, last); });
    QObject::connect(&source, &QAbstractItemModel::dataChanged, keeper, [this] {
        dropKeys();
        beginForwarding(true);
    });
    QObject::connect(&source, &QAbstractItemModel::headerDataChanged, keeper,
                     [this](Qt::Orientation orientation) { beginForwarding(orientation == Qt::Horizontal); });
}

void SortFilterSelectModel::Pimpl::connectBehindBase(QAbstractItemModel& source)
{
    QObject* const keeper = connectionKeeper.get();
    const auto connectColumns = [&](auto signal, auto handler) {
        QObject::connect(&source, signal, keeper, [this, handler](const QModelIndex& parent, int first, int last) {
            (this->*handler)(parent, first, last);
        });
    };
    connectColumns(&QAbstractItemModel::columnsAboutToBeInserted, &Pimpl::columnsAboutToBeInserted);
    connectColumns(&QAbstractItemModel::columnsInserted, &Pimpl::columnsInserted);
    connectColumns(&QAbstractItemModel::columnsAboutToBeRemoved, &Pimpl::columnsAboutToBeRemoved);
    connectColumns(&QAbstractItemModel::columnsRemoved, &Pimpl::columnsRemoved);
    QObject::connect(&source, &QAbstractItemModel::modelReset, keeper, [this] { sourceReset(); });
    QObject::connect(&source, &QAbstractItemModel::layoutChanged, keeper, [this] {
        sortIfSorted();
        resetScope.reset();
    });
    QObject::connect(&source, &QAbstractItemModel::dataChanged, keeper,
                     [this](const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles) {
                         if (endForwarding())
                             forwardDataChanged(topLeft, bottomRight, roles);
                     });
    QObject::connect(&source, &QAbstractItemModel::headerDataChanged, keeper,
                     [this](Qt::Orientation orientation, int first, int last) {
                         if (endForwarding())
                             forwardHeaderDataChanged(orientation, first, last);
                     });
    QObject::connect(&source, &QObject::destroyed, keeper, [this] { q->setSourceModel(nullptr); });
}

void SortFilterSelectModel::Pimpl::findRoles()
{
    const QHash<int, QByteArray> taken = q->sourceModel()->roleNames();
    int next = Qt::UserRole;
    const auto nextFree = [&] {
        while (taken.contains(next))
            ++next;
        return next++;
    };
    selectedRole = nextFree();
    cursor.roles().hovered = nextFree();
    cursor.roles().beginEdit = nextFree();
    cursor.roles().preFocus = nextFree();
    cursor.roles().focusCell = nextFree();
    roleNames.clear();
}

const QHash<int, QByteArray>& SortFilterSelectModel::Pimpl::namedRoles()
{
    const QHash<int, QByteArray> names =
        q->sourceModel() ? q->sourceModel()->roleNames() : q->QSortFilterProxyModel::roleNames();
    if (roleNames.isEmpty() || names != sourceRoleNames) {
        sourceRoleNames = names;
        roleNames = names;
        roleNames.insert(selectedRole, "isSelected");
        roleNames.insert(cursor.roles().hovered, "isHovered");
        roleNames.insert(cursor.roles().beginEdit, "beginedit");
        roleNames.insert(cursor.roles().preFocus, "isPreFocusCell");
        roleNames.insert(cursor.roles().focusCell, "isFocusCell");
    }
    return roleNames;
}

void SortFilterSelectModel::Pimpl::sourceReset()
{
    q->invalidateFilter();
    sortIfSorted();
    resetScope.reset();
    sourceSortColumn = -1;
    Q_EMIT q->proxySortColumnChanged();
    selectionModel.clear();
    Q_EMIT q->selectionChanged();
    cursor.forgetFocus();
}

QVariant SortFilterSelectModel::Pimpl::header(int sourceColumn, int role) const
{
    return q->sourceModel() ? q->sourceModel()->headerData(sourceColumn, Qt::Horizontal, role) : QVariant();
}

// Mapping.

int SortFilterSelectModel::mapProxyColumnToSource(int proxyColumn) const
{
    return m_pimpl->columns.toSource(proxyColumn);
}

int SortFilterSelectModel::mapSourceColumnToProxy(int sourceColumn) const
{
    return m_pimpl->columns.toProxy(sourceColumn);
}

QModelIndex SortFilterSelectModel::mapFromSource(const QModelIndex& sourceIndex) const
{
    if (!sourceIndex.isValid() || !sourceModel() || sourceIndex.model() != sourceModel())
        return {};
    const QModelIndex base = QSortFilterProxyModel::mapFromSource(sourceIndex);
    if (!base.isValid() || m_pimpl->columns.isInSourceOrder())
        return base;
    return createIndex(base.row(), m_pimpl->columns.toProxy(sourceIndex.column()), base.internalPointer());
}

QModelIndex SortFilterSelectModel::mapToSource(const QModelIndex& proxyIndex) const
{
    if (!proxyIndex.isValid() || !sourceModel() || proxyIndex.model() != this)
        return {};
    const QModelIndex base = QSortFilterProxyModel::mapToSource(proxyIndex);
    if (m_pimpl->columns.isInSourceOrder())
        return base;
    if (!base.isValid() || proxyIndex.column() >= m_pimpl->columns.shownCount())
        return {};
    const int column = m_pimpl->columns.toSource(proxyIndex.column());
    return column == base.column() ? base : sourceModel()->index(base.row(), column, base.parent());
}

int SortFilterSelectModel::mapProxyRowToSource(int proxyRow) const
{
    return mapToSource(index(proxyRow, 0)).row();
}

int SortFilterSelectModel::mapSourceRowToProxy(int sourceRow) const
{
    if (!sourceModel() || m_pimpl->columns.shownCount() == 0)
        return -1;
    return mapFromSource(sourceModel()->index(sourceRow, m_pimpl->columns.toSource(0))).row();
}

QModelIndex SortFilterSelectModel::mapProxyIndexToSource(int proxyRow, int proxyColumn) const
{
    return mapToSource(index(proxyRow, proxyColumn));
}

QModelIndex SortFilterSelectModel::mapProxyIndexToSource(QModelIndex proxyIndex) const
{
    return mapToSource(proxyIndex);
}

// Data.

QHash<int, QByteArray> SortFilterSelectModel::roleNames() const
{
    return m_pimpl->namedRoles();
}

QVariant SortFilterSelectModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (!sourceModel())
        return {};
    return sourceModel()->headerData(mapProxyColumnToSource(section), orientation, role);
}

QVariant SortFilterSelectModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !sourceModel())
        return {};
    if (role < Qt::UserRole)
        return QSortFilterProxyModel::data(index, role);
    Pimpl& p = *m_pimpl;
    const TableCursor::Roles& roles = p.cursor.roles();
    if (role == p.selectedRole) {
        const QModelIndex parent = index.parent();
        if (parent.isValid() && parent.model() != this)
            return false;
        switch (p.selectionMode) {
        case Row:
            return p.cells().containsRow(index.row(), parent);
        case Column:
            return p.cells().containsColumn(index.column(), parent);
        case Cell:
            return p.cells().containsCell(index.row(), index.column(), parent) &&
                   flags(index).testFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        }
    }
    if (role == roles.hovered)
        return p.cursor.isHovered(index, p.selectionMode);
    if (role == roles.preFocus)
        return p.cursor.isPreFocused(index);
    if (role == roles.focusCell)
        return p.cursor.isFocused(index);
    if (role == roles.beginEdit && p.cursor.beginEditRow() >= 0 && !p.defaultEditableColumnId.isEmpty())
        return index.row() == p.cursor.beginEditRow() &&
               p.header(mapProxyColumnToSource(index.column()), ColumnIdRole).toString() == p.defaultEditableColumnId;
    return QSortFilterProxyModel::data(index, role);
}

// Properties.

QString SortFilterSelectModel::parentId() const
{
    return m_pimpl->parentId;
}

void SortFilterSelectModel::setParentId(QString id)
{
    if (id == m_pimpl->parentId)
        return;
    m_pimpl->parentId = id;
    Q_EMIT parentIdChanged();
}

SortFilterSelectModel::SelectionMode SortFilterSelectModel::selectionMode() const
{
    return m_pimpl->selectionMode;
}

void SortFilterSelectModel::setSelectionMode(SelectionMode mode)
{
    if (mode == m_pimpl->selectionMode)
        return;
    m_pimpl->selectionMode = mode;
    Q_EMIT selectionModeChanged();
}

QString SortFilterSelectModel::defaultEditableColumnId() const
{
    return m_pimpl->defaultEditableColumnId;
}

void SortFilterSelectModel::setDefaultEditableColumnId(QString id)
{
    if (id == m_pimpl->defaultEditableColumnId)
        return;
    m_pimpl->defaultEditableColumnId = id;
    Q_EMIT defaultEditableColumnIdChanged();
}

ColumnContextMenuModel* SortFilterSelectModel::columnModel() const
{
    return &m_pimpl->columnMenu;
}

QItemSelectionModel* SortFilterSelectModel::selectionModel() const
{
    return &m_pimpl->selectionModel;
}
} // namespace velm
