#include "app/framemenu.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "command/commandline.h"
#include "drawing/drawingcanvas.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/idialogfactory.h"

namespace workbench {
std::vector<Action> frameActions(MainFrame& frame)
{
    const auto hasDrawing = [&frame] { return frame.documents().current() != nullptr; };
    const auto command = [&frame](const char* line) {
        return [&frame, line] { frame.commandLine().processCommand(line); };
    };
    const auto theme = [&frame](ut::EGuiColorTheme wanted, const wxString& label) {
        return Action{_("&View"),
                      label,
                      {},
                      _("Change the colours of the whole program"),
                      [&frame, wanted] { frame.session().setTheme(wanted); },
                      [&frame, wanted] { return frame.session().theme() == wanted; },
                      {}};
    };
    const auto about = [] {
        velm::dlgFactory()->showInfoMessage(_("About").wc_str(),
                                            _("velm workbench\n\nA small host that shows velm: Qt Quick panels and "
                                              "dialogs inside a wxWidgets drawing application.")
                                                .wc_str(),
                                            nullptr, velm::MessageButtonStyle::OK);
    };
    const Action line{_("&View"), {}, {}, {}, {}, {}, {}};
    return {
        {_("&File"), _("&Open..."), "Ctrl+O", _("Open a drawing"), [&frame] { frame.askForDrawing(); }, {}, {}},
        {_("&File"),
         _("&Close"),
         "Ctrl+W",
         _("Close the drawing"),
         [&frame] { frame.documents().close(); },
         {},
         hasDrawing},
        {_("&File"), {}, {}, {}, {}, {}, {}},
        {_("&File"), _("E&xit"), "Ctrl+Q", _("End the program"), [&frame] { frame.Close(); }, {}, {}},
        {_("&View"),
         _("Zoom &extents"),
         "Ctrl+0",
         _("Show the whole drawing"),
         [&frame] { frame.canvas().zoomExtents(); },
         {},
         hasDrawing},
        {_("&View"),
         _("&Grid"),
         "F7",
         _("Show a grid on the drawing"),
         command("GRID"),
         [&frame] { return frame.canvas().isGridShown(); },
         {}},
        {_("&View"),
         _("&Snap"),
         "F9",
         _("Keep the cursor's coordinates to the grid"),
         command("SNAP"),
         [&frame] { return frame.canvas().isSnapping(); },
         {}},
        line,
        theme(ut::EGuiColorTheme::Dark, _("&Dark theme")),
        theme(ut::EGuiColorTheme::Light, _("&Light theme")),
        line,
        {_("&View"), _("&Rebuild engine"), "Ctrl+R", _("Load all pages into a new engine"), command("REBUILD"), {}, {}},
        {_("&Drawing"),
         _("&Units..."),
         {},
         _("Change how the drawing writes lengths and angles"),
         command("UNITS"),
         {},
         hasDrawing},
        {_("&Layer"),
         _("&Rename..."),
         "F2",
         _("Give the current layer another name"),
         [&frame] { frame.layers().renameCurrent(); },
         {},
         [&frame] { return frame.layers().canRename(); }},
        {_("&Help"), _("&About"), {}, _("What this program is"), about, {}, {}},
    };
}
} // namespace workbench
