#include "velm/dialogs/commandcontextdialogsession.h"

#include "velm/bridge/iguicontroller.h"
#include "velm/dialogs/commandcontextdialogcontroller.h"
#include "velm/dialogs/ihostdialog.h"

#include <utility>

namespace velm {
CommandContextDialogDisabler::CommandContextDialogDisabler(
    const std::shared_ptr<CommandContextDialogController>& shared)
    : controller(shared)
{
    shared->setPanelEnabled(false);
}

CommandContextDialogDisabler::~CommandContextDialogDisabler()
{
    if (const std::shared_ptr<CommandContextDialogController> living = controller.lock())
        living->setPanelEnabled(true);
}

struct CommandContextDialogSession::Pimpl
{
    std::unique_ptr<IHostDialog> dialog;
    IGuiController* gui; // not owned
    std::shared_ptr<CommandContextDialogController> controller;
};

CommandContextDialogSession::CommandContextDialogSession(std::unique_ptr<Pimpl> pimpl) : m_pimpl(std::move(pimpl))
{}

CommandContextDialogSession::~CommandContextDialogSession()
{
    close();
}

std::shared_ptr<CommandContextDialogSession>
CommandContextDialogSession::create(IGuiController& gui, const QUrl& page,
                                    std::shared_ptr<CommandContextDialogController> controller)
{
    DialogOptions options;
    options.modal = false;
    std::unique_ptr<Pimpl> pimpl(
        new Pimpl{gui.createDialog(page, controller.get(), nullptr, options, nullptr), &gui, controller});
    // From here on the dialog is taken from the host again, also when it can't be shown.
    std::shared_ptr<CommandContextDialogSession> session(new CommandContextDialogSession(std::move(pimpl)));
    if (IHostDialog* dialog = session->m_pimpl->dialog.get()) {
        gui.addContextDialog(dialog);
        dialog->show();
    }
    if (controller)
        controller->setSession(session);
    return session;
}

std::shared_ptr<CommandContextDialogController> CommandContextDialogSession::getContentsController()
{
    return m_pimpl->controller;
}

std::shared_ptr<CommandContextDialogDisabler> CommandContextDialogSession::disable()
{
    return m_pimpl->controller ? std::make_shared<CommandContextDialogDisabler>(m_pimpl->controller) : nullptr;
}

void CommandContextDialogSession::close()
{
    if (m_pimpl->dialog) {
        m_pimpl->gui->removeContextDialog(m_pimpl->dialog.get());
        m_pimpl->dialog.reset();
    }
    m_pimpl->controller.reset();
}
} // namespace velm
