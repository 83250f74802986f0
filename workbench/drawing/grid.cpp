#include "drawing/grid.h"

#include <wx/graphics.h>

#include <algorithm>
#include <cmath>

namespace workbench {
namespace {
constexpr double narrowest = 14.0; // pixels
constexpr int strongEvery = 5;
constexpr unsigned char weak = 20; // of 255
constexpr unsigned char strong = 46;
} // namespace

double gridSpacing(double scale)
{
    const double least = narrowest / scale;
    const double decade = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * decade >= least)
            return factor * decade;
    return 10.0 * decade;
}

OdGePoint3d onGrid(const OdGePoint3d& point, double spacing)
{
    // Adding zero takes the sign from a negative one.
    const auto nearest = [spacing](double value) { return std::round(value / spacing) * spacing + 0.0; };
    return {nearest(point.x), nearest(point.y), point.z};
}

void paintGrid(wxGraphicsContext& context, const DrawingView& view, const wxColour& background)
{
    const double spacing = gridSpacing(view.scale);
    const OdGePoint3d topLeft = view.toWorld(0, 0);
    const double firstColumn = std::ceil(topLeft.x / spacing);
    const double firstRow = std::floor(topLeft.y / spacing);
    const int columns = static_cast<int>(view.size.x / (spacing * view.scale)) + 1;
    const int rows = static_cast<int>(view.size.y / (spacing * view.scale)) + 1;
    const auto isStrong = [](double number) { return std::fmod(number, strongEvery) == 0.0; };
    const unsigned char grey = background.GetLuminance() < 0.5 ? 255 : 0;
    const wxAntialiasMode mode = context.GetAntialiasMode();
    context.SetAntialiasMode(wxANTIALIAS_NONE);
    for (const bool strongOnes : {false, true}) {
        wxGraphicsPath path = context.CreatePath();
        for (int i = 0; i < columns; ++i)
            if (const double column = firstColumn + i; isStrong(column) == strongOnes) {
                const double x = std::round(view.toScreen(column * spacing, 0.0).m_x);
                path.MoveToPoint(x, 0);
                path.AddLineToPoint(x, view.size.y);
            }
        for (int i = 0; i < rows; ++i)
            if (const double row = firstRow - i; isStrong(row) == strongOnes) {
                const double y = std::round(view.toScreen(0.0, row * spacing).m_y);
                path.MoveToPoint(0, y);
                path.AddLineToPoint(view.size.x, y);
            }
        const wxColour colour(grey, grey, grey, strongOnes ? strong : weak);
        context.SetPen(context.CreatePen(wxGraphicsPenInfo(colour, 1)));
        context.StrokePath(path);
    }
    context.SetAntialiasMode(mode);
}
} // namespace workbench
