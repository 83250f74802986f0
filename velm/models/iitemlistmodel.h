#pragma once

#include "velm/velm_export.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVariant>

namespace velm {
class MenuModel;

/// The rows of a host's list (a name, two icons, notes and a menu of actions) behind a small table of role numbers. It
/// is no Qt model: the host's list model maps its own roles to these. The order of the operations is part of the
/// interface.
class VELM_EXPORT IItemListModel
{
public:
    /// Number 4 is nobody's.
    enum Role
    {
        NameRole = 0,
        LeftIconRole = 1,
        RightIconRole = 2,
        RightIconToolTipRole = 3,
        ShowNameEditRole = 5,
        CheckedRole = 6,
        EditableRole = 7,
        ErrorRole = 8,
        WarningRole = 9,
        InfoRole = 10,
        ActionsRole = 11,
    };

    virtual QString getName(int row) const = 0;
    virtual QString getLeftIconSource(int row) const;
    virtual QString getRightIconSource(int row) const;
    virtual QString getRightIconToolTip(int row) const;
    virtual bool getShowNameEdit(int row) const;
    virtual bool isChecked(int row) const;
    virtual bool isEditable(int row) const;
    virtual QString getError(int row) const;
    virtual QString getWarning(int row) const;
    virtual QString getInfo(int row) const;
    virtual MenuModel* getActions(int row) const;
    // True: the value was taken.
    virtual bool setShowNameEdit(int row, bool show);
    virtual bool setName(int row, const QString& name);
    virtual bool setChecked(int row, bool checked);

    QHash<int, QByteArray> getItemRoleNames() const;
    /// Empty for a role that nobody has.
    QVariant getItemData(int row, int role) const;
    /// False, without a word to the row, for the value that it has already and for roles that can't be written.
    bool setItemData(int row, const QVariant& value, int role);

protected:
    // Not virtual: the operations come first, and nobody owns one by this base.
    ~IItemListModel() = default;
};
} // namespace velm
