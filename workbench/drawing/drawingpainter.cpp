#include "drawing/drawingpainter.h"

#include <wx/font.h>
#include <wx/graphics.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace workbench {

namespace {

constexpr double margin = 16.0;  // pixels around the canvas within which lines are kept
constexpr int longestPath = 300; // segments; the cost of a stroke grows faster than its length
constexpr int mostSmoothPieces = 5000;
constexpr int mostGlowingPieces = 1000;
constexpr double shortestPattern = 6.0; // pixels
constexpr double smallestText = 2.0;    // pixels
constexpr double largestText = 4000.0;
constexpr double capHeight = 0.73; // of a font's size

/// From 0 for black to 1 for white, as the eye sees it.
double luminance(const wxColour& colour)
{
    const auto linear = [](unsigned char channel) { return std::pow(channel / 255.0, 2.2); };
    return 0.2126 * linear(colour.Red()) + 0.7152 * linear(colour.Green()) + 0.0722 * linear(colour.Blue());
}

double contrast(const wxColour& a, const wxColour& b)
{
    const double lighter = std::max(luminance(a), luminance(b)) + 0.05;
    return lighter / (std::min(luminance(a), luminance(b)) + 0.05);
}

wxColour mixed(const wxColour& a, const wxColour& b, double share)
{
    const auto channel = [share](int from, int to) {
        return static_cast<unsigned char>(std::lround(from + (to - from) * share));
    };
    return wxColour(channel(a.Red(), b.Red()), channel(a.Green(), b.Green()), channel(a.Blue(), b.Blue()));
}

int penWidth(int lineWeight)
{
    return lineWeight >= 100 ? 4 : lineWeight >= 60 ? 3 : lineWeight >= 35 ? 2 : 1;
}

/// Cuts a segment to the rectangle (Liang and Barsky's way). False when nothing is left.
bool clip(wxPoint2DDouble& from, wxPoint2DDouble& to, const wxRect2DDouble& area)
{
    const wxPoint2DDouble start = from;
    const wxPoint2DDouble way = to - from;
    double enter = 0.0;
    double leave = 1.0;
    const auto cut = [&](double step, double distance) {
        if (step == 0.0)
            return distance >= 0.0;
        const double at = distance / step;
        if (step < 0.0)
            enter = std::max(enter, at);
        else
            leave = std::min(leave, at);
        return enter <= leave;
    };
    if (!cut(-way.m_x, start.m_x - area.GetLeft()) || !cut(way.m_x, area.GetRight() - start.m_x) ||
        !cut(-way.m_y, start.m_y - area.GetTop()) || !cut(way.m_y, area.GetBottom() - start.m_y))
        return false;
    from = start + way * enter;
    to = start + way * leave;
    return true;
}

/// True for a way that leads along and not across, seen in pixels.
bool isLevel(double along, double across)
{
    return std::abs(across) < 0.01 && std::abs(along) > 2.0;
}

wxPoint2DDouble snapped(const wxPoint2DDouble& point)
{
    return {std::round(point.m_x), std::round(point.m_y)};
}

} // namespace

/// The lines gathered for one pen.
struct DrawingPainter::Stroke
{
    wxGraphicsPath path;
    int segments = 0;
    wxPoint2DDouble end;
    wxColour colour;
    int width = 0;
};

wxPoint2DDouble DrawingView::toScreen(double x, double y) const
{
    return {(x - center.x) * scale + size.x / 2.0, (center.y - y) * scale + size.y / 2.0};
}

OdGePoint3d DrawingView::toWorld(double x, double y) const
{
    return {center.x + (x - size.x / 2.0) / scale, center.y - (y - size.y / 2.0) / scale, 0.0};
}

Box DrawingView::visible() const
{
    Box box;
    const OdGePoint3d topLeft = toWorld(-margin, -margin);
    const OdGePoint3d bottomRight = toWorld(size.x + margin, size.y + margin);
    box.add(topLeft.x, topLeft.y);
    box.add(bottomRight.x, bottomRight.y);
    return box;
}

