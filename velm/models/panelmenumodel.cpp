#include "velm/models/panelmenumodel.h"

namespace velm {
PanelMenuModel::PanelMenuModel() = default;

PanelMenuModel::~PanelMenuModel() = default;

QVariant PanelMenuModel::data(const QModelIndex& index, int role) const
{
    const PanelMenuItem* item = getItem(index);
    if (!item)
        return {};
    switch (role) {
    case TextRole:
        return item->text;
    case CheckableRole:
        return item->checkable;
    case CheckedRole:
        return item->checked;
    case DisabledRole:
        return item->disabled;
    default:
        return {};
    }
}

QHash<int, QByteArray> PanelMenuModel::roleNames() const
{
    return {{TextRole, "text"}, {CheckableRole, "checkable"}, {CheckedRole, "checked"}, {DisabledRole, "disabled"}};
}

void PanelMenuModel::menuItemClicked(int index)
{
    if (!getItem(index))
        return;
    // A copy, since the action may put other entries in the place of this one.
    const std::function<void()> action = getItem(index)->action;
    action();
    PanelMenuItem* item = getItem(index);
    if (item && item->checkable)
        item->checked = !item->checked;
}
} // namespace velm
