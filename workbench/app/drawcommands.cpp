#include "app/drawcommands.h"

#include "app/mainframe.h"
#include "command/commandline.h"
#include "drawing/drawingcanvas.h"
#include "host/contextarea.h"
#include "od/oddbdatabase.h"
#include "steps/circlecommand.h"
#include "steps/linecommand.h"

#include <wx/textctrl.h>

namespace workbench {
namespace {
template <typename Command>
void add(Commands& commands, MainFrame& frame, const wxString& name, const wxString& help)
{
    commands.add(name, help, [&frame](const wxString&) {
        if (OdApDocument* document = frame.documents().current())
            frame.commandRun().start(std::make_unique<Command>(*document->database()));
        else
            frame.commandLine().log(_("No drawing is open."));
    });
}

/// To the panel only as long as a command runs that doesn't wait for the drawing.
void giveKeyboard(MainFrame& frame, bool toPanel)
{
    if (toPanel && frame.commandRun().isRunning() && !frame.commandRun().isPicking())
        frame.contextArea().takeKeyboard();
    else
        frame.commandLine().input()->SetFocus();
}

/// A click in the drawing leaves the keyboard with the panel when the person came from there. What is typed after any
/// other click is a command.
void connectClicks(MainFrame& frame)
{
    const auto cameFromPanel = std::make_shared<bool>(false);
    const auto note = [&frame, cameFromPanel](wxMouseEvent& event) {
        *cameFromPanel = frame.commandRun().isPicking() || frame.contextArea().hasKeyboard();
        event.Skip();
    };
    frame.canvas().Bind(wxEVT_LEFT_DOWN, note);
    frame.canvas().Bind(wxEVT_LEFT_DCLICK, note);
    frame.canvas().Bind(wxEVT_LEFT_UP, [&frame, cameFromPanel](wxMouseEvent& event) {
        giveKeyboard(frame, *cameFromPanel);
        event.Skip();
    });
}
} // namespace

void addDrawCommands(Commands& commands, MainFrame& frame)
{
    add<LineCommand>(commands, frame, "LINE", _("Draws lines from point to point"));
    add<CircleCommand>(commands, frame, "CIRCLE", _("Draws a circle about a point"));
    commands.addAlias("L", "LINE");
    commands.addAlias("C", "CIRCLE");
}

void connectCommandRun(Commands& commands, MainFrame& frame)
{
    CommandRun& run = frame.commandRun();
    const auto toCommandLine = [&frame] {
        giveKeyboard(frame, false);
        frame.canvas().Refresh();
    };
    run.log = [&frame](const wxString& line) { frame.commandLine().log(line); };
    run.onDrawingChanged = [&frame] { frame.drawingChanged(); };
    run.onPicking = toCommandLine;
    run.onEnded = toCommandLine;
    frame.commandLine().onCommand = [&commands, &frame, &run](const wxString& line) {
        if (run.takeLine(line) || commands.run(line))
            return;
        const wxString hint = run.hint();
        frame.commandLine().log(
            hint.empty() ? wxString::Format(_("Unknown command: %s. HELP lists the commands."), line) : hint);
    };
    frame.commandLine().onEnter = [&run] { run.enter(); };
    frame.commandLine().onEscape = [&frame, &run] {
        if (!run.escape())
            frame.selection().clear();
    };
    frame.canvas().onPoint = [&run](const OdGePoint3d& point) { return run.takePoint(point); };
    frame.canvas().rubberBand = [&run](const OdGePoint3d& cursor) { return run.preview(cursor); };
    connectClicks(frame);
}

void escapeCommand(MainFrame& frame)
{
    const bool wasPicking = frame.commandRun().isPicking();
    frame.commandLine().processEscape();
    giveKeyboard(frame, wasPicking);
}
} // namespace workbench
