#include "velm/filter/filterlistmodel.h"

namespace velm {
FilterListModel::FilterListModel() : m_names(std::make_unique<QStringList>())
{}

FilterListModel::~FilterListModel() = default;

void FilterListModel::setNames(const QStringList& names)
{
    beginResetModel();
    *m_names = names;
    endResetModel();
}

int FilterListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_names->size());
}

QVariant FilterListModel::data(const QModelIndex& index, int role) const
{
    const int row = index.row();
    const bool isName = role == FilterNameRole && index.column() == 0 && row >= 0 && row < rowCount();
    return isName ? QVariant(m_names->at(row)) : QVariant();
}

QHash<int, QByteArray> FilterListModel::roleNames() const
{
    return {{FilterNameRole, "filterName"}};
}
} // namespace velm
