#include "app/drawingcommands.h"

#include "app/mainframe.h"
#include "command/commandline.h"
#include "drawing/drawingcanvas.h"
#include "drawing/entitykind.h"
#include "od/oddbdatabase.h"
#include "units/unitsdialogcontroller.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/bridge/iguicontroller.h"
#include "velm/dialogs/idialogfactory.h"
#include "velm/dialogs/ihostdialog.h"

namespace workbench {
namespace {
void eraseSelected(MainFrame& frame)
{
    std::vector<OdDbEntity*> entities;
    for (const OdDbObjectId& id : frame.selection().entities())
        if (auto* entity = id.open<OdDbEntity>())
            entities.push_back(entity);
    if (entities.empty()) {
        frame.commandLine().log(_("Nothing is selected. A click on the drawing selects."));
        return;
    }
    const wxString erased =
        entities.size() == 1 ? entityKind(*entities.front()) : wxString::Format(_("%zu entities"), entities.size());
    for (OdDbEntity* entity : entities)
        entity->erase();
    frame.selection().clear();
    frame.drawingChanged();
    frame.commandLine().log(wxString::Format(_("Erased: %s"), erased));
}

void setCurrentLayer(MainFrame& frame, const wxString& name)
{
    OdApDocument* document = frame.documents().current();
    if (!document) {
        frame.commandLine().log(_("No drawing is open."));
        return;
    }
    OdDbDatabase* database = document->database();
    if (!name.empty()) {
        const OdDbLayerTableRecord* layer = database->findLayer(name.wc_str());
        if (!layer) {
            frame.commandLine().log(wxString::Format(_("The drawing has no layer \"%s\"."), name));
            return;
        }
        database->setCurrentLayer(layer->objectId());
        frame.drawingChanged();
    }
    if (const auto* current = database->currentLayer().open<OdDbLayerTableRecord>())
        frame.commandLine().log(wxString::Format(_("Current layer: %s"), current->getName().c_str()));
}

void editUnits(MainFrame& frame)
{
    OdApDocument* document = frame.documents().current();
    if (!document) {
        frame.commandLine().log(_("No drawing is open."));
        return;
    }
    UnitsDialogController controller(document->database()->formatter().units());
    const auto dialog = velm::guiController()->createDialog(velm::getUIFullUrl("Workbench/UnitsDialog.qml"),
                                                            &controller, &frame, {}, nullptr);
    // The drawing may be closed meanwhile.
    if (dialog->showModal() != wxID_OK || frame.documents().current() != document)
        return;
    document->database()->formatter().setUnits(controller.units());
    frame.unitsChanged();
}
void loadLineTypes(MainFrame& frame)
{
    OdApDocument* document = frame.documents().current();
    OdArray<OdString> loaded;
    if (!document) {
        frame.commandLine().log(_("No drawing is open."));
        return;
    }
    if (!velm::dlgFactory()->loadLineTypesDialog(&frame, document->database(), loaded, {}, {}))
        return;
    for (const OdString& name : loaded)
        frame.commandLine().log(wxString::Format(_("Loaded the linetype %s"), name.c_str()));
    // A name asked for makes the combo draw all linetypes anew, also when there are as many as before.
    if (!loaded.isEmpty())
        if (const auto* last = document->database()->findLinetype(loaded.last()))
            frame.currentProperties().linetypes()->refresh(false, last->objectId());
    frame.drawingChanged();
}

void setLineTypeScale(MainFrame& frame, const wxString& text)
{
    constexpr double largest = 1e9;
    OdApDocument* document = frame.documents().current();
    if (!document) {
        frame.commandLine().log(_("No drawing is open."));
        return;
    }
    OdDbDatabase* database = document->database();
    double scale = 0.0;
    if (text.ToCDouble(&scale) && scale > 0.0 && scale <= largest) {
        database->setLTSCALE(scale);
        frame.drawingChanged();
    } else if (!text.empty()) {
        frame.commandLine().log(_("A linetype scale is a number above zero."));
        return;
    }
    frame.commandLine().log(wxString::Format(_("Linetype scale: %s"), wxString::FromCDouble(database->getLTSCALE())));
}
} // namespace

void addDrawingCommands(Commands& commands, MainFrame& frame)
{
    const auto log = [&frame](const wxString& text) { frame.commandLine().log(text); };
    commands.add("ZOOM", _("Shows the whole drawing, or what is selected: ZOOM, or ZOOM SELECTION"),
                 [&frame, log](const wxString& what) {
                     if (!what.IsSameAs("SELECTION", false))
                         frame.canvas().zoomExtents();
                     else if (!frame.canvas().zoomTo(frame.selection().entities()))
                         log(_("Nothing that the canvas shows is selected."));
                 });
    commands.add("GRID", _("Shows or hides a grid on the drawing"), [&frame, log](const wxString&) {
        DrawingCanvas& canvas = frame.canvas();
        canvas.showGrid(!canvas.isGridShown());
        log(canvas.isGridShown() ? _("Grid on") : _("Grid off"));
    });
    commands.add("SNAP", _("Keeps the cursor's coordinates to the grid, or frees them"),
                 [&frame, log](const wxString&) {
                     DrawingCanvas& canvas = frame.canvas();
                     canvas.setSnapping(!canvas.isSnapping());
                     log(canvas.isSnapping() ? _("Snap on") : _("Snap off"));
                 });
    commands.add("LAYER", _("Makes a layer the current one: LAYER name, or LAYER alone to tell which it is"),
                 [&frame](const wxString& name) { setCurrentLayer(frame, name); });
    commands.add("UNITS", _("Changes how the drawing writes lengths and angles"),
                 [&frame](const wxString&) { editUnits(frame); });
    commands.add("LINETYPE", _("Loads linetypes from a file"), [&frame](const wxString&) { loadLineTypes(frame); });
    commands.add("LTSCALE", _("Makes the dashes of all linetypes longer or shorter: LTSCALE factor, or LTSCALE alone"),
                 [&frame](const wxString& scale) { setLineTypeScale(frame, scale); });
    commands.add("ERASE", _("Erases what is selected"), [&frame](const wxString&) { eraseSelected(frame); });
}
} // namespace workbench
