#pragma once

#include "od/odapdocmanager.h"
#include "steps/steppedcommand.h"

namespace velm {
class CommandContextDialogSession;
class IGuiController;
struct CommandContextDialogDisabler;
} // namespace velm

namespace workbench {
class CommandPanelController;

/// Runs one command at a time, step by step: what is typed, picked or pressed in its panel goes to the command that
/// runs. Another drawing that becomes current cancels it.
class CommandRun : private OdApDocManagerReactor
{
public:
    /// Both outlive the object.
    CommandRun(OdApDocManager& documents, velm::IGuiController& gui);
    ~CommandRun() override;

    /// Ends the command without a word, before what it works on goes.
    void stop();
    /// A command of the current drawing. One that runs is cancelled.
    void start(std::unique_ptr<SteppedCommand> command);
    bool isRunning() const { return m_command != nullptr; }
    /// Whether the panel waits for a point from the drawing.
    bool isPicking() const { return m_picking != nullptr; }

    /// Takes a line of values and options, with ";" between them; nothing between two of them is Enter. False when no
    /// command runs, or the first of them is nothing that it understands.
    bool takeLine(const wxString& line);
    /// How to write what is asked for; empty when no command runs.
    wxString hint() const;
    /// False when no command runs.
    bool takePoint(const OdGePoint3d& point);
    /// Ends the command and keeps what it has drawn.
    void enter();
    /// First the picking, then the command. False when no command runs.
    bool escape();
    std::vector<OdGePoint3d> preview(const OdGePoint3d& cursor) const;

    std::function<void(const wxString&)> log;
    std::function<void()> onDrawingChanged;
    std::function<void()> onPicking; ///< the person is about to show something in the drawing
    std::function<void()> onEnded;   ///< while the panel is still there

private:
    bool take(const wxString& text);
    bool takeOption(const wxString& text);
    void proceed(const wxString& problem);
    void showStep();
    void cancel();
    void end();
    void tell(const wxString& text) const;

    void documentBecameCurrent(OdApDocument* document) override;

    OdApDocManager& m_documents;
    velm::IGuiController& m_gui;
    std::unique_ptr<SteppedCommand> m_command;
    std::shared_ptr<CommandPanelController> m_panel;
    std::shared_ptr<velm::CommandContextDialogSession> m_session;
    std::shared_ptr<velm::CommandContextDialogDisabler> m_picking;
};
} // namespace workbench
