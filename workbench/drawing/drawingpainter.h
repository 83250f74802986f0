#pragma once

#include "drawing/tessellation.h"

#include <wx/colour.h>
#include <wx/gdicmn.h>
#include <wx/geometry.h>

#include <map>
#include <memory>

class wxGraphicsContext;

namespace workbench {

/// Where a canvas looks: the point of the drawing in its middle, and how many pixels a drawing unit takes.
struct DrawingView
{
    OdGePoint3d center;
    double scale = 1.0;
    wxSize size;

    wxPoint2DDouble toScreen(double x, double y) const;
    OdGePoint3d toWorld(double x, double y) const;
    Box visible() const;
    /// Shows all of the box in the size that the view has.
    void fit(const Box& box);
};

/// Draws what is in view. Lines have the width that their weight suggests, one to four pixels; dashes have their
/// length in the drawing, and lines turn continuous where that is too small to be seen.
class DrawingPainter
{
public:
    DrawingPainter(wxGraphicsContext& context, const DrawingView& view, const wxColour& background);
    ~DrawingPainter();

    /// Gives the number of entities of which something was drawn.
    std::size_t paint(const Tessellation& tessellation);
    /// Draws the marked entities again, in the colour and, unless they are very many, with a glow around their lines.
    void paintHighlight(const Tessellation& tessellation, const std::vector<bool>& marked, const wxColour& colour);

    /// The colour to draw with: index 7 is white on dark and black on light, and what would vanish in the background
    /// is moved away from it.
    static wxColour visibleColour(const OdCmColor& color, const wxColour& background);

private:
    struct Stroke;

    void paintChain(const Tessellation& tessellation, const Piece& piece);
    void paintInside(const Tessellation& tessellation, const Piece& piece, const wxColour& colour);
    void paintMark(const Tessellation::Point& point);
    void paintText(const PlacedText& text, const wxColour& colour);
    void addSegment(wxPoint2DDouble from, wxPoint2DDouble to);
    void addDashes(wxPoint2DDouble from, wxPoint2DDouble to, const std::vector<double>& pattern, double length,
                   double& offset);
    void setPen(const wxColour& colour, int width);
    void flush();

    wxGraphicsContext& m_context;
    const DrawingView m_view;
    const wxColour m_background;
    std::unique_ptr<Stroke> m_stroke;
    std::map<std::uint32_t, wxColour> m_colours; // by packed drawing colour
};

} // namespace workbench
