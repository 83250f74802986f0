#include "velm/models/ilistitemlistmodel.h"

namespace velm {
namespace {
template <typename Result>
Result read(const IListItem* item, Result (IListItem::*getter)() const)
{
    return item ? (item->*getter)() : Result();
}
} // namespace

QString IListItemListModel::getName(int row) const
{
    return read(getItem(row), &IListItem::getName);
}

QString IListItemListModel::getLeftIconSource(int row) const
{
    return read(getItem(row), &IListItem::getLeftIconSource);
}

QString IListItemListModel::getRightIconSource(int row) const
{
    return read(getItem(row), &IListItem::getRightIconSource);
}

QString IListItemListModel::getRightIconToolTip(int row) const
{
    return read(getItem(row), &IListItem::getRightIconToolTip);
}

bool IListItemListModel::getShowNameEdit(int row) const
{
    return read(getItem(row), &IListItem::getShowNameEdit);
}

bool IListItemListModel::isChecked(int row) const
{
    return read(getItem(row), &IListItem::isChecked);
}

bool IListItemListModel::isEditable(int row) const
{
    return read(getItem(row), &IListItem::isEditable);
}

QString IListItemListModel::getError(int row) const
{
    return read(getItem(row), &IListItem::getError);
}

QString IListItemListModel::getWarning(int row) const
{
    return read(getItem(row), &IListItem::getWarning);
}

QString IListItemListModel::getInfo(int row) const
{
    return read(getItem(row), &IListItem::getInfo);
}

MenuModel* IListItemListModel::getActions(int row) const
{
    return read(getItem(row), &IListItem::getActions);
}

bool IListItemListModel::setShowNameEdit(int row, bool show)
{
    IListItem* item = getItem(row);
    return item && item->setShowNameEdit(show);
}

bool IListItemListModel::setName(int row, const QString& name)
{
    IListItem* item = getItem(row);
    return item && item->setName(name);
}

bool IListItemListModel::setChecked(int row, bool checked)
{
    IListItem* item = getItem(row);
    return item && item->setChecked(checked);
}
} // namespace velm
