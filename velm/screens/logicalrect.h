#pragma once

#include "velm/screens/logicalpoint.h"

#include <QRect>
#include <QRectF>

class wxRealRect;

namespace velm {
/// A rectangle in logical pixels. Right and bottom belong to it, as those of a QRect do.
class VELM_EXPORT LogicalRect
{
public:
    /// Deliberately without the 1 that the inclusive corner wants: width() is one more than `width`.
    LogicalRect(double x, double y, double width, double height);
    LogicalRect(const LogicalPoint& topLeft, const LogicalPoint& bottomRight);
    LogicalRect(const QRect& rect);
    // From physical pixels.
    LogicalRect(const OdGsDCRect& rect, const IMonitorInfo::MonitorGeometry& geometry);
    LogicalRect(const wxRealRect& rect, const IMonitorInfo::MonitorGeometry& geometry);

    double left() const { return m_left; }
    double top() const { return m_top; }
    double right() const { return m_right; }
    double bottom() const { return m_bottom; }
    double width() const { return m_right - m_left + 1.0; }
    double height() const { return m_bottom - m_top + 1.0; }
    LogicalPoint topLeft() const { return {m_left, m_top}; }
    LogicalPoint bottomRight() const { return {m_right, m_bottom}; }

    // Each sets its own side; a size moves the right or the bottom one.
    void setWidth(double width) { m_right = width + m_left - 1.0; }
    void setHeight(double height) { m_bottom = height + m_top - 1.0; }
    void setLeft(int left) { m_left = left; }
    void setRight(int right) { m_right = right; }
    void setTop(int top) { m_top = top; }
    void setBottom(int bottom) { m_bottom = bottom; }
    void setX(double x) { m_left = x; }
    void setY(double y) { m_top = y; }
    void setTopLeft(const LogicalPoint& point);
    void setBottomRight(const LogicalPoint& point);

    /// In physical pixels, truncated toward zero.
    OdGsDCRect toOd(const IMonitorInfo::MonitorGeometry& geometry) const;
    /// In physical pixels. A rectangle that came from a wxRealRect is one pixel smaller.
    wxRealRect toWx(const IMonitorInfo::MonitorGeometry& geometry) const;
    /// From corner to corner.
    QRectF toQt() const;

private:
    double m_left;
    double m_top;
    double m_right;
    double m_bottom;
};
} // namespace velm
