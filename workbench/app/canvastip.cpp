#include "app/canvastip.h"

#include "drawing/drawingcanvas.h"
#include "od/oddbdatabase.h"
#include "panels/entitytext.h"
#include "velm/bridge/conversions.h"
#include "velm/units/settings.h"

#include <QCursor>

#include <wx/utils.h>

#include <algorithm>

namespace workbench {
CanvasTip::CanvasTip(DrawingCanvas& canvas) : m_canvas(canvas)
{
    m_canvas.Bind(wxEVT_MOTION, [this](wxMouseEvent& event) {
        mouseMoved();
        event.Skip();
    });
    for (const auto& type :
         {wxEVT_LEAVE_WINDOW, wxEVT_LEFT_DOWN, wxEVT_MIDDLE_DOWN, wxEVT_RIGHT_DOWN, wxEVT_MOUSEWHEEL})
        m_canvas.Bind(type, [this](wxMouseEvent& event) {
            hide();
            event.Skip();
        });
    m_timer.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { show(); });
}

void CanvasTip::hide()
{
    m_timer.Stop();
    m_window.hide();
}

void CanvasTip::mouseMoved()
{
    hide();
    const velm::Settings* settings = velm::Settings::instance();
    if (settings->tooltips())
        m_timer.StartOnce(std::max(1, settings->tooltipDelay()));
}

void CanvasTip::show()
{
    const wxPoint mouse = wxGetMousePosition();
    // The last word on where the mouse is: an event that it left may still be on its way.
    if (wxFindWindowAtPoint(mouse) != &m_canvas)
        return;
    const auto* entity = m_canvas.entityAt(m_canvas.ScreenToClient(mouse)).open<OdDbEntity>();
    const auto* layer = entity ? entity->layerId().open<OdDbLayerTableRecord>() : nullptr;
    if (layer)
        m_window.showText(TipWindow::tr("%1\nLayer: %2").arg(entityText(*entity), velm::toQt(layer->getName())),
                          QCursor::pos());
}
} // namespace workbench
