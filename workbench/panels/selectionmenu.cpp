#include "panels/selectionmenu.h"

#include "drawing/selection.h"
#include "od/oddbdatabase.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/externalfunctions.h"
#include "velm/models/menubuilder.h"

namespace workbench {
namespace {
using velm::MenuData;

QString layerName(const Selection& selection)
{
    const auto* entity = selection.current().open<OdDbEntity>();
    const auto* layer = entity ? entity->layerId().open<OdDbLayerTableRecord>() : nullptr;
    return layer ? velm::toQt(layer->getName()) : QString();
}

MenuData entry(const QString& text, const QString& toolTip, std::function<QString()> line, MenuData::Update update = {})
{
    const auto run = [line = std::move(line)] { velm::processCommand(velm::odFromQt(line())); };
    return MenuData(text, std::function<void()>(run), {}, toolTip, {}, MenuData::Enabled, {}, std::move(update));
}
} // namespace

SelectionMenu::SelectionMenu(const Selection& selection)
{
    const auto withSelection = [&selection](MenuData& data) { data.setEnabled(!selection.current().isNull()); };
    const auto line = [](const char* text) { return [text] { return QString::fromLatin1(text); }; };
    const auto ofLayer = [&selection](const char* command) {
        return [&selection, command] { return QLatin1String(command) + QLatin1Char(' ') + layerName(selection); };
    };
    velm::MenuBuilder(this)
        .addItem(entry(tr("&Zoom to selection"), tr("Show the selected entity in full"), line("ZOOM SELECTION"),
                       withSelection))
        .addTitle(tr("Change"))
        .addItem(entry(tr("&Erase selection"), tr("Take the selected entity out of the drawing"), line("ERASE"),
                       withSelection))
        .addSeparator()
        .addItem(MenuData(tr("&Layer of selection"), {}, {}, {}, {}, MenuData::Enabled, {}, withSelection))
        .children()
        .addItem(entry(tr("Make &current"), tr("New entities go to this layer"), ofLayer("LAYER")))
        .addItem(entry(tr("&Hide"), tr("Hide all that is on this layer"), ofLayer("HIDE")))
        .addItem(entry(tr("Hide &others"), tr("Hide all that is on other layers"), ofLayer("ISOLATE")))
        .parent()
        .addItem(entry(tr("&Show all layers"), tr("Show the layers that are hidden"), line("SHOW")));
    updateState();
    connect(&selection, &Selection::changed, this, &SelectionMenu::updateState);
}
} // namespace workbench
