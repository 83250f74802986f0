#pragma once

#include "velm/velm_export.h"

#include <wx/gdicmn.h>

/// A wxRect with real numbers. Other than there, right and bottom lie outside.
class VELM_EXPORT wxRealRect
{
public:
    wxRealRect() = default;
    wxRealRect(double x, double y, double width, double height);
    wxRealRect(const wxRealPoint& topLeft, const wxRealPoint& bottomRight);
    wxRealRect(const wxRect& rect);

    /// Each of the four numbers rounded.
    operator wxRect() const;

    bool IsEmpty() const { return width <= 0.0 || height <= 0.0; }
    double GetLeft() const { return x; }
    double GetTop() const { return y; }
    double GetRight() const { return x + width; }
    double GetBottom() const { return y + height; }
    // The size stays.
    void SetLeft(double left) { x = left; }
    void SetTop(double top) { y = top; }
    // The place stays.
    void SetRight(double right) { width = right - x; }
    void SetBottom(double bottom) { height = bottom - y; }
    /// Truncated.
    wxSize GetSize() const;
    wxRealPoint GetPosition() const { return {x, y}; }
    wxRealPoint GetLeftTop() const { return {x, y}; }

    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
};
