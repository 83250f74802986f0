#include "velm/dialogs/namedialogcontroller.h"

#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/iguicontroller.h"
#include "velm/dialogs/ihostdialog.h"

#include <wx/defs.h>

#include <utility>

namespace velm {
struct NameDialogController::Pimpl
{
    QString name;
    Validator validator;
    QString untranslatedTitle;
    QString label;
    QString button;
};

NameDialogController::NameDialogController(const QString& untranslatedTitle, const QString& label,
                                           const QString& button, const QString& name, const Validator& validator)
    : m_pimpl(new Pimpl{name, validator, untranslatedTitle, label, button})
{}

NameDialogController::~NameDialogController() = default;

std::optional<QString> NameDialogController::launchDialog(const QString& untranslatedTitle, const QString& label,
                                                          const QString& button, const QString& name,
                                                          const Validator& validator)
{
    IGuiController* host = guiController();
    if (host == nullptr)
        return {};
    NameDialogController controller(untranslatedTitle, label, button, name, validator);
    const std::unique_ptr<IHostDialog> dialog =
        host->createDialog(getUIFullUrl("NameDialog.qml"), &controller, nullptr, DialogOptions(), nullptr);
    if (dialog == nullptr || dialog->showModal() != wxID_OK)
        return {};
    return controller.getName();
}

QString NameDialogController::getName() const
{
    return m_pimpl->name;
}

QString NameDialogController::getUntranslatedTitle() const
{
    return m_pimpl->untranslatedTitle;
}

QString NameDialogController::getLabel() const
{
    return m_pimpl->label;
}

QString NameDialogController::getButton() const
{
    return m_pimpl->button;
}

void NameDialogController::setName(QString name)
{
    // nameChanged() is deliberately not emitted: it would write the text back into the field that is being edited.
    m_pimpl->name = std::move(name);
}

bool NameDialogController::beforeOk()
{
    return m_pimpl->validator(m_pimpl->name);
}
} // namespace velm