void DrawingView::fit(const Box& box)
{
    constexpr double filled = 0.92;         // of the size
    constexpr double smallestExtent = 10.0; // units, for drawings that are all in one place
    center =
        box.isEmpty() ? OdGePoint3d() : OdGePoint3d{(box.left + box.right) / 2.0, (box.bottom + box.top) / 2.0, 0.0};
    double width = box.isEmpty() ? 0.0 : box.right - box.left;
    double height = box.isEmpty() ? 0.0 : box.top - box.bottom;
    // What is smaller than the precision of its coordinates is one place.
    if (std::max(width, height) <= 1e-12 * std::max({std::abs(center.x), std::abs(center.y), 1.0}))
        width = height = smallestExtent;
    const double perUnitX = width > 0.0 ? std::max(size.x, 1) / width : INFINITY;
    const double perUnitY = height > 0.0 ? std::max(size.y, 1) / height : INFINITY;
    scale = filled * std::min(perUnitX, perUnitY);
}

DrawingPainter::DrawingPainter(wxGraphicsContext& context, const DrawingView& view, const wxColour& background)
    : m_context(context), m_view(view), m_background(background), m_stroke(std::make_unique<Stroke>())
{}

DrawingPainter::~DrawingPainter() = default;

wxColour DrawingPainter::visibleColour(const OdCmColor& color, const wxColour& background)
{
    constexpr double leastContrast = 1.7;
    const bool isDark = luminance(background) < 0.2;
    wxColour colour(color.red(), color.green(), color.blue());
    if (color.isByACI()) {
        const unsigned long entry = odcmIndexPalette(isDark)[color.colorIndex() - 1];
        colour = wxColour(entry & 0xFF, (entry >> 8) & 0xFF, (entry >> 16) & 0xFF);
    }
    wxColour result = colour;
    for (double share = 0.1; share < 1.01 && contrast(result, background) < leastContrast; share += 0.1)
        result = mixed(colour, isDark ? *wxWHITE : *wxBLACK, share);
    return result;
}

std::size_t DrawingPainter::paint(const Tessellation& tessellation)
{
    const Box visible = m_view.visible();
    // Smooth lines cost more than ten times the time of plain ones.
    if (std::ranges::count_if(tessellation.pieces, [&](const Piece& piece) { return piece.box.intersects(visible); }) >
        mostSmoothPieces)
        m_context.SetAntialiasMode(wxANTIALIAS_NONE);
    std::size_t drawn = 0;
    std::uint32_t lastEntity = static_cast<std::uint32_t>(-1);
    for (const Piece& piece : tessellation.pieces) {
        if (!piece.box.intersects(visible))
            continue;
        if (piece.entity != lastEntity)
            ++drawn;
        lastEntity = piece.entity;
        wxColour& colour = m_colours[piece.color.color()];
        if (!colour.IsOk())
            colour = visibleColour(piece.color, m_background);
        if (piece.text >= 0) {
            flush(); // what was drawn before stays below
            paintText(tessellation.texts[piece.text], colour);
            continue;
        }
        setPen(colour, piece.count == 1 ? 1 : penWidth(piece.lineWeight));
        if (piece.count == 1)
            paintMark(tessellation.points[piece.first]);
        else
            paintChain(tessellation, piece);
        if (piece.isFilled)
            paintInside(tessellation, piece, colour);
    }
    flush();
    return drawn;
}

