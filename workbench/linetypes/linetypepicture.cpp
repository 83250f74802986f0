#include "linetypes/linetypepicture.h"

#include "drawing/drawingpainter.h"

#include <wx/dcmemory.h>

#include <algorithm>
#include <cmath>

namespace workbench {
namespace {
constexpr double pixelsPerUnit = 2.0; // where that fits: linetypes of one file keep their proportions
constexpr double clearGap = 3.0;
constexpr int largestPicture = 4096;
constexpr int heightPerThickness = 12;

/// In pixels for a drawing unit; 0 for what is no pattern.
double scaleOf(const OdArray<double>& dashes, int length)
{
    double pattern = 0.0;
    double gap = 0.0; // the narrowest
    for (const double dash : dashes) {
        pattern += std::abs(dash);
        if (dash < 0)
            gap = gap > 0 ? std::min(gap, -dash) : -dash;
    }
    if (!(gap > 0))
        return 0.0;
    const double scale = std::min(std::max(pixelsPerUnit, clearGap / gap), length / 2.0 / pattern);
    return std::isfinite(scale) && scale * pattern > 0.1 ? scale : 0.0;
}
} // namespace

std::vector<std::pair<int, int>> lineTypeStrokes(const OdArray<double>& dashes, int length)
{
    if (length <= 0)
        return {};
    const double scale = scaleOf(dashes, length);
    if (scale == 0.0)
        return {{0, length}};
    std::vector<std::pair<int, int>> strokes;
    for (double at = 0.0; at < length;)
        for (const double dash : dashes) {
            const double end = at + std::abs(dash) * scale;
            const int first = static_cast<int>(std::lround(at));
            const int last = std::min(std::max(static_cast<int>(std::lround(end)), first + 1), length);
            if (dash >= 0 && first < last)
                strokes.emplace_back(first, last);
            at = end;
        }
    return strokes;
}

wxBitmap lineTypePicture(const OdArray<double>& dashes, const wxSize& size, const wxColour& background)
{
    if (size.x <= 0 || size.y <= 0 || size.x > largestPicture || size.y > largestPicture)
        return {};
    wxBitmap bitmap(size.x, size.y, 24);
    wxMemoryDC canvas(bitmap);
    canvas.SetBackground(wxBrush(background));
    canvas.Clear();
    canvas.SetPen(*wxTRANSPARENT_PEN);
    canvas.SetBrush(wxBrush(DrawingPainter::visibleColour(OdCmColor::fromIndex(7), background)));
    const int thickness = std::max(1, size.y / heightPerThickness);
    for (const auto& [first, last] : lineTypeStrokes(dashes, size.x))
        canvas.DrawRectangle(first, (size.y - thickness) / 2, last - first, thickness);
    canvas.SelectObject(wxNullBitmap);
    return bitmap;
}
} // namespace workbench
