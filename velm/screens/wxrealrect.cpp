#include "velm/screens/wxrealrect.h"

#include "velm/screens/devicepixels.h"

#include <cmath>

wxRealRect::wxRealRect(double x_, double y_, double width_, double height_)
    : x(x_), y(y_), width(width_), height(height_)
{}

wxRealRect::wxRealRect(const wxRealPoint& topLeft, const wxRealPoint& bottomRight)
    : x(topLeft.x), y(topLeft.y), width(bottomRight.x - topLeft.x), height(bottomRight.y - topLeft.y)
{}

wxRealRect::wxRealRect(const wxRect& rect) : x(rect.x), y(rect.y), width(rect.width), height(rect.height)
{}

wxRealRect::operator wxRect() const
{
    const auto rounded = [](double value) { return velm::devicePixels(std::round(value)); };
    return {rounded(x), rounded(y), rounded(width), rounded(height)};
}

wxSize wxRealRect::GetSize() const
{
    return {velm::devicePixels(width), velm::devicePixels(height)};
}
