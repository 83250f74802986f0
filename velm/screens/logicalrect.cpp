#include "velm/screens/logicalrect.h"

#include "velm/screens/devicepixels.h"
#include "velm/screens/wxrealrect.h"

namespace velm {
LogicalRect::LogicalRect(double x, double y, double width, double height)
    : m_left(x), m_top(y), m_right(x + width), m_bottom(y + height)
{}

LogicalRect::LogicalRect(const LogicalPoint& topLeft, const LogicalPoint& bottomRight)
    : m_left(topLeft.x()), m_top(topLeft.y()), m_right(bottomRight.x()), m_bottom(bottomRight.y())
{}

LogicalRect::LogicalRect(const QRect& rect)
    : m_left(rect.left()), m_top(rect.top()), m_right(rect.right()), m_bottom(rect.bottom())
{}

LogicalRect::LogicalRect(const OdGsDCRect& rect, const IMonitorInfo::MonitorGeometry& geometry)
    : LogicalRect(LogicalPoint(rect.m_min, geometry), LogicalPoint(rect.m_max, geometry))
{}

LogicalRect::LogicalRect(const wxRealRect& rect, const IMonitorInfo::MonitorGeometry& geometry)
    : m_left(rect.x / geometry.scale), m_top(rect.y / geometry.scale),
      m_right((rect.width + rect.x - 1.0) / geometry.scale), m_bottom((rect.height + rect.y - 1.0) / geometry.scale)
{}

void LogicalRect::setTopLeft(const LogicalPoint& point)
{
    m_left = point.x();
    m_top = point.y();
}

void LogicalRect::setBottomRight(const LogicalPoint& point)
{
    m_right = point.x();
    m_bottom = point.y();
}

OdGsDCRect LogicalRect::toOd(const IMonitorInfo::MonitorGeometry& geometry) const
{
    return {topLeft().toOd(geometry), bottomRight().toOd(geometry)};
}

wxRealRect LogicalRect::toWx(const IMonitorInfo::MonitorGeometry& geometry) const
{
    // The size is the distance of the corners, with no 1 more: this must stay.
    return {topLeft().toWx(geometry), bottomRight().toWx(geometry)};
}

QRectF LogicalRect::toQt() const
{
    return {topLeft().toQt(), bottomRight().toQt()};
}
} // namespace velm
