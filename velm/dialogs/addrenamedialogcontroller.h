#pragma once

#include "velm/dialogs/basedialogcontroller.h"

#include <QString>

#include <memory>

namespace velm {
/// The controller of a dialog that adds or renames an item.
class VELM_EXPORT AddRenameDialogController : public BaseDialogController
{
    Q_OBJECT
    Q_PROPERTY(QString actionButtonName READ actionButtonName CONSTANT)
    Q_PROPERTY(QString itemName READ itemName WRITE setItemName NOTIFY itemNameChanged)
    Q_PROPERTY(QString labelName READ labelName CONSTANT)
public:
    AddRenameDialogController(bool add, QString labelName);
    ~AddRenameDialogController() override;

    QString actionButtonName() const;
    QString itemName() const;
    QString labelName() const;

public Q_SLOTS:
    void setItemName(QString itemName);

Q_SIGNALS:
    void itemNameChanged();

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
