#include "panels/recordtablemodel.h"

#include "panels/cellkind.h"

namespace workbench {
RecordTableModel::RecordTableModel(velm::Columns columns, QObject* parent)
    : QAbstractTableModel(parent), m_columns(std::move(columns))
{}

void RecordTableModel::setDatabase(OdDbDatabase* database)
{
    // No reset: the order and the widths of the columns are not the drawing's.
    if (!m_records.empty()) {
        beginRemoveRows({}, 0, rowCount() - 1);
        m_records.clear();
        endRemoveRows();
    }
    m_database = database;
    if (m_database) {
        survey(*m_database);
        insertMissing();
    }
}

bool RecordTableModel::refresh()
{
    if (!m_database)
        return false;
    for (int row = rowCount() - 1; row >= 0; --row)
        if (!record(row)) {
            beginRemoveRows({}, row, row);
            m_records.erase(m_records.begin() + row);
            endRemoveRows();
        }
    survey(*m_database);
    if (!m_records.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    return insertMissing();
}

bool RecordTableModel::insertMissing()
{
    // New ones stand behind the others in the drawing, too.
    const std::vector<OdDbObjectId> present = records(*m_database);
    const auto first = present.begin() + static_cast<std::ptrdiff_t>(std::min(m_records.size(), present.size()));
    if (first == present.end())
        return false;
    beginInsertRows({}, rowCount(), static_cast<int>(present.size()) - 1);
    m_records.insert(m_records.end(), first, present.end());
    endInsertRows();
    return true;
}

OdDbSymbolTableRecord* RecordTableModel::record(int row) const
{
    if (row < 0 || row >= rowCount())
        return nullptr;
    return m_records[static_cast<std::size_t>(row)].open<OdDbSymbolTableRecord>();
}

bool RecordTableModel::isCheck(int column) const
{
    return m_columns.columns[static_cast<std::size_t>(column)].type == static_cast<int>(CellKind::Check);
}

int RecordTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int RecordTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.columns.size());
}

Qt::ItemFlags RecordTableModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    OdDbSymbolTableRecord* object = record(index.row());
    if (object && field(*object, index.column()).apply)
        flags |= isCheck(index.column()) ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    return flags;
}

QVariant RecordTableModel::data(const QModelIndex& index, int role) const
{
    OdDbSymbolTableRecord* object = record(index.row());
    if (!object)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return shown(*object, index.column());
    case Qt::DecorationRole:
        return decoration(*object, index.column());
    case Qt::EditRole:
        return field(*object, index.column()).value;
    case Qt::CheckStateRole:
        if (isCheck(index.column()))
            return shown(*object, index.column()).toBool() ? Qt::Checked : Qt::Unchecked;
        return {};
    case ChoicesRole:
        return field(*object, index.column()).choices;
    default:
        return {};
    }
}

bool RecordTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    OdDbSymbolTableRecord* object = record(index.row());
    if (!object || (role != Qt::EditRole && (role != Qt::CheckStateRole || !isCheck(index.column()))))
        return false;
    const ObjectField present = field(*object, index.column());
    QVariant wanted = value;
    if (!present.apply)
        return false;
    if (!wanted.convert(present.value.metaType())) {
        Q_EMIT refused(tr("\"%1\" isn't a number.").arg(value.toString()));
        return false;
    }
    if (wanted == present.value)
        return true;
    if (const QString reason = problem(*object, index.column(), wanted); !reason.isEmpty()) {
        Q_EMIT refused(reason);
        return false;
    }
    present.apply(wanted);
    // Other cells may show something of it, too.
    Q_EMIT dataChanged(this->index(index.row(), 0), this->index(index.row(), columnCount() - 1));
    Q_EMIT edited();
    return true;
}

QVariant RecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return velm::headerData(m_columns, section, orientation, role);
}

QHash<int, QByteArray> RecordTableModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractTableModel::roleNames();
    names.insert(Qt::CheckStateRole, "checkState");
    names.insert(ChoicesRole, "choices");
    return names;
}
} // namespace workbench
