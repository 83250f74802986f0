#include "velm/models/stringlistmodel.h"

namespace velm {
namespace {
constexpr int modelDataRole = Qt::UserRole;
}

StringListModel::StringListModel() = default;

StringListModel::StringListModel(std::vector<QString>&& items) : GenericListModel(std::move(items))
{}

StringListModel::~StringListModel() = default;

QString StringListModel::data(int row) const
{
    const QString* text = getItem(row);
    return text ? *text : QString();
}

void StringListModel::update(int row, const QString& text)
{
    GenericListModel::update(row, text, {modelDataRole});
}

QVariant StringListModel::data(const QModelIndex& index, int role) const
{
    const QString* text = role == Qt::DisplayRole || role == modelDataRole ? getItem(index) : nullptr;
    return text ? QVariant(*text) : QVariant();
}

QHash<int, QByteArray> StringListModel::roleNames() const
{
    return {{modelDataRole, "modelData"}};
}
} // namespace velm
