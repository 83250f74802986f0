#pragma once

#include "velm/models/menumodel.h"

namespace velm {
/// The menu of a split button, which repeats the action that was chosen last: at first the menu's first entry.
class VELM_EXPORT RememberLastActionMenuModel : public MenuModel
{
    Q_OBJECT
    Q_PROPERTY(QString lastActionIcon READ lastActionIcon NOTIFY lastActionChanged)
    Q_PROPERTY(QString lastActionText READ lastActionText NOTIFY lastActionChanged)
    Q_PROPERTY(QString lastActionTooltip READ lastActionTooltip NOTIFY lastActionChanged)
public:
    RememberLastActionMenuModel();
    ~RememberLastActionMenuModel() override;

    void updateState() override;
    void setLastAction(const QModelIndex& index);

public Q_SLOTS:
    /// The command runs before the memory changes, which is told for the same row, too.
    void menuItemTriggered(const QModelIndex& index) override;
    void executeLastAction();
    // Empty when the menu has no entry.
    QString lastActionText() const;
    QString lastActionIcon() const;
    QString lastActionTooltip() const;

Q_SIGNALS:
    void lastActionChanged();

private:
    const MenuData* getLastAction() const;

    /// Not persistent, and kept through a reset: it may stand for a row that is gone.
    std::optional<QModelIndex> m_lastAction;
};
} // namespace velm
