#include "velm/table/columncontextmenumodel.h"

#include "velm/table/columns.h"
#include "velm/table/sortfilterselectmodel.h"

namespace velm {
namespace {
// The property of the column that can be shown from the menu but not hidden again.
constexpr int unhidablePropertyId = 415;
} // namespace

ColumnContextMenuModel::ColumnContextMenuModel(SortFilterSelectModel& tableModel)
    : QAbstractListModel(&tableModel), m_tableModel(tableModel)
{
    m_actions.push_back({tr("&Show all columns"), [this](int) { m_tableModel.showAllColumns(); }});
    m_actions.push_back({tr("&Restore column positions"), [this](int) { m_tableModel.restoreColumnPositions(); }});
}

int ColumnContextMenuModel::sourceColumnCount() const
{
    const QAbstractItemModel* source = m_tableModel.sourceModel();
    return source ? source->columnCount() : 0;
}

int ColumnContextMenuModel::firstAction() const
{
    return m_defaultModelDisabled ? 0 : sourceColumnCount() + 1;
}

int ColumnContextMenuModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid() || !m_tableModel.sourceModel())
        return 0;
    return firstAction() + static_cast<int>(m_actions.size());
}

QVariant ColumnContextMenuModel::data(const QModelIndex& index, int role) const
{
    const QAbstractItemModel* source = m_tableModel.sourceModel();
    if (!source || !index.isValid() || index.model() != this || index.row() >= rowCount())
        return {};
    const int row = index.row();
    if (row >= firstAction()) {
        switch (role) {
        case NameRole:
        case NameInMenuRole:
            return m_actions[static_cast<std::size_t>(row - firstAction())].text;
        case CheckableRole:
            return false;
        case TypeRole:
            return QStringLiteral("action");
        default:
            return {};
        }
    }
    if (row == firstAction() - 1) {
        switch (role) {
        case CheckableRole:
            return false;
        case TypeRole:
            return QStringLiteral("separator");
        default:
            return {};
        }
    }
    switch (role) {
    case NameRole:
        return source->headerData(row, Qt::Horizontal, Qt::DisplayRole);
    case NameInMenuRole:
        return source->headerData(row, Qt::Horizontal, ColumnNameInMenuRole);
    case CheckableRole:
        return true;
    case CheckedRole:
        return m_tableModel.isSourceColumnVisible(row);
    case EnabledRole: {
        const QVariant propertyId = source->headerData(row, Qt::Horizontal, ColumnPropertyIdRole);
        return propertyId.toInt() != unhidablePropertyId || !m_tableModel.isSourceColumnVisible(row);
    }
    case TypeRole:
        return QStringLiteral("showhide");
    default:
        return {};
    }
}

QHash<int, QByteArray> ColumnContextMenuModel::roleNames() const
{
    return {{NameRole, "name"},       {NameInMenuRole, "nameInMenu"}, {CheckableRole, "checkable"},
            {CheckedRole, "checked"}, {EnabledRole, "enabled"},       {TypeRole, "type"}};
}

void ColumnContextMenuModel::disableDefaultModel()
{
    if (m_defaultModelDisabled)
        return;
    beginResetModel();
    m_defaultModelDisabled = true;
    m_actions.erase(m_actions.begin(), m_actions.begin() + std::min<std::ptrdiff_t>(2, std::ssize(m_actions)));
    endResetModel();
}

void ColumnContextMenuModel::setSourceColumnVisible(int sourceColumn, bool visible)
{
    m_tableModel.setSourceColumnVisible(sourceColumn, visible);
}

void ColumnContextMenuModel::trigger(int actionIndex, int columnIndex)
{
    const qint64 place = qint64(actionIndex) - firstAction();
    if (place < 0 || place >= std::ssize(m_actions))
        return;
    // On a copy: the action may change the menu.
    if (const auto handler = m_actions[static_cast<std::size_t>(place)].handler)
        handler(columnIndex);
}

void ColumnContextMenuModel::refresh()
{
    beginResetModel();
    endResetModel();
}
} // namespace velm