void DrawingPainter::paintHighlight(const Tessellation& tessellation, const std::vector<bool>& marked,
                                    const wxColour& colour)
{
    constexpr int glow = 6; // pixels
    const wxColour glowColour(colour.Red(), colour.Green(), colour.Blue(), 90);
    const Box visible = m_view.visible();
    const auto isShown = [&](const Piece& piece) {
        return piece.entity < marked.size() && marked[piece.entity] && piece.box.intersects(visible);
    };
    // Wide, clear lines cost even more than smooth ones.
    const bool isMany = std::ranges::count_if(tessellation.pieces, isShown) > mostGlowingPieces;
    if (isMany)
        m_context.SetAntialiasMode(wxANTIALIAS_NONE);
    for (const bool isGlow : {true, false})
        for (const Piece& piece : tessellation.pieces) {
            if ((isGlow && isMany) || !isShown(piece))
                continue;
            if (piece.text >= 0) {
                if (!isGlow)
                    paintText(tessellation.texts[piece.text], colour);
                continue;
            }
            const int width = piece.count == 1 ? 1 : penWidth(piece.lineWeight);
            setPen(isGlow ? glowColour : colour, isGlow ? width + glow : width);
            if (piece.count == 1)
                paintMark(tessellation.points[piece.first]);
            else
                paintChain(tessellation, piece);
            if (piece.isFilled && !isGlow)
                paintInside(tessellation, piece, colour);
        }
    flush();
}

void DrawingPainter::paintChain(const Tessellation& tessellation, const Piece& piece)
{
    const std::vector<double>* pattern = piece.dashes >= 0 ? &tessellation.dashPatterns[piece.dashes] : nullptr;
    double length = 0.0;
    if (pattern)
        for (const double dash : *pattern)
            length += std::abs(dash) * m_view.scale;
    const bool isDashed = pattern && length >= shortestPattern;
    const auto screenPoint = [&](std::uint32_t index) {
        const Tessellation::Point& point = tessellation.points[piece.first + index];
        return m_view.toScreen(point.x, point.y);
    };
    // Horizontal and vertical lines lie on whole pixels, where they are sharp.
    const auto place = [&](std::uint32_t index) {
        const wxPoint2DDouble point = screenPoint(index);
        wxPoint2DDouble result = point;
        for (const std::uint32_t neighbour : {index - 1, index + 1})
            if (neighbour < piece.count) { // the one before the first is none as well
                const wxPoint2DDouble way = screenPoint(neighbour) - point;
                if (isLevel(way.m_x, way.m_y))
                    result.m_y = std::round(point.m_y);
                if (isLevel(way.m_y, way.m_x))
                    result.m_x = std::round(point.m_x);
            }
        return result;
    };
    double offset = 0.0; // in the dash pattern, in pixels
    wxPoint2DDouble from = place(0);
    for (std::uint32_t i = 1; i < piece.count; ++i) {
        const wxPoint2DDouble to = place(i);
        const bool isInvisible = piece.count > 2 && i + 1 < piece.count && from.GetDistance(to) < 0.5;
        if (isInvisible)
            continue;
        if (isDashed)
            addDashes(from, to, *pattern, length, offset);
        else
            addSegment(from, to);
        from = to;
    }
}

void DrawingPainter::paintInside(const Tessellation& tessellation, const Piece& piece, const wxColour& colour)
{
    wxGraphicsPath path = m_context.CreatePath();
    for (std::uint32_t index = 0; index < piece.count; ++index) {
        const Tessellation::Point& point = tessellation.points[piece.first + index];
        const wxPoint2DDouble place = m_view.toScreen(point.x, point.y);
        if (index == 0)
            path.MoveToPoint(place);
        else
            path.AddLineToPoint(place);
    }
    m_context.SetBrush(wxBrush(colour));
    m_context.FillPath(path);
}

void DrawingPainter::addSegment(wxPoint2DDouble from, wxPoint2DDouble to)
{
    const wxRect2DDouble area(-margin, -margin, m_view.size.x + 2 * margin, m_view.size.y + 2 * margin);
    if (!clip(from, to, area))
        return;
    if (m_stroke->segments == 0 || !(m_stroke->end == from))
        m_stroke->path.MoveToPoint(from);
    if (from == to) // too small to be seen, but there
        to.m_x += 1.0;
    m_stroke->path.AddLineToPoint(to);
    m_stroke->end = to;
    if (++m_stroke->segments >= longestPath)
        flush();
}

