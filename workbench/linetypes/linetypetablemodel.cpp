#include "linetypes/linetypetablemodel.h"

#include "od/oddbdatabase.h"
#include "panels/cellkind.h"
#include "velm/bridge/conversions.h"

namespace workbench {
namespace {
const velm::Columns& columns()
{
    using Model = LineTypeTableModel;
    static const velm::Columns columns = [] {
        velm::Columns made;
        made.initialSortColumn = Model::NameColumn;
        made.columns = {
            tableColumn(Model::NameColumn, CellKind::Text, Model::tr("Name"), "name", 190)
                .sortType(velm::SortAlphanumeric),
            tableColumn(Model::LineColumn, CellKind::LineType, Model::tr("Line"), "line", 160),
            tableColumn(Model::DescriptionColumn, CellKind::Text, Model::tr("Description"), "description", 240)
                .sortType(velm::SortAlphanumeric),
            tableColumn(Model::StateColumn, CellKind::Text, Model::tr("In the drawing"), "state", 112)
                .sortType(velm::SortAlphanumeric),
        };
        return made;
    }();
    return columns;
}

QString pattern(const LineType& lineType)
{
    QStringList dashes;
    for (const double dash : lineType.dashes)
        dashes += QString::number(dash);
    return dashes.join(QStringLiteral(", "));
}
} // namespace

LineTypeTableModel::LineTypeTableModel(const OdDbDatabase& database, QObject* parent)
    : QAbstractTableModel(parent), m_database(database)
{}

void LineTypeTableModel::setLineTypes(std::vector<LineType> lineTypes)
{
    // No reset: the order and the widths of the columns are not the file's.
    if (!m_lineTypes.empty()) {
        beginRemoveRows({}, 0, rowCount() - 1);
        m_lineTypes.clear();
        endRemoveRows();
    }
    if (!lineTypes.empty()) {
        beginInsertRows({}, 0, static_cast<int>(lineTypes.size()) - 1);
        m_lineTypes = std::move(lineTypes);
        endInsertRows();
    }
}

int LineTypeTableModel::row(const QString& name) const
{
    for (int row = 0; row < rowCount(); ++row)
        if (lineType(row).name.compare(name, Qt::CaseInsensitive) == 0)
            return row;
    return -1;
}

int LineTypeTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lineTypes.size());
}

int LineTypeTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LineTypeTableModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const LineType& shown = lineType(index.row());
    if (role == Qt::DecorationRole && index.column() == LineColumn)
        return QVariantList(shown.dashes.begin(), shown.dashes.end());
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case NameColumn:
        return shown.name;
    case LineColumn:
        return pattern(shown);
    case DescriptionColumn:
        return shown.description;
    default:
        return state(shown);
    }
}

QVariant LineTypeTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return velm::headerData(columns(), section, orientation, role);
}

QString LineTypeTableModel::state(const LineType& lineType) const
{
    const OdDbLinetypeTableRecord* record = m_database.findLinetype(velm::odFromQt(lineType.name));
    if (!record)
        return {};
    return record->dashes() == lineType.dashes ? tr("Loaded") : tr("Other dashes");
}
} // namespace workbench
