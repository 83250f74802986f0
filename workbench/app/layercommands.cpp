#include "app/layercommands.h"

#include "app/mainframe.h"
#include "command/commandline.h"
#include "od/oddbdatabase.h"

namespace workbench {
namespace {
/// Hides or shows each layer as `isHidden` says, when there is a layer of this name; an empty name needs none.
void hideLayers(
    MainFrame& frame, const wxString& name,
    const std::function<bool(const OdDbLayerTableRecord& layer, const OdDbLayerTableRecord* named)>& isHidden)
{
    OdApDocument* document = frame.documents().current();
    const OdDbLayerTableRecord* named = document ? document->database()->findLayer(name.wc_str()) : nullptr;
    if (!document || (!named && !name.empty())) {
        frame.commandLine().log(document ? wxString::Format(_("The drawing has no layer \"%s\"."), name)
                                         : wxString(_("No drawing is open.")));
        return;
    }
    int hidden = 0;
    for (OdDbLayerTableRecord* layer : document->database()->layers()) {
        layer->setIsOff(isHidden(*layer, named));
        hidden += layer->isOff() ? 1 : 0;
    }
    frame.drawingChanged();
    frame.commandLine().log(wxString::Format(_("Layers hidden: %d"), hidden));
}
} // namespace

void addLayerCommands(Commands& commands, MainFrame& frame)
{
    using Layer = OdDbLayerTableRecord;
    commands.add("HIDE", _("Hides a layer: HIDE name"), [&frame](const wxString& name) {
        hideLayers(frame, name,
                   [](const Layer& layer, const Layer* named) { return layer.isOff() || &layer == named; });
    });
    commands.add("ISOLATE", _("Hides all layers but one: ISOLATE name"), [&frame](const wxString& name) {
        hideLayers(frame, name, [](const Layer& layer, const Layer* named) { return named && &layer != named; });
    });
    commands.add("SHOW", _("Shows a layer, or all: SHOW name, or SHOW alone"), [&frame](const wxString& name) {
        hideLayers(frame, name,
                   [](const Layer& layer, const Layer* named) { return named && layer.isOff() && &layer != named; });
    });
}
} // namespace workbench
