#pragma once

#include "velm/dialogs/basedialogcontroller.h"

#include <memory>

namespace velm {
class CommandContextDialogSession;

/// Behind the page that stands beside a running command. The session shares it; it may outlive the session when
/// somebody else holds it, too.
class VELM_EXPORT CommandContextDialogController : public BaseDialogController
{
    Q_OBJECT
    Q_PROPERTY(bool panelEnabled READ getPanelEnabled NOTIFY panelEnabledChanged)
public:
    CommandContextDialogController();
    ~CommandContextDialogController() override;

    /// Keeps a weak reference.
    void setSession(std::shared_ptr<CommandContextDialogSession> session);
    bool getPanelEnabled() const;
    /// Signals the present value, too.
    void setPanelEnabled(bool enabled);

public Q_SLOTS:
    /// Ends the command as Escape does, as soon as the page's own handler is through.
    void closeClick();

Q_SIGNALS:
    void panelEnabledChanged();

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
