#include "velm/table/sortfiltermodel.h"

namespace velm {
namespace {
void tellOfUnknownRole(const auto& role)
{
    QMessageLogger(nullptr, 0, nullptr).debug() << "Sort role" << role << "not found";
}
} // namespace

SortFilterModel::SortFilterModel(QObject* parent) : QSortFilterProxyModel(parent)
{
    connect(this, &QAbstractProxyModel::sourceModelChanged, this, [this] {
        if (sourceModel() && m_pendingSortRoleName)
            setSortRoleName(*m_pendingSortRoleName);
    });
}

int SortFilterModel::mapRowToSource(int proxyRow) const
{
    return mapToSource(index(proxyRow, 0)).row();
}

int SortFilterModel::mapRowFromSource(int sourceRow) const
{
    return sourceModel() ? mapFromSource(sourceModel()->index(sourceRow, 0)).row() : -1;
}

void SortFilterModel::setSortColumn(int col)
{
    if (col == sortColumn())
        return;
    sort(col, sortOrder());
    Q_EMIT sortColumnChanged(col);
}

void SortFilterModel::setAscending(bool isAscending)
{
    if (isAscending == ascending())
        return;
    sort(sortColumn(), isAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
    Q_EMIT ascendingChanged(isAscending);
}

bool SortFilterModel::ascending() const
{
    return sortOrder() == Qt::AscendingOrder;
}

void SortFilterModel::setSortRoleName(QString role)
{
    if (!sourceModel()) {
        m_pendingSortRoleName = role;
        return;
    }
    m_pendingSortRoleName.reset();
    const QHash<int, QByteArray> names = sourceModel()->roleNames();
    const auto found = std::find(names.cbegin(), names.cend(), role.toUtf8());
    if (found == names.cend()) {
        tellOfUnknownRole(role);
        return;
    }
    if (found.key() == sortRole())
        return;
    setSortRole(found.key());
    Q_EMIT sortRoleNameChanged(role);
}

QString SortFilterModel::sortRoleName() const
{
    if (!sourceModel())
        return {};
    const QHash<int, QByteArray> names = sourceModel()->roleNames();
    const auto found = names.constFind(sortRole());
    if (found == names.cend()) {
        tellOfUnknownRole(sortRole());
        return {};
    }
    return QString::fromUtf8(*found);
}
} // namespace velm
