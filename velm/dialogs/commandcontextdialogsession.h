#pragma once

#include "velm/velm_export.h"

#include <QUrl>

#include <memory>

namespace velm {
class CommandContextDialogController;
class IGuiController;

/// Keeps the panel disabled. Disablers don't count: the first to go enables the panel.
struct VELM_EXPORT CommandContextDialogDisabler
{
    explicit CommandContextDialogDisabler(const std::shared_ptr<CommandContextDialogController>& controller);
    ~CommandContextDialogDisabler();
    CommandContextDialogDisabler(const CommandContextDialogDisabler&) = delete;
    CommandContextDialogDisabler& operator=(const CommandContextDialogDisabler&) = delete;

    std::weak_ptr<CommandContextDialogController> controller;
};

/// The panel beside a running command, which holds it. It is open from create() to close() or to its end.
class VELM_EXPORT CommandContextDialogSession
{
public:
    /// Without a dialog of the host the session has no window. `gui` outlives it.
    static std::shared_ptr<CommandContextDialogSession>
    create(IGuiController& gui, const QUrl& page, std::shared_ptr<CommandContextDialogController> controller);
    ~CommandContextDialogSession();
    CommandContextDialogSession(const CommandContextDialogSession&) = delete;
    CommandContextDialogSession& operator=(const CommandContextDialogSession&) = delete;

    /// Null once the session is closed.
    std::shared_ptr<CommandContextDialogController> getContentsController();
    /// The panel is disabled as long as the result lives; null once the session is closed.
    std::shared_ptr<CommandContextDialogDisabler> disable();
    void close();

private:
    struct Pimpl;
    explicit CommandContextDialogSession(std::unique_ptr<Pimpl> pimpl);

    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
