#pragma once

#include "velm/velm_export.h"

#include <QString>

namespace velm {
class MenuModel;

/// One row of a host's list, as an IListItemListModel reads and writes it. The order of the operations is part of the
/// interface.
class VELM_EXPORT IListItem
{
public:
    virtual QString getName() const = 0;
    virtual QString getLeftIconSource() const;
    virtual QString getRightIconSource() const;
    virtual QString getRightIconToolTip() const;
    virtual bool getShowNameEdit() const;
    virtual bool isChecked() const;
    virtual bool isEditable() const;
    virtual QString getError() const;
    virtual QString getWarning() const;
    virtual QString getInfo() const;
    virtual MenuModel* getActions() const;
    // True: the value was taken.
    virtual bool setShowNameEdit(bool show);
    virtual bool setName(const QString& name);
    virtual bool setChecked(bool checked);

protected:
    // Not virtual: the operations come first, and nobody owns one by this base.
    ~IListItem() = default;
};
} // namespace velm
