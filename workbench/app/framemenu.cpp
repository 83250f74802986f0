#include "app/framemenu.h"

#include "app/mainframe.h"
#include "app/velmsession.h"
#include "command/commandline.h"
#include "drawing/drawingcanvas.h"
#include "panels/propertytexts.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/dialogs/idialogfactory.h"

namespace workbench {
std::vector<Action> frameActions(MainFrame& frame)
{
    const auto hasDrawing = [&frame] { return frame.documents().current() != nullptr; };
    const auto command = [&frame](const char* line) {
        return [&frame, line] { frame.commandLine().processCommand(line); };
    };
    const auto zoom = [&frame](double factor) {
        return [&frame, factor] {
            const wxSize size = frame.canvas().GetClientSize();
            frame.canvas().zoomBy(factor, wxPoint(size.x / 2, size.y / 2));
        };
    };
    const auto panel = [&frame](const wxString& label, const wxString& title, const QString& icon) {
        return Action{
            _("&Panels"), label, {},  _("Bring the panel to the front"), [&frame, title] { frame.showPanel(title); },
            {},           {},    icon};
    };
    const auto hasSelection = [&frame] { return !frame.selection().entities().empty(); };
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
        {_("&File"), _("&Open..."), "Ctrl+O", _("Open a drawing"), [&frame] { frame.askForDrawing(); }, {}, {}, "open"},
        {_("&File"),
         _("&Close"),
         "Ctrl+W",
         _("Close the drawing"),
         [&frame] { frame.documents().close(); },
         {},
         hasDrawing,
         "close"},
        {_("&File"), {}, {}, {}, {}, {}, {}},
        {_("&File"), _("E&xit"), "Ctrl+Q", _("End the program"), [&frame] { frame.Close(); }, {}, {}},
        {_("&Edit"), _("&Erase"), {}, _("Erase what is selected"), command("ERASE"), {}, hasSelection, "erase"},
        {_("&View"),
         _("Zoom &extents"),
         "Ctrl+0",
         _("Show the whole drawing"),
         [&frame] { frame.canvas().zoomExtents(); },
         {},
         hasDrawing,
         "zoom_extents"},
        {_("&View"),
         _("Zoom to se&lection"),
         {},
         _("Show what is selected as large as it can be"),
         command("ZOOM SELECTION"),
         {},
         hasSelection,
         "zoom_selection"},
        {_("&View"), _("Zoom &in"), "Ctrl++", _("Show the drawing larger"), zoom(1.5), {}, hasDrawing, "zoom_in"},
        {_("&View"),
         _("Zoom &out"),
         "Ctrl+-",
         _("Show more of the drawing"),
         zoom(1 / 1.5),
         {},
         hasDrawing,
         "zoom_out"},
        line,
        {_("&View"),
         _("&Grid"),
         "F7",
         _("Show a grid on the drawing"),
         command("GRID"),
         [&frame] { return frame.canvas().isGridShown(); },
         {},
         "grid"},
        {_("&View"),
         _("&Snap"),
         "F9",
         _("Keep the cursor's coordinates to the grid"),
         command("SNAP"),
         [&frame] { return frame.canvas().isSnapping(); },
         {},
         "snap"},
        line,
        theme(ut::EGuiColorTheme::Dark, _("&Dark theme")),
        theme(ut::EGuiColorTheme::Light, _("&Light theme")),
        {_("&View"),
         _("&Other theme"),
         "F8",
         _("Change from the dark theme to the light one, or back"),
         [&frame] {
             const bool isDark = frame.session().theme() == ut::EGuiColorTheme::Dark;
             frame.session().setTheme(isDark ? ut::EGuiColorTheme::Light : ut::EGuiColorTheme::Dark);
         },
         {},
         {},
         "theme"},
        line,
        {_("&View"), _("&Rebuild engine"), "Ctrl+R", _("Load all pages into a new engine"), command("REBUILD"), {}, {}},
        {_("D&raw"), _("&Line"), {}, _("Draw lines from point to point"), command("LINE"), {}, hasDrawing, "line"},
        {_("D&raw"), _("&Circle"), {}, _("Draw a circle about a point"), command("CIRCLE"), {}, hasDrawing, "circle"},
        panel(_("&Layers"), _("Layers"), "layers"),
        panel(_("&Structure"), _("Structure"), "structure"),
        panel(_("&Properties"), _("Properties"), "properties"),
        panel(_("&Entities"), _("Entities"), "table"),
        panel(_("&Health"), _("Health"), "health"),
        panel(_("S&heet sets"), _("Sheet Sets"), {}),
        {_("&Drawing"),
         _("&Units..."),
         {},
         _("Change how the drawing writes lengths and angles"),
         command("UNITS"),
         {},
         hasDrawing,
         "units"},
        {_("&Drawing"),
         _("Load &linetypes..."),
         {},
         _("Load linetypes from a file"),
         command("LINETYPE"),
         {},
         hasDrawing},
        {_("&Drawing"),
         _("&Lineweights in inches"),
         {},
         _("Write lineweights in inches, or else in millimetres"),
         [&frame] { frame.commandLine().processCommand(areLineWeightsInInches() ? "LWUNITS MM" : "LWUNITS INCHES"); },
         areLineWeightsInInches,
         {}},
        {_("&Drawing"), {}, {}, {}, {}, {}, {}},
        {_("&Drawing"),
         _("&Next"),
         {},
         _("Go to the next open drawing (Ctrl+Tab)"),
         [&frame] { frame.documents().next(true); },
         {},
         hasDrawing},
        {_("&Drawing"),
         _("&Previous"),
         {},
         _("Go to the open drawing before the current one (Ctrl+Shift+Tab)"),
         [&frame] { frame.documents().next(false); },
         {},
         hasDrawing},
        {_("&Layer"),
         _("&Rename..."),
         "F2",
         _("Give the current layer another name"),
         [&frame] { frame.layers().renameCurrent(); },
         {},
         [&frame] { return frame.layers().canRename(); },
         "rename"},
        {_("&Help"), _("&Manual"), {}, _("Open the manual in the browser"), [] { velm::openWebDoc("index"); }, {}, {}},
        {_("&Help"), _("&About"), {}, _("What this program is"), about, {}, {}, "help"},
    };
}
} // namespace workbench
