#include "velm/models/ilistitem.h"

namespace velm {
QString IListItem::getLeftIconSource() const
{
    return {};
}

QString IListItem::getRightIconSource() const
{
    return {};
}

QString IListItem::getRightIconToolTip() const
{
    return {};
}

bool IListItem::getShowNameEdit() const
{
    return false;
}

bool IListItem::isChecked() const
{
    return false;
}

bool IListItem::isEditable() const
{
    return true;
}

QString IListItem::getError() const
{
    return {};
}

QString IListItem::getWarning() const
{
    return {};
}

QString IListItem::getInfo() const
{
    return {};
}

MenuModel* IListItem::getActions() const
{
    return nullptr;
}

bool IListItem::setShowNameEdit(bool)
{
    return false;
}

bool IListItem::setName(const QString&)
{
    return false;
}

bool IListItem::setChecked(bool)
{
    return false;
}
} // namespace velm
