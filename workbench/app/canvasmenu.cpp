#include "app/canvasmenu.h"

#include "drawing/entitykind.h"
#include "drawing/selection.h"
#include "od/oddbdatabase.h"

#include <wx/translation.h>

namespace workbench {
namespace {
/// A text of the drawing, in which a "&" is no mnemonic.
wxString plain(wxString text)
{
    text.Replace("&", "&&");
    return text;
}
} // namespace

CanvasMenu::CanvasMenu(OdApDocManager& documents, const Selection& selection)
    : m_documents(documents), m_selection(selection)
{}

void CanvasMenu::fillMenu(IDynamicMenu& menu)
{
    m_lines.clear();
    const bool hasDrawing = m_documents.curDocument() != nullptr;
    const auto* entity = m_selection.current().open<OdDbEntity>();
    add(menu, entity ? wxString::Format(_("&Erase %s"), plain(entityKind(*entity))) : wxString(_("&Erase")), "ERASE",
        entity != nullptr);
    menu.addMenuSeparator();
    add(menu, _("&Zoom extents"), "ZOOM", hasDrawing);
    add(menu, _("&Grid"), "GRID", true, isGridShown && isGridShown() ? On : Off);
    add(menu, _("&Snap"), "SNAP", true, isSnapping && isSnapping() ? On : Off);
    menu.addMenuSeparator();
    if (hasDrawing)
        addLayers(menu);
}

void CanvasMenu::addLayers(IDynamicMenu& menu)
{
    OdDbDatabase* database = m_documents.curDocument()->database();
    std::unique_ptr<IDynamicMenu> layers = menu.createSubMenu();
    for (const OdDbLayerTableRecord* layer : database->layers()) {
        const wxString name = layer->getName().c_str();
        add(*layers, plain(name), "LAYER " + name, true, layer->objectId() == database->currentLayer() ? On : Off);
    }
    layers->addMenuSeparator();
    menu.appendSubMenu(_("Current &layer").wc_str(), std::move(layers), {});
    menu.addMenuSeparator();
}

void CanvasMenu::add(IDynamicMenu& menu, const wxString& text, const wxString& line, bool enabled, Mark mark)
{
    menu.addMenuItem(text.wc_str(), static_cast<int>(m_lines.size()), {}, {}, enabled, mark != None, mark == On);
    m_lines.push_back(line);
}

void CanvasMenu::executeMenuCommand(int commandId)
{
    if (run && commandId >= 0 && static_cast<std::size_t>(commandId) < m_lines.size())
        run(wxString(m_lines[static_cast<std::size_t>(commandId)]));
}
} // namespace workbench
