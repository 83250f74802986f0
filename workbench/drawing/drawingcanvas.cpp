#include "drawing/drawingcanvas.h"

#include "drawing/grid.h"
#include "drawing/picking.h"

#include <wx/dcbuffer.h>
#include <wx/graphics.h>

#include <algorithm>
#include <cmath>

namespace workbench {

DrawingCanvas::DrawingCanvas(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxWANTS_CHARS | wxFULL_REPAINT_ON_RESIZE)
{
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    SetCursor(wxCursor(wxCURSOR_CROSS));
    fit();
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { paint(); });
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        m_view.size = GetClientSize();
        if (m_isFitted)
            fit();
        repaint();
        event.Skip();
    });
    Bind(wxEVT_MOUSEWHEEL, [this](wxMouseEvent& event) {
        constexpr double step = 1.2;
        if (event.GetWheelAxis() == wxMOUSE_WHEEL_VERTICAL && event.GetWheelDelta() != 0)
            zoomBy(std::pow(step, static_cast<double>(event.GetWheelRotation()) / event.GetWheelDelta()),
                   event.GetPosition());
    });
    for (const auto& type :
         {wxEVT_MIDDLE_DOWN, wxEVT_LEFT_DOWN, wxEVT_LEFT_DCLICK, wxEVT_MOTION, wxEVT_MIDDLE_UP, wxEVT_LEFT_UP})
        Bind(type, &DrawingCanvas::trackMouse, this);
    Bind(wxEVT_RIGHT_UP, [this](wxMouseEvent& event) {
        pickAt(event.GetPosition());
        if (onMenuWanted)
            onMenuWanted();
    });
    Bind(wxEVT_LEAVE_WINDOW, [this](wxMouseEvent& event) {
        m_cursor.reset();
        if (rubberBand)
            Refresh();
        event.Skip();
    });
    Bind(wxEVT_MIDDLE_DCLICK, [this](wxMouseEvent&) { zoomExtents(); });
    Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { m_isPanning = false; });
}

DrawingCanvas::~DrawingCanvas()
{
    endPan();
}

void DrawingCanvas::setDatabase(OdDbDatabase* database)
{
    m_database = database;
    m_highlighted.clear();
    refreshDrawing();
    zoomExtents();
}

void DrawingCanvas::refreshDrawing()
{
    m_tessellation = m_database ? tessellate(*m_database) : Tessellation();
    repaint();
}

void DrawingCanvas::zoomExtents()
{
    m_isFitted = true;
    fit();
    repaint();
}

/// Which entities of the model space these are, by their places there; empty without any.
std::vector<bool> DrawingCanvas::places(const std::vector<OdDbObjectId>& entities) const
{
    std::vector<bool> result;
    if (!m_database || entities.empty())
        return result;
    const OdArray<OdDbObjectId>& all = m_database->modelSpace()->entities();
    result.resize(all.size());
    // Most come in the order of the drawing, which saves looking them up.
    auto next = entities.begin();
    for (unsigned int place = 0; place < all.size() && next != entities.end(); ++place)
        if (all[place] == *next) {
            result[place] = true;
            ++next;
        }
    if (next == entities.end())
        return result;
    std::vector<OdDbObjectId> sorted(next, entities.end());
    std::ranges::sort(sorted);
    for (unsigned int place = 0; place < all.size(); ++place)
        if (std::ranges::binary_search(sorted, all[place]))
            result[place] = true;
    return result;
}

bool DrawingCanvas::zoomTo(const std::vector<OdDbObjectId>& entities)
{
    const std::vector<bool> wanted = places(entities);
    Box box;
    for (const Piece& piece : m_tessellation.pieces)
        if (piece.entity < wanted.size() && wanted[piece.entity])
            box.add(piece.box);
    if (box.isEmpty())
        return false;
    zoomTo(box);
    return true;
}

void DrawingCanvas::zoomTo(const Box& box)
{
    if (box.isEmpty()) {
        zoomExtents();
        return;
    }
    m_isFitted = false;
    fit(box);
    repaint();
}

void DrawingCanvas::fit(const Box& box)
{
    m_view.size = GetClientSize();
    m_view.fit(box);
}

void DrawingCanvas::setView(const DrawingView& view)
{
    m_view.center = view.center;
    m_view.scale = view.scale;
    m_isFitted = false;
    repaint();
}

void DrawingCanvas::zoomBy(double factor, wxPoint center)
{
    constexpr double smallestScale = 1e-15;
    constexpr double largestScale = 1e12;
    const double scale = m_view.scale * factor;
    if (!(scale >= smallestScale && scale <= largestScale))
        return;
    const OdGePoint3d fixed = m_view.toWorld(center.x, center.y);
    m_view.scale = scale;
    const OdGePoint3d moved = m_view.toWorld(center.x, center.y);
    m_view.center = m_view.center + (fixed - moved);
    m_isFitted = false;
    repaint();
}

