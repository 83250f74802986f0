#pragma once

#include "drawing/drawingpainter.h"

#include <wx/panel.h>

#include <functional>

namespace workbench {

/// Shows the model space of a drawing. The wheel zooms about the cursor; the middle button, or the left one with the
/// space bar held, pans; a double click of the middle button shows everything. As long as the user hasn't moved the
/// view, it stays fitted to the drawing when the size changes.
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
    /// The point of the drawing at `center`, in pixels, stays where it is.
    void zoomBy(double factor, wxPoint center);
    void panBy(wxPoint pixels);

    const DrawingView& view() const { return m_view; }
    /// How many entities of the model space the last paint drew.
    std::size_t drawnEntityCount() const { return m_drawnEntityCount; }

    std::function<void(const OdGePoint3d&)> onCursorMoved; ///< in the coordinates of the drawing
    std::function<wxColour()> background;                  ///< asked at each paint; without it the canvas is dark grey

private:
    void fit();
    void paint();
    void trackMouse(wxMouseEvent& event);
    void endPan();

    OdDbDatabase* m_database = nullptr; // not owned
    Tessellation m_tessellation;
    DrawingView m_view;
    bool m_isFitted = true;
    bool m_isPanning = false;
    wxPoint m_lastMouse;
    std::size_t m_drawnEntityCount = 0;
};

} // namespace workbench
