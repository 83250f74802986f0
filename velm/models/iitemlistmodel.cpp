#include "velm/models/iitemlistmodel.h"

#include "velm/models/menumodel.h"

namespace velm {
QString IItemListModel::getLeftIconSource(int) const
{
    return {};
}

QString IItemListModel::getRightIconSource(int) const
{
    return {};
}

QString IItemListModel::getRightIconToolTip(int) const
{
    return {};
}

bool IItemListModel::getShowNameEdit(int) const
{
    return false;
}

bool IItemListModel::isChecked(int) const
{
    return false;
}

bool IItemListModel::isEditable(int) const
{
    return true;
}

QString IItemListModel::getError(int) const
{
    return {};
}

QString IItemListModel::getWarning(int) const
{
    return {};
}

QString IItemListModel::getInfo(int) const
{
    return {};
}

MenuModel* IItemListModel::getActions(int) const
{
    return nullptr;
}

bool IItemListModel::setShowNameEdit(int, bool)
{
    return false;
}

bool IItemListModel::setName(int, const QString&)
{
    return false;
}

bool IItemListModel::setChecked(int, bool)
{
    return false;
}

QHash<int, QByteArray> IItemListModel::getItemRoleNames() const
{
    return {{NameRole, "itemName"},
            {LeftIconRole, "itemLeftIcon"},
            {RightIconRole, "itemRightIcon"},
            {RightIconToolTipRole, "itemRightIconToolTip"},
            {ShowNameEditRole, "itemShowNameEdit"},
            {CheckedRole, "itemIsChecked"},
            {EditableRole, "itemIsEditable"},
            {ErrorRole, "itemError"},
            {WarningRole, "itemWarning"},
            {InfoRole, "itemInfo"},
            {ActionsRole, "itemActions"}};
}

QVariant IItemListModel::getItemData(int row, int role) const
{
    switch (role) {
    case NameRole:
        return getName(row);
    case LeftIconRole:
        return getLeftIconSource(row);
    case RightIconRole:
        return getRightIconSource(row);
    case RightIconToolTipRole:
        return getRightIconToolTip(row);
    case ShowNameEditRole:
        return getShowNameEdit(row);
    case CheckedRole:
        return isChecked(row);
    case EditableRole:
        return isEditable(row);
    case ErrorRole:
        return getError(row);
    case WarningRole:
        return getWarning(row);
    case InfoRole:
        return getInfo(row);
    case ActionsRole:
        return QVariant::fromValue(getActions(row));
    default:
        return {};
    }
}

bool IItemListModel::setItemData(int row, const QVariant& value, int role)
{
    if (getItemData(row, role) == value)
        return false;
    switch (role) {
    case NameRole:
        return setName(row, value.toString());
    case ShowNameEditRole:
        return setShowNameEdit(row, value.toBool());
    case CheckedRole:
        return setChecked(row, value.toBool());
    default:
        return false;
    }
}
} // namespace velm
