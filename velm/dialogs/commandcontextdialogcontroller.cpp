#include "velm/dialogs/commandcontextdialogcontroller.h"

#include "velm/dialogs/commandlinecalls.h"

namespace velm {
struct CommandContextDialogController::Pimpl
{
    bool panelEnabled = true;
    std::weak_ptr<CommandContextDialogSession> session;
};

CommandContextDialogController::CommandContextDialogController() : m_pimpl(std::make_unique<Pimpl>())
{}

CommandContextDialogController::~CommandContextDialogController() = default;

void CommandContextDialogController::setSession(std::shared_ptr<CommandContextDialogSession> session)
{
    m_pimpl->session = session;
}

bool CommandContextDialogController::getPanelEnabled() const
{
    return m_pimpl->panelEnabled;
}

void CommandContextDialogController::setPanelEnabled(bool enabled)
{
    m_pimpl->panelEnabled = enabled;
    Q_EMIT panelEnabledChanged();
}

void CommandContextDialogController::closeClick()
{
    rejectCommandLine(this);
}
} // namespace velm
