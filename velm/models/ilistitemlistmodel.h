#pragma once

#include "velm/models/iitemlistmodel.h"
#include "velm/models/ilistitem.h"

namespace velm {
/// An IItemListModel whose rows are objects: each operation goes to the row's item. A row without an item reads as
/// empty strings, false and null, and takes nothing.
class VELM_EXPORT IListItemListModel : public IItemListModel
{
public:
    QString getName(int row) const override;
    QString getLeftIconSource(int row) const override;
    QString getRightIconSource(int row) const override;
    QString getRightIconToolTip(int row) const override;
    bool getShowNameEdit(int row) const override;
    bool isChecked(int row) const override;
    bool isEditable(int row) const override;
    QString getError(int row) const override;
    QString getWarning(int row) const override;
    QString getInfo(int row) const override;
    MenuModel* getActions(int row) const override;
    bool setShowNameEdit(int row, bool show) override;
    bool setName(int row, const QString& name) override;
    bool setChecked(int row, bool checked) override;

    // The item of a row, not owned by the caller, or null.
    virtual IListItem* getItem(int row) = 0;
    virtual const IListItem* getItem(int row) const = 0;
};
} // namespace velm
