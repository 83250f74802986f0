#include "velm/dialogs/addrenamedialogcontroller.h"

#include <utility>

namespace velm {
struct AddRenameDialogController::Pimpl
{
    QString actionButtonName;
    QString itemName;
    QString labelName;
};

AddRenameDialogController::AddRenameDialogController(bool add, QString labelName)
    : m_pimpl(new Pimpl{add ? tr("&Add") : tr("&Save"), QString(), std::move(labelName)})
{}

AddRenameDialogController::~AddRenameDialogController() = default;

QString AddRenameDialogController::actionButtonName() const
{
    return m_pimpl->actionButtonName;
}

QString AddRenameDialogController::itemName() const
{
    return m_pimpl->itemName;
}

QString AddRenameDialogController::labelName() const
{
    return m_pimpl->labelName;
}

void AddRenameDialogController::setItemName(QString itemName)
{
    if (m_pimpl->itemName == itemName)
        return;
    m_pimpl->itemName = std::move(itemName);
    Q_EMIT itemNameChanged();
}
} // namespace velm
