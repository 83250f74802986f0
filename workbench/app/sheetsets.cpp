#include "app/sheetsets.h"

#include "app/mainframe.h"
#include "command/commandline.h"
#include "drawing/drawingcanvas.h"
#include "velm/bridge/conversions.h"

#include <wx/dirdlg.h>
#include <wx/utils.h>

namespace workbench {
namespace {
void addFolder(MainFrame& frame, const wxString& folder)
{
    if (!frame.sheetSets().addRoot(velm::toQt(folder)))
        frame.commandLine().log(
            wxString::Format(_("Not added: %s is no folder, or is in the sheet sets already."), folder));
}
} // namespace

void connectSheetSets(Commands& commands, MainFrame& frame)
{
    SheetSetController& controller = frame.sheetSets();
    // Each once the page is done with its click: a dialog runs a loop of its own.
    controller.show = [&frame](const QString& drawing, std::optional<Box> shown) {
        frame.CallAfter([&frame, drawing, shown] {
            if (frame.documents().open(velm::wxFromQt(drawing)) && shown)
                frame.canvas().zoomTo(*shown);
        });
    };
    controller.onFolderWanted = [&frame] {
        frame.CallAfter([&frame] {
            wxDirDialog dialog(&frame, _("Add Folder"), {}, wxDD_DEFAULT_STYLE | wxDD_DIR_MUST_EXIST);
            if (dialog.ShowModal() == wxID_OK)
                addFolder(frame, dialog.GetPath());
        });
    };
    controller.onWarning = [&frame](const QString& warning) { frame.commandLine().log(velm::wxFromQt(warning)); };
    controller.isOverCanvas() = [&frame] { return wxFindWindowAtPoint(wxGetMousePosition()) == &frame.canvas(); };
    commands.add("SHEETS", _("Adds a folder to the sheet sets: SHEETS folder, or SHEETS alone for the drawing's"),
                 [&frame](const wxString& folder) {
                     frame.showPanel(_("Sheet Sets"));
                     if (folder.empty())
                         frame.sheetSets().goToDrawing();
                     else
                         addFolder(frame, folder);
                 });
}
} // namespace workbench
