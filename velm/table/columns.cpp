#include "velm/table/columns.h"

#include "velm/units/velmconfig.h"

#include <QVariantMap>

#include <cstdlib>

namespace velm {
namespace {
const wxString columnDataGroup = L"Column Data/";

wxString columnKey(const wxString& columnName)
{
    return columnDataGroup + columnName + L"/";
}
} // namespace

ColumnBuilder::ColumnBuilder(const QString& name, const QString& columnId)
{
    ColumnData::name = name;
    ColumnData::columnId = columnId;
}

ColumnBuilder::ColumnBuilder(int propertyId, int type, const QString& name, const QString& columnId)
    : ColumnBuilder(name, columnId)
{
    ColumnData::propertyId = propertyId;
    ColumnData::type = type;
    ColumnData::sizeHint = {100, 0};
}

ColumnBuilder& ColumnBuilder::propertyId(int id)
{
    ColumnData::propertyId = id;
    return *this;
}

ColumnBuilder& ColumnBuilder::type(int type)
{
    ColumnData::type = type;
    return *this;
}

ColumnBuilder& ColumnBuilder::icon(const QString& icon)
{
    ColumnData::icon = icon;
    return *this;
}

ColumnBuilder& ColumnBuilder::cellIcon(const QString& icon)
{
    ColumnData::cellIcon = icon;
    return *this;
}

ColumnBuilder& ColumnBuilder::initialWidth(int width)
{
    ColumnData::sizeHint = {width, 0};
    return *this;
}

ColumnBuilder& ColumnBuilder::sortType(SortType type)
{
    ColumnData::sortType = type;
    return *this;
}

ColumnBuilder& ColumnBuilder::initiallyVisible(bool visible)
{
    ColumnData::initiallyVisible = visible;
    return *this;
}

ColumnBuilder& ColumnBuilder::initialSortOrder(Qt::SortOrder order)
{
    ColumnData::initialSortOrder = order;
    return *this;
}

ColumnBuilder& ColumnBuilder::nameInMenu(const QString& name)
{
    ColumnData::nameInMenu = name;
    return *this;
}

ColumnBuilder& ColumnBuilder::proportionalSize(int size)
{
    ColumnData::proportionalSize = size;
    return *this;
}

ColumnBuilder& ColumnBuilder::textAlignment(Qt::Alignment alignment)
{
    ColumnData::textAlignment = alignment;
    return *this;
}

QVariant headerData(const Columns& columns, int section, Qt::Orientation orientation, int role)
{
    if (orientation != Qt::Horizontal || section < 0 || static_cast<std::size_t>(section) >= columns.columns.size())
        return {};
    const ColumnData& column = columns.columns[static_cast<std::size_t>(section)];
    switch (role) {
    case Qt::DisplayRole:
        return column.name;
    case Qt::DecorationRole:
        return column.icon;
    case Qt::EditRole:
        return QVariantMap{{"selectionColumn", column.selectionColumn},
                           {"textAlignment", static_cast<int>(column.textAlignment)}};
    case Qt::WhatsThisRole:
        return column.type;
    case Qt::SizeHintRole:
        return column.sizeHint;
    case Qt::InitialSortOrderRole:
        return static_cast<int>(column.initialSortOrder);
    case ColumnInitiallyVisibleRole:
        return column.initiallyVisible;
    case ColumnProportionalSizeRole:
        return column.proportionalSize;
    case ColumnSortTypeRole:
        return static_cast<int>(column.sortType);
    case ColumnIdRole:
        return column.columnId;
    case ColumnPropertyIdRole:
        return column.propertyId;
    case ColumnIsInitialSortColumnRole:
        return section == columns.initialSortColumn;
    case ColumnNameInMenuRole:
        return column.nameInMenu.isEmpty() ? column.name : column.nameInMenu;
    default:
        return {};
    }
}

QHash<int, QByteArray> columnRoleNames()
{
    return {{Qt::DisplayRole, "display"},
            {Qt::DecorationRole, "decoration"},
            {Qt::WhatsThisRole, "whatsThis"},
            {Qt::EditRole, "edit"}};
}

long readColumnDataFromRegistry(const wxString& columnName, long defaultWidth, long defaultPosition, bool& hidden,
                                long& position, const wxString& dialogId)
{
    const wxString key = columnKey(columnName);
    hidden = VelmConfig::readDialogSetting(dialogId, key + L"Hidden", hidden);
    position = VelmConfig::readDialogSetting(dialogId, key + L"Position", defaultPosition);
    return VelmConfig::readDialogSetting(dialogId, key + L"Width", defaultWidth);
}

void writeColumnDataToRegistry(const wxString& columnName, int width, int position, const wxString& dialogId)
{
    const wxString key = columnKey(columnName);
    VelmConfig::writeDialogSetting(dialogId, key + L"Width", std::labs(width));
    VelmConfig::writeDialogSetting(dialogId, key + L"Hidden", width < 1);
    VelmConfig::writeDialogSetting(dialogId, key + L"Position", static_cast<long>(position));
}

std::vector<wxString> getSavedColumnDataList(const wxString& dialogId)
{
    if (dialogId.empty())
        return {}; // tables without an id have nothing of their own
    return VelmConfig::readDialogEntryList(dialogId, columnDataGroup.BeforeFirst(L'/'));
}
} // namespace velm
