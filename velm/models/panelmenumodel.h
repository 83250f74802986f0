#pragma once

#include "velm/models/genericlistmodel/genericlistmodel.h"

#include <QString>
#include <QVariant>

namespace velm {
/// An entry of a panel's menu.
struct PanelMenuItem
{
    QString text;
    std::function<void()> action;
    bool disabled = false;
    bool checkable = false;
    bool checked = false;

    /// Entries are told apart by their texts.
    friend bool operator==(const PanelMenuItem& left, const PanelMenuItem& right) { return left.text == right.text; }
};

/// The flat menu in a panel's title.
class VELM_EXPORT PanelMenuModel : public GenericListModel<PanelMenuItem>
{
    Q_OBJECT
public:
    enum Role
    {
        TextRole = Qt::UserRole,
        CheckableRole,
        CheckedRole,
        DisabledRole,
    };

    PanelMenuModel();
    ~PanelMenuModel() override;

    using GenericListModel::data;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

public Q_SLOTS:
    /// Runs the action, then turns the mark of a checkable entry around, without a signal: the action is expected to
    /// refresh the menu, but later, since the mark that stands at the index after it is the one that turns. An empty
    /// action throws std::bad_function_call; a bad index does nothing.
    void menuItemClicked(int index);
};
} // namespace velm
