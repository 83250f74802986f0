#include "steps/commandrun.h"

#include "steps/commandpanelcontroller.h"
#include "steps/typedvalues.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/commandcontextdialogsession.h"

#include <wx/intl.h>
#include <wx/tokenzr.h>

#include <utility>

namespace workbench {
CommandRun::CommandRun(OdApDocManager& documents, velm::IGuiController& gui) : m_documents(documents), m_gui(gui)
{
    m_documents.addReactor(this);
}

CommandRun::~CommandRun()
{
    m_documents.removeReactor(this);
    stop();
}

void CommandRun::stop()
{
    onEnded = nullptr;
    end();
}

void CommandRun::start(std::unique_ptr<SteppedCommand> command)
{
    cancel();
    m_command = std::move(command);
    m_command->onDrawingChanged = [this] {
        if (onDrawingChanged)
            onDrawingChanged();
    };
    m_panel = std::make_shared<CommandPanelController>(*m_command);
    m_panel->onPickWanted = [this] {
        m_picking.reset(); // its end would enable the panel
        m_picking = m_session->disable();
        if (onPicking)
            onPicking();
    };
    m_session =
        velm::CommandContextDialogSession::create(m_gui, velm::getUIFullUrl("Workbench/CommandPanel.qml"), m_panel);
    showStep();
}

void CommandRun::showStep()
{
    const CommandStep step = m_command->step();
    wxString options;
    for (const CommandStep::Option& option : step.options)
        if (option.enabled)
            options += (options.empty() ? "" : "/") + option.keyword;
    tell(m_command->name() + "  " + step.prompt + (options.empty() ? options : " [" + options + "]"));
    m_panel->show(step);
}

bool CommandRun::takeLine(const wxString& line)
{
    wxStringTokenizer parts(line, ";", wxTOKEN_RET_EMPTY_ALL);
    if (!isRunning() || !take(parts.GetNextToken()))
        return false;
    while (isRunning() && parts.HasMoreTokens())
        if (!take(parts.GetNextToken())) {
            tell(hint());
            break;
        }
    return true;
}

bool CommandRun::take(const wxString& text)
{
    const wxString trimmed = wxString(text).Trim(true).Trim(false);
    if (trimmed.empty()) {
        enter();
        return true;
    }
    if (takeOption(trimmed))
        return true;
    const CommandStep step = m_command->step();
    if (const auto point = typedPoint(trimmed, m_command->formatter(), step.base)) {
        takePoint(*point);
        return true;
    }
    const auto length = typedLength(trimmed, m_command->formatter());
    if (step.kind == CommandStep::Kind::Point || !length)
        return false;
    proceed(m_command->takeLength(*length));
    return true;
}

bool CommandRun::takeOption(const wxString& text)
{
    wxString typed = text.Upper();
    typed.StartsWith("_", &typed);
    if (typed.empty())
        return false;
    for (const CommandStep::Option& option : m_command->step().options) {
        if (!option.keyword.Upper().StartsWith(typed))
            continue;
        if (option.enabled) {
            m_command->takeOption(option.keyword);
            proceed({});
        } else {
            tell(wxString::Format(_("%s isn't possible yet."), option.keyword));
        }
        return true;
    }
    return false;
}

wxString CommandRun::hint() const
{
    if (!isRunning())
        return {};
    const CommandStep step = m_command->step();
    if (step.kind == CommandStep::Kind::Length)
        return _("This is no length. A length is a number, or a point to measure to.");
    return step.base ? _("This is no point. A point is written as 3,4, or as @3,4 from the last one.")
                     : _("This is no point. A point is written as 3,4.");
}

bool CommandRun::takePoint(const OdGePoint3d& point)
{
    if (!isRunning())
        return false;
    const CommandStep step = m_command->step();
    proceed(step.kind == CommandStep::Kind::Point ? m_command->takePoint(point)
                                                  : m_command->takeLength((point - *step.base).length()));
    return true;
}

void CommandRun::proceed(const wxString& problem)
{
    if (!problem.empty()) {
        tell(problem);
        return;
    }
    m_picking.reset();
    if (m_command->isOver())
        end();
    else
        showStep();
}

void CommandRun::enter()
{
    end();
}

bool CommandRun::escape()
{
    if (!isRunning())
        return false;
    if (isPicking()) {
        m_picking.reset();
        return true;
    }
    tell(wxString::Format(_("Cancelled: %s"), m_command->name()));
    end();
    return true;
}

void CommandRun::cancel()
{
    m_picking.reset();
    escape();
}

void CommandRun::end()
{
    if (!isRunning())
        return;
    m_picking.reset();
    m_command.reset();
    // Who is told may start another command, with a panel of its own.
    const std::shared_ptr<CommandPanelController> panel = std::move(m_panel);
    const std::shared_ptr<velm::CommandContextDialogSession> session = std::move(m_session);
    if (onEnded)
        onEnded();
}

std::vector<OdGePoint3d> CommandRun::preview(const OdGePoint3d& cursor) const
{
    return isRunning() ? m_command->preview(cursor) : std::vector<OdGePoint3d>();
}

void CommandRun::tell(const wxString& text) const
{
    if (log)
        log(text);
}

void CommandRun::documentBecameCurrent(OdApDocument*)
{
    cancel();
}
} // namespace workbench
