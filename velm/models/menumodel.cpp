#include "velm/models/menumodel.h"

#include <algorithm>

namespace velm {
template class TreeModel<MenuData>;

MenuModel::MenuModel() : TreeModel(nullptr)
{}

MenuModel::~MenuModel() = default;

int MenuModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant MenuModel::dataImpl(const QModelIndex& index, int role) const
{
    const MenuData* data = getData(index);
    if (!data)
        return {};
    switch (role) {
    case TooltipRole:
        return data->tooltip;
    case TypeRole:
        return data->type;
    case TextRole:
        return data->text;
    case IconRole:
        return data->icon;
    case BitmapRole:
        return data->bitmap ? QVariant(*data->bitmap) : QVariant();
    case EnabledRole:
        return data->isEnabled();
    case CheckableRole:
        return data->isCheckable();
    case CheckedRole:
        return data->isChecked();
    case ShortcutRole:
        return data->shortcut;
    case MenuIdRole:
        return data->menuId;
    case UserDataRole:
        return data->userData;
    default:
        return {};
    }
}

QHash<int, QByteArray> MenuModel::customRoleNames() const
{
    return {{TooltipRole, "tooltip"}, {TextRole, "text"},         {IconRole, "icon"},
            {BitmapRole, "bitmap"},   {EnabledRole, "enabled"},   {CheckableRole, "checkable"},
            {CheckedRole, "checked"}, {ShortcutRole, "shortcut"}, {MenuIdRole, "menuId"}};
}

void MenuModel::run(const MenuData* data)
{
    if (data)
        MenuData(*data).execute();
}

void MenuModel::menuItemTriggered(const QModelIndex& modelIndex)
{
    run(getData(modelIndex));
}

void MenuModel::updateState()
{
    traverseTree([this](const QModelIndex& index) {
        // The function may put another one in its own place.
        if (const MenuData::Update function = getData(index)->update)
            update(index, [&](MenuData& data) {
                function(data);
                return true;
            });
        return TreeWalk::Continue;
    });
}

void MenuModel::setChecked(const QModelIndex& index, bool checked)
{
    if (!index.isValid())
        return;
    update(index, [checked](MenuData& data) {
        data.setChecked(checked);
        return false;
    });
    Q_EMIT dataChanged(index, index, {CheckedRole});
}

int MenuModel::separatorCount(const QModelIndex& parent) const
{
    const QList<QModelIndex> rows = children(parent);
    return static_cast<int>(std::count_if(rows.begin(), rows.end(), [this](const QModelIndex& row) {
        return getData(row)->type == MenuData::getSeparatorType();
    }));
}

bool MenuModel::checkableRowPresent(const QModelIndex& parent) const
{
    const QList<QModelIndex> rows = children(parent);
    return std::any_of(rows.begin(), rows.end(),
                       [this](const QModelIndex& row) { return getData(row)->isCheckable(); });
}

QString MenuModel::getMenuItemLabelText(const QModelIndex& modelIndex) const
{
    const MenuData* data = getData(modelIndex);
    return data ? QString(data->text).remove(QLatin1Char('&')) : QString();
}
} // namespace velm
