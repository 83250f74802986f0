#pragma once

#include "drawing/drawingpainter.h"

#include <wx/bitmap.h>
#include <wx/panel.h>

#include <functional>
#include <optional>

namespace workbench {

/// Shows the model space of a drawing. The wheel zooms about the cursor; the middle button, or the left one with the
/// space bar held, pans; a double click of the middle button shows everything. As long as the user hasn't moved the
/// view, it stays fitted to the drawing when the size changes. A click of the left or the right button picks the entity
/// under it. A command may take the clicks as points instead; then the line that would come follows the cursor. The
/// drawing is painted only when something of it has changed, and kept as a picture.
class DrawingCanvas : public wxPanel
{
public:
    explicit DrawingCanvas(wxWindow* parent);
    ~DrawingCanvas() override;

    /// Shows a drawing, all of it. It is not owned and may be null.
    void setDatabase(OdDbDatabase* database);
    /// To call after a change of the drawing: takes it apart anew and repaints.
    void refreshDrawing();

    void zoomExtents();
    /// False, with nothing changed, when nothing of the entities is drawn.
    bool zoomTo(const std::vector<OdDbObjectId>& entities);
    /// All of the drawing for an empty box.
    void zoomTo(const Box& box);
    /// The point of the drawing at `center`, in pixels, stays where it is.
    void zoomBy(double factor, wxPoint center);
    void panBy(wxPoint pixels);

    /// The entity that is drawn nearest to a place, in pixels, or null when none is within a few pixels.
    OdDbObjectId entityAt(wxPoint position) const;
    /// Shows these entities of the drawing as the selected ones.
    void setHighlighted(const std::vector<OdDbObjectId>& entities);

    /// A grid that follows the zoom.
    bool isGridShown() const { return m_isGridShown; }
    void showGrid(bool shown);
    /// Whether the cursor's coordinates are those of the nearest point of the grid, shown or not.
    bool isSnapping() const { return m_isSnapping; }
    void setSnapping(bool snapping) { m_isSnapping = snapping; }

    const DrawingView& view() const { return m_view; }
    /// The view's middle and scale; the size is the canvas's own.
    void setView(const DrawingView& view);
    /// Whether all of the drawing is shown, since nobody has moved the view.
    bool isFitted() const { return m_isFitted; }
    /// How many entities of the model space the last painting of the drawing drew.
    std::size_t drawnEntityCount() const { return m_drawnEntityCount; }
    /// How often the drawing was painted; what follows the cursor comes above it without.
    std::size_t paintCount() const { return m_paintCount; }

    std::function<void(const OdGePoint3d&)> onCursorMoved; ///< in the coordinates of the drawing
    std::function<bool(const OdGePoint3d&)> onPoint;       ///< asked before a left click picks; true when it is used up
    std::function<void(OdDbObjectId)> onPicked;            ///< null: nothing is there
    /// What would be drawn to the cursor's place: a chain of points, or nothing.
    std::function<std::vector<OdGePoint3d>(const OdGePoint3d&)> rubberBand;
    std::function<void()> onMenuWanted;   ///< the right button was released, after its picking
    std::function<wxColour()> background; ///< asked at each paint; without it the canvas is dark grey
    std::function<wxColour()> accent;     ///< the selected entities', asked at each paint

private:
    /// The canvas without what follows the cursor.
    struct Picture
    {
        wxBitmap bitmap; // invalid when something has changed since
        wxColour background;
        wxColour accent;
    };

    void fit() { fit(m_tessellation.box); }
    void fit(const Box& box);
    std::vector<bool> places(const std::vector<OdDbObjectId>& entities) const;
    void repaint();
    void paint();
    void paintPicture(const wxColour& backgroundColour, const wxColour& accentColour);
    void trackMouse(wxMouseEvent& event);
    void pickAt(wxPoint position);
    OdGePoint3d cursorAt(wxPoint position) const;
    std::vector<OdGePoint3d> currentRubberBand() const;
    void paintRubberBand(wxGraphicsContext& context) const;
    void endPan();

    OdDbDatabase* m_database = nullptr; // not owned
    Tessellation m_tessellation;
    std::vector<bool> m_highlighted; // by the place in the model space; empty for none
    bool m_isGridShown = false;
    bool m_isSnapping = false;
    DrawingView m_view;
    bool m_isFitted = true;
    bool m_isPanning = false;
    wxPoint m_lastMouse;
    std::optional<OdGePoint3d> m_cursor; // while the mouse is over the canvas
    Picture m_picture;
    std::size_t m_drawnEntityCount = 0;
    std::size_t m_paintCount = 0;
};

} // namespace workbench
