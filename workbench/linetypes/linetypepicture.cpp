#include "linetypes/linetypepicture.h"

#include <wx/image.h>

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

wxBitmap lineTypePicture(const OdArray<double>& dashes, const wxSize& size, const wxColour& colour)
{
    if (size.x <= 0 || size.y <= 0 || size.x > largestPicture || size.y > largestPicture)
        return {};
    wxImage image(size, false);
    image.SetRGB(wxRect(size), colour.Red(), colour.Green(), colour.Blue());
    image.InitAlpha();
    std::fill_n(image.GetAlpha(), size.x * size.y, static_cast<unsigned char>(wxIMAGE_ALPHA_TRANSPARENT));
    const int thickness = std::max(1, size.y / heightPerThickness);
    const int top = (size.y - thickness) / 2;
    for (const auto& [first, last] : lineTypeStrokes(dashes, size.x))
        for (int y = top; y < top + thickness; ++y)
            std::fill_n(image.GetAlpha() + y * size.x + first, last - first,
                        static_cast<unsigned char>(wxIMAGE_ALPHA_OPAQUE));
    return wxBitmap(image, 32);
}
} // namespace workbench
