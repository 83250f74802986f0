#pragma once

#include "velm/models/menudata.h"
#include "velm/models/treemodel/treemodel.h"

namespace velm {
extern template class VELM_EXPORT TreeModel<MenuData>;

/// A menu, its sub-menus as children of their rows.
class VELM_EXPORT MenuModel : public TreeModel<MenuData>
{
    Q_OBJECT
public:
    enum Role
    {
        TooltipRole = Qt::ToolTipRole,
        TypeRole = Qt::WhatsThisRole,
        TextRole = Qt::UserRole,
        IconRole,
        BitmapRole,
        EnabledRole,
        CheckableRole,
        CheckedRole,
        ShortcutRole,
        MenuIdRole,
        UserDataRole,
    };

    MenuModel();
    ~MenuModel() override;

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant dataImpl(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> customRoleNames() const override;

    // Runs the row's command. The command may rebuild the menu, or destroy it.
    Q_SLOT virtual void menuItemTriggered(const QModelIndex& modelIndex);
    /// Brings all rows up to date, before the menu opens.
    virtual void updateState();

    /// A row that isn't checkable doesn't change but is signalled all the same, in a batch, too.
    void setChecked(const QModelIndex& index, bool checked);

public Q_SLOTS:
    int separatorCount(const QModelIndex& parent) const;
    bool checkableRowPresent(const QModelIndex& parent) const;
    /// The text without any "&".
    QString getMenuItemLabelText(const QModelIndex& modelIndex) const;

protected:
    /// Runs the command of a copy, since it may destroy the row. Null: nothing.
    static void run(const MenuData* data);
};
} // namespace velm
