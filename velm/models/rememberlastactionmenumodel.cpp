#include "velm/models/rememberlastactionmenumodel.h"

#include <QPointer>

namespace velm {
RememberLastActionMenuModel::RememberLastActionMenuModel() = default;

RememberLastActionMenuModel::~RememberLastActionMenuModel() = default;

void RememberLastActionMenuModel::menuItemTriggered(const QModelIndex& index)
{
    const QPointer<RememberLastActionMenuModel> self(this);
    MenuModel::menuItemTriggered(index);
    if (!self)
        return;
    m_lastAction = index;
    Q_EMIT lastActionChanged();
}

void RememberLastActionMenuModel::updateState()
{
    MenuModel::updateState();
    Q_EMIT lastActionChanged();
}

void RememberLastActionMenuModel::setLastAction(const QModelIndex& index)
{
    if (m_lastAction == index)
        return;
    m_lastAction = index;
    Q_EMIT lastActionChanged();
}

const MenuData* RememberLastActionMenuModel::getLastAction() const
{
    // The remembered row is looked for, since nothing else tells whether it is still there.
    std::optional<QModelIndex> found;
    if (m_lastAction && m_lastAction->isValid())
        found = findInTree(
            [this](const QModelIndex& index) { return index.internalPointer() == m_lastAction->internalPointer(); });
    if (!found)
        found = findInTree(
            [this](const QModelIndex& index) { return getData(index)->type == MenuData::getDefaultItemType(); });
    return found ? getData(*found) : nullptr;
}

void RememberLastActionMenuModel::executeLastAction()
{
    run(getLastAction());
}

QString RememberLastActionMenuModel::lastActionText() const
{
    const MenuData* action = getLastAction();
    return action ? action->text : QString();
}

QString RememberLastActionMenuModel::lastActionIcon() const
{
    const MenuData* action = getLastAction();
    return action ? action->icon : QString();
}

QString RememberLastActionMenuModel::lastActionTooltip() const
{
    const MenuData* action = getLastAction();
    return action ? action->tooltip : QString();
}
} // namespace velm