void DrawingPainter::addDashes(wxPoint2DDouble from, wxPoint2DDouble to, const std::vector<double>& pattern,
                               double length, double& offset)
{
    const double total = from.GetDistance(to);
    const double begin = offset;
    offset = std::fmod(offset + total, length);
    const wxPoint2DDouble start = from;
    const wxRect2DDouble area(-margin, -margin, m_view.size.x + 2 * margin, m_view.size.y + 2 * margin);
    if (total <= 0.0 || !clip(from, to, area))
        return;
    const wxPoint2DDouble direction = (to - from) / std::max(from.GetDistance(to), 1e-9);
    const double end = start.GetDistance(to);
    double at = start.GetDistance(from);
    double inPattern = std::fmod(begin + at, length);
    at -= inPattern; // to where the pattern starts
    while (at < end)
        for (const double dash : pattern) {
            const double size = std::max(std::abs(dash) * m_view.scale, dash == 0.0 ? 1.0 : 0.0);
            const double first = std::max(at, start.GetDistance(from));
            const double last = std::min(at + size, end);
            if (dash >= 0.0 && first < last)
                addSegment(start + direction * first, start + direction * last);
            at += std::abs(dash) * m_view.scale;
        }
}

void DrawingPainter::paintMark(const Tessellation::Point& point)
{
    constexpr double arm = 3.0;
    const wxPoint2DDouble at = snapped(m_view.toScreen(point.x, point.y));
    addSegment({at.m_x - arm, at.m_y}, {at.m_x + arm, at.m_y});
    addSegment({at.m_x, at.m_y - arm}, {at.m_x, at.m_y + arm});
}

void DrawingPainter::paintText(const PlacedText& text, const wxColour& colour)
{
    const double size = text.height * m_view.scale;
    if (size < smallestText || size > largestText)
        return;
    const wxFont font(
        wxFontInfo(wxSize(0, std::max(1, static_cast<int>(size / capHeight)))).Family(wxFONTFAMILY_SWISS));
    m_context.SetFont(font, colour);
    const auto lineCount = static_cast<double>(text.lines.size());
    const double height = size + (lineCount - 1) * size * lineSpacing;
    // Down from the position to the first line's baseline.
    double baseline = text.verticalMode == OdDbText::VerticalMode::Top      ? size
                      : text.verticalMode == OdDbText::VerticalMode::Middle ? size - height / 2.0
                                                                            : size - height;
    const wxPoint2DDouble origin = m_view.toScreen(text.position.x, text.position.y);
    const double c = std::cos(text.rotation);
    const double s = std::sin(text.rotation);
    for (const std::wstring& line : text.lines) {
        wxDouble width = 0.0;
        wxDouble fullHeight = 0.0;
        wxDouble descent = 0.0;
        m_context.GetTextExtent(line, &width, &fullHeight, &descent, nullptr);
        const double x = -width * static_cast<int>(text.horizontalMode) / 2.0;
        const double y = baseline - (fullHeight - descent);
        m_context.DrawText(line, origin.m_x + c * x + s * y, origin.m_y - s * x + c * y, text.rotation);
        baseline += size * lineSpacing;
    }
}

void DrawingPainter::setPen(const wxColour& colour, int width)
{
    if (colour == m_stroke->colour && width == m_stroke->width)
        return;
    flush();
    m_stroke->colour = colour;
    m_stroke->width = width;
}

void DrawingPainter::flush()
{
    if (m_stroke->segments > 0) {
        wxGraphicsPenInfo pen(m_stroke->colour, m_stroke->width);
        m_context.SetPen(m_context.CreatePen(pen.Cap(wxCAP_BUTT).Join(wxJOIN_ROUND)));
        m_context.StrokePath(m_stroke->path);
    }
    m_stroke->path = m_context.CreatePath();
    m_stroke->segments = 0;
}

} // namespace workbench
