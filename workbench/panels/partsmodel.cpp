#include "panels/partsmodel.h"

#include "panels/cellkind.h"
#include "velm/bridge/strings.h"

#include <QDate>

namespace workbench {
namespace {
velm::Columns makeColumns()
{
    using M = PartsModel;
    velm::Columns result;
    result.columns = {
        tableColumn(M::NumberColumn, CellKind::Number, M::tr("No."), "number", 80).sortType(velm::SortInteger),
        tableColumn(M::NameColumn, CellKind::Text, M::tr("Name"), "name", 180).sortType(velm::SortAlphanumeric),
        tableColumn(M::ValueColumn, CellKind::Number, M::tr("Value"), "value", 110).sortType(velm::SortDouble),
        tableColumn(M::SizeColumn, CellKind::Number, M::tr("File size"), "size", 110).sortType(velm::SortFileSize),
        tableColumn(M::DateColumn, CellKind::Text, M::tr("Date"), "date", 120).sortType(velm::SortByValueType),
        tableColumn(M::CheckedColumn, CellKind::Check, M::tr("Checked"), "checked", 80).sortType(velm::SortByValueType),
    };
    return result;
}

/// Spreads neighbouring numbers over the whole range.
quint64 mixed(quint64 number)
{
    number = (number ^ (number >> 30)) * 0xbf58476d1ce4e5b9U;
    number = (number ^ (number >> 27)) * 0x94d049bb133111ebU;
    return number ^ (number >> 31);
}

} // namespace

PartsModel::PartsModel(QObject* parent)
    : QAbstractTableModel(parent), m_columns(makeColumns()), m_kb(QString::fromWCharArray(velm::Strings::kb())),
      m_mb(QString::fromWCharArray(velm::Strings::mb()))
{}

PartsModel::Part PartsModel::makePart(int row)
{
    quint64 chance = mixed(static_cast<quint64>(row) + 1);
    const auto take = [&chance](quint64 range) {
        const auto result = static_cast<int>(chance % range);
        chance = mixed(chance);
        return result;
    };
    Part part{};
    part.family = 1 + take(2000);
    part.variant = static_cast<short>(1 + take(120));
    part.value = take(100'000'000) / 1000.0 - 50'000.0;
    // As many small files as large ones.
    part.size = take(quint64(1) << (4 + take(25)));
    part.day = take(9000);
    part.checked = take(3) == 0;
    return part;
}

QString PartsModel::sizeText(int bytes) const
{
    constexpr int kilo = 1024;
    if (bytes < kilo)
        return QString::number(bytes);
    if (bytes < kilo * kilo)
        return QString::number(bytes / kilo) + QLatin1Char(' ') + m_kb;
    return QString::number(bytes / (kilo * kilo)) + QLatin1Char(' ') + m_mb;
}

void PartsModel::clear()
{
    beginResetModel();
    m_parts = {};
    endResetModel();
}

void PartsModel::append(int count)
{
    if (count <= 0)
        return;
    beginInsertRows({}, rowCount(), rowCount() + count - 1);
    for (int added = 0; added < count; ++added)
        m_parts.push_back(makePart(rowCount()));
    endInsertRows();
}

QString PartsModel::name(int row) const
{
    const Part& part = m_parts[static_cast<std::size_t>(row)];
    return QStringLiteral("Bolt ") + QString::number(part.family) + QLatin1Char('-') + QString::number(part.variant);
}

int PartsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_parts.size());
}

int PartsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PartsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Part& part = m_parts[static_cast<std::size_t>(index.row())];
    if (role == Qt::CheckStateRole && index.column() == CheckedColumn)
        return part.checked ? Qt::Checked : Qt::Unchecked;
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    const bool isShown = role == Qt::DisplayRole;
    switch (index.column()) {
    case NumberColumn:
        return index.row() + 1;
    case NameColumn:
        return name(index.row());
    case ValueColumn:
        return isShown ? QVariant(QString::number(part.value, 'f', 3)) : QVariant(part.value);
    case SizeColumn:
        return sizeText(part.size);
    case DateColumn: {
        const QDate date = QDate(2000, 1, 1).addDays(part.day);
        return isShown ? QVariant(date.toString(Qt::ISODate)) : QVariant(date);
    }
    case CheckedColumn:
        return isShown ? QVariant() : QVariant(part.checked ? 1 : 0);
    default:
        return {};
    }
}

bool PartsModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!(flags(index) & Qt::ItemIsUserCheckable) || role != Qt::CheckStateRole)
        return false;
    m_parts[static_cast<std::size_t>(index.row())].checked = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags PartsModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags result = QAbstractTableModel::flags(index);
    return index.isValid() && index.column() == CheckedColumn ? result | Qt::ItemIsUserCheckable : result;
}

QVariant PartsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return velm::headerData(m_columns, section, orientation, role);
}

QHash<int, QByteArray> PartsModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractTableModel::roleNames();
    names.insert(Qt::CheckStateRole, "checkState");
    return names;
}
} // namespace workbench