void DrawingCanvas::panBy(wxPoint pixels)
{
    m_view.center.x -= pixels.x / m_view.scale;
    m_view.center.y += pixels.y / m_view.scale;
    m_isFitted = false;
    repaint();
}

OdDbObjectId DrawingCanvas::entityAt(wxPoint position) const
{
    constexpr double reach = 6.0; // pixels
    const OdGePoint3d point = m_view.toWorld(position.x, position.y);
    const std::optional<std::uint32_t> entity = pickEntity(m_tessellation, point.x, point.y, reach / m_view.scale);
    return entity ? m_database->modelSpace()->entities()[*entity] : OdDbObjectId::kNull;
}

void DrawingCanvas::setHighlighted(const std::vector<OdDbObjectId>& entities)
{
    m_highlighted = places(entities);
    repaint();
}

void DrawingCanvas::showGrid(bool shown)
{
    m_isGridShown = shown;
    repaint();
}

void DrawingCanvas::repaint()
{
    m_picture.bitmap = wxBitmap();
    Refresh();
}

void DrawingCanvas::paint()
{
    const wxColour backgroundColour = background ? background() : wxColour(33, 37, 41);
    const wxColour accentColour = accent ? accent() : wxColour(0, 120, 215);
    if (!m_picture.bitmap.IsOk() || m_picture.background != backgroundColour || m_picture.accent != accentColour ||
        m_picture.bitmap.GetScaleFactor() != GetContentScaleFactor())
        paintPicture(backgroundColour, accentColour);
    wxAutoBufferedPaintDC dc(this);
    dc.DrawBitmap(m_picture.bitmap, 0, 0);
    paintRubberBand(*std::unique_ptr<wxGraphicsContext>(wxGraphicsContext::Create(dc)));
}

void DrawingCanvas::paintPicture(const wxColour& backgroundColour, const wxColour& accentColour)
{
    wxSize size = m_view.size;
    size.IncTo(wxSize(1, 1));
    m_picture = {wxBitmap(), backgroundColour, accentColour};
    m_picture.bitmap.CreateWithDIPSize(size, GetContentScaleFactor());
    wxMemoryDC dc(m_picture.bitmap);
    dc.SetBackground(wxBrush(backgroundColour));
    dc.Clear();
    const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(dc));
    if (m_isGridShown && m_database)
        paintGrid(*context, m_view, backgroundColour);
    m_drawnEntityCount = DrawingPainter(*context, m_view, backgroundColour).paint(m_tessellation);
    if (!m_highlighted.empty())
        DrawingPainter(*context, m_view, backgroundColour).paintHighlight(m_tessellation, m_highlighted, accentColour);
    ++m_paintCount;
}

void DrawingCanvas::trackMouse(wxMouseEvent& event)
{
    const wxPoint position = event.GetPosition();
    const bool isPanButton = event.MiddleDown() || (event.LeftDown() && wxGetKeyState(WXK_SPACE));
    if (isPanButton && !m_isPanning) {
        m_isPanning = true;
        CaptureMouse();
    } else if (event.MiddleUp() || event.LeftUp()) {
        endPan();
    } else if (m_isPanning && event.Dragging()) {
        panBy(position - m_lastMouse);
    }
    m_lastMouse = position;
    m_cursor = cursorAt(position);
    // The second of two quick clicks is a point, too.
    if ((event.LeftDown() || event.LeftDClick()) && !isPanButton && !(onPoint && onPoint(*m_cursor)))
        pickAt(position);
    if ((event.Moving() || event.Dragging()) && onCursorMoved)
        onCursorMoved(*m_cursor);
    if (!currentRubberBand().empty())
        Refresh();
    event.Skip();
}

OdGePoint3d DrawingCanvas::cursorAt(wxPoint position) const
{
    const OdGePoint3d point = m_view.toWorld(position.x, position.y);
    return m_isSnapping ? onGrid(point, gridSpacing(m_view.scale)) : point;
}

std::vector<OdGePoint3d> DrawingCanvas::currentRubberBand() const
{
    return rubberBand && m_cursor ? rubberBand(*m_cursor) : std::vector<OdGePoint3d>();
}

void DrawingCanvas::paintRubberBand(wxGraphicsContext& context) const
{
    std::vector<wxPoint2DDouble> places;
    for (const OdGePoint3d& point : currentRubberBand())
        places.push_back(m_view.toScreen(point.x, point.y));
    if (places.empty())
        return;
    context.SetPen(context.CreatePen(wxGraphicsPenInfo(m_picture.accent, 2).Style(wxPENSTYLE_SHORT_DASH)));
    context.StrokeLines(places.size(), places.data());
}

void DrawingCanvas::pickAt(wxPoint position)
{
    if (onPicked)
        onPicked(entityAt(position));
}

void DrawingCanvas::endPan()
{
    m_isPanning = false;
    if (HasCapture())
        ReleaseMouse();
}

} // namespace workbench
