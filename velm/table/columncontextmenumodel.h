#pragma once

#include "velm/velm_export.h"

#include <QAbstractListModel>

#include <functional>
#include <vector>

namespace velm {
class SortFilterSelectModel;

/// The menu of a table's header: a row for each column of the source, which shows or hides it, a separator, and
/// actions.
class VELM_EXPORT ColumnContextMenuModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role
    {
        NameRole,       ///< "name"
        NameInMenuRole, ///< "nameInMenu"
        CheckableRole,  ///< "checkable"
        CheckedRole,    ///< "checked": whether the column is visible
        EnabledRole,    ///< "enabled"
        TypeRole,       ///< "type": "showhide", "separator" or "action"
    };

    struct Action
    {
        QString text;
        std::function<void(int columnIndex)> handler; ///< takes the column that the menu was opened on
    };

    explicit ColumnContextMenuModel(SortFilterSelectModel& tableModel);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// For a panel to add its own; refresh() tells the menu of it.
    std::vector<Action>& actions() { return m_actions; }
    /// Leaves out the columns and the actions "show all" and "restore positions".
    void disableDefaultModel();
    SortFilterSelectModel& tableModel() const { return m_tableModel; }

public Q_SLOTS:
    void setSourceColumnVisible(int sourceColumn, bool visible);
    /// `actionIndex` is the row of the menu; rows that are no action do nothing.
    void trigger(int actionIndex, int columnIndex);
    /// For the checks to be read anew.
    void refresh();

private:
    int sourceColumnCount() const;
    /// The row of the first action.
    int firstAction() const;

    SortFilterSelectModel& m_tableModel;
    std::vector<Action> m_actions;
    bool m_defaultModelDisabled = false;
};
} // namespace velm
